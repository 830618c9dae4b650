#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace SMBIOS::Inspect {

struct ValueKey;

/// What a report is asked for. Each report looks at what concerns it.
struct Request {
    std::optional<std::string> from = std::nullopt;  ///< the saved table in place of the machine's
    bool json = false;
    std::set<std::uint8_t> types = {};       ///< of the structures to show; empty for all
    std::set<std::uint16_t> handles = {};    ///< likewise
    bool quiet = false;                      ///< the values alone
    bool bytes = false;                      ///< the bytes and strings of every structure, too
    std::vector<const ValueKey*> keys = {};  ///< of the values to print; empty for all
};

}  // namespace SMBIOS::Inspect
