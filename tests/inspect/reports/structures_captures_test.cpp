#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "platform/saved_table.h"
#include "tests/inspect/reports/structures_support.h"

// Tables of real machines. The manager is once per process: every test here needs a process of its own.
namespace SMBIOS::Tests {
namespace {

constexpr std::size_t kRawHeaderSize = 8;

std::string HexadecimalOf(const std::vector<std::uint8_t>& bytes) {
    std::string text;
    for (const std::uint8_t byte : bytes) {
        text += "0123456789abcdef"[byte / 16];
        text += "0123456789abcdef"[byte % 16];
    }
    return text;
}

/// The raw bytes as a record keeps them: of a list of supported voltages only its three bits.
std::vector<std::uint8_t> AsKept(std::vector<std::uint8_t> formattedArea) {
    constexpr std::size_t kVoltage = 0x11;
    if (formattedArea.size() > kVoltage && formattedArea[0] == 4 && formattedArea[kVoltage] < 0x80) {
        formattedArea[kVoltage] &= 0x07;
    }
    return formattedArea;
}

/// The formatted areas of a raw table, found without the library's own walk.
std::vector<std::vector<std::uint8_t>> FormattedAreasOf(const std::vector<std::uint8_t>& table) {
    std::vector<std::vector<std::uint8_t>> areas;
    std::size_t position = kRawHeaderSize;
    while (position + 2 <= table.size() && position + table[position + 1] <= table.size()) {
        const auto begin = table.begin() + static_cast<std::ptrdiff_t>(position);
        areas.emplace_back(begin, begin + table[position + 1]);
        position += table[position + 1];
        while (position + 2 <= table.size() && (table[position] != 0 || table[position + 1] != 0)) {
            ++position;
        }
        position += 2;
    }
    return areas;
}

std::vector<std::string> KeysOf(const Json& object) {
    std::vector<std::string> keys;
    for (const auto& [key, value] : object.items()) {
        keys.push_back(key);
    }
    return keys;
}

class StructuresOfCapture : public testing::TestWithParam<const char*> {
protected:
    void SetUp() override {
        const std::filesystem::path file = std::filesystem::path(SMBIOS_DUMPS_DIR) / GetParam();
        if (!std::filesystem::exists(file)) {
            GTEST_SKIP() << "no captured table " << file;
        }
        table_ = Platform::LoadSavedTable(file);
        structures_ = Json::parse(StructuresReport(table_, {.json = true})).at("structures");
    }

    std::vector<std::uint8_t> table_;
    Json structures_;
};

TEST_P(StructuresOfCapture, NoStructureIsLeftOut) {
    EXPECT_EQ(structures_.size(), FormattedAreasOf(table_).size());
}

TEST_P(StructuresOfCapture, KeysAscendAndAreTheTypesOrThatOfUnknownOnes) {
    int previous = 0;
    for (const Json& structure : structures_) {
        const int key = structure.at("key");
        EXPECT_GE(key, previous);
        EXPECT_TRUE(key == 128 || structure.at("type") == key) << structure;
        previous = key;
    }
}

TEST_P(StructuresOfCapture, RawBytesAreThoseOfTheTableInItsOrder) {
    std::map<int, std::vector<std::string>> expected;
    for (const std::vector<std::uint8_t>& area : FormattedAreasOf(table_)) {
        expected[area.at(0)].push_back(HexadecimalOf(AsKept(area)));
    }
    std::map<int, std::vector<std::string>> actual;
    for (const Json& structure : structures_) {
        actual[structure.at("type")].push_back(structure.at("record").at("rawBytes"));
    }
    EXPECT_EQ(actual, expected);
}

TEST_P(StructuresOfCapture, RecordsOfOneTypeHaveTheSameFields) {
    std::map<int, std::vector<std::string>> fieldsOfKey;
    for (const Json& structure : structures_) {
        const std::vector<std::string> fields = KeysOf(structure.at("record"));
        const auto first = fieldsOfKey.try_emplace(structure.at("key"), fields).first;
        EXPECT_EQ(fields, first->second) << structure;
    }
}

TEST_P(StructuresOfCapture, HandlesAreThoseOfTheTableUnlessTheStructureWasRefused) {
    for (const Json& structure : structures_) {
        const Json& record = structure.at("record");
        const std::string bytes = record.at("rawBytes");
        const int handle = std::stoi(bytes.substr(6, 2) + bytes.substr(4, 2), nullptr, 16);
        EXPECT_EQ(record.at("handle"), record.at("error") == "" ? handle : 0) << structure;
    }
}

TEST_P(StructuresOfCapture, EveryStructureHasAHeadingInTheText) {
    const std::string text = StructuresReport(table_, {});
    std::size_t headings = text.starts_with("Type ") ? 1 : 0;
    for (std::size_t at = text.find("\nType "); at != std::string::npos; at = text.find("\nType ", at + 1)) {
        ++headings;
    }
    EXPECT_EQ(headings, structures_.size());
}

INSTANTIATE_TEST_SUITE_P(Captures,
                         StructuresOfCapture,
                         testing::Values("Asus-UX307LA.bin",
                                         "Beelink-EQ12.bin",
                                         "Gigabyte-GA-MA74GMT-S2.bin",
                                         "Lenovo-ThinkPad-T480.bin",
                                         "Lenovo-ThinkPad-W510.bin",
                                         "MSI-MS-7816.bin",
                                         "VMWare.bin",
                                         "desktop-3.2.0.raw"));

}  // namespace
}  // namespace SMBIOS::Tests
