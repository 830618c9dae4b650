#include "smbios-inspect/reports/unlisted_note.h"

#include <ostream>

#include "common/format.h"
#include "smbios-inspect/output/text_layout.h"

namespace SMBIOS::Inspect {

void PrintUnlistedNote(const UnlistedStructures& unlisted, const OutputStyle& style, std::ostream& output) {
    if (unlisted.listed >= unlisted.total) {
        return;
    }
    const std::size_t missing = unlisted.total - unlisted.listed;
    output << (unlisted.listed == 0 ? "" : "\n");
    PrintSentence(
        Common::format("{} of {} {}{} {} not listed: each needs {} of its own. See all of them with: "
                       "smbios-inspect structures --type {}",
                       missing,
                       unlisted.total,
                       unlisted.noun,
                       unlisted.total == 1 ? "" : "s",
                       missing == 1 ? "is" : "are",
                       unlisted.identifier,
                       unlisted.type),
        style,
        output);
}

}  // namespace SMBIOS::Inspect
