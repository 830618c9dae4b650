#include "smbios-inspect/inspect.h"

#include <exception>
#include <ostream>

#include "smbios-inspect/memory_report.h"
#include "smbios-inspect/options.h"
#include "smbios-inspect/processors_report.h"
#include "smbios-inspect/table_input.h"

namespace SMBIOS::Inspect {

namespace {

void Report(const Options& options, std::ostream& output) {
    switch (options.command) {
        case Command::memory:
            ReportMemory(options, output);
            break;
        case Command::processors:
            ReportProcessors(options, output);
            break;
        case Command::help:
            output << UsageText();
            break;
        case Command::version:
            output << "smbios-inspect 2.0.0\n";
            break;
    }
}

bool NeedsTable(Command command) noexcept {
    return command != Command::help && command != Command::version;
}

}  // namespace

int Run(std::span<const std::string_view> arguments, std::ostream& output, std::ostream& errors) {
    try {
        const Options options = ParseOptions(arguments);
        const TableInput table = NeedsTable(options.command) ? TableInput(options.from) : TableInput();
        Report(options, output);
        return kSuccess;
    } catch (const UsageError& error) {
        errors << "smbios-inspect: " << error.what() << "\n\n" << UsageText();
        return kWrongUsage;
    } catch (const std::exception& error) {
        errors << "smbios-inspect: " << error.what() << "\n";
        return kUnreadable;
    }
}

}  // namespace SMBIOS::Inspect
