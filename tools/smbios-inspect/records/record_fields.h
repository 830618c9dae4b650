#pragma once

#include <tuple>
#include <type_traits>

#include "smbios-inspect/records/field.h"
#include "structures/structure_record.h"
#include "structures/unknown_type.h"

// What the records have in common, and all fields of a record.
namespace SMBIOS::Inspect {

/// The raw bytes of a structure that could not be decoded: nothing else tells what it holds.
[[nodiscard]] std::string RawBytesOfFailure(const Structures::StructureRecord& record);

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
    static constexpr std::tuple kFields{
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
        return std::tuple_cat(kFirstFields, Description<Record>::kFields, kLastFields);
    } else {
        return Description<Record>::kFields;
    }
}

}  // namespace SMBIOS::Inspect
