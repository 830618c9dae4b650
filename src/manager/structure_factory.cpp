#include "manager/structure_factory.h"

#include <algorithm>
#include <array>

#include "structures/decoded_types.h"

namespace SMBIOS::Structures {

using Manager::SmbiosVersionIndex;
using Manager::Types::StructureTypes;

namespace {

template <class Type>
std::shared_ptr<BaseStructure> Create(SmbiosVersionIndex version, std::pmr::memory_resource& memory) {
    return std::allocate_shared<Type>(std::pmr::polymorphic_allocator<Type>(&memory), version, memory);
}

struct CreationRow {
    StructureTypes type;
    std::shared_ptr<BaseStructure> (*create)(SmbiosVersionIndex version, std::pmr::memory_resource& memory);
};

template <class... Types>
consteval std::array<CreationRow, sizeof...(Types)> CreationTableOf(TypeList<Types...>) {
    return {{{Types::kKey, Create<Types>}...}};
}

constexpr auto kCreationTable = CreationTableOf(AllDecoders());
static_assert(std::ranges::adjacent_find(kCreationTable, std::ranges::greater_equal{}, &CreationRow::type) ==
                  std::ranges::end(kCreationTable),
              "the list of decoders must ascend by their keys, without duplicates");
static_assert(kCreationTable.back().type == UnknownType::kKey);

const CreationRow& RowOf(StructureTypes type) noexcept {
    return kCreationTable[DecoderIndexOf(type)];
}

}  // namespace

StructureTypes StructureFactory::KeyOf(StructureTypes type) noexcept {
    return RowOf(type).type;
}

StructureFactory::FiledDecoder StructureFactory::CreateTablePtr(StructureTypes type,
                                                                SmbiosVersionIndex version,
                                                                std::pmr::memory_resource& memory) {
    const CreationRow& row = RowOf(type);
    return {row.type, row.create(version, memory)};
}

StructureFactory::FiledDecoder StructureFactory::CreateTablePtr(StructureTypes type) {
    return CreateTablePtr(type, Manager::currentVersionIndex);
}

}  // namespace SMBIOS::Structures
