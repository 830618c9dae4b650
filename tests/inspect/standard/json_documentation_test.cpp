#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <span>
#include <string>
#include <string_view>

#include "smbios-inspect/records/structure_heading.h"
#include "smbios-inspect/standard/types.h"
#include "structures/hex_text.h"
#include "tests/inspect/made_document.h"

// docs/json.md is made from the descriptions of the types, but for its first part. When it is out of date,
// run this test with SMBIOS_UPDATE_DOCS=1 in the environment: that writes it anew.
namespace SMBIOS::Tests {
namespace {

using Inspect::Standard::FieldRow;
using Inspect::Standard::GroupTable;
using Inspect::Standard::TypeDescription;
using Inspect::Standard::ValueKind;

constexpr std::string_view kGeneratedPart = "## The fields of each type\n";

std::string KindText(ValueKind kind) {
    switch (kind) {
        case ValueKind::text:
            return "text";
        case ValueKind::number:
            return "number";
        case ValueKind::code:
            return "code";
        case ValueKind::flags:
            return "flags";
        case ValueKind::handle:
            return "handle";
        case ValueKind::list:
            return "list";
        case ValueKind::handleList:
            return "list of handles";
    }
    return {};
}

/// A table of fields; of those with one name only the first is in it.
class FieldTable {
public:
    void Add(std::span<const FieldRow> rows, bool hasOffsets) {
        for (const FieldRow& row : rows) {
            if (names_.insert(row.name).second) {
                AddRow(row, hasOffsets ? Structures::PaddedHexText(row.offset, 2) : "varies");
            }
        }
    }

    [[nodiscard]] std::string Text() const {
        return names_.empty() ? "" : "| Field | Offset | Kind | Unit |\n|---|---|---|---|\n" + lines_;
    }

private:
    void AddRow(const FieldRow& row, const std::string& offset) {
        lines_ += "| `" + std::string(row.name) + "` | " + offset + " | " + KindText(row.form.kind) + " | " +
                  std::string(row.form.unit) + " |\n";
    }

    std::set<std::string_view> names_;
    std::string lines_;
};

std::string FieldsOf(const TypeDescription& description) {
    FieldTable own;
    own.Add(description.rows, true);
    for (const GroupTable& group : description.groups) {
        if (group.group.empty()) {
            own.Add(group.rows, false);
        }
    }
    return own.Text();
}

std::string GroupsOf(const TypeDescription& description) {
    std::string text;
    std::set<std::string_view> groups;
    for (const GroupTable& group : description.groups) {
        if (group.group.empty() || !groups.insert(group.group).second) {
            continue;
        }
        FieldTable table;
        for (const GroupTable& part : description.groups) {
            if (part.group == group.group) {
                table.Add(part.rows, false);
            }
        }
        text += "\nEach element of `" + std::string(group.group) + "`:\n\n" + table.Text();
    }
    return text;
}

std::string GeneratedPart() {
    std::string text(kGeneratedPart);
    for (const TypeDescription* description : Inspect::Standard::AllTypes()) {
        const std::string fields = FieldsOf(*description);
        text += "\n### Type " + std::to_string(description->type) + ": " +
                std::string(Inspect::StructureName(description->type)) + "\n" + (fields.empty() ? "" : "\n") +
                fields + GroupsOf(*description);
    }
    return text;
}

class JsonDocumentation : public testing::Test {
protected:
    void SetUp() override {
        file_ = DocumentNamed("json.md");
        const std::string text = ContentsOf(file_);
        const std::size_t begin = text.find(kGeneratedPart);
        ASSERT_NE(begin, std::string::npos) << "no part of fields in " << file_;
        head_ = text.substr(0, begin);
    }

    std::filesystem::path file_;
    std::string head_;
};

TEST_F(JsonDocumentation, HasEveryTypeAndItsFields) {
    ExpectUpToDate(file_, head_ + GeneratedPart());
}

TEST_F(JsonDocumentation, ExplainsEveryKind) {
    for (const std::string_view kind :
         {"text", "number", "code", "flags", "handle", "list", "list of handles"}) {
        EXPECT_NE(head_.find("| " + std::string(kind) + " |"), std::string::npos) << kind;
    }
}

}  // namespace
}  // namespace SMBIOS::Tests
