// The verb "decode" with many documents: files, folders and streams, whole and broken ones.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "tool/terminal.h"
#include "tool/tool.h"

namespace decode_many_test {

namespace {

using kvj::tests::Outcome;
using kvj::tests::runShell;
using kvj::tests::runTool;
using kvj::tests::TemporaryFolder;
using kvj::tests::whyNoTerminal;
using kvj::tests::write;
using nlohmann::json;
using testing::HasSubstr;

std::string job(int number) {
    return "<get_job_status><action_id>" + std::to_string(number) + "</action_id></get_job_status>";
}
const std::string cut = "<get_job_status><action_id>7";
const std::string unknown = "<get_weather/>";

/// Each line of the output.
std::vector<json> linesOf(const Outcome& outcome) {
    std::vector<json> lines;
    std::istringstream stream(outcome.out);
    for (std::string line; std::getline(stream, line);) lines.push_back(json::parse(line));
    return lines;
}

// ---- Lines of JSON ----

TEST(DecodeLines, EachDocumentIsALineWithItsSource) {
    const Outcome outcome = runTool("decode --format jsonl --separator line", job(1) + "\n" + job(2) + "\n");
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.error, "");
    const auto lines = linesOf(outcome);
    ASSERT_EQ(lines.size(), 2U);
    json second = lines[1];
    EXPECT_EQ(second.at("record").at("actionId"), 2);
    second.erase("record");
    EXPECT_EQ(second, (json{{"schema", 1},
                            {"source", {{"file", "-"}, {"number", 2}}},
                            {"message", "get_job_status"},
                            {"damaged", false},
                            {"findings", 0}}));
}

TEST(DecodeLines, TheRecordIsThatOfPlainJson) {
    for (const auto& file : std::filesystem::directory_iterator(KVJXML_REPLIES)) {
        const std::string path = file.path().string();
        const Outcome line = runTool("decode --format jsonl " + path);
        EXPECT_EQ(line.code, 0);
        ASSERT_EQ(linesOf(line).size(), 1U) << path;
        EXPECT_EQ(linesOf(line)[0].at("record"), json::parse(runTool("decode " + path).out)) << path;
        EXPECT_EQ(linesOf(line)[0].at("source").at("file"), path);
    }
}

TEST(DecodeLines, BrokenOnesAreInTheirPlaceAndTheStreamGoesOn) {
    const std::string stream = job(1) + "\n" + cut + "\n" + unknown + "\n\nrubbish\n" + job(6) + "\n";
    const Outcome outcome = runTool("decode --format jsonl --separator line", stream);
    EXPECT_EQ(outcome.code, 3) << "the worst of them";
    const auto lines = linesOf(outcome);
    ASSERT_EQ(lines.size(), 5U);
    EXPECT_EQ(lines[0].at("record").at("actionId"), 1);
    EXPECT_EQ(lines[1].at("damaged"), true);
    EXPECT_EQ(lines[1].at("record").at("damaged"), true);
    EXPECT_EQ(lines[1].at("record").at("actionId"), 7);
    EXPECT_THAT(lines[1].at("notes").at(0).get<std::string>(), HasSubstr("line 1, column 29"));
    EXPECT_EQ(
        lines[2],
        (json{{"schema", 1},
              {"source", {{"file", "-"}, {"number", 3}}},
              {"error", {{"code", 3}, {"text", "the root element \"get_weather\" is not that of a known message"}}}}));
    EXPECT_EQ(lines[3].at("source").at("number"), 5);
    EXPECT_EQ(lines[3].at("error").at("code"), 3);
    EXPECT_EQ(lines[4].at("record").at("actionId"), 6);
}

TEST(DecodeLines, AFileThatCannotBeReadIsAnErrorInItsPlace) {
    const TemporaryFolder folder;
    const std::string file = (folder / "job.xml").string();
    write(file, job(1));
    const Outcome outcome = runTool("decode --format jsonl " + file + " /nowhere/x.xml " + file);
    EXPECT_EQ(outcome.code, 1);
    const auto lines = linesOf(outcome);
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[1].at("source"), (json{{"file", "/nowhere/x.xml"}, {"number", 1}}));
    EXPECT_EQ(lines[1].at("error"), (json{{"code", 1}, {"text", "cannot be read: No such file or directory"}}));
    EXPECT_EQ(lines[2].at("record").at("actionId"), 1);
}

