#include <algorithm>
#include <string>

#include "smbios-inspect/standard/described_types.h"
#include "smbios-inspect/standard/forms.h"
#include "smbios-inspect/standard/row_visitor.h"
#include "smbios-inspect/standard/words_management.h"

// Devices that watch the system, the TPM, and what firmware tells about itself.
namespace SMBIOS::Inspect::Standard {

namespace {

// Type 34

constexpr FieldRow kManagementDeviceRows[] = {
    {0x04, kByte, "description", "Description", String()},
    {0x05, kByte, "type", "Type", Code(kManagementDeviceTypes)},
    {0x06, kDword, "address", "Address", Hex()},
    {0x0A, kByte, "addressType", "Address Type", Code(kManagementAddressTypes)},
};

// Type 35

constexpr FieldRow kManagementDeviceComponentRows[] = {
    {0x04, kByte, "description", "Description", String()},
    {0x05, kWord, "managementDeviceHandle", "Management Device Handle", Handle()},
    {0x07, kWord, "componentHandle", "Component Handle", Handle()},
    {0x09, kWord, "thresholdHandle", "Threshold Handle", Handle(kNotProvidedIfWordFull)},
};

// Type 36: in the unit of the probe

constexpr FieldRow kManagementDeviceThresholdRows[] = {
    {0x04, kWord, "lowerThresholdNonCritical", "Lower Non-critical Threshold", Signed("", "", 0)},
    {0x06, kWord, "upperThresholdNonCritical", "Upper Non-critical Threshold", Signed("", "", 0)},
    {0x08, kWord, "lowerThresholdCritical", "Lower Critical Threshold", Signed("", "", 0)},
    {0x0A, kWord, "upperThresholdCritical", "Upper Critical Threshold", Signed("", "", 0)},
    {0x0C, kWord, "lowerThresholdNonRecoverable", "Lower Non-recoverable Threshold", Signed("", "", 0)},
    {0x0E, kWord, "upperThresholdNonRecoverable", "Upper Non-recoverable Threshold", Signed("", "", 0)},
};

// Type 38

Value ReadHalfBytesRelease(const Reading& reading) {
    const std::uint64_t release = reading.Raw();
    return Text(std::to_string(release >> 4) + "." + std::to_string(release & 0x0F));
}

/// The lowest bit of a bus address says read or write.
Value ReadSlaveAddress(const Reading& reading) {
    const std::uint64_t address = reading.Raw();
    return Number(address, HexText(address >> 1, 2));
}

/// Its lowest bit is that of the base address modifier: the address's own tells I/O from memory.
Value ReadBaseAddress(const Reading& reading) {
    constexpr std::uint8_t kSmbusInterface = 0x04;
    const Structures::FormattedArea area = reading.structure.Area();
    const std::uint64_t address = reading.Raw();
    if (area.Byte(0x04) == kSmbusInterface) {
        return Number(address, HexText((address & 0xFF) >> 1, 2) + " (SMBus)");
    }
    const std::uint64_t lowestBit = area.Byte(0x10) >> 4 & 0x01U;
    return Number(address,
                  HexText((address & ~std::uint64_t{1}) | lowestBit, 16) +
                      ((address & 0x01U) != 0 ? " (I/O)" : " (Memory-mapped)"));
}

/// Polarity and trigger mode are there when the firmware says so.
Value ReadInterruptCode(const Reading& reading) {
    constexpr std::uint8_t kIsSpecified = 0x08;
    const bool isSpecified = (reading.structure.Area().Byte(0x10) & kIsSpecified) != 0;
    return isSpecified ? ReadCode(reading) : Nothing(kNotSpecified);
}

constexpr auto kNoStorageDevice = WordsOf({{0xFF, "Not Present"}});
constexpr auto kNoInterrupt = WordsOf({{0x00, "Not Specified"}});
constexpr Form kPolarity = {.read = ReadInterruptCode,
                            .kind = ValueKind::code,
                            .words = kInterruptPolarities,
                            .lowBit = 1,
                            .bitCount = 1};
constexpr Form kTrigger = {.read = ReadInterruptCode,
                           .kind = ValueKind::code,
                           .words = kInterruptTriggers,
                           .lowBit = 0,
                           .bitCount = 1};

constexpr FieldRow kIpmiDeviceRows[] = {
    {0x04, kByte, "interfaceType", "Interface Type", Code(kIpmiInterfaces)},
    {0x05, kByte, "ipmiSpecRevision", "Spec Version", TextBy(ReadHalfBytesRelease)},
    {0x06, kByte, "i2cTargetAddress", "I2C Slave Address", NumberBy(ReadSlaveAddress)},
    {0x07, kByte, "nvStorageDeviceAddress", "NV Storage Device", Count(kNoStorageDevice)},
    {0x08, kQword, "baseAddress", "Base Address", NumberBy(ReadBaseAddress)},
    {0x10, kByte, "registerSpacing", "Register Spacing", CodeIn(6, 2, kRegisterSpacings)},
    {0x10, kByte, "interruptPolarity", "Interrupt Polarity", kPolarity},
    {0x10, kByte, "interruptTriggerMode", "Interrupt Trigger Mode", kTrigger},
    {0x11, kByte, "interruptNumber", "Interrupt Number", Count(kNoInterrupt)},
};

// Type 40

/// What is left of the entry, whose length is its first byte.
Value ReadAdditionalValue(const Reading& reading) {
    const Structures::FormattedArea area = reading.structure.Area();
    const std::size_t begin = reading.Offset();
    const std::size_t end = std::min(reading.base + area.Byte(reading.base), area.Size());
    const std::size_t width = end > begin ? end - begin : 0;
    std::uint64_t number = 0;
    for (std::size_t i = 0; i < width && i < kQword; ++i) {
        number |= std::uint64_t{area.Byte(begin + i)} << (8 * i);
    }
    switch (width) {
        case kByte:
        case kWord:
        case kDword:
            return Number(number, HexText(number, 2 * width));
        default:
            return Text(BytesText(reading.structure.bytes.subspan(begin, width)));
    }
}

constexpr FieldRow kAdditionalInformationRows[] = {
    {0x04, kByte, "numberOfAdditionalInformationEntries", "", Count()},
};
constexpr FieldRow kAdditionalEntryRows[] = {
    {0x01, kWord, "referencedHandle", "Referenced Handle", Handle()},
    {0x03, kByte, "referencedOffset", "Referenced Offset", Hex()},
    {0x04, kByte, "string", "String", String()},
    {0x05, kByte, "value", "Value", NumberBy(ReadAdditionalValue)},
};
constexpr GroupTable kAdditionalInformationGroups[] = {
    {.group = "entries", .rows = kAdditionalEntryRows, .heading = "Additional Information #"},
};

void VisitAdditionalEntries(RowVisitor& visitor) {
    constexpr std::size_t kFirst = 0x05;
    constexpr std::size_t kLeastSize = 6;
    const std::size_t count = visitor.Area().Byte(0x04);
    std::size_t at = kFirst;
    for (std::size_t i = 0; i < count && visitor.Area().Byte(at) >= kLeastSize; ++i) {
        visitor.VisitObject(kAdditionalInformationGroups[0], i, at);
        at += visitor.Area().Byte(at);
    }
}

// Type 43

/// Four characters, up to the first zero.
Value ReadVendorId(const Reading& reading) {
    const auto characters = reading.structure.Area().Bytes<4>(reading.Offset());
    const auto end = std::find(characters.begin(), characters.end(), std::uint8_t{0});
    return Text(std::string(characters.begin(), end));
}

/// TPM 1.2 has it in two bytes, TPM 2.0 in two words.
Value ReadTpmFirmware(const Reading& reading) {
    const std::uint64_t version = reading.Raw();
    switch (reading.structure.Area().Byte(0x08)) {
        case 1:
            return Text(std::to_string(version >> 16 & 0xFF) + "." + std::to_string(version >> 24));
        case 2:
            return Text(std::to_string(version >> 16) + "." + std::to_string(version & 0xFFFF));
        default:
            return Number(version, HexText(version, 8));
    }
}

constexpr FieldRow kTpmDeviceRows[] = {
    {0x04, kDword, "vendorId", "Vendor ID", TextBy(ReadVendorId)},
    {0x08, kWord, "specVersion", "Spec Version", Release()},
    {0x0A, kDword, "firmwareVersion1", "Firmware Revision", TextBy(ReadTpmFirmware)},
    {0x0E, kDword, "firmwareVersion2", "", Hex()},
    {0x12, kByte, "description", "Description", String()},
    {0x13, kQword, "characteristics", "Characteristics", Flags(kTpmCharacteristics)},
    {0x1B, kDword, "oemDefined", "OEM-specific Information", Hex()},
};

// Type 45

Value ReadInventoryCharacteristics(const Reading& reading) {
    const std::uint64_t bits = reading.Raw();
    const auto line = [=](const char* name, unsigned bit) {
        return Item{.text = std::string(name) + ((bits >> bit & 1U) != 0 ? ": Yes" : ": No")};
    };
    return List(bits, "", {line("Updatable", 0), line("Write-Protect", 1)});
}

constexpr auto kUnknownImageSize = WordsOf({{0xFFFFFFFFFFFFFFFF, "Unknown"}});

constexpr FieldRow kFirmwareInventoryRows[] = {
    {0x04, kByte, "firmwareComponentName", "Firmware Component Name", String()},
    {0x05, kByte, "firmwareVersion", "Firmware Version", String()},
    {0x06, kByte, "versionFormat", "Version Format", CodeOrOem(kFirmwareVersionFormats)},
    {0x07, kByte, "firmwareId", "Firmware ID", String()},
    {0x08, kByte, "firmwareIdFormat", "Firmware ID Format", CodeOrOem(kFirmwareIdFormats)},
    {0x09, kByte, "releaseDate", "Release Date", String()},
    {0x0A, kByte, "manufacturer", "Manufacturer", String()},
    {0x0B, kByte, "lowestSupportedFirmwareVersion", "Lowest Supported Firmware Version", String()},
    {0x0C, kQword, "imageSize", "Image Size", ByteSize(kUnknownImageSize)},
    {0x14, kWord, "characteristics", "Characteristics", FlagsBy(ReadInventoryCharacteristics)},
    {0x16, kByte, "state", "State", Code(kFirmwareStates)},
    {0x17, kByte, "associatedComponents", "Associated Components", HandleList()},
};

// Type 46

/// A third of the numbers is left to firmware vendors, and one to OEMs.
Value ReadStringProperty(const Reading& reading) {
    constexpr std::uint64_t kFirstVendor = 0x8000;
    constexpr std::uint64_t kFirstOem = 0xC000;
    const std::uint64_t id = reading.Raw();
    if (id >= kFirstVendor) {
        return Words(id, id < kFirstOem ? "BIOS vendor-specific" : "OEM-specific");
    }
    return Words(id, WordsFor(kStringProperties, id));
}

constexpr FieldRow kStringPropertyRows[] = {
    {0x04, kWord, "stringPropertyId", "String Property ID", CodeBy(ReadStringProperty)},
    {0x06, kByte, "stringPropertyValue", "String Property Value", String()},
    {0x07, kWord, "parentHandle", "Parent Handle", Handle()},
};

}  // namespace

constexpr TypeDescription kManagementDevice = {34, 0x0B, kManagementDeviceRows};
constexpr TypeDescription kManagementDeviceComponent = {35, 0x0B, kManagementDeviceComponentRows};
constexpr TypeDescription kManagementDeviceThreshold = {36, 0x10, kManagementDeviceThresholdRows};
constexpr TypeDescription kIpmiDevice = {38, 0x10, kIpmiDeviceRows};
constexpr TypeDescription kAdditionalInformation = {
    40, 0x0B, kAdditionalInformationRows, kAdditionalInformationGroups, VisitAdditionalEntries};
constexpr TypeDescription kTpmDevice = {43, 0x1F, kTpmDeviceRows};
constexpr TypeDescription kFirmwareInventory = {45, 0x18, kFirmwareInventoryRows};
constexpr TypeDescription kStringProperty = {46, 0x09, kStringPropertyRows};

}  // namespace SMBIOS::Inspect::Standard
