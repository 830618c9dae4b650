# Completes the command line of smbios-inspect in bash: commands, the options each takes, files, types.

_smbios_inspect_types="
    bios system baseboard chassis processor memory cache connector slot oem group error address pointing battery
    security power probe cooling remote management channel additional tpm inventory"

_smbios_inspect_files() {
    mapfile -t COMPREPLY < <(compgen -f -- "$1")
    compopt -o filenames 2>/dev/null || true  # there is none when the function is called by hand
}

# Completes the value of an option; fails when the option takes none.
_smbios_inspect_value() {
    local option=$1 word=$2
    case $option in
        --from) _smbios_inspect_files "$word" ;;
        --type) mapfile -t COMPREPLY < <(compgen -W "$_smbios_inspect_types $(echo {0..48})" -- "$word") ;;
        --handle) COMPREPLY=() ;;
        *) return 1 ;;
    esac
}

_smbios_inspect_options() {
    case $1 in
        memory | processors) echo --from --json ;;
        structures) echo --from --json --type ;;
        firmware) echo --from --handle --json --quiet --type ;;
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
            --from | --type | --handle) [[ ${COMP_WORDS[i + 1]} == = ]] && ((++i)); ((++i)) ;;
            -*) ;;
            *) command=${COMP_WORDS[i]}; break ;;
        esac
    done

    if [[ $word == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$(_smbios_inspect_options "$command")" -- "$word")
    elif [[ -z $command ]]; then
        mapfile -t COMPREPLY < <(compgen -W "summary memory processors structures firmware save" -- "$word")
    elif [[ $command == save ]]; then
        _smbios_inspect_files "$word"
    fi
}

complete -F _smbios_inspect smbios-inspect
