// The command line: help, and an output that cannot be written.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tool/tool.h"

namespace {

using kvjxml::tests::Outcome;
using kvjxml::tests::runTool;
using testing::HasSubstr;

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

}  // namespace
