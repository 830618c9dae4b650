#include "smbios-inspect/picture/layout.h"

#include "smbios-inspect/picture/page.h"
#include "smbios-inspect/picture/sections.h"

namespace SMBIOS::Inspect::Picture {

Box LayOut(const Machine& machine) {
    Page page(machine.title.name);
    AddTitle(machine, page);
    AddProcessors(machine, page);
    AddMemory(machine, page);
    AddTiles(machine, page);
    AddConnectors(machine, page);
    return page.Finish();
}

}  // namespace SMBIOS::Inspect::Picture
