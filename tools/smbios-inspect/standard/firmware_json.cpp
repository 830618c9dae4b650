#include "smbios-inspect/standard/firmware_json.h"

#include <string>

#include "smbios-inspect/output/units.h"
#include "smbios-inspect/records/structure_heading.h"
#include "smbios-inspect/standard/decode.h"

namespace SMBIOS::Inspect::Standard {

namespace {

Json PlainToJson(const Plain& plain) {
    return std::visit(
        [](const auto& value) -> Json {
            if constexpr (std::is_same_v<std::decay_t<decltype(value)>, std::monostate>) {
                return nullptr;
            } else {
                return value;
            }
        },
        plain);
}

Json ItemToJson(const Item& item) {
    if (std::holds_alternative<std::monostate>(item.plain)) {
        return item.text;
    }
    return PlainToJson(item.plain);
}

Json FieldToJson(const Field& field) {
    const Value& value = field.value;
    Json json = {{"value", PlainToJson(value.plain)}};
    if (!field.unit.empty()) {
        json["unit"] = field.unit;
    }
    if (value.hasWords) {
        json["text"] = value.text;
    }
    if (value.isList) {
        Json items = Json::array();
        for (const Item& item : value.items) {
            items.push_back(ItemToJson(item));
        }
        json["items"] = std::move(items);
    }
    return json;
}

/// Fields of a group go into the object of their index in the array that has the group's name.
class JsonVisitor final : public FieldVisitor {
public:
    void Visit(const Field& field) override {
        ObjectOf(field.place)[std::string(field.name)] = FieldToJson(field);
    }

    [[nodiscard]] Json Take() { return std::move(fields_); }

private:
    Json& ObjectOf(const GroupPlace& place) {
        if (place.group.empty()) {
            return fields_;
        }
        Json& objects = fields_[std::string(place.group)];
        if (objects.size() <= place.index) {
            objects.push_back(Json::object());
        }
        return objects.back();
    }

    Json fields_ = Json::object();
};

}  // namespace

Json StructureToJson(const Structure& structure, bool isQuiet) {
    JsonVisitor visitor;
    VisitFields(structure, visitor);
    Json json = {{"type", structure.Type()},
                 {"name", StructureName(structure.Type())},
                 {"handle", structure.Handle()},
                 {"length", structure.bytes.size()},
                 {"fields", visitor.Take()}};
    if (isQuiet) {
        return json;
    }
    json["strings"] = structure.strings;
    json["bytes"] = HexadecimalText(structure.bytes);
    if (std::string remark = RemarkOn(structure); !remark.empty()) {
        json["remark"] = std::move(remark);
    }
    return json;
}

}  // namespace SMBIOS::Inspect::Standard
