#include <algorithm>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "smbios-inspect/picture/sections.h"
#include "smbios-inspect/picture/words.h"

// Slots, devices on board, probes and connectors: tiles of one size.
namespace SMBIOS::Inspect::Picture {

namespace {

constexpr int kTileHeight = 2 * kLine + 2 * kUnit;
constexpr int kSlotHeight = 3 * kLine + 2 * kUnit;

constexpr int kTileGap = 2 * kUnit;

/// As long as the slot is wide: an x16 slot fills the room.
int SlotLength(unsigned lanes, int room) noexcept {
    constexpr unsigned kMostLanes = 16;
    const int length = room * static_cast<int>(std::min(lanes, kMostLanes)) / static_cast<int>(kMostLanes);
    return lanes == 0 ? 0 : std::max(length, kUnit);
}

Box SlotBox(const Slot& slot, const Rectangle& frame) {
    constexpr int kUsageWidth = 9 * kUnit;
    constexpr int kBarStart = kUsageWidth + kUnit;
    const bool isFree = slot.usage == Usage::free;
    Box box{.frame = frame,
            .surface = isFree ? Surface::free : Surface::card,
            .radius = kUnit,
            .tooltip = slot.tooltip};
    Rectangle line = frame.Inset(kPadding, slot.type.empty() ? kUnit + kLine / 2 : kUnit);
    box.Write(line, TextStyle::name, isFree ? Tone::muted : Tone::ink, slot.name);
    if (!slot.type.empty()) {
        line.y += kLine;
        box.Write(line, TextStyle::body, Tone::muted, slot.type);
    }
    line.y += kLine;
    box.Write({line.x, line.y, kUsageWidth, 0}, TextStyle::body, Tone::muted, slot.usageText);
    const int length = SlotLength(slot.lanes, line.width - kBarStart);
    if (length != 0) {
        box.marks.push_back({isFree ? Tone::muted : Tone::accent,
                             slot.usage == Usage::inUse,
                             kUnit / 4,
                             {{line.x + kBarStart, line.y + kUnit / 2, length, kUnit}}});
    }
    return box;
}

Tone ToneOf(Health health) noexcept {
    constexpr Tone kTonesOf[] = {Tone::muted, Tone::good, Tone::warning, Tone::critical};
    return kTonesOf[static_cast<std::size_t>(health)];
}

/// A name that has nothing below it stands in the middle.
Box PartBox(const Part& part, const Rectangle& frame) {
    Box box{.frame = frame,
            .surface = part.isPresent ? Surface::card : Surface::free,
            .radius = kUnit,
            .tooltip = part.tooltip};
    Rectangle line = frame.Inset(kPadding, part.detail.empty() ? kUnit + kLine / 2 : kUnit);
    box.Write(line, TextStyle::name, part.isPresent ? Tone::ink : Tone::muted, part.name);
    line.y += kLine;
    box.Write(line, TextStyle::body, Tone::muted, part.detail);
    return box;
}

/// The state as a spot in front of the words for it.
Box SensorBox(const Part& sensor, const Rectangle& frame) {
    constexpr int kSpotRoom = 2 * kUnit;
    Box box{.frame = frame, .surface = Surface::card, .radius = kUnit, .tooltip = sensor.tooltip};
    Rectangle line = frame.Inset(kPadding, kUnit);
    box.Write(line, TextStyle::name, Tone::ink, sensor.name);
    line = {line.x + kSpotRoom, line.y + kLine, line.width - kSpotRoom, 0};
    box.marks.push_back({ToneOf(sensor.health),
                         sensor.health != Health::unknown,
                         kUnit / 2,
                         {{frame.x + kPadding, line.y + kUnit / 2, kUnit, kUnit}}});
    box.Write(line, TextStyle::body, Tone::muted, sensor.detail.empty() ? "state unknown" : sensor.detail);
    return box;
}

/// A section of tiles, before it has a place.
struct TileSection {
    std::string_view name;
    std::string summary;
    int tileHeight;
    std::size_t count;
    std::size_t leftOut;
    std::function<Box(std::size_t, const Rectangle&)> makeTile;

