#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <optional>
#include <random>
#include <string>

#include "platform/descriptor.h"
#include "platform/remove_on_signal_posix.h"
#include "platform/write_file.h"

namespace SMBIOS::Platform {

namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr mode_t kOwnersAlone = 0600;
constexpr mode_t kPermissions = 07777;

std::error_code Reason(int error) noexcept {
    return {error, std::generic_category()};
}

std::error_code LastReason() noexcept {
    return Reason(errno);
}

Descriptor OpenFolder(const std::filesystem::path& target) {
    const std::filesystem::path folder = target.has_parent_path() ? target.parent_path() : ".";
    const int number = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const bool mayNotBeRead = number < 0 && errno == EACCES;
    return Descriptor(mayNotBeRead ? ::open(folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC) : number);
}

std::error_code WriteAll(int descriptor, Bytes bytes) noexcept {
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
        if (written >= 0) {
            bytes = bytes.subspan(static_cast<std::size_t>(written));
        } else if (errno != EINTR) {
            return LastReason();
        }
    }
    return {};
}

/// Puts on the disk what `descriptor` stands for, unless the file system does not know how, or it is a folder
/// that may not be read.
std::error_code Sync(int descriptor) noexcept {
    const bool isDone = ::fsync(descriptor) == 0 || errno == EINVAL || errno == ENOTSUP || errno == EBADF;
    return isDone ? std::error_code() : LastReason();
}

/// Gives a file the owner and the mode of the one that it replaces. Where the owner cannot be given on, no
/// other rights are either.
std::error_code TakeOver(int descriptor, const struct stat& replaced) noexcept {
    const bool hasItsOwner = ::fchown(descriptor, replaced.st_uid, replaced.st_gid) == 0;
    const mode_t mode = replaced.st_mode & kPermissions & (hasItsOwner ? kPermissions : S_IRWXU);
    return ::fchmod(descriptor, mode) == 0 ? std::error_code() : LastReason();
}

/// A file of another name beside the target, which takes the target's name when it is complete and is removed
/// when it is not.
class NewFile {
public:
    explicit NewFile(int folder)
        : folder_(folder), name_("smbios-inspect-" + std::to_string(std::random_device()())) {}
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;
    ~NewFile() {
        if (exists_) {
            ::unlinkat(folder_, name_.c_str(), 0);
        }
    }

    std::error_code Write(Bytes bytes, const std::optional<struct stat>& replaced) noexcept {
        const Descriptor file = Create();
        if (!file.IsOpen()) {
            return LastReason();
        }
        std::error_code error = WriteAll(file.Number(), bytes);
        if (!error && replaced) {
            error = TakeOver(file.Number(), *replaced);
        }
        return error ? error : Sync(file.Number());
    }

    std::error_code Replace(const char* target) noexcept {
        if (::renameat(folder_, name_.c_str(), folder_, target) != 0) {
            return LastReason();
        }
        exists_ = false;
        return {};
    }

    std::error_code TakeFreeName(const char* target) noexcept {
        if (::renameat2(folder_, name_.c_str(), folder_, target, RENAME_NOREPLACE) == 0) {
            exists_ = false;
            return {};
        }
        if (errno != EINVAL && errno != ENOSYS) {
            return LastReason();
        }
        // Not every file system knows a renaming that replaces nothing; a second name never does.
        return ::linkat(folder_, name_.c_str(), folder_, target, 0) == 0 ? std::error_code() : LastReason();
    }

private:
    /// Nothing that is there under its name, not even a link, is opened.
    Descriptor Create() noexcept {
        const EndingSignalsBlocked blocked;
        Descriptor file(::openat(folder_, name_.c_str(), kCreation, kOwnersAlone));
        if (file.IsOpen()) {
            exists_ = true;
            removal_.emplace(folder_, name_.c_str());
        }
        return file;
    }

    static constexpr int kCreation = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;

    int folder_;
    std::string name_;
    bool exists_ = false;
    std::optional<RemoveOnSignal> removal_;
};

/// The file that is to be replaced, if there is one. What is no file cannot give way to one.
struct Former {
    std::error_code error;
    std::optional<struct stat> file;
};

Former FormerOf(int folder, const char* target) noexcept {
    struct stat status {};
    if (::fstatat(folder, target, &status, AT_SYMLINK_NOFOLLOW) != 0) {
        return {errno == ENOENT ? std::error_code() : LastReason(), {}};
    }
    return S_ISREG(status.st_mode) ? Former{{}, status} : Former{Reason(EINVAL), {}};
}

}  // namespace

std::error_code WriteFileWhole(const std::filesystem::path& target, Bytes bytes, Existing existing) {
    const Descriptor folder = OpenFolder(target);
    if (!folder.IsOpen()) {
        return LastReason();
    }
    const std::string name = target.filename();
    const bool mayReplace = existing == Existing::replaced;
    const Former former = mayReplace ? FormerOf(folder.Number(), name.c_str()) : Former();
    if (former.error) {
        return former.error;
    }
    NewFile file(folder.Number());
    std::error_code error = file.Write(bytes, former.file);
    if (!error) {
        error = mayReplace ? file.Replace(name.c_str()) : file.TakeFreeName(name.c_str());
    }
    return error ? error : Sync(folder.Number());
}

}  // namespace SMBIOS::Platform
