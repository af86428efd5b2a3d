// The command line: options, help, README's commands as they are written, and an output that cannot be written.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <regex>
#include <sstream>
#include <vector>

#include "tool/tool.h"

namespace {

using kvjxml::tests::contentOf;
using kvjxml::tests::Outcome;
using kvjxml::tests::runShell;
using kvjxml::tests::runTool;
using kvjxml::tests::TemporaryFolder;
using testing::HasSubstr;
namespace fs = std::filesystem;

const std::string reply = std::string(KVJXML_REPLIES) + "/get_job_status.xml";

/// A sample of a request, the file.
std::string request(const std::string& name) { return std::string(KVJXML_REQUESTS) + "/" + name + ".json"; }

TEST(CommandLine, HelpShowsTheExitCodes) {
    for (const char* words : {"--help", "decode --help"}) {
        const Outcome outcome = runTool(words);
        EXPECT_EQ(outcome.code, 0);
        EXPECT_THAT(outcome.out, HasSubstr("0  done\n"));
        EXPECT_THAT(outcome.out, HasSubstr("4  the reader reported failure; what was read is printed all the same\n"));
    }
}

TEST(CommandLine, TheVersionIsTheProjects) { EXPECT_EQ(runTool("--version").out, std::string(KVJXML_VERSION) + "\n"); }

// ---- An output that cannot be written ----

TEST(CommandLine, OutputThatCannotBeWrittenIsCode1AndSaysSo) {
    for (const std::string& words :
         {std::string("--help"), std::string("--version"), std::string("decode --help"), std::string("encode --help"),
          std::string("encode nonce --help"), std::string("messages --help"), std::string("messages"),
          std::string("encode media --help"), std::string("encode configuration --list-sections"), "decode " + reply,
          "encode nonce " + request("nonce")}) {
        const Outcome outcome = runTool(words + " >/dev/full");
        EXPECT_EQ(outcome.code, 1) << words;
        EXPECT_EQ(outcome.error, "kvjxml: standard output: cannot be written\n") << words;
    }
}

// ---- The file may stand before and behind any option ----

TEST(CommandLine, TheFileStandsBeforeAndBehindOptions) {
    const struct {
        std::string verb;
        std::string option;
        std::string file;
    } cases[] = {
        {"decode", "--message get_job_status", reply},
        {"decode", "--max-size 64K", reply},
        {"encode nonce", "--max-size 64K", request("nonce")},
        {"encode configuration", "--sections ethernet,lcd_contrast", request("configuration")},
        {"encode configuration", "--sections ethernet --sections lcd_contrast", request("configuration")},
        {"encode configuration", "--mask 0x2", request("configuration")},
        {"encode configuration", "--sections cards --card 2 --skip-transfer", request("configuration")},
        {"encode capabilities", "--mode mag", request("capabilities")},
        {"encode capabilities", "--direct-to-card", request("capabilities")},
        {"encode media", "--all-cards --omit-transfer", request("media")},
        {"encode printer-id", "--sections printer_model", request("printer-id")},
        {"encode printer-id", "--full", request("printer-id")},
    };
    for (const auto& [verb, option, file] : cases) {
        const Outcome behind = runTool(verb + " " + option + " " + file);
        EXPECT_EQ(behind.code, 0) << option << ": " << behind.error;
        EXPECT_NE(behind.out, "") << option;
        EXPECT_EQ(runTool(verb + " " + file + " " + option).out, behind.out) << option;
    }
}

// ---- README ----

/// The lines of README's code blocks that call the tool.
std::vector<std::string> commandsOfReadme() {
    const std::regex command(R"((?:.*\| )?kvjxml .*)");
    std::vector<std::string> commands;
    std::istringstream lines(contentOf(KVJXML_README));
    bool isFenced = false;
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("```")) isFenced = !isFenced;
        if (!isFenced && !line.starts_with("    ")) continue;
        line.erase(0, line.find_first_not_of(' '));
        if (std::regex_match(line, command)) commands.push_back(line);
    }
    return commands;
}

TEST(CommandLine, ReadmesCommandsDoWhatTheyAreShownFor) {
    const TemporaryFolder folder;
    for (const char* samples : {KVJXML_REPLIES, KVJXML_REQUESTS}) {
        for (const auto& file : fs::directory_iterator(samples)) fs::copy(file, folder / "");
    }
    fs::copy(reply, folder / "reply.xml");
    kvjxml::tests::write(folder / "capture", "#!/bin/sh\ncat reply.xml\n");
    fs::permissions(folder / "capture", fs::perms::owner_all);
    const std::string setting = "cd " + (folder / "").string() + " && PATH=\"" +
                                fs::path(KVJXML_TOOL).parent_path().string() + ":$PWD:$PATH\"\n";
    const auto commands = commandsOfReadme();
    EXPECT_THAT(commands, testing::Contains(HasSubstr("kvjxml encode configuration --sections")));
    for (const auto& command : commands) {
        const Outcome outcome = runShell(setting + command);
        EXPECT_EQ(outcome.code, 0) << command;
        EXPECT_NE(outcome.out, "") << command;
        EXPECT_EQ(outcome.error, "") << command;
    }
}

}  // namespace
