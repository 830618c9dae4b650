#include <string>

#include "smbios-inspect/standard/described_types.h"
#include "smbios-inspect/standard/forms.h"
#include "smbios-inspect/standard/row_visitor.h"
#include "smbios-inspect/standard/words_system.h"

// The system as a whole, and its firmware.
namespace SMBIOS::Inspect::Standard {

namespace {

// Type 0

/// The segment in which the firmware's code starts, as the address people know.
Value ReadStartAddress(const Reading& reading) {
    const std::uint64_t segment = reading.Raw();
    return Number(segment, HexText(segment << 4, 5));
}

/// The firmware's code ends at 1 MiB.
Value ReadRuntimeSize(const Reading& reading) {
    constexpr std::uint64_t kEnd = 0x10000;
    const std::uint64_t segment = reading.Raw();
    return segment == 0 ? Nothing(kNotSpecified) : SizeInBytes((kEnd - segment) << 4);
}

Value ReadExtendedRomSize(std::uint16_t size) {
    const std::uint64_t number = size & 0x3FFFU;
    switch (size >> 14) {
        case 0:
            return Number(number << 20, std::to_string(number) + " MiB");
        case 1:
            return Number(number << 30, std::to_string(number) + " GiB");
        default:
            return Nothing(std::to_string(number) + " " + std::string(kOutOfSpec));
    }
}

Value ReadRomSize(const Reading& reading) {
    constexpr std::uint64_t kSeeExtendedSize = 0xFF;
    constexpr std::size_t kExtendedSize = 0x18;
    const std::uint64_t size = reading.Raw();
    if (size == kSeeExtendedSize && reading.structure.bytes.size() >= kExtendedSize + kWord) {
        return ReadExtendedRomSize(reading.structure.Area().Word(kExtendedSize));
    }
    return SizeInKibibytes(64 * (size + 1));
}

/// People read the extension bytes in the same list.
Value ReadFirmwareCharacteristics(const Reading& reading) {
    const Structures::FormattedArea area = reading.structure.Area();
    std::vector<Item> items = NamesOfBits(kFirmwareCharacteristics, reading.Raw());
    for (Item& item : NamesOfBits(kFirmwareCharacteristics1, area.Byte(0x12))) {
        items.push_back(std::move(item));
    }
    for (Item& item : NamesOfBits(kFirmwareCharacteristics2, area.Byte(0x13))) {
        items.push_back(std::move(item));
    }
    return List(reading.Raw(), "", std::move(items));
}

constexpr FieldRow kFirmwareInformationRows[] = {
    {0x04, kByte, "vendor", "Vendor", String()},
    {0x05, kByte, "firmwareVersion", "Version", String()},
    {0x06, kWord, "biosStartingAddressSegment", "Address", NumberBy(ReadStartAddress)},
    {0x06, kWord, "runtimeSize", "Runtime Size", NumberBy(ReadRuntimeSize, "byte")},
    {0x08, kByte, "firmwareReleaseDate", "Release Date", String()},
    {0x09, kByte, "firmwareRomSize", "ROM Size", NumberBy(ReadRomSize, "byte")},
    {0x0A, kQword, "biosCharacteristics", "Characteristics", FlagsBy(ReadFirmwareCharacteristics)},
    {0x12, kByte, "biosCharacteristicsExtensionByte1", "", Flags(kFirmwareCharacteristics1)},
    {0x13, kByte, "biosCharacteristicsExtensionByte2", "", Flags(kFirmwareCharacteristics2)},
    {0x14, kWord, "platformFirmwareRelease", "BIOS Revision", Release()},
    {0x16, kWord, "embeddedControllerFirmwareRelease", "Firmware Revision", Release()},
    {0x18, kWord, "extendedFirmwareRomSize", "", Hex()},
};

// Type 1

constexpr FieldRow kSystemInformationRows[] = {
    {0x04, kByte, "manufacturer", "Manufacturer", String()},
    {0x05, kByte, "productName", "Product Name", String()},
    {0x06, kByte, "version", "Version", String()},
    {0x07, kByte, "serialNumber", "Serial Number", String()},
    {0x08, 16, "uuid", "UUID", Uuid()},
    {0x18, kByte, "wakeUpType", "Wake-up Type", Code(kWakeUpTypes)},
    {0x19, kByte, "skuNumber", "SKU Number", String()},
    {0x1A, kByte, "family", "Family", String()},
};

// Types 11 and 12: as many strings as the count says

constexpr FieldRow kCountRows[] = {
    {0x04, kByte, "count", "", Count()},
};
constexpr FieldRow kOemStringRows[] = {
    {0x00, 0, "string", "String #", String()},
};
constexpr FieldRow kOptionRows[] = {
    {0x00, 0, "option", "Option #", String()},
};
constexpr GroupTable kOemStringGroups[] = {
    {.group = "oemStrings", .rows = kOemStringRows},
};
constexpr GroupTable kOptionGroups[] = {
    {.group = "options", .rows = kOptionRows},
};

void VisitCountedStrings(const GroupTable& group, RowVisitor& visitor) {
    const std::size_t count = visitor.Area().Byte(0x04);
    for (std::size_t i = 0; i < count; ++i) {
        visitor.VisitValue(group, i, StringNumber(visitor.Whole(), i + 1));
    }
}

void VisitOemStrings(RowVisitor& visitor) {
    VisitCountedStrings(kOemStringGroups[0], visitor);
}

void VisitOptions(RowVisitor& visitor) {
    VisitCountedStrings(kOptionGroups[0], visitor);
}

// Type 13

/// The languages are the strings, from the first on.
Value ReadLanguages(const Reading& reading) {
    const std::uint64_t count = reading.Raw();
    std::vector<Item> languages;
    for (std::size_t i = 1; i <= count; ++i) {
        const Value language = StringNumber(reading.structure, i);
        languages.push_back({language.plain, language.text});
    }
    return List(count, std::to_string(count), std::move(languages));
}

constexpr FieldRow kFirmwareLanguageRows[] = {
    {0x04, kByte, "installableLanguages", "Installable Languages", ListBy(ReadLanguages)},
    {0x05, kByte, "flags", "Language Description Format", CodeIn(0, 1, kLanguageFormats)},
    {0x15, kByte, "currentLanguage", "Currently Installed Language", String()},
};

// Type 14: as many items of a type and a handle as its length has room for

Value ReadGroupItems(const Reading& reading) {
    constexpr std::size_t kFirst = 0x05;
    constexpr std::size_t kItemSize = 3;
    const Structures::FormattedArea area = reading.structure.Area();
    std::vector<Item> items;
    for (std::size_t at = kFirst; at + kItemSize <= area.Size(); at += kItemSize) {
        const std::uint16_t handle = area.Word(at + 1);
        std::string text = HexText(handle, 4) + " (";
        text.append(TypeWords(area.Byte(at))).append(")");
        items.push_back({std::uint64_t{handle}, std::move(text), at + 1});
    }
    const std::size_t count = items.size();
    return List(count, std::to_string(count), std::move(items));
}

constexpr FieldRow kGroupAssociationsRows[] = {
    {0x04, kByte, "groupName", "Name", String()},
    {0x04, kByte, "items", "Items", HandleListBy(ReadGroupItems)},
};

// Type 23

constexpr FieldRow kSystemResetRows[] = {
    {0x04, kByte, "status", "Status", CodeIn(0, 1, kEnabled)},
    {0x04, kByte, "watchdogTimer", "Watchdog Timer", CodeIn(5, 1, kPresent)},
    {0x04, kByte, "bootOption", "Boot Option", CodeIn(1, 2, kBootOptions)},
    {0x04, kByte, "bootOptionOnLimit", "Boot Option On Limit", CodeIn(3, 2, kBootOptions)},
    {0x05, kWord, "resetCount", "Reset Count", Count(kUnknownIfWordFull)},
    {0x07, kWord, "resetLimit", "Reset Limit", Count(kUnknownIfWordFull)},
    {0x09, kWord, "timerInterval", "Timer Interval", Measure("min", " min", kUnknownIfWordFull)},
    {0x0B, kWord, "timeout", "Timeout", Measure("min", " min", kUnknownIfWordFull)},
};

// Type 24

constexpr FieldRow kHardwareSecurityRows[] = {
    {0x04, kByte, "powerOnPasswordStatus", "Power-On Password Status", CodeIn(6, 2, kSecuritySettings)},
    {0x04, kByte, "keyboardPasswordStatus", "Keyboard Password Status", CodeIn(4, 2, kSecuritySettings)},
    {0x04,
     kByte,
     "administratorPasswordStatus",
     "Administrator Password Status",
     CodeIn(2, 2, kSecuritySettings)},
    {0x04, kByte, "frontPanelResetStatus", "Front Panel Reset Status", CodeIn(0, 2, kSecuritySettings)},
};

// Type 30

constexpr FieldRow kOutOfBandRemoteAccessRows[] = {
    {0x04, kByte, "manufacturerName", "Manufacturer Name", String()},
    {0x05, kByte, "inboundConnection", "Inbound Connection", CodeIn(0, 1, kEnabled)},
    {0x05, kByte, "outboundConnection", "Outbound Connection", CodeIn(1, 1, kEnabled)},
};

// Type 31

/// All bytes of the structure add up to zero.
Value ReadChecksum(const Reading& reading) {
    std::uint8_t sum = 0;
    for (const std::uint8_t byte : reading.structure.bytes) {
        sum = static_cast<std::uint8_t>(sum + byte);
    }
    return Words(reading.Raw(), sum == 0 ? "OK" : "Invalid");
}

Value ReadFarPointer(const Reading& reading) {
    const std::uint64_t pointer = reading.Raw();
    const std::string text = HexText(pointer >> 16, 4) + ":" + HexText(pointer & 0xFFFF, 4).substr(2);
    return Number(pointer, text.substr(2));
}

constexpr FieldRow kBootIntegrityServicesRows[] = {
    {0x04, kByte, "checksum", "Checksum", CodeBy(ReadChecksum)},
    {0x08, kDword, "entryPoint16", "16-bit Entry Point Address", NumberBy(ReadFarPointer)},
    {0x0C, kDword, "entryPoint32", "32-bit Entry Point Address", Hex()},
};

// Type 32

Value ReadBootStatus(const Reading& reading) {
    constexpr std::uint64_t kFirstOem = 0x80;
    constexpr std::uint64_t kFirstProduct = 0xC0;
    const std::uint64_t status = reading.Raw();
    if (status >= kFirstOem) {
        return Words(status, status < kFirstProduct ? "OEM-specific" : "Product-specific");
    }
    return Words(status, WordsFor(kBootStates, status));
}

constexpr FieldRow kSystemBootRows[] = {
    {0x0A, kByte, "bootStatus", "Status", CodeBy(ReadBootStatus)},
};

}  // namespace

constexpr TypeDescription kFirmwareInformation = {0, 0x12, kFirmwareInformationRows};
constexpr TypeDescription kSystemInformation = {1, 0x08, kSystemInformationRows};
constexpr TypeDescription kOemStrings = {11, 0x05, kCountRows, kOemStringGroups, VisitOemStrings};
constexpr TypeDescription kConfigurationOptions = {12, 0x05, kCountRows, kOptionGroups, VisitOptions};
constexpr TypeDescription kFirmwareLanguage = {13, 0x16, kFirmwareLanguageRows};
constexpr TypeDescription kGroupAssociations = {14, 0x05, kGroupAssociationsRows};
constexpr TypeDescription kSystemReset = {23, 0x0D, kSystemResetRows};
constexpr TypeDescription kHardwareSecurity = {24, 0x05, kHardwareSecurityRows};
constexpr TypeDescription kOutOfBandRemoteAccess = {30, 0x06, kOutOfBandRemoteAccessRows};
constexpr TypeDescription kBootIntegrityServices = {31, 0x1C, kBootIntegrityServicesRows};
constexpr TypeDescription kSystemBoot = {32, 0x0B, kSystemBootRows};

}  // namespace SMBIOS::Inspect::Standard
