#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "structures/formatted_area.h"

namespace SMBIOS::Inspect::Standard {

/// The version a table claims.
struct TableVersion {
    std::uint8_t major = 0;
    std::uint8_t minor = 0;
    std::uint8_t revision = 0;

    bool operator==(const TableVersion&) const = default;

    [[nodiscard]] constexpr bool IsAtLeast(unsigned otherMajor, unsigned otherMinor) const noexcept {
        return major != otherMajor ? major > otherMajor : minor >= otherMinor;
    }
};

/// "3.2.0".
[[nodiscard]] std::string VersionText(TableVersion version);

/// One structure where it stands in its table. A view: valid only while the table is.
struct Structure {
    std::span<const std::uint8_t> bytes;    ///< the formatted area: header included, as many as there are
    std::vector<std::string_view> strings;  ///< string number 1 first
    TableVersion version;
    std::string_view defect = {};  ///< what is wrong with how it is stored; empty when nothing is

    [[nodiscard]] Structures::FormattedArea Area() const noexcept { return Structures::FormattedArea(bytes); }
    [[nodiscard]] std::uint8_t Type() const noexcept { return Area().Type(); }
    [[nodiscard]] std::uint16_t Handle() const noexcept { return Area().Handle(); }
};

/// Goes through the structures of a raw table, in table order and in time linear in its size. Other than the
/// library's own walk it copies nothing, and it gives a structure that is cut short, too: the last one then.
class TableWalk {
public:
    /// `rawTable` begins with the 8-byte header.
    explicit TableWalk(std::span<const std::uint8_t> rawTable) noexcept;

    /// `structures` begins with one of those that a table of this version has.
    TableWalk(TableVersion version, std::span<const std::uint8_t> structures) noexcept
        : version_(version), rest_(structures) {}

    [[nodiscard]] TableVersion Version() const noexcept { return version_; }

    /// The next structure; no value at the end of the table, or where only zeros follow.
    [[nodiscard]] std::optional<Structure> Next();

private:
    void TakeStrings(Structure& structure);

    TableVersion version_;
    std::span<const std::uint8_t> rest_;
};

}  // namespace SMBIOS::Inspect::Standard
