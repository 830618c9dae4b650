#include "smbios-inspect/records/record_json.h"

#include "smbios-inspect/records/record_fields_system.h"

namespace SMBIOS::Inspect {

using Structures::Type3::Types::ContainedElements;

Json RecordJson::Of(const Common::Dynamic_BitSet& flags) {
    std::uint64_t value = 0;
    Json set = Json::array();
    for (std::size_t bit = 0; bit < flags.GetBitCount(); ++bit) {
        if (flags.Test(bit)) {
            const char* const name = flags.GetBitName(bit);
            value |= std::uint64_t{1} << bit;
            set.push_back({{"bit", bit}, {"name", name == nullptr ? Json() : Json(name)}});
        }
    }
    return {{"bitCount", flags.GetBitCount()}, {"value", value}, {"set", std::move(set)}};
}

void RecordJson::Put(Json& json, const char* name, const std::optional<ContainedElements>& elements) {
    if (!elements) {
        json[name] = nullptr;
        return;
    }
    Json list = Json::array();
    for (std::size_t i = 0; i < elements->CountWithinStructure(); ++i) {
        list.push_back(Of(elements->At(i)));
    }
    json[name] = std::move(list);
    if (elements->Count() > elements->CountWithinStructure()) {
        json[std::string(name) + "Count"] = elements->Count();
    }
}

}  // namespace SMBIOS::Inspect
