// The reply "get_job_status": every field, its groups, and what happens to a field when its element is odd or missing.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "KVJStatusParser.h"
#include "fields/status.h"
#include "support/records.h"
#include "support/xml.h"

namespace job_status_test {

namespace {

using Kavrin::KVJobStatus;
using Kavrin::KVJStatusParser;
using kvj::tests::expectEqual;
using kvj::tests::wide;
using kvj::tests::Xml;

/// A record with a value in every field that no test writes.
KVJobStatus preset() { return {101, "preset", true, -2, -3, 102, -4, -5, -6, -7, -8, -9}; }

bool read(const std::string& reply, KVJobStatus& status) {
    const std::wstring text = wide(reply);
    return KVJStatusParser().ParseJobStatus(*text.c_str(), static_cast<int>(text.size()), status);
}

/// Reads a reply with these children of its root.
bool readChildren(const std::string& children, KVJobStatus& status) {
    return read("<get_job_status>" + children + "</get_job_status>", status);
}

TEST(JobStatus, FillsEveryFieldFromOneReply) {
    KVJobStatus status = preset();
    EXPECT_TRUE(readChildren(
        "<action_id>1042</action_id><uuid>6a1f0c52</uuid><ready_for_next_job>yes</ready_for_next_job>"
        "<status_printing><copies_done>1</copies_done><copies_total_specified>2</copies_total_specified>"
        "<error_code>3</error_code><print_state>in_progress</print_state>"
        "<position_in_transport>at_station</position_in_transport><laminator_state>ready</laminator_state>"
        "</status_printing>"
        "<status_mag><mag_state>encoding</mag_state></status_mag>"
        "<status_contact><contact_state>verifying</contact_state></status_contact>"
        "<status_contactless><contactless_state>contactless_error</contactless_state></status_contactless>",
        status));
    expectEqual(status, {1042, "6a1f0c52", true, 1, 2, 3, 6, 19, 20, 29, 26, 3});
}

TEST(JobStatus, ReadsTheReplyThatAPrintingPrinterSends) {
    KVJobStatus status{};
    EXPECT_TRUE(
        readChildren("<action_id>1042</action_id><uuid>u</uuid><ready_for_next_job>yes</ready_for_next_job>"
                     "<status_printing><copies_done>1</copies_done><copies_total_specified>2</copies_total_specified>"
                     "<error_code>0</error_code><print_state>in_progress</print_state>"
                     "<position_in_transport>at_station</position_in_transport></status_printing>"
                     "<status_mag><mag_state>encoding</mag_state></status_mag>",
                     status));
    expectEqual(status, {1042, "u", true, 1, 2, 0, 6, 19, 0, 0, 26, 0});
}

TEST(JobStatus, TheActionIdHas16Bits) {
    KVJobStatus status{};
    EXPECT_TRUE(readChildren("<action_id>70000</action_id>", status));
    EXPECT_EQ(status.actionId, 4464U);
}

TEST(JobStatus, TheErrorCodeHas16Bits) {
    KVJobStatus status{};
    EXPECT_TRUE(readChildren("<status_printing><error_code>65538</error_code></status_printing>", status));
    EXPECT_EQ(status.errorCode, 2);
}

TEST(JobStatus, ReadyForNextJobIsTrueForExactlyYes) {
    for (const char* text : {"enabled", "YES", "Yes", "no", "true", "1", "yes."}) {
        KVJobStatus status = preset();
        EXPECT_TRUE(readChildren("<ready_for_next_job>" + std::string(text) + "</ready_for_next_job>", status)) << text;
        EXPECT_FALSE(status.readyForNextJob) << text;
    }
    KVJobStatus status{};
    EXPECT_TRUE(readChildren("<ready_for_next_job>yes</ready_for_next_job>", status));
    EXPECT_TRUE(status.readyForNextJob);
}

TEST(JobStatus, ReadyForNextJobWithoutTextIsStoredAsFalseAndIsFalse) {
    KVJobStatus status = preset();
    EXPECT_FALSE(readChildren("<ready_for_next_job/>", status));
    EXPECT_FALSE(status.readyForNextJob);
}

TEST(JobStatus, ReadyForNextJobWithoutTextBeforeAnotherElementIsStoredAsFalseAndTheResultIsTheOthers) {
    KVJobStatus status = preset();
    EXPECT_TRUE(readChildren("<ready_for_next_job/><action_id>1</action_id>", status));
    EXPECT_FALSE(status.readyForNextJob);
    EXPECT_EQ(status.actionId, 1U);
}

TEST(JobStatus, AnUnknownWordIsMinus1AndOfTheLaminator0) {
    const auto unknown = [](const std::string& group, const std::string& name) {
        return "<" + group + "><" + name + ">magic</" + name + "></" + group + ">";
    };
    KVJobStatus status = preset();
    EXPECT_TRUE(readChildren(unknown("status_printing", "position_in_transport"), status));
    EXPECT_TRUE(readChildren(unknown("status_printing", "laminator_state"), status));
    EXPECT_TRUE(readChildren(unknown("status_mag", "mag_state"), status));
    EXPECT_TRUE(readChildren(unknown("status_contact", "contact_state"), status));
    EXPECT_TRUE(readChildren(unknown("status_contactless", "contactless_state"), status));
    expectEqual(status, {101, "preset", true, -2, -3, 102, -4, -1, -1, -1, -1, 0});
}

TEST(JobStatus, PrintStateMagReadIs21AndAnUnknownWordMinus1) {
    KVJobStatus status{};
    EXPECT_TRUE(readChildren("<status_printing><print_state>mag_read</print_state></status_printing>", status));
    EXPECT_EQ(status.printState, 21);
    EXPECT_TRUE(readChildren("<status_printing><print_state>magic</print_state></status_printing>", status));
    EXPECT_EQ(status.printState, -1);
}

TEST(JobStatus, LaminatingAndLaminateAreTwoStates) {
    KVJobStatus status{};
    EXPECT_TRUE(
        readChildren("<status_printing><print_state>laminating</print_state>"
                     "<position_in_transport>laminate</position_in_transport></status_printing>",
                     status));
    EXPECT_EQ(status.printState, 41);
    EXPECT_EQ(status.positionInTransport, 39);
}

TEST(JobStatus, AnyEncodingGroupCarriesAnyOfTheThreeStates) {
    for (const char* group : {"status_mag", "status_contact", "status_contactless"}) {
        for (const char* state : {"mag_state", "contact_state", "contactless_state"}) {
            const std::string open = std::string("<") + group + "><" + state + ">";
            const std::string close = std::string("</") + state + "></" + group + ">";
            KVJobStatus status{};
            EXPECT_TRUE(readChildren(open + "done_ok" + close, status)) << open;
            const std::string name = state;
            expectEqual(status, {0, "", false, 0, 0, 0, 0, name == "mag_state" ? 7 : 0, name == "contact_state" ? 7 : 0,
                                 name == "contactless_state" ? 7 : 0, 0, 0});
        }
    }
}

TEST(JobStatus, AnEncodingGroupHasNoPrintStateAndThePrintingGroupNoEncodingState) {
    KVJobStatus status = preset();
    EXPECT_FALSE(
        readChildren("<status_mag><print_state>done_ok</print_state></status_mag>"
                     "<status_printing><mag_state>done_ok</mag_state></status_printing>",
                     status));
    expectEqual(status, preset());
}

TEST(JobStatus, AStateOutsideItsGroupIsUnknown) {
    KVJobStatus status = preset();
    EXPECT_FALSE(readChildren("<print_state>done_ok</print_state><mag_state>done_ok</mag_state>", status));
    expectEqual(status, preset());
}

TEST(JobStatus, ARepeatedGroupIsReadAgain) {
    KVJobStatus status{};
    EXPECT_TRUE(
        readChildren("<status_printing><copies_done>1</copies_done></status_printing>"
                     "<status_printing><copies_total_specified>5</copies_total_specified></status_printing>"
                     "<status_printing><copies_done>2</copies_done></status_printing>",
                     status));
    EXPECT_EQ(status.copiesDone, 2);
    EXPECT_EQ(status.copiesTotalSpecified, 5);
}

TEST(JobStatus, ACutReplyFillsTheRecordAsFarAsItGoes) {
    const std::string reply =
        "<get_job_status><action_id>7</action_id><status_printing><copies_done>3</copies_done>"
        "</status_printing></get_job_status>";
    for (std::size_t length = 0; length <= reply.size(); ++length) {
        KVJobStatus status = preset();
        const bool result = read(reply.substr(0, length), status);
        // The digit of the action id is character 28, that of the copies done character 71; from character 56 on there
        // is a printing group without children, and that is the last element known.
        KVJobStatus expected = preset();
        if (length >= 28) expected.actionId = 7;
        if (length >= 71) expected.copiesDone = 3;
        expectEqual(status, expected);
        EXPECT_EQ(result, (length >= 28 && length < 56) || length >= 71) << length;
    }
}

TEST(JobStatus, TheWalkersReadElementsThatTheHostHolds) {
    KVJStatusParser parser;
    KVJobStatus status{};
    Xml job("<job><action_id>4</action_id></job>");
    EXPECT_TRUE(parser.parseJobStatus(job.root(), status));
    Xml printing("<any><copies_done>5</copies_done></any>");
    EXPECT_TRUE(parser.parseJobPrinting(printing.root(), status));
    Xml encoding("<any><contact_state>held</contact_state></any>");
    EXPECT_TRUE(parser.getStatus(encoding.root(), status));
    expectEqual(status, {4, "", false, 5, 0, 0, 0, 0, 36, 0, 0, 0});
}

TEST(JobStatus, TheWalkersAreFalseForNoElementAndForOneWithoutChildren) {
    KVJStatusParser parser;
    KVJobStatus status = preset();
    Xml empty("<any>text</any>");
    for (TiXmlElement* element : {static_cast<TiXmlElement*>(nullptr), empty.root()}) {
        EXPECT_FALSE(parser.parseJobStatus(element, status));
        EXPECT_FALSE(parser.parseJobPrinting(element, status));
        EXPECT_FALSE(parser.getStatus(element, status));
    }
    expectEqual(status, preset());
}

}  // namespace

}  // namespace job_status_test
