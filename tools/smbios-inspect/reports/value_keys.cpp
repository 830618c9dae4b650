#include "smbios-inspect/reports/value_keys.h"

#include <algorithm>
#include <optional>

namespace SMBIOS::Inspect {

namespace {

std::string TextOf(const std::optional<std::uint64_t>& number) {
    return number ? std::to_string(*number) : std::string();
}

// Processors

bool IsPopulated(const ProcessorFacts& processor) {
    return processor.isPopulated;
}

std::string CountProcessors(const MachineFacts& machine) {
    const auto count = std::ranges::count_if(machine.processors, IsPopulated);
    return machine.processors.empty() ? std::string() : std::to_string(count);
}

std::string CountSockets(const MachineFacts& machine) {
    return machine.processors.empty() ? std::string() : std::to_string(machine.processors.size());
}

/// Of all processors, as far as firmware says it.
template <auto Member>
std::string AddUp(const MachineFacts& machine) {
    std::optional<std::uint64_t> sum;
    for (const ProcessorFacts& processor : machine.processors) {
        if (processor.isPopulated && processor.*Member) {
            sum = sum.value_or(0) + *(processor.*Member);
        }
    }
    return TextOf(sum);
}

// Memory

template <auto Member>
std::string OfMemory(const MachineFacts& machine) {
    return machine.memory.slots == 0 ? std::string() : std::to_string(machine.memory.*Member);
}

std::string CountModules(const MachineFacts& machine) {
    return machine.memory.slots == 0 ? std::string() : std::to_string(machine.memory.modules.size());
}

std::string MaximumMemory(const MachineFacts& machine) {
    return TextOf(machine.memory.maximum);
}

/// That of the first module.
std::string MemoryType(const MachineFacts& machine) {
    return machine.memory.modules.empty() ? std::string() : machine.memory.modules.front().type;
}

std::string MemorySpeed(const MachineFacts& machine) {
    std::optional<std::uint64_t> least;
    for (const ModuleFacts& module : machine.memory.modules) {
        if (module.speed) {
            least = std::min(least.value_or(*module.speed), *module.speed);
        }
    }
    return TextOf(least);
}

constexpr ValueKey Field(std::string_view name,
                         std::uint8_t type,
                         std::string_view field,
                         std::string_view meaning) {
    return {.name = name, .meaning = meaning, .type = type, .field = field};
}

constexpr ValueKey Computed(std::string_view name,
                            std::string (*compute)(const MachineFacts&),
                            std::string_view meaning) {
    return {.name = name, .meaning = meaning, .compute = compute};
}

// A field's key has the field's name of firmware --json behind the thing's, without the thing's in front.
constexpr ValueKey kValueKeys[] = {
    Field("firmware.vendor", 0, "vendor", "who made the firmware"),
    Field("firmware.version", 0, "firmwareVersion", "the firmware's version"),
    Field("firmware.releaseDate", 0, "firmwareReleaseDate", "the firmware's date"),
    Field("firmware.romSize", 0, "firmwareRomSize", "bytes of the chip that holds it"),
    Field("firmware.platformFirmwareRelease", 0, "platformFirmwareRelease", "major and minor release"),
    Field("firmware.embeddedControllerFirmwareRelease",
          0,
          "embeddedControllerFirmwareRelease",
          "that of the embedded controller"),
    Field("firmware.currentLanguage", 13, "currentLanguage", "the language it speaks"),

    Field("system.manufacturer", 1, "manufacturer", "who made the machine"),
    Field("system.productName", 1, "productName", "what the machine is called"),
    Field("system.version", 1, "version", "the machine's version"),
    Field("system.serialNumber", 1, "serialNumber", "the machine's serial number"),
    Field("system.uuid", 1, "uuid", "the machine's UUID"),
    Field("system.wakeUpType", 1, "wakeUpType", "what switched it on"),
    Field("system.skuNumber", 1, "skuNumber", "what it is sold as"),
    Field("system.family", 1, "family", "the family of machines"),

    Field("board.manufacturer", 2, "manufacturer", "who made the board"),
    Field("board.product", 2, "product", "what the board is called"),
    Field("board.version", 2, "version", "the board's version"),
    Field("board.serialNumber", 2, "serialNumber", "the board's serial number"),
    Field("board.assetTag", 2, "assetTag", "the board's asset tag"),
    Field("board.locationInChassis", 2, "locationInChassis", "where it is"),
    Field("board.type", 2, "boardType", "its type in words"),

    Field("chassis.manufacturer", 3, "manufacturer", "who made the chassis"),
    Field("chassis.type", 3, "type", "its type in words"),
    Field("chassis.lock", 3, "lock", "whether it has a lock"),
    Field("chassis.version", 3, "version", "the chassis's version"),
    Field("chassis.serialNumber", 3, "serialNumber", "the chassis's serial number"),
    Field("chassis.assetTagNumber", 3, "assetTagNumber", "the chassis's asset tag"),
    Field("chassis.skuNumber", 3, "skuNumber", "what it is sold as"),
    Field("chassis.height", 3, "height", "rack units"),
    Field("chassis.numberOfPowerCords", 3, "numberOfPowerCords", "power cords"),
    Field("chassis.bootUpState", 3, "bootUpState", "its state when it was started, in words"),
    Field("chassis.powerSupplyState", 3, "powerSupplyState", "that of its power supplies"),
    Field("chassis.thermalState", 3, "thermalState", "that of its temperature"),
    Field("chassis.securityStatus", 3, "securityStatus", "that of its security"),

    Computed("processor.count", CountProcessors, "processors"),
    Computed("processor.sockets", CountSockets, "sockets, the empty ones too"),
    Computed("processor.cores", AddUp<&ProcessorFacts::cores>, "cores of all processors"),
    Computed("processor.coresEnabled", AddUp<&ProcessorFacts::coresEnabled>, "those that are enabled"),
    Computed("processor.threads", AddUp<&ProcessorFacts::threads>, "threads of all processors"),
    Field("processor.manufacturer", 4, "processorManufacturer", "who made the first processor"),
    Field("processor.version", 4, "processorVersion", "what it is called"),
    Field("processor.family", 4, "processorFamily", "its family in words"),
    Field("processor.signature", 4, "signature", "its type, family, model and stepping"),
    Field("processor.maxSpeed", 4, "maxSpeed", "MHz that the socket takes"),
    Field("processor.currentSpeed", 4, "currentSpeed", "MHz at the start of the machine"),
    Field("processor.upgrade", 4, "processorUpgrade", "its socket in words"),

    Computed("memory.total", OfMemory<&MemoryFacts::size>, "bytes of all modules of system memory"),
    Computed("memory.maximum", MaximumMemory, "bytes that the arrays take"),
    Computed("memory.slots", OfMemory<&MemoryFacts::slots>, "slots"),
    Computed("memory.freeSlots", OfMemory<&MemoryFacts::freeSlots>, "slots without a module"),
    Computed("memory.modules", CountModules, "modules"),
    Computed("memory.type", MemoryType, "type of the first module in words"),
    Computed("memory.speed", MemorySpeed, "MT/s of the slowest module"),

    Field("security.powerOnPasswordStatus", 24, "powerOnPasswordStatus", "in words"),
    Field("security.keyboardPasswordStatus", 24, "keyboardPasswordStatus", "in words"),
    Field("security.administratorPasswordStatus", 24, "administratorPasswordStatus", "in words"),
    Field("security.frontPanelResetStatus", 24, "frontPanelResetStatus", "in words"),

    Field("boot.status", 32, "bootStatus", "how the last start went, in words"),

    Field("tpm.vendorId", 43, "vendorId", "who made the TPM"),
    Field("tpm.specVersion", 43, "specVersion", "the version of the TPM standard"),
    Field("tpm.firmwareVersion1", 43, "firmwareVersion1", "its firmware's version"),
    Field("tpm.description", 43, "description", "what firmware says of it"),
};

}  // namespace

std::span<const ValueKey> ValueKeys() noexcept {
    return kValueKeys;
}

const ValueKey* FindValueKey(std::string_view name) noexcept {
    const auto* const found = std::ranges::find(kValueKeys, name, &ValueKey::name);
    return found == std::end(kValueKeys) ? nullptr : found;
}

}  // namespace SMBIOS::Inspect
