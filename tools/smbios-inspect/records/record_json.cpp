#include "smbios-inspect/records/record_json.h"

namespace SMBIOS::Inspect {

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

}  // namespace SMBIOS::Inspect
