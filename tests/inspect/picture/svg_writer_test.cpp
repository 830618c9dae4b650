#include "smbios-inspect/picture/svg_writer.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace SMBIOS::Inspect::Picture {
namespace {

std::string SvgOf(const Box& page) {
    std::ostringstream output;
    WriteSvg(page, output);
    return output.str();
}

/// What stands behind the style sheet.
std::string BodyOf(const Box& page) {
    const std::string svg = SvgOf(page);
    const std::string_view end = "</style>\n";
    return svg.substr(svg.find(end) + end.size());
}

TEST(SvgWriter, WritesABoxWithoutAnOutlineOnWholePixels) {
    EXPECT_EQ(BodyOf({.frame = {0, 0, 960, 8}, .surface = Surface::page}),
              "<rect class=\"page\" x=\"0\" y=\"0\" width=\"960\" height=\"8\"/>\n</svg>\n");
}

TEST(SvgWriter, WritesAnOutlineInTheMiddleOfItsPixels) {
    EXPECT_EQ(BodyOf({.frame = {8, 16, 100, 24}, .surface = Surface::card, .radius = 8}),
              "<rect class=\"card\" x=\"8.5\" y=\"16.5\" width=\"99\" height=\"23\" rx=\"7.5\"/>\n</svg>\n");
}

TEST(SvgWriter, WritesMarksAsPathsWithRoundCorners) {
    Box page{.frame = {0, 0, 8, 8}, .surface = Surface::page};
    page.marks = {{Tone::good, true, 4, {{0, 0, 8, 8}}}, {Tone::muted, false, 2, {{0, 0, 20, 8}}}};
    EXPECT_EQ(
        BodyOf(page),
        "<rect class=\"page\" x=\"0\" y=\"0\" width=\"8\" height=\"8\"/>\n"
        "<path class=\"good\" d=\"M4 0h0a4 4 0 0 1 4 4v0a4 4 0 0 1 -4 4h0a4 4 0 0 1 -4 -4v0a4 4 0 0 1 "
        "4 -4z\"/>\n"
        "<path class=\"muted-line\" d=\"M2 0.5h16a1.5 1.5 0 0 1 1.5 1.5v4a1.5 1.5 0 0 1 -1.5 1.5h-16a1.5 "
        "1.5 0 0 1 -1.5 -1.5v-4a1.5 1.5 0 0 1 1.5 -1.5z\"/>\n"
        "</svg>\n");
}

TEST(SvgWriter, WritesTextOnItsBaselineFromEitherSide) {
    Box page{.frame = {0, 0, 100, 32}, .surface = Surface::page};
    page.Write({8, 16, 84, 0}, TextStyle::body, Tone::ink, "left");
    page.Write({8, 0, 84, 0}, TextStyle::name, Tone::muted, "right", Side::right);
    EXPECT_EQ(BodyOf(page),
              "<rect class=\"page\" x=\"0\" y=\"0\" width=\"100\" height=\"32\"/>\n"
              "<text class=\"body ink\" x=\"8\" y=\"28\">left</text>\n"
              "<text class=\"name muted right\" x=\"92\" y=\"12\">right</text>\n"
              "</svg>\n");
}

TEST(SvgWriter, WritesChildrenAsGroupsWithTheirTooltips) {
    Box page{.frame = {0, 0, 8, 8}, .surface = Surface::page};
    page.children = {{.frame = {0, 0, 4, 4}, .surface = Surface::edge, .tooltip = "a<b"}};
    EXPECT_EQ(BodyOf(page),
              "<rect class=\"page\" x=\"0\" y=\"0\" width=\"8\" height=\"8\"/>\n"
              "<g>\n<title>a&lt;b</title>\n"
              "<rect class=\"edge\" x=\"0\" y=\"0\" width=\"4\" height=\"4\"/>\n</g>\n"
              "</svg>\n");
}

TEST(SvgWriter, HasAClassOfEachColourInBothModes) {
    const std::string svg = SvgOf({.frame = {0, 0, 8, 8}, .surface = Surface::page});
    const std::size_t dark = svg.find("@media (prefers-color-scheme:dark){");
    for (const SurfaceColour& surface : SurfaceColours()) {
        const std::string name = "." + std::string(surface.name) + "{fill:";
        EXPECT_LT(svg.find(name + std::string(surface.light)), dark) << surface.name;
        EXPECT_NE(svg.find(name + std::string(surface.dark), dark), std::string::npos) << surface.name;
    }
}

}  // namespace
}  // namespace SMBIOS::Inspect::Picture
