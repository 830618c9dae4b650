#include "platform/program_search_posix.h"

#include <algorithm>

namespace SMBIOS::Platform {

std::vector<std::string> ProgramCandidates(std::string_view program, std::string_view path) {
    if (program.find('/') != std::string_view::npos) {
        return {std::string(program)};
    }
    std::vector<std::string> candidates;
    while (!program.empty() && !path.empty()) {
        const std::string_view folder = path.substr(0, path.find(':'));
        if (folder.starts_with('/')) {
            candidates.push_back(std::string(folder).append("/").append(program));
        }
        path.remove_prefix(std::min(folder.size() + 1, path.size()));
    }
    return candidates;
}

}  // namespace SMBIOS::Platform
