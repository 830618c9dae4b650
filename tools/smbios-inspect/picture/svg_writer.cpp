#include "smbios-inspect/picture/svg_writer.h"

#include <cstddef>
#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>

#include "smbios-inspect/output/utf8.h"

namespace SMBIOS::Inspect::Picture {

namespace {

constexpr std::string_view kTypefaces =
    "'Segoe UI',Roboto,'Helvetica Neue','Noto Sans',Arial,'Liberation Sans','DejaVu Sans',sans-serif";

constexpr std::string_view kStyleNames[] = {"title", "heading", "name", "body"};

/// A reference for each character that XML gives a meaning; U+FFFD for U+FFFE and U+FFFF, which it forbids.
/// Printable text has no other characters that it does.
std::string Escaped(std::string_view text) {
    std::string escaped;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::string_view rest = text.substr(i);
        if (rest.front() == '&') {
            escaped += "&amp;";
        } else if (rest.front() == '<') {
            escaped += "&lt;";
        } else if (rest.front() == '>') {
            escaped += "&gt;";
        } else if (rest.starts_with("\xEF\xBF\xBE") || rest.starts_with("\xEF\xBF\xBF")) {
            escaped += kReplacementCharacter;
            i += 2;
        } else {
            escaped += rest.front();
        }
    }
    return escaped;
}

enum class Mode : std::uint8_t { light, dark };

template <class Colours>
std::string_view InMode(const Colours& colours, Mode mode) noexcept {
    return mode == Mode::light ? colours.light : colours.dark;
}

void WriteColours(Mode mode, std::ostream& output) {
    for (const SurfaceColour& surface : SurfaceColours()) {
        output << "." << surface.name << "{fill:" << InMode(surface, mode);
        if (surface.outline != Outline::none) {
            const LineColour line = surface.outline == Outline::line ? OutlineColour() : DashColour();
            output << ";stroke:" << InMode(line, mode);
        }
        output << "}\n";
    }
    for (const ToneColour& tone : ToneColours()) {
        output << "." << tone.name << "{fill:" << InMode(tone, mode) << "}\n"
               << "." << tone.name << "-line{fill:none;stroke:" << InMode(tone, mode) << "}\n";
    }
}

void WriteStyleSheet(std::ostream& output) {
    output << "<style>\ntext{font-family:" << kTypefaces << "}\n";
    for (const TextStyle style : {TextStyle::title, TextStyle::heading, TextStyle::name, TextStyle::body}) {
        const TextShape shape = ShapeOf(style);
        output << "." << kStyleNames[static_cast<std::size_t>(style)] << "{font-size:" << shape.size
               << "px;font-weight:" << (shape.isBold ? "bold" : "normal") << "}\n";
    }
    output << ".right{text-anchor:end}\n.free{stroke-dasharray:4 4}\n";
    WriteColours(Mode::light, output);
    output << "@media (prefers-color-scheme:dark){\n";
    WriteColours(Mode::dark, output);
    output << "}\n</style>\n";
}

/// Half pixels, in pixels: "3", "3.5".
std::string InPixels(int halves) {
    const std::string sign = halves < 0 ? "-" : "";
    const int magnitude = halves < 0 ? -halves : halves;
    return sign + std::to_string(magnitude / 2) + (magnitude % 2 == 0 ? "" : ".5");
}

/// A rectangle in half pixels. An outline of one pixel is sharp when its middle is in that of the pixels.
struct HalfPixels {
    int x;
    int y;
    int width;
    int height;
    int radius;

