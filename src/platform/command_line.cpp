#include "platform/command_line.h"

#include <algorithm>
#include <cstddef>

namespace SMBIOS::Platform {

namespace {

/// Goes through a command line from its start to its end, one element at a time.
class CommandLineReader {
public:
    explicit CommandLineReader(std::string_view commandLine) noexcept : rest_(commandLine) {}

    [[nodiscard]] bool AtEnd() const noexcept { return rest_.empty(); }

    void SkipSeparators() noexcept { Skip(rest_.find_first_not_of(" \t")); }

    std::string ReadProgram() {
        std::string program;
        inQuotes_ = false;
        while (!AtElementEnd()) {
            if (TakeQuote()) {
                inQuotes_ = !inQuotes_;
            } else {
                program += TakeCharacter();
            }
        }
        return program;
    }

    std::string ReadArgument() {
        std::string argument;
        inQuotes_ = false;
        while (!AtElementEnd()) {
            const std::size_t backslashes = TakeBackslashes();
            if (TakeQuote()) {
                argument.append(backslashes / 2, '\\');
                AppendQuote(argument, backslashes % 2 != 0);
            } else if (backslashes != 0) {
                argument.append(backslashes, '\\');
            } else {
                argument += TakeCharacter();
            }
        }
        return argument;
    }

private:
    [[nodiscard]] bool AtElementEnd() const noexcept {
        return AtEnd() || (!inQuotes_ && (rest_.front() == ' ' || rest_.front() == '\t'));
    }

    void Skip(std::size_t count) noexcept { rest_.remove_prefix(std::min(count, rest_.size())); }

    char TakeCharacter() noexcept {
        const char character = rest_.front();
        Skip(1);
        return character;
    }

    bool TakeQuote() noexcept {
        const bool isQuote = rest_.starts_with('"');
        Skip(isQuote ? 1 : 0);
        return isQuote;
    }

    std::size_t TakeBackslashes() noexcept {
        const std::size_t count = std::min(rest_.find_first_not_of('\\'), rest_.size());
        Skip(count);
        return count;
    }

    void AppendQuote(std::string& argument, bool isEscaped) {
        if (isEscaped || (inQuotes_ && TakeQuote())) {
            argument += '"';
        } else {
            inQuotes_ = !inQuotes_;
        }
    }

    std::string_view rest_;
    bool inQuotes_ = false;
};

}  // namespace

std::vector<std::string> SplitCommandLine(std::string_view commandLine) {
    CommandLineReader reader(commandLine);
    std::vector<std::string> elements{reader.ReadProgram()};
    for (reader.SkipSeparators(); !reader.AtEnd(); reader.SkipSeparators()) {
        elements.push_back(reader.ReadArgument());
    }
    return elements;
}

}  // namespace SMBIOS::Platform
