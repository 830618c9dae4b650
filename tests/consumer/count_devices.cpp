#include <smbios/memory_info.h>
#include <smbios/processor_info.h>

#include <cstdio>
#include <exception>

#if defined(CONSUMER_STANDARD) && CONSUMER_STANDARD == 17 && __cplusplus > 201703L
#error "the package asks for a newer language than its headers need"
#endif

// A machine without a table has no devices: the library's exception must arrive here, whatever it was built
// with.
int main() {
    SMBIOS::Parsers::MemoryInfo memory;
    try {
        memory.RetrieveInfo();
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
    }
    std::printf("%u memory devices\n", static_cast<unsigned>(memory.GetMemoryDeviceCount()));
}
