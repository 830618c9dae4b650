#pragma once

#include <tuple>
#include <type_traits>

#include "smbios-inspect/records/record_fields.h"
#include "structures/structure_record.h"

// Proves at compile time that a description leaves no field of its record out: an aggregate is made of
// exactly the values it can be initialised from, in their order.
namespace SMBIOS::Inspect {

template <class Aggregate, class... Values>
concept InitialisableFrom = requires(Values... values) {
    Aggregate{values...};
};

template <class Aggregate, class... Values>
concept HasMoreThan = requires(Values... values) {
    Aggregate{values..., {}};
};

template <class Aggregate, class... Values>
inline constexpr bool kIsMadeOf =
    InitialisableFrom<Aggregate, Values...> && !HasMoreThan<Aggregate, Values...>;

/// A record that declares its fields itself, on top of what all records have.
template <class Record, class... Values, class... Forms>
consteval bool DescribesEveryField(const std::tuple<Field<Record, Values, Forms>...>&) {
    if constexpr (std::is_base_of_v<Structures::StructureRecord, Record>) {
        return kIsMadeOf<Record, Structures::StructureRecord, Values...>;
    } else {
        return kIsMadeOf<Record, Values...>;
    }
}

/// A record that only gives its name to what another one declares.
template <class Record, class Owner, class... Values, class... Forms>
requires(!std::is_same_v<Record, Owner>) consteval bool DescribesEveryField(
    const std::tuple<Field<Owner, Values, Forms>...>& fields) {
    return kIsMadeOf<Record, Owner> && DescribesEveryField<Owner>(fields);
}

template <class Record>
inline constexpr bool kIsDescribedWhole = DescribesEveryField<Record>(Description<Record>::kFields);

/// No record of its own fields at all.
template <class Record>
requires(
    std::is_same_v<const std::tuple<>,
                   decltype(Description<Record>::kFields)>) inline constexpr bool kIsDescribedWhole<Record> =
    kIsMadeOf<Record, Structures::StructureRecord>;

}  // namespace SMBIOS::Inspect
