#include "tests/inspect/standard/field_case.h"

#include <gtest/gtest.h>

namespace SMBIOS::Tests {
namespace {

TEST_P(StandardField, HasItsValueInJson) {
    const Json structure = FirmwareJson(TableOf(StructureOf(GetParam()))).at(0);
    const Json::json_pointer pointer(GetParam().pointer);
    ASSERT_TRUE(structure.at("fields").contains(pointer)) << structure.dump(2);
    EXPECT_EQ(structure.at("fields").at(pointer), Json::parse(GetParam().json));
}

TEST_P(StandardField, ReadsAsTheStandardHasIt) {
    const std::string text = FirmwareText(TableOf(StructureOf(GetParam())));
    EXPECT_NE(text.find(GetParam().text), std::string::npos) << text;
}

}  // namespace
}  // namespace SMBIOS::Tests
