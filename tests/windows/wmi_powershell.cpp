// Answers in place of the system's own PowerShell from the machine's own WMI. It understands one command:
//   powershell.exe -ExecutionPolicy Unrestricted
//     -Command "Get-WmiObject -Namespace 'root\cimv2' -Query \"WQL\" | ConvertTo-Json"

#include <cstddef>
#include <exception>
#include <iostream>
#include <optional>
#include <string_view>
#include <vector>

#include "tests/windows/wmi_instances.h"

namespace {

using SMBIOS::Tests::QueryWmi;
using SMBIOS::Tests::WmiInstance;

/// The query within the command line; none when it is not the one understood.
std::optional<std::string_view> FindQuery(const std::vector<std::string_view>& arguments) {
    constexpr std::string_view kBegin = "Get-WmiObject -Namespace 'root\\cimv2' -Query \"";
    constexpr std::string_view kEnd = "\" | ConvertTo-Json";
    if (arguments.size() != 4 || arguments[0] != "-ExecutionPolicy" || arguments[1] != "Unrestricted" ||
        arguments[2] != "-Command") {
        return std::nullopt;
    }
    std::string_view command = arguments[3];
    if (command.size() < kBegin.size() + kEnd.size() || !command.starts_with(kBegin) ||
        !command.ends_with(kEnd)) {
        return std::nullopt;
    }
    command.remove_prefix(kBegin.size());
    command.remove_suffix(kEnd.size());
    return command;
}

/// As ConvertTo-Json does: nothing for none, one as it is, several as an array.
void Print(const std::vector<WmiInstance>& instances) {
    constexpr int kIndent = 2;
    if (instances.size() == 1) {
        std::cout << instances.front().dump(kIndent) << '\n';
    } else if (!instances.empty()) {
        std::cout << WmiInstance(instances).dump(kIndent) << '\n';
    }
}

}  // namespace

int main(int argumentCount, char** arguments) {
    const auto query = FindQuery({arguments + 1, arguments + argumentCount});
    if (!query) {
        std::cerr << "powershell: this command is not understood\n";
        return 1;
    }
    try {
        Print(QueryWmi(*query));
    } catch (const std::exception& error) {
        std::cerr << "Get-WmiObject : " << error.what() << '\n';
        return 1;
    }
    return 0;
}
