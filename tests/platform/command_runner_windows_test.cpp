#include <gtest/gtest.h>

#include <string>

#include "platform/command_runner.h"
#include "support/temporary_folder.h"

namespace SMBIOS::Platform {
namespace {

std::string OutputOf(const std::string& commandLine) {
    std::string output;
    EXPECT_TRUE(MachineCommandRunner().Run(commandLine, output));
    return output;
}

std::string OutputOfPrinting(const std::string& text) {
    const Tests::TemporaryFolder folder;
    return OutputOf("cmd /c type \"" + folder.Write("text", text).string() + "\"");
}

TEST(WindowsCommandRunner, ReturnsWhatTheProgramPrints) {
    EXPECT_EQ(OutputOf("cmd /c echo hello"), "hello\n");
}

TEST(WindowsCommandRunner, ReplacesWhatTheOutputHeldBefore) {
    std::string output = "before";
    ASSERT_TRUE(MachineCommandRunner().Run("cmd /c exit 0", output));
    EXPECT_EQ(output, "");
}

TEST(WindowsCommandRunner, DoesNotLookAtTheExitStatus) {
    EXPECT_EQ(OutputOf("cmd /c \"echo hello& exit 3\""), "hello\n");
}

TEST(WindowsCommandRunner, ReturnsEveryLine) {
    EXPECT_EQ(OutputOfPrinting("one\r\n\r\ntwo"), "one\n\ntwo");
}

TEST(WindowsCommandRunner, ReturnsLinesLongerThanAPiece) {
    const std::string line(300, 'x');
    EXPECT_EQ(OutputOfPrinting(line + "\r\nend\r\n"), line + "\nend\n");
}

TEST(WindowsCommandRunner, ReturnsAMegabyte) {
    const std::string text(1'048'576, 'x');
    EXPECT_TRUE(OutputOfPrinting(text) == text);
}

}  // namespace
}  // namespace SMBIOS::Platform
