#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "manager/decoded_records.h"
#include "manager/smbios_manager.h"
#include "smbios/memory_info.h"
#include "smbios/processor_info.h"
#include "structures/type_17.h"
#include "structures/type_4.h"
#include "tests/support/decode.h"
#include "tests/support/fake_platform.h"

// The rows of an object are its own; the records behind them are shared. The manager is once per process:
// every test here needs a process of its own.
namespace SMBIOS::Tests {
namespace {

using Manager::SmbiosManager;
using Parsers::MemoryInfo;
using Parsers::ProcessorInfo;

constexpr const char* kProcessorId = "BFEBFBFF000506E3";

class Rows : public testing::Test {
protected:
    Rows() {
        firmware_.Supply(TableBuilder(2, 8, 0)
                             .Add(StructureBuilder(17, 0x28).String(0x18, "A"))
                             .Add(StructureBuilder(4, 0x2A).Qword(0x08, 0xBFEBFBFF000506E3))
                             .RawTable());
    }

    FakeFirmwareTable firmware_;
    FakeCommandRunner powershell_;
};

TEST_F(Rows, OfMemoryStayWhenAnotherObjectCompletesTheirRecords) {
    MemoryInfo first;
    first.RetrieveInfo();
    powershell_.Answer(R"({"SerialNumber":"A","PositionInRow":3,"Tag":"a tag"})");
    MemoryInfo second;
    second.RetrieveInfo();
    EXPECT_EQ(first.GetPositionInRow(0), 255);
    EXPECT_EQ(first.GetAssetTag(0), nullptr);
    EXPECT_EQ(second.GetPositionInRow(0), 3);
}

TEST_F(Rows, OfMemoryShowWhatAnotherObjectCompletedFromTheirNextRetrieveInfoOn) {
    MemoryInfo first;
    first.RetrieveInfo();
    powershell_.Answer(R"({"SerialNumber":"A","PositionInRow":3})");
    MemoryInfo second;
    second.RetrieveInfo();
    powershell_.FailToStart();
    first.RetrieveInfo();
    EXPECT_EQ(first.GetPositionInRow(0), 3);
}

TEST_F(Rows, OfProcessorsStayWhenAnotherObjectCompletesTheirRecords) {
    ProcessorInfo first;
    first.RetrieveInfo();
    powershell_.Answer(R"({"ProcessorId":")" + std::string(kProcessorId) +
                       R"(","Name":"A name by WMI","L2CacheSize":1024})");
    ProcessorInfo second;
    second.RetrieveInfo();
    EXPECT_EQ(first.GetVersion(0), nullptr);
    EXPECT_EQ(first.GetL2CacheSizeInKB(0), 18446744073709551615U);
    EXPECT_STREQ(second.GetVersion(0), "A name by WMI");
}

TEST_F(Rows, OfProcessorsKeepACacheSizeThatAnotherObjectsLinkMakesAbsent) {
    powershell_.Answer(R"({"ProcessorId":")" + std::string(kProcessorId) + R"(","L2CacheSize":1024})");
    ProcessorInfo first;
    first.RetrieveInfo();
    powershell_.FailToStart();
    ProcessorInfo second;
    second.RetrieveInfo();
    EXPECT_EQ(first.GetL2CacheSizeInKB(0), 1024U);
    EXPECT_EQ(second.GetL2CacheSizeInKB(0), 18446744073709551615U);
}

TEST_F(Rows, HaveTextsOfTheirOwn) {
    MemoryInfo first;
    first.RetrieveInfo();
    const char* const text = first.GetSerialNumber(0);
    const auto record = Manager::DecodedRecords<Structures::Type_17>(*SmbiosManager::GetInstance()).at(0);
    EXPECT_NE(text, record->serialNumber.c_str());
    record->serialNumber = "another text, long enough to be kept elsewhere";
    EXPECT_STREQ(first.GetSerialNumber(0), "A");
}

TEST_F(Rows, HaveRawDataOfTheirOwn) {
    ProcessorInfo processors;
    processors.RetrieveInfo();
    std::size_t size = 0;
    const std::uint8_t* const bytes = processors.DumpRawData(0, size);
    const auto record = Manager::DecodedRecords<Structures::Type_4>(*SmbiosManager::GetInstance()).at(0);
    EXPECT_NE(bytes, record->rawBytes.data());
    EXPECT_EQ(std::vector<std::uint8_t>(bytes, bytes + size), record->rawBytes);
}

}  // namespace
}  // namespace SMBIOS::Tests
