#pragma once

#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

#include "structures/base_structure.h"

namespace SMBIOS::Manager {

/// The records of every structure of a `Type` in a table, the process's own or a decoded one, in table order.
template <class Type, class Table>
[[nodiscard]] auto DecodedRecords(const Table& table) {
    std::vector<std::remove_cvref_t<decltype(std::declval<const Type&>().GetRecord())>> records;
    for (const std::shared_ptr<Structures::BaseStructure>& structure :
         table.GetStructuresByType(Type::kKey)) {
        const auto decoder = std::dynamic_pointer_cast<Type>(structure);
        if (decoder && decoder->GetRecord()) {
            records.push_back(decoder->GetRecord());
        }
    }
    return records;
}

}  // namespace SMBIOS::Manager
