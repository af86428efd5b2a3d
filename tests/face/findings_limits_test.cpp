// At the limits of what is found: a value that a field just holds, or just does not, and markup that is just right.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <kvjxml_read.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "support/readings.h"

namespace findings_limits_test {

namespace {

using namespace kvj::tests;
using kvjxml::finding_kind;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> found(std::string_view message, std::string_view reply) {
    return toldOf(readAny(messageOf(message), reply, kvjxml::diagnose).findings);
}

std::vector<finding_kind> kindsIn(std::string_view message, std::string_view reply) {
    std::vector<finding_kind> kinds;
    for (const auto& finding : readAny(messageOf(message), reply, kvjxml::diagnose).findings)
        kinds.push_back(finding.kind);
    return kinds;
}

/// A general status with one element.
std::string general(std::string_view name, std::string_view content) {
    std::string text = "<get_general_status>";
    text.append("<").append(name).append(">").append(content).append("</").append(name).append(">");
    return text + "</get_general_status>";
}

TEST(ARepeatedElement, IsFoundWithOthersInBetween) {
    EXPECT_THAT(
        found("job_status",
              "<get_job_status>\n<action_id>1</action_id><uuid>a</uuid>\n<action_id>2</action_id>\n"
              "</get_job_status>"),
        ElementsAre("warning repeated 3:1 /get_job_status/action_id[2] Kavrin::KVJobStatus::actionId \"2\" (it stands "
                    "here more than once, and the last one counts)"));
}

TEST(ADamagedReply, StaysSoWhateverFollows) {
    for (const char* const after : {"<![CDATA[x]]>", "<!-- c -->", "<?i?>", "<b/>", "text"}) {
        const std::string reply = "<get_job_status><>" + std::string(after) + "</get_job_status>";
        EXPECT_FALSE(readAny(messageOf("job_status"), reply).whole) << after;
        EXPECT_THAT(kindsIn("job_status", reply), Contains(finding_kind::malformed)) << after;
    }
}

TEST(ATextBesideElements, IsFoundWhateverFollows) {
    for (const char* const after : {"", "<!-- c -->", "<![CDATA[x]]>", "<?i?>", "<uuid>b</uuid>"}) {
        const std::string reply =
            "<get_job_status>text<action_id>1</action_id>" + std::string(after) + "</get_job_status>";
        EXPECT_THAT(kindsIn("job_status", reply), Contains(finding_kind::ignored)) << after;
    }
}

// ---- References ----

TEST(AReference, ThatIsWrongIsFoundInAnAttribute) {
    EXPECT_THAT(found("nonce", "\n <nonce of='a&nbsp;b'>1</nonce>"),
                ElementsAre("error reference 2:2 /nonce kvjxml::nonce_text::nonce \"&nbsp;\" (nothing became of it)"));
    EXPECT_THAT(found("nonce", "<nonce of='a&amp;b'>1</nonce>"), IsEmpty());
}

// Its digits are those behind the last mark before the semicolon, and what stands in front of the mark is lost.
TEST(AReference, WithANumberTakesAllBeforeItsSemicolonAlong) {
    EXPECT_THAT(kindsIn("nonce", "<nonce>&#<b>#65;</nonce>"), ElementsAre(finding_kind::reference));
    EXPECT_THAT(kindsIn("nonce", "<nonce of='&#\'#65;'>1</nonce>"), ElementsAre(finding_kind::reference));
}

// ---- Declarations ----

TEST(ADeclaration, MayStandOnSeveralLines) {
    EXPECT_THAT(found("nonce", "<?xml version='1.0'\r\n encoding='UTF-8'\r\n?>\r\n<nonce>1</nonce>\r\n<b/>"),
                ElementsAre("warning ignored 5:1 /b \"<b/>\" (an element beside the message)"));
}

TEST(ADeclaration, EndsBehindItsValues) {
    EXPECT_THAT(found("nonce", "<?xml version='>'?><nonce>1</nonce><b/>"),
                ElementsAre("warning ignored 1:36 /b \"<b/>\" (an element beside the message)"));
}

TEST(ADeclaration, HasItsWordsInAnyCase) {
    for (const char* const word : {"version", "VERSION", "standalone", "STANDALONE", "encoding", "ENCODING"}) {
        EXPECT_THAT(found("nonce", "<?xml " + std::string(word) + "='><b/>'?><nonce>1</nonce>"), IsEmpty()) << word;
    }
}

// ---- Numbers ----

TEST(ANumber, ReadsHexadecimalDigitsInEitherCase) {
    for (const char* const right : {"0xA", "0xF", "0xa", "0xf", "0x9", "0x0", "0xAfFa"}) {
        EXPECT_THAT(found("general_status", general("alarms", right)), IsEmpty()) << right;
    }
    for (const char* const wrong : {"0x1G", "0x1g", "0x1@", "0x1`", "0x1/", "0x1:"}) {
        EXPECT_THAT(kindsIn("general_status", general("alarms", wrong)), ElementsAre(finding_kind::trailing_text))
            << wrong;
    }
}

TEST(ANumber, IsDecimalWhereItsFieldIs) {
    for (const char* const wrong : {"0x7", "5:", "5/", "12a", "12A"}) {
        EXPECT_THAT(kindsIn("general_status", general("num_jobs_done_ok", wrong)),
                    ElementsAre(finding_kind::trailing_text))
            << wrong;
    }
}

TEST(ANumber, BeginsBehindBlanksAndNothingElse) {
    for (const char* const right : {"&#9;7", "&#10;7", "&#11;7", "&#12;7", "&#13;7", " 7", "7 "}) {
        EXPECT_THAT(found("general_status", general("num_jobs_done_ok", right)), IsEmpty()) << right;
    }
    for (const char* const wrong : {"&#8;7", "&#14;7"}) {
        EXPECT_THAT(kindsIn("general_status", general("num_jobs_done_ok", wrong)),
                    ElementsAre(finding_kind::not_a_number))
            << wrong;
    }
}

TEST(ANumber, IsFoundFromTheFirstOnThatItsFieldDoesNotHold) {
    const std::string_view least = "-2147483648";
    const std::string_view most = "2147483647";
    EXPECT_THAT(found("general_status", general("num_jobs_done_ok", least)), IsEmpty());
    EXPECT_THAT(found("general_status", general("num_jobs_done_ok", most)), IsEmpty());
    for (const char* const beyond : {"-2147483649", "2147483648"}) {
        EXPECT_THAT(kindsIn("general_status", general("num_jobs_done_ok", beyond)),
                    ElementsAre(finding_kind::out_of_range))
            << beyond;
    }
}

// ---- Settings ----

TEST(ASetting, HoldsTheLeastAndTheMostOf32Bits) {
    const auto contrast = [](std::string_view value) {
        return kindsIn("configuration", "<configuration><lcd_contrast min='-2147483648' max='2147483647'>" +
                                            std::string(value) + "</lcd_contrast></configuration>");
    };
    EXPECT_THAT(contrast("-2147483648"), IsEmpty());
    EXPECT_THAT(contrast("2147483647"), IsEmpty());
    EXPECT_THAT(contrast("-2147483649"), ElementsAre(finding_kind::out_of_range));
    EXPECT_THAT(contrast("2147483648"), ElementsAre(finding_kind::out_of_range));
}

TEST(ASetting, IsClampedWhateverItsMaximumLooksLike) {
    for (int max = 0; max < 20; ++max) {
        EXPECT_THAT(kindsIn("configuration", "<configuration><lcd_contrast min='0' max='" + std::to_string(max) +
                                                 "'>20</lcd_contrast></configuration>"),
                    ElementsAre(finding_kind::clamped))
            << max;
    }
}

// ---- Words ----

TEST(AWordInCapitals, HasTheRightOneAsAHint) {
    EXPECT_THAT(found("job_status", "<get_job_status><ready_for_next_job>Yes</ready_for_next_job></get_job_status>"),
                ElementsAre("error unknown-word 1:17 /get_job_status/ready_for_next_job "
                            "Kavrin::KVJobStatus::readyForNextJob \"Yes\" -> \"false\" (did you mean \"yes\"?)"));
}

}  // namespace

}  // namespace findings_limits_test
