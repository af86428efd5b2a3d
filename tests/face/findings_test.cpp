// What is found beside the rows of a message: at its root, around it, in lists, and where a document breaks.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <kvjxml_read.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "messages/message.h"
#include "support/readings.h"

namespace findings_test {

namespace {

using namespace kvj::tests;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<kvjxml::finding> findingsIn(std::string_view message, std::string_view reply) {
    return readAny(messageOf(message), reply, kvjxml::diagnose).findings;
}
/// As lines.
std::vector<std::string> found(std::string_view message, std::string_view reply) {
    return toldOf(findingsIn(message, reply));
}

// ---- The text of the root ----

TEST(FindingsAtTheRoot, SayThatItHasNoText) {
    EXPECT_THAT(found("nonce", "<nonce/>"),
                ElementsAre("warning no-text 1:1 /nonce kvjxml::nonce_text::nonce (the field stays as it was)"));
    EXPECT_THAT(
        found("passkey", "<passkey/>"),
        ElementsAre("warning no-text 1:1 /passkey Kavrin::_tagSecSetKeys::current_passkey (the field stays as it "
                    "was)"));
}

TEST(FindingsAtTheRoot, SayThatItsTextIsCut) {
    const std::string text(32, 'x');
    EXPECT_THAT(found("nonce", "<nonce>" + text + "</nonce>"),
                ElementsAre("error text-cut 1:1 /nonce kvjxml::nonce_text::nonce \"" + text + "\" -> \"" +
                            text.substr(1) + "\" (the field holds 31 of its 32 bytes)"));
    const std::string longer(512, 'x');
    const auto findings = findingsIn("laminator_response", "<lam_ndc_rsp>" + longer + "</lam_ndc_rsp>");
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].field, "kvjxml::laminator_answer::response");
    EXPECT_EQ(findings[0].became, longer.substr(1));
}

TEST(FindingsAtTheRoot, SayThatItHoldsElementsBesideItsText) {
    EXPECT_THAT(found("nonce", "<nonce>a<b/></nonce>"),
                ElementsAre("warning ignored 1:9 /nonce/b \"<b/>\" (an element beside a value)"));
    EXPECT_THAT(
        found("nonce", "<nonce><b/>a</nonce>"),
        ElementsAre("error not-text 1:1 /nonce kvjxml::nonce_text::nonce \"<b/>\" -> \"b\" (the name of an element "
                    "was read as the value)",
                    "warning ignored 1:12 /nonce \"a\" (a text beside elements)"));
}

TEST(FindingsAtTheRoot, SayThatATextStandsInThePlaceOfElements) {
    EXPECT_THAT(found("job_status", "<get_job_status>\n text</get_job_status>"),
                ElementsAre("warning ignored 2:2 /get_job_status \"text\" (a text beside elements)"));
    EXPECT_THAT(found("job_status", "<get_job_status> \n </get_job_status>"), IsEmpty());
}

TEST(FindingsBesideRows, SayThatATextStandsWhereOnlyAttributesAreRead) {
    EXPECT_THAT(found("sensor_info",
                      "<get_sensor_status><input_output><input_feeder reading='8'>874</input_feeder></input_output>"
                      "</get_sensor_status>"),
                ElementsAre("warning ignored 1:60 /get_sensor_status/input_output/input_feeder \"874\" (a text where "
                            "only attributes are read)"));
}

TEST(FindingsAtTheRoot, OfADirectiveAreOfItsAction) {
    EXPECT_THAT(found("secure_directive", "<action>lock_printer<printer/></action>"), IsEmpty());
    const auto findings = findingsIn("secure_directive", "<action><printer/>lock_printer</action>");
    ASSERT_EQ(findings.size(), 2U);
    EXPECT_EQ(findings[0].kind, kvjxml::finding_kind::not_text);
    EXPECT_EQ(findings[0].field, "Kavrin::_tagSecDirecXML::action");
    EXPECT_EQ(findings[1].kind, kvjxml::finding_kind::ignored);
}

// ---- The message ----

TEST(FindingsOfNoMessage, NameTheElementThatIsThere) {
    EXPECT_THAT(found("nonce", "\n  <keys/>"),
                ElementsAre("error unknown-message 2:3 /keys \"keys\" (\"nonce\" is not in the reply)"));
    EXPECT_THAT(found("nonce", ""), ElementsAre("error malformed 1:1 / (the reply ends here)",
                                                "error unknown-message 1:1 / (\"nonce\" is not in the reply)"));
}

TEST(FindingsOfNoMessage, KnowWhichIsMeant) {
    EXPECT_THAT(found("nonce", "<nonse/>"),
                ElementsAre("error unknown-message 1:1 /nonse \"nonse\" (did you mean \"nonce\"?)"));
}

TEST(FindingsOfNoMessage, SayToo) {
    EXPECT_THAT(found("nonce", "<keys>"),
                ElementsAre("error unknown-message 1:1 /keys \"keys\" (\"nonce\" is not in the reply)",
                            "error malformed 1:7 /keys (the reply ends here, while \"keys\" is open)"));
}

