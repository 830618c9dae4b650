#include "wmi/wmi_query.h"

#include <nlohmann/json.hpp>

#include "platform/command_runner.h"

namespace SMBIOS::Wmi {

namespace {

nlohmann::json Projection(const nlohmann::json& instance, const PropertySet& properties) {
    nlohmann::json projection = nlohmann::json::object();
    for (const std::string& property : properties) {
        if (instance.contains(property)) {
            projection[property] = instance.at(property);
        }
    }
    return projection;
}

void FileInstance(nlohmann::json& result,
                  const nlohmann::json& instance,
                  const std::string& keyProperty,
                  const PropertySet& properties) {
    if (!instance.is_object() || !instance.contains(keyProperty)) {
        return;
    }
    const auto key = instance.at(keyProperty).get<std::string>();
    if (!result.contains(key)) {
        result[key] = Projection(instance, properties);
    }
}

}  // namespace

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

void WmiQuery::FetchByKey(nlohmann::json& result,
                          const std::string& keyProperty,
                          const PropertySet& properties) const {
    result = nullptr;
    std::string output;
    if (!RunPowerShell(output)) {
        return;
    }
    // ConvertTo-Json prints an array for several instances and the bare object for a single one.
    const nlohmann::json answer = nlohmann::json::parse(output);
    if (answer.is_object()) {
        FileInstance(result, answer, keyProperty, properties);
    } else if (answer.is_array()) {
        for (const nlohmann::json& instance : answer) {
            FileInstance(result, instance, keyProperty, properties);
        }
    }
}

}  // namespace SMBIOS::Wmi
