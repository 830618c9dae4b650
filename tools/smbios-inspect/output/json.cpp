#include "smbios-inspect/output/json.h"

#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>

#include "smbios-inspect/output/units.h"

namespace SMBIOS::Inspect {

namespace {

/// Number of bytes of the delete or C1 control character at the start of UTF-8 text; 0 when there is none.
std::size_t ControlLength(std::string_view text) noexcept {
    if (text.starts_with('\x7F')) {
        return 1;
    }
    const bool isC1 = text.starts_with('\xC2') && static_cast<std::uint8_t>(text[1]) < 0xA0;
    return isC1 ? 2 : 0;
}

/// JSON lets delete and the C1 control characters stand as they are, but a terminal might obey them.
void PrintWithControlsEscaped(std::string_view json, std::ostream& output) {
    std::size_t printed = 0;
    for (std::size_t i = 0; i < json.size(); ++i) {
        if (const std::size_t length = ControlLength(json.substr(i)); length != 0) {
            const auto code = static_cast<std::uint8_t>(json[i + length - 1]);
            output << json.substr(printed, i - printed) << "\\u00" << HexadecimalText({&code, 1});
            printed = i + length;
        }
    }
    output << json.substr(printed);
}

}  // namespace

void PrintJson(const Json& json, std::ostream& output) {
    constexpr int kIndent = 2;
    PrintWithControlsEscaped(json.dump(kIndent, ' ', false, Json::error_handler_t::replace), output);
    output << '\n';
}

}  // namespace SMBIOS::Inspect
