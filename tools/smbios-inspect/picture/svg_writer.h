#pragma once

#include <iosfwd>

#include "smbios-inspect/picture/drawing.h"

namespace SMBIOS::Inspect::Picture {

/// Writes the page as an SVG file of its own: with its style sheet, and without a script, a link or a font.
void WriteSvg(const Box& page, std::ostream& output);

}  // namespace SMBIOS::Inspect::Picture
