#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <type_traits>

#include "structures/hex_text.h"
#include "structures/structure_reader.h"
#include "structures/structure_record.h"

namespace SMBIOS::Structures {

/// What a memory error tells, whether its addresses have 32 or 64 bits. Syndrome, addresses and resolution
/// are hexadecimal texts, empty when the firmware gives no value.
struct MemoryErrorRecord : StructureRecord {
    std::optional<std::uint8_t> errorType;
    std::string errorTypeName;
    std::optional<std::uint8_t> errorGranularity;
    std::string errorGranularityName;
    std::optional<std::uint8_t> errorOperation;
    std::string errorOperationName;
    std::string vendorSyndrome;
    std::string memoryArrayErrorAddress;
    std::string deviceErrorAddress;
    std::string errorResolution;
};

/// Decodes type, operation and granularity of the error, each with its name.
void DecodeErrorCodes(const StructureReader& in, MemoryErrorRecord& record);

/// The hexadecimal text of the value read; empty when it is the marker that stands for "no value".
template <class Value>
[[nodiscard]] std::string HexTextUnless(std::type_identity_t<Value> marker, Value value) {
    return value == marker ? std::string() : HexText(value);
}

}  // namespace SMBIOS::Structures
