#pragma once

#include <cstdint>

#include "smbios/export.h"

namespace SMBIOS::Parsers {

/// A boolean that also knows whether it was ever set. Two bytes; the layout is part of the library's
/// interface.
struct SMBIOS_EXPORT EBOOL {
    bool value = false;  ///< the flag; false until set
    bool isSet = false;  ///< true once a value was assigned from a `bool`

    /// False and unset. A copy is set if its source is.
    EBOOL() noexcept;
    EBOOL(const EBOOL&) noexcept = default;
    EBOOL(EBOOL&&) noexcept = default;
    EBOOL& operator=(const EBOOL& other) noexcept;
    EBOOL& operator=(EBOOL&& other) noexcept;
    ~EBOOL() = default;

    /// Sets the value and marks it as set.
    EBOOL& operator=(bool newValue) noexcept;

    /// The value alone: false when it was never set.
    operator bool() const noexcept { return value; }
};

/// Processor Characteristics of one processor. 17 bytes without gaps; the layout is part of the library's
/// interface. For a processor without the value every byte is 0 and every EBOOL is unset.
struct SMBIOS_EXPORT PROCESSOR_CHARACTERISTICS {
    std::uint8_t characteristicsLow = 0;  ///< low 8 bits of the characteristics word, as read
    EBOOL capable64bit;                   ///< bit 2
    EBOOL multiCore;                      ///< bit 3
    EBOOL hardwareThread;                 ///< bit 4: more than one hardware thread per core
    EBOOL executeProtection;              ///< bit 5
    EBOOL enhacedVirtualization;          ///< bit 6; the spelling is part of the interface
    EBOOL powerPerformanceControl;        ///< bit 7
    EBOOL capable128bit;                  ///< bit 8
    EBOOL arm64SoC_ID;                    ///< bit 9

    /// Nothing set. A copy has what its source has.
    PROCESSOR_CHARACTERISTICS() noexcept;
    PROCESSOR_CHARACTERISTICS(const PROCESSOR_CHARACTERISTICS&) noexcept = default;
    PROCESSOR_CHARACTERISTICS(PROCESSOR_CHARACTERISTICS&&) noexcept = default;
    PROCESSOR_CHARACTERISTICS& operator=(const PROCESSOR_CHARACTERISTICS& other) noexcept;
    PROCESSOR_CHARACTERISTICS& operator=(PROCESSOR_CHARACTERISTICS&& other) noexcept;
    ~PROCESSOR_CHARACTERISTICS() = default;
};

/// Type Detail of one memory device. 26 bytes without gaps; the layout is part of the library's interface.
/// For a device without the value every byte is 0 and every EBOOL is unset.
struct SMBIOS_EXPORT MEMORY_TYPE_DETAILS {
    std::uint16_t typeDetailWord = 0;  ///< the word as read; 65535 when the flags came without it
    EBOOL fastPaged;                   ///< bit 3
    EBOOL staticColumn;                ///< bit 4
    EBOOL pseudoStatic;                ///< bit 5
    EBOOL rambus;                      ///< bit 6
    EBOOL synchronous;                 ///< bit 7
    EBOOL cmos;                        ///< bit 8
    EBOOL edo;                         ///< bit 9
    EBOOL windowDram;                  ///< bit 10
    EBOOL cacheDram;                   ///< bit 11
    EBOOL nonVolatile;                 ///< bit 12
    EBOOL registered;                  ///< bit 13
    EBOOL unbuffered;                  ///< bit 14

    /// Nothing set. A copy has what its source has.
    MEMORY_TYPE_DETAILS() noexcept;
    MEMORY_TYPE_DETAILS(const MEMORY_TYPE_DETAILS&) noexcept = default;
    MEMORY_TYPE_DETAILS(MEMORY_TYPE_DETAILS&&) noexcept = default;
    MEMORY_TYPE_DETAILS& operator=(const MEMORY_TYPE_DETAILS& other) noexcept;
    MEMORY_TYPE_DETAILS& operator=(MEMORY_TYPE_DETAILS&& other) noexcept;
    ~MEMORY_TYPE_DETAILS() = default;
};

}  // namespace SMBIOS::Parsers
