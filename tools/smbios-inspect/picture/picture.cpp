#include "smbios-inspect/picture/picture.h"

#include "smbios-inspect/picture/layout.h"
#include "smbios-inspect/picture/machine_reader.h"
#include "smbios-inspect/picture/svg_writer.h"

namespace SMBIOS::Inspect::Picture {

void DrawMachine(std::span<const std::uint8_t> rawTable, std::ostream& output) {
    WriteSvg(LayOut(ReadMachine(rawTable)), output);
}

}  // namespace SMBIOS::Inspect::Picture
