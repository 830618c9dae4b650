#pragma once

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include "smbios-inspect/output/output_style.h"
#include "smbios-inspect/output/text_page.h"

// How any text is laid out for a terminal.
namespace SMBIOS::Inspect {

/// The same as `AppendPrintable`, for a text that does not begin with a printable character of ASCII.
void AppendReplaced(std::string_view text, TextPage& page);

/// `text` made safe for a terminal: control characters, those that end a line or turn the direction of the
/// text, and bytes that are not UTF-8 become U+FFFD.
[[nodiscard]] std::string Printable(std::string_view text);

/// The same at the end of a page.
inline void AppendPrintable(std::string_view text, TextPage& page) {
    const std::size_t plain = page.AppendPrintableAscii(text);
    if (plain < text.size()) {
        AppendReplaced(text.substr(plain), page);
    }
}

/// Number of terminal columns that printable UTF-8 takes, one for each character.
[[nodiscard]] std::size_t DisplayWidth(std::string_view text) noexcept;

/// Printable text of at most `columns` columns, 1 or more: a wider one ends with an ellipsis there.
[[nodiscard]] std::string CutTo(std::size_t columns, std::string_view text);

/// `text` up to its last character that is no blank.
[[nodiscard]] std::string_view WithoutTrailingBlanks(std::string_view text) noexcept;

/// `text` from its first character that is no blank up to its last one: firmware pads texts.
[[nodiscard]] std::string_view WithoutPadding(std::string_view text) noexcept;

/// Printable text cut between words into lines of at most `width` columns, 0 for no limit. A longer word has
/// a line of its own. There is at least one line, and none ends with a blank.
[[nodiscard]] std::vector<std::string> WrapWords(std::string_view text, std::size_t width);

/// Lines of printable text beside a label of `start` columns, or, where a word has room only there, below it
/// with a small indent.
struct LabelledLines {
    std::vector<std::string> lines;
    bool isBelow = false;
    std::size_t indent = 0;  ///< of the lines
};

/// Lays out printable text behind a label of `start` columns on a terminal of `width` columns, 0 for none.
[[nodiscard]] LabelledLines BesideLabel(std::string_view text, std::size_t start, std::size_t width);

/// What colour sets off from the rest.
enum class Emphasis : std::uint8_t { none, heading, warning, failure, added, removed, changed };

/// `text` in the emphasis's colour, if the style has colours.
[[nodiscard]] std::string Emphasised(std::string_view text, Emphasis emphasis, const OutputStyle& style);

/// The same at the end of a page.
void AppendEmphasised(std::string_view text, Emphasis emphasis, const OutputStyle& style, TextPage& page);

/// Prints a sentence, which may come from the firmware, on as many lines as it takes.
void PrintSentence(std::string_view text, const OutputStyle& style, std::ostream& output);

}  // namespace SMBIOS::Inspect
