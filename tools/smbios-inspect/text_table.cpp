#include "smbios-inspect/text_table.h"

#include <algorithm>
#include <cstdint>
#include <ostream>
#include <utility>

namespace SMBIOS::Inspect {

namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";  // U+FFFD
constexpr std::string_view kColumnGap = "  ";

std::uint8_t ByteOf(char character) noexcept {
    return static_cast<std::uint8_t>(character);
}

bool IsContinuation(char character) noexcept {
    return (ByteOf(character) & 0xC0U) == 0x80;
}

/// Least and largest value that the byte behind the first one of a character may have.
struct SecondByte {
    std::uint8_t least = 0x80;
    std::uint8_t largest = 0xBF;
};

SecondByte SecondByteAfter(std::uint8_t first) noexcept {
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

/// Number of bytes of the UTF-8 character at the start of `text`; 0 when there is none.
std::size_t CharacterLength(std::string_view text) noexcept {
    const std::uint8_t first = ByteOf(text.front());
    const std::size_t length = LengthAfter(first);
    if (length > text.size()) {
        return 0;
    }
    if (length >= 2) {
        const SecondByte range = SecondByteAfter(first);
        const std::uint8_t second = ByteOf(text[1]);
        if (second < range.least || second > range.largest) {
            return 0;
        }
    }
    for (std::size_t i = 2; i < length; ++i) {
        if (!IsContinuation(text[i])) {
            return 0;
        }
    }
    return length;
}

/// C0 and C1 control characters, and delete: a terminal might obey them.
bool IsControl(std::string_view character) noexcept {
    const std::uint8_t first = ByteOf(character.front());
    return first < 0x20 || first == 0x7F || (first == 0xC2 && ByteOf(character[1]) < 0xA0);
}

}  // namespace

std::string Printable(std::string_view text) {
    std::string printable;
    while (!text.empty()) {
        const std::size_t length = CharacterLength(text);
        if (length == 0 || IsControl(text.substr(0, length))) {
            printable += kReplacement;
        } else {
            printable += text.substr(0, length);
        }
        text.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return printable;
}

std::size_t DisplayWidth(std::string_view text) noexcept {
    return text.size() - static_cast<std::size_t>(std::ranges::count_if(text, IsContinuation));
}

TextTable::TextTable(std::vector<std::string> headings) : lines_{std::move(headings)} {}

void TextTable::Add(std::vector<std::string> cells) {
    for (std::string& cell : cells) {
        cell = cell.empty() ? "-" : Printable(cell);
    }
    lines_.push_back(std::move(cells));
}

void TextTable::Print(std::ostream& output) const {
    std::vector<std::size_t> widths(lines_.front().size());
    for (const std::vector<std::string>& line : lines_) {
        for (std::size_t column = 0; column < line.size(); ++column) {
            widths[column] = std::max(widths[column], DisplayWidth(line[column]));
        }
    }
    for (const std::vector<std::string>& line : lines_) {
        for (std::size_t column = 0; column + 1 < line.size(); ++column) {
            output << line[column] << std::string(widths[column] - DisplayWidth(line[column]), ' ')
                   << kColumnGap;
        }
        output << line.back() << '\n';
    }
}

}  // namespace SMBIOS::Inspect
