#include <smbios/memory_info.h>
#include <smbios/processor_info.h>

// The types are used, so that the compiler looks into them.
using namespace SMBIOS::Parsers;

static_assert(sizeof(EBOOL) == 2);
static_assert(sizeof(PROCESSOR_CHARACTERISTICS) == 17);
static_assert(offsetof(PROCESSOR_CHARACTERISTICS, arm64SoC_ID) == 15);
static_assert(sizeof(MEMORY_TYPE_DETAILS) == 26);
static_assert(offsetof(MEMORY_TYPE_DETAILS, unbuffered) == 24);
static_assert(sizeof(MemoryInfo) == 2 * sizeof(void*));
static_assert(sizeof(ProcessorInfo) == 2 * sizeof(void*));

int main() {
    MemoryInfo memory;
    memory.RetrieveInfo();
    MEMORY_TYPE_DETAILS details = memory.GetBitsetTypeDetail(0);
    details.cmos = true;
    ProcessorInfo processors;
    const EBOOL isLegacy = processors.IsLegacyVoltageInfo(0);
    return details.cmos && isLegacy ? 1 : 0;
}
