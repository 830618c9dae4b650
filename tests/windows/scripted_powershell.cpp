// Does as it is told by files in its working folder: prints output.txt and error-output.txt, and ends with
// the status that exit-status.txt holds. Adds a byte to runs.txt each time.

#include <fcntl.h>
#include <io.h>
#include <stdio.h>

#include <fstream>
#include <iterator>
#include <string>

namespace {

void Print(const char* file, FILE* stream) {
    std::ifstream source(file, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(source), std::istreambuf_iterator<char>()};
    ::_setmode(::_fileno(stream), _O_BINARY);
    ::fwrite(text.data(), 1, text.size(), stream);
}

}  // namespace

int main() {
    std::ofstream("runs.txt", std::ios::binary | std::ios::app) << '.';
    Print("output.txt", stdout);
    Print("error-output.txt", stderr);
    int exitStatus = 0;
    std::ifstream("exit-status.txt") >> exitStatus;
    return exitStatus;
}
