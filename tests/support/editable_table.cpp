#include "tests/support/editable_table.h"

#include <algorithm>
#include <map>
#include <random>
#include <span>
#include <stdexcept>

#include "smbios-inspect/comparison/references.h"
#include "smbios-inspect/standard/structure.h"

namespace SMBIOS::Tests {

using Inspect::Comparing::Reference;
using Inspect::Standard::Structure;
using Inspect::Standard::TableWalk;

namespace {

constexpr std::size_t kHeaderSize = 8;
constexpr std::size_t kOwnHandle = 2;

std::vector<Reference> ReferencesOf(const EditableStructure& each) {
    Structure structure;
    structure.bytes = each.bytes;
    std::vector<Reference> references;
    Inspect::Comparing::AppendReferences(structure, references);
    return references;
}

}  // namespace

std::uint16_t EditableStructure::Word(std::size_t offset) const {
    return static_cast<std::uint16_t>(bytes.at(offset) | bytes.at(offset + 1) << 8);
}

EditableStructure& EditableStructure::SetByte(std::size_t offset, std::uint8_t value) {
    bytes.at(offset) = value;
    return *this;
}

EditableStructure& EditableStructure::SetWord(std::size_t offset, std::uint16_t value) {
    return SetByte(offset, static_cast<std::uint8_t>(value))
        .SetByte(offset + 1, static_cast<std::uint8_t>(value >> 8));
}

EditableStructure& EditableStructure::SetDword(std::size_t offset, std::uint32_t value) {
    return SetWord(offset, static_cast<std::uint16_t>(value))
        .SetWord(offset + 2, static_cast<std::uint16_t>(value >> 16));
}

EditableStructure& EditableStructure::SetString(std::size_t offset, std::string_view text) {
    strings.at(bytes.at(offset) - 1U) = text;
    return *this;
}

EditableStructure& EditableStructure::Append(const std::vector<std::uint8_t>& more) {
    bytes.insert(bytes.end(), more.begin(), more.end());
    return SetByte(1, static_cast<std::uint8_t>(bytes.size()));
}

EditableTable::EditableTable(const std::vector<std::uint8_t>& rawTable)
    : header_(rawTable.begin(), rawTable.begin() + kHeaderSize) {
    TableWalk walk(rawTable);
    while (const auto structure = walk.Next()) {
        if (structure->defect.empty()) {
            structures_.push_back({{structure->bytes.begin(), structure->bytes.end()},
                                   {structure->strings.begin(), structure->strings.end()}});
        }
    }
}

EditableStructure& EditableTable::At(std::uint16_t handle) {
    const auto found = std::ranges::find(structures_, handle, &EditableStructure::Handle);
    if (found == structures_.end()) {
        throw std::out_of_range("no structure has the handle " + std::to_string(handle));
    }
    return *found;
}

void EditableTable::Remove(std::uint16_t handle) {
    std::erase_if(structures_, [=](const EditableStructure& each) { return each.Handle() == handle; });
}

void EditableTable::SetVersion(std::uint8_t major, std::uint8_t minor) {
    header_[1] = major;
    header_[2] = minor;
}

std::vector<std::uint8_t> EditableTable::RawTable() const {
    std::vector<std::uint8_t> table = header_;
    for (const EditableStructure& each : structures_) {
        table.insert(table.end(), each.bytes.begin(), each.bytes.end());
        for (const std::string& text : each.strings) {
            table.insert(table.end(), text.begin(), text.end());
            table.push_back(0);
        }
        table.insert(table.end(), each.strings.empty() ? 2 : 1, 0);
    }
    return table;
}

void ShuffleAndRenumber(EditableTable& table, unsigned seed) {
    constexpr std::uint16_t kFirstHandle = 0x4000;
    constexpr std::uint16_t kFirstNowhere = 0xC000;
    std::mt19937 random(seed);
    std::ranges::shuffle(table.Structures(), random);
    std::map<std::uint16_t, std::uint16_t> handles;
    for (EditableStructure& each : table.Structures()) {
        const auto number = static_cast<std::uint16_t>(kFirstHandle + 3 * handles.size());
        handles.emplace(each.Handle(), number);
    }
    for (EditableStructure& each : table.Structures()) {
        for (const Reference& reference : ReferencesOf(each)) {
            const auto nowhere = static_cast<std::uint16_t>(kFirstNowhere + handles.size());
            each.SetWord(reference.offset, handles.try_emplace(reference.handle, nowhere).first->second);
        }
        each.SetWord(kOwnHandle, handles.at(each.Handle()));
    }
}

}  // namespace SMBIOS::Tests
