#include "platform/console.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <cerrno>

namespace SMBIOS::Platform {

namespace {

/// Waits until a write to `descriptor` would do something, or fail.
void WaitForRoom(int descriptor) noexcept {
    pollfd waited{.fd = descriptor, .events = POLLOUT, .revents = 0};
    ::poll(&waited, 1, -1);
}

/// Takes the numbers of standard streams that are closed: a file that got one would be read or printed into
/// in their place. Reading from and printing to them fails as before.
void HoldClosedStreams() noexcept {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(stream, F_GETFD) < 0) {
            ::open("/", O_PATH);  // gets the lowest number that is free
        }
    }
}

}  // namespace

struct Console::Settings {};

Console::Console() {
    HoldClosedStreams();
    takesEscapeSequences_ = ::isatty(STDOUT_FILENO) != 0;
}

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
        } else if (errno == EAGAIN) {  // whoever shares the output may have made it non-blocking
            WaitForRoom(STDOUT_FILENO);
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
