#include "platform/standard_output.h"

namespace SMBIOS::Platform {

void UseBinaryStandardOutput() noexcept {}

}  // namespace SMBIOS::Platform
