#include "smbios-inspect/output/text_layout.h"

#include <algorithm>
#include <ostream>

#include "smbios-inspect/output/utf8.h"

namespace SMBIOS::Inspect {

namespace {

std::uint8_t ByteOf(char character) noexcept {
    return static_cast<std::uint8_t>(character);
}

bool IsContinuation(char character) noexcept {
    return (ByteOf(character) & 0xC0U) == 0x80;
}

/// U+2028 and U+2029 end a line, U+202A to U+202E and U+2066 to U+2069 turn the direction of the text.
bool IsLayoutControl(std::string_view character) noexcept {
    if (!character.starts_with('\xE2') || character.size() != 3) {
        return false;
    }
    const std::uint8_t second = ByteOf(character[1]);
    const std::uint8_t third = ByteOf(character[2]);
    return (second == 0x80 && 0xA8 <= third && third <= 0xAE) ||
           (second == 0x81 && 0xA6 <= third && third <= 0xA9);
}

/// C0 and C1 control characters, delete, and what moves text about: a terminal might obey them.
bool IsControl(std::string_view character) noexcept {
    const std::uint8_t first = ByteOf(character.front());
    return first < 0x20 || IsDeleteOrC1(character) || IsLayoutControl(character);
}

/// Where the character behind the first `count` ones begins; the end of `text` when there is none.
std::size_t EndOfCharacters(std::string_view text, std::size_t count) noexcept {
    std::size_t end = 0;
    for (; end < text.size(); ++end) {
        if (!IsContinuation(text[end]) && count-- == 0) {
            break;
        }
    }
    return end;
}

/// Whether `text` takes more than `width` columns; looks no further than that.
bool IsWiderThan(std::string_view text, std::size_t width) noexcept {
    return EndOfCharacters(text, width) < text.size();
}

/// Where the first line of `text` ends: at its last blank within `width` columns, else at its first blank.
/// Looks no further than it must.
std::size_t LineEnd(std::string_view text, std::size_t width) noexcept {
    const std::size_t firstWord = std::min(text.find_first_not_of(' '), text.size());
    const std::size_t firstBlank = text.find(' ', firstWord);
    const std::size_t limit = EndOfCharacters(text, width);
    if (firstBlank == std::string_view::npos || firstBlank >= limit) {
        return firstBlank;
    }
    return text.rfind(' ', limit);
}

std::size_t LongestWord(std::string_view text) noexcept {
    std::size_t longest = 0;
    while (!text.empty()) {
        const std::string_view word = text.substr(0, text.find(' '));
        longest = std::max(longest, DisplayWidth(word));
        text.remove_prefix(std::min(word.size() + 1, text.size()));
    }
    return longest;
}

std::string_view WithoutLeadingBlanks(std::string_view text) noexcept {
    return text.substr(std::min(text.find_first_not_of(' '), text.size()));
}

std::string_view EscapeSequenceFor(Emphasis emphasis) noexcept {
    switch (emphasis) {
        case Emphasis::heading:
            return "\x1B[1m";  // bold
        case Emphasis::added:
            return "\x1B[32m";  // green
        case Emphasis::warning:
        case Emphasis::changed:
            return "\x1B[33m";  // yellow
        case Emphasis::failure:
        case Emphasis::removed:
            return "\x1B[31m";  // red
        case Emphasis::none:
            break;
    }
    return {};
}

}  // namespace

void AppendReplaced(std::string_view text, TextPage& page) {
    while (!text.empty()) {
        const auto [length, isWhole] = StartOf(text);
        const bool isShown = isWhole && !IsControl(text.substr(0, length));
        page.Append(isShown ? text.substr(0, length) : kReplacementCharacter);
        text.remove_prefix(isWhole ? length : 1);
        text.remove_prefix(page.AppendPrintableAscii(text));
    }
}

std::string Printable(std::string_view text) {
    TextPage page;
    AppendPrintable(text, page);
    return std::string(page.Text());
}

std::size_t DisplayWidth(std::string_view text) noexcept {
    return text.size() - static_cast<std::size_t>(std::ranges::count_if(text, IsContinuation));
}

std::string CutTo(std::size_t columns, std::string_view text) {
    constexpr std::string_view kEllipsis = "\xE2\x80\xA6";  // U+2026
    if (!IsWiderThan(text, columns)) {
        return std::string(text);
    }
    std::string cut(text.substr(0, EndOfCharacters(text, columns - 1)));
    cut += kEllipsis;
    return cut;
}

std::string_view WithoutTrailingBlanks(std::string_view text) noexcept {
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

std::string_view WithoutPadding(std::string_view text) noexcept {
    return WithoutTrailingBlanks(WithoutLeadingBlanks(text));
}

std::vector<std::string> WrapWords(std::string_view text, std::size_t width) {
    std::vector<std::string> lines;
    text = WithoutTrailingBlanks(text);
    while (width != 0 && IsWiderThan(text, width)) {
        const std::size_t end = LineEnd(text, width);
        if (end == std::string_view::npos) {
            break;
        }
        lines.emplace_back(WithoutTrailingBlanks(text.substr(0, end)));
        text = WithoutLeadingBlanks(text.substr(end));
    }
    lines.emplace_back(text);
    return lines;
}

LabelledLines BesideLabel(std::string_view text, std::size_t start, std::size_t width) {
    constexpr std::size_t kIndentBelow = 4;
    if (width == 0) {
        return {.lines = WrapWords(text, 0), .indent = start};
    }
    const std::size_t room = width > start ? width - start : 1;
    if (LongestWord(text) <= room || width <= kIndentBelow) {
        return {.lines = WrapWords(text, room), .indent = start};
    }
    return {.lines = WrapWords(text, width - kIndentBelow), .isBelow = true, .indent = kIndentBelow};
}

std::string Emphasised(std::string_view text, Emphasis emphasis, const OutputStyle& style) {
    if (!style.colour) {
        return std::string(text);
    }
    TextPage page;
    AppendEmphasised(text, emphasis, style, page);
    return std::string(page.Text());
}

void AppendEmphasised(std::string_view text, Emphasis emphasis, const OutputStyle& style, TextPage& page) {
    constexpr std::string_view kPlain = "\x1B[0m";
    const bool isPlain = !style.colour || text.empty() || emphasis == Emphasis::none;
    page.Append(isPlain ? std::string_view() : EscapeSequenceFor(emphasis));
    page.Append(text);
    page.Append(isPlain ? std::string_view() : kPlain);
}

void PrintSentence(std::string_view text, const OutputStyle& style, std::ostream& output) {
    for (const std::string& line : WrapWords(Printable(text), style.width)) {
        output << line << '\n';
    }
}

}  // namespace SMBIOS::Inspect
