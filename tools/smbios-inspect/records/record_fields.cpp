#include "smbios-inspect/records/record_fields.h"

#include "smbios-inspect/records/record_writer_definition.h"

namespace SMBIOS::Inspect {

Lines RawBytesOfFailure(const Structures::StructureRecord& record) {
    return record.error.empty() ? Lines() : RecordText::LinesOf(record.rawBytes);
}

template RecordWriter WriterOf<Structures::UnknownType>();

}  // namespace SMBIOS::Inspect
