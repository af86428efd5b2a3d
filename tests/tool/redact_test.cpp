// Secrets in what "decode" prints, and texts that a terminal would obey.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "secrets.h"
#include "tool/terminal.h"
#include "tool/tool.h"

namespace redact_test {

namespace {

using kvj::tests::runOnTerminal;
using kvj::tests::runTool;
using kvj::tests::TemporaryFolder;
using kvj::tests::whyNoTerminal;
using kvj::tests::write;
using nlohmann::json;
using testing::HasSubstr;
using testing::Not;

std::string sample(const std::string& name) { return std::string(KVJXML_REPLIES) + "/" + name + ".xml"; }

/// The secrets of the samples, as their documents have them.
const std::pair<std::string, std::string> secrets[] = {
    {"configuration", "example-not-a-key"},
    {"keys", "\"c2\""},
    {"keys", "new one"},
    {"passkey", "old one"},
    {"data", "SAMPLE/CARD"},
    {"data", ";0004170000310101="},
};

TEST(Secrets, AreMaskedOnATerminal) {
    if (const std::string why = whyNoTerminal(); !why.empty()) GTEST_SKIP() << why;
    for (const auto& [name, secret] : secrets) {
        const auto outcome = runOnTerminal("decode " + sample(name));
        EXPECT_EQ(outcome.code, 0) << name;
        EXPECT_THAT(outcome.out, Not(HasSubstr(secret))) << name;
        EXPECT_THAT(outcome.out, HasSubstr(kvj::tool::masked)) << name;
    }
}

TEST(Secrets, AreShownElsewhere) {
    for (const auto& [name, secret] : secrets) {
        EXPECT_THAT(runTool("decode " + sample(name)).out, HasSubstr(secret)) << name;
    }
}

TEST(Secrets, AreMaskedOrShownAnywhereAsTheUserSays) {
    if (const std::string why = whyNoTerminal(); !why.empty()) GTEST_SKIP() << why;
    for (const auto& [name, secret] : secrets) {
        EXPECT_THAT(runTool("decode --redact " + sample(name)).out, Not(HasSubstr(secret))) << name;
        EXPECT_THAT(runTool("decode --words --redact " + sample(name)).out, Not(HasSubstr(secret))) << name;
        EXPECT_THAT(runTool("decode --format text --redact " + sample(name)).out, Not(HasSubstr(secret))) << name;
        EXPECT_THAT(runOnTerminal("decode --no-redact " + sample(name)).out, HasSubstr(secret)) << name;
    }
}

TEST(Secrets, OneThatIsCutIsNotShownAsWhatWasSentEither) {
    const std::string reply =
        "<keys><set><printer_lock_key>" + std::string(5000, 'k') + "</printer_lock_key></set></keys>";
    EXPECT_THAT(runTool("decode --words --redact", reply).out, Not(HasSubstr("kkkk")));
}

TEST(Secrets, AMaskSaysThatThereIsOne) {
    const json keys = json::parse(runTool("decode --redact " + sample("passkey")).out);
    EXPECT_EQ(keys.at("current_passkey"), kvj::tool::masked);
    EXPECT_EQ(keys.at("new_passkey"), "");
}

TEST(Secrets, WhatIsNoneStaysAsItIs) {
    const json shown = json::parse(runTool("decode " + sample("configuration")).out);
    json masked = json::parse(runTool("decode --redact " + sample("configuration")).out);
    masked.at("wireless").at("key") = shown.at("wireless").at("key");
    EXPECT_EQ(masked, shown);
}

// ---- What a terminal would obey ----

/// An escape sequence, a C1 control, DEL, a mark of direction, and what is harmless.
const std::string hostile =
    "a\x1B[2Jb\xC2\x9B"
    "c\x7F"
    "d\xE2\x80\xAE"
    "e\xC3\xA9";
const std::string hostileReply = "<get_job_status><uuid>" + hostile + "</uuid></get_job_status>";

TEST(Controls, ReachNoTerminalAsTheyAre) {
    if (const std::string why = whyNoTerminal(); !why.empty()) GTEST_SKIP() << why;
    const TemporaryFolder folder;
    write(folder / "reply.xml", hostileReply);
    for (const std::string options : {"", "--words ", "--format text ", "--format jsonl "}) {
        const auto outcome = runOnTerminal("decode " + options + (folder / "reply.xml").string(), "NO_COLOR=1");
        EXPECT_EQ(outcome.code, 0) << options;
        EXPECT_THAT(outcome.out, HasSubstr("2Jb")) << options;
        EXPECT_THAT(outcome.out, HasSubstr("e\xC3\xA9")) << options;
        for (const std::string raw : {"\x1B", "\xC2\x9B", "\x7F", "\xE2\x80\xAE"}) {
            EXPECT_THAT(outcome.out, Not(HasSubstr(raw))) << options;
        }
    }
}

TEST(Controls, AreTheSameInJson) { EXPECT_EQ(json::parse(runTool("decode", hostileReply).out).at("uuid"), hostile); }

TEST(Controls, InAFilesNameReachNoTerminalAsTheyAre) {
    if (const std::string why = whyNoTerminal(); !why.empty()) GTEST_SKIP() << why;
    EXPECT_THAT(runOnTerminal("decode \"$(printf '/nowhere/\\033[2J')\"").out, Not(HasSubstr("\x1B")));
}

// ---- Where output goes ----

TEST(FullDisk, IsCode1AndSaysSo) {
    for (const std::string options : {"", "--words ", "--format text ", "--format jsonl "}) {
        const auto outcome = runTool("decode " + options + sample("configuration") + " >/dev/full");
        EXPECT_EQ(outcome.code, 1) << options;
        EXPECT_THAT(outcome.error, HasSubstr("standard output: cannot be written")) << options;
    }
}

}  // namespace

}  // namespace redact_test
