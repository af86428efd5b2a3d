// Requests that are made of a whole record: the options that say what of it is written, and how the JSON is refused.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "tool/tool.h"

namespace encode_record_test {

namespace {

using kvj::tests::contentOf;
using kvj::tests::Outcome;
using kvj::tests::runTool;
using nlohmann::ordered_json;
using testing::HasSubstr;
using testing::Not;

const std::string declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n";

ordered_json sample(const std::string& request) {
    return ordered_json::parse(contentOf(std::string(KVJXML_REQUESTS) + "/" + request + ".json"));
}

void expectRefused(const std::string& request, const ordered_json& json, const std::string& reason) {
    const Outcome outcome = runTool("encode " + request, json.dump());
    EXPECT_EQ(outcome.code, 5);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.error, "kvjxml: standard input: " + reason + "\n");
}

void expectWrongUse(const std::string& arguments, const std::string& reason) {
    const Outcome outcome = runTool(arguments, "{}");
    EXPECT_EQ(outcome.code, 2) << arguments;
    EXPECT_EQ(outcome.out, "") << arguments;
    EXPECT_THAT(outcome.error, HasSubstr(reason)) << arguments;
}

// ---- Refusals ----

TEST(EncodeRecord, AKeyThatStandsTwiceIsRefusedByItsPointer) {
    const Outcome outcome =
        runTool("encode capabilities", R"({"fonts":[{"name":"a"},{"name":"b","style":1,"name":"c"}]})");
    EXPECT_EQ(outcome.code, 5);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.error, "kvjxml: standard input: \"/fonts/1/name\" occurs twice\n");
}

TEST(EncodeRecord, AMissingFieldIsRefusedByItsPointer) {
    auto json = sample("capabilities");
    json.erase("ramSize");
    expectRefused("capabilities", json, "\"/ramSize\" is missing");
    json = sample("capabilities");
    json["fonts"][0].erase("style");
    expectRefused("capabilities", json, "\"/fonts/0/style\" is missing");
}

TEST(EncodeRecord, AFieldThatIsNotWrittenMayBeMissing) {
    auto json = sample("capabilities");
    const std::string whole = runTool("encode capabilities --accept-changes", json.dump()).out;
    for (const char* name : {"printSystem", "magHeadType", "magStripeLocation"}) json.erase(name);
    EXPECT_EQ(runTool("encode capabilities --accept-changes", json.dump()).out, whole);
    EXPECT_THAT(whole, HasSubstr("</capabilities>"));
}

TEST(EncodeRecord, AFieldThatIsThereHasToBeRightEvenIfItIsNotWritten) {
    expectRefused("configuration --mask 0x40", {{"standbyTimeout", 5}, {"numCardsPrinted", "many"}},
                  "\"/numCardsPrinted\" has to be a whole number");
}

TEST(EncodeRecord, AnUnknownFieldIsRefusedByItsPointer) {
    auto json = sample("capabilities");
    json["fonts"][0]["bold"] = true;
    expectRefused("capabilities", json, "\"/fonts/0/bold\" is not a field of this request");
    json = sample("media");
    json["tapes"] = ordered_json::array();
    expectRefused("media", json, "\"/tapes\" is not a field of this request");
}

TEST(EncodeRecord, AValueOfTheWrongTypeIsRefusedByItsPointer) {
    const struct {
        const char* pointer;
        ordered_json value;
        const char* reason;
    } cases[] = {
        {"/hostPorts", 3, "has to be a list"},
        {"/hostPorts/0", 3, "has to be an object"},
        {"/hostPorts/0/portId", "1", "has to be a whole number"},
        {"/graphicFormats/0", 1.5, "has to be a whole number"},
        {"/fonts/0/name", 5, "has to be a text"},
        {"/fonts/0/scalable", 1, "has to be true or false"},
        {"/security", ordered_json::array(), "has to be an object"},
        {"/laminator", "present", "has to be true or false"},
        {"/laminatorType", true, "has to be a whole number"},
        {"/ramSize", 2147483648U, "is out of range"},
        {"/flashSize", -2147483649, "is out of range"},
        {"/barCodes/0/name", "a\x1B", "holds U+001B, a character that XML does not have"},
    };
    for (const auto& wrong : cases) {
        auto json = sample("capabilities");
        json[ordered_json::json_pointer(wrong.pointer)] = wrong.value;
        expectRefused("capabilities", json, std::string("\"") + wrong.pointer + "\" " + wrong.reason);
    }
}

TEST(EncodeRecord, ATextThatDoesNotFitItsFieldIsRefused) {
    auto json = sample("capabilities");
    json["fonts"][0]["name"] = std::string(63, 'n');
    EXPECT_EQ(runTool("encode capabilities --accept-changes", json.dump()).code, 0);
    json["fonts"][0]["name"] = std::string(64, 'n');
    expectRefused("capabilities", json, "\"/fonts/0/name\" is longer than 63 bytes");
    json["fonts"][0]["name"] = "\xC3\xA9" + std::string(62, 'n');  // 63 characters, but 64 bytes
    expectRefused("capabilities", json, "\"/fonts/0/name\" is longer than 63 bytes");
}

