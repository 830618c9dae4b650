#include "platform/standard_output.h"

#include <fcntl.h>
#include <io.h>
#include <stdio.h>

namespace SMBIOS::Platform {

void UseBinaryStandardOutput() noexcept {
    ::_setmode(::_fileno(stdout), _O_BINARY);
}

}  // namespace SMBIOS::Platform
