#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "samples/table_builder.h"
#include "tests/inspect/picture/drawn_picture.h"
#include "tests/support/random.h"

// Pictures of tables that no firmware would write.
namespace SMBIOS::Tests {
namespace {

using Samples::StructureBuilder;
using Samples::TableBuilder;

constexpr std::uint8_t kDrawnTypes[] = {0, 1, 2, 3, 4, 7, 8, 9, 10, 16, 17, 27, 28, 41};

class RandomContent : public Random {
public:
    using Random::Random;

    /// Small numbers, which are codes, counts and numbers of strings, come often.
    std::uint8_t Byte() { return static_cast<std::uint8_t>(Below(2) == 0 ? Below(256) : Below(8)); }

    /// Of bytes that need not be UTF-8, or of one character again and again.
    std::string Text() {
        constexpr const char* kCharacters[] = {"W",
                                               "&",
                                               "<",
                                               "\"",
                                               "]]>",
                                               " ",
                                               "\t",
                                               "\xC3\x84",
                                               "\xE7\x89\x88",
                                               "\xEF\xBF\xBE",
                                               "\xF0\x9F\x92\xBB"};
        std::string text;
        const bool isRandom = Below(2) == 0;
        const char* const character = kCharacters[Below(std::size(kCharacters))];
        for (std::size_t length = 1 + Below(80); length != 0; --length) {
            text += isRandom ? std::string(1, static_cast<char>(1 + Below(255))) : character;
        }
        return text;
    }
};

StructureBuilder RandomStructure(RandomContent& random) {
    const std::uint8_t type = kDrawnTypes[random.Below(std::size(kDrawnTypes))];
    const auto length = static_cast<std::uint8_t>(4 + random.Below(random.Below(2) == 0 ? 30 : 120));
    StructureBuilder structure(type, length, static_cast<std::uint16_t>(random.Below(8)));
    for (std::size_t offset = 4; offset < length; ++offset) {
        structure.Byte(offset, random.Byte());
    }
    for (std::size_t strings = random.Below(8); strings != 0; --strings) {
        structure.String(random.Text());
    }
    return structure;
}

class RandomPictures : public testing::TestWithParam<unsigned> {};

TEST_P(RandomPictures, HaveNoFault) {
    RandomContent random(GetParam());
    TableBuilder table(3, 8, 0);
    for (std::size_t structures = random.Below(40); structures != 0; --structures) {
        table.Add(RandomStructure(random));
    }
    EXPECT_EQ(FaultsOf(PictureOf(table.RawTable())), "");
}

TEST_P(RandomPictures, AreDrawnOfAnyBytes) {
    RandomContent random(GetParam());
    std::vector<std::uint8_t> bytes(random.Below(400));
    std::ranges::generate(bytes, [&] { return random.Byte(); });
    EXPECT_EQ(FaultsOf(PictureOf(bytes)), "");
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomPictures, testing::Range(0U, 60U));

}  // namespace
}  // namespace SMBIOS::Tests
