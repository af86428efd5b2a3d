// What is added to an element of a request, and that nothing is added by halves.
#include "foundation/tags.h"

#include <gtest/gtest.h>

#include "support/xml.h"

namespace tags_test {

using kvj::tests::written;

namespace {

class Tags : public testing::Test {
protected:
    TiXmlElement root{"r"};
};

using AddTag = Tags;
using AddSetting = Tags;
using AddText = Tags;
using SetAttribute = Tags;

TEST_F(AddTag, IsAnEmptyLastChild) {
    const TiXmlElement* first = kvj::addTag(&root, "a").element();
    const TiXmlElement* second = kvj::addTag(&root, "b").element();
    EXPECT_EQ(first, root.FirstChild());
    EXPECT_EQ(second, root.LastChild());
    EXPECT_EQ(written(root), "<r><a /><b /></r>");
}

TEST_F(AddTag, GoesOnFromTheElementAdded) {
    kvj::addTag(kvj::addTag(&root, "a"), "b");
    EXPECT_EQ(written(root), "<r><a><b /></a></r>");
}

TEST_F(AddTag, TheSameNameIsAddedAgain) {
    EXPECT_NE(kvj::addTag(&root, "a").element(), kvj::addTag(&root, "a").element());
    EXPECT_EQ(written(root), "<r><a /><a /></r>");
}

TEST_F(AddTag, WithoutParentOrNameAddsNothing) {
    EXPECT_FALSE(kvj::addTag(nullptr, "a"));
    EXPECT_FALSE(kvj::addTag(&root, nullptr));
    EXPECT_FALSE(kvj::addTag(nullptr, nullptr));
    EXPECT_EQ(written(root), "<r />");
}

TEST_F(AddTag, HasItsText) {
    EXPECT_TRUE(kvj::addTag(&root, "a", "1"));
    EXPECT_TRUE(kvj::addTag(&root, "b", "x & y"));
    EXPECT_EQ(written(root), "<r><a>1</a><b>x &amp; y</b></r>");
}

TEST_F(AddTag, AnEmptyTextIsThere) {
    EXPECT_TRUE(kvj::addTag(&root, "a", ""));
    EXPECT_EQ(written(root), "<r><a></a></r>");
}

TEST_F(AddTag, WithoutParentNameOrTextAddsNothing) {
    EXPECT_FALSE(kvj::addTag(nullptr, "a", "1"));
    EXPECT_FALSE(kvj::addTag(&root, nullptr, "1"));
    EXPECT_FALSE(kvj::addTag(&root, "a", nullptr));
    EXPECT_EQ(written(root), "<r />");
}

TEST_F(AddSetting, HasItsRangeAndItsText) {
    EXPECT_TRUE(kvj::addSetting(&root, "a", "-1", "5", "3"));
    EXPECT_TRUE(kvj::addSetting(&root, "b", "0.0", "1.0", ""));
    EXPECT_EQ(written(root), "<r><a min=\"-1\" max=\"5\">3</a><b min=\"0.0\" max=\"1.0\"></b></r>");
}

TEST_F(AddSetting, AnEndOfTheRangeThatIsNullIsLeftOut) {
    EXPECT_TRUE(kvj::addSetting(&root, "a", nullptr, "5", "3"));
    EXPECT_TRUE(kvj::addSetting(&root, "b", "-1", nullptr, "3"));
    EXPECT_EQ(written(root), "<r><a max=\"5\">3</a><b min=\"-1\">3</b></r>");
}

TEST_F(AddSetting, WithoutParentNameOrTextAddsNothing) {
    EXPECT_FALSE(kvj::addSetting(nullptr, "a", "-1", "5", "3"));
    EXPECT_FALSE(kvj::addSetting(&root, nullptr, "-1", "5", "3"));
    EXPECT_FALSE(kvj::addSetting(&root, "a", "-1", "5", nullptr));
    EXPECT_EQ(written(root), "<r />");
}

TEST_F(AddText, IsTheElementsText) {
    EXPECT_TRUE(kvj::addText(&root, "a < b"));
    EXPECT_STREQ(root.GetText(), "a < b");
    EXPECT_EQ(written(root), "<r>a &lt; b</r>");
}

TEST_F(AddText, AnEmptyTextIsThere) {
    EXPECT_TRUE(kvj::addText(&root, ""));
    EXPECT_EQ(written(root), "<r></r>");
}

TEST_F(AddText, WithoutElementOrTextAddsNothing) {
    EXPECT_FALSE(kvj::addText(nullptr, "a"));
    EXPECT_FALSE(kvj::addText(&root, nullptr));
    EXPECT_EQ(written(root), "<r />");
}

TEST_F(SetAttribute, TheyStandInTheOrderThatTheyWereSetIn) {
    EXPECT_TRUE(kvj::setAttribute(&root, "z", "1"));
    EXPECT_TRUE(kvj::setAttribute(&root, "a", "x & y"));
    EXPECT_TRUE(kvj::setAttribute(&root, "m", ""));
    EXPECT_EQ(written(root), "<r z=\"1\" a=\"x &amp; y\" m=\"\" />");
}

TEST_F(SetAttribute, AgainReplacesItsValueInItsPlace) {
    EXPECT_TRUE(kvj::setAttribute(&root, "z", "1"));
    EXPECT_TRUE(kvj::setAttribute(&root, "a", "2"));
    EXPECT_TRUE(kvj::setAttribute(&root, "z", "3"));
    EXPECT_EQ(written(root), "<r z=\"3\" a=\"2\" />");
}

TEST_F(SetAttribute, WithoutElementNameOrValueSetsNothing) {
    EXPECT_TRUE(kvj::setAttribute(&root, "a", "1"));
    EXPECT_FALSE(kvj::setAttribute(nullptr, "a", "2"));
    EXPECT_FALSE(kvj::setAttribute(&root, nullptr, "2"));
    EXPECT_FALSE(kvj::setAttribute(&root, "a", nullptr));
    EXPECT_EQ(written(root), "<r a=\"1\" />");
}

}  // namespace

}  // namespace tags_test