    HalfPixels(const Rectangle& frame, int cornerRadius, bool isOutline) noexcept
        : x(2 * frame.x + (isOutline ? 1 : 0)),
          y(2 * frame.y + (isOutline ? 1 : 0)),
          width(2 * frame.width - (isOutline ? 2 : 0)),
          height(2 * frame.height - (isOutline ? 2 : 0)),
          radius(2 * cornerRadius - (isOutline && cornerRadius != 0 ? 1 : 0)) {}
};

void WriteAttribute(std::string_view name, std::string_view value, std::ostream& output) {
    output << ' ' << name << "=\"" << value << '"';
}

void WriteRectangle(const Box& box, std::ostream& output) {
    const bool isOutlined = SurfaceColours()[static_cast<std::size_t>(box.surface)].outline != Outline::none;
    const HalfPixels frame(box.frame, box.radius, isOutlined);
    output << "<rect";
    WriteAttribute("class", NameOf(box.surface), output);
    WriteAttribute("x", InPixels(frame.x), output);
    WriteAttribute("y", InPixels(frame.y), output);
    WriteAttribute("width", InPixels(frame.width), output);
    WriteAttribute("height", InPixels(frame.height), output);
    if (box.radius != 0) {
        WriteAttribute("rx", InPixels(frame.radius), output);
    }
    output << "/>\n";
}

/// A rectangle with round corners, clockwise from the left end of its upper edge.
std::string PathOf(const HalfPixels& part) {
    const int across = part.width - 2 * part.radius;
    const int down = part.height - 2 * part.radius;
    const auto corner = [radius = part.radius](int signX, int signY) {
        return "a" + InPixels(radius) + " " + InPixels(radius) + " 0 0 1 " + InPixels(signX * radius) + " " +
               InPixels(signY * radius);
    };
    return "M" + InPixels(part.x + part.radius) + " " + InPixels(part.y) + "h" + InPixels(across) +
           corner(1, 1) + "v" + InPixels(down) + corner(-1, 1) + "h" + InPixels(-across) + corner(-1, -1) +
           "v" + InPixels(-down) + corner(1, -1) + "z";
}

void WriteMark(const Mark& mark, std::ostream& output) {
    output << "<path class=\"" << NameOf(mark.tone) << (mark.isFilled ? "" : "-line") << "\" d=\"";
    for (const Rectangle& part : mark.parts) {
        output << PathOf(HalfPixels(part, mark.radius, !mark.isFilled));
    }
    output << "\"/>\n";
}

void WriteText(const Label& label, std::ostream& output) {
    const bool isRight = label.side == Side::right;
    output << "<text class=\"" << kStyleNames[static_cast<std::size_t>(label.style)] << ' '
           << NameOf(label.tone) << (isRight ? " right" : "") << "\" x=\""
           << (isRight ? label.line.Right() : label.line.x) << "\" y=\""
           << label.line.y + ShapeOf(label.style).baseline << "\">" << Escaped(label.text) << "</text>\n";
}

/// Where nobody knows how wide a text is, it is cut off at the ends of its line.
void WriteLabel(const Label& label, std::ostream& output) {
    if (IsMeasured(label.text)) {
        WriteText(label, output);
        return;
    }
    const Rectangle& line = label.line;
    output << "<svg x=\"" << line.x << "\" y=\"" << line.y << "\" width=\"" << line.width << "\" height=\""
           << line.height << "\" viewBox=\"" << line.x << ' ' << line.y << ' ' << line.width << ' '
           << line.height << "\">\n";
    WriteText(label, output);
    output << "</svg>\n";
}

void WriteContents(const Box& box, std::ostream& output);

void WriteBox(const Box& box, std::ostream& output) {
    output << "<g>\n<title>" << Escaped(box.tooltip) << "</title>\n";
    WriteContents(box, output);
    output << "</g>\n";
}

void WriteContents(const Box& box, std::ostream& output) {
    WriteRectangle(box, output);
    for (const Mark& mark : box.marks) {
        WriteMark(mark, output);
    }
    for (const Label& label : box.labels) {
        WriteLabel(label, output);
    }
    for (const Box& child : box.children) {
        WriteBox(child, output);
    }
}

}  // namespace

void WriteSvg(const Box& page, std::ostream& output) {
    output << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << page.frame.width << "\" height=\""
           << page.frame.height << "\" viewBox=\"0 0 " << page.frame.width << ' ' << page.frame.height
           << "\">\n<title>" << Escaped(page.tooltip) << "</title>\n";
    WriteStyleSheet(output);
    WriteContents(page, output);
    output << "</svg>\n";
}

}  // namespace SMBIOS::Inspect::Picture
