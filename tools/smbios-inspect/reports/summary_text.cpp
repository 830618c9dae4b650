#include "smbios-inspect/reports/summary_text.h"

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "smbios-inspect/output/item_printer.h"
#include "smbios-inspect/output/phrases.h"
#include "smbios-inspect/output/text_layout.h"
#include "smbios-inspect/output/units.h"
#include "smbios-inspect/reports/table_end.h"

namespace SMBIOS::Inspect {

namespace {

using Items = std::vector<ItemParts>;

std::string Unpadded(std::string_view text) {
    return std::string(WithoutPadding(text));
}

/// "1 core", "12 cores".
std::string Counted(std::uint64_t number, const std::string& noun) {
    return std::to_string(number) + " " + noun + (number == 1 ? "" : "s");
}

std::string Counted(const std::optional<std::uint64_t>& number, const std::string& noun) {
    return number ? Counted(*number, noun) : std::string();
}

std::string SizeText(std::string_view name, const std::optional<std::uint64_t>& size) {
    return size ? std::string(name) + ByteSizeText(*size) : std::string();
}

/// A part for how many there are; none for none.
std::string Remark(std::size_t count, std::string_view text) {
    return count == 0 ? std::string() : std::to_string(count) + std::string(text);
}

ItemParts PartsOf(const FirmwareFacts& firmware) {
    return {Joined({Unpadded(firmware.vendor), Unpadded(firmware.version)}, " "),
            Prefixed("release ", firmware.release),
            Unpadded(firmware.releaseDate),
            SizeText("ROM ", firmware.romSize)};
}

ItemParts PartsOf(const ProductFacts& product) {
    return {Joined({Unpadded(product.manufacturer), Unpadded(product.name)}, " "),
            Prefixed("version ", Unpadded(product.version)),
            Prefixed("serial number ", Unpadded(product.serialNumber))};
}

ItemParts PartsOf(const SystemFacts& system) {
    ItemParts parts = PartsOf(system.product);
    parts.push_back(Prefixed("UUID ", system.uuid));
    return parts;
}

std::string CoresText(const ProcessorFacts& processor) {
    std::string text = Counted(processor.cores, "core");
    if (!text.empty() && processor.coresEnabled && processor.coresEnabled != processor.cores) {
        text += " (" + std::to_string(*processor.coresEnabled) + " enabled)";
    }
    return text;
}

std::string UnusualStatusOf(const ProcessorFacts& processor) {
    return processor.status == "Enabled" || processor.status == "Unknown" ? std::string() : processor.status;
}

ItemParts PartsOf(const ProcessorFacts& processor) {
    if (!processor.isPopulated) {
        return {"empty socket"};
    }
    const std::string name = Unpadded(processor.name);
    return {name.empty() ? "processor without a name" : name,
            CoresText(processor),
            Counted(processor.threads, "thread"),
            SizeText("L1 ", processor.installedCaches[0]),
            SizeText("L2 ", processor.installedCaches[1]),
            SizeText("L3 ", processor.installedCaches[2]),
            UnusualStatusOf(processor)};
}

ItemParts PartsOf(const ModuleFacts& module) {
    return {Joined({ByteSizeText(module.size), module.type, module.formFactor}, " "),
            module.speed ? std::to_string(*module.speed) + " MT/s" : std::string()};
}

std::string FillingText(const MemoryFacts& memory) {
    const std::string slots = Counted(memory.slots, "slot");
    return memory.modules.empty()
               ? "nothing in " + slots
               : ByteSizeText(memory.size) + " in " + std::to_string(memory.modules.size()) + " of " + slots;
}

template <class Fact>
Items ItemsOf(const std::vector<Fact>& facts) {
    Items items;
    for (const Fact& fact : facts) {
        items.push_back(PartsOf(fact));
    }
    return items;
}

Items ItemsOf(const MemoryFacts& memory) {
    Items items = ItemsOf(memory.modules);
    if (memory.slots != 0) {
        items.insert(items.begin(),
                     {FillingText(memory),
                      Remark(memory.freeSlots, " free"),
                      Remark(memory.unknownSlots, " of unknown size")});
    }
    return items;
}

/// "types 0, 17".
std::string TypesText(const StructureCount& count) {
    std::vector<std::string> types;
    for (const unsigned type : count.types) {
        types.push_back(std::to_string(type));
    }
    return (types.size() == 1 ? "type " : "types ") + Joined(types, ", ");
}

void PrintTable(const TableFacts& table, ItemPrinter& printer) {
    printer.Print("Table", {{"SMBIOS " + table.version, Counted(table.structures, "structure")}});
    if (table.undecoded.count != 0) {
        printer.PrintRemark(Counted(table.undecoded.count, "structure") +
                            " that this library does not decode (" + TypesText(table.undecoded) + ")");
    }
    if (table.malformed.count != 0) {
        printer.PrintWarning(Counted(table.malformed.count, "structure") +
                             " with errors: " + TypesText(table.malformed));
    }
    if (table.mayBeCutShort) {
        printer.PrintWarning(kCutShortText);
    }
}

}  // namespace

void PrintSummary(const MachineFacts& machine,
                  const TableFacts& table,
                  const OutputStyle& style,
                  std::ostream& output) {
    ItemPrinter printer(style, output);
    printer.Print("Firmware", ItemsOf(machine.firmware));
    printer.Print("System", ItemsOf(machine.systems));
    printer.Print("Board", ItemsOf(machine.boards));
    printer.Print("Chassis", ItemsOf(machine.chassis));
    printer.Print("Processors", ItemsOf(machine.processors));
    printer.Print("Memory", ItemsOf(machine.memory));
    PrintTable(table, printer);
}

}  // namespace SMBIOS::Inspect
