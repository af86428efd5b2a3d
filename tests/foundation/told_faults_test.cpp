// The two readers that are documents themselves: what their hosts can ask them after a call.
#include <gtest/gtest.h>
#include <tinyxml.h>

#include <initializer_list>
#include <string>

#include "KVJConfigParser.h"
#include "KVJPrinterIDParser.h"
#include "support/files.h"

namespace told_faults_test {

namespace {

using kvj::tests::contentOf;
using kvj::tests::TemporaryFolder;

#define MARK "\xEF\xBB\xBF"

void read(Kavrin::KVJConfigParser& reader, const char* text) {
    Kavrin::_KVConfiguration configuration{};
    reader.GetConfiguration(text, 0, configuration);
}
void read(Kavrin::KVJPrinterIDParser& reader, const char* text) {
    Kavrin::KVPrinterInfo info{};
    reader.ParsePrinterInfo(text, 0, info);
}

/// That it is like a document of TinyXML's that has parsed this text after others and was then emptied.
void expectSameAsParsed(const TiXmlDocument& reader, TiXmlDocument& parsed, const char* text) {
    if (text != nullptr) parsed.Parse(text, nullptr, TIXML_ENCODING_UNKNOWN);
    parsed.Clear();
    EXPECT_TRUE(reader.NoChildren()) << text;
    EXPECT_EQ(reader.Error(), parsed.Error()) << text;
    EXPECT_EQ(reader.ErrorId(), parsed.ErrorId()) << text;
    EXPECT_STREQ(reader.ErrorDesc(), parsed.ErrorDesc()) << text;
}

constexpr const char* texts[] = {
    "<configuration><a>1</a></configuration>",
    "<printer_id><vendor>x</vendor></printer_id>",
    "<x/>",
    "",
    " ",
    "junk",
    "<r><a>",
    "<r><a>1</a></b>",
    "<r><a",
    "<r a='1' a='2'/>",
    "<r a/>",
    "<r / >",
    "<!-- c",
    MARK "<r/>",
    MARK,
};

template <class Reader>
class ToldFaults : public testing::Test {};
using Readers = testing::Types<Kavrin::KVJConfigParser, Kavrin::KVJPrinterIDParser>;
TYPED_TEST_SUITE(ToldFaults, Readers);

TYPED_TEST(ToldFaults, AreThoseOfTheText) {
    for (const char* text : texts) {
        TypeParam reader;
        TiXmlDocument parsed;
        read(reader, text);
        expectSameAsParsed(reader, parsed, text);
    }
}

TYPED_TEST(ToldFaults, HaveTheWordsForWhatIsWrong) {
    TypeParam reader;
    read(reader, "<r><a>1</a></b>");
    EXPECT_TRUE(reader.Error());
    EXPECT_EQ(reader.ErrorId(), TiXmlBase::TIXML_ERROR_READING_END_TAG);
    EXPECT_STREQ(reader.ErrorDesc(), "Error reading end tag.");
}

TYPED_TEST(ToldFaults, HaveNoPlace) {
    TypeParam reader;
    read(reader, "<r>\n\n<a>1</a></b>");
    EXPECT_EQ(reader.ErrorRow(), 0);
    EXPECT_EQ(reader.ErrorCol(), 0);
}

TYPED_TEST(ToldFaults, OfAnEarlierTextAreGone) {
    TypeParam reader;
    TiXmlDocument parsed;
    for (const char* earlier : texts) {
        for (const char* text : texts) {
            read(reader, earlier);
            read(reader, text);
            expectSameAsParsed(reader, parsed, text);
        }
    }
}

TYPED_TEST(ToldFaults, StayWhenThereIsNoText) {
    TypeParam reader;
    TiXmlDocument parsed;
    read(reader, nullptr);
    expectSameAsParsed(reader, parsed, nullptr);
    read(reader, "<r><a>");
    parsed.Parse("<r><a>", nullptr, TIXML_ENCODING_UNKNOWN);
    read(reader, nullptr);
    expectSameAsParsed(reader, parsed, nullptr);
    EXPECT_EQ(reader.ErrorId(), TiXmlBase::TIXML_ERROR_READING_ELEMENT_VALUE);
}

TYPED_TEST(ToldFaults, AHostsOwnChildrenAreGoneAfterEachCall) {
    for (const char* text : {"<r/>", "", static_cast<const char*>(nullptr)}) {
        TypeParam reader;
        reader.LinkEndChild(new TiXmlElement("host"));
        read(reader, text);
        EXPECT_TRUE(reader.NoChildren());
    }
}

TYPED_TEST(ToldFaults, AByteOrderMarkIsKeptForTheFileThatTheHostSaves) {
    const TemporaryFolder folder;
    const std::string path = (folder / "saved.xml").string();
    const auto savedAfter = [&](std::initializer_list<const char*> replies) {
        TypeParam reader;
        for (const char* text : replies) read(reader, text);
        reader.LinkEndChild(new TiXmlElement("a"));
        EXPECT_TRUE(reader.SaveFile(path));
        return contentOf(path);
    };
    EXPECT_EQ(savedAfter({"<r/>"}), "<a />\n");
    EXPECT_EQ(savedAfter({MARK "<r/>"}), MARK "<a />\n");
    EXPECT_EQ(savedAfter({MARK "<r/>", "<r/>"}), MARK "<a />\n");
    EXPECT_EQ(savedAfter({MARK "<r>", "<r/>", nullptr}), MARK "<a />\n");
    EXPECT_EQ(savedAfter({" " MARK "<r/>"}), "<a />\n");
}

}  // namespace

}  // namespace told_faults_test
