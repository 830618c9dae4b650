#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "manager/smbios_version.h"

namespace SMBIOS::Structures {

using Manager::SmbiosVersionIndex;

/// A closed interval of length bytes or of table versions.
template <class Value>
struct Interval {
    Value first;
    Value last;

    [[nodiscard]] constexpr bool Contains(Value value) const noexcept {
        return first <= value && value <= last;
    }
};

using Lengths = Interval<std::uint8_t>;
using Versions = Interval<SmbiosVersionIndex>;

inline constexpr Lengths kAnyLength{0x00, 0xFF};
inline constexpr Versions kAnyVersion{SmbiosVersionIndex::v2_0_0, SmbiosVersionIndex{0xFF}};

[[nodiscard]] consteval Lengths LengthAtLeast(std::uint8_t length) {
    return {length, 0xFF};
}
[[nodiscard]] consteval Lengths LengthAbove(std::uint8_t length) {
    return {static_cast<std::uint8_t>(length + 1), 0xFF};
}
[[nodiscard]] consteval Lengths LengthExactly(std::uint8_t length) {
    return {length, length};
}
[[nodiscard]] consteval Lengths LengthFromTo(std::uint8_t first, std::uint8_t last) {
    return {first, last};
}

[[nodiscard]] consteval Versions VersionAtLeast(SmbiosVersionIndex version) {
    return {version, kAnyVersion.last};
}
[[nodiscard]] consteval Versions VersionBelow(SmbiosVersionIndex version) {
    return {kAnyVersion.first, SmbiosVersionIndex(static_cast<std::uint8_t>(version) - 1)};
}
[[nodiscard]] consteval Versions VersionExactly(SmbiosVersionIndex version) {
    return {version, version};
}

/// Refuses a structure whose length a firmware of the table's version cannot have produced.
struct Gate {
    Lengths lengths;
    Versions versions;
    const char* message;
};

/// When the string set is kept in the record.
enum class StringSetRule : std::uint8_t {
    always,           ///< after a success; after a failure too, unless empty
    alwaysIfPresent,  ///< likewise, but never an empty one
    onSuccess,        ///< only after a success
};

/// What a type accepts: its lengths and versions, then its gates in the order they are tried.
struct ParseRules {
    Lengths lengths = kAnyLength;
    Versions versions = kAnyVersion;
    std::span<const Gate> gates = {};
    StringSetRule strings = StringSetRule::always;
};

/// Throws when the formatted area is empty, malformed or refused by a gate, in that order, in a table of this
/// version.
void CheckStructure(const ParseRules& rules,
                    SmbiosVersionIndex version,
                    const std::vector<std::uint8_t>& formattedBytes);

/// Throws when the formatted area is too short for a header.
void CheckHeader(const std::vector<std::uint8_t>& formattedBytes);

/// Whether the string set is to be kept in the record.
[[nodiscard]] constexpr bool KeepsStrings(StringSetRule rule, bool decoded, bool isEmpty) noexcept {
    switch (rule) {
        case StringSetRule::onSuccess:
            return decoded;
        case StringSetRule::alwaysIfPresent:
            return !isEmpty;
        case StringSetRule::always:
            return decoded || !isEmpty;
    }
    return false;
}

}  // namespace SMBIOS::Structures
