#include "smbios-inspect/output/text_page.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace SMBIOS::Tests {
namespace {

using Inspect::TextPage;

TEST(TextPage, KeepsEveryPieceWhileItGrows) {
    TextPage page;
    std::string expected;
    for (int i = 0; i < 5000; ++i) {
        const std::string piece(static_cast<std::size_t>(i % 70), static_cast<char>('a' + i % 26));
        page.Append(piece);
        page.Append('-');
        expected += piece + '-';
    }
    EXPECT_EQ(page.Text(), expected);
    EXPECT_EQ(page.Size(), expected.size());
}

TEST(TextPage, IsEmptyAtFirstAndAfterItIsCleared) {
    TextPage page;
    EXPECT_EQ(page.Text(), "");
    page.Append("text");
    page.Clear();
    EXPECT_EQ(page.Text(), "");
}

TEST(TextPage, AppendsAsManyBlanksAsAsked) {
    for (std::size_t count = 0; count < 100; ++count) {
        TextPage page;
        page.Append(std::string(1000, 'x'));
        page.AppendBlanks(count);
        page.Append('|');
        EXPECT_EQ(page.Text().substr(1000), std::string(count, ' ') + "|");
    }
}

TEST(TextPage, AppendsNumbers) {
    TextPage page;
    page.AppendNumber(0);
    page.Append(' ');
    page.AppendNumber(std::numeric_limits<std::uint64_t>::max());
    EXPECT_EQ(page.Text(), "0 18446744073709551615");
}

TEST(TextPage, AppendsHexadecimalsOfAFixedLength) {
    TextPage page;
    page.AppendHexadecimal(0xAB, 4);
    page.AppendHexadecimal(0, 2);
    page.AppendHexadecimal(0xFEDCBA9876543210, 16);
    EXPECT_EQ(page.Text(), "0x00AB0x000xFEDCBA9876543210");
}

TEST(TextPage, AppendsATextUpToItsFirstCharacterThatIsNotPrintableAscii) {
    for (std::size_t size = 0; size < 40; ++size) {
        for (std::size_t place = 0; place <= size; ++place) {
            for (const char character : {'\x1F', '\x7F', '\x80', '\n'}) {
                std::string text(size, '~');
                if (place < size) {
                    text[place] = character;
                }
                TextPage page;
                page.Append("before");
                EXPECT_EQ(page.AppendPrintableAscii(text), place) << size;
                EXPECT_EQ(page.Text(), "before" + text.substr(0, place));
            }
        }
    }
}

TEST(TextPage, WritesOverWhatStandsThere) {
    TextPage page;
    page.AppendBlanks(6);
    page.Overwrite(2, "ab");
    EXPECT_EQ(page.Text(), "  ab  ");
}

TEST(TextPage, CutsBlanksAtItsEndOnly) {
    TextPage page;
    page.CutTrailingBlanks();
    page.Append(" a b  ");
    page.CutTrailingBlanks();
    EXPECT_EQ(page.Text(), " a b");
    page.CutTo(1);
    page.CutTrailingBlanks();
    EXPECT_EQ(page.Text(), "");
}

}  // namespace
}  // namespace SMBIOS::Tests
