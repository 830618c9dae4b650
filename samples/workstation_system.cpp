#include "workstation.h"

namespace SMBIOS::Samples {

namespace {

StructureBuilder Firmware() {
    return StructureBuilder(0, 0x1A, kFirmware)
        .String(0x04, "Vantor Firmware")
        .String(0x05, "VW-2 4.12")
        .Word(0x06, 0xE000)
        .String(0x08, "03/18/2024")
        .Byte(0x09, 0xFF)
        .Qword(0x0A, 0x0000000008018880)  // PCI, upgradable, CD boot, selectable boot, keyboard services
        .Byte(0x12, 0x03)
        .Byte(0x13, 0x0D)
        .Byte(0x14, 4)
        .Byte(0x15, 12)
        .Byte(0x16, 1)
        .Byte(0x17, 7)
        .Word(0x18, 32);
}

StructureBuilder System() {
    return StructureBuilder(1, 0x1B, 0x0001)
        .String(0x04, "Vantor")
        .String(0x05, "Workstation W2")
        .String(0x06, "Rev B")
        .String(0x07, "VW2-004711")
        .Bytes(
            0x08,
            {0x33, 0x22, 0x11, 0x00, 0x55, 0x44, 0x77, 0x66, 0x88, 0x99, 0xAA, 0xBB, 0xCC, 0xDD, 0xEE, 0xFF})
        .Byte(0x18, 6)
        .String(0x19, "W2-DUAL")
        .String(0x1A, "Workstation");
}

StructureBuilder Board() {
    return StructureBuilder(2, 0x11, kBoard)
        .String(0x04, "Vantor")
        .String(0x05, "W2 Mainboard")
        .String(0x06, "1.3")
        .String(0x07, "MB-1180342")
        .String(0x08, "None")
        .Byte(0x09, 0x09)  // hosting board, replaceable
        .String(0x0A, "Main tray")
        .Word(0x0B, kChassis)
        .Byte(0x0D, 10)
        .Byte(0x0E, 1)
        .Word(0x0F, kProcessors[0]);
}

StructureBuilder Chassis() {
    return StructureBuilder(3, 0x1C, kChassis)
        .String(0x04, "Vantor")
        .Byte(0x05, 0x87)  // tower with a lock
        .String(0x06, "T5")
        .String(0x07, "CH-77120")
        .String(0x08, "IT-0815")
        .Byte(0x09, 3)
        .Byte(0x0A, 3)
        .Byte(0x0B, 3)
        .Byte(0x0C, 3)
        .Dword(0x0D, 0x00000007)
        .Byte(0x11, 10)
        .Byte(0x12, 2)
        .Byte(0x13, 2)
        .Byte(0x14, 3)
        .Bytes(0x15, {10, 1, 1, 0x80 | 4, 1, 2})
        .String(0x1B, "T5-BLACK");
}

StructureBuilder OemStrings() {
    return StructureBuilder(11, 0x05, 0x0007)
        .Byte(0x04, 2)
        .String("Vantor W2")
        .String("Support: ask your dealer");
}

StructureBuilder ConfigurationOptions() {
    return StructureBuilder(12, 0x05, 0x000A).Byte(0x04, 1).String("JP1 2-3: clear CMOS");
}

StructureBuilder FirmwareLanguages() {
    return StructureBuilder(13, 0x16, 0x000B)
        .Byte(0x04, 3)
        .String(0x15, "en|US|iso8859-1")
        .String("de|DE|iso8859-1")
        .String("ja|JP|unicode-1");
}

/// The first processor and its caches.
StructureBuilder ProcessorGroup() {
    return StructureBuilder(14, 0x11, 0x000C)
        .String(0x04, "CPU0 complex")
        .Byte(0x05, 4)
        .Word(0x06, kProcessors[0])
        .Byte(0x08, 7)
        .Word(0x09, kCaches[0][0])
        .Byte(0x0B, 7)
        .Word(0x0C, kCaches[0][1])
        .Byte(0x0E, 7)
        .Word(0x0F, kCaches[0][2]);
}

StructureBuilder EventLog() {
    return StructureBuilder(15, 0x21, 0x000D)
        .Word(0x04, 8192)
        .Word(0x06, 0x0000)
        .Word(0x08, 0x0010)
        .Byte(0x0A, 3)  // memory-mapped
        .Byte(0x0B, 1)  // valid
        .Dword(0x0C, 5)
        .Dword(0x10, 0xFF7C0000)
        .Byte(0x14, 1)
        .Byte(0x15, 5)
        .Byte(0x16, 2)
        .Bytes(0x17, {0x01, 3, 0x02, 3, 0x08, 4, 0x16, 0, 0x17, 0});
}

StructureBuilder HardwareSecurity() {
    return StructureBuilder(24, 0x05, 0x000E)
        .Byte(0x04, 0x26);  // an administrator's password; a keyboard's and a front panel's there are not
}

StructureBuilder BootInformation() {
    return {32, 0x14, 0x00A0};
}

}  // namespace

void AddSystem(TableBuilder& table) {
    table.Add(Firmware()).Add(System()).Add(Board()).Add(Chassis());
    table.Add(OemStrings()).Add(ConfigurationOptions()).Add(FirmwareLanguages());
    table.Add(ProcessorGroup()).Add(EventLog()).Add(HardwareSecurity()).Add(BootInformation());
}

}  // namespace SMBIOS::Samples
