// No byte of a reply reaches TinyXML's parser: in this program it is a function that only notes what it was given.
#include <gtest/gtest.h>
#include <tinyxml.h>

#include <string>
#include <vector>

#include "hostile/outcome.h"
#include "hostile/samples.h"
#include "support/readers.h"

namespace {

std::vector<std::string> texts;

}  // namespace

// A program's own functions come before those of a library.
const char* TiXmlDocument::Parse(const char* text, TiXmlParsingData* /*before*/, TiXmlEncoding /*encoding*/) {
    texts.emplace_back(text);
    return nullptr;
}

namespace parser_test {

namespace {

using namespace kvj::tests;

TEST(TinyXmlParser, IsReplacedInThisProgram) {
    TiXmlDocument document;
    document.Parse("<a/>");
    EXPECT_EQ(texts, std::vector<std::string>{"<a/>"});
    EXPECT_EQ(document.FirstChild(), nullptr);
    texts.clear();
}

TEST(TinyXmlParser, IsNotCalledForAReply) {
    withEachReader([](const Reader& reader) {
        const std::string sample = sampleOf(reader.root);
        EXPECT_NE(outcomeOf(reader, sample), outcomeOf(reader, ""));
        for (const char* before : {"<!-- -->", "<?xml version=\"1.0\"?>", "\xEF\xBB", "x"}) {
            outcomeOf(reader, before + sample);
        }
        outcomeOf(reader, sample.substr(0, sample.size() / 2));
    });
    EXPECT_EQ(texts, std::vector<std::string>());
}

// What a parser that is a document remembers of a byte-order mark it takes from a mark of the library's own.
TEST(TinyXmlParser, IsGivenNothingButTheMarkForAReplyThatBeginsWithOne) {
    withEachReader([](const Reader& reader) { outcomeOf(reader, "\xEF\xBB\xBF" + sampleOf(reader.root)); });
    for (const std::string& text : texts) EXPECT_EQ(text, "\xEF\xBB\xBF");
    texts.clear();
}

}  // namespace

}  // namespace parser_test
