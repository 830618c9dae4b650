#include <string>

#include "smbios-inspect/standard/described_types.h"
#include "smbios-inspect/standard/forms.h"
#include "smbios-inspect/standard/row_visitor.h"
#include "smbios-inspect/standard/words_memory.h"

// The memory controller and its modules, which the standard has replaced by arrays and devices.
namespace SMBIOS::Inspect::Standard {

namespace {

constexpr std::size_t kSlotCount = 0x0E;
constexpr std::size_t kFirstSlot = 0x0F;

/// "32 MiB"; sizes here are powers of two in MiB and stay in that unit.
Value MebibytesValue(std::uint64_t mebibytes) {
    return Number(mebibytes << 20, std::to_string(mebibytes) + " MiB");
}

/// More than 2^43 MiB is no size: it cannot be told in bytes.
Value ReadMaximumModuleSize(const Reading& reading) {
    constexpr std::uint64_t kMost = 43;
    const std::uint64_t power = reading.Raw();
    return power > kMost ? Words(power, std::string(kOutOfSpec)) : MebibytesValue(std::uint64_t{1} << power);
}

Value ReadMaximumTotalSize(const Reading& reading) {
    constexpr std::uint64_t kMost = 35;
    const std::uint64_t power = reading.structure.Area().Byte(0x08);
    const std::uint64_t slots = reading.Raw();
    return power > kMost ? Nothing(kOutOfSpec) : MebibytesValue(slots << power);
}

Value ReadModuleVoltage(const Reading& reading) {
    const std::uint64_t bits = reading.Raw();
    const std::string voltages = InOneLine(NamesOfBits(kModuleVoltages, bits));
    return voltages.empty() ? Nothing(kUnknown) : Words(bits, voltages);
}

constexpr FieldRow kMemoryControllerRows[] = {
    {0x04, kByte, "errorDetectingMethod", "Error Detecting Method", Code(kErrorDetectingMethods)},
    {0x05,
     kByte,
     "errorCorrectingCapability",
     "Error Correcting Capabilities",
     Flags(kErrorCorrectingCapabilities)},
    {0x06, kByte, "supportedInterleave", "Supported Interleave", Code(kInterleaves)},
    {0x07, kByte, "currentInterleave", "Current Interleave", Code(kInterleaves)},
    {0x08,
     kByte,
     "maximumMemoryModuleSize",
     "Maximum Memory Module Size",
     NumberBy(ReadMaximumModuleSize, "byte")},
    {0x09, kWord, "supportedSpeeds", "Supported Speeds", Flags(kModuleSpeeds)},
    {0x0B, kWord, "supportedMemoryTypes", "Supported Memory Types", Flags(kModuleTypes)},
    {0x0D, kByte, "memoryModuleVoltage", "Memory Module Voltage", CodeBy(ReadModuleVoltage)},
    {kSlotCount,
     kByte,
     "maximumTotalMemorySize",
     "Maximum Total Memory Size",
     NumberBy(ReadMaximumTotalSize, "byte")},
    {kSlotCount, kByte, "associatedMemorySlots", "Associated Memory Slots", HandleList()},
};

/// Behind the slots' handles.
constexpr FieldRow kBehindSlotsRows[] = {
    {0x00,
     kByte,
     "enabledErrorCorrectingCapabilities",
     "Enabled Error Correcting Capabilities",
     Flags(kErrorCorrectingCapabilities)},
};
constexpr GroupTable kMemoryControllerGroups[] = {
    {.group = "", .rows = kBehindSlotsRows},
};

void VisitBehindSlots(RowVisitor& visitor) {
    if (visitor.Area().Size() >= kFirstSlot) {
        const std::size_t slots = visitor.Area().Byte(kSlotCount);
        visitor.VisitRows(kBehindSlotsRows, kFirstSlot + kWord * slots);
    }
}

// Type 6

/// Two banks, a half byte each.
Value ReadBankConnections(const Reading& reading) {
    constexpr std::uint64_t kNoBank = 0x0F;
    const std::uint64_t banks = reading.Raw();
    std::string text;
    for (const std::uint64_t bank : {banks >> 4, banks & 0x0F}) {
        if (bank != kNoBank) {
            text += (text.empty() ? "" : " ") + std::to_string(bank);
        }
    }
    return Words(banks, text.empty() ? "None" : text);
}

std::string ConnectionText(std::uint64_t size) {
    return (size & 0x80U) != 0 ? " (Double-bank Connection)" : " (Single-bank Connection)";
}

Value ReadModuleSize(const Reading& reading) {
    constexpr std::uint64_t kNotDeterminable = 0x7D;
    constexpr std::uint64_t kDisabled = 0x7E;
    constexpr std::uint64_t kNotInstalled = 0x7F;
    constexpr std::uint64_t kMost = 43;
    const std::uint64_t size = reading.Raw();
    const std::uint64_t power = size & 0x7F;
    if (power == kNotInstalled) {
        return Nothing("Not Installed");
    }
    if (power == kNotDeterminable || power == kDisabled) {
        return Nothing((power == kDisabled ? "Disabled" : "Not Determinable") + ConnectionText(size));
    }
    if (power > kMost) {
        return Nothing(kOutOfSpec);
    }
    Value value = MebibytesValue(std::uint64_t{1} << power);
    value.text += ConnectionText(size);
    value.hasWords = true;
    return value;
}

Value ReadModuleErrors(const Reading& reading) {
    constexpr std::uint64_t kSeeEventLog = 0x04;
    const std::uint64_t status = reading.Raw();
    if ((status & kSeeEventLog) != 0) {
        return Words(status, "See Event Log");
    }
    return Words(status, WordsFor(kModuleErrors, status & 0x03));
}

constexpr FieldRow kMemoryModuleRows[] = {
    {0x04, kByte, "socketDesignation", "Socket Designation", String()},
    {0x05, kByte, "bankConnections", "Bank Connections", CodeBy(ReadBankConnections)},
    {0x06, kByte, "currentSpeed", "Current Speed", Measure("ns", " ns", kUnknownIfZero)},
    {0x07, kWord, "currentMemoryType", "Type", FlagsInLine(kModuleTypes)},
    {0x09, kByte, "installedSize", "Installed Size", NumberBy(ReadModuleSize, "byte")},
    {0x0A, kByte, "enabledSize", "Enabled Size", NumberBy(ReadModuleSize, "byte")},
    {0x0B, kByte, "errorStatus", "Error Status", CodeBy(ReadModuleErrors)},
};

}  // namespace

constexpr TypeDescription kMemoryController = {
    5, 0x0F, kMemoryControllerRows, kMemoryControllerGroups, VisitBehindSlots};
constexpr TypeDescription kMemoryModule = {6, 0x0C, kMemoryModuleRows};

}  // namespace SMBIOS::Inspect::Standard
