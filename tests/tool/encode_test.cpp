// The verb "encode": what JSON it takes, and where it says that something is wrong with it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tool/tool.h"

namespace {

using kvjxml::tests::contentOf;
using kvjxml::tests::Outcome;
using kvjxml::tests::runTool;
using testing::HasSubstr;

const std::string declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n";

void expectRefused(const std::string& request, const std::string& json, const std::string& reason) {
    const Outcome outcome = runTool("encode " + request, json);
    EXPECT_EQ(outcome.code, 5) << json;
    EXPECT_EQ(outcome.out, "") << json;
    EXPECT_EQ(outcome.error, "kvjxml: standard input: " + reason + "\n");
}

TEST(Encode, ReadsStandardInputAndFilesAlike) {
    const std::string file = std::string(KVJXML_REQUESTS) + "/nonce.json";
    const Outcome fromFile = runTool("encode nonce " + file);
    EXPECT_EQ(fromFile.out, declaration + "<nonce>5F3A90C1</nonce>\n");
    EXPECT_EQ(runTool("encode nonce", contentOf(file)).out, fromFile.out);
    EXPECT_EQ(runTool("encode nonce -", contentOf(file)).out, fromFile.out);
}

TEST(Encode, AFileThatIsNotThereIsCode1) { EXPECT_EQ(runTool("encode nonce /nowhere/nonce.json").code, 1); }

TEST(Encode, WrongUseIsCode2) {
    EXPECT_EQ(runTool("encode").code, 2);
    EXPECT_EQ(runTool("encode weather").code, 2);
    EXPECT_EQ(runTool("encode nonce --nonce 5F3A").code, 2);
}

TEST(Encode, WhatIsNoJsonObjectIsRefused) {
    expectRefused("nonce", "", "byte 1: is no JSON");
    expectRefused("nonce", "{\"nonce\": }", "byte 11: is no JSON");
    expectRefused("nonce", "[1]", "\"\" has to be an object");
    // 0xE9 begins a character of three bytes; the next, byte 12, is none of them.
    expectRefused("nonce", "{\"nonce\":\"\xE9\"}", "byte 12: is no JSON");
}

TEST(Encode, AMissingFieldIsRefused) {
    expectRefused("nonce", "{}", "\"/nonce\" is missing");
    expectRefused("nonce", "{\"nonce\": null}", "\"/nonce\" is missing");
    expectRefused("motor", R"({"state":1,"direction":0,"speed":4})", "\"/motor\" is missing");
    expectRefused("key-change", R"({"current_passkey":"p","host":true,"data":true})", "\"/lock\" is missing");
}

TEST(Encode, AFieldOfTheWrongTypeIsRefused) {
    expectRefused("nonce", "{\"nonce\": 5}", "\"/nonce\" has to be a text");
    expectRefused("motor", R"({"state":"on","direction":0,"speed":4,"motor":1})",
                  "\"/state\" has to be a whole number");
    expectRefused("motor", R"({"state":1.5,"direction":0,"speed":4,"motor":1})", "\"/state\" has to be a whole number");
    expectRefused("calibrate", R"({"calibration":1,"torque":"1","rpm":2})", "\"/torque\" has to be a number");
    expectRefused("other", R"({"device":"fan","on":"yes"})", "\"/on\" has to be true or false");
}

TEST(Encode, ANumberThatDoesNotFitIsRefused) {
    for (const char* state : {"2147483648", "-2147483649", "18446744073709551615"}) {
        expectRefused("motor", std::string("{\"state\":") + state + "}", "\"/state\" is out of range");
    }
    expectRefused("calibrate", R"({"calibration":1,"torque":1e39})", "\"/torque\" is out of range");
    expectRefused("calibrate", R"({"calibration":1,"torque":1e400})", "\"\" holds a number that is out of range");
}

TEST(Encode, AnUnknownFieldIsRefused) {
    expectRefused("nonce", R"({"nonce":"5F","nounce":"5F"})", "\"/nounce\" is not a field of this request");
    expectRefused("nonce", R"({"nonce":"5F","a/b":1})", "\"/a~1b\" is not a field of this request");
}

TEST(Encode, ATextThatDoesNotFitItsFieldIsRefused) {
    const std::string fits(259, 'k');
    EXPECT_THAT(runTool("encode keys", "{\"printer_lock_key\":\"" + fits + "\"}").out, HasSubstr(">" + fits + "<"));
    expectRefused("keys", "{\"printer_lock_key\":\"" + fits + "k\"}", "\"/printer_lock_key\" is longer than 259 bytes");
}

TEST(Encode, ATextWithANulIsRefused) {
    expectRefused("nonce", R"({"nonce":"a\u0000b"})", "\"/nonce\" holds a NUL character");
}

TEST(Encode, ANullTextIsLeftOut) {
    EXPECT_EQ(runTool("encode passkey-change", R"({"current_passkey":null,"new_passkey":"n"})").out,
              declaration + "<keys>\n    <set>\n        <new_passkey>n</new_passkey>\n    </set>\n</keys>\n");
}

TEST(Encode, ALongTextIsWrittenWhole) {
    const std::string quotes(5000, '\'');
    std::string escaped;
    for (std::size_t i = 0; i < quotes.size(); ++i) escaped += "&apos;";
    EXPECT_EQ(runTool("encode passkey", "{\"passkey\":\"" + quotes + "\"}").out,
              declaration + "<passkey>" + escaped + "</passkey>\n");
    EXPECT_THAT(runTool("encode cam", "{\"cam\":\"" + quotes + "\",\"state\":\"up\"}").out, HasSubstr(escaped));
}

TEST(Encode, OutputThatCannotBeWrittenIsCode1) {
    const std::string command = std::string(KVJXML_TOOL) + " encode nonce " + KVJXML_REQUESTS + "/nonce.json";
    const int status = std::system((command + " >/dev/full 2>/dev/null").c_str());
    EXPECT_EQ(WEXITSTATUS(status), 1);
}

}  // namespace
