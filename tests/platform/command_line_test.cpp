#include "platform/command_line.h"

#include <gtest/gtest.h>

namespace SMBIOS::Platform {
namespace {

using Elements = std::vector<std::string>;

TEST(CommandLine, IsSeparatedByBlanksAndTabs) {
    EXPECT_EQ(SplitCommandLine("a b\tc"), (Elements{"a", "b", "c"}));
}

TEST(CommandLine, MayHaveManySeparatorsInARow) {
    EXPECT_EQ(SplitCommandLine("a \t b  "), (Elements{"a", "b"}));
}

TEST(CommandLine, IsNotSeparatedByLineEnds) {
    EXPECT_EQ(SplitCommandLine("a b\nc"), (Elements{"a", "b\nc"}));
}

TEST(CommandLine, HasAnEmptyProgramWhenEmpty) {
    EXPECT_EQ(SplitCommandLine(""), Elements{""});
}

TEST(CommandLine, HasAnEmptyProgramWhenItStartsWithASeparator) {
    EXPECT_EQ(SplitCommandLine(" a"), (Elements{"", "a"}));
}

TEST(CommandLineProgram, KeepsBlanksWithinQuotes) {
    EXPECT_EQ(SplitCommandLine(R"("a b" c)"), (Elements{"a b", "c"}));
}

TEST(CommandLineProgram, MayBeQuotedInTheMiddle) {
    EXPECT_EQ(SplitCommandLine(R"(a" b"c d)"), (Elements{"a bc", "d"}));
}

TEST(CommandLineProgram, KeepsBackslashesBeforeAQuote) {
    EXPECT_EQ(SplitCommandLine(R"("a\" b)"), (Elements{R"(a\)", "b"}));
}

TEST(CommandLineProgram, TakesADoubledQuoteAsTwoToggles) {
    EXPECT_EQ(SplitCommandLine(R"("a""b" c)"), (Elements{"ab", "c"}));
}

TEST(CommandLineProgram, GoesToTheEndWhenItsQuoteStaysOpen) {
    EXPECT_EQ(SplitCommandLine(R"("a b c)"), Elements{"a b c"});
}

TEST(CommandLineArgument, KeepsBlanksWithinQuotes) {
    EXPECT_EQ(SplitCommandLine(R"(p "a b" c)"), (Elements{"p", "a b", "c"}));
}

TEST(CommandLineArgument, MayBeQuotedInTheMiddle) {
    EXPECT_EQ(SplitCommandLine(R"(p a" "b)"), (Elements{"p", "a b"}));
}

TEST(CommandLineArgument, MayBeEmptyQuotes) {
    EXPECT_EQ(SplitCommandLine(R"(p "" c)"), (Elements{"p", "", "c"}));
}

TEST(CommandLineArgument, GoesToTheEndWhenItsQuoteStaysOpen) {
    EXPECT_EQ(SplitCommandLine(R"(p "a b )"), (Elements{"p", "a b "}));
}

TEST(CommandLineArgument, KeepsBackslashesThatNoQuoteFollows) {
    EXPECT_EQ(SplitCommandLine(R"(p a\b\\c \\ d\)"), (Elements{"p", R"(a\b\\c)", R"(\\)", R"(d\)"}));
}

TEST(CommandLineArgument, HasALiteralQuoteAfterOneBackslash) {
    EXPECT_EQ(SplitCommandLine(R"(p a\"b c)"), (Elements{"p", R"(a"b)", "c"}));
}

TEST(CommandLineArgument, TogglesAfterTwoBackslashes) {
    EXPECT_EQ(SplitCommandLine(R"(p a\\"b c" d)"), (Elements{"p", R"(a\b c)", "d"}));
}

TEST(CommandLineArgument, HasABackslashAndALiteralQuoteAfterThreeBackslashes) {
    EXPECT_EQ(SplitCommandLine(R"(p a\\\"b c)"), (Elements{"p", R"(a\"b)", "c"}));
}

TEST(CommandLineArgument, EndsItsQuotesAfterTwoBackslashes) {
    EXPECT_EQ(SplitCommandLine(R"(p "a b\\" c)"), (Elements{"p", R"(a b\)", "c"}));
}

TEST(CommandLineArgument, StaysQuotedAfterAnEscapedQuote) {
    EXPECT_EQ(SplitCommandLine(R"(p "a\" b" c)"), (Elements{"p", R"(a" b)", "c"}));
}

TEST(CommandLineArgument, HasALiteralQuoteForADoubledOneWithinQuotes) {
    EXPECT_EQ(SplitCommandLine(R"(p "a"" b" c)"), (Elements{"p", R"(a" b)", "c"}));
}

TEST(CommandLineArgument, HasALiteralQuoteForADoubledOneAfterTwoBackslashes) {
    EXPECT_EQ(SplitCommandLine(R"(p "a\\"" b" c)"), (Elements{"p", R"(a\" b)", "c"}));
}

TEST(CommandLineArgument, HasALiteralQuoteForFourQuotes) {
    EXPECT_EQ(SplitCommandLine(R"(p """" c)"), (Elements{"p", R"(")", "c"}));
}

}  // namespace
}  // namespace SMBIOS::Platform
