#pragma once

#include "common/text_table.h"

namespace SMBIOS::Structures {

/// Texts of the internal and of the external connector of a port.
inline constexpr auto kConnectorTypeNames = Common::ByteTable({
    {0x00, "None"},
    {0x01, "Centronics"},
    {0x02, "Mini Centronics"},
    {0x03, "Proprietary"},
    {0x04, "DB-25 pin male"},
    {0x05, "DB-25 pin female"},
    {0x06, "DB-15 pin male"},
    {0x07, "DB-15 pin female"},
    {0x08, "DB-9 pin male"},
    {0x09, "DB-9 pin female"},
    {0x0A, "RJ-11"},
    {0x0B, "RJ-45"},
    {0x0C, "50-pin MiniSCSI"},
    {0x0D, "Mini-DIN"},
    {0x0E, "Micro-DIN"},
    {0x0F, "PS/2"},
    {0x10, "Infrared"},
    {0x11, "Vantor-HIL"},
    {0x12, "Access Bus (USB)"},
    {0x13, "SSA SCSI"},
    {0x14, "Circular DIN-8 male"},
    {0x15, "Circular DIN-8 female"},
    {0x16, "On Board IDE"},
    {0x17, "On Board Floppy"},
    {0x18, "9-pin Dual Inline (pin 10 cut)"},
    {0x19, "25-pin Dual Inline (pin 26 cut)"},
    {0x1A, "50-pin Dual Inline"},
    {0x1B, "68-pin Dual Inline"},
    {0x1C, "On Board Sound Input from CD-ROM"},
    {0x1D, "Mini-Centronics Type-14"},
    {0x1E, "Mini-Centronics Type-26"},
    {0x1F, "Mini-jack (headphones)"},
    {0x20, "BNC"},
    {0x21, "1394"},
    {0x22, "SAS/SATA Plug Receptacle"},
    {0x23, "USB Type-C Receptacle"},
    {0xA0, "PC-98"},
    {0xA1, "PC-98Hireso"},
    {0xA2, "PC-H98"},
    {0xA3, "PC-98Note"},
    {0xA4, "PC-98Full"},
});
static_assert(kConnectorTypeNames.Rows().size() == 41);

}  // namespace SMBIOS::Structures
