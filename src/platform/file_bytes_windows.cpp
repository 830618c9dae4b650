#include <share.h>
#include <stdio.h>

#include <array>
#include <cerrno>
#include <memory>

#include "platform/file_bytes.h"

namespace SMBIOS::Platform {

namespace {

struct CloseFile {
    void operator()(FILE* file) const noexcept { ::fclose(file); }
};

FileBytes Failed(int reason) {
    return {{}, std::error_code(reason, std::generic_category())};
}

}  // namespace

FileBytes ReadFileBytes(const std::filesystem::path& file, std::size_t largest) {
    const std::unique_ptr<FILE, CloseFile> stream(::_wfsopen(file.c_str(), L"rb", _SH_DENYNO));
    if (stream == nullptr) {
        return Failed(errno);
    }
    FileBytes result;
    std::array<std::uint8_t, 16384> piece;
    while (const std::size_t size = ::fread(piece.data(), 1, piece.size(), stream.get())) {
        result.bytes.insert(result.bytes.end(), piece.data(), piece.data() + size);
        if (result.bytes.size() > largest) {
            return Failed(EFBIG);
        }
    }
    return ::ferror(stream.get()) != 0 ? Failed(EIO) : result;
}

}  // namespace SMBIOS::Platform
