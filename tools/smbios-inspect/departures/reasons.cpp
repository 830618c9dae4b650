#include "smbios-inspect/departures/reasons.h"

namespace SMBIOS::Inspect::Departures {

namespace {

/// "rank" of "17: rank": the reason stands beside its structure.
std::string_view WithoutTypeNumber(std::string_view field) noexcept {
    const std::size_t colon = field.find(": ");
    const bool isNumber = field.substr(0, colon).find_first_not_of("0123456789") == std::string_view::npos;
    return isNumber && colon != std::string_view::npos ? field.substr(colon + 2) : field;
}

}  // namespace

std::string ReasonText(ReasonId id) {
    if (id == ReasonId::unexplained) {
        return "Not known: please report it.";
    }
    const Reason& reason = kReasons[static_cast<std::size_t>(id)];
    std::string text(WithoutTypeNumber(reason.field));
    text.append(" - the standard: ").append(reason.standard);
    text.append("; this library: ").append(reason.library);
    std::erase(text, '`');
    return text;
}

}  // namespace SMBIOS::Inspect::Departures
