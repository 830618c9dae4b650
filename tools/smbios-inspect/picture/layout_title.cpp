#include "smbios-inspect/picture/sections.h"
#include "smbios-inspect/picture/words.h"

// The system, and what it is made of, at a glance.
namespace SMBIOS::Inspect::Picture {

namespace {

Box TitleBox(const Note& title, int y) {
    const std::string detail = Dotted(title.details);
    const int height = (detail.empty() ? 4 : 7) * kUnit;
    Box box{
        .frame = {kMargin, y, kContentWidth, height}, .surface = Surface::blank, .tooltip = title.tooltip};
    box.Write(box.frame, TextStyle::title, Tone::ink, title.name);
    box.Write({kMargin, y + 5 * kUnit, kContentWidth, 0}, TextStyle::body, Tone::muted, detail);
    return box;
}

Box NoteBox(const Note& note, const Rectangle& frame) {
    Box box{.frame = frame, .surface = Surface::card, .radius = kUnit, .tooltip = note.tooltip};
    Rectangle line = frame.Inset(kPadding, kUnit);
    box.Write(line, TextStyle::body, Tone::muted, note.kind);
    line.y += kLine;
    box.Write(line, TextStyle::name, Tone::ink, note.name);
    for (const std::string& detail : note.details) {
        line.y += detail.empty() ? 0 : kLine;
        box.Write(line, TextStyle::body, Tone::muted, detail);
    }
    return box;
}

}  // namespace

void AddTitle(const Machine& machine, Page& page) {
    const Box title = TitleBox(machine.title, page.Y());
    page.Add(title);
    page.Advance(title.frame.height + 2 * kUnit);
    const Grid grid{.x = kMargin,
                    .y = page.Y(),
                    .width = kContentWidth,
                    .columns = 4,
                    .gap = 2 * kUnit,
                    .rowHeight = 4 * kLine + 2 * kUnit};
    for (std::size_t i = 0; i < machine.notes.size(); ++i) {
        page.Add(NoteBox(machine.notes[i], grid.Cell(i)));
    }
    page.Advance(grid.Height(machine.notes.size()));
}

}  // namespace SMBIOS::Inspect::Picture
