#include <gtest/gtest.h>

#include <new>
#include <optional>
#include <sstream>
#include <string>

#include "smbios-inspect/reports/memory_report.h"
#include "smbios-inspect/reports/processors_report.h"
#include "smbios/memory_info.h"
#include "smbios/processor_info.h"
#include "tests/support/child_process_posix.h"
#include "tests/support/decode.h"
#include "tests/support/failing_allocation.h"
#include "tests/support/fake_platform.h"

// The first request of a process while one allocation fails, or all from one on, and the same request again.
namespace SMBIOS::Tests {
namespace {

using Report = void (*)(const Inspect::Request&, const Inspect::OutputStyle&, std::ostream&);

constexpr const char* kNothingFailed = "nothing failed";

std::vector<std::uint8_t> Machine() {
    return TableBuilder(2, 8, 0)
        .Add(StructureBuilder(1, 0x1B).String(0x04, "A manufacturer of a system").String(0x05, "A product"))
        .Add(StructureBuilder(17, 0x28, 0x1100)
                 .Byte(0x12, 0x1A)
                 .String(0x10, "A device locator of some length")
                 .String(0x18, "SERIAL-NUMBER-OF-THE-FIRST-DEVICE"))
        .Add(StructureBuilder(17, 0x28, 0x1101).String(0x18, "SERIAL-NUMBER-OF-THE-SECOND-DEVICE"))
        .Add(StructureBuilder(7, 0x13, 0x0700).Word(0x07, 64).Word(0x09, 64))
        .Add(StructureBuilder(4, 0x2A, 0x0400)
                 .Qword(0x08, 0xBFEBFBFF00000001U)
                 .String(0x07, "A manufacturer of processors")
                 .Word(0x1A, 0x0700)
                 .Word(0x1C, 0xFFFF))
        .RawTable();
}

constexpr const char* kDeviceAnswer = R"([
    {"SerialNumber": "SERIAL-NUMBER-OF-THE-FIRST-DEVICE", "PositionInRow": 1, "Tag": "A tag of the first one"},
    {"SerialNumber": "SERIAL-NUMBER-OF-THE-SECOND-DEVICE", "PositionInRow": 2, "Tag": "A tag of the second"}])";
constexpr const char* kProcessorAnswer =
    R"({"ProcessorId": "BFEBFBFF00000001", "L2CacheSize": 1024, "Name": "A processor by its whole name"})";

/// Every value of every row, asked of a fresh object.
std::string AllValues(Report report) {
    std::ostringstream output;
    report({.json = true}, {}, output);
    return output.str();
}

/// Asks while allocations fail from the `n`-th on, or it alone; tells whether one did.
template <class Info>
bool AskWithoutMemory(Info& info, std::size_t n, Failing failing) {
    const FailAllocation after(n, failing);
    try {
        info.RetrieveInfo();
    } catch (const std::bad_alloc&) {
        return true;
    }
    return after.HasFailed();
}

template <class Info>
std::string ValuesAfterAFailure(std::size_t n, Failing failing, Report report) {
    Info info;
    return AskWithoutMemory(info, n, failing) ? AllValues(report) : kNothingFailed;
}

/// Expects all values of the second request, whichever allocation of the first one fails.
template <class Info>
void ExpectAllValuesAfterAnyFailure(const std::optional<std::string>& answer, Report report) {
    const FakeFirmwareTable firmware(Machine());
    FakeCommandRunner powershell;
    answer ? powershell.Answer(*answer) : powershell.FailToStart();
    const std::string expected = TextOfChild([&] { return AllValues(report); });
    ASSERT_EQ(expected.front(), '{');
    for (const Failing failing : {Failing::once, Failing::fromThenOn}) {
        for (std::size_t n = 1;; ++n) {
            const std::string values =
                TextOfChild([&] { return ValuesAfterAFailure<Info>(n, failing, report); });
            if (values == kNothingFailed) {
                EXPECT_GT(n, 50U);
                break;
            }
            ASSERT_EQ(values, expected) << "allocation " << n;
        }
    }
}

TEST(AllocationFailures, OfMemoryInfoAreOverWithTheNextRequest) {
    ExpectAllValuesAfterAnyFailure<Parsers::MemoryInfo>(std::nullopt, Inspect::ReportMemory);
}

TEST(AllocationFailures, OfMemoryInfoAndItsCompletionAreOverWithTheNextRequest) {
    ExpectAllValuesAfterAnyFailure<Parsers::MemoryInfo>(kDeviceAnswer, Inspect::ReportMemory);
}

TEST(AllocationFailures, OfProcessorInfoAreOverWithTheNextRequest) {
    ExpectAllValuesAfterAnyFailure<Parsers::ProcessorInfo>(std::nullopt, Inspect::ReportProcessors);
}

TEST(AllocationFailures, OfProcessorInfoAndItsCompletionAreOverWithTheNextRequest) {
    ExpectAllValuesAfterAnyFailure<Parsers::ProcessorInfo>(kProcessorAnswer, Inspect::ReportProcessors);
}

}  // namespace
}  // namespace SMBIOS::Tests
