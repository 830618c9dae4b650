#pragma once

#include <array>
#include <cstdio>
#include <optional>
#include <string_view>

namespace SMBIOS::Platform {

/// Cuts a stream into pieces: lines, or where they are longer, parts of at most 127 characters. What follows
/// a NUL within a piece is dropped with that piece.
class PieceReader {
public:
    /// The next piece of `stream`, valid until the next call; none at the end.
    [[nodiscard]] std::optional<std::string_view> Next(std::FILE* stream) noexcept {
        if (std::fgets(piece_.data(), static_cast<int>(piece_.size()), stream) == nullptr) {
            return std::nullopt;
        }
        return piece_.data();
    }

private:
    std::array<char, 128> piece_;
};

}  // namespace SMBIOS::Platform
