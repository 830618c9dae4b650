#pragma once

#include "common/text_table.h"

namespace SMBIOS::Structures {

/// Texts of what a port is for.
inline constexpr auto kPortTypeNames = Common::ByteTable({
    {0x00, "None"},
    {0x01, "Parallel Port XT/AT Compatible"},
    {0x02, "Parallel Port PS/2"},
    {0x03, "Parallel Port ECP"},
    {0x04, "Parallel Port EPP"},
    {0x05, "Parallel Port ECP/EPP"},
    {0x06, "Serial Port XT/AT Compatible"},
    {0x07, "Serial Port 16450 Compatible"},
    {0x08, "Serial Port 16550 Compatible"},
    {0x09, "Serial Port 16550A Compatible"},
    {0x0A, "SCSI Port"},
    {0x0B, "MIDI Port"},
    {0x0C, "Joy Stick Port"},
    {0x0D, "Keyboard Port"},
    {0x0E, "Mouse Port"},
    {0x0F, "SSA SCSI"},
    {0x10, "USB"},
    {0x11, "FireWire (IEEE P1394)"},
    {0x12, "PCMCIA Type I"},
    {0x13, "PCMCIA Type II"},
    {0x14, "PCMCIA Type III"},
    {0x15, "Card bus"},
    {0x16, "Access Bus Port"},
    {0x17, "SCSI II"},
    {0x18, "SCSI Wide"},
    {0x19, "PC-98"},
    {0x1A, "PC-98-Hireso"},
    {0x1B, "PC-H98"},
    {0x1C, "Video Port"},
    {0x1D, "Audio Port"},
    {0x1E, "Modem Port"},
    {0x1F, "Network Port"},
    {0x20, "SATA"},
    {0x21, "SAS"},
    {0x22, "MFDP (Multi-Function Display Port)"},
    {0x23, "Thunderbolt"},
    {0xA0, "8251 Compatible"},
    {0xA1, "8251 FIFO Compatible"},
});
static_assert(kPortTypeNames.Rows().size() == 38);

}  // namespace SMBIOS::Structures
