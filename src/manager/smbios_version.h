#pragma once

#include <array>
#include <cstdint>
#include <optional>

namespace SMBIOS::Manager {

/// The SMBIOS versions the library tells apart, in ascending order. Indices 4 to 7 are reserved: no version
/// has them.
enum class SmbiosVersionIndex : std::uint8_t {
    v2_0_0 = 0,
    v2_1_0 = 1,
    v2_2_0 = 2,
    v2_3_0 = 3,
    v2_4_0 = 8,
    v2_5_0 = 9,
    v2_6_0 = 10,
    v2_6_1 = 11,
    v2_7_0 = 12,
    v2_7_1 = 13,
    v2_8_0 = 14,
    v3_0_0 = 15,
    v3_1_0 = 16,
    v3_1_1 = 17,
    v3_2_0 = 18,
    v3_3_0 = 19,
    v3_4_0 = 20,
    v3_5_0 = 21,
    v3_6_0 = 22,
    v3_7_0 = 23,
    v3_7_1 = 24,
    v3_8_0 = 25,
};

/// Version of the process's own table. Written only by its load, before the walk begins.
inline constinit SmbiosVersionIndex currentVersionIndex = SmbiosVersionIndex::v2_0_0;

/// One row of the version map.
struct VersionRow {
    std::uint8_t major;
    std::uint8_t minor;
    std::uint8_t revision;
    SmbiosVersionIndex index;

    [[nodiscard]] constexpr std::array<std::uint8_t, 3> Key() const { return {major, minor, revision}; }
};

inline constexpr VersionRow versionMap[] = {
    {2, 0, 0, SmbiosVersionIndex::v2_0_0}, {2, 1, 0, SmbiosVersionIndex::v2_1_0},
    {2, 2, 0, SmbiosVersionIndex::v2_2_0}, {2, 3, 0, SmbiosVersionIndex::v2_3_0},
    {2, 4, 0, SmbiosVersionIndex::v2_4_0}, {2, 5, 0, SmbiosVersionIndex::v2_5_0},
    {2, 6, 0, SmbiosVersionIndex::v2_6_0}, {2, 6, 1, SmbiosVersionIndex::v2_6_1},
    {2, 7, 0, SmbiosVersionIndex::v2_7_0}, {2, 7, 1, SmbiosVersionIndex::v2_7_1},
    {2, 8, 0, SmbiosVersionIndex::v2_8_0}, {3, 0, 0, SmbiosVersionIndex::v3_0_0},
    {3, 1, 0, SmbiosVersionIndex::v3_1_0}, {3, 1, 1, SmbiosVersionIndex::v3_1_1},
    {3, 2, 0, SmbiosVersionIndex::v3_2_0}, {3, 3, 0, SmbiosVersionIndex::v3_3_0},
    {3, 4, 0, SmbiosVersionIndex::v3_4_0}, {3, 5, 0, SmbiosVersionIndex::v3_5_0},
    {3, 6, 0, SmbiosVersionIndex::v3_6_0}, {3, 7, 0, SmbiosVersionIndex::v3_7_0},
    {3, 7, 1, SmbiosVersionIndex::v3_7_1}, {3, 8, 0, SmbiosVersionIndex::v3_8_0},
};

/// The index of a version; no value when the map does not list it.
[[nodiscard]] std::optional<SmbiosVersionIndex> FindVersionIndex(std::uint8_t major,
                                                                 std::uint8_t minor,
                                                                 std::uint8_t revision) noexcept;

}  // namespace SMBIOS::Manager
