// The verb "encode": what JSON it takes, and where it says that something is wrong with it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tool/tool.h"

namespace encode_test {

namespace {

using kvj::tests::contentOf;
using kvj::tests::Outcome;
using kvj::tests::runTool;
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
    expectRefused("nonce", "", "\"\" is not JSON at byte 1");
    expectRefused("nonce", "{\"nonce\": }", "\"/nonce\" is not JSON at byte 11");
    expectRefused("nonce", "[1]", "\"\" has to be an object");
    // 0xE9 begins a character of three bytes; the next, byte 12, is none of them.
    expectRefused("nonce", "{\"nonce\":\"\xE9\"}", "\"/nonce\" is not JSON at byte 12");
}

TEST(Encode, AMissingFieldIsRefused) {
    expectRefused("nonce", "{}", "\"/nonce\" is missing");
    expectRefused("nonce", "{\"nonce\": null}", "\"/nonce\" is missing");
    expectRefused("motor", R"({"state":1,"direction":0,"speed":4})", "\"/motor\" is missing");
    expectRefused("key-change", R"({"current_passkey":"p","host":true,"data":true})", "\"/lock\" is missing");
}

TEST(Encode, AFieldOfTheWrongTypeIsRefused) {
    expectRefused("nonce", "{\"nonce\": 5}", "\"/nonce\" has to be a text");
    expectRefused("motor", R"({"state":1,"direction":0,"speed":"slow","motor":1})",
                  "\"/speed\" has to be a whole number");
    expectRefused("motor", R"({"state":1.5,"direction":0,"speed":4,"motor":1})", "\"/state\" has to be a whole number");
    expectRefused("calibrate", R"({"calibration":1,"torque":"1","rpm":2})", "\"/torque\" has to be a number");
    expectRefused("other", R"({"device":"fan","on":"yes"})", "\"/on\" has to be true or false");
}

TEST(Encode, ANumberThatDoesNotFitIsRefused) {
    for (const char* state : {"2147483648", "-2147483649", "18446744073709551615"}) {
        expectRefused("motor", std::string("{\"state\":") + state + "}", "\"/state\" is out of range");
    }
    expectRefused("calibrate", R"({"calibration":1,"torque":1e39})", "\"/torque\" is out of range");
    expectRefused("calibrate", R"({"calibration":1,"torque":1e400})", "\"/torque\" is out of range");
}

TEST(Encode, AnUnknownFieldIsRefused) {
    expectRefused("nonce", R"({"nonce":"5F","nounce":"5F"})",
                  "\"/nounce\" is not a field of this request; did you mean \"nonce\"?");
    expectRefused("nonce", R"({"nonce":"5F","a/b":1})", "\"/a~1b\" is not a field of this request");
}

TEST(Encode, ATextThatDoesNotFitItsFieldIsRefused) {
    const std::string fits(259, 'k');
    EXPECT_THAT(runTool("encode keys", "{\"printer_lock_key\":\"" + fits + "\"}").out, HasSubstr(">" + fits + "<"));
    expectRefused("keys", "{\"printer_lock_key\":\"" + fits + "k\"}", "\"/printer_lock_key\" is longer than 259 bytes");
}

TEST(Encode, ATextWithACharacterThatXmlDoesNotHaveIsRefused) {
    for (const char* number : {"0000", "0001", "0008", "000B", "000C", "000E", "001B", "001F", "FFFE", "FFFF"}) {
        const std::string reason = std::string(" holds U+") + number + ", a character that XML does not have";
        const std::string text = std::string(R"("a\u)") + number + R"(b")";
        expectRefused("nonce", "{\"nonce\":" + text + "}", "\"/nonce\"" + reason);
        expectRefused("cam", R"({"cam":"x","state":)" + text + "}", "\"/state\"" + reason);
        expectRefused("keys", "{\"printer_lock_key\":" + text + "}", "\"/printer_lock_key\"" + reason);
    }
    // The same as UTF-8.
    expectRefused("nonce", "{\"nonce\":\"a\xEF\xBF\xBF\"}",
                  "\"/nonce\" holds U+FFFF, a character that XML does not have");
}

TEST(Encode, HalfOfASurrogatePairIsRefused) {
    expectRefused("nonce", R"({"nonce":"a\ud800b"})", "\"/nonce\" is not JSON at byte 18");
    expectRefused("nonce", R"({"nonce":"a\udc00b"})", "\"/nonce\" is not JSON at byte 17");
}

TEST(Encode, EveryOtherCharacterIsWritten) {
    const std::string edges = "~\xC2\xA0\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBD\xF0\x90\x80\x80\xF4\x8F\xBF\xBF";
    EXPECT_EQ(runTool("encode nonce", "{\"nonce\":\"" + edges + "\"}").out,
              declaration + "<nonce>" + edges + "</nonce>\n");
}

TEST(Encode, AControlCharacterIsWrittenIfThatIsAccepted) {
    for (const char* character : {"\\t", "\\n", "\\r", "\x7F", "\xC2\x80"}) {
        const std::string json = std::string("{\"nonce\":\"a") + character + "b\"}";
        const Outcome outcome = runTool("encode nonce", json);
        EXPECT_EQ(outcome.code, 8) << json;
        EXPECT_EQ(outcome.out, "") << json;
        EXPECT_THAT(outcome.error, HasSubstr("\"/nonce\": ")) << json;
    }
    // As references, which a parser does not take for blanks to be left out.
    EXPECT_EQ(runTool("encode nonce --accept-changes", R"({"nonce":"a\tb\nc\rd"})").out,
              declaration + "<nonce>a&#x09;b&#x0A;c&#x0D;d</nonce>\n");
    EXPECT_THAT(runTool("encode cam --accept-changes", R"({"cam":"x","state":"a\tb\nc\rd"})").out,
                HasSubstr("state=\"a&#x09;b&#x0A;c&#x0D;d\""));
}

TEST(Encode, AKeyThatStandsTwiceIsRefused) {
    expectRefused("nonce", R"({"nonce":"5F","nonce":"5F"})", "\"/nonce\" occurs twice");
    expectRefused("nonce", R"({"nonce":null,"nonce":"5F"})", "\"/nonce\" occurs twice");
    expectRefused("nonce", R"({"nonce":"5F","nonc\u0065":"6A"})", "\"/nonce\" occurs twice");
    expectRefused("motor", R"({"state":1,"direction":0,"speed":4,"motor":1,"state":0})", "\"/state\" occurs twice");
}

TEST(Encode, ADeviceHasToBeTheNameOfAnElement) {
    const std::string reason =
        "\"/device\" has to be the name of an element: ASCII letters, digits, '_', '-' and '.', a letter or '_' first";
    for (const char* device : {R"(rfid state=\"off\"/><motor)", "", "x y", "1x", "-x", ".x", "x>", "x/", "a:b", "&amp;",
                               "\xC3\x97", "x\xC3\xA9"}) {
        expectRefused("rfid", std::string(R"({"device":")") + device + R"(","mode":1,"antenna":1})", reason);
        expectRefused("other", std::string(R"({"device":")") + device + R"(","on":true})", reason);
    }
    for (const char* device : {"x", "_x", "X.1-y_2"}) {
        EXPECT_EQ(runTool("encode other", std::string(R"({"device":")") + device + R"(","text":"t","on":true})").out,
                  declaration + "<device_control>\n    <" + device + ">t</" + device + ">\n</device_control>\n");
    }
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
    const std::string camera(100000, 'c');
    EXPECT_EQ(runTool("encode cam", "{\"cam\":\"" + camera + "\",\"state\":\"up\"}").out,
              declaration + "<device_control>\n    <cam state=\"up\">" + camera + "</cam>\n</device_control>\n");
    EXPECT_THAT(runTool("encode cam", "{\"cam\":\"" + quotes + "\",\"state\":\"up\"}").out, HasSubstr(escaped));
}

}  // namespace

}  // namespace encode_test
