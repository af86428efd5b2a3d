// Numbers, texts, flags and addresses of the configuration: each fills its own field and no byte beside it.
#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstring>
#include <initializer_list>
#include <iterator>
#include <string>
#include <type_traits>
#include <utility>

#include "KVJConfigParser.h"
#include "configuration/records.h"

namespace fields_test {

namespace {

using namespace kvj::tests;

/// A field, its element, and the reader of the section that it stands in.
template <class Record, class Value>
struct Field {
    ReaderOf<Record> reader;
    const char* name;
    Value Record::*member;
};
template <class Record, class Value>
Field(bool (KVJConfigParser::*)(TiXmlElement*, Record&), const char*, Value Record::*) -> Field<Record, Value>;

/// What reading a section with this element alone gave.
struct Outcome {
    bool result;
    std::string record;
    bool operator==(const Outcome&) const = default;
};

template <class Record, class Value>
Outcome outcomeOf(const Field<Record, Value>& field, const std::string& content) {
    Record record;
    preset(record);
    const bool result = read(field.reader, element(field.name, content), record);
    return {result, bytesOf(record)};
}

/// A preset record in which `change` changes the field.
template <class Record, class Value, class Change>
Outcome expected(bool result, const Field<Record, Value>& field, Change change) {
    Record record;
    preset(record);
    change(record.*field.member);
    return {result, bytesOf(record)};
}

/// A preset record but for this value of the field.
template <class Record, class Value>
Outcome with(const Field<Record, Value>& field, std::type_identity_t<Value> value) {
    return expected(true, field, [&](Value& member) { member = value; });
}

/// A preset record.
template <class Record, class Value>
Outcome untouched(const Field<Record, Value>& field, bool result = false) {
    return expected(result, field, [](Value& /*member*/) {});
}

using P = KVJConfigParser;

// ---- Numbers ----

template <class Check>
void forEachNumber(Check check) {
    check(Field{&P::getWirelessParams, "channel", &_WirelessParams::channel});
    check(Field{&P::getOCPValues, "type", &_OCPLanguageCaps::type});
    check(Field{&P::getUsageCounters, "num_cards_printed", &_KVConfiguration::numCardsPrinted});
    check(Field{&P::getUsageCounters, "num_lines_printed", &_KVConfiguration::numLinesPrinted});
    check(Field{&P::getTricolorSettings, "red", &_RGBINT::red});
    check(Field{&P::getTricolorSettings, "green", &_RGBINT::green});
    check(Field{&P::getTricolorSettings, "blue", &_RGBINT::blue});
    check(Field{&P::getRibbonInfo, "type", &_RibbonInfo::type});
    check(Field{&P::getRibbonInfo, "initial_size", &_RibbonInfo::initialSize});
    check(Field{&P::getRibbonInfo, "panels_remaining", &_RibbonInfo::panelsRemaining});
    check(Field{&P::getCardInformation, "type", &_CustomCardInfo::type});
    check(Field{&P::getCardInfo, "cal_table", &_CustomCardInfo::calTable});
    check(Field{&P::getLaminteInstalledInfo, "type", &_LaminateInstalled::type});
    check(Field{&P::getLaminteInstalledInfo, "thickness", &_LaminateInstalled::thickness});
    check(Field{&P::getLaminteInstalledInfo, "initial_size", &_LaminateInstalled::initialSize});
    check(Field{&P::getLaminteInstalledInfo, "panels_remaining", &_LaminateInstalled::panelsRemaining});
}

TEST(Number, IsDecimalAndFillsItsOwnFieldAlone) {
    forEachNumber([](const auto& field) {
        for (const auto& [text, value] :
             {std::pair("70000", 70000), std::pair("-70000", -70000), std::pair("010", 10), std::pair("0x1f", 0),
              std::pair("+5", 5), std::pair("12 cards", 12), std::pair("3.9", 3), std::pair("2147483647", INT_MAX)}) {
            EXPECT_EQ(outcomeOf(field, text), with(field, value)) << field.name << ' ' << text;
        }
    });
}

TEST(Number, ThatIsNoneIs0) {
    forEachNumber([](const auto& field) { EXPECT_EQ(outcomeOf(field, "abc"), with(field, 0)) << field.name; });
}

TEST(Number, OfTheColoursHasNoRange) {
    _RGBINT colors{};
    EXPECT_TRUE(read(&P::getTricolorSettings, setting("red", "0", "100", "150"), colors));
    EXPECT_EQ(colors.red, 150);
}

TEST(CardThickness, HasAPointInEveryLocale) {
    const Field thickness{&P::getCardInformation, "thickness", &_CustomCardInfo::thickness};
    EXPECT_EQ(outcomeOf(thickness, "30.25"), with(thickness, 30.25F));
    EXPECT_EQ(outcomeOf(thickness, "30,25"), with(thickness, 30.0F));
    EXPECT_EQ(outcomeOf(thickness, "-1e2"), with(thickness, -100.0F));
    EXPECT_EQ(outcomeOf(thickness, "thick"), with(thickness, 0.0F));
    EXPECT_EQ(outcomeOf(thickness, ""), untouched(thickness));
}

// ---- Texts ----

template <class Check>
void forEachText(Check check) {
    check(Field{&P::getOCPValues, "name", &_OCPLanguageCaps::name});
    check(Field{&P::getWirelessParams, "ssid", &_WirelessParams::ssid});
    check(Field{&P::getWirelessParams, "key", &_WirelessParams::key});
    check(Field{&P::getWirelessParams, "country", &_WirelessParams::country});
    check(Field{&P::getRibbonInfo, "oem_country", &_RibbonInfo::oemCountry});
    check(Field{&P::getCardInformation, "vessa_part_number", &_CustomCardInfo::partNumber});
    check(Field{&P::getCardInformation, "description", &_CustomCardInfo::description});
    check(Field{&P::getLaminteInstalledInfo, "description", &_LaminateInstalled::description});
    check(Field{&P::getLaminteInstalledInfo, "oem_country", &_LaminateInstalled::oemCountry});
    check(Field{&P::getCleanParams, "cleaning_deadline_is_soft", &_CleaningParams::cleaningDeadlineIsSoft});
}

/// A preset record but for this text in the field, with its terminator.
template <class Record, std::size_t N>
Outcome withText(bool result, const Field<Record, char[N]>& field, const std::string& text) {
    return expected(result, field, [&](char(&member)[N]) { std::memcpy(member, text.c_str(), text.size() + 1); });
}

template <class Record, std::size_t N>
constexpr std::size_t sizeOf(const Field<Record, char[N]>& /*field*/) {
    return N;
}

TEST(Text, FillsItsOwnFieldAlone) {
    forEachText([](const auto& field) {
        EXPECT_EQ(outcomeOf(field, "a b"), withText(true, field, "a b")) << field.name;
        EXPECT_EQ(outcomeOf(field, "&lt;&amp;"), withText(true, field, "<&")) << field.name;
        EXPECT_EQ(outcomeOf(field, "<![CDATA[]]>"), withText(true, field, "")) << field.name;
    });
}

TEST(Text, ThatFitsWithItsTerminatorIsWhole) {
    forEachText([](const auto& field) {
        const std::string text(sizeOf(field) - 1, 't');
        EXPECT_EQ(outcomeOf(field, text), withText(true, field, text)) << field.name;
    });
}

TEST(Text, ThatDoesNotFitIsCutTerminatedAndFalse) {
    forEachText([](const auto& field) {
        const std::string cut(sizeOf(field) - 1, 't');
        for (const std::size_t length : {sizeOf(field), sizeOf(field) + 1, std::size_t{100000}}) {
            EXPECT_EQ(outcomeOf(field, std::string(length, 't')), withText(false, field, cut)) << field.name;
        }
    });
}

// ---- Flags ----

template <class Check>
void forEachFlag(Check check) {
    check(Field{&P::getNetworkParams, "dhcp", &_NetworkParams::dhcp});
    check(Field{&P::getNetworkParams, "snmp", &_NetworkParams::snmp});
    check(Field{&P::getWirelessParams, "dhcp", &_WirelessParams::dhcp});
    check(Field{&P::getWirelessParams, "snmp", &_WirelessParams::snmp});
    check(Field{&P::getWirelessParams, "radio", &_WirelessParams::radio});
    check(Field{&P::getInternalEncoderInfo, "contact_encoding", &_InternalEncoderInfo::contactEncoding});
}

TEST(Flag, IsTrueForEnabledAndYesAlone) {
    forEachFlag([](const auto& field) {
        for (const char* word : {"enabled", "yes"}) EXPECT_EQ(outcomeOf(field, word), with(field, true)) << field.name;
        for (const char* word : {"disabled", "no", "Yes", "ENABLED", "true", "1", "on", "enable"}) {
            EXPECT_EQ(outcomeOf(field, word), with(field, false)) << field.name << ' ' << word;
        }
        EXPECT_EQ(outcomeOf(field, std::string(100000, 'y')), with(field, false)) << field.name;
    });
}

TEST(Flag, IsReadWhateverItWas) {
    _NetworkParams network{};
    EXPECT_TRUE(read(&P::getNetworkParams, element("dhcp", "enabled") + element("snmp", "yes"), network));
    EXPECT_TRUE(network.dhcp);
    EXPECT_TRUE(network.snmp);
}

TEST(Flag, WithoutTextIsStoredAsFalseAndFalse) {
    forEachFlag([](const auto& field) {
        EXPECT_EQ(outcomeOf(field, ""), expected(false, field, [](bool& flag) { flag = false; })) << field.name;
    });
}

// ---- Addresses ----

template <class Check>
void forEachIpAddress(Check check) {
    check(Field{&P::getNetworkParams, "ip_address", &_NetworkParams::ipAddress});
    check(Field{&P::getNetworkParams, "subnet_mask", &_NetworkParams::subnetMask});
    check(Field{&P::getNetworkParams, "gateway", &_NetworkParams::gateway});
    check(Field{&P::getWirelessParams, "ip_address", &_WirelessParams::ipAddress});
    check(Field{&P::getWirelessParams, "subnet_mask", &_WirelessParams::subnetMask});
    check(Field{&P::getWirelessParams, "gateway", &_WirelessParams::gateway});
}

TEST(IpAddress, IsInNetworkByteOrderInTheLow32Bits) {
    forEachIpAddress([](const auto& field) {
        EXPECT_EQ(outcomeOf(field, "192.168.1.50"), with(field, address(192, 168, 1, 50))) << field.name;
        EXPECT_EQ(outcomeOf(field, "255.255.255.0"), with(field, address(255, 255, 255, 0))) << field.name;
        EXPECT_EQ(outcomeOf(field, "0.0.0.0"), with(field, 0)) << field.name;
        EXPECT_EQ(outcomeOf(field, "10.1"), with(field, address(10, 0, 0, 1))) << field.name;
        EXPECT_EQ(outcomeOf(field, "0x7f.0.0.010"), with(field, address(127, 0, 0, 8))) << field.name;
    });
}

TEST(IpAddress, ThatIsNoneHasAll32BitsSetAndIsTrue) {
    forEachIpAddress([](const auto& field) {
        for (const char* text : {"printer.local", "256.1.1.1", "1.2.3.4.5", "10.0.0.1:80", "-1"}) {
            EXPECT_EQ(outcomeOf(field, text), with(field, 4294967295UL)) << field.name << ' ' << text;
        }
    });
}

TEST(IpAddress, WithoutTextIs0AndFalse) {
    forEachIpAddress([](const auto& field) {
        EXPECT_EQ(outcomeOf(field, ""), expected(false, field, [](unsigned long& value) { value = 0; })) << field.name;
    });
}

TEST(IpAddress, WithAnEmptyTextIs0AndFalse) {
    for (const char* text : {"<![CDATA[]]>", "<!---->"}) {
        forEachIpAddress([&](const auto& field) {
            EXPECT_EQ(outcomeOf(field, text), expected(false, field, [](unsigned long& value) { value = 0; }))
                << field.name << ' ' << text;
        });
    }
}

TEST(IpAddress, OfAnElementByItself) {
    unsigned long value = 7;
    EXPECT_TRUE(read(&P::getIP, "192.168.1.50", value));
    EXPECT_EQ(value, address(192, 168, 1, 50));
    EXPECT_FALSE(read(&P::getIP, "", value));
    EXPECT_EQ(value, 0UL);
    value = 7;
    EXPECT_FALSE(KVJConfigParser().getIP(nullptr, value));
    EXPECT_EQ(value, 7UL);
}

TEST(IpAddress, OfAnAttributeIsNeverRead) {
    Xml xml("<a ip=\"192.168.1.50\">192.168.1.50</a>");
    char name[] = "ip";
    unsigned long value = 7;
    EXPECT_FALSE(KVJConfigParser().getIP(xml.root(), name, value));
    EXPECT_FALSE(KVJConfigParser().getIP(nullptr, name, value));
    EXPECT_FALSE(KVJConfigParser().getIP(xml.root(), nullptr, value));
    EXPECT_EQ(value, 7UL);
}

TEST(NetworkAddresses, OneWithoutTextMakesTheResultFalseUnlessAnotherChildFollows) {
    _NetworkParams network{};
    EXPECT_FALSE(read(&P::getNetworkParams, element("dhcp", "yes") + element("gateway", ""), network));
    EXPECT_TRUE(read(&P::getNetworkParams, element("gateway", "") + element("dhcp", "yes"), network));
}

struct HardwareAddress {
    const char* text;
    unsigned char bytes[6];
};
constexpr HardwareAddress hardwareAddresses[] = {{"00:1a:2B:3c:4D:5e", {0x00, 0x1A, 0x2B, 0x3C, 0x4D, 0x5E}},
                                                 {"ff:FF:ff:FF:ff:FF", {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}},
                                                 {"1:2:3:4:5:6", {1, 2, 3, 4, 5, 6}},
                                                 {"00-1a-2b-3c-4d-5e", {0, 0, 0, 0, 0, 0}},
                                                 {"0a:0b:0c", {0x0A, 0x0B, 0x0C, 0, 0, 0}},
                                                 {"0a:0b:zz:0d:0e:0f", {0x0A, 0x0B, 0, 0, 0, 0}},
                                                 {"0a:0b:0c:0d:0e:0f:10", {0x0A, 0x0B, 0x0C, 0x0D, 0x0E, 0x0F}},
                                                 {"none", {0, 0, 0, 0, 0, 0}}};

TEST(HardwareAddress, OfTheWirelessNetworkIsSixBytesInHexadecimal) {
    const Field bssid{&P::getWirelessParams, "bssid", &_WirelessParams::bssid};
    for (const auto& [text, bytes] : hardwareAddresses) {
        EXPECT_EQ(outcomeOf(bssid, text),
                  expected(true, bssid, [&bytes = bytes](auto& member) { std::ranges::copy(bytes, member); }))
            << text;
    }
    EXPECT_EQ(outcomeOf(bssid, ""), untouched(bssid));
}

TEST(HardwareAddress, OfAnElementByItself) {
    for (const auto& [text, bytes] : hardwareAddresses) {
        unsigned char buffer[8] = {1, 1, 1, 1, 1, 1, 1, 1};
        Xml xml(element("a", text).c_str());
        EXPECT_TRUE(KVJConfigParser().getPhysicalAddress(xml.root(), buffer)) << text;
        EXPECT_TRUE(std::equal(std::begin(bytes), std::end(bytes), buffer)) << text;
        EXPECT_EQ(buffer[6], 1) << text;
    }
}

TEST(HardwareAddress, WithoutTextOrElementIsFalseAndKept) {
    constexpr unsigned char before[6] = {1, 2, 3, 4, 5, 6};
    unsigned char buffer[6] = {1, 2, 3, 4, 5, 6};
    Xml empty("<a/>");
    EXPECT_FALSE(KVJConfigParser().getPhysicalAddress(empty.root(), buffer));
    EXPECT_FALSE(KVJConfigParser().getPhysicalAddress(nullptr, buffer));
    EXPECT_TRUE(std::ranges::equal(buffer, before));
}

// ---- Words in their sections ----

/// That each word gives its code, whatever the field was before.
template <class Record, class Value>
void expectCodes(const Field<Record, Value>& field, std::initializer_list<std::pair<const char*, int>> cases) {
    for (const auto& [word, code] : cases) {
        EXPECT_EQ(outcomeOf(field, word), with(field, static_cast<Value>(code))) << field.name << ' ' << word;
    }
    EXPECT_EQ(outcomeOf(field, ""), untouched(field)) << field.name;
}

template <class Record, class Value>
void expectKept(const Field<Record, Value>& field, std::initializer_list<const char*> words) {
    for (const char* word : words) EXPECT_EQ(outcomeOf(field, word), untouched(field, true)) << field.name << word;
}

TEST(Word, OfWirelessSecurityAndCrypto) {
    const Field security{&P::getWirelessParams, "security", &_WirelessParams::security};
    expectCodes(security, {{"open", 0}, {"WEP40", 1}, {"wep104", 2}, {"WPA", 3}, {"wpa2", 4}, {"WPA2_WPA", 5}});
    expectKept(security, {"wpa3", "Wpa2"});
    const Field crypto{&P::getWirelessParams, "crypto", &_WirelessParams::crypto};
    expectCodes(crypto, {{"none", 0}, {"rc4", 1}, {"TKIP", 2}, {"ccmp", 3}, {"TKIP_CCMP", 3}});
    expectKept(crypto, {"aes", "Ccmp"});
    for (const char* empty : {"<![CDATA[]]>", "&#0;", "&#0;none"}) {
        EXPECT_EQ(outcomeOf(security, empty), untouched(security)) << empty;
        EXPECT_EQ(outcomeOf(crypto, empty), untouched(crypto)) << empty;
    }
}

TEST(Word, OfACardsCoercivityIs0ForAnyOther) {
    expectCodes(Field{&P::getCardInformation, "coercivity", &_CustomCardInfo::coercivity},
                {{"none", 0}, {"low", 1}, {"high", 2}, {"Low", 0}, {"HIGH", 0}, {"medium", 0}});
}

TEST(Word, OfATransferTypeIs0ForAnyOther) {
    expectCodes(Field{&P::getTransferSettings, "transfer_type", &_ImageTransferInfo::transferType},
                {{"single", 1}, {"dual", 2}, {"Dual", 0}, {"SINGLE", 0}, {"triple", 0}, {"2", 0}});
}

TEST(Word, OfALaminatesWidthThatIsUnknownLeavesTheField) {
    const Field width{&P::getLaminteInstalledInfo, "width", &_LaminateInstalled::width};
    expectCodes(width, {{"full", 0}, {"mag", 1}, {"signature", 2}});
    expectKept(width, {"Full", "half", "none", "0", "1", "2"});
}

TEST(Word, OfALaminatesRegistrationThatIsUnknownLeavesTheField) {
    const Field registration{&P::getLaminteInstalledInfo, "registration", &_LaminateInstalled::registration};
    expectCodes(registration, {{"none", 0}, {"hologram", 1}, {"contact", 2}});
    expectKept(registration, {"None", "full", "0", "1", "2"});
}

TEST(Word, OfTheEncodersChannelIs0ForAnyOther) {
    expectCodes(Field{&P::getInternalEncoderInfo, "comms_channel", &_InternalEncoderInfo::commsChannel},
                {{"serial", 1}, {"usb", 2}, {"usb_2_0", 0}, {"USB", 0}, {"bluetooth", 0}});
}

// ---- Contactless encoders ----

struct Encoders {
    int first;
    int second;
    bool operator==(const Encoders&) const = default;
};

Encoders encoders(std::initializer_list<const char*> words, Encoders before = {0, -7}) {
    _InternalEncoderInfo encoder{};
    encoder.contactlessEncoder = before.first;
    encoder.contactlessEncoder2 = before.second;
    std::string content;
    for (const char* word : words) content += element("contactless_encoder", word);
    EXPECT_TRUE(read(&P::getInternalEncoderInfo, content, encoder));
    return {encoder.contactlessEncoder, encoder.contactlessEncoder2};
}

TEST(ContactlessEncoder, EachHasItsCode) {
    EXPECT_EQ(encoders({"mifare"}), (Encoders{1, -7}));
    EXPECT_EQ(encoders({"felica"}), (Encoders{2, -7}));
    EXPECT_EQ(encoders({"uhf"}), (Encoders{3, -7}));
    EXPECT_EQ(encoders({"hf"}), (Encoders{4, -7}));
    EXPECT_EQ(encoders({"lf"}), (Encoders{5, -7}));
    EXPECT_EQ(encoders({"Mifare"}), (Encoders{0, -7}));
}

TEST(ContactlessEncoder, ASecondOneHasAFieldOfItsOwn) { EXPECT_EQ(encoders({"mifare", "uhf"}), (Encoders{1, 3})); }

TEST(ContactlessEncoder, AThirdOneTakesThePlaceOfTheSecond) {
    EXPECT_EQ(encoders({"mifare", "uhf", "lf"}), (Encoders{1, 5}));
    EXPECT_EQ(encoders({"mifare", "uhf", "none"}), (Encoders{1, 0}));
}

TEST(ContactlessEncoder, AfterOneThatIsUnknownTheNextIsTheFirst) {
    EXPECT_EQ(encoders({"none", "felica", "hf"}), (Encoders{2, 4}));
}

TEST(ContactlessEncoder, InARecordThatHasOneAlreadyIsTheSecond) {
    EXPECT_EQ(encoders({"felica"}, {1, -7}), (Encoders{1, 2}));
}

TEST(ContactlessEncoder, WithoutTextIsFalseAndLeavesBoth) {
    _InternalEncoderInfo encoder{};
    EXPECT_FALSE(read(&P::getInternalEncoderInfo, element("contactless_encoder", ""), encoder));
    encoder.contactlessEncoder = 1;
    encoder.contactlessEncoder2 = 3;
    EXPECT_FALSE(read(&P::getInternalEncoderInfo, element("contactless_encoder", ""), encoder));
    EXPECT_EQ(encoder.contactlessEncoder, 1);
    EXPECT_EQ(encoder.contactlessEncoder2, 3);
}

TEST(InternalEncoder, AContactStationIsNeverRead) {
    _InternalEncoderInfo encoder{};
    EXPECT_FALSE(read(&P::getInternalEncoderInfo, element("contact_station", "yes"), encoder));
    EXPECT_FALSE(encoder.contactStation);
}

}  // namespace

}  // namespace fields_test
