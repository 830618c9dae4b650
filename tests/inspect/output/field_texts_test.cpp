#include "smbios-inspect/output/field_texts.h"

#include <gtest/gtest.h>

namespace SMBIOS::Tests {
namespace {

using Inspect::FieldTexts;

TEST(FieldTexts, KeepWhatALineSays) {
    FieldTexts texts;
    texts.BeginField("A");
    texts.AddLine("one");
    texts.BeginLine().Append("two");
    texts.BeginField("B", true);
    texts.AddLine("");
    ASSERT_EQ(texts.Lines().size(), 3U);
    EXPECT_EQ(texts.Words(0), "one");
    EXPECT_EQ(texts.Words(1), "two");
    EXPECT_EQ(texts.Words(2), "");
    EXPECT_EQ(texts.Lines()[1].label, "A");
    EXPECT_TRUE(texts.Lines()[0].isFirst);
    EXPECT_FALSE(texts.Lines()[1].isFirst);
    EXPECT_TRUE(texts.Lines()[2].isFirst);
    EXPECT_FALSE(texts.Lines()[0].isFailure);
    EXPECT_TRUE(texts.Lines()[2].isFailure);
}

TEST(FieldTexts, TakeALineWithoutWordsBack) {
    FieldTexts texts;
    texts.BeginField("A");
    texts.BeginLine();
    texts.EndLine();
    EXPECT_FALSE(texts.HasLine());
    EXPECT_TRUE(texts.Lines().empty());
    texts.AddLine("words");
    texts.EndLine();
    EXPECT_TRUE(texts.HasLine());
    ASSERT_EQ(texts.Lines().size(), 1U);
    EXPECT_TRUE(texts.Lines()[0].isFirst);
}

TEST(FieldTexts, TakeALaterLineBackWithoutTheFieldsFirst) {
    FieldTexts texts;
    texts.BeginField("A");
    texts.AddLine("words");
    texts.BeginLine();
    texts.EndLine();
    EXPECT_TRUE(texts.HasLine());
    texts.AddLine("more");
    EXPECT_FALSE(texts.Lines()[1].isFirst);
}

TEST(FieldTexts, MarkTheFirstLineOfAFieldOnce) {
    FieldTexts texts;
    texts.BeginField("A");
    texts.BeginField("B");
    texts.AddLine("one");
    texts.AddLine("two");
    EXPECT_FALSE(texts.Mark("A"));
    EXPECT_TRUE(texts.Mark("B"));
    EXPECT_FALSE(texts.Mark("B"));
    EXPECT_TRUE(texts.Lines()[0].isMarked);
    EXPECT_FALSE(texts.Lines()[1].isMarked);
}

TEST(FieldTexts, HoldNothingWhenTheyAreCleared) {
    FieldTexts texts;
    texts.BeginField("A");
    texts.AddLine("one");
    texts.Clear();
    EXPECT_TRUE(texts.Lines().empty());
    texts.BeginField("B");
    texts.AddLine("two");
    EXPECT_EQ(texts.Words(0), "two");
}

}  // namespace
}  // namespace SMBIOS::Tests
