#include "smbios-inspect/standard/firmware_json.h"

#include <string>

#include "smbios-inspect/records/structure_heading.h"
#include "smbios-inspect/standard/decode.h"

namespace SMBIOS::Inspect::Standard {

namespace {

void WritePlain(const Plain& plain, JsonWriter& json) {
    if (const auto number = plain.Number()) {
        json.Value(*number);
    } else if (const auto signedNumber = plain.SignedNumber()) {
        json.Value(*signedNumber);
    } else if (const auto text = plain.Text()) {
        json.Value(*text);
    } else {
        json.Null();
    }
}

void WriteItem(const Item& item, JsonWriter& json) {
    if (item.plain.IsNothing()) {
        json.Value(item.text);
    } else {
        WritePlain(item.plain, json);
    }
}

/// Fields of a group go into the object of their index in the array that has the group's name.
class JsonVisitor final : public FieldVisitor {
public:
    explicit JsonVisitor(JsonWriter& json) noexcept : json_(json) {}

    void Visit(const Field& field) override {
        GoTo(field.place);
        json_.Name(field.name);
        WriteValue(field, json_);
    }

    /// Behind the last field.
    void EndGroup() { GoTo({}); }

private:
    void GoTo(const GroupPlace& place) {
        const bool isSameGroup = place.group == place_.group;
        if (isSameGroup && place.index == place_.index) {
            return;
        }
        if (!place_.group.empty()) {
            json_.EndObject();
        }
        if (!isSameGroup) {
            LeaveAndEnterGroup(place.group);
        }
        if (!place.group.empty()) {
            json_.BeginObject();
        }
        place_ = place;
    }

    void LeaveAndEnterGroup(std::string_view group) {
        if (!place_.group.empty()) {
            json_.EndArray();
        }
        if (!group.empty()) {
            json_.Name(group);
            json_.BeginArray();
        }
    }

    JsonWriter& json_;
    GroupPlace place_;  // of the latest field
};

}  // namespace

void WriteValue(const Field& field, JsonWriter& json) {
    const Value& value = field.value;
    json.BeginObject();
    json.Name("value");
    WritePlain(value.plain, json);
    if (!field.unit.empty()) {
        json.Member("unit", field.unit);
    }
    if (value.hasWords) {
        json.Member("text", value.text);
    }
    if (value.isList) {
        json.Name("items");
        json.BeginArray();
        for (const Item& item : value.items) {
            WriteItem(item, json);
        }
        json.EndArray();
    }
    json.EndObject();
}

void WriteStructure(const Structure& structure, bool isQuiet, JsonWriter& json) {
    json.BeginObject();
    json.Member("type", structure.Type());
    json.Member("name", StructureName(structure.Type()));
    json.Member("handle", structure.Handle());
    json.Member("length", structure.bytes.size());
    json.Name("fields");
    json.BeginObject();
    JsonVisitor visitor(json);
    VisitFields(structure, visitor);
    visitor.EndGroup();
    json.EndObject();
    if (!isQuiet) {
        json.Name("strings");
        json.BeginArray();
        for (const std::string_view text : structure.strings) {
            json.Value(text);
        }
        json.EndArray();
        json.Name("bytes");
        json.Hexadecimal(structure.bytes);
        if (const std::string remark = RemarkOn(structure); !remark.empty()) {
            json.Member("remark", remark);
        }
    }
    json.EndObject();
}

}  // namespace SMBIOS::Inspect::Standard
