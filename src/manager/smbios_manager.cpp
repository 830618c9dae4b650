#include "manager/smbios_manager.h"

#include <mutex>
#include <optional>
#include <shared_mutex>
#include <string_view>
#include <utility>

#include "common/format.h"
#include "common/message_exception.h"
#include "manager/smbios_version.h"
#include "manager/structure_factory.h"
#include "manager/structure_walk.h"
#include "platform/firmware_table.h"
#include "platform/once.h"
#include "platform/reader_writer_lock.h"

namespace SMBIOS::Manager {

namespace {

// Layout of the raw table: an 8-byte header, then the structures. Its length field is never trusted.
constexpr std::size_t kMajorOffset = 1;
constexpr std::size_t kMinorOffset = 2;
constexpr std::size_t kRevisionOffset = 3;
constexpr std::size_t kHeaderSize = 8;

constinit std::unique_ptr<SmbiosManager> instance;
constinit Platform::Once instanceCreation;
constinit Platform::ReaderWriterLock managerLock;

[[noreturn]] void FailUpdate(std::string_view message) {
    std::string text(message);
    text += "SMBIOS::Manager::SmbiosManager::UpdateBiosInfo";
    throw Common::MessageException(std::move(text));
}

std::vector<std::uint8_t> ReadRawTable() {
    using namespace Platform;
    FirmwareTable& firmware = ActiveFirmwareTable();

    const std::uint32_t size = firmware.Read(kRawSmbiosProvider, kRawSmbiosTableId, {});
    if (size == 0) {
        FailUpdate("Failed to get size of firmware table. Origin: ");
    }
    std::vector<std::uint8_t> rawTable(size);
    if (firmware.Read(kRawSmbiosProvider, kRawSmbiosTableId, rawTable) != size) {
        FailUpdate("Failed to retrieve data from firmware table. Origin: ");
    }
    if (rawTable.size() <= kHeaderSize) {
        FailUpdate("SMBIOS structure is corrupted. Origin: ");
    }
    return rawTable;
}

}  // namespace

SmbiosManager* SmbiosManager::GetInstance() {
    instanceCreation.Call([] { instance.reset(new SmbiosManager); });
    return instance.get();
}

void SmbiosManager::UpdateBiosInfo() {
    const std::unique_lock lock(managerLock);
    if (loaded) {
        return;
    }
    tableData.clear();
    structures.clear();

    const std::vector<std::uint8_t> rawTable = ReadRawTable();
    DetectVersion(rawTable);
    tableData.assign(rawTable.begin() + kHeaderSize, rawTable.end());
    FileStructures();
    loaded = true;
}

void SmbiosManager::DetectVersion(const std::vector<std::uint8_t>& rawTable) {
    const std::uint8_t major = rawTable[kMajorOffset];
    const std::uint8_t minor = rawTable[kMinorOffset];
    const std::uint8_t revision = rawTable[kRevisionOffset];
    version = Common::format("{}.{}.{}", major, minor, revision);
    // A version the map does not list keeps the index as it is, 2.0.0 in a fresh process.
    currentVersionIndex = FindVersionIndex(major, minor, revision).value_or(currentVersionIndex);
}

void SmbiosManager::FileStructures() {
    StructureWalk walk(tableData);
    while (std::optional<RawStructure> structure = walk.Next()) {
        auto [key, decoder] =
            Structures::StructureFactory::CreateTablePtr(Types::StructureTypes{structure->type});
        decoder->Process(structure->formattedBytes, structure->strings);
        structures.emplace(key, std::move(decoder));
    }
}

std::vector<std::shared_ptr<Structures::BaseStructure>> SmbiosManager::GetStructuresByType(
    Types::StructureTypes type) const {
    const std::shared_lock lock(managerLock);
    std::vector<std::shared_ptr<Structures::BaseStructure>> found;
    const auto [first, last] = structures.equal_range(type);
    for (auto entry = first; entry != last; ++entry) {
        found.push_back(entry->second);
    }
    return found;
}

std::string SmbiosManager::GetVersion() const {
    const std::shared_lock lock(managerLock);
    return version;
}

}  // namespace SMBIOS::Manager
