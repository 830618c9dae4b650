#pragma once

#include <cstdint>

#include "smbios-inspect/picture/fields.h"
#include "smbios-inspect/picture/machine.h"

// Things of a machine, each from the fields of one structure. Tooltips are left to the caller.
namespace SMBIOS::Inspect::Picture {

[[nodiscard]] Note SystemNote(const Fields& fields);
[[nodiscard]] Note FirmwareNote(const Fields& fields);
[[nodiscard]] Note BoardNote(const Fields& fields);
[[nodiscard]] Note ChassisNote(const Fields& fields);

[[nodiscard]] Processor ProcessorOf(const Fields& fields);
[[nodiscard]] Cache CacheOf(const Fields& fields, unsigned level);

[[nodiscard]] MemoryDevice MemoryDeviceOf(const Fields& fields);
[[nodiscard]] MemoryArray MemoryArrayOf(const Fields& fields);

[[nodiscard]] Slot SlotOf(const Fields& fields);
[[nodiscard]] Part ConnectorOf(const Fields& fields);
[[nodiscard]] Part OnBoardDeviceOf(const Fields& fields);
[[nodiscard]] Part TemperatureProbeOf(const Fields& fields);
[[nodiscard]] Part CoolingDeviceOf(const Fields& fields);

}  // namespace SMBIOS::Inspect::Picture
