#include <smbios/memory_info.h>
#include <cstdio>
#include <exception>

int main() try {
    SMBIOS::Parsers::MemoryInfo memory;
    memory.RetrieveInfo();
    std::printf("%zu memory devices with a row\n", memory.GetMemoryDeviceCount());
    for (std::size_t i = 0; i < memory.GetMemoryDeviceCount(); ++i) {
        const char* const locator = memory.GetDeviceLocator(i);
        std::printf("%s: %u MT/s\n", locator ? locator : "(no name)", memory.GetSpeed(i));
    }
} catch (const std::exception& failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    return 1;
}
