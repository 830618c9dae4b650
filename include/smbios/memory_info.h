#pragma once

#include <cstddef>
#include <cstdint>

#include "smbios/export.h"
#include "smbios/value_types.h"

namespace SMBIOS::Parsers {

/// The memory devices of this machine, one row for each serial number, in ascending order.
///
/// A row is not a slot: a device without a serial number, and every device behind it in the table, is listed
/// only as WMI reports it, and not at all without WMI: on Linux, or where PowerShell does not answer. Of
/// several with one serial number the first is listed. `smbios-inspect structures --type 17` shows every
/// device of the table.
///
/// Create an object, call `RetrieveInfo` once, then read the rows 0 to `GetMemoryDeviceCount() - 1`. A number
/// that is absent, or whose index is out of range, is the all-ones value of its type (255, 65535, 4294967295,
/// 18446744073709551615); a text that is absent is nullptr. The two cases cannot be told apart.
///
/// Texts and raw data belong to the object: they change in its own `RetrieveInfo` and at no other time, stay
/// valid until then or until it goes, and are never freed by the caller. Texts end with a NUL and are not
/// converted: firmware writes them in ASCII.
///
/// Objects of both classes may be used on different threads in every combination. One object takes no lock of
/// its own: its `RetrieveInfo` must not run while another thread uses the same object.
///
/// PowerShell is the one that the system finds, and while it hangs, `RetrieveInfo` does not return: a host
/// that must not hang calls it in a process of its own and ends that one. A child that was forked during a
/// `RetrieveInfo` must not call any. Threads that call it are joined before `main` returns or the DLL is
/// freed.
class SMBIOS_EXPORT MemoryInfo {
public:
    /// No rows yet. Throws std::bad_alloc.
    MemoryInfo();

    /// Frees the rows, and with them every text and all raw data.
    virtual ~MemoryInfo();

    /// An object is not copied: callers hold pointers into it.
    MemoryInfo(const MemoryInfo&) = delete;
    MemoryInfo& operator=(const MemoryInfo&) = delete;

    /// (Re)builds the rows. The first call in the process reads the firmware table; it throws an exception
    /// derived from std::exception when the machine exposes none or it is corrupted, and then the rows are
    /// as they were. Values the firmware left out are completed by one query of Win32_PhysicalMemory, during
    /// which the calling thread waits for PowerShell; when that fails the rows just stay incomplete.
    void RetrieveInfo();

    /// Number of rows.
    std::size_t GetMemoryDeviceCount() const noexcept;

    /// Set of devices that must be populated alike; 0 is none.
    std::uint8_t GetDeviceSet(std::size_t index) const noexcept;

    /// Width without and with error correction, in bits.
    std::uint16_t GetDataWidth(std::size_t index) const noexcept;
    std::uint16_t GetTotalWidth(std::size_t index) const noexcept;

    /// Type of memory as the SMBIOS standard's code, and as a text like "DDR4".
    std::uint8_t GetMemoryType(std::size_t index) const noexcept;
    const char* GetStringifiedMemoryType(std::size_t index) const noexcept;

    /// Handle of the array the device belongs to.
    std::uint16_t GetPhysicalMemoryArrayHandle(std::size_t index) const noexcept;

    /// Handle of the device's error information; 65535 also when there was no error.
    std::uint16_t GetMemoryErrorInformationHandle(std::size_t index) const noexcept;

    /// Form factor as the SMBIOS standard's code, and as a text like "DIMM".
    std::uint8_t GetFormFactor(std::size_t index) const noexcept;
    const char* GetStringifiedFormFactor(std::size_t index) const noexcept;

    /// Where the device sits on the board, for example "DIMM 3".
    const char* GetDeviceLocator(std::size_t index) const noexcept;

    /// Flags with more detail on the type: the word as read.
    std::uint16_t GetTypeDetail(std::size_t index) const noexcept;

    /// The same flags by name; every byte 0 and every EBOOL unset when they are absent. Throws
    /// std::out_of_range for a flag word that is too narrow.
    MEMORY_TYPE_DETAILS GetBitsetTypeDetail(std::size_t index) const;

    /// Fastest speed the device is capable of, in MT/s.
    std::uint32_t GetSpeed(std::size_t index) const noexcept;

