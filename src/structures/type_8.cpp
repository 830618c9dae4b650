#include "structures/type_8.h"

#include "structures/connector_type_names.h"
#include "structures/decoding.h"
#include "structures/port_type_names.h"

namespace SMBIOS::Structures {

using Type8::Types::Type8Struct;

constinit const ParseRules Type_8::kRules = {
    .lengths = LengthAtLeast(0x09),
};

void Type_8::DecodeFieldsInOrder(StructureReader& in, Type8Struct& record) {
    record.internalConnectorType = in.Byte(0x05);
    record.externalConnectorType = in.Byte(0x07);
    record.portType = in.Byte(0x08);
    record.internalReferenceDesignator = in.String(0x04);
    record.externalReferenceDesignator = in.String(0x06);
    record.portTypeName = kPortTypeNames[in.Byte(0x08)];
    record.internalConnectorTypeName = kConnectorTypeNames[in.Byte(0x05)];
    record.externalConnectorTypeName = kConnectorTypeNames[in.Byte(0x07)];
}

}  // namespace SMBIOS::Structures
