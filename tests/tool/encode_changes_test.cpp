// "encode" sends nothing that was not meant: what the printer would get otherwise than the JSON asks is refused with a
// pointer, what was asked and what would be sent, unless it is accepted.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <kvjxml_compose.hpp>
#include <kvjxml_read.hpp>
#include <nlohmann/json.hpp>

#include "messages/request.h"
#include "secrets.h"
#include "sections.h"
#include "tool/tool.h"

namespace encode_changes_test {

namespace {

using kvj::tests::contentOf;
using kvj::tests::Outcome;
using kvj::tests::runTool;
using nlohmann::json;
using testing::HasSubstr;
using testing::Not;

std::string reply(const std::string& name) { return contentOf(std::string(KVJXML_REPLIES) + "/" + name + ".xml"); }

json sample(const std::string& request) {
    return json::parse(contentOf(std::string(KVJXML_REQUESTS) + "/" + request + ".json"));
}

std::string replaced(std::string text, const std::string& what, const std::string& by) {
    const std::size_t at = text.find(what);
    EXPECT_NE(at, std::string::npos) << what;
    return text.replace(at, what.size(), by);
}

std::string change(const std::string& pointer, const std::string& asked, const std::string& sent) {
    return "\n  \"" + pointer + "\": \"" + asked + "\" is asked, " + (sent.empty() ? "nothing" : "\"" + sent + "\"") +
           " would be sent: ";
}

/// Refuses a request that would send something else, and sends it when that is accepted.
void expectChange(const std::string& request, const json& asked, const std::string& says, const std::string& sends) {
    const Outcome refused = runTool("encode " + request, asked.dump());
    EXPECT_EQ(refused.code, 8);
    EXPECT_EQ(refused.out, "");
    EXPECT_THAT(refused.error, HasSubstr(says));
    const Outcome accepted = runTool("encode " + request + " --accept-changes", asked.dump());
    EXPECT_EQ(accepted.code, 0) << accepted.error;
    EXPECT_THAT(accepted.error, HasSubstr(says));
    EXPECT_THAT(accepted.out, HasSubstr(sends));
}

void expectSent(const std::string& request, const json& asked, const std::string& sends) {
    const Outcome outcome = runTool("encode " + request, asked.dump());
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.error, "");
    EXPECT_THAT(outcome.out, HasSubstr(sends));
}

void expectRefused(const std::string& request, const json& asked, const std::string& reason) {
    for (const char* accepting : {"", " --accept-changes"}) {
        const Outcome outcome = runTool("encode " + request + accepting, asked.dump());
        EXPECT_EQ(outcome.code, 5);
        EXPECT_EQ(outcome.out, "");
        EXPECT_EQ(outcome.error, "kvjxml: standard input: " + reason + "\n");
    }
}

/// The wireless network of the sample, with another value.
json wireless(const std::string& field, const json& value) {
    json all = {{"wireless", sample("configuration")["wireless"]}};
    all["wireless"][field] = value;
    return all;
}

// ---- What used to happen to people ----

TEST(EncodeChanges, AnUnknownSecurityDoesNotOpenTheNetwork) {
    const std::string unknown =
        replaced(reply("configuration"), "<security>WPA2_WPA</security>", "<security>wpa9</security>");
    const json decoded = json::parse(runTool("decode", unknown).out);
    ASSERT_EQ(decoded["wireless"]["security"], 0);
    expectChange("configuration --sections wireless", decoded, change("/wireless/security", "0", "none"),
                 "<security>none</security>");
    // Who means it says so.
    expectSent("configuration --sections wireless", wireless("security", "none"), "<security>none</security>");
    // Elsewhere it is in nobody's way.
    expectSent("configuration --sections lcd_contrast", decoded, "<lcd_contrast");
}

TEST(EncodeChanges, AFractionDoesNotBecomeItsMaximum) {
    json settings = {{"transferSettings", sample("configuration")["transferSettings"]}};
    json& speeds = settings["transferSettings"]["transferSpeeds"];
    for (auto& [name, speed] : speeds.items()) speed = {{"min", 0.5}, {"max", 3.5}, {"value", 3.5}};
    expectSent("configuration --sections transfer_settings", settings, ">3.50<");
    for (auto& [name, speed] : speeds.items()) {
        json one = settings;
        const std::string pointer = "/transferSettings/transferSpeeds/" + name + "/value";
        one[json::json_pointer(pointer)] = 1.25;
        expectChange("configuration --sections transfer_settings", one, change(pointer, "1.25", "3.50"), ">3.50<");
    }
}

TEST(EncodeChanges, WhatADamagedReplyLeftIsNotSent) {
    const std::string whole = reply("configuration");
    json decoded = json::parse(runTool("decode", whole.substr(0, whole.size() / 2)).out);
    decoded["damaged"] = true;
    const std::string reason =
        "\"/damaged\" says that the reply was damaged: what it did not say would be sent as zeros";
    expectRefused("configuration --sections lcd_contrast", decoded, reason);
    expectRefused("configuration --sections lcd_contrast --set /lcdContrast/value=5", decoded, reason);
    expectSent("configuration --sections standby_timeout", {{"damaged", false}, {"standbyTimeout", 15}}, ">15<");
}

TEST(EncodeChanges, ALineOfManyIsTakenForItsRecord) {
    const std::string whole = reply("configuration");
    const std::string options = "configuration --sections wireless,ethernet";
    const json record = json::parse(runTool("decode", whole).out);
    const Outcome expected = runTool("encode " + options, record.dump());
    ASSERT_EQ(expected.code, 0) << expected.error;
    expectSent(options, json::parse(runTool("decode --format jsonl --words", whole).out), expected.out);
    expectRefused(options, json::parse(runTool("decode --format jsonl", whole.substr(0, whole.size() / 2)).out),
                  "\"/damaged\" says that the reply was damaged: what it did not say would be sent as zeros");
    expectRefused(options, json::parse(runTool("decode --format jsonl", "<get_weather/>").out),
                  "\"/error\" says that there was no document of a known message");
}

TEST(EncodeChanges, WhatASectionWritesHasToBeGivenAndNothingElse) {
    const json whole = wireless("country", "DE");
    for (const auto& [name, value] : whole["wireless"].items()) {
        json less = whole;
        less["wireless"].erase(name);
        if (name == "country") {  // The printer has its own.
            expectSent("configuration --sections wireless", less, "<security>");
        } else {
            expectRefused("configuration --sections wireless", less, "\"/wireless/" + name + "\" is missing");
        }
    }
}

TEST(EncodeChanges, WhatIsChosenToBeLeftOutNeedNotBeGiven) {
    json mechanics = {{"mechAdjustments", sample("configuration")["mechAdjustments"]},
                      {"usbTimeout", sample("configuration")["usbTimeout"]}};
    mechanics["mechAdjustments"].erase("filmPrintXOffset");
    expectRefused("configuration --sections mech_adjustments", mechanics,
                  "\"/mechAdjustments/filmPrintXOffset\" is missing");
    expectSent("configuration --sections mech_adjustments --skip-transfer", mechanics, "<card_center_x_offset");
    json card = {{"customCard2", sample("configuration")["customCard2"]}};
    expectSent("configuration --mask 0xFFFFFF --card 2", card, "<description>Visitor badge, thin</description>");
}

// ---- What is sent under another name, or is kept elsewhere ----

TEST(EncodeChanges, BothNetworksAreSentUnderOneNameAndNeitherIsTakenForTheOther) {
    const json networks = {{"ethernet", sample("configuration")["ethernet"]},
                           {"wireless", sample("configuration")["wireless"]}};
    expectSent("configuration --sections ethernet,wireless", networks, "<ssid>");
    for (const std::string name : {"ethernet", "wireless"}) {
        json other = networks;
        other[name]["dhcp"] = !networks[name]["dhcp"].get<bool>();
        expectSent("configuration --sections ethernet,wireless", other, "<ssid>");
    }
    // What gets lost of a name is told of the wireless network, not of the wired one.
    json wide = networks;
    wide["wireless"]["ssid"] = "two  blanks";
    expectChange("configuration --sections ethernet,wireless", wide,
                 change("/wireless/ssid", "two  blanks", "two  blanks"), "<ssid>two  blanks</ssid>");
}

TEST(EncodeChanges, ACustomCardThatThePrinterWouldKeepInTheOtherPlaceIsNamed) {
    json cards = {{"customCard1", sample("configuration")["customCard1"]},
                  {"customCard2", sample("configuration")["customCard2"]}};
    // Settings with a fraction are sent as their maximum, which is not the point here.
    for (const char* speed : {"inputSingle", "outputSingle"})
        cards["customCard1"]["transferSpeeds"][speed]["value"] = 3.5;
    cards["customCard1"]["laminatorAdjustments"]["speedAdjust"]["value"] = 1;
    expectSent("configuration --sections cards", cards, "<description>Custom 1</description>");
    json other = cards;
    other["customCard1"]["description"] = "Badge";
    expectChange("configuration --sections cards", other, change("/customCard1", "customCard1", "customCard2"),
                 "<description>Badge</description>");
    other = cards;
    other["customCard2"]["description"] = "Custom 1";
    expectChange("configuration --sections cards", other, change("/customCard2", "customCard2", "customCard1"),
                 "<description>Custom 1</description>");
}

TEST(EncodeChanges, AWordThatIsAnotherFieldsIsNamed) {
    json caps = sample("capabilities");
    caps["magHeadType"] = 2;
    expectChange("capabilities", caps, change("/magHeadType", "2", "1_side"), "<mag_encoder>1_side</mag_encoder>");
}

TEST(EncodeChanges, AChannelThatIsAlwaysUsbIsNamedWhenAnotherIsAsked) {
    json encoder = {{"internalEncoder", sample("capabilities")["internalEncoder"]}};
    encoder["internalEncoder"]["contactlessEncoder"] = 1;
    encoder["internalEncoder"]["commsChannel"] = "usb";
    expectSent("capabilities --mode encoder", encoder, "<comms_channel>usb_2_0</comms_channel>");
    for (const int channel : {0, 1}) {
        encoder["internalEncoder"]["commsChannel"] = channel;
        expectChange("capabilities --mode encoder", encoder,
                     change("/internalEncoder/commsChannel", std::to_string(channel), "usb_2_0"),
                     "<comms_channel>usb_2_0</comms_channel>");
    }
}

// ---- Decoded and encoded, unchanged ----

template <class Reading, class Compose>
void expectAsRead(const std::string& request, const Outcome& decoded, const Reading& reading, Compose compose) {
    ASSERT_TRUE(reading);
    const auto strict = compose(*reading, kvjxml::options{});
    const Outcome encoded = runTool("encode " + request, decoded.out);
    if (encoded.code == 0) {
        ASSERT_TRUE(strict) << request;
        EXPECT_EQ(encoded.out, strict.text()) << request;
        EXPECT_EQ(encoded.error, "") << request;
        return;
    }
    EXPECT_EQ(encoded.out, "") << request;
    if (!strict && strict.problems().front().kind == kvjxml::problem_kind::nothing_to_send) {
        EXPECT_EQ(encoded.code, 2) << request;
        return;
    }
    EXPECT_EQ(encoded.code, 8) << request;
    for (const auto& problem : strict.problems()) {
        EXPECT_THAT(encoded.error, HasSubstr(change(problem.field, problem.asked, problem.sent))) << request;
    }
    const auto accepted = compose(*reading, kvjxml::accept_changes{});
    ASSERT_TRUE(accepted) << request;
    EXPECT_EQ(runTool("encode " + request + " --accept-changes", decoded.out).out, accepted.text()) << request;
}

TEST(EncodeChanges, AConfigurationIsSentAsItWasReadOrRefused) {
    const Outcome decoded = runTool("decode " KVJXML_REPLIES "/configuration.xml");
    const auto reading = kvjxml::read<kvjxml::messages::configuration>(reply("configuration"));
    std::set<std::string> refused;
    const auto row = std::ranges::find(kvj::requests(), "configuration", &kvj::Request::name);
    for (const auto& section : kvj::tool::sectionsOf(row->table)) {
        const std::string request = "configuration --sections " + section.name;
        expectAsRead(request, decoded, reading, [&](const auto& record, const kvjxml::options& options) {
            return kvjxml::compose(record, static_cast<kvjxml::section>(section.bit), options);
        });
        if (runTool("encode " + request, decoded.out).code != 0) refused.insert(section.name);
    }
    // Fractions; a ribbon, whose name has no code in the reply; an encoder on a channel of its own; and laminates, of
    // which the reply does not say that they are there.
    EXPECT_THAT(refused, testing::UnorderedElementsAre("ribbon_motor_parameters", "media_info", "cards",
                                                       "transfer_settings", "internal_encoder", "lamination"));
}

TEST(EncodeChanges, ACatalogueIsSentAsItWasReadOrRefused) {
    const Outcome decoded = runTool("decode " KVJXML_REPLIES "/media.xml");
    const auto reading = kvjxml::read<kvjxml::messages::media>(reply("media"));
    for (const bool all : {false, true}) {
        expectAsRead(all ? "media --all-cards" : "media", decoded, reading,
                     [&](const auto& record, kvjxml::options options) {
                         if (all) options.cards = kvjxml::catalogue_cards::all;
                         return kvjxml::compose(record, options);
                     });
    }
    EXPECT_THAT(
        runTool("encode media --all-cards", decoded.out).error,
        HasSubstr("\n  a printer sends some settings, such as those of its catalogue, without their ranges: give "
                  "\"min\" and \"max\"\n"));
}

TEST(EncodeChanges, CapabilitiesAndAnIdentityAreSentAsTheyWereReadOrRefused) {
    expectAsRead("capabilities", runTool("decode " KVJXML_REPLIES "/capabilities.xml"),
                 kvjxml::read<kvjxml::messages::capabilities>(reply("capabilities")),
                 [](const auto& record, const kvjxml::options& options) { return kvjxml::compose(record, options); });
    const Outcome identity = runTool("decode " KVJXML_REPLIES "/printer_id.xml");
    EXPECT_EQ(runTool("encode printer-id --full", identity.out).code, 0);
    expectAsRead("printer-id --full", identity, kvjxml::read<kvjxml::messages::printer_id>(reply("printer_id")),
                 [](const auto& record, const kvjxml::options& options) { return kvjxml::compose(record, options); });
}

// ---- What is read back ----

TEST(EncodeChanges, AFieldThatAnotherOneIsWrittenOverIsNamed) {
    json media = {{"ribbon", sample("configuration")["ribbon"]}, {"film", sample("configuration")["film"]}};
    media["ribbon"]["ribbonCode"] = "Blue";
    media["ribbon"]["description"] = "YMCKO";
    expectChange("configuration --sections media_info", media, change("/ribbon/description", "YMCKO", "Blue"),
                 "<description>Blue</description>");
    media["ribbon"].erase("description");
    expectSent("configuration --sections media_info", media, "<description>Blue</description>");
}

TEST(EncodeChanges, ThePrintSystemIsNotTheRecords) {
    json caps = sample("capabilities");
    caps["printSystem"] = "direct";
    const Outcome outcome = runTool("encode capabilities", caps.dump());
    EXPECT_EQ(outcome.code, 8);
    EXPECT_THAT(outcome.error, HasSubstr(change("/printSystem", "0", "1")));
}

TEST(EncodeChanges, ALaminateThatIsLeftOutIsNamed) {
    json both = {{"standbyTimeout", 5}, {"lamination", sample("configuration")["lamination"]}};
    json& lamination = both["lamination"];
    const std::string request = "configuration --sections standby_timeout,lamination";
    lamination["topLaminate"]["laminatePresent"] = true;
    expectSent(request, both, "<top_laminate>");
    lamination["topLaminate"]["laminatePresent"] = false;
    lamination["bottomLaminate"]["laminatePresent"] = true;
    expectChange(
        request, both,
        "\n  \"/lamination/bottomLaminate\": nothing would be sent: it is sent when the top laminate is present",
        "<lamination>");
    lamination["bottomLaminate"]["laminatePresent"] = false;
    expectChange(request, both, "\n  \"/lamination\": nothing would be sent: it is sent when a laminate is present",
                 ">5<");
}

TEST(EncodeChanges, ACardThatIsLeftOutIsCounted) {
    json media = {{"cards", json::array({sample("media")["cards"][0]})}};
    json& card = media["cards"][0];
    card["type"] = 7;
    expectChange("media", media, change("/cards", "1 entries", "0 entries"), "<cards />");
}

TEST(EncodeChanges, OnlyTheLastDevicePortIsReadBackButAllAreSent) {
    json caps = sample("capabilities");
    caps["hostPorts"].erase(2);
    caps["graphicFormats"].erase(2);
    caps["internalEncoder"] = {{"contactlessEncoder", 1}, {"contactEncoding", true}};
    for (const char* name : {"magHeadType", "magStripeLocation"})
        caps.erase(name);  // Their elements are the laminator's.
    caps["devicePorts"] = {{{"portId", 1}, {"portType", 1}}, {{"portId", 2}, {"portType", 0}}};
    expectSent("capabilities", caps, "<port_id>2</port_id>");
}

// ---- Words, codes and what the printer sent ----

TEST(EncodeWords, AWordStandsForItsCode) {
    const std::string sections = "configuration --sections wireless";
    expectSent(sections, wireless("security", "wpa2"), "<security>wpa2</security>");
    expectSent(sections, wireless("security", "WPA2"), "<security>wpa2</security>");
    expectSent("configuration --sections feeder_mode", {{"feederMode", "auto"}}, "<feeder_mode>auto</feeder_mode>");
    expectSent("configuration --sections error_control", {{"errorControl", "high"}, {"usbSpeed", "full"}},
               "<error_control>high</error_control>");
    expectSent("motor", {{"state", "on"}, {"direction", "reverse"}, {"speed", 4}, {"motor", "flipper"}},
               "<motor state=\"on\" direction=\"reverse\" speed=\"4\">flipper</motor>");
    expectSent("calibrate", {{"calibration", "save_cal"}, {"torque", 0}, {"rpm", 0}}, "type=\"save_cal\"");
}

TEST(EncodeWords, ListsAndBitsTakeWordsAsWell) {
    json caps = sample("capabilities");
    caps["hostPorts"].erase(2);
    caps["internalEncoder"]["contactlessEncoder"] = "mifare";
    caps["graphicFormats"] = {"bmp", 2, "raw"};
    caps["imageSharpeningLevels"] = {"off", "low"};
    const Outcome outcome = runTool("encode capabilities --accept-changes", caps.dump());
    EXPECT_EQ(outcome.code, 0) << outcome.error;
    for (const char* element :
         {"<graphic_format>bmp<", "<graphic_format>jpeg<", "<graphic_format>raw<", "<image_sharpening_level>off<",
          "<image_sharpening_level>low<", "<contactless_encoder>mifare<"}) {
        EXPECT_THAT(outcome.out, HasSubstr(element));
    }
    EXPECT_THAT(outcome.out, Not(HasSubstr("<image_sharpening_level>high<")));
    const std::string same = outcome.out;
    caps["imageSharpeningLevels"] = {{"code", 9}, {"words", {"off", "low"}}};
    EXPECT_EQ(runTool("encode capabilities --accept-changes", caps.dump()).out, same);
    caps["imageSharpeningLevels"] = {{"code", 7}, {"words", {"off", "low"}}};
    expectRefused("capabilities", caps, "\"/imageSharpeningLevels/words\" is 9, but the code is 7");
}

TEST(EncodeWords, AWordThatIsNoneIsRefusedWithTheNearest) {
    const std::string all = "none 0, wep40 1, wep104 2, wpa_wpa2 5, wpa 3, wpa2 4";
    expectRefused(
        "configuration --sections wireless", wireless("security", "wpa22"),
        "\"/wireless/security\" is no word for this field: \"wpa22\" is none of " + all + "; did you mean \"wpa2\"?");
    expectRefused("configuration --sections wireless", wireless("ssid", 5), "\"/wireless/ssid\" has to be a text");
    expectRefused("configuration --sections wireless", wireless("channel", "five"),
                  "\"/wireless/channel\" has to be a whole number");
}

TEST(EncodeWords, ACodeAndItsWordHaveToAgree) {
    const std::string sections = "configuration --sections wireless";
    expectSent(sections, wireless("security", {{"code", 4}, {"word", "wpa2"}}), "<security>wpa2</security>");
    expectSent(sections, wireless("security", {{"code", 0}, {"word", "open"}}), "<security>none</security>");
    expectRefused(sections, wireless("security", {{"code", 5}, {"word", "wpa2"}}),
                  "\"/wireless/security/word\" is 4, but the code is 5");
    expectRefused(sections, wireless("security", {{"cod", 5}}),
                  "\"/wireless/security/cod\" is nothing that a value has");
    expectRefused(sections, wireless("security", {{"word", "wpa2"}}), "\"/wireless/security/code\" is missing");
}

TEST(EncodeWords, WhatNobodyKnewInTheReplyIsNotSentAsSomethingElse) {
    const std::string sections = "configuration --sections wireless";
    expectChange(sections, wireless("security", {{"code", 0}, {"sent", "wpa9"}}),
                 change("/wireless/security", "wpa9", "none"), "<security>none</security>");
    expectChange(sections, wireless("security", {{"code", 0}}), change("/wireless/security", "0", "none"),
                 "<security>none</security>");
    expectChange(sections, wireless("channel", {{"value", 11}, {"sent", "11abc"}}),
                 change("/wireless/channel", "11abc", "11"), "<channel>11</channel>");
    expectChange(sections, wireless("ssid", {{"value", "Badge"}, {"sent", "Badge Office"}}),
                 change("/wireless/ssid", "Badge Office", "Badge"), "<ssid>Badge</ssid>");
    // Another spelling of the word is the same word.
    expectSent(sections, wireless("security", {{"code", 4}, {"sent", "WPA2"}}), "<security>wpa2</security>");
}

TEST(EncodeWords, ACodeWithoutAWordIsRefused) {
    expectChange("configuration --sections wireless", wireless("security", 9), change("/wireless/security", "9", ""),
                 "<security>");
    expectChange("configuration --sections feeder_mode", {{"feederMode", 9}}, change("/feederMode", "9", "hopper"),
                 "<feeder_mode>hopper</feeder_mode>");
    expectChange("motor", {{"state", 2}, {"direction", 0}, {"speed", 4}, {"motor", 1}}, change("/state", "2", "off"),
                 "state=\"off\"");
    expectChange("motor", {{"state", 1}, {"direction", 7}, {"speed", 4}, {"motor", 1}},
                 change("/direction", "7", "reverse"), "direction=\"reverse\"");
    expectChange("rfid", {{"device", "rfid"}, {"mode", 3}, {"antenna", 0}}, change("/mode", "3", ""), "<rfid");
}

TEST(EncodeWords, ASettingOutsideItsRangeIsRefused) {
    const json contrast = {{"lcdContrast", {{"min", 0}, {"max", 63}, {"value", 64}}}};
    expectChange("configuration --sections lcd_contrast", contrast, change("/lcdContrast/value", "64", "64"), ">64<");
    EXPECT_THAT(runTool("encode configuration --sections lcd_contrast", contrast.dump()).error,
                HasSubstr(": its range is 0 to 63\n"));
}

// ---- Secrets ----

TEST(EncodeSecrets, StarsAreNoKey) {
    const std::string stars(kvj::tool::masked);
    const std::string reason = " is masked, and would be sent as it stands";
    expectRefused("configuration --sections wireless", wireless("key", stars), "\"/wireless/key\"" + reason);
    expectRefused("passkey", {{"passkey", stars}}, "\"/passkey\"" + reason);
    expectRefused("keys", {{"printer_lock_key", stars}}, "\"/printer_lock_key\"" + reason);
    expectRefused("passkey-change", {{"new_passkey", stars}}, "\"/new_passkey\"" + reason);
    // What is not sent does no harm.
    json whole = wireless("key", stars);
    whole["standbyTimeout"] = 15;
    expectSent("configuration --sections standby_timeout", whole, ">15<");
}

TEST(EncodeSecrets, AKeyIsNotShownInAMessage) {
    for (const auto& [request, asked] :
         {std::pair<std::string, json>{"configuration --sections wireless", wireless("key", "much  secret")},
          {"passkey", {{"passkey", "much  secret"}}},
          {"key-change", {{"current_passkey", "much  secret"}, {"host", false}, {"data", false}, {"lock", false}}}}) {
        const Outcome outcome = runTool("encode " + request, asked.dump());
        EXPECT_EQ(outcome.code, 8) << request;
        EXPECT_THAT(outcome.error, Not(HasSubstr("secret"))) << request;
        EXPECT_THAT(outcome.error, HasSubstr("\"" + std::string(kvj::tool::masked) + "\" is asked")) << request;
    }
}

// ---- Edits on the way ----

TEST(EncodeSet, ChangesAValue) {
    const json whole = sample("configuration");
    const Outcome outcome = runTool(
        "encode configuration --sections lcd_contrast,wireless --set /lcdContrast/value=17 "
        "--set /wireless/security=wpa --set '/wireless/ssid=Gate 5' --set '/wireless/country=\"CH\"'",
        whole.dump());
    EXPECT_EQ(outcome.code, 0) << outcome.error;
    EXPECT_THAT(outcome.out, HasSubstr(">17</lcd_contrast>"));
    EXPECT_THAT(outcome.out, HasSubstr("<security>wpa</security>"));
    EXPECT_THAT(outcome.out, HasSubstr("<ssid>Gate 5</ssid>"));
    EXPECT_THAT(runTool("encode configuration --sections standby_timeout --set /standbyTimeout=9", "{}").out,
                HasSubstr(">9<"));
    EXPECT_THAT(runTool("encode configuration --sections lcd_contrast --set /lcdContrast/value=9 "
                        "--set /lcdContrast/min=0 --set /lcdContrast/max=9 --set /lcdContrast/value=8",
                        "{}")
                    .out,
                HasSubstr(">8<"));
}

TEST(EncodeSet, AnEditIsCheckedAsTheJsonIs) {
    const Outcome wrong = runTool("encode configuration --sections standby_timeout --set /standbyTimeout=soon", "{}");
    EXPECT_EQ(wrong.code, 5);
    EXPECT_THAT(wrong.error, HasSubstr("\"/standbyTimeout\" has to be a whole number"));
    const Outcome character = runTool("encode nonce --set /nonce=$(printf 'a\\033b')", "{}");
    EXPECT_EQ(character.code, 5);
    EXPECT_THAT(character.error, HasSubstr("holds U+001B"));
    EXPECT_THAT(character.error, Not(HasSubstr("\x1B")));
}

TEST(EncodeSet, AnEditThatCannotBeMadeIsWrongUse) {
    for (const char* edit : {"lcdContrast=5", "/lcdContrast", "/cards/5/type=1", "/cards/-/type=1", "/cards/x=1"}) {
        const Outcome outcome = runTool(std::string("encode media --set ") + edit, sample("media").dump());
        EXPECT_EQ(outcome.code, 2) << edit;
        EXPECT_THAT(outcome.error, HasSubstr(std::string("--set ") + edit + ": ")) << edit;
    }
}

TEST(EncodeSet, AKeyIsNotTakenFromTheCommandLine) {
    const Outcome outcome =
        runTool("encode configuration --sections wireless --set /wireless/key=hidden", sample("configuration").dump());
    EXPECT_EQ(outcome.code, 2);
    EXPECT_EQ(outcome.error, "kvjxml: --set /wireless/key: a key is read from the JSON alone\n");
    EXPECT_EQ(runTool("encode passkey --set /passkey=hidden", "{}").code, 2);
}

// ---- Help inside the JSON ----

TEST(EncodeChanges, HelpInTheJsonIsLeftOut) {
    json contrast = {{"$help", {{"lcdContrast", "how dark"}}},
                     {"lcdContrast", {{"$help", "any"}, {"min", 0}, {"max", 63}, {"value", 5}}}};
    expectSent("configuration --sections lcd_contrast", contrast, ">5<");
}

}  // namespace

}  // namespace encode_changes_test
