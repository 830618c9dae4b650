#include "manager/decoded_table.h"

#include <new>
#include <optional>
#include <utility>

#include "manager/raw_table.h"
#include "manager/structure_factory.h"
#include "manager/structure_walk.h"
#include "platform/raw_table_header.h"

namespace SMBIOS::Manager {

using Platform::RawTableHeader;
using Structures::BaseStructure;

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

void FileStructures(std::span<const std::uint8_t> structureTable,
                    SmbiosVersionIndex version,
                    FiledStructures& structures) {
    StructureWalk walk(structureTable);
    RawStructure raw;
    bool ranOutOfMemory = false;
    while (const std::optional<StructureView> structure = walk.Next()) {
        auto [key, decoder] =
            Structures::StructureFactory::CreateTablePtr(Types::StructureTypes{structure->type}, version);
        raw.Assign(*structure);
        decoder->Process(raw.formattedBytes, raw.strings);
        ranOutOfMemory = ranOutOfMemory || decoder->RanOutOfMemory();
        structures.emplace(key, std::move(decoder));
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
