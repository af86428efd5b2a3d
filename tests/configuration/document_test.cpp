// The whole configuration: how its sections are found, and what becomes of the record.
#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <ostream>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "KVJConfigParser.h"
#include "configuration/records.h"

namespace document_test {

namespace {

using namespace kvj::tests;

/// A configuration that is preset, zero, or as the complete reply has it.
struct Record {
    _KVConfiguration cfg;
    explicit Record(void (*prepare)(_KVConfiguration&)) { prepare(cfg); }
    [[nodiscard]] std::string bytes() const { return bytesOf(cfg); }
};

std::string presetBytes() { return Record(preset).bytes(); }
std::string zeroBytes() { return Record(clear).bytes(); }
std::string asReadBytes() { return Record(fillAsRead).bytes(); }

struct Outcome {
    bool result;
    std::string record;
    bool operator==(const Outcome&) const = default;
};

/// Reads the root of a document into a preset record.
Outcome parsed(const std::string& text) {
    Record record(preset);
    Xml xml(text.c_str());
    const bool result = KVJConfigParser().parseConfiguration(xml.root(), record.cfg);
    return {result, record.bytes()};
}

/// Reads a reply into a preset record. The result is always false.
std::string readReply(const std::string& text, KVJConfigParser&& parser = {}) {
    Record record(preset);
    EXPECT_FALSE(parser.GetConfiguration(text.c_str(), static_cast<int>(text.size()), record.cfg));
    EXPECT_EQ(parser.FirstChild(), nullptr);
    return record.bytes();
}

std::string configuration(const std::string& sections) { return element("configuration", sections); }

// ---- The root ----

TEST(ParseConfiguration, ReadsEverySection) { EXPECT_EQ(parsed(replyText()), (Outcome{true, asReadBytes()})); }

TEST(ParseConfiguration, NoElementIsFalseAndLeavesTheRecord) {
    Record record(preset);
    EXPECT_FALSE(KVJConfigParser().parseConfiguration(nullptr, record.cfg));
    EXPECT_EQ(record.bytes(), presetBytes());
}

TEST(ParseConfiguration, AnElementWithoutChildElementsIsFalseAndZeroesTheRecord) {
    for (const char* text : {"<configuration/>", "<configuration></configuration>",
                             "<configuration>text</configuration>", "<configuration><!-- none --></configuration>"}) {
        EXPECT_EQ(parsed(text), (Outcome{false, zeroBytes()})) << text;
    }
}

TEST(ParseConfiguration, AnyChildMakesItTrueAndTheRecordIsZeroedFirst) {
    EXPECT_EQ(parsed("<configuration><serial>1</serial></configuration>"), (Outcome{true, zeroBytes()}));
    EXPECT_EQ(parsed("<configuration><Ethernet><dhcp>yes</dhcp></Ethernet></configuration>"),
              (Outcome{true, zeroBytes()}));
}

TEST(ParseConfiguration, IsTrueEvenIfEverySectionFails) {
    std::string sections;
    Xml reply(replyText().c_str());
    for (const TiXmlElement* section = reply.root()->FirstChildElement(); section != nullptr;
         section = section->NextSiblingElement()) {
        sections += element(section->ValueStr(), "");
    }
    Record expected(clear);
    expected.cfg.errorControl = errorControlHigh;  // the one word that no text stands for as well
    EXPECT_EQ(parsed(configuration(sections)), (Outcome{true, expected.bytes()}));
}

TEST(ParseConfiguration, TheNameOfTheRootDoesNotCount) {
    Xml xml(replyText().c_str());
    xml.root()->SetValue("any");
    Record record(preset);
    EXPECT_TRUE(KVJConfigParser().parseConfiguration(xml.root(), record.cfg));
    EXPECT_EQ(record.bytes(), asReadBytes());
}

TEST(ParseConfiguration, SectionsAreReadInAnyOrder) {
    Xml xml(replyText().c_str());
    TiXmlElement reversed("configuration");
    for (const TiXmlNode* section = xml.root()->LastChild(); section != nullptr; section = section->PreviousSibling()) {
        reversed.InsertEndChild(*section);
    }
    Record record(preset);
    EXPECT_TRUE(KVJConfigParser().parseConfiguration(&reversed, record.cfg));
    EXPECT_EQ(record.bytes(), asReadBytes());
}

TEST(ParseConfiguration, SectionsAreThoseOfTheRootAlone) {
    EXPECT_EQ(parsed("<configuration><section><standby_timeout>5</standby_timeout></section></configuration>"),
              (Outcome{true, zeroBytes()}));
}

// ---- Its sections, one by one ----

using Copy = void (*)(_KVConfiguration& to, const _KVConfiguration& from);

struct Section {
    const char* name;
    Copy copy;  ///< what of the record it fills
};
constexpr Section sections[] = {
    {"physical_address",
     [](auto& to, auto& from) { std::memcpy(to.physicalAddress, from.physicalAddress, sizeof to.physicalAddress); }},
    {"ethernet", [](auto& to, auto& from) { to.ethernet = from.ethernet; }},
    {"wireless", [](auto& to, auto& from) { to.wireless = from.wireless; }},
    {"usb_timeout", [](auto& to, auto& from) { to.usbTimeout = from.usbTimeout; }},
    {"ocp_language", [](auto& to, auto& from) { to.ocpLanguage = from.ocpLanguage; }},
    {"error_control", [](auto& to, auto& from) { to.errorControl = from.errorControl; }},
    {"feeder_mode", [](auto& to, auto& from) { to.feederMode = from.feederMode; }},
    {"usage_counters",
     [](auto& to, auto& from) {
         to.numCardsPrinted = from.numCardsPrinted;
         to.numLinesPrinted = from.numLinesPrinted;
     }},
    {"standby_timeout", [](auto& to, auto& from) { to.standbyTimeout = from.standbyTimeout; }},
    {"imaging_parameters", [](auto& to, auto& from) { to.imagingParameters = from.imagingParameters; }},
    {"tricolor_settings", [](auto& to, auto& from) { to.tricolorSettings = from.tricolorSettings; }},
    {"ribbon_motor_parameters", [](auto& to, auto& from) { to.ribbonMotorParameters = from.ribbonMotorParameters; }},
    {"ribbon_sensor_offset", [](auto& to, auto& from) { to.ribbonSensorOffset = from.ribbonSensorOffset; }},
    {"bemf_potentiometer", [](auto& to, auto& from) { to.bemfPotentiometer = from.bemfPotentiometer; }},
    {"mech_adjustments", [](auto& to, auto& from) { to.mechAdjustments = from.mechAdjustments; }},
    {"media_info",
     [](auto& to, auto& from) {
         to.ribbon = from.ribbon;
         to.film = from.film;
     }},
    {"cards",
     [](auto& to, auto& from) {
         to.customCard1 = from.customCard1;
         to.customCard2 = from.customCard2;
     }},
    {"transfer_settings", [](auto& to, auto& from) { to.transferSettings = from.transferSettings; }},
    {"lcd_contrast", [](auto& to, auto& from) { to.lcdContrast = from.lcdContrast; }},
    {"internal_encoder", [](auto& to, auto& from) { to.internalEncoder = from.internalEncoder; }},
    {"lamination", [](auto& to, auto& from) { to.lamination = from.lamination; }},
    {"cleaning",
     [](auto& to, auto& from) {
         std::strcpy(to.cleaning.cleaningDeadlineIsSoft, from.cleaning.cleaningDeadlineIsSoft);
     }},
    {"cleaning_thresholds",
     [](auto& to, auto& from) {
         to.cleaning.alcoholCardCleaning = from.cleaning.alcoholCardCleaning;
         to.cleaning.preWarning = from.cleaning.preWarning;
     }},
    {"usb_speed", [](auto& to, auto& from) { to.usbSpeed = from.usbSpeed; }}};

/// A section of the complete reply as it is written.
std::string sectionText(const std::string& name) {
    Xml reply(replyText().c_str());
    return written(*reply.root()->FirstChildElement(name.c_str()));
}

/// A record that is zero but for what these sections of the complete reply fill.
std::string bytesWith(const std::vector<const Section*>& read) {
    Record expected(clear);
    const Record complete(fillAsRead);
    for (const Section* section : read) section->copy(expected.cfg, complete.cfg);
    return expected.bytes();
}

TEST(ConfigurationSections, AreThoseOfTheCompleteReply) {
    std::set<std::string> names;
    for (const Section& section : sections) names.insert(section.name);
    std::set<std::string> inReply;
    Xml reply(replyText().c_str());
    for (const TiXmlElement* section = reply.root()->FirstChildElement(); section != nullptr;
         section = section->NextSiblingElement()) {
        inReply.insert(section->ValueStr());
    }
    EXPECT_EQ(names, inReply);
    EXPECT_EQ(names.size(), 24U);
}

class ConfigurationSection : public testing::TestWithParam<Section> {};

TEST_P(ConfigurationSection, AloneFillsItsPartOfTheRecord) {
    EXPECT_NE(bytesWith({&GetParam()}), zeroBytes());
    EXPECT_EQ(parsed(configuration(sectionText(GetParam().name))), (Outcome{true, bytesWith({&GetParam()})}));
}

TEST_P(ConfigurationSection, InAnotherCaseOrWithAPrefixIsSkipped) {
    for (const auto& other : {std::string("X"), std::string("x:")}) {
        Xml section(sectionText(GetParam().name).c_str());
        section.root()->SetValue((other + GetParam().name).c_str());
        EXPECT_EQ(parsed(configuration(written(*section.root()))), (Outcome{true, zeroBytes()}));
    }
    Xml section(sectionText(GetParam().name).c_str());
    std::string capital = GetParam().name;
    capital[0] = static_cast<char>(capital[0] - 'a' + 'A');
    section.root()->SetValue(capital.c_str());
    EXPECT_EQ(parsed(configuration(written(*section.root()))), (Outcome{true, zeroBytes()}));
}

TEST_P(ConfigurationSection, ThatFailsLeavesTheOthersToBeRead) {
    const std::string failing = element(GetParam().name, "");
    std::string others;
    std::vector<const Section*> read;
    for (const Section& section : sections) {
        if (section.name == std::string(GetParam().name)) continue;
        others += sectionText(section.name);
        read.push_back(&section);
    }
    std::string expected = bytesWith(read);
    if (GetParam().name == std::string("error_control")) {
        Record high(clear);
        const Record complete(fillAsRead);
        for (const Section* section : read) section->copy(high.cfg, complete.cfg);
        high.cfg.errorControl = errorControlHigh;
        expected = high.bytes();
    }
    EXPECT_EQ(parsed(configuration(failing + others)), (Outcome{true, expected}));
    EXPECT_EQ(parsed(configuration(others + failing)), (Outcome{true, expected}));
}

std::string nameOfSection(const testing::TestParamInfo<Section>& section) { return section.param.name; }
void PrintTo(const Section& section, std::ostream* out) { *out << section.name; }

INSTANTIATE_TEST_SUITE_P(Sections, ConfigurationSection, testing::ValuesIn(sections), nameOfSection);

TEST(ConfigurationSections, OfOneThatStandsTwiceTheLaterOverwritesWhatItHas) {
    Record expected(clear);
    expected.cfg.standbyTimeout = 2;
    expected.cfg.ethernet.ipAddress = address(10, 0, 0, 2);
    expected.cfg.ethernet.gateway = address(10, 0, 0, 1);
    expected.cfg.lcdContrast = {1, 9, 6};
    EXPECT_EQ(parsed(configuration("<standby_timeout>1</standby_timeout>"
                                   "<ethernet><ip_address>10.0.0.9</ip_address><gateway>10.0.0.1</gateway></ethernet>"
                                   "<lcd_contrast min=\"1\" max=\"9\">5</lcd_contrast>"
                                   "<standby_timeout>2</standby_timeout>"
                                   "<ethernet><ip_address>10.0.0.2</ip_address></ethernet>"
                                   "<lcd_contrast>6</lcd_contrast>")),
              (Outcome{true, expected.bytes()}));
}

// ---- Single values in the document ----

TEST(ConfigurationValues, ErrorControlIsHighForAnyOtherTextAndForNone) {
    for (const auto& [text, code] : {std::pair("none", 0), std::pair("med", 1), std::pair("high", 2),
                                     std::pair("strict", 2), std::pair("None", 2), std::pair("", 2)}) {
        Record expected(clear);
        expected.cfg.errorControl = static_cast<ErrorControl>(code);
        EXPECT_EQ(parsed(configuration(element("error_control", text))), (Outcome{true, expected.bytes()})) << text;
    }
}

TEST(ConfigurationValues, UsbSpeedStaysHighForAnyOtherWord) {
    for (const auto& [text, code] :
         {std::pair("full", 1), std::pair("high", 0), std::pair("super", 0), std::pair("Full", 0), std::pair("", 0)}) {
        Record expected(clear);
        expected.cfg.usbSpeed = static_cast<USB_Speed>(code);
        EXPECT_EQ(parsed(configuration(element("usb_speed", text))), (Outcome{true, expected.bytes()})) << text;
    }
}

TEST(ConfigurationValues, UsbSpeedOfAnUnknownWordLeavesThatOfAnEarlierElement) {
    Record expected(clear);
    expected.cfg.usbSpeed = usbSpeedFull;
    EXPECT_EQ(parsed(configuration("<usb_speed>full</usb_speed><usb_speed>super</usb_speed>")),
              (Outcome{true, expected.bytes()}));
}

TEST(ConfigurationValues, FeederModeIsTheHopperForAnyOtherWordAndManualForNoText) {
    for (const auto& [text, code] :
         {std::pair("manual", 0), std::pair("hopper", 1), std::pair("alreadyinprinter", 2), std::pair("auto", 3),
          std::pair("Hopper", 1), std::pair("tray", 1), std::pair("", 0)}) {
        Record expected(clear);
        expected.cfg.feederMode = static_cast<_eFeedMode>(code);
        EXPECT_EQ(parsed(configuration(element("feeder_mode", text))), (Outcome{true, expected.bytes()})) << text;
    }
}

TEST(ConfigurationValues, LcdContrastAndSensorOffsetAreBroughtIntoTheirRange) {
    struct Case {
        int min;
        const char* text;
        int value;
    };
    const auto both = [](const Case& sent) {
        const std::string min = std::to_string(sent.min);
        return setting("lcd_contrast", min, "20", sent.text) + setting("ribbon_sensor_offset", min, "20", sent.text);
    };
    for (const Case& sent : {Case{10, "5", 10}, Case{10, "25", 20}, Case{30, "25", 20}, Case{10, "15", 15}}) {
        Record expected(clear);
        expected.cfg.lcdContrast = {sent.min, 20, sent.value};
        expected.cfg.ribbonSensorOffset = {sent.min, 20, sent.value};
        EXPECT_EQ(parsed(configuration(both(sent))), (Outcome{true, expected.bytes()})) << sent.text;
    }
}

TEST(ConfigurationValues, ALaminateWidthThatIsUnknownKeepsTheOneBefore) {
    Record expected(clear);
    expected.cfg.lamination.topLaminate.laminateInstalled.width = 2;
    EXPECT_EQ(parsed(configuration("<lamination><top_laminate><laminate_installed><width>signature</width>"
                                   "<width>half</width></laminate_installed></top_laminate></lamination>")),
              (Outcome{true, expected.bytes()}));
}

TEST(ConfigurationValues, EachMotorElementIsRead) {
    Record expected(clear);
    expected.cfg.ribbonMotorParameters.S0 = {0, 4, 1.5F};
    expected.cfg.ribbonMotorParameters.K0 = {0, 4, 2.5F};
    EXPECT_EQ(parsed(configuration("<ribbon_motor_parameters><takeup_motor><S0 max=\"4\">1.5</S0></takeup_motor>"
                                   "<payout_motor><S0 max=\"4\">3.5</S0></payout_motor>"
                                   "<takeup_motor><K0 max=\"4\">2.5</K0></takeup_motor></ribbon_motor_parameters>")),
              (Outcome{true, expected.bytes()}));
}

// ---- Replies ----

TEST(GetConfiguration, ReadsACompleteReplyAndIsFalseAllTheSame) { EXPECT_EQ(readReply(replyText()), asReadBytes()); }

TEST(GetConfiguration, TakesTheRootOfARequestLikeThatOfAReply) {
    std::string text = replyText();
    for (std::size_t at = 0; (at = text.find("configuration>", at)) != std::string::npos; at += 10) {
        text.insert(at, "set_");
        at += 4;
    }
    ASSERT_NE(text.find("<set_configuration>"), std::string::npos);
    ASSERT_NE(text.find("</set_configuration>"), std::string::npos);
    EXPECT_EQ(readReply(text), asReadBytes());
}

TEST(GetConfiguration, TheRootOfAReplyComesBeforeThatOfARequest) {
    Record expected(clear);
    expected.cfg.standbyTimeout = 1;
    EXPECT_EQ(readReply("<set_configuration><standby_timeout>2</standby_timeout></set_configuration>"
                        "<configuration><standby_timeout>1</standby_timeout></configuration>"),
              expected.bytes());
    EXPECT_EQ(readReply("<set_configuration><standby_timeout>2</standby_timeout></set_configuration><configuration/>"),
              zeroBytes());
}

TEST(GetConfiguration, OfTwoRootsTheFirstIsRead) {
    Record expected(clear);
    expected.cfg.standbyTimeout = 1;
    EXPECT_EQ(readReply("<configuration><standby_timeout>1</standby_timeout></configuration>"
                        "<configuration><standby_timeout>2</standby_timeout></configuration>"),
              expected.bytes());
}

TEST(GetConfiguration, AnotherRootLeavesTheRecord) {
    for (const char* root : {"Configuration", "CONFIGURATION", "set_Configuration", "get_configuration", "capabilities",
                             "configuration2"}) {
        EXPECT_EQ(readReply(element(root, "<standby_timeout>1</standby_timeout>")), presetBytes()) << root;
    }
    EXPECT_EQ(readReply(element("reply", replyText())), presetBytes());
}

TEST(GetConfiguration, WithoutADocumentLeavesTheRecord) {
    for (const char* text : {"", " ", "configuration", "<", "<!-- configuration -->", "<?xml version=\"1.0\"?>",
                             "{\"configuration\": {}}"}) {
        EXPECT_EQ(readReply(text), presetBytes()) << text;
    }
}

TEST(GetConfiguration, NoTextIsNoReply) {
    Record record(preset);
    EXPECT_FALSE(KVJConfigParser().GetConfiguration(nullptr, 100, record.cfg));
    EXPECT_EQ(record.bytes(), presetBytes());
}

TEST(GetConfiguration, ARootWithoutChildrenZeroesTheRecord) {
    for (const char* text : {"<configuration/>", "<set_configuration></set_configuration>"}) {
        EXPECT_EQ(readReply(text), zeroBytes()) << text;
    }
}

TEST(GetConfiguration, TheLengthDoesNotCount) {
    const std::string text = replyText();
    for (const int length : {0, -1, 1, 100, INT_MAX, INT_MIN}) {
        Record record(preset);
        EXPECT_FALSE(KVJConfigParser().GetConfiguration(text.c_str(), length, record.cfg));
        EXPECT_EQ(record.bytes(), asReadBytes()) << length;
    }
}

TEST(GetConfiguration, ATextThatIsCutIsReadAsFarAsItGoes) {
    Record expected(clear);
    expected.cfg.standbyTimeout = 5;
    expected.cfg.lcdContrast = {1, 9, 4};
    EXPECT_EQ(readReply("<configuration><standby_timeout>5</standby_timeout>"
                        "<lcd_contrast min=\"1\" max=\"9\">4</lcd_contrast><bemf_pot"),
              expected.bytes());
}

TEST(GetConfiguration, ATextNestedDeeperThanAnyReplyIsReadAsAnyOther) {
    std::string deep;
    for (int i = 0; i < 100000; ++i) deep += "<a>";
    Record expected(clear);
    expected.cfg.standbyTimeout = 1;
    EXPECT_EQ(readReply("<configuration><standby_timeout>1</standby_timeout>" + deep), expected.bytes());
}

TEST(GetConfiguration, OneParserReadsAnyNumberOfReplies) {
    KVJConfigParser parser;
    for (int round = 0; round < 3; ++round) {
        for (const auto& [text, expected] :
             {std::pair(replyText(), asReadBytes()), std::pair(std::string("<configuration><standby"), zeroBytes()),
              std::pair(std::string("<a>"), presetBytes()), std::pair(std::string("<configuration/>"), zeroBytes()),
              std::pair(std::string(), presetBytes())}) {
            Record record(preset);
            EXPECT_FALSE(parser.GetConfiguration(text.c_str(), 0, record.cfg));
            EXPECT_EQ(record.bytes(), expected) << text.substr(0, 30);
            EXPECT_EQ(parser.FirstChild(), nullptr);
        }
    }
}

TEST(GetConfiguration, TheTextIsNotChanged) {
    const std::string text = replyText();
    std::string own = text;
    Record record(preset);
    EXPECT_FALSE(KVJConfigParser().GetConfiguration(own.c_str(), 0, record.cfg));
    EXPECT_EQ(own, text);
}

// ---- The example ----

class ExampleConfiguration : public testing::Test {
protected:
    _KVConfiguration cfg;

