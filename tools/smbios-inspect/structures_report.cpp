#include "smbios-inspect/structures_report.h"

#include <ostream>
#include <vector>

#include "manager/smbios_manager.h"
#include "manager/smbios_version.h"
#include "smbios-inspect/json_output.h"
#include "smbios-inspect/structure_output.h"

namespace SMBIOS::Inspect {

using Manager::SmbiosManager;

namespace {

/// The structures asked for.
std::vector<FiledStructure> SelectedStructures(const SmbiosManager& manager, const Options& options) {
    std::vector<FiledStructure> selected = FiledStructures(manager);
    if (!options.types.empty()) {
        std::erase_if(selected, [&](const auto& each) { return !options.types.contains(TypeOf(each)); });
    }
    return selected;
}

void PrintAsJson(const SmbiosManager& manager,
                 const std::vector<FiledStructure>& structures,
                 std::ostream& output) {
    Json list = Json::array();
    for (const FiledStructure& structure : structures) {
        list.push_back(StructureToJson(structure));
    }
    PrintJson({{"version", manager.GetVersion()},
               {"versionIndex", static_cast<int>(Manager::currentVersionIndex)},
               {"structures", std::move(list)}},
              output);
}

void PrintAsText(const std::vector<FiledStructure>& structures,
                 const Options& options,
                 const OutputStyle& style,
                 std::ostream& output) {
    if (structures.empty()) {
        output << "The table holds no " << (options.types.empty() ? "" : "such ") << "structure.\n";
    }
    const char* separator = "";
    for (const FiledStructure& structure : structures) {
        output << separator;
        PrintStructure(structure, style, output);
        separator = "\n";
    }
}

}  // namespace

void ReportStructures(const Options& options, const OutputStyle& style, std::ostream& output) {
    SmbiosManager& manager = *SmbiosManager::GetInstance();
    manager.UpdateBiosInfo();
    const std::vector<FiledStructure> structures = SelectedStructures(manager, options);
    if (options.json) {
        PrintAsJson(manager, structures, output);
    } else {
        PrintAsText(structures, options, style, output);
    }
}

}  // namespace SMBIOS::Inspect
