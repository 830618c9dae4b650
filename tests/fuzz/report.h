#pragma once

#include <sstream>
#include <utility>

#include "tests/fuzz/require.h"
#include "tests/support/harmless_text.h"

namespace SMBIOS::Fuzz {

/// What `report` prints on the stream that it is given.
template <class Report>
[[nodiscard]] std::string PrintedBy(Report report) {
    std::ostringstream output;
    report(output);
    return std::move(output).str();
}

template <class Report>
void RequireJson(Report report) {
    Require(Tests::IsHarmlessJson(PrintedBy(report)), "what is printed is JSON without control characters");
}

template <class Report>
void RequireText(Report report) {
    Require(Tests::IsHarmlessText(PrintedBy(report)), "what is printed is UTF-8 that controls no terminal");
}

}  // namespace SMBIOS::Fuzz