    ExampleConfiguration() {
        preset(cfg);
        const std::string text = contentOf(EXAMPLES_DIR "/replies/configuration.xml");
        KVJConfigParser().GetConfiguration(text.c_str(), 0, cfg);
    }
    static void expectSetting(const _MinMaxVal& setting, int min, int max, int value) {
        EXPECT_EQ(bytesOf(setting), bytesOf(_MinMaxVal{min, max, value}));
    }
    static void expectSetting(const _MinMaxValFloat& setting, float min, float max, float value) {
        EXPECT_EQ(bytesOf(setting), bytesOf(_MinMaxValFloat{min, max, value}));
    }
};

TEST_F(ExampleConfiguration, HasItsNetworks) {
    EXPECT_EQ(std::memcmp(cfg.physicalAddress, "\x00\x1B\x54\xA2\x0C\x7E", 6), 0);
    EXPECT_EQ(cfg.ethernet.ipAddress, address(192, 168, 40, 21));
    EXPECT_EQ(cfg.ethernet.subnetMask, address(255, 255, 255, 0));
    EXPECT_EQ(cfg.ethernet.gateway, address(192, 168, 40, 1));
    EXPECT_TRUE(cfg.ethernet.dhcp);
    EXPECT_FALSE(cfg.ethernet.snmp);
    EXPECT_EQ(cfg.wireless.ipAddress, address(192, 168, 41, 21));
    EXPECT_EQ(cfg.wireless.subnetMask, address(255, 255, 255, 128));
    EXPECT_EQ(cfg.wireless.gateway, address(192, 168, 41, 1));
    EXPECT_FALSE(cfg.wireless.dhcp);
    EXPECT_TRUE(cfg.wireless.snmp);
    EXPECT_TRUE(cfg.wireless.radio);
    EXPECT_EQ(cfg.wireless.security, 5);
    EXPECT_EQ(cfg.wireless.crypto, 3);
    EXPECT_STREQ(cfg.wireless.ssid, "Card & Badge Office");
    EXPECT_EQ(std::memcmp(cfg.wireless.bssid, "\x00\x1B\x54\xA2\x0C\x7F", 6), 0);
    EXPECT_STREQ(cfg.wireless.key, "example-not-a-key");
    EXPECT_EQ(cfg.wireless.channel, 11);
    EXPECT_STREQ(cfg.wireless.country, "DE");
}

TEST_F(ExampleConfiguration, HasItsGeneralSettings) {
    expectSetting(cfg.usbTimeout.read, 100, 60000, 5000);
    expectSetting(cfg.usbTimeout.write, 100, 60000, 7500);
    EXPECT_EQ(cfg.ocpLanguage.type, 2);
    EXPECT_STREQ(cfg.ocpLanguage.name, "Deutsch");
    EXPECT_EQ(cfg.errorControl, 2);
    EXPECT_EQ(cfg.feederMode, 2);
    EXPECT_EQ(cfg.numCardsPrinted, 18204);
    EXPECT_EQ(cfg.numLinesPrinted, 37128561);
    EXPECT_EQ(cfg.standbyTimeout, 20);
    EXPECT_EQ(cfg.usbSpeed, 1);
    expectSetting(cfg.lcdContrast, 10, 20, 20);  // sent as 25
    EXPECT_EQ(cfg.internalEncoder.commsChannel, 2);
    EXPECT_TRUE(cfg.internalEncoder.contactEncoding);
    EXPECT_EQ(cfg.internalEncoder.contactlessEncoder, 1);
    EXPECT_EQ(cfg.internalEncoder.contactlessEncoder2, 2);
    EXPECT_STREQ(cfg.cleaning.cleaningDeadlineIsSoft, "yes");
    expectSetting(cfg.cleaning.alcoholCardCleaning, 500, 2000, 1000);
    expectSetting(cfg.cleaning.preWarning, 0, 200, 50);
}

TEST_F(ExampleConfiguration, HasItsCalibration) {
    expectSetting(cfg.imagingParameters.printheadResistance, 2500, 4500, 3214);
    expectSetting(cfg.imagingParameters.mfgPowerAdjustments.yellow, -50, 50, 3);
    expectSetting(cfg.imagingParameters.mfgPowerAdjustments.inhibit, -50, 50, -7);
    expectSetting(cfg.imagingParameters.mfgPowerAdjustments.helper, 0, 0, 0);
    expectSetting(cfg.imagingParameters.userPowerAdjustments.yellow, -50, 50, 10);
    expectSetting(cfg.imagingParameters.userPowerAdjustments.uvFront, -50, 50, -17);
    expectSetting(cfg.imagingParameters.userPowerAdjustments.xResin, -50, 50, 50);  // sent as 75
    EXPECT_EQ(cfg.tricolorSettings.red, 120);
    EXPECT_EQ(cfg.tricolorSettings.green, 96);
    EXPECT_EQ(cfg.tricolorSettings.blue, 143);
    expectSetting(cfg.ribbonMotorParameters.S0, 0, 2.5F, 1.25F);
    expectSetting(cfg.ribbonMotorParameters.K0, 1, 4, 1);  // sent as 0.5
    expectSetting(cfg.ribbonMotorParameters.Kb, -1, 1, -0.125F);
    expectSetting(cfg.ribbonMotorParameters.VtoI, 0, 9.75F, 3.5F);
    expectSetting(cfg.ribbonSensorOffset, -20, 20, -3);
    EXPECT_EQ(cfg.bemfPotentiometer, 87);
    expectSetting(cfg.mechAdjustments.filmPrintXOffset, -99, 99, 6);
    expectSetting(cfg.mechAdjustments.cardCenterYOffset, -40, 40, -5);
    expectSetting(cfg.mechAdjustments.cardSmartCardUhfXOffset, 0, 0, 0);
    expectSetting(cfg.mechAdjustments.flipperSensorOffset, -30, 30, 11);
    expectSetting(cfg.mechAdjustments.filmExtraTransferTakeupMove, 0, 500, 250);
}

TEST_F(ExampleConfiguration, HasItsMedia) {
    EXPECT_EQ(cfg.ribbon.type, 2);
    EXPECT_STREQ(cfg.ribbon.description, "BLUE");
    EXPECT_EQ(cfg.ribbon.ribbonCode, 0);
    EXPECT_STREQ(cfg.ribbon.oemCountry, "EU");
    EXPECT_EQ(cfg.ribbon.panelsRemaining, 874);
    EXPECT_EQ(cfg.film.type, 1);
    EXPECT_STREQ(cfg.film.description, "Hologram");
    EXPECT_EQ(cfg.film.initialSize, 1000);
    EXPECT_EQ(cfg.transferSettings.transferType, 2);
    expectSetting(cfg.transferSettings.transferTemps.topSingle, 150, 190, 176);
    expectSetting(cfg.transferSettings.transferTemps.botTempCal, -5, 5, -2);
    expectSetting(cfg.transferSettings.transferTemps.topDoubleOffset, 0, 0, 0);
    expectSetting(cfg.transferSettings.transferSpeeds.inputDouble, 0.5F, 3.5F, 1.25F);
    expectSetting(cfg.transferSettings.transferSpeeds.outputSingle, 0.5F, 3.5F, 2.5F);
}

TEST_F(ExampleConfiguration, HasItsCards) {
    EXPECT_EQ(cfg.customCard1.type, 7);
    EXPECT_STREQ(cfg.customCard1.partNumber, "C-000417");
    EXPECT_STREQ(cfg.customCard1.description, "Custom 1");
    EXPECT_EQ(cfg.customCard1.thickness, 0.76F);
    EXPECT_EQ(cfg.customCard1.coercivity, 2);
    EXPECT_EQ(cfg.customCard1.magStripe, 1);
    EXPECT_EQ(cfg.customCard1.contactEncode, 0);
    EXPECT_EQ(cfg.customCard1.nonContactEncode, 1);
    expectSetting(cfg.customCard1.transferTemps.botSingle, 150, 190, 172);
    expectSetting(cfg.customCard1.transferSpeeds.outputSingle, 0.5F, 3.5F, 2.25F);
    EXPECT_EQ(cfg.customCard1.calTable, 3);
    expectSetting(cfg.customCard1.laminatorAdjustments.speedAdjust, -1, 1, 0.5F);
    EXPECT_EQ(cfg.customCard2.type, 8);
    EXPECT_STREQ(cfg.customCard2.partNumber, "");
    EXPECT_STREQ(cfg.customCard2.description, "Visitor badge, thin");
    EXPECT_EQ(cfg.customCard2.coercivity, 0);
    EXPECT_EQ(cfg.customCard2.magStripe, 0);
    EXPECT_EQ(cfg.customCard2.contactEncode, 1);
    EXPECT_EQ(cfg.customCard2.calTable, 4);
}

TEST_F(ExampleConfiguration, HasItsLaminates) {
    expectSetting(cfg.lamination.laminateCommon.patchLengthAdj, -30, 30, 12);
    expectSetting(cfg.lamination.laminateCommon.passthruSpeedAdj, -5, 5, -1);
    const _LaminateInstalled& top = cfg.lamination.topLaminate.laminateInstalled;
    EXPECT_EQ(top.type, 3);
    EXPECT_STREQ(top.description, "clear patch 1.0 mil");
    EXPECT_EQ(top.thickness, 10);
    EXPECT_EQ(top.width, 1);
    EXPECT_EQ(top.registration, 1);
    EXPECT_EQ(top.panelsRemaining, 97);
    expectSetting(cfg.lamination.topLaminate.laminateControl.xFineAdjustment, -15, 15, -6);
    expectSetting(cfg.lamination.topLaminate.laminateControl.temperatureAdjustment, -15, 15, 8);
    EXPECT_FALSE(cfg.lamination.topLaminate.laminatePresent);
    const _LaminateInstalled& bottom = cfg.lamination.bottomLaminate.laminateInstalled;
    EXPECT_EQ(bottom.width, 2);
    EXPECT_EQ(bottom.registration, 2);
    EXPECT_STREQ(bottom.oemCountry, "");
    expectSetting(cfg.lamination.bottomLaminate.laminateControl.xFineAdjustment, -15, 15, 5);
    expectSetting(cfg.lamination.bottomLaminate.laminateControl.temperatureAdjustment, -15, 15, -7);
}

TEST(ExampleReply, HasEverySection) {
    Xml example(contentOf(EXAMPLES_DIR "/replies/configuration.xml").c_str());
    for (const Section& section : sections) {
        EXPECT_NE(example.root()->FirstChildElement(section.name), nullptr) << section.name;
    }
}

}  // namespace

}  // namespace document_test
