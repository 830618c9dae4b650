// An answer of PowerShell, read through both exported classes in a process that has loaded its table once.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <ostream>
#include <string_view>
#include <vector>

#include "samples/table_builder.h"
#include "smbios-inspect/reports/memory_report.h"
#include "smbios-inspect/reports/processors_report.h"
#include "smbios/memory_info.h"
#include "smbios/processor_info.h"
#include "tests/fuzz/answering_powershell.h"
#include "tests/fuzz/report.h"
#include "tests/fuzz/require.h"
#include "tests/support/fake_platform.h"
#include "tests/support/harmless_text.h"

using namespace SMBIOS;
using Samples::StructureBuilder;
using Samples::TableBuilder;

namespace {

constexpr const char* kSerialNumber = "SERIAL-1";
constexpr const char* kProcessorId = "0123456789ABCDEF";

/// A device and a processor with a key, and behind them one of each without: they make the library ask for
/// everything, in each call anew, whatever earlier answers have told of the others.
std::vector<std::uint8_t> Machine() {
    return TableBuilder(3, 8, 0)
        .Add(StructureBuilder(4, 0x30).Qword(0x08, 0x0123456789ABCDEF).Byte(0x18, 0x41).Word(0x1C, 0x0007))
        .Add(StructureBuilder(4, 0x04))
        .Add(StructureBuilder(7, 0x1B, 0x0007).Word(0x07, 768))
        .Add(StructureBuilder(17, 0x5C).String(0x18, kSerialNumber))
        .Add(StructureBuilder(17, 0x5C))
        .RawTable();
}

/// The keys of a class's rows, in their order; nullptr for one that is empty.
template <class Info>
std::vector<const char*> Keys(const Info& info,
                              std::size_t (Info::*count)() const noexcept,
                              const char* (Info::*key)(std::size_t) const noexcept) {
    std::vector<const char*> keys;
    for (std::size_t row = 0; row < (info.*count)(); ++row) {
        keys.push_back((info.*key)(row));
    }
    return keys;
}

/// How many rows an answer may add: one for each of its objects, none when it is no JSON.
std::size_t MostRows(std::string_view answer) {
    return Tests::IsJson(answer) ? static_cast<std::size_t>(std::ranges::count(answer, '{')) : 0;
}

void RequireSaneRows(const std::vector<const char*>& keys, const char* firmwares, std::size_t mostAdded) {
    std::size_t firmwareRows = 0;
    const char* previous = "";
    for (const char* const key : keys) {
        if (key != nullptr) {
            firmwareRows += std::strcmp(key, firmwares) == 0 ? 1U : 0U;
            Fuzz::Require(std::strcmp(previous, key) <= 0, "rows stand in the order of their keys");
            previous = key;
        }
    }
    Fuzz::Require(firmwareRows >= 1, "the firmware's row stays, whatever is answered");
    Fuzz::Require(keys.size() <= 1 + mostAdded, "an answer adds no more rows than it has objects");
}

void CheckRows(std::string_view answer) {
    using Parsers::MemoryInfo;
    using Parsers::ProcessorInfo;
    const std::size_t mostAdded = MostRows(answer);
    MemoryInfo memory;
    memory.RetrieveInfo();
    RequireSaneRows(Keys(memory, &MemoryInfo::GetMemoryDeviceCount, &MemoryInfo::GetSerialNumber),
                    kSerialNumber,
                    mostAdded);
    ProcessorInfo processors;
    processors.RetrieveInfo();
    RequireSaneRows(Keys(processors, &ProcessorInfo::GetCPUCount, &ProcessorInfo::GetProcessorID),
                    kProcessorId,
                    mostAdded);
}

/// The reports ask every getter.
void CheckReports() {
    Fuzz::RequireJson([](std::ostream& output) { Inspect::ReportMemory({.json = true}, {}, output); });
    Fuzz::RequireText([](std::ostream& output) { Inspect::ReportMemory({}, {.width = 80}, output); });
    Fuzz::RequireJson([](std::ostream& output) { Inspect::ReportProcessors({.json = true}, {}, output); });
    Fuzz::RequireText([](std::ostream& output) { Inspect::ReportProcessors({}, {.width = 80}, output); });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Tests::FakeFirmwareTable firmware(Machine());
    const std::string_view answer(reinterpret_cast<const char*>(data), size);
    const Fuzz::AnsweringPowerShell powerShell(answer);
    CheckRows(answer);
    CheckReports();
    return 0;
}
