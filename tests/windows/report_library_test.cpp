#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

#include "smbios/report.h"
#include "tests/windows/portable_executable.h"

namespace SMBIOS::Tests {
namespace {

/// The report library's file, laid out as it would be loaded.
class ReportLibraryFile : public testing::Test {
protected:
    [[nodiscard]] ImageView Image() const { return ImageView(bytes_.data()); }

private:
    std::vector<std::byte> bytes_ = LayOutImage(SMBIOS_REPORT_LIBRARY);
};

TEST_F(ReportLibraryFile, ExportsItsFunctionsAndNothingElse) {
    std::vector<std::string> exported = Image().ExportedNames();
    std::ranges::sort(exported);
    const std::vector<std::string> expected = {
        "smbios_report", "smbios_report_free", "smbios_report_version"};
    EXPECT_EQ(exported, expected);
}

TEST_F(ReportLibraryFile, NeedsNothingButTheSystem) {
    const std::vector<std::string> expected = {"KERNEL32.dll", "msvcrt.dll"};
    EXPECT_EQ(Image().ImportedLibraries(), expected);
}

// An exception is thrown and caught inside the DLL.
TEST(ReportLibrary, RefusesAnUnknownReport) {
    char* text = nullptr;
    EXPECT_EQ(smbios_report("fans", &text), 2);
    EXPECT_STREQ(text, "unknown report 'fans'");
    smbios_report_free(text);
}

TEST(ReportLibrary, IsOfTheProjectsVersion) {
    EXPECT_STREQ(smbios_report_version(), SMBIOS_VERSION);
}

}  // namespace
}  // namespace SMBIOS::Tests
