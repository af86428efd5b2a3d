/// @file configuration/network.h
/// How a printer is set up on its networks, element by element, as it is read and as it is written.
#ifndef KVJXML_CONFIGURATION_NETWORK_H
#define KVJXML_CONFIGURATION_NETWORK_H

#include "ConfigurationRecords.h"
#include "foundation/read_rules.h"
#include "foundation/words.h"
#include "foundation/write_rules.h"

namespace kvj::configuration {

using namespace Kavrin;  // the records

/// Both directions; of the words of a code the first is written.
inline constexpr WordTable securityWords({{"none", wirelessOpen},
                                          {"open", wirelessOpen},
                                          {"wep40", wirelessWep40},
                                          {"WEP40", wirelessWep40},
                                          {"wep104", wirelessWep104},
                                          {"WEP104", wirelessWep104},
                                          {"wpa_wpa2", wirelessWpaWpa2},
                                          {"wpa2_wpa", wirelessWpaWpa2},
                                          {"WPA_WPA2", wirelessWpaWpa2},
                                          {"WPA2_WPA", wirelessWpaWpa2},
                                          {"wpa", wirelessWpa},
                                          {"WPA", wirelessWpa},
                                          {"wpa2", wirelessWpa2},
                                          {"WPA2", wirelessWpa2}});

/// Both directions; of the words of a code the first is written. A mixed network counts as the stronger one.
inline constexpr WordTable cryptoWords({{"none", wirelessCryptoNone},
                                        {"RC4", wirelessCryptoRc4},
                                        {"rc4", wirelessCryptoRc4},
                                        {"TKIP", wirelessCryptoTkip},
                                        {"tkip", wirelessCryptoTkip},
                                        {"CCMP", wirelessCryptoCcmp},
                                        {"ccmp", wirelessCryptoCcmp},
                                        {"CCMP_TKIP", wirelessCryptoCcmp},
                                        {"TKIP_CCMP", wirelessCryptoCcmp},
                                        {"ccmp_tkip", wirelessCryptoCcmp},
                                        {"tkip_ccmp", wirelessCryptoCcmp}});

/// A word of a wireless network; an unknown one leaves the value alone and counts as read. Without text, or with an
/// empty one, nothing was read.
template <class Value>
bool readWirelessWord(Element element, Value& value, const Words& table) {
    const char* content = element.text();
    return content != nullptr && *content != '\0' && readWord(element, value, table);
}

template <auto Member, const auto& Table>
inline constexpr ReadRule<RecordOf<Member>> wirelessWord{
    word<Member, Table>.description,
    [](Element element, RecordOf<Member>& record) { return readWirelessWord(element, record.*Member, Table); }};

/// Without text, or with an empty one, the address is 0; a null element leaves it alone.
inline bool readIpAddress(Element element, unsigned long& address) {
    const char* content = element.text();
    const bool isThere = content != nullptr && *content != '\0';
    if (element) address = isThere ? convert::toIpAddress(content) : 0;
    return isThere;
}

template <auto Member>
inline constexpr ReadRule<RecordOf<Member>> ipAddress{
    {.field = fieldOf<Member>, .kind = Kind::ipAddress, .withoutText = WithoutText::isZero},
    [](Element element, RecordOf<Member>& record) { return readIpAddress(element, record.*Member); }};

/// The printer keeps the addresses that are not written.
inline constexpr SelectionCondition withAddresses("unless addresses are left out", [](const Selection& selection) {
    return !selection.withoutAddresses;
});

// clang-format off

/// "ethernet"
inline constexpr auto network = rows<_NetworkParams>({
    {"ip_address",  ipAddress<&_NetworkParams::ipAddress>},
    {"subnet_mask", ipAddress<&_NetworkParams::subnetMask>},
    {"gateway",     ipAddress<&_NetworkParams::gateway>},
    {"dhcp",        flag<&_NetworkParams::dhcp>},
    {"snmp",        flag<&_NetworkParams::snmp>},
});
inline constexpr auto networkTags = tags<_NetworkParams>({
    {"ip_address",  put::ipAddress<&_NetworkParams::ipAddress>, withAddresses},
    {"gateway",     put::ipAddress<&_NetworkParams::gateway>, withAddresses},
    {"subnet_mask", put::ipAddress<&_NetworkParams::subnetMask>, withAddresses},
    {"dhcp",        put::enabledOrNot<&_NetworkParams::dhcp>},
    {"snmp",        put::enabledOrNot<&_NetworkParams::snmp>, withAddresses},
});

/// "wireless". The printer has its own country and takes none.
inline constexpr auto wireless = rows<_WirelessParams>({
    {"ip_address",  ipAddress<&_WirelessParams::ipAddress>},
    {"subnet_mask", ipAddress<&_WirelessParams::subnetMask>},
    {"gateway",     ipAddress<&_WirelessParams::gateway>},
    {"dhcp",        flag<&_WirelessParams::dhcp>},
    {"snmp",        flag<&_WirelessParams::snmp>},
    {"radio",       flag<&_WirelessParams::radio>},
    {"security",    wirelessWord<&_WirelessParams::security, securityWords>},
    {"crypto",      wirelessWord<&_WirelessParams::crypto, cryptoWords>},
    {"ssid",        text<&_WirelessParams::ssid>},
    {"bssid",       hardwareAddress<&_WirelessParams::bssid>},
    {"key",         text<&_WirelessParams::key>},
    {"channel",     number<&_WirelessParams::channel>},
    {"country",     text<&_WirelessParams::country>},
});
inline constexpr auto wirelessTags = tags<_WirelessParams>({
    {"ip_address",  put::ipAddress<&_WirelessParams::ipAddress>},
    {"gateway",     put::ipAddress<&_WirelessParams::gateway>},
    {"subnet_mask", put::ipAddress<&_WirelessParams::subnetMask>},
    {"dhcp",        put::enabledOrNot<&_WirelessParams::dhcp>},
    {"snmp",        put::enabledOrNot<&_WirelessParams::snmp>},
    {"radio",       put::enabledOrNot<&_WirelessParams::radio>},
    {"security",    put::word<&_WirelessParams::security, securityWords>},
    {"crypto",      put::word<&_WirelessParams::crypto, cryptoWords>},
    {"ssid",        put::text<&_WirelessParams::ssid>},
    {"bssid",       put::hardwareAddress<&_WirelessParams::bssid>},
    {"channel",     put::number<&_WirelessParams::channel>},
    {"key",         put::text<&_WirelessParams::key>},
});

// clang-format on

}  // namespace kvj::configuration

#endif
