#include "smbios-inspect/command_line/terminal.h"

#include <string_view>

namespace SMBIOS::Inspect {

namespace {

std::string_view TextOf(const char* variable) noexcept {
    return variable == nullptr ? std::string_view() : std::string_view(variable);
}

}  // namespace

OutputStyle StyleFor(const Terminal& terminal) noexcept {
    const bool isWanted = TextOf(terminal.noColour).empty() && TextOf(terminal.kind) != "dumb";
    return {.width = terminal.columns, .colour = terminal.takesEscapeSequences && isWanted};
}

}  // namespace SMBIOS::Inspect
