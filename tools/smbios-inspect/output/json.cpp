#include "smbios-inspect/output/json.h"

#include <ostream>

namespace SMBIOS::Inspect {

void PrintJson(const Json& json, std::ostream& output) {
    constexpr int kIndent = 2;
    output << json.dump(kIndent, ' ', false, Json::error_handler_t::replace) << '\n';
}

}  // namespace SMBIOS::Inspect
