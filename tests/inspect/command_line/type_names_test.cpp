#include "smbios-inspect/command_line/type_names.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "smbios-inspect/standard/types.h"
#include "tests/inspect/completed_words.h"

namespace SMBIOS::Inspect {
namespace {

std::vector<int> TypesOf(std::string_view name) {
    const auto found = std::ranges::find(TypeNames(), name, &TypeName::name);
    return found == TypeNames().end() ? std::vector<int>()
                                      : std::vector<int>(found->types.begin(), found->types.end());
}

TEST(TypeNames, StandForTheSameTypesAsThoseOfDmidecode) {
    EXPECT_EQ(TypesOf("bios"), (std::vector{0, 13}));
    EXPECT_EQ(TypesOf("system"), (std::vector{1, 12, 15, 23, 32}));
    EXPECT_EQ(TypesOf("baseboard"), (std::vector{2, 10, 41}));
    EXPECT_EQ(TypesOf("chassis"), (std::vector{3}));
    EXPECT_EQ(TypesOf("processor"), (std::vector{4}));
    EXPECT_EQ(TypesOf("memory"), (std::vector{5, 6, 16, 17}));
    EXPECT_EQ(TypesOf("cache"), (std::vector{7}));
    EXPECT_EQ(TypesOf("connector"), (std::vector{8}));
    EXPECT_EQ(TypesOf("slot"), (std::vector{9}));
}

TEST(TypeNames, NameEveryTypeOfTheStandard) {
    for (const Standard::TypeDescription* const description : Standard::AllTypes()) {
        EXPECT_TRUE(std::ranges::any_of(TypeNames(), [&](const TypeName& name) {
            return std::ranges::find(name.types, description->type) != name.types.end();
        })) << static_cast<int>(description->type);
    }
}

TEST(TypeNames, StandInTheManualWithTheirTypes) {
    const std::string manual = Tests::ContentsOf(SMBIOS_SOURCE_DIR "/docs/smbios-inspect.1");
    for (const TypeName& name : TypeNames()) {
        std::string row = "\n.It Cm " + std::string(name.name) + " Ta ";
        for (const unsigned type : name.types) {
            row += (row.back() == ' ' ? "" : ", ") + std::to_string(type);
        }
        EXPECT_NE(manual.find(row + "\n"), std::string::npos) << row;
    }
}

TEST(TypeNames, AreCompleted) {
    std::vector<std::string> names;
    for (const TypeName& name : TypeNames()) {
        names.emplace_back(name.name);
    }
    EXPECT_EQ(Tests::CompletedWords("_smbios_inspect_types"), names);
}

}  // namespace
}  // namespace SMBIOS::Inspect
