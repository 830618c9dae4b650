#include "platform/read_pieces.h"

#include <gtest/gtest.h>

#include <memory>
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
    std::string output;
    AppendPieces(stream.get(), output);
    return output;
}

TEST(Pieces, OfAnEmptyStreamAreNone) {
    EXPECT_EQ(PiecesOf(""), "");
}

TEST(Pieces, AreAppendedToTheOutput) {
    const std::unique_ptr<std::FILE, CloseFile> stream(std::tmpfile());
    std::string output = "before";
    AppendPieces(stream.get(), output);
    EXPECT_EQ(output, "before");
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