TEST(DecodeLines, FindingsAreCountedAndThoseOfSeveralReadersOnce) {
    const Outcome one =
        runTool("decode --format jsonl", "<get_job_status><action_id>318abc</action_id><colour/></get_job_status>");
    EXPECT_EQ(linesOf(one).at(0).at("findings"), 2) << "the rest of a number, and an unknown element";
    // All three readers skip it.
    const Outcome three = runTool("decode --format jsonl", "<get_sensor_status><colour/></get_sensor_status>");
    EXPECT_EQ(linesOf(three).at(0).at("findings"), 1);
    // In an entry of a list, of a message whose lists are printed entry by entry.
    const Outcome list = runTool(
        "decode --format jsonl",
        "<AccessPoints><AccessPoint><Channel>6x</Channel></AccessPoint><AccessPoint><a/></AccessPoint></AccessPoints>");
    EXPECT_EQ(linesOf(list).at(0).at("findings"), 2);
}

TEST(DecodeLines, AsManyFindingsAreCountedAsCheckTells) {
    // Two readers take this text, and their fields keep a different part of it.
    const std::string reply = "<get_sensor_status><sensor_states><ribbon_takeup_encoder>" + std::string(40, 'x') +
                              "</ribbon_takeup_encoder></sensor_states></get_sensor_status>";
    const json told = json::parse(runTool("check --format json", reply).out).at("findings");
    EXPECT_EQ(told.size(), 1U);
    EXPECT_EQ(linesOf(runTool("decode --format jsonl", reply)).at(0).at("findings"), told.size());
}

TEST(DecodeLines, WhatStoodAroundAReplyIsNoted) {
    const Outcome outcome =
        runTool("decode --format jsonl", "HTTP/1.1 200 OK\r\nServer: printer\r\n\r\n\xEF\xBB\xBF" + job(7));
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.error, "");
    const json line = linesOf(outcome).at(0);
    EXPECT_EQ(line.at("notes"), (json{"has header lines of HTTP in front", "begins with a byte order mark"}));
    EXPECT_EQ(line.at("record").at("actionId"), 7);
}

