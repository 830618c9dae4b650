// Two raw tables, their headers included: what differs in one direction differs in the other, and nothing
// differs from itself. The first byte says how many eighths of the others are the first table.

#include <cstddef>
#include <cstdint>
#include <ostream>
#include <span>
#include <sstream>

#include "smbios-inspect/reports/diff_report.h"
#include "tests/fuzz/report.h"
#include "tests/fuzz/require.h"

using namespace SMBIOS;

namespace {

using Bytes = std::span<const std::uint8_t>;

bool DiffersFromItself(Bytes table) {
    std::ostringstream output;
    return Inspect::ReportDiff(table, table, {.quiet = true}, {}, output);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    const Bytes tables = Bytes(data, size).subspan(1);
    const std::size_t middle = tables.size() * (data[0] % 8) / 8;
    const Bytes before = tables.first(middle);
    const Bytes after = tables.subspan(middle);
    bool differsForwards = false;
    bool differsBackwards = false;
    Fuzz::RequireJson([&](std::ostream& output) {
        differsForwards = Inspect::ReportDiff(before, after, {.json = true}, {}, output);
    });
    Fuzz::RequireText([&](std::ostream& output) {
        differsBackwards = Inspect::ReportDiff(after, before, {}, {.width = data[0]}, output);
    });
    Fuzz::Require(differsForwards == differsBackwards, "both directions differ or none does");
    Fuzz::Require(!DiffersFromItself(after), "no table differs from itself");
    return 0;
}
