// How deep and how wide a reply is, told before TinyXML sees it.
#include "foundation/shape.h"

#include <gtest/gtest.h>
#include <tinyxml.h>

#include <algorithm>
#include <random>
#include <string>

#include "KVJStatusParser.h"
#include "foundation/reply.h"
#include "support/tree_shape.h"
#include "support/xml.h"

namespace {

using kvjxml::Reply;
using kvjxml::Shape;
using kvjxml::shapeOf;
using kvjxml::tests::wide;

/// The shape of a text up to its first NUL.
Shape shapeOfText(const std::string& text) {
    const std::string padded = text + std::string(4, '\0');
    return shapeOf(padded.c_str(), std::char_traits<char>::length(padded.c_str()));
}

/// What is told of a text is never less than what TinyXML makes of it, and exactly that where it finds no error.
void expectAgreement(const std::string& text) {
    const std::string padded = text + std::string(4, '\0');
    TiXmlDocument document;
    document.SetTabSize(0);
    document.Parse(padded.c_str(), nullptr, TIXML_ENCODING_UNKNOWN);
    const Shape tree = kvjxml::tests::shapeOfTree(document);
    const Shape told = shapeOfText(text);
    if (document.Error()) {
        EXPECT_GE(told.depth, tree.depth) << text;
        EXPECT_GE(told.attributes, tree.attributes) << text;
    } else {
        EXPECT_EQ(told.depth, tree.depth) << text;
        EXPECT_EQ(told.attributes, tree.attributes) << text;
    }
}

struct Sample {
    std::string text;
    std::size_t depth;
    std::size_t attributes;
};

void expectShapes(const std::vector<Sample>& samples) {
    for (const auto& [text, depth, attributes] : samples) {
        EXPECT_EQ(shapeOfText(text).depth, depth) << text;
        EXPECT_EQ(shapeOfText(text).attributes, attributes) << text;
        expectAgreement(text);
    }
}

std::string nested(std::size_t depth) {
    std::string text;
    for (std::size_t i = 0; i < depth; ++i) text += "<a>";
    for (std::size_t i = 0; i < depth; ++i) text += "</a>";
    return text;
}

std::string withAttributes(std::size_t count) {
    std::string text = "<a";
    for (std::size_t i = 0; i < count; ++i) text += " b" + std::to_string(i) + "='1'";
    return text + "/>";
}

TEST(Shape, CountsLevelsOfElements) {
    expectShapes({{"", 0, 0},
                  {"text", 0, 0},
                  {"<a/>", 1, 0},
                  {"<a></a>", 1, 0},
                  {"<a>1</a><a>2</a>", 1, 0},
                  {"<a><b/><c></c></a>", 2, 0},
                  {"<a><b><c/></b><d/></a>", 3, 0},
                  {"<a><b /><c ></c ></a >", 2, 0},
                  {" \n<?xml version=\"1.0\"?>\n<a>\n <b>1</b>\n</a>\n", 2, 0},
                  {nested(100), 100, 0}});
}

TEST(Shape, CountsTheMostAttributesOfOneElement) {
    expectShapes({{"<a b='1'/>", 1, 1},
                  {"<a b='1' c=\"2\"><d e = 'f'/></a>", 2, 2},
                  {"<a b=1 c=2 d=3/>", 1, 3},
                  {"<a b=''c=''/>", 1, 2},
                  {withAttributes(300), 1, 300}});
}

TEST(Shape, MarkupInsideValuesCommentsAndSectionsIsText) {
    expectShapes({{"<a b='<c><d>'/>", 1, 1},
                  {"<a b='/>' c=\"'\"><d/></a>", 2, 2},
                  {"<a><!-- <b><c><d> --><e/></a>", 2, 0},
                  {"<a><![CDATA[<b><c><d>]]><e/></a>", 2, 0},
                  {"<!DOCTYPE a><a/>", 1, 0},
                  {"<a><!b><c/></a>", 2, 0},
                  {"<a><?b <c><d/></a>", 2, 0},
                  {"<a><?xml <b><c/></a>", 2, 0},
                  {"</b><a/>", 1, 0}});
}

TEST(Shape, ANumberedReferenceGoesToTheNextSemicolon) {
    expectShapes({{"<a>&#1<b><c/></b>#66;</a>", 1, 0},
                  {"<a>&#x<b/>x41;<c/></a>", 2, 0},
                  {"<a>&amp;<b/>&unknown;</a>", 2, 0},
                  {"<a b='&#39;'/>", 1, 1},
                  {"<a b='&#1'<c>#39;'/>", 1, 1}});
}

TEST(Shape, ANumberedReferenceHasTheDigitsOfItsBase) {
    // "A" is 0x41 and "J" 0x4a; where a digit is none of the base, TinyXML gives up.
    expectShapes({{"<r>&#x4a;<b/></r>", 2, 0},
                  {"<r>&#x4A;<b/></r>", 2, 0},
                  {"<r>&#65;<b/></r>", 2, 0},
                  {"<r>&#x4g;<b/></r>", 1, 0},
                  {"<r>&#4a;<b/></r>", 1, 0}});
}

TEST(Shape, ACharacterOfSeveralBytesTakesMarkupAlongInUtf8Only) {
    expectShapes({{"<?xml version='1.0'?><a>\xC3<b/></a>", 1, 0},
                  {"<?xml version='1.0' encoding='utf-8'?><a>\xE2<b/></a>", 1, 0},
                  {"\xEF\xBB\xBF<a>\xC3<b/></a>", 1, 0},
                  {"<a>\xC3<b/></a>", 2, 0},
                  {"<?xml version='1.0' encoding='ISO-8859-1'?><a>\xC3<b/></a>", 2, 0},
                  {"<?xml version='1.0' encoding='&#x55;TF8'?><a>\xC3<b/></a>", 1, 0},
                  {"<?xml encoding='&UTF-8'?><a>\xC3<b/></a>", 1, 0},
                  {"<?xml encoding=utf-8?><a>\xC3<b/></a>", 1, 0},
                  {"<a><?xml version='1.0'?>\xC3<b/></a>", 2, 0},
                  {"<?xml version='1.0'?>\xEF\xBB\xBF<a>\xEF\xBF\xBE<b/>\xEF\xBF\xBF<c/></a>", 2, 0}});
}

TEST(Shape, IsNeverLessThanWhatTinyXmlMakesOfABrokenText) {
    for (const char* text : {"<",
                             "<a",
                             "<a ",
                             "<a b",
                             "<a b=",
                             "<m e=/",
                             "<a b='",
                             "<a><b",
                             "<a><b>",
                             "<a></b><c><d>",
                             "<a / ><b>",
                             "<a b='1' b='2'><c>",
                             "<a><!-- <b>",
                             "<a><![CDATA[<b>",
                             "<?xml <a>",
                             "<a>&#",
                             "<a>&#6<b>",
                             "<a>\xF0",
                             "<?xml version='1.0'?><a>\xF0",
                             "<a b=\"\xC3\"><c>",
                             "<\x01>"}) {
        expectAgreement(text);
    }
}

TEST(Shape, AgreesWithTinyXmlOnTextsMadeOfItsTokens) {
    const std::vector<std::string> tokens{"<a>",
                                          "</a>",
                                          "<a/>",
                                          "<b c='1'>",
                                          "</b>",
                                          "<b",
                                          " c=",
                                          "'",
                                          "\"",
                                          ">",
                                          "/>",
                                          "=",
                                          "<!--",
                                          "-->",
                                          "<![CDATA[",
                                          "]]>",
                                          "<!",
                                          "<?xml ",
                                          "?>",
                                          " encoding='UTF-8'",
                                          " version='1.0'",
                                          "&",
                                          "&#",
                                          "&#x",
                                          "x41;",
                                          "#65;",
                                          ";",
                                          "&amp;",
                                          "\xC3",
                                          "\xE2",
                                          "\xF0",
                                          "\xEF\xBB\xBF",
                                          " ",
                                          "\n",
                                          "text",
                                          "_",
                                          "\x7F",
                                          "</",
                                          "encoding='latin1'",
                                          "standalone=no"};
    std::mt19937 random(20240607);
    for (int i = 0; i < 20000; ++i) {
        std::string text = random() % 2 == 0 ? "<?xml version='1.0'?><a>" : "<a>";
        for (auto length = random() % 12; length > 0; --length) text += tokens[random() % tokens.size()];
        if (random() % 2 == 0) text += "</a>";
        expectAgreement(text);
        if (testing::Test::HasFailure()) break;
    }
}

// ---- What the frame makes of it ----

TEST(Shape, AReplyOf64LevelsIsReadAndOneOf65IsNot) {
    EXPECT_NE(Reply(nested(64).c_str()).root("a"), nullptr);
    EXPECT_EQ(Reply(nested(65).c_str()).root("a"), nullptr);
    const std::wstring deep = wide(nested(65));
    EXPECT_EQ(Reply(deep[0], static_cast<std::int64_t>(deep.size())).root("a"), nullptr);
}

TEST(Shape, AReplyOf256AttributesIsReadAndOneOf257IsNot) {
    EXPECT_NE(Reply(withAttributes(256).c_str()).root("a"), nullptr);
    EXPECT_EQ(Reply(withAttributes(257).c_str()).root("a"), nullptr);
}

TEST(Shape, ALongReplyThatIsNeitherDeepNorWideIsRead) {
    std::string text = "<a>";
    for (int i = 0; i < 20000; ++i) text += "<b c='1' d='2'><e/></b>";
    text += "</a>";
    Reply reply(text.c_str());
    ASSERT_NE(reply.root("a"), nullptr);
    EXPECT_STREQ(reply.root("a")->LastChild()->Value(), "b");
}

TEST(Shape, AReplyThatIsNothingButLevelsOrAttributesIsFalseAndLeavesTheRecord) {
    std::string levels = "<get_general_status>";
    for (int i = 0; i < 40000; ++i) levels += "<a>";
    const std::string attributes = "<get_general_status>" + withAttributes(30000) + "</get_general_status>";
    for (const auto& text : {levels, attributes}) {
        const std::wstring reply = wide(text);
        Kavrin::KVGeneralStatus status{};
        status.error = 7;
        EXPECT_FALSE(Kavrin::KVJStatusParser().ParseStatus(reply[0], static_cast<int>(reply.size()), status));
        EXPECT_EQ(status.error, 7);
    }
}

}  // namespace
