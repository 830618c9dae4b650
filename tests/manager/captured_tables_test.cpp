#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <ostream>
#include <set>
#include <string>

#include "manager/smbios_manager.h"
#include "platform/saved_table.h"
#include "structures/decoded_types.h"
#include "tests/support/decode.h"
#include "tests/support/fake_platform.h"

// Loads tables captured from real machines. The manager is once per process: so is every test here.
namespace SMBIOS::Tests {
namespace {

using namespace Structures;
using Manager::SmbiosManager;
using Manager::Types::StructureTypes;

struct Capture {
    const char* file;
    const char* version;
    std::size_t structures;

    friend void PrintTo(const Capture& capture, std::ostream* output) { *output << capture.file; }
};

constexpr Capture kCaptures[] = {
    {"Gigabyte-GA-MA74GMT-S2.bin", "2.4.0", 54},
    {"Lenovo-ThinkPad-W510.bin", "2.6.0", 82},
    {"VMWare.bin", "2.7.0", 620},
    {"MSI-MS-7816.bin", "2.8.0", 81},
    {"Asus-UX307LA.bin", "2.8.0", 27},
    {"Lenovo-ThinkPad-T480.bin", "3.0.0", 63},
    {"desktop-3.2.0.raw", "3.2.0", 20},
    {"Beelink-EQ12.bin", "3.5.0", 72},
};

/// Every text that a refused structure may carry.
const std::set<std::string> kDocumentedErrors = {
    kInvalidPointer,
    kMalformed,
    "v2.1.0 structure or later in a v2.0.0 BIOS",
    "v2.1.0 structure or later in a v2.0.0 BIOS or older",
    "v2.2.0 structure or later in a v2.1.0 BIOS or older",
    "v2.3.0 structure or later in a v2.1.0 BIOS",
    "v2.3.0 structure or later in a v2.1.0 BIOS or older",
    "v2.3.0 structure or later in a v2.2.0 BIOS or older",
    "v2.4.0 structure or later in a v2.3.4 BIOS or older",
    "v2.5.0 structure or later in a v2.3.0 BIOS or older",
    "v2.6.0 structure or later in a v2.3.0 BIOS",
    "v2.6.0 structure or later in a v2.5.0 BIOS or older",
    "v2.7.0 structure in a v2.6.1 BIOS or older",
    "v2.7.0 structure or later in a v2.6.0 BIOS",
    "v2.7.0 structure or later in a v2.6.1 BIOS or older",
    "v2.8.0 structure or later in a v2.7.0 BIOS",
    "v3.0.0 structure or later in a v2.8.0 BIOS or older",
    "v3.1.0 structure or later in a v3.0.0 BIOS or older",
    "v3.2.0 structure or later in a v2.8.0 BIOS",
    "v3.2.0 structure or later in a v3.1.1 BIOS or older",
    "v3.3.0 structure or later in a v3.2.0 BIOS",
    "v3.6.0 structure or later in a v3.4.0 BIOS or older",
    "v3.7.0 structure or later in a v3.3.0 BIOS",
    "v3.8.0 structure or later in a v3.7.1 BIOS or older",
    "BIOS structure of version 2.7.0 or later in BIOS that is 2.6.1 or older",
    "Unsupported BIOS structure.",
};

/// What every record has, of a structure that has a decoder of its own; none for any other.
std::optional<StructureRecord> RecordOf(const BaseStructure& structure) {
    std::optional<StructureRecord> record;
    ForEachType(DecodedTypes(), [&]<class Type>() {
        if (const auto* const decoder = dynamic_cast<const Type*>(&structure)) {
            record = *decoder->GetRecord();
        }
    });
    return record;
}

class CapturedTable : public testing::TestWithParam<Capture> {
protected:
    void SetUp() override {
        const std::filesystem::path folder(SMBIOS_DUMPS_DIR);
        if (!std::filesystem::exists(folder)) {
            GTEST_SKIP() << "no captured tables in " << folder;
        }
        firmware_.Supply(Platform::LoadSavedTable(folder / GetParam().file));
        SmbiosManager::GetInstance()->UpdateBiosInfo();
    }

    FakeFirmwareTable firmware_;
};

TEST_P(CapturedTable, LoadsWithItsVersionAndEveryStructure) {
    EXPECT_EQ(SmbiosManager::GetInstance()->GetVersion(), GetParam().version);
    std::size_t structures = 0;
    for (int key = 0; key <= 128; ++key) {
        structures += SmbiosManager::GetInstance()->GetStructuresByType(StructureTypes{key}).size();
    }
    EXPECT_EQ(structures, GetParam().structures);
}

TEST_P(CapturedTable, EveryStructureDecodesOrCarriesADocumentedError) {
    for (int key = 0; key < 128; ++key) {
        for (const auto& structure : SmbiosManager::GetInstance()->GetStructuresByType(StructureTypes{key})) {
            const std::optional<StructureRecord> record = RecordOf(*structure);
            ASSERT_TRUE(record) << "type " << key;
            if (record->error.empty()) {
                EXPECT_EQ(record->handle, record->rawBytes.at(2) | (record->rawBytes.at(3) << 8))
                    << "type " << key;
            } else {
                EXPECT_TRUE(kDocumentedErrors.contains(record->error))
                    << "type " << key << ": " << record->error;
                EXPECT_EQ(record->handle, 0) << "type " << key;
            }
        }
    }
}

std::string NameOf(const testing::TestParamInfo<Capture>& capture) {
    std::string name = capture.param.file;
    std::erase_if(name, [](char character) { return character == '-' || character == '.'; });
    return name;
}

INSTANTIATE_TEST_SUITE_P(RealMachines, CapturedTable, testing::ValuesIn(kCaptures), NameOf);

}  // namespace
}  // namespace SMBIOS::Tests
