#pragma once

namespace SMBIOS::Platform {

/// Makes standard output write the bytes it is given, with line ends as they are, on every system.
void UseBinaryStandardOutput() noexcept;

}  // namespace SMBIOS::Platform
