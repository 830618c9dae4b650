#include "smbios-inspect/output/units.h"

#include "smbios-inspect/output/copy_text.h"

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

std::string HexadecimalText(std::span<const std::uint8_t> bytes, std::string_view separator) {
    constexpr char kDigits[] = "0123456789abcdef";
    const std::size_t size = (2 + separator.size()) * bytes.size();
    std::string text(bytes.empty() ? 0 : size - separator.size(), '\0');
    char* place = text.data();
    for (const std::uint8_t byte : bytes) {
        place = CopyText(place == text.data() ? "" : separator, place);
        *place++ = kDigits[byte >> 4];
        *place++ = kDigits[byte & 0x0F];
    }
    return text;
}

}  // namespace SMBIOS::Inspect
