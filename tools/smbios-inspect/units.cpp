#include "smbios-inspect/units.h"

namespace SMBIOS::Inspect {

std::string ByteSizeText(std::uint64_t bytes) {
    constexpr const char* kUnits[] = {" B", " KiB", " MiB", " GiB", " TiB", " PiB", " EiB"};
    std::size_t unit = 0;
    while (bytes != 0 && bytes % 1024 == 0 && unit + 1 < std::size(kUnits)) {
        bytes /= 1024;
        ++unit;
    }
    return std::to_string(bytes) + kUnits[unit];
}

}  // namespace SMBIOS::Inspect
