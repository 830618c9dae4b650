#pragma once

#include <cstddef>

namespace SMBIOS::Structures {

/// A list of types, for code that treats them all.
template <class... Types>
struct TypeList {
    static constexpr std::size_t kSize = sizeof...(Types);

    template <class Type>
    using Append = TypeList<Types..., Type>;
};

/// Calls `visit.operator()<Type>()` for each type of the list, in order.
template <class... Types, class Visitor>
constexpr void ForEachType(TypeList<Types...>, Visitor visit) {
    (visit.template operator()<Types>(), ...);
}

}  // namespace SMBIOS::Structures
