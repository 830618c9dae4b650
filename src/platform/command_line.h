#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace SMBIOS::Platform {

/// Splits a command line as the Windows C runtime does. The first element is the program, possibly empty: in
/// it quotes only toggle. In the arguments, 2n backslashes before a quote stand for n of them and the quote
/// toggles, 2n+1 stand for n and a literal quote, a doubled quote within quotes is a literal quote, and other
/// backslashes are literal. Blanks and tabs outside quotes separate.
[[nodiscard]] std::vector<std::string> SplitCommandLine(std::string_view commandLine);

}  // namespace SMBIOS::Platform
