#include "tests/inspect/picture/drawn_picture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <sstream>
#include <stdexcept>

#include "smbios-inspect/picture/picture.h"

namespace SMBIOS::Tests {

namespace {

using Inspect::Picture::ShapeOf;
using Inspect::Picture::TextStyle;
using Inspect::Picture::TextWidth;

constexpr std::pair<std::string_view, TextStyle> kStyles[] = {{"title", TextStyle::title},
                                                              {"heading", TextStyle::heading},
                                                              {"name", TextStyle::name},
                                                              {"body", TextStyle::body}};

/// "3" and "3.5", in half pixels.
int HalvesIn(const std::string& number) {
    const bool hasHalf = number.ends_with(".5");
    const std::string whole = number.substr(0, number.size() - (hasHalf ? 2 : 0));
    if (whole.empty() || whole.find_first_not_of("0123456789") != std::string::npos) {
        throw std::runtime_error("'" + number + "' is no number of pixels");
    }
    return 2 * std::stoi(whole) + (hasHalf ? 1 : 0);
}

Extent ExtentOf(const XmlElement& element) {
    const int x = HalvesIn(element.Attribute("x"));
    const int y = HalvesIn(element.Attribute("y"));
    return {x, y, x + HalvesIn(element.Attribute("width")), y + HalvesIn(element.Attribute("height"))};
}

std::vector<std::string> Words(const std::string& text) {
    std::vector<std::string> words;
    std::istringstream stream(text);
    for (std::string word; stream >> word;) {
        words.push_back(word);
    }
    return words;
}

DrawnText TextIn(const XmlElement& element) {
    const std::vector<std::string> classes = Words(element.Attribute("class"));
    const auto style = std::ranges::find(kStyles, classes.at(0), [](const auto& each) { return each.first; });
    if (style == std::end(kStyles) || !element.children.empty()) {
        throw std::runtime_error("a text without a style, or of several parts");
    }
    const bool isRight = classes.size() == 3 && classes[2] == "right";
    const int x = HalvesIn(element.Attribute("x"));
    const int top = HalvesIn(element.Attribute("y")) - 2 * ShapeOf(style->second).baseline;
    const int width = 2 * TextWidth(element.text, style->second);
    const int left = isRight ? x - width : x;
    return {
        {left, top, left + width, top + 2 * ShapeOf(style->second).lineHeight}, classes.at(1), element.text};
}

class PictureReader {
public:
    DrawnPicture Read(const XmlElement& root) {
        Require(root.name == "svg" && root.Attribute("xmlns") == "http://www.w3.org/2000/svg", "no SVG");
        const XmlElement* const style = root.Child("style");
        Require(style != nullptr, "no style sheet");
        picture_.styleSheet = style->text;
        ReadBox(root, std::nullopt);
        return std::move(picture_);
    }

private:
    static void Require(bool holds, const std::string& problem) {
        if (!holds) {
            throw std::runtime_error(problem);
        }
    }

    void ReadBox(const XmlElement& group, std::optional<std::size_t> parent) {
        const std::size_t place = picture_.boxes.size();
        picture_.boxes.push_back({});
        picture_.boxes[place].parent = parent;
        std::size_t rectangles = 0;
        std::size_t titles = 0;
        for (const XmlElement& element : group.children) {
            if (element.name == "rect") {
                ++rectangles;
                picture_.boxes[place].extent = ExtentOf(element);
                picture_.boxes[place].surface = element.Attribute("class");
            } else if (element.name == "title") {
                ++titles;
                picture_.boxes[place].tooltip = element.text;
            } else if (element.name == "path") {
                picture_.boxes[place].marks.push_back(element.Attribute("class"));
            } else if (element.name == "text") {
                picture_.boxes[place].texts.push_back(TextIn(element));
            } else if (element.name == "svg") {
                ReadCutText(element, place);
            } else if (element.name == "g") {
                ReadBox(element, place);
            } else {
                Require(element.name == "style" && !parent, "an element " + element.name);
            }
        }
        Require(rectangles == 1 && titles == 1, "a box with other than one rectangle and one title");
    }

