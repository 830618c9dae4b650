#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

#include "smbios-inspect/reports/request.h"

namespace SMBIOS::Inspect {

enum class Command : std::uint8_t {
    summary,
    memory,
    processors,
    structures,
    firmware,
    get,
    departures,
    diff,
    picture,
    save,
    help,
    version
};

/// What the command line asks for.
struct Options {
    Command command = Command::summary;
    Request report = {};
    std::string oldTable = {};                           ///< the saved table to compare with
    std::optional<std::string> newTable = std::nullopt;  ///< the one compared; the machine's when left out
    std::string target = {};  ///< the file to write the table or the picture to; empty for none
    bool force = false;       ///< overwrite that file
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
