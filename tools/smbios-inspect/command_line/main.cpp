#include <cstdlib>
#include <iostream>
#include <ostream>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "platform/console.h"
#include "smbios-inspect/command_line/console_buffer.h"
#include "smbios-inspect/command_line/inspect.h"
#include "smbios-inspect/command_line/terminal.h"

namespace {

using namespace SMBIOS;

/// The status of a process that ran with `status`; a reader that goes away has seen all it wanted.
int StatusAfter(std::error_code failure, int status) {
    if (!failure || failure == std::errc::broken_pipe) {
        return status;
    }
    std::cerr << "smbios-inspect: cannot write to standard output: " << failure.message() << "\n";
    return Inspect::kUnreadable;
}

int RunAndFinish(int argumentCount, char** arguments) {
    const Platform::Console console;
    const std::vector<std::string> words = Platform::ProgramArguments(argumentCount, arguments);
    const Inspect::OutputStyle style =
        Inspect::StyleFor({.columns = console.Columns(),
                           .takesEscapeSequences = console.TakesEscapeSequences(),
                           .noColour = std::getenv("NO_COLOR"),
                           .kind = std::getenv("TERM")});
    Inspect::ConsoleBuffer buffer(console);
    std::ostream output(&buffer);
    const std::vector<std::string_view> views(words.begin(), words.end());
    const int status = Inspect::Run(views, style, output, std::cerr);
    return StatusAfter(buffer.Finish(), status);
}

}  // namespace

int main(int argumentCount, char** arguments) {
    const int status = RunAndFinish(argumentCount, arguments);
#ifdef NDEBUG
    std::_Exit(status);  // the system takes memory back faster than a table is released
#else
    return status;  // leak checkers look when the process ends by itself
#endif
}
