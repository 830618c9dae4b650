#pragma once

#include <cstddef>
#include <string_view>

namespace SMBIOS::Inspect {

inline constexpr std::string_view kReplacementCharacter = "\xEF\xBF\xBD";  // U+FFFD

/// What stands at the start of a text.
struct CharacterStart {
    std::size_t length;  ///< in bytes, 1 or more
    bool isWhole;        ///< a character; otherwise bytes that begin one, or can begin none
};

/// Reads the start of `text`, which is not empty, as UTF-8.
[[nodiscard]] CharacterStart StartOf(std::string_view text) noexcept;

/// Whether a whole character is delete or one of C1, which some terminals obey.
[[nodiscard]] bool IsDeleteOrC1(std::string_view character) noexcept;

}  // namespace SMBIOS::Inspect
