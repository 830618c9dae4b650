#include "smbios-inspect/command_line/save.h"

#include <cerrno>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <ios>
#include <random>
#include <stdexcept>
#include <system_error>
#include <utility>
#include <vector>

#include "platform/firmware_table.h"
#include "smbios-inspect/command_line/file_path.h"

namespace SMBIOS::Inspect {

namespace {

namespace fs = std::filesystem;

std::vector<std::uint8_t> ReadTable() {
    using namespace Platform;
    FirmwareTable& firmware = ActiveFirmwareTable();
    std::vector<std::uint8_t> table(firmware.Read(kRawSmbiosProvider, kRawSmbiosTableId, {}));
    if (table.empty() || firmware.Read(kRawSmbiosProvider, kRawSmbiosTableId, table) != table.size()) {
        throw std::runtime_error("the SMBIOS table cannot be read");
    }
    return table;
}

/// The system's reason for what the C library has just failed to do.
std::error_code LastReason() {
    return errno != 0 ? std::error_code(errno, std::generic_category())
                      : std::make_error_code(std::errc::io_error);
}

/// A file of another name beside the target, which takes the target's name when it is complete and is removed
/// when it is not.
class NewFile {
public:
    explicit NewFile(const fs::path& target)
        : path_(target.parent_path() / ("smbios-inspect-" + std::to_string(std::random_device()()))) {}
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;
    ~NewFile() {
        if (exists_) {
            std::error_code ignored;
            fs::remove(path_, ignored);
        }
    }

    std::error_code Write(const std::vector<std::uint8_t>& bytes) {
        errno = 0;
        std::ofstream stream(path_, std::ios::binary);
        if (!stream) {
            return LastReason();
        }
        exists_ = true;
        stream.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
        stream.close();
        return stream ? std::error_code() : LastReason();
    }

    std::error_code MoveTo(const fs::path& target) {
        std::error_code error;
        fs::rename(path_, target, error);
        exists_ = static_cast<bool>(error);
        return error;
    }

private:
    fs::path path_;
    bool exists_ = false;
};

/// Only a file may be replaced, and only when that is wished.
void CheckTarget(const fs::path& path, const std::string& name, bool force) {
    std::error_code ignored;
    if (!fs::exists(fs::symlink_status(path, ignored))) {
        return;
    }
    if (!fs::is_regular_file(path, ignored)) {
        throw std::runtime_error("cannot write " + name + ": it is not a regular file");
    }
    if (!force) {
        throw std::runtime_error(name + " exists already; --force overwrites it");
    }
}

}  // namespace

void SaveTable(const std::string& target, bool force) {
    const fs::path path = FilePath(target);
    const std::vector<std::uint8_t> table = ReadTable();
    CheckTarget(path, target, force);
    NewFile file(path);
    std::error_code error = file.Write(table);
    if (!error) {
        error = file.MoveTo(path);
    }
    if (error) {
        throw std::runtime_error("cannot write " + target + ": " + error.message());
    }
}

}  // namespace SMBIOS::Inspect
