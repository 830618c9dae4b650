#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstring>
#include <filesystem>
#include <ostream>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "smbios/memory_info.h"
#include "smbios/processor_info.h"
#include "tests/windows/file_contents.h"
#include "tests/windows/only_powershell.h"
#include "tests/windows/served_table.h"

namespace SMBIOS::Tests {
namespace {

using Parsers::MemoryInfo;
using Parsers::ProcessorInfo;
using Bytes = std::vector<std::uint8_t>;

/// A table, and what callers read of it while WMI is silent.
struct CapturedTable {
    const char* file;
    std::vector<std::string> serialNumbers;  ///< of the memory devices, row by row
    const char* partNumber;                  ///< of the last memory device
    std::vector<std::string> processorIds;   ///< row by row
    const char* processorName;               ///< of the first processor
    std::uint16_t coreCount;                 ///< of the first processor
};

// Texts lose the blanks around them. A device without a serial number is not listed, nor are those behind it.
// Of several rows with one serial number or processor id only the first is.
const CapturedTable kCapturedTables[] = {
    {"Gigabyte-GA-MA74GMT-S2.bin",
     {},
     nullptr,
     {"178BFBFF00100F62"},
     "AMD Athlon(tm) II X2 240 Processor",
     0xFFFF},
    {"Lenovo-ThinkPad-W510.bin",
     {"00000000"},
     "CT51264BF1339.C16F",
     {"BFEBFBFF000106E5"},
     "Intel(R) Core(TM) i7 CPU       Q 720  @ 1.60GHz",
     4},
    {"VMWare.bin",
     {},
     nullptr,
     {"0F8BFBFF000006D4", "0F8BFBFF000306D4"},
     "Intel(R) Core(TM) i7-5500U CPU @ 2.40GHz",
     1},
    {"MSI-MS-7816.bin",
     {"A3144331", "A40C03AC", "A40C03B0", "A40C03B1"},
     "CT102464BA160B.C16",
     {"BFEBFBFF000306C3"},
     "Intel(R) Core(TM) i7-4770 CPU @ 3.40GHz",
     4},
    {"Asus-UX307LA.bin",
     {"00000000"},
     nullptr,
     {"BFEBFBFF000306D4"},
     "Intel(R) Core(TM) i7-5500U CPU @ 2.40GHz",
     2},
    {"Lenovo-ThinkPad-T480.bin",
     {"00000000", "417B9BB7"},
     "M471A2K43CB1-CRC",
     {"BFEBFBFF000806EA"},
     "Intel(R) Core(TM) i7-8650U CPU @ 1.90GHz",
     4},
    {"desktop-3.2.0.raw",
     {"00000000"},
     "HMAA1GS6CMR6N-UH",
     {"178BFBFF00810F81"},
     "AMD Ryzen 7 Microsoft Surface (R) Edition",
     4},
    {"Beelink-EQ12.bin", {"E8FBFFE2"}, "CT16G56C46S5.M8G1", {"BFEBFBFF000B06E0"}, "Intel(R) N100", 4},
};

/// The sample that is built with the project.
const CapturedTable kSampleTable = {
    SMBIOS_SAMPLE_TABLE,
    {"4A8C1D20", "4A8C1D21", "4A8C1D3E", "4A8C1D3F", "NO DIMM"},
    "NO DIMM",
    {"BFEBFBFF000406F1", "C0EBFBFF000406F1"},
    "Intel(R) Xeon(R) CPU E5-2650 v4 @ 2.20GHz",
    12,
};

template <class Number>
Number NumberAt(std::span<const std::uint8_t> bytes, std::size_t offset) {
    Number number{};
    std::memcpy(&number, bytes.subspan(offset, sizeof(number)).data(), sizeof(number));
    return number;
}

bool StartsWith(const Bytes& file, std::string_view anchor) {
    return file.size() >= anchor.size() && std::equal(anchor.begin(), anchor.end(), file.begin());
}

/// The form that the system's function returns: an 8-byte header, then the table.
Bytes RawTable(std::uint8_t major,
               std::uint8_t minor,
               std::uint8_t revision,
               std::span<const std::uint8_t> table) {
    Bytes raw = {0, major, minor, revision};
    for (unsigned shift = 0; shift < 32; shift += 8) {
        raw.push_back(static_cast<std::uint8_t>(table.size() >> shift));
    }
    raw.insert(raw.end(), table.begin(), table.end());
    return raw;
}

/// The raw form of a file that may begin with an entry point.
Bytes ToRawTable(const Bytes& file) {
    const std::span bytes(file);
    if (StartsWith(file, "_SM3_")) {
        const auto size = NumberAt<std::uint32_t>(bytes, 0x0C);
        const auto address = NumberAt<std::uint64_t>(bytes, 0x10);
        return RawTable(file[0x07], file[0x08], file[0x09], bytes.subspan(address).first(size));
    }
    if (StartsWith(file, "_SM_")) {
        const auto size = NumberAt<std::uint16_t>(bytes, 0x16);
        const auto address = NumberAt<std::uint32_t>(bytes, 0x18);
        return RawTable(file[0x06], file[0x07], 0, bytes.subspan(address, size));
    }
    return file;
}

std::vector<std::string> SerialNumbers(const MemoryInfo& info) {
    std::vector<std::string> numbers;
    for (std::size_t i = 0; i < info.GetMemoryDeviceCount(); ++i) {
        numbers.emplace_back(info.GetSerialNumber(i));
    }
    return numbers;
}

std::vector<std::string> ProcessorIds(const ProcessorInfo& info) {
    std::vector<std::string> ids;
    for (std::size_t i = 0; i < info.GetCPUCount(); ++i) {
        ids.emplace_back(info.GetProcessorID(i));
    }
    return ids;
}

void ExpectRows(const CapturedTable& expected, const Bytes& table) {
    const ScriptedPowerShell powerShell("");
    const ServedTable served(table);
    MemoryInfo memory;
    ProcessorInfo processors;
    memory.RetrieveInfo();
    processors.RetrieveInfo();
    EXPECT_EQ(SerialNumbers(memory), expected.serialNumbers);
    EXPECT_STREQ(memory.GetPartNumber(memory.GetMemoryDeviceCount() - 1), expected.partNumber);
    EXPECT_EQ(ProcessorIds(processors), expected.processorIds);
    EXPECT_STREQ(processors.GetVersion(0), expected.processorName);
    EXPECT_EQ(processors.GetCoreCount(0), expected.coreCount);
}

TEST(SampleTable, IsRead) {
    ExpectRows(kSampleTable, FileContents(kSampleTable.file));
}

class CapturedTables : public testing::TestWithParam<CapturedTable> {};

TEST_P(CapturedTables, AreRead) {
    const std::filesystem::path file = std::filesystem::path(SMBIOS_DUMPS_DIR) / GetParam().file;
    if (!std::filesystem::exists(file)) {
        GTEST_SKIP() << file << " is not there";
    }
    ExpectRows(GetParam(), ToRawTable(FileContents(file)));
}

void PrintTo(const CapturedTable& table, std::ostream* stream) {
    *stream << table.file;
}

std::string TestName(const testing::TestParamInfo<CapturedTable>& info) {
    std::string name = std::filesystem::path(info.param.file).stem().string();
    std::erase_if(name, [](unsigned char character) { return std::isalnum(character) == 0; });
    return name;
}

INSTANTIATE_TEST_SUITE_P(Machines, CapturedTables, testing::ValuesIn(kCapturedTables), TestName);

}  // namespace
}  // namespace SMBIOS::Tests
