#include "smbios-inspect/reports/summary_json.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "smbios-inspect/output/json_writer.h"

namespace SMBIOS::Inspect {

namespace {

/// Null where the firmware gives none.
void WriteMember(std::string_view name, const std::string& text, JsonWriter& json) {
    json.Name(name);
    text.empty() ? json.Null() : json.Value(std::string_view(text));
}

void WriteMember(std::string_view name, const std::optional<std::uint64_t>& number, JsonWriter& json) {
    json.Name(name);
    number ? json.Value(*number) : json.Null();
}

void WriteMembers(const FirmwareFacts& firmware, JsonWriter& json) {
    WriteMember("vendor", firmware.vendor, json);
    WriteMember("version", firmware.version, json);
    WriteMember("release", firmware.release, json);
    WriteMember("releaseDate", firmware.releaseDate, json);
    WriteMember("romSize", firmware.romSize, json);
}

void WriteMembers(const ProductFacts& product, JsonWriter& json) {
    WriteMember("manufacturer", product.manufacturer, json);
    WriteMember("name", product.name, json);
    WriteMember("version", product.version, json);
    WriteMember("serialNumber", product.serialNumber, json);
}

void WriteMembers(const SystemFacts& system, JsonWriter& json) {
    WriteMembers(system.product, json);
    WriteMember("uuid", system.uuid, json);
}

void WriteMembers(const ProcessorFacts& processor, JsonWriter& json) {
    WriteMember("socket", processor.socket, json);
    json.Member("isPopulated", processor.isPopulated);
    WriteMember("name", processor.name, json);
    WriteMember("status", processor.status, json);
    WriteMember("cores", processor.cores, json);
    WriteMember("coresEnabled", processor.coresEnabled, json);
    WriteMember("threads", processor.threads, json);
    WriteMember("l1Cache", processor.installedCaches[0], json);
    WriteMember("l2Cache", processor.installedCaches[1], json);
    WriteMember("l3Cache", processor.installedCaches[2], json);
}

void WriteMembers(const ModuleFacts& module, JsonWriter& json) {
    WriteMember("locator", module.locator, json);
    json.Member("size", module.size);
    WriteMember("type", module.type, json);
    WriteMember("formFactor", module.formFactor, json);
    WriteMember("speed", module.speed, json);
}

template <class Fact>
void WriteList(std::string_view name, const std::vector<Fact>& facts, JsonWriter& json) {
    json.Name(name);
    json.BeginArray();
    for (const Fact& fact : facts) {
        json.BeginObject();
        WriteMembers(fact, json);
        json.EndObject();
    }
    json.EndArray();
}

void WriteMembers(const MemoryFacts& memory, JsonWriter& json) {
    json.Member("slots", memory.slots);
    json.Member("freeSlots", memory.freeSlots);
    json.Member("unknownSlots", memory.unknownSlots);
    json.Member("size", memory.size);
    WriteMember("maximum", memory.maximum, json);
    WriteList("modules", memory.modules, json);
}

void WriteCount(std::string_view name, const StructureCount& count, JsonWriter& json) {
    json.Name(name);
    json.BeginObject();
    json.Member("count", count.count);
    json.Name("types");
    json.BeginArray();
    for (const std::uint8_t type : count.types) {
        json.Value(type);
    }
    json.EndArray();
    json.EndObject();
}

void WriteMembers(const TableFacts& table, JsonWriter& json) {
    json.Member("structures", table.structures);
    WriteCount("undecoded", table.undecoded, json);
    WriteCount("malformed", table.malformed, json);
    json.Member("mayBeCutShort", table.mayBeCutShort);
}

template <class Fact>
void WriteObject(std::string_view name, const Fact& fact, JsonWriter& json) {
    json.Name(name);
    json.BeginObject();
    WriteMembers(fact, json);
    json.EndObject();
}

}  // namespace

void PrintSummaryAsJson(const MachineFacts& machine, const TableFacts& table, std::ostream& output) {
    JsonWriter json(output);
    json.BeginObject();
    json.Member("version", std::string_view(table.version));
    WriteList("firmware", machine.firmware, json);
    WriteList("systems", machine.systems, json);
    WriteList("boards", machine.boards, json);
    WriteList("chassis", machine.chassis, json);
    WriteList("processors", machine.processors, json);
    WriteObject("memory", machine.memory, json);
    WriteObject("table", table, json);
    json.EndObject();
    json.EndLine();
}

}  // namespace SMBIOS::Inspect
