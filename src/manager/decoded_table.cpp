#include "manager/decoded_table.h"

#include <new>
#include <optional>
#include <utility>

#include "manager/raw_table.h"
#include "platform/raw_table_header.h"

namespace SMBIOS::Manager {

using Platform::RawTableHeader;
using Structures::BaseStructure;

std::vector<std::shared_ptr<BaseStructure>> StructuresUnder(Types::StructureTypes key,
                                                            const FiledStructures& structures) {
    std::vector<std::shared_ptr<BaseStructure>> found;
    const auto run = structures.find(key);
    if (run != structures.end()) {
        found.reserve(run->second.size());
        for (const FiledStructure& structure : run->second) {
            found.push_back(structure.second);
        }
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

FiledStructure StructureDecoder::Decode(const StructureView& structure) {
    if (!block_ || block_->IsFull()) {
        block_ = Structures::RecordBlock::Make();
    }
    FiledStructure decoded = Structures::StructureFactory::CreateTablePtr(
        Types::StructureTypes{structure.type}, version_, *block_);
    RawStructure raw = RawStructure::Of(structure);
    decoded.second->ProcessAndKeep(std::move(raw.formattedBytes), std::move(raw.strings));
    return decoded;
}

void FileStructures(std::span<const std::uint8_t> structureTable,
                    SmbiosVersionIndex version,
                    FiledStructures& structures) {
    StructureWalk walk(structureTable);
    StructureDecoder decoder(version);
    bool ranOutOfMemory = false;
    auto run = structures.end();
    while (const std::optional<StructureView> structure = walk.Next()) {
        FiledStructure decoded = decoder.Decode(*structure);
        ranOutOfMemory = ranOutOfMemory || decoded.second->RanOutOfMemory();
        // Tables hold their structures type by type: mostly the run is that of the last one.
        if (run == structures.end() || run->first != decoded.first) {
            run = structures.try_emplace(decoded.first).first;
        }
        run->second.push_back(std::move(decoded));
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
