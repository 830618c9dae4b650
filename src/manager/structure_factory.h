#pragma once

#include <memory>
#include <utility>

#include "manager/smbios_version.h"
#include "manager/structure_types.h"
#include "structures/base_structure.h"

namespace SMBIOS::Structures {

/// Makes the decoder of a structure.
class StructureFactory {
public:
    using FiledDecoder = std::pair<Manager::Types::StructureTypes, std::shared_ptr<BaseStructure>>;

    /// What structures of this type are filed under.
    [[nodiscard]] static Manager::Types::StructureTypes KeyOf(Manager::Types::StructureTypes type) noexcept;

    /// `type` is the structure's type byte, `version` that of its table. Returns the key to file the
    /// structure under and a new, empty decoder: the type itself and its own decoder, or `Unknown` and an
    /// `UnknownType` for every other type. Throws std::bad_alloc.
    [[nodiscard]] static FiledDecoder CreateTablePtr(Manager::Types::StructureTypes type,
                                                     Manager::SmbiosVersionIndex version);

    /// The same for a structure of the process's own table.
    [[nodiscard]] static FiledDecoder CreateTablePtr(Manager::Types::StructureTypes type);
};

}  // namespace SMBIOS::Structures
