#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>

#include "platform/descriptor.h"
#include "platform/file_bytes.h"

namespace SMBIOS::Platform {

namespace {

Descriptor OpenForReading(const std::filesystem::path& file) noexcept {
    int number = -1;
    do {
        number = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
    } while (number < 0 && errno == EINTR);
    return Descriptor(number);
}

FileBytes Failed(int reason) {
    return {{}, std::error_code(reason, std::generic_category())};
}

}  // namespace

FileBytes ReadFileBytes(const std::filesystem::path& file, std::size_t largest) {
    const Descriptor descriptor = OpenForReading(file);
    if (!descriptor.IsOpen()) {
        return Failed(errno);
    }
    FileBytes result;
    std::array<std::uint8_t, 16384> piece;
    for (;;) {
        const ssize_t size = ReadRetrying(descriptor.Number(), piece.data(), piece.size());
        if (size < 0) {
            return Failed(errno);
        }
        if (size == 0) {
            return result;
        }
        result.bytes.insert(result.bytes.end(), piece.begin(), piece.begin() + size);
        if (result.bytes.size() > largest) {
            return Failed(EFBIG);
        }
    }
}

}  // namespace SMBIOS::Platform
