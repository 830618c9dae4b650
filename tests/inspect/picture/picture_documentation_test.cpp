#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "platform/saved_table.h"
#include "tests/inspect/picture/drawn_picture.h"
#include "tests/inspect/run_tool.h"

// docs/machine.svg is the picture of the sample table. When it is out of date, run this test with
// SMBIOS_UPDATE_DOCS=1 in the environment: that writes it anew.
namespace SMBIOS::Tests {
namespace {

TEST(PictureDocumentation, IsThePictureOfTheSample) {
    const std::filesystem::path file = std::filesystem::path(SMBIOS_SOURCE_DIR) / "docs" / "machine.svg";
    const std::string svg = SvgOf(Platform::LoadSavedTable(SMBIOS_SAMPLE_TABLE));
    if (std::getenv("SMBIOS_UPDATE_DOCS") != nullptr) {
        std::ofstream(file, std::ios::binary) << svg;
        GTEST_SKIP() << "wrote " << file;
    }
    EXPECT_TRUE(ContentsOf(file) == svg) << "run this test with SMBIOS_UPDATE_DOCS=1 to write " << file;
}

TEST(PictureDocumentation, HasNoFault) {
    const std::string svg = ContentsOf(std::filesystem::path(SMBIOS_SOURCE_DIR) / "docs" / "machine.svg");
    EXPECT_EQ(FaultsOf(ReadPicture(svg)), "");
}

}  // namespace
}  // namespace SMBIOS::Tests
