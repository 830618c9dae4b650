#include "smbios-inspect/standard/value.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace SMBIOS::Tests {
namespace {

using Inspect::Standard::Plain;
using Inspect::Standard::ValueText;

const std::string kLong(100, 'x');  // longer than what a string keeps in itself

TEST(ValueText, LeavesATextWhereItStands) {
    const std::string_view elsewhere = kLong;
    EXPECT_EQ(std::string_view(ValueText(elsewhere)).data(), kLong.data());
}

TEST(ValueText, KeepsItsOwnTextWhenItIsCopiedAndMoved) {
    ValueText text{std::string(kLong)};
    const ValueText copy = text;
    const ValueText moved = std::move(text);
    EXPECT_EQ(copy, kLong);
    EXPECT_EQ(moved, kLong);
}

TEST(ValueText, MakesATextItsOwnToAppendToIt) {
    const std::string before = "before";
    ValueText text{std::string_view(before)};
    text += " and after";
    EXPECT_EQ(text, "before and after");
    EXPECT_EQ(before, "before");
}

TEST(ValueText, IsTheSameWhoeverHoldsIt) {
    EXPECT_EQ(ValueText("one"), ValueText(std::string("one")));
    EXPECT_FALSE(ValueText("one") == ValueText("other"));
}

TEST(ValueText, IsEmptyWithoutOne) {
    EXPECT_TRUE(ValueText().empty());
    EXPECT_TRUE(ValueText("").empty());
    EXPECT_FALSE(ValueText(" ").empty());
}

TEST(Plain, IsNothingAtFirst) {
    EXPECT_TRUE(Plain().IsNothing());
    EXPECT_EQ(Plain().Number(), std::nullopt);
    EXPECT_EQ(Plain().SignedNumber(), std::nullopt);
    EXPECT_EQ(Plain().Text(), std::nullopt);
}

TEST(Plain, IsOneThingOnly) {
    const Plain number(std::uint64_t{7});
    EXPECT_FALSE(number.IsNothing());
    EXPECT_EQ(number.Number(), 7U);
    EXPECT_EQ(number.SignedNumber(), std::nullopt);
    EXPECT_EQ(number.Text(), std::nullopt);

    const Plain negative(std::int64_t{-7});
    EXPECT_EQ(negative.Number(), std::nullopt);
    EXPECT_EQ(negative.SignedNumber(), -7);

    const Plain text("seven");
    EXPECT_EQ(text.Number(), std::nullopt);
    EXPECT_EQ(text.Text(), "seven");
}

TEST(Plain, ThatIsANumberIsNotTheSameAsOneWithASign) {
    EXPECT_FALSE(Plain(std::uint64_t{7}) == Plain(std::int64_t{7}));
    EXPECT_FALSE(Plain(std::uint64_t{0}) == Plain());
    EXPECT_FALSE(Plain("") == Plain());
}

}  // namespace
}  // namespace SMBIOS::Tests
