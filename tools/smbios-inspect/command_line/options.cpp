#include "smbios-inspect/command_line/options.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <optional>
#include <set>
#include <vector>

#include "smbios-inspect/command_line/type_names.h"
#include "smbios-inspect/reports/value_keys.h"

namespace SMBIOS::Inspect {

namespace {

/// A command, the options it takes and what it needs beside them.
struct CommandSyntax {
    std::string_view name;
    Command command;
    bool takesJson = false;
    bool takesTypes = false;
    bool takesHandles = false;
    bool takesQuiet = false;
    bool takesBytes = false;
    bool takesKeys = false;
    bool takesOutput = false;
    bool takesTarget = false;
    bool takesTables = false;
    bool takesFrom = true;
};

constexpr CommandSyntax kCommands[] = {
    {.name = "summary", .command = Command::summary, .takesJson = true},
    {.name = "memory", .command = Command::memory, .takesJson = true},
    {.name = "processors", .command = Command::processors, .takesJson = true},
    {.name = "structures", .command = Command::structures, .takesJson = true, .takesTypes = true},
    {.name = "firmware",
     .command = Command::firmware,
     .takesJson = true,
     .takesTypes = true,
     .takesHandles = true,
     .takesQuiet = true,
     .takesBytes = true},
    {.name = "get", .command = Command::get, .takesKeys = true},
    {.name = "departures", .command = Command::departures, .takesJson = true},
    {.name = "diff",
     .command = Command::diff,
     .takesJson = true,
     .takesQuiet = true,
     .takesTables = true,
     .takesFrom = false},
    {.name = "picture", .command = Command::picture, .takesOutput = true},
    {.name = "save", .command = Command::save, .takesTarget = true},
};

const CommandSyntax& SyntaxOf(std::string_view name) {
    for (const CommandSyntax& each : kCommands) {
        if (each.name == name) {
            return each;
        }
    }
    throw UsageError("unknown command '" + std::string(name) + "'");
}

/// Decimal, or hexadecimal behind 0x; no value for anything else.
template <class Number>
std::optional<Number> NumberOf(std::string_view text) {
    const bool isHexadecimal = text.starts_with("0x") || text.starts_with("0X");
    const std::string_view digits = text.substr(isHexadecimal ? 2 : 0);
    Number number = 0;
    const auto [end, error] =
        std::from_chars(digits.data(), digits.data() + digits.size(), number, isHexadecimal ? 16 : 10);
    const bool isNumber = error == std::errc() && end == digits.data() + digits.size();
    return isNumber ? std::optional(number) : std::nullopt;
}

std::uint16_t HandleOf(std::string_view text) {
    if (const auto handle = NumberOf<std::uint16_t>(text)) {
        return *handle;
    }
    throw UsageError("'" + std::string(text) + "' is no handle: a number from 0 to 0xFFFF");
}

/// "first, second".
template <class List>
std::string NamesOf(const List& list) {
    std::string names;
    for (const auto& each : list) {
        names.append(names.empty() ? "" : ", ").append(each.name);
    }
    return names;
}

/// Adds the types that a number or a word stands for.
void AddType(std::string_view text, std::set<std::uint8_t>& types) {
    if (const auto number = NumberOf<std::uint8_t>(text)) {
        types.insert(*number);
        return;
    }
    const auto name = std::ranges::find(TypeNames(), text, &TypeName::name);
    if (name == TypeNames().end()) {
        throw UsageError("'" + std::string(text) +
                         "' is no structure type: a number from 0 to 255, or one of " + NamesOf(TypeNames()));
    }
    types.insert(name->types.begin(), name->types.end());
}

/// Adds those of a list with commas.
void AddTypes(std::string_view list, std::set<std::uint8_t>& types) {
    std::size_t begin = 0;
    for (std::size_t end = 0; end != std::string_view::npos; begin = end + 1) {
        end = list.find(',', begin);
        AddType(list.substr(begin, end - begin), types);
    }
}

const ValueKey* KeyOf(std::string_view name) {
    if (const ValueKey* const key = FindValueKey(name)) {
        return key;
    }
    throw UsageError("unknown key '" + std::string(name) + "'; the keys are " + NamesOf(ValueKeys()));
}

/// Goes through the arguments one by one.
class ArgumentReader {
public:
    explicit ArgumentReader(std::span<const std::string_view> arguments) noexcept : rest_(arguments) {}

