#include "smbios/value_types.h"

#include <cstddef>

namespace SMBIOS::Parsers {

static_assert(sizeof(EBOOL) == 2);
static_assert(offsetof(EBOOL, value) == 0);
static_assert(offsetof(EBOOL, isSet) == 1);

static_assert(sizeof(PROCESSOR_CHARACTERISTICS) == 17);
static_assert(offsetof(PROCESSOR_CHARACTERISTICS, characteristicsLow) == 0);
static_assert(offsetof(PROCESSOR_CHARACTERISTICS, capable64bit) == 1);
static_assert(offsetof(PROCESSOR_CHARACTERISTICS, multiCore) == 3);
static_assert(offsetof(PROCESSOR_CHARACTERISTICS, hardwareThread) == 5);
static_assert(offsetof(PROCESSOR_CHARACTERISTICS, executeProtection) == 7);
static_assert(offsetof(PROCESSOR_CHARACTERISTICS, enhacedVirtualization) == 9);
static_assert(offsetof(PROCESSOR_CHARACTERISTICS, powerPerformanceControl) == 11);
static_assert(offsetof(PROCESSOR_CHARACTERISTICS, capable128bit) == 13);
static_assert(offsetof(PROCESSOR_CHARACTERISTICS, arm64SoC_ID) == 15);

static_assert(sizeof(MEMORY_TYPE_DETAILS) == 26);
static_assert(offsetof(MEMORY_TYPE_DETAILS, typeDetailWord) == 0);
static_assert(offsetof(MEMORY_TYPE_DETAILS, fastPaged) == 2);
static_assert(offsetof(MEMORY_TYPE_DETAILS, staticColumn) == 4);
static_assert(offsetof(MEMORY_TYPE_DETAILS, pseudoStatic) == 6);
static_assert(offsetof(MEMORY_TYPE_DETAILS, rambus) == 8);
static_assert(offsetof(MEMORY_TYPE_DETAILS, synchronous) == 10);
static_assert(offsetof(MEMORY_TYPE_DETAILS, cmos) == 12);
static_assert(offsetof(MEMORY_TYPE_DETAILS, edo) == 14);
static_assert(offsetof(MEMORY_TYPE_DETAILS, windowDram) == 16);
static_assert(offsetof(MEMORY_TYPE_DETAILS, cacheDram) == 18);
static_assert(offsetof(MEMORY_TYPE_DETAILS, nonVolatile) == 20);
static_assert(offsetof(MEMORY_TYPE_DETAILS, registered) == 22);
static_assert(offsetof(MEMORY_TYPE_DETAILS, unbuffered) == 24);

// Defined here rather than in the class so that the library really exports them.
EBOOL::EBOOL() noexcept = default;
EBOOL& EBOOL::operator=(const EBOOL& other) noexcept = default;
EBOOL& EBOOL::operator=(EBOOL&& other) noexcept = default;

EBOOL& EBOOL::operator=(bool newValue) noexcept {
    value = newValue;
    isSet = true;
    return *this;
}

PROCESSOR_CHARACTERISTICS::PROCESSOR_CHARACTERISTICS() noexcept = default;
PROCESSOR_CHARACTERISTICS& PROCESSOR_CHARACTERISTICS::operator=(
    const PROCESSOR_CHARACTERISTICS& other) noexcept = default;
PROCESSOR_CHARACTERISTICS& PROCESSOR_CHARACTERISTICS::operator=(PROCESSOR_CHARACTERISTICS&& other) noexcept =
    default;

MEMORY_TYPE_DETAILS::MEMORY_TYPE_DETAILS() noexcept = default;
MEMORY_TYPE_DETAILS& MEMORY_TYPE_DETAILS::operator=(const MEMORY_TYPE_DETAILS& other) noexcept = default;
MEMORY_TYPE_DETAILS& MEMORY_TYPE_DETAILS::operator=(MEMORY_TYPE_DETAILS&& other) noexcept = default;

}  // namespace SMBIOS::Parsers
