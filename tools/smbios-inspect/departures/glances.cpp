#include "smbios-inspect/departures/glances.h"

#include <cstdint>
#include <string_view>
#include <variant>

#include "smbios-inspect/standard/forms.h"
#include "structures/string_lookup.h"

namespace SMBIOS::Inspect::Departures {

using Standard::Form;
using Standard::Reading;
using Standard::ValueKind;

namespace {

bool IsSameNumber(const LibraryValue& value, const Reading& reading) {
    return NumberOf(value) == reading.Raw();
}

/// Some numbers stand for no value.
bool IsSameNumberOrNone(const LibraryValue& value, const Reading& reading) {
    const std::uint64_t number = reading.Raw();
    return IsNone(value) ? reading.row.form.words.Find(number).has_value() : NumberOf(value) == number;
}

bool IsSameString(const LibraryValue& value, const Reading& reading) {
    const std::uint64_t number = reading.Raw();
    const auto& strings = reading.structure.strings;
    const bool isThere = 0 < number && number <= strings.size();
    const std::string_view text = isThere ? Structures::Trimmed(strings[number - 1]) : std::string_view();
    return text.empty() ? IsNone(value) : TextOf(value) == text;
}

bool IsNeverPlain(const LibraryValue&, const Reading&) {
    return false;
}

bool IsWordOfSameCode(const LibraryValue& value, const Reading& reading) {
    return WordAgrees(TextOf(value), Standard::WordsFor(reading.row.form.words, reading.Raw()));
}

}  // namespace

Glance GlanceFor(const Rule& rule, const StandardField& standard) noexcept {
    if (standard.row == nullptr || standard.isBehindGroup) {
        return nullptr;
    }
    const Form& form = standard.row->form;
    if (rule.agree == AgreeByKind && Standard::IsNumberAsItStands(form)) {
        const bool hasWordsForNone = form.kind == ValueKind::number || form.kind == ValueKind::handle;
        return hasWordsForNone ? IsSameNumberOrNone : IsSameNumber;
    }
    if (rule.agree == AgreeByKind && form.read == Standard::ReadString) {
        return IsSameString;
    }
    if (rule.agree == AgreeAsWordOfCode && form.read == Standard::ReadCode) {
        return IsWordOfSameCode;
    }
    return rule.agree == AgreeByKind || rule.agree == AgreeAsWordOfCode ? IsNeverPlain : nullptr;
}

}  // namespace SMBIOS::Inspect::Departures
