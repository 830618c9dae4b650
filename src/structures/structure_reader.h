#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "manager/smbios_version.h"
#include "structures/formatted_area.h"

namespace SMBIOS::Structures {

/// What a decoder reads its fields from: the formatted area and the string set of one structure, and the
/// version of its table. Valid only while the bytes and strings it was given are.
class StructureReader : public FormattedArea {
public:
    StructureReader(const std::vector<std::uint8_t>& formattedBytes,
                    const std::vector<std::string>& strings,
                    Manager::SmbiosVersionIndex version)
        : FormattedArea(formattedBytes),
          formattedBytes_(formattedBytes),
          strings_(strings),
          version_(version) {}

    [[nodiscard]] bool VersionIsAtLeast(Manager::SmbiosVersionIndex version) const noexcept {
        return version_ >= version;
    }

    /// The string whose number stands at `offset`, trimmed; empty when there is no such string, and when
    /// there is no memory for it, which is noted.
    [[nodiscard]] std::string String(std::size_t offset) const;

    /// Notes that a text of the structure is reported as empty because there was no memory for it.
    void NoteLostText() const noexcept { hasLostText_ = true; }

    [[nodiscard]] bool HasLostText() const noexcept { return hasLostText_; }

    /// Writes into the bytes given to `Process`, so that the raw bytes kept afterwards show `value`. Nothing
    /// happens past the formatted area.
    void OverwriteByte(std::size_t offset, std::uint8_t value) noexcept;

private:
    const std::vector<std::uint8_t>& formattedBytes_;
    const std::vector<std::string>& strings_;
    const Manager::SmbiosVersionIndex version_;
    mutable bool hasLostText_ = false;
};

}  // namespace SMBIOS::Structures
