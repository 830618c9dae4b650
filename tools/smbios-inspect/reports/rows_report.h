#pragma once

#include <cstddef>
#include <iosfwd>

#include "smbios-inspect/output/json_writer.h"
#include "smbios-inspect/output/output_style.h"
#include "smbios-inspect/reports/getter_values.h"
#include "smbios-inspect/reports/request.h"
#include "smbios-inspect/reports/unlisted_note.h"

namespace SMBIOS::Inspect {

/// The rows of an exported class, and what they leave out.
template <class Info, std::size_t Count>
struct RowsReport {
    const char* name;  ///< of the list of rows
    const RowValue<Info> (&values)[Count];
    void (*printTable)(const Info& info, const OutputStyle& style, std::ostream& output);
    UnlistedStructures unlisted;

    void Print(const Info& info,
               const Request& request,
               const OutputStyle& style,
               std::ostream& output) const {
        if (request.json) {
            JsonWriter json(output);
            json.BeginObject();
            json.Name(name);
            WriteRows(info, unlisted.listed, values, json);
            json.Member("unlisted", unlisted.Count());
            json.EndObject();
            json.EndLine();
            return;
        }
        if (unlisted.listed != 0 || unlisted.total == 0) {
            printTable(info, style, output);
        }
        PrintUnlistedNote(unlisted, request, style, output);
    }
};

}  // namespace SMBIOS::Inspect
