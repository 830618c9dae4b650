#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>

#include "smbios-inspect/departures/reasons.h"
#include "tests/inspect/made_document.h"

// The tables of docs/behaviour.md about structures are made from the reasons of departures. When they are out
// of date, run this test with SMBIOS_UPDATE_DOCS=1 in the environment: that writes them anew.
namespace SMBIOS::Tests {
namespace {

using Inspect::Departures::kReasons;
using Inspect::Departures::kReasonSections;
using Inspect::Departures::Reason;
using Inspect::Departures::ReasonSection;

constexpr std::string_view kBegin = "## Everywhere\n";
constexpr std::string_view kEnd = "## The exported classes\n";

std::string RowOf(const Reason& reason) {
    std::string row = "| ";
    row.append(reason.field).append(" | ").append(reason.standard).append(" | ").append(reason.library);
    return row + " |\n";
}

std::string GeneratedPart() {
    std::string text;
    const ReasonSection* section = kReasonSections;
    for (const Reason& reason : kReasons) {
        if (section != std::end(kReasonSections) && section->first == reason.id) {
            text += (text.empty() ? "## " : "\n## ") + std::string(section->title) +
                    "\n\n| Field | The standard | This library |\n|---|---|---|\n";
            ++section;
        }
        text += RowOf(reason);
    }
    return text + "\n";
}

TEST(BehaviourDocumentation, HasTheRowsOfTheReasons) {
    const std::filesystem::path file = DocumentNamed("behaviour.md");
    const std::string text = ContentsOf(file);
    const std::size_t begin = text.find(kBegin);
    const std::size_t end = text.find(kEnd);
    ASSERT_NE(begin, std::string::npos);
    ASSERT_NE(end, std::string::npos);
    ExpectUpToDate(file, text.substr(0, begin) + GeneratedPart() + text.substr(end));
}

}  // namespace
}  // namespace SMBIOS::Tests
