#pragma once

#include "structures/base_structure.h"

namespace SMBIOS::Inspect {

/// The record of a decoder that has processed its structure. `Decoder` is its class, which the key tells that
/// it is filed under.
template <class Decoder>
[[nodiscard]] const auto& RecordOf(const Structures::BaseStructure& decoder) {
    return *static_cast<const Decoder&>(decoder).GetRecord();
}

}  // namespace SMBIOS::Inspect
