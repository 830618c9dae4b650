#include <gtest/gtest.h>

#include <new>
#include <optional>
#include <ostream>
#include <streambuf>
#include <string>
#include <string_view>
#include <vector>

#include "smbios-inspect/command_line/inspect.h"
#include "tests/inspect/run_tool.h"
#include "tests/support/decode.h"
#include "tests/support/failing_allocation.h"
#include "tests/support/fake_platform.h"
#include "tests/support/temporary_folder.h"

// Every command while one allocation fails, or all from one on, and the same command again.
namespace SMBIOS::Tests {
namespace {

/// Collects what is written to it without an allocation.
class RoomyBuffer final : public std::streambuf {
public:
    RoomyBuffer() { text_.reserve(4'194'304); }

    [[nodiscard]] const std::string& Text() const noexcept { return text_; }
    void Clear() noexcept { text_.clear(); }

private:
    int_type overflow(int_type character) override {
        text_ += traits_type::to_char_type(character);
        return character;
    }
    std::streamsize xsputn(const char* text, std::streamsize size) override {
        text_.append(text, static_cast<std::size_t>(size));
        return size;
    }

    std::string text_;
};

struct CommandCase {
    const char* name;
    std::vector<std::string_view> arguments;
    std::size_t width = 0;
};

/// Small: every command goes through it twice for each of its allocations.
std::vector<std::uint8_t> Machine(const std::string& serialNumber) {
    return TableBuilder(3, 2, 0)
        .Add(StructureBuilder(0, 0x1A, 1).String(0x04, "A vendor of firmware").Byte(0x09, 1))
        .Add(StructureBuilder(1, 0x1B, 2).String(0x04, "A manufacturer of a system"))
        .Add(StructureBuilder(3, 0x1B, 3).Byte(0x13, 1).Byte(0x14, 3).Byte(0x15, 0x83))
        .Add(
            StructureBuilder(4, 0x30, 4).Qword(0x08, 0xBFEBFBFF00000001U).String(0x07, "Maker").Word(0x1A, 5))
        .Add(StructureBuilder(7, 0x1B, 5).Word(0x07, 64).Word(0x09, 64))
        .Add(StructureBuilder(16, 0x17, 6).Word(0x0D, 1))
        .Add(StructureBuilder(17, 0x28, 7)
                 .Word(0x0C, 1024)
                 .String(0x10, "A device locator of some length")
                 .String(0x18, serialNumber))
        .Add(StructureBuilder(200, 4, 8).String("A text that nobody knows"))
        .Add(StructureBuilder(127, 4, 9))
        .RawTable();
}

/// Runs a command again and again, and keeps what it wrote last.
class RepeatedCommand {
public:
    explicit RepeatedCommand(const CommandCase& command)
        : table_(folder_.Write("table", Machine("A serial number of some length")).string()),
          former_(folder_.Write("former", Machine("Another serial number, as long")).string()),
          arguments_(command.arguments) {
        if (arguments_.front() == "diff") {
            arguments_.insert(arguments_.end(), {former_, table_});
        } else {
            arguments_.insert(arguments_.end(), {"--from", table_});
        }
        style_.width = command.width;
    }

    int Run() {
        output_.Clear();
        errors_.Clear();
        std::ostream output(&output_);
        std::ostream errors(&errors_);
        return Inspect::Run(arguments_, style_, output, errors);
    }

    /// Whether the `n`-th allocation, which fails, was one of the command's; its status then.
    std::optional<int> RunWithoutMemory(std::size_t n, Failing failing) {
        const FailAllocation after(n, failing);
        const int status = Run();
        return after.HasFailed() ? std::optional(status) : std::nullopt;
    }

    [[nodiscard]] const std::string& Output() const noexcept { return output_.Text(); }
    [[nodiscard]] const std::string& Errors() const noexcept { return errors_.Text(); }

private:
    TemporaryFolder folder_;
    std::string table_;
    std::string former_;
    std::vector<std::string_view> arguments_;
    Inspect::OutputStyle style_;
    RoomyBuffer output_;
    RoomyBuffer errors_;
};

class CommandWithoutMemory : public testing::TestWithParam<CommandCase> {
protected:
    void ExpectTheWholeOutputAfterAnyFailure(Failing failing) {
        FakeCommandRunner powershell;
        powershell.FailToStart();
        RepeatedCommand command(GetParam());
        const int wholeStatus = command.Run();
        ASSERT_NE(wholeStatus, Inspect::kUnreadable) << command.Errors();
        const std::string whole = command.Output();
        std::size_t n = 1;
        while (const std::optional<int> status = command.RunWithoutMemory(n, failing)) {
            if (*status == wholeStatus) {
                ASSERT_EQ(command.Output(), whole) << "allocation " << n;
            } else {
                ASSERT_EQ(*status, Inspect::kUnreadable) << "allocation " << n;
                ASSERT_TRUE(command.Errors().starts_with("smbios-inspect: ")) << "allocation " << n;
                ASSERT_TRUE(whole.starts_with(command.Output())) << "allocation " << n;
            }
            ASSERT_EQ(command.Run(), wholeStatus) << "behind allocation " << n;
            ASSERT_EQ(command.Output(), whole) << "behind allocation " << n;
            ++n;
        }
        EXPECT_GT(n, 10U);
    }
};

TEST_P(CommandWithoutMemory, OnceGivesEverythingTheNextTime) {
    ExpectTheWholeOutputAfterAnyFailure(Failing::once);
}

TEST_P(CommandWithoutMemory, FromThenOnGivesEverythingTheNextTime) {
    ExpectTheWholeOutputAfterAnyFailure(Failing::fromThenOn);
}

INSTANTIATE_TEST_SUITE_P(Tool,
                         CommandWithoutMemory,
                         testing::Values(CommandCase{"Summary", {"summary"}},
                                         CommandCase{"SummaryOnATerminal", {"summary"}, 60},
                                         CommandCase{"SummaryJson", {"summary", "--json"}},
                                         CommandCase{"Memory", {"memory"}, 80},
                                         CommandCase{"MemoryJson", {"memory", "--json"}},
                                         CommandCase{"Processors", {"processors"}, 80},
                                         CommandCase{"ProcessorsJson", {"processors", "--json"}},
                                         CommandCase{"Structures", {"structures"}, 80},
                                         CommandCase{"StructuresJson", {"structures", "--json"}},
                                         CommandCase{"Firmware", {"firmware"}},
                                         CommandCase{"FirmwareWithBytes",
                                                     {"firmware", "--bytes", "--type=memory"}},
                                         CommandCase{"Get", {"get"}},
                                         CommandCase{"Picture", {"picture"}},
                                         CommandCase{"Diff", {"diff"}, 80},
                                         CommandCase{"DiffJson", {"diff", "--json"}},
                                         CommandCase{"FirmwareJson", {"firmware", "--json"}},
                                         CommandCase{"Departures", {"departures"}, 80},
                                         CommandCase{"DeparturesJson", {"departures", "--json"}}),
                         [](const auto& each) { return std::string(each.param.name); });

}  // namespace
}  // namespace SMBIOS::Tests
