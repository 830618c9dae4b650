#include "structures/hex_text.h"

#include <algorithm>
#include <bit>

namespace SMBIOS::Structures {

std::string PaddedHexText(std::uint64_t value, std::size_t leastDigits) {
    constexpr char kDigits[] = "0123456789ABCDEF";
    const std::size_t digits = (static_cast<std::size_t>(std::bit_width(value)) + 3) / 4;
    std::string text(2 + std::max({digits, leastDigits, std::size_t{1}}), '0');
    text[1] = 'x';
    for (std::size_t place = text.size(); value != 0; value >>= 4) {
        text[--place] = kDigits[value & 0x0F];
    }
    return text;
}

}  // namespace SMBIOS::Structures
