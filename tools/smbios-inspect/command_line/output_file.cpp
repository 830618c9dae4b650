#include "smbios-inspect/command_line/output_file.h"

#include <filesystem>
#include <stdexcept>
#include <system_error>

#include "platform/write_file.h"
#include "smbios-inspect/command_line/file_path.h"

namespace SMBIOS::Inspect {

namespace {

namespace fs = std::filesystem;

std::runtime_error CannotWrite(const std::string& name, const std::string& reason) {
    return std::runtime_error("cannot write " + name + ": " + reason);
}

std::runtime_error ExistsAlready(const std::string& name) {
    return std::runtime_error(name + " exists already; --force overwrites it");
}

/// What a link leads to, over further links, whether that exists or not. Any other path is that itself. The
/// system is asked first: it may forbid to follow a link that somebody else left in a folder of everybody's.
fs::path EndOfLinks(fs::path path, const std::string& name) {
    std::error_code error;
    if (fs::status(path, error).type() == fs::file_type::none) {
        throw CannotWrite(name, error.message());
    }
    while (fs::is_symlink(fs::symlink_status(path, error))) {
        path = path.parent_path() / fs::read_symlink(path, error);
    }
    return path;
}

/// Only a file may be replaced.
void CheckTarget(const fs::path& path, const std::string& name) {
    std::error_code ignored;
    const fs::file_status status = fs::symlink_status(path, ignored);
    if (fs::exists(status) && !fs::is_regular_file(status) && !fs::is_symlink(status)) {
        throw CannotWrite(name, "it is not a regular file");
    }
}

}  // namespace

void WriteOutputFile(const std::string& target, std::span<const std::uint8_t> bytes, bool force) {
    using Platform::Existing;
    const fs::path path = force ? EndOfLinks(FilePath(target), target) : FilePath(target);
    CheckTarget(path, target);
    const std::error_code error =
        Platform::WriteFileWhole(path, bytes, force ? Existing::replaced : Existing::kept);
    if (error == std::errc::file_exists && !force) {
        throw ExistsAlready(target);
    }
    if (error) {
        throw CannotWrite(target, error.message());
    }
}

}  // namespace SMBIOS::Inspect
