#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "smbios/memory_info.h"
#include "smbios/processor_info.h"
#include "tests/windows/only_powershell.h"
#include "tests/windows/sample_structures.h"
#include "tests/windows/served_table.h"

namespace SMBIOS::Tests {
namespace {

/// Lets two threads go at once. Not a std::latch: g++ 12 for Windows now and then forgets to wake a sleeper.
class StartLine {
public:
    void WaitForTheOther() noexcept {
        ++arrived_;
        while (arrived_ < 2) {
        }
    }

private:
    std::atomic<int> arrived_ = 0;
};

TEST(FirstUse, OfBothClassesAtOnceReadsTheTableOnce) {
    const ScriptedPowerShell powerShell("");
    const ServedTable served(TableOf(BareMemoryDevice("1")).Add(BareProcessor()).RawTable());
    StartLine start;
    std::size_t devices = 0;
    std::size_t processors = 0;
    {
        const std::jthread memoryThread([&] {
            start.WaitForTheOther();
            Parsers::MemoryInfo info;
            info.RetrieveInfo();
            devices = info.GetMemoryDeviceCount();
        });
        const std::jthread processorThread([&] {
            start.WaitForTheOther();
            Parsers::ProcessorInfo info;
            info.RetrieveInfo();
            processors = info.GetCPUCount();
        });
    }
    EXPECT_EQ(devices, 1U);
    EXPECT_EQ(processors, 1U);
    EXPECT_EQ(served.SizeQueries(), 1);
    EXPECT_EQ(served.Reads(), 1);
}

}  // namespace
}  // namespace SMBIOS::Tests
