#include "smbios-inspect/text_table.h"

#include <algorithm>
#include <cstdint>
#include <numeric>
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

/// Where the first line of `text` ends: at its last blank within `width` columns, else at its first blank.
std::size_t LineEnd(std::string_view text, std::size_t width) noexcept {
    std::size_t end = std::string_view::npos;
    for (std::size_t blank = text.find(' ', text.find_first_not_of(' ')); blank != std::string_view::npos;
         blank = text.find(' ', blank + 1)) {
        if (end != std::string_view::npos && DisplayWidth(text.substr(0, blank)) > width) {
            break;
        }
        end = blank;
    }
    return end;
}

std::string_view WithoutTrailingBlanks(std::string_view text) noexcept {
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

std::string_view WithoutLeadingBlanks(std::string_view text) noexcept {
    return text.substr(std::min(text.find_first_not_of(' '), text.size()));
}

std::string Blanks(std::size_t count) {
    return std::string(count, ' ');
}

/// `text` with blanks behind it up to `width` columns; only the text itself is set off.
std::string Padded(std::string_view text, std::size_t width, const OutputStyle& style, bool isHeading) {
    const std::string shown = isHeading ? Emphasised(text, Emphasis::heading, style) : std::string(text);
    return shown + Blanks(width - DisplayWidth(text));
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

std::vector<std::string> WrapWords(std::string_view text, std::size_t width) {
    std::vector<std::string> lines;
    text = WithoutTrailingBlanks(text);
    while (width != 0 && DisplayWidth(text) > width) {
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

std::string Emphasised(std::string_view text, Emphasis emphasis, const OutputStyle& style) {
    constexpr std::string_view kBold = "\x1B[1m";
    constexpr std::string_view kYellow = "\x1B[33m";
    constexpr std::string_view kPlain = "\x1B[0m";
    if (!style.colour || text.empty()) {
        return std::string(text);
    }
    std::string emphasised(emphasis == Emphasis::heading ? kBold : kYellow);
    emphasised += text;
    emphasised += kPlain;
    return emphasised;
}

void PrintSentence(std::string_view text, const OutputStyle& style, std::ostream& output) {
    for (const std::string& line : WrapWords(Printable(text), style.width)) {
        output << line << '\n';
    }
}

TextTable::TextTable(std::vector<std::string> headings, std::string textWhenEmpty)
    : headings_(std::move(headings)), textWhenEmpty_(std::move(textWhenEmpty)) {}

void TextTable::Add(std::vector<std::string> cells) {
    for (std::string& cell : cells) {
        cell = cell.empty() ? "-" : Printable(cell);
    }
    rows_.push_back(std::move(cells));
}

void TextTable::Print(const OutputStyle& style, std::ostream& output) const {
    if (rows_.empty() && !textWhenEmpty_.empty()) {
        PrintSentence(textWhenEmpty_, style, output);
        return;
    }
    const std::vector<std::size_t> widths = ColumnWidths();
    const std::size_t gaps = kColumnGap.size() * (widths.size() - 1);
    const std::size_t lineWidth = std::accumulate(widths.begin(), widths.end(), gaps);
    if (style.width == 0 || lineWidth <= style.width) {
        PrintLine(headings_, widths, style, output);
        for (const Row& row : rows_) {
            PrintLine(row, widths, style, output);
        }
        return;
    }
    for (const Row& row : rows_) {
        output << (&row == &rows_.front() ? "" : "\n");
        PrintBlock(row, style, output);
    }
}

std::vector<std::size_t> TextTable::ColumnWidths() const {
    std::vector<std::size_t> widths;
    for (std::size_t column = 0; column < headings_.size(); ++column) {
        std::size_t width = DisplayWidth(headings_[column]);
        for (const Row& row : rows_) {
            width = std::max(width, DisplayWidth(row[column]));
        }
        widths.push_back(width);
    }
    return widths;
}

void TextTable::PrintLine(const Row& row,
                          const std::vector<std::size_t>& widths,
                          const OutputStyle& style,
                          std::ostream& output) const {
    std::string line;
    for (std::size_t column = 0; column < row.size(); ++column) {
        line += Padded(row[column], widths[column], style, &row == &headings_);
        line += kColumnGap;
    }
    output << WithoutTrailingBlanks(line) << '\n';
}

void TextTable::PrintBlock(const Row& row, const OutputStyle& style, std::ostream& output) const {
    std::size_t labelWidth = 0;
    for (const std::string& heading : headings_) {
        labelWidth = std::max(labelWidth, DisplayWidth(heading));
    }
    const std::size_t indent = labelWidth + kColumnGap.size();
    const std::size_t valueWidth = style.width > indent ? style.width - indent : 1;
    for (std::size_t column = 0; column < row.size(); ++column) {
        std::string label = Padded(headings_[column], indent, style, true);
        for (const std::string& line : WrapWords(row[column], valueWidth)) {
            output << WithoutTrailingBlanks(label + line) << '\n';
            label = Blanks(indent);
        }
    }
}

}  // namespace SMBIOS::Inspect
