#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "smbios-inspect/comparison/compared_table.h"
#include "smbios-inspect/comparison/pairing.h"
#include "smbios-inspect/comparison/table_keys.h"

namespace SMBIOS::Inspect::Comparing {

/// One of the two tables, and what is known of its structures.
struct Side {
    explicit Side(std::span<const std::uint8_t> rawTable);

    ComparedTable table;
    std::vector<Keys> keys;
    std::unordered_set<Key> sharedNames;  ///< names that several structures have
};

/// Two tables, and which structure of one is which of the other. A view of both.
class Comparison {
public:
    Comparison(std::span<const std::uint8_t> before, std::span<const std::uint8_t> after);

    [[nodiscard]] const Side& Before() const noexcept { return before_; }
    [[nodiscard]] const Side& After() const noexcept { return after_; }
    [[nodiscard]] const Pairing& Pairs() const noexcept { return pairing_; }

    /// Whether a handle of the one table leads to the same thing as one of the other: to a structure and its
    /// partner, to structures that nothing tells apart, or both to no structure.
    [[nodiscard]] bool LeadToTheSame(std::uint16_t before, std::uint16_t after) const noexcept;

    /// Whether a structure says the same as its partner, without a look at its fields: the same bytes and
    /// strings, and handles that lead to the same things.
    [[nodiscard]] bool IsTheSame(Index before, Index after) const;

private:
    Side before_;
    Side after_;
    Pairing pairing_;
};

}  // namespace SMBIOS::Inspect::Comparing
