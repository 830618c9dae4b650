#include "smbios-inspect/command_line/picture_output.h"

#include <cstdint>
#include <ostream>
#include <span>
#include <sstream>
#include <string_view>
#include <vector>

#include "manager/raw_table.h"
#include "smbios-inspect/command_line/output_file.h"
#include "smbios-inspect/picture/picture.h"

namespace SMBIOS::Inspect {

void DrawPicture(const std::string& target, bool force, std::ostream& output) {
    const std::vector<std::uint8_t> rawTable = Manager::ReadRawTable();
    if (target.empty()) {
        Picture::DrawMachine(rawTable, output);
        return;
    }
    std::ostringstream picture;
    picture.exceptions(std::ios::badbit);  // a picture that memory has no room for is not written in part
    Picture::DrawMachine(rawTable, picture);
    const std::string_view text = picture.view();
    WriteOutputFile(target, {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()}, force);
}

}  // namespace SMBIOS::Inspect
