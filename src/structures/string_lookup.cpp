#include "structures/string_lookup.h"

#include <exception>

namespace SMBIOS::Structures {

namespace {

/// As the C locale has it: a blank, or one of tab, newline, vertical tab, form feed and carriage return.
constexpr bool IsWhiteSpace(char character) noexcept {
    return character == ' ' || ('\t' <= character && character <= '\r');
}

}  // namespace

std::string_view Trimmed(std::string_view text) noexcept {
    while (!text.empty() && IsWhiteSpace(text.back())) {
        text.remove_suffix(1);
    }
    while (!text.empty() && IsWhiteSpace(text.front())) {
        text.remove_prefix(1);
    }
    return text;
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
