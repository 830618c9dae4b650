#include "smbios-inspect/reports/unlisted_note.h"

#include <ostream>

#include "common/format.h"
#include "smbios-inspect/output/text_layout.h"
#include "smbios-inspect/reports/from_option.h"

namespace SMBIOS::Inspect {

void PrintUnlistedNote(const UnlistedStructures& unlisted,
                       const Request& request,
                       const OutputStyle& style,
                       std::ostream& output) {
    if (unlisted.Count() == 0) {
        return;
    }
    output << (unlisted.listed == 0 ? "" : "\n");
    PrintSentence(
        Common::format("{} of {} {}{} {} not listed: each needs {} of its own. See all of them with: "
                       "smbios-inspect structures --type {}{}",
                       unlisted.Count(),
                       unlisted.total,
                       unlisted.noun,
                       unlisted.total == 1 ? "" : "s",
                       unlisted.Count() == 1 ? "is" : "are",
                       unlisted.identifier,
                       unlisted.type,
                       FromOption(request)),
        style,
        output);
}

}  // namespace SMBIOS::Inspect
