# Completes the command line of smbios-inspect in bash: commands, the options each takes, files, types, keys.

_smbios_inspect_types="
    bios system baseboard chassis processor memory cache connector slot oem group error address pointing battery
    security power probe cooling remote management channel additional tpm inventory"

_smbios_inspect_commands="summary memory processors structures firmware get departures diff picture save"

_smbios_inspect_keys="
    firmware.vendor firmware.version firmware.releaseDate firmware.romSize firmware.platformFirmwareRelease
    firmware.embeddedControllerFirmwareRelease firmware.currentLanguage system.manufacturer system.productName
    system.version system.serialNumber system.uuid system.wakeUpType system.skuNumber system.family
    board.manufacturer board.product board.version board.serialNumber board.assetTag board.locationInChassis
    board.type chassis.manufacturer chassis.type chassis.lock chassis.version chassis.serialNumber
    chassis.assetTagNumber chassis.skuNumber chassis.height chassis.numberOfPowerCords chassis.bootUpState
    chassis.powerSupplyState chassis.thermalState chassis.securityStatus processor.count processor.sockets
    processor.cores processor.coresEnabled processor.threads processor.manufacturer processor.version
    processor.family processor.signature processor.maxSpeed processor.currentSpeed processor.upgrade memory.total
    memory.maximum memory.slots memory.freeSlots memory.modules memory.type memory.speed
    security.powerOnPasswordStatus security.keyboardPasswordStatus security.administratorPasswordStatus
    security.frontPanelResetStatus boot.status tpm.vendorId tpm.specVersion tpm.firmwareVersion1 tpm.description"

_smbios_inspect_files() {
    mapfile -t COMPREPLY < <(compgen -f -- "$1")
    compopt -o filenames 2>/dev/null || true  # there is none when the function is called by hand
}

# Completes the value of an option; fails when the option takes none.
_smbios_inspect_value() {
    local option=$1 word=$2
    case $option in
        --from | --output) _smbios_inspect_files "$word" ;;
        --type) mapfile -t COMPREPLY < <(compgen -W "$_smbios_inspect_types $(echo {0..48})" -- "$word") ;;
        --handle) COMPREPLY=() ;;
        *) return 1 ;;
    esac
}

_smbios_inspect_options() {
    case $1 in
        departures | memory | processors) echo --from --json ;;
        structures) echo --from --json --type ;;
        diff) echo --json --quiet ;;
        firmware) echo --bytes --from --handle --json --quiet --type ;;
        get) echo --from ;;
        picture) echo --from --force --output ;;
        save) echo --from --force ;;
        summary) echo --from --json ;;
        *) echo --from --help --json --version ;;
    esac
}

_smbios_inspect() {
    local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} command="" option="" i
    COMPREPLY=()
    # "--from=FILE" comes as three words.
    if [[ $word == = ]]; then
        option=$previous word=""
    elif [[ $previous == = && COMP_CWORD -ge 2 ]]; then
        option=${COMP_WORDS[COMP_CWORD - 2]}
    else
        option=$previous
    fi
    _smbios_inspect_value "$option" "$word" && return

    for ((i = 1; i < COMP_CWORD; ++i)); do
        case ${COMP_WORDS[i]} in
            --from | --output | --type | --handle) [[ ${COMP_WORDS[i + 1]} == = ]] && ((++i)); ((++i)) ;;
            -*) ;;
            *) command=${COMP_WORDS[i]}; break ;;
        esac
    done

    if [[ $word == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$(_smbios_inspect_options "$command")" -- "$word")
    elif [[ -z $command ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$_smbios_inspect_commands" -- "$word")
    elif [[ $command == get ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$_smbios_inspect_keys" -- "$word")
    elif [[ $command == save || $command == diff ]]; then
        _smbios_inspect_files "$word"
    fi
}

complete -F _smbios_inspect smbios-inspect
