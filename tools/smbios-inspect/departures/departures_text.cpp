#include "smbios-inspect/departures/departures_text.h"

#include <ostream>

#include "smbios-inspect/departures/library_fields.h"
#include "smbios-inspect/output/field_block.h"
#include "smbios-inspect/output/text_layout.h"
#include "smbios-inspect/records/structure_heading.h"

namespace SMBIOS::Inspect::Departures {

namespace {

/// The value and its items in one line.
std::string FirmwareText(const Standard::Value* value) {
    if (value == nullptr) {
        return "none";
    }
    std::string text(value->text);
    if (!value->isInLine) {
        for (const Standard::Item& item : value->items) {
            text.append(text.empty() ? "" : ", ").append(item.text);
        }
    }
    return text.empty() ? "none" : text;
}

std::string LibraryText(const Departure& departure) {
    std::string text;
    if (departure.decoder != nullptr) {
        for (const std::string& line : LinesOfField(departure.key, *departure.decoder, departure.index)) {
            text += (text.empty() ? "" : ", ") + line;
        }
    }
    return text.empty() ? "none" : text;
}

}  // namespace

void TextPrinter::Visit(const Departure& departure) {
    if (departure.structure.bytes.data() != place_) {
        PrintBlock();
        place_ = departure.structure.bytes.data();
        heading_ = StructureHeading(departure.structure.Type(), departure.structure.bytes);
    }
    texts_.BeginField(departure.label == nullptr ? departure.field : std::string_view(departure.label));
    texts_.AddLine("Firmware: " + FirmwareText(departure.standard));
    texts_.AddLine("Library: " + LibraryText(departure));
    texts_.AddLine("Reason: " + ReasonText(departure.reason));
}

void TextPrinter::Finish() {
    PrintBlock();
    if (isFirst_) {
        PrintSentence(
            "The library gives every value of this table as the SMBIOS standard does.", style_, output_);
    }
}

void TextPrinter::PrintBlock() {
    if (texts_.Lines().empty()) {
        return;
    }
    output_ << (isFirst_ ? "" : "\n");
    FieldPrinter(style_, output_).PrintBlock(heading_, texts_);
    isFirst_ = false;
    texts_.Clear();
}

}  // namespace SMBIOS::Inspect::Departures