TEST(DecodeLines, TenThousandRepliesAreReadByOneProcessAndOneBrokenAmongThemShows) {
    std::string stream;
    for (int number = 1; number <= 10'000; ++number) stream += (number == 5000 ? cut : job(number)) + '\0';
    const Outcome outcome = runTool("decode --format jsonl --separator nul", stream);
    EXPECT_EQ(outcome.code, 4);
    const auto lines = linesOf(outcome);
    ASSERT_EQ(lines.size(), 10'000U);
    for (int number = 1; number <= 10'000; ++number) {
        const json& line = lines[static_cast<std::size_t>(number) - 1];
        ASSERT_EQ(line.at("source").at("number"), number);
        ASSERT_EQ(line.at("damaged"), number == 5000);
        ASSERT_EQ(line.at("record").at("actionId"), number == 5000 ? 7 : number);
    }
}

TEST(DecodeLines, ALineIsThereAsSoonAsItsDocumentIs) {
    // The second document is sent only when the line about the first has come back.
    const TemporaryFolder folder;
    const std::string pipe = (folder / "pipe").string();
    const std::string out = (folder / "out").string();
    const Outcome outcome =
        runShell("mkfifo " + pipe + " && { " KVJXML_TOOL " decode --format jsonl --separator line <" + pipe + " >" +
                 out + " & exec 3>" + pipe + "; echo '" + job(1) + "' >&3; i=0; while [ ! -s " + out +
                 " ] && [ $i -lt 500 ]; do sleep 0.01; i=$((i+1)); done; "
                 "wc -l <" +
                 out + "; echo '" + job(2) + "' >&3; exec 3>&-; wait; wc -l <" + out + "; }");
    EXPECT_EQ(outcome.out, "1\n2\n");
}

// ---- Plain JSON ----

TEST(DecodeMany, RecordsFollowEachOtherAsTheyAreAlone) {
    const std::string one = std::string(KVJXML_REPLIES) + "/get_job_status.xml";
    const std::string other = std::string(KVJXML_REPLIES) + "/get_count.xml";
    const Outcome outcome = runTool("decode " + one + " " + other);
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.out, runTool("decode " + one).out + runTool("decode " + other).out);
}

TEST(DecodeMany, WhatIsWrongIsSaidWithTheNumberOfTheDocument) {
    const Outcome outcome = runTool("decode --separator nul", job(1) + '\0' + unknown + '\0' + '\0' + cut);
    EXPECT_EQ(outcome.code, 3);
    EXPECT_EQ(
        outcome.error,
        "kvjxml: standard input, document 2: the root element \"get_weather\" is not that of a known message\n"
        "kvjxml: standard input, document 3: is empty\n"
        "kvjxml: standard input, document 4: read as far as it goes: line 1, column 29: the reply ends here, while "
        "\"action_id\" is open\n");
}

TEST(DecodeMany, TheWorstCodeStandsForAll) {
    const TemporaryFolder folder;
    const auto file = [&](const std::string& name, const std::string& content) {
        write(folder / name, content);
        return " " + (folder / name).string();
    };
    const std::string good = file("good", job(1));
    const std::string damaged = file("damaged", cut);
    const std::string strange = file("strange", unknown);
    for (const char* format : {"json", "jsonl"}) {
        const std::string decode = "decode --format " + std::string(format);
        EXPECT_EQ(runTool(decode + good + good).code, 0);
        EXPECT_EQ(runTool(decode + damaged + good).code, 4);
        EXPECT_EQ(runTool(decode + damaged + strange + good).code, 3);
        EXPECT_EQ(runTool(decode + " /nowhere" + damaged + strange).code, 1);
    }
}

TEST(DecodeMany, FoldersAreReadWhenItIsAskedFor) {
    const TemporaryFolder folder;
    std::filesystem::create_directories(folder / "monday");
    write(folder / "monday/2.xml", job(2));
    write(folder / "monday/1.xml", job(1));
    write(folder / "tuesday.xml", job(3));
    const Outcome outcome = runTool("decode --format jsonl -r " + (folder / "").string());
    EXPECT_EQ(outcome.code, 0);
    std::vector<int> numbers;
    for (const json& line : linesOf(outcome)) numbers.push_back(line.at("record").at("actionId"));
    EXPECT_EQ(numbers, (std::vector<int>{1, 2, 3}));
    EXPECT_EQ(runTool("decode " + (folder / "").string()).code, 1);
}

TEST(DecodeMany, AFullDiskEndsItWithCode1) {
    const std::string stream = "yes '" + job(1) + "' | ";
    for (const char* format : {"json", "jsonl"}) {
        const Outcome outcome =
            runShell(stream + KVJXML_TOOL " decode --separator line --format " + format + " >/dev/full");
        EXPECT_EQ(outcome.code, 1);
        EXPECT_EQ(outcome.error, "kvjxml: standard output: cannot be written\n");
    }
}

// ---- Progress ----

TEST(DecodeProgress, IsShownAtATerminalWhenAStreamTakesLong) {
    if (const std::string why = whyNoTerminal(); !why.empty()) GTEST_SKIP() << why;
    const TemporaryFolder folder;
    const std::string out = (folder / "out").string();
    const std::string stream = "(echo " + std::string("\"<nonce/>\"") + "; sleep 1.2; echo \"<nonce/>\")";
    const Outcome outcome = runShell(
        "script -qec '" + stream + " | " KVJXML_TOOL " decode --format jsonl --separator line >" + out + "' /dev/null");
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.out, "2 documents, 1 a second\r\x1B[K");
}

