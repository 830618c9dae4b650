#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "structures/type_0.h"
#include "structures/type_1.h"
#include "structures/type_11.h"
#include "structures/type_16.h"
#include "structures/type_17.h"
#include "structures/type_18.h"
#include "structures/type_19.h"
#include "structures/type_2.h"
#include "structures/type_20.h"
#include "structures/type_21.h"
#include "structures/type_22.h"
#include "structures/type_26.h"
#include "structures/type_27.h"
#include "structures/type_28.h"
#include "structures/type_29.h"
#include "structures/type_3.h"
#include "structures/type_32.h"
#include "structures/type_33.h"
#include "structures/type_39.h"
#include "structures/type_4.h"
#include "structures/type_41.h"
#include "structures/type_43.h"
#include "structures/type_7.h"
#include "structures/type_8.h"
#include "structures/type_9.h"
#include "structures/type_list.h"
#include "structures/unknown_type.h"

namespace SMBIOS::Structures {

/// The decoders of the types that have one of their own, in ascending order of their keys. Whatever treats
/// them all is made from this list.
using DecodedTypes = TypeList<Type_0,
                              Type_1,
                              Type_2,
                              Type_3,
                              Type_4,
                              Type_7,
                              Type_8,
                              Type_9,
                              Type_11,
                              Type_16,
                              Type_17,
                              Type_18,
                              Type_19,
                              Type_20,
                              Type_21,
                              Type_22,
                              Type_26,
                              Type_27,
                              Type_28,
                              Type_29,
                              Type_32,
                              Type_33,
                              Type_39,
                              Type_41,
                              Type_43>;
static_assert(DecodedTypes::kSize == 25);

/// The same and the decoder of every other type, whose key is the last one.
using AllDecoders = DecodedTypes::Append<UnknownType>;

/// Where the decoder of each type byte stands in `AllDecoders`.
inline constexpr auto kDecoderIndexes = []<class... Types>(TypeList<Types...>) {
    std::array<std::uint8_t, 256> indexes{};
    indexes.fill(sizeof...(Types) - 1);
    std::uint8_t index = 0;
    ((indexes[static_cast<std::uint8_t>(Types::kKey)] = index++), ...);
    return indexes;
}(AllDecoders());

/// The same for a type or a key; that of `UnknownType` for any other number.
[[nodiscard]] constexpr std::size_t DecoderIndexOf(StructureTypes type) noexcept {
    const auto index = static_cast<std::size_t>(type);
    return index < kDecoderIndexes.size() ? kDecoderIndexes[index] : AllDecoders::kSize - 1;
}

}  // namespace SMBIOS::Structures
