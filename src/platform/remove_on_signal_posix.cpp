#include "platform/remove_on_signal_posix.h"

#include <unistd.h>

#include <atomic>

namespace SMBIOS::Platform {

namespace {

// A signal handler may touch nothing that takes a lock.
constinit std::atomic<int> folderOfFile = -1;
constinit std::atomic<const char*> nameOfFile = nullptr;
static_assert(std::atomic<int>::is_always_lock_free && std::atomic<const char*>::is_always_lock_free);

void RemoveAndEnd(int signal) {
    if (const char* const name = nameOfFile.exchange(nullptr)) {
        ::unlinkat(folderOfFile, name, 0);
    }
    ::raise(signal);  // which now does what it does to a process that does not handle it
}

struct sigaction RemovalAction() noexcept {
    struct sigaction action {};
    action.sa_handler = RemoveAndEnd;
    action.sa_flags = static_cast<int>(SA_RESETHAND | SA_NODEFER);
    ::sigemptyset(&action.sa_mask);
    return action;
}

}  // namespace

RemoveOnSignal::RemoveOnSignal(int folder, const char* name) noexcept {
    folderOfFile = folder;
    nameOfFile = name;
    const struct sigaction removal = RemovalAction();
    for (std::size_t i = 0; i < kEndingSignals.size(); ++i) {
        ::sigaction(kEndingSignals[i], nullptr, &former_[i]);
        if (former_[i].sa_handler == SIG_DFL) {
            ::sigaction(kEndingSignals[i], &removal, nullptr);
        }
    }
}

RemoveOnSignal::~RemoveOnSignal() {
    for (std::size_t i = 0; i < kEndingSignals.size(); ++i) {
        ::sigaction(kEndingSignals[i], &former_[i], nullptr);
    }
    nameOfFile = nullptr;
}

EndingSignalsBlocked::EndingSignalsBlocked() noexcept {
    sigset_t ending;
    ::sigemptyset(&ending);
    for (const int signal : kEndingSignals) {
        ::sigaddset(&ending, signal);
    }
    ::pthread_sigmask(SIG_BLOCK, &ending, &former_);
}

EndingSignalsBlocked::~EndingSignalsBlocked() {
    ::pthread_sigmask(SIG_SETMASK, &former_, nullptr);
}

}  // namespace SMBIOS::Platform
