#pragma once

#include <functional>
#include <string>

namespace SMBIOS::Report {

/// Calls `makeText` and delivers what it gives, or a sentence on what it throws, to a caller in C: `text`
/// becomes a copy from malloc, nullptr when memory has run out, and the result is the exit status the tool
/// would have.
[[nodiscard]] int Deliver(char*& text, const std::function<std::string()>& makeText) noexcept;

}  // namespace SMBIOS::Report
