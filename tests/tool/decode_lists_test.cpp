// The verb "decode": lists, which are printed whole, and in JSON that is printed as it is made.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "tool/tool.h"

namespace decode_lists_test {

namespace {

using kvj::tests::Outcome;
using kvj::tests::runTool;
using nlohmann::json;

json recordOf(const Outcome& outcome) { return json::parse(outcome.out); }

/// A root with `count` entries of this name, each with one element that holds its number from 1 on.
std::string listReply(const std::string& root, const std::string& entry, const std::string& element, int count) {
    std::string text = "<" + root + ">";
    for (int number = 1; number <= count; ++number) {
        text += "<" + entry + "><" + element + ">" + std::to_string(number) + "</" + element + "></" + entry + ">";
    }
    return text + "</" + root + ">";
}

/// `list` has as many entries as there are numbers from 1 to `count`, in this order.
void expectNumbered(const json& list, const std::string& field, int count) {
    ASSERT_EQ(list.size(), static_cast<std::size_t>(count));
    for (int number = 1; number <= count; ++number) {
        EXPECT_EQ(list[static_cast<std::size_t>(number - 1)].at(field), number);
    }
}

TEST(DecodeLists, EveryJobIsPrinted) {
    const Outcome outcome = runTool("decode", listReply("get_job_list", "job", "action_id", 70));
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(recordOf(outcome).at("count"), 70);
    expectNumbered(recordOf(outcome).at("jobs"), "actionId", 70);
}

TEST(DecodeLists, AJobListWithoutJobsIsEmptyAndAnAnswer) {
    const Outcome outcome = runTool("decode", "<get_job_list/>");
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(recordOf(outcome), (json{{"count", 0}, {"jobs", json::array()}}));
}

TEST(DecodeLists, EveryAccessPointIsPrinted) {
    const Outcome outcome = runTool("decode", listReply("AccessPoints", "AccessPoint", "Channel", 70));
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(recordOf(outcome).at("count"), 70);
    expectNumbered(recordOf(outcome).at("accessPoints"), "Channel", 70);
}

TEST(DecodeLists, EveryEntryOfTheServiceHistoryIsPrinted) {
    const Outcome outcome = runTool("decode", listReply("get_log_service_history", "service", "number", 70));
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(recordOf(outcome).at("count"), 70);
    expectNumbered(recordOf(outcome).at("entries"), "number", 70);
}

TEST(DecodeLists, EveryEntryOfTheCleaningHistoryIsPrinted) {
    for (const int count : {1, 5, 32, 40}) {
        const Outcome outcome = runTool("decode", listReply("get_log_cleaning_history", "cleaning", "number", count));
        EXPECT_EQ(outcome.code, 0);
        expectNumbered(recordOf(outcome), "number", count);
    }
}

TEST(DecodeLists, AnEmptyEntryOfTheCleaningHistoryIsPrinted) {
    const Outcome outcome =
        runTool("decode",
                "<get_log_cleaning_history><cleaning/><cleaning><type>2</type></cleaning><cleaning/>"
                "</get_log_cleaning_history>");
    EXPECT_EQ(outcome.code, 0);
    const json empty = {{"number", 0}, {"cards", 0}, {"type", 0}};
    EXPECT_EQ(recordOf(outcome), (json{empty, {{"number", 0}, {"cards", 0}, {"type", 2}}, empty}));
}

TEST(DecodeLists, ACleaningHistoryWithoutEntriesIsAnEmptyListAndAnAnswer) {
    const Outcome outcome = runTool("decode", "<get_log_cleaning_history/>");
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(recordOf(outcome), json::array());
}

TEST(DecodeLists, AListHasNoEntriesForElementsOfOtherNames) {
    const Outcome points =
        runTool("decode", "<AccessPoints><AccessPoint><Channel>6</Channel></AccessPoint><scan/></AccessPoints>");
    EXPECT_EQ(recordOf(points).at("count"), 2);
    EXPECT_EQ(recordOf(points).at("accessPoints").size(), 1U);
    const Outcome log = runTool(
        "decode", "<get_log_service_history><service><year>2024</year></service><next/></get_log_service_history>");
    EXPECT_EQ(recordOf(log).at("count"), 2);
    EXPECT_EQ(recordOf(log).at("entries").size(), 1U);
}

TEST(DecodeLists, AListOfOtherElementsAloneHasNoEntries) {
    const Outcome points = runTool("decode", "<AccessPoints><scan/></AccessPoints>");
    EXPECT_EQ(points.code, 0);
    EXPECT_EQ(recordOf(points), (json{{"count", 1}, {"accessPoints", json::array()}}));
    const Outcome log = runTool("decode", "<get_log_service_history><next/></get_log_service_history>");
    EXPECT_EQ(log.code, 0);
    EXPECT_EQ(recordOf(log), (json{{"count", 1}, {"entries", json::array()}}));
}

// ---- The lists of the capabilities ----

json capabilities(const std::string& sections) {
    const Outcome outcome = runTool("decode", "<capabilities>" + sections + "</capabilities>");
    EXPECT_EQ(outcome.code, 0);
    return recordOf(outcome);
}

TEST(DecodeLists, AnEntryOfTheCapabilitiesIsPrintedWhenTheReplySaysAnythingInItOrBehindIt) {
    const json caps = capabilities(
        "<host_ports><host_port/><host_port><port_id>0</port_id></host_port><other/><host_port/></host_ports>"
        "<barcodes><barcode>code39</barcode><code/><barcode/></barcodes>"
        "<graphic_formats><graphic_format>bmp</graphic_format><graphic_format>gif</graphic_format></graphic_formats>");
    const json none = {{"portId", 0}, {"portType", 0}};
    EXPECT_EQ(caps.at("hostPorts"), (json{none, none}));
    EXPECT_EQ(caps.at("barCodes"), (json{{{"name", "code39"}}}));
    EXPECT_EQ(caps.at("graphicFormats"), (json{1, -1}));
    EXPECT_EQ(caps.at("fonts"), json::array());
}

TEST(DecodeLists, AllDevicePortsAreOne) {
    const json caps = capabilities(
        "<device_ports><device_port><port_id>1</port_id></device_port><device_port><type>serial</type></device_port>"
        "<device_port/></device_ports>");
    EXPECT_EQ(caps.at("devicePorts"), (json{{{"portId", 1}, {"portType", 1}}}));
}

TEST(DecodeLists, ASectionOfTheCapabilitiesThatStandsAgainGoesOverTheFirst) {
    const json caps = capabilities(
        "<templates><template><name>a</name><location>l</location></template><template><name>b</name></template>"
        "<template><name>c</name></template></templates>"
        "<templates><template><name>A</name></template></templates>");
    EXPECT_EQ(caps.at("templates"), (json{{{"name", "A"}, {"location", "l"}},
                                          {{"name", "b"}, {"location", ""}},
                                          {{"name", "c"}, {"location", ""}}}));
}

// ---- How JSON is laid out ----

TEST(DecodeLists, WhatIsPrintedPieceByPieceIsLaidOutAsAWhole) {
    for (const char* reply :
         {"<capabilities/>", "<media><cards><card/><card/></cards><films/></media>", "<AccessPoints/>",
          "<get_count><total_cards_done>3</total_cards_done></get_count>", "<get_log_cleaning_history/>",
          "<get_job_list><job><uuid>&quot;\\/&#9;</uuid></job></get_job_list>",
          "<get_free_ram><bytes_free>7</bytes_free></get_free_ram>"}) {
        const Outcome outcome = runTool("decode", reply);
        EXPECT_EQ(outcome.out, nlohmann::ordered_json::parse(outcome.out).dump(4) + "\n");
    }
}

}  // namespace

}  // namespace decode_lists_test
