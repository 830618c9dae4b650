#include <iostream>
#include <string_view>
#include <vector>

#include "platform/standard_output.h"
#include "smbios-inspect/inspect.h"

int main(int argumentCount, char** arguments) {
    SMBIOS::Platform::UseBinaryStandardOutput();
    const std::vector<std::string_view> words(arguments + 1, arguments + argumentCount);
    return SMBIOS::Inspect::Run(words, std::cout, std::cerr);
}
