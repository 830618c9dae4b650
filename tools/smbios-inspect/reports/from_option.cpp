#include "smbios-inspect/reports/from_option.h"

#include <algorithm>
#include <string_view>

namespace SMBIOS::Inspect {

namespace {

bool NeedsNoQuotes(char character) noexcept {
    constexpr std::string_view kPlain = "/\\.:-_+";
    return ('0' <= character && character <= '9') || ('A' <= character && character <= 'Z') ||
           ('a' <= character && character <= 'z') || kPlain.find(character) != std::string_view::npos;
}

}  // namespace

std::string FromOption(const Request& request) {
    if (!request.from) {
        return {};
    }
    const bool isPlain = std::ranges::all_of(*request.from, NeedsNoQuotes);
    return " --from " + (isPlain ? *request.from : "\"" + *request.from + "\"");
}

}  // namespace SMBIOS::Inspect
