#pragma once

#include <functional>
#include <set>
#include <string>

namespace SMBIOS::Wmi {

/// Names of WMI properties, in the byte-wise order in which they stand in a query.
using PropertySet = std::set<std::string, std::less<>>;

}  // namespace SMBIOS::Wmi
