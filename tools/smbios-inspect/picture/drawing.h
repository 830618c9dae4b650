#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "smbios-inspect/picture/palette.h"
#include "smbios-inspect/picture/text_metrics.h"

// What a picture is made of, in whole pixels.
namespace SMBIOS::Inspect::Picture {

struct Rectangle {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    [[nodiscard]] constexpr int Right() const noexcept { return x + width; }

    /// So much smaller on each side.
    [[nodiscard]] constexpr Rectangle Inset(int horizontal, int vertical) const noexcept {
        return {x + horizontal, y + vertical, width - 2 * horizontal, height - 2 * vertical};
    }
};

enum class Side : std::uint8_t { left, right };

/// A line of text, which fits into its rectangle.
struct Label {
    Rectangle line;
    TextStyle style;
    Tone tone;
    Side side;
    std::string text;
};

/// Figures that go together, without words.
struct Mark {
    Tone tone;
    bool isFilled;
    int radius;
    std::vector<Rectangle> parts;
};

/// A rectangle with all that is in it. Its children lie within it, and beside one another.
struct Box {
    Rectangle frame;
    Surface surface = Surface::card;
    int radius = 0;
    std::string tooltip = {};
    std::vector<Mark> marks = {};
    std::vector<Label> labels = {};
    std::vector<Box> children = {};

    /// Writes printable text into the upper left corner of `line`, or its upper right one, shortened to its
    /// width.
    void Write(
        const Rectangle& line, TextStyle style, Tone tone, std::string_view text, Side side = Side::left);
};

}  // namespace SMBIOS::Inspect::Picture
