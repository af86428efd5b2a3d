// Whether a reply is whole.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <kvjxml_read.hpp>
#include <string>
#include <string_view>

#include "hostile/samples.h"
#include "support/readings.h"

namespace read_whole_test {

namespace {

using namespace kvj::tests;
using kvj::Message;

bool isWhole(std::string_view reply) {
    using kvjxml::messages::nonce;
    const auto plain = kvjxml::read<nonce>(reply);
    const auto diagnosed = kvjxml::read<nonce>(reply, kvjxml::diagnose);
    EXPECT_EQ(plain.whole(), diagnosed.whole()) << reply;
    // What is not whole is told of; the finding is that it is cut, or no XML, or not UTF-8, or that there is too much.
    bool isTold = false;
    for (const auto& finding : diagnosed.findings()) {
        using Kind = kvjxml::finding_kind;
        isTold |= finding.kind == Kind::malformed || finding.kind == Kind::encoding || finding.kind == Kind::ignored ||
                  finding.kind == Kind::unknown_message;
    }
    EXPECT_TRUE(plain.whole() || isTold) << "nothing is said of " << reply;
    return plain.whole();
}

TEST(Whole, IsEverySample) {
    for (const Sample& sample : samples()) EXPECT_TRUE(isWhole(sample.text)) << sample.root;
}

/// Of every sample every prefix: only one without line ends behind the end tag is whole.
TEST(Whole, IsNoReplyThatIsCut) {
    for (const Sample& sample : samples()) {
        const std::size_t end = sample.text.rfind('>') + 1;
        ASSERT_EQ(sample.text.find_first_not_of("\r\n", end), std::string::npos) << sample.root;
        for (const Message& message : kvj::messages()) {
            if (message.root != sample.root) continue;
            for (std::size_t length = 0; length <= sample.text.size(); ++length) {
                const std::string_view cut = std::string_view(sample.text).substr(0, length);
                ASSERT_EQ(readAny(message, cut).whole, length >= end) << message.name << ' ' << length;
            }
        }
    }
}

TEST(Whole, IsAReplyWithWhatMayStandAroundIt) {
    for (const std::string_view reply : {
             "<nonce/>",
             "<nonce>a</nonce>",
             "<nonce >a</nonce\n>",
             " \t\r\n<nonce/> \r\n\t",
             "\xEF\xBB\xBF<nonce/>",
             "\xEF\xBB\xBF<?xml version='1.0'?><nonce/>",
             "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<nonce/>\n",
             "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><nonce/>",
             "<!-- before --><nonce/><!-- behind -->",
             "<?printer before?><nonce/><?printer behind?>",
             "<!DOCTYPE nonce><nonce/>",
             "<?xml version='1.0'?>\n<!DOCTYPE nonce SYSTEM 'x.dtd'>\n<nonce/>",
             "<nonce><!-- inside -->a</nonce>",
             "<nonce><?inside?>a</nonce>",
             "<nonce><![CDATA[ <> & ]]></nonce>",
             "<nonce a='1' b=\"2\">&amp;&lt;&gt;&quot;&apos;&#65;&#x41;</nonce>",
             "<nonce>\xC3\xA4\xE2\x82\xAC\xF0\x9F\x96\xA8</nonce>",
             "<n\xC3\xA4me/>",
             "<a><b><c/></b></a>",
         }) {
        EXPECT_TRUE(isWhole(reply)) << reply;
    }
}

TEST(Whole, IsNoReplyWithSomethingBesideItsElement) {
    for (const std::string_view reply : {
             "",
             " ",
             "\xEF\xBB\xBF",
             "text",
             "<!-- nothing -->",
             "<?xml version='1.0'?>",
             "<nonce/>junk",
             "junk<nonce/>",
             "<nonce/><nonce/>",
             "<nonce/><b/>",
             "<nonce/></b>",
             "<nonce></nonce></nonce>",
             "</nonce>",
             "<nonce/><![CDATA[x]]>",
             "<![CDATA[x]]><nonce/>",
             "<nonce/>&amp;",
             "<nonce/>>",
             "<nonce/><",
             "<nonce/><!DOCTYPE nonce>",
         }) {
        EXPECT_FALSE(isWhole(reply)) << reply;
    }
}

TEST(Whole, IsNoReplyThatIsBroken) {
    for (const std::string_view reply : {
             "<nonce>",
             "<nonce",
             "<nonce/",
             "<nonce>a</nonce",
             "<nonce>a</nonc>",
             "<nonce>a</other>",
             "<nonce>a<",
             "<nonce>a</",
             "<a><b></a></b>",
             "<nonce><></nonce>",
             "<nonce><1></nonce>",
             "<nonce>< b></nonce>",
             "<nonce><!x></nonce>",
             "<nonce a></nonce>",
             "<nonce a='1></nonce>",
             "<nonce a='1' a='2'/>",
             "<nonce>&#65</nonce>",
             "<nonce>&#;x</nonce",
             "<nonce/><!-- cut",
             "<nonce/><!-- cut --",
             "<nonce/><?cut",
             "<?xml version='1.0'",
             "<?xml version='1.0",
             "<!-- cut <nonce/>",
             "<!DOCTYPE cut",
             "<nonce><![CDATA[cut</nonce>",
             "<nonce><!-- cut</nonce>",
         }) {
        EXPECT_FALSE(isWhole(reply)) << reply;
    }
}

TEST(Whole, IsNoReplyWithANul) {
    using std::string_view_literals::operator""sv;
    for (const std::string_view reply : {"<nonce/>\0"sv, "<nonce/>\n\0"sv, "<nonce>\0</nonce>"sv, "\0<nonce/>"sv,
                                         "<nonce/>\0\0\0\0"sv, "<nonce/>\0junk"sv, "\0"sv}) {
        EXPECT_FALSE(isWhole(reply)) << reply;
    }
}

TEST(Whole, IsNoReplyWithAByteThatIsNotUtf8) {
    for (const std::string_view wrong : {"\x80", "\xBF", "\xC3", "\xC0\x80", "\xC1\xBF", "\xE2\x82", "\xE0\x80\x80",
                                         "\xED\xA0\x80", "\xF0\x80\x80\x80", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80",
                                         "\xF8\x88\x80\x80\x80", "\xFE", "\xFF", "\xC3\x28"}) {
        const std::string bytes(wrong);
        for (const std::string& reply :
             {"<nonce>" + bytes + " a</nonce>", "<nonce a='" + bytes + " '/>", "<nonce><a" + bytes + " /></nonce>",
              "<!-- " + bytes + " --><nonce/>", "<nonce/><!-- " + bytes + " -->", "<?x " + bytes + " ?><nonce/>",
              "<nonce>a<![CDATA[" + bytes + " ]]></nonce>", bytes + "<nonce/>"}) {
            EXPECT_FALSE(isWhole(reply)) << reply;
        }
    }
}

/// What stands in front of the damage is read.
TEST(Whole, OrNotItIsReadAsFarAsItMakesSense) {
    const auto status = kvjxml::read<kvjxml::messages::general_status>(
        "<get_general_status><error>5</error><warning>6</warning><num_jobs");
    ASSERT_TRUE(status);
    EXPECT_FALSE(status.whole());
    EXPECT_EQ(status->error, 5);
    EXPECT_EQ(status->warning, 6);
}

}  // namespace

}  // namespace read_whole_test