    /// Two of these have room side by side.
    [[nodiscard]] bool IsNarrow() const noexcept { return count <= 2 && leftOut == 0; }
};

template <class Thing>
TileSection SectionOf(std::string_view name,
                      std::string summary,
                      int tileHeight,
                      const Kept<Thing>& things,
                      Box (*makeBox)(const Thing&, const Rectangle&)) {
    return {name,
            std::move(summary),
            tileHeight,
            things.items.size(),
            things.leftOut,
            [&things, makeBox](std::size_t index, const Rectangle& frame) {
                return makeBox(things.items[index], frame);
            }};
}

/// Those that are not empty.
std::vector<TileSection> SectionsOf(const Machine& machine) {
    const std::string free = machine.slotsFree == 0 ? "none" : CountText(machine.slotsFree);
    std::vector<TileSection> sections;
    sections.push_back(SectionOf("Expansion slots",
                                 Dotted({Counted(machine.slots.Count(), "slot"), free + " free"}),
                                 kSlotHeight,
                                 machine.slots,
                                 SlotBox));
    sections.push_back(SectionOf(
        "On board", Counted(machine.onBoard.Count(), "device"), kTileHeight, machine.onBoard, PartBox));
    sections.push_back(SectionOf("Temperature and cooling", "", kTileHeight, machine.sensors, SensorBox));
    std::erase_if(sections, [](const TileSection& section) { return section.count == 0; });
    return sections;
}

/// Adds a section between two edges; returns its height.
int AddSection(const TileSection& section, int x, int width, int columns, Page& page) {
    const int heading = page.WriteHeading({x, page.Y(), width, 0}, section.name, section.summary);
    const Grid grid{.x = x,
                    .y = page.Y() + heading,
                    .width = width,
                    .columns = columns,
                    .gap = kTileGap,
                    .rowHeight = section.tileHeight};
    for (std::size_t i = 0; i < section.count; ++i) {
        page.Add(section.makeTile(i, grid.Cell(i)));
    }
    return heading + grid.Height(section.count);
}

}  // namespace

void AddTiles(const Machine& machine, Page& page) {
    constexpr int kHalf = (kContentWidth - kTileGap) / 2;
    const std::vector<TileSection> sections = SectionsOf(machine);
    for (std::size_t i = 0; i < sections.size(); ++i) {
        page.Advance(kSectionGap);
        int height = 0;
        if (i + 1 < sections.size() && sections[i].IsNarrow() && sections[i + 1].IsNarrow()) {
            height = AddSection(sections[i], kMargin, kHalf, 2, page);
            ++i;
            const int x = kMargin + kHalf + kTileGap;
            height = std::max(height, AddSection(sections[i], x, kHalf, 2, page));
        } else {
            height = AddSection(sections[i], kMargin, kContentWidth, 4, page);
        }
        page.Advance(height);
        page.NoteLeftOut(sections[i].leftOut);
    }
}

/// On a strip of their own, as they sit on the edge of a machine.
void AddConnectors(const Machine& machine, Page& page) {
    const Kept<Part>& connectors = machine.connectors;
    if (connectors.items.empty()) {
        return;
    }
    const std::string count = Counted(connectors.Count(), "connector");
    page.BeginSection("Connectors", count);
    const Grid grid{.x = kMargin + kUnit,
                    .y = page.Y() + kUnit,
                    .width = kContentWidth - 2 * kUnit,
                    .columns = 4,
                    .gap = kUnit,
                    .rowHeight = kTileHeight};
    const int height = grid.Height(connectors.items.size()) + 2 * kUnit;
    Box edge{.frame = {kMargin, page.Y(), kContentWidth, height},
             .surface = Surface::edge,
             .radius = kUnit,
             .tooltip = count};
    for (std::size_t i = 0; i < connectors.items.size(); ++i) {
        edge.children.push_back(PartBox(connectors.items[i], grid.Cell(i)));
    }
    page.Add(std::move(edge));
    page.Advance(height);
    page.NoteLeftOut(connectors.leftOut);
}

}  // namespace SMBIOS::Inspect::Picture
