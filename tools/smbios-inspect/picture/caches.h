#pragma once

#include <vector>

#include "smbios-inspect/picture/drawing.h"
#include "smbios-inspect/picture/machine.h"

// Caches, each level within the one outside of it.
namespace SMBIOS::Inspect::Picture {

/// How a level stands in the one outside of it: beside its name, or below it.
enum class Nesting : std::uint8_t { beside, below };

/// How high so many levels are.
[[nodiscard]] int HeightOfCaches(std::size_t levels, Nesting nesting) noexcept;

/// The boxes of the caches, the outermost first, from the upper edge of `area` and as wide as it is.
[[nodiscard]] std::vector<Box> CacheBoxes(const std::vector<std::vector<Cache>>& levels,
                                          const Rectangle& area,
                                          Nesting nesting);

}  // namespace SMBIOS::Inspect::Picture
