// The replies "get_wireless_status" and "get_wireless_radio_status": the link, its traffic, and the radio's counters.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "KVJStatusParser.h"
#include "fields/status.h"
#include "support/records.h"
#include "support/xml.h"

namespace wireless_status_test {

namespace {

using Kavrin::_tagPackets;
using Kavrin::_tagWirelessRadioStatus;
using Kavrin::_tagWirelessStatus;
using Kavrin::KVJStatusParser;
using kvj::tests::expectEqual;
using kvj::tests::wide;
using kvj::tests::Xml;

std::string element(const std::string& name, const std::string& content) {
    return "<" + name + ">" + content + "</" + name + ">";
}

/// A record field that an element is read into as a decimal number.
template <class Record>
struct Number {
    const char* name;
    int Record::*field;
};

constexpr Number<_tagPackets> packetNumbers[] = {{"octets", &_tagPackets::octets},
                                                 {"upkts", &_tagPackets::upkts},
                                                 {"nupkts", &_tagPackets::nupkts},
                                                 {"discards", &_tagPackets::discards},
                                                 {"errors", &_tagPackets::errors}};

constexpr Number<_tagWirelessStatus> linkNumbers[] = {
    {"channel", &_tagWirelessStatus::channel}, {"rssi", &_tagWirelessStatus::rssi},
    {"snr", &_tagWirelessStatus::snr},         {"nf", &_tagWirelessStatus::nf},
    {"rate", &_tagWirelessStatus::rate},       {"link_lost", &_tagWirelessStatus::link_lost}};

constexpr Number<_tagWirelessRadioStatus> radioNumbers[] = {{"mcasttxframe", &_tagWirelessRadioStatus::mcasttxframe},
                                                            {"failed", &_tagWirelessRadioStatus::failed},
                                                            {"retry", &_tagWirelessRadioStatus::retry},
                                                            {"multiretry", &_tagWirelessRadioStatus::multiretry},
                                                            {"framedup", &_tagWirelessRadioStatus::framedup},
                                                            {"rtssuccess", &_tagWirelessRadioStatus::rtssuccess},
                                                            {"rtsfailure", &_tagWirelessRadioStatus::rtsfailure},
                                                            {"ackfailure", &_tagWirelessRadioStatus::ackfailure},
                                                            {"rxfrag", &_tagWirelessRadioStatus::rxfrag},
                                                            {"mcastrxframe", &_tagWirelessRadioStatus::mcastrxframe},
                                                            {"fcserror", &_tagWirelessRadioStatus::fcserror},
                                                            {"txframe", &_tagWirelessRadioStatus::txframe},
                                                            {"tx_success", &_tagWirelessRadioStatus::tx_success},
                                                            {"tx_retry", &_tagWirelessRadioStatus::tx_retry},
                                                            {"rx_success", &_tagWirelessRadioStatus::rx_success},
                                                            {"rx_duplicate", &_tagWirelessRadioStatus::rx_duplicate},
                                                            {"rts_success", &_tagWirelessRadioStatus::rts_success}};

// ---- The link ----

/// A record with a value in every field that no test writes; the codes have bits that no word has.
_tagWirelessStatus preset() {
    return {-1, "preset", -2, -3, -4, -5, 0x100, 0x200, -6, {-7, -8, -9, -10, -11}, {-12, -13, -14, -15, -16}, -17};
}

bool read(const std::string& reply, _tagWirelessStatus& status) {
    const std::wstring text = wide(reply);
    return KVJStatusParser().ParseWirelessStatusXML(*text.c_str(), static_cast<int>(text.size()), status);
}

/// Reads a reply with these children of its root.
bool readChildren(const std::string& children, _tagWirelessStatus& status) {
    return read(element("get_wireless_status", children), status);
}

TEST(WirelessStatus, FillsEveryFieldFromOneReply) {
    _tagWirelessStatus status = preset();
    status.security = 0;
    status.crypto = 0;
    EXPECT_TRUE(
        readChildren("<state>associated</state><ssid>cards</ssid><channel>11</channel><rssi>-61</rssi><snr>28</snr>"
                     "<nf>-89</nf><security>WPA2</security><crypto>CCMP</crypto><rate>54</rate>"
                     "<in><octets>1</octets><upkts>2</upkts><nupkts>3</nupkts><discards>4</discards>"
                     "<errors>5</errors></in>"
                     "<out><octets>6</octets><upkts>7</upkts><nupkts>8</nupkts><discards>9</discards>"
                     "<errors>10</errors></out><link_lost>12</link_lost>",
                     status));
    expectEqual(status, {5, "cards", 11, -61, 28, -89, 4, 3, 54, {1, 2, 3, 4, 5}, {6, 7, 8, 9, 10}, 12});
}

TEST(WirelessStatus, ReadsTheChildrenInAnyOrder) {
    _tagWirelessStatus status = preset();
    EXPECT_TRUE(
        readChildren("<link_lost>1</link_lost><out><errors>2</errors><octets>3</octets></out><crypto>RC4</crypto>"
                     "<ssid>x</ssid><in><upkts>4</upkts></in><state>off</state>",
                     status));
    expectEqual(status, {0, "x", -2, -3, -4, -5, 0x100, 0x201, -6, {-7, 4, -9, -10, -11}, {3, -13, -14, -15, 2}, 1});
}

TEST(WirelessStatus, EachNumberIsDecimalAndFillsItsOwnField) {
    for (const auto& number : linkNumbers) {
        _tagWirelessStatus expected = preset();
        _tagWirelessStatus status = preset();
        EXPECT_TRUE(readChildren(element(number.name, "-70000"), status)) << number.name;
        expected.*number.field = -70000;
        expectEqual(status, expected);
        EXPECT_TRUE(readChildren(element(number.name, "010"), status)) << number.name;
        expected.*number.field = 10;
        expectEqual(status, expected);
        EXPECT_TRUE(readChildren(element(number.name, "0x1f"), status)) << number.name;
        expected.*number.field = 0;
        expectEqual(status, expected);
    }
}

TEST(WirelessStatus, TheResultIsThatOfTheLastKnownElement) {
    _tagWirelessStatus status = preset();
    EXPECT_FALSE(readChildren("<channel>1</channel><rate/>", status));
    EXPECT_TRUE(readChildren("<rate/><channel>2</channel>", status));
    EXPECT_TRUE(readChildren("<channel>3</channel><serial/>", status));
    EXPECT_FALSE(readChildren("<channel/><serial>1</serial>", status));
    EXPECT_FALSE(readChildren("<rate>1</rate><state/>", status));
    EXPECT_FALSE(readChildren("<rate>1</rate><in><octets/></in>", status));
    EXPECT_TRUE(readChildren("<in/><rate>1</rate>", status));
    EXPECT_EQ(status.channel, 3);
    EXPECT_EQ(status.state, -1);
}

TEST(WirelessStatus, StateConnectedIs7AndWithACapitalOff) {
    _tagWirelessStatus status = preset();
    EXPECT_TRUE(readChildren("<state>connected</state>", status));
    EXPECT_EQ(status.state, 7);
    EXPECT_TRUE(readChildren("<state>Connected</state>", status));
    EXPECT_EQ(status.state, 0);
}

TEST(WirelessStatus, AStateLongerThanAnyIsOff) {
    _tagWirelessStatus status = preset();
    EXPECT_TRUE(readChildren(element("state", std::string(100000, 's')), status));
    _tagWirelessStatus expected = preset();
    expected.state = 0;
    expectEqual(status, expected);
}

TEST(WirelessStatus, SecurityAndCryptoAreCombinedWithWhatIsThere) {
    _tagWirelessStatus status = preset();
    EXPECT_TRUE(readChildren("<security>wpa</security><crypto>tkip</crypto>", status));
    EXPECT_TRUE(readChildren("<security>WPA2</security><crypto>RC4</crypto>", status));
    _tagWirelessStatus expected = preset();
    expected.security = 0x107;
    expected.crypto = 0x203;
    expectEqual(status, expected);
}

TEST(WirelessStatus, TwoSecurityElementsInOneReplyAreCombined) {
    _tagWirelessStatus status{};
    EXPECT_TRUE(readChildren("<security>wep</security><security>wpa2</security>", status));
    EXPECT_EQ(status.security, 5U);
}

TEST(WirelessStatus, SecurityWpaReadTwiceIs3) {
    _tagWirelessStatus status{};
    EXPECT_TRUE(readChildren("<security>WPA</security>", status));
    EXPECT_TRUE(readChildren("<security>WPA</security>", status));
    EXPECT_EQ(status.security, 3U);
}

TEST(WirelessStatus, SecurityWpaAfterWep104Is3) {
    _tagWirelessStatus status{};
    EXPECT_TRUE(readChildren("<security>wep104</security>", status));
    EXPECT_TRUE(readChildren("<security>WPA</security>", status));
    EXPECT_EQ(status.security, 3U);
}

TEST(WirelessStatus, CryptoTkipCcmpIs4AndInMixedCaseAddsNothing) {
    _tagWirelessStatus status{};
    EXPECT_TRUE(readChildren("<crypto>TKIP_CCMP</crypto>", status));
    EXPECT_EQ(status.crypto, 4U);
    status = preset();
    EXPECT_TRUE(readChildren("<crypto>tkip_CCMP</crypto>", status));
    expectEqual(status, preset());
}

TEST(WirelessStatus, AnUnknownSecurityOrCipherAddsNothingAndIsTrue) {
    _tagWirelessStatus status = preset();
    EXPECT_TRUE(readChildren("<security>WPA3</security>", status));
    EXPECT_TRUE(readChildren("<crypto>AES</crypto>", status));
    expectEqual(status, preset());
}

TEST(WirelessStatus, EachPacketCountFillsItsOwnFieldOfItsDirection) {
    for (const auto& number : packetNumbers) {
        _tagWirelessStatus status = preset();
        EXPECT_TRUE(readChildren(element("in", element(number.name, "70000")), status)) << number.name;
        _tagWirelessStatus expected = preset();
        expected.in.*number.field = 70000;
        expectEqual(status, expected);
        EXPECT_TRUE(readChildren(element("out", element(number.name, "-1")), status)) << number.name;
        expected.out.*number.field = -1;
        expectEqual(status, expected);
    }
}

// ---- The radio ----

_tagWirelessRadioStatus presetRadio() {
    return {-1, -2, -3, -4, -5, -6, -7, -8, -9, -10, -11, -12, -13, -14, -15, -16, -17};
}

bool read(const std::string& reply, _tagWirelessRadioStatus& status) {
    const std::wstring text = wide(reply);
    return KVJStatusParser().ParseWirlessRadioXML(*text.c_str(), static_cast<int>(text.size()), status);
}

/// Reads a reply with these children of its root.
bool readChildren(const std::string& children, _tagWirelessRadioStatus& status) {
    return read(element("get_wireless_radio_status", children), status);
}

TEST(WirelessRadioStatus, FillsEveryFieldFromOneReply) {
    _tagWirelessRadioStatus status = presetRadio();
    EXPECT_TRUE(
        readChildren("<mcasttxframe>1</mcasttxframe><failed>2</failed><retry>3</retry><multiretry>4</multiretry>"
                     "<framedup>5</framedup><rtssuccess>6</rtssuccess><rtsfailure>7</rtsfailure>"
                     "<ackfailure>8</ackfailure><rxfrag>9</rxfrag><mcastrxframe>10</mcastrxframe>"
                     "<fcserror>11</fcserror><txframe>12</txframe><tx_success>13</tx_success><tx_retry>14</tx_retry>"
                     "<rx_success>15</rx_success><rx_duplicate>16</rx_duplicate><rts_success>17</rts_success>",
                     status));
    expectEqual(status, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17});
}

TEST(WirelessRadioStatus, EachCounterIsDecimalAndFillsItsOwnField) {
    for (const auto& number : radioNumbers) {
        _tagWirelessRadioStatus status = presetRadio();
        EXPECT_TRUE(readChildren(element(number.name, "70000"), status)) << number.name;
        _tagWirelessRadioStatus expected = presetRadio();
        expected.*number.field = 70000;
        expectEqual(status, expected);
    }
}

TEST(WirelessRadioStatus, ReadsTheChildrenInAnyOrder) {
    _tagWirelessRadioStatus status = presetRadio();
    EXPECT_TRUE(
        readChildren("<rts_success>1</rts_success><rtssuccess>2</rtssuccess><mcasttxframe>3</mcasttxframe>", status));
    _tagWirelessRadioStatus expected = presetRadio();
    expected.rts_success = 1;
    expected.rtssuccess = 2;
    expected.mcasttxframe = 3;
    expectEqual(status, expected);
}

TEST(WirelessRadioStatus, TheResultIsThatOfTheLastKnownElementAndTheLaterValueWins) {
    _tagWirelessRadioStatus status = presetRadio();
    EXPECT_FALSE(readChildren("<retry>1</retry><failed/>", status));
    EXPECT_TRUE(readChildren("<failed/><retry>2</retry><retry>3</retry><serial/>", status));
    EXPECT_FALSE(readChildren("<failed/><serial>1</serial>", status));
    _tagWirelessRadioStatus expected = presetRadio();
    expected.retry = 3;
    expectEqual(status, expected);
}

// ---- Walkers ----

TEST(WirelessWalkers, ReadElementsThatTheHostHolds) {
    KVJStatusParser parser;
    _tagWirelessStatus status = preset();
    Xml link("<any><state>handshake</state></any>");
    EXPECT_TRUE(parser.parseWirelessStatus(link.root(), status));
    Xml packets("<any><discards>4</discards><upkts>2</upkts></any>");
    EXPECT_TRUE(parser.ParsePacketsInfo(packets.root(), status.out));
    _tagWirelessStatus expected = preset();
    expected.state = 6;
    expected.out.discards = 4;
    expected.out.upkts = 2;
    expectEqual(status, expected);
    _tagWirelessRadioStatus radio = presetRadio();
    Xml counters("<any><fcserror>5</fcserror></any>");
    EXPECT_TRUE(parser.parseWirelessRadioStatus(counters.root(), radio));
    _tagWirelessRadioStatus expectedRadio = presetRadio();
    expectedRadio.fcserror = 5;
    expectEqual(radio, expectedRadio);
}

TEST(WirelessWalkers, AreFalseForNoElementAndForOneWithoutChildren) {
    KVJStatusParser parser;
    _tagWirelessStatus status = preset();
    _tagWirelessRadioStatus radio = presetRadio();
    Xml empty("<any>text</any>");
    for (TiXmlElement* none : {static_cast<TiXmlElement*>(nullptr), empty.root()}) {
        EXPECT_FALSE(parser.parseWirelessStatus(none, status));
        EXPECT_FALSE(parser.ParsePacketsInfo(none, status.in));
        EXPECT_FALSE(parser.parseWirelessRadioStatus(none, radio));
    }
    expectEqual(status, preset());
    expectEqual(radio, presetRadio());
}

}  // namespace

}  // namespace wireless_status_test
