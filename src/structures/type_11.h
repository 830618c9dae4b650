#pragma once

#include "structures/decoder.h"
#include "structures/structure_record.h"

namespace SMBIOS::Structures {

namespace Type11::Types {

/// Record of one list of OEM Strings: they are its string set.
struct Type11Struct : StructureRecord {};

}  // namespace Type11::Types

/// Decoder of OEM Strings structures: free-form texts of the maker.
class Type_11 final : public Decoder<Type_11, Type11::Types::Type11Struct> {
public:
    static constexpr StructureTypes kKey = StructureTypes::OemStrings;
    using Decoder::Decoder;

private:
    friend Decoder;
    static const ParseRules kRules;
    static void DecodeFieldsInOrder(StructureReader& in, Type11::Types::Type11Struct& record);
};

}  // namespace SMBIOS::Structures
