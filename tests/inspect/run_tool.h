#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "smbios-inspect/command_line/inspect.h"
#include "smbios-inspect/reports/from_option.h"

namespace SMBIOS::Tests {

/// What one run of the tool leaves behind.
struct ToolResult {
    int status;
    std::string output;
    std::string errors;
};

/// Runs the tool within this process, which does that once: a table is loaded once per process.
inline ToolResult RunTool(const std::vector<std::string>& arguments, const Inspect::OutputStyle& style = {}) {
    const std::vector<std::string_view> words(arguments.begin(), arguments.end());
    std::ostringstream output;
    std::ostringstream errors;
    const int status = Inspect::Run(words, style, output, errors);
    return {status, output.str(), errors.str()};
}

inline std::string ContentsOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(stream), {});
}

/// A checked-in output; `from` is the table that the user named, which some texts repeat as a shell takes it.
inline std::string GoldenText(const char* name, const std::string& from = SMBIOS_SAMPLE_TABLE) {
    constexpr std::string_view kPlaceholder = "@TABLE@";
    std::string text =
        ContentsOf(std::filesystem::path(SMBIOS_SOURCE_DIR) / "tests" / "inspect" / "golden" / name);
    if (const std::size_t place = text.find(kPlaceholder); place != std::string::npos) {
        constexpr std::string_view kOption = " --from ";
        text.replace(place, kPlaceholder.size(), Inspect::FromOption({.from = from}).substr(kOption.size()));
    }
    return text;
}

inline std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

}  // namespace SMBIOS::Tests
