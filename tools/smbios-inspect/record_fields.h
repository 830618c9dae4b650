#pragma once

#include <tuple>
#include <type_traits>

#include "smbios-inspect/field.h"
#include "smbios-inspect/record_fields_board.h"
#include "smbios-inspect/record_fields_memory.h"
#include "smbios-inspect/record_fields_power.h"
#include "smbios-inspect/record_fields_processor.h"
#include "smbios-inspect/record_fields_system.h"
#include "smbios-inspect/record_wording.h"
#include "structures/structure_record.h"
#include "structures/unknown_type.h"

// What the records have in common, and all fields of a record.
namespace SMBIOS::Inspect {

/// The fields in front of a record's own ones.
inline constexpr std::tuple kFirstFields{
    Field{"handle", kShownElsewhere, &Structures::StructureRecord::handle},
};

/// The fields behind them.
inline constexpr std::tuple kLastFields{
    Field{"rawBytes", "Raw bytes", &Structures::StructureRecord::rawBytes, RawBytesOfFailure},
    Field{"strings", "Strings", &Structures::StructureRecord::strings, Numbered{}},
    Field{"error", "Error", &Structures::StructureRecord::error, Failure{}},
};

template <>
struct Description<Structures::TypeUnknown::Types::TypeUnknownStruct> {
    using Record = Structures::TypeUnknown::Types::TypeUnknownStruct;
    static constexpr std::tuple fields{
        Field{"type", kShownElsewhere, &Record::type},
        Field{"handle", kShownElsewhere, &Record::handle},
        Field{"strings", "Strings", &Record::strings, Numbered{}},
        Field{"rawBytes", "Raw bytes", &Record::rawBytes},
        Field{"error", "Error", &Record::error, Failure{}},
    };
};

/// Every field of a record, or of a part of one, in the order in which writers give them.
template <Described Record>
[[nodiscard]] constexpr auto AllFieldsOf() {
    if constexpr (std::is_base_of_v<Structures::StructureRecord, Record>) {
        return std::tuple_cat(kFirstFields, Description<Record>::fields, kLastFields);
    } else {
        return Description<Record>::fields;
    }
}

}  // namespace SMBIOS::Inspect
