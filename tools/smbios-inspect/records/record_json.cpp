#include "smbios-inspect/records/record_json.h"

#include <bit>
#include <string>

#include "smbios-inspect/records/record_fields_system.h"

namespace SMBIOS::Inspect {

using Structures::Type3::Types::ContainedElements;

void RecordJson::Write(JsonWriter& json, const Common::Dynamic_BitSet& flags) {
    json.BeginObject();
    json.Member("bitCount", flags.GetBitCount());
    const std::uint64_t value = WordOf(flags);
    json.Member("value", value);
    json.Name("set");
    json.BeginArray();
    for (std::uint64_t rest = value; rest != 0; rest &= rest - 1) {
        const auto bit = static_cast<std::size_t>(std::countr_zero(rest));
        json.BeginObject();
        json.Member("bit", bit);
        json.Name("name");
        json.TextOrNull(flags.GetBitName(bit));
        json.EndObject();
    }
    json.EndArray();
    json.EndObject();
}

void RecordJson::WriteMember(JsonWriter& json,
                             std::string_view name,
                             const std::optional<ContainedElements>& elements) {
    json.Name(name);
    if (!elements) {
        json.Null();
        return;
    }
    json.BeginArray();
    for (std::size_t i = 0; i < elements->CountWithinStructure(); ++i) {
        Write(json, elements->At(i));
    }
    json.EndArray();
    if (elements->Count() > elements->CountWithinStructure()) {
        json.Member(std::string(name) + "Count", elements->Count());
    }
}

}  // namespace SMBIOS::Inspect
