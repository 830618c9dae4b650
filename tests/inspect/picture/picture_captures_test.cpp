#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "platform/saved_table.h"
#include "smbios-inspect/standard/structure.h"
#include "tests/inspect/captured_tables.h"
#include "tests/inspect/picture/drawn_picture.h"
#include "tests/inspect/standard/standard_support.h"

// Pictures of real machines.
namespace SMBIOS::Tests {
namespace {

/// Types of which every structure is a box.
constexpr int kDrawnTypes[] = {0, 1, 2, 3, 4, 8, 9, 16, 17, 27, 28, 41};

class PictureOfCapture : public testing::TestWithParam<const char*> {
protected:
    void SetUp() override {
        const std::filesystem::path file = CapturedTable(GetParam());
        if (!std::filesystem::exists(file)) {
            GTEST_SKIP() << "no captured table " << file;
        }
        table_ = Platform::LoadSavedTable(file);
        picture_ = PictureOf(table_);
    }

    std::vector<std::uint8_t> table_;
    DrawnPicture picture_;
};

TEST_P(PictureOfCapture, HasNoFault) {
    EXPECT_EQ(FaultsOf(picture_), "");
}

TEST_P(PictureOfCapture, HasEveryStructureOnce) {
    std::map<int, std::size_t> counts;
    Inspect::Standard::TableWalk walk(table_);
    while (const auto structure = walk.Next()) {
        ++counts[structure->Type()];
    }
    for (const int type : kDrawnTypes) {
        EXPECT_EQ(BoxesOfType(picture_, type).size(), counts[type]) << "type " << type;
    }
}

TEST_P(PictureOfCapture, HasAllFieldsInItsTooltips) {
    std::string text = FirmwareText(table_);
    for (std::size_t tabulator = 0; (tabulator = text.find('\t', tabulator)) != std::string::npos;) {
        text.replace(tabulator, 1, "  ");
    }
    for (const DrawnBox& box : picture_.boxes) {
        if (box.tooltip.starts_with("Type ")) {
            const std::size_t place = text.find(box.tooltip + "\n");
            ASSERT_NE(place, std::string::npos) << box.tooltip;
            const std::string behind = text.substr(place + box.tooltip.size() + 1, 5);
            EXPECT_TRUE(behind.empty() || behind == "Type ") << box.tooltip;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Tables, PictureOfCapture, testing::ValuesIn(kCapturedTables), [](const auto& each) {
    return AsTestName(each.param);
});

}  // namespace
}  // namespace SMBIOS::Tests
