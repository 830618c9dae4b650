#include "table_builder.h"

namespace SMBIOS::Samples {

StructureBuilder::StructureBuilder(std::uint8_t type, std::uint8_t length, std::uint16_t handle)
    : formattedBytes_(length) {
    Byte(0x00, type).Byte(0x01, length);
    if (length >= 4) {
        Word(0x02, handle);
    }
}

StructureBuilder& StructureBuilder::LittleEndian(std::size_t offset, std::uint64_t value, std::size_t width) {
    if (formattedBytes_.size() < offset + width) {
        formattedBytes_.resize(offset + width);
    }
    for (std::size_t i = 0; i < width; ++i) {
        formattedBytes_[offset + i] = static_cast<std::uint8_t>(value >> (8 * i));
    }
    return *this;
}

StructureBuilder& StructureBuilder::Byte(std::size_t offset, std::uint8_t value) {
    return LittleEndian(offset, value, 1);
}

StructureBuilder& StructureBuilder::Word(std::size_t offset, std::uint16_t value) {
    return LittleEndian(offset, value, 2);
}

StructureBuilder& StructureBuilder::Dword(std::size_t offset, std::uint32_t value) {
    return LittleEndian(offset, value, 4);
}

StructureBuilder& StructureBuilder::Qword(std::size_t offset, std::uint64_t value) {
    return LittleEndian(offset, value, 8);
}

StructureBuilder& StructureBuilder::Bytes(std::size_t offset, const std::vector<std::uint8_t>& values) {
    for (std::size_t i = 0; i < values.size(); ++i) {
        Byte(offset + i, values[i]);
    }
    return *this;
}

StructureBuilder& StructureBuilder::String(std::size_t offset, std::string_view text) {
    String(text);
    return Byte(offset, static_cast<std::uint8_t>(strings_.size()));
}

StructureBuilder& StructureBuilder::String(std::string_view text) {
    strings_.emplace_back(text);
    return *this;
}

TableBuilder::TableBuilder(std::uint8_t major, std::uint8_t minor, std::uint8_t revision)
    : major_(major), minor_(minor), revision_(revision) {}

TableBuilder& TableBuilder::Add(const StructureBuilder& structure) {
    AddBytes(structure.FormattedBytes());
    for (const std::string& text : structure.Strings()) {
        structures_.insert(structures_.end(), text.begin(), text.end());
        structures_.push_back(0);
    }
    if (structure.Strings().empty()) {
        structures_.push_back(0);
    }
    structures_.push_back(0);
    return *this;
}

TableBuilder& TableBuilder::AddBytes(const std::vector<std::uint8_t>& bytes) {
    structures_.insert(structures_.end(), bytes.begin(), bytes.end());
    return *this;
}

std::vector<std::uint8_t> TableBuilder::RawTable() const {
    std::vector<std::uint8_t> table = {0, major_, minor_, revision_};
    for (unsigned shift = 0; shift < 32; shift += 8) {
        table.push_back(static_cast<std::uint8_t>(structures_.size() >> shift));
    }
    table.insert(table.end(), structures_.begin(), structures_.end());
    return table;
}

}  // namespace SMBIOS::Samples
