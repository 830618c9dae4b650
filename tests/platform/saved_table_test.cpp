#include "platform/saved_table.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>

#include "platform/entry_point_bytes.h"
#include "support/temporary_folder.h"

namespace SMBIOS::Platform {
namespace {

using Tests::Bytes;
using Tests::Capture;
using Tests::ChangeByte;
using Tests::EndOfTable;
using Tests::EntryPoint32;
using Tests::EntryPoint64;
using Problem = SavedTableError::Problem;

class SavedTable : public testing::Test {
protected:
    [[nodiscard]] Bytes Load(const Bytes& file) const { return LoadSavedTable(folder_.Write("saved", file)); }

    using Stream = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

    [[nodiscard]] Bytes LoadFromStream(const Bytes& contents) const {
        const std::string file = folder_.Write("saved", contents).string();
        const Stream stream(std::fopen(file.c_str(), "rb"), &std::fclose);
        return LoadSavedTable(stream.get(), "the stream");
    }

    [[nodiscard]] SavedTableError Failure(const std::filesystem::path& path) const {
        try {
            (void)LoadSavedTable(path);
        } catch (const SavedTableError& error) {
            return error;
        }
        throw std::logic_error("the table was loaded");
    }
    [[nodiscard]] Problem ProblemOf(const Bytes& file) const {
        return Failure(folder_.Write("saved", file)).Kind();
    }

