#pragma once

#include <string_view>

namespace SMBIOS::Tests {

/// Whether `text` is valid UTF-8 that a terminal only shows: of all control characters it has line feeds and
/// tabs, and nothing in it ends a line otherwise or turns the direction of the text.
[[nodiscard]] bool IsHarmlessText(std::string_view text);

/// Whether `text` is one JSON document.
[[nodiscard]] bool IsJson(std::string_view text);

/// Whether `text` is one JSON document in valid UTF-8, with line feeds as its only control characters.
[[nodiscard]] bool IsHarmlessJson(std::string_view text);

}  // namespace SMBIOS::Tests
