#include "smbios-inspect/records/filed_structure.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

#include "manager/structure_type_names.h"
#include "smbios-inspect/output/field_block.h"
#include "smbios-inspect/records/record_writer.h"
#include "structures/decoded_types.h"
#include "structures/formatted_area.h"
#include "structures/hex_text.h"

namespace SMBIOS::Inspect {

using Manager::Types::StructureTypes;
using Structures::UnknownType;

namespace {

struct WriterRow {
    StructureTypes key;
    RecordWriter (*writer)();
};

template <class... Decoders>
consteval std::array<WriterRow, sizeof...(Decoders)> WritersOf(Structures::TypeList<Decoders...>) {
    return {{{Decoders::kKey, WriterOf<Decoders>}...}};
}

constexpr auto kWriters = WritersOf(Structures::AllDecoders());

RecordWriter WriterFor(const FiledStructure& structure) {
    return std::ranges::lower_bound(kWriters, structure.first, {}, &WriterRow::key)->writer();
}

std::string_view NameOf(std::uint8_t type) {
    constexpr std::uint8_t kInactive = 126;
    constexpr std::uint8_t kEndOfTable = 127;
    if (type > kEndOfTable) {
        return "OEM-specific";
    }
    if (type >= kInactive) {
        return type == kInactive ? "Inactive" : "End of Table";
    }
    return Manager::kStructureTypeNames[type];
}

/// "Type 17: Memory Device, handle 0x0050, 92 bytes". The handle is the one of the bytes: the record of a
/// structure that was not accepted has none.
std::string HeadingOf(std::uint8_t type, const std::vector<std::uint8_t>& rawBytes) {
    constexpr std::size_t kHandleDigits = 4;
    const std::string_view name = NameOf(type);
    const std::uint16_t handle = Structures::FormattedArea(rawBytes).Handle();
    std::string heading = "Type " + std::to_string(type);
    heading.append(name.empty() ? "" : ": ").append(name);
    heading += ", handle " + Structures::PaddedHexText(handle, kHandleDigits);
    heading += ", " + std::to_string(rawBytes.size()) + " bytes";
    return heading;
}

}  // namespace

std::uint8_t TypeOf(const FiledStructure& structure) {
    const auto& [key, decoder] = structure;
    if (key == UnknownType::kKey) {
        return dynamic_cast<const UnknownType&>(*decoder).GetRecord()->type;
    }
    return static_cast<std::uint8_t>(key);
}

const std::string& ErrorOf(const FiledStructure& structure) {
    return WriterFor(structure).error(*structure.second);
}

bool IsDamaged(const FiledStructure& structure) {
    constexpr std::size_t kHeaderSize = 4;
    const RecordWriter writer = WriterFor(structure);
    const std::size_t size = writer.rawBytes(*structure.second).size();
    return size < kHeaderSize || size < writer.leastLength;
}

Json StructureToJson(const FiledStructure& structure) {
    return {{"key", static_cast<int>(structure.first)},
            {"type", TypeOf(structure)},
            {"record", WriterFor(structure).json(*structure.second)}};
}

void PrintStructure(const FiledStructure& structure, const OutputStyle& style, std::ostream& output) {
    const RecordWriter writer = WriterFor(structure);
    const std::string heading = HeadingOf(TypeOf(structure), writer.rawBytes(*structure.second));
    PrintFieldBlock(heading, writer.texts(*structure.second), style, output);
}

}  // namespace SMBIOS::Inspect
