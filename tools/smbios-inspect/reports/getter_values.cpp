#include "smbios-inspect/reports/getter_values.h"

namespace SMBIOS::Inspect {

namespace {

void WriteMember(const char* name, const auto& value, JsonWriter& json) {
    json.Name(name);
    Write(value, json);
}

}  // namespace

void Write(const Parsers::MEMORY_TYPE_DETAILS& details, JsonWriter& json) {
    json.BeginObject();
    json.Member("typeDetailWord", details.typeDetailWord);
    WriteMember("fastPaged", details.fastPaged, json);
    WriteMember("staticColumn", details.staticColumn, json);
    WriteMember("pseudoStatic", details.pseudoStatic, json);
    WriteMember("rambus", details.rambus, json);
    WriteMember("synchronous", details.synchronous, json);
    WriteMember("cmos", details.cmos, json);
    WriteMember("edo", details.edo, json);
    WriteMember("windowDram", details.windowDram, json);
    WriteMember("cacheDram", details.cacheDram, json);
    WriteMember("nonVolatile", details.nonVolatile, json);
    WriteMember("registered", details.registered, json);
    WriteMember("unbuffered", details.unbuffered, json);
    json.EndObject();
}

void Write(const Parsers::PROCESSOR_CHARACTERISTICS& characteristics, JsonWriter& json) {
    json.BeginObject();
    json.Member("characteristicsLow", characteristics.characteristicsLow);
    WriteMember("capable64bit", characteristics.capable64bit, json);
    WriteMember("multiCore", characteristics.multiCore, json);
    WriteMember("hardwareThread", characteristics.hardwareThread, json);
    WriteMember("executeProtection", characteristics.executeProtection, json);
    WriteMember("enhacedVirtualization", characteristics.enhacedVirtualization, json);
    WriteMember("powerPerformanceControl", characteristics.powerPerformanceControl, json);
    WriteMember("capable128bit", characteristics.capable128bit, json);
    WriteMember("arm64SoC_ID", characteristics.arm64SoC_ID, json);
    json.EndObject();
}

}  // namespace SMBIOS::Inspect
