#include <string>

#include "workstation.h"

namespace SMBIOS::Samples {

namespace {

StructureBuilder OutsidePort(std::uint16_t handle,
                             const std::string& name,
                             std::uint8_t connector,
                             std::uint8_t type) {
    return StructureBuilder(8, 0x09, handle).String(0x06, name).Byte(0x07, connector).Byte(0x08, type);
}

StructureBuilder InsidePort(std::uint16_t handle,
                            const std::string& name,
                            std::uint8_t connector,
                            std::uint8_t type) {
    return StructureBuilder(8, 0x09, handle).String(0x04, name).Byte(0x05, connector).Byte(0x08, type);
}

void AddPorts(TableBuilder& table) {
    constexpr std::uint8_t kUsb = 0x10;
    constexpr std::uint8_t kUsbPlug = 0x12;
    table.Add(OutsidePort(0x0008, "USB 1", kUsbPlug, kUsb))
        .Add(OutsidePort(0x0009, "LAN", 0x0B, 0x1F))
        .Add(OutsidePort(0x00E0, "LAN 2", 0x0B, 0x1F))
        .Add(OutsidePort(0x00E1, "USB 2", kUsbPlug, kUsb))
        .Add(OutsidePort(0x00E2, "USB 3", kUsbPlug, kUsb))
        .Add(OutsidePort(0x00E3, "USB-C", 0x23, kUsb))
        .Add(OutsidePort(0x00E4, "VGA", 0x07, 0x1C))
        .Add(OutsidePort(0x00E5, "Line out", 0x1F, 0x1D))
        .Add(OutsidePort(0x00E6, "Serial", 0x08, 0x09))
        .Add(InsidePort(0x00E7, "SATA 0", 0x22, 0x20))
        .Add(InsidePort(0x00E8, "SATA 1", 0x22, 0x20))
        .Add(InsidePort(0x00E9, "Front USB", 0x18, kUsb));
}

/// Width and length are codes. The address is that of the card or, when the slot is free, of the bridge above
/// it.
struct SlotPlace {
    std::uint16_t id;
    const char* name;
    std::uint8_t type;
    std::uint8_t width;
    std::uint8_t length;
    std::uint8_t bus;
    std::uint8_t deviceFunction;
    bool isInUse;
};

StructureBuilder Slot(const SlotPlace& slot) {
    return StructureBuilder(9, 0x18, static_cast<std::uint16_t>(0x0070 + slot.id))
        .String(0x04, slot.name)
        .Byte(0x05, slot.type)
        .Byte(0x06, slot.width)
        .Byte(0x07, slot.isInUse ? 4 : 3)
        .Byte(0x08, slot.length)
        .Word(0x09, slot.id)
        .Byte(0x0B, 0x04)
        .Byte(0x0C, 0x01)
        .Byte(0x0F, slot.bus)
        .Byte(0x10, slot.deviceFunction)
        .Byte(0x11, slot.width)
        .Byte(0x13, 3)           // information: generation 3
        .Byte(0x14, slot.width)  // physical width
        .Word(0x15, 2032)        // pitch: 20.32 mm
        .Byte(0x17, 0x03);       // full height
}

/// A module lies flat on the board: it has neither pitch nor height.
StructureBuilder ModuleSlot(const SlotPlace& slot) {
    return Slot(slot).Word(0x15, 0).Byte(0x17, 0x00);
}

void AddSlots(TableBuilder& table) {
    constexpr std::uint8_t kShort = 3;
    constexpr std::uint8_t kLong = 4;
    table.Add(Slot({1, "PCIe x16 slot 1", 0xB6, 0x0D, kLong, 0x01, 0x00, true}))
        .Add(Slot({2, "PCIe x16 slot 2", 0xB6, 0x0D, kLong, 0x00, 0x10, false}))
        .Add(Slot({3, "PCIe x8 slot 3", 0xB5, 0x0B, kLong, 0x00, 0x18, false}))
        .Add(Slot({4, "PCIe x4 slot 4", 0xB4, 0x0A, kShort, 0x05, 0x00, true}))
        .Add(ModuleSlot({5, "M.2 slot 1", 0x17, 0x0A, kShort, 0x06, 0x00, true}))
        .Add(ModuleSlot({6, "M.2 slot 2", 0x17, 0x0A, kShort, 0x00, 0xE4, false}));
}

/// The obsolete list of devices, which firmware still writes.
StructureBuilder OnBoardDevices() {
    return StructureBuilder(10, 0x08, 0x00C8)
        .Byte(0x04, 0x83)
        .String(0x05, "Onboard graphics")
        .Byte(0x06, 0x85)
        .String(0x07, "Onboard LAN");
}

StructureBuilder OnboardDevice(std::uint16_t handle,
                               const std::string& name,
                               std::uint8_t typeAndStatus,
                               std::uint8_t instance,
                               std::uint8_t bus,
                               std::uint8_t deviceFunction) {
    return StructureBuilder(41, 0x0B, handle)
        .String(0x04, name)
        .Byte(0x05, typeAndStatus)
        .Byte(0x06, instance)
        .Byte(0x09, bus)
        .Byte(0x0A, deviceFunction);
}

void AddOnboardDevices(TableBuilder& table) {
    table.Add(OnBoardDevices())
        .Add(OnboardDevice(0x00C0, "Onboard LAN", 0x85, 1, 0x00, 0xC8))        // device 25, function 0
        .Add(OnboardDevice(0x00C1, "Onboard LAN 2", 0x85, 2, 0x07, 0x00))      // device 0, function 0
        .Add(OnboardDevice(0x00C2, "Onboard SATA", 0x89, 1, 0x00, 0xFA))       // device 31, function 2
        .Add(OnboardDevice(0x00C3, "Onboard audio", 0x87, 1, 0x00, 0xD8))      // device 27, function 0
        .Add(OnboardDevice(0x00C4, "Onboard graphics", 0x83, 1, 0x08, 0x00))   // device 0, function 0
        .Add(OnboardDevice(0x00C5, "Onboard wireless", 0x0B, 1, 0x09, 0x00));  // disabled
}

/// The structure with an error: tables of this version do not have it.
StructureBuilder PointingDevice() {
    return StructureBuilder(21, 0x07, 0x0080).Byte(0x04, 3).Byte(0x05, 0xA2).Byte(0x06, 3);
}

}  // namespace

void AddBoardParts(TableBuilder& table) {
    AddPorts(table);
    AddSlots(table);
    AddOnboardDevices(table);
    table.Add(PointingDevice());
}

}  // namespace SMBIOS::Samples
