// Words of a command line that are nearly known ones.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "tool/tool.h"

namespace suggestions_test {

namespace {

using kvj::tests::Outcome;
using kvj::tests::runTool;
using testing::HasSubstr;
using testing::Not;

/// A command line is wrong use, and this is said of it.
void expectSaid(const std::string& words, const std::string& said) {
    const Outcome outcome = runTool(words);
    EXPECT_EQ(outcome.code, 2) << words;
    EXPECT_EQ(outcome.out, "") << words;
    EXPECT_THAT(outcome.error, HasSubstr(said)) << words;
}

TEST(Suggestions, NameTheVerbThatIsMeant) {
    expectSaid("deocde", R"(there is no verb "deocde"; did you mean "decode"?)");
    expectSaid("deocde --message get_count x.xml", R"(there is no verb "deocde"; did you mean "decode"?)");
    expectSaid("Encode", R"(there is no verb "Encode"; did you mean "encode"?)");
}

TEST(Suggestions, NameTheRequestThatIsMeant) {
    expectSaid("encode configuraton", R"(there is no request "configuraton"; did you mean "configuration"?)");
}

TEST(Suggestions, NameTheMessageThatIsMeant) {
    expectSaid("decode --message get_genral_status",
               R"(there is no message "get_genral_status"; did you mean "get_general_status"?)");
    expectSaid("decode --message get_capabilites",
               R"(there is no message "get_capabilites"; did you mean "get_capabilities"?)");
}

TEST(Suggestions, NameTheOptionThatIsMeant) {
    expectSaid("decode --mesage=get_count", R"(there is no option "--mesage"; did you mean "--message"?)");
    expectSaid("encode nonce --max-szie 5", R"(there is no option "--max-szie"; did you mean "--max-size"?)");
}

TEST(Suggestions, AreNotMadeOfWhatIsNotNear) {
    const Outcome outcome = runTool("qqqqqqqq");
    EXPECT_EQ(outcome.code, 2);
    EXPECT_THAT(outcome.error, HasSubstr("there is no verb \"qqqqqqqq\"\n"));
    EXPECT_THAT(outcome.error, Not(HasSubstr("did you mean")));
}

TEST(Suggestions, ShowNoCharacterThatATerminalWouldObey) {
    const Outcome outcome = runTool("$(printf 'dec\\033[2Jode')");
    EXPECT_EQ(outcome.code, 2);
    EXPECT_THAT(outcome.error, HasSubstr("dec\\x1B[2Jode"));
    EXPECT_THAT(outcome.error, Not(HasSubstr("\033")));
}

TEST(Suggestions, AreNotNeededWhereAWordIsMissing) {
    expectSaid("", "subcommand is required");
    expectSaid("encode", "subcommand is required");
}

}  // namespace

}  // namespace suggestions_test
