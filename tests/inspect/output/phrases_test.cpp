#include "smbios-inspect/output/phrases.h"

#include <gtest/gtest.h>

namespace SMBIOS::Inspect {
namespace {

TEST(Phrases, JoinWhatIsNotEmpty) {
    EXPECT_EQ(Joined({"", "a", "", "b", "c", ""}, ", "), "a, b, c");
    EXPECT_EQ(Joined({}, ", "), "");
}

TEST(Phrases, PrefixNothingToNothing) {
    EXPECT_EQ(Prefixed("version ", "2"), "version 2");
    EXPECT_EQ(Prefixed("version ", ""), "");
}

}  // namespace
}  // namespace SMBIOS::Inspect
