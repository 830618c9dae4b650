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

TEST(Readme, ShowsTheExampleThatIsBuilt) {
    const std::string example = ContentsOf(SMBIOS_SOURCE_DIR "/examples/list_memory.cpp");
    EXPECT_NE(ContentsOf(SMBIOS_SOURCE_DIR "/README.md").find("```cpp\n" + example + "```\n"),
              std::string::npos);
}

}  // namespace
}  // namespace SMBIOS::Tests
