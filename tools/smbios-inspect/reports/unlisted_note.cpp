#include "smbios-inspect/reports/unlisted_note.h"

#include <algorithm>
#include <ostream>
#include <string_view>

#include "common/format.h"
#include "smbios-inspect/output/text_layout.h"

namespace SMBIOS::Inspect {

namespace {

bool NeedsNoQuotes(char character) noexcept {
    constexpr std::string_view kPlain = "/\\.:-_+";
    return ('0' <= character && character <= '9') || ('A' <= character && character <= 'Z') ||
           ('a' <= character && character <= 'z') || kPlain.find(character) != std::string_view::npos;
}

/// The option that reads the same table again.
std::string FromOption(const Request& request) {
    if (!request.from) {
        return {};
    }
    const bool isPlain = std::ranges::all_of(*request.from, NeedsNoQuotes);
    return " --from " + (isPlain ? *request.from : "\"" + *request.from + "\"");
}

}  // namespace

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
