#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "manager/structure_types.h"
#include "smbios-inspect/output/json_writer.h"
#include "structures/base_structure.h"

namespace SMBIOS::Inspect::Departures {

/// A list, or a value made of parts: only its own rule looks into it.
struct Composite {};

/// A field's value: none (absent, or an empty text), a number, a code, a truth value or the word that flags
/// make, a fraction, a text of the record.
using LibraryValue = std::variant<std::monostate, std::uint64_t, double, std::string_view, Composite>;

[[nodiscard]] inline bool IsNone(const LibraryValue& value) noexcept {
    return std::holds_alternative<std::monostate>(value);
}

/// A field of a record.
struct LibraryField {
    const char* name;   ///< in programs
    const char* label;  ///< of the line in which people find it; null when they do not see it
    bool isText;        ///< also when it has no value
    LibraryValue value;
};

/// What the records of all decoders have. A view: valid only while the record is.
struct RecordFrame {
    std::uint16_t handle;
    const std::vector<std::uint8_t>& rawBytes;
    const std::optional<std::vector<std::string>>& strings;
    const std::string& error;
};

/// The record of a decoder that has processed its structure, under the decoder's key.
[[nodiscard]] RecordFrame FrameOf(Manager::Types::StructureTypes key,
                                  const Structures::BaseStructure& decoder);

/// All its fields, in their order, valid while the record is. Order and names are the same for all records of
/// a key.
void ReadLibraryFields(Manager::Types::StructureTypes key,
                       const Structures::BaseStructure& decoder,
                       std::vector<LibraryField>& fields);

/// The same in a list of their own.
[[nodiscard]] inline std::vector<LibraryField> LibraryFieldsOf(Manager::Types::StructureTypes key,
                                                               const Structures::BaseStructure& decoder) {
    std::vector<LibraryField> fields;
    ReadLibraryFields(key, decoder, fields);
    return fields;
}

/// How people read field number `index` of it; none when there is nothing to read.
[[nodiscard]] std::vector<std::string> LinesOfField(Manager::Types::StructureTypes key,
                                                    const Structures::BaseStructure& decoder,
                                                    std::size_t index);

/// Writes it as a member of this name, an absent one as null.
void WriteField(Manager::Types::StructureTypes key,
                const Structures::BaseStructure& decoder,
                std::size_t index,
                const char* name,
                JsonWriter& json);

}  // namespace SMBIOS::Inspect::Departures
