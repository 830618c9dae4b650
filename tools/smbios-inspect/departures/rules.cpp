#include "smbios-inspect/departures/rules.h"

#include <charconv>
#include <cmath>
#include <variant>

#include "smbios-inspect/departures/standard_field.h"
#include "smbios-inspect/standard/forms.h"
#include "structures/string_lookup.h"

namespace SMBIOS::Inspect::Departures {

using Standard::Value;
using Structures::Trimmed;

namespace {

constexpr std::uint64_t LowBits(unsigned count) noexcept {
    return count < 64 ? (std::uint64_t{1} << count) - 1 : ~std::uint64_t{0};
}

bool IsMeaningless(std::string_view words) {
    return words == Standard::kUnknown || words == Standard::kOutOfSpec || words == "Reserved";
}

/// What one unit of the standard's number is in the unit of the library's: 0.1 for "0.1 mV".
double FactorOf(std::string_view unit) {
    double factor = 1;
    std::from_chars(unit.data(), unit.data() + unit.size(), factor);
    return factor;
}

bool NumberAgrees(std::uint64_t number, const Value& value, const Comparison& comparison) {
    if (const auto plain = value.plain.Number()) {
        return number == *plain;
    }
    // Handed on as it stands, though it is a marker: callers look it up.
    const Standard::Reading reading{comparison.structure, *comparison.row, 0};
    return value.plain.IsNothing() && number == reading.Raw();
}

/// The library's fractions are floats.
bool FractionAgrees(double number, const Value& value, std::string_view unit) {
    const auto isNear = [&](auto plain) {
        const double expected = static_cast<double>(plain) * FactorOf(unit);
        return std::abs(number - expected) <= 1e-6 * std::abs(expected) + 1e-9;
    };
    if (const auto plain = value.plain.Number()) {
        return isNear(*plain);
    }
    const auto plain = value.plain.SignedNumber();
    return plain && isNear(*plain);
}

bool TextAgrees(std::string_view text, const Value& value) {
    if (const auto plain = value.plain.Text()) {
        return text == Trimmed(*plain);
    }
    const auto plain = value.plain.Number();
    return plain && NumberIn(text) == plain;
}

}  // namespace

std::uint64_t Comparison::Raw() const noexcept {
    return row == nullptr ? 0 : Standard::NumberAt(structure, row->offset, row->width);
}

std::uint64_t Comparison::RawBits() const noexcept {
    return Raw() >> lowBit & LowBits(bitCount);
}

FieldReading Comparison::Other(std::string_view name) const {
    return {structure, FindStandardField(structure.Type(), name)};
}

bool AgreeByKind(const Comparison& comparison) {
    if (!comparison.HasStandardValue()) {
        return !comparison.HasLibraryValue();
    }
    const Value& value = *comparison.StandardValue();
    if (const auto* number = std::get_if<std::uint64_t>(&comparison.library.value)) {
        return NumberAgrees(*number, value, comparison);
    }
    if (const auto* number = std::get_if<double>(&comparison.library.value)) {
        return FractionAgrees(*number, value, comparison.row->form.unit);
    }
    if (const auto* text = std::get_if<std::string_view>(&comparison.library.value)) {
        return TextAgrees(*text, value);
    }
    return !comparison.HasLibraryValue() && HasNothing(value);
}

bool AgreeStrictly(const Comparison& comparison) {
    const bool isMarker = comparison.HasStandardValue() && comparison.StandardValue()->plain.IsNothing();
    return isMarker ? !comparison.HasLibraryValue() : AgreeByKind(comparison);
}

bool AgreeAsBits(const Comparison& comparison) {
    const auto* number = std::get_if<std::uint64_t>(&comparison.library.value);
    if (!comparison.HasStandardValue() || number == nullptr) {
        return number == nullptr &&
               (!comparison.HasStandardValue() || HasNothing(*comparison.StandardValue()));
    }
    return *number == comparison.RawBits();
}

bool AgreeAsWordOfCode(const Comparison& comparison) {
    const std::string_view word = TextOf(comparison.library.value);
    return comparison.HasStandardValue() ? WordAgrees(word, comparison.StandardValue()->text) : word.empty();
}

bool AgreeAsOnlyWord(const Comparison& comparison) {
    const bool isOther = comparison.HasStandardValue() && comparison.StandardValue()->text == "Other";
    return isOther ? comparison.HasLibraryValue() : AgreeAsWordOfCode(comparison);
}

bool AgreeWordForWord(const Comparison& comparison) {
    const std::string_view word = TextOf(comparison.library.value);
    return AgreeAsWordOfCode(comparison) &&
           (word.empty() || HaveSameLetters(word, comparison.StandardValue()->text));
}

bool AgreeInKilobytes(const Comparison& comparison) {
    const auto* kilobytes = std::get_if<std::uint64_t>(&comparison.library.value);
    if (!comparison.HasStandardValue() || kilobytes == nullptr) {
        return AgreeByKind(comparison);
    }
    return comparison.StandardValue()->plain.Number() == *kilobytes * 1024;
}

bool AgreeAsHexOfBytes(const Comparison& comparison) {
    const std::string_view text = TextOf(comparison.library.value);
    if (!comparison.HasStandardValue()) {
        return text.empty();
    }
    return text.empty() ? comparison.Raw() == 0 : NumberIn(text) == comparison.Raw();
}

bool HasNothing(const Value& value) {
    if (value.plain.IsNothing()) {
        return true;
    }
    if (const auto text = value.plain.Text()) {
        return Trimmed(*text).empty();
    }
    const bool isEmptyList = value.isList && value.items.empty() && value.plain.Number() == 0;
    return isEmptyList || (value.hasWords && IsMeaningless(value.text));
}

bool HaveSameLetters(std::string_view one, std::string_view other) noexcept {
    const auto lower = [](char character) {
        return 'A' <= character && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
    };
    const auto isLetterOrDigit = [&](char character) {
        return ('0' <= character && character <= '9') || ('a' <= lower(character) && lower(character) <= 'z');
    };
    const auto skip = [&](std::string_view& text) {
        while (!text.empty() && !isLetterOrDigit(text.front())) {
            text.remove_prefix(1);
        }
    };
    for (skip(one), skip(other); !one.empty() && !other.empty(); skip(one), skip(other)) {
        if (lower(one.front()) != lower(other.front())) {
            return false;
        }
        one.remove_prefix(1);
        other.remove_prefix(1);
    }
    return one.empty() && other.empty();
}

std::optional<std::uint64_t> NumberIn(std::string_view text) noexcept {
    const bool isHexadecimal = text.starts_with("0x");
    text.remove_prefix(isHexadecimal ? 2 : 0);
    std::uint64_t number = 0;
    const auto [end, error] =
        std::from_chars(text.data(), text.data() + text.size(), number, isHexadecimal ? 16 : 10);
    return error == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

std::optional<std::uint64_t> NumberOf(const LibraryValue& value) noexcept {
    const auto* number = std::get_if<std::uint64_t>(&value);
    return number == nullptr ? std::nullopt : std::optional(*number);
}

std::string_view TextOf(const LibraryValue& value) noexcept {
    const auto* text = std::get_if<std::string_view>(&value);
    return text == nullptr ? std::string_view() : *text;
}

bool WordAgrees(std::string_view libraryWord, std::string_view words) {
    const bool isMeaningless = IsMeaningless(words);
    if (libraryWord.empty() || libraryWord == Standard::kUnknown) {
        return isMeaningless || words == "Other";
    }
    return !isMeaningless || words == libraryWord;
}

}  // namespace SMBIOS::Inspect::Departures
