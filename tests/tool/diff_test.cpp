// What is said to differ between two replies.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>

#include "support/files.h"
#include "tool/terminal.h"
#include "tool/tool.h"

namespace diff_test {

namespace {

using namespace kvj::tests;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
using Json = nlohmann::json;

/// Two replies, and what `diff` says of them.
class Diff : public testing::Test {
protected:
    void give(const std::string& before, const std::string& after) const {
        write(folder_ / "before", before);
        write(folder_ / "after", after);
    }
    [[nodiscard]] std::string words(const std::string& options = {}) const {
        return "diff " + options + " " + (folder_ / "before").string() + " " + (folder_ / "after").string();
    }
    /// The lines of the text, without the two that name the files.
    [[nodiscard]] std::string said(const std::string& before, const std::string& after, int code = 7) const {
        give(before, after);
        const Outcome outcome = runTool(words());
        EXPECT_EQ(outcome.code, code) << outcome.error;
        const std::size_t second = outcome.out.find('\n', outcome.out.find('\n') + 1);
        return outcome.out.empty() ? "" : outcome.out.substr(second + 1);
    }

    TemporaryFolder folder_;
};

std::string status(const std::string& content) { return "<get_general_status>" + content + "</get_general_status>"; }
std::string job(int id, const std::string& state) {
    return "<job><action_id>" + std::to_string(id) + "</action_id><uuid>u" + std::to_string(id) +
           "</uuid><print_state>" + state + "</print_state></job>";
}
std::string jobs(const std::string& content) { return "<get_job_list>" + content + "</get_job_list>"; }

TEST_F(Diff, OfEverySampleWithItselfIsNothing) {
    std::size_t count = 0;
    for (const auto& file : std::filesystem::directory_iterator(KVJXML_REPLIES)) {
        const std::string path = file.path().string();
        const Outcome outcome = runTool("diff " + path + " " + path);
        EXPECT_EQ(outcome.code, 0) << path;
        EXPECT_EQ(outcome.out + outcome.error, "") << path;
        ++count;
    }
    EXPECT_GT(count, 20U);
}

TEST_F(Diff, SaysCodesWithTheirWords) {
    EXPECT_EQ(said(status("<printer_state>printing</printer_state><error>0</error>"),
                   status("<printer_state>idle</printer_state><error>0</error>")),
              "/printerState: 5 (printing) -> 2 (idle)\n");
}

TEST_F(Diff, NamesTheTwoFiles) {
    give(status("<error>1</error>"), status("<error>2</error>"));
    EXPECT_EQ(runTool(words()).out,
              "--- " + (folder_ / "before").string() + "\n+++ " + (folder_ / "after").string() + "\n/error: 1 -> 2\n");
}

TEST_F(Diff, SaysOfAFieldThatOnlyOneReplyHasThatItIsNotInTheOther) {
    EXPECT_EQ(said(status("<warning>41</warning><error>1</error>"), status("<error>1</error>")),
              "/warning: 41 -> not in the reply\n");
    EXPECT_EQ(said(status("<error>1</error>"), status("<error>1</error><warning>0</warning>")),
              "/warning: not in the reply -> 0\n");
}

TEST_F(Diff, SeesTheRangeOfASetting) {
    const auto reply = [](const std::string& max) {
        return "<configuration><lcd_contrast min=\"10\" max=\"" + max + "\">12</lcd_contrast></configuration>";
    };
    EXPECT_EQ(said(reply("20"), reply("30")), "/lcdContrast/max: 20 -> 30\n");
}

TEST_F(Diff, SeesTextsUpToTheirEnd) {
    EXPECT_EQ(said("<nonce>abc</nonce>", "<nonce>abcd</nonce>"), "/nonce: \"abc\" -> \"abcd\"\n");
}

TEST_F(Diff, HasThePointersOfDecode) {
    const std::string sample = std::string(KVJXML_REPLIES) + "/get_sensor_status.xml";
    std::string changed = contentOf(sample);
    changed.replace(changed.find("<door_open>no<"), 14, "<door_open>yes<");
    const std::string text = said(contentOf(sample), changed);
    EXPECT_EQ(text,
              "/ParseSensorStatus/doorOpen: false -> true\n"
              "/ParseSensorStates/doorOpen: \"no\" -> \"yes\"\n");
}

// ---- Lists ----

TEST_F(Diff, SaysWhichEntryWasRemoved) {
    const std::string before = jobs(job(1, "done_ok") + job(2, "parsed") + job(3, "parsed"));
    EXPECT_EQ(said(before, jobs(job(2, "parsed") + job(3, "parsed"))),
              "/jobs/0: removed: actionId 1, uuid \"u1\", printState 7 (done_ok)\n");
    EXPECT_EQ(said(before, jobs(job(1, "done_ok") + job(3, "parsed"))),
              "/jobs/1: removed: actionId 2, uuid \"u2\", printState 5 (parsed)\n");
}

TEST_F(Diff, SaysWhichEntryWasAdded) {
    EXPECT_EQ(said(jobs(job(1, "parsed")), jobs(job(1, "parsed") + job(2, "parsed"))),
              "/jobs/1: added: actionId 2, uuid \"u2\", printState 5 (parsed)\n");
    EXPECT_EQ(said(jobs(""), jobs(job(9, "parsed"))),
              "/jobs/0: added: actionId 9, uuid \"u9\", printState 5 (parsed)\n");
}

TEST_F(Diff, FindsAnEntryThatMovedAndChanged) {
    EXPECT_EQ(said(jobs(job(1, "done_ok") + job(2, "in_progress") + job(3, "parsed")),
                   jobs(job(2, "done_ok") + job(3, "in_progress") + job(4, "parsed"))),
              "/jobs/0: removed: actionId 1, uuid \"u1\", printState 7 (done_ok)\n"
              "/jobs/0/printState (was /jobs/1/printState): 6 (in_progress) -> 7 (done_ok)\n"
              "/jobs/1/printState (was /jobs/2/printState): 5 (parsed) -> 6 (in_progress)\n"
              "/jobs/2: added: actionId 4, uuid \"u4\", printState 5 (parsed)\n");
}

TEST_F(Diff, SeesEveryEntryOfALongList) {
    std::string before;
    std::string after;
    for (int id = 1; id <= 2000; ++id) {
        before += job(id, "parsed");
        after += job(id, id == 1900 ? "done_ok" : "parsed");
    }
    EXPECT_EQ(said(jobs(before), jobs(after)), "/jobs/1899/printState: 5 (parsed) -> 7 (done_ok)\n");
}

TEST_F(Diff, OfLongListsThatDifferEverywhereGoesByPlaces) {
    std::string before;
    std::string after;
    for (int id = 1; id <= 3000; ++id) {
        before += job(id, "parsed");
        after += job(id + 10000, "parsed");
    }
    const std::string text = said(jobs(before), jobs(after));
    EXPECT_THAT(text, StartsWith("/jobs/0/actionId: 1 -> 10001\n/jobs/0/uuid: \"u1\" -> \"u10001\"\n"));
}

// ---- JSON ----

TEST_F(Diff, AsJsonIsOneObjectOnOneLine) {
    give(jobs(job(1, "done_ok") + job(2, "in_progress")), jobs(job(2, "done_ok")));
    const Outcome outcome = runTool(words("--format json"));
    EXPECT_EQ(outcome.code, 7);
    EXPECT_EQ(outcome.out.find('\n'), outcome.out.size() - 1);
    const Json all = Json::parse(outcome.out);
    EXPECT_EQ(all["schema"], 1);
    EXPECT_EQ(all["message"], "get_job_list");
    EXPECT_EQ(all["damaged"], false);
    EXPECT_EQ(all["differences"], Json::parse(R"([
        {"kind": "removed", "before": {"pointer": "/jobs/0",
         "value": {"actionId": 1, "uuid": "u1", "printState": {"code": 7, "word": "done_ok"}}}},
        {"kind": "changed", "before": {"pointer": "/jobs/1/printState", "value": {"code": 6, "word": "in_progress"}},
         "after": {"pointer": "/jobs/0/printState", "value": {"code": 7, "word": "done_ok"}}}])"));
}

TEST_F(Diff, AsJsonIsPrintedWhenNothingDiffers) {
    give(status("<error>1</error>"), status("<error>1</error>"));
    const Outcome outcome = runTool(words("--format json"));
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(Json::parse(outcome.out)["differences"], Json::array());
}

// ---- Replies that are not right ----

TEST_F(Diff, OfADamagedReplyIsCode4AndSaysWhichAndWhere) {
    give(status("<error>1</error>"), "<get_general_status><error>2</error>\n<warn");
    const Outcome outcome = runTool(words());
    EXPECT_EQ(outcome.code, 4);
    EXPECT_THAT(outcome.out, HasSubstr("/error: 1 -> 2\n"));
    EXPECT_THAT(outcome.error, HasSubstr("after: is damaged, compared as far as it goes: line 2, column "));
    EXPECT_EQ(Json::parse(runTool(words("--format json") + " 2>/dev/null").out)["damaged"], true);
}

TEST_F(Diff, OfTwoDamagedRepliesIsCode4EvenWhenNothingDiffers) {
    give("<get_general_status><error>2</error>", "<get_general_status><error>2</error>");
    const Outcome outcome = runTool(words());
    EXPECT_EQ(outcome.code, 4);
    EXPECT_EQ(outcome.out, "");
    EXPECT_THAT(outcome.error, HasSubstr("before: is damaged"));
    EXPECT_THAT(outcome.error, HasSubstr("after: is damaged"));
}

TEST_F(Diff, OfOtherMessagesIsCode3) {
    give(status("<error>1</error>"), jobs(""));
    Outcome outcome = runTool(words());
    EXPECT_EQ(outcome.code, 3);
    EXPECT_THAT(outcome.error, HasSubstr("after: there is no \"get_general_status\" in it"));
    give("<other/>", jobs(""));
    outcome = runTool(words());
    EXPECT_EQ(outcome.code, 3);
    EXPECT_THAT(outcome.error, HasSubstr("before: the root element \"other\" is not that of a known message"));
}

TEST_F(Diff, OfAFileThatIsNotThereIsCode1) {
    give("", "");
    EXPECT_EQ(runTool("diff /nowhere " + (folder_ / "after").string()).code, 1);
}

TEST_F(Diff, TakesOneReplyFromAPipe) {
    give(status("<error>1</error>"), "");
    const Outcome outcome = runTool("diff " + (folder_ / "before").string() + " -", status("<error>2</error>"));
    EXPECT_EQ(outcome.code, 7);
    EXPECT_THAT(outcome.out, HasSubstr("+++ standard input\n/error: 1 -> 2\n"));
    EXPECT_EQ(runTool("diff - -").code, 2);
}

TEST_F(Diff, TakesWhatCapturesHaveAroundAReply) {
    const std::string file = (folder_ / "after").string();
    const auto headed = "HTTP/1.1 200 OK\r\nContent-Type: text/xml\r\n\r\n" + status("<error>2</error>");
    give(status("<error>1</error>"), headed);
    Outcome outcome = runTool(words());
    EXPECT_EQ(outcome.code, 7);
    EXPECT_THAT(outcome.out, HasSubstr("\n/error: 1 -> 2\n"));
    EXPECT_EQ(outcome.error, "kvjxml: " + file + ": has header lines of HTTP in front\n");

    std::string wide = "\xFF\xFE";
    for (const char letter : status("<error>2</error>")) wide.append({letter, '\0'});
    give(status("<error>1</error>"), wide);
    outcome = runTool(words());
    EXPECT_THAT(outcome.out, HasSubstr("\n/error: 1 -> 2\n"));
    EXPECT_EQ(outcome.error, "kvjxml: " + file + ": is UTF-16, little-endian, by its byte order mark\n");
}

TEST_F(Diff, TakesTheEncodingThatItIsTold) {
    const auto named = [](const std::string& name) {
        return "<configuration><wireless><ssid>" + name + "</ssid></wireless></configuration>";
    };
    give(named("Caf\xE9"), named("B\xFCro"));
    EXPECT_THAT(runTool(words("--encoding latin-1")).out,
                HasSubstr("\n/wireless/ssid: \"Caf\u00E9\" -> \"B\u00FCro\"\n"));
    EXPECT_EQ(runTool(words()).code, 4);
}

TEST_F(Diff, PlacesDamageInTheLinesOfTheCapture) {
    give(status(""), "HTTP/1.1 200 OK\n\n<get_general_status>\n<error>1</error>");
    const Outcome outcome = runTool(words());
    EXPECT_EQ(outcome.code, 4);
    EXPECT_THAT(outcome.error, HasSubstr("is damaged, compared as far as it goes: line 4, column "));
}

TEST_F(Diff, AsksWhichMessageWasMeant) {
    give("<get_general_staus/>", status(""));
    const Outcome outcome = runTool(words());
    EXPECT_EQ(outcome.code, 3);
    EXPECT_THAT(outcome.error, HasSubstr("did you mean \"get_general_status\"?"));
}

// ---- Where it is printed ----

const std::string twoKeys[] = {"<configuration><wireless><ssid>a</ssid><key>first</key></wireless></configuration>",
                               "<configuration><wireless><ssid>b</ssid><key>second</key></wireless></configuration>"};

TEST_F(Diff, ShowsSecretsWhereNobodyLooksOverAShoulder) {
    give(twoKeys[0], twoKeys[1]);
    EXPECT_THAT(runTool(words()).out, HasSubstr("/wireless/key: \"first\" -> \"second\"\n"));
}

TEST_F(Diff, MasksSecretsOnATerminalAndWhenToldTo) {
    if (const std::string why = whyNoTerminal(); !why.empty()) GTEST_SKIP() << why;
    give(twoKeys[0], twoKeys[1]);
    for (const Outcome& outcome : {runTool(words("--redact")), runTool(words("--redact --format json")),
                                   runOnTerminal(words()), runOnTerminal(words("--format json"))}) {
        EXPECT_EQ(outcome.code, 7);
        EXPECT_THAT(outcome.out, HasSubstr("/wireless/key"));
        EXPECT_THAT(outcome.out, HasSubstr("********"));
        EXPECT_THAT(outcome.out, Not(HasSubstr("first")));
        EXPECT_THAT(outcome.out, Not(HasSubstr("second")));
    }
    EXPECT_THAT(runOnTerminal(words("--no-redact")).out, HasSubstr("\"first\" -> \"second\""));
}

TEST_F(Diff, ShowsThatThereIsNoSecret) {
    give(twoKeys[0], "<configuration><wireless><ssid>a</ssid></wireless></configuration>");
    EXPECT_THAT(runTool(words("--redact")).out, HasSubstr("/wireless/key: ******** -> not in the reply\n"));
    give(twoKeys[0], "<configuration><wireless><ssid>a</ssid><key/></wireless></configuration>");
    EXPECT_THAT(runTool(words("--redact --format json")).out, Not(HasSubstr("first")));
}

TEST_F(Diff, GivesATerminalNothingThatItWouldObey) {
    if (const std::string why = whyNoTerminal(); !why.empty()) GTEST_SKIP() << why;
    // An escape, U+009B that is one as well, U+202E that turns a text around, and a byte that is no text.
    const std::string wild =
        "a\x1B[2Jb\xC2\x9B"
        "2J\xE2\x80\xAE"
        "c\xE9";
    give("<nonce>" + wild + "</nonce>", "<nonce>plain</nonce>");
    for (const char* const options : {"", "--format json"}) {
        const Outcome outcome = runOnTerminal(words(options));
        EXPECT_EQ(outcome.code, 4) << "a byte is no text";
        for (const char* const raw : {"\x1B", "\xC2\x9B", "\xE2\x80\xAE", "\xE9"}) {
            EXPECT_THAT(outcome.out, Not(HasSubstr(raw))) << options;
        }
        EXPECT_THAT(outcome.out, HasSubstr("plain"));
    }
}

TEST_F(Diff, OfBrokenRepliesIsTheSameThroughAPipeAndAFullDisk) {
    if (const std::string why = whyNoTerminal(); !why.empty()) GTEST_SKIP() << why;
    const std::string whole = contentOf(std::string(KVJXML_REPLIES) + "/get_general_status.xml");
    for (const std::size_t length : {whole.size() / 3, whole.size() / 2, whole.size() - 5}) {
        give(whole, whole.substr(0, length));
        const Outcome piped = runTool(words() + " | cat");
        const Outcome direct = runTool(words());
        EXPECT_EQ(direct.code, 4);
        EXPECT_EQ(piped.out, direct.out);
        EXPECT_EQ(piped.error, direct.error);
        EXPECT_EQ(runOnTerminal(words()).code, 4);
        const Outcome full = runTool(words() + " >/dev/full");
        EXPECT_EQ(full.code, direct.out.empty() ? 4 : 1);
    }
}

}  // namespace

}  // namespace diff_test
