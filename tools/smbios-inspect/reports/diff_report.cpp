#include "smbios-inspect/reports/diff_report.h"

#include "smbios-inspect/comparison/difference_json.h"
#include "smbios-inspect/comparison/difference_text.h"
#include "smbios-inspect/comparison/differences.h"

namespace SMBIOS::Inspect {

using Comparing::Comparison;
using Comparing::Counts;

namespace {

Counts Print(const Comparison& comparison,
             const Request& request,
             const OutputStyle& style,
             std::ostream& output) {
    if (request.quiet) {
        return Comparing::VisitChanges(comparison, [](auto&&...) {});
    }
    return request.json ? Comparing::WriteDifferences(comparison, output)
                        : Comparing::PrintDifferences(comparison, style, output);
}

}  // namespace

bool ReportDiff(std::span<const std::uint8_t> before,
                std::span<const std::uint8_t> after,
                const Request& request,
                const OutputStyle& style,
                std::ostream& output) {
    const Comparison comparison(before, after);
    return Comparing::HasDifference(comparison, Print(comparison, request, style, output));
}

}  // namespace SMBIOS::Inspect
