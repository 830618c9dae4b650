#include "smbios-inspect/picture/page.h"

#include "smbios-inspect/picture/words.h"

namespace SMBIOS::Inspect::Picture {

Page::Page(std::string_view title)
    : page_{.frame = {0, 0, kPageWidth, 0},
            .surface = Surface::page,
            .radius = 2 * kUnit,
            .tooltip = std::string(title)} {}

int Page::WriteHeading(const Rectangle& place, std::string_view name, std::string_view summary) {
    const TextShape heading = ShapeOf(TextStyle::heading);
    const TextShape body = ShapeOf(TextStyle::body);
    const int nameWidth = TextWidth(name, TextStyle::heading);
    const int summaryX = nameWidth + kUnit;
    page_.Write({place.x, place.y, nameWidth, 0}, TextStyle::heading, Tone::ink, name);
    page_.Write({place.x + summaryX, place.y + heading.baseline - body.baseline, place.width - summaryX, 0},
                TextStyle::body,
                Tone::muted,
                summary);
    return heading.lineHeight + kUnit;
}

void Page::BeginSection(std::string_view name, std::string_view summary) {
    Advance(kSectionGap);
    Advance(WriteHeading({kMargin, y_, kContentWidth, 0}, name, summary));
}

void Page::NoteLeftOut(std::size_t count) {
    if (count != 0) {
        y_ += kUnit;
        page_.Write({kMargin, y_, kContentWidth, 0},
                    TextStyle::body,
                    Tone::muted,
                    "and " + CountText(count) + " more");
        y_ += kLine;
    }
}

Box Page::Finish() {
    page_.frame.height = y_ + kMargin;
    return std::move(page_);
}

}  // namespace SMBIOS::Inspect::Picture
