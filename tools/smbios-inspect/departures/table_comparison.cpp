#include "smbios-inspect/departures/table_comparison.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace SMBIOS::Inspect::Departures {

using Manager::Types::StructureTypes;
using Standard::Structure;
using Structures::BaseStructure;

namespace {

bool IsListed(Standard::TableVersion version) noexcept {
    return Manager::FindVersionIndex(version.major, version.minor, version.revision).has_value();
}

/// Whether the library cut the same structure out of the table: in what it keeps of the bytes at most the
/// voltage of a processor is changed.
bool IsSameStructure(const Structure& structure, const RecordFrame& frame) {
    constexpr std::size_t kVoltage = 0x11;
    if (std::ranges::equal(frame.rawBytes, structure.bytes)) {
        return true;
    }
    if (structure.Type() != 4 || frame.rawBytes.size() != structure.bytes.size() ||
        structure.bytes.size() <= kVoltage) {
        return false;
    }
    const std::span<const std::uint8_t> kept = frame.rawBytes;
    return std::ranges::equal(kept.first(kVoltage), structure.bytes.first(kVoltage)) &&
           std::ranges::equal(kept.subspan(kVoltage + 1), structure.bytes.subspan(kVoltage + 1));
}

/// The library does not have the structure.
void TellMissing(const Structure& structure, StructureTypes key, DepartureVisitor& visitor) {
    const Standard::Value value = Standard::Text("a structure");
    visitor.Visit({structure, "structure", nullptr, nullptr, &value, key, nullptr, 0, ReasonId::cutting});
}

/// The library has a structure where the standard has none.
void TellAdditional(StructureTypes key, const BaseStructure& decoder, DepartureVisitor& visitor) {
    const RecordFrame frame = FrameOf(key, decoder);
    const Structure structure{.bytes = frame.rawBytes, .strings = {}, .version = {}};
    const std::vector<LibraryField> fields = LibraryFieldsOf(key, decoder);
    const std::string_view name = frame.error.empty() ? "rawBytes" : "error";
    const auto field =
        std::ranges::find(fields, name, [](const LibraryField& each) { return std::string_view(each.name); });
    visitor.Visit({structure,
                   field->name,
                   field->label,
                   nullptr,
                   nullptr,
                   key,
                   &decoder,
                   static_cast<std::size_t>(field - fields.begin()),
                   ReasonId::cutting});
}

}  // namespace

TableComparison::TableComparison(Standard::TableVersion claimed, Manager::SmbiosVersionIndex taken) noexcept
    : version_(taken), isVersionListed_(IsListed(claimed)) {}

void TableComparison::Compare(const Structure* structure,
                              StructureTypes key,
                              const BaseStructure* decoder,
                              DepartureVisitor& visitor) {
    if (structure != nullptr && decoder != nullptr && IsSameStructure(*structure, FrameOf(key, *decoder))) {
        CompareStructure(*structure, {key, *decoder, version_, isVersionListed_}, memory_, visitor);
        return;
    }
    if (structure != nullptr) {
        TellMissing(*structure, key, visitor);
    }
    if (decoder != nullptr) {
        TellAdditional(key, *decoder, visitor);
    }
}

}  // namespace SMBIOS::Inspect::Departures
