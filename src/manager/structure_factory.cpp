#include "manager/structure_factory.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

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

constexpr auto kCreationTable = CreationTableOf(AllDecoders());
static_assert(std::ranges::adjacent_find(kCreationTable, std::ranges::greater_equal{}, &CreationRow::type) ==
                  std::ranges::end(kCreationTable),
              "the list of decoders must ascend by their keys, without duplicates");
static_assert(kCreationTable.back().type == UnknownType::kKey);

/// Where the row of each type byte stands.
constexpr auto kRowOfType = [] {
    std::array<std::uint8_t, 256> rows{};
    rows.fill(kCreationTable.size() - 1);
    for (std::size_t i = 0; i < kCreationTable.size(); ++i) {
        rows[static_cast<std::size_t>(kCreationTable[i].type)] = static_cast<std::uint8_t>(i);
    }
    return rows;
}();

const CreationRow& RowOf(StructureTypes type) noexcept {
    const auto index = static_cast<std::size_t>(type);
    return index < kRowOfType.size() ? kCreationTable[kRowOfType[index]] : kCreationTable.back();
}

}  // namespace

StructureTypes StructureFactory::KeyOf(StructureTypes type) noexcept {
    return RowOf(type).type;
}

StructureFactory::FiledDecoder StructureFactory::CreateTablePtr(StructureTypes type,
                                                                SmbiosVersionIndex version) {
    const CreationRow& row = RowOf(type);
    return {row.type, row.create(version)};
}

StructureFactory::FiledDecoder StructureFactory::CreateTablePtr(StructureTypes type) {
    return CreateTablePtr(type, Manager::currentVersionIndex);
}

}  // namespace SMBIOS::Structures
