// Each composer of a section by itself: what it adds to an element of the host's, or fills it with.
#include <gtest/gtest.h>

#include <climits>
#include <cstddef>
#include <cstring>
#include <functional>
#include <initializer_list>
#include <ostream>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "KVJSetConfig.h"
#include "configuration/document.h"
#include "configuration/records.h"

namespace composed_sections_test {

namespace {

using namespace kvj::tests;

/// The element at a path of an expected document, as it is written.
std::string expectedAt(const std::string& document, std::string_view path) {
    Xml xml(documentOf(document).c_str());
    return written(*at(xml.root(), path));
}

/// A composer that adds an element to the one that it is given, or fills that.
struct SectionComposer {
    const char* name;
    const char* document;  ///< that has what is expected
    const char* path;      ///< where in it
    std::function<bool(KVJSetConfig&, TiXmlElement*, _KVConfiguration&)> write;
};

using S = KVJSetConfig;
using E = TiXmlElement;
using Cfg = _KVConfiguration;

const std::vector<SectionComposer> adding = {
    {"addNetworkParams", "ethernet", "ethernet", [](S& s, E* e, Cfg& c) { return s.addNetworkParams(e, c); }},
    {"addWirelessParams", "wireless", "ethernet", [](S& s, E* e, Cfg& c) { return s.addWirelessParams(e, c); }},
    {"addOCPLanguage", "ocp_language", "ocp_language",
     [](S& s, E* e, Cfg& c) { return s.addOCPLanguage(e, c.ocpLanguage); }},
    {"addErrorControl", "error_control", "error_control",
     [](S& s, E* e, Cfg& c) { return s.addErrorControl(e, c.errorControl); }},
    {"addUSBSpeed", "error_control", "usb_speed", [](S& s, E* e, Cfg& c) { return s.addUSBSpeed(e, c.usbSpeed); }},
    {"addUsageCounters", "usage_counters", "usage_counters",
     [](S& s, E* e, Cfg& c) { return s.addUsageCounters(e, c); }},
    {"addUSBTimeout", "mech_adjustments", "usb_timeout", [](S& s, E* e, Cfg& c) { return s.addUSBTimeout(e, c); }},
    {"addFeederParams", "feeder_mode", "feeder_mode",
     [](S& s, E* e, Cfg& c) { return s.addFeederParams(e, c.feederMode); }},
    {"addImagingParameters", "imaging_parameters", "imaging_parameters",
     [](S& s, E* e, Cfg& c) { return s.addImagingParameters(e, c.imagingParameters); }},
    {"addRibbonMotorParams", "ribbon_motor_parameters", "ribbon_motor_parameters",
     [](S& s, E* e, Cfg& c) { return s.addRibbonMotorParams(e, c.ribbonMotorParameters); }},
    {"addMechAdjustments", "mech_adjustments", "mech_adjustments",
     [](S& s, E* e, Cfg& c) { return s.addMechAdjustments(e, c.mechAdjustments); }},
    {"addMediaInfo", "media_info", "media_info", [](S& s, E* e, Cfg& c) { return s.addMediaInfo(e, c); }},
    {"addCardInfo", "second_card", "cards/card", [](S& s, E* e, Cfg& c) { return s.addCardInfo(e, c.customCard2); }},
    {"addCardInformation", "second_card", "cards/card/information",
     [](S& s, E* e, Cfg& c) { return s.addCardInformation(e, c.customCard2); }},
    {"addTransferTempsOfACard", "second_card", "cards/card/transfer_temps",
     [](S& s, E* e, Cfg& c) { return s.addTransferTemps(e, c.customCard2.transferTemps); }},
    {"addTransferSpeeds", "second_card", "cards/card/transfer_speeds",
     [](S& s, E* e, Cfg& c) { return s.addTransferSpeeds(e, c.customCard2.transferSpeeds); }},
    {"addLamAdjustments", "second_card", "cards/card/laminator_adjustments",
     [](S& s, E* e, Cfg& c) { return s.addLamAdjustments(e, c.customCard2.laminatorAdjustments); }},
    {"addTransferSettings", "transfer_settings", "transfer_settings",
     [](S& s, E* e, Cfg& c) { return s.addTransferSettings(e, c.transferSettings); }},
    {"addTransferTemps", "transfer_settings", "transfer_settings/transfer_temps",
     [](S& s, E* e, Cfg& c) { return s.addTransferTemps(e, c.transferSettings.transferTemps); }},
    {"addLaminationInfo", "lamination", "lamination",
     [](S& s, E* e, Cfg& c) { return s.addLaminationInfo(e, c.lamination); }},
    {"addInternalEncoder", "internal_encoder", "internal_encoder",
     [](S& s, E* e, Cfg& c) { return s.addInternalEncoder(e, c.internalEncoder); }},
};

const std::vector<SectionComposer> filling = {
    {"addNetworkParamsOfARecord", "ethernet", "ethernet",
     [](S& s, E* e, Cfg& c) { return s.addNetworkParams(e, c.ethernet); }},
    {"addWirelessParamsOfARecord", "wireless", "ethernet",
     [](S& s, E* e, Cfg& c) { return s.addWirelessParams(e, c.wireless); }},
    {"addPowerAdjustments", "imaging_parameters", "imaging_parameters/user_power_adjustments",
     [](S& s, E* e, Cfg& c) { return s.addPowerAdjustments(e, c.imagingParameters.userPowerAdjustments); }},
    {"addRibbonInfo", "media_info", "media_info/film", [](S& s, E* e, Cfg& c) { return s.addRibbonInfo(e, c.film); }},
    {"addLaminateInfoAtTheTop", "lamination", "lamination/top_laminate",
     [](S& s, E* e, Cfg& c) { return s.addLaminateInfo(e, c.lamination.topLaminate, true); }},
    {"addLaminateInfoAtTheBottom", "lamination", "lamination/bottom_laminate",
     [](S& s, E* e, Cfg& c) { return s.addLaminateInfo(e, c.lamination.bottomLaminate, false); }},
};

class AnySection : public testing::TestWithParam<SectionComposer> {
protected:
    KVJSetConfig composer;
    _KVConfiguration cfg;

