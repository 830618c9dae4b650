#pragma once

#include <string>
#include <type_traits>

#include "common/format.h"

namespace SMBIOS::Structures {

/// "0x" and the value in upper-case hexadecimal. Kept for compatibility with callers: the least number of
/// digits is the size of the value in bytes, not twice that.
template <class Value>
[[nodiscard]] std::string HexText(Value value) {
    static_assert(std::is_unsigned_v<Value>);
    return Common::format("0x{:0{}X}", value, sizeof(Value));
}

}  // namespace SMBIOS::Structures
