#include "smbios-inspect/output/column_table.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace SMBIOS::Inspect {
namespace {

using Lines = std::vector<std::string>;

std::string Printed(const ColumnTable& table, const OutputStyle& style = {}) {
    std::ostringstream output;
    table.Print(style, output);
    return output.str();
}

ColumnTable TwoRows() {
    ColumnTable table({"NAME", "SIZE", "NOTE"});
    table.Add({"first", "16 GiB", "a note"});
    table.Add({"no. 2", "", ""});
    return table;
}

TEST(Printable, AsciiAndUtf8StayAsTheyAre) {
    EXPECT_EQ(Printable("Intel(R) \xC3\xA9 \xE2\x82\xAC \xF0\x9F\x98\x80"),
              "Intel(R) \xC3\xA9 \xE2\x82\xAC \xF0\x9F\x98\x80");
}

TEST(Printable, ControlCharactersAreReplaced) {
    EXPECT_EQ(Printable("a\x1B[31m\nb\x7F"),
              "a\xEF\xBF\xBD[31m\xEF\xBF\xBD"
              "b\xEF\xBF\xBD");
    EXPECT_EQ(Printable(std::string_view("\0", 1)), "\xEF\xBF\xBD");
    EXPECT_EQ(Printable("\xC2\x9B"
                        "31m"),
              "\xEF\xBF\xBD"
              "31m");
    EXPECT_EQ(Printable("\xC2\xA0"), "\xC2\xA0");
}

TEST(Printable, CharactersThatMoveTextAboutAreReplaced) {
    for (const char* const text :
         {"\xE2\x80\xA8", "\xE2\x80\xA9", "\xE2\x80\xAA", "\xE2\x80\xAE", "\xE2\x81\xA6", "\xE2\x81\xA9"}) {
        EXPECT_EQ(Printable(text), "\xEF\xBF\xBD") << text;
    }
    for (const char* const text : {"\xE2\x80\xA7", "\xE2\x80\xAF", "\xE2\x81\xA5", "\xE2\x81\xAA"}) {
        EXPECT_EQ(Printable(text), text);
    }
}

TEST(Printable, BytesThatAreNotUtf8AreReplacedOneByOne) {
    for (const char* const text : {"\xFF", "\x80", "\xC3", "\xC1", "\xF5"}) {
        EXPECT_EQ(Printable(text), "\xEF\xBF\xBD") << text;
    }
    EXPECT_EQ(Printable("\xED\xA0\x80"), "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD");  // a surrogate
    EXPECT_EQ(Printable("\xE0\x80\xAF"), "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD");  // overlong
    EXPECT_EQ(Printable("\xE2\x82z"), "\xEF\xBF\xBD\xEF\xBF\xBDz");
}

TEST(DisplayWidth, CountsCharacters) {
    EXPECT_EQ(DisplayWidth("\xE2\x82\xAC 5"), 3U);
    EXPECT_EQ(DisplayWidth(""), 0U);
}

TEST(WrapWords, TakesAsManyWordsAsFit) {
    EXPECT_EQ(WrapWords("one two three", 7), (Lines{"one two", "three"}));
    EXPECT_EQ(WrapWords("one two three", 8), (Lines{"one two", "three"}));
    EXPECT_EQ(WrapWords("one two three", 6), (Lines{"one", "two", "three"}));
    EXPECT_EQ(WrapWords("one two three", 13), Lines{"one two three"});
}

TEST(WrapWords, WithoutALimitTakesOneLine) {
    EXPECT_EQ(WrapWords("one two three", 0), Lines{"one two three"});
}

TEST(WrapWords, GivesALongWordALineOfItsOwn) {
    EXPECT_EQ(WrapWords("a longerword b", 4), (Lines{"a", "longerword", "b"}));
    EXPECT_EQ(WrapWords("longerword", 4), Lines{"longerword"});
}

TEST(WrapWords, LeavesNoBlanksAtTheEndOfALine) {
    EXPECT_EQ(WrapWords("one   two   ", 5), (Lines{"one", "two"}));
    EXPECT_EQ(WrapWords("one  ", 0), Lines{"one"});
}

TEST(WrapWords, KeepsBlanksWithinALine) {
    EXPECT_EQ(WrapWords("CPU   Q 720  @ 1.60GHz", 12), (Lines{"CPU   Q 720", "@ 1.60GHz"}));
}

TEST(WrapWords, GivesOneLineForNoText) {
    EXPECT_EQ(WrapWords("", 10), Lines{""});
    EXPECT_EQ(WrapWords("   ", 2), Lines{""});
}

TEST(WrapWords, CountsCharacters) {
    EXPECT_EQ(WrapWords("\xC3\xA9\xC3\xA9 \xC3\xA9", 4), Lines{"\xC3\xA9\xC3\xA9 \xC3\xA9"});
}

TEST(WrapWords, KeepsBlanksBeforeTheFirstWord) {
    EXPECT_EQ(WrapWords("  one two", 5), (Lines{"  one", "two"}));
    EXPECT_EQ(WrapWords("      one two", 4), (Lines{"      one", "two"}));
}

TEST(WrapWords, LooksAtATextOnceWhateverItsLength) {
    std::string text;
    for (int word = 0; word < 1'000'000; ++word) {
        text += "a ";
    }
    EXPECT_EQ(WrapWords(text, 3).size(), 500'000U);
    EXPECT_EQ(WrapWords(text, 1'000'000).size(), 2U);
}

TEST(CutTo, LeavesATextThatFits) {
    EXPECT_EQ(CutTo(5, "12345"), "12345");
    EXPECT_EQ(CutTo(5, "\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9"),
              "\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9");
    EXPECT_EQ(CutTo(5, ""), "");
}

TEST(CutTo, EndsAWiderTextWithAnEllipsis) {
    EXPECT_EQ(CutTo(5, "123456"), "1234\xE2\x80\xA6");
    EXPECT_EQ(CutTo(2, "\xC3\xA9\xC3\xA9\xC3\xA9"), "\xC3\xA9\xE2\x80\xA6");
    EXPECT_EQ(CutTo(1, "12"), "\xE2\x80\xA6");
}

TEST(BesideLabel, TextStandsBesideItsLabel) {
    const LabelledLines laidOut = BesideLabel("one two three", 10, 17);
    EXPECT_EQ(laidOut.lines, (Lines{"one two", "three"}));
    EXPECT_EQ(laidOut.indent, 10U);
    EXPECT_FALSE(laidOut.isBelow);
}

TEST(BesideLabel, AWordThatHasRoomOnlyBelowTheLabelIsNotBroken) {
    const LabelledLines laidOut = BesideLabel("one threeandmore", 10, 18);
    EXPECT_EQ(laidOut.lines, (Lines{"one", "threeandmore"}));
    EXPECT_EQ(laidOut.indent, 4U);
    EXPECT_TRUE(laidOut.isBelow);
}

TEST(BesideLabel, WithoutATerminalNoLineIsBroken) {
    const LabelledLines laidOut = BesideLabel("one two three", 10, 0);
    EXPECT_EQ(laidOut.lines, Lines{"one two three"});
    EXPECT_FALSE(laidOut.isBelow);
}

TEST(Emphasised, WithoutColoursIsTheTextItself) {
    EXPECT_EQ(Emphasised("text", Emphasis::warning, {}), "text");
}

TEST(Emphasised, WithColoursIsSetOff) {
    EXPECT_EQ(Emphasised("text", Emphasis::heading, {.colour = true}), "\x1B[1mtext\x1B[0m");
    EXPECT_EQ(Emphasised("text", Emphasis::warning, {.colour = true}), "\x1B[33mtext\x1B[0m");
    EXPECT_EQ(Emphasised("", Emphasis::warning, {.colour = true}), "");
}

TEST(PrintSentence, FitsTheTerminalAndIsSafeForIt) {
    std::ostringstream output;
    PrintSentence("one two\x1B three", {.width = 8}, output);
    EXPECT_EQ(output.str(), "one two\xEF\xBF\xBD\nthree\n");
}

TEST(ColumnTable, PutsARowOnALine) {
    EXPECT_EQ(Printed(TwoRows()),
              "NAME   SIZE    NOTE\n"
              "first  16 GiB  a note\n"
              "no. 2  -       -\n");
}

TEST(ColumnTable, StaysThatWayWhereItJustFits) {
    EXPECT_EQ(Printed(TwoRows(), {.width = 21}), Printed(TwoRows()));
}

TEST(ColumnTable, PutsARowInABlockWhereItDoesNotFit) {
    EXPECT_EQ(Printed(TwoRows(), {.width = 20}),
              "NAME  first\n"
              "SIZE  16 GiB\n"
              "NOTE  a note\n"
              "\n"
              "NAME  no. 2\n"
              "SIZE  -\n"
              "NOTE  -\n");
}

TEST(ColumnTable, WrapsLongValuesOfABlock) {
    ColumnTable table({"NAME", "A NOTE"});
    table.Add({"x", "words of a note"});
    EXPECT_EQ(Printed(table, {.width = 16}),
              "NAME    x\n"
              "A NOTE  words of\n"
              "        a note\n");
}

TEST(ColumnTable, CountsCharactersForItsColumns) {
    ColumnTable table({"A", "B"});
    table.Add({"\xC3\xA9\xC3\xA9", "x"});
    EXPECT_EQ(Printed(table), "A   B\n\xC3\xA9\xC3\xA9  x\n");
}

TEST(ColumnTable, CutsACellOfMoreThan60ColumnsWhereThereIsNoTerminal) {
    ColumnTable table({"A", "B"});
    table.Add({std::string(60, 'x'), "1"});
    table.Add({std::string(61, 'y'), "2"});
    EXPECT_EQ(Printed(table),
              "A" + std::string(61, ' ') + "B\n" + std::string(60, 'x') + "  1\n" + std::string(59, 'y') +
                  "\xE2\x80\xA6  2\n");
}

TEST(ColumnTable, ShowsALongCellWholeOnATerminal) {
    ColumnTable table({"A"});
    table.Add({std::string(61, 'y')});
    EXPECT_EQ(Printed(table, {.width = 20}), "A\n    " + std::string(61, 'y') + "\n");
    EXPECT_EQ(Printed(table, {.width = 61}), "A\n" + std::string(61, 'y') + "\n");
}

TEST(ColumnTable, IsSafeForATerminal) {
    ColumnTable table({"A"});
    table.Add({"\x1B[31m"});
    EXPECT_EQ(Printed(table), "A\n\xEF\xBF\xBD[31m\n");
}

TEST(ColumnTable, LeavesNoBlanksAtTheEndOfALine) {
    ColumnTable table({"A", "B"});
    table.Add({"x", "y  "});
    EXPECT_EQ(Printed(table), "A  B\nx  y\n");
}

TEST(ColumnTable, SetsOffItsHeadings) {
    ColumnTable table({"A", "B"});
    table.Add({"xx", "y"});
    EXPECT_EQ(Printed(table, {.colour = true}), "\x1B[1mA\x1B[0m   \x1B[1mB\x1B[0m\nxx  y\n");
    EXPECT_EQ(Printed(table, {.width = 4, .colour = true}), "\x1B[1mA\x1B[0m  xx\n\x1B[1mB\x1B[0m  y\n");
}

TEST(ColumnTable, WithoutRowsSaysSo) {
    EXPECT_EQ(Printed(ColumnTable({"A", "B"}, "nothing at all"), {.width = 10}), "nothing at\nall\n");
}

TEST(ColumnTable, WithoutRowsAndWordsForThatShowsItsHeadings) {
    EXPECT_EQ(Printed(ColumnTable({"A", "B"})), "A  B\n");
}

}  // namespace
}  // namespace SMBIOS::Inspect
