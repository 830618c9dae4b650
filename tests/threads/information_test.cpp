#include <gtest/gtest.h>

#include <atomic>
#include <exception>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "platform/command_runner.h"
#include "smbios/memory_info.h"
#include "smbios/processor_info.h"
#include "tests/threads/machine.h"
#include "tests/threads/together.h"

// Objects of the exported classes on several threads. The table is loaded once per process: so is every test.
namespace SMBIOS::Tests {
namespace {

using Parsers::MemoryInfo;
using Parsers::ProcessorInfo;

constexpr std::size_t kThreads = 8;
constexpr int kRepetitions = 20;

/// Retrieves the devices and reads them; the number of wrong answers.
int RetrieveDevices(MemoryInfo& memory) {
    memory.RetrieveInfo();
    if (memory.GetMemoryDeviceCount() != kDevices) {
        return 1;
    }
    int wrong = 0;
    for (std::size_t i = 0; i < kDevices; ++i) {
        wrong += memory.GetSerialNumber(i) == SerialNumberOf(i) ? 0 : 1;
        wrong += memory.GetPositionInRow(i) == 1 ? 0 : 1;
        wrong += memory.GetAssetTag(i) == std::string("A tag that WMI alone knows of") ? 0 : 1;
    }
    return wrong;
}

/// The same of the processors.
int RetrieveProcessors(ProcessorInfo& processors) {
    processors.RetrieveInfo();
    if (processors.GetCPUCount() != kProcessors) {
        return 1;
    }
    int wrong = 0;
    for (std::size_t i = 0; i < kProcessors; ++i) {
        wrong += processors.GetManufacturer(i) == std::string("WMI's manufacturer") ? 0 : 1;
        wrong += processors.GetL1CacheSizeInKB(i) == 64 ? 0 : 1;
        wrong += processors.GetL2CacheSizeInKB(i) == 1024 ? 0 : 1;
        wrong += processors.GetL3CacheSizeInKB(i) == 8192 ? 0 : 1;
    }
    return wrong;
}

TEST(ThreadsInformation, OfEightFirstUsesTheOneThatFailsFailsAlone) {
    Machine machine;
    machine.FailFirst(1);
    std::atomic<int> failures = 0;
    std::atomic<int> wrong = 0;
    RunTogether(kThreads, [&](std::size_t number) {
        try {
            MemoryInfo memory;
            ProcessorInfo processors;
            wrong += number % 2 == 0 ? RetrieveDevices(memory) : RetrieveProcessors(processors);
        } catch (const std::exception&) {
            ++failures;
        }
    });
    EXPECT_EQ(failures, 1);
    EXPECT_EQ(machine.Attempts(), 2);
    EXPECT_EQ(wrong, 0);
}

TEST(ThreadsInformation, EightThreadsRetrieveAndReadObjectsOfBothClasses) {
    Machine machine;
    std::vector<int> wrong(kThreads, 0);
    RunTogether(kThreads, [&](std::size_t number) {
        MemoryInfo memory;
        ProcessorInfo processors;
        for (int i = 0; i < kRepetitions; ++i) {
            wrong[number] += RetrieveDevices(memory) + RetrieveProcessors(processors);
        }
    });
    EXPECT_EQ(wrong, std::vector<int>(kThreads, 0));
}

TEST(ThreadsInformation, TextsAreReadWhileAnotherObjectRetrieves) {
    Machine machine;
    MemoryInfo memory;
    ProcessorInfo processors;
    ASSERT_EQ(RetrieveDevices(memory) + RetrieveProcessors(processors), 0);
    std::atomic<int> wrong = 0;
    RunTogether(2, [&](std::size_t number) {
        for (int i = 0; i < 10 * kRepetitions; ++i) {
            if (number == 0) {
                wrong += memory.GetSerialNumber(0) == SerialNumberOf(0) ? 0 : 1;
                wrong += processors.GetManufacturer(0) == std::string("WMI's manufacturer") ? 0 : 1;
                continue;
            }
            MemoryInfo otherMemory;
            ProcessorInfo otherProcessors;
            wrong += RetrieveDevices(otherMemory) + RetrieveProcessors(otherProcessors);
        }
    });
    EXPECT_EQ(wrong, 0);
}

/// Retrieves another object on another thread while PowerShell runs for the first one.
class RetrievingRunner final : public Platform::CommandRunner {
public:
    RetrievingRunner() { Platform::UseCommandRunner(this); }
    ~RetrievingRunner() { Platform::UseCommandRunner(nullptr); }

    [[nodiscard]] std::unique_ptr<Platform::ProgramOutput> Start(const std::string&) override {
        if (!isNested_.exchange(true)) {
            std::jthread([this] {
                MemoryInfo memory;
                memory.RetrieveInfo();
                ProcessorInfo processors;
                processors.RetrieveInfo();
                rowsOfOthers = memory.GetMemoryDeviceCount() + processors.GetCPUCount();
            }).join();
        }
        return nullptr;
    }

    std::size_t rowsOfOthers = 0;

private:
    std::atomic<bool> isNested_ = false;
};

TEST(ThreadsInformation, OtherObjectsRetrieveWhilePowerShellRuns) {
    const Machine machine;
    const RetrievingRunner runner;
    MemoryInfo memory;
    memory.RetrieveInfo();
    EXPECT_EQ(runner.rowsOfOthers, kDevices + kProcessors);
    EXPECT_EQ(memory.GetMemoryDeviceCount(), kDevices);
}

}  // namespace
}  // namespace SMBIOS::Tests
