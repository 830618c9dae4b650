#include <cstdlib>
#include <iostream>
#include <sstream>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "platform/console.h"
#include "smbios-inspect/command_line/inspect.h"
#include "smbios-inspect/command_line/terminal.h"

namespace {

using namespace SMBIOS;

/// Prints what the tool has to say; a reader that goes away has seen all it wanted.
int Print(const Platform::Console& console, const std::string& text, int status) {
    const std::error_code failure = console.Write(text);
    if (!failure || failure == std::errc::broken_pipe) {
        return status;
    }
    std::cerr << "smbios-inspect: cannot write to standard output: " << failure.message() << "\n";
    return Inspect::kUnreadable;
}

}  // namespace

int main(int argumentCount, char** arguments) {
    const Platform::Console console;
    const std::vector<std::string> words = Platform::ProgramArguments(argumentCount, arguments);
    const Inspect::OutputStyle style =
        Inspect::StyleFor({.columns = console.Columns(),
                           .takesEscapeSequences = console.TakesEscapeSequences(),
                           .noColour = std::getenv("NO_COLOR"),
                           .kind = std::getenv("TERM")});
    std::ostringstream output;
    const std::vector<std::string_view> views(words.begin(), words.end());
    const int status = Inspect::Run(views, style, output, std::cerr);
    return Print(console, output.str(), status);
}
