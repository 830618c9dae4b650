#pragma once

#include <cstddef>
#include <iosfwd>

#include "smbios-inspect/getter_values.h"

namespace SMBIOS::Inspect {

/// Prints `json` indented, with a line end. Bytes of a text that are not UTF-8 become U+FFFD.
void PrintJson(const Json& json, std::ostream& output);

/// An object whose one member `name` is the list of all rows.
template <class Info, std::size_t Count>
[[nodiscard]] Json RowsToJson(const char* name,
                              const Info& info,
                              std::size_t rowCount,
                              const RowValue<Info> (&values)[Count]) {
    Json rows = Json::array();
    for (std::size_t i = 0; i < rowCount; ++i) {
        rows.push_back(RowToJson(info, i, values));
    }
    return {{name, std::move(rows)}};
}

}  // namespace SMBIOS::Inspect
