// The command line: options, help, and an output that cannot be written.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "tool/tool.h"

namespace command_line_test {

namespace {

using kvj::tests::Outcome;
using kvj::tests::runTool;
using testing::HasSubstr;

const std::string reply = std::string(KVJXML_REPLIES) + "/get_job_status.xml";

/// A sample of a request, the file.
std::string request(const std::string& name) { return std::string(KVJXML_REQUESTS) + "/" + name + ".json"; }

TEST(CommandLine, HelpShowsTheExitCodes) {
    for (const char* words : {"--help", "decode --help"}) {
        const Outcome outcome = runTool(words);
        EXPECT_EQ(outcome.code, 0);
        EXPECT_THAT(outcome.out, HasSubstr("0  done\n"));
        EXPECT_THAT(outcome.out, HasSubstr("4  a document is damaged; what could be read is printed all the same\n"));
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

// ---- The file may stand before and after any option ----

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
        {"encode configuration", "--sections cards --card 2 --skip-transfer --accept-changes",
         request("configuration")},
        {"encode capabilities", "--mode mag", request("capabilities")},
        {"encode capabilities", "--direct-to-card --accept-changes", request("capabilities")},
        {"encode media", "--all-cards --omit-transfer --accept-changes", request("media")},
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

}  // namespace

}  // namespace command_line_test
