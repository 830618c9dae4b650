#include "smbios-inspect/standard/firmware_text.h"

#include <algorithm>
#include <ostream>
#include <string>

#include "smbios-inspect/output/text_layout.h"
#include "smbios-inspect/records/structure_heading.h"
#include "smbios-inspect/standard/decode.h"

namespace SMBIOS::Inspect::Standard {

namespace {

constexpr std::size_t kUsualPage = 2048;

bool IsReference(ValueKind kind) noexcept {
    return kind == ValueKind::handle || kind == ValueKind::handleList;
}

/// "\tLabel: value", and the items of a list below it. Lines are not wrapped: scripts read them, too.
class TextVisitor final : public FieldVisitor {
public:
    TextVisitor(bool isQuiet, std::string& page) noexcept : isQuiet_(isQuiet), page_(page) {}

    void Visit(const Field& field) override {
        AppendGroupHeading(field.place);
        if (field.label.empty() || (isQuiet_ && IsReference(field.kind))) {
            return;
        }
        page_ += "\t";
        AppendNumbered(field.label, field.place.index, page_);
        page_.append(": ", field.value.text.empty() ? 1 : 2);
        AppendPrintable(field.value.text, page_);
        page_ += "\n";
        if (field.value.isInLine) {
            return;
        }
        for (const Item& item : field.value.items) {
            page_ += "\t\t";
            AppendPrintable(item.text, page_);
            page_ += '\n';
        }
    }

private:
    void AppendGroupHeading(const GroupPlace& place) {
        const bool isNext = place.group.data() != group_.data() || place.index != index_;
        group_ = place.group;
        index_ = place.index;
        if (isNext && !place.heading.empty()) {
            AppendNumbered(place.heading, place.index, page_);
            page_ += '\n';
        }
    }

    bool isQuiet_;
    std::string& page_;
    std::string_view group_;
    std::size_t index_ = 0;
};

void AppendBytes(std::span<const std::uint8_t> bytes, std::string& page) {
    constexpr std::size_t kBytesInLine = 16;
    constexpr char kDigits[] = "0123456789ABCDEF";
    page += "\tHeader and Data:\n";
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        page += i % kBytesInLine == 0 ? "\t\t" : " ";
        page += kDigits[bytes[i] >> 4];
        page += kDigits[bytes[i] & 0x0F];
        page += i % kBytesInLine == kBytesInLine - 1 || i + 1 == bytes.size() ? "\n" : "";
    }
}

void AppendStrings(const Structure& structure, std::string& page) {
    page += structure.strings.empty() ? "" : "\tStrings:\n";
    for (const std::string_view text : structure.strings) {
        page += "\t\t";
        AppendPrintable(text, page);
        page += '\n';
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
    std::string page;
    page.reserve(kUsualPage);
    page.append(Emphasised(heading, Emphasis::heading, style)).append("\n");
    TextVisitor visitor(isQuiet, page);
    VisitFields(structure, visitor);
    if (!isQuiet) {
        if (detail == Detail::bytes || !IsDescribed(structure.Type())) {
            AppendBytes(structure.bytes, page);
            AppendStrings(structure, page);
        }
        if (const std::string remark = RemarkOn(structure); !remark.empty()) {
            page.append("\t").append(Emphasised(remark, Emphasis::warning, style)).append("\n");
        }
    }
    output << page;
}

bool HasValues(const Structure& structure) noexcept {
    return IsDescribed(structure.Type());
}

}  // namespace SMBIOS::Inspect::Standard
