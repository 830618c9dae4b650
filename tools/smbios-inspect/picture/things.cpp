#include "smbios-inspect/picture/things.h"

#include <charconv>
#include <iterator>
#include <string>
#include <string_view>

#include "smbios-inspect/output/phrases.h"
#include "smbios-inspect/output/units.h"
#include "smbios-inspect/picture/words.h"

namespace SMBIOS::Inspect::Picture {

namespace {

std::string SerialNumberOf(const Fields& fields) {
    return Prefixed("serial number ", fields.Text("serialNumber"));
}

/// The name with its maker in front, where it does not begin with it.
std::string MadeBy(const std::string& maker, const std::string& name) {
    if (maker.empty() || name.empty() || name.starts_with(maker)) {
        return FirstSaid({name, maker});
    }
    return maker + " " + name;
}

std::size_t SizeOf(const Fields& fields, std::string_view name) {
    return static_cast<std::size_t>(fields.Number(name).value_or(0));
}

/// "12 cores", "10 of 12 cores".
std::string CoresText(const Processor& processor) {
    if (processor.cores == 0) {
        return {};
    }
    const bool isWhole = processor.coresEnabled == 0 || processor.coresEnabled == processor.cores;
    return (isWhole ? "" : CountText(processor.coresEnabled) + " of ") + Counted(processor.cores, "core");
}

std::string ThreadsText(const Processor& processor) {
    return processor.threads == 0 ? std::string() : Counted(processor.threads, "thread");
}

/// What the status says behind "Populated, ", unless the processor is enabled.
std::string WarningIn(const Fields& fields) {
    constexpr std::uint64_t kState = 0x07;
    constexpr std::uint64_t kIsEnabled = 1;
    const std::string text = fields.Text("status");
    const std::size_t comma = text.find(", ");
    const bool isUsual = (fields.Number("status").value_or(kIsEnabled) & kState) == kIsEnabled;
    return isUsual || comma == std::string::npos ? std::string() : text.substr(comma + 2);
}

struct MemoryKindRow {
    std::string_view name;
    MemoryKind kind;
};

/// What a type of memory contains in its name; the first row that fits counts.
constexpr MemoryKindRow kMemoryKinds[] = {
    {"DDR5", MemoryKind::ddr5},
    {"DDR4", MemoryKind::ddr4},
    {"DDR3", MemoryKind::ddr3},
    {"DDR", MemoryKind::older},
    {"DRAM", MemoryKind::older},
};

MemoryKind KindOf(std::string_view type) noexcept {
    for (const MemoryKindRow& row : kMemoryKinds) {
        if (type.find(row.name) != std::string_view::npos) {
            return row.kind;
        }
    }
    return MemoryKind::other;
}

/// The number at the end of "PCI Express 3 x16"; 0 when there is none.
unsigned LanesIn(std::string_view type) noexcept {
    const std::size_t mark = type.rfind(" x");
    unsigned lanes = 0;
    if (mark != std::string_view::npos) {
        std::from_chars(type.data() + mark + 2, type.data() + type.size(), lanes);
    }
    return lanes;
}

/// "x8", and "32-bit", which takes the room of four lanes.
unsigned LanesOfWidth(std::string_view width) noexcept {
    unsigned number = 0;
    const bool isLanes = width.starts_with('x');
    std::from_chars(width.data() + (isLanes ? 1 : 0), width.data() + width.size(), number);
    return isLanes ? number : number / 8;
}

/// The firmware's words have the width in front, also where the type itself has one: "x16 PCI Express 3 x16".
std::string SlotTypeOf(const Fields& fields) {
    const std::string width = fields.Text("slotDataBusWidth");
    const std::string type = fields.Text("slotType");
    const bool isRepeated = !width.empty() && type.starts_with(width + " ") && type.ends_with(" " + width);
    return isRepeated ? type.substr(width.size() + 1) : type;
}

bool IsDigit(char character) noexcept {
    return '0' <= character && character <= '9';
}

/// The generation, where the type does not say it.
std::string GenerationOf(const Fields& fields, const std::string& type) {
    constexpr std::string_view kExpress = "PCI Express ";
    const std::uint64_t generation = fields.Number("slotInformation").value_or(0);
    const std::size_t place = type.find(kExpress);
    const bool isSaid = place != std::string::npos && IsDigit(type[place + kExpress.size()]);
    return generation == 0 || isSaid ? std::string() : "gen " + std::to_string(generation);
}

Usage UsageOf(const Fields& fields) noexcept {
    constexpr std::uint64_t kAvailable = 3;
    constexpr std::uint64_t kInUse = 4;
    const auto usage = fields.Number("currentUsage");
    if (usage == kAvailable) {
        return Usage::free;
    }
    return usage == kInUse ? Usage::inUse : Usage::unknown;
}

std::string UsageTextOf(const Fields& fields) {
    constexpr std::string_view kTexts[] = {
        "unknown", "other use", "unknown", "free", "in use", "unavailable"};
    const std::uint64_t usage = fields.Number("currentUsage").value_or(0);
    return std::string(kTexts[usage < std::size(kTexts) ? usage : 0]);
}

Health HealthOf(const Fields& fields) noexcept {
    constexpr Health kHealths[] = {Health::unknown,
                                   Health::unknown,
                                   Health::unknown,
                                   Health::good,
                                   Health::warning,
                                   Health::critical,
                                   Health::critical,
                                   Health::unknown};
    return kHealths[fields.Number("status").value_or(0) & 0x07];
}

}  // namespace

Note SystemNote(const Fields& fields) {
    return {.name = MadeBy(fields.Text("manufacturer"), fields.Text("productName")),
            .details = {Prefixed("version ", fields.Text("version")), SerialNumberOf(fields)}};
}

Note FirmwareNote(const Fields& fields) {
    return {.kind = "Firmware",
            .name = FirstSaid(
                {fields.Text("firmwareVersion"), fields.Text("platformFirmwareRelease"), "Unknown"}),
            .details = {fields.Text("vendor"), fields.Text("firmwareReleaseDate")}};
}

Note BoardNote(const Fields& fields) {
    return {.kind = "Board",
            .name = FirstSaid({fields.Text("product"), "Unknown"}),
            .details = {fields.Text("manufacturer"), SerialNumberOf(fields)}};
}

Note ChassisNote(const Fields& fields) {
    return {.kind = "Chassis",
            .name = FirstSaid({fields.Text("type"), "Unknown"}),
            .details = {fields.Text("manufacturer"), SerialNumberOf(fields)}};
}

Processor ProcessorOf(const Fields& fields) {
    constexpr std::uint64_t kIsPopulated = 0x40;
    Processor processor;
    processor.socket = FirstSaid({fields.Text("socketDesignation"), "Processor"});
    processor.isPopulated = (fields.Number("status").value_or(kIsPopulated) & kIsPopulated) != 0;
    if (!processor.isPopulated) {
        return processor;
    }
    processor.cores = SizeOf(fields, "coreCount");
    processor.coresEnabled = SizeOf(fields, "coreEnabled");
    processor.threads = SizeOf(fields, "threadCount");
    processor.name =
        FirstSaid({fields.Text("processorVersion"), fields.Text("processorFamily"), "Without a name"});
    processor.detail = Dotted({CoresText(processor),
                               ThreadsText(processor),
                               FirstSaid({fields.Text("currentSpeed"), fields.Text("maxSpeed")})});
    processor.warning = WarningIn(fields);
    return processor;
}

Cache CacheOf(const Fields& fields, unsigned level) {
    const std::string type = fields.Text("systemCacheType");
    const std::string_view mark = type == "Data" ? "d" : type == "Instruction" ? "i" : "";
    return {.text = "L" + std::to_string(level) + std::string(mark) +
                    Prefixed(" ", fields.Text("installedSize"))};
}

MemoryDevice MemoryDeviceOf(const Fields& fields) {
    MemoryDevice device;
    const auto bytes = fields.Number("size");
    const std::string type = fields.Text("memoryType");
    device.bank = fields.Text("bankLocator");
    device.locator = FirstSaid({fields.Text("deviceLocator"), device.bank, "Memory device"});
    device.isFilled = !fields.Text("size").starts_with("No ");
    if (!device.isFilled) {
        device.module = "free";
        return device;
    }
    device.module = bytes ? ByteSizeText(*bytes) + Prefixed(" ", type) : Dotted({"size unknown", type});
    device.speed = FirstSaid({fields.Text("configuredMemorySpeed"), fields.Text("speed")});
    device.kind = KindOf(type);
    device.bytes = bytes.value_or(0);
    return device;
}

MemoryArray MemoryArrayOf(const Fields& fields) {
    return {.name = FirstSaid({fields.Text("use"), "Memory"}), .mostBytes = fields.Number("maximumCapacity")};
}

Slot SlotOf(const Fields& fields) {
    Slot slot;
    const std::string type = SlotTypeOf(fields);
    slot.name = FirstSaid({fields.Text("slotDesignation"), "Slot"});
    slot.type = Dotted({type, GenerationOf(fields, type)});
    slot.usage = UsageOf(fields);
    slot.usageText = UsageTextOf(fields);
    const unsigned lanes = LanesIn(type);
    slot.lanes = lanes != 0 ? lanes : LanesOfWidth(fields.Text("slotDataBusWidth"));
    return slot;
}

Part ConnectorOf(const Fields& fields) {
    const std::string outside = fields.Text("externalReferenceDesignator");
    const std::string outsideType = fields.Text("externalConnectorType");
    const std::string type = FirstSaid({outsideType, fields.Text("internalConnectorType")});
    return {.name = FirstSaid({outside, fields.Text("internalReferenceDesignator"), "Connector"}),
            .detail = FirstSaid({fields.Text("portType"), type}),
            .isPresent = !outside.empty() || !outsideType.empty()};
}

Part OnBoardDeviceOf(const Fields& fields) {
    const std::string type = fields.Text("deviceType");
    const std::string name =
        FirstSaid({fields.Text("referenceDesignation"), fields.Text("description"), type, "Device"});
    const bool isEnabled = fields.Number("deviceStatus").value_or(1) != 0;
    return {.name = name,
            .detail = Dotted({type == name ? "" : type, isEnabled ? "" : "disabled"}),
            .isPresent = isEnabled};
}

Part TemperatureProbeOf(const Fields& fields) {
    return {.name = FirstSaid({fields.Text("description"), "Temperature probe"}),
            .detail = Dotted({fields.Text("status"), fields.Text("location")}),
            .health = HealthOf(fields)};
}

Part CoolingDeviceOf(const Fields& fields) {
    return {.name = FirstSaid({fields.Text("description"), "Cooling device"}),
            .detail = Dotted({fields.Text("status"), fields.Text("deviceType"), fields.Text("nominalSpeed")}),
            .health = HealthOf(fields)};
}

}  // namespace SMBIOS::Inspect::Picture
