#include "smbios-inspect/comparison/difference_text.h"

#include <ostream>
#include <string>

#include "smbios-inspect/comparison/change_text.h"
#include "smbios-inspect/comparison/title.h"
#include "smbios-inspect/output/field_block.h"
#include "smbios-inspect/output/text_layout.h"
#include "smbios-inspect/standard/structure.h"

namespace SMBIOS::Inspect::Comparing {

namespace {

/// What has become of a structure.
struct Fate {
    std::string_view sign;
    Emphasis emphasis;
};

constexpr Fate kAdded = {"+ ", Emphasis::added};
constexpr Fate kRemoved = {"- ", Emphasis::removed};
constexpr Fate kChanged = {"~ ", Emphasis::changed};

class DifferencePrinter {
public:
    DifferencePrinter(const OutputStyle& style, std::ostream& output) noexcept
        : style_(style), output_(output) {}

    /// A title that is too wide goes on below itself.
    void PrintTitle(const Fate& fate, const std::string& title) const {
        const std::size_t start = fate.sign.size();
        const std::size_t room = style_.width > start ? style_.width - start : style_.width;
        std::string line(fate.sign);
        for (const std::string& words : WrapWords(Printable(title), room)) {
            output_ << Emphasised(line + words, fate.emphasis, style_) << '\n';
            line.assign(start, ' ');
        }
    }

    void PrintChanged(const std::string& title, const std::vector<ChangeText>& changes) const {
        PrintTitle(kChanged, title);
        FieldTexts texts;
        for (const ChangeText& change : changes) {
            texts.BeginField(change.label);
            for (const std::string& line : change.lines) {
                texts.AddLine(line);
            }
        }
        FieldPrinter(style_, output_).Print(texts);
    }

    void PrintCounts(const Counts& counts) const {
        PrintSentence(std::to_string(counts.added) + " added, " + std::to_string(counts.removed) +
                          " removed, " + std::to_string(counts.changed) + " changed, " +
                          std::to_string(counts.same) + " the same",
                      style_,
                      output_);
    }

private:
    const OutputStyle& style_;
    std::ostream& output_;
};

void PrintVersions(const Comparison& comparison, const DifferencePrinter& printer) {
    const Standard::TableVersion before = comparison.Before().table.Version();
    const Standard::TableVersion after = comparison.After().table.Version();
    if (before != after) {
        printer.PrintChanged("SMBIOS table",
                             {{"Version", {VersionText(before) + " -> " + VersionText(after)}}});
    }
}

}  // namespace

Counts PrintDifferences(const Comparison& comparison, const OutputStyle& style, std::ostream& output) {
    const DifferencePrinter printer(style, output);
    PrintVersions(comparison, printer);
    for (const Index before : RemovedFrom(comparison)) {
        printer.PrintTitle(kRemoved, TitleOf(comparison.Before(), before));
    }
    const Counts counts = VisitChanges(comparison, [&](Index before, Index after, const auto& changes) {
        printer.PrintChanged(TitleOfPair(comparison, before, after), TextOf(comparison, changes));
    });
    for (const Index after : AddedTo(comparison)) {
        printer.PrintTitle(kAdded, TitleOf(comparison.After(), after));
    }
    if (HasDifference(comparison, counts)) {
        output << '\n';
    }
    printer.PrintCounts(counts);
    return counts;
}

}  // namespace SMBIOS::Inspect::Comparing
