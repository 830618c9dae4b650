#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include "smbios-inspect/departures/departure.h"
#include "smbios-inspect/output/field_texts.h"
#include "smbios-inspect/output/output_style.h"

namespace SMBIOS::Inspect::Departures {

/// Prints departures for people: a block a structure, in it a field with what the firmware says, what the
/// library makes of it, and why.
class TextPrinter final : public DepartureVisitor {
public:
    TextPrinter(const OutputStyle& style, std::ostream& output) noexcept : style_(style), output_(output) {}

    void Visit(const Departure& departure) override;

    /// Prints what is left, or a sentence when there was no departure at all.
    void Finish();

private:
    void PrintBlock();

    const OutputStyle& style_;
    std::ostream& output_;
    const std::uint8_t* place_ = nullptr;  ///< of the structure in its table
    std::string heading_;
    FieldTexts texts_;
    bool isFirst_ = true;
};

}  // namespace SMBIOS::Inspect::Departures
