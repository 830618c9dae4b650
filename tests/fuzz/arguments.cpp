// The tool's arguments, separated by line feeds: either refused with a message, or options of their command
// that mean the same when they are written out and read again.

#include <cstddef>
#include <cstdint>
#include <exception>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "smbios-inspect/command_line/options.h"
#include "smbios-inspect/output/text_layout.h"
#include "smbios-inspect/reports/value_keys.h"
#include "tests/fuzz/require.h"
#include "tests/support/harmless_text.h"

using namespace SMBIOS;
using Inspect::Command;
using Inspect::Options;

namespace {

std::vector<std::string_view> Lines(std::string_view text) {
    std::vector<std::string_view> lines;
    for (std::size_t end = 0; end != std::string_view::npos && !text.empty();) {
        end = text.find('\n');
        lines.push_back(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return lines;
}

std::string_view NameOf(Command command) {
    switch (command) {
        case Command::summary:
            return "summary";
        case Command::memory:
            return "memory";
        case Command::processors:
            return "processors";
        case Command::structures:
            return "structures";
        case Command::firmware:
            return "firmware";
        case Command::departures:
            return "departures";
        case Command::diff:
            return "diff";
        case Command::get:
            return "get";
        case Command::picture:
            return "picture";
        case Command::save:
            return "save";
        case Command::help:
            return "--help";
        case Command::version:
            return "--version";
    }
    std::terminate();
}

std::vector<std::string> WrittenOut(const Options& options) {
    std::vector<std::string> arguments{std::string(NameOf(options.command))};
    const auto addIf = [&](bool isGiven, const std::string& argument) {
        if (isGiven) {
            arguments.push_back(argument);
        }
    };
    addIf(options.command == Command::save, options.target);
    addIf(options.command == Command::picture && !options.target.empty(), "--output=" + options.target);
    addIf(options.command == Command::diff, options.oldTable);
    addIf(options.newTable.has_value(), options.newTable.value_or(""));
    addIf(options.report.from.has_value(), "--from=" + options.report.from.value_or(""));
    addIf(options.report.json, "--json");
    addIf(options.report.quiet, "--quiet");
    addIf(options.report.bytes, "--bytes");
    addIf(options.force, "--force");
    for (const unsigned type : options.report.types) {
        arguments.push_back("--type=" + std::to_string(type));
    }
    for (const unsigned handle : options.report.handles) {
        arguments.push_back("--handle=" + std::to_string(handle));
    }
    for (const Inspect::ValueKey* const key : options.report.keys) {
        arguments.emplace_back(key->name);
    }
    return arguments;
}

auto MeaningOf(const Options& options) {
    const Inspect::Request& report = options.report;
    return std::tie(options.command,
                    options.target,
                    options.force,
                    options.oldTable,
                    options.newTable,
                    report.from,
                    report.json,
                    report.types,
                    report.handles,
                    report.quiet,
                    report.bytes,
                    report.keys);
}

void RequireNothingOfOtherCommands(const Options& options) {
    const bool isOfSave = options.force || !options.target.empty();
    const bool isOfFirmware = options.report.bytes || !options.report.handles.empty();
    const bool isOfDiff = options.newTable || !options.oldTable.empty();
    Fuzz::Require(!isOfSave || options.command == Command::save || options.command == Command::picture,
                  "only save and picture take a file and --force");
    Fuzz::Require(!isOfFirmware || options.command == Command::firmware, "only firmware takes them");
    Fuzz::Require(!isOfDiff || options.command == Command::diff, "only diff takes two files");
}

void RequireTheSameAgain(const Options& options) {
    const std::vector<std::string> written = WrittenOut(options);
    const Options again =
        Inspect::ParseOptions(std::vector<std::string_view>(written.begin(), written.end()));
    Fuzz::Require(MeaningOf(options) == MeaningOf(again), "options that are written out mean the same again");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    try {
        const Options options = Inspect::ParseOptions(Lines(text));
        RequireNothingOfOtherCommands(options);
        RequireTheSameAgain(options);
    } catch (const Inspect::UsageError& error) {
        const std::string message = Inspect::Printable(error.what());
        Fuzz::Require(!message.empty() && Tests::IsHarmlessText(message),
                      "a refusal says why, and harmlessly");
    }
    return 0;
}
