#include "smbios-inspect/records/record_fields_system.h"

#include "smbios-inspect/records/record_writer_definition.h"

namespace SMBIOS::Inspect {

template RecordWriter WriterOf<Structures::Type_0>();
template RecordWriter WriterOf<Structures::Type_1>();
template RecordWriter WriterOf<Structures::Type_2>();
template RecordWriter WriterOf<Structures::Type_3>();
template RecordWriter WriterOf<Structures::Type_11>();
template RecordWriter WriterOf<Structures::Type_32>();

}  // namespace SMBIOS::Inspect
