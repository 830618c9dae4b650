#pragma once

#include "smbios-inspect/records/record_completeness.h"
#include "smbios-inspect/records/record_fields.h"
#include "smbios-inspect/records/record_json.h"
#include "smbios-inspect/records/record_of.h"
#include "smbios-inspect/records/record_text.h"
#include "smbios-inspect/records/record_writer.h"

// For the sources that describe records; see record_writer.h.
namespace SMBIOS::Inspect {

template <class Decoder>
RecordWriter WriterOf() {
    using Structures::BaseStructure;
    using Record = std::remove_cvref_t<decltype(RecordOf<Decoder>(std::declval<const BaseStructure&>()))>;
    static_assert(kIsDescribedWhole<Record>, "a field of the record has no description");
    return {
        .json = [](const BaseStructure& decoder,
                   JsonWriter& json) { RecordJson::Write(json, RecordOf<Decoder>(decoder)); },
        .texts =
            [](const BaseStructure& decoder, FieldTexts& texts) {
                static constexpr auto kFields = AllFieldsOf<Record>();
                RecordText::Append(kFields, RecordOf<Decoder>(decoder), texts);
            },
        .rawBytes = [](const BaseStructure& decoder) -> const std::vector<std::uint8_t>& {
            return RecordOf<Decoder>(decoder).rawBytes;
        },
        .error = [](const BaseStructure& decoder) -> const std::string& {
            return RecordOf<Decoder>(decoder).error;
        },
        .leastLength = Decoder::LeastLength(),
    };
}

}  // namespace SMBIOS::Inspect
