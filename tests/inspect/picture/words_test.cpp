#include "smbios-inspect/picture/words.h"

#include <gtest/gtest.h>

namespace SMBIOS::Inspect::Picture {
namespace {

TEST(PictureWords, JoinWhatIsNotEmpty) {
    EXPECT_EQ(Dotted({"", "a", "", "b", ""}), "a \xC2\xB7 b");
    EXPECT_EQ(Dotted({}), "");
    EXPECT_EQ(FirstSaid({"", "a", "b"}), "a");
    EXPECT_EQ(FirstSaid({"", ""}), "");
}

TEST(PictureWords, SetOffThousands) {
    EXPECT_EQ(CountText(0), "0");
    EXPECT_EQ(CountText(999), "999");
    EXPECT_EQ(CountText(1904), "1,904");
    EXPECT_EQ(CountText(1234567), "1,234,567");
}

TEST(PictureWords, CountOneAndMany) {
    EXPECT_EQ(Counted(1, "slot"), "1 slot");
    EXPECT_EQ(Counted(0, "slot"), "0 slots");
    EXPECT_EQ(Counted(1904, "slot"), "1,904 slots");
}

}  // namespace
}  // namespace SMBIOS::Inspect::Picture