    /// Who made the module, and its numbers. The serial number is the key of its row.
    const char* GetManufacturer(std::size_t index) const noexcept;
    const char* GetSerialNumber(std::size_t index) const noexcept;
    const char* GetAssetTag(std::size_t index) const noexcept;
    const char* GetPartNumber(std::size_t index) const noexcept;

    /// Number of ranks as its low three bits; 0 is unknown.
    std::uint8_t GetRank(std::size_t index) const noexcept;

    /// Speed the device is running at, in MT/s; 0 is unknown.
    std::uint32_t GetConfiguredSpeed(std::size_t index) const noexcept;

    /// Operating voltages in millivolts; 0 is unknown.
    std::uint16_t GetMinVoltageInmV(std::size_t index) const noexcept;
    std::uint16_t GetMaxVoltageInmV(std::size_t index) const noexcept;
    std::uint16_t GetConfiguredVoltageInmV(std::size_t index) const noexcept;

    /// Memory technology as the SMBIOS standard's code, and the name of the lowest bit set in it.
    std::uint8_t GetMemoryTechnology(std::size_t index) const noexcept;
    const char* GetStringifiedMemoryTechnology(std::size_t index) const;

    /// Operating modes the device supports as flags, and the name of the lowest one.
    std::uint16_t GetMemoryOperatingModeCapability(std::size_t index) const noexcept;
    const char* GetStringifiedMemoryOperatingModeCapability(std::size_t index) const;

    /// Version of the firmware on the module.
    const char* GetFirmwareVersion(std::size_t index) const noexcept;

    /// Parts of the device's size by their use, in bytes.
    std::uint64_t GetCacheSize(std::size_t index) const noexcept;
    std::uint64_t GetLogicalSize(std::size_t index) const noexcept;
    std::uint64_t GetVolatileSize(std::size_t index) const noexcept;
    std::uint64_t GetNonVolatileSize(std::size_t index) const noexcept;

    /// Identifiers of the module and its subsystem controller. Present in tables from 3.2.0 on, and 0 there.
    std::uint16_t GetModuleProductId(std::size_t index) const noexcept;
    std::uint16_t GetModuleManufacturerId(std::size_t index) const noexcept;
    std::uint16_t GetMemorySubsystemControllerManufacturerId(std::size_t index) const noexcept;
    std::uint16_t GetMemorySubsystemControllerProductId(std::size_t index) const noexcept;

    /// Registering clock driver and power management circuit. The identifiers are 0 where present, from
    /// tables 3.7.0 on; the revision numbers are as read.
    std::uint16_t GetRCDManufacturerId(std::size_t index) const noexcept;
    std::uint16_t GetRCDRevisionNumber(std::size_t index) const noexcept;
    std::uint16_t GetPMIC0ManufacturerId(std::size_t index) const noexcept;
    std::uint16_t GetPMIC0RevisionNumber(std::size_t index) const noexcept;

    /// Which bank the device sits in, for example "BANK 0".
    const char* GetBankLocator(std::size_t index) const noexcept;

    /// Position in its row, as WMI reports it.
    std::uint8_t GetPositionInRow(std::size_t index) const noexcept;

    /// Size of the device exactly as recorded, whatever the name says: in bytes, but in kilobytes for a
    /// device whose firmware counts in kilobytes. Absent when no device is installed.
    std::uint64_t GetSizeInKB(std::size_t index) const noexcept;

    /// The structure's formatted area, owned by the object; `size` becomes its number of bytes. nullptr and 0
    /// for a row that only WMI knows.
    std::uint8_t* DumpRawData(std::size_t index, std::size_t& size) const noexcept;

    /// The structure's string set: number of strings, and string `stringIndex` from 0, which is the
    /// structure's string number 1. An empty string is "", not nullptr.
    std::size_t GetStringSessionSize(std::size_t index) const noexcept;
    const char* DumpStringSession(std::size_t index, std::size_t stringIndex) const noexcept;

    /// Kept for compatibility with callers: always false and nullptr. No error state is kept.
    bool HasError(std::size_t index) const noexcept;
    const char* GetErrorMessage(std::size_t index) const noexcept;

private:
    struct State;
    State* const state_;  // owned
};

}  // namespace SMBIOS::Parsers
