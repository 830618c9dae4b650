#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <ios>
#include <iterator>
#include <stdexcept>
#include <vector>

namespace SMBIOS::Tests {

/// Every byte of the file. Throws std::runtime_error when it cannot be opened.
[[nodiscard]] inline std::vector<std::uint8_t> FileContents(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        throw std::runtime_error("cannot open " + file.string());
    }
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

}  // namespace SMBIOS::Tests
