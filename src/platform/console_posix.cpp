#include "platform/console.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <cerrno>

namespace SMBIOS::Platform {

struct Console::Settings {};

Console::Console() : takesEscapeSequences_(::isatty(STDOUT_FILENO) != 0) {}

Console::~Console() = default;

std::size_t Console::Columns() const noexcept {
    winsize size{};
    return ::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 ? size.ws_col : 0;
}

std::error_code Console::Write(std::string_view text) const noexcept {
    while (!text.empty()) {
        const ssize_t written = ::write(STDOUT_FILENO, text.data(), text.size());
        if (written >= 0) {
            text.remove_prefix(static_cast<std::size_t>(written));
        } else if (errno != EINTR) {
            return {errno, std::generic_category()};
        }
    }
    return {};
}

std::vector<std::string> ProgramArguments(int argumentCount, char** arguments) {
    return argumentCount > 1 ? std::vector<std::string>(arguments + 1, arguments + argumentCount)
                             : std::vector<std::string>();
}

}  // namespace SMBIOS::Platform
