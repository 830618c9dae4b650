// Writes the sample table: a believable workstation with two processors. It has every structure type that a
// machine of today has and every one that the library decodes; one structure is an error for the library. Its
// only argument is the file to write.

#include <cstdint>
#include <fstream>
#include <iostream>
#include <vector>

#include "workstation.h"

namespace {

std::vector<std::uint8_t> Workstation() {
    using namespace SMBIOS::Samples;
    TableBuilder table(3, 5, 0);
    AddSystem(table);
    AddProcessors(table);
    AddBoardParts(table);
    AddMemory(table);
    AddPowerAndCooling(table);
    AddManagement(table);
    table.Add({127, 4, 0xFEFF});
    return table.RawTable();
}

}  // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount != 2) {
        std::cerr << "usage: make-workstation-table FILE\n";
        return 2;
    }
    const std::vector<std::uint8_t> table = Workstation();
    std::ofstream file(arguments[1], std::ios::binary);
    file.write(reinterpret_cast<const char*>(table.data()), static_cast<std::streamsize>(table.size()));
    file.close();
    if (!file) {
        std::cerr << "make-workstation-table: cannot write " << arguments[1] << "\n";
        return 1;
    }
    return 0;
}
