#include "parsers/row_values.h"

namespace SMBIOS::Parsers {

std::uint8_t* RawDataOf(Structures::StructureRecord* row, std::size_t& size) noexcept {
    if (row == nullptr || row->rawBytes.empty()) {
        size = 0;
        return nullptr;
    }
    size = row->rawBytes.size();
    return row->rawBytes.data();
}

std::size_t StringCountOf(const Structures::StructureRecord* row) noexcept {
    return row == nullptr || !row->strings ? 0 : row->strings->size();
}

const char* StringOf(const Structures::StructureRecord* row, std::size_t stringIndex) noexcept {
    return stringIndex < StringCountOf(row) ? (*row->strings)[stringIndex].c_str() : nullptr;
}

}  // namespace SMBIOS::Parsers
