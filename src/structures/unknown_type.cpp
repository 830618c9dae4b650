#include "structures/unknown_type.h"

namespace SMBIOS::Structures {

constinit const ParseRules UnknownType::kRules = {.strings = StringSetRule::onSuccess};

void UnknownType::Parse(const std::vector<std::uint8_t>& formattedBytes) {
    TypeUnknown::Types::TypeUnknownStruct& record = MakeRecord();
    const FormattedArea area(formattedBytes);
    record.type = area.Type();  // kept even when the header is cut short
    CheckHeader(formattedBytes);
    record.handle = area.Handle();
}

void UnknownType::DecodeFieldsInOrder(StructureReader&, TypeUnknown::Types::TypeUnknownStruct&) {}

}  // namespace SMBIOS::Structures
