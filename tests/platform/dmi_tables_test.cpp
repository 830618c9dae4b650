#include "platform/dmi_tables.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/entry_point_bytes.h"
#include "platform/saved_table_error.h"
#include "support/temporary_folder.h"

namespace SMBIOS::Platform {
namespace {

using Tests::Bytes;
using Tests::EndOfTable;
using Tests::EntryPoint32;
using Tests::EntryPoint64;
using Problem = SavedTableError::Problem;

class DmiTables : public testing::Test {
protected:
    void WriteEntryPoint(const Bytes& bytes) const { folder_.Write("smbios_entry_point", bytes); }
    void WriteTable(const Bytes& bytes) const { folder_.Write("DMI", bytes); }

    [[nodiscard]] Bytes Read() const { return DmiTablesDirectory(folder_.Path()).Read(); }

    [[nodiscard]] SavedTableError Failure() const {
        try {
            (void)Read();
        } catch (const SavedTableError& error) {
            return error;
        }
        throw std::logic_error("the folder was read");
    }

private:
    Tests::TemporaryFolder folder_;
};

bool Names(const SavedTableError& error, const std::string& file) {
    return std::string(error.what()).find(file) != std::string::npos;
}

TEST_F(DmiTables, Of32BitEntryPointHaveNoRevision) {
    WriteEntryPoint(EntryPoint32());
    WriteTable(EndOfTable());
    EXPECT_EQ(Read(), (Bytes{0, 2, 8, 0, 6, 0, 0, 0, 0x7F, 0x04, 0xFF, 0xFE, 0x00, 0x00}));
}

TEST_F(DmiTables, Of64BitEntryPointHaveItsRevision) {
    WriteEntryPoint(EntryPoint64());
    WriteTable(EndOfTable());
    EXPECT_EQ(Read(), (Bytes{0, 3, 5, 1, 6, 0, 0, 0, 0x7F, 0x04, 0xFF, 0xFE, 0x00, 0x00}));
}

TEST_F(DmiTables, MayStandAnywhereInTheMachinesMemory) {
    Bytes entryPoint = EntryPoint32();
    Tests::ChangeByte(entryPoint, 0x1A, 0x0E, Tests::kIntermediateChecksum);
    WriteEntryPoint(entryPoint);
    WriteTable(EndOfTable());
    EXPECT_EQ(Read().size(), 14U);
}

TEST_F(DmiTables, AreRefusedWithoutAnEntryPoint) {
    WriteTable(EndOfTable());
    const SavedTableError failure = Failure();
    EXPECT_EQ(failure.Kind(), Problem::unreadable);
    EXPECT_EQ(failure.SystemReason(), std::errc::no_such_file_or_directory);
    EXPECT_TRUE(Names(failure, "smbios_entry_point"));
}

TEST_F(DmiTables, AreRefusedWithoutATable) {
    WriteEntryPoint(EntryPoint32());
    const SavedTableError failure = Failure();
    EXPECT_EQ(failure.Kind(), Problem::unreadable);
    EXPECT_TRUE(Names(failure, "DMI"));
}

TEST_F(DmiTables, AreRefusedWithADamagedEntryPoint) {
    Bytes entryPoint = EntryPoint32();
    ++entryPoint[0x04];
    WriteEntryPoint(entryPoint);
    WriteTable(EndOfTable());
    const SavedTableError failure = Failure();
    EXPECT_EQ(failure.Kind(), Problem::notATable);
    EXPECT_TRUE(Names(failure, "smbios_entry_point"));
}

TEST_F(DmiTables, AreRefusedWhenTruncated) {
    WriteEntryPoint(EntryPoint32());
    WriteTable(Bytes(5));
    const SavedTableError failure = Failure();
    EXPECT_EQ(failure.Kind(), Problem::truncated);
    EXPECT_TRUE(Names(failure, "DMI"));
}

}  // namespace
}  // namespace SMBIOS::Platform
