#pragma once

#include <signal.h>

#include <array>
#include <cstddef>

namespace SMBIOS::Platform {

/// The signals that end a process unless it takes care of them, and leave it time to do so.
inline constexpr std::array kEndingSignals = {
    SIGHUP, SIGINT, SIGQUIT, SIGPIPE, SIGALRM, SIGTERM, SIGXCPU, SIGXFSZ};

/// A file that is removed when one of those signals ends the process. The process ends all the same, and a
/// signal that it ignores or handles stays so. One at a time in a process.
class RemoveOnSignal {
public:
    /// The file `name` in the open folder `folder`, which the caller keeps both.
    RemoveOnSignal(int folder, const char* name) noexcept;
    RemoveOnSignal(const RemoveOnSignal&) = delete;
    RemoveOnSignal& operator=(const RemoveOnSignal&) = delete;
    ~RemoveOnSignal();

private:
    std::array<struct sigaction, kEndingSignals.size()> former_;
};

/// While it lives, the signals that end the process wait.
class EndingSignalsBlocked {
public:
    EndingSignalsBlocked() noexcept;
    EndingSignalsBlocked(const EndingSignalsBlocked&) = delete;
    EndingSignalsBlocked& operator=(const EndingSignalsBlocked&) = delete;
    ~EndingSignalsBlocked();

private:
    sigset_t former_;
};

}  // namespace SMBIOS::Platform
