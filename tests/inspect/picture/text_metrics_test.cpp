#include "smbios-inspect/picture/text_metrics.h"

#include <gtest/gtest.h>

#include <string>

namespace SMBIOS::Inspect::Picture {
namespace {

// DejaVu Sans: "W" is 2025, "i" 569, a digit 1303 of 2048 wide; its bold "W" is 2259.

TEST(TextMetrics, MeasureInWholePixelsRoundedUp) {
    EXPECT_EQ(TextWidth("W", TextStyle::body), 12);           // 11.9
    EXPECT_EQ(TextWidth("iiiiiiii", TextStyle::body), 27);    // 26.7
    EXPECT_EQ(TextWidth("0123456789", TextStyle::body), 77);  // 76.3
    EXPECT_EQ(TextWidth("", TextStyle::body), 0);
}

TEST(TextMetrics, KnowSizesAndBoldText) {
    EXPECT_EQ(TextWidth("W", TextStyle::name), 14);     // 13.2
    EXPECT_EQ(TextWidth("W", TextStyle::heading), 18);  // 17.6
    EXPECT_EQ(TextWidth("W", TextStyle::title), 27);    // 26.5
}

TEST(TextMetrics, KnowLatin1) {
    EXPECT_EQ(TextWidth("\xC3\x84", TextStyle::body), TextWidth("A", TextStyle::body));
    EXPECT_EQ(TextWidth("\xC3\xBF", TextStyle::body), TextWidth("y", TextStyle::body));
    EXPECT_TRUE(IsMeasured("a\xC2\xB7\xC3\xBF\xE2\x80\xA6"));
}

TEST(TextMetrics, TakeOtherCharactersForWide) {
    EXPECT_EQ(TextWidth("\xE7\x89\x88", TextStyle::body), 14);  // 2304 of 2048: 13.5
    EXPECT_FALSE(IsMeasured("a\xE7\x89\x88"));
    EXPECT_FALSE(IsMeasured("\xC4\x80"));
    EXPECT_FALSE(IsMeasured("\xEF\xBF\xBD"));
}

TEST(TextMetrics, LeaveATextThatFits) {
    EXPECT_EQ(FittedTo(12, "W", TextStyle::body), "W");
}

TEST(TextMetrics, ShortenToTheWidthWithAnEllipsis) {
    EXPECT_EQ(FittedTo(77, "0123456789", TextStyle::body), "0123456789");
    EXPECT_EQ(FittedTo(76, "0123456789", TextStyle::body), "01234567\xE2\x80\xA6");  // 8 are 61.1, and 12
    EXPECT_EQ(FittedTo(73, "0123456789", TextStyle::body), "0123456\xE2\x80\xA6");
}

TEST(TextMetrics, LeaveNoBlankInFrontOfTheEllipsis) {
    EXPECT_EQ(FittedTo(30, "W WWWWW", TextStyle::body), "W\xE2\x80\xA6");
}

TEST(TextMetrics, ShortenBetweenCharacters) {
    EXPECT_EQ(FittedTo(26, "\xE7\x89\x88\xE7\x89\x88", TextStyle::body), "\xE7\x89\x88\xE2\x80\xA6");
}

TEST(TextMetrics, LeaveNothingWhereNotEvenTheEllipsisFits) {
    EXPECT_EQ(FittedTo(11, "WW", TextStyle::body), "");
    EXPECT_EQ(FittedTo(12, "WW", TextStyle::body), "\xE2\x80\xA6");
}

}  // namespace
}  // namespace SMBIOS::Inspect::Picture
