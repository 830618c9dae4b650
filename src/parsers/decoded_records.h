#pragma once

#include <memory>
#include <vector>

#include "manager/smbios_manager.h"

namespace SMBIOS::Parsers {

/// The records of every structure filed under `key` whose decoder is a `Type`, in table order.
template <class Type>
[[nodiscard]] auto DecodedRecords(const Manager::SmbiosManager& manager, Manager::Types::StructureTypes key) {
    std::vector<decltype(Type().GetRecord())> records;
    for (const std::shared_ptr<Structures::BaseStructure>& structure : manager.GetStructuresByType(key)) {
        const auto decoder = std::dynamic_pointer_cast<Type>(structure);
        if (decoder && decoder->GetRecord()) {
            records.push_back(decoder->GetRecord());
        }
    }
    return records;
}

}  // namespace SMBIOS::Parsers