// ---- Around the message ----

TEST(FindingsAround, AreOfWhatNobodyReads) {
    EXPECT_THAT(found("nonce", "<nonce>1</nonce>\njunk"),
                ElementsAre("warning ignored 2:1 / \"junk\" (a text beside elements)"));
    EXPECT_THAT(found("nonce", "<nonce>1</nonce>\n<b>x</b>"),
                ElementsAre("warning ignored 2:1 /b \"<b>\" (an element beside the message)"));
    EXPECT_THAT(found("nonce", "<nonce>1</nonce><nonce>2</nonce>"),
                ElementsAre("warning ignored 1:17 /nonce[2] \"<nonce>\" (an element beside the message)"));
    EXPECT_THAT(found("nonce", "<b/><nonce>1</nonce>"),
                ElementsAre("warning ignored 1:1 /b \"<b/>\" (an element beside the message)"));
    EXPECT_THAT(found("nonce", "<nonce>1</nonce></b>"),
                ElementsAre("error malformed 1:17 / \"</b>\" (an end tag, and nothing is open)"));
    EXPECT_THAT(found("nonce", "<nonce>1</nonce><![CDATA[x]]>"),
                ElementsAre("warning ignored 1:17 / \"<![CDATA[x]]>\" (a text beside elements)"));
}

TEST(FindingsAround, AreNotOfWhatMayStandThere) {
    EXPECT_THAT(
        found("nonce", "\xEF\xBB\xBF<?xml version='1.0'?>\n<!DOCTYPE nonce>\n<!-- c --><nonce>1</nonce><?p?>\n"),
        IsEmpty());
}

// ---- Where it breaks ----

TEST(FindingsOfBrokenReplies, SayWhereTheyEnd) {
    EXPECT_THAT(found("job_list", "<get_job_list>\n  <job>\n    <action_id>1</action_id>\n"),
                ElementsAre("error malformed 4:1 /get_job_list/job (the reply ends here, while \"job\" is open)"));
    EXPECT_THAT(found("nonce", "<nonce>1</nonce><!-- x"),
                ElementsAre("error malformed 1:17 / \"<!-- x\" (it does not end)"));
}

TEST(FindingsOfBrokenReplies, NameBothElementsOfAWrongEndTag) {
    EXPECT_THAT(
        found("job_list", "<get_job_list>\n  <job>\n  </jobs>\n</get_job_list>"),
        ElementsAre("error malformed 3:3 /get_job_list/job \"<\" (the end of \"jobs\", while \"job\" is open)"));
}

TEST(FindingsOfBrokenReplies, AreOfANul) {
    using std::string_view_literals::operator""sv;
    EXPECT_THAT(found("nonce", "<nonce>1</nonce>\0"sv).size(), 1U);
    const auto findings = findingsIn("nonce", "<nonce>1</nonce>\n\0junk"sv);
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].kind, kvjxml::finding_kind::malformed);
    EXPECT_EQ(findings[0].line, 2U);
    EXPECT_EQ(findings[0].column, 1U);
}

TEST(FindingsOfBrokenReplies, AreOfWhatLooksLikeATag) {
    EXPECT_THAT(found("job_list", "<get_job_list>\n <>\n</get_job_list>"),
                ElementsAre("error malformed 2:2 /get_job_list \"<>\" (no markup)"));
}

TEST(FindingsOfBytesThatAreNotUtf8, AreToldWhereTheyStand) {
    EXPECT_THAT(found("job_list", "<get_job_list>\n \xFF\xFE <job/>\n</get_job_list>"),
                ElementsAre("error encoding 2:2 /get_job_list \"\xFF\xFE\" (not UTF-8)",
                            "warning ignored 2:2 /get_job_list \"\xFF\xFE \" (a text beside elements)"));
    EXPECT_THAT(found("nonce", "<!-- \xC3 --><nonce>1</nonce>"),
                ElementsAre("error encoding 1:6 / \"\xC3\" (not UTF-8)"));
}

// ---- Places ----

TEST(FindingsPlaces, CountCharactersAndNoByteOrderMark) {
    EXPECT_THAT(found("nonce", "\xEF\xBB\xBF<!-- \xC3\xA4\xE2\x82\xAC\xF0\x9F\x96\xA8 --><nonce/>").front(),
                testing::StartsWith("warning no-text 1:13 /nonce "));
    EXPECT_THAT(found("nonce", "\r\n<nonce/>").front(), testing::StartsWith("warning no-text 2:1 /nonce "));
}

TEST(FindingsPlaces, HaveAnIndexWhereASiblingHasTheSameName) {
    EXPECT_THAT(found("job_list", "<get_job_list><job><x1/></job><task/><job><x1/><x1/></job></get_job_list>"),
                ElementsAre("note unknown-element 1:20 /get_job_list/job[1]/x1 \"x1\"",
                            "note unknown-element 1:31 /get_job_list/task \"task\"",
                            "note unknown-element 1:43 /get_job_list/job[2]/x1[1] \"x1\"",
                            "note unknown-element 1:48 /get_job_list/job[2]/x1[2] \"x1\""));
}

