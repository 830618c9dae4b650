#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>
#include <vector>

namespace SMBIOS::Structures {

/// As the C locale has it: a blank, or one of tab, newline, vertical tab, form feed and carriage return.
[[nodiscard]] constexpr bool IsWhiteSpace(char character) noexcept {
    return character == ' ' || ('\t' <= character && character <= '\r');
}

/// The text without the white space around it.
[[nodiscard]] constexpr std::string_view Trimmed(std::string_view text) noexcept {
    while (!text.empty() && IsWhiteSpace(text.back())) {
        text.remove_suffix(1);
    }
    while (!text.empty() && IsWhiteSpace(text.front())) {
        text.remove_prefix(1);
    }
    return text;
}

/// String `number` of a structure's string set, counted from 1, without the white space around it. Empty for
/// number 0 and for a number the set does not hold. A view: valid only while the strings are.
[[nodiscard]] inline std::string_view FindString(std::uint8_t number,
                                                 const std::vector<std::string>& strings) noexcept {
    return number == 0 || number > strings.size() ? std::string_view{} : Trimmed(strings[number - 1U]);
}

/// A copy of the same; empty, too, when there is no memory for it.
[[nodiscard]] inline std::string GetStringByIndex(std::uint8_t number,
                                                  const std::vector<std::string>& strings) {
    try {
        return std::string(FindString(number, strings));
    } catch (const std::exception&) {
        return {};  // a text that cannot be copied is reported like a missing one
    }
}

}  // namespace SMBIOS::Structures
