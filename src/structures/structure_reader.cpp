#include "structures/structure_reader.h"

#include "structures/string_lookup.h"

namespace SMBIOS::Structures {

std::string StructureReader::String(std::size_t offset) const {
    const std::uint8_t number = Byte(offset);
    std::string text = GetStringByIndex(number, strings_);
    if (text.empty() && !FindString(number, strings_).empty()) {
        NoteLostText();
    }
    return text;
}

void StructureReader::OverwriteByte(std::size_t offset, std::uint8_t value) noexcept {
    if (offset < formattedBytes_.size()) {
        // `Process` takes its bytes as const by contract, yet they are the walk's own copy and never const.
        const_cast<std::uint8_t&>(formattedBytes_[offset]) = value;
    }
}

}  // namespace SMBIOS::Structures
