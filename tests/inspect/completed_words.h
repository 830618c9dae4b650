#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "tests/inspect/run_tool.h"

namespace SMBIOS::Tests {

/// The words of a list in the completion for bash, by the name of its variable.
inline std::vector<std::string> CompletedWords(const std::string& variable) {
    const std::string completion = ContentsOf(SMBIOS_SOURCE_DIR "/tools/completion/smbios-inspect.bash");
    const std::string start = variable + "=\"";
    const std::size_t begin = completion.find(start) + start.size();
    std::istringstream list(completion.substr(begin, completion.find('"', begin) - begin));
    std::vector<std::string> words;
    for (std::string word; list >> word;) {
        words.push_back(word);
    }
    return words;
}

}  // namespace SMBIOS::Tests
