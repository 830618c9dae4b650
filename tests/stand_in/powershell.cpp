// Answers in place of the system's own PowerShell. In its working folder it notes its arguments, one a line,
// in powershell-arguments.txt and prints what powershell-answer.txt holds.

#include <cstddef>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>

int main(int argumentCount, char** arguments) {
    std::ofstream notes("powershell-arguments.txt", std::ios::binary);
    for (int i = 1; i < argumentCount; ++i) {
        notes << arguments[i] << '\n';
    }
    std::ifstream answer("powershell-answer.txt", std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(answer), std::istreambuf_iterator<char>()};
    return std::fwrite(text.data(), 1, text.size(), stdout) == text.size() ? 0 : 1;
}
