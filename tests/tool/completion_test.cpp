// What the shells offer where somebody types a part of a command line. Each shell reads what the tool prints for it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "support/files.h"
#include "tool/tool.h"

namespace completion_test {

namespace {

using kvj::tests::Outcome;
using kvj::tests::runShell;
using kvj::tests::runTool;
using testing::ElementsAre;

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
}

bool isInstalled(const std::string& shell) { return runShell("command -v " + shell).code == 0; }

/// What bash offers behind these words, the last of which has been begun.
std::vector<std::string> inBash(const std::string& words) {
    const Outcome outcome = runShell("bash -c 'source <(" KVJXML_TOOL " completion bash); COMP_WORDS=(" + words +
                                     "); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _kvjxml; printf \"%s\\n\" "
                                     "\"${COMPREPLY[@]}\"'");
    EXPECT_EQ(outcome.error, "") << words;
    return linesOf(outcome.out);
}

/// The same of fish, without the descriptions.
std::vector<std::string> inFish(const std::string& words) {
    const Outcome outcome = runShell("fish --no-config -c '" KVJXML_TOOL " completion fish | source; complete -C \"" +
                                     words + "\" | string replace -r \"\\t.*\" \"\"'");
    EXPECT_EQ(outcome.error, "") << words;
    return linesOf(outcome.out);
}

TEST(Completion, OfBashKnowsVerbsOptionsAndValues) {
    EXPECT_THAT(inBash("kvjxml deco"), ElementsAre("decode"));
    EXPECT_THAT(inBash("kvjxml decode --max"), ElementsAre("--max-size"));
    EXPECT_THAT(inBash("kvjxml decode --message get_free"), ElementsAre("get_free_flash", "get_free_ram"));
    EXPECT_THAT(inBash("kvjxml encode medi"), ElementsAre("media"));
    EXPECT_THAT(inBash("kvjxml encode capabilities --mode m"), ElementsAre("mag"));
    EXPECT_THAT(inBash("kvjxml completion z"), ElementsAre("zsh"));
}

TEST(Completion, OfBashOffersFilesWhereOneIsRead) {
    const kvj::tests::TemporaryFolder folder;
    kvj::tests::write((folder / "reply.xml").string(), "<nonce/>");
    const std::string begun = (folder / "rep").string();
    EXPECT_THAT(inBash("kvjxml decode " + begun), ElementsAre(begun + "ly.xml"));
}

TEST(Completion, OfFishKnowsVerbsOptionsAndValues) {
    if (!isInstalled("fish")) GTEST_SKIP() << "fish is not installed";
    EXPECT_THAT(inFish("kvjxml deco"), ElementsAre("decode"));
    EXPECT_THAT(inFish("kvjxml decode --max"), ElementsAre("--max-size"));
    EXPECT_THAT(inFish("kvjxml decode --message get_free"), ElementsAre("get_free_flash", "get_free_ram"));
    EXPECT_THAT(inFish("kvjxml encode medi"), ElementsAre("media"));
    EXPECT_THAT(inFish("kvjxml encode capabilities --mode m"), ElementsAre("mag"));
    EXPECT_THAT(inFish("kvjxml completion z"), ElementsAre("zsh"));
}

TEST(Completion, OfZshIsWhatZshCanRead) {
    if (!isInstalled("zsh")) GTEST_SKIP() << "zsh is not installed";
    const Outcome outcome = runShell(KVJXML_TOOL " completion zsh | zsh -fn /dev/stdin");
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.error, "");
}

TEST(Completion, OfAnyShellNamesEveryVerb) {
    const Outcome help = runTool("--help");
    for (const char* shell : {"bash", "fish", "zsh"}) {
        const std::string script = runTool(std::string("completion ") + shell).out;
        std::size_t verbs = 0;
        bool isVerb = false;
        for (const auto& line : linesOf(help.out)) {
            if (isVerb && line.starts_with("  ")) {
                const std::string verb = line.substr(2, line.find(' ', 2) - 2);
                EXPECT_THAT(script, testing::HasSubstr(verb)) << shell;
                ++verbs;
            } else {
                isVerb = line == "Subcommands:";
            }
        }
        EXPECT_GE(verbs, 4U);
    }
}

}  // namespace

}  // namespace completion_test
