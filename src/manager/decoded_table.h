#pragma once

#include <cstdint>
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

namespace SMBIOS::Manager {

/// The decoders of a table, each under its key; in table order below one key.
using FiledStructures = std::multimap<Types::StructureTypes, std::shared_ptr<Structures::BaseStructure>>;

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

/// Makes a decoder for one structure and lets it process it. Its bytes and strings are copied into `memory`,
/// which serves one structure after the other. Throws std::bad_alloc.
[[nodiscard]] Structures::StructureFactory::FiledDecoder DecodeStructure(const StructureView& structure,
                                                                         SmbiosVersionIndex version,
                                                                         RawStructure& memory);

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
