#pragma once

#include <optional>
#include <type_traits>

#include "common/dynamic_bitset.h"
#include "common/text_table.h"
#include "manager/smbios_version.h"
#include "structures/decoder.h"

// What the sources of the decoders have in common; their headers do not include it.
namespace SMBIOS::Structures {

using Common::ByteTable;
using Common::WordTable;
using enum Manager::SmbiosVersionIndex;

/// The value read, or none when it is the marker that stands for "no value".
template <class Value>
[[nodiscard]] constexpr std::optional<Value> ValueUnless(std::type_identity_t<Value> marker, Value value) {
    return value == marker ? std::nullopt : std::optional(value);
}

}  // namespace SMBIOS::Structures
