#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "common/dynamic_bitset.h"
#include "manager/smbios_version.h"
#include "samples/table_builder.h"

namespace SMBIOS::Tests {

using Samples::StructureBuilder;
using Samples::TableBuilder;
using enum Manager::SmbiosVersionIndex;

inline constexpr const char* kMalformed =
    "Malformed or corrupted structure. Maybe a version outside the interval this lib supports [2.0.0, 3.8.0]";
inline constexpr const char* kInvalidPointer = "Invalid structure format pointer";

/// The record that a `Type` makes of these bytes in a table of this version.
template <class Type>
auto DecodeBytes(Manager::SmbiosVersionIndex version,
                 std::vector<std::uint8_t> formattedBytes,
                 const std::vector<std::string>& strings = {}) {
    Type decoder(version);
    decoder.Process(formattedBytes, strings);
    return decoder.GetRecord();
}

/// The record that a `Type` makes of this structure in a table of this version.
template <class Type>
auto Decode(Manager::SmbiosVersionIndex version, const StructureBuilder& structure) {
    return DecodeBytes<Type>(version, structure.FormattedBytes(), structure.Strings());
}

/// A structure of zeros with this length byte, in a table of this version, and the error it gets; "" for
/// none.
struct AcceptanceCase {
    std::uint8_t length;
    Manager::SmbiosVersionIndex version;
    const char* error;
};

template <class Type, std::size_t Count>
void ExpectAcceptance(std::uint8_t type, const AcceptanceCase (&cases)[Count]) {
    for (const AcceptanceCase& each : cases) {
        EXPECT_EQ(Decode<Type>(each.version, StructureBuilder(type, each.length))->error, each.error)
            << "length " << int{each.length} << ", version index " << static_cast<int>(each.version);
    }
}

/// Expects that each code of this many bits has the name its row gives, and no name without a row.
template <std::size_t Count, class NameOf>
void ExpectNarrowNames(unsigned bits, const std::pair<int, const char*> (&rows)[Count], NameOf nameOf) {
    std::map<int, std::string> expected(std::begin(rows), std::end(rows));
    EXPECT_EQ(expected.size(), Count) << "a row stands twice in the expectation";
    for (int code = 0; code < (1 << bits); ++code) {
        EXPECT_EQ(nameOf(static_cast<std::uint8_t>(code)), expected[code]) << "code " << code;
    }
}

/// The same for each of the 256 byte codes.
template <std::size_t Count, class NameOf>
void ExpectNames(const std::pair<int, const char*> (&rows)[Count], NameOf nameOf) {
    ExpectNarrowNames(8, rows, nameOf);
}

/// Expects the set's list of names, bit 0 first.
inline void ExpectBitNames(const Common::Dynamic_BitSet& set, const std::vector<std::string>& expected) {
    EXPECT_EQ(std::vector<std::string>(set.names.begin(), set.names.end()), expected);
}

}  // namespace SMBIOS::Tests
