#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "tests/inspect/run_tool.h"
#include "tests/support/memory_limit_posix.h"
#include "tests/support/temporary_folder.h"

namespace SMBIOS::Tests {
namespace {

/// Closes what the test's own parents may have left open.
constexpr const char* kCloseOthers = "exec 3>&- 4>&- 5>&- 6>&- 7>&- 8>&- 9>&-\n";

/// The tool as a process, with a shell around it to say where it reads and prints.
class ToolProcess : public testing::Test {
protected:
    void SetUp() override {
        if (!std::filesystem::exists("/bin/bash")) {
            GTEST_SKIP() << "no bash on this machine";
        }
    }

    /// Runs `script` in a folder of its own, in which $tool is the tool and $table the sample, and returns
    /// what it prints on both streams.
    [[nodiscard]] std::string Run(const std::string& script) const {
        ::setenv("tool", SMBIOS_INSPECT, 1);
        ::setenv("table", SMBIOS_SAMPLE_TABLE, 1);
        ::setenv("folder", folder_.Path().c_str(), 1);
        folder_.Write("script", kCloseOthers + script);
        EXPECT_EQ(std::system("cd \"$folder\" && /bin/bash script >output 2>&1"), 0);
        return ContentsOf(folder_.Path() / "output");
    }

    TemporaryFolder folder_;
};

TEST_F(ToolProcess, ReadsStandardInput) {
    EXPECT_EQ(Run("\"$tool\" --from - <\"$table\"; echo $?"), GoldenText("summary.txt") + "0\n");
}

TEST_F(ToolProcess, ReadsAPipe) {
    EXPECT_EQ(Run("cat \"$table\" | \"$tool\" memory --from -"), GoldenText("memory.txt", "-"));
}

TEST_F(ToolProcess, TellsWhyStandardInputCannotBeRead) {
    EXPECT_EQ(Run("\"$tool\" --from - <&-; echo $?"),
              "smbios-inspect: cannot open standard input: Bad file descriptor\n1\n");
}

TEST_F(ToolProcess, SavesWithoutStandardStreams) {
    EXPECT_EQ(Run("for closed in '' '<&-' '>&-' '2>&-' '<&- >&-' '<&- 2>&-' '>&- 2>&-' '<&- >&- 2>&-'; do\n"
                  "  eval '\"$tool\" save saved --from \"$table\"' \"$closed\"; echo -n $?\n"
                  "  cmp saved \"$table\"; rm saved\n"
                  "done"),
              "00000000");
}

TEST_F(ToolProcess, FailsWithoutStandardOutput) {
    EXPECT_EQ(Run("\"$tool\" --from \"$table\" >&-; echo $?"),
              "smbios-inspect: cannot write to standard output: Bad file descriptor\n1\n");
    EXPECT_EQ(Run("for closed in '>&-' '<&- >&-' '>&- 2>&-' '<&- >&- 2>&-'; do\n"
                  "  eval '\"$tool\" --from \"$table\"' \"$closed\" 2>/dev/null; echo -n $?\n"
                  "done"),
              "1111");
}

TEST_F(ToolProcess, PrintsWithoutTheOtherStreams) {
    EXPECT_EQ(Run("\"$tool\" --from \"$table\" <&- 2>&-; echo $?"), GoldenText("summary.txt") + "0\n");
}

TEST_F(ToolProcess, FailsWithoutAnyStreamToReadFrom) {
    EXPECT_EQ(Run("mkdir saved\n"
                  "\"$tool\" save saved/table --from - <&- >&- 2>&-; echo $?\n"
                  "ls -A saved"),
              "1\n");
}

TEST_F(ToolProcess, PrintsWithRoomForOneDescriptor) {
    if (kMemoryIsWatched) {
        GTEST_SKIP() << "the sanitizer needs descriptors of its own";
    }
    EXPECT_EQ(Run("(ulimit -n 4; exec \"$tool\" --from \"$table\"); echo $?"),
              GoldenText("summary.txt") + "0\n");
}

TEST_F(ToolProcess, TellsThatThereIsNoRoomForADescriptor) {
    if (kMemoryIsWatched) {
        GTEST_SKIP() << "the sanitizer needs descriptors of its own";
    }
    EXPECT_EQ(Run("mkdir saved\n"
                  "(ulimit -n 4; exec \"$tool\" save saved/table --from \"$table\"); echo $?\n"
                  "ls -A saved"),
              "smbios-inspect: cannot write saved/table: Too many open files\n1\n");
}

TEST_F(ToolProcess, SavesWithRoomForTwoDescriptors) {
    EXPECT_EQ(Run("for room in 5 6 7 8; do\n"
                  "  (ulimit -n $room; exec \"$tool\" save saved --from \"$table\"); echo -n $?\n"
                  "  cmp saved \"$table\"; rm saved\n"
                  "done"),
              "0000");
}

TEST_F(ToolProcess, EndsQuietlyWhenItsReaderGoesAway) {
    EXPECT_EQ(Run("{ sleep 0.2; \"$tool\" processors --json --from \"$table\"; } | true"), "");
}

TEST_F(ToolProcess, SucceedsQuietlyWhenThePipeIsBrokenAndThatIsIgnored) {
    EXPECT_EQ(Run("trap '' PIPE\n"
                  "{ sleep 0.2; \"$tool\" memory --json --from \"$table\"; echo $? >&2; } | true"),
              "0\n");
}

TEST_F(ToolProcess, FailsWithOneLineWhenTheOutputCannotBeWritten) {
    if (!std::filesystem::exists("/dev/full")) {
        GTEST_SKIP() << "no /dev/full on this system";
    }
    EXPECT_EQ(Run("\"$tool\" --from \"$table\" >/dev/full; echo $?"),
              "smbios-inspect: cannot write to standard output: No space left on device\n1\n");
}

TEST_F(ToolProcess, LeavesNothingHalfWrittenBehind) {
    EXPECT_EQ(Run("mkdir saved\n"
                  "(trap '' XFSZ; ulimit -f 1; \"$tool\" save saved/table --from \"$table\" 2>&1 | cat)\n"
                  "ls -A saved"),
              "smbios-inspect: cannot write saved/table: File too large\n");
}

TEST_F(ToolProcess, LeavesNothingHalfWrittenBehindWhenASignalEndsIt) {
    EXPECT_EQ(
        Run("mkdir saved\n"
            "{ (ulimit -c 0 -f 1; \"$tool\" save saved/table --from \"$table\"); status=$?; } 2>/dev/null\n"
            "kill -l $status; ls -A saved"),
        "XFSZ\n");
}

TEST_F(ToolProcess, HasNoColoursAndNoLimitInAFile) {
    EXPECT_EQ(Run("\"$tool\" processors --from \"$table\""), GoldenText("processors.txt"));
}

}  // namespace
}  // namespace SMBIOS::Tests
