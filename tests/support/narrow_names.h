#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <map>
#include <string>
#include <utility>

namespace SMBIOS::Tests {

/// Expects that each code of this many bits has the name its row gives, and no name without a row.
template <std::size_t Count, class NameOf>
void ExpectNarrowNames(unsigned bits, const std::pair<int, const char*> (&rows)[Count], NameOf nameOf) {
    std::map<int, std::string> expected(std::begin(rows), std::end(rows));
    EXPECT_EQ(expected.size(), Count) << "a row stands twice in the expectation";
    for (int code = 0; code < (1 << bits); ++code) {
        EXPECT_EQ(nameOf(static_cast<std::uint8_t>(code)), expected[code]) << "code " << code;
    }
}

}  // namespace SMBIOS::Tests
