#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "manager/smbios_version.h"
#include "manager/structure_factory.h"
#include "manager/structure_walk.h"
#include "smbios-inspect/records/filed_structure.h"
#include "structures/decoded_types.h"
#include "tests/support/harmless_text.h"
#include "tests/support/json.h"
#include "tests/support/random.h"

// Whatever the firmware writes, the output stays valid and harmless. Below the manager, which loads only
// once.
namespace SMBIOS::Tests {
namespace {

using Inspect::FiledStructure;
using Inspect::OutputStyle;
using Manager::SmbiosVersionIndex;
using Manager::Types::StructureTypes;

constexpr int kTables = 1500;

/// Makes tables, the same ones in every run.
class RandomContent : public Random {
public:
    using Random::Random;

    std::uint8_t Byte() { return static_cast<std::uint8_t>(Below(256)); }

    /// Likelier one of a type that has a decoder.
    std::uint8_t Type() {
        const auto type = [this]<class... Types>(Structures::TypeList<Types...>) {
            constexpr StructureTypes kKeys[] = {Types::kKey...};
            return static_cast<std::uint8_t>(kKeys[Below(std::size(kKeys))]);
        };
        return Below(4) == 0 ? Byte() : type(Structures::DecodedTypes());
    }

    std::vector<std::uint8_t> Bytes(std::size_t count) {
        std::vector<std::uint8_t> bytes(count);
        std::ranges::generate(bytes, [&] { return Byte(); });
        return bytes;
    }

    /// A piece of text: letters, control bytes, whole and broken UTF-8.
    std::string Text() {
        static constexpr std::string_view kPieces[] = {
            "text",
            " ",
            "\x1B[31m",
            "\n",
            "\r",
            "\t",
            "\x7F",
            "\xC2\x9B",
            "\xE2\x82\xAC",
            "\xE2\x82",
            "\xFF",
            "\xC0\x80",
            "\xED\xA0\x80",
            "\xF4\x90\x80\x80",
            "\xF0\x9F\x98\x80",
            "\x80",
            "\"\\",
            "\x01",
        };
        std::string text;
        for (std::size_t i = Below(8); i > 0; --i) {
            text += kPieces[Below(std::size(kPieces))];
        }
        return text;
    }

    SmbiosVersionIndex Version() {
        using Manager::versionMap;
        const std::size_t newest = std::size(versionMap) - 1;
        return versionMap[Below(2) == 0 ? newest : Below(newest)].index;
    }
};

/// A structure whose header is right and whose fields may refer to its strings.
Manager::RawStructure WellFormedStructure(RandomContent& random) {
    Manager::RawStructure structure;
    structure.type = random.Type();
    structure.formattedBytes = random.Bytes(4 + random.Below(252));
    structure.formattedBytes[0] = structure.type;
    structure.formattedBytes[1] = static_cast<std::uint8_t>(structure.formattedBytes.size());
    for (std::uint8_t& byte : std::span(structure.formattedBytes).subspan(4)) {
        byte = random.Below(2) == 0 ? byte : static_cast<std::uint8_t>(byte % 8);
    }
    for (std::size_t i = random.Below(8); i > 0; --i) {
        structure.strings.push_back(random.Text());
    }
    return structure;
}

FiledStructure Decoded(const Manager::RawStructure& structure, SmbiosVersionIndex version) {
    auto [key, decoder] =
        Structures::StructureFactory::CreateTablePtr(StructureTypes{structure.type}, version);
    decoder->Process(structure.formattedBytes, structure.strings);
    return {key, std::move(decoder)};
}

void ExpectValidJson(const std::vector<FiledStructure>& structures) {
    const std::string text = JsonText([&](Inspect::JsonWriter& json) {
        json.BeginArray();
        for (const FiledStructure& structure : structures) {
            Inspect::WriteStructure(structure, json);
        }
        json.EndArray();
    });
    ASSERT_TRUE(IsHarmlessJson(text)) << text;
}

void ExpectHarmlessText(const std::vector<FiledStructure>& structures, const OutputStyle& style) {
    std::ostringstream output;
    for (const FiledStructure& structure : structures) {
        Inspect::StructurePrinter(style, output).Print(structure);
    }
    ASSERT_TRUE(IsHarmlessText(output.str())) << output.str();
}

TEST(StructuresOfRandomTables, RandomBytesGiveValidJsonAndHarmlessText) {
    RandomContent random(1);
    for (int i = 0; i < kTables; ++i) {
        const SmbiosVersionIndex version = random.Version();
        const std::vector<std::uint8_t> table = random.Bytes(random.Below(600));
        std::vector<FiledStructure> structures;
        Manager::StructureWalk walk(table);
        while (const auto structure = walk.Next()) {
            structures.push_back(Decoded(Manager::RawStructure::Of(*structure), version));
        }
        ASSERT_NO_FATAL_FAILURE(ExpectValidJson(structures)) << "table " << i;
        ASSERT_NO_FATAL_FAILURE(ExpectHarmlessText(structures, {.width = random.Below(120)}))
            << "table " << i;
    }
}

TEST(StructuresOfRandomTables, WellFormedStructuresWithWildStringsGiveValidJsonAndHarmlessText) {
    RandomContent random(2);
    for (int i = 0; i < kTables; ++i) {
        const SmbiosVersionIndex version = random.Version();
        const std::vector<FiledStructure> structures = {Decoded(WellFormedStructure(random), version),
                                                        Decoded(WellFormedStructure(random), version)};
        ASSERT_NO_FATAL_FAILURE(ExpectValidJson(structures)) << "table " << i;
        ASSERT_NO_FATAL_FAILURE(ExpectHarmlessText(structures, {.width = random.Below(120)}))
            << "table " << i;
    }
}

TEST(StructuresOfRandomTables, NoLineOfShortWordsIsWiderThanTheTerminal) {
    constexpr std::size_t kWidth = 80;
    RandomContent random(3);
    for (int i = 0; i < kTables; ++i) {
        const SmbiosVersionIndex version = random.Version();
        const OutputStyle style{.width = kWidth};
        std::ostringstream output;
        Inspect::StructurePrinter(style, output).Print(Decoded(WellFormedStructure(random), version));
        std::istringstream lines(output.str());
        for (std::string line; std::getline(lines, line);) {
            const auto isStart = [](char character) { return (character & 0xC0) != 0x80; };
            ASSERT_LE(std::ranges::count_if(line, isStart), std::ptrdiff_t{kWidth}) << line;
        }
    }
}

}  // namespace
}  // namespace SMBIOS::Tests
