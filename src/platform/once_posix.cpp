#include "platform/once.h"

namespace SMBIOS::Platform {

namespace {

std::unique_lock<std::mutex> LockOrEndProcess(std::mutex& mutex) noexcept {
    return std::unique_lock(mutex);
}

}  // namespace

void Once::Call(const std::function<void()>& create) {
    if (isDone_.load(std::memory_order_acquire)) {
        return;
    }
    const std::unique_lock guard = LockOrEndProcess(native_);
    if (isDone_.load(std::memory_order_relaxed)) {
        return;
    }
    create();
    isDone_.store(true, std::memory_order_release);
}

}  // namespace SMBIOS::Platform
