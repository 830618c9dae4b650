#pragma once

#include <cstddef>
#include <cstring>
#include <string_view>

namespace SMBIOS::Inspect {

/// Copies a text to where there is room for it, and gives its end there. By far the most texts are short: two
/// pieces of one size that may overlap copy them without a call or a loop.
[[nodiscard]] inline char* CopyText(std::string_view text, char* place) noexcept {
    const char* const from = text.data();
    const std::size_t size = text.size();
    if (size > 32) {
        std::memcpy(place, from, size);
    } else if (size >= 16) {
        std::memcpy(place, from, 16);
        std::memcpy(place + size - 16, from + size - 16, 16);
    } else if (size >= 8) {
        std::memcpy(place, from, 8);
        std::memcpy(place + size - 8, from + size - 8, 8);
    } else if (size >= 4) {
        std::memcpy(place, from, 4);
        std::memcpy(place + size - 4, from + size - 4, 4);
    } else if (size != 0) {
        place[0] = from[0];
        place[size / 2] = from[size / 2];
        place[size - 1] = from[size - 1];
    }
    return place + size;
}

}  // namespace SMBIOS::Inspect
