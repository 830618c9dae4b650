#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "platform/firmware_table.h"

namespace SMBIOS::Platform {

/// The table that the Linux kernel exposes in a folder of its own.
class PosixFirmwareTable final : public FirmwareTable {
public:
    static constexpr const char* kKernelFolder = "/sys/firmware/dmi/tables";

    /// `folder` must outlive the object.
    explicit constexpr PosixFirmwareTable(const char* folder = kKernelFolder) noexcept : folder_(folder) {}

    std::uint32_t Read(std::uint32_t provider,
                       std::uint32_t tableId,
                       std::span<std::uint8_t> buffer) override;

    [[nodiscard]] FirmwareTableAccess CheckAccess() const noexcept;

private:
    [[nodiscard]] std::vector<std::uint8_t> ReadFolder() const;

    const char* folder_;
};

}  // namespace SMBIOS::Platform
