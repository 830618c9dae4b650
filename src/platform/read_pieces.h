#pragma once

#include <array>
#include <cstdio>
#include <string>

namespace SMBIOS::Platform {

/// Appends what `stream` holds until its end, line by line in pieces of at most 127 characters. What follows
/// a NUL within a piece is dropped with that piece.
inline void AppendPieces(std::FILE* stream, std::string& output) {
    std::array<char, 128> piece;
    while (std::fgets(piece.data(), static_cast<int>(piece.size()), stream) != nullptr) {
        output += piece.data();
    }
}

}  // namespace SMBIOS::Platform
