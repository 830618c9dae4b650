#pragma once

#include "smbios-inspect/departures/rules.h"
#include "smbios-inspect/departures/standard_field.h"

namespace SMBIOS::Inspect::Departures {

/// Whether it is plain from the bytes that two values agree, before the standard's words are made for one:
/// that is so for by far the most fields. Where it is not plain, the rule tells. The structure is long enough
/// for the field; in one that is not, no value agrees.
using Glance = bool (*)(const LibraryValue& value, const Standard::Reading& reading);

/// The glance that a rule can be spared by; null when there is none.
[[nodiscard]] Glance GlanceFor(const Rule& rule, const StandardField& standard) noexcept;

}  // namespace SMBIOS::Inspect::Departures
