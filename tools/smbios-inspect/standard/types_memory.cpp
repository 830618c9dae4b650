#include <string>

#include "smbios-inspect/standard/described_types.h"
#include "smbios-inspect/standard/forms.h"
#include "smbios-inspect/standard/row_visitor.h"
#include "smbios-inspect/standard/words_memory.h"

// Memory arrays, devices, their addresses and errors.
namespace SMBIOS::Inspect::Standard {

namespace {

// Type 16

Value ReadMaximumCapacity(const Reading& reading) {
    constexpr std::uint64_t kSeeExtended = 0x80000000;
    constexpr std::size_t kExtended = 0x0F;
    const std::uint64_t kibibytes = reading.Raw();
    if (kibibytes == kSeeExtended && reading.structure.bytes.size() >= kExtended + kQword) {
        return SizeInBytes(reading.structure.Area().Qword(kExtended));
    }
    return kibibytes == kSeeExtended ? Nothing(kUnknown) : SizeInKibibytes(kibibytes);
}

constexpr FieldRow kMemoryArrayRows[] = {
    {0x04, kByte, "location", "Location", Code(kArrayLocations)},
    {0x05, kByte, "use", "Use", Code(kArrayUses)},
    {0x06, kByte, "memoryErrorCorrection", "Error Correction Type", Code(kArrayErrorCorrections)},
    {0x07, kDword, "maximumCapacity", "Maximum Capacity", NumberBy(ReadMaximumCapacity, "byte")},
    {0x0B, kWord, "memoryErrorInformationHandle", "Error Information Handle", Handle(kErrorHandles)},
    {0x0D, kWord, "numberOfMemoryDevices", "Number Of Devices", Count()},
    {0x0F, kQword, "extendedMaximumCapacity", "", ByteSize()},
};

// Type 17

/// In MiB, or in KiB when the highest bit is set.
Value ReadDeviceSize(const Reading& reading) {
    constexpr std::uint64_t kNoDevice = 0;
    constexpr std::uint64_t kUnknownSize = 0xFFFF;
    constexpr std::uint64_t kSeeExtended = 0x7FFF;
    constexpr std::uint64_t kIsInKibibytes = 0x8000;
    constexpr std::size_t kExtended = 0x1C;
    const std::uint64_t size = reading.Raw();
    if (size == kNoDevice || size == kUnknownSize) {
        return Nothing(size == kNoDevice ? "No Module Installed" : kUnknown);
    }
    if (size == kSeeExtended && reading.structure.bytes.size() >= kExtended + kDword) {
        return SizeInKibibytes((reading.structure.Area().Dword(kExtended) & 0x7FFFFFFFULL) * 1024);
    }
    return SizeInKibibytes((size & kIsInKibibytes) != 0 ? size - kIsInKibibytes : size * 1024);
}

Value ReadExtendedDeviceSize(const Reading& reading) {
    return SizeInKibibytes((reading.Raw() & 0x7FFFFFFFULL) * 1024);
}

/// A speed that has no room in its word is in a double word at `WideOffset`.
template <std::size_t WideOffset>
Value ReadDeviceSpeed(const Reading& reading) {
    constexpr std::uint64_t kSeeWideSpeed = 0xFFFF;
    std::uint64_t speed = reading.Raw();
    if (speed == kSeeWideSpeed) {
        speed = reading.structure.bytes.size() >= WideOffset + kDword
                    ? reading.structure.Area().Dword(WideOffset) & 0x7FFFFFFFULL
                    : 0;
    }
    return speed == 0 ? Nothing(kUnknown) : Number(speed, std::to_string(speed) + " MT/s");
}

/// "1.2 V": with as many digits behind the point as it takes, and at least one.
std::string VoltsText(std::uint64_t millivolts) {
    const auto number = static_cast<std::int64_t>(millivolts);
    if (number % 100 == 0) {
        return DecimalText(number / 100, 1);
    }
    return number % 10 == 0 ? DecimalText(number / 10, 2) : DecimalText(number, 3);
}

Value ReadMillivolts(const Reading& reading) {
    const std::uint64_t millivolts = reading.Raw();
    return millivolts == 0 ? Nothing(kUnknown) : Number(millivolts, VoltsText(millivolts) + " V");
}

/// A JEDEC number: how many continuation codes, and the code in its bank.
Value ReadManufacturerId(const Reading& reading) {
    const std::uint64_t id = reading.Raw();
    if (id == 0) {
        return Nothing(kUnknown);
    }
    return Words(id, "Bank " + std::to_string((id & 0x7F) + 1) + ", Hex " + HexText(id >> 8, 2));
}

constexpr auto kUnknownRevision = WordsOf({{0xFF00, "Unknown"}});
constexpr WordList kZero = kUnknownIfZero;

/// The lower half of the attributes.
constexpr Form kRank = {
    .read = ReadNumber, .kind = ValueKind::number, .words = kZero, .lowBit = 0, .bitCount = 4};

constexpr FieldRow kMemoryDeviceRows[] = {
    {0x04, kWord, "physicalMemoryArrayHandle", "Array Handle", Handle()},
    {0x06, kWord, "memoryErrorInformationHandle", "Error Information Handle", Handle(kErrorHandles)},
    {0x08, kWord, "totalWidth", "Total Width", Measure("bit", " bits", kUnknownWidths)},
    {0x0A, kWord, "dataWidth", "Data Width", Measure("bit", " bits", kUnknownWidths)},
    {0x0C, kWord, "size", "Size", NumberBy(ReadDeviceSize, "byte")},
    {0x0E, kByte, "formFactor", "Form Factor", Code(kFormFactors)},
    {0x0F, kByte, "deviceSet", "Set", Count(kDeviceSets)},
    {0x10, kByte, "deviceLocator", "Locator", String()},
    {0x11, kByte, "bankLocator", "Bank Locator", String()},
    {0x12, kByte, "memoryType", "Type", Code(kMemoryTypes)},
    {0x13, kWord, "typeDetail", "Type Detail", FlagsInLine(kTypeDetails)},
    {0x15, kWord, "speed", "Speed", NumberBy(ReadDeviceSpeed<0x54>, "MT/s")},
    {0x17, kByte, "manufacturer", "Manufacturer", String()},
    {0x18, kByte, "serialNumber", "Serial Number", String()},
    {0x19, kByte, "assetTag", "Asset Tag", String()},
    {0x1A, kByte, "partNumber", "Part Number", String()},
    {0x1B, kByte, "attributes", "Rank", kRank},
    {0x1C, kDword, "extendedSize", "", NumberBy(ReadExtendedDeviceSize, "byte")},
    {0x20,
     kWord,
     "configuredMemorySpeed",
     "Configured Memory Speed",
     NumberBy(ReadDeviceSpeed<0x58>, "MT/s")},
    {0x22, kWord, "minimumVoltage", "Minimum Voltage", NumberBy(ReadMillivolts, "mV")},
    {0x24, kWord, "maximumVoltage", "Maximum Voltage", NumberBy(ReadMillivolts, "mV")},
    {0x26, kWord, "configuredVoltage", "Configured Voltage", NumberBy(ReadMillivolts, "mV")},
    {0x28, kByte, "memoryTechnology", "Memory Technology", Code(kMemoryTechnologies)},
    {0x29,
     kWord,
     "memoryOperatingModeCapability",
     "Memory Operating Mode Capability",
     FlagsInLine(kOperatingModes)},
    {0x2B, kByte, "firmwareVersion", "Firmware Version", String()},
    {0x2C, kWord, "moduleManufacturerId", "Module Manufacturer ID", CodeBy(ReadManufacturerId)},
    {0x2E, kWord, "moduleProductId", "Module Product ID", Hex(kZero)},
    {0x30,
     kWord,
     "memorySubsystemControllerManufacturerId",
     "Memory Subsystem Controller Manufacturer ID",
     CodeBy(ReadManufacturerId)},
    {0x32, kWord, "memorySubsystemControllerProductId", "Memory Subsystem Controller Product ID", Hex(kZero)},
    {0x34, kQword, "nonVolatileSize", "Non-Volatile Size", ByteSize(kPortionSizes)},
    {0x3C, kQword, "volatileSize", "Volatile Size", ByteSize(kPortionSizes)},
    {0x44, kQword, "cacheSize", "Cache Size", ByteSize(kPortionSizes)},
    {0x4C, kQword, "logicalSize", "Logical Size", ByteSize(kPortionSizes)},
    {0x54, kDword, "extendedSpeed", "", Measure("MT/s", " MT/s", kZero)},
    {0x58, kDword, "extendedConfiguredMemorySpeed", "", Measure("MT/s", " MT/s", kZero)},
    {0x5C, kWord, "pmic0ManufacturerId", "PMIC0 Manufacturer ID", CodeBy(ReadManufacturerId)},
    {0x5E, kWord, "pmic0RevisionNumber", "PMIC0 Revision Number", Hex(kUnknownRevision)},
    {0x60, kWord, "rcdManufacturerId", "RCD Manufacturer ID", CodeBy(ReadManufacturerId)},
    {0x62, kWord, "rcdRevisionNumber", "RCD Revision Number", Hex(kUnknownRevision)},
};

// Types 18 and 33

constexpr WordList kUnknown32 = kUnknownAddress32;
constexpr WordList kUnknown64 = kUnknownAddress64;

constexpr FieldRow kMemoryError32Rows[] = {
    {0x04, kByte, "errorType", "Type", Code(kErrorTypes)},
    {0x05, kByte, "errorGranularity", "Granularity", Code(kErrorGranularities)},
    {0x06, kByte, "errorOperation", "Operation", Code(kErrorOperations)},
    {0x07, kDword, "vendorSyndrome", "Vendor Syndrome", Hex(kZero)},
    {0x0B, kDword, "memoryArrayErrorAddress", "Memory Array Address", Hex(kUnknown32)},
    {0x0F, kDword, "deviceErrorAddress", "Device Address", Hex(kUnknown32)},
    {0x13, kDword, "errorResolution", "Resolution", Hex(kUnknown32)},
};

constexpr FieldRow kMemoryError64Rows[] = {
    {0x04, kByte, "errorType", "Type", Code(kErrorTypes)},
    {0x05, kByte, "errorGranularity", "Granularity", Code(kErrorGranularities)},
    {0x06, kByte, "errorOperation", "Operation", Code(kErrorOperations)},
    {0x07, kDword, "vendorSyndrome", "Vendor Syndrome", Hex(kZero)},
    {0x0B, kQword, "memoryArrayErrorAddress", "Memory Array Address", Hex(kUnknown64)},
    {0x13, kQword, "deviceErrorAddress", "Device Address", Hex(kUnknown64)},
    {0x1B, kDword, "errorResolution", "Resolution", Hex(kUnknown32)},
};

// Types 19 and 20

/// A range from its first byte to its last.
struct AddressRange {
    std::uint64_t first;
    std::uint64_t last;
    bool isExtended;
};

/// The addresses are in KiB, and in bytes at `ExtendedOffset` when the first has no room there.
template <std::size_t ExtendedOffset>
AddressRange RangeOf(const Structure& structure) {
    constexpr std::uint32_t kSeeExtended = 0xFFFFFFFF;
    const Structures::FormattedArea area = structure.Area();
    const std::uint64_t first = area.Dword(0x04);
    const std::uint64_t last = area.Dword(0x08);
    if (first == kSeeExtended && area.Size() >= ExtendedOffset + 2 * kQword) {
        return {area.Qword(ExtendedOffset), area.Qword(ExtendedOffset + kQword), true};
    }
    return {first << 10, last << 10 | 0x3FF, false};
}

Value AddressValue(std::uint64_t address, bool isExtended) {
    return Number(address, HexText(address, isExtended ? 16 : 11));
}

template <std::size_t ExtendedOffset>
Value ReadFirstAddress(const Reading& reading) {
    const AddressRange range = RangeOf<ExtendedOffset>(reading.structure);
    return AddressValue(range.first, range.isExtended);
}

template <std::size_t ExtendedOffset>
Value ReadLastAddress(const Reading& reading) {
    const AddressRange range = RangeOf<ExtendedOffset>(reading.structure);
    return AddressValue(range.last, range.isExtended);
}

template <std::size_t ExtendedOffset>
Value ReadRangeSize(const Reading& reading) {
    const AddressRange range = RangeOf<ExtendedOffset>(reading.structure);
    const std::uint64_t size = range.last - range.first + 1;
    return range.last < range.first || size == 0 ? Nothing("Invalid") : SizeInBytes(size);
}

constexpr FieldRow kMemoryArrayMappedAddressRows[] = {
    {0x04, kDword, "startingAddress", "Starting Address", NumberBy(ReadFirstAddress<0x0F>)},
    {0x08, kDword, "endingAddress", "Ending Address", NumberBy(ReadLastAddress<0x0F>)},
    {0x08, kDword, "rangeSize", "Range Size", NumberBy(ReadRangeSize<0x0F>, "byte")},
    {0x0C, kWord, "memoryArrayHandle", "Physical Array Handle", Handle()},
    {0x0E, kByte, "partitionWidth", "Partition Width", Count()},
    {0x0F, kQword, "extendedStartingAddress", "", Hex()},
    {0x17, kQword, "extendedEndingAddress", "", Hex()},
};

constexpr FieldRow kMemoryDeviceMappedAddressRows[] = {
    {0x04, kDword, "startingAddress", "Starting Address", NumberBy(ReadFirstAddress<0x13>)},
    {0x08, kDword, "endingAddress", "Ending Address", NumberBy(ReadLastAddress<0x13>)},
    {0x08, kDword, "rangeSize", "Range Size", NumberBy(ReadRangeSize<0x13>, "byte")},
    {0x0C, kWord, "memoryDeviceHandle", "Physical Device Handle", Handle()},
    {0x0E, kWord, "memoryArrayMappedAddressHandle", "Memory Array Mapped Address Handle", Handle()},
    {0x10, kByte, "partitionRowPosition", "Partition Row Position", Count(kRowPositions)},
    {0x11, kByte, "interleavePosition", "Interleave Position", Count(kInterleavePositions)},
    {0x12, kByte, "interleavedDataDepth", "Interleaved Data Depth", Count(kUnknownIfByteFull)},
    {0x13, kQword, "extendedStartingAddress", "", Hex()},
    {0x1B, kQword, "extendedEndingAddress", "", Hex()},
};

// Type 37

constexpr FieldRow kMemoryChannelRows[] = {
    {0x04, kByte, "channelType", "Type", Code(kChannelTypes)},
    {0x05, kByte, "maximumChannelLoad", "Maximal Load", Count()},
    {0x06, kByte, "memoryDeviceCount", "Devices", Count()},
};
constexpr FieldRow kChannelDeviceRows[] = {
    {0x00, kByte, "load", "Device # Load", Count()},
    {0x01, kWord, "handle", "Device # Handle", Handle()},
};
constexpr GroupTable kMemoryChannelGroups[] = {
    {.group = "devices", .rows = kChannelDeviceRows},
};

void VisitChannelDevices(RowVisitor& visitor) {
    constexpr std::size_t kFirst = 0x07;
    constexpr std::size_t kSize = 3;
    const std::size_t count = visitor.Area().Byte(0x06);
    for (std::size_t i = 0; i < count && kFirst + i * kSize < visitor.Area().Size(); ++i) {
        visitor.VisitObject(kMemoryChannelGroups[0], i, kFirst + i * kSize);
    }
}

}  // namespace

constexpr TypeDescription kMemoryArray = {16, 0x0F, kMemoryArrayRows};
constexpr TypeDescription kMemoryDevice = {17, 0x15, kMemoryDeviceRows};
constexpr TypeDescription kMemoryError32 = {18, 0x17, kMemoryError32Rows};
constexpr TypeDescription kMemoryArrayMappedAddress = {19, 0x0F, kMemoryArrayMappedAddressRows};
constexpr TypeDescription kMemoryDeviceMappedAddress = {20, 0x13, kMemoryDeviceMappedAddressRows};
constexpr TypeDescription kMemoryError64 = {33, 0x1F, kMemoryError64Rows};
constexpr TypeDescription kMemoryChannel = {
    37, 0x07, kMemoryChannelRows, kMemoryChannelGroups, VisitChannelDevices};

}  // namespace SMBIOS::Inspect::Standard
