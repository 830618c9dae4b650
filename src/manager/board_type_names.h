#pragma once

#include "common/text_table.h"

namespace SMBIOS::Manager {

/// Names of the baseboard's board types; the standard's 1 (Unknown) and 2 (Other) have none.
inline constexpr auto kBoardTypeNames = Common::ByteTable({
    {3, "Server Blade"},
    {4, "Connectivity Switch"},
    {5, "System Management Module"},
    {6, "Processor Module"},
    {7, "I/O Module"},
    {8, "Memory Module"},
    {9, "Daughter Board"},
    {10, "Motherboard"},
    {11, "Processor/Memory Module"},
    {12, "Processor/IO Module"},
    {13, "Interconnect Board"},
});

}  // namespace SMBIOS::Manager
