#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

namespace SMBIOS::Inspect {

enum class Command : std::uint8_t { summary, memory, processors, structures, save, help, version };

/// What the command line asks for.
struct Options {
    Command command = Command::summary;
    std::optional<std::string> from = std::nullopt;  ///< the saved table to read instead of the machine's
    bool json = false;
    std::set<std::uint8_t> types = {};  ///< of the structures to show; empty for all
    std::string target = {};            ///< the file to save the table to
    bool force = false;                 ///< overwrite that file
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
