#pragma once

#include <functional>

#ifndef _WIN32
#include <atomic>
#include <mutex>
#endif

namespace SMBIOS::Platform {

/// Once-only initialisation. Ready without running any code at load time.
class Once {
public:
    constexpr Once() noexcept = default;
    Once(const Once&) = delete;
    Once& operator=(const Once&) = delete;

    /// Runs `create` unless an earlier call of this object has completed; callers arriving meanwhile wait.
    /// When `create` throws, the exception passes on and the next call tries again. Ends the process when the
    /// operating system's primitive itself fails.
    void Call(const std::function<void()>& create);

private:
#ifdef _WIN32
    void* native_ = nullptr;  // an INIT_ONCE: one pointer, null before the first use
#else
    // Not a std::once_flag: where that rests on pthread_once, an exception can leave it locked for good.
    std::mutex native_;
    std::atomic<bool> isDone_ = false;
#endif
};

}  // namespace SMBIOS::Platform
