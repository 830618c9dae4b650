#include <gtest/gtest.h>

#include <string>

#include "platform/saved_table.h"
#include "tests/inspect/made_document.h"
#include "tests/inspect/picture/drawn_picture.h"

// docs/machine.svg is the picture of the sample table. When it is out of date, run this test with
// SMBIOS_UPDATE_DOCS=1 in the environment: that writes it anew.
namespace SMBIOS::Tests {
namespace {

TEST(PictureDocumentation, IsThePictureOfTheSample) {
    ExpectUpToDate(DocumentNamed("machine.svg"), SvgOf(Platform::LoadSavedTable(SMBIOS_SAMPLE_TABLE)));
}

TEST(PictureDocumentation, HasNoFault) {
    const std::string svg = ContentsOf(DocumentNamed("machine.svg"));
    EXPECT_EQ(FaultsOf(ReadPicture(svg)), "");
}

}  // namespace
}  // namespace SMBIOS::Tests
