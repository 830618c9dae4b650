#include "smbios-inspect/options.h"

namespace SMBIOS::Inspect {

namespace {

struct CommandName {
    std::string_view name;
    Command command;
};

constexpr CommandName kCommands[] = {
    {"memory", Command::memory},
    {"processors", Command::processors},
};

Command CommandOf(std::string_view name) {
    for (const CommandName& each : kCommands) {
        if (each.name == name) {
            return each.command;
        }
    }
    throw UsageError("unknown command '" + std::string(name) + "'");
}

/// Goes through the arguments one by one.
class ArgumentReader {
public:
    explicit ArgumentReader(std::span<const std::string_view> arguments) noexcept : rest_(arguments) {}

    [[nodiscard]] bool AtEnd() const noexcept { return rest_.empty(); }

    std::string_view Take() noexcept {
        const std::string_view argument = rest_.front();
        rest_ = rest_.subspan(1);
        return argument;
    }

    /// The value of the option `name`, which was taken last.
    std::string TakeValueOf(std::string_view name) {
        if (AtEnd()) {
            throw UsageError("option " + std::string(name) + " needs a value");
        }
        return std::string(Take());
    }

private:
    std::span<const std::string_view> rest_;
};

}  // namespace

Options ParseOptions(std::span<const std::string_view> arguments) {
    Options options;
    bool hasCommand = false;
    for (ArgumentReader reader(arguments); !reader.AtEnd();) {
        const std::string_view argument = reader.Take();
        if (argument == "--help" || argument == "-h") {
            return {.command = Command::help};
        }
        if (argument == "--version") {
            return {.command = Command::version};
        }
        if (argument == "--json") {
            options.json = true;
        } else if (argument == "--from") {
            options.from = reader.TakeValueOf(argument);
        } else if (argument.starts_with("--from=")) {
            options.from = argument.substr(std::string_view("--from=").size());
        } else if (argument.starts_with("-")) {
            throw UsageError("unknown option " + std::string(argument));
        } else if (hasCommand) {
            throw UsageError("unexpected argument '" + std::string(argument) + "'");
        } else {
            options.command = CommandOf(argument);
            hasCommand = true;
        }
    }
    if (!hasCommand) {
        throw UsageError("no command given");
    }
    return options;
}

std::string_view UsageText() noexcept {
    return "usage: smbios-inspect COMMAND [--from FILE] [--json]\n"
           "       smbios-inspect --help | --version\n"
           "\n"
           "Shows what this machine's firmware reports about its hardware.\n"
           "\n"
           "commands:\n"
           "  memory        the memory devices\n"
           "  processors    the processors\n"
           "\n"
           "options:\n"
           "  --from FILE   read a saved table instead of this machine's: the raw table with its\n"
           "                8-byte header, or an entry point with the table behind it\n"
           "  --json        print JSON\n"
           "  --help        print this text\n"
           "  --version     print the version\n"
           "\n"
           "exit status: 0 on success, 1 when the table cannot be read, 2 for wrong usage\n";
}

}  // namespace SMBIOS::Inspect
