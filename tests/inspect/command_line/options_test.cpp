#include "smbios-inspect/command_line/options.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "smbios-inspect/reports/value_keys.h"
#include "tests/inspect/run_tool.h"

namespace SMBIOS::Inspect {
namespace {

using Words = std::vector<std::string_view>;

std::string ErrorOf(const Words& words) {
    try {
        (void)ParseOptions(words);
    } catch (const UsageError& error) {
        return error.what();
    }
    return "none";
}

TEST(Options, WithoutACommandTheSummaryIsMeant) {
    const Options options = ParseOptions({});
    EXPECT_EQ(options.command, Command::summary);
    EXPECT_EQ(options.report.from, std::nullopt);
    EXPECT_FALSE(options.report.json);
    EXPECT_FALSE(options.force);
    EXPECT_TRUE(options.report.types.empty());
    EXPECT_EQ(options.target, "");
}

TEST(Options, NameEveryCommand) {
    EXPECT_EQ(ParseOptions(Words{"summary"}).command, Command::summary);
    EXPECT_EQ(ParseOptions(Words{"memory"}).command, Command::memory);
    EXPECT_EQ(ParseOptions(Words{"processors"}).command, Command::processors);
    EXPECT_EQ(ParseOptions(Words{"structures"}).command, Command::structures);
    EXPECT_EQ(ParseOptions(Words{"departures"}).command, Command::departures);
    EXPECT_EQ(ParseOptions(Words{"save", "file"}).command, Command::save);
}

TEST(Options, NameTheFileToSaveTo) {
    EXPECT_EQ(ParseOptions(Words{"save", "file"}).target, "file");
}

TEST(Options, TakeTheFileToReadInBothSpellings) {
    EXPECT_EQ(ParseOptions(Words{"memory", "--from", "file"}).report.from, "file");
    EXPECT_EQ(ParseOptions(Words{"memory", "--from=file"}).report.from, "file");
    EXPECT_EQ(ParseOptions(Words{"--from=a=b"}).report.from, "a=b");
}

TEST(Options, TakeTheFileToReadForEveryCommand) {
    for (const Words& words : {Words{"--from=x"},
                               Words{"summary", "--from=x"},
                               Words{"memory", "--from=x"},
                               Words{"processors", "--from=x"},
                               Words{"structures", "--from=x"},
                               Words{"departures", "--from=x"},
                               Words{"save", "file", "--from=x"}}) {
        EXPECT_EQ(ParseOptions(words).report.from, "x") << words[0];
    }
}

TEST(Options, ADashIsStandardInput) {
    EXPECT_EQ(ParseOptions(Words{"--from", "-"}).report.from, "-");
    EXPECT_EQ(ParseOptions(Words{"--from=-"}).report.from, "-");
}

TEST(Options, TakeTypesInBothSpellingsAndSeveralTimes) {
    const Options options =
        ParseOptions(Words{"structures", "--type", "17", "--type=0", "--type=255", "--type", "17"});
    EXPECT_EQ(options.report.types, (std::set<std::uint8_t>{0, 17, 255}));
}

TEST(Options, TakeTypesByTheirWords) {
    EXPECT_EQ(ParseOptions(Words{"structures", "--type=memory"}).report.types,
              (std::set<std::uint8_t>{5, 6, 16, 17}));
}

TEST(Options, TakeListsOfTypes) {
    EXPECT_EQ(ParseOptions(Words{"firmware", "--type", "bios,17,0x7F"}).report.types,
              (std::set<std::uint8_t>{0, 13, 17, 127}));
}

TEST(Options, TakeTheKeysOfGetInTheirOrder) {
    const Options options = ParseOptions(Words{"get", "system.uuid", "memory.total", "system.uuid"});
    EXPECT_EQ(options.command, Command::get);
    EXPECT_EQ(options.report.keys,
              (std::vector{
                  FindValueKey("system.uuid"), FindValueKey("memory.total"), FindValueKey("system.uuid")}));
}

TEST(Options, AnUnknownKeyIsAnErrorThatNamesAllKeys) {
    const std::string error = ErrorOf({"get", "system.uuid", "system.name"});
    EXPECT_TRUE(error.starts_with("unknown key 'system.name'; the keys are firmware.vendor, ")) << error;
    for (const ValueKey& key : ValueKeys()) {
        EXPECT_NE(error.find(key.name), std::string::npos) << key.name;
    }
}

TEST(Options, TakeBytesForFirmware) {
    EXPECT_TRUE(ParseOptions(Words{"firmware", "--bytes"}).report.bytes);
    EXPECT_EQ(ErrorOf({"structures", "--bytes"}), "structures does not take --bytes");
    EXPECT_EQ(ErrorOf({"firmware", "--bytes", "--bytes"}), "option --bytes is given twice");
    EXPECT_EQ(ErrorOf({"firmware", "--bytes", "--quiet"}), "firmware takes --bytes or --quiet, not both");
}

TEST(Options, TakeJsonWhereThereIsSome) {
    EXPECT_TRUE(ParseOptions(Words{"--json"}).report.json);
    for (const std::string_view command : {"summary", "memory", "processors", "structures", "departures"}) {
        EXPECT_TRUE(ParseOptions(Words{command, "--json"}).report.json) << command;
    }
}

TEST(Options, TakeForceForSave) {
    EXPECT_TRUE(ParseOptions(Words{"save", "--force", "file"}).force);
}

TEST(Options, TakeAFileForThePicture) {
    EXPECT_EQ(ParseOptions(Words{"picture"}).target, "");
    EXPECT_EQ(ParseOptions(Words{"picture", "--output", "file"}).target, "file");
    EXPECT_TRUE(ParseOptions(Words{"--force", "--output=file", "picture"}).force);
}

TEST(Options, AFileForThePictureIsAFile) {
    EXPECT_EQ(ErrorOf({"picture", "--output"}), "option --output needs a value");
    EXPECT_EQ(ErrorOf({"picture", "--output", "-"}), "picture prints to standard output without --output");
    EXPECT_EQ(ErrorOf({"picture", "--output", "a", "--output=b"}), "option --output is given twice");
    EXPECT_EQ(ErrorOf({"picture", "--force"}), "picture takes --force only with --output");
    EXPECT_EQ(ErrorOf({"picture", "file"}), "unexpected argument 'file'");
}

TEST(Options, StandInAnyOrder) {
    const Options options = ParseOptions(Words{"--from", "in", "--force", "save", "out"});
    EXPECT_EQ(options.command, Command::save);
    EXPECT_EQ(options.report.from, "in");
    EXPECT_EQ(options.target, "out");
    EXPECT_TRUE(options.force);
}

TEST(Options, AskForHelpInBothSpellingsWhateverElseIsAskedFor) {
    EXPECT_EQ(ParseOptions(Words{"--help"}).command, Command::help);
    EXPECT_EQ(ParseOptions(Words{"-h"}).command, Command::help);
    EXPECT_EQ(ParseOptions(Words{"nonsense", "--help"}).command, Command::help);
}

TEST(Options, AskForTheVersion) {
    EXPECT_EQ(ParseOptions(Words{"--version"}).command, Command::version);
}

TEST(Options, AnUnknownCommandIsAnError) {
    EXPECT_EQ(ErrorOf({"reboot"}), "unknown command 'reboot'");
    EXPECT_EQ(ErrorOf({""}), "unknown command ''");
}

TEST(Options, AnUnknownOptionIsAnError) {
    EXPECT_EQ(ErrorOf({"--colour"}), "unknown option --colour");
    EXPECT_EQ(ErrorOf({"-x"}), "unknown option -x");
    EXPECT_EQ(ErrorOf({"memory", "--json=yes"}), "unknown option --json=yes");
    EXPECT_EQ(ErrorOf({"--fromfile"}), "unknown option --fromfile");
}

TEST(Options, AnOptionGivenTwiceIsAnError) {
    EXPECT_EQ(ErrorOf({"--from", "a", "--from=b"}), "option --from is given twice");
    EXPECT_EQ(ErrorOf({"memory", "--json", "--json"}), "option --json is given twice");
    EXPECT_EQ(ErrorOf({"save", "a", "--force", "--force"}), "option --force is given twice");
}

TEST(Options, SaveDoesNotWriteToStandardOutput) {
    EXPECT_EQ(ErrorOf({"save", "-"}), "save writes a file, not standard output");
}

TEST(Options, AnOptionWithoutItsValueIsAnError) {
    EXPECT_EQ(ErrorOf({"--from"}), "option --from needs a value");
    EXPECT_EQ(ErrorOf({"--from="}), "option --from needs a value");
    EXPECT_EQ(ErrorOf({"--from", ""}), "option --from needs a value");
    EXPECT_EQ(ErrorOf({"structures", "--type"}), "option --type needs a value");
}

TEST(Options, ATypeThatIsNoByteAndNoWordIsAnError) {
    for (const std::string type : {"256", "-1", "0x100", "0x", "17 ", "x", "Memory"}) {
        const std::string error = ErrorOf({"structures", "--type", type});
        EXPECT_TRUE(error.starts_with("'" + type +
                                      "' is no structure type: a number from 0 to 255, or one of bios, "))
            << error;
    }
}

TEST(Options, AListOfTypesWithAnErrorIsOne) {
    for (const std::string list : {",", "17,", ",17", "16,,17", "16,x"}) {
        EXPECT_NE(ErrorOf({"structures", "--type", list}), "none") << list;
    }
}

TEST(Options, AnOptionOfAnotherCommandIsAnError) {
    EXPECT_EQ(ErrorOf({"get", "--json"}), "get does not take --json");
    EXPECT_EQ(ErrorOf({"save", "file", "--json"}), "save does not take --json");
    EXPECT_EQ(ErrorOf({"memory", "--type=17"}), "memory does not take --type");
    EXPECT_EQ(ErrorOf({"structures", "--force"}), "structures does not take --force");
    EXPECT_EQ(ErrorOf({"save", "file", "--output=file"}), "save does not take --output");
}

TEST(Options, SaveWithoutAFileIsAnError) {
    EXPECT_EQ(ErrorOf({"save"}), "save needs the file to write");
    EXPECT_EQ(ErrorOf({"save", ""}), "save needs the file to write");
}

TEST(Options, AWordTooManyIsAnError) {
    EXPECT_EQ(ErrorOf({"memory", "file"}), "unexpected argument 'file'");
    EXPECT_EQ(ErrorOf({"save", "one", "two"}), "unexpected argument 'two'");
}

TEST(Options, TheUsageTextNamesEveryCommandAndOption) {
    for (const std::string_view word : {"summary",
                                        "memory",
                                        "processors",
                                        "structures",
                                        "get",
                                        "picture",
                                        "save",
                                        "--from",
                                        "--json",
                                        "--type",
                                        "--bytes",
                                        "--output",
                                        "--force",
                                        "--help",
                                        "--version"}) {
        EXPECT_NE(UsageText().find(word), std::string_view::npos) << word;
    }
}

TEST(Options, TheUsageTextFitsATerminal) {
    for (const std::string& line : Tests::LinesOf(std::string(UsageText()))) {
        EXPECT_LE(line.size(), 80U) << line;
    }
}

}  // namespace
}  // namespace SMBIOS::Inspect
