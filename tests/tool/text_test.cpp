// "decode --format text": what is shown to eyes.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <set>

#include "secrets.h"
#include "tool/terminal.h"
#include "tool/tool.h"
#include "units.h"

namespace text_test {

namespace {

using kvj::tests::contentOf;
using kvj::tests::runOnTerminal;
using kvj::tests::runTool;
using kvj::tests::TemporaryFolder;
using kvj::tests::whyNoTerminal;
using kvj::tests::write;
using nlohmann::json;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
namespace fs = std::filesystem;

std::string textOf(const std::string& reply) { return runTool("decode --format text", reply).out; }

// ---- Lines ----

TEST(Text, NamesAndValuesStandBelowEachOther) {
    EXPECT_THAT(
        textOf("<get_general_status><printer_state>printing</printer_state><alarms>0x8002</alarms><error>0</error>"
               "<num_jobs_total>325</num_jobs_total><laminator_state>raedy</laminator_state>"
               "</get_general_status>"),
        StartsWith("general_status\n"
                   "    printerState            5  printing\n"
                   "    alarms                  32770\n"
                   "    error                   0\n"
                   "    printerLock             -\n"));
}

TEST(Text, WhatWasSentStandsBesideWhatItBecame) {
    const std::string text = textOf(
        "<get_general_status><printer_state>prinitng</printer_state><num_jobs_done_ok>318abc</num_jobs_done_ok>"
        "<param_chg_counter>70123</param_chg_counter></get_general_status>");
    EXPECT_THAT(text, HasSubstr("    printerState            38    sent \"prinitng\"\n"));
    EXPECT_THAT(text, HasSubstr("    jobsDoneOk              318   sent \"318abc\"\n"));
    EXPECT_THAT(text, HasSubstr("    paramChangeCounter      4587  sent \"70123\"\n"));
}

TEST(Text, WhatWasNotSentIsNoZero) {
    const std::string text = textOf("<get_count><total_cards_done>0</total_cards_done></get_count>");
    EXPECT_THAT(text, HasSubstr("    totalCardsDone           0\n"));
    EXPECT_THAT(text, HasSubstr("    laminatorCardsLaminated  -\n"));
}

TEST(Text, AnEmptyTextAndATruthAreWords) {
    const std::string text = textOf(
        "<AccessPoints><AccessPoint><SSID></SSID><Selected>true</Selected><Infrastructure>no</Infrastructure>"
        "</AccessPoint></AccessPoints>");
    EXPECT_THAT(text, HasSubstr("        Selected        yes\n"));
    EXPECT_THAT(text, HasSubstr("        Infrastructure  no\n"));
}

TEST(Text, ASettingHasItsRangeBesideIt) {
    const std::string text = textOf(R"(<configuration><lcd_contrast min="1" max="20">25</lcd_contrast><usb_timeout>)"
                                    R"(<read min="100" max="60000">5000</read></usb_timeout></configuration>)");
    EXPECT_THAT(text, HasSubstr("  20  1 to 20  sent \"25\"\n"));
    EXPECT_THAT(text, HasSubstr("        read   5000 ms  100 to 60000\n"));
    EXPECT_THAT(text, HasSubstr("        write  -\n"));
}

TEST(Text, APartThatIsNotThereIsALine) {
    EXPECT_THAT(textOf("<configuration><standby_timeout>20</standby_timeout></configuration>"),
                HasSubstr("    wireless               -\n"));
}

TEST(Text, ALongValueDoesNotPushTheOthers) {
    const std::string uuid(60, 'u');
    EXPECT_THAT(
        textOf("<get_job_list><job><uuid>" + uuid + "</uuid><print_state>held</print_state></job></get_job_list>"),
        HasSubstr("  36" + std::string(24, ' ') + "held\n"));
}

// ---- Units ----

TEST(Text, AUnitStandsBehindTheNumber) {
    EXPECT_THAT(textOf("<get_free_ram><bytes_free>18874368</bytes_free></get_free_ram>"),
                HasSubstr("    bytesFree  18874368 bytes\n"));
}

TEST(Text, UnitsAreThoseOfTheRecords) {
    std::string headers;
    for (const auto& file : fs::directory_iterator(KVJXML_INCLUDE)) headers += contentOf(file.path());
    for (const auto& unit : kvj::tool::units) {
        const std::size_t begin = headers.find("struct " + std::string(unit.record) + " {");
        ASSERT_NE(begin, std::string::npos) << unit.record;
        const std::size_t comment = headers.rfind("\n\n", begin);
        const std::string record = headers.substr(comment, headers.find("};", begin) - comment);
        EXPECT_THAT(record, HasSubstr("in " + std::string(unit.name))) << unit.record;
        EXPECT_THAT(record, HasSubstr(" " + std::string(unit.field) + ";")) << unit.record;
    }
}

// ---- Lists, and several readers ----

TEST(Text, EntriesOfAListAreBlocks) {
    EXPECT_EQ(textOf("<get_job_list><job><action_id>7</action_id></job><job><action_id>8</action_id></job>"
                     "</get_job_list>"),
              "job_list\n"
              "    jobs 1 of 2\n"
              "        actionId    7\n"
              "        uuid        -\n"
              "        printState  -\n"
              "    jobs 2 of 2\n"
              "        actionId    8\n"
              "        uuid        -\n"
              "        printState  -\n");
}

TEST(Text, AnEmptyListIsALine) { EXPECT_EQ(textOf("<get_job_list/>"), "job_list\n    jobs  none\n"); }

TEST(Text, EntriesWithoutFieldsAreLines) {
    EXPECT_THAT(textOf("<capabilities><graphic_formats><graphic_format>bmp</graphic_format>"
                       "<graphic_format>png</graphic_format></graphic_formats></capabilities>"),
                HasSubstr("    graphicFormats 1 of 2  1  bmp\n    graphicFormats 2 of 2  -1  sent \"png\"\n"));
}

TEST(Text, EveryReaderOfAReplyHasItsBlock) {
    EXPECT_EQ(textOf("<get_count><total_cards_until_next_cleaning>456</total_cards_until_next_cleaning></get_count>"),
              "card_count\n"
              "    totalCardsDone           -\n"
              "    laminatorCardsLaminated  -\n"
              "    laminatorCardsProcessed  -\n"
              "cards_until_cleaning\n"
              "    value  456\n");
}

TEST(Text, SaysWhereEachOfSeveralDocumentsIsFrom) {
    const TemporaryFolder folder;
    const std::string reply = "<get_free_ram><bytes_free>7</bytes_free></get_free_ram>";
    const std::string one = (folder / "one.xml").string();
    const std::string two = (folder / "two.xml").string();
    write(one, reply);
    write(two, reply);
    EXPECT_EQ(runTool("decode --format text " + one + " " + two).out,
              one + ": free_ram\n    bytesFree  7 bytes\n" + two + ": free_ram\n    bytesFree  7 bytes\n");
}

// ---- The samples ----

/// Whether a text has a line of a field's name and its value.
bool hasLine(const std::string& text, const std::string& name, const std::string& value) {
    for (std::size_t at = 0; (at = text.find(" " + name + "  ", at)) != std::string::npos; ++at) {
        const std::size_t begin = text.find_first_not_of(' ', at + name.size() + 1);
        const std::size_t end = begin + value.size();
        if (text.compare(begin, value.size(), value) == 0 && (text[end] == ' ' || text[end] == '\n')) return true;
    }
    return false;
}

/// Looks for all numbers and texts of a record that say something.
// The records of the samples nest as deep as they are declared, so the recursion ends.
// NOLINTNEXTLINE(misc-no-recursion)
void expectLines(const json& record, const std::string& name, const std::string& text) {
    if (record.is_object() && record.contains("min") && record.contains("value")) {
        if (record.at("value") != 0) {
            EXPECT_TRUE(hasLine(text, name, record.at("value").dump())) << name;
        }
    } else if (record.is_object()) {
        for (const auto& [key, value] : record.items()) {
            if (!value.is_array() && !(key == "count" && value.is_number())) expectLines(value, key, text);
        }
        for (const auto& [key, value] : record.items()) {
            if (!value.is_array()) continue;
            for (std::size_t i = 0; i < value.size(); ++i) {
                const std::string place = key + " " + std::to_string(i + 1) + " of " + std::to_string(value.size());
                expectLines(value.at(i), place, text);
            }
        }
    } else if (record.is_number() && record != 0) {
        EXPECT_TRUE(hasLine(text, name, record.dump())) << name << ": " << record;
    } else if (record.is_string() && record != "") {
        EXPECT_TRUE(hasLine(text, name, record.get<std::string>())) << name << ": " << record;
    }
}

class TextOfSample : public testing::TestWithParam<std::string> {};

TEST_P(TextOfSample, HasAllValues) {
    const auto outcome = runTool("decode --format text " + std::string(KVJXML_REPLIES) + "/" + GetParam() + ".xml");
    EXPECT_EQ(outcome.code, 0);
    json records = json::parse(contentOf(fs::path(KVJXML_GOLDEN) / (GetParam() + ".json")));
    // A value that stands for itself has no name in JSON.
    for (auto& [name, value] : records.items()) {
        if (name.starts_with("Parse") && value.is_number()) value = {{"value", value}};
    }
    expectLines(records, {}, outcome.out);
}

std::set<std::string> samples() {
    std::set<std::string> names;
    for (const auto& file : fs::directory_iterator(KVJXML_REPLIES)) names.insert(file.path().stem().string());
    return names;
}
INSTANTIATE_TEST_SUITE_P(Replies, TextOfSample, testing::ValuesIn(samples()));

// ---- Damage, secrets, colours ----

TEST(Text, ADamagedReplySaysSo) {
    const auto outcome = runTool("decode --format text", "<get_general_status><alarms>0x80");
    EXPECT_EQ(outcome.code, 4);
    EXPECT_THAT(outcome.out, StartsWith("general_status\n    damaged: read as far as it goes\n"));
    EXPECT_THAT(outcome.out, HasSubstr("    alarms                  128\n"));
}

TEST(Text, SecretsAreMasked) {
    const std::string reply = "<configuration><wireless><key>hush</key></wireless></configuration>";
    EXPECT_THAT(textOf(reply), HasSubstr(" hush\n"));
    const std::string text = runTool("decode --format text --redact", reply).out;
    EXPECT_THAT(text, Not(HasSubstr("hush")));
    EXPECT_THAT(text, HasSubstr("key         " + std::string(kvj::tool::masked) + "\n"));
}

TEST(Text, HasColoursOnATerminalAlone) {
    if (const std::string why = whyNoTerminal(); !why.empty()) GTEST_SKIP() << why;
    const TemporaryFolder folder;
    write(folder / "reply.xml", "<get_count><total_cards_done>3</total_cards_done></get_count>");
    const std::string words = "decode --format text " + (folder / "reply.xml").string();
    EXPECT_THAT(runOnTerminal(words, "-u NO_COLOR").out, HasSubstr("\x1B["));
    EXPECT_THAT(runOnTerminal(words, "NO_COLOR=1").out, Not(HasSubstr("\x1B[")));
    EXPECT_THAT(runTool(words).out, Not(HasSubstr("\x1B[")));
}

TEST(Text, JsonHasNoColours) {
    if (const std::string why = whyNoTerminal(); !why.empty()) GTEST_SKIP() << why;
    const TemporaryFolder folder;
    write(folder / "reply.xml", "<get_count><total_cards_done>3</total_cards_done></get_count>");
    EXPECT_THAT(runOnTerminal("decode --words " + (folder / "reply.xml").string(), "-u NO_COLOR").out,
                Not(HasSubstr("\x1B[")));
}

}  // namespace

}  // namespace text_test
