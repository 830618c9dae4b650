#include "tests/support/worst_tables.h"

#include <string>

#include "samples/table_builder.h"

namespace SMBIOS::Tests {
namespace {

using Samples::StructureBuilder;
using Samples::TableBuilder;
using Bytes = std::vector<std::uint8_t>;

/// `pattern` again and again behind a header of version 3.2.0.
Bytes Repeated(const Bytes& pattern, std::size_t size) {
    TableBuilder table(3, 2, 0);
    for (std::size_t written = 0; written < size; written += pattern.size()) {
        table.AddBytes(pattern);
    }
    return table.RawTable();
}

/// What `add` adds, again and again; it is given the number of the time and a table.
template <class Add>
Bytes Numbered(std::size_t structureSize, std::size_t size, Add add) {
    TableBuilder table(3, 2, 0);
    for (std::size_t number = 0; number < size / structureSize; ++number) {
        add(table, number);
    }
    return table.RawTable();
}

Bytes Zeros(std::size_t size) {
    return Repeated({0}, size);
}

Bytes Ones(std::size_t size) {
    return Repeated({1}, size);
}

template <std::uint8_t type>
Bytes TwoByteStructures(std::size_t size) {
    return Repeated({type, 2}, size);
}

Bytes WithoutADoubleZero(std::size_t size) {
    Bytes device(0x1C, 1);
    device[0] = 17;
    device[1] = 0x1C;
    return Repeated(device, size);
}

Bytes OneStringSet(std::size_t size) {
    TableBuilder table(3, 2, 0);
    table.AddBytes({11, 5, 1, 0, 1});
    for (std::size_t written = 0; written < size; written += 2) {
        table.AddBytes({'a', 0});
    }
    return table.AddBytes({0}).RawTable();
}

Bytes ChassisWithElementsPastTheirEnd(std::size_t size) {
    return Numbered(26, size, [](TableBuilder& table, std::size_t) {
        table.Add(StructureBuilder(3, 0x18).Byte(0x13, 255).Byte(0x14, 255));
    });
}

Bytes ProcessorsWithCaches(std::size_t size) {
    return Numbered(0x2A + 2 + 0x13 + 2, size, [](TableBuilder& table, std::size_t number) {
        const auto handle = static_cast<std::uint16_t>(number);
        table.Add(StructureBuilder(4, 0x2A).Qword(0x08, number + 1).Word(0x1A, handle));
        table.Add(StructureBuilder(7, 0x13, handle).Word(0x07, 64));
    });
}

Bytes ArraysWithDevices(std::size_t size) {
    return Numbered(0x17 + 2 + 0x28 + 7, size, [](TableBuilder& table, std::size_t number) {
        const auto handle = static_cast<std::uint16_t>(number);
        table.Add(StructureBuilder(16, 0x17, handle));
        table.Add(StructureBuilder(17, 0x28).Word(0x04, handle).String(0x18, std::to_string(number)));
    });
}

/// Many devices of few bytes each, one of which has texts that are long.
Bytes DevicesBesideAWideOne(std::size_t size) {
    TableBuilder table(3, 2, 0);
    const std::string wide(size / 8, 'w');
    table.Add(StructureBuilder(17, 0x1C)
                  .String(0x10, wide)
                  .String(0x11, wide)
                  .String(0x17, wide)
                  .String(0x18, wide)
                  .String(0x1A, wide));
    for (std::size_t number = 0; number < size / 80; ++number) {
        table.Add(StructureBuilder(17, 0x19).String(0x18, std::to_string(number)));
    }
    return table.RawTable();
}

constexpr WorstTable kWorstTables[] = {
    {"Zeros", Zeros},
    {"Ones", Ones},
    {"TwoByteChassis", TwoByteStructures<3>},
    {"TwoByteProcessors", TwoByteStructures<4>},
    {"TwoByteDevices", TwoByteStructures<17>},
    {"TwoByteUnknowns", TwoByteStructures<200>},
    {"WithoutADoubleZero", WithoutADoubleZero},
    {"OneStringSet", OneStringSet},
    {"ChassisWithElementsPastTheirEnd", ChassisWithElementsPastTheirEnd},
    {"ProcessorsWithCaches", ProcessorsWithCaches},
    {"ArraysWithDevices", ArraysWithDevices},
    {"DevicesBesideAWideOne", DevicesBesideAWideOne},
};

}  // namespace

std::span<const WorstTable> WorstTables() {
    return kWorstTables;
}

}  // namespace SMBIOS::Tests