TEST(FindingsPlaces, OfADeepElementAreItsLastSteps) {
    std::string reply = "<nonce>";
    for (int i = 0; i < 1000; ++i) reply += "<a>";
    const auto findings = findingsIn("nonce", reply);
    ASSERT_FALSE(findings.empty());
    EXPECT_LT(findings.back().path.size(), 1000U);
    EXPECT_TRUE(findings.back().path.starts_with("//a/a/"));
}

TEST(FindingsPlaces, HaveATextThatEndsBehindACharacter) {
    std::string letters = "x";
    for (int i = 0; i < 50; ++i) letters += "\xD0\x96";
    const auto findings = findingsIn("nonce", "<nonce>1</nonce>" + letters);
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].text, letters.substr(0, 59));
    EXPECT_EQ(findings[0].length, letters.size());
}

// ---- Lists ----

std::string listOf(std::string_view root, std::string_view entry, int count) {
    std::string reply = "<" + std::string(root) + ">\n";
    for (int i = 0; i < count; ++i) reply.append("<").append(entry).append("/>\n");
    return reply + "</" + std::string(root) + ">";
}

TEST(FindingsInLists, AreOfTheEntriesThatTheNamedOperationHasNoRoomFor) {
    EXPECT_THAT(found("job_list", listOf("get_job_list", "job", 64)), IsEmpty());
    EXPECT_THAT(
        found("job_list", listOf("get_job_list", "job", 66)),
        ElementsAre("warning beyond-capacity 66:1 /get_job_list/job[65] (the record of the named operation has room "
                    "for 64)",
                    "warning beyond-capacity 67:1 /get_job_list/job[66] (the record of the named operation has room "
                    "for 64)"));
    EXPECT_THAT(found("cleaning_history", listOf("get_log_cleaning_history", "cleaning", 32)), IsEmpty());
    EXPECT_THAT(
        found("cleaning_history", listOf("get_log_cleaning_history", "cleaning", 33)),
        ElementsAre("warning beyond-capacity 34:1 /get_log_cleaning_history/cleaning[33] (the record of the named "
                    "operation has room for 32)"));
    // Hosts bring arrays of any size for these.
    EXPECT_THAT(found("service_history", listOf("get_log_service_history", "service", 100)), IsEmpty());
}

TEST(FindingsInLists, AreOfASectionThatStandsTwice) {
    EXPECT_THAT(
        found("capabilities", "<capabilities><fonts/>\n<fonts/></capabilities>"),
        ElementsAre("warning repeated 2:1 /capabilities/fonts[2] Kavrin::_Capabilities::fonts (it stands here more "
                    "than once, and the last one counts)"));
}

// ---- References ----

TEST(FindingsInAttributes, AreOfAReferenceInAValueWithoutQuotes) {
    constexpr std::string_view reference = R"(error reference 1:1 /get_general_status "&x;" (nothing became of it))";
    EXPECT_THAT(found("general_status", "<get_general_status a='&x;'/>"), ElementsAre(reference));
    EXPECT_THAT(found("general_status", "<get_general_status a=&x;/>"), ElementsAre(reference));
}

// ---- Numbers ----

TEST(FindingsOfNumbers, ShowTheLargestWithoutASign) {
    EXPECT_THAT(found("host_keys", "<diffie_hellman><modulus>0xFFFFFFFFFFFFFFC5 V</modulus></diffie_hellman>"),
                ElementsAre("error trailing-text 1:17 /diffie_hellman/modulus Kavrin::_tagHostDHKeys::modulus "
                            "\"0xFFFFFFFFFFFFFFC5 V\" -> \"18446744073709551557\" (\"V\" behind the number was "
                            "ignored)"));
}

// ---- Other readers of the same reply ----

TEST(FindingsOfSharedReplies, DoNotCallUnknownWhatAnotherReaderKnows) {
    const std::string_view reply =
        "<get_sensor_status><sensor_states><door_open>no</door_open><feeder_mode>auto</feeder_mode></sensor_states>"
        "<sensor_values/><doors/></get_sensor_status>";
    EXPECT_THAT(found("sensor_status", reply), IsEmpty());
    EXPECT_THAT(found("sensor_info", reply), IsEmpty());
    EXPECT_THAT(found("printer_id", "<printer_id><sensor_values/></printer_id>").size(), 1U);
}

TEST(FindingsOfSharedReplies, AreNotLeftOutForWhatAnotherReaderKnows) {
    std::string reply = "<get_sensor_status>";
    for (int i = 0; i < 30'000; ++i) reply += "<doors/>";
    const auto reading = readAny(messageOf("sensor_states"), reply + "<dors/></get_sensor_status>", kvjxml::diagnose);
    EXPECT_THAT(toldOf(reading.findings), ElementsAre("note unknown-element 1:240020 /get_sensor_status/dors \"dors\" "
                                                      "(did you mean \"doors\"?)"));
    EXPECT_EQ(reading.omitted, 0U);
}

}  // namespace

}  // namespace findings_test
