#pragma once

#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

namespace SMBIOS::Inspect {

enum class Command { help, version, memory, processors };

/// What the command line asks for.
struct Options {
    Command command = Command::help;
    std::optional<std::string> from = std::nullopt;  ///< the saved table to read instead of the machine's
    bool json = false;
};

/// A command line that asks for nothing the tool can do; what() says why.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// `arguments` without the program's name. Throws UsageError.
[[nodiscard]] Options ParseOptions(std::span<const std::string_view> arguments);

[[nodiscard]] std::string_view UsageText() noexcept;

}  // namespace SMBIOS::Inspect
