/* Prints a report, or what went wrong, with nothing but the report library and the system: no C library is
   needed to try the import library with another compiler's linker. */
#include <smbios/report.h>

__declspec(dllimport) void* GetStdHandle(unsigned long which);
__declspec(dllimport) int WriteFile(
    void* file, const void* bytes, unsigned long size, unsigned long* written, void* overlapped);
__declspec(dllimport) void ExitProcess(unsigned int status);

static unsigned long length_of(const char* text) {
    unsigned long length = 0;
    while (text[length] != '\0') {
        ++length;
    }
    return length;
}

void start(void) {
    const unsigned long standard_output = (unsigned long)-11;
    char* text = 0;
    unsigned long written = 0;
    const int status = smbios_report("memory", &text);
    WriteFile(GetStdHandle(standard_output), text, length_of(text), &written, 0);
    smbios_report_free(text);
    ExitProcess((unsigned int)status);
}
