#include <algorithm>
#include <cstddef>
#include <utility>

#include "smbios-inspect/output/units.h"
#include "smbios-inspect/picture/sections.h"
#include "smbios-inspect/picture/words.h"

// Memory arrays with their slots.
namespace SMBIOS::Inspect::Picture {

namespace {

constexpr int kBarHeight = kUnit;
constexpr int kDeviceHeight = 3 * kLine + 2 * kUnit;

Surface SurfaceOf(const MemoryDevice& device) noexcept {
    constexpr auto kSteps = static_cast<std::size_t>(MemoryStep::large) + 1;
    constexpr auto kFirst = static_cast<std::size_t>(Surface::olderSmall);
    const std::size_t place =
        static_cast<std::size_t>(device.kind) * kSteps + static_cast<std::size_t>(device.step);
    return device.isFilled ? static_cast<Surface>(kFirst + place) : Surface::free;
}

Box DeviceBox(const MemoryDevice& device, const Rectangle& frame) {
    Box box{.frame = frame, .surface = SurfaceOf(device), .radius = kUnit / 2, .tooltip = device.tooltip};
    const Tone tone = device.isFilled ? Tone::ink : Tone::muted;
    Rectangle line = frame.Inset(kUnit, kUnit);
    box.Write(line, TextStyle::name, tone, device.locator);
    line.y += kLine;
    box.Write(line, TextStyle::body, tone, device.module);
    line.y += kLine;
    box.Write(line, TextStyle::body, tone, device.speed);
    return box;
}

std::string FillingText(const MemoryTotals& totals) {
    if (totals.slots == 0) {
        return {};
    }
    return (totals.filled == 0 ? "nothing" : ByteSizeText(totals.bytes)) + " in " + CountText(totals.filled) +
           " of " + Counted(totals.slots, "slot");
}

/// What can be added, as far as the firmware says so.
std::string RoomText(const MemoryArray& array) {
    const std::size_t free = array.totals.slots - array.totals.filled;
    const std::string freeText = free == 0 ? "no free slot" : Counted(free, "free slot");
    const std::uint64_t most = array.mostBytes.value_or(0);
    if (array.totals.slots == 0) {
        return most == 0 ? "" : ByteSizeText(most);
    }
    if (most == 0) {
        return freeText;
    }
    if (array.totals.bytes > most) {
        return freeText + ", more than the " + ByteSizeText(most) + " that the firmware allows";
    }
    if (array.totals.bytes == most) {
        return freeText + ", as much as it can have";
    }
    const std::string more = ByteSizeText(most - array.totals.bytes) + " more";
    return more + (free == 0 ? " with larger modules" : " in " + freeText);
}

/// How much of what the array can have is there.
bool HasBar(const MemoryArray& array) noexcept {
    return array.totals.slots != 0 && array.mostBytes && array.totals.bytes <= *array.mostBytes &&
           *array.mostBytes != 0;
}

/// The share of `width` that the part is of the whole; a part that is not nothing can be seen.
int ShareOf(int width, std::uint64_t part, std::uint64_t whole) noexcept {
    const bool isNothing = part == 0;
    while (whole > 0xFFFFFFFFU) {  // so that the product has room
        whole >>= 1;
        part >>= 1;
    }
    const int share = static_cast<int>(part * static_cast<std::uint64_t>(width) / whole);
    return isNothing ? 0 : std::max(share, kUnit);
}

void DrawBar(const MemoryArray& array, const Rectangle& bar, Box& box) {
    const int width = ShareOf(bar.width, array.totals.bytes, *array.mostBytes);
    box.marks.push_back({Tone::accent, false, kBarHeight / 2, {bar}});
    if (width != 0) {
        box.marks.push_back({Tone::accent, true, kBarHeight / 2, {{bar.x, bar.y, width, bar.height}}});
    }
}

Grid GridOf(int y, int columns) noexcept {
    return {.x = kMargin + kPadding,
            .y = y,
            .width = kContentWidth - 2 * kPadding,
            .columns = columns,
            .gap = kUnit,
            .rowHeight = kDeviceHeight};
}

/// The more slots, the smaller they are drawn, but not smaller than their names.
Grid GridFor(const std::vector<MemoryDevice>& devices, int y) {
    constexpr struct {
        std::size_t leastDevices;
        int columns;
    } kSteps[] = {{25, 8}, {5, 6}, {3, 4}};
    int widest = 0;
    for (const MemoryDevice& device : devices) {
        widest = std::max(widest, TextWidth(device.locator, TextStyle::name));
    }
    for (const auto& step : kSteps) {
        const Grid grid = GridOf(y, step.columns);
        const bool hasRoom = widest <= grid.Cell(0).width - 2 * kUnit || step.columns == 4;
        if (devices.size() >= step.leastDevices && hasRoom) {
            return grid;
        }
    }
    return GridOf(y, 2);
}

Box ArrayBox(const MemoryArray& array, int y) {
    const Rectangle inside = Rectangle{kMargin, y, kContentWidth, 0}.Inset(kPadding, 0);
    const int half = inside.width / 2;
    Box box{.frame = {}, .surface = Surface::card, .radius = kUnit, .tooltip = array.tooltip};
    int bottom = y + kPadding;
    box.Write({inside.x, bottom, half - kUnit, 0}, TextStyle::name, Tone::ink, array.name);
    box.Write({inside.x + half, bottom, inside.width - half, 0},
              TextStyle::body,
              Tone::muted,
              RoomText(array),
              Side::right);
    bottom += kLine;
    if (HasBar(array)) {
        bottom += kUnit;
        DrawBar(array, {inside.x, bottom, inside.width, kBarHeight}, box);
        bottom += kBarHeight;
    }
    if (!array.devices.empty()) {
        bottom += 2 * kUnit;
        const Grid grid = GridFor(array.devices, bottom);
        for (std::size_t i = 0; i < array.devices.size(); ++i) {
            box.children.push_back(DeviceBox(array.devices[i], grid.Cell(i)));
        }
        bottom += grid.Height(array.devices.size());
    }
    if (const std::size_t leftOut = array.totals.slots - array.devices.size(); leftOut != 0) {
        bottom += kUnit;
        box.Write({inside.x, bottom, inside.width, 0},
                  TextStyle::body,
                  Tone::muted,
                  "and " + CountText(leftOut) + " more");
        bottom += kLine;
    }
    box.frame = {kMargin, y, kContentWidth, bottom + kPadding - y};
    return box;
}

}  // namespace

void AddMemory(const Machine& machine, Page& page) {
    if (machine.arrays.items.empty()) {
        return;
    }
    page.BeginSection("Memory", FillingText(machine.systemMemory));
    int gap = 0;
    for (const MemoryArray& array : machine.arrays.items) {
        page.Advance(gap);
        Box box = ArrayBox(array, page.Y());
        page.Advance(box.frame.height);
        page.Add(std::move(box));
        gap = 2 * kUnit;
    }
    page.NoteLeftOut(machine.arrays.leftOut);
}

}  // namespace SMBIOS::Inspect::Picture
