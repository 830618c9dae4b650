#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <functional>
#include <string>

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>
#endif

namespace SMBIOS::Tests {

/// Whether this process has lost memory; known only where a sanitizer watches it.
inline bool HasLeaked() {
#if defined(__SANITIZE_ADDRESS__)
    return __lsan_do_recoverable_leak_check() != 0;
#else
    return false;
#endif
}

/// The text that `make` returns in a copy of this process, which is left as it is; what is once per process
/// is fresh in every copy. Says so in place of the text when the copy leaks or does not live to its end.
inline std::string TextOfChild(const std::function<std::string()>& make) {
    std::array<int, 2> ends = {};
    if (::pipe(ends.data()) != 0) {
        return "no pipe";
    }
    const pid_t child = ::fork();
    if (child == 0) {
        const std::string text = make();
        const bool isWhole = ::write(ends[1], text.data(), text.size()) == static_cast<ssize_t>(text.size());
        ::_exit(isWhole && !HasLeaked() ? 0 : 1);
    }
    ::close(ends[1]);
    std::string text;
    std::array<char, 4096> piece = {};
    for (ssize_t size = 0; (size = ::read(ends[0], piece.data(), piece.size())) > 0;) {
        text.append(piece.data(), static_cast<std::size_t>(size));
    }
    ::close(ends[0]);
    int status = 0;
    ::waitpid(child, &status, 0);
    return status == 0 ? text : "the process ended with status " + std::to_string(status);
}

}  // namespace SMBIOS::Tests
