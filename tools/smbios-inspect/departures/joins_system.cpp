#include <algorithm>

#include "smbios-inspect/departures/join.h"
#include "structures/type_11.h"
#include "structures/type_2.h"
#include "structures/type_3.h"

// The system, its board and its chassis.
namespace SMBIOS::Inspect::Departures {

using enum Manager::SmbiosVersionIndex;
using Structures::LengthAbove;
using Structures::LengthAtLeast;
using Structures::VersionBelow;

namespace {

// Type 0

bool IsFullInOldTable(const Comparison& comparison) {
    return comparison.Raw() == 0xFF && comparison.IsBefore(v3_1_0);
}

bool IsFullWithoutExtendedSize(const Comparison& comparison) {
    constexpr std::size_t kEndOfExtendedSize = 0x1A;
    return comparison.Raw() == 0xFF && comparison.Area().Size() < kEndOfExtendedSize;
}

constexpr Cause kReleases = {ReasonId::releases, Always};

constexpr Join kFirmware[] = {
    {"biosVersion", "firmwareVersion", ByKind(), {{ReasonId::firmwareVersion}}},
    {"releaseDate", "firmwareReleaseDate"},
    {"startingAddressSegment", "biosStartingAddressSegment", HexOfBytes()},
    {"systemBiosRelease", "platformFirmwareRelease", ByKind(), {kReleases}},
    {"ecFirmwareRelease", "embeddedControllerFirmwareRelease", ByKind(), {kReleases}},
    {"characteristics", "biosCharacteristics"},
    {"romSize",
     "firmwareRomSize",
     ByKind(),
     {{ReasonId::romSizeInOldTable, IsFullInOldTable},
      {ReasonId::missingBytes, IsFullWithoutExtendedSize},
      {ReasonId::romSizeUnit}}},
    {"characteristicsExtension1",
     "biosCharacteristicsExtensionByte1",
     ByKind(),
     {{ReasonId::extensionBytes}}},
    {"characteristicsExtension2",
     "biosCharacteristicsExtensionByte2",
     ByKind(),
     {{ReasonId::extensionBytes}}},
    {"systemBiosMajorRelease", "platformFirmwareRelease", Bits(0, 8), {kReleases}},
    {"systemBiosMinorRelease", "platformFirmwareRelease", Bits(8, 8), {kReleases}},
    {"ecFirmwareMajorRelease", "embeddedControllerFirmwareRelease", Bits(0, 8), {kReleases}},
    {"ecFirmwareMinorRelease", "embeddedControllerFirmwareRelease", Bits(8, 8), {kReleases}},
};

constexpr Refusal kFirmwareRefusals[] = {
    {ReasonId::firmwareLength, LengthAbove(0x1A)},
    {ReasonId::firmwareLength, LengthAtLeast(0x18), VersionBelow(v3_1_0)},
};

// Type 1

bool IsUuidInOtherOrder(const Comparison& comparison) {
    return comparison.HasLibraryValue() && comparison.HasStandardValue() &&
           !HasNothing(*comparison.StandardValue());
}

bool UuidAgrees(const Comparison& comparison) {
    const std::string_view uuid = TextOf(comparison.library.value);
    const bool hasNone = !comparison.HasStandardValue() || HasNothing(*comparison.StandardValue());
    return hasNone ? uuid.empty() : HaveSameLetters(uuid, comparison.StandardValue()->text);
}

constexpr Join kSystem[] = {
    {"uuid", "uuid", {UuidAgrees}, {{ReasonId::uuidOrder, IsUuidInOtherOrder}, {ReasonId::uuidText}}},
};

constexpr Refusal kSystemRefusals[] = {
    {ReasonId::systemLength, LengthAbove(0x1B)},
};

// Type 2

bool BoardFeaturesAgree(const Comparison& comparison) {
    const auto& flags = RecordIn<Structures::Type_2>(comparison).featureFlags;
    if (!flags || !comparison.HasStandardValue()) {
        return !flags && !comparison.HasStandardValue();
    }
    const unsigned bits = (flags->hostingBoard ? 0x01U : 0U) | (flags->requiresDaughterBoard ? 0x02U : 0U) |
                          (flags->removable ? 0x04U : 0U) | (flags->replaceable ? 0x08U : 0U) |
                          (flags->hotSwappable ? 0x10U : 0U);
    return bits == (comparison.Raw() & 0x1FU);
}

bool ContainedHandlesAgree(const Comparison& comparison) {
    const auto& handles = RecordIn<Structures::Type_2>(comparison).containedObjectHandles;
    if (!handles || !comparison.HasStandardValue()) {
        return !handles && (!comparison.HasStandardValue() || HasNothing(*comparison.StandardValue()));
    }
    const auto isSame = [](std::uint16_t handle, const Standard::Item& item) {
        return item.plain.Number() == handle;
    };
    return comparison.Raw() == handles->size() &&
           std::ranges::equal(*handles, comparison.StandardValue()->items, isSame);
}

constexpr Join kBoard[] = {
    {"featureFlags", "featureFlags", {BoardFeaturesAgree}, {{ReasonId::boardFeatures}}},
    {"containedObjectHandles", "containedObjectHandles", {ContainedHandlesAgree}, {{ReasonId::boardHandles}}},
};

// Type 3

constexpr std::size_t kElementSize = 3;
constexpr std::size_t kFirstElement = 0x15;

bool ElementsArePastEnd(const Comparison& comparison) {
    const auto& elements = RecordIn<Structures::Type_3>(comparison).containedElements;
    return elements && kFirstElement + kElementSize * elements->Count() > comparison.Area().Size();
}

bool IsElementAt(std::size_t offset,
                 const Structures::Type3::Types::ContainedElement& element,
                 const Comparison& comparison) {
    const Structures::FormattedArea area = comparison.Area();
    return element.typeValue == (area.Byte(offset) & 0x7FU) && element.minimum == area.Byte(offset + 1) &&
           element.maximum == area.Byte(offset + 2);
}

/// The library's elements are those that the structure counts, all of them within it.
bool AreSameElements(const Comparison& comparison) {
    const auto& elements = RecordIn<Structures::Type_3>(comparison).containedElements;
    const std::uint64_t count = comparison.Raw();
    if (!elements || count != elements->Count() || comparison.Area().Byte(0x14) != kElementSize) {
        return !elements && count == 0;
    }
    for (std::size_t i = 0; i < count; ++i) {
        if (!IsElementAt(kFirstElement + kElementSize * i, elements->At(i), comparison)) {
            return false;
        }
    }
    return !ElementsArePastEnd(comparison);
}

bool HasStructureType(const Comparison& comparison) {
    const auto& elements = *RecordIn<Structures::Type_3>(comparison).containedElements;
    for (std::size_t i = 0; i < elements.Count(); ++i) {
        if ((comparison.Area().Byte(kFirstElement + kElementSize * i) & 0x80U) != 0) {
            return true;
        }
    }
    return false;
}

bool ElementsAgree(const Comparison& comparison) {
    if (!comparison.HasStandardValue()) {
        return !comparison.HasLibraryValue();
    }
    return AreSameElements(comparison) && (!comparison.HasLibraryValue() || !HasStructureType(comparison));
}

bool ElementsDiffer(const Comparison& comparison) {
    return comparison.HasLibraryValue() && !AreSameElements(comparison);
}

bool NamesDiffer(const Comparison& comparison) {
    return comparison.HasLibraryValue() && AreSameElements(comparison);
}

bool IsShortForElements(const Comparison& comparison) {
    return !comparison.HasLibraryValue() && !comparison.IsBefore(v2_3_0);
}

bool ElementsAreMissing(const Comparison& comparison) {
    return ElementsDiffer(comparison) || IsShortForElements(comparison);
}

constexpr Join kChassis[] = {
    {"chassisTypeValue", "type"},
    {"chassisType", "type", WordOfCode()},
    {"chassisLock", "lock"},
    {"assetTag", "assetTagNumber"},
    {"skuNumber", "skuNumber", ByKind(), {{ReasonId::chassisSkuNumber}}},
    {"containedElements",
     "containedElements",
     {ElementsAgree},
     {{ReasonId::elementsPastEnd, ElementsArePastEnd},
      {ReasonId::elements, ElementsAreMissing},
      {ReasonId::elementName, NamesDiffer}}},
};

// Type 11

bool StringCountAgrees(const Comparison& comparison) {
    const auto& strings = RecordIn<Structures::Type_11>(comparison).strings;
    return comparison.Raw() == (strings ? strings->size() : 0);
}

constexpr Join kOemString[] = {
    {"strings", "count", {StringCountAgrees}, {{ReasonId::oemStringCount, Always}}},
};

// Type 32

constexpr Join kBoot[] = {
    {"bootStatusValue", "bootStatus", ByKind(), {{ReasonId::bootStatus}}},
    {"bootStatus", "bootStatus", WordOfCode(), {{ReasonId::bootStatus}}},
};

constexpr Unpaired kBootUnpaired[] = {
    {"bootStatusData", "the bytes of the status as they stand in the structure"},
};

constexpr Refusal kBootRefusals[] = {
    {ReasonId::deviceVersions, Structures::kAnyLength, VersionBelow(v2_3_0)},
};

}  // namespace

constexpr TypeJoins kFirmwareJoins = {.type = 0, .joins = kFirmware, .refusals = kFirmwareRefusals};
constexpr TypeJoins kSystemJoins = {.type = 1, .joins = kSystem, .refusals = kSystemRefusals};
constexpr TypeJoins kBoardJoins = {.type = 2, .joins = kBoard};
constexpr TypeJoins kChassisJoins = {.type = 3, .joins = kChassis};
constexpr TypeJoins kOemStringJoins = {.type = 11, .joins = kOemString};
constexpr TypeJoins kBootJoins = {
    .type = 32, .joins = kBoot, .unpaired = kBootUnpaired, .refusals = kBootRefusals};

}  // namespace SMBIOS::Inspect::Departures
