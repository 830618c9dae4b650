#include "smbios-inspect/records/record_fields_power.h"

#include "smbios-inspect/records/record_writer_definition.h"

namespace SMBIOS::Inspect {

template RecordWriter WriterOf<Structures::Type_22>();
template RecordWriter WriterOf<Structures::Type_26>();
template RecordWriter WriterOf<Structures::Type_27>();
template RecordWriter WriterOf<Structures::Type_28>();
template RecordWriter WriterOf<Structures::Type_29>();
template RecordWriter WriterOf<Structures::Type_39>();

}  // namespace SMBIOS::Inspect