    AnySection() { fill(cfg); }
    bool write(TiXmlElement* element) { return GetParam().write(composer, element, cfg); }
    static std::string expected() { return expectedAt(GetParam().document, GetParam().path); }
};

TEST_P(AnySection, WithoutAnElementIsFalse) {
    EXPECT_FALSE(write(nullptr));
    EXPECT_EQ(composer.FirstChild(), nullptr);
}

class AddingSection : public AnySection {};

TEST_P(AddingSection, AddsItsElementAsTheLast) {
    TiXmlElement under("under");
    under.LinkEndChild(new TiXmlElement("first"));
    EXPECT_TRUE(write(&under));
    EXPECT_EQ(written(under), element("under", "<first />" + expected()));
    EXPECT_TRUE(write(&under));
    EXPECT_EQ(written(under), element("under", "<first />" + expected() + expected()));
}

class FillingSection : public AnySection {};

TEST_P(FillingSection, FillsTheElementWhateverItsName) {
    const std::string_view path = GetParam().path;
    TiXmlElement given(std::string(path.substr(path.rfind('/') + 1)).c_str());
    EXPECT_TRUE(write(&given));
    EXPECT_EQ(written(given), expected());
}

std::string nameOfComposer(const testing::TestParamInfo<SectionComposer>& composer) { return composer.param.name; }
void PrintTo(const SectionComposer& composer, std::ostream* out) { *out << composer.name; }

INSTANTIATE_TEST_SUITE_P(Adding, AnySection, testing::ValuesIn(adding), nameOfComposer);
INSTANTIATE_TEST_SUITE_P(Filling, AnySection, testing::ValuesIn(filling), nameOfComposer);
INSTANTIATE_TEST_SUITE_P(Sections, AddingSection, testing::ValuesIn(adding), nameOfComposer);
INSTANTIATE_TEST_SUITE_P(Sections, FillingSection, testing::ValuesIn(filling), nameOfComposer);

// ---- What a composer writes, with the composer and the element given by the test ----

/// The content that a composer adds to an element, and its result.
struct Written {
    bool result;
    std::string content;
    bool operator==(const Written&) const = default;
};

template <class Write>
Written writtenBy(Write write, KVJSetConfig&& composer = {}) {
    TiXmlElement under("a");
    const bool result = write(composer, &under);
    const std::string all = written(under);
    return {result, under.NoChildren() ? "" : all.substr(3, all.size() - 7)};
}

// ---- Sections with two elements or none of the document ----

TEST(CleanParams, AddsBothOfItsElements) {
    _KVConfiguration cfg;
    fill(cfg);
    EXPECT_EQ(writtenBy([&](S& s, E* e) { return s.addCleanParams(e, cfg.cleaning); }),
              (Written{true, expectedAt("cleaning", "cleaning") + expectedAt("cleaning", "cleaning_thresholds")}));
    EXPECT_FALSE(KVJSetConfig().addCleanParams(nullptr, cfg.cleaning));
}

TEST(TricolorSettings, AreWrittenByTheirOwnOperation) {
    EXPECT_EQ(writtenBy([&](S& s, E* e) {
                  return s.addTricolorSettings(e, {7, -8, 9});
              }),
              (Written{true, "<tricolor_settings><red>7</red><green>-8</green><blue>9</blue></tricolor_settings>"}));
    EXPECT_FALSE(KVJSetConfig().addTricolorSettings(nullptr, {7, 8, 9}));
}

// ---- Words ----

TEST(ErrorControl, NoneAndHighHaveWordsAndAnyOtherIsMed) {
    for (const auto& [code, word] :
         {std::pair(0, "none"), std::pair(1, "med"), std::pair(2, "high"), std::pair(5, "med"), std::pair(-1, "med"),
          std::pair(INT_MAX, "med"), std::pair(INT_MIN, "med")}) {
        const auto write = [code = code](S& s, E* e) { return s.addErrorControl(e, static_cast<ErrorControl>(code)); };
        EXPECT_EQ(writtenBy(write), (Written{true, element("error_control", word)})) << code;
    }
}

TEST(UsbSpeed, FullHasAWordAndAnyOtherIsHigh) {
    for (const auto& [code, word] :
         {std::pair(0, "high"), std::pair(1, "full"), std::pair(2, "high"), std::pair(7, "high"), std::pair(-1, "high"),
          std::pair(INT_MAX, "high"), std::pair(INT_MIN, "high")}) {
        const auto write = [code = code](S& s, E* e) { return s.addUSBSpeed(e, static_cast<USB_Speed>(code)); };
        EXPECT_EQ(writtenBy(write), (Written{true, element("usb_speed", word)})) << code;
    }
}

TEST(FeederMode, AnyOtherCodeIsTheHopper) {
    for (const auto& [code, word] :
         {std::pair(0, "manual"), std::pair(1, "hopper"), std::pair(2, "alreadyinprinter"), std::pair(3, "auto"),
          std::pair(4, "hopper"), std::pair(-1, "hopper"), std::pair(INT_MAX, "hopper")}) {
        const auto write = [code = code](S& s, E* e) { return s.addFeederParams(e, static_cast<_eFeedMode>(code)); };
        EXPECT_EQ(writtenBy(write), (Written{true, element("feeder_mode", word)})) << code;
    }
}

TEST(TransferType, OfAnyOtherCodeIsEmpty) {
    for (const auto& [code, word] : {std::pair(1, "single"), std::pair(2, "dual"), std::pair(0, ""), std::pair(3, ""),
                                     std::pair(-1, ""), std::pair(INT_MAX, "")}) {
        _ImageTransferInfo transfer{};
        transfer.transferType = code;
        const Written outcome = writtenBy([&](S& s, E* e) { return s.addTransferSettings(e, transfer); });
        const std::string expected = "<transfer_settings>" + element("transfer_type", word) + "<transfer_temps>";
        EXPECT_EQ(outcome.content.substr(0, expected.size()), expected);
        EXPECT_TRUE(outcome.result);
    }
}

/// A network's wireless section, between its radio and its SSID.
std::string writtenSecurity(int security, int crypto) {
    _WirelessParams network{};
    network.security = static_cast<WirelessSecurity>(security);
    network.crypto = static_cast<WirelessCrypto>(crypto);
    const std::string content = writtenBy([&](S& s, E* e) { return s.addWirelessParams(e, network); }).content;
    const std::size_t begin = content.find("<security>");
    return content.substr(begin, content.find("<ssid>") - begin);
}

TEST(Wireless, SecurityAndCryptoHaveWordsAndOthersAreEmpty) {
    for (const auto& [code, word] :
         {std::pair(0, "none"), std::pair(1, "wep40"), std::pair(2, "wep104"), std::pair(3, "wpa"),
          std::pair(4, "wpa2"), std::pair(5, "wpa_wpa2"), std::pair(6, ""), std::pair(-1, "")}) {
        EXPECT_EQ(writtenSecurity(code, 0), element("security", word) + element("crypto", "none"));
    }
    for (const auto& [code, word] : {std::pair(0, "none"), std::pair(1, "RC4"), std::pair(2, "TKIP"),
                                     std::pair(3, "CCMP"), std::pair(4, ""), std::pair(-1, "")}) {
        EXPECT_EQ(writtenSecurity(1, code), element("security", "wep40") + element("crypto", word));
    }
}

// ---- Networks ----

TEST(Network, FlagsAreEnabledOrDisabledAndAddressesDotted) {
    _NetworkParams network{};
    network.subnetMask = address(255, 255, 255, 255);
    network.gateway = 0x1234567800000000UL | address(10, 0, 0, 1);
    network.snmp = true;
    EXPECT_EQ(writtenBy([&](S& s, E* e) { return s.addNetworkParams(e, network); }),
              (Written{true,
                       "<ip_address>0.0.0.0</ip_address><gateway>10.0.0.1</gateway>"
                       "<subnet_mask>255.255.255.255</subnet_mask><dhcp>disabled</dhcp><snmp>enabled</snmp>"}));
}

TEST(Network, WithoutAddressesHasNeitherThemNorSnmp) {
    _KVConfiguration cfg;
    fill(cfg);
    TiXmlElement under("ethernet");
    EXPECT_TRUE(kvj::compose(&under, cfg.ethernet, kvj::configuration::networkTags, {.withoutAddresses = true}));
    EXPECT_EQ(written(under), "<ethernet><dhcp>enabled</dhcp></ethernet>");
}

TEST(Network, WithoutAddressesOnlyTheWiredOneLacksThemInAWholeDocument) {
    _KVConfiguration cfg;
    fill(cfg);
    TiXmlElement under("r");
    EXPECT_TRUE(
        kvj::compose(&under, cfg, kvj::configuration::documentSections, {.withoutAddresses = true, .sections = 0x6}));
    TiXmlElement wireless("r");
    EXPECT_TRUE(KVJSetConfig().addConfiguration(&wireless, cfg, 0x4, 0));
    const std::string wirelessAlone = written(wireless).substr(std::strlen("<r>"));
    EXPECT_NE(wirelessAlone.find("<ip_address>"), std::string::npos);
    EXPECT_NE(wirelessAlone.find("<snmp>"), std::string::npos);
    EXPECT_EQ(written(under), "<r><ethernet><dhcp>enabled</dhcp></ethernet>" + wirelessAlone);
}

TEST(Network, OfAFreshComposerHasAddresses) {
    _NetworkParams network{};
    EXPECT_EQ(writtenBy([&](S& s, E* e) {
                  return s.addNetworkParams(e, network);
              }).content.substr(0, std::strlen("<ip_address>")),
              "<ip_address>");
}

TEST(Wireless, FlagsAreEnabledOrDisabledAndTheCountryIsNeverWritten) {
    _WirelessParams network{};
    network.dhcp = true;
    std::strcpy(network.country, "DE");
    EXPECT_EQ(writtenBy([&](S& s, E* e) { return s.addWirelessParams(e, network); }),
              (Written{true,
                       "<ip_address>0.0.0.0</ip_address><gateway>0.0.0.0</gateway><subnet_mask>0.0.0.0</subnet_mask>"
                       "<dhcp>enabled</dhcp><snmp>disabled</snmp><radio>disabled</radio><security>none</security>"
                       "<crypto>none</crypto><ssid></ssid><bssid>00:00:00:00:00:00</bssid><channel>0</channel>"
                       "<key></key>"}));
}

TEST(Wireless, TextsAreEscapedWhenTheyArePrinted) {
    _WirelessParams network{};
    std::strcpy(network.ssid, "<b> & \"c\"");
    const std::string content = writtenBy([&](S& s, E* e) { return s.addWirelessParams(e, network); }).content;
    EXPECT_NE(content.find("<ssid>&lt;b&gt; &amp; &quot;c&quot;</ssid>"), std::string::npos) << content;
}

// ---- Encoders ----

TEST(InternalEncoder, TheChannelFollowsFromTheContactlessEncoder) {
    for (const auto& [code, channel, encoder] :
         {std::tuple(0, "", ""), std::tuple(1, "serial", "mifare"), std::tuple(2, "usb", ""), std::tuple(3, "", ""),
          std::tuple(5, "", ""), std::tuple(-1, "", "")}) {
        for (const bool contact : {false, true}) {
            const _InternalEncoderInfo info{1, contact, code, 1, true};
            EXPECT_EQ(
                writtenBy([&](S& s, E* e) { return s.addInternalEncoder(e, info); }),
                (Written{true, element("internal_encoder", element("comms_channel", channel) +
                                                               element("contact_encoding", contact ? "yes" : "no") +
                                                               element("contactless_encoder", encoder))}))
                << code;
        }
    }
}

// ---- Ribbons ----

std::string writtenRibbon(const std::string& description) {
    return "<type>0</type>" + element("description", description) +
           "<oem_country></oem_country><initial_size>0</initial_size><panels_remaining>0</panels_remaining>";
}

TEST(Ribbon, HasTheNameOfItsCodeAndNeverItsDescription) {
    for (const auto& [code, name] : {std::pair(256, "YMCKO"), std::pair(259, "1/2 YMCKOKO"), std::pair(263, "Black"),
                                     std::pair(271, "Hologram")}) {
        _RibbonInfo ribbon{};
        std::strcpy(ribbon.description, "blue");
        ribbon.ribbonCode = code;
        EXPECT_EQ(writtenBy([&](S& s, E* e) { return s.addRibbonInfo(e, ribbon); }),
                  (Written{true, writtenRibbon(name)}));
    }
}

TEST(Ribbon, OfACodeWithoutANameHasAnEmptyDescription) {
    for (const int code : {272, 255, 0, -1, INT_MAX}) {
        _RibbonInfo ribbon{};
        std::strcpy(ribbon.description, "blue");
        ribbon.ribbonCode = code;
        EXPECT_EQ(writtenBy([&](S& s, E* e) { return s.addRibbonInfo(e, ribbon); }), (Written{true, writtenRibbon("")}))
            << code;
    }
}

// ---- Cards ----

TEST(CardInformation, HasTheWordOfItsCoercivityAndNoneForOtherCodes) {
    for (const auto& [code, word] :
         {std::pair(0, "none"), std::pair(1, "low"), std::pair(2, "high"), std::pair(3, ""), std::pair(255, "")}) {
        _CustomCardInfo card{};
        card.coercivity = static_cast<unsigned char>(code);
        const std::string content = writtenBy([&](S& s, E* e) { return s.addCardInformation(e, card); }).content;
        EXPECT_NE(content.find(element("coercivity", word)), std::string::npos) << content;
    }
}

TEST(CardInformation, EachFlagIsYesOrNo) {
    for (unsigned flags = 0; flags < 8; ++flags) {
        const bool stripe = (flags & 1) != 0;
        const bool contact = (flags & 2) != 0;
        const bool contactless = (flags & 4) != 0;
        _CustomCardInfo card{};
        card.magStripe = stripe;
        card.contactEncode = contact;
        card.nonContactEncode = contactless;
        const auto word = [](bool flag) { return flag ? "yes" : "no"; };
        EXPECT_EQ(
            writtenBy([&](S& s, E* e) { return s.addCardInformation(e, card); }),
            (Written{true, element("information",
                                   "<type>0</type><vessa_part_number></vessa_part_number>"
                                   "<description></description><thickness>0.0000</thickness>"
                                   "<coercivity>none</coercivity>" +
                                       element("mag_stripe", word(stripe)) + element("contact_encode", word(contact)) +
                                       element("non_contact_encode", word(contactless)))}));
    }
}

TEST(CardInformation, TheThicknessHasFourDecimals) {
    _CustomCardInfo card{};
    card.thickness = -0.1F;
    const std::string content = writtenBy([&](S& s, E* e) { return s.addCardInformation(e, card); }).content;
    EXPECT_NE(content.find("<thickness>-0.1000</thickness>"), std::string::npos) << content;
}

// ---- Settings ----

TEST(TransferSpeeds, AreWrittenWithTheirMaximumAndNeverTheirValue) {
    const _TransferSpeedInfo speeds{{1, 9.5F, 4.25F}, {-0.5F, 0.25F, 0}, {0, 100, 200}, {0, 0, 1}};
    EXPECT_EQ(writtenBy([&](S& s, E* e) { return s.addTransferSpeeds(e, speeds); }),
              (Written{true, element("transfer_speeds", setting("input_single", "1.00", "9.50", "9.50") +
                                                            setting("output_single", "-0.50", "0.25", "0.25") +
                                                            setting("input_double", "0.00", "100.00", "100.00") +
                                                            setting("output_double", "0.00", "0.00", "0.00"))}));
}

TEST(UsbTimeout, OutsideItsRangeIsWrittenAsItIs) {
    _KVConfiguration cfg{};
    cfg.usbTimeout = {{5, 3, 12}, {INT_MIN, INT_MAX, -1}};
    EXPECT_EQ(writtenBy([&](S& s, E* e) { return s.addUSBTimeout(e, cfg); }),
              (Written{true, element("usb_timeout", setting("read", "5", "3", "12") +
                                                        setting("write", "-2147483648", "2147483647", "-1"))}));
}

// ---- Laminates ----

TEST(Lamination, BothLaminatesAreThereWhenTheTopOneIsPresent) {
    for (const bool top : {false, true}) {
        for (const bool bottom : {false, true}) {
            _KVConfiguration cfg;
            fill(cfg);
            cfg.lamination.topLaminate.laminatePresent = top;
            cfg.lamination.bottomLaminate.laminatePresent = bottom;
            EXPECT_EQ(writtenBy([&](S& s, E* e) { return s.addLaminationInfo(e, cfg.lamination); }),
                      (Written{true, expectedAt(top ? "lamination" : "lamination_without_top", "lamination")}));
        }
    }
}

TEST(Lamination, WidthAndRegistrationAreWrittenAsNumbers) {
    _Laminate laminate{};
    laminate.laminateInstalled.width = 7;
    laminate.laminateInstalled.registration = -7;
    EXPECT_EQ(writtenBy([&](S& s, E* e) { return s.addLaminateInfo(e, laminate, false); }),
              (Written{true, element("laminate_installed",
                                     "<type>0</type><description></description><thickness>0</thickness>"
                                     "<registration>-7</registration><width>7</width><oem_country></oem_country>"
                                     "<initial_size>0</initial_size><panels_remaining>0</panels_remaining>") +
                                 element("laminate_control", setting("bot_x_adj_fine_offset", "0", "0", "0") +
                                                                 setting("bot_temp_adjust", "0", "0", "0"))}));
}

// ---- Texts that fill their field ----

TEST(Texts, ThatAreNotTerminatedAreWrittenWholeAndNotBeyond) {
    _KVConfiguration cfg;
    clear(cfg);
    const auto expectText = [](std::size_t size, const char* name, auto write) {
        const std::string content = writtenBy(write).content;
        EXPECT_NE(content.find(element(name, std::string(size, 't'))), std::string::npos) << content;
    };
    std::memset(cfg.ocpLanguage.name, 't', sizeof cfg.ocpLanguage.name);
    expectText(64, "name", [&](S& s, E* e) { return s.addOCPLanguage(e, cfg.ocpLanguage); });
    std::memset(cfg.wireless.ssid, 't', sizeof cfg.wireless.ssid);
    std::memset(cfg.wireless.key, 't', sizeof cfg.wireless.key);
    expectText(34, "ssid", [&](S& s, E* e) { return s.addWirelessParams(e, cfg); });
    expectText(128, "key", [&](S& s, E* e) { return s.addWirelessParams(e, cfg); });
    std::memset(cfg.ribbon.oemCountry, 't', sizeof cfg.ribbon.oemCountry);
    expectText(8, "oem_country", [&](S& s, E* e) { return s.addRibbonInfo(e, cfg.ribbon); });
    std::memset(cfg.customCard1.partNumber, 't', sizeof cfg.customCard1.partNumber);
    std::memset(cfg.customCard1.description, 't', sizeof cfg.customCard1.description);
    expectText(16, "vessa_part_number", [&](S& s, E* e) { return s.addCardInformation(e, cfg.customCard1); });
    expectText(64, "description", [&](S& s, E* e) { return s.addCardInformation(e, cfg.customCard1); });
    _Laminate& laminate = cfg.lamination.topLaminate;
    std::memset(laminate.laminateInstalled.description, 't', sizeof laminate.laminateInstalled.description);
    std::memset(laminate.laminateInstalled.oemCountry, 't', sizeof laminate.laminateInstalled.oemCountry);
    expectText(64, "description", [&](S& s, E* e) { return s.addLaminateInfo(e, laminate, true); });
    expectText(8, "oem_country", [&](S& s, E* e) { return s.addLaminateInfo(e, laminate, true); });
    std::memset(cfg.cleaning.cleaningDeadlineIsSoft, 't', sizeof cfg.cleaning.cleaningDeadlineIsSoft);
    expectText(12, "cleaning_deadline_is_soft", [&](S& s, E* e) { return s.addCleanParams(e, cfg.cleaning); });
}

}  // namespace

}  // namespace composed_sections_test
