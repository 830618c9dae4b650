#include "smbios-inspect/records/filed_structure.h"

#include <algorithm>
#include <array>

#include "smbios-inspect/records/record_of.h"
#include "smbios-inspect/records/record_writer.h"
#include "smbios-inspect/records/structure_heading.h"
#include "structures/decoded_types.h"

namespace SMBIOS::Inspect {

using Manager::Types::StructureTypes;
using Structures::UnknownType;

namespace {

template <class... Decoders>
consteval std::array<RecordWriter (*)(), sizeof...(Decoders)> WritersOf(Structures::TypeList<Decoders...>) {
    return {{WriterOf<Decoders>...}};
}

constexpr auto kWriters = WritersOf(Structures::AllDecoders());

RecordWriter WriterFor(const FiledStructure& structure) {
    return kWriters[Structures::DecoderIndexOf(structure.first)]();
}

}  // namespace

std::uint8_t TypeOf(const FiledStructure& structure) {
    const auto& [key, decoder] = structure;
    if (key == UnknownType::kKey) {
        return RecordOf<UnknownType>(*decoder).type;
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

void WriteStructure(const FiledStructure& structure, JsonWriter& json) {
    json.BeginObject();
    json.Member("key", static_cast<int>(structure.first));
    json.Member("type", TypeOf(structure));
    json.Name("record");
    WriterFor(structure).json(*structure.second, json);
    json.EndObject();
}

std::size_t StructurePrinter::Print(const FiledStructure& structure,
                                    std::span<const std::string_view> marks) {
    const RecordWriter writer = WriterFor(structure);
    heading_.Clear();
    AppendStructureHeading(TypeOf(structure), writer.rawBytes(*structure.second), heading_);
    texts_.Clear();
    writer.texts(*structure.second, texts_);
    std::size_t markCount = 0;
    for (const std::string_view mark : marks) {
        markCount += texts_.Mark(mark) ? 1 : 0;
    }
    printer_.PrintBlock(heading_.Text(), texts_);
    return markCount;
}

}  // namespace SMBIOS::Inspect
