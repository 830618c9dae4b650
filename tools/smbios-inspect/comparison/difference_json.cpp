#include "smbios-inspect/comparison/difference_json.h"

#include "smbios-inspect/comparison/title.h"
#include "smbios-inspect/output/json_writer.h"
#include "smbios-inspect/standard/firmware_json.h"

namespace SMBIOS::Inspect::Comparing {

namespace {

void WriteTable(const char* name, const Side& side, JsonWriter& json) {
    json.Name(name);
    json.BeginObject();
    json.Member("version", Standard::VersionText(side.table.Version()));
    json.EndObject();
}

/// Structures that are in one table only.
void WriteStructures(const char* name,
                     const Side& side,
                     const std::vector<Index>& structures,
                     JsonWriter& json) {
    json.Name(name);
    json.BeginArray();
    for (const Index index : structures) {
        json.BeginObject();
        json.Member("type", side.table.TypeOf(index));
        json.Member("name", NameText(side.table, index));
        json.Member("handle", side.table.HandleOf(index));
        json.EndObject();
    }
    json.EndArray();
}

void WriteSide(const char* name, const std::optional<KeptField>& field, JsonWriter& json) {
    json.Name(name);
    if (field) {
        Standard::WriteValue(field->View(), json);
    } else {
        json.Null();
    }
}

void WriteChange(const FieldChange& change, JsonWriter& json) {
    const KeptField& field = change.Either();
    json.BeginObject();
    json.Member("name", field.name);
    if (!field.place.group.empty()) {
        json.Member("group", field.place.group);
        json.Member("index", field.place.index);
    }
    WriteSide("old", change.before, json);
    WriteSide("new", change.after, json);
    json.EndObject();
}

/// A pair that differs.
void WriteChanged(const Comparison& comparison,
                  Index before,
                  Index after,
                  const std::vector<FieldChange>& changes,
                  JsonWriter& json) {
    json.BeginObject();
    json.Member("type", comparison.Before().table.TypeOf(before));
    json.Member("name", NameOfPair(comparison, before, after));
    json.Member("oldHandle", comparison.Before().table.HandleOf(before));
    json.Member("newHandle", comparison.After().table.HandleOf(after));
    json.Name("fields");
    json.BeginArray();
    for (const FieldChange& change : changes) {
        WriteChange(change, json);
    }
    json.EndArray();
    json.EndObject();
}

}  // namespace

Counts WriteDifferences(const Comparison& comparison, std::ostream& output) {
    JsonWriter json(output);
    json.BeginObject();
    WriteTable("old", comparison.Before(), json);
    WriteTable("new", comparison.After(), json);
    WriteStructures("added", comparison.After(), AddedTo(comparison), json);
    WriteStructures("removed", comparison.Before(), RemovedFrom(comparison), json);
    json.Name("changed");
    json.BeginArray();
    const Counts counts = VisitChanges(comparison, [&](Index before, Index after, const auto& changes) {
        WriteChanged(comparison, before, after, changes, json);
    });
    json.EndArray();
    json.Member("same", counts.same);
    json.EndObject();
    json.EndLine();
    return counts;
}

}  // namespace SMBIOS::Inspect::Comparing
