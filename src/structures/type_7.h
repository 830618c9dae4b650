#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "common/dynamic_bitset.h"
#include "structures/decoder.h"
#include "structures/structure_record.h"

namespace SMBIOS::Structures {

namespace Type7::Types {

/// Record of one Cache Information. Sizes are in kilobytes.
struct Type7Struct : StructureRecord {
    std::string socketDesignation;
    bool cacheEnabled = false;
    std::optional<std::uint8_t> cacheLocation;  ///< 0 internal, 1 external
    bool cacheSocketed = false;
    std::uint8_t cacheLevel = 0;  ///< counts from 0: 0 is level 1
    std::optional<std::uint8_t> operationalMode;
    std::optional<std::string> operationalModeText;
    std::optional<std::uint64_t> maximumCacheSize;
    std::optional<std::uint64_t> installedSize;
    std::optional<Common::Dynamic_BitSet> supportedSramType;
    std::optional<Common::Dynamic_BitSet> currentSramType;
    std::optional<std::uint8_t> cacheSpeed;  ///< nanoseconds
    std::optional<std::uint8_t> errorCorrectionType;
    std::string errorCorrectionTypeName;
    std::optional<std::uint8_t> systemCacheType;
    std::string systemCacheTypeName;
    std::optional<std::uint8_t> associativity;
    std::string associativityName;
};

}  // namespace Type7::Types

/// Decoder of Cache Information structures: one per cache level of a processor.
class Type_7 final : public Decoder<Type_7, Type7::Types::Type7Struct> {
public:
    static constexpr StructureTypes kKey = StructureTypes::CacheInformation;
    using Decoder::Decoder;

private:
    friend Decoder;
    static const ParseRules kRules;
    static void DecodeFieldsInOrder(StructureReader& in, Type7::Types::Type7Struct& record);
};

}  // namespace SMBIOS::Structures
