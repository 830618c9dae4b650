#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "tests/inspect/captured_tables.h"
#include "tests/inspect/standard/standard_support.h"

namespace SMBIOS::Tests {

/// A number written into a structure.
struct Patch {
    std::size_t offset;
    std::size_t width;
    std::uint64_t value;
};

/// A structure of zeros but for its header and the patches, with the strings "one", "two" and "three"; and
/// what the standard makes of one of its fields.
struct FieldCase {
    const char* name;
    std::uint8_t type;
    std::uint8_t length;
    std::vector<Patch> patches;
    const char* pointer;  ///< of the field in the JSON fields
    const char* json;
    const char* text;  ///< a part of the text; empty when people do not see the field
};

inline std::ostream& operator<<(std::ostream& output, const FieldCase& tested) {
    return output << "type " << int{tested.type} << ", " << tested.name;
}

inline StructureBuilder StructureOf(const FieldCase& tested) {
    StructureBuilder structure(tested.type, tested.length, 0x0011);
    for (const Patch& patch : tested.patches) {
        for (std::size_t i = 0; i < patch.width; ++i) {
            structure.Byte(patch.offset + i, static_cast<std::uint8_t>(patch.value >> (8 * i)));
        }
    }
    return structure.String("one").String("two").String("three");
}

/// Tests of it are in field_case_test.cpp; the cases are in the tests of the types.
class StandardField : public testing::TestWithParam<FieldCase> {};

inline std::string NameOfCase(const testing::TestParamInfo<FieldCase>& tested) {
    return AsTestName("type" + std::to_string(tested.param.type) + "_" + tested.param.name);
}

}  // namespace SMBIOS::Tests
