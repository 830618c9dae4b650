#include "manager/smbios_manager.h"

#include <mutex>
#include <shared_mutex>
#include <utility>

#include "manager/raw_table.h"
#include "manager/smbios_version.h"
#include "platform/once.h"
#include "platform/raw_table_header.h"
#include "platform/reader_writer_lock.h"

namespace SMBIOS::Manager {

namespace {

constinit std::unique_ptr<SmbiosManager> instance;
constinit Platform::Once instanceCreation;
constinit Platform::ReaderWriterLock managerLock;

}  // namespace

SmbiosManager* SmbiosManager::GetInstance() {
    instanceCreation.Call([] { instance.reset(new SmbiosManager); });
    return instance.get();
}

void SmbiosManager::UpdateBiosInfo() {
    const std::unique_lock lock(managerLock);
    if (loaded_) {
        return;
    }
    tableData_.clear();
    structures_.clear();

    const std::vector<std::uint8_t> rawTable = ReadRawTable();
    TableVersion version = TableVersion::Of(rawTable, currentVersionIndex);
    version_ = std::move(version.text);
    currentVersionIndex = version.index;
    const auto structureTable = Platform::RawTableHeader::StructuresOf(rawTable);
    tableData_.assign(structureTable.begin(), structureTable.end());
    FileStructures(tableData_, currentVersionIndex, structures_);
    loaded_ = true;
}

std::vector<std::shared_ptr<Structures::BaseStructure>> SmbiosManager::GetStructuresByType(
    Types::StructureTypes type) const {
    const std::shared_lock lock(managerLock);
    return StructuresUnder(type, structures_);
}

std::string SmbiosManager::GetVersion() const {
    const std::shared_lock lock(managerLock);
    return version_;
}

}  // namespace SMBIOS::Manager