    /// Takes the next argument; false at the end.
    bool Next() noexcept {
        if (rest_.empty()) {
            return false;
        }
        argument_ = rest_.front();
        rest_ = rest_.subspan(1);
        return true;
    }

    [[nodiscard]] std::string_view Argument() const noexcept { return argument_; }

    /// The value of the option `name`, when that is the argument: "--name VALUE" or "--name=VALUE". Throws
    /// UsageError when it has none.
    std::optional<std::string_view> ValueOf(std::string_view name) {
        std::optional<std::string_view> value;
        if (argument_ == name) {
            value = Next() ? argument_ : std::string_view();
        } else if (argument_.starts_with(name) && argument_.substr(name.size()).starts_with('=')) {
            value = argument_.substr(name.size() + 1);
        }
        if (value && value->empty()) {
            throw UsageError("option " + std::string(name) + " needs a value");
        }
        return value;
    }

private:
    std::span<const std::string_view> rest_;
    std::string_view argument_;
};

void RequireFirst(bool isFirst, std::string_view option) {
    if (!isFirst) {
        throw UsageError("option " + std::string(option) + " is given twice");
    }
}

/// Reads one argument; false when it is no option.
bool ReadOption(ArgumentReader& reader, Options& options) {
    if (reader.Argument() == "--json") {
        RequireFirst(!options.report.json, "--json");
        options.report.json = true;
    } else if (reader.Argument() == "--quiet" || reader.Argument() == "-q") {
        RequireFirst(!options.report.quiet, "--quiet");
        options.report.quiet = true;
    } else if (reader.Argument() == "--bytes") {
        RequireFirst(!options.report.bytes, "--bytes");
        options.report.bytes = true;
    } else if (reader.Argument() == "--force") {
        RequireFirst(!options.force, "--force");
        options.force = true;
    } else if (const auto file = reader.ValueOf("--from")) {
        RequireFirst(!options.report.from, "--from");
        options.report.from = *file;
    } else if (const auto output = reader.ValueOf("--output")) {
        RequireFirst(options.target.empty(), "--output");
        options.target = *output;
    } else if (const auto type = reader.ValueOf("--type")) {
        AddTypes(*type, options.report.types);
    } else if (const auto handle = reader.ValueOf("--handle")) {
        options.report.handles.insert(HandleOf(*handle));
    } else if (reader.Argument().starts_with("-") && reader.Argument() != "-") {
        throw UsageError("unknown option " + std::string(reader.Argument()));
    } else {
        return false;
    }
    return true;
}

void RequireThat(bool holds, const CommandSyntax& syntax, std::string_view problem) {
    if (!holds) {
        throw UsageError(std::string(syntax.name) + " " + std::string(problem));
    }
}

/// The tables that `diff` compares.
void ReadTables(const std::vector<std::string_view>& words, const CommandSyntax& syntax, Options& options) {
    RequireThat(words.size() >= 2 && !words[1].empty(), syntax, "needs the table to compare with");
    options.oldTable = words[1];
    if (words.size() >= 3) {
        RequireThat(!words[2].empty(), syntax, "needs a name for the other table");
        RequireThat(words[1] != "-" || words[2] != "-", syntax, "reads standard input once");
        options.newTable = words[2];
    }
}

/// What remains when the options are taken: the command, the keys of `get`, the files of `diff` and `save`.
void ReadWords(const std::vector<std::string_view>& words, Options& options) {
    const CommandSyntax& syntax = words.empty() ? kCommands[0] : SyntaxOf(words[0]);
    options.command = syntax.command;
    RequireThat(syntax.takesJson || !options.report.json, syntax, "does not take --json");
    RequireThat(syntax.takesTypes || options.report.types.empty(), syntax, "does not take --type");
    RequireThat(syntax.takesHandles || options.report.handles.empty(), syntax, "does not take --handle");
    RequireThat(syntax.takesQuiet || !options.report.quiet, syntax, "does not take --quiet");
    RequireThat(syntax.takesBytes || !options.report.bytes, syntax, "does not take --bytes");
    RequireThat(!options.report.bytes || !options.report.quiet, syntax, "takes --bytes or --quiet, not both");
    RequireThat(syntax.takesFrom || !options.report.from, syntax, "does not take --from");
    RequireThat(syntax.takesOutput || options.target.empty(), syntax, "does not take --output");
    RequireThat(options.target != "-", syntax, "prints to standard output without --output");
    const bool writesFile = syntax.takesTarget || !options.target.empty();
    RequireThat(writesFile || syntax.takesOutput || !options.force, syntax, "does not take --force");
    RequireThat(writesFile || !options.force, syntax, "takes --force only with --output");
    if (syntax.takesKeys) {
        std::transform(words.begin() + 1, words.end(), std::back_inserter(options.report.keys), KeyOf);
        return;
    }
    const bool hasTarget = words.size() >= 2 && !words[1].empty();
    RequireThat(!syntax.takesTarget || hasTarget, syntax, "needs the file to write");
    const std::size_t wordsTaken = syntax.takesTables ? 3 : syntax.takesTarget ? 2 : 1;
    if (words.size() > wordsTaken) {
        throw UsageError("unexpected argument '" + std::string(words[wordsTaken]) + "'");
    }
    if (syntax.takesTarget) {
        RequireThat(words[1] != "-", syntax, "writes a file, not standard output");
        options.target = words[1];
    }
    if (syntax.takesTables) {
        ReadTables(words, syntax, options);
    }
}

}  // namespace

Options ParseOptions(std::span<const std::string_view> arguments) {
    Options options;
    std::vector<std::string_view> words;
    for (ArgumentReader reader(arguments); reader.Next();) {
        if (reader.Argument() == "--help" || reader.Argument() == "-h") {
            return {.command = Command::help};
        }
        if (reader.Argument() == "--version") {
            return {.command = Command::version};
        }
        if (!ReadOption(reader, options)) {
            words.push_back(reader.Argument());
        }
    }
    ReadWords(words, options);
    return options;
}

std::string_view UsageText() noexcept {
    return "usage: smbios-inspect [summary] [--from FILE] [--json]\n"
           "       smbios-inspect memory [--from FILE] [--json]\n"
           "       smbios-inspect processors [--from FILE] [--json]\n"
           "       smbios-inspect structures [--type T]... [--from FILE] [--json]\n"
           "       smbios-inspect firmware [--type T]... [--handle H]... [--from FILE]\n"
           "                               [--json] [--quiet | --bytes]\n"
           "       smbios-inspect get [KEY]... [--from FILE]\n"
           "       smbios-inspect departures [--from FILE] [--json]\n"
           "       smbios-inspect diff OLD [NEW] [--json] [--quiet]\n"
           "       smbios-inspect picture [--output FILE [--force]] [--from FILE]\n"
           "       smbios-inspect save FILE [--force] [--from FILE]\n"
           "       smbios-inspect --help | --version\n"
           "\n"
           "Shows what this machine's firmware reports about its hardware.\n"
           "\n"
           "commands:\n"
           "  summary       the machine on one screen; the command when none is given\n"
           "  memory        the memory devices\n"
           "  processors    the processors\n"
           "  structures    every structure of the table with all its fields\n"
           "  firmware      every structure of the table as the SMBIOS standard has it\n"
           "  get           the values of the KEYs, one a line; without a KEY all of them\n"
           "  departures    the values that the library gives otherwise than the standard\n"
           "  diff          what differs between the saved table OLD and NEW, which is this\n"
           "                machine's when left out\n"
           "  picture       the machine drawn, as SVG\n"
           "  save          write the raw table to FILE\n"
           "\n"
           "options:\n"
           "  --from FILE   read a saved table instead of this machine's: the raw table with\n"
           "                its 8-byte header, an entry point with the table behind it, a\n"
           "                folder with the files smbios_entry_point and DMI, or - for\n"
           "                standard input\n"
           "  --json        print JSON\n"
           "  --type T      show only structures of type T: a number, a word like memory,\n"
           "                or a list of them with commas; may be given several times\n"
           "  --handle H    show only the structure with this handle; several times, too\n"
           "  --quiet, -q   print values only: no handles, bytes or remarks; of diff print\n"
           "                nothing\n"
           "  --bytes       print the bytes and strings of every structure, too\n"
           "  --output FILE write the picture to FILE, not to standard output\n"
           "  --force       overwrite FILE\n"
           "  --help        print this text\n"
           "  --version     print the version\n"
           "\n"
           "exit status: 0 on success, 1 when something cannot be read or written,\n"
           "             2 for wrong usage, 3 when diff finds a difference\n";
}

}  // namespace SMBIOS::Inspect
