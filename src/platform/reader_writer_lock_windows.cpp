#include "platform/reader_writer_lock.h"
#include "platform/windows_api.h"

namespace SMBIOS::Platform {

namespace {

static_assert(sizeof(SRWLOCK) == sizeof(void*) && alignof(SRWLOCK) <= alignof(void*),
              "an SRWLOCK lives in the place of a pointer");

PSRWLOCK AsSrwLock(void*& native) noexcept {
    return reinterpret_cast<PSRWLOCK>(&native);
}

}  // namespace

void ReaderWriterLock::lock() {
    ::AcquireSRWLockExclusive(AsSrwLock(native_));
}

void ReaderWriterLock::unlock() {
    ::ReleaseSRWLockExclusive(AsSrwLock(native_));
}

void ReaderWriterLock::lock_shared() {
    ::AcquireSRWLockShared(AsSrwLock(native_));
}

void ReaderWriterLock::unlock_shared() {
    ::ReleaseSRWLockShared(AsSrwLock(native_));
}

}  // namespace SMBIOS::Platform
