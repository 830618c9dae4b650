#pragma once

#ifndef _WIN32
#include <shared_mutex>
#endif

namespace SMBIOS::Platform {

/// A reader/writer lock for std::unique_lock and std::shared_lock. Not recursive. Ready without running any
/// code at load time.
class ReaderWriterLock {
public:
    constexpr ReaderWriterLock() noexcept = default;
    ReaderWriterLock(const ReaderWriterLock&) = delete;
    ReaderWriterLock& operator=(const ReaderWriterLock&) = delete;

    void lock();
    void unlock();
    void lock_shared();
    void unlock_shared();

private:
#ifdef _WIN32
    void* native_ = nullptr;  // an SRWLOCK: one pointer, null when free
#else
    std::shared_mutex native_;
#endif
};

}  // namespace SMBIOS::Platform
