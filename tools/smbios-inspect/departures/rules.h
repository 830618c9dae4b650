#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "smbios-inspect/departures/comparison.h"

// When values agree. A type names a rule in its joins; what only one type has is beside them.
namespace SMBIOS::Inspect::Departures {

[[nodiscard]] bool AgreeByKind(const Comparison& comparison);
[[nodiscard]] bool AgreeStrictly(const Comparison& comparison);
[[nodiscard]] bool AgreeAsBits(const Comparison& comparison);
[[nodiscard]] bool AgreeAsWordOfCode(const Comparison& comparison);
[[nodiscard]] bool AgreeAsOnlyWord(const Comparison& comparison);
[[nodiscard]] bool AgreeWordForWord(const Comparison& comparison);
[[nodiscard]] bool AgreeInKilobytes(const Comparison& comparison);
[[nodiscard]] bool AgreeAsHexOfBytes(const Comparison& comparison);

/// As the kinds of both values say.
[[nodiscard]] constexpr Rule ByKind() {
    return {AgreeByKind};
}

/// Likewise, but a number that stands for "unknown" is no value.
[[nodiscard]] constexpr Rule Strictly() {
    return {AgreeStrictly};
}

/// A number in some bits of the standard's field.
[[nodiscard]] constexpr Rule Bits(unsigned lowBit, unsigned bitCount) {
    return {AgreeAsBits, lowBit, bitCount};
}

/// A text beside its code; one that has no code beside it; one whose spelling matters.
[[nodiscard]] constexpr Rule WordOfCode() {
    return {AgreeAsWordOfCode};
}
[[nodiscard]] constexpr Rule OnlyWord() {
    return {AgreeAsOnlyWord};
}
[[nodiscard]] constexpr Rule WordForWord() {
    return {AgreeWordForWord};
}

/// A size in kilobytes against one in bytes.
[[nodiscard]] constexpr Rule Kilobytes() {
    return {AgreeInKilobytes};
}

/// The number that the bytes are, as a hexadecimal text; empty for zero.
[[nodiscard]] constexpr Rule HexOfBytes() {
    return {AgreeAsHexOfBytes};
}

// What rules are made of.

/// Whether the standard's reading is that there is no value: nothing, a code without a meaning, no items.
[[nodiscard]] bool HasNothing(const Standard::Value& value);

/// Whether two texts are made of the same letters and digits.
[[nodiscard]] bool HaveSameLetters(std::string_view one, std::string_view other) noexcept;

/// "0x00AB" or "171" as a number; none for any other text.
[[nodiscard]] std::optional<std::uint64_t> NumberIn(std::string_view text) noexcept;

/// The library's value as a number; none when it is no number.
[[nodiscard]] std::optional<std::uint64_t> NumberOf(const LibraryValue& value) noexcept;

/// The library's value as a text; empty when it is none.
[[nodiscard]] std::string_view TextOf(const LibraryValue& value) noexcept;

/// Whether a library's word, which may be empty, agrees with the standard's words for the same code.
[[nodiscard]] bool WordAgrees(std::string_view libraryWord, std::string_view words);

}  // namespace SMBIOS::Inspect::Departures
