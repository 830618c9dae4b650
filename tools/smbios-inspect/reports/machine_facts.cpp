#include "smbios-inspect/reports/machine_facts.h"

#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include "smbios-inspect/standard/structure.h"

namespace SMBIOS::Inspect {

using Standard::FieldValues;
using Standard::Structure;
using Standard::TableWalk;

namespace {

constexpr std::uint8_t kFirmware = 0;
constexpr std::uint8_t kSystem = 1;
constexpr std::uint8_t kBoard = 2;
constexpr std::uint8_t kChassis = 3;
constexpr std::uint8_t kProcessor = 4;
constexpr std::uint8_t kCache = 7;
constexpr std::uint8_t kMemoryArray = 16;
constexpr std::uint8_t kMemoryDevice = 17;

/// Firmware that does not know a size may say that it is 0.
std::optional<std::uint64_t> SizeOf(const FieldValues& values, std::string_view name) {
    const auto size = values.NumberOf(name);
    return size == std::uint64_t{0} ? std::nullopt : size;
}

/// What structures refer to, by handle.
class ReferredFacts {
public:
    explicit ReferredFacts(TableWalk walk) {
        while (const auto structure = walk.Next()) {
            if (structure->Type() == kCache) {
                AddCache(*structure);
            } else if (structure->Type() == kMemoryArray) {
                AddArray(*structure);
            }
        }
    }

    /// The installed size of the cache with this handle; no value for none.
    [[nodiscard]] std::optional<std::uint64_t> CacheSize(std::optional<std::uint64_t> handle) const {
        const auto size = handle ? cacheSizes_.find(*handle) : cacheSizes_.end();
        return size == cacheSizes_.end() ? std::nullopt : std::optional(size->second);
    }

    /// The chip that holds the firmware may be a memory device too, of an array with another use.
    [[nodiscard]] bool IsSystemMemory(std::optional<std::uint64_t> arrayHandle) const {
        return !arrayHandle || !otherArrays_.contains(*arrayHandle);
    }

    /// What all arrays of system memory take; no value when none of them says.
    [[nodiscard]] std::optional<std::uint64_t> MaximumMemory() const { return maximumMemory_; }

private:
    void AddCache(const Structure& structure) {
        if (const auto size = SizeOf(FieldValues(structure), "installedSize")) {
            cacheSizes_.try_emplace(structure.Handle(), *size);
        }
    }

    void AddArray(const Structure& structure) {
        constexpr std::uint64_t kSystemMemory = 3;
        const FieldValues values(structure);
        if (const auto use = values.NumberOf("use"); use && *use != kSystemMemory) {
            otherArrays_.insert(structure.Handle());
        } else if (const auto capacity = values.NumberOf("maximumCapacity")) {
            maximumMemory_ = maximumMemory_.value_or(0) + *capacity;
        }
    }

    std::unordered_map<std::uint64_t, std::uint64_t> cacheSizes_;
    std::unordered_set<std::uint64_t> otherArrays_;
    std::optional<std::uint64_t> maximumMemory_;
};

FirmwareFacts FirmwareOf(const FieldValues& values) {
    return {.vendor = values.TextOf("vendor"),
            .version = values.TextOf("firmwareVersion"),
            .release = values.TextOf("platformFirmwareRelease"),
            .releaseDate = values.TextOf("firmwareReleaseDate"),
            .romSize = SizeOf(values, "firmwareRomSize")};
}

ProductFacts ProductOf(const FieldValues& values, std::string_view name) {
    return {.manufacturer = values.TextOf("manufacturer"),
            .name = values.TellingTextOf(name),
            .version = values.TextOf("version"),
            .serialNumber = values.TextOf("serialNumber")};
}

SystemFacts SystemOf(const FieldValues& values) {
    return {.product = ProductOf(values, "productName"), .uuid = values.TextOf("uuid")};
}

/// The status behind the word for a socket that is not empty.
std::string StatusOf(const FieldValues& values) {
    constexpr std::string_view kPopulated = "Populated, ";
    const std::string status = values.TextOf("status");
    return status.starts_with(kPopulated) ? status.substr(kPopulated.size()) : std::string();
}

ProcessorFacts ProcessorOf(const FieldValues& values, const ReferredFacts& referred) {
    const std::string version = values.TextOf("processorVersion");
    return {.socket = values.TextOf("socketDesignation"),
            .isPopulated = IsPopulatedSocket(values),
            .name = version.empty() ? values.TellingTextOf("processorFamily") : version,
            .status = StatusOf(values),
            .cores = values.NumberOf("coreCount"),
            .coresEnabled = values.NumberOf("coreEnabled"),
            .threads = values.NumberOf("threadCount"),
            .installedCaches = {referred.CacheSize(values.NumberOf("l1CacheHandle")),
                                referred.CacheSize(values.NumberOf("l2CacheHandle")),
                                referred.CacheSize(values.NumberOf("l3CacheHandle"))}};
}

ModuleFacts ModuleOf(const FieldValues& values, std::uint64_t size) {
    const auto configuredSpeed = values.NumberOf("configuredMemorySpeed");
    return {.locator = values.TextOf("deviceLocator"),
            .size = size,
            .type = values.TellingTextOf("memoryType"),
            .formFactor = values.TellingTextOf("formFactor"),
            .speed = configuredSpeed ? configuredSpeed : values.NumberOf("speed")};
}

/// A slot's size is a number, nothing, or not known.
bool IsFree(const Structure& structure) {
    constexpr std::size_t kSize = 0x0C;
    return structure.bytes.size() >= kSize + 2 && structure.Area().Word(kSize) == 0;
}

void AddDevice(const Structure& structure, const ReferredFacts& referred, MemoryFacts& memory) {
    const FieldValues values(structure);
    if (!referred.IsSystemMemory(values.NumberOf("physicalMemoryArrayHandle"))) {
        return;
    }
    ++memory.slots;
    if (IsFree(structure)) {
        ++memory.freeSlots;
    } else if (const auto size = values.NumberOf("size")) {
        memory.size += *size;
        memory.modules.push_back(ModuleOf(values, *size));
    } else {
        ++memory.unknownSlots;
    }
}

void AddStructure(const Structure& structure, const ReferredFacts& referred, MachineFacts& facts) {
    switch (structure.Type()) {
        case kFirmware:
            facts.firmware.push_back(FirmwareOf(FieldValues(structure)));
            break;
        case kSystem:
            facts.systems.push_back(SystemOf(FieldValues(structure)));
            break;
        case kBoard:
            facts.boards.push_back(ProductOf(FieldValues(structure), "product"));
            break;
        case kChassis:
            facts.chassis.push_back(ProductOf(FieldValues(structure), "type"));
            break;
        case kProcessor:
            facts.processors.push_back(ProcessorOf(FieldValues(structure), referred));
            break;
        case kMemoryDevice:
            AddDevice(structure, referred, facts.memory);
            break;
        default:
            break;
    }
}

}  // namespace

bool IsPopulatedSocket(const Standard::FieldValues& processor) {
    constexpr std::uint64_t kIsPopulated = 0x40;
    return (processor.NumberOf("status").value_or(kIsPopulated) & kIsPopulated) != 0;
}

MachineFacts MachineFactsOf(std::span<const std::uint8_t> rawTable) {
    MachineFacts facts;
    TableWalk walk(rawTable);
    const ReferredFacts referred(walk);
    facts.memory.maximum = referred.MaximumMemory();
    while (const auto structure = walk.Next()) {
        AddStructure(*structure, referred, facts);
    }
    return facts;
}

}  // namespace SMBIOS::Inspect
