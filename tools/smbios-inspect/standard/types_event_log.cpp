#include <string>

#include "smbios-inspect/standard/described_types.h"
#include "smbios-inspect/standard/forms.h"
#include "smbios-inspect/standard/row_visitor.h"
#include "smbios-inspect/standard/words_system.h"

namespace SMBIOS::Inspect::Standard {

namespace {

/// The header lies in front of the data.
Value ReadHeaderLength(const Reading& reading) {
    const Structures::FormattedArea area = reading.structure.Area();
    const std::uint16_t start = area.Word(0x06);
    const std::uint16_t data = area.Word(0x08);
    if (data < start) {
        return Nothing(kOutOfSpec);
    }
    const auto length = static_cast<std::uint64_t>(data - start);
    return Number(length, std::to_string(length) + " bytes");
}

Value ReadLogStatus(const Reading& reading) {
    const std::uint64_t status = reading.Raw();
    return Words(status,
                 std::string((status & 0x01U) != 0 ? "Valid" : "Invalid") +
                     ((status & 0x02U) != 0 ? ", Full" : ", Not Full"));
}

/// What the address is depends on the access method.
Value ReadAccessAddress(const Reading& reading) {
    constexpr std::uint8_t kMemoryMapped = 3;
    constexpr std::uint8_t kDataFunctions = 4;
    const std::uint64_t address = reading.Raw();
    const std::uint8_t method = reading.structure.Area().Byte(0x0A);
    if (method < kMemoryMapped) {
        return Number(address,
                      "Index " + HexText(address & 0xFFFF, 4) + ", Data " + HexText(address >> 16, 4));
    }
    if (method == kDataFunctions) {
        return Number(address, HexText(address & 0xFFFF, 4));
    }
    return Number(address, HexText(address, 8));
}

constexpr FieldRow kEventLogRows[] = {
    {0x04, kWord, "logAreaLength", "Area Length", Measure("byte", " bytes")},
    {0x06, kWord, "logHeaderStartOffset", "Header Start Offset", Hex()},
    {0x08, kWord, "logHeaderLength", "Header Length", NumberBy(ReadHeaderLength, "byte")},
    {0x08, kWord, "logDataStartOffset", "Data Start Offset", Hex()},
    {0x0A, kByte, "accessMethod", "Access Method", CodeOrOem(kLogAccessMethods)},
    {0x0B, kByte, "logStatus", "Status", CodeBy(ReadLogStatus)},
    {0x0C, kDword, "logChangeToken", "Change Token", Hex()},
    {0x10, kDword, "accessMethodAddress", "Access Address", NumberBy(ReadAccessAddress)},
    {0x14, kByte, "logHeaderFormat", "Header Format", CodeOrOem(kLogHeaderFormats)},
    {0x15, kByte, "numberOfSupportedLogTypeDescriptors", "Supported Log Type Descriptors", Count()},
    {0x16, kByte, "lengthOfEachLogTypeDescriptor", "", Measure("byte", " bytes")},
};

constexpr FieldRow kDescriptorRows[] = {
    {0x00, kByte, "logType", "Descriptor #", CodeOrOem(kLogTypes)},
    {0x01, kByte, "dataFormatType", "Data Format #", CodeOrOem(kLogDataFormats)},
};

constexpr GroupTable kEventLogGroups[] = {
    {.group = "descriptors", .rows = kDescriptorRows},
};

void VisitDescriptors(RowVisitor& visitor) {
    constexpr std::size_t kFirst = 0x17;
    constexpr std::size_t kLeastSize = 2;
    const std::size_t count = visitor.Area().Byte(0x15);
    const std::size_t size = visitor.Area().Byte(0x16);
    for (std::size_t i = 0; size >= kLeastSize && i < count; ++i) {
        visitor.VisitObject(kEventLogGroups[0], i, kFirst + i * size);
    }
}

}  // namespace

constexpr TypeDescription kEventLog = {15, 0x14, kEventLogRows, kEventLogGroups, VisitDescriptors};

}  // namespace SMBIOS::Inspect::Standard
