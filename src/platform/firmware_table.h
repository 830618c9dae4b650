#pragma once

#include <cstdint>
#include <span>

namespace SMBIOS::Platform {

/// Provider signature of the SMBIOS table ('RSMB') and the only table id it has.
inline constexpr std::uint32_t kRawSmbiosProvider = 0x52534D42;
inline constexpr std::uint32_t kRawSmbiosTableId = 0;

/// Where the raw firmware table comes from: the machine, or a table that a test or a tool supplies.
class FirmwareTable {
public:
    /// Fills `buffer` with the table and returns the number of bytes written. A buffer that is empty or too
    /// small is left alone and the size required is returned. 0 means failure: no such table, or no access.
    /// Throws only std::bad_alloc.
    virtual std::uint32_t Read(std::uint32_t provider,
                               std::uint32_t tableId,
                               std::span<std::uint8_t> buffer) = 0;

protected:
    ~FirmwareTable() = default;  // nobody owns one through this class
};

/// What stands between the caller and the machine's own table.
enum class FirmwareTableAccess { available, missing, denied };

/// The table of the machine this process runs on.
[[nodiscard]] FirmwareTable& MachineFirmwareTable() noexcept;

/// Tells why `MachineFirmwareTable` answers 0, for a message to a person.
[[nodiscard]] FirmwareTableAccess CheckMachineFirmwareTable() noexcept;

/// The table in use: the machine's unless another one was put in its place.
[[nodiscard]] FirmwareTable& ActiveFirmwareTable() noexcept;

/// Puts `table` in place of the machine's; the caller keeps it alive. nullptr restores the machine's.
/// Not synchronised: call it before the first load.
void UseFirmwareTable(FirmwareTable* table) noexcept;

}  // namespace SMBIOS::Platform
