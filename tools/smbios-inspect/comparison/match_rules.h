#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace SMBIOS::Inspect::Comparing {

/// What makes a structure of one table the same thing as one of the other.
enum class MatchedBy : std::uint8_t {
    name,       ///< its name; without a partner of that name it is not in the other table
    processor,  ///< the processor whose handle leads to it and the level; its name where there is none
    content,    ///< what it says; else its name, else its place among those of its type
};

/// How structures of a type are matched, and the strings that are their name, for people in any case.
struct MatchRule {
    std::uint8_t type;
    MatchedBy matchedBy;
    std::string_view firstName = {};   ///< a field of the standard's
    std::string_view secondName = {};  ///< likewise
};

/// Those of all types that have a name.
[[nodiscard]] std::span<const MatchRule> AllRules() noexcept;

/// Types without a name are matched by their content.
[[nodiscard]] MatchRule RuleFor(std::uint8_t type) noexcept;

}  // namespace SMBIOS::Inspect::Comparing
