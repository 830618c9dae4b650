#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "platform/raw_table_header.h"
#include "platform/saved_table.h"
#include "tests/inspect/captured_tables.h"
#include "tests/inspect/standard/labelled_values.h"
#include "tests/inspect/standard/standard_support.h"
#include "tests/platform/entry_point_bytes.h"
#include "tests/support/temporary_folder.h"

// What the standard's view prints of captured tables, beside what dmidecode prints of them.
namespace SMBIOS::Tests {
namespace {

constexpr int kLastComparedType = 43;

/// What dmidecode prints otherwise, and why; of its label and its value the beginning is enough.
struct KnownDifference {
    int type;
    std::string_view label;
    std::string_view value;
    std::string_view reason;
};

constexpr auto kKnownDifferences = std::to_array<KnownDifference>({
    {0, "Characteristics", "BIOS boot ", "the name of what it boots by is shortened to spec"},
    {4, "Upgrade", "Socket BGA1155", "upgrade 0x24 is Socket LGA1155 in the standard"},
    {4, "Characteristics", "None", "bit 1, which says that they are unknown, has a name here"},
    {43, "Spec", "", "the label is Spec Version"},
});

int TypeInDmidecodeHeading(const std::string& line) {
    constexpr std::string_view kMark = ", DMI type ";
    const std::size_t mark = line.find(kMark);
    const bool isHeading = line.starts_with("Handle 0x") && mark != std::string::npos;
    return isHeading ? std::stoi(line.substr(mark + kMark.size())) : -1;
}

/// One unit has two spellings: "16 GB" is "16 GiB" here. Blanks at the end of a firmware's text do not count.
std::string AsComparable(std::string value) {
    for (const std::string_view unit : {" kB", " MB", " GB", " TB"}) {
        for (std::size_t at = value.find(unit); at != std::string::npos; at = value.find(unit, at + 1)) {
            const std::size_t end = at + unit.size();
            if (end == value.size() || std::isalnum(static_cast<unsigned char>(value[end])) == 0) {
                value[at + 1] = static_cast<char>(std::toupper(static_cast<unsigned char>(value[at + 1])));
                value.insert(at + 2, 1, 'i');
            }
        }
    }
    value.erase(value.find_last_not_of(' ') + 1);
    return value;
}

bool IsKnownDifference(int type, const LabelledValue& pair) {
    return std::ranges::any_of(kKnownDifferences, [&](const KnownDifference& known) {
        return known.type == type && pair.first.starts_with(known.label) &&
               pair.second.starts_with(known.value);
    });
}

/// Takes the pair out of `values`; false when it is not there.
bool Take(std::vector<LabelledValue>& values, const LabelledValue& pair) {
    const auto found = std::ranges::find_if(values, [&](const LabelledValue& each) {
        return each.first == pair.first && AsComparable(each.second) == AsComparable(pair.second);
    });
    if (found == values.end()) {
        return false;
    }
    values.erase(found);
    return true;
}

class DmidecodeComparison : public testing::TestWithParam<const char*> {
protected:
    void SetUp() override {
        const std::filesystem::path file = std::filesystem::path(SMBIOS_DUMPS_DIR) / GetParam();
        if (!std::filesystem::exists(file)) {
            GTEST_SKIP() << "no captured table " << file;
        }
        if (std::system("dmidecode --version >/dev/null 2>&1") != 0) {
            GTEST_SKIP() << "dmidecode is not installed";
        }
        table_ = Platform::LoadSavedTable(file);
        ours_ = PrintedStructures(FirmwareText(table_), TypeInHeading);
        theirs_ = PrintedStructures(DmidecodeText(file), TypeInDmidecodeHeading);
    }

    /// A raw table gets the entry point that dmidecode asks for.
    [[nodiscard]] std::filesystem::path WithEntryPoint(const std::filesystem::path& file) const {
        if (file.extension() != ".raw") {
            return file;
        }
        const auto structures = Platform::RawTableHeader::StructuresOf(table_);
        Bytes entryPoint = EntryPoint64();
        for (std::size_t i = 0; i < 3; ++i) {
            ChangeByte(entryPoint, 0x07 + i, table_[1 + i], kChecksum64);
        }
        for (std::size_t i = 0; i < 4; ++i) {
            ChangeByte(
                entryPoint, 0x0C + i, static_cast<std::uint8_t>(structures.size() >> (8 * i)), kChecksum64);
        }
        return folder_.Write("capture", Capture(entryPoint, structures));
    }

    [[nodiscard]] std::string DmidecodeText(const std::filesystem::path& file) const {
        const std::filesystem::path output = folder_.Path() / "output";
        const std::string command = "dmidecode --from-dump '" + WithEntryPoint(file).string() + "' >'" +
                                    output.string() + "' 2>/dev/null";
        EXPECT_EQ(std::system(command.c_str()), 0);
        return ContentsOf(output);
    }

    TemporaryFolder folder_;
    std::vector<std::uint8_t> table_;
    std::vector<PrintedStructure> ours_;
    std::vector<PrintedStructure> theirs_;
};

TEST_P(DmidecodeComparison, StructuresAreTheSameInTheSameOrder) {
    ASSERT_EQ(ours_.size(), theirs_.size());
    EXPECT_TRUE(std::ranges::equal(ours_, theirs_, {}, &PrintedStructure::type, &PrintedStructure::type));
}

TEST_P(DmidecodeComparison, EveryLabelAndValueIsThereExceptForTheKnownDifferences) {
    ASSERT_EQ(ours_.size(), theirs_.size());
    for (std::size_t i = 0; i < theirs_.size(); ++i) {
        const int type = theirs_[i].type;
        for (const LabelledValue& pair : theirs_[i].values) {
            if (type <= kLastComparedType && !IsKnownDifference(type, pair)) {
                EXPECT_TRUE(Take(ours_[i].values, pair))
                    << "structure " << i << " of type " << type << ", " << pair.first << ": " << pair.second;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Captures,
                         DmidecodeComparison,
                         testing::ValuesIn(kCapturedTables),
                         [](const auto& tested) { return AsTestName(tested.param); });

}  // namespace
}  // namespace SMBIOS::Tests
