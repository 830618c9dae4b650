#include "tests/inspect/picture/xml_reader.h"

#include <gtest/gtest.h>

#include <string>

// The reader by which pictures are judged.
namespace SMBIOS::Tests {
namespace {

TEST(XmlReader, ReadsElementsAttributesAndText) {
    const XmlElement root = ReadXml("<a x=\"1\" y=\"&lt;\">one<b/>&amp;two</a>\n");
    EXPECT_EQ(root.name, "a");
    EXPECT_EQ(root.Attribute("x"), "1");
    EXPECT_EQ(root.Attribute("y"), "<");
    EXPECT_EQ(root.text, "one&two");
    ASSERT_NE(root.Child("b"), nullptr);
}

class RefusedXml : public testing::TestWithParam<const char*> {};

TEST_P(RefusedXml, IsNotWellFormed) {
    EXPECT_THROW((void)ReadXml(GetParam()), XmlError);
}

INSTANTIATE_TEST_SUITE_P(XmlReader,
                         RefusedXml,
                         testing::Values("",
                                         "<a>",
                                         "<a></b>",
                                         "<a></a><b/>",
                                         "<a x=1/>",
                                         "<a x=\"1\" x=\"2\"/>",
                                         "<a x=\"<\"/>",
                                         "<a>&</a>",
                                         "<a>&unknown;</a>",
                                         "<a>]]></a>",
                                         "<a>\x01</a>",
                                         "<a>\x1B</a>",
                                         "<a>\x80</a>",
                                         "<a>\xC0\x80</a>",
                                         "<a>\xE0\x80\x80</a>",
                                         "<a>\xED\xA0\x80</a>",
                                         "<a>\xEF\xBF\xBF</a>",
                                         "<a>\xEF\xBF\xBE</a>",
                                         "<a>\xF5\x80\x80\x80</a>"));

}  // namespace
}  // namespace SMBIOS::Tests
