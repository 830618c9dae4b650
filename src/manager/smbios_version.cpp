#include "manager/smbios_version.h"

#include <algorithm>
#include <iterator>

namespace SMBIOS::Manager {

static_assert(std::size(versionMap) == 22);
static_assert(std::ranges::adjacent_find(versionMap, std::ranges::greater_equal{}, &VersionRow::Key) ==
              std::ranges::end(versionMap));

std::optional<SmbiosVersionIndex> FindVersionIndex(std::uint8_t major,
                                                   std::uint8_t minor,
                                                   std::uint8_t revision) noexcept {
    const std::array<std::uint8_t, 3> key = {major, minor, revision};
    const VersionRow* const row = std::ranges::lower_bound(versionMap, key, {}, &VersionRow::Key);
    if (row == std::ranges::end(versionMap) || row->Key() != key) {
        return std::nullopt;
    }
    return row->index;
}

}  // namespace SMBIOS::Manager
