#pragma once

#include "smbios-inspect/picture/machine.h"
#include "smbios-inspect/picture/page.h"

// The sections of the page, from above. One of which the machine has nothing is left out.
namespace SMBIOS::Inspect::Picture {

void AddTitle(const Machine& machine, Page& page);
void AddProcessors(const Machine& machine, Page& page);
void AddMemory(const Machine& machine, Page& page);
void AddTiles(const Machine& machine, Page& page);  ///< slots, devices on board, probes
void AddConnectors(const Machine& machine, Page& page);

}  // namespace SMBIOS::Inspect::Picture
