#pragma once

#include <cstddef>
#include <cstdint>

#include "smbios/export.h"
#include "smbios/value_types.h"

namespace SMBIOS::Parsers {

/// The processors of this machine, one row for each processor id, in ascending order.
///
/// A row is not a socket: of several processors with one id, which identical processors have, only the first
/// is listed. A processor that could not be decoded has no id: it, and every processor behind it in the
/// table, is listed only as WMI reports it, and not at all without WMI: on Linux, or where PowerShell does
/// not answer. `smbios-inspect structures --type 4` shows every socket of the table.
///
/// Create an object, call `RetrieveInfo` once, then read the rows 0 to `GetCPUCount() - 1`. A number that is
/// absent, or whose index is out of range, is the all-ones value of its type (255, 65535,
/// 18446744073709551615; for the voltage the largest finite float, 3.4028235e38); a text that is absent is
/// nullptr; a flag that is absent is an unset EBOOL. Absence and a wrong index cannot be told apart.
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
class SMBIOS_EXPORT ProcessorInfo {
public:
    /// No rows yet. Throws std::bad_alloc.
    ProcessorInfo();

    /// Frees the rows, and with them every text and all raw data.
    virtual ~ProcessorInfo();

    /// An object is not copied: callers hold pointers into it.
    ProcessorInfo(const ProcessorInfo&) = delete;
    ProcessorInfo& operator=(const ProcessorInfo&) = delete;

    /// (Re)builds the rows. The first call in the process reads the firmware table; it throws an exception
    /// derived from std::exception when the machine exposes none or it is corrupted, and then the rows are
    /// as they were. Values the firmware left out are completed by one query of Win32_Processor, during which
    /// the calling thread waits for PowerShell; when that fails the rows just stay incomplete.
    void RetrieveInfo();

    /// Number of rows.
    std::size_t GetCPUCount() const noexcept;

    /// Version, which for most firmware is the processor's name, and manufacturer.
    const char* GetVersion(std::size_t index) const noexcept;
    const char* GetManufacturer(std::size_t index) const noexcept;

    /// Name of the socket on the board, for example "CPU0".
    const char* GetSocketDesignation(std::size_t index) const noexcept;

    /// Known to WMI only, for example "CPU0".
    const char* GetDeviceId(std::size_t index) const noexcept;
    const char* GetCaption(std::size_t index) const noexcept;
    const char* GetDescription(std::size_t index) const noexcept;

    /// Type of processor as the SMBIOS standard's code, and as a text like "Central Processor".
    std::uint8_t GetType(std::size_t index) const noexcept;
    const char* GetStringifiedType(std::size_t index) const noexcept;

    /// Family of processor as the SMBIOS standard's code, and as a text.
    std::uint16_t GetFamily(std::size_t index) const noexcept;
    const char* GetStringifiedFamily(std::size_t index) const noexcept;

    /// The identifying register values as 16 hexadecimal digits, most significant first.
    const char* GetProcessorID(std::size_t index) const noexcept;

    /// Whether the voltage is given as a list of supported voltages: set and true, with that list; set and
    /// false, with one value in volts.
    EBOOL IsLegacyVoltageInfo(std::size_t index) const noexcept;

    /// Number of supported voltages, 0 when there is no list; and voltage `voltageIndex`, from 0, as a text
    /// like "3.3V".
    std::size_t GetLegacyVoltageInfoSize(std::size_t index) const noexcept;
    const char* GetLegacyVoltageInfo(std::size_t index, std::size_t voltageIndex) const noexcept;

    /// Voltage in volts.
    float GetNonLegacyVoltageValue(std::size_t index) const noexcept;

    /// Clock and speeds in MHz. The maximum is what WMI reports.
    std::uint16_t GetExternalClockInMHz(std::size_t index) const noexcept;
    std::uint16_t GetMaxSpeedInMHz(std::size_t index) const noexcept;
    std::uint16_t GetCurrentSpeedInMHz(std::size_t index) const noexcept;

    /// Whether there is a processor in the socket.
    EBOOL IsSocketPopulated(std::size_t index) const noexcept;

    /// Status as a text like "CPU Enabled"; nullptr also for a status without a text.
    const char* GetStringifiedStatus(std::size_t index) const noexcept;

    /// Socket ("upgrade") as the SMBIOS standard's code, and as a text like "Socket LGA1151".
    std::uint8_t GetUpgrade(std::size_t index) const noexcept;
    const char* GetStringifiedUpgrade(std::size_t index) const noexcept;

    /// Handles of the cache structures.
    std::uint16_t GetL1CacheHandle(std::size_t index) const noexcept;
    std::uint16_t GetL2CacheHandle(std::size_t index) const noexcept;
    std::uint16_t GetL3CacheHandle(std::size_t index) const noexcept;

    /// Maximum sizes of the caches in kilobytes.
    std::uint64_t GetL1CacheSizeInKB(std::size_t index) const noexcept;
    std::uint64_t GetL2CacheSizeInKB(std::size_t index) const noexcept;
    std::uint64_t GetL3CacheSizeInKB(std::size_t index) const noexcept;

    /// Numbers that the processor's maker and its owner have given it. None of them is the key of its row.
    const char* GetSerialNumber(std::size_t index) const noexcept;
    const char* GetAssetTag(std::size_t index) const noexcept;
    const char* GetPartNumber(std::size_t index) const noexcept;

    /// Cores and threads of the socket, and how many of them are enabled.
    std::uint16_t GetCoreCount(std::size_t index) const noexcept;
    std::uint16_t GetEnabledCoreCount(std::size_t index) const noexcept;
    std::uint16_t GetThreadCount(std::size_t index) const noexcept;
    std::uint16_t GetEnabledThreadCount(std::size_t index) const noexcept;

    /// Type of the socket as the firmware writes it; tables have it from 3.8.0 on.
    const char* GetSocketType(std::size_t index) const noexcept;

    /// Widths in bits, as WMI reports them.
    std::uint16_t GetAddrWidth(std::size_t index) const noexcept;
    std::uint16_t GetDataWidth(std::size_t index) const noexcept;

    /// Whether firmware has virtualization enabled. Where the table tells it, this is the processor's
    /// enhanced virtualization capability.
    EBOOL GetVirtualizationFirmwareEnabled(std::size_t index) const noexcept;

    /// The characteristics by name; every byte 0 and every EBOOL unset when they are absent. Throws
    /// std::out_of_range for a flag word that is too narrow.
    PROCESSOR_CHARACTERISTICS GetProcessorCharacteristics(std::size_t index) const;

    /// The structure's formatted area, owned by the object; `size` becomes its number of bytes. nullptr and 0
    /// for a row that only WMI knows. In a list of supported voltages the voltage byte shows its low three
    /// bits only.
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
