#include "smbios-inspect/output/phrases.h"

namespace SMBIOS::Inspect {

std::string Joined(const std::vector<std::string>& texts, std::string_view separator) {
    std::string joined;
    for (const std::string& text : texts) {
        if (!text.empty()) {
            joined.append(joined.empty() ? std::string_view() : separator).append(text);
        }
    }
    return joined;
}

std::string Prefixed(std::string_view prefix, std::string_view text) {
    return text.empty() ? std::string() : std::string(prefix).append(text);
}

}  // namespace SMBIOS::Inspect
