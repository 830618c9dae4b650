#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "manager/structure_types.h"
#include "structures/base_structure.h"

namespace SMBIOS::Manager {

/// The one process-wide holder of the decoded table. Any thread may call any operation.
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

    void DetectVersion(const std::vector<std::uint8_t>& rawTable);
    void FileStructures();

    bool loaded = false;
    std::string version;
    std::vector<std::uint8_t> tableData;
    std::multimap<Types::StructureTypes, std::shared_ptr<Structures::BaseStructure>> structures;
};

}  // namespace SMBIOS::Manager
