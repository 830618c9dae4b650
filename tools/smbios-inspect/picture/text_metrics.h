#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// How wide text is, without a font at hand.
namespace SMBIOS::Inspect::Picture {

/// The styles of text: few, so that the picture is of one piece.
enum class TextStyle : std::uint8_t { title, heading, name, body };

struct TextShape {
    int size;  ///< in pixels
    bool isBold;
    int lineHeight;
    int baseline;  ///< below the line's upper edge
};

[[nodiscard]] TextShape ShapeOf(TextStyle style) noexcept;

/// The most pixels that printable UTF-8 takes in any font of the picture's typefaces, rounded up.
[[nodiscard]] int TextWidth(std::string_view text, TextStyle style) noexcept;

/// Whether the width of each character is known; of others it is a guess, and a font may be wider.
[[nodiscard]] bool IsMeasured(std::string_view text) noexcept;

/// Printable text of at most so many pixels: a wider one ends with an ellipsis there. Empty where not even
/// that has room.
[[nodiscard]] std::string FittedTo(int width, std::string_view text, TextStyle style);

}  // namespace SMBIOS::Inspect::Picture
