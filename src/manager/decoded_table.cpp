#include "manager/decoded_table.h"

#include <iterator>
#include <new>
#include <optional>
#include <utility>

#include "manager/raw_table.h"
#include "platform/raw_table_header.h"

namespace SMBIOS::Manager {

using Platform::RawTableHeader;
using Structures::BaseStructure;
using FiledDecoder = Structures::StructureFactory::FiledDecoder;

std::vector<std::shared_ptr<BaseStructure>> StructuresUnder(Types::StructureTypes key,
                                                            const FiledStructures& structures) {
    std::vector<std::shared_ptr<BaseStructure>> found;
    const auto [first, last] = structures.equal_range(key);
    for (auto entry = first; entry != last; ++entry) {
        found.push_back(entry->second);
    }
    return found;
}

TableVersion TableVersion::Of(std::span<const std::uint8_t> rawTable, SmbiosVersionIndex unlisted) {
    CheckRawTable(rawTable);
    const auto [major, minor, revision] = RawTableHeader::Of(rawTable);
    return {
        .text = std::to_string(major) + "." + std::to_string(minor) + "." + std::to_string(revision),
        .index = FindVersionIndex(major, minor, revision).value_or(unlisted),
    };
}

FiledDecoder DecodeStructure(const StructureView& structure,
                             SmbiosVersionIndex version,
                             RawStructure& memory) {
    FiledDecoder decoded =
        Structures::StructureFactory::CreateTablePtr(Types::StructureTypes{structure.type}, version);
    memory.Assign(structure);
    decoded.second->Process(memory.formattedBytes, memory.strings);
    return decoded;
}

void FileStructures(std::span<const std::uint8_t> structureTable,
                    SmbiosVersionIndex version,
                    FiledStructures& structures) {
    StructureWalk walk(structureTable);
    RawStructure memory;
    bool ranOutOfMemory = false;
    auto last = structures.end();
    while (const std::optional<StructureView> structure = walk.Next()) {
        FiledDecoder decoded = DecodeStructure(*structure, version, memory);
        ranOutOfMemory = ranOutOfMemory || decoded.second->RanOutOfMemory();
        // Tables hold their structures type by type: mostly the place is right behind the last one.
        const bool isInRun = last != structures.end() && last->first == decoded.first;
        const auto place = isInRun ? std::next(last) : structures.upper_bound(decoded.first);
        last = structures.insert(place, std::move(decoded));
    }
    if (ranOutOfMemory) {
        throw std::bad_alloc();
    }
}

DecodedTable DecodeTable(std::span<const std::uint8_t> rawTable, SmbiosVersionIndex unlisted) {
    DecodedTable table{.version = TableVersion::Of(rawTable, unlisted), .structures = {}};
    FileStructures(RawTableHeader::StructuresOf(rawTable), table.version.index, table.structures);
    return table;
}

}  // namespace SMBIOS::Manager
