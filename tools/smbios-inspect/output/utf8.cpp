#include "smbios-inspect/output/utf8.h"

#include <cstdint>

namespace SMBIOS::Inspect {

namespace {

std::uint8_t ByteOf(char character) noexcept {
    return static_cast<std::uint8_t>(character);
}

/// Least and largest value that a byte behind the first one of a character may have.
struct ByteRange {
    std::uint8_t least = 0x80;
    std::uint8_t largest = 0xBF;
};

ByteRange SecondByteAfter(std::uint8_t first) noexcept {
    switch (first) {
        case 0xE0:
            return {0xA0, 0xBF};  // no overlong forms
        case 0xED:
            return {0x80, 0x9F};  // no surrogates
        case 0xF0:
            return {0x90, 0xBF};
        case 0xF4:
            return {0x80, 0x8F};  // nothing above U+10FFFF
        default:
            return {};
    }
}

std::size_t LengthAfter(std::uint8_t first) noexcept {
    if (first < 0x80) {
        return 1;
    }
    if (0xC2 <= first && first <= 0xDF) {
        return 2;
    }
    if (0xE0 <= first && first <= 0xEF) {
        return 3;
    }
    return 0xF0 <= first && first <= 0xF4 ? 4 : 0;
}

}  // namespace

CharacterStart StartOf(std::string_view text) noexcept {
    const std::uint8_t first = ByteOf(text.front());
    const std::size_t length = LengthAfter(first);
    ByteRange range = SecondByteAfter(first);
    for (std::size_t i = 1; i < length; ++i) {
        if (i == text.size() || ByteOf(text[i]) < range.least || ByteOf(text[i]) > range.largest) {
            return {.length = i, .isWhole = false};
        }
        range = {};
    }
    return {.length = length == 0 ? 1 : length, .isWhole = length != 0};
}

bool IsDeleteOrC1(std::string_view character) noexcept {
    return character == "\x7F" || (character.front() == '\xC2' && ByteOf(character[1]) < 0xA0);
}

}  // namespace SMBIOS::Inspect
