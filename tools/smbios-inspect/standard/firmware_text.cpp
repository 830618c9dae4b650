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
    TextVisitor(bool isQuiet, TextPage& page) noexcept : isQuiet_(isQuiet), page_(page) {}

    void Visit(const Field& field) override {
        AppendGroupHeading(field.place);
        if (field.label.empty() || (isQuiet_ && IsReference(field.kind))) {
            return;
        }
        page_.Append('\t');
        AppendNumbered(field.label, field.place.index, page_);
        page_.Append(field.value.text.empty() ? ":" : ": ");
        AppendPrintable(field.value.text, page_);
        page_.Append('\n');
        if (field.value.isInLine) {
            return;
        }
        for (const Item& item : field.value.items) {
            page_.Append("\t\t");
            AppendPrintable(item.text, page_);
            page_.Append('\n');
        }
    }

private:
    void AppendGroupHeading(const GroupPlace& place) {
        const bool isNext = place.group.data() != group_.data() || place.index != index_;
        group_ = place.group;
        index_ = place.index;
        if (isNext && !place.heading.empty()) {
            AppendNumbered(place.heading, place.index, page_);
            page_.Append('\n');
        }
    }

    bool isQuiet_;
    TextPage& page_;
    std::string_view group_;
    std::size_t index_ = 0;
};

void AppendBytes(std::span<const std::uint8_t> bytes, TextPage& page) {
    constexpr std::size_t kBytesInLine = 16;
    constexpr char kDigits[] = "0123456789ABCDEF";
    page.Append("\tHeader and Data:\n");
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        page.Append(i % kBytesInLine == 0 ? "\t\t" : " ");
        page.Append(kDigits[bytes[i] >> 4]);
        page.Append(kDigits[bytes[i] & 0x0F]);
        page.Append(i % kBytesInLine == kBytesInLine - 1 || i + 1 == bytes.size() ? "\n" : "");
    }
}

void AppendStrings(const Structure& structure, TextPage& page) {
    page.Append(structure.strings.empty() ? "" : "\tStrings:\n");
    for (const std::string_view text : structure.strings) {
        page.Append("\t\t");
        AppendPrintable(text, page);
        page.Append('\n');
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
    TextPage page;
    AppendEmphasised(heading, Emphasis::heading, style, page);
    page.Append('\n');
    TextVisitor visitor(isQuiet, page);
    VisitFields(structure, visitor);
    if (!isQuiet) {
        if (detail == Detail::bytes || !IsDescribed(structure.Type())) {
            AppendBytes(structure.bytes, page);
            AppendStrings(structure, page);
        }
        if (const std::string remark = RemarkOn(structure); !remark.empty()) {
            page.Append('\t');
            AppendEmphasised(remark, Emphasis::warning, style, page);
            page.Append('\n');
        }
    }
    output << page.Text();
}

bool HasValues(const Structure& structure) noexcept {
    return IsDescribed(structure.Type());
}

}  // namespace SMBIOS::Inspect::Standard
