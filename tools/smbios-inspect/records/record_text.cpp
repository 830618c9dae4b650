#include "smbios-inspect/records/record_text.h"

#include <bit>

#include "common/format.h"
#include "smbios-inspect/records/record_fields_system.h"

namespace SMBIOS::Inspect {

void RecordText::AppendLines(const Structures::Type3::Types::ContainedElements& elements, FieldTexts& texts) {
    const std::size_t count = elements.CountWithinStructure();
    for (std::size_t i = 0; i < count; ++i) {
        AppendWords(elements.At(i), texts.BeginLine());
    }
    if (const std::size_t more = elements.Count() - count; more != 0) {
        texts.AddLine("and " + std::to_string(more) + " past the end of the structure");
    }
}

void RecordText::AppendWords(float number, TextPage& line) {
    line.Append(Common::format("{:.6g}", number));
}

void RecordText::AppendNames(const Common::Dynamic_BitSet& flags, UnnamedBits bits, TextPage& line) {
    const std::uint64_t word = WordOf(flags);
    line.Append(word == 0 ? "none" : "");
    for (std::uint64_t rest = word; rest != 0; rest &= rest - 1) {
        const auto bit = static_cast<std::size_t>(std::countr_zero(rest));
        line.Append(rest == word ? "" : ", ");
        if (const char* const name = flags.GetBitName(bit)) {
            line.Append(name);
        } else if (const std::string_view meaning = WordFor(bit, bits.other, bits.unknown);
                   !meaning.empty()) {
            line.Append(meaning);
        } else {
            line.Append("bit ");
            line.AppendNumber(bit);
        }
    }
}

void RecordText::AppendWithCode(std::string_view text, std::optional<unsigned> code, TextPage& line) {
    line.Append(text);
    if (code) {
        line.Append(" (");
        line.AppendNumber(*code);
        line.Append(')');
    }
}

std::string_view RecordText::WordFor(std::size_t number, int other, int unknown) noexcept {
    const auto is = [number](int code) {
        return code != kNoCode && static_cast<std::size_t>(code) == number;
    };
    if (is(unknown)) {
        return "Unknown";
    }
    return is(other) ? "Other" : "";
}

/// Each with the first of its lines.
void RecordText::AppendFields(const FieldTexts& texts, TextPage& line) {
    std::string_view separator = "";
    for (std::size_t i = 0; i < texts.Lines().size(); ++i) {
        const FieldTexts::Line& each = texts.Lines()[i];
        if (each.isFirst) {
            line.Append(separator);
            line.Append(each.label);
            line.Append(each.label.empty() ? "" : " ");
            line.Append(texts.Words(i));
            separator = ", ";
        }
    }
}

}  // namespace SMBIOS::Inspect
