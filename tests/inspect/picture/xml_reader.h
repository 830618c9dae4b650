#pragma once

#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace SMBIOS::Tests {

struct XmlElement {
    std::string name;
    std::map<std::string, std::string> attributes;
    std::string text;  ///< of the element itself, all pieces of it
    std::vector<XmlElement> children;

    /// The first child of this name; null when there is none.
    [[nodiscard]] const XmlElement* Child(std::string_view childName) const;

    /// Empty when there is none.
    [[nodiscard]] std::string Attribute(const std::string& attribute) const;
};

/// Text that is not well-formed; what() says what is wrong, and where.
class XmlError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Reads a document of elements, attributes and text as XML 1.0. Stricter than that: no declarations,
/// comments or processing instructions, and no references but those to the characters that XML gives a
/// meaning. Throws XmlError.
[[nodiscard]] XmlElement ReadXml(std::string_view document);

}  // namespace SMBIOS::Tests
