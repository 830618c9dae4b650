#include "platform/reader_writer_lock.h"

namespace SMBIOS::Platform {

void ReaderWriterLock::lock() {
    native_.lock();
}

void ReaderWriterLock::unlock() {
    native_.unlock();
}

void ReaderWriterLock::lock_shared() {
    native_.lock_shared();
}

void ReaderWriterLock::unlock_shared() {
    native_.unlock_shared();
}

}  // namespace SMBIOS::Platform
