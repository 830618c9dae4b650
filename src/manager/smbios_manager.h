#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "manager/decoded_table.h"
#include "manager/structure_types.h"
#include "structures/base_structure.h"

namespace SMBIOS::Manager {

/// The one process-wide holder of the decoded table of this machine. Any thread may call any operation.
class SmbiosManager {
public:
    SmbiosManager(const SmbiosManager&) = delete;
    SmbiosManager& operator=(const SmbiosManager&) = delete;

    /// The instance, made by the first call; never null and never owned by the caller. Throws std::bad_alloc,
    /// and then the next call tries again.
    [[nodiscard]] static SmbiosManager* GetInstance();

    /// Loads the table unless an earlier call has. Throws when the platform gives no usable table; the next
    /// call then tries again from the start.
    void UpdateBiosInfo();

    /// The decoders filed under `type`, in table order; empty before a load.
    [[nodiscard]] std::vector<std::shared_ptr<Structures::BaseStructure>> GetStructuresByType(
        Types::StructureTypes type) const;

    /// Version text of the table, "major.minor.revision"; empty before a load.
    [[nodiscard]] std::string GetVersion() const;

private:
    SmbiosManager() = default;

    bool loaded_ = false;
    std::string version_;
    std::vector<std::uint8_t> tableData_;
    FiledStructures structures_;
};

}  // namespace SMBIOS::Manager
