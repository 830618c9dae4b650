#include <algorithm>
#include <limits>
#include <random>
#include <string>

#include "platform/windows_api.h"
#include "platform/write_file.h"

namespace SMBIOS::Platform {

namespace {

using Bytes = std::span<const std::uint8_t>;

/// The reason as the C library names it, where it has a name for it.
std::error_code LastReason() noexcept {
    const std::error_code error(static_cast<int>(::GetLastError()), std::system_category());
    const std::error_condition condition = error.default_error_condition();
    const bool isGeneric = condition.category() == std::generic_category();
    return isGeneric ? std::error_code(condition.value(), condition.category()) : error;
}

/// A file of another name beside the target, which takes the target's name when it is complete. Until then
/// the system removes it as soon as nobody has it open, which is so even after this process was killed.
class NewFile {
public:
    explicit NewFile(const std::filesystem::path& target)
        : path_(target.parent_path() / ("smbios-inspect-" + std::to_string(std::random_device()()))),
          file_(::CreateFileW(path_.c_str(),
                              GENERIC_WRITE | DELETE,
                              FILE_SHARE_DELETE,
                              nullptr,
                              CREATE_NEW,
                              FILE_ATTRIBUTE_NORMAL,
                              nullptr)) {}
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;
    ~NewFile() {
        if (IsOpen()) {
            ::CloseHandle(file_);
        }
    }

    [[nodiscard]] bool IsOpen() const noexcept { return file_ != INVALID_HANDLE_VALUE; }

    std::error_code Write(Bytes bytes) noexcept {
        if (!RemoveWhenClosed(true)) {
            return LastReason();
        }
        while (!bytes.empty()) {
            const std::size_t piece = std::min<std::size_t>(bytes.size(), std::numeric_limits<DWORD>::max());
            DWORD written = 0;
            if (::WriteFile(file_, bytes.data(), static_cast<DWORD>(piece), &written, nullptr) == 0) {
                return LastReason();
            }
            bytes = bytes.subspan(written);
        }
        return ::FlushFileBuffers(file_) != 0 ? std::error_code() : LastReason();
    }

    std::error_code MoveTo(const std::filesystem::path& target, Existing existing) noexcept {
        const DWORD replacing = existing == Existing::replaced ? MOVEFILE_REPLACE_EXISTING : 0;
        if (!RemoveWhenClosed(false)) {
            return LastReason();
        }
        if (::MoveFileExW(path_.c_str(), target.c_str(), MOVEFILE_WRITE_THROUGH | replacing) != 0) {
            return {};
        }
        const std::error_code error = LastReason();
        RemoveWhenClosed(true);
        return error;
    }

private:
    bool RemoveWhenClosed(bool isWanted) const noexcept {
        FILE_DISPOSITION_INFO disposition{static_cast<BOOLEAN>(isWanted)};
        return ::SetFileInformationByHandle(file_, FileDispositionInfo, &disposition, sizeof disposition) !=
               0;
    }

    std::filesystem::path path_;
    HANDLE file_;
};

}  // namespace

std::error_code WriteFileWhole(const std::filesystem::path& target, Bytes bytes, Existing existing) {
    NewFile file(target);
    if (!file.IsOpen()) {
        return LastReason();
    }
    const std::error_code error = file.Write(bytes);
    return error ? error : file.MoveTo(target, existing);
}

}  // namespace SMBIOS::Platform
