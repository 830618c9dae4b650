#include "structures/hex_text.h"

#include "common/format.h"

namespace SMBIOS::Structures {

std::string PaddedHexText(std::uint64_t value, std::size_t leastDigits) {
    return Common::format("0x{:0{}X}", value, leastDigits);
}

}  // namespace SMBIOS::Structures
