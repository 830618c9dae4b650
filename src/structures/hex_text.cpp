#include "structures/hex_text.h"

#include <algorithm>
#include <bit>
#include <string_view>

namespace SMBIOS::Structures {

namespace {

std::string TextOf(std::string_view prefix, std::uint64_t value, std::size_t leastDigits) {
    constexpr char kDigits[] = "0123456789ABCDEF";
    const std::size_t digits = (static_cast<std::size_t>(std::bit_width(value)) + 3) / 4;
    std::string text(prefix.size() + std::max({digits, leastDigits, std::size_t{1}}), '0');
    std::ranges::copy(prefix, text.begin());
    for (std::size_t place = text.size(); value != 0; value >>= 4) {
        text[--place] = kDigits[value & 0x0F];
    }
    return text;
}

}  // namespace

std::string PaddedHexText(std::uint64_t value, std::size_t leastDigits) {
    return TextOf("0x", value, leastDigits);
}

std::string HexDigits(std::uint64_t value, std::size_t leastDigits) {
    return TextOf("", value, leastDigits);
}

}  // namespace SMBIOS::Structures
