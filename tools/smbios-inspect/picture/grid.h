#pragma once

#include <cstddef>

#include "smbios-inspect/picture/drawing.h"

namespace SMBIOS::Inspect::Picture {

/// All distances are multiples of it.
inline constexpr int kUnit = 8;

inline constexpr int kPageWidth = 120 * kUnit;
inline constexpr int kMargin = 3 * kUnit;
inline constexpr int kContentWidth = kPageWidth - 2 * kMargin;
inline constexpr int kPadding = 2 * kUnit;
inline constexpr int kSectionGap = 3 * kUnit;
inline constexpr int kLine = 2 * kUnit;  ///< of plain text

/// Boxes of one size in rows.
struct Grid {
    int x;
    int y;
    int width;
    int columns;
    int gap;
    int rowHeight;

    [[nodiscard]] constexpr Rectangle Cell(std::size_t index) const noexcept {
        const int column = static_cast<int>(index) % columns;
        const int row = static_cast<int>(index) / columns;
        const int left = column * (width + gap) / columns;
        const int right = (column + 1) * (width + gap) / columns - gap;
        return {x + left, y + row * (rowHeight + gap), right - left, rowHeight};
    }

    /// Of the rows that so many boxes take.
    [[nodiscard]] constexpr int Height(std::size_t count) const noexcept {
        const int rows = (static_cast<int>(count) + columns - 1) / columns;
        return rows == 0 ? 0 : rows * (rowHeight + gap) - gap;
    }
};

}  // namespace SMBIOS::Inspect::Picture
