#include "platform/read_pieces.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>

namespace SMBIOS::Platform {
namespace {

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

std::string PiecesOf(std::string_view text) {
    const std::unique_ptr<std::FILE, CloseFile> stream(std::tmpfile());
    std::fwrite(text.data(), 1, text.size(), stream.get());
    std::rewind(stream.get());
    PieceReader pieces;
    std::string output;
    while (const std::optional<std::string_view> piece = pieces.Next(stream.get())) {
        output += *piece;
    }
    return output;
}

TEST(Pieces, OfAnEmptyStreamAreNone) {
    EXPECT_EQ(PiecesOf(""), "");
}

TEST(Pieces, HaveAtMost127Characters) {
    const std::unique_ptr<std::FILE, CloseFile> stream(std::tmpfile());
    std::fputs(std::string(130, 'x').c_str(), stream.get());
    std::rewind(stream.get());
    PieceReader pieces;
    EXPECT_EQ(pieces.Next(stream.get()), std::string(127, 'x'));
    EXPECT_EQ(pieces.Next(stream.get()), "xxx");
    EXPECT_EQ(pieces.Next(stream.get()), std::nullopt);
}

TEST(Pieces, AreWholeLines) {
    EXPECT_EQ(PiecesOf("one\n\ntwo"), "one\n\ntwo");
}

TEST(Pieces, OfALongLineMakeUpTheLine) {
    const std::string line(127 * 3 + 1, 'x');
    EXPECT_EQ(PiecesOf(line), line);
}

TEST(Pieces, EndAtTheirFirstNul) {
    EXPECT_EQ(PiecesOf(std::string_view("one\0two\nthree\n", 14)), "onethree\n");
}

TEST(Pieces, DropWhatFollowsANulOnlyUpToTheirOwnEnd) {
    const std::string start(126, 'x');
    EXPECT_EQ(PiecesOf(start + std::string(1, '\0') + "next\n"), start + "next\n");
}

}  // namespace
}  // namespace SMBIOS::Platform
