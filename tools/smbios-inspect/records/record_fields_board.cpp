#include "smbios-inspect/records/record_fields_board.h"

#include <cstddef>
#include <string>

#include "smbios-inspect/records/record_writer_definition.h"

namespace SMBIOS::Inspect {

std::string VendorIdText(const Structures::Type43::Types::Type43Struct& record) {
    return record.vendorId.substr(0, record.vendorId.find_last_not_of('\0') + 1);
}

template RecordWriter WriterOf<Structures::Type_8>();
template RecordWriter WriterOf<Structures::Type_9>();
template RecordWriter WriterOf<Structures::Type_21>();
template RecordWriter WriterOf<Structures::Type_41>();
template RecordWriter WriterOf<Structures::Type_43>();

}  // namespace SMBIOS::Inspect
