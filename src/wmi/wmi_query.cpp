#include "wmi/wmi_query.h"

#include <memory>

#include "platform/command_runner.h"
#include "wmi/answer_reader.h"

namespace SMBIOS::Wmi {

void WmiQuery::Select(const PropertySet& properties, std::string_view className) {
    selectClause = "SELECT ";
    std::string_view separator;
    for (const std::string& property : properties) {
        selectClause.append(separator).append(property);
        separator = ", ";
    }
    selectClause.append(" FROM ").append(className);
}

void WmiQuery::Where(std::string_view property, const std::vector<std::string>& values) {
    whereClause = " WHERE ";
    std::string_view separator;
    for (const std::string& value : values) {
        whereClause.append(separator).append(property).append(" = '").append(value).append("'");
        separator = " OR ";
    }
}

std::string WmiQuery::CommandLine() const {
    std::string commandLine = "powershell.exe -ExecutionPolicy Unrestricted -Command \"";
    commandLine.append("Get-WmiObject -Namespace '").append(wmiNamespace).append("' ");
    commandLine.append("-Query \\\"").append(selectClause).append(whereClause);
    commandLine.append("\\\" | ConvertTo-Json\"");
    return commandLine;
}

bool WmiQuery::RunPowerShell(std::string& output) const {
    return Platform::ActiveCommandRunner().Run(CommandLine(), output);
}

void WmiQuery::FetchByKey(Instances& result,
                          const std::string& keyProperty,
                          const PropertySet& properties) const {
    result.clear();
    const std::unique_ptr<Platform::ProgramOutput> answer =
        Platform::ActiveCommandRunner().Start(CommandLine());
    if (answer != nullptr) {
        ReadAnswer(*answer, keyProperty, properties, result);
    }
}

}  // namespace SMBIOS::Wmi
