#include "smbios-inspect/output/eight_bytes.h"

#include <gtest/gtest.h>

#include <string>

namespace SMBIOS::Tests {
namespace {

/// Eight letters, one of which is this byte.
std::uint64_t EightWith(int byte, std::size_t place) {
    std::string text = "abcdefgh";
    text[place] = static_cast<char>(byte);
    return Inspect::EightAt(text, 0);
}

TEST(EightBytes, ArePrintableUnlessOneIsAControlOrNoAscii) {
    for (int byte = 0; byte < 256; ++byte) {
        for (std::size_t place = 0; place < 8; ++place) {
            EXPECT_EQ(Inspect::ArePrintableAscii(EightWith(byte, place)), 0x20 <= byte && byte <= 0x7E)
                << byte << " at " << place;
        }
    }
}

TEST(EightBytes, HaveAByteWhereverItStands) {
    for (int byte = 0; byte < 128; ++byte) {
        for (std::size_t place = 0; place < 8; ++place) {
            EXPECT_EQ(Inspect::HasByte(EightWith(byte, place), '"'), byte == '"') << byte << " at " << place;
        }
    }
}

TEST(EightBytes, TellTheLengthOfAKindAtEveryPlaceOfTextsOfEveryLength) {
    const auto isPlain = [](char character) { return character != '\n'; };
    for (std::size_t size = 0; size < 40; ++size) {
        for (std::size_t place = 0; place <= size; ++place) {
            std::string text(size, 'x');
            text.replace(place, 1, place < size ? "\n" : "");
            EXPECT_EQ(Inspect::LengthOfKind(text, Inspect::ArePrintableAscii, isPlain), place)
                << size << " characters";
        }
    }
}

}  // namespace
}  // namespace SMBIOS::Tests
