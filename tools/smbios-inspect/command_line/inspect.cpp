#include "smbios-inspect/command_line/inspect.h"

#include <exception>
#include <new>
#include <ostream>

#include "manager/raw_table.h"

#include "smbios-inspect/command_line/diff.h"
#include "smbios-inspect/command_line/options.h"
#include "smbios-inspect/command_line/picture_output.h"
#include "smbios-inspect/command_line/save.h"
#include "smbios-inspect/command_line/table_input.h"
#include "smbios-inspect/output/text_layout.h"
#include "smbios-inspect/reports/departures_report.h"
#include "smbios-inspect/reports/firmware_report.h"
#include "smbios-inspect/reports/get_report.h"
#include "smbios-inspect/reports/memory_report.h"
#include "smbios-inspect/reports/processors_report.h"
#include "smbios-inspect/reports/structures_report.h"
#include "smbios-inspect/reports/summary_report.h"
#include "smbios-inspect/reports/table_end.h"

namespace SMBIOS::Inspect {

namespace {

/// Returns the exit status.
int Report(const Options& options, const OutputStyle& style, std::ostream& output, std::ostream& errors) {
    switch (options.command) {
        case Command::summary:
            ReportSummary(options.report, style, output);
            break;
        case Command::memory:
            ReportMemory(options.report, style, output);
            break;
        case Command::processors:
            ReportProcessors(options.report, style, output);
            break;
        case Command::structures:
            ReportStructures(options.report, style, output);
            break;
        case Command::firmware:
            ReportFirmware(options.report, style, output);
            break;
        case Command::get:
            ReportValues(options.report, output);
            break;
        case Command::departures:
            ReportDepartures(options.report, style, output);
            break;
        case Command::diff:
            return CompareTables(options, style, output, errors);
        case Command::picture:
            DrawPicture(options.target, options.force, output);
            break;
        case Command::save:
            SaveTable(options.target, options.force);
            break;
        case Command::help:
            output << UsageText();
            break;
        case Command::version:
            output << "smbios-inspect " SMBIOS_INSPECT_VERSION "\n";
            break;
    }
    return kSuccess;
}

/// Whether it is about the table in use.
bool NeedsTable(const Options& options) noexcept {
    return options.command != Command::help && options.command != Command::version &&
           !(options.command == Command::diff && options.newTable);
}

/// Whether to say that the table may have lost its end: the summary and the comparison say it themselves.
bool HasToWarnOfLostEnd(const Options& options) {
    const bool saysItItself = options.command == Command::summary || options.command == Command::diff;
    return NeedsTable(options) && !saysItItself && MayBeCutShort(Manager::ReadRawTable());
}

/// Throws std::bad_alloc, also while it tells of another failure.
int RunOrTell(std::span<const std::string_view> arguments,
              const OutputStyle& style,
              std::ostream& output,
              std::ostream& errors) {
    try {
        const Options options = ParseOptions(arguments);
        const TableInput table = NeedsTable(options) ? TableInput(options.report.from) : TableInput();
        const bool hasToWarn = HasToWarnOfLostEnd(options);
        const int status = Report(options, style, output, errors);
        output.flush();  // whoever joins the two streams reads the report first
        if (hasToWarn) {
            errors << "smbios-inspect: " << kCutShortText << '\n';
        }
        return status;
    } catch (const UsageError& error) {
        errors << "smbios-inspect: " << Printable(error.what()) << "\nSee smbios-inspect --help.\n";
        return kWrongUsage;
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const std::exception& error) {
        errors << "smbios-inspect: " << Printable(error.what()) << "\n";
        return kUnreadable;
    }
}

}  // namespace

int Run(std::span<const std::string_view> arguments,
        const OutputStyle& style,
        std::ostream& output,
        std::ostream& errors) {
    try {
        return RunOrTell(arguments, style, output, errors);
    } catch (const std::bad_alloc&) {
        errors << "smbios-inspect: out of memory\n";
        return kUnreadable;
    }
}

}  // namespace SMBIOS::Inspect
