// The verb "check": what it prints and what the shell is told. Which faults are found is in check_planted_test.cpp.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "tool/terminal.h"
#include "tool/tool.h"

namespace check_test {

namespace {

using kvj::tests::contentOf;
using kvj::tests::Outcome;
using kvj::tests::runOnTerminal;
using kvj::tests::runShell;
using kvj::tests::runTool;
using kvj::tests::TemporaryFolder;
using kvj::tests::whyNoTerminal;
using kvj::tests::write;
using nlohmann::json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

const std::string clean = "<get_job_status><action_id>7</action_id></get_job_status>";
const std::string noted = "<get_job_status><owner>me</owner></get_job_status>";
const std::string warned = "<get_job_status><action_id></action_id></get_job_status>";
const std::string wrong = "<get_job_status>\n  <action_id>7x</action_id>\n</get_job_status>\n";
const std::string cut = "<get_job_status><action_id>7</act";

// ---- Text ----

TEST(Check, SaysWhereWhatAndWhatBecameOfItAndMarksThePlace) {
    const TemporaryFolder folder;
    const std::string file = (folder / "reply.xml").string();
    write(file, wrong);
    const Outcome outcome = runTool("check " + file);
    EXPECT_EQ(outcome.code, 6);
    EXPECT_EQ(outcome.out, file +
                               ":2:3: trailing-text: /get_job_status/action_id \"7x\", read as \"7\" (\"x\" behind the "
                               "number was ignored)\n"
                               "      <action_id>7x</action_id>\n"
                               "      ^\n");
    EXPECT_EQ(outcome.error, "");
}

TEST(Check, SaysNothingOfACleanDocument) {
    const Outcome outcome = runTool("check", clean);
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.error, "");
}

TEST(Check, HintsAtTheNameThatWasMeant) {
    EXPECT_THAT(runTool("check", "<get_job_status><acton_id>7</acton_id></get_job_status>").out,
                HasSubstr("1:17: unknown-element: /get_job_status/acton_id, not read (did you mean \"action_id\"?)\n"));
    EXPECT_THAT(runTool("check", "<get_job_statis/>").out,
                HasSubstr("1:1: unknown-message: /get_job_statis, not read (did you mean \"get_job_status\"?)\n"));
    EXPECT_THAT(runTool("check", "<weather/>").out,
                HasSubstr("1:1: unknown-message: /weather, not read (no known message has this name)\n"));
}

/// The place of the mark in the last line but one, in columns, and what stands above it.
std::string markedIn(const std::string& out) {
    const std::size_t caret = out.rfind('^');
    const std::size_t mark = out.rfind('\n', caret);
    const std::size_t line = out.rfind('\n', mark - 1);
    return out.substr(line + 1 + (caret - mark - 1), 2);
}

TEST(Check, MarksThePlaceBehindTabsToo) {
    EXPECT_EQ(markedIn(runTool("check", "\t<get_job_status>\t<xx/></get_job_status>").out), "<x");
    EXPECT_EQ(markedIn(runTool("check", "<get_job_status>\n\t\t<xx/></get_job_status>").out), "<x");
}

TEST(Check, CountsColumnsInCharactersAndMarksInColumnsOfTheTerminal) {
    // Three characters that take two columns each, and one of two bytes that takes one.
    const std::string wide = "\xE6\x97\xA5\xE6\x9C\xAC\xE8\xAA\x9E\xC3\xAB";
    const std::string out = runTool("check", "<get_job_status><uuid>" + wide + "</uuid><x/></get_job_status>").out;
    EXPECT_THAT(out, HasSubstr("1:34: unknown-element"));
    EXPECT_THAT(out, HasSubstr("\n" + std::string(4 + 33 + 3, ' ') + "^\n"));
}

TEST(Check, ShowsOfALongLineWhatIsAroundThePlace) {
    const std::string blanks(100'000, ' ');
    const std::string out = runTool("check", "<get_job_status>" + blanks + "<xx/>" + blanks + "</get_job_status>").out;
    EXPECT_LT(out.size(), 500U);
    EXPECT_EQ(markedIn(out), "<x");
    EXPECT_THAT(out, HasSubstr("    ...  "));
    EXPECT_THAT(out, HasSubstr("  ...\n"));
}

TEST(Check, MakesControlCharactersVisible) {
    const std::string hostile = "<get_job_status><x/>\x1B[2J\xC2\x9B\xE2\x80\xAE</get_job_status>";
    const TemporaryFolder folder;
    const std::string file = (folder / "a\x1B[2Jb").string();
    write(file, hostile);
    for (const char* const format : {"text", "json", "sarif"}) {
        const Outcome outcome = runTool(std::string("check --format ") + format + " '" + file + "'");
        EXPECT_EQ(outcome.code, 6);
        EXPECT_THAT(outcome.out, HasSubstr("ignored"));
        for (const char* const raw : {"\x1B", "\xC2\x9B", "\xE2\x80\xAE"})
            EXPECT_THAT(outcome.out, Not(HasSubstr(raw)));
    }
}

// ---- Codes ----

TEST(Check, EndsWith6ForWarningsUnlessTold) {
    const auto codes = [](const std::string& words) {
        std::vector<int> all;
        for (const std::string& reply : {clean, noted, warned, wrong})
            all.push_back(runTool("check" + words, reply).code);
        return all;
    };
    EXPECT_THAT(codes(""), ElementsAre(0, 0, 6, 6));
    EXPECT_THAT(codes(" --fail-on note"), ElementsAre(0, 6, 6, 6));
    EXPECT_THAT(codes(" --fail-on warning"), ElementsAre(0, 0, 6, 6));
    EXPECT_THAT(codes(" --fail-on error"), ElementsAre(0, 0, 0, 6));
}

TEST(Check, EndsWith4ForADamagedDocumentAnd3ForAnUnknownOneWhateverIsIgnored) {
    EXPECT_EQ(runTool("check", cut).code, 4);
    EXPECT_EQ(runTool("check --ignore malformed --ignore unknown-element", cut).code, 4);
    EXPECT_EQ(runTool("check", "<weather/>").code, 3);
    EXPECT_EQ(runTool("check --ignore unknown-message", "<weather/>").code, 3);
    EXPECT_EQ(runTool("check", "").code, 3);
    EXPECT_EQ(runTool("check", clean + clean).code, 4);
}

TEST(Check, TellsTheWorstOfManyFilesAndGoesOn) {
    const TemporaryFolder folder;
    const std::string base = (folder / "").string();
    write(base + "1", wrong);
    write(base + "2", cut);
    write(base + "3", clean);
    EXPECT_EQ(runTool("check " + base + "3").code, 0);
    EXPECT_EQ(runTool("check " + base + "3 " + base + "1").code, 6);
    EXPECT_EQ(runTool("check -r " + base).code, 4);
    const Outcome outcome = runTool("check --format json " + base + "1 " + base + "none " + base + "3");
    EXPECT_EQ(outcome.code, 1);
    EXPECT_EQ(outcome.error, "kvjxml: " + base + "none: cannot be read: No such file or directory\n");
    std::vector<std::string> lines;
    for (std::size_t at = 0; at < outcome.out.size(); at = outcome.out.find('\n', at) + 1) {
        lines.push_back(outcome.out.substr(at, outcome.out.find('\n', at) - at));
    }
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(json::parse(lines[0]).at("findings").size(), 1U);
    EXPECT_EQ(json::parse(lines[1]).at("error"),
              (json{{"code", 1}, {"text", "cannot be read: No such file or directory"}}));
    EXPECT_EQ(json::parse(lines[2]).at("findings").size(), 0U);
}

TEST(Check, GoesOnBehindABrokenDocumentOfAStream) {
    const Outcome outcome = runTool("check --separator line --format json", cut + "\n" + clean + "\n" + noted + "\n");
    EXPECT_EQ(outcome.code, 4);
    EXPECT_THAT(outcome.out, HasSubstr(R"("number":1,"message":"get_job_status","damaged":true)"));
    EXPECT_THAT(outcome.out, HasSubstr(R"("number":2,"message":"get_job_status","damaged":false,"findings":[])"));
    EXPECT_THAT(outcome.out, HasSubstr(R"("number":3,"message":"get_job_status","damaged":false)"));
}

TEST(Check, WrongUseIsCode2) {
    EXPECT_EQ(runTool("check --format xml", clean).code, 2);
    EXPECT_EQ(runTool("check --fail-on never", clean).code, 2);
    const Outcome outcome = runTool("check --ignore unknown-wrod:/a", clean);
    EXPECT_EQ(outcome.code, 2);
    EXPECT_THAT(outcome.error,
                HasSubstr(R"(there is no kind of finding "unknown-wrod"; did you mean "unknown-word"?)"));
}

// ---- What is not told ----

TEST(Check, IgnoresAKindOrAPath) {
    const std::string jobs =
        "<get_job_list><job><owner/></job><job><owner/><action_id>x</action_id></job></get_job_list>";
    const auto told = [&](const std::string& words) {
        std::vector<std::string> paths;
        const json object = json::parse(runTool("check --format json " + words, jobs).out);
        for (const auto& one : object.at("findings")) paths.push_back(one.at("path"));
        return paths;
    };
    const std::string one = "/get_job_list/job[1]/owner";
    const std::string two = "/get_job_list/job[2]/owner";
    const std::string id = "/get_job_list/job[2]/action_id";
    EXPECT_THAT(told(""), ElementsAre(one, two, id));
    EXPECT_THAT(told("--ignore unknown-element"), ElementsAre(id));
    EXPECT_THAT(told("--ignore unknown-element --ignore not-a-number"), ElementsAre());
    EXPECT_THAT(told("--ignore unknown-element:/get_job_list/job/owner"), ElementsAre(id));
    EXPECT_THAT(told("--ignore 'unknown-element:/get_job_list/job[2]/owner'"), ElementsAre(one, id));
    EXPECT_THAT(told("--ignore 'unknown-element:/get_job_list/job[2]/owner[1]'"), ElementsAre(one, id));
    EXPECT_THAT(told("--ignore unknown-element:/get_job_list/job"), ElementsAre(one, two, id));
    EXPECT_THAT(told("--ignore not-a-number:/get_job_list/job/owner"), ElementsAre(one, two, id));
}

TEST(Check, TakesTheFileBehindAnyOption) {
    const TemporaryFolder folder;
    const std::string file = (folder / "reply.xml").string();
    write(file, noted);
    for (const char* const words : {"--ignore malformed", "--fail-on error", "--format text", "--redact"}) {
        EXPECT_THAT(runTool(std::string("check ") + words + " " + file).out, HasSubstr("/get_job_status/owner"));
        EXPECT_THAT(runTool("check " + file + " " + words).out, HasSubstr("/get_job_status/owner"));
    }
}

// ---- JSON ----

TEST(Check, PrintsAnObjectForEachDocumentOnOneLine) {
    const Outcome outcome = runTool("check --format json", wrong);
    EXPECT_EQ(outcome.out.find('\n'), outcome.out.size() - 1);
    json object = json::parse(outcome.out);
    EXPECT_EQ(object.at("tool"), "kvjxml " KVJXML_VERSION);
    object.erase("tool");
    EXPECT_EQ(object, (json{{"schema", 1},
                            {"file", "-"},
                            {"message", "get_job_status"},
                            {"damaged", false},
                            {"findings",
                             {{{"kind", "trailing-text"},
                               {"severity", "error"},
                               {"line", 2},
                               {"column", 3},
                               {"offset", 19},
                               {"length", 11},
                               {"path", "/get_job_status/action_id"},
                               {"field", "Kavrin::KVJobStatus::actionId"},
                               {"text", "7x"},
                               {"value", "7"},
                               {"detail", "\"x\" behind the number was ignored"}}}}}));
}

TEST(Check, TellsPlacesInTheCaptureAsItCame) {
    // Four bytes of a mark and a "<" in UTF-16; then two for each character.
    std::string utf16 = "\xFF\xFE";
    for (const char c : noted) utf16 += std::string{c, '\0'};
    json one = json::parse(runTool("check --format json", utf16).out).at("findings").at(0);
    EXPECT_EQ(one.at("column"), 17);
    EXPECT_EQ(one.at("offset"), 2 + 2 * 16);
    EXPECT_EQ(one.at("length"), 2 * 7);
    one = json::parse(runTool("check --format json", "HTTP/1.1 200 OK\r\n\r\n" + noted).out).at("findings").at(0);
    EXPECT_EQ(one.at("line"), 3);
    EXPECT_EQ(one.at("offset"), 19 + 16);
}

TEST(Check, CountsWhatItDoesNotList) {
    std::string many = "<get_job_status>";
    for (int i = 0; i < 10'005; ++i) many += "<x/>";
    const Outcome outcome = runTool("check --format json", many + "</get_job_status>");
    const json object = json::parse(outcome.out);
    EXPECT_EQ(object.at("findings").size(), 10'000U);
    EXPECT_EQ(object.at("omitted"), 5);
    EXPECT_THAT(runTool("check", many + "</get_job_status>").out,
                testing::EndsWith("standard input: 5 findings more are not listed\n"));
}

// ---- SARIF ----

TEST(Check, PrintsSarifWithARuleForEachKind) {
    const TemporaryFolder folder;
    const std::string file = (folder / "a reply.xml").string();
    write(file, wrong);
    const Outcome outcome = runTool("check --format sarif '" + file + "' /none");
    EXPECT_EQ(outcome.code, 1);
    const json log = json::parse(outcome.out);
    EXPECT_EQ(log.at("version"), "2.1.0");
    ASSERT_EQ(log.at("runs").size(), 1U);
    const json& run = log.at("runs").at(0);
    EXPECT_EQ(run.at("columnKind"), "unicodeCodePoints");
    const json& rules = run.at("tool").at("driver").at("rules");
    EXPECT_EQ(rules.size(), 17U);
    EXPECT_EQ(rules.at(3).at("id"), "unknown-element");
    EXPECT_EQ(rules.at(3).at("defaultConfiguration").at("level"), "note");
    EXPECT_EQ(rules.at(10).at("id"), "no-text");
    EXPECT_EQ(rules.at(10).at("defaultConfiguration").at("level"), "warning");
    ASSERT_EQ(run.at("results").size(), 1U);
    const json& result = run.at("results").at(0);
    EXPECT_EQ(result.at("ruleId"), "trailing-text");
    EXPECT_EQ(rules.at(result.at("ruleIndex").get<std::size_t>()).at("id"), "trailing-text");
    EXPECT_EQ(result.at("level"), "error");
    const json& location = result.at("locations").at(0);
    EXPECT_THAT(location.at("physicalLocation").at("artifactLocation").at("uri").get<std::string>(),
                testing::AllOf(testing::StartsWith("file:///"), testing::EndsWith("/a%20reply.xml")));
    EXPECT_EQ(location.at("physicalLocation").at("region"),
              (json{{"startLine", 2}, {"startColumn", 3}, {"byteOffset", 19}, {"byteLength", 11}}));
    EXPECT_EQ(location.at("logicalLocations").at(0).at("fullyQualifiedName"), "/get_job_status/action_id");
    const json& invocation = run.at("invocations").at(0);
    EXPECT_EQ(invocation.at("executionSuccessful"), false);
    EXPECT_EQ(invocation.at("toolExecutionNotifications").size(), 1U);
}

TEST(Check, PrintsSarifOfNoFindingsToo) {
    const json log = json::parse(runTool("check --format sarif", clean).out);
    EXPECT_EQ(log.at("runs").at(0).at("results"), json::array());
    EXPECT_EQ(log.at("runs").at(0).at("invocations").at(0).at("executionSuccessful"), true);
}

// ---- Where it is written to ----

const std::string secret = "<keys><printer_lock_key>topsecret<b/></printer_lock_key></keys>";

/// As a terminal gets it.
Outcome runInTerminal(const std::string& words, const std::string& input) {
    const TemporaryFolder folder;
    const std::string file = (folder / "reply.xml").string();
    write(file, input);
    return runOnTerminal(words + " " + file);
}

TEST(Check, MasksSecretsOnATerminalAndElsewhereAsTold) {
    if (const std::string why = whyNoTerminal(); !why.empty()) GTEST_SKIP() << why;
    for (const char* const format : {" --format text", " --format json", " --format sarif"}) {
        const std::string words = std::string("check") + format;
        const Outcome shown = runInTerminal(words, secret);
        EXPECT_EQ(shown.code, 6);
        EXPECT_THAT(shown.out, HasSubstr("ignored"));
        EXPECT_THAT(shown.out, Not(HasSubstr("topsecret")));
        EXPECT_THAT(runTool(words + " --redact", secret).out, Not(HasSubstr("topsecret")));
    }
    EXPECT_THAT(runInTerminal("check --no-redact", secret).out, HasSubstr("topsecret"));
    EXPECT_THAT(runTool("check", secret).out, HasSubstr("topsecret"));
}

TEST(Check, TellsTheSameOfBrokenInputsThroughAPipeAndOnATerminal) {
    if (const std::string why = whyNoTerminal(); !why.empty()) GTEST_SKIP() << why;
    for (const std::string& broken : {cut, clean + clean, std::string("<get_job_status>\xFF</get_job_status>"),
                                      std::string("<get_job_status></get_job>"), std::string("ready"),
                                      std::string("<get_job_status/>\0<x/>", 22)}) {
        const TemporaryFolder folder;
        const std::string file = (folder / "reply.xml").string();
        write(file, broken);
        const std::string tool = std::string(KVJXML_TOOL) + " check --no-redact " + file;
        const Outcome piped = runShell(tool + " | cat");
        Outcome shown = runOnTerminal("check --no-redact " + file);
        std::erase(shown.out, '\r');
        EXPECT_NE(shown.out, "") << broken;
        EXPECT_EQ(piped.out, shown.out);
        EXPECT_EQ(runShell(tool).code, shown.code);
        EXPECT_THAT(shown.code, testing::AnyOf(3, 4));
        const Outcome full = runShell(tool + " >/dev/full");
        EXPECT_EQ(full.code, 1);
        EXPECT_EQ(full.error, "kvjxml: standard output: cannot be written\n");
    }
}

}  // namespace

}  // namespace check_test
