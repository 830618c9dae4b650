#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

// All colours of the picture. Those of the enumerations are names of classes in its style sheet.
namespace SMBIOS::Inspect::Picture {

/// What a box is filled with.
enum class Surface : std::uint8_t {
    page,
    blank,  ///< nothing of its own
    card,
    free,  ///< a place where something can be added
    edge,
    cache1,
    cache2,
    cache3,
    olderSmall,
    olderMedium,
    olderLarge,
    ddr3Small,
    ddr3Medium,
    ddr3Large,
    ddr4Small,
    ddr4Medium,
    ddr4Large,
    ddr5Small,
    ddr5Medium,
    ddr5Large,
    otherSmall,
    otherMedium,
    otherLarge,
};

/// What text and marks are drawn in.
enum class Tone : std::uint8_t { ink, muted, accent, good, warning, critical };

enum class Outline : std::uint8_t { none, line, dashes };

struct SurfaceColour {
    Surface surface;
    std::string_view name;
    std::string_view light;
    std::string_view dark;
    Outline outline = Outline::none;
};

struct ToneColour {
    Tone tone;
    std::string_view name;
    std::string_view light;
    std::string_view dark;
};

/// Of all outlines.
struct LineColour {
    std::string_view light;
    std::string_view dark;
};

[[nodiscard]] std::span<const SurfaceColour> SurfaceColours() noexcept;
[[nodiscard]] std::span<const ToneColour> ToneColours() noexcept;
[[nodiscard]] LineColour OutlineColour() noexcept;
[[nodiscard]] LineColour DashColour() noexcept;

[[nodiscard]] inline std::string_view NameOf(Surface surface) noexcept {
    return SurfaceColours()[static_cast<std::size_t>(surface)].name;
}
[[nodiscard]] inline std::string_view NameOf(Tone tone) noexcept {
    return ToneColours()[static_cast<std::size_t>(tone)].name;
}

}  // namespace SMBIOS::Inspect::Picture
