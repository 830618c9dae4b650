#pragma once

#include <optional>
#include <string>

#include "platform/command_runner.h"
#include "platform/firmware_table.h"
#include "smbios-inspect/command_line/saved_firmware_table.h"

namespace SMBIOS::Inspect {

/// Decides which table the library reads while it lives: the machine's, or a saved one. With a saved one WMI
/// is never asked: it would speak of another machine.
class TableInput {
public:
    /// The machine's table, unchecked.
    TableInput() = default;

    /// The saved table at `from`, "-" for standard input, or the machine's when there is none. Throws an
    /// exception whose text is for
    /// a person when it cannot be read.
    explicit TableInput(const std::optional<std::string>& from);

    TableInput(const TableInput&) = delete;
    TableInput& operator=(const TableInput&) = delete;
    ~TableInput();

private:
    std::optional<SavedFirmwareTable> saved_;
    NoCommandRunner noCommands_;
};

}  // namespace SMBIOS::Inspect
