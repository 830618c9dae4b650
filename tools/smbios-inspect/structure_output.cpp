#include "smbios-inspect/structure_output.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>

#include "common/format.h"
#include "manager/structure_type_names.h"
#include "smbios-inspect/field_block.h"
#include "smbios-inspect/record_completeness.h"
#include "smbios-inspect/record_fields.h"
#include "smbios-inspect/record_json.h"
#include "smbios-inspect/record_text.h"
#include "structures/all_decoders.h"
#include "structures/formatted_area.h"

namespace SMBIOS::Inspect {

using Manager::Types::StructureTypes;
using Structures::BaseStructure;

namespace {

template <class Decoder>
auto RecordOf(const BaseStructure& decoder) {
    return dynamic_cast<const Decoder&>(decoder).GetRecord();
}

template <class Decoder>
Json JsonOf(const BaseStructure& decoder) {
    return RecordJson::Of(*RecordOf<Decoder>(decoder));
}

template <class Decoder>
std::vector<FieldText> TextsOf(const BaseStructure& decoder) {
    const auto record = RecordOf<Decoder>(decoder);
    using Record = typename decltype(record)::element_type;
    static_assert(kIsDescribedWhole<Record>, "a field of the record has no description");
    return RecordText::Of(AllFieldsOf<Record>(), *record);
}

template <class Decoder>
std::string ErrorOf(const BaseStructure& decoder) {
    return RecordOf<Decoder>(decoder)->error;
}

template <class Decoder>
std::vector<std::uint8_t> RawBytesOf(const BaseStructure& decoder) {
    return RecordOf<Decoder>(decoder)->rawBytes;
}

/// What there is to ask of a decoder, by the key it is filed under.
struct DecoderRow {
    StructureTypes key;
    Json (*json)(const BaseStructure& decoder);
    std::vector<FieldText> (*texts)(const BaseStructure& decoder);
    std::vector<std::uint8_t> (*rawBytes)(const BaseStructure& decoder);
    std::string (*error)(const BaseStructure& decoder);
};

template <class Decoder>
constexpr DecoderRow RowOf(StructureTypes key) {
    return {key, JsonOf<Decoder>, TextsOf<Decoder>, RawBytesOf<Decoder>, ErrorOf<Decoder>};
}

constexpr DecoderRow kDecoders[] = {
    RowOf<Structures::Type_0>(StructureTypes::BiosInformation),
    RowOf<Structures::Type_1>(StructureTypes::SystemInformation),
    RowOf<Structures::Type_2>(StructureTypes::BaseboardInformation),
    RowOf<Structures::Type_3>(StructureTypes::SystemEnclosure),
    RowOf<Structures::Type_4>(StructureTypes::ProcessorInformation),
    RowOf<Structures::Type_7>(StructureTypes::CacheInformation),
    RowOf<Structures::Type_8>(StructureTypes::PortConnectorInformation),
    RowOf<Structures::Type_9>(StructureTypes::SystemSlots),
    RowOf<Structures::Type_11>(StructureTypes::OemStrings),
    RowOf<Structures::Type_16>(StructureTypes::PhysicalMemoryArray),
    RowOf<Structures::Type_17>(StructureTypes::MemoryDevice),
    RowOf<Structures::Type_18>(StructureTypes::MemoryErrorInformation32Bit),
    RowOf<Structures::Type_19>(StructureTypes::MemoryArrayMappedAddress),
    RowOf<Structures::Type_20>(StructureTypes::MemoryDeviceMappedAddress),
    RowOf<Structures::Type_21>(StructureTypes::BuiltInPointingDevice),
    RowOf<Structures::Type_22>(StructureTypes::PortableBattery),
    RowOf<Structures::Type_26>(StructureTypes::VoltageProbe),
    RowOf<Structures::Type_27>(StructureTypes::CoolingDevice),
    RowOf<Structures::Type_28>(StructureTypes::TemperatureProbe),
    RowOf<Structures::Type_29>(StructureTypes::ElectricalCurrentProbe),
    RowOf<Structures::Type_32>(StructureTypes::SystemBootInformation),
    RowOf<Structures::Type_33>(StructureTypes::MemoryErrorInformation64Bit),
    RowOf<Structures::Type_39>(StructureTypes::SystemPowerSupply),
    RowOf<Structures::Type_41>(StructureTypes::OnboardDevicesExtendedInformation),
    RowOf<Structures::Type_43>(StructureTypes::TpmDevice),
    RowOf<Structures::UnknownType>(StructureTypes::Unknown),
};
static_assert(std::size(kDecoders) == 26);
static_assert(std::ranges::adjacent_find(kDecoders, std::ranges::greater_equal{}, &DecoderRow::key) ==
                  std::ranges::end(kDecoders),
              "the decoders must ascend by their keys");

const DecoderRow& RowFor(StructureTypes key) {
    return *std::ranges::lower_bound(kDecoders, key, {}, &DecoderRow::key);
}

std::string_view NameOf(std::uint8_t type) {
    constexpr std::uint8_t kInactive = 126;
    constexpr std::uint8_t kEndOfTable = 127;
    if (type > kEndOfTable) {
        return "OEM-specific";
    }
    if (type >= kInactive) {
        return type == kInactive ? "Inactive" : "End of Table";
    }
    return Manager::StructureTypeNames[type];
}

/// "Type 17: Memory Device, handle 0x0050, 92 bytes". The handle is the one of the bytes: the record of a
/// structure that was not accepted has none.
std::string HeadingOf(std::uint8_t type, const std::vector<std::uint8_t>& rawBytes) {
    const std::string_view name = NameOf(type);
    return Common::format("Type {}{}{}, handle 0x{:04X}, {} bytes",
                          type,
                          name.empty() ? "" : ": ",
                          name,
                          Structures::FormattedArea(rawBytes).Handle(),
                          rawBytes.size());
}

}  // namespace

std::vector<FiledStructure> FiledStructures(const Manager::SmbiosManager& manager) {
    std::vector<FiledStructure> structures;
    for (const DecoderRow& row : kDecoders) {
        for (const auto& decoder : manager.GetStructuresByType(row.key)) {
            structures.push_back({row.key, decoder});
        }
    }
    return structures;
}

std::uint8_t TypeOf(const FiledStructure& structure) {
    if (structure.key == StructureTypes::Unknown) {
        return RecordOf<Structures::UnknownType>(*structure.decoder)->type;
    }
    return static_cast<std::uint8_t>(structure.key);
}

std::string ErrorOf(const FiledStructure& structure) {
    return RowFor(structure.key).error(*structure.decoder);
}

Json StructureToJson(const FiledStructure& structure) {
    return {{"key", static_cast<int>(structure.key)},
            {"type", TypeOf(structure)},
            {"record", RowFor(structure.key).json(*structure.decoder)}};
}

void PrintStructure(const FiledStructure& structure, const OutputStyle& style, std::ostream& output) {
    const DecoderRow& row = RowFor(structure.key);
    const std::string heading = HeadingOf(TypeOf(structure), row.rawBytes(*structure.decoder));
    PrintFieldBlock(heading, row.texts(*structure.decoder), style, output);
}

}  // namespace SMBIOS::Inspect
