#include "structures/type_11.h"

namespace SMBIOS::Structures {

using Type11::Types::Type11Struct;

constinit const ParseRules Type_11::kRules = {.strings = StringSetRule::onSuccess};

// Departs from the standard: the number of strings at 0x04 is not read, the string set is kept whole.
void Type_11::DecodeFieldsInOrder(StructureReader&, Type11Struct&) {}

}  // namespace SMBIOS::Structures
