#include "tests/support/harmless_text.h"

#include <gtest/gtest.h>

namespace SMBIOS::Tests {
namespace {

TEST(HarmlessText, MayHaveAnyCharacterThatIsShown) {
    EXPECT_TRUE(IsHarmlessText(""));
    EXPECT_TRUE(IsHarmlessText("a\tb\n"));
    EXPECT_TRUE(IsHarmlessText("\xC2\xA0 \xE2\x80\xA6 \xF0\x9F\x98\x80"));  // U+00A0, U+2026, U+1F600
}

TEST(HarmlessText, HasNoControlCharacter) {
    for (const char* const text : {"\r", "\x1B", "\x7F", "\xC2\x80", "\xC2\x9F"}) {
        EXPECT_FALSE(IsHarmlessText(text)) << testing::PrintToString(text);
    }
}

TEST(HarmlessText, TurnsNoDirectionAndEndsNoLineUnseen) {
    for (const char* const text : {"\xE2\x80\xA8", "\xE2\x80\xAE", "\xE2\x81\xA6", "\xE2\x81\xA9"}) {
        EXPECT_FALSE(IsHarmlessText(text)) << testing::PrintToString(text);
    }
}

TEST(HarmlessText, IsUtf8) {
    for (const char* const text :
         {"\x80", "\xFF", "\xC2", "\xC0\x80", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xF4\x90\x80\x80"}) {
        EXPECT_FALSE(IsHarmlessText(text)) << testing::PrintToString(text);
    }
}

TEST(HarmlessJson, IsOneDocument) {
    EXPECT_TRUE(IsHarmlessJson("{\n  \"a\": [1, null]\n}\n"));
    EXPECT_FALSE(IsHarmlessJson("{\"a\": 1,}"));
    EXPECT_FALSE(IsHarmlessJson("1 2"));
}

TEST(HarmlessJson, HasNoControlCharacterButTheLineFeed) {
    EXPECT_FALSE(IsHarmlessJson("\"\x7F\""));
    EXPECT_FALSE(IsHarmlessJson("\"\xC2\x9B\""));
    EXPECT_FALSE(IsHarmlessJson("[\t1]"));
}

}  // namespace
}  // namespace SMBIOS::Tests
