// Does as it is told by files in its working folder: prints output.txt, again and again if there is a file
// without-end, and error-output.txt. If there is a file lingering it stays for a while when it has closed its
// output. Ends with the status that exit-status.txt holds. Adds a byte to runs.txt each time.

#include <fcntl.h>
#include <io.h>
#include <stdio.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <thread>

namespace {

/// False when nobody reads it any more.
bool Print(const char* file, FILE* stream) {
    std::ifstream source(file, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(source), std::istreambuf_iterator<char>()};
    ::_setmode(::_fileno(stream), _O_BINARY);
    ::fwrite(text.data(), 1, text.size(), stream);
    return ::fflush(stream) == 0;
}

void Linger() {
    ::fclose(stdout);
    ::fclose(stderr);
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
}

}  // namespace

int main() {
    std::ofstream("runs.txt", std::ios::binary | std::ios::app) << '.';
    while (Print("output.txt", stdout) && std::filesystem::exists("without-end")) {
    }
    Print("error-output.txt", stderr);
    if (std::filesystem::exists("lingering")) {
        Linger();
    }
    int exitStatus = 0;
    std::ifstream("exit-status.txt") >> exitStatus;
    return exitStatus;
}
