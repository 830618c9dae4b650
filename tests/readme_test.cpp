#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

namespace SMBIOS::Tests {
namespace {

std::string ContentsOf(const char* file) {
    std::ifstream stream(file, std::ios::binary);
    EXPECT_TRUE(stream) << file;
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

/// Examples are built and run elsewhere; the README shows them as they are.
void ExpectShown(const std::string& language, const char* file) {
    const std::string example = ContentsOf(file);
    const std::string readme = ContentsOf(SMBIOS_SOURCE_DIR "/README.md");
    EXPECT_NE(readme.find("```" + language + "\n" + example + "```\n"), std::string::npos);
}

TEST(Readme, ShowsTheExampleThatIsBuilt) {
    ExpectShown("cpp", SMBIOS_SOURCE_DIR "/examples/list_memory.cpp");
}

TEST(Readme, SaysRightBehindItThatARowIsNotASlot) {
    const std::string example = ContentsOf(SMBIOS_SOURCE_DIR "/examples/list_memory.cpp");
    const std::string readme = ContentsOf(SMBIOS_SOURCE_DIR "/README.md");
    EXPECT_NE(readme.find(example + "```\n\n**A row is not a slot.**"), std::string::npos);
}

TEST(Readme, ShowsTheExampleInC) {
    ExpectShown("c", SMBIOS_SOURCE_DIR "/examples/report_memory.c");
}

TEST(Readme, ShowsTheExampleInPython) {
    ExpectShown("python", SMBIOS_SOURCE_DIR "/examples/report_memory.py");
}

}  // namespace
}  // namespace SMBIOS::Tests
