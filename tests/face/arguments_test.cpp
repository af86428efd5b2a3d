// The problems of requests that are made of arguments: each is found, under the name of the argument.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <kvjxml_compose.hpp>

#include <functional>
#include <string>
#include <vector>

namespace arguments_test {

namespace commands = kvjxml::commands;
namespace handshake = kvjxml::handshake;
using kvjxml::problem;
using kvjxml::problem_kind;

namespace {

const std::string withNul("a\0b", 3);

/// What is found in a request, a line for each problem: its kind, field, path, and what is asked and sent.
template <class Command>
std::string problemsOf(const Command& command) {
    const auto nul = [](std::string text) {
        for (char& c : text) c = c == '\0' ? '0' : c;
        return text;
    };
    std::string lines;
    for (const problem& it : kvjxml::compose(command).problems()) {
        lines += std::to_string(static_cast<int>(it.kind)) + " " + it.field + " " + it.path + " " + nul(it.asked) +
                 " -> " + it.sent + "\n";
    }
    return lines;
}

std::string line(problem_kind kind, const std::string& rest) {
    return std::to_string(static_cast<int>(kind)) + " " + rest + "\n";
}

TEST(ProblemKinds, HaveTheirNames) {
    EXPECT_EQ(to_string(problem_kind::no_word), "no-word");
    EXPECT_EQ(to_string(problem_kind::sent_as_maximum), "sent-as-maximum");
    EXPECT_EQ(to_string(problem_kind::no_name), "no-name");
    EXPECT_EQ(to_string(problem_kind::no_request), "no-request");
    EXPECT_EQ(to_string(static_cast<problem_kind>(99)), "");
}

TEST(Motor, HasOneOfSixNumbers) {
    EXPECT_EQ(problemsOf(commands::motor{true, false, 3, 5}), "");
    EXPECT_EQ(problemsOf(commands::motor{true, false, 3, 6}),
              line(problem_kind::no_word, "/motor /device_control/motor 6 -> "));
}

TEST(MotorMode, IsOneOfThree) {
    EXPECT_EQ(problemsOf(commands::motor_mode{2, 1, 12.5F, 0, true}), "");
    EXPECT_EQ(problemsOf(commands::motor_mode{3, 1, 12.5F, 0, true}),
              line(problem_kind::no_word, "/mode /device_control/motor/@state 3 -> "));
}

TEST(MotorMode, SendsRevolutionsWithOneDecimal) {
    EXPECT_EQ(problemsOf(commands::motor_mode{2, 1, 12.25F, 0, true}),
              line(problem_kind::digits_lost, "/rpm /device_control/motor/@rpm 12.25 -> 12.2"));
    EXPECT_EQ(problemsOf(commands::motor_mode{1, 1, 12.25F, 0, true}), "") << "They are not sent.";
}

TEST(Cam, NeedsItsNameAndState) {
    EXPECT_EQ(problemsOf(commands::cam{"pinch", "up"}), "");
    EXPECT_EQ(problemsOf(commands::cam{"", "up"}), line(problem_kind::missing, "/cam /device_control/cam  -> "));
    EXPECT_EQ(problemsOf(commands::cam{"pinch", ""}),
              line(problem_kind::missing, "/state /device_control/cam/@state  -> "));
}

TEST(Cam, SendsTextsThatArrive) {
    EXPECT_EQ(problemsOf(commands::cam{" pinch", " up"}),
              line(problem_kind::read_otherwise, "/cam /device_control/cam  pinch ->  pinch"))
        << "An attribute keeps its blanks.";
    EXPECT_EQ(problemsOf(commands::cam{withNul, "\x01"}),
              line(problem_kind::no_character, "/state /device_control/cam/@state \x01 -> \x01") +
                  line(problem_kind::holds_nul, "/cam /device_control/cam a0b -> a"));
}

TEST(Calibrate, IsOneOfSixAndSendsOneDecimal) {
    EXPECT_EQ(problemsOf(commands::calibrate{1, 0.5F, 60}), "");
    EXPECT_EQ(problemsOf(commands::calibrate{1, 0.75F, 60.25F}),
              line(problem_kind::digits_lost, "/torque /device_control/calibrate/@torque 0.75 -> 0.8") +
                  line(problem_kind::digits_lost, "/rpm /device_control/calibrate/@rpm 60.25 -> 60.2"));
    EXPECT_EQ(problemsOf(commands::calibrate{7, 0, 0}),
              line(problem_kind::no_word, "/calibration /device_control/calibrate/@type 7 -> "));
}

TEST(Other, NeedsTheNameOfAnElement) {
    EXPECT_EQ(problemsOf(commands::other{"fan", "1", "", true}), "");
    EXPECT_EQ(problemsOf(commands::other{"", "1", "", true}),
              line(problem_kind::missing, "/device /device_control  -> "));
    EXPECT_EQ(problemsOf(commands::other{"a b", "1", "", true}),
              line(problem_kind::no_name, "/device /device_control/a b a b -> a b"));
    EXPECT_EQ(problemsOf(commands::other{"a><b", "1", "", true}),
              line(problem_kind::no_name, "/device /device_control/a><b a><b -> a><b"));
    EXPECT_EQ(problemsOf(commands::other{withNul, "1", "", true}),
              line(problem_kind::no_name, "/device /device_control/a a0b -> a"));
}

TEST(Other, IsRefusedWithoutSuchANameEvenIfChangesAreAccepted) {
    const auto request = kvjxml::compose(commands::other{"a b", "1", "", true}, kvjxml::accept_changes{});
    ASSERT_FALSE(request);
    EXPECT_EQ(request.problems().front().kind, problem_kind::no_name);
    EXPECT_TRUE(kvjxml::compose(commands::other{"fan", "a  b", "", true}, kvjxml::accept_changes{}));
}

TEST(Other, SendsTextsThatArrive) {
    EXPECT_EQ(problemsOf(commands::other{"fan", "a  b", "", true}),
              line(problem_kind::read_otherwise, "/text /device_control/fan a  b -> a  b"));
    EXPECT_EQ(problemsOf(commands::other{"advance", "", "\xFF", true}),
              line(problem_kind::not_utf8, "/panel /device_control/advance/@panel \xFF -> \xFF"));
    EXPECT_EQ(problemsOf(commands::other{"laminator", std::string("scal 1\0", 7), "", true}),
              line(problem_kind::holds_nul, "/text /device_control/laminator scal 10 -> scal 1"));
}

TEST(Rfid, NeedsItsNameAndOneOfThreeModes) {
    EXPECT_EQ(problemsOf(commands::rfid{"rfid", 2, 1}), "");
    EXPECT_EQ(problemsOf(commands::rfid{"", 2, 1}), line(problem_kind::missing, "/device /device_control  -> "));
    EXPECT_EQ(problemsOf(commands::rfid{"rf/id", 2, 1}),
              line(problem_kind::no_name, "/device /device_control/rf/id rf/id -> rf/id"));
    EXPECT_EQ(problemsOf(commands::rfid{"rfid", 3, 1}),
              line(problem_kind::no_word, "/mode /device_control/rfid 3 -> "));
}

TEST(Handshake, NeedsANonceAndAPasskey) {
    EXPECT_EQ(problemsOf(handshake::nonce{"5F"}), "");
    EXPECT_EQ(problemsOf(handshake::passkey{"5F"}), "");
    EXPECT_EQ(problemsOf(handshake::nonce{""}), line(problem_kind::missing, "/nonce /nonce  -> "));
    EXPECT_EQ(problemsOf(handshake::passkey{""}), line(problem_kind::missing, "/passkey /passkey  -> "));
    EXPECT_FALSE(kvjxml::compose(handshake::nonce{""}, kvjxml::accept_changes{}));
}

TEST(Handshake, SendsTextsThatArrive) {
    EXPECT_EQ(problemsOf(handshake::nonce{" 5F"}), line(problem_kind::read_otherwise, "/nonce /nonce  5F ->  5F"));
    EXPECT_EQ(problemsOf(handshake::passkey{withNul}), line(problem_kind::holds_nul, "/passkey /passkey a0b -> a"));
    EXPECT_EQ(problemsOf(handshake::action_request{"\xFF", "m", withNul, "\n"}),
              line(problem_kind::not_utf8, "/name /secure_action_request/action/@name \xFF -> \xFF") +
                  line(problem_kind::holds_nul, "/serial /secure_action_request/action/printer/@serial a0b -> a") +
                  line(problem_kind::no_character, "/nonce /secure_action_request/action/printer/@nonce \n -> \n"));
    EXPECT_EQ(problemsOf(handshake::action_directive{"\x02", "s", "n", "h ", 3}),
              line(problem_kind::no_character, "/model /secure_action_request/action/printer/@model \x02 -> \x02") +
                  line(problem_kind::read_otherwise, "/hmac /secure_action_request/action/hmac h  -> h "));
    EXPECT_EQ(problemsOf(handshake::passkey_change{withNul, "  "}),
              line(problem_kind::holds_nul, "/current_passkey /keys/set/current_passkey a0b -> a") +
                  line(problem_kind::read_otherwise, "/new_passkey /keys/set/new_passkey    ->   "));
}

TEST(Handshake, SendsOnlyTheKeysThatAreToChange) {
    const std::string bad = "\xFF";
    const handshake::key_change none{"", bad, bad, bad, bad, bad, bad, false, false, false};
    EXPECT_EQ(problemsOf(none), "");
    const auto found = [&](const std::string& key) {
        return line(problem_kind::not_utf8, "/current_" + key + " /keys/set/current_" + key + " \xFF -> \xFF") +
               line(problem_kind::not_utf8, "/new_" + key + " /keys/set/new_" + key + " \xFF -> \xFF");
    };
    const handshake::key_change all{"", bad, bad, bad, bad, bad, bad, true, true, true};
    EXPECT_EQ(problemsOf(all),
              found("host_authentication_key") + found("data_encryption_key") + found("printer_lock_key"));
}

TEST(Handshake, LeavesOutTextsThatAreEmpty) {
    const auto request = kvjxml::compose(handshake::action_request{"reset_oem", "", "417", ""});
    ASSERT_TRUE(request);
    EXPECT_EQ(request.text(),
              "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n"
              "<secure_action_request>\n"
              "    <action name=\"reset_oem\">\n"
              "        <printer serial=\"417\" />\n"
              "    </action>\n"
              "</secure_action_request>\n");
}

}  // namespace

}  // namespace arguments_test
