#include "structures/mapped_address.h"

#include "structures/decoding.h"
#include "structures/hex_text.h"

namespace SMBIOS::Structures {

std::string MappedAddress(const StructureReader& in, std::size_t offset, std::size_t extendedOffset) {
    const std::uint32_t address = in.Dword(offset);
    if (address != 0xFFFFFFFF) {
        return HexText(address);
    }
    return in.VersionIsAtLeast(v2_7_0) ? HexText(in.Qword(extendedOffset)) : std::string();
}

}  // namespace SMBIOS::Structures
