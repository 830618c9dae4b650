#include "smbios-inspect/structure_count.h"

#include "smbios-inspect/structure_output.h"

namespace SMBIOS::Inspect {

StructureCount CountStructures(const Manager::SmbiosManager& manager) {
    StructureCount count;
    for (const FiledStructure& structure : FiledStructures(manager)) {
        ++count.total;
        if (!ErrorOf(structure).empty()) {
            ++count.failed;
            count.failedTypes.insert(TypeOf(structure));
        }
    }
    return count;
}

}  // namespace SMBIOS::Inspect
