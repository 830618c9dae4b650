#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "smbios-inspect/picture/text_metrics.h"
#include "tests/inspect/picture/xml_reader.h"

// A picture as a browser would read it.
namespace SMBIOS::Tests {

/// In half pixels.
struct Extent {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    [[nodiscard]] bool Contains(const Extent& other) const {
        return left <= other.left && top <= other.top && other.right <= right && other.bottom <= bottom;
    }
    [[nodiscard]] bool Overlaps(const Extent& other) const {
        return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
    }
};

struct DrawnText {
    Extent extent;  ///< as wide as the text at most is, as high as its line
    std::string tone;
    std::string text;
};

struct DrawnBox {
    Extent extent;
    std::string surface;
    std::string tooltip;
    std::optional<std::size_t> parent;  ///< its place in the list
    std::vector<DrawnText> texts;
    std::vector<std::string> marks;  ///< names of their classes
};

struct DrawnPicture {
    std::vector<DrawnBox> boxes;  ///< the page first, each in front of its children
    std::string styleSheet;
};

/// Reads a picture. Throws an exception when it has an element that pictures do not have.
[[nodiscard]] DrawnPicture ReadPicture(std::string_view svg);

/// The picture of a raw table.
[[nodiscard]] std::string SvgOf(const std::vector<std::uint8_t>& rawTable);
[[nodiscard]] DrawnPicture PictureOf(const std::vector<std::uint8_t>& rawTable);

/// The boxes whose tooltip begins with "Type N:".
[[nodiscard]] std::vector<DrawnBox> BoxesOfType(const DrawnPicture& picture, int type);

/// All texts of a box.
[[nodiscard]] std::vector<std::string> TextsOf(const DrawnBox& box);

/// All texts on the page, those in boxes within it not among them.
[[nodiscard]] std::vector<std::string> TextsOnPage(const DrawnPicture& picture);

/// Everything that holds for each picture: boxes lie within their parents and beside one another; texts
/// within their boxes, and neither over one another nor over boxes; every box has a tooltip; texts and marks
/// stand out from what is behind them in light and dark. What does not hold, a line each.
[[nodiscard]] std::string FaultsOf(const DrawnPicture& picture);

}  // namespace SMBIOS::Tests
