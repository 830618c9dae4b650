#include "manager/structure_factory.h"

#include <algorithm>
#include <array>

#include "structures/decoded_types.h"

namespace SMBIOS::Structures {

using Manager::SmbiosVersionIndex;
using Manager::Types::StructureTypes;

namespace {

template <class Type>
std::shared_ptr<BaseStructure> Create(SmbiosVersionIndex version) {
    return std::make_shared<Type>(version);
}

struct CreationRow {
    StructureTypes type;
    std::shared_ptr<BaseStructure> (*create)(SmbiosVersionIndex version);
};

template <class... Types>
consteval std::array<CreationRow, sizeof...(Types)> CreationTableOf(TypeList<Types...>) {
    return {{{Types::kKey, Create<Types>}...}};
}

constexpr auto kCreationTable = CreationTableOf(DecodedTypes());
static_assert(std::ranges::adjacent_find(kCreationTable, std::ranges::greater_equal{}, &CreationRow::type) ==
                  std::ranges::end(kCreationTable),
              "the list of decoders must ascend by their keys, without duplicates");

}  // namespace

StructureFactory::FiledDecoder StructureFactory::CreateTablePtr(StructureTypes type,
                                                                SmbiosVersionIndex version) {
    const auto row = std::ranges::lower_bound(kCreationTable, type, {}, &CreationRow::type);
    if (row == kCreationTable.end() || row->type != type) {
        return {UnknownType::kKey, Create<UnknownType>(version)};
    }
    return {row->type, row->create(version)};
}

StructureFactory::FiledDecoder StructureFactory::CreateTablePtr(StructureTypes type) {
    return CreateTablePtr(type, Manager::currentVersionIndex);
}

}  // namespace SMBIOS::Structures
