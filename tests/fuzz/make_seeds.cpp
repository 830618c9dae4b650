// Writes the seeds that are tables or hold one: small tables of every structure type, and captures of them.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <iostream>
#include <string>
#include <vector>

#include "samples/table_builder.h"
#include "tests/fuzz/entry_point_sums.h"

namespace {

namespace fs = std::filesystem;
using Bytes = std::vector<std::uint8_t>;
using SMBIOS::Samples::StructureBuilder;
using SMBIOS::Samples::TableBuilder;

/// A structure to begin with: small numbers are string numbers, counts and codes that mean something.
struct Sample {
    std::uint8_t type;
    std::uint8_t length;
};

StructureBuilder Filled(Sample sample) {
    constexpr std::uint8_t kCodes = 4;
    StructureBuilder structure(sample.type, sample.length, sample.type);
    for (std::size_t offset = 4; offset < sample.length; ++offset) {
        structure.Byte(offset, static_cast<std::uint8_t>(offset % kCodes));
    }
    return structure.String("One").String("Two 2").String("three");
}

struct Version {
    std::uint8_t major;
    std::uint8_t minor;
};

Bytes Table(Version version, std::initializer_list<Sample> samples) {
    TableBuilder table(version.major, version.minor, 0);
    for (const Sample& sample : samples) {
        table.Add(Filled(sample));
    }
    return table.Add({127, 4, 127}).RawTable();
}

constexpr std::size_t kHeader = 8;
constexpr std::size_t kTable = 0x20;

/// An entry point whose sums are right, and at its address the structures of a raw table.
Bytes Capture(Bytes entryPoint, const Bytes& rawTable) {
    entryPoint.resize(kTable);
    entryPoint.insert(entryPoint.end(), rawTable.begin() + kHeader, rawTable.end());
    SMBIOS::Fuzz::MendSums(entryPoint);
    return entryPoint;
}

/// For version 2.8; tells the exact length of the table.
Bytes EntryPoint32(const Bytes& rawTable) {
    const std::size_t size = rawTable.size() - kHeader;
    return {'_',
            'S',
            'M',
            '_',
            0,
            0x1F,
            2,
            8,
            0,
            0,
            0,
            0,
            0,
            0,
            0,
            0,
            '_',
            'D',
            'M',
            'I',
            '_',
            0,
            static_cast<std::uint8_t>(size),
            static_cast<std::uint8_t>(size >> 8),
            kTable};
}

/// For version 3.5.1; tells no more than a largest length.
Bytes EntryPoint64() {
    return {'_', 'S', 'M', '3', '_', 0, 0x18, 3, 5, 1, 1, 0, 0, 0x10, 0, 0, kTable};
}

void Write(const fs::path& file, const Bytes& bytes) {
    std::ofstream stream(file, std::ios::binary);
    stream.exceptions(std::ios::failbit | std::ios::badbit);
    stream.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

void WriteTables(const fs::path& folder) {
    Write(folder / "first.bin",
          Table({2, 0}, {{0, 0x12}, {1, 0x08}, {2, 0x08}, {3, 0x09}, {4, 0x1A}, {7, 0x0F}}));
    Write(folder / "pointing.bin", Table({2, 1}, {{21, 0x07}, {17, 0x15}, {18, 0x17}, {9, 0x0D}}));
    Write(folder / "system.bin", Table({3, 8}, {{0, 0x1A}, {1, 0x1B}, {2, 0x11}, {3, 0x1A}}));
    Write(folder / "processors.bin", Table({3, 8}, {{4, 0x32}, {4, 0x30}, {7, 0x1B}, {7, 0x13}}));
    Write(folder / "ports.bin",
          Table({3, 4}, {{8, 0x09}, {9, 0x18}, {11, 0x05}, {32, 0x0B}, {41, 0x0B}, {43, 0x1F}}));
    Write(folder / "memory.bin", Table({3, 7}, {{16, 0x17}, {17, 0x64}, {17, 0x22}, {18, 0x17}, {33, 0x1F}}));
    Write(folder / "addresses.bin",
          Table({2, 8}, {{16, 0x0F}, {17, 0x28}, {19, 0x1F}, {20, 0x23}, {19, 0x0F}}));
    Write(folder / "power.bin",
          Table({3, 0}, {{22, 0x1A}, {26, 0x16}, {27, 0x0F}, {28, 0x16}, {29, 0x16}, {39, 0x16}}));
}

void WriteTablesOfStandard(const fs::path& folder) {
    Write(folder / "system.bin", Table({3, 8}, {{0, 0x1A}, {1, 0x1B}, {2, 0x11}, {3, 0x1A}, {4, 0x32}}));
    Write(folder / "controllers.bin",
          Table({2, 1}, {{5, 0x18}, {6, 0x0C}, {7, 0x1B}, {8, 0x09}, {10, 0x0A}}));
    Write(folder / "slots.bin", Table({3, 6}, {{9, 0x18}, {11, 0x05}, {12, 0x05}, {13, 0x16}, {14, 0x0B}}));
    Write(folder / "log.bin", Table({2, 8}, {{15, 0x1D}, {16, 0x17}, {18, 0x17}, {19, 0x1F}, {20, 0x23}}));
    Write(folder / "memory.bin", Table({3, 8}, {{17, 0x64}, {17, 0x28}, {33, 0x1F}, {37, 0x0D}}));
    Write(
        folder / "power.bin",
        Table({3, 0}, {{21, 0x07}, {22, 0x1A}, {23, 0x0D}, {24, 0x05}, {25, 0x09}, {26, 0x16}, {39, 0x16}}));
    Write(folder / "cooling.bin",
          Table({3, 0}, {{27, 0x0F}, {28, 0x16}, {29, 0x16}, {30, 0x06}, {31, 0x1C}}));
    Write(folder / "management.bin",
          Table({3, 0}, {{32, 0x14}, {34, 0x0B}, {35, 0x0B}, {36, 0x10}, {38, 0x12}, {40, 0x0F}}));
    Write(
        folder / "newest.bin",
        Table({3, 8}, {{41, 0x0B}, {42, 0x1C}, {43, 0x1F}, {44, 0x20}, {45, 0x1A}, {46, 0x09}, {200, 0x0A}}));
}

/// A table and the same with other bytes in the middle, behind the byte that says where the second begins.
Bytes Pair(const Bytes& table) {
    constexpr std::uint8_t kFourEighths = 4;
    Bytes pair = {kFourEighths};
    pair.insert(pair.end(), table.begin(), table.end());
    pair.insert(pair.end(), table.begin(), table.end());
    for (std::size_t i = table.size() + table.size() / 2; i < table.size() + table.size() / 2 + 4; ++i) {
        ++pair[i];
    }
    return pair;
}

void WritePairs(const fs::path& folder) {
    Write(folder / "memory.bin", Pair(Table({3, 2}, {{16, 0x17}, {17, 0x28}, {17, 0x28}, {20, 0x23}})));
    Write(folder / "processors.bin", Pair(Table({3, 0}, {{4, 0x2A}, {7, 0x13}, {7, 0x13}})));
    Write(folder / "groups.bin", Pair(Table({3, 0}, {{2, 0x11}, {14, 0x0B}, {200, 0x0A}})));
    Write(folder / "slots.bin", Pair(Table({3, 2}, {{9, 0x18}, {8, 0x09}, {41, 0x0B}, {126, 0x08}})));
}

void WriteSavedTables(const fs::path& folder) {
    const Bytes rawTable = Table({3, 0}, {{1, 0x08}, {2, 0x08}});
    Write(folder / "raw.bin", rawTable);
    Write(folder / "entry-point-32.bin", Capture(EntryPoint32(rawTable), rawTable));
    Write(folder / "entry-point-64.bin", Capture(EntryPoint64(), rawTable));
}

}  // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount != 2) {
        std::cerr << "usage: make-fuzz-seeds FOLDER\n";
        return 2;
    }
    try {
        const fs::path folder = arguments[1];
        WriteTables(folder / "table");
        WriteTables(folder / "summary");
        WriteTables(folder / "departures");
        WritePairs(folder / "diff");
        WriteTablesOfStandard(folder / "firmware");
        WriteTables(folder / "picture");
        WriteSavedTables(folder / "saved-table");
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "make-fuzz-seeds: " << error.what() << '\n';
        return 1;
    }
}
