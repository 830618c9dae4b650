#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "structures/decoder.h"
#include "structures/structure_record.h"

namespace SMBIOS::Structures {

namespace Type3::Types {

/// A kind of element that the chassis can contain, and how many of it.
struct ContainedElement {
    std::uint8_t typeValue = 0;
    std::string_view typeSelect;  ///< "Baseboard" or "Structure"
    std::string_view typeName;
    std::uint8_t minimum = 0;
    std::uint8_t maximum = 0;
};

/// The elements of a chassis. Of those past the structure's end, which may be thousands, nothing is kept.
class ContainedElements {
public:
    ContainedElements() = default;

    /// `count` elements, whose bytes begin with `bytes` and go on with zeros.
    ContainedElements(std::size_t count, std::vector<std::uint8_t> bytes);

    [[nodiscard]] std::size_t Count() const noexcept { return count_; }

    /// The number of elements, the first ones, of which the structure has at least a byte.
    [[nodiscard]] std::size_t CountWithinStructure() const noexcept;

    /// Element `index`, from 0.
    [[nodiscard]] ContainedElement At(std::size_t index) const noexcept;

private:
    std::size_t count_ = 0;
    std::vector<std::uint8_t> bytes_;
};

/// Record of one system enclosure or chassis.
struct Type3Struct : StructureRecord {
    std::string manufacturer;
    std::optional<std::uint8_t> chassisTypeValue;
    std::string chassisType;
    std::string version;
    std::string serialNumber;
    std::string assetTag;
    std::optional<bool> chassisLock;
    std::optional<std::uint8_t> bootUpStateValue;
    std::string bootUpState;
    std::optional<std::uint8_t> powerSupplyStateValue;
    std::string powerSupplyState;
    std::optional<std::uint8_t> thermalStateValue;
    std::string thermalState;
    std::optional<std::uint8_t> securityStatusValue;
    std::string securityStatus;
    std::optional<std::uint32_t> oemDefined;
    std::optional<std::uint8_t> height;  ///< units of 1.75 inch
    std::optional<std::uint8_t> numberOfPowerCords;
    std::string skuNumber;
    std::optional<ContainedElements> containedElements;
};

}  // namespace Type3::Types

/// Decoder of System Enclosure or Chassis structures.
class Type_3 final : public Decoder<Type_3, Type3::Types::Type3Struct> {
public:
    static constexpr StructureTypes kKey = StructureTypes::SystemEnclosure;
    using Decoder::Decoder;

private:
    friend Decoder;
    static const ParseRules kRules;
    static void DecodeFieldsInOrder(StructureReader& in, Type3::Types::Type3Struct& record);
};

}  // namespace SMBIOS::Structures
