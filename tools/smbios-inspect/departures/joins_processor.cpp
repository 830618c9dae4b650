#include <bit>
#include <charconv>
#include <system_error>

#include "smbios-inspect/departures/join.h"
#include "smbios-inspect/standard/words_processor.h"
#include "structures/type_4.h"

// Processors and their caches.
namespace SMBIOS::Inspect::Departures {

using enum Manager::SmbiosVersionIndex;

namespace {

// Type 4

/// Sixteen digits, the most significant first; the standard shows the bytes.
bool ProcessorIdAgrees(const Comparison& comparison) {
    const std::string_view digits = TextOf(comparison.library.value);
    std::uint64_t number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number, 16);
    const bool isNumber = error == std::errc() && end == digits.data() + digits.size();
    return comparison.HasStandardValue() && isNumber && number == comparison.Raw();
}

bool IsListOfVoltages(const Comparison& comparison) {
    constexpr std::uint64_t kIsCurrentVoltage = 0x80;
    return (comparison.Raw() & kIsCurrentVoltage) == 0;
}

bool VoltageModeAgrees(const Comparison& comparison) {
    return NumberOf(comparison.library.value) == std::uint64_t{IsListOfVoltages(comparison)};
}

bool VoltagesAgree(const Comparison& comparison) {
    const auto& voltages = RecordIn<Structures::Type_4>(comparison).supportedVoltages;
    if (!voltages || !IsListOfVoltages(comparison)) {
        return !voltages && !IsListOfVoltages(comparison);
    }
    return voltages->size() == static_cast<std::size_t>(std::popcount(comparison.Raw() & 0x07U));
}

bool StatusTextAgrees(const Comparison& comparison) {
    const std::string_view words =
        Standard::WordList(Standard::kProcessorStates).Find(comparison.RawBits()).value_or("Reserved");
    return comparison.HasLibraryValue() ? WordAgrees(TextOf(comparison.library.value), words)
                                        : words != "Other" && WordAgrees({}, words);
}

bool IsNoSetting(const Comparison& comparison) {
    return !comparison.HasLibraryValue() || NumberOf(comparison.library.value) == std::uint64_t{0};
}

constexpr std::string_view kOnlyWmiKnows = "never in the table: WMI knows it";
constexpr Cause kWideCount = {ReasonId::coreCounts, Is<0xFF>};

constexpr Join kProcessor[] = {
    {"processorId", "processorId", {ProcessorIdAgrees}},
    {"legacyVoltageMode", "voltage", {VoltageModeAgrees}},
    {"supportedVoltages", "voltage", {VoltagesAgree}},
    {"currentVoltage", "voltage"},
    {"socketPopulated", "status", Bits(6, 1)},
    {"statusText", "status", {StatusTextAgrees, 0, 3}, {{ReasonId::otherText}}},
    {"processorFamily", "processorFamily", ByKind(), {{ReasonId::processorFamily, Always}}},
    {"processorFamilyName", "processorFamily", WordOfCode(), {{ReasonId::processorFamily, Is<0xFE>}}},
    {"coreCount", "coreCount", ByKind(), {kWideCount}},
    {"coreEnabled", "coreEnabled", ByKind(), {kWideCount}},
    {"threadCount", "threadCount", ByKind(), {kWideCount}},
    {"threadEnabled", "threadEnabled", Strictly(), {{ReasonId::threadEnabled}}},
    {"characteristicsFlags", "processorCharacteristics"},
    {"virtualizationFirmwareEnabled",
     "processorCharacteristics",
     {IsNoSetting},
     {{ReasonId::virtualization, Always}}},
    {"maxSpeed", "maxSpeed", ByKind(), {{ReasonId::maximumSpeed}}},
};

constexpr Unpaired kProcessorUnpaired[] = {
    {"deviceId", kOnlyWmiKnows},
    {"caption", kOnlyWmiKnows},
    {"description", kOnlyWmiKnows},
    {"addressWidth", kOnlyWmiKnows},
    {"dataWidth", kOnlyWmiKnows},
    {"l1CacheSize", "in the cache's own structure"},
    {"l2CacheSize", "in the cache's own structure"},
    {"l3CacheSize", "in the cache's own structure"},
};

// Type 7

/// No type named but "Other", which has no name in the library's list.
bool SramTypesAgree(const Comparison& comparison) {
    constexpr std::uint64_t kNamedTypes = 0x7E;
    return (comparison.Raw() & kNamedTypes) == 0 && AgreeByKind(comparison);
}

bool IsZero(const Comparison& comparison) {
    return !comparison.HasLibraryValue() && comparison.HasStandardValue() &&
           comparison.StandardValue()->plain.Number() == 0;
}

/// The wide field is not read, or not there.
template <std::size_t WideOffset>
bool IsFullWithoutWideSize(const Comparison& comparison) {
    return comparison.Raw() == 0xFFFF &&
           (comparison.IsBefore(v3_1_0) || comparison.Area().Size() < WideOffset + Standard::kDword);
}

constexpr Join kCache[] = {
    {"cacheEnabled", "cacheConfiguration", Bits(7, 1)},
    {"cacheLocation", "location"},
    {"cacheSocketed", "cacheConfiguration", Bits(3, 1)},
    {"cacheLevel", "cacheConfiguration", Bits(0, 3)},
    {"operationalModeText", "operationalMode", WordForWord(), {{ReasonId::cacheMode}}},
    {"maximumCacheSize",
     "maximumCacheSize",
     Kilobytes(),
     {{ReasonId::cacheSizeZero, IsZero},
      {ReasonId::cacheWideSize, IsFullWithoutWideSize<0x13>},
      {ReasonId::cacheSizeWraps}}},
    {"installedSize",
     "installedSize",
     Kilobytes(),
     {{ReasonId::cacheSizeZero, IsZero},
      {ReasonId::cacheWideSize, IsFullWithoutWideSize<0x17>},
      {ReasonId::cacheSizeWraps}}},
    {"supportedSramType", "supportedSramType", {SramTypesAgree}, {{ReasonId::sramNames}}},
    {"currentSramType", "currentSramType", {SramTypesAgree}, {{ReasonId::sramNames}}},
};

}  // namespace

constexpr TypeJoins kProcessorJoins = {.type = 4, .joins = kProcessor, .unpaired = kProcessorUnpaired};
constexpr TypeJoins kCacheJoins = {.type = 7, .joins = kCache};

}  // namespace SMBIOS::Inspect::Departures
