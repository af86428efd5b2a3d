/// @file status/wireless.h
/// The wireless link, its radio and the access points, element by element.
#ifndef KVJXML_STATUS_WIRELESS_H
#define KVJXML_STATUS_WIRELESS_H

#include "StatusRecords.h"
#include "foundation/read_rules.h"
#include "foundation/rows.h"
#include "foundation/words.h"

namespace kvj::status {

using namespace Kavrin;  // the records

/// An unknown state counts as off.
inline constexpr WordTable wirelessStates{0,
                                          {{"off", 0},
                                           {"disconnected", 1},
                                           {"inactive", 2},
                                           {"scanning", 3},
                                           {"associating", 4},
                                           {"associated", 5},
                                           {"handshake", 6},
                                           {"connected", 7}}};

/// Only these spellings are known, all in capitals or all in small letters.
inline constexpr WordTable securityWords({{"open", 0},
                                          {"none", 0},
                                          {"WEP", 1},
                                          {"wep", 1},
                                          {"WEP40", 1},
                                          {"wep40", 1},
                                          {"WEP104", 2},
                                          {"wep104", 2},
                                          {"WPA_WPA2", 5},
                                          {"WPA2_WPA", 5},
                                          {"wpa_wpa2", 5},
                                          {"wpa2_wpa", 5},
                                          {"WPA", 3},
                                          {"wpa", 3},
                                          {"WPA2", 4},
                                          {"wpa2", 4}});

inline constexpr WordTable cipherWords({{"none", 0},
                                        {"RC4", 1},
                                        {"rc4", 1},
                                        {"TKIP", 2},
                                        {"tkip", 2},
                                        {"CCMP", 3},
                                        {"ccmp", 3},
                                        {"TKIP_CCMP", 4},
                                        {"CCMP_TKIP", 4},
                                        {"tkip_ccmp", 4},
                                        {"ccmp_tkip", 4}});

/// ORs the code of an element's word into `codes`; an unknown word adds nothing. Hosts read a reply a second time into
/// the same record to combine the codes, so nothing is cleared.
inline bool combine(Element element, unsigned int& codes, Words table) {
    const char* content = element.text();
    if (content != nullptr) codes |= static_cast<unsigned int>(codeOf(table, content).value_or(0));
    return content != nullptr;
}

template <auto Member, const auto& Table>
inline constexpr ReadRule<RecordOf<Member>> combined{
    {.field = fieldOf<Member>, .kind = Kind::combinedCodes, .words = named<Table>},
    [](Element element, RecordOf<Member>& record) { return combine(element, record.*Member, Table); }};

// clang-format off

/// "in" and "out" in "get_wireless_status"
inline constexpr auto packets = rows<_tagPackets>({
    {"octets",   number<&_tagPackets::octets>},
    {"upkts",    number<&_tagPackets::upkts>},
    {"nupkts",   number<&_tagPackets::nupkts>},
    {"discards", number<&_tagPackets::discards>},
    {"errors",   number<&_tagPackets::errors>},
});

/// "get_wireless_status"
inline constexpr auto wirelessStatus = rows<_tagWirelessStatus>({
    {"state",     word<&_tagWirelessStatus::state, wirelessStates>},
    {"ssid",      text<&_tagWirelessStatus::ssid>},
    {"channel",   number<&_tagWirelessStatus::channel>},
    {"rssi",      number<&_tagWirelessStatus::rssi>},
    {"snr",       number<&_tagWirelessStatus::snr>},
    {"nf",        number<&_tagWirelessStatus::nf>},
    {"security",  combined<&_tagWirelessStatus::security, securityWords>},
    {"crypto",    combined<&_tagWirelessStatus::crypto, cipherWords>},
    {"rate",      number<&_tagWirelessStatus::rate>},
    {"in",        part<&_tagWirelessStatus::in, packets>},
    {"out",       part<&_tagWirelessStatus::out, packets>},
    {"link_lost", number<&_tagWirelessStatus::link_lost>},
});

/// "get_wireless_radio_status"
inline constexpr auto wirelessRadioStatus = rows<_tagWirelessRadioStatus>({
    {"mcasttxframe", number<&_tagWirelessRadioStatus::mcasttxframe>},
    {"failed",       number<&_tagWirelessRadioStatus::failed>},
    {"retry",        number<&_tagWirelessRadioStatus::retry>},
    {"multiretry",   number<&_tagWirelessRadioStatus::multiretry>},
    {"framedup",     number<&_tagWirelessRadioStatus::framedup>},
    {"rtssuccess",   number<&_tagWirelessRadioStatus::rtssuccess>},
    {"rtsfailure",   number<&_tagWirelessRadioStatus::rtsfailure>},
    {"ackfailure",   number<&_tagWirelessRadioStatus::ackfailure>},
    {"rxfrag",       number<&_tagWirelessRadioStatus::rxfrag>},
    {"mcastrxframe", number<&_tagWirelessRadioStatus::mcastrxframe>},
    {"fcserror",     number<&_tagWirelessRadioStatus::fcserror>},
    {"txframe",      number<&_tagWirelessRadioStatus::txframe>},
    {"tx_success",   number<&_tagWirelessRadioStatus::tx_success>},
    {"tx_retry",     number<&_tagWirelessRadioStatus::tx_retry>},
    {"rx_success",   number<&_tagWirelessRadioStatus::rx_success>},
    {"rx_duplicate", number<&_tagWirelessRadioStatus::rx_duplicate>},
    {"rts_success",  number<&_tagWirelessRadioStatus::rts_success>},
});

/// "AccessPoint" in "AccessPoints"
inline constexpr auto accessPoint = rows<_tagAccessPoint>({
    {"SSID",           text<&_tagAccessPoint::SSID>},
    {"BSSID",          hardwareAddress<&_tagAccessPoint::BSSID>},
    {"Selected",       is<&_tagAccessPoint::Selected, "true", WithoutText::isKept>},
    {"Channel",        number<&_tagAccessPoint::Channel>},
    {"Privacy",        number<&_tagAccessPoint::Privacy>},
    {"SignalStrength", number<&_tagAccessPoint::SignalStrength>},
    {"Infrastructure", is<&_tagAccessPoint::Infrastructure, "true", WithoutText::isKept>},
    {"Security",       combined<&_tagAccessPoint::Security, securityWords>},
    {"Encryption",     combined<&_tagAccessPoint::Encryption, cipherWords>},
    {"MaxDataRate",    number<&_tagAccessPoint::MaxDataRate>},
});

/// "AccessPoints"
inline constexpr auto accessPoints = rows<List<_tagAccessPoint>>({
    {"AccessPoint", entry<accessPoint>},
});

// clang-format on

}  // namespace kvj::status

#endif
