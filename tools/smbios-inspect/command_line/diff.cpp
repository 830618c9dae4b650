#include "smbios-inspect/command_line/diff.h"

#include <cstdint>
#include <ostream>
#include <string_view>
#include <vector>

#include "manager/raw_table.h"
#include "smbios-inspect/command_line/inspect.h"
#include "smbios-inspect/command_line/table_file.h"
#include "smbios-inspect/output/text_layout.h"
#include "smbios-inspect/reports/diff_report.h"
#include "smbios-inspect/reports/table_end.h"

namespace SMBIOS::Inspect {

namespace {

using RawTable = std::vector<std::uint8_t>;

RawTable ReadSaved(const std::string& from) {
    RawTable table = ReadTableFile(from);
    Manager::CheckRawTable(table);
    return table;
}

void WarnOfLostEnd(const RawTable& table, std::string_view name, std::ostream& errors) {
    if (MayBeCutShort(table)) {
        errors << "smbios-inspect: " << Printable(name) << ": " << kCutShortText << '\n';
    }
}

}  // namespace

int CompareTables(const Options& options,
                  const OutputStyle& style,
                  std::ostream& output,
                  std::ostream& errors) {
    const RawTable before = ReadSaved(options.oldTable);
    const RawTable after = options.newTable ? ReadSaved(*options.newTable) : Manager::ReadRawTable();
    const bool isDifferent = ReportDiff(before, after, options.report, style, output);
    output.flush();  // whoever joins the two streams reads the report first
    if (!options.report.quiet) {
        WarnOfLostEnd(before, options.oldTable, errors);
        WarnOfLostEnd(after, options.newTable.value_or("this machine"), errors);
    }
    return isDifferent ? kDifferent : kSuccess;
}

}  // namespace SMBIOS::Inspect
