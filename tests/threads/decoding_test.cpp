#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "manager/decoded_records.h"
#include "manager/decoded_table.h"
#include "samples/table_builder.h"
#include "structures/type_17.h"
#include "tests/threads/together.h"

namespace SMBIOS::Tests {
namespace {

using Samples::StructureBuilder;
using Samples::TableBuilder;

// A device of 28 bytes is refused in a table of 2.3.0 alone: half of the threads decode one of these.
TEST(ThreadsDecoding, TablesOfDifferentVersionsDecodeSideBySide) {
    constexpr std::size_t kThreads = 8;
    constexpr int kRepetitions = 50;
    std::vector<int> wrong(kThreads, 0);
    RunTogether(kThreads, [&](std::size_t number) {
        const bool isRefused = number % 2 == 0;
        const std::uint8_t minor = isRefused ? 3 : 4;
        const auto rawTable =
            TableBuilder(2, minor, 0).Add(StructureBuilder(17, 0x1C).String(0x18, "Serial")).RawTable();
        for (int i = 0; i < kRepetitions; ++i) {
            const auto table = Manager::DecodeTable(rawTable);
            const auto device = Manager::DecodedRecords<Structures::Type_17>(table).at(0);
            wrong[number] += device->error.empty() == isRefused ? 1 : 0;
        }
    });
    EXPECT_EQ(wrong, std::vector<int>(kThreads, 0));
}

// The records of one table share blocks of memory: the threads release theirs side by side.
TEST(ThreadsDecoding, RecordsOfOneTableAreReleasedSideBySide) {
    constexpr std::size_t kThreads = 8;
    constexpr std::size_t kDevices = 64;
    constexpr int kRepetitions = 50;
    TableBuilder builder(2, 8, 0);
    for (std::size_t i = 0; i < kDevices; ++i) {
        builder.Add(StructureBuilder(17, 0x28, static_cast<std::uint16_t>(i)).String(0x18, "Serial"));
    }
    const auto rawTable = builder.RawTable();
    for (int i = 0; i < kRepetitions; ++i) {
        auto records = Manager::DecodedRecords<Structures::Type_17>(Manager::DecodeTable(rawTable));
        std::vector<std::size_t> released(kThreads, 0);
        RunTogether(kThreads, [&](std::size_t number) {
            for (std::size_t device = number; device < kDevices; device += kThreads) {
                released[number] += records[device]->handle == device ? 1 : 0;
                records[device].reset();
            }
        });
        EXPECT_EQ(released, std::vector<std::size_t>(kThreads, kDevices / kThreads));
    }
}

}  // namespace
}  // namespace SMBIOS::Tests
