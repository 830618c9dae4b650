#include "structures/string_lookup.h"

#include <exception>

namespace SMBIOS::Structures {

std::string_view Trimmed(std::string_view text) noexcept {
    constexpr std::string_view kWhiteSpace = " \t\n\v\f\r";
    const std::size_t last = text.find_last_not_of(kWhiteSpace);
    if (last == std::string_view::npos) {
        return {};
    }
    const std::size_t first = text.find_first_not_of(kWhiteSpace);
    return text.substr(first, last - first + 1);
}

std::string_view FindString(std::uint8_t number, const std::vector<std::string>& strings) noexcept {
    return number == 0 || number > strings.size() ? std::string_view{} : Trimmed(strings[number - 1U]);
}

std::string GetStringByIndex(std::uint8_t number, const std::vector<std::string>& strings) {
    try {
        return std::string(FindString(number, strings));
    } catch (const std::exception&) {
        return {};  // a text that cannot be copied is reported like a missing one
    }
}

}  // namespace SMBIOS::Structures
