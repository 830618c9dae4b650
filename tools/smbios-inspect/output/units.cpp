#include "smbios-inspect/output/units.h"

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

std::string HexadecimalText(std::span<const std::uint8_t> bytes) {
    constexpr char kDigits[] = "0123456789abcdef";
    std::string text;
    text.reserve(2 * bytes.size());
    for (const std::uint8_t byte : bytes) {
        text += kDigits[byte >> 4];
        text += kDigits[byte & 0x0F];
    }
    return text;
}

}  // namespace SMBIOS::Inspect
