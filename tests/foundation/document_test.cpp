// What a document is made of: that each oddity of a text is read as TinyXML reads it, and where things are in the text.
#include "foundation/document.h"

#include <gtest/gtest.h>

#include <cstring>
#include <limits>
#include <new>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "foundation/element.h"
#include "foundation/reading.h"
#include "support/locale_scope.h"

namespace document_test {

using namespace kvj;
using namespace kvj::tests;
using std::string_view_literals::operator""sv;

#define MARK "\xEF\xBB\xBF"  // Makes a text UTF-8 that it begins.

namespace {

// ---- Elements ----

TEST(Document, HasElementsInTheirOrder) {
    expectReadings({{"<a/>", "a{}"},
                    {"<a></a>", "a{}"},
                    {"<a><b/><c></c></a>", "a \"b\"{b{}c{}}"},
                    {"<a><b><c/></b><d/></a>", "a \"b\"{b \"c\"{c{}}d{}}"},
                    {"<a>1</a><a>2</a>", "a \"1\"{}a \"2\"{}"}});
}

TEST(Document, ADeepOneIsReadToItsBottom) {
    std::string text;
    std::string tree;
    for (int i = 0; i < 1000; ++i) text += "<a>";
    for (int i = 0; i < 999; ++i) tree += "a \"a\"{";
    tree += "a{}" + std::string(999, '}');
    for (int i = 0; i < 1000; ++i) text += "</a>";
    expectReadings({{text, tree}});
}

TEST(Document, ADeepOneThatBreaksOffIsReadToItsBottom) {
    std::string text;
    std::string tree;
    for (int i = 0; i < 1000; ++i) text += "<a>";
    for (int i = 0; i < 999; ++i) tree += "a \"a\"{";
    expectReadings({{text, tree + "a{}" + std::string(999, '}'), wrongValue}});
}

TEST(Document, OneElementMayHaveManyAttributes) {
    std::string text = "<a";
    std::string tree = "a";
    for (int i = 0; i < 1000; ++i) {
        text += " b" + std::to_string(i) + "=1";
        tree += " b" + std::to_string(i) + "=\"1\"";
    }
    expectReadings({{text + "/>", tree + "{}"}});
}

TEST(Document, OneOfManyElementsAndAttributesIsReadWhole) {
    std::string text = "<a>";
    std::string tree = "a \"b\"{";
    for (int i = 0; i < 1000; ++i) {
        text += "<b c='1' d='2'><e/></b>";
        tree += "b \"e\" c=\"1\" d=\"2\"{e{}}";
    }
    expectReadings({{text + "</a>", tree + "}"}});
}

TEST(Document, AnEndTagMayHaveBlanksBehindTheNameOnly) {
    expectReadings({{"<a></a \t\r\n>", "a{}"},
                    {MARK "<a></a " MARK ">", "a{}"},
                    {"<a></ a>", "a{}", wrongEndTag},
                    {"<a><b/></ a>", "a \"b\"{b{}}", wrongEndTag},
                    {"<a></a/>", "a{}", wrongEndTag},
                    {"<a></a", "a{}", wrongEndTag},
                    {"<a></", "a{}", wrongEndTag},
                    {"<aa></a>", "aa{}", wrongEndTag},
                    {"<a></aa>", "a{}", wrongEndTag}});
}

TEST(Document, AnEndTagHasEveryByteOfTheName) {
    for (std::size_t length = 1; length <= 25; ++length) {
        const std::string name(length, 'a');
        const std::string tree = name + "{}";
        expectReadings({{"<" + name + "></" + name + ">", tree}});
        for (std::size_t place = 0; place < length; ++place) {
            std::string other = name;
            other[place] = 'b';
            expectReadings({{"<" + name + "></" + other + ">", tree, wrongEndTag}});
        }
    }
}

TEST(Document, AWrongEndTagEndsEverything) {
    expectReadings({{"<r><a>1</a></b><c/></r>", "r \"a\"{a \"1\"{}}", wrongEndTag},
                    {"<r><a></b><c/></r>", "r \"a\"{a{}}", wrongEndTag},
                    {"<a></A>", "a{}", wrongEndTag}});
}

TEST(Document, ASlashThatDoesNotEndATagEndsEverything) {
    expectReadings({{"<a / ><b/>", "a{}", wrongEmptyTag},
                    {"<r><a b='1'/c/></r>", "r \"a\"{a b=\"1\"{}}", wrongEmptyTag},
                    {"<a/", "a{}", wrongEmptyTag}});
}

TEST(Document, NamesBeginWithALetterOrAnUnderscore) {
    expectReadings({{"<_/><Z/><z/>", "_{}Z{}z{}"},
                    {"<a><1/></a>", "a \"1/\"{}"},
                    {"<a><.b/></a>", "a \".b/\"{}"},
                    {"<a><:b/></a>", "a \":b/\"{}"},
                    {"<a><-b/></a>", "a \"-b/\"{}"},
                    {"<a><@/><[/><`/><{/></a>", "a \"@/\"{}"}});
}

TEST(Document, NamesGoOnWithDigitsDotsHyphensAndColonsAsWell) {
    expectReadings({{"<a:b.c-d_0189/>", "a:b.c-d_0189{}"},
                    {"<a b:c.d-e_0='1'/>", "a b:c.d-e_0=\"1\"{}"},
                    {"<a/b/>", "a{}", wrongEmptyTag},
                    {"<a;/>", "a{}", wrongAttribute},
                    {"<a b,='1'/>", "a{}", wrongAttribute}});
}

TEST(Document, EveryByteFrom7FOnIsALetter) {
    for (int byte = 0x7F; byte <= 0xFF; ++byte) {
        const std::string name(1, static_cast<char>(byte));
        expectReadings({{"<" + name + "/>", name + "{}"},
                        {"<a" + name + " " + name + "='1'/>", "a" + name + " " + name + "=\"1\"{}"}});
    }
}

TEST(Document, NoCharacterBelow7FIsALetterThatIsNone) {
    for (int byte = 1; byte < 0x7F; ++byte) {
        const char c = static_cast<char>(byte);
        if (c == '!' || c == '?') continue;  // Other things begin with these.
        const std::string name(1, c);
        const std::string text = "<r><" + name + "/></r>";
        EXPECT_EQ(treeOf(documentOf(text).top()), treeOf(Reference(text).document)) << byte;
        const std::string within = "<r><a" + name + "b/></r>";
        EXPECT_EQ(treeOf(documentOf(within).top()), treeOf(Reference(within).document)) << byte;
    }
}

TEST(Document, InUtf8AMarkOrBlanksBehindItMayStandBeforeAName) {
    expectReadings({{MARK "<" MARK "a/>", "a{}"},
                    {MARK "<" MARK " \n" MARK "a></a>", "a{}"},
                    {MARK "<\xEF\xBF\xBE"
                          "a/><\xEF\xBF\xBF"
                          "b/>",
                     "a{}b{}"},
                    {"<" MARK "a/>", MARK "a{}"},
                    {MARK "<r>< a/></r>", "r \" a/\"{}"}});
}

TEST(Document, InUtf8AMarkWithoutANameLeavesAnElementWithoutOne) {
    expectReadings({{MARK "<" MARK "/a>", "{}", noName},
                    {MARK "<a><" MARK "/a>", "a \"\"{{}}", noName},
                    {MARK "<a><" MARK "></a>", "a \"\"{{}}", noName},
                    {MARK "<a><" MARK, "a \"\"{{}}", noName},
                    {"<a><" MARK "/></a>", "a \"" MARK "\"{" MARK "{}}"}});
}

// ---- Attributes ----

TEST(Document, AttributesHaveTheirValuesInEitherMarks) {
    expectReadings({{"<a b='1' c=\"2\"/>", "a b=\"1\" c=\"2\"{}"},
                    {"<a b='\"' c=\"'\"/>", "a b=\"\"\" c=\"'\"{}"},
                    {"<a b='' c=\"\"/>", "a b=\"\" c=\"\"{}"},
                    {"<a b='<c>' d='/>'/>", "a b=\"<c>\" d=\"/>\"{}"}});
}

TEST(Document, AnyBlankMayStandBeforeAnAttributeAndAroundItsEqualsSign) {
    for (const std::string blank : {" ", "\t", "\n", "\v", "\f", "\r", " \r\n\t "}) {
        expectReadings({{"<a" + blank + "b='1'/>", "a b=\"1\"{}"},
                        {"<a b" + blank + "='1'/>", "a b=\"1\"{}"},
                        {"<a b=" + blank + "'1'/>", "a b=\"1\"{}"},
                        {"<a b=" + blank + "1/>", "a b=\"1\"{}"},
                        {"<a b='1'" + blank + "/>", "a b=\"1\"{}"},
                        {"<a b=1" + blank + "c=2" + blank + "/>", "a b=\"1\" c=\"2\"{}"}});
    }
    expectReadings({{MARK "<a" MARK " b='1'/>", "a" MARK " b=\"1\"{}"},
                    {MARK "<a " MARK "b='1'/>", "a b=\"1\"{}"},
                    {MARK "<a b =" MARK "'1'\xEF\xBF\xBE/>", "a b=\"1\"{}"},
                    {"<a b=" MARK "/>", "a b=\"" MARK "\"{}"}});
}

TEST(Document, NoBlankNeedsToStandBetweenAttributes) {
    expectReadings({{"<a b='1'c='2'/>", "a b=\"1\" c=\"2\"{}"}, {"<a b=''c=''></a>", "a b=\"\" c=\"\"{}"}});
}

TEST(Document, AValueWithoutMarksGoesToTheNextBlankSlashOrEndOfTheTag) {
    expectReadings({{"<a b=1/>", "a b=\"1\"{}"},
                    {"<a b=1></a>", "a b=\"1\"{}"},
                    {"<a b=1>2</a>", "a \"2\" b=\"1\"{}"},
                    {"<a b=1 c=2\td=3></a>", "a b=\"1\" c=\"2\" d=\"3\"{}"},
                    {"<a b=/>", "a b=\"\"{}"},
                    {"<a b=></a>", "a b=\"\"{}"},
                    {"<a b=&amp;/>", "a b=\"&amp;\"{}"},
                    {"<a b=<c/>", "a b=\"<c\"{}"},
                    {MARK "<a b=\xF0/>", "a b=\"\xF0\"{}"}});
}

TEST(Document, AQuotationMarkInAValueWithoutThemEndsEverything) {
    expectReadings({{"<a c='1' b=1'/>", "a c=\"1\"{}", wrongAttribute},
                    {"<a b=1\"/>", "a{}", wrongAttribute},
                    {"<a b= c='1'/>", "a{}", wrongAttribute}});
}

TEST(Document, AnAttributeWithoutAValueEndsEverything) {
    expectReadings({{"<r><a b><c/></a></r>", "r \"a\"{a{}}", wrongAttribute},
                    {"<r><a b='1' c/><d/></r>", "r \"a\"{a b=\"1\"{}}", wrongAttribute},
                    {"<a 1='2'/>", "a{}", wrongAttribute},
                    {"<a 'b'/>", "a{}", wrongAttribute},
                    {"<a b", "a{}", wrongAttribute},
                    {"<a b=", "a{}", wrongAttribute},
                    {"<a b= ", "a{}", wrongAttribute}});
}

TEST(Document, AnAttributeThatIsCutIsLostAndThoseBeforeAreNot) {
    expectReadings({{"<r a='1' b='2", "r a=\"1\"{}", wrongElement},
                    {"<r a='1' b='2'", "r a=\"1\"{}", wrongElement},
                    {"<r a='1' b='", "r a=\"1\"{}", wrongElement},
                    {"<r a='1' b=2", "r a=\"1\"{}", wrongElement},
                    {"<r a='1' ", "r a=\"1\"{}", wrongAttribute},
                    {"<r a='1'>", "r a=\"1\"{}", wrongValue}});
}

TEST(Document, ARepeatedAttributeEndsEverythingAndTheFirstIsKept) {
    expectReadings({{"<r><a b='1' c='2' b='3'><d/></a><e/></r>", "r \"a\"{a b=\"1\" c=\"2\"{}}", wrongElement},
                    {"<a b='1' b='2'/>", "a b=\"1\"{}", wrongElement},
                    {"<a b='1' B='2'/>", "a b=\"1\" B=\"2\"{}"}});
}

TEST(Document, ARepeatedAttributeIsNoticedBehindItsValueAndBeforeWhatFollows) {
    expectReadings({{"<a b='1' b='2'", "a b=\"1\"{}", wrongElement},
                    {"<a b='1' b", "a b=\"1\"{}", wrongAttribute},
                    {"<a b='1' b='2' c/>", "a b=\"1\"{}", wrongElement},
                    {"<a b='1' b='2' / >", "a b=\"1\"{}", wrongElement},
                    {"<r><a b='1' b='2'/><c/></r>", "r \"a\"{a b=\"1\"{}}", wrongElement}});
}

TEST(Document, ValuesKeepTheirBlanks) { expectReadings({{"<a b=' 1\t\r\n2  '/>", "a b=\" 1\t\r\n2  \"{}"}}); }

// ---- Texts and first children ----

TEST(Document, BlanksOfATextAreTrimmedAndCondensed) {
    expectReadings(
        {{"<a>  b \t\n\v\f\r c  </a>", "a \"b c\"{}"}, {"<a>\nb\n</a>", "a \"b\"{}"}, {"<a>b\tc</a>", "a \"b c\"{}"}});
}

TEST(Document, ATextOfBlanksIsNone) {
    expectReadings({{"<a> \t\n\v\f\r </a>", "a{}"},
                    {"<a> <b/> </a>", "a \"b\"{b{}}"},
                    {"<a>&#32;&#10;</a>", "a{}"},
                    {"<a>\b</a>", "a \"\b\"{}"},
                    {"<a>\x0E</a>", "a \"\x0E\"{}"}});
}

TEST(Document, BlanksThatReferencesMakeAreKept) { expectReadings({{"<a>&#32;b &#10;</a>", "a \" b \n\"{}"}}); }

TEST(Document, ANoBreakSpaceIsNoBlank) {
    expectReadings({{"<a>\xA0</a>", "a \"\xA0\"{}"}, {MARK "<a>\xC2\xA0</a>", "a \"\xC2\xA0\"{}"}});
}

TEST(Document, WhenBlanksAreNotCondensedOnlyThoseBeforeATagAreLost) {
    TiXmlBase::SetCondenseWhiteSpace(false);
    expectReadings({{"<a>  b \t\n c  </a>", "a \"  b \t\n c  \"{}"},
                    {"<a>  <b/>  </a>", "a \"b\"{b{}}"},
                    {"<a>  <b/> x </a>", "a \"b\"{b{}}"},
                    {MARK "<a> " MARK " b</a>", "a \" " MARK " b\"{}"},
                    {"<a> &#32; </a>", "a{}"}});
    TiXmlBase::SetCondenseWhiteSpace(true);
    expectReadings({{"<a>  b  </a>", "a \"b\"{}"}});
}

TEST(Document, InUtf8MarksAreBlanksBetweenTokensAndBeforeAText) {
    expectReadings({{MARK "\n" MARK "<a>" MARK "<b/>\xEF\xBF\xBE<c/>\xEF\xBF\xBF</a>" MARK, "a \"b\"{b{}c{}}"},
                    {MARK "<a>" MARK " b</a>", "a \"b\"{}"},
                    {MARK "<a>b" MARK "</a>", "a \"b" MARK "\"{}"},
                    {MARK "<a>b " MARK "c</a>", "a \"b " MARK "c\"{}"},
                    {MARK "<a>\xEF\xBB</a></a>", "a \"\xEF\xBB</a>\"{}"},
                    {MARK "<a>\xEF\xBF\xBD</a>", "a \"\xEF\xBF\xBD\"{}"},
                    {MARK "<a>\xEF\xBE\xBF</a>", "a \"\xEF\xBE\xBF\"{}"},
                    {MARK "<a>\xEF\xBB\xBE</a>", "a \"\xEF\xBB\xBE\"{}"}});
}

TEST(Document, WithoutUtf8MarksAreText) {
    expectReadings({{"<a>" MARK "</a>", "a \"" MARK "\"{}"}, {"<a/>" MARK "<b/>", "a{}"}});
}

TEST(Document, AFirstChildOfAnyKindHasAValue) {
    expectReadings({{"<a><!-- c -->text</a>", "a \" c \"{}"},
                    {"<a><b/>text</a>", "a \"b\"{b{}}"},
                    {"<a><!x y>text</a>", "a \"!x y\"{}"},
                    {"<a><?php x?>text</a>", "a \"?php x?\"{}"},
                    {"<a><?xml version='1.0'?>text</a>", "a \"\"{}"},
                    {"<a><![CDATA[<b> ]]>text</a>", "a \"<b> \"{}"},
                    {"<a><![CDATA[]]>text</a>", "a \"\"{}"},
                    {"<a>text<!-- c -->more</a>", "a \"text\"{}"},
                    {"<a></a>", "a{}"}});
}

TEST(Document, SectionsKeepTheirBlanksAndMarkup) {
    expectReadings({{"<a><![CDATA[ b\n&amp;<c> ]]]></a>", "a \" b\n&amp;<c> ]\"{}"},
                    {"<a><![cdata[b]]></a>", "a \"![cdata[b]]\"{}"},
                    {"<a><![CDATA b]]></a>", "a \"![CDATA b]]\"{}"},
                    {MARK "<a><![CDATA[\xF0]]></a>", "a \"\xF0\"{}"},
                    {"<![CDATA[<a/>]]><b/>", "b{}"}});
}

TEST(Document, ACommentEndsAtTheFirstHyphensWithAnAngle) {
    expectReadings({{"<a><!----></a>", "a \"\"{}"},
                    {"<a><!-- -- ->--></a>", "a \" -- ->\"{}"},
                    {"<a><!---></a>-->b</a>", "a \"-></a>\"{}"},
                    {"<a><!--></a>-->b</a>", "a \"></a>\"{}"},
                    {"<a><!-></a>", "a \"!-\"{}"},
                    {"<!-- <b> --><a/>", "a{}"}});
}

TEST(Document, AnythingElseInAnglesEndsAtTheNext) {
    expectReadings({{"<a><></a>", "a \"\"{}"},
                    {"<a>< b></a>", "a \" b\"{}"},
                    {"<a><!></a>", "a \"!\"{}"},
                    {"<a><?x <b/></a>", "a \"?x <b/\"{}"},
                    {"<a><!x '>'></a>", "a \"!x '\"{}"},
                    {"</b><a/>", "a{}"},
                    {"<!DOCTYPE r SYSTEM 'r.dtd'><r/>", "r{}"}});
}

// ---- References ----

TEST(Document, FiveReferencesHaveNames) {
    expectReadings({{"<a b='&amp;&lt;&gt;&quot;&apos;'>&amp;&lt;&gt;&quot;&apos;</a>", "a \"&<>\"'\" b=\"&<>\"'\"{}"}});
}

TEST(Document, OfAnythingElseBehindAnAmpersandOnlyTheAmpersandIsLost) {
    expectReadings({{"<a>x&unknown;y</a>", "a \"xunknown;y\"{}"},
                    {"<a>x & y</a>", "a \"x  y\"{}"},
                    {"<a>&AMP;&amp&Lt;&gT;</a>", "a \"AMP;ampLt;gT;\"{}"},
                    {"<a>&am;&l;&quo;&apo;</a>", "a \"am;l;quo;apo;\"{}"},
                    {"<a>&&amp;&</a>", "a \"&\"{}"},
                    {"<a b='&' c='&x'/>", "a b=\"\" c=\"x\"{}"},
                    {"<a>x&am", "a \"xam\"{}", wrongValue}});
}

TEST(Document, NumberedReferencesAreDecimalOrHexadecimal) {
    expectReadings({{"<a>&#65;&#x42;&#x4a;&#x4A;&#x6f;&#x6F;</a>", "a \"ABJJoo\"{}"},
                    {"<a b='&#39;&#x22;'/>", "a b=\"'\"\"{}"},
                    {"<a>&#48;&#57;&#x39;&#x30;</a>", "a \"0990\"{}"}});
}

TEST(Document, ANumberedReferenceOfOtherCharactersEndsEverything) {
    expectReadings({{"<r>x&#X41;<b/></r>", "r \"x\"{}", wrongValue},
                    {"<r>x&#4a;<b/></r>", "r \"x\"{}", wrongValue},
                    {"<r>x&#x4g;<b/></r>", "r \"x\"{}", wrongValue},
                    {"<r>x&#x4`;<b/></r>", "r \"x\"{}", wrongValue},
                    {"<r>x&#x4@;<b/></r>", "r \"x\"{}", wrongValue},
                    {"<r>x&#x4G;<b/></r>", "r \"x\"{}", wrongValue},
                    {"<r>&#4/;<b/></r>", "r{}", wrongValue},
                    {"<r>&#4:;<b/></r>", "r{}", wrongValue},
                    {"<r>&#-1;<b/></r>", "r{}", wrongValue},
                    {"<a c='1' b='&#y;'/><d/>", "a c=\"1\"{}", wrongElement}});
}

TEST(Document, ANumberedReferenceWithoutAnEndEndsEverything) {
    expectReadings({{"<r>&#65</r>", "r{}", wrongValue},
                    {"<r>x&#6", "r \"x\"{}", wrongValue},
                    {"<r>x&#x", "r \"x\"{}", wrongValue},
                    {"<r>x&#x4", "r \"x\"{}", wrongValue},
                    {"<r>x&#", "r \"x#\"{}", wrongValue},
                    {"<a b='&#'/>", "a{}", wrongElement}});
}

TEST(Document, ANumberedReferenceGoesToTheNextSemicolonOverMarkup) {
    expectReadings({{"<r>&#1<a/>#66;ok</r>", "r \"Bok\"{}"},
                    {"<a>&#1<b><c/></b>#66;</a>", "a \"B\"{}"},
                    {"<a>&#x<b/>x41;<c/></a>", "a \"A\"{c{}}"},
                    {"<a b='&#1'<c>#39;'/>", "a b=\"'\"{}"},
                    {"<a>&#1#66;</a>", "a \"B\"{}"},
                    {"<a>&#xffx41;</a>", "a \"A\"{}"},
                    {"<a>&#x4;1;</a>",
                     "a \"\x04"
                     "1;\"{}"}});
}

TEST(Document, InBytesANumberedReferenceIsTheLowByteOfItsNumber) {
    expectReadings({{"<a>&#x20AC;</a>", "a \"\xAC\"{}"},
                    {"<a>&#255;&#x100;b</a>", "a \"\xFF\"{}"},
                    {"<a>&#4294967361;</a>", "a \"A\"{}"},
                    {"<?xml encoding='latin1'?><a>&#xE9;</a>", "a \"\xE9\"{}"}});
}

TEST(Document, InUtf8ANumberedReferenceIsACharacter) {
    expectReadings({{MARK "<a>&#x7F;&#x80;</a>", "a \"\x7F\xC2\x80\"{}"},
                    {MARK "<a>&#x7FF;&#x800;</a>", "a \"\xDF\xBF\xE0\xA0\x80\"{}"},
                    {MARK "<a>&#xFFFF;&#x10000;</a>", "a \"\xEF\xBF\xBF\xF0\x90\x80\x80\"{}"},
                    {MARK "<a>&#xE9;&#x20AC;&#x1F5A8;</a>", "a \"\xC3\xA9\xE2\x82\xAC\xF0\x9F\x96\xA8\"{}"}});
}

TEST(Document, InUtf8SurrogatesPassAndFourBytesAreTheMost) {
    expectReadings({{MARK "<a>&#xD800;&#xDFFF;</a>", "a \"\xED\xA0\x80\xED\xBF\xBF\"{}"},
                    {MARK "<a>&#x1FFFFF;</a>", "a \"\xF7\xBF\xBF\xBF\"{}"},
                    {MARK "<a>x&#x200000;y</a>", "a \"xy\"{}"},
                    {MARK "<a>x&#x200041;y</a>", "a \"xy\"{}"},
                    {MARK "<a>&#x200000;</a>", "a{}"}});
}

TEST(Document, TheWeightOfADigitWrapsAndTheSumDoesNot) {
    expectReadings({{"<a>&#x1000000000000000041;</a>", "a \"A\"{}"},
                    {MARK "<a>&#x100000041;</a>", "a \"A\"{}"},
                    {MARK "<a>x&#4294967361;y</a>", "a \"xy\"{}"},
                    {MARK "<a>x&#xFFFFFFFF;y</a>", "a \"xy\"{}"}});
}

TEST(Document, ANulOfAReferenceEndsItsTextButIsNoBlank) {
    expectReadings({{"<a>x&#0;y</a>", "a \"x\"{}"},
                    {"<a>&#0;</a>", "a \"\"{}"},
                    {"<a>&#;y</a>", "a \"\"{}"},
                    {"<a>&#x;y</a>", "a \"\"{}"},
                    {MARK "<a>&#0;</a>", "a \"\"{}"},
                    {"<a b='x&#0;y'/>", "a b=\"x\"{}"}});
}

// ---- Encodings ----

TEST(Document, InUtf8ALeadByteTakesAlongWhatItsLengthSays) {
    const auto after = [](char lead) { return std::string(MARK "<a>") + lead + "12345</a>"; };
    for (int byte = 0x80; byte <= 0xFF; ++byte) {
        // Where only a part of what follows would be taken, the end tag would be read as text.
        const std::string lead(1, static_cast<char>(byte));
        const int taken = byte < 0xC2 || byte > 0xF4 ? 0 : byte < 0xE0 ? 1 : byte < 0xF0 ? 2 : 3;
        for (int shift = 0; shift <= 3; ++shift) {
            const std::string text = MARK "<a>" + lead + std::string(static_cast<std::size_t>(shift), 'x') + "<b/></a>";
            const std::string value = lead + std::string(static_cast<std::size_t>(shift), 'x');
            const std::string tree = shift >= taken ? "a \"" + value + "\"{b{}}" : "a \"" + value + "<b/>\"{}";
            expectReadings({{text, tree}});
        }
        expectReadings({{after(static_cast<char>(byte)), "a \"" + lead + "12345\"{}"}});
    }
}

TEST(Document, InUtf8ALeadByteTakesMarksOfValuesAlong) {
    expectReadings({{MARK "<a b='\xC3' c='1'/>", "a b=\"\xC3' c=\"{}", wrongAttribute},
                    {MARK "<a b='\xC3'' c='1'/>", "a b=\"\xC3'\" c=\"1\"{}"},
                    {MARK "<a b='\xF0'/>'/>", "a b=\"\xF0'/>\"{}"},
                    {MARK "<a>\xC3&amp;</a>", "a \"\xC3&amp;\"{}"},
                    {MARK "<a>\xC3 </a>", "a \"\xC3 \"{}"}});
}

TEST(Document, ALeadByteThatIsCutTakesNothingBehindTheEnd) {
    expectReadings({{MARK "<a>x\xF0", "a \"x\xF0\"{}", wrongValue},
                    {MARK "<a>x\xE2\x82", "a \"x\xE2\x82\"{}", wrongValue},
                    {MARK "<a>x\xF0\0yz</a>"sv, "a \"x\xF0\"{}", wrongValue}});
}

TEST(Document, WithoutADeclarationOrAMarkEachByteIsACharacter) {
    expectReadings({{"<a>x\xC3</a>", "a \"x\xC3\"{}"}, {"<a>x\xF0<b/></a>", "a \"x\xF0\"{b{}}"}});
}

TEST(Document, ADeclarationWithoutAnotherEncodingMakesItUtf8) {
    for (const char* declaration :
         {"<?xml version='1.0'?>", "<?xml?>", "<?xml>", "<?xml encoding='UTF-8'?>", "<?xml encoding='utf-8'?>",
          "<?xml encoding=\"UTF8\" ?>", "<?xml encoding='Utf8'?>", "<?xml encoding='UTF-8zzz'?>",
          "<?xml encoding='utf8z'?>", "<?xml encoding=''?>", "<?xml encoding=utf-8?>", "<?xml encoding='&#x55;TF8'?>",
          "<?xml encoding='&UTF-8'?>", "<?xml encoding='&#0;latin1'?>", "<?XML?>", "<?xMl?>",
          "<?xml-stylesheet href='x'?>"}) {
        expectReadings({{declaration + std::string("<a>\xC3</a></a>"), "a \"\xC3</a>\"{}"}});
    }
}

TEST(Document, AnyOtherEncodingLeavesItInBytes) {
    for (const char* declaration :
         {"<?xml version='1.0' encoding='ISO-8859-1'?>", "<?xml encoding='UTF-16'?>", "<?xml encoding='UTF-'?>",
          "<?xml encoding='UTF_8'?>", "<?xml encoding=' UTF-8'?>", "<?xml encoding='utf'?>",
          "<?xml ENCODING='latin1'?>", "<?xml encodings='latin1'?>", "<?xmlencoding='latin1'?>",
          "<?xml encoding = 'latin1'?>", "<?xml\tencoding\n=\r'latin1'?>", "<?xml encoding='utf-8' encoding='latin1'?>",
          "<?xml x y=z encoding='latin1'?>", "<?xml ?? encoding='latin1' ?>", "<?xml version='>' encoding='latin1'?>",
          "<?xml standalone='>' encoding='latin1'?>", "<?xml encoding='latin1'version='1.0'?>",
          "<?XML VERSION='1' STANDALONE='>' ENCODING='latin1'?>"}) {
        expectReadings({{declaration + std::string("<a>\xC3</a>"), "a \"\xC3\"{}"}});
    }
}

TEST(Document, OnlyTheFirstDeclarationAtTheTopLevelCounts) {
    expectReadings({{"<?xml encoding='latin1'?><?xml?><a>\xC3</a>", "a \"\xC3\"{}"},
                    {"<?xml?><?xml encoding='latin1'?><a>\xC3</a></a>", "a \"\xC3</a>\"{}"},
                    {"<b>\xC3</b><!-- c --><?xml?><a>\xC3</a></a>", "b \"\xC3\"{}a \"\xC3</a>\"{}"},
                    {"<a><?xml version='1.0'?>\xC3<b/></a>", "a \"\"{b{}}"},
                    {MARK "<?xml encoding='latin1'?><a>\xC3</a></a>", "a \"\xC3</a>\"{}"}});
}

TEST(Document, InADeclarationWhatIsNoAttributeOfItsIsSkipped) {
    expectReadings({{"<?xml junk 'x' =1 a=\"?\" /?><a/>", "a{}"},
                    {"<?xml a='>' ?><a/>", ""},
                    {"<?xml a='x>y'?><a/>", ""},
                    {"<a><?xml <b><c/></a>", "a \"\"{c{}}"},
                    {"<a><?xml version='1.0'?><b/></a>", "a \"\"{b{}}"},
                    {"<?xm?><a/>", "a{}"}});
}

TEST(Document, AnAttributeOfADeclarationThatFailsEndsEverythingWithoutAFaultAtTheTopLevel) {
    expectReadings({{"<?xml version?><a/>", ""},
                    {"<?xml encoding='x?><a/>", ""},
                    {"<?xml standalone=1'?><a/>", ""},
                    {"<?xml version=1", ""},
                    {"<b/><?xml version?><a/>", "b{}"},
                    {"<r><?xml version?><a/></r>", "r \"\"{}", wrongValue}});
}

TEST(Document, AMarkBehindABlankAtTheBeginningLeavesItEmpty) {
    expectReadings({{" " MARK "<a/>", "", emptyDocument}, {"\xEF\xBF\xBE<a/>", "", emptyDocument}});
}

TEST(Document, KnowsWhetherItBeganWithAByteOrderMark) {
    EXPECT_TRUE(documentOf(MARK "<a/>").hasByteOrderMark());
    EXPECT_TRUE(documentOf(MARK).hasByteOrderMark());
    for (const char* text : {"", "<a/>", " " MARK "<a/>", "\xEF\xBB", "\xEF\xBF\xBE", "\xEF\xBF\xBF"}) {
        EXPECT_FALSE(documentOf(text).hasByteOrderMark()) << text;
    }
}

// ---- Locales ----

TEST(Document, InTurkishTheWordsOfADeclarationFollowItsLetters) {
    // A small "I" there has no dot, and the capital of "i" is DD.
    const Reading upper{"<?xml ENCODING='latin1'?><a>\xC3</a></a>", "a \"\xC3</a>\"{}"};
    const Reading dotted{"<?xml encod\xDDng='latin1'?><a>\xC3</a>", "a \"\xC3\"{}"};
    {
        const LocaleScope turkish("tr_TR.ISO-8859-9");
        expectReadings({upper, dotted, {"<?xml VERSION='>'?><a/>", ""}, {"<?xml VERS\xDDON='>'?><a/>", "a{}"}});
        expectReadings({{"<?xml encoding='latin1'?><a>\xC3</a>", "a \"\xC3\"{}"}, {"<?XML?><a/>", "a{}"}});
    }
    const LocaleScope other("C");
    expectReadings({{upper.text, "a \"\xC3\"{}"}, {dotted.text, "a \"\xC3</a>\"{}", wrongValue}});
}

TEST(Document, InALocaleWithLettersAmongTheControlCharactersTheyAreLetters) {
    const std::string_view begins = "<r><\x01/></r>";
    const std::string_view goesOn = "<a\x02 b\x11='1'/>";
    {
        const LocaleScope vietnamese("vi_VN.TCVN");
        expectReadings({{begins, "r \"\x01\"{\x01{}}"},
                        {goesOn, "a\x02 b\x11=\"1\"{}"},
                        {"<a \x01='1'/>", "a \x01=\"1\"{}"},
                        {"<r><\x03/></r>", "r \"\x03/\"{}"}});
    }
    const LocaleScope other("C");
    expectReadings({{begins, "r \"\x01/\"{}"}, {goesOn, "a{}", wrongAttribute}});
}

// ---- What is left of a broken text ----

TEST(Document, OneThatBreaksOffHasAllThatStoodBefore) {
    expectReadings({{"<r><a>1</a><b>he", "r \"a\"{a \"1\"{}b \"he\"{}}", wrongValue},
                    {"<r><a>1</a><b>", "r \"a\"{a \"1\"{}b{}}", wrongValue},
                    {"<r><a>1</a> ", "r \"a\"{a \"1\"{}}", wrongEndTag},
                    {"<r><a>1</a", "r \"a\"{a \"1\"{}}", wrongEndTag},
                    {"<r><ab", "r \"ab\"{ab{}}", noName},
                    {"<r><a ", "r \"a\"{a{}}", wrongAttribute},
                    {"<r>", "r{}", wrongValue}});
}

TEST(Document, OneThatEndsWithinSomethingElseHasAsMuchOfItAsThereIs) {
    expectReadings({{"<r><", "r \"\"{}", wrongValue},
                    {"<r>t<", "r \"t\"{}", wrongValue},
                    {"<r><!x", "r \"!x\"{}", wrongValue},
                    {"<r><!-- te", "r \" te\"{}", wrongValue},
                    {"<r><!--", "r \"\"{}", wrongValue},
                    {"<r><![CDATA[te]]", "r \"te]]\"{}", wrongValue},
                    {"<r><![CDATA[te]]>", "r \"te\"{}", wrongValue},
                    {"<r><?xml version='1.0'", "r \"\"{}", wrongValue}});
}

TEST(Document, AtTheTopLevelWhatIsCutIsNoFault) {
    expectReadings({{"<!DOCTYPE a", ""},
                    {"<!-- <a/>", ""},
                    {"<![CDATA[<a/>", ""},
                    {"<?xml version='1.0'", ""},
                    {"<?xml version='1.0", ""},
                    {"<?xml", ""},
                    {"<", ""},
                    {"<a/><", "a{}"},
                    {"<a/><!--", "a{}"}});
}

TEST(Document, TextAtTheTopLevelEndsEverything) {
    expectReadings({{"<a/>junk<b/>", "a{}"},
                    {"<!DOCTYPE a [<!ENTITY e 'x'>]><a/>", ""},
                    {"<?foo a>b?><a/>", ""},
                    {"< a>1</a>", ""}});
}

TEST(Document, WhatFollowsTheRootIsRead) {
    expectReadings(
        {{"<a/><b/>", "a{}b{}"}, {"<a/></b>", "a{}"}, {"<a/></b><c/>", "a{}c{}"}, {"<a/> \n<b/>", "a{}b{}"}});
}

TEST(Document, ANulEndsIt) { expectReadings({{"<a/>\0<b/>"sv, "a{}"}, {"<a>\0</a>"sv, "a{}", wrongValue}}); }

TEST(Document, WithoutAnyMarkupIsAFault) {
    expectReadings({{"", "", emptyDocument},
                    {" \n", "", emptyDocument},
                    {"junk<a/>", "", emptyDocument},
                    {MARK, "", emptyDocument},
                    {"\xFF\xFE<\0a\0/\0>\0"sv, "", emptyDocument}});
}

TEST(Document, WithMarkupOfAnyKindIsNotEmpty) {
    expectReadings({{"<!-- c -->", ""}, {"<>", ""}, {"</a>", ""}, {"<?xml?>", ""}, {"<![CDATA[]]>", ""}});
}

TEST(Document, WithoutATextHasNothing) {
    Document document;
    EXPECT_FALSE(document.hasText());
    EXPECT_FALSE(document.fault());
    EXPECT_FALSE(document.top());
    EXPECT_FALSE(document.root("a"));
    EXPECT_FALSE(document.root("a", "b"));
    EXPECT_TRUE(documentOf("").hasText());
}

// ---- Roots ----

TEST(Document, TheRootIsTheFirstOfItsNameAtTheTopLevel) {
    const Document document = documentOf("<x><r>0</r></x><r>1</r><r>2</r>");
    EXPECT_STREQ(document.root("r").text(), "1");
    EXPECT_FALSE(document.root("R"));
    EXPECT_FALSE(document.root(""));
}

TEST(Document, TheOtherNameOfARootCountsOnlyWithoutTheFirst) {
    EXPECT_STREQ(documentOf("<s>1</s><r>2</r>").root("r", "s").text(), "2");
    EXPECT_STREQ(documentOf("<s>1</s>").root("r", "s").text(), "1");
    EXPECT_FALSE(documentOf("<t>1</t>").root("r", "s"));
}

// ---- Places ----

/// The offsets of all elements, in document order.
void appendOffsets(Element element, std::vector<std::size_t>& offsets) {
    for (const Element child : element.children()) {
        offsets.push_back(child.offset());
        appendOffsets(child, offsets);
    }
}
std::vector<std::size_t> offsetsOf(const Document& document) {
    std::vector<std::size_t> offsets;
    appendOffsets(document.top(), offsets);
    return offsets;
}
using Offsets = std::vector<std::size_t>;

TEST(Document, AnElementHasItsPlaceInTheTextThatCameIn) {
    EXPECT_EQ(offsetsOf(documentOf("<r><a/><b></b></r>")), (Offsets{0, 3, 7}));
    EXPECT_EQ(offsetsOf(documentOf("\n <r>\n<a/></r>")), (Offsets{2, 6}));
    EXPECT_EQ(offsetsOf(documentOf("<r>&amp;&#65;  &lt;<a b='&quot;'/>&amp;<b/></r>")), (Offsets{0, 19, 33 + 6}));
    EXPECT_EQ(offsetsOf(documentOf("<?xml version='1.0'?><r/>")), (Offsets{21}));
}

TEST(Document, AnElementBehindATextBeginsWhereTheTextEnds) {
    EXPECT_EQ(offsetsOf(documentOf("<r>text<a/></r>")), (Offsets{0, 7}));
    EXPECT_EQ(offsetsOf(documentOf("<r>text <a/>text<b/></r>")), (Offsets{0, 8, 16}));
    EXPECT_EQ(offsetsOf(documentOf("<r><![CDATA[x]]><a/></r>")), (Offsets{0, 16}));
    EXPECT_EQ(offsetsOf(documentOf("<r c=1><a/></r>")), (Offsets{0, 7}));
    EXPECT_EQ(offsetsOf(documentOf("<r/><a/>")), (Offsets{0, 4}));
}

TEST(Document, InUtf8AnElementBeginsAtItsAngleAndNotAtItsName) {
    EXPECT_EQ(offsetsOf(documentOf(MARK "<r><" MARK " " MARK "a/></r>")), (Offsets{3, 6}));
    EXPECT_EQ(offsetsOf(documentOf(MARK "<r>x<" MARK "a/></r>")), (Offsets{3, 7}));
    EXPECT_EQ(offsetsOf(documentOf(MARK "<r>x<" MARK "/r>")), (Offsets{3, 7}));
}

TEST(Document, TheDocumentItselfHasNoPlace) { EXPECT_EQ(documentOf(" <r/>").top().offset(), 0U); }

TEST(Document, AFaultHasItsPlaceInTheTextThatCameIn) {
    const struct {
        std::string_view text;
        int id;
        std::size_t offset;
    } faults[] = {
        {"", emptyDocument, 0},
        {"  junk", emptyDocument, 2},
        {"<r><ab", noName, 4},
        {MARK "<r><" MARK "/r>", noName, 10},
        {"<a 1='2'/>", wrongAttribute, 3},
        {"<a b/>", wrongAttribute, 4},
        {"<a b />", wrongAttribute, 5},
        {"<a b= ", wrongAttribute, 6},
        {"<a b=1'/>", wrongAttribute, 6},
        {"<a b='&amp;' ", wrongAttribute, 13},
        {"<a b='1' c='2", wrongElement, 9},
        {"<a b='1' c='2'", wrongElement, 9},
        {"<a b='&amp;' c='&#y;'/>", wrongElement, 13},
        {"<a b='1' c='&amp;' b='2'/>", wrongElement, 19},
        {"<a / >", wrongEmptyTag, 4},
        {"<r>&amp;<a></b></a></r>", wrongEndTag, 11},
        {"<a></ a>", wrongEndTag, 3},
        {"<a></a x>", wrongEndTag, 7},
        {"<a>  ", wrongEndTag, 5},
        {"<a>", wrongValue, 3},
        {"<a>&amp;text", wrongValue, 12},
        {"<a>text&#y;</a>", wrongValue, 7},
        {"<a><!-- c", wrongValue, 9},
        {"<a>t<", wrongValue, 4},
        {"<a><?xml version/></a>", wrongValue, 16},
    };
    for (const auto& [text, id, offset] : faults) {
        const Document document = documentOf(text);
        EXPECT_TRUE(document.fault()) << text;
        EXPECT_EQ(document.fault().id, id) << text;
        EXPECT_EQ(document.fault().offset, offset) << text;
    }
}

TEST(Document, WithoutAFaultThereIsNoPlace) {
    const Document document = documentOf("<a>1</a>");
    EXPECT_FALSE(document.fault());
    EXPECT_EQ(document.fault().id, 0);
    EXPECT_EQ(document.fault().offset, 0U);
}

// ---- Sizes ----

TEST(Document, OneOf4GiBIsRefused) {
    Text text;
    try {
        text = Text(std::size_t{1} << 32);  // Only its last page is ever written to.
    } catch (const std::bad_alloc&) {
        GTEST_SKIP() << "there is no room for 4 GiB";
    }
    std::strcpy(text.bytes(), "<a/>");
    const Document document(std::move(text));
    EXPECT_EQ(document.fault().id, TiXmlBase::TIXML_ERROR);
    EXPECT_TRUE(document.hasText());
    EXPECT_FALSE(document.top());
    EXPECT_FALSE(document.root("a"));
}

TEST(Text, HasZerosBehindItsEnd) {
    Text text(3);
    std::memcpy(text.bytes(), "abc", 3);
    EXPECT_EQ(text.length(), 3U);
    EXPECT_EQ(std::string_view(text.bytes() + 3, Text::padding), std::string_view(std::string(Text::padding, '\0')));
    text.end(1);
    EXPECT_EQ(text.length(), 1U);
    EXPECT_STREQ(text.bytes(), "a");
}

TEST(Text, OfMoreThanThereCanBeThrows) {
    EXPECT_THROW(Text text(std::numeric_limits<std::size_t>::max()), std::bad_alloc);
    EXPECT_THROW(Text text(std::numeric_limits<std::size_t>::max() - Text::padding + 1), std::bad_alloc);
}

}  // namespace

}  // namespace document_test
