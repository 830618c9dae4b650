#include "smbios-inspect/picture/caches.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <utility>

#include "smbios-inspect/picture/grid.h"

namespace SMBIOS::Inspect::Picture {

namespace {

constexpr int kInnermostHeight = 3 * kUnit;
constexpr int kNameWidth = 11 * kUnit;

using Levels = std::span<const std::vector<Cache>>;

/// By how many levels are within.
constexpr Surface kSurfaces[] = {Surface::cache1, Surface::cache2, Surface::cache3};

int HeightOf(std::size_t levels, Nesting nesting) noexcept {
    const int step = nesting == Nesting::beside ? 2 * kUnit : 4 * kUnit;
    return levels == 0 ? 0 : kInnermostHeight + (static_cast<int>(levels) - 1) * step;
}

Rectangle Within(const Rectangle& frame, Nesting nesting) noexcept {
    if (nesting == Nesting::beside) {
        return {frame.x + kNameWidth,
                frame.y + kUnit,
                frame.width - kNameWidth - kUnit,
                frame.height - 2 * kUnit};
    }
    return {frame.x + kUnit, frame.y + 3 * kUnit, frame.width - 2 * kUnit, frame.height - 4 * kUnit};
}

Box CacheBox(const Cache& cache, Levels within, const Rectangle& frame, Nesting nesting) {
    const bool isInnermost = within.empty();
    Box box{.frame = frame,
            .surface = kSurfaces[std::min(within.size(), std::size(kSurfaces) - 1)],
            .radius = kUnit / 2,
            .tooltip = cache.tooltip};
    const bool isBeside = nesting == Nesting::beside && !isInnermost;
    const int nameHeight = isBeside ? frame.height : kInnermostHeight;
    const int nameWidth = (isBeside ? kNameWidth : frame.width) - 2 * kUnit;
    box.Write({frame.x + kUnit, frame.y + (nameHeight - kLine) / 2, nameWidth, 0},
              TextStyle::body,
              Tone::ink,
              cache.text);
    return box;
}

/// The caches of the first level side by side, and all further levels in the first of them.
std::vector<Box> BoxesOf(Levels levels, const Rectangle& area, Nesting nesting) {
    std::vector<Box> boxes;
    if (levels.empty()) {
        return boxes;
    }
    const std::vector<Cache>& caches = levels.front();
    const Levels within = levels.subspan(1);
    const Grid grid{.x = area.x,
                    .y = area.y,
                    .width = area.width,
                    .columns = static_cast<int>(caches.size()),
                    .gap = kUnit,
                    .rowHeight = area.height};
    for (std::size_t i = 0; i < caches.size(); ++i) {
        const Levels own = i == 0 ? within : Levels();
        Box box = CacheBox(caches[i], own, grid.Cell(i), nesting);
        box.children = BoxesOf(own, Within(box.frame, nesting), nesting);
        boxes.push_back(std::move(box));
    }
    return boxes;
}

}  // namespace

int HeightOfCaches(std::size_t levels, Nesting nesting) noexcept {
    return HeightOf(levels, nesting);
}

std::vector<Box> CacheBoxes(const std::vector<std::vector<Cache>>& levels,
                            const Rectangle& area,
                            Nesting nesting) {
    return BoxesOf(levels, {area.x, area.y, area.width, HeightOf(levels.size(), nesting)}, nesting);
}

}  // namespace SMBIOS::Inspect::Picture
