#include "tests/threads/machine.h"

#include <algorithm>

#include "samples/table_builder.h"
#include "tests/support/prepared_output.h"

namespace SMBIOS::Tests {

namespace {

using Samples::StructureBuilder;
using Samples::TableBuilder;

StructureBuilder Device(std::size_t number) {
    return StructureBuilder(17, 0x28, static_cast<std::uint16_t>(0x1100 + number))
        .String(0x10, "A device locator of some length")
        .String(0x18, SerialNumberOf(number));
}

StructureBuilder Cache(std::uint16_t handle, std::uint16_t kilobytes) {
    return StructureBuilder(7, 0x13, handle).Word(0x07, kilobytes).Word(0x09, kilobytes);
}

/// A processor with a first cache, without a second one, and with a third one that is not in the table.
StructureBuilder Processor(std::size_t number) {
    return StructureBuilder(4, 0x2A, static_cast<std::uint16_t>(0x0400 + number))
        .Qword(0x08, 0xBFEBFBFF00000000U + number)
        .String(0x07, "The firmware's manufacturer")
        .Word(0x1A, 0x0700)
        .Word(0x1C, 0xFFFF)
        .Word(0x1E, 0x0799);
}

std::vector<std::uint8_t> Table() {
    TableBuilder table(2, 8, 0);
    for (std::size_t number = 0; number < kDevices; ++number) {
        table.Add(Device(number));
    }
    table.Add(Cache(0x0700, 64));
    for (std::size_t number = 0; number < kProcessors; ++number) {
        table.Add(Processor(number));
    }
    return table.RawTable();
}

std::string DeviceAnswer(std::size_t number) {
    return R"({"SerialNumber":")" + SerialNumberOf(number) +
           R"(","PositionInRow":1,"Tag":"A tag that WMI alone knows of","Manufacturer":"A maker by WMI's word"})";
}

std::string ProcessorAnswer(std::size_t number) {
    return R"({"ProcessorId":"BFEBFBFF0000000)" + std::to_string(number) +
           R"(","L2CacheSize":1024,"L3CacheSize":8192,"Manufacturer":"WMI's manufacturer","Name":"A processor"})";
}

template <class Answer>
std::string ListOf(std::size_t count, Answer answer) {
    std::string list;
    for (std::size_t number = 0; number < count; ++number) {
        list += (list.empty() ? "[" : ",") + answer(number);
    }
    return list + "]";
}

}  // namespace

Machine::Machine() : table_(Table()) {
    Platform::UseFirmwareTable(this);
    Platform::UseCommandRunner(this);
}

Machine::~Machine() {
    Platform::UseFirmwareTable(nullptr);
    Platform::UseCommandRunner(nullptr);
}

std::uint32_t Machine::Read(std::uint32_t, std::uint32_t, std::span<std::uint8_t> buffer) {
    if (buffer.empty()) {
        ++attempts_;
        return failures_-- > 0 ? 0 : static_cast<std::uint32_t>(table_.size());
    }
    std::ranges::copy(table_, buffer.begin());
    return static_cast<std::uint32_t>(table_.size());
}

std::unique_ptr<Platform::ProgramOutput> Machine::Start(const std::string& commandLine) {
    const bool asksForDevices = commandLine.find("Win32_PhysicalMemory") != std::string::npos;
    return std::make_unique<PreparedOutput>(asksForDevices ? ListOf(kDevices, DeviceAnswer)
                                                           : ListOf(kProcessors, ProcessorAnswer));
}

std::string SerialNumberOf(std::size_t number) {
    return "SERIAL-NUMBER-OF-DEVICE-" + std::to_string(number);
}

}  // namespace SMBIOS::Tests
