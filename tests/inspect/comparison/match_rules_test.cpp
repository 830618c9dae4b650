#include "smbios-inspect/comparison/match_rules.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string_view>

#include "smbios-inspect/standard/forms.h"
#include "smbios-inspect/standard/types.h"

namespace SMBIOS::Tests {
namespace {

using Inspect::Comparing::AllRules;
using Inspect::Comparing::MatchedBy;
using Inspect::Comparing::MatchRule;
using Inspect::Comparing::RuleFor;
using Inspect::Standard::FieldRow;

bool IsStringOf(std::uint8_t type, std::string_view name) {
    const auto rows = Inspect::Standard::DescriptionOf(type)->rows;
    const auto row = std::ranges::find(rows, name, &FieldRow::name);
    return row != rows.end() && row->form.read == Inspect::Standard::ReadString;
}

TEST(MatchRules, AscendByTypeWithoutDuplicates) {
    EXPECT_TRUE(std::ranges::is_sorted(AllRules(), std::ranges::less_equal(), &MatchRule::type));
}

TEST(MatchRules, NameStringsOfTheirTypes) {
    for (const MatchRule& rule : AllRules()) {
        EXPECT_TRUE(IsStringOf(rule.type, rule.firstName)) << int{rule.type};
        EXPECT_TRUE(rule.secondName.empty() || IsStringOf(rule.type, rule.secondName)) << int{rule.type};
    }
}

TEST(MatchRules, AreByContentForEveryOtherType) {
    for (const int type : {0, 1, 3, 16, 19, 127, 200}) {
        EXPECT_EQ(RuleFor(static_cast<std::uint8_t>(type)).matchedBy, MatchedBy::content) << type;
    }
}

}  // namespace
}  // namespace SMBIOS::Tests
