#include "manager/decoded_table.h"

#include <gtest/gtest.h>

#include <exception>
#include <new>
#include <string>
#include <utility>
#include <vector>

#include "manager/decoded_records.h"
#include "platform/file_bytes.h"
#include "structures/type_17.h"
#include "structures/unknown_type.h"
#include "tests/support/counted_allocations.h"
#include "tests/support/decode.h"
#include "tests/support/failing_allocation.h"

// Decoding is a function of its arguments: any number of tables can be decoded in one process.
namespace SMBIOS::Tests {
namespace {

using Manager::DecodedRecords;
using Manager::DecodedTable;
using Manager::DecodeTable;
using Manager::FiledStructure;
using Manager::Types::StructureTypes;
using Structures::Type_17;
using Structures::UnknownType;

/// A memory device of 28 bytes, which a table of 2.3.0 refuses and any later one accepts.
StructureBuilder Device(std::uint16_t handle) {
    return StructureBuilder(17, 0x1C, handle).String(0x18, "Serial");
}

std::vector<std::uint8_t> DeviceTable(std::uint8_t minor, std::uint16_t handle) {
    return TableBuilder(2, minor, 0).Add(Device(handle)).RawTable();
}

std::string TextOfFailure(const std::vector<std::uint8_t>& rawTable) {
    try {
        (void)DecodeTable(rawTable);
    } catch (const std::exception& failure) {
        return failure.what();
    }
    return "";
}

TEST(DecodedTable, TellsTheVersionAndItsIndex) {
    const DecodedTable table = DecodeTable(TableBuilder(3, 7, 1).Add({1, 8}).RawTable());
    EXPECT_EQ(table.version.text, "3.7.1");
    EXPECT_EQ(table.version.index, v3_7_1);
}

TEST(DecodedTable, AVersionThatIsNotListedHasTheIndexGivenForIt) {
    const std::vector<std::uint8_t> rawTable = TableBuilder(3, 9, 0).Add({1, 8}).RawTable();
    EXPECT_EQ(DecodeTable(rawTable).version.index, v2_0_0);
    EXPECT_EQ(DecodeTable(rawTable, v2_8_0).version.index, v2_8_0);
    EXPECT_EQ(DecodeTable(rawTable, v2_8_0).version.text, "3.9.0");
}

TEST(DecodedTable, FilesStructuresUnderTheirKeysInTableOrder) {
    const DecodedTable table = DecodeTable(
        TableBuilder(2, 8, 0).Add(Device(3)).Add({200, 4, 9}).Add(Device(1)).Add({127, 4, 8}).RawTable());
    std::vector<std::pair<int, int>> filed;
    for (const auto& [key, run] : table.structures) {
        for (const FiledStructure& structure : run) {
            EXPECT_EQ(structure.first, key);
            filed.emplace_back(static_cast<int>(key), structure.second->GetHandle());
        }
    }
    EXPECT_EQ(filed, (std::vector<std::pair<int, int>>{{17, 3}, {17, 1}, {128, 9}, {128, 8}}));
}

TEST(DecodedTable, KeepsTableOrderWithinRunsOfOneTypeAndFromRunToRun) {
    const DecodedTable table = DecodeTable(TableBuilder(2, 8, 0)
                                               .Add(Device(3))
                                               .Add(Device(1))
                                               .Add(Device(2))
                                               .Add({200, 4, 9})
                                               .Add({201, 4, 8})
                                               .Add(Device(5))
                                               .Add(Device(4))
                                               .Add({200, 4, 7})
                                               .RawTable());
    std::vector<int> handles;
    for (const auto& [key, run] : table.structures) {
        for (const FiledStructure& structure : run) {
            handles.push_back(structure.second->GetHandle());
        }
    }
    EXPECT_EQ(handles, (std::vector<int>{3, 1, 2, 5, 4, 9, 8, 7}));
}

TEST(DecodedTable, DecodersAndRecordsHaveHardlyAnyMemoryOfTheirOwn) {
    constexpr std::size_t kStructures = 400;
    TableBuilder builder(2, 8, 0);
    for (std::size_t i = 0; i < kStructures; ++i) {
        builder.Add({200, 4});
    }
    const std::vector<std::uint8_t> rawTable = builder.RawTable();
    const CountedAllocations counted;
    (void)DecodeTable(rawTable);
    EXPECT_GT(counted.Count(), kStructures);  // the bytes of each
    EXPECT_LT(counted.Count(), kStructures * 5 / 4);
}

TEST(DecodedTable, GetStructuresByTypeGivesTheOnesOfOneKey) {
    const DecodedTable table = DecodeTable(TableBuilder(2, 8, 0).Add({1, 8}).Add(Device(7)).RawTable());
    ASSERT_EQ(table.GetStructuresByType(StructureTypes::MemoryDevice).size(), 1U);
    EXPECT_EQ(table.GetStructuresByType(StructureTypes::MemoryDevice)[0]->GetHandle(), 7);
    EXPECT_TRUE(table.GetStructuresByType(StructureTypes::CacheInformation).empty());
}

TEST(DecodedTable, DecodedRecordsAreThoseOfOneTypeInTableOrder) {
    const DecodedTable table =
        DecodeTable(TableBuilder(2, 8, 0).Add(Device(3)).Add({200, 4, 9}).Add(Device(1)).RawTable());
    const auto devices = DecodedRecords<Type_17>(table);
    ASSERT_EQ(devices.size(), 2U);
    EXPECT_EQ(devices[0]->handle, 3);
    EXPECT_EQ(devices[1]->handle, 1);
    EXPECT_EQ(DecodedRecords<UnknownType>(table).size(), 1U);
}

TEST(DecodedTable, NothingBehindTheHeaderIsCorrupted) {
    constexpr const char* kCorrupted =
        "SMBIOS structure is corrupted. Origin: SMBIOS::Manager::SmbiosManager::UpdateBiosInfo";
    EXPECT_EQ(TextOfFailure({}), kCorrupted);
    EXPECT_EQ(TextOfFailure({0, 2, 8, 0, 0, 0, 0, 0}), kCorrupted);
    EXPECT_EQ(TextOfFailure({0, 2, 8, 0, 0, 0, 0, 0, 17}), "");
}

TEST(DecodedTable, TwoTablesOfTwoVersionsDecodeInOneProcess) {
    const DecodedTable older = DecodeTable(DeviceTable(3, 1));
    const DecodedTable newer = DecodeTable(DeviceTable(4, 2));
    EXPECT_EQ(DecodedRecords<Type_17>(older).at(0)->error, "v2.6.0 structure or later in a v2.3.0 BIOS");
    EXPECT_EQ(DecodedRecords<Type_17>(newer).at(0)->error, "");
    EXPECT_EQ(DecodedRecords<Type_17>(newer).at(0)->serialNumber, "Serial");
}

TEST(DecodedTable, DecodingLeavesTheProcesssOwnVersionAlone) {
    Manager::currentVersionIndex = v2_6_1;
    (void)DecodeTable(DeviceTable(4, 1));
    EXPECT_EQ(Manager::currentVersionIndex, v2_6_1);
}

enum class Outcome { failed, unnoticed, unaffected };

/// Decodes while allocations fail from the `n`-th on, or it alone.
Outcome DecodeWithoutMemory(const std::vector<std::uint8_t>& rawTable, std::size_t n, Failing failing) {
    const FailAllocation after(n, failing);
    try {
        (void)DecodeTable(rawTable);
    } catch (const std::bad_alloc&) {
        return Outcome::failed;
    }
    return after.HasFailed() ? Outcome::unnoticed : Outcome::unaffected;
}

TEST(DecodedTable, NoAllocationThatFailsGoesUnnoticed) {
    const std::vector<std::uint8_t> rawTable = Platform::ReadFileBytes(SMBIOS_SAMPLE_TABLE).bytes;
    for (const Failing failing : {Failing::once, Failing::fromThenOn}) {
        std::size_t n = 1;
        while (DecodeWithoutMemory(rawTable, n, failing) == Outcome::failed) {
            ++n;
        }
        EXPECT_EQ(DecodeWithoutMemory(rawTable, n, failing), Outcome::unaffected) << "allocation " << n;
        EXPECT_GT(n, 200U);
    }
}

TEST(DecodedTable, ADecoderOutlivesItsTable) {
    const auto decoder = DecodeTable(DeviceTable(4, 5)).GetStructuresByType(StructureTypes::MemoryDevice)[0];
    EXPECT_EQ(decoder->GetHandle(), 5);
}

}  // namespace
}  // namespace SMBIOS::Tests
