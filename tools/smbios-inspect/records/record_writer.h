#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "smbios-inspect/output/field_texts.h"
#include "smbios-inspect/output/json_writer.h"
#include "structures/base_structure.h"

namespace SMBIOS::Inspect {

/// What there is to ask of the record of a decoder that has processed its structure.
struct RecordWriter {
    void (*json)(const Structures::BaseStructure& decoder, JsonWriter& json);
    void (*texts)(const Structures::BaseStructure& decoder, FieldTexts& texts);
    const std::vector<std::uint8_t>& (*rawBytes)(const Structures::BaseStructure& decoder);
    const std::string& (*error)(const Structures::BaseStructure& decoder);
    std::uint8_t leastLength;  ///< of a structure that the decoder accepts
};

/// The writer of a `Decoder`'s records. Made beside the description of the record, in its source, so that
/// nothing else takes the time to compile it.
template <class Decoder>
[[nodiscard]] RecordWriter WriterOf();

}  // namespace SMBIOS::Inspect
