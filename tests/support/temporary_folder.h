#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <ios>
#include <random>
#include <span>
#include <string>
#include <string_view>
#include <system_error>

namespace SMBIOS::Tests {

/// A new, empty folder of the test's own, removed with everything in it when the object goes.
class TemporaryFolder {
public:
    TemporaryFolder() {
        do {
            path_ = std::filesystem::temp_directory_path() / ("smbios-" + std::to_string(random_()));
        } while (!std::filesystem::create_directory(path_));
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    [[nodiscard]] const std::filesystem::path& Path() const { return path_; }

    /// Writes a file into the folder and returns its path.
    std::filesystem::path Write(std::string_view name, std::span<const std::uint8_t> bytes) const {
        return WriteBytes(name, reinterpret_cast<const char*>(bytes.data()), bytes.size());
    }
    std::filesystem::path Write(std::string_view name, std::string_view text) const {
        return WriteBytes(name, text.data(), text.size());
    }

private:
    std::filesystem::path WriteBytes(std::string_view name, const char* bytes, std::size_t size) const {
        const std::filesystem::path file = path_ / name;
        std::ofstream stream(file, std::ios::binary);
        stream.write(bytes, static_cast<std::streamsize>(size));
        stream.close();
        if (!stream) {
            throw std::filesystem::filesystem_error(
                "cannot write", file, std::make_error_code(std::errc::io_error));
        }
        return file;
    }

    std::random_device random_;
    std::filesystem::path path_;
};

}  // namespace SMBIOS::Tests
