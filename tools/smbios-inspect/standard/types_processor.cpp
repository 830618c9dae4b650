#include <string>

#include "smbios-inspect/standard/described_types.h"
#include "smbios-inspect/standard/forms.h"
#include "smbios-inspect/standard/processor_signature.h"
#include "smbios-inspect/standard/row_visitor.h"
#include "smbios-inspect/standard/words_family.h"
#include "smbios-inspect/standard/words_processor.h"

// Processors and their caches.
namespace SMBIOS::Inspect::Standard {

namespace {

// Type 4

/// The family is in a word of its own when the byte has no room for it.
std::uint64_t FamilyOf(const Structure& structure) {
    constexpr std::uint8_t kSeeFamily2 = 0xFE;
    constexpr std::size_t kFamily2 = 0x28;
    const Structures::FormattedArea area = structure.Area();
    const std::uint8_t family = area.Byte(0x06);
    const bool hasFamily2 = family == kSeeFamily2 && area.Size() >= kFamily2 + kWord;
    return hasFamily2 ? area.Word(kFamily2) : family;
}

Value ReadFamily(const Reading& reading) {
    const std::uint64_t family = FamilyOf(reading.structure);
    return Words(family, WordsFor(kProcessorFamilies, family));
}

Value ReadSignature(const Reading& reading) {
    return SignatureOf(FamilyOf(reading.structure), reading.Raw());
}

Value ReadProcessorFlags(const Reading& reading) {
    const std::uint64_t flags = reading.Raw();
    if (!HasFeatureFlags(FamilyOf(reading.structure))) {
        return Nothing("Not Applicable");
    }
    std::vector<Item> names = NamesOfBits(kProcessorFlags, flags);
    std::string text = names.empty() ? "None" : "";
    return List(flags, std::move(text), std::move(names));
}

/// Tenths of a volt when the highest bit is set, otherwise the voltages that the socket has.
Value ReadProcessorVoltage(const Reading& reading) {
    constexpr std::uint64_t kIsCurrent = 0x80;
    const std::uint64_t voltage = reading.Raw();
    if ((voltage & kIsCurrent) != 0) {
        const auto tenths = static_cast<std::int64_t>(voltage & 0x7F);
        return Number(voltage & 0x7F, DecimalText(tenths, 1) + " V");
    }
    std::string capable = InOneLine(NamesOfBits(kProcessorVoltages, voltage));
    return Nothing(capable.empty() ? ValueText(kUnknown) : ValueText(std::move(capable)));
}

Value ReadProcessorStatus(const Reading& reading) {
    constexpr std::uint64_t kIsPopulated = 0x40;
    const std::uint64_t status = reading.Raw();
    if ((status & kIsPopulated) == 0) {
        return Words(status, "Unpopulated");
    }
    return Words(status, std::string("Populated, ").append(WordsFor(kProcessorStates, status & 0x07)));
}

/// A count in a byte; one that has no room there is in a word at `WideOffset`.
template <std::size_t WideOffset>
Value ReadCoreCount(const Reading& reading) {
    constexpr std::uint64_t kSeeWideCount = 0xFF;
    std::uint64_t count = reading.Raw();
    if (count == kSeeWideCount && reading.structure.bytes.size() >= WideOffset + kWord) {
        count = reading.structure.Area().Word(WideOffset);
    }
    return count == 0 ? Nothing(kUnknown) : Number(count, std::to_string(count));
}

/// Before version 2.3 there was no cache where there is no handle.
template <char Level>
Value ReadCacheHandle(const Reading& reading) {
    Value handle = ReadHandle(reading);
    if (handle.plain.IsNothing() && !reading.structure.version.IsAtLeast(2, 3)) {
        handle.text = std::string("No L") + Level + " Cache";
    }
    return handle;
}

constexpr WordList kNotProvided = kNotProvidedIfWordFull;

constexpr FieldRow kProcessorRows[] = {
    {0x04, kByte, "socketDesignation", "Socket Designation", String()},
    {0x05, kByte, "processorType", "Type", Code(kProcessorTypes)},
    {0x06, kByte, "processorFamily", "Family", CodeBy(ReadFamily)},
    {0x07, kByte, "processorManufacturer", "Manufacturer", String()},
    {0x08, kQword, "processorId", "ID", RawBytes()},
    {0x08, kQword, "signature", "Signature", TextBy(ReadSignature)},
    {0x0C, kDword, "featureFlags", "Flags", FlagsBy(ReadProcessorFlags)},
    {0x10, kByte, "processorVersion", "Version", String()},
    {0x11, kByte, "voltage", "Voltage", NumberBy(ReadProcessorVoltage, "0.1 V")},
    {0x12, kWord, "externalClock", "External Clock", Measure("MHz", " MHz", kUnknownIfZero)},
    {0x14, kWord, "maxSpeed", "Max Speed", Measure("MHz", " MHz", kUnknownIfZero)},
    {0x16, kWord, "currentSpeed", "Current Speed", Measure("MHz", " MHz", kUnknownIfZero)},
    {0x18, kByte, "status", "Status", CodeBy(ReadProcessorStatus)},
    {0x19, kByte, "processorUpgrade", "Upgrade", Code(kProcessorUpgrades)},
    {0x1A, kWord, "l1CacheHandle", "L1 Cache Handle", HandleBy(ReadCacheHandle<'1'>, kNotProvided)},
    {0x1C, kWord, "l2CacheHandle", "L2 Cache Handle", HandleBy(ReadCacheHandle<'2'>, kNotProvided)},
    {0x1E, kWord, "l3CacheHandle", "L3 Cache Handle", HandleBy(ReadCacheHandle<'3'>, kNotProvided)},
    {0x20, kByte, "serialNumber", "Serial Number", String()},
    {0x21, kByte, "assetTag", "Asset Tag", String()},
    {0x22, kByte, "partNumber", "Part Number", String()},
    {0x23, kByte, "coreCount", "Core Count", NumberBy(ReadCoreCount<0x2A>)},
    {0x24, kByte, "coreEnabled", "Core Enabled", NumberBy(ReadCoreCount<0x2C>)},
    {0x25, kByte, "threadCount", "Thread Count", NumberBy(ReadCoreCount<0x2E>)},
    {0x26, kWord, "processorCharacteristics", "Characteristics", Flags(kProcessorCharacteristics)},
    {0x28, kWord, "processorFamily2", "", Code(kProcessorFamilies)},
    {0x2A, kWord, "coreCount2", "", Count()},
    {0x2C, kWord, "coreEnabled2", "", Count()},
    {0x2E, kWord, "threadCount2", "", Count()},
    {0x30, kWord, "threadEnabled", "Thread Enabled", Count(kUnknownIfZero)},
    {0x32, kByte, "socketType", "Socket Type", String()},
};

// Type 7

Value ReadCacheConfiguration(const Reading& reading) {
    const std::uint64_t bits = reading.Raw();
    return Words(bits,
                 std::string((bits & 0x0080U) != 0 ? "Enabled, " : "Disabled, ") +
                     ((bits & 0x0008U) != 0 ? "Socketed" : "Not Socketed") + ", Level " +
                     std::to_string((bits & 0x0007U) + 1));
}

/// Granules of 1 or 64 KiB, as the highest bit says.
Value SizeOfGranules(std::uint64_t size, unsigned bitCount) {
    const std::uint64_t isLarge = size >> (bitCount - 1);
    const std::uint64_t granules = size & ((std::uint64_t{1} << (bitCount - 1)) - 1);
    return SizeInKibibytes(isLarge != 0 ? granules * 64 : granules);
}

/// A size that has no room in its word is in a double word at `WideOffset`.
template <std::size_t WideOffset>
Value ReadCacheSize(const Reading& reading) {
    constexpr std::uint64_t kSeeWideSize = 0xFFFF;
    const std::uint64_t size = reading.Raw();
    if (size == kSeeWideSize && reading.structure.bytes.size() >= WideOffset + kDword) {
        return SizeOfGranules(reading.structure.Area().Dword(WideOffset), 32);
    }
    return SizeOfGranules(size, 16);
}

Value ReadWideCacheSize(const Reading& reading) {
    return SizeOfGranules(reading.Raw(), 32);
}

constexpr FieldRow kCacheRows[] = {
    {0x04, kByte, "socketDesignation", "Socket Designation", String()},
    {0x05, kWord, "cacheConfiguration", "Configuration", CodeBy(ReadCacheConfiguration)},
    {0x05, kWord, "operationalMode", "Operational Mode", CodeIn(8, 2, kCacheModes)},
    {0x05, kWord, "location", "Location", CodeIn(5, 2, kCacheLocations)},
    {0x07, kWord, "maximumCacheSize", "Maximum Size", NumberBy(ReadCacheSize<0x13>, "byte")},
    {0x09, kWord, "installedSize", "Installed Size", NumberBy(ReadCacheSize<0x17>, "byte")},
    {0x0B, kWord, "supportedSramType", "Supported SRAM Types", Flags(kSramTypes)},
    {0x0D, kWord, "currentSramType", "Installed SRAM Type", FlagsInLine(kSramTypes)},
    {0x0F, kByte, "cacheSpeed", "Speed", Measure("ns", " ns", kUnknownIfZero)},
    {0x10, kByte, "errorCorrectionType", "Error Correction Type", Code(kCacheErrorCorrections)},
    {0x11, kByte, "systemCacheType", "System Type", Code(kCacheTypes)},
    {0x12, kByte, "associativity", "Associativity", Code(kCacheAssociativities)},
    {0x13, kDword, "maximumCacheSize2", "", NumberBy(ReadWideCacheSize, "byte")},
    {0x17, kDword, "installedCacheSize2", "", NumberBy(ReadWideCacheSize, "byte")},
};

}  // namespace

constexpr TypeDescription kProcessor = {4, 0x1A, kProcessorRows};
constexpr TypeDescription kCache = {7, 0x0F, kCacheRows};

}  // namespace SMBIOS::Inspect::Standard
