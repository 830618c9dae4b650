#include "smbios-inspect/records/record_fields_processor.h"

#include <string>

#include "smbios-inspect/records/record_writer_definition.h"

namespace SMBIOS::Inspect {

std::string CacheLevelText(const Structures::Type7::Types::Type7Struct& record) {
    return "L" + std::to_string(record.cacheLevel + 1);
}

std::string CacheLocationText(const Structures::Type7::Types::Type7Struct& record) {
    if (!record.cacheLocation) {
        return {};
    }
    return *record.cacheLocation == 0 ? "Internal (0)" : "External (1)";
}

template RecordWriter WriterOf<Structures::Type_4>();
template RecordWriter WriterOf<Structures::Type_7>();

}  // namespace SMBIOS::Inspect
