#pragma once

#include "platform/reader_writer_lock.h"

namespace SMBIOS::Parsers {

/// The one lock of the process on what decoded records hold. Every object of both exported classes shares the
/// records of the table, so whoever tests, links, completes or copies one holds this lock; nobody holds it
/// while a program runs.
inline constinit Platform::ReaderWriterLock recordLock;

}  // namespace SMBIOS::Parsers