TEST(DecodeProgress, IsNotShownWhereNobodyWaitsForIt) {
    const Outcome outcome = runShell("(echo '<nonce/>'; sleep 1.2; echo '<nonce/>') | " KVJXML_TOOL
                                     " decode --format jsonl --separator line");
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.error, "");
}

// ---- Damage in machine formats ----

TEST(DecodeDamaged, TheMarkIsTheFirstMemberOfWhateverWasRead) {
    const auto decoded = [](const std::string& reply) {
        const Outcome outcome = runTool("decode", reply);
        EXPECT_EQ(outcome.code, 4) << reply;
        return nlohmann::ordered_json::parse(outcome.out);
    };
    for (const char* reply : {"<get_job_status><uuid>1", "<nonce>5F", "<get_count><total_cards_done>3",
                              "<AccessPoints>", "<get_log_cleaning_history><cleaning>"}) {
        const auto record = decoded(reply);
        EXPECT_EQ(record.begin().key(), "damaged") << reply;
        EXPECT_EQ(record.begin().value(), true) << reply;
    }
    EXPECT_EQ(json(decoded("<nonce>5F")), (json{{"damaged", true}, {"nonce", "5F"}}));
    EXPECT_EQ(json(decoded("<get_log_cleaning_history><cleaning><number>3")),
              (json{{"damaged", true}, {"value", {{{"number", 3}, {"cards", 0}, {"type", 0}}}}}));
}

TEST(DecodeDamaged, MoreThanOneMessageInADocumentIsSaid) {
    const Outcome outcome = runTool("decode", job(7) + job(8));
    EXPECT_EQ(outcome.code, 4);
    EXPECT_EQ(outcome.error,
              "kvjxml: standard input: read as far as it goes: line 1, column 58: an element beside the message\n");
}

TEST(DecodeDamaged, LinesAreThoseOfTheCaptureHeaderIncluded) {
    const Outcome outcome = runTool("decode", "HTTP/1.1 200 OK\nServer: x\n\n<get_job_status>\n<uuid>6");
    EXPECT_EQ(
        outcome.error,
        "kvjxml: standard input: has header lines of HTTP in front\n"
        "kvjxml: standard input: read as far as it goes: line 5, column 8: the reply ends here, while \"uuid\" is "
        "open\n");
}

// ---- Encodings ----

TEST(DecodeEncodings, TextsAreTheSameInAllOfThem) {
    const std::string reply = "<get_job_status><uuid>Zo\xC3\xAB</uuid></get_job_status>";
    const auto recode = [&](const std::string& encoding) {
        return runShell("iconv -f UTF-8 -t " + encoding, reply).out;
    };
    const struct {
        const char* option;
        std::string bytes;
    } cases[] = {
        {"", reply},
        {"--encoding utf-8", reply},
        {"", recode("UTF-16")},
        {"", recode("UTF-16LE")},
        {"", recode("UTF-16BE")},
        {"--encoding utf-16", recode("UTF-16")},
        {"--encoding utf-16le", recode("UTF-16LE")},
        {"--encoding utf-16be", recode("UTF-16BE")},
        {"--encoding latin-1", recode("LATIN1")},
        {"", "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>" + recode("LATIN1")},
    };
    for (const auto& [option, bytes] : cases) {
        const Outcome outcome = runTool("decode " + std::string(option), bytes);
        EXPECT_EQ(outcome.code, 0) << option << ": " << outcome.error;
        EXPECT_EQ(json::parse(outcome.out).at("uuid"), "Zo\xC3\xAB") << option;
    }
}

TEST(DecodeEncodings, Utf16ThatIsBrokenIsDamaged) {
    const std::string reply("<\0n\0o\0n\0c\0e\0>\0A\0\x3D\xD8<\0/\0n\0o\0n\0c\0e\0>\0", 34);
    const Outcome outcome = runTool("decode", reply);
    EXPECT_EQ(outcome.code, 4);
    EXPECT_THAT(outcome.error, HasSubstr("line 1, column 9: not UTF-8"));
}

}  // namespace

}  // namespace decode_many_test
