#include "tests/inspect/picture/xml_reader.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace SMBIOS::Tests {

namespace {

constexpr std::pair<std::string_view, char> kReferences[] = {
    {"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}, {"&apos;", '\''}};

bool IsNameCharacter(char character) {
    return ('a' <= character && character <= 'z') || ('A' <= character && character <= 'Z') ||
           ('0' <= character && character <= '9') || character == '-' || character == '_' || character == ':';
}

bool IsBlank(char character) {
    return character == ' ' || character == '\n' || character == '\t' || character == '\r';
}

/// Those characters of Unicode that an XML 1.0 document may have.
bool IsAllowed(std::uint32_t character) {
    return character == 0x9 || character == 0xA || character == 0xD ||
           (0x20 <= character && character <= 0xD7FF) || (0xE000 <= character && character <= 0xFFFD) ||
           (0x10000 <= character && character <= 0x10FFFF);
}

class XmlReader {
public:
    explicit XmlReader(std::string_view document) : document_(document) { CheckCharacters(); }

    XmlElement ReadDocument() {
        XmlElement root = ReadElement();
        SkipBlanks();
        Require(place_ == document_.size(), "something behind the root");
        return root;
    }

private:
    void Require(bool holds, const std::string& problem) const {
        if (!holds) {
            throw XmlError(problem + " at byte " + std::to_string(place_));
        }
    }

    /// UTF-8 without overlong forms, of allowed characters alone.
    void CheckCharacters() {
        while (place_ < document_.size()) {
            const auto first = static_cast<std::uint8_t>(document_[place_]);
            const std::size_t length = first < 0x80 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
            Require((first < 0x80 || 0xC2 <= first) && first <= 0xF4 && place_ + length <= document_.size(),
                    "no UTF-8");
            std::uint32_t character = length == 1 ? first : first & (0x7FU >> length);
            for (std::size_t i = 1; i < length; ++i) {
                const auto next = static_cast<std::uint8_t>(document_[place_ + i]);
                Require((next & 0xC0U) == 0x80, "no UTF-8");
                character = character << 6 | (next & 0x3FU);
            }
            constexpr std::uint32_t kLeastOfLength[] = {0, 0, 0x80, 0x800, 0x10000};
            Require(character >= kLeastOfLength[length], "an overlong form");
            Require(IsAllowed(character), "a character that XML forbids");
            place_ += length;
        }
        place_ = 0;
    }

    [[nodiscard]] bool IsAt(std::string_view text) const {
        return document_.substr(place_).starts_with(text);
    }

    void Take(std::string_view text) {
        Require(IsAt(text), "no " + std::string(text));
        place_ += text.size();
    }

    void SkipBlanks() {
        while (place_ < document_.size() && IsBlank(document_[place_])) {
            ++place_;
        }
    }

    std::string ReadName() {
        const std::size_t begin = place_;
        while (place_ < document_.size() && IsNameCharacter(document_[place_])) {
            ++place_;
        }
        Require(place_ != begin, "no name");
        return std::string(document_.substr(begin, place_ - begin));
    }

    /// Up to one of the characters of `ends`.
    std::string ReadText(std::string_view ends) {
        std::string text;
        while (place_ < document_.size() && ends.find(document_[place_]) == std::string_view::npos) {
            Require(document_[place_] != '<' && !IsAt("]]>"), "a character that must be a reference");
            if (document_[place_] == '&') {
                const auto reference =
                    std::ranges::find_if(kReferences, [&](const auto& each) { return IsAt(each.first); });
                Require(reference != std::end(kReferences), "an unknown reference");
                text += reference->second;
                place_ += reference->first.size();
            } else {
                text += document_[place_++];
            }
        }
        return text;
    }

    void ReadAttribute(XmlElement& element) {
        std::string name = ReadName();
        Take("=\"");
        const bool isNew = element.attributes.try_emplace(std::move(name), ReadText("\"")).second;
        Require(isNew, "an attribute given twice");
        Take("\"");
    }

    XmlElement ReadElement() {
        XmlElement element;
        Take("<");
        element.name = ReadName();
        while (!IsAt("/>") && !IsAt(">")) {
            Require(place_ < document_.size() && IsBlank(document_[place_]), "no blank before an attribute");
            SkipBlanks();
            ReadAttribute(element);
        }
        if (IsAt("/>")) {
            Take("/>");
            return element;
        }
        Take(">");
        while (!IsAt("</")) {
            Require(place_ < document_.size(), "an element without an end");
            if (IsAt("<")) {
                element.children.push_back(ReadElement());
            } else {
                element.text += ReadText("<");
            }
        }
        Take("</" + element.name + ">");
        return element;
    }

    std::string_view document_;
    std::size_t place_ = 0;
};

}  // namespace

const XmlElement* XmlElement::Child(std::string_view childName) const {
    const auto child = std::ranges::find(children, childName, &XmlElement::name);
    return child == children.end() ? nullptr : &*child;
}

std::string XmlElement::Attribute(const std::string& attribute) const {
    const auto place = attributes.find(attribute);
    return place == attributes.end() ? std::string() : place->second;
}

XmlElement ReadXml(std::string_view document) {
    return XmlReader(document).ReadDocument();
}

}  // namespace SMBIOS::Tests