    Tests::TemporaryFolder folder_;
};

TEST_F(SavedTable, With32BitEntryPointGetsAHeaderWithoutRevision) {
    const Bytes expected{0, 2, 8, 0, 6, 0, 0, 0, 0x7F, 0x04, 0xFF, 0xFE, 0x00, 0x00};
    EXPECT_EQ(Load(Capture(EntryPoint32(), EndOfTable())), expected);
}

TEST_F(SavedTable, With64BitEntryPointGetsAHeaderWithItsRevision) {
    const Bytes expected{0, 3, 5, 1, 6, 0, 0, 0, 0x7F, 0x04, 0xFF, 0xFE, 0x00, 0x00};
    EXPECT_EQ(Load(Capture(EntryPoint64(), EndOfTable())), expected);
}

TEST_F(SavedTable, StandsWhereTheEntryPointsAddressSays) {
    Bytes file = Capture(EntryPoint32(), Bytes(0x10));
    ChangeByte(file, 0x18, 0x30, Tests::kIntermediateChecksum);
    const Bytes table = EndOfTable();
    file.insert(file.end(), table.begin(), table.end());
    EXPECT_EQ(Load(file)[8], 0x7F);
}

TEST_F(SavedTable, IsCutAtTheExactLength) {
    EXPECT_EQ(Load(Capture(EntryPoint32(), Bytes(20))).size(), 14U);
}

TEST_F(SavedTable, IsCutAtTheMaximumLength) {
    EXPECT_EQ(Load(Capture(EntryPoint64(), Bytes(20))).size(), 24U);
}

TEST_F(SavedTable, InTheRawFormIsTakenAsItStands) {
    const Bytes file{0, 3, 2, 0, 6, 0, 0, 0, 0x7F, 0x04, 0xFF, 0xFE, 0x00, 0x00};
    EXPECT_EQ(Load(file), file);
}

TEST_F(SavedTable, InTheRawFormIsNotHeldToItsStatedLength) {
    const Bytes file{0, 3, 2, 0, 0xFF, 0xFF, 0, 0, 0x7F};
    EXPECT_EQ(Load(file), file);
}

TEST_F(SavedTable, IsReadFromAFolder) {
    folder_.Write("smbios_entry_point", EntryPoint32());
    folder_.Write("DMI", EndOfTable());
    const Bytes expected{0, 2, 8, 0, 6, 0, 0, 0, 0x7F, 0x04, 0xFF, 0xFE, 0x00, 0x00};
    EXPECT_EQ(LoadSavedTable(folder_.Path()), expected);
}

TEST_F(SavedTable, IsReadFromAStreamInEitherForm) {
    const Bytes raw{0, 2, 8, 0, 6, 0, 0, 0, 0x7F, 0x04, 0xFF, 0xFE, 0x00, 0x00};
    EXPECT_EQ(LoadFromStream(raw), raw);
    EXPECT_EQ(LoadFromStream(Capture(EntryPoint32(), EndOfTable())), raw);
}

TEST_F(SavedTable, IsReadFromAStreamToItsEnd) {
    Bytes raw(100000, 0x2A);
    EXPECT_EQ(LoadFromStream(raw), raw);
}

TEST_F(SavedTable, HasTheNameOfItsStreamInTheMessage) {
    try {
        (void)LoadFromStream({});
        FAIL() << "the table was loaded";
    } catch (const SavedTableError& error) {
        EXPECT_STREQ(error.what(), "the stream is not an SMBIOS table: it is empty");
    }
}

TEST_F(SavedTable, IsRefusedWithAWrongChecksum) {
    Bytes file = Capture(EntryPoint32(), EndOfTable());
    ++file[0x04];
    EXPECT_EQ(ProblemOf(file), Problem::notATable);
}

TEST_F(SavedTable, IsRefusedWhenItsEntryPointIsCutShort) {
    Bytes file = EntryPoint64();
    file.resize(10);
    EXPECT_EQ(ProblemOf(file), Problem::notATable);
}

TEST_F(SavedTable, IsRefusedWhenItsAddressIsBehindTheFile) {
    Bytes file = Capture(EntryPoint32(), EndOfTable());
    ChangeByte(file, 0x1A, 0x0E, Tests::kIntermediateChecksum);
    EXPECT_EQ(ProblemOf(file), Problem::notATable);
}

TEST_F(SavedTable, IsRefusedWhenItsAddressIsBeyondAllMemory) {
    Bytes file = Capture(EntryPoint64(), EndOfTable());
    ChangeByte(file, 0x17, 0xFF, Tests::kChecksum64);
    EXPECT_EQ(ProblemOf(file), Problem::notATable);
}

TEST_F(SavedTable, IsRefusedWhenItsAddressIsWithinTheEntryPoint) {
    Bytes file = Capture(EntryPoint32(), EndOfTable());
    ChangeByte(file, 0x18, 0x1E, Tests::kIntermediateChecksum);
    EXPECT_EQ(ProblemOf(file), Problem::notATable);
}

TEST_F(SavedTable, IsTruncatedWhenShorterThanTheExactLength) {
    EXPECT_EQ(ProblemOf(Capture(EntryPoint32(), Bytes(5))), Problem::truncated);
}

TEST_F(SavedTable, IsTruncatedWhenNothingFollowsTheEntryPoint) {
    EXPECT_EQ(ProblemOf(Capture(EntryPoint64(), {})), Problem::truncated);
}

TEST_F(SavedTable, IsTruncatedWhenNothingFollowsTheRawHeader) {
    EXPECT_EQ(ProblemOf(Bytes{0, 3, 2, 0, 0, 0, 0, 0}), Problem::truncated);
}

TEST_F(SavedTable, IsNoTableWhenTheFileIsEmpty) {
    EXPECT_EQ(ProblemOf({}), Problem::notATable);
}

TEST_F(SavedTable, IsNoTableWhenTheFileIsLargerThanAnyFirmwares) {
    constexpr std::size_t kLargest = std::size_t{16} << 20;
    std::vector<std::uint8_t> table(kLargest + 1, 1);
    EXPECT_EQ(ProblemOf(table), Problem::notATable);
}

TEST_F(SavedTable, IsUnreadableForTheSystemsReason) {
    const SavedTableError failure = Failure(folder_.Path() / "absent");
    EXPECT_EQ(failure.Kind(), Problem::unreadable);
    EXPECT_EQ(failure.SystemReason(), std::errc::no_such_file_or_directory);
}

TEST_F(SavedTable, IsNamedInTheMessage) {
    const std::string message = Failure(folder_.Path() / "absent").what();
    EXPECT_NE(message.find("absent"), std::string::npos);
    EXPECT_EQ(message.find('\n'), std::string::npos);
}

struct RealTable {
    const char* file;
    std::array<std::uint8_t, 3> version;
    std::size_t tableLength;
};

void PrintTo(const RealTable& table, std::ostream* stream) {
    *stream << table.file;
}

class RealTables : public testing::TestWithParam<RealTable> {
protected:
    void SetUp() override {
        if (!std::filesystem::is_directory(SMBIOS_DUMPS_DIR)) {
            GTEST_SKIP() << "no captured tables in " << SMBIOS_DUMPS_DIR;
        }
    }
};

TEST_P(RealTables, LoadWithTheirVersionAndLength) {
    const RealTable& expected = GetParam();
    const Bytes raw = LoadSavedTable(std::filesystem::path(SMBIOS_DUMPS_DIR) / expected.file);
    const Bytes header{0,
                       expected.version[0],
                       expected.version[1],
                       expected.version[2],
                       static_cast<std::uint8_t>(expected.tableLength & 0xFF),
                       static_cast<std::uint8_t>(expected.tableLength >> 8),
                       0,
                       0};
    EXPECT_EQ(Bytes(raw.begin(), raw.begin() + 8), header);
    EXPECT_EQ(raw.size(), 8 + expected.tableLength);
}

INSTANTIATE_TEST_SUITE_P(Captured,
                         RealTables,
                         testing::Values(RealTable{"Gigabyte-GA-MA74GMT-S2.bin", {2, 4, 0}, 2797},
                                         RealTable{"Lenovo-ThinkPad-W510.bin", {2, 6, 0}, 3123},
                                         RealTable{"VMWare.bin", {2, 7, 0}, 29060},
                                         RealTable{"MSI-MS-7816.bin", {2, 8, 0}, 3096},
                                         RealTable{"Asus-UX307LA.bin", {2, 8, 0}, 2158},
                                         RealTable{"Lenovo-ThinkPad-T480.bin", {3, 0, 0}, 3061},
                                         RealTable{"Beelink-EQ12.bin", {3, 5, 0}, 4291}));

TEST_F(RealTables, LoadInTheRawFormToo) {
    const Bytes raw = LoadSavedTable(std::filesystem::path(SMBIOS_DUMPS_DIR) / "desktop-3.2.0.raw");
    EXPECT_EQ(Bytes(raw.begin(), raw.begin() + 4), (Bytes{0, 3, 2, 0}));
    EXPECT_EQ(raw.size(), 1079U);
}

}  // namespace
}  // namespace SMBIOS::Platform
