#include "smbios-inspect/records/record_fields.h"

#include "smbios-inspect/output/units.h"
#include "smbios-inspect/records/record_writer_definition.h"

namespace SMBIOS::Inspect {

std::string RawBytesOfFailure(const Structures::StructureRecord& record) {
    return record.error.empty() ? std::string() : HexadecimalText(record.rawBytes, " ");
}

template RecordWriter WriterOf<Structures::UnknownType>();

}  // namespace SMBIOS::Inspect
