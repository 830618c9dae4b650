#include "smbios-inspect/picture/drawing.h"

#include <utility>

namespace SMBIOS::Inspect::Picture {

void Box::Write(const Rectangle& line, TextStyle style, Tone tone, std::string_view text, Side side) {
    std::string fitted = FittedTo(line.width, text, style);
    if (!fitted.empty()) {
        labels.push_back(
            {{line.x, line.y, line.width, ShapeOf(style).lineHeight}, style, tone, side, std::move(fitted)});
    }
}

}  // namespace SMBIOS::Inspect::Picture