TEST(EncodeRecord, AListThatIsTooLongIsRefused) {
    auto json = sample("capabilities");
    json["graphicFormats"] = std::vector<int>(65536, 1);
    EXPECT_EQ(runTool("encode capabilities --accept-changes", json.dump()).code, 0);
    json["graphicFormats"].push_back(1);
    expectRefused("capabilities", json, "\"/graphicFormats\" has more than 65536 entries");
}

TEST(EncodeRecord, AnAddressHasToBeWrittenAsOne) {
    for (const char* wrong : {"", "00:1a:2b:3c:4d", "00-1a-2b-3c-4d-5e", "00:1a:2b:3c:4d:5e:6f", "0:1a:2b:3c:4d:5e"}) {
        expectRefused("configuration --mask 0x1", {{"physicalAddress", wrong}},
                      "\"/physicalAddress\" has to be a hardware address such as 00:1a:2b:3c:4d:5e");
    }
    EXPECT_THAT(runTool("encode configuration --mask 0x1", R"({"physicalAddress":"00:1A:2b:3c:4d:5E"})").out,
                HasSubstr(">00:1a:2b:3c:4d:5e<"));
    auto network = sample("configuration")["ethernet"];
    for (const char* wrong : {"", "10.0.0", "10.0.0.256", "host", "10.0.0.1 "}) {
        network["gateway"] = wrong;
        expectRefused("configuration --mask 0x2", {{"ethernet", network}},
                      "\"/ethernet/gateway\" has to be an IPv4 address such as 192.168.0.1");
    }
}

TEST(EncodeRecord, ANumberWithAPointHasToFit) {
    auto json = sample("media");
    json["cards"][0]["thickness"] = 1e39;
    expectRefused("media", json, "\"/cards/0/thickness\" is out of range");
    json["cards"][0]["thickness"] = "thick";
    expectRefused("media", json, "\"/cards/0/thickness\" has to be a number");
    json["cards"][0]["thickness"] = 0.76;
    json["cards"][0]["coercivity"] = 256;
    expectRefused("media", json, "\"/cards/0/coercivity\" is out of range");
}

// ---- Capabilities ----

TEST(EncodeCapabilities, TheModesTakeOneEncoderAlone) {
    EXPECT_EQ(runTool("encode capabilities --mode mag", R"({"magHeadType":2})").out,
              declaration + "<capabilities>\n    <mag_encoder>aamva</mag_encoder>\n</capabilities>\n");
    const std::string encoder = R"({"internalEncoder":{"commsChannel":2,"contactEncoding":true,"contactlessEncoder":1,)"
                                R"("contactlessEncoder2":0,"contactStation":true}})";
    EXPECT_EQ(runTool("encode capabilities --mode encoder", encoder).out,
              declaration +
                  "<capabilities>\n"
                  "    <contact_station>yes</contact_station>\n"
                  "    <internal_encoder>\n"
                  "        <comms_channel>usb_2_0</comms_channel>\n"
                  "        <contact_encoding>yes</contact_encoding>\n"
                  "        <contactless_encoder>mifare</contactless_encoder>\n"
                  "    </internal_encoder>\n"
                  "</capabilities>\n");
    expectRefused("capabilities --mode mag", ordered_json::object(), "\"/magHeadType\" is missing");
    expectRefused("capabilities --mode encoder", ordered_json::object(), "\"/internalEncoder\" is missing");
    expectWrongUse("encode capabilities --mode some", "\"some\" is none of encoder full mag");
}

TEST(EncodeCapabilities, ThePrintSystemIsTheOptionNotTheRecord) {
    auto json = sample("capabilities");
    json["printSystem"] = 0;
    EXPECT_THAT(runTool("encode capabilities --accept-changes", json.dump()).out,
                HasSubstr("<print_system>retransfer<"));
    EXPECT_THAT(runTool("encode capabilities --accept-changes --direct-to-card", json.dump()).out,
                HasSubstr("<print_system>direct_to_card<"));
}

// ---- Configuration ----

TEST(EncodeConfiguration, SectionsAreNamedOrAMask) {
    const std::string json = sample("configuration").dump();
    const std::string byName = runTool("encode configuration --sections standby_timeout,feeder_mode", json).out;
    EXPECT_THAT(byName, HasSubstr("<standby_timeout>"));
    EXPECT_THAT(byName, HasSubstr("<feeder_mode>"));
    EXPECT_THAT(byName, Not(HasSubstr("<ethernet>")));
    EXPECT_EQ(runTool("encode configuration --mask 0x400040", json).out, byName);
    EXPECT_EQ(runTool("encode configuration --mask 400040", json).out, byName);
    EXPECT_EQ(runTool("encode configuration --sections feeder_mode --sections standby_timeout", json).out, byName);
}

