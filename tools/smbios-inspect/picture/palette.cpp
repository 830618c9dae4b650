#include "smbios-inspect/picture/palette.h"

namespace SMBIOS::Inspect::Picture {

namespace {

// One colour a type of memory, the stronger the larger the module.
constexpr SurfaceColour kSurfaces[] = {
    {Surface::page, "page", "#f4f6f9", "#12171e"},
    {Surface::blank, "blank", "none", "none"},
    {Surface::card, "card", "#ffffff", "#1b222c", Outline::line},
    {Surface::free, "free", "#f4f6f9", "#12171e", Outline::dashes},
    {Surface::edge, "edge", "#e4e9f0", "#222b37"},
    {Surface::cache1, "cache1", "#cbd9ec", "#3a4c66"},
    {Surface::cache2, "cache2", "#dde7f3", "#2e3d52"},
    {Surface::cache3, "cache3", "#edf2f9", "#253141"},
    {Surface::olderSmall, "older-s", "#f6ecd6", "#3a301c"},
    {Surface::olderMedium, "older-m", "#eeddb6", "#4c3f24"},
    {Surface::olderLarge, "older-l", "#e3ca90", "#5f4e2b"},
    {Surface::ddr3Small, "ddr3-s", "#d8f0ea", "#173a35"},
    {Surface::ddr3Medium, "ddr3-m", "#b7e3d8", "#1d4c45"},
    {Surface::ddr3Large, "ddr3-l", "#8dd2c2", "#245f56"},
    {Surface::ddr4Small, "ddr4-s", "#dde9fb", "#1c304d"},
    {Surface::ddr4Medium, "ddr4-m", "#bfd7f8", "#244066"},
    {Surface::ddr4Large, "ddr4-l", "#9ac0f3", "#2d5180"},
    {Surface::ddr5Small, "ddr5-s", "#eae4fb", "#30284c"},
    {Surface::ddr5Medium, "ddr5-m", "#d7caf7", "#403565"},
    {Surface::ddr5Large, "ddr5-l", "#bfa9f2", "#51437f"},
    {Surface::otherSmall, "other-s", "#e6eaef", "#29313b"},
    {Surface::otherMedium, "other-m", "#d1d9e2", "#36404c"},
    {Surface::otherLarge, "other-l", "#b9c5d1", "#434f5e"},
};

constexpr ToneColour kTones[] = {
    {Tone::ink, "ink", "#1a222d", "#e8edf4"},
    {Tone::muted, "muted", "#566274", "#a0adbd"},
    {Tone::accent, "accent", "#2b6cc4", "#6ba6f0"},
    {Tone::good, "good", "#1d7f4c", "#56c389"},
    {Tone::warning, "warning", "#9a5b00", "#e3ab45"},
    {Tone::critical, "critical", "#c02f36", "#f4878b"},
};

template <class Rows, class Name>
constexpr bool AreInOrder(const Rows& rows, Name name) {
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        if (static_cast<std::size_t>(rows[i].*name) != i) {
            return false;
        }
    }
    return true;
}
static_assert(AreInOrder(kSurfaces, &SurfaceColour::surface));
static_assert(AreInOrder(kTones, &ToneColour::tone));

}  // namespace

std::span<const SurfaceColour> SurfaceColours() noexcept {
    return kSurfaces;
}

std::span<const ToneColour> ToneColours() noexcept {
    return kTones;
}

LineColour OutlineColour() noexcept {
    return {"#d3dbe5", "#333e4c"};
}

LineColour DashColour() noexcept {
    return {"#8793a4", "#66758a"};
}

}  // namespace SMBIOS::Inspect::Picture
