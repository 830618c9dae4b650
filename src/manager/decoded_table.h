#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "manager/smbios_version.h"
#include "manager/structure_factory.h"
#include "manager/structure_types.h"
#include "manager/structure_walk.h"
#include "structures/base_structure.h"
#include "structures/record_block.h"

namespace SMBIOS::Manager {

/// A decoder and the key it is filed under.
using FiledStructure = Structures::StructureFactory::FiledDecoder;

/// The decoders of a table: for each key that has any, all of its decoders in table order.
using FiledStructures = std::map<Types::StructureTypes, std::deque<FiledStructure>>;

/// The decoders filed under `key`, in table order.
[[nodiscard]] std::vector<std::shared_ptr<Structures::BaseStructure>> StructuresUnder(
    Types::StructureTypes key, const FiledStructures& structures);

/// The version that a raw table claims.
struct TableVersion {
    std::string text;  ///< "major.minor.revision"
    SmbiosVersionIndex index = SmbiosVersionIndex::v2_0_0;

    /// The version in the header of a raw table. The index of a version that the version map does not list is
    /// `unlisted`. Throws when nothing follows the header, and std::bad_alloc.
    [[nodiscard]] static TableVersion Of(std::span<const std::uint8_t> rawTable, SmbiosVersionIndex unlisted);
};

/// Decodes the structures of one table, into memory that their decoders and records share.
class StructureDecoder {
public:
    explicit StructureDecoder(SmbiosVersionIndex version) noexcept : version_(version) {}

    /// Makes a decoder for a structure and lets it process it. Throws std::bad_alloc.
    [[nodiscard]] FiledStructure Decode(const StructureView& structure);

private:
    const SmbiosVersionIndex version_;
    Structures::RecordBlock::Owner block_;
};

/// Walks the structures of a table and files a decoder for each. A structure that cannot be decoded tells so
/// in its record. Throws std::bad_alloc when any allocation failed, also one that a decoder recorded; what
/// was filed until then stays.
void FileStructures(std::span<const std::uint8_t> structureTable,
                    SmbiosVersionIndex version,
                    FiledStructures& structures);

/// A table and everything decoded from it. A plain value: it owns its decoders and refers to nothing else.
struct DecodedTable {
    TableVersion version;
    FiledStructures structures;

    [[nodiscard]] std::vector<std::shared_ptr<Structures::BaseStructure>> GetStructuresByType(
        Types::StructureTypes key) const {
        return StructuresUnder(key, structures);
    }
};

/// Decodes a raw table, its 8-byte header included. A function of its arguments alone: any number of tables
/// can be decoded, on any threads. Throws what `TableVersion::Of` and `FileStructures` throw.
[[nodiscard]] DecodedTable DecodeTable(std::span<const std::uint8_t> rawTable,
                                       SmbiosVersionIndex unlisted = SmbiosVersionIndex::v2_0_0);

}  // namespace SMBIOS::Manager