    /// A text that is cut off at the ends of its line.
    void ReadCutText(const XmlElement& element, std::size_t place) {
        Require(element.children.size() == 1 && element.children[0].name == "text", "no text to cut off");
        Require(element.Attribute("viewBox") == element.Attribute("x") + " " + element.Attribute("y") + " " +
                                                    element.Attribute("width") + " " +
                                                    element.Attribute("height"),
                "a text that is moved");
        DrawnText text = TextIn(element.children[0]);
        Require(ExtentOf(element).Contains(text.extent), "a text that is wider than what it is cut to");
        text.extent = ExtentOf(element);
        picture_.boxes[place].texts.push_back(std::move(text));
    }

    DrawnPicture picture_;
};

// Colours

using Colour = std::array<int, 3>;
using Colours = std::map<std::string, Colour>;

/// The colours that the classes are given in a part of the style sheet: those filled with, and of lines.
Colours ColoursIn(std::string_view part) {
    Colours colours;
    std::istringstream lines{std::string(part)};
    for (std::string line; std::getline(lines, line);) {
        const std::size_t brace = line.find('{');
        const bool isLine = line.find("{fill:none;stroke:#") != std::string::npos;
        const std::size_t value = isLine ? line.find("stroke:#") + 8 : line.find("{fill:#") + 7;
        if (line.starts_with('.') && (isLine || line.find("{fill:#") != std::string::npos)) {
            const unsigned long number = std::stoul(line.substr(value, 6), nullptr, 16);
            colours[line.substr(1, brace - 1)] = {static_cast<int>(number >> 16),
                                                  static_cast<int>(number >> 8 & 0xFF),
                                                  static_cast<int>(number & 0xFF)};
        }
    }
    return colours;
}

/// As WCAG 2.1 defines it.
double LuminanceOf(const Colour& colour) {
    std::array<double, 3> parts{};
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const double part = colour[i] / 255.0;
        parts[i] = part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    }
    return 0.2126 * parts[0] + 0.7152 * parts[1] + 0.0722 * parts[2];
}

double ContrastOf(const Colour& one, const Colour& other) {
    const auto [darker, lighter] = std::minmax({LuminanceOf(one), LuminanceOf(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

// Faults

class FaultFinder {
public:
    explicit FaultFinder(const DrawnPicture& picture) : picture_(picture) {}

    std::string Find() {
        for (std::size_t place = 0; place < picture_.boxes.size(); ++place) {
            const DrawnBox& box = picture_.boxes[place];
            Check(!box.tooltip.empty(), box, "has no tooltip");
            if (box.parent) {
                children_[*box.parent].push_back(place);
                Check(
                    picture_.boxes[*box.parent].extent.Contains(box.extent), box, "is outside of its parent");
            }
            CheckTexts(box);
        }
        for (const auto& [parent, places] : children_) {
            CheckBeside(picture_.boxes[parent], places);
        }
        const std::size_t dark = picture_.styleSheet.find("@media (prefers-color-scheme:dark){");
        Check(dark != std::string::npos, picture_.boxes[0], "has one mode alone");
        CheckColours(ColoursIn(picture_.styleSheet.substr(0, dark)), "light");
        CheckColours(ColoursIn(picture_.styleSheet.substr(dark)), "dark");
        return faults_;
    }

private:
    void Check(bool holds, const DrawnBox& box, const std::string& fault) {
        if (!holds) {
            faults_ += "box '" + box.tooltip.substr(0, box.tooltip.find('\n')) + "' " + fault + "\n";
        }
    }

    void CheckTexts(const DrawnBox& box) {
        for (std::size_t i = 0; i < box.texts.size(); ++i) {
            const DrawnText& text = box.texts[i];
            Check(!text.text.empty(), box, "has an empty text");
            Check(box.extent.Contains(text.extent), box, "is too small for the text " + text.text);
            for (std::size_t k = 0; k < i; ++k) {
                Check(!text.extent.Overlaps(box.texts[k].extent),
                      box,
                      "has texts over one another: " + text.text);
            }
        }
    }

    /// In the order of their upper edges a box meets only those behind it that begin above its lower edge.
    void CheckBeside(const DrawnBox& parent, std::vector<std::size_t> places) {
        const auto extentOf = [&](std::size_t place) { return picture_.boxes[place].extent; };
        std::ranges::sort(places, {}, [&](std::size_t place) { return extentOf(place).top; });
        for (std::size_t i = 0; i < places.size(); ++i) {
            const Extent extent = extentOf(places[i]);
            for (std::size_t k = i + 1; k < places.size() && extentOf(places[k]).top < extent.bottom; ++k) {
                Check(
                    !extent.Overlaps(extentOf(places[k])), picture_.boxes[places[i]], "overlaps another one");
            }
            for (const DrawnText& text : parent.texts) {
                Check(
                    !extent.Overlaps(text.extent), picture_.boxes[places[i]], "covers the text " + text.text);
            }
        }
    }

    /// What is behind the contents of a box: a box that is filled with nothing lets its parent through.
    [[nodiscard]] Colour BehindContentsOf(const DrawnBox& box, const Colours& colours) const {
        const auto colour = colours.find(box.surface);
        if (colour != colours.end()) {
            return colour->second;
        }
        return BehindContentsOf(picture_.boxes[box.parent.value()], colours);
    }

    void CheckColours(const Colours& colours, const std::string& mode) {
        constexpr double kLeastOfText = 4.5;
        constexpr double kLeastOfFigures = 3.0;
        for (const DrawnBox& box : picture_.boxes) {
            const Colour behind = BehindContentsOf(box, colours);
            for (const DrawnText& text : box.texts) {
                Check(ContrastOf(colours.at(text.tone), behind) >= kLeastOfText,
                      box,
                      "has a text of too little contrast when it is " + mode + ": " + text.text);
            }
            for (const std::string& mark : box.marks) {
                Check(ContrastOf(colours.at(mark), behind) >= kLeastOfFigures,
                      box,
                      "has a mark of too little contrast when it is " + mode);
            }
        }
    }

    const DrawnPicture& picture_;
    std::map<std::size_t, std::vector<std::size_t>> children_;
    std::string faults_;
};

}  // namespace

DrawnPicture ReadPicture(std::string_view svg) {
    return PictureReader().Read(ReadXml(svg));
}

std::string SvgOf(const std::vector<std::uint8_t>& rawTable) {
    std::ostringstream output;
    Inspect::Picture::DrawMachine(rawTable, output);
    return output.str();
}

DrawnPicture PictureOf(const std::vector<std::uint8_t>& rawTable) {
    return ReadPicture(SvgOf(rawTable));
}

std::vector<DrawnBox> BoxesOfType(const DrawnPicture& picture, int type) {
    std::vector<DrawnBox> boxes;
    std::ranges::copy_if(picture.boxes, std::back_inserter(boxes), [&](const DrawnBox& box) {
        return box.tooltip.starts_with("Type " + std::to_string(type) + ":");
    });
    return boxes;
}

std::vector<std::string> TextsOf(const DrawnBox& box) {
    std::vector<std::string> texts;
    std::ranges::transform(box.texts, std::back_inserter(texts), &DrawnText::text);
    return texts;
}

std::vector<std::string> TextsOnPage(const DrawnPicture& picture) {
    return TextsOf(picture.boxes.at(0));
}

std::string FaultsOf(const DrawnPicture& picture) {
    return FaultFinder(picture).Find();
}

}  // namespace SMBIOS::Tests
