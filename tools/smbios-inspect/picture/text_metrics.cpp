#include "smbios-inspect/picture/text_metrics.h"

#include <array>
#include <cstddef>

#include "smbios-inspect/output/text_layout.h"
#include "smbios-inspect/output/utf8.h"

namespace SMBIOS::Inspect::Picture {

namespace {

constexpr std::size_t kAsciiCount = 0x7F - 0x20;
constexpr std::size_t kLatin1Count = 0x100 - 0xA0;
using Advances = std::array<std::uint16_t, kAsciiCount + kLatin1Count>;

// Advance widths in 1/2048 of the size, of U+0020 to U+007E and U+00A0 to U+00FF, as fontTools reads them
// from the tables "cmap" and "hmtx" of DejaVu Sans 2.37: the last of the typefaces named in the style sheet,
// and the widest. Pairs of letters that a font draws closer together only make a text narrower.
// clang-format off
constexpr Advances kRegular = {
    651, 821, 942, 1716, 1303, 1946, 1597, 563, 799, 799, 1024, 1716, 651, 739, 651, 690,  // U+0020
    1303, 1303, 1303, 1303, 1303, 1303, 1303, 1303, 1303, 1303, 690, 690, 1716, 1716, 1716, 1087,  // U+0030
    2048, 1401, 1405, 1430, 1577, 1294, 1178, 1587, 1540, 604, 604, 1343, 1141, 1767, 1532, 1612,  // U+0040
    1235, 1612, 1423, 1300, 1251, 1499, 1401, 2025, 1403, 1251, 1403, 799, 690, 799, 1716, 1024,  // U+0050
    1024, 1255, 1300, 1126, 1300, 1260, 721, 1300, 1298, 569, 569, 1186, 569, 1995, 1298, 1253,  // U+0060
    1300, 1300, 842, 1067, 803, 1298, 1212, 1675, 1212, 1212, 1075, 1303, 690, 1303, 1716,  // U+0070
    651, 821, 1303, 1303, 1303, 1303, 690, 1024, 1024, 2048, 965, 1253, 1716, 739, 2048, 1024,  // U+00A0
    1024, 1716, 821, 821, 1024, 1303, 1303, 651, 1024, 821, 965, 1253, 1985, 1985, 1985, 1087,  // U+00B0
    1401, 1401, 1401, 1401, 1401, 1401, 1995, 1430, 1294, 1294, 1294, 1294, 604, 604, 604, 604,  // U+00C0
    1587, 1532, 1612, 1612, 1612, 1612, 1612, 1716, 1612, 1499, 1499, 1499, 1499, 1251, 1239, 1290,  // U+00D0
    1255, 1255, 1255, 1255, 1255, 1255, 2011, 1126, 1260, 1260, 1260, 1260, 569, 569, 569, 569,  // U+00E0
    1253, 1298, 1253, 1253, 1253, 1253, 1253, 1716, 1253, 1298, 1298, 1298, 1298, 1212, 1300, 1212,  // U+00F0
};

constexpr Advances kBold = {
    713, 934, 1067, 1716, 1425, 2052, 1786, 627, 936, 936, 1071, 1716, 778, 850, 778, 748,  // U+0020
    1425, 1425, 1425, 1425, 1425, 1425, 1425, 1425, 1425, 1425, 819, 819, 1716, 1716, 1716, 1188,  // U+0030
    2048, 1585, 1561, 1503, 1700, 1399, 1399, 1681, 1714, 762, 762, 1587, 1305, 2038, 1714, 1741,  // U+0040
    1501, 1741, 1577, 1475, 1397, 1663, 1585, 2259, 1579, 1483, 1485, 936, 748, 936, 1716, 1024,  // U+0050
    1024, 1382, 1466, 1214, 1466, 1389, 891, 1466, 1458, 702, 702, 1362, 702, 2134, 1458, 1407,  // U+0060
    1466, 1466, 1010, 1219, 979, 1458, 1335, 1892, 1321, 1335, 1192, 1458, 748, 1458, 1716,  // U+0070
    713, 934, 1425, 1425, 1303, 1425, 748, 1024, 1024, 2048, 1155, 1323, 1716, 850, 2048, 1024,  // U+00A0
    1024, 1716, 897, 897, 1024, 1507, 1303, 778, 1024, 897, 1155, 1323, 2120, 2120, 2120, 1188,  // U+00B0
    1585, 1585, 1585, 1585, 1585, 1585, 2222, 1503, 1399, 1399, 1399, 1399, 762, 762, 762, 762,  // U+00C0
    1716, 1714, 1741, 1741, 1741, 1741, 1741, 1716, 1741, 1663, 1663, 1663, 1663, 1483, 1511, 1473,  // U+00D0
    1382, 1382, 1382, 1382, 1382, 1382, 2146, 1214, 1389, 1389, 1389, 1389, 702, 702, 702, 702,  // U+00E0
    1407, 1458, 1407, 1407, 1407, 1407, 1407, 1716, 1407, 1458, 1458, 1458, 1458, 1335, 1466, 1335,  // U+00F0
};
// clang-format on

constexpr int kUnitsPerSize = 2048;

/// What nobody has measured: wider than an ideograph, which is as wide as it is high.
constexpr int kOtherAdvance = 2304;

constexpr std::string_view kEllipsis = "\xE2\x80\xA6";  // U+2026
constexpr int kEllipsisAdvance = 2048;

constexpr TextShape kShapes[] = {
    {.size = 24, .isBold = true, .lineHeight = 32, .baseline = 24},   // title
    {.size = 16, .isBold = true, .lineHeight = 24, .baseline = 18},   // heading
    {.size = 12, .isBold = true, .lineHeight = 16, .baseline = 12},   // name
    {.size = 12, .isBold = false, .lineHeight = 16, .baseline = 12},  // body
};

/// The first character of printable UTF-8.
std::string_view FirstOf(std::string_view text) noexcept {
    return text.substr(0, StartOf(text).length);
}

/// Where a character stands in the tables of widths; past their end for all others.
std::size_t PlaceOf(std::string_view character) noexcept {
    const auto first = static_cast<unsigned char>(character.front());
    if (character.size() == 1 && 0x20 <= first && first < 0x7F) {
        return first - 0x20U;
    }
    if (character.size() == 2 && first <= 0xC3) {
        const unsigned codePoint = (first & 0x1FU) << 6 | (static_cast<unsigned char>(character[1]) & 0x3FU);
        return codePoint < 0xA0 ? Advances().size() : kAsciiCount + codePoint - 0xA0;
    }
    return Advances().size();
}

int AdvanceOf(std::string_view character, bool isBold) noexcept {
    const std::size_t place = PlaceOf(character);
    if (place < Advances().size()) {
        return (isBold ? kBold : kRegular)[place];
    }
    return character == kEllipsis ? kEllipsisAdvance : kOtherAdvance;
}

}  // namespace

TextShape ShapeOf(TextStyle style) noexcept {
    return kShapes[static_cast<std::size_t>(style)];
}

int TextWidth(std::string_view text, TextStyle style) noexcept {
    const TextShape shape = ShapeOf(style);
    int units = 0;
    while (!text.empty()) {
        const std::string_view character = FirstOf(text);
        units += AdvanceOf(character, shape.isBold);
        text.remove_prefix(character.size());
    }
    return (units * shape.size + kUnitsPerSize - 1) / kUnitsPerSize;
}

bool IsMeasured(std::string_view text) noexcept {
    while (!text.empty()) {
        const std::string_view character = FirstOf(text);
        if (PlaceOf(character) >= Advances().size() && character != kEllipsis) {
            return false;
        }
        text.remove_prefix(character.size());
    }
    return true;
}

std::string FittedTo(int width, std::string_view text, TextStyle style) {
    if (TextWidth(text, style) <= width) {
        return std::string(text);
    }
    const TextShape shape = ShapeOf(style);
    const int room = width * kUnitsPerSize / shape.size - kEllipsisAdvance;
    if (room < 0) {
        return {};
    }
    int units = 0;
    std::size_t end = 0;
    while (end < text.size()) {
        const std::string_view character = FirstOf(text.substr(end));
        units += AdvanceOf(character, shape.isBold);
        if (units > room) {
            break;
        }
        end += character.size();
    }
    return std::string(WithoutTrailingBlanks(text.substr(0, end))).append(kEllipsis);
}

}  // namespace SMBIOS::Inspect::Picture
