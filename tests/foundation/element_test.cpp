// The one element that tables and rules know, whether a reply has it or a host.
#include "foundation/element.h"

#include <gtest/gtest.h>

#include <string>

#include "support/tree.h"
#include "support/xml.h"

namespace element_test {

using namespace kvj;
using kvj::tests::documentOf;
using kvj::tests::Xml;

namespace {

constexpr const char* sample = "<r b='1' c=''>text<x>1</x><!-- c --><y/>more</r>";

/// What holds for the element of the sample, whoever has it.
void expectSample(Element root) {
    ASSERT_TRUE(root);
    EXPECT_EQ(root.name(), "r");
    EXPECT_STREQ(root.text(), "text");
    EXPECT_STREQ(root.attribute("b"), "1");
    EXPECT_STREQ(root.attribute("c"), "");
    EXPECT_EQ(root.attribute("d"), nullptr);
    EXPECT_EQ(root.attribute("B"), nullptr);
    EXPECT_EQ(root.attribute(""), nullptr);
    EXPECT_EQ(root.attribute(nullptr), nullptr);

    std::string names;
    for (const Element child : root.children()) names += child.name();
    EXPECT_EQ(names, "xy");
    EXPECT_EQ(countChildren(root), 2U);

    const Element first = *root.children().begin();
    EXPECT_STREQ(first.text(), "1");
    EXPECT_EQ(first.attribute("b"), nullptr);
    EXPECT_EQ(countChildren(first), 0U);
    const Element second = *++root.children().begin();
    EXPECT_EQ(second.name(), "y");
    EXPECT_EQ(second.text(), nullptr);
    EXPECT_EQ(second.attribute("b"), nullptr);
}

TEST(Element, OfAReplyShowsWhatTheReplyHas) {
    const Document document = documentOf(sample);
    expectSample(document.root("r"));
}

TEST(Element, OfAHostShowsTheHostsOwn) {
    Xml host(sample);
    expectSample(host.root());
}

TEST(Element, OfAHostIsTheElementAsItStands) {
    TiXmlElement host("r");
    const Element element = &host;
    EXPECT_EQ(element.text(), nullptr);
    EXPECT_EQ(countChildren(element), 0U);
    host.LinkEndChild(new TiXmlComment(" c "));
    host.LinkEndChild(new TiXmlElement("x"));
    host.SetAttribute("b", "2");
    EXPECT_STREQ(element.text(), " c ");
    EXPECT_STREQ(element.attribute("b"), "2");
    EXPECT_EQ(countChildren(element), 1U);
}

TEST(Element, OfAHostHasNoPlaceAndListsNoAttributes) {
    Xml host(sample);
    const Element element = host.root();
    EXPECT_EQ(element.offset(), 0U);
    EXPECT_TRUE(element.attributes().empty());
}

TEST(Element, OfAReplyListsItsAttributesInTheirOrder) {
    const Document document = documentOf("<r><a x='1'/><b d='2' c='3'/><e f='4'/></r>");
    const auto all = (*++document.root("r").children().begin()).attributes();
    ASSERT_EQ(all.size(), 2U);
    EXPECT_STREQ(all[0].name, "d");
    EXPECT_STREQ(all[0].value, "2");
    EXPECT_STREQ(all[1].name, "c");
    EXPECT_STREQ(all[1].value, "3");
    EXPECT_TRUE(document.root("r").attributes().empty());
}

TEST(Element, OfAReplyHasItsOwnAttributesOnly) {
    const Document document = documentOf("<r><a x='1'/><b y='2'/></r>");
    const Element first = *document.root("r").children().begin();
    EXPECT_STREQ(first.attribute("x"), "1");
    EXPECT_EQ(first.attribute("y"), nullptr);
    const Element second = *++document.root("r").children().begin();
    EXPECT_EQ(second.attribute("x"), nullptr);
    EXPECT_STREQ(second.attribute("y"), "2");
}

TEST(Element, SetsAttributesOfAHostsElement) {
    TiXmlElement host("r");
    host.SetAttribute("b", "1");
    const Element element = &host;
    element.setAttribute("b", "2");
    element.setAttribute("c", "3");
    EXPECT_STREQ(host.Attribute("b"), "2");
    EXPECT_STREQ(host.Attribute("c"), "3");
}

TEST(Element, LeavesTheAttributesOfAReplyAlone) {
    const Document document = documentOf("<r b='1'/>");
    const Element root = document.root("r");
    root.setAttribute("b", "2");
    root.setAttribute("c", "3");
    EXPECT_STREQ(root.attribute("b"), "1");
    EXPECT_EQ(root.attribute("c"), nullptr);
}

TEST(Element, OneThatIsNullHasNothing) {
    const TiXmlElement* none = nullptr;
    for (const Element element : {Element(), Element(none)}) {
        EXPECT_FALSE(element);
        EXPECT_EQ(element.text(), nullptr);
        EXPECT_EQ(element.attribute("b"), nullptr);
        EXPECT_EQ(countChildren(element), 0U);
        EXPECT_EQ(element.offset(), 0U);
        element.setAttribute("b", "1");
    }
}

}  // namespace

}  // namespace element_test
