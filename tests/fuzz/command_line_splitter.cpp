// A command line, split by the library and, in the plainest way, here.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/command_line.h"
#include "tests/fuzz/require.h"

using namespace SMBIOS;

namespace {

bool IsBlank(char character) {
    return character == ' ' || character == '\t';
}

/// Every character with a mark: whether it stands for itself in an argument. What is not marked is a blank
/// between arguments or a quote; backslashes that others make literal are left out.
struct Marked {
    char character;
    bool isLiteral;
};

/// Of the arguments alone, to the end of the line.
std::vector<Marked> MarkArguments(std::string_view line) {
    std::vector<Marked> marked;
    bool inQuotes = false;
    for (std::size_t i = 0; i < line.size();) {
        std::size_t backslashes = 0;
        while (i + backslashes < line.size() && line[i + backslashes] == '\\') {
            ++backslashes;
        }
        i += backslashes;
        const bool isBeforeQuote = i < line.size() && line[i] == '"';
        marked.insert(marked.end(), isBeforeQuote ? backslashes / 2 : backslashes, {'\\', true});
        if (isBeforeQuote && backslashes % 2 != 0) {
            marked.push_back({'"', true});
            ++i;
        } else if (isBeforeQuote && inQuotes && i + 1 < line.size() && line[i + 1] == '"') {
            marked.push_back({'"', true});
            i += 2;
        } else if (isBeforeQuote) {
            marked.push_back({'"', false});
            inQuotes = !inQuotes;
            ++i;
        } else if (i < line.size()) {
            marked.push_back({line[i], inQuotes || !IsBlank(line[i])});
            ++i;
        }
    }
    return marked;
}

std::vector<std::string> SplitNaively(std::string_view line) {
    std::vector<std::string> elements(1);
    std::size_t end = 0;
    for (bool inQuotes = false; end < line.size() && (inQuotes || !IsBlank(line[end])); ++end) {
        if (line[end] == '"') {
            inQuotes = !inQuotes;
        } else {
            elements[0] += line[end];
        }
    }
    bool isInside = false;
    for (const auto& [character, isLiteral] : MarkArguments(line.substr(end))) {
        if (!isLiteral && character != '"') {
            isInside = false;
            continue;
        }
        if (!isInside) {
            elements.emplace_back();
            isInside = true;
        }
        if (isLiteral) {
            elements.back() += character;
        }
    }
    return elements;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view line(reinterpret_cast<const char*>(data), size);
    Fuzz::Require(Platform::SplitCommandLine(line) == SplitNaively(line), "both split the line alike");
    return 0;
}
