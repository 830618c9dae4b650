#include "smbios-inspect/reports/getter_values.h"

namespace SMBIOS::Inspect {

Json ToJson(const Parsers::MEMORY_TYPE_DETAILS& details) {
    return {
        {"typeDetailWord", details.typeDetailWord},
        {"fastPaged", ToJson(details.fastPaged)},
        {"staticColumn", ToJson(details.staticColumn)},
        {"pseudoStatic", ToJson(details.pseudoStatic)},
        {"rambus", ToJson(details.rambus)},
        {"synchronous", ToJson(details.synchronous)},
        {"cmos", ToJson(details.cmos)},
        {"edo", ToJson(details.edo)},
        {"windowDram", ToJson(details.windowDram)},
        {"cacheDram", ToJson(details.cacheDram)},
        {"nonVolatile", ToJson(details.nonVolatile)},
        {"registered", ToJson(details.registered)},
        {"unbuffered", ToJson(details.unbuffered)},
    };
}

Json ToJson(const Parsers::PROCESSOR_CHARACTERISTICS& characteristics) {
    return {
        {"characteristicsLow", characteristics.characteristicsLow},
        {"capable64bit", ToJson(characteristics.capable64bit)},
        {"multiCore", ToJson(characteristics.multiCore)},
        {"hardwareThread", ToJson(characteristics.hardwareThread)},
        {"executeProtection", ToJson(characteristics.executeProtection)},
        {"enhacedVirtualization", ToJson(characteristics.enhacedVirtualization)},
        {"powerPerformanceControl", ToJson(characteristics.powerPerformanceControl)},
        {"capable128bit", ToJson(characteristics.capable128bit)},
        {"arm64SoC_ID", ToJson(characteristics.arm64SoC_ID)},
    };
}

}  // namespace SMBIOS::Inspect
