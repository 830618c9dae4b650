#include "manager/structure_factory.h"

#include <algorithm>
#include <iterator>

#include "structures/all_decoders.h"

namespace SMBIOS::Structures {

using Manager::Types::StructureTypes;

namespace {

template <class Type>
std::shared_ptr<BaseStructure> Create() {
    return std::make_shared<Type>();
}

struct CreationRow {
    StructureTypes type;
    std::shared_ptr<BaseStructure> (*create)();
};

constexpr CreationRow kCreationTable[] = {
    {StructureTypes::BiosInformation, Create<Type_0>},
    {StructureTypes::SystemInformation, Create<Type_1>},
    {StructureTypes::BaseboardInformation, Create<Type_2>},
    {StructureTypes::SystemEnclosure, Create<Type_3>},
    {StructureTypes::ProcessorInformation, Create<Type_4>},
    {StructureTypes::CacheInformation, Create<Type_7>},
    {StructureTypes::PortConnectorInformation, Create<Type_8>},
    {StructureTypes::SystemSlots, Create<Type_9>},
    {StructureTypes::OemStrings, Create<Type_11>},
    {StructureTypes::PhysicalMemoryArray, Create<Type_16>},
    {StructureTypes::MemoryDevice, Create<Type_17>},
    {StructureTypes::MemoryErrorInformation32Bit, Create<Type_18>},
    {StructureTypes::MemoryArrayMappedAddress, Create<Type_19>},
    {StructureTypes::MemoryDeviceMappedAddress, Create<Type_20>},
    {StructureTypes::BuiltInPointingDevice, Create<Type_21>},
    {StructureTypes::PortableBattery, Create<Type_22>},
    {StructureTypes::VoltageProbe, Create<Type_26>},
    {StructureTypes::CoolingDevice, Create<Type_27>},
    {StructureTypes::TemperatureProbe, Create<Type_28>},
    {StructureTypes::ElectricalCurrentProbe, Create<Type_29>},
    {StructureTypes::SystemBootInformation, Create<Type_32>},
    {StructureTypes::MemoryErrorInformation64Bit, Create<Type_33>},
    {StructureTypes::SystemPowerSupply, Create<Type_39>},
    {StructureTypes::OnboardDevicesExtendedInformation, Create<Type_41>},
    {StructureTypes::TpmDevice, Create<Type_43>},
};

static_assert(std::size(kCreationTable) == 25);
static_assert(std::ranges::adjacent_find(kCreationTable, std::ranges::greater_equal{}, &CreationRow::type) ==
                  std::ranges::end(kCreationTable),
              "the creation table must ascend without duplicates");

}  // namespace

std::pair<StructureTypes, std::shared_ptr<BaseStructure>> StructureFactory::CreateTablePtr(
    StructureTypes type) {
    const CreationRow* const row = std::ranges::lower_bound(kCreationTable, type, {}, &CreationRow::type);
    if (row == std::ranges::end(kCreationTable) || row->type != type) {
        return {StructureTypes::Unknown, Create<UnknownType>()};
    }
    return {row->type, row->create()};
}

}  // namespace SMBIOS::Structures
