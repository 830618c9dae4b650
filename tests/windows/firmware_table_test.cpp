#include <gtest/gtest.h>

#include <algorithm>
#include <exception>
#include <span>
#include <string>
#include <vector>

#include "smbios/memory_info.h"
#include "smbios/processor_info.h"
#include "tests/windows/only_powershell.h"
#include "tests/windows/sample_structures.h"
#include "tests/windows/served_table.h"
#include "tests/windows/windows_headers.h"

namespace SMBIOS::Tests {
namespace {

using Parsers::MemoryInfo;
using Parsers::ProcessorInfo;

/// What a new object's RetrieveInfo throws; "" when it succeeds.
template <class Info>
std::string ErrorOfRetrieving() {
    Info info;
    try {
        info.RetrieveInfo();
    } catch (const std::exception& error) {
        return error.what();
    }
    return {};
}

std::vector<std::uint8_t> MachineTable() {
    constexpr DWORD kProvider = 0x52534D42;
    std::vector<std::uint8_t> table(::GetSystemFirmwareTable(kProvider, 0, nullptr, 0));
    ::GetSystemFirmwareTable(kProvider, 0, table.data(), static_cast<DWORD>(table.size()));
    return table;
}

bool Contains(const std::vector<std::uint8_t>& table, std::span<const std::uint8_t> bytes) {
    return !std::ranges::search(table, bytes).empty();
}

TEST(FirmwareTable, IsTheMachinesOwn) {
    const std::vector<std::uint8_t> table = MachineTable();
    ASSERT_FALSE(table.empty()) << "this machine exposes no table";
    const ScriptedPowerShell powerShell("");
    MemoryInfo memory;
    ProcessorInfo processors;
    memory.RetrieveInfo();
    processors.RetrieveInfo();
    for (std::size_t i = 0; i < memory.GetMemoryDeviceCount(); ++i) {
        std::size_t size = 0;
        const std::uint8_t* const bytes = memory.DumpRawData(i, size);
        EXPECT_TRUE(Contains(table, {bytes, size})) << "row " << i;
    }
    for (std::size_t i = 0; i < processors.GetCPUCount(); ++i) {
        EXPECT_NE(processors.GetProcessorID(i), nullptr) << "row " << i;
    }
}

TEST(FirmwareTable, IsMissing) {
    const ServedTable served({});
    constexpr const char* kError =
        "Failed to get size of firmware table. Origin: SMBIOS::Manager::SmbiosManager::UpdateBiosInfo";
    EXPECT_EQ(ErrorOfRetrieving<MemoryInfo>(), kError);
    EXPECT_EQ(ErrorOfRetrieving<ProcessorInfo>(), kError);
}

TEST(FirmwareTable, GrowsBetweenTheTwoCalls) {
    ServedTable served(TableOf(BareMemoryDevice("1")).RawTable());
    served.ServeAfterSizeQuery(TableOf(BareMemoryDevice("1")).Add(BareMemoryDevice("2")).RawTable());
    EXPECT_EQ(ErrorOfRetrieving<MemoryInfo>(),
              "Failed to retrieve data from firmware table. Origin: "
              "SMBIOS::Manager::SmbiosManager::UpdateBiosInfo");
}

TEST(FirmwareTable, ShrinksBetweenTheTwoCalls) {
    ServedTable served(TableOf(BareMemoryDevice("1")).Add(BareMemoryDevice("2")).RawTable());
    served.ServeAfterSizeQuery(TableOf(BareMemoryDevice("1")).RawTable());
    EXPECT_EQ(ErrorOfRetrieving<MemoryInfo>(),
              "Failed to retrieve data from firmware table. Origin: "
              "SMBIOS::Manager::SmbiosManager::UpdateBiosInfo");
}

TEST(FirmwareTable, IsTooShort) {
    const ServedTable served({0, 3, 0, 0, 0, 0, 0, 0});
    EXPECT_EQ(ErrorOfRetrieving<MemoryInfo>(),
              "SMBIOS structure is corrupted. Origin: SMBIOS::Manager::SmbiosManager::UpdateBiosInfo");
}

TEST(FirmwareTable, IsTriedAgainAfterAFailure) {
    const ScriptedPowerShell powerShell("");
    ServedTable served({});
    EXPECT_NE(ErrorOfRetrieving<MemoryInfo>(), "");
    served.Serve(TableOf(BareMemoryDevice("1")).RawTable());
    MemoryInfo memory;
    memory.RetrieveInfo();
    EXPECT_EQ(memory.GetMemoryDeviceCount(), 1U);
}

TEST(FirmwareTable, IsReadOnceInAProcess) {
    const ScriptedPowerShell powerShell("");
    ServedTable served(TableOf(BareMemoryDevice("1")).RawTable());
    EXPECT_EQ(ErrorOfRetrieving<MemoryInfo>(), "");
    EXPECT_EQ(ErrorOfRetrieving<ProcessorInfo>(), "");
    EXPECT_EQ(ErrorOfRetrieving<MemoryInfo>(), "");
    EXPECT_EQ(served.SizeQueries(), 1);
    EXPECT_EQ(served.Reads(), 1);
}

// The library and the program each hold a C++ runtime of their own, which find the handler together but count
// for themselves: the library's count of exceptions under way stays one too high, and the program's one too
// low.
TEST(FirmwareTable, ErrorsCrossTheRuntimesButAreMiscounted) {
    const ServedTable served({});
    constexpr int kErrors = 3;
    for (int i = 0; i < kErrors; ++i) {
        EXPECT_NE(ErrorOfRetrieving<MemoryInfo>(), "");
    }
    EXPECT_EQ(std::uncaught_exceptions(), -kErrors);
}

}  // namespace
}  // namespace SMBIOS::Tests
