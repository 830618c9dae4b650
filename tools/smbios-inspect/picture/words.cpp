#include "smbios-inspect/picture/words.h"

#include "smbios-inspect/output/phrases.h"

namespace SMBIOS::Inspect::Picture {

std::string Dotted(const std::vector<std::string>& texts) {
    return Joined(texts, " \xC2\xB7 ");  // U+00B7
}

std::string FirstSaid(const std::vector<std::string>& texts) {
    for (const std::string& text : texts) {
        if (!text.empty()) {
            return text;
        }
    }
    return {};
}

std::string CountText(std::uint64_t count) {
    std::string text = std::to_string(count);
    for (std::size_t place = text.size(); place > 3; place -= 3) {
        text.insert(place - 3, 1, ',');
    }
    return text;
}

std::string Counted(std::uint64_t count, std::string_view noun) {
    return CountText(count) + " " + std::string(noun) + (count == 1 ? "" : "s");
}

}  // namespace SMBIOS::Inspect::Picture
