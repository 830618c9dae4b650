#include <algorithm>
#include <cstddef>
#include <utility>

#include "smbios-inspect/picture/caches.h"
#include "smbios-inspect/picture/sections.h"
#include "smbios-inspect/picture/words.h"

// Processors with a square a core, and their caches.
namespace SMBIOS::Inspect::Picture {

namespace {

/// What is behind the name of a processor is drawn below it, or on its right, or is small.
enum class Form : std::uint8_t { wide, card, tile };

struct CardShape {
    Form form;
    int padding;
    int coreRows;  ///< of the processor that has most
    int cacheHeight;

    [[nodiscard]] Nesting CacheNesting() const noexcept {
        return form == Form::tile ? Nesting::below : Nesting::beside;
    }
};

constexpr int kCoreSize = kUnit;
constexpr int kCoreStep = 12;
constexpr int kCoreGap = kUnit;
constexpr int kCoresInRow = 32;
constexpr std::size_t kMostCoresDrawn = 128;

int CoreRowsOf(const Processor& processor) noexcept {
    const bool isDrawn = processor.cores <= kMostCoresDrawn;
    return isDrawn ? (static_cast<int>(processor.cores) + kCoresInRow - 1) / kCoresInRow : 0;
}

Form FormFor(std::size_t count) noexcept {
    constexpr std::size_t kMostCards = 8;
    if (count == 1) {
        return Form::wide;
    }
    return count <= kMostCards ? Form::card : Form::tile;
}

CardShape ShapeFor(const std::vector<Processor>& processors) {
    const Form form = FormFor(processors.size());
    CardShape shape{
        .form = form, .padding = form == Form::tile ? kUnit : kPadding, .coreRows = 0, .cacheHeight = 0};
    for (const Processor& processor : processors) {
        const int coreRows = form == Form::tile ? 0 : CoreRowsOf(processor);
        shape.coreRows = std::max(shape.coreRows, coreRows);
        shape.cacheHeight =
            std::max(shape.cacheHeight, HeightOfCaches(processor.cacheLevels.size(), shape.CacheNesting()));
    }
    return shape;
}

int TextHeight(const CardShape& shape) noexcept {
    const int cores =
        shape.coreRows == 0 ? 0 : kCoreGap + shape.coreRows * kCoreStep - (kCoreStep - kCoreSize);
    return 3 * kLine + cores;
}

int HeightOf(const CardShape& shape) noexcept {
    const int text = TextHeight(shape);
    if (shape.form == Form::wide) {
        return std::max(text, shape.cacheHeight) + 2 * shape.padding;
    }
    return text + (shape.cacheHeight == 0 ? 0 : kUnit + shape.cacheHeight) + 2 * shape.padding;
}

/// Squares, of which those of cores that are not enabled are hollow.
void DrawCores(const Processor& processor, int x, int y, Box& box) {
    if (CoreRowsOf(processor) == 0) {
        return;
    }
    Mark enabled{.tone = Tone::accent, .isFilled = true, .radius = kUnit / 4, .parts = {}};
    Mark disabled{.tone = Tone::accent, .isFilled = false, .radius = kUnit / 4, .parts = {}};
    const std::size_t enabledCount = processor.coresEnabled == 0 ? processor.cores : processor.coresEnabled;
    for (std::size_t core = 0; core < processor.cores; ++core) {
        const int column = static_cast<int>(core) % kCoresInRow;
        const int row = static_cast<int>(core) / kCoresInRow;
        (core < enabledCount ? enabled : disabled)
            .parts.push_back({x + column * kCoreStep, y + row * kCoreStep, kCoreSize, kCoreSize});
    }
    box.marks.push_back(std::move(enabled));
    if (!disabled.parts.empty()) {
        box.marks.push_back(std::move(disabled));
    }
}

Box ProcessorBox(const Processor& processor, const Rectangle& frame, const CardShape& shape) {
    Box box{.frame = frame,
            .surface = processor.isPopulated ? Surface::card : Surface::free,
            .radius = kUnit,
            .tooltip = processor.tooltip};
    const Rectangle inside = frame.Inset(shape.padding, shape.padding);
    const bool isWide = shape.form == Form::wide;
    const int textWidth = isWide ? (inside.width - 2 * kUnit) / 2 : inside.width;
    box.Write({inside.x, inside.y, textWidth, 0}, TextStyle::body, Tone::muted, processor.socket);
    if (!processor.isPopulated) {
        box.Write({inside.x, inside.y + kLine, textWidth, 0}, TextStyle::body, Tone::muted, "empty socket");
        return box;
    }
    box.Write({inside.x, inside.y + kLine, textWidth, 0}, TextStyle::name, Tone::ink, processor.name);
    box.Write({inside.x, inside.y + 2 * kLine, textWidth, 0},
              TextStyle::body,
              processor.warning.empty() ? Tone::muted : Tone::warning,
              Dotted({processor.warning, processor.detail}));
    if (shape.coreRows != 0) {
        DrawCores(processor, inside.x, inside.y + 3 * kLine + kCoreGap, box);
    }
    const int besideX = inside.Right() - textWidth;
    const Rectangle caches =
        isWide ? Rectangle{besideX, inside.y + (inside.height - shape.cacheHeight) / 2, textWidth, 0}
               : Rectangle{inside.x, inside.y + TextHeight(shape) + kUnit, inside.width, 0};
    box.children = CacheBoxes(processor.cacheLevels, caches, shape.CacheNesting());
    return box;
}

std::string SummaryOf(const Machine& machine) {
    const std::size_t sockets = machine.processors.Count();
    return Dotted({sockets == 1 ? "" : CountText(machine.socketsFilled) + " of " + Counted(sockets, "socket"),
                   machine.cores == 0 ? "" : Counted(machine.cores, "core"),
                   machine.threads == 0 ? "" : Counted(machine.threads, "thread")});
}

}  // namespace

void AddProcessors(const Machine& machine, Page& page) {
    const std::vector<Processor>& processors = machine.processors.items;
    if (processors.empty()) {
        return;
    }
    constexpr int kColumns[] = {1, 2, 4};
    page.BeginSection(processors.size() == 1 ? "Processor" : "Processors", SummaryOf(machine));
    const CardShape shape = ShapeFor(processors);
    const Grid grid{.x = kMargin,
                    .y = page.Y(),
                    .width = kContentWidth,
                    .columns = kColumns[static_cast<std::size_t>(shape.form)],
                    .gap = shape.form == Form::tile ? kUnit : 2 * kUnit,
                    .rowHeight = HeightOf(shape)};
    for (std::size_t i = 0; i < processors.size(); ++i) {
        page.Add(ProcessorBox(processors[i], grid.Cell(i), shape));
    }
    page.Advance(grid.Height(processors.size()));
    page.NoteLeftOut(machine.processors.leftOut);
}

}  // namespace SMBIOS::Inspect::Picture