TEST(EncodeConfiguration, WhichSectionsAreMeantIsNotGuessed) {
    expectWrongUse("encode configuration", "Exactly 1 option");
    expectWrongUse("encode configuration --mask 1 --sections ethernet", "Exactly 1 option");
    expectWrongUse("encode configuration --sections ether", "\"ether\" is none of");
    expectWrongUse("encode configuration --mask all", "mask");
    expectWrongUse("encode configuration --mask 0x1 --card 3", "card");
}

TEST(EncodeConfiguration, ASectionNeedsItsOwnFieldsAlone) {
    EXPECT_EQ(runTool("encode configuration --sections standby_timeout", R"({"standbyTimeout":15})").out,
              declaration + "<configuration>\n    <standby_timeout>15</standby_timeout>\n</configuration>\n");
    expectRefused("configuration --sections standby_timeout,usage_counters", {{"standbyTimeout", 15}},
                  "\"/numCardsPrinted\" is missing");
}

TEST(EncodeConfiguration, OneCardNeedsNoOther) {
    const auto whole = sample("configuration");
    const ordered_json json = {{"customCard2", whole["customCard2"]}};
    const Outcome outcome = runTool("encode configuration --accept-changes --mask 0xFFFFFF --card 2", whole.dump());
    EXPECT_EQ(runTool("encode configuration --accept-changes --sections cards --card 2", json.dump()).out, outcome.out);
    EXPECT_THAT(outcome.out, HasSubstr("<configuration>\n    <cards>\n        <card>"));
    expectRefused("configuration --sections cards --card 1", json, "\"/customCard1\" is missing");
}

TEST(EncodeConfiguration, SkipTransferLeavesFilmAndTransferOut) {
    const std::string json = sample("configuration").dump();
    EXPECT_THAT(runTool("encode configuration --accept-changes --mask 0x2000", json).out, HasSubstr("<film>"));
    EXPECT_THAT(runTool("encode configuration --accept-changes --mask 0x2000 --skip-transfer", json).out,
                Not(HasSubstr("<film>")));
}

TEST(EncodeConfiguration, NothingToWriteIsWrongUse) {
    const Outcome outcome = runTool("encode configuration --mask 0x100", "{}");
    EXPECT_EQ(outcome.code, 2);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.error, "kvjxml: of the sections that are asked for, the record has nothing to write\n");
}

TEST(EncodeConfiguration, ListsItsSectionsWithNameBitAndContent) {
    const Outcome outcome = runTool("encode configuration --list-sections");
    EXPECT_EQ(outcome.code, 0);
    for (const char* line : {"physical_address         0x1      physical_address\n",
                             "wireless                 0x4      ethernet (ip_address, gateway, subnet_mask, dhcp, ",
                             "error_control            0x10     error_control, usb_speed\n",
                             "cleaning                 0x20000  cleaning (cleaning_deadline_is_soft), "
                             "cleaning_thresholds (alcohol_card_cleaning, pre_warning)\n"}) {
        EXPECT_THAT(outcome.out, HasSubstr(line));
    }
    EXPECT_EQ(std::ranges::count(outcome.out, '\n'), 19);
}

// ---- Media catalogue and printer identity ----

TEST(EncodeMedia, CardsOfOtherTypesAreWrittenOnRequest) {
    auto json = sample("media");
    json["cards"][0]["type"] = 7;
    json["cards"][0]["description"] = "Seven";
    EXPECT_THAT(runTool("encode media --accept-changes", json.dump()).out, Not(HasSubstr("Seven")));
    EXPECT_THAT(runTool("encode media --accept-changes --all-cards", json.dump()).out, HasSubstr("Seven"));
    EXPECT_THAT(runTool("encode media --accept-changes --all-cards", json.dump()).out, HasSubstr("<transfer_temps>"));
    EXPECT_THAT(runTool("encode media --accept-changes --all-cards --omit-transfer", json.dump()).out,
                Not(HasSubstr("<transfer_temps>")));
}

TEST(EncodeMedia, TheListsThatAreNotWrittenMayBeMissing) {
    EXPECT_EQ(runTool("encode media", R"({"cards":[]})").out, declaration + "<media>\n    <cards />\n</media>\n");
    expectRefused("media", {{"films", ordered_json::array()}}, "\"/cards\" is missing");
}

TEST(EncodePrinterId, IsOfSectionsOrFull) {
    const std::string model = declaration + "<printer_id>\n    <printer_model>K7</printer_model>\n</printer_id>\n";
    EXPECT_EQ(runTool("encode printer-id --sections printer_model", R"({"printer_model":"K7"})").out, model);
    EXPECT_EQ(runTool("encode printer-id --mask 1", R"({"printer_model":"K7"})").out, model);
    expectWrongUse("encode printer-id", "Exactly 1 option");
    expectWrongUse("encode printer-id --full --mask 1", "Exactly 1 option");
    expectRefused("printer-id --full", {{"vendor", "Example"}}, "\"/printer_model\" is missing");
    EXPECT_THAT(runTool("encode printer-id --full", sample("printer-id").dump()).out,
                HasSubstr("<wireless_physical_address>"));
}

}  // namespace

}  // namespace encode_record_test
