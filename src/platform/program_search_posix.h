#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace SMBIOS::Platform {

/// The files that `program` may stand for, in the order in which they are to be tried: the program itself
/// when its name tells where it is, otherwise the file of that name in each folder of `path`, a list parted
/// by colons. Only folders named from the root count: an empty or a relative one would let whoever owns the
/// working folder choose the program.
[[nodiscard]] std::vector<std::string> ProgramCandidates(std::string_view program, std::string_view path);

}  // namespace SMBIOS::Platform
