#include "smbios-inspect/picture/fields.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <ostream>
#include <streambuf>

#include "smbios-inspect/output/text_layout.h"
#include "smbios-inspect/standard/decode.h"
#include "smbios-inspect/standard/firmware_text.h"

namespace SMBIOS::Inspect::Picture {

namespace {

/// Texts that firmware has where it has nothing to say, in lower case.
constexpr std::string_view kNothings[] = {
    "<bad index>",
    "<out of spec>",
    "default string",
    "n/a",
    "no dimm",
    "none",
    "not available",
    "not provided",
    "not specified",
    "other",
    "system product name",
    "system serial number",
    "system version",
    "to be filled by o.e.m.",
    "unknown",
    "unknown or non-rotating",
    "unspecified",
};

std::string LowerCase(std::string text) {
    for (char& character : text) {
        if ('A' <= character && character <= 'Z') {
            character = static_cast<char>(character - 'A' + 'a');
        }
    }
    return text;
}

bool SaysNothing(const std::string& text) {
    return std::ranges::binary_search(kNothings, LowerCase(text));
}

std::string WithSingleBlanks(std::string_view text) {
    std::string single;
    for (const char character : text) {
        if (character != ' ' || (!single.empty() && single.back() != ' ')) {
            single += character;
        }
    }
    return std::string(WithoutTrailingBlanks(single));
}

class FieldCollector final : public Standard::FieldVisitor {
public:
    void Visit(const Standard::Field& field) override {
        if (field.place.group.empty()) {
            fields_.own.Add(field);
            return;
        }
        if (field.place.index >= fields_.objects.size()) {
            fields_.objects.resize(field.place.index + 1);
        }
        fields_.objects[field.place.index].Add(field);
    }

    [[nodiscard]] StructureFields Take() noexcept { return std::move(fields_); }

private:
    StructureFields fields_;
};

/// Takes lines as they are written: blanks for tabulators, and of a long line no more than its first bytes.
class TooltipBuffer final : public std::streambuf {
public:
    /// Without the end of the last line.
    [[nodiscard]] std::string Take() {
        tooltip_.resize(tooltip_.empty() ? 0 : tooltip_.size() - 1);
        return std::move(tooltip_);
    }

private:
    static constexpr std::size_t kMostColumns = 256;
    static constexpr std::size_t kMostBytes = 4 * (kMostColumns + 1);  // of UTF-8, and the cut shows

    int_type overflow(int_type number) override {
        const char character = traits_type::to_char_type(number);
        if (character == '\n') {
            EndLine();
        } else if (line_.size() < kMostBytes) {
            line_ += character == '\t' ? std::string_view("  ") : std::string_view(&character, 1);
        }
        return traits_type::not_eof(number);
    }

    void EndLine() {
        tooltip_.append(CutTo(kMostColumns, line_)).push_back('\n');
        line_.clear();
    }

    std::string tooltip_;
    std::string line_;
};

}  // namespace

std::string Drawable(std::string_view text) {
    constexpr std::size_t kMostColumns = 200;
    constexpr std::size_t kMostBytes = 4 * (kMostColumns + 1);  // of UTF-8, and the cut shows
    return CutTo(kMostColumns, WithSingleBlanks(Printable(text.substr(0, kMostBytes))));
}

void Fields::Add(const Standard::Field& field) {
    said_.push_back({field.name, Drawable(field.value.text), field.value.plain.Number()});
}

const Fields::Said* Fields::Find(std::string_view name) const noexcept {
    const auto said = std::ranges::find(said_, name, &Said::name);
    return said == said_.end() ? nullptr : std::to_address(said);
}

std::string Fields::Text(std::string_view name) const {
    const Said* const said = Find(name);
    return said == nullptr || SaysNothing(said->text) ? std::string() : said->text;
}

std::optional<std::uint64_t> Fields::Number(std::string_view name) const {
    const Said* const said = Find(name);
    return said == nullptr ? std::nullopt : said->number;
}

StructureFields FieldsOf(const Standard::Structure& structure) {
    FieldCollector collector;
    Standard::VisitFields(structure, collector);
    return collector.Take();
}

std::string TooltipOf(const Standard::Structure& structure) {
    TooltipBuffer buffer;
    std::ostream lines(&buffer);
    lines.exceptions(std::ios::badbit);
    Standard::PrintStructure(structure, Standard::Detail::fields, {}, lines);
    return buffer.Take();
}

}  // namespace SMBIOS::Inspect::Picture
