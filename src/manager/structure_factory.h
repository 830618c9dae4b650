#pragma once

#include <memory>
#include <memory_resource>
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
    /// `UnknownType` for every other type. `memory`, where the decoder and its record are made, must stay
    /// until they are gone. Throws std::bad_alloc.
    [[nodiscard]] static FiledDecoder CreateTablePtr(
        Manager::Types::StructureTypes type,
        Manager::SmbiosVersionIndex version,
        std::pmr::memory_resource& memory = *std::pmr::new_delete_resource());

    /// The same for a structure of the process's own table.
    [[nodiscard]] static FiledDecoder CreateTablePtr(Manager::Types::StructureTypes type);
};

}  // namespace SMBIOS::Structures
