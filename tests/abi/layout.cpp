#include <cxxabi.h>
#include <dlfcn.h>

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "smbios/memory_info.h"
#include "smbios/processor_info.h"

// Prints how the public types lie in memory, as a user's compiler sees them and as the library fills them.
namespace {

using namespace SMBIOS::Parsers;

struct Free {
    void operator()(char* text) const noexcept { std::free(text); }
};

template <class Type>
void PrintSize(const char* name) {
    std::printf("%s: %zu bytes, aligned to %zu\n", name, sizeof(Type), alignof(Type));
}

void PrintOffset(const char* member, std::size_t offset) {
    std::printf("    %2zu %s\n", offset, member);
}

/// The two slots of a class whose only virtual function is its destructor, by the names of the functions in
/// them.
template <class Info>
void PrintVirtualTable() {
    constexpr int kSlots = 2;
    const Info info;
    const void* const* const slots = *reinterpret_cast<const void* const* const*>(&info);
    for (int slot = 0; slot < kSlots; ++slot) {
        Dl_info symbol = {};
        ::dladdr(slots[slot], &symbol);
        int status = 0;
        const std::unique_ptr<char, Free> function(
            abi::__cxa_demangle(symbol.dli_sname, nullptr, nullptr, &status));
        std::printf("    slot %d %s\n", slot, function ? function.get() : "(unknown)");
    }
}

#define PRINT_OFFSET(type, member) PrintOffset(#member, offsetof(type, member))

void PrintFlag() {
    PrintSize<EBOOL>("EBOOL");
    PRINT_OFFSET(EBOOL, value);
    PRINT_OFFSET(EBOOL, isSet);
}

void PrintProcessorCharacteristics() {
    PrintSize<PROCESSOR_CHARACTERISTICS>("PROCESSOR_CHARACTERISTICS");
    PRINT_OFFSET(PROCESSOR_CHARACTERISTICS, characteristicsLow);
    PRINT_OFFSET(PROCESSOR_CHARACTERISTICS, capable64bit);
    PRINT_OFFSET(PROCESSOR_CHARACTERISTICS, multiCore);
    PRINT_OFFSET(PROCESSOR_CHARACTERISTICS, hardwareThread);
    PRINT_OFFSET(PROCESSOR_CHARACTERISTICS, executeProtection);
    PRINT_OFFSET(PROCESSOR_CHARACTERISTICS, enhacedVirtualization);
    PRINT_OFFSET(PROCESSOR_CHARACTERISTICS, powerPerformanceControl);
    PRINT_OFFSET(PROCESSOR_CHARACTERISTICS, capable128bit);
    PRINT_OFFSET(PROCESSOR_CHARACTERISTICS, arm64SoC_ID);
}

void PrintMemoryTypeDetails() {
    PrintSize<MEMORY_TYPE_DETAILS>("MEMORY_TYPE_DETAILS");
    PRINT_OFFSET(MEMORY_TYPE_DETAILS, typeDetailWord);
    PRINT_OFFSET(MEMORY_TYPE_DETAILS, fastPaged);
    PRINT_OFFSET(MEMORY_TYPE_DETAILS, staticColumn);
    PRINT_OFFSET(MEMORY_TYPE_DETAILS, pseudoStatic);
    PRINT_OFFSET(MEMORY_TYPE_DETAILS, rambus);
    PRINT_OFFSET(MEMORY_TYPE_DETAILS, synchronous);
    PRINT_OFFSET(MEMORY_TYPE_DETAILS, cmos);
    PRINT_OFFSET(MEMORY_TYPE_DETAILS, edo);
    PRINT_OFFSET(MEMORY_TYPE_DETAILS, windowDram);
    PRINT_OFFSET(MEMORY_TYPE_DETAILS, cacheDram);
    PRINT_OFFSET(MEMORY_TYPE_DETAILS, nonVolatile);
    PRINT_OFFSET(MEMORY_TYPE_DETAILS, registered);
    PRINT_OFFSET(MEMORY_TYPE_DETAILS, unbuffered);
}

}  // namespace

int main() {
    PrintFlag();
    PrintProcessorCharacteristics();
    PrintMemoryTypeDetails();
    PrintSize<MemoryInfo>("MemoryInfo");
    PrintVirtualTable<MemoryInfo>();
    PrintSize<ProcessorInfo>("ProcessorInfo");
    PrintVirtualTable<ProcessorInfo>();
}
