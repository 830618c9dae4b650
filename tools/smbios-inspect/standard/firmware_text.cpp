#include "smbios-inspect/standard/firmware_text.h"

#include <algorithm>
#include <ostream>
#include <string>

#include "smbios-inspect/output/text_layout.h"
#include "smbios-inspect/records/structure_heading.h"
#include "smbios-inspect/standard/decode.h"

namespace SMBIOS::Inspect::Standard {

namespace {

bool IsReference(ValueKind kind) noexcept {
    return kind == ValueKind::handle || kind == ValueKind::handleList;
}

/// "\tLabel: value", and the items of a list below it. Lines are not wrapped: scripts read them, too.
class TextVisitor final : public FieldVisitor {
public:
    TextVisitor(bool isQuiet, std::ostream& output) noexcept : isQuiet_(isQuiet), output_(output) {}

    void Visit(const Field& field) override {
        PrintGroupHeading(field.place);
        if (field.label.empty() || (isQuiet_ && IsReference(field.kind))) {
            return;
        }
        output_ << '\t' << Numbered(field.label, field.place.index) << ':'
                << (field.value.text.empty() ? "" : " ") << Printable(field.value.text) << '\n';
        if (field.value.isInLine) {
            return;
        }
        for (const Item& item : field.value.items) {
            output_ << "\t\t" << Printable(item.text) << '\n';
        }
    }

private:
    void PrintGroupHeading(const GroupPlace& place) {
        const bool isNext = place.group.data() != group_.data() || place.index != index_;
        group_ = place.group;
        index_ = place.index;
        if (isNext && !place.heading.empty()) {
            output_ << Numbered(place.heading, place.index) << '\n';
        }
    }

    bool isQuiet_;
    std::ostream& output_;
    std::string_view group_;
    std::size_t index_ = 0;
};

void PrintBytes(std::span<const std::uint8_t> bytes, std::ostream& output) {
    constexpr std::size_t kBytesInLine = 16;
    constexpr char kDigits[] = "0123456789ABCDEF";
    output << "\tHeader and Data:\n";
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        output << (i % kBytesInLine == 0 ? "\t\t" : " ") << kDigits[bytes[i] >> 4] << kDigits[bytes[i] & 0x0F]
               << (i % kBytesInLine == kBytesInLine - 1 || i + 1 == bytes.size() ? "\n" : "");
    }
}

void PrintStrings(const Structure& structure, std::ostream& output) {
    if (structure.strings.empty()) {
        return;
    }
    output << "\tStrings:\n";
    for (const std::string_view text : structure.strings) {
        output << "\t\t" << Printable(text) << '\n';
    }
}

}  // namespace

void PrintStructure(const Structure& structure,
                    Detail detail,
                    const OutputStyle& style,
                    std::ostream& output) {
    const bool isQuiet = detail == Detail::values;
    const std::string heading = isQuiet ? std::string(StructureName(structure.Type()))
                                        : StructureHeading(structure.Type(), structure.bytes);
    output << Emphasised(heading, Emphasis::heading, style) << '\n';
    TextVisitor visitor(isQuiet, output);
    VisitFields(structure, visitor);
    if (isQuiet) {
        return;
    }
    if (detail == Detail::bytes || !IsDescribed(structure.Type())) {
        PrintBytes(structure.bytes, output);
        PrintStrings(structure, output);
    }
    if (const std::string remark = RemarkOn(structure); !remark.empty()) {
        output << '\t' << Emphasised(remark, Emphasis::warning, style) << '\n';
    }
}

bool HasValues(const Structure& structure) noexcept {
    return IsDescribed(structure.Type());
}

}  // namespace SMBIOS::Inspect::Standard
