#include "smbios-inspect/output/json_writer.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/json.h"

namespace SMBIOS::Tests {
namespace {

using Inspect::JsonWriter;

std::string Written(const auto& value) {
    return JsonText([&](JsonWriter& json) { json.Value(value); });
}

TEST(JsonWriter, IndentsByTwoAndEndsTheLine) {
    EXPECT_EQ(JsonText([](JsonWriter& json) {
                  json.BeginObject();
                  json.Member("a", 1);
                  json.Name("b");
                  json.BeginArray();
                  json.Value(true);
                  json.Null();
                  json.EndArray();
                  json.EndObject();
              }),
              "{\n  \"a\": 1,\n  \"b\": [\n    true,\n    null\n  ]\n}\n");
}

TEST(JsonWriter, PutsNothingBetweenTheBracketsOfWhatIsEmpty) {
    EXPECT_EQ(JsonText([](JsonWriter& json) {
                  json.BeginArray();
                  json.BeginObject();
                  json.EndObject();
                  json.BeginArray();
                  json.EndArray();
                  json.EndArray();
              }),
              "[\n  {},\n  []\n]\n");
}

TEST(JsonWriter, IndentsDeeplyToo) {
    constexpr int kDepth = 40;
    const std::string text = JsonText([](JsonWriter& json) {
        for (int i = 0; i < kDepth; ++i) {
            json.BeginArray();
        }
        for (int i = 0; i < kDepth; ++i) {
            json.EndArray();
        }
    });
    EXPECT_EQ(text, Json::parse(text).dump(2) + "\n");
    EXPECT_TRUE(text.find("\n" + std::string(2 * (kDepth - 1), ' ') + "[]\n") != std::string::npos);
}

TEST(JsonWriter, WritesTheLimitsOfNumbers) {
    EXPECT_EQ(Written(std::numeric_limits<std::uint64_t>::max()), "18446744073709551615\n");
    EXPECT_EQ(Written(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808\n");
    EXPECT_EQ(Written(std::uint8_t{65}), "65\n");
}

TEST(JsonWriter, KeepsThePointOfANumberWithoutAFraction) {
    EXPECT_EQ(Written(0.0F), "0.0\n");
    EXPECT_EQ(Written(6000.0F), "6000.0\n");
    EXPECT_EQ(Written(0.5F), "0.5\n");
}

TEST(JsonWriter, WritesBytesInHexadecimal) {
    const std::vector<std::uint8_t> bytes = {0x00, 0x9A, 0xFF};
    EXPECT_EQ(JsonText([&](JsonWriter& json) { json.Hexadecimal(bytes); }), "\"009aff\"\n");
}

TEST(JsonWriter, WritesNullForATextThatIsAbsent) {
    EXPECT_EQ(JsonText([](JsonWriter& json) { json.TextOrNull(nullptr); }), "null\n");
    EXPECT_EQ(JsonText([](JsonWriter& json) { json.TextOrNull(""); }), "\"\"\n");
}

TEST(JsonWriter, EscapesDeleteAndTheC1Controls) {
    EXPECT_EQ(Written("a\x7F"
                      "b"),
              "\"a\\u007fb\"\n");
    EXPECT_EQ(Written("\xC2\x80\xC2\x9B\xC2\x9F"), "\"\\u0080\\u009b\\u009f\"\n");
}

TEST(JsonWriter, EscapesTheOtherControls) {
    EXPECT_EQ(Written("\x1B[31m\x01"), "\"\\u001b[31m\\u0001\"\n");
    EXPECT_EQ(Written("\b\f\n\r\t"), "\"\\b\\f\\n\\r\\t\"\n");
}

TEST(JsonWriter, EscapesQuotesAndBackslashes) {
    EXPECT_EQ(Written("C:\\ \"x\" /"), "\"C:\\\\ \\\"x\\\" /\"\n");
}

TEST(JsonWriter, LeavesOtherCharactersAsTheyAre) {
    const std::string text = "~ \xC2\xA0\xC3\x9B \xE2\x82\xAC \xF0\x9F\x98\x80";
    EXPECT_EQ(Written(text), "\"" + text + "\"\n");
}

TEST(JsonWriter, ReplacesBytesThatAreNotUtf8) {
    EXPECT_EQ(Written("\x9B"), "\"\xEF\xBF\xBD\"\n");
}

TEST(JsonWriter, ReplacesACharacterThatIsCutShortOnce) {
    EXPECT_EQ(Written("\xF0\x9F\x98"), "\"\xEF\xBF\xBD\"\n");
    EXPECT_EQ(Written("\xF0\x9F\x98x"), "\"\xEF\xBF\xBDx\"\n");
    EXPECT_EQ(Written("\xE2\x82\xE2\x82\xAC"), "\"\xEF\xBF\xBD\xE2\x82\xAC\"\n");
}

TEST(JsonWriter, WritesTextsThatAreLongerThanWhatItKeeps) {
    const std::string text(100'000, 'x');
    EXPECT_EQ(Written(text), "\"" + text + "\"\n");
}

TEST(JsonWriter, EscapesACharacterWhereverItStands) {
    for (std::size_t size = 1; size < 40; ++size) {
        for (std::size_t place = 0; place < size; ++place) {
            for (const std::string character : {"\"", "\\", "\x7F", "\x1F"}) {
                std::string text(size, 'x');
                text.replace(place, 1, character);
                EXPECT_EQ(Json::parse(Written(text)), Json(text));
                EXPECT_NE(Written(text).find('\\'), std::string::npos) << Written(text);
            }
        }
    }
}

/// Texts of bytes that begin, continue and end characters of UTF-8, and of ASCII.
std::string RandomText(std::mt19937& random) {
    constexpr std::string_view kBytes =
        "ab\"\\\n\x01\x7F\x80\x8F\x90\x9F\xA0\xBF\xC0\xC2\xDF\xE0\xE2\xED\xEF\xF0\xF1\xF4\xF5\xFF";
    std::string text(random() % 12, ' ');
    for (char& character : text) {
        character = kBytes[random() % kBytes.size()];
    }
    return text;
}

TEST(JsonWriter, WritesEveryTextAsTheReferenceDoes) {
    constexpr int kTexts = 20'000;
    std::mt19937 random(1);
    for (int i = 0; i < kTexts; ++i) {
        const std::string text = RandomText(random);
        const std::string written = Written(text);
        const std::string reference = Json(text).dump(-1, ' ', false, Json::error_handler_t::replace);
        EXPECT_EQ(Json::parse(written), Json::parse(reference));
        EXPECT_EQ(written.find('\x7F'), std::string::npos);
    }
}

}  // namespace
}  // namespace SMBIOS::Tests
