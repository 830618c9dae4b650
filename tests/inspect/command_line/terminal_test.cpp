#include "smbios-inspect/command_line/terminal.h"

#include <gtest/gtest.h>

namespace SMBIOS::Inspect {
namespace {

constexpr Terminal kTerminal = {.columns = 80, .takesEscapeSequences = true, .kind = "xterm"};

Terminal With(const char* noColour, const char* kind) {
    Terminal terminal = kTerminal;
    terminal.noColour = noColour;
    terminal.kind = kind;
    return terminal;
}

TEST(Style, OfATerminalHasItsWidthAndColours) {
    EXPECT_EQ(StyleFor(kTerminal).width, 80U);
    EXPECT_TRUE(StyleFor(kTerminal).colour);
}

TEST(Style, OfNoTerminalHasNeither) {
    EXPECT_EQ(StyleFor({.kind = "xterm"}).width, 0U);
    EXPECT_FALSE(StyleFor({.kind = "xterm"}).colour);
}

TEST(Style, HasNoColoursWhenNoColorIsSetToAnyText) {
    EXPECT_FALSE(StyleFor(With("1", "xterm")).colour);
    EXPECT_FALSE(StyleFor(With("0", "xterm")).colour);
}

TEST(Style, HasColoursWhenNoColorIsEmpty) {
    EXPECT_TRUE(StyleFor(With("", "xterm")).colour);
}

TEST(Style, HasNoColoursOnADumbTerminal) {
    EXPECT_FALSE(StyleFor(With(nullptr, "dumb")).colour);
}

TEST(Style, HasColoursOnATerminalOfUnknownKind) {
    EXPECT_TRUE(StyleFor(With(nullptr, nullptr)).colour);
}

}  // namespace
}  // namespace SMBIOS::Inspect
