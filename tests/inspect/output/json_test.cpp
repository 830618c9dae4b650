#include "smbios-inspect/output/json.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace SMBIOS::Inspect {
namespace {

std::string Printed(const Json& json) {
    std::ostringstream output;
    PrintJson(json, output);
    return output.str();
}

TEST(PrintJson, IndentsByTwoAndEndsTheLine) {
    EXPECT_EQ(Printed({{"a", 1}}), "{\n  \"a\": 1\n}\n");
}

TEST(PrintJson, EscapesDeleteAndTheC1Controls) {
    EXPECT_EQ(Printed("a\x7F"
                      "b"),
              "\"a\\u007fb\"\n");
    EXPECT_EQ(Printed("\xC2\x80\xC2\x9B\xC2\x9F"), "\"\\u0080\\u009b\\u009f\"\n");
}

TEST(PrintJson, EscapesTheOtherControls) {
    EXPECT_EQ(Printed("\x1B[31m\n"), "\"\\u001b[31m\\n\"\n");
}

TEST(PrintJson, LeavesOtherCharactersAsTheyAre) {
    const std::string text = "~ \xC2\xA0\xC3\x9B \xE2\x82\xAC";
    EXPECT_EQ(Printed(text), "\"" + text + "\"\n");
}

TEST(PrintJson, EscapesInNamesToo) {
    EXPECT_EQ(Printed({{"\x7F", nullptr}}), "{\n  \"\\u007f\": null\n}\n");
}

TEST(PrintJson, ReadsBackAsWhatWasPrinted) {
    const Json json = {"\x7F\xC2\x80", "plain"};
    EXPECT_EQ(Json::parse(Printed(json)), json);
}

TEST(PrintJson, BytesThatAreNotUtf8AreReplaced) {
    EXPECT_EQ(Printed("\x9B"), "\"\xEF\xBF\xBD\"\n");
}

}  // namespace
}  // namespace SMBIOS::Inspect
