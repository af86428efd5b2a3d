/// @file by_hand.h
/// The library's job as a good programmer writes it for one message and one parser: loops over child elements, chains
/// of names in the order of the message, conversions of the standard library that no locale changes. No tables, no
/// rows.
///
/// It is written once for all parsers. A parser's `Element` is a pointer in all but name, and everything here is
/// inlined:
///
///     explicit operator bool();  std::string_view name();
///     const char* text();                 // empty when there is none
///     const char* attribute(const char*); // null when there is none
///     Element first(); Element next();    // child element, next sibling
#ifndef KVJXML_BENCH_BY_HAND_H
#define KVJXML_BENCH_BY_HAND_H

#include <CapabilitiesRecords.h>
#include <ConfigurationRecords.h>
#include <MediaRecords.h>
#include <StatusRecords.h>
#include <arpa/inet.h>

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <memory>
#include <string_view>

namespace kvj::bench::by_hand {

using namespace Kavrin;  // the records

// ---- Words ----

struct Word {
    std::string_view word;
    int code;
};

/// The code of a word; `other` when it is not in the table.
template <std::size_t N>
int codeOf(const Word (&table)[N], std::string_view word, int other) {
    for (const Word& row : table) {
        if (row.word == word) return row.code;
    }
    return other;
}

inline constexpr Word printerStates[] = {{"initializing", 1},
                                         {"idle", 2},
                                         {"xfer_rollers_heating", 3},
                                         {"printing_heating", 3},
                                         {"standby", 4},
                                         {"printing", 5},
                                         {"alarm_handling", 6},
                                         {"offline", 7},
                                         {"canceling", 8},
                                         {"mag_ops", 10},
                                         {"temp_out_of_range", 9},
                                         {"contact_ops", 11},
                                         {"contactless_ops", 12},
                                         {"job_data", 14},
                                         {"config_data", 13},
                                         {"diagnostic_mode", 15},
                                         {"xfer_rollers_cooling", 16},
                                         {"insert_card", 17},
                                         {"printing_cooling", 16},
                                         {"laminating_cooling", 16},
                                         {"laminating", 18},
                                         {"card_ready", 35},
                                         {"laminating_heating", 19},
                                         {"cleaning", 26}};
inline constexpr Word laminatorStates[] = {{"uninitialized", 1}, {"initializing", 2}, {"ready", 3},
                                           {"standby", 4},       {"laminating", 5},   {"not_ready", 6},
                                           {"not_used", 7},      {"init_error", 8},   {"comm_error", 9},
                                           {"fault_error", 10},  {"door_open", 11}};
inline constexpr Word portTypes[] = {
    {"usb_2_0", 0}, {"serial", 1}, {"ethernet_10_100", 2}, {"ethernet_10_100_1G", 3}, {"wifi_enet_802_11g", 4}};
inline constexpr Word protocols[] = {{"snmp", 0}, {"snmp_trap", 1}, {"http", 2}, {"kavrin", 3}};
inline constexpr Word transports[] = {{"udp", 0}, {"tcp", 1}, {"usb", 2}, {"usb_2_0", 3}};
inline constexpr Word encryptionAlgorithms[] = {{"aes", 1}, {"3des", 2}};
inline constexpr Word graphicFormats[] = {{"bmp", 1}, {"jpeg", 2}, {"tga", 8}, {"tiff", 9}, {"raw", 10}};
inline constexpr Word fontStyles[] = {{"regular", 1}, {"bold", 2}, {"italic", 3}};
inline constexpr Word magHeadTypes[] = {{"none", 0},   {"iso", 1},    {"aamva", 2},
                                        {"custom", 3}, {"binary", 4}, {"jis", 5}};
inline constexpr Word magStripeLocations[] = {{"back", 0}, {"front", 1}};
inline constexpr Word printSystems[] = {{"direct", 0}, {"retransfer", 1}};
inline constexpr Word laminationTypes[] = {{"2_side", 2}, {"1_side", 1}};
inline constexpr Word sharpeningLevels[] = {{"off", 0x1}, {"normal", 0x2}, {"high", 0x4}, {"low", 0x8}};
inline constexpr Word channels[] = {{"serial", 1}, {"usb", 2}};
inline constexpr Word contactlessEncoders[] = {{"mifare", 1}, {"felica", 2}, {"uhf", 3}, {"hf", 4}, {"lf", 5}};
inline constexpr Word coercivities[] = {{"low", 1}, {"high", 2}};
inline constexpr Word securityWords[] = {
    {"none", wirelessOpen},        {"open", wirelessOpen},        {"wep40", wirelessWep40},
    {"WEP40", wirelessWep40},      {"wep104", wirelessWep104},    {"WEP104", wirelessWep104},
    {"wpa_wpa2", wirelessWpaWpa2}, {"wpa2_wpa", wirelessWpaWpa2}, {"WPA_WPA2", wirelessWpaWpa2},
    {"WPA2_WPA", wirelessWpaWpa2}, {"wpa", wirelessWpa},          {"WPA", wirelessWpa},
    {"wpa2", wirelessWpa2},        {"WPA2", wirelessWpa2}};
inline constexpr Word cryptoWords[] = {
    {"none", wirelessCryptoNone},      {"RC4", wirelessCryptoRc4},        {"rc4", wirelessCryptoRc4},
    {"TKIP", wirelessCryptoTkip},      {"tkip", wirelessCryptoTkip},      {"CCMP", wirelessCryptoCcmp},
    {"ccmp", wirelessCryptoCcmp},      {"CCMP_TKIP", wirelessCryptoCcmp}, {"TKIP_CCMP", wirelessCryptoCcmp},
    {"ccmp_tkip", wirelessCryptoCcmp}, {"tkip_ccmp", wirelessCryptoCcmp}};
inline constexpr Word errorControls[] = {{"none", errorControlNone}, {"med", errorControlMedium}};
inline constexpr Word feederModes[] = {{"manual", 0}, {"hopper", 1}, {"alreadyinprinter", 2}, {"auto", 3}};
inline constexpr Word usbSpeeds[] = {{"full", usbSpeedFull}, {"high", usbSpeedHigh}};
inline constexpr Word transferTypes[] = {{"single", 1}, {"dual", 2}};
inline constexpr Word laminatorWidths[] = {{"full", 0}, {"mag", 1}, {"signature", 2}};
inline constexpr Word laminatorRegistrations[] = {{"none", 0}, {"hologram", 1}, {"contact", 2}};

// ---- Values ----

inline bool isTrue(std::string_view word) { return word == "enabled" || word == "yes"; }

/// Where a number begins: std::from_chars takes neither blanks nor a plus sign before one.
inline const char* skipBlanks(const char* text) {
    while (*text == ' ' || (*text >= '\t' && *text <= '\r')) ++text;
    return *text == '+' ? text + 1 : text;
}

/// Leaves the value alone when the text is no number.
inline void toNumber(const char* text, int& value) {
    text = skipBlanks(text);
    long number = 0;
    if (std::from_chars(text, text + std::strlen(text), number).ptr != text) value = static_cast<int>(number);
}
/// A counter of 16 bits in a wider field.
inline void toNumber(const char* text, unsigned long& value) {
    auto number = static_cast<int>(value);
    toNumber(text, number);
    value = static_cast<unsigned short>(number);
}
inline void toNumber(const char* text, float& value) {
    text = skipBlanks(text);
    double number = 0;
    if (std::from_chars(text, text + std::strlen(text), number).ptr != text) value = static_cast<float>(number);
}

inline void get(auto element, int& value) { toNumber(element.text(), value); }
inline void get(auto element, unsigned long& value) { toNumber(element.text(), value); }
inline void get(auto element, float& value) { toNumber(element.text(), value); }
inline void get(auto element, bool& value) { value = isTrue(element.text()); }
template <std::size_t N>
void get(auto element, char (&text)[N]) {
    const std::string_view content = element.text();
    text[content.copy(text, N - 1)] = '\0';
}
template <class Value, std::size_t N>
void get(auto element, Value& value, const Word (&table)[N], int other) {
    value = static_cast<Value>(codeOf(table, element.text(), other));
}
/// An unknown word leaves the value alone.
template <class Value, std::size_t N>
void get(auto element, Value& value, const Word (&table)[N]) {
    get(element, value, table, value);
}

template <class Setting>
void getSetting(auto element, Setting& setting) {
    if (const char* min = element.attribute("min"); min != nullptr) toNumber(min, setting.min);
    if (const char* max = element.attribute("max"); max != nullptr) toNumber(max, setting.max);
    get(element, setting.value);
    if (setting.value < setting.min) setting.value = setting.min;
    if (setting.value > setting.max) setting.value = setting.max;
}
inline void get(auto element, _MinMaxVal& setting) { getSetting(element, setting); }
inline void get(auto element, _MinMaxValFloat& setting) { getSetting(element, setting); }

inline void getBits(auto element, unsigned int& bits) {
    const std::string_view text = element.text();
    if (text.starts_with("0x")) std::from_chars(text.data() + 2, text.data() + text.size(), bits, 16);
}

inline void getAddress(auto element, unsigned long& address) {
    const char* text = element.text();
    address = *text == '\0' ? 0 : inet_addr(text);
}

inline void getHardwareAddress(auto element, unsigned char (&address)[6]) {
    const std::string_view text = element.text();
    const char* at = text.data();
    const char* end = at + text.size();
    for (unsigned char& byte : address) {
        const char* behind = std::from_chars(at, end, byte, 16).ptr;
        if (behind == at) return;
        at = behind == end ? end : behind + 1;
    }
}

template <class Element>
int countChildren(Element element) {
    int count = 0;
    for (Element child = element.first(); child; child = child.next()) ++count;
    return count;
}

// clang-format off

// ---- General status ----

template <class Element>
void readStatus(Element root, KVGeneralStatus& status) {
    for (Element child = root.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "printer_state") get(child, status.printerState, printerStates, 38);
        else if (name == "alarms") getBits(child, status.alarms);
        else if (name == "error") get(child, status.error);
        else if (name == "warning") get(child, status.warning);
        else if (name == "printer_lock") status.printerLock = std::string_view(child.text()) == "locked";
        else if (name == "num_jobs_receiving_or_pending") get(child, status.jobsReceivingOrPending);
        else if (name == "num_jobs_inprogress") get(child, status.jobsInProgress);
        else if (name == "num_jobs_done_ok") get(child, status.jobsDoneOk);
        else if (name == "num_jobs_done_error") get(child, status.jobsDoneError);
        else if (name == "num_jobs_total") get(child, status.jobsTotal);
        else if (name == "action_id_next") get(child, status.actionIdNext);
        else if (name == "laminator_state") get(child, status.laminatorState, laminatorStates, 0);
        else if (name == "param_chg_counter") get(child, status.paramChangeCounter);
    }
}

// ---- Capabilities ----

template <class Element>
void read(Element element, _PortCaps& port) {
    for (Element child = element.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "port_id") get(child, port.portId);
        else if (name == "type") get(child, port.portType, portTypes, -1);
    }
}

template <class Element>
void read(Element element, _InterfaceCaps& interface) {
    for (Element child = element.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "protocol") get(child, interface.protocol, protocols, -1);
        else if (name == "transport") get(child, interface.transport, transports, -1);
        else if (name == "port") get(child, interface.port);
    }
}

template <class Element>
void read(Element element, _OCPLanguageCaps& language) {
    for (Element child = element.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "type") get(child, language.type);
        else if (name == "name") get(child, language.name);
    }
}

template <class Element>
void read(Element element, _FontCaps& font) {
    for (Element child = element.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "name") get(child, font.name);
        else if (name == "scalable") get(child, font.scalable);
        else if (name == "style") get(child, font.style, fontStyles, 0);
    }
}

template <class Element>
void read(Element element, _TemplateCaps& stored) {
    for (Element child = element.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "name") get(child, stored.name);
        else if (name == "location") get(child, stored.location);
    }
}

template <class Element>
void read(Element element, _BarCodeCaps& barCode) { get(element, barCode.name); }

template <class Element>
void read(Element element, int& graphicFormat) { get(element, graphicFormat, graphicFormats, -1); }

/// A list into an array of `passed` entries; when that is too small, only the number that is needed.
template <class Element, class Entry>
void readList(Element section, std::string_view entryName, int& count, int passed, Entry* entries) {
    const int needed = countChildren(section);
    if (passed < needed || (entries == nullptr && needed > 0)) {
        count = needed;
        return;
    }
    for (Element child = section.first(); child; child = child.next()) {
        if (child.name() == entryName) read(child, *entries++);
    }
}

template <class Element>
void readSharpening(Element section, _Capabilities& caps) {
    for (Element child = section.first(); child; child = child.next()) {
        if (child.name() == "image_sharpening_level") {
            caps.imageSharpeningLevels |= codeOf(sharpeningLevels, child.text(), 0);
        }
    }
}

template <class Element>
void read(Element section, _SecurityCaps& security) {
    for (Element child = section.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "passkey_protection") get(child, security.passkeyProtection);
        else if (name == "encryption_algorithm") get(child, security.encryptionAlgorithm, encryptionAlgorithms, -1);
    }
}

template <class Element>
void readMemory(Element section, _Capabilities& caps) {
    for (Element child = section.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "ram") get(child, caps.ramSize);
        else if (name == "flash") get(child, caps.flashSize);
    }
}

template <class Element>
void readMediaPath(Element section, _Capabilities& caps) {
    for (Element child = section.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "atm") get(child, caps.atm);
        else if (name == "magazine_capacity") get(child, caps.magazineCapacity);
    }
}

template <class Element>
void readPage(Element section, int& length, int& width) {
    for (Element child = section.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "length") get(child, length);
        else if (name == "width") get(child, width);
    }
}

template <class Element>
void readImage(Element section, _Capabilities& caps) {
    for (Element child = section.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "logical_page") readPage(child, caps.logicalPageLength, caps.logicalPageWidth);
        else if (name == "physical_page") readPage(child, caps.physicalPageLength, caps.physicalPageWidth);
        else if (name == "print_resolution") get(child, caps.printResolution);
    }
}

/// `second` is the field of a second contactless encoder, which of the two documents only the configuration has.
template <class Element>
void readEncoder(Element section, _InternalEncoderInfo& encoder, int& second) {
    for (Element child = section.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "comms_channel") get(child, encoder.commsChannel, channels, 0);
        else if (name == "contact_encoding") get(child, encoder.contactEncoding);
        else if (name == "contactless_encoder") {
            get(child, encoder.contactlessEncoder == 0 ? encoder.contactlessEncoder : second, contactlessEncoders, 0);
        }
    }
}

template <class Element>
void readCapabilities(Element root, _Capabilities& caps) {
    const _Capabilities passed = caps;
    for (Element child = root.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "host_ports")
            readList(child, "host_port", caps.hostPortCount, passed.hostPortCount, caps.hostPorts);
        else if (name == "device_ports") {
            // All are read into the first entry.
            if (const int needed = countChildren(child); passed.devicePortCount < needed) {
                caps.devicePortCount = needed;
            } else {
                for (Element port = child.first(); port; port = port.next()) {
                    if (port.name() == "device_port") read(port, caps.devicePorts[0]);
                }
            }
        }
        else if (name == "software_interfaces")
            readList(child, "software_interface", caps.swInterfaceCount, passed.swInterfaceCount, caps.swInterfaces);
        else if (name == "ocp_languages")
            readList(child, "ocp_language", caps.ocpLanguageCount, passed.ocpLanguageCount, caps.ocpLanguages);
        else if (name == "image_sharpening_levels") readSharpening(child, caps);
        else if (name == "security") read(child, caps.security);
        else if (name == "memory") readMemory(child, caps);
        else if (name == "graphic_formats")
            readList(child, "graphic_format", caps.graphicFormatCount, passed.graphicFormatCount, caps.graphicFormats);
        else if (name == "fonts") readList(child, "font", caps.fontCount, passed.fontCount, caps.fonts);
        else if (name == "templates")
            readList(child, "template", caps.templateCount, passed.templateCount, caps.templates);
        else if (name == "graphics") readList(child, "graphic", caps.graphicCount, passed.graphicCount, caps.graphics);
        else if (name == "print_system") get(child, caps.printSystem, printSystems, -1);
        else if (name == "print_type") get(child, caps.printType, laminationTypes, 0);
        else if (name == "laminator") caps.laminator = std::string_view(child.text()) == "present";
        else if (name == "laminator_type") get(child, caps.laminatorType, laminationTypes, 0);
        else if (name == "media_path") readMediaPath(child, caps);
        else if (name == "image") readImage(child, caps);
        else if (name == "mag_encoder") get(child, caps.magHeadType, magHeadTypes, -1);
        else if (name == "mag_stripe") get(child, caps.magStripeLocation, magStripeLocations, -1);
        else if (name == "internal_encoder")
            readEncoder(child, caps.internalEncoder, caps.internalEncoder.contactlessEncoder);
        else if (name == "barcodes") readList(child, "barcode", caps.barCodeCount, passed.barCodeCount, caps.barCodes);
    }
}

// ---- Cards, of the configuration and of the catalogue ----

template <class Element, class Card>
void readCardInformation(Element element, Card& card) {
    for (Element child = element.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "type") get(child, card.type);
        else if (name == "vessa_part_number") get(child, card.partNumber);
        else if (name == "description") get(child, card.description);
        else if (name == "thickness") get(child, card.thickness);
        else if (name == "coercivity") get(child, card.coercivity, coercivities, 0);
        else if (name == "mag_stripe") card.magStripe = isTrue(child.text());
        else if (name == "contact_encode") card.contactEncode = isTrue(child.text());
        else if (name == "non_contact_encode") card.nonContactEncode = isTrue(child.text());
    }
}

/// How a setting is read: in the configuration with its range, in the catalogue its value alone.
struct WithRange {
    static void get(auto element, auto& setting) { by_hand::get(element, setting); }
};
struct ValueAlone {
    static void get(auto element, auto& setting) { by_hand::get(element, setting.value); }
};

template <class How, class Element>
void readTransferTemps(Element element, _TransferTempInfo& temps) {
    for (Element child = element.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "top_single") How::get(child, temps.topSingle);
        else if (name == "bot_single") How::get(child, temps.botSingle);
        else if (name == "top_double") How::get(child, temps.topDouble);
        else if (name == "bot_double") How::get(child, temps.botDouble);
    }
}

template <class How, class Element>
void readTransferSpeeds(Element element, _TransferSpeedInfo& speeds) {
    for (Element child = element.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "input_single") How::get(child, speeds.inputSingle);
        else if (name == "output_single") How::get(child, speeds.outputSingle);
        else if (name == "input_double") How::get(child, speeds.inputDouble);
        else if (name == "output_double") How::get(child, speeds.outputDouble);
    }
}

template <class How, class Element>
void readLaminatorAdjustments(Element element, _LaminationAdjustmentsNew& adjustments) {
    for (Element child = element.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "top_temp_adjust") How::get(child, adjustments.topTempAdjust);
        else if (name == "bot_temp_adjust") How::get(child, adjustments.botTempAdjust);
        else if (name == "speed_adjust") How::get(child, adjustments.speedAdjust);
    }
}

template <class How, class Element, class Card>
void readCard(Element element, Card& card, _LaminationAdjustmentsNew& adjustments) {
    for (Element child = element.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "information") readCardInformation(child, card);
        else if (name == "transfer_temps") readTransferTemps<How>(child, card.transferTemps);
        else if (name == "transfer_speeds") readTransferSpeeds<How>(child, card.transferSpeeds);
        else if (name == "laminator_adjustments") readLaminatorAdjustments<How>(child, adjustments);
        else if (name == "cal_table") get(child, card.calTable);
    }
}

// ---- Catalogue ----

template <class Element>
void readCards(Element section, _KVMediaInfo& media) {
    for (Element child = section.first(); child; child = child.next()) {
        if (child.name() != "card") continue;
        auto card = std::make_unique<_CardInfo>();
        readCard<ValueAlone>(child, *card, card->laminationAdjustments);
        media.cards->push_back(card.release());
    }
}

template <class Element>
void readList(Element section, std::string_view entryName, std::vector<_MediaRibbonInfo*>& list) {
    for (Element entry = section.first(); entry; entry = entry.next()) {
        if (entry.name() != entryName) continue;
        auto medium = std::make_unique<_MediaRibbonInfo>();
        for (Element child = entry.first(); child; child = child.next()) {
            const std::string_view name = child.name();
            if (name == "vessa_part_number") get(child, medium->partNumber);
            else if (name == "description") get(child, medium->description);
        }
        list.push_back(medium.release());
    }
}

template <class Element>
void readCatalogue(Element root, _KVMediaInfo& media) {
    for (Element child = root.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "cards") readCards(child, media);
        else if (name == "films") readList(child, "film", *media.films);
        else if (name == "ribbons" || name == "laminates") readList(child, "laminate", *media.laminates);
    }
}

// ---- Configuration ----

template <class Element>
void read(Element element, _NetworkParams& network) {
    for (Element child = element.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "ip_address") getAddress(child, network.ipAddress);
        else if (name == "subnet_mask") getAddress(child, network.subnetMask);
        else if (name == "gateway") getAddress(child, network.gateway);
        else if (name == "dhcp") get(child, network.dhcp);
        else if (name == "snmp") get(child, network.snmp);
    }
}

template <class Element>
void read(Element element, _WirelessParams& network) {
    for (Element child = element.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "ip_address") getAddress(child, network.ipAddress);
        else if (name == "subnet_mask") getAddress(child, network.subnetMask);
        else if (name == "gateway") getAddress(child, network.gateway);
        else if (name == "dhcp") get(child, network.dhcp);
        else if (name == "snmp") get(child, network.snmp);
        else if (name == "radio") get(child, network.radio);
        else if (name == "security") get(child, network.security, securityWords);
        else if (name == "crypto") get(child, network.crypto, cryptoWords);
        else if (name == "ssid") get(child, network.ssid);
        else if (name == "bssid") getHardwareAddress(child, network.bssid);
        else if (name == "key") get(child, network.key);
        else if (name == "channel") get(child, network.channel);
        else if (name == "country") get(child, network.country);
    }
}

template <class Element>
void read(Element element, _USBTimeout& timeout) {
    for (Element child = element.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "read") get(child, timeout.read);
        else if (name == "write") get(child, timeout.write);
    }
}

template <class Element>
void readUsage(Element element, _KVConfiguration& configuration) {
    for (Element child = element.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "num_cards_printed") get(child, configuration.numCardsPrinted);
        else if (name == "num_lines_printed") get(child, configuration.numLinesPrinted);
    }
}

template <class Element>
void read(Element element, _PowerAdjustments& power) {
    for (Element child = element.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "yellow") get(child, power.yellow);
        else if (name == "magenta") get(child, power.magenta);
        else if (name == "cyan") get(child, power.cyan);
        else if (name == "k-resin_front") get(child, power.kResinFront);
        else if (name == "k-resin_back") get(child, power.kResinBack);
        else if (name == "k-dye") get(child, power.kDye);
        else if (name == "overlay") get(child, power.overlay);
        else if (name == "uv_front") get(child, power.uvFront);
        else if (name == "uv_back") get(child, power.uvBack);
        else if (name == "inhibit") get(child, power.inhibit);
        else if (name == "helper") get(child, power.helper);
        else if (name == "x-resin") get(child, power.xResin);
    }
}

template <class Element>
void read(Element element, _ImagingParams& imaging) {
    for (Element child = element.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "printhead_resistance") get(child, imaging.printheadResistance);
        else if (name == "mfg_power_adjustments") read(child, imaging.mfgPowerAdjustments);
        else if (name == "user_power_adjustments") read(child, imaging.userPowerAdjustments);
    }
}

template <class Element>
void read(Element element, _RGBINT& colors) {
    for (Element child = element.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "red") get(child, colors.red);
        else if (name == "green") get(child, colors.green);
        else if (name == "blue") get(child, colors.blue);
    }
}

template <class Element>
void read(Element element, _RibbonMotorParams& motor) {
    for (Element child = element.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "S0") get(child, motor.S0);
        else if (name == "K0") get(child, motor.K0);
        else if (name == "Kb") get(child, motor.Kb);
        else if (name == "Ka") get(child, motor.Ka);
        else if (name == "M0") get(child, motor.M0);
        else if (name == "Mb") get(child, motor.Mb);
        else if (name == "Ma") get(child, motor.Ma);
        else if (name == "VtoI") get(child, motor.VtoI);
    }
}

template <class Element>
void readRibbonMotor(Element element, _RibbonMotorParams& motor) {
    for (Element child = element.first(); child; child = child.next()) {
        if (child.name() == "takeup_motor") read(child, motor);
    }
}

template <class Element>
void read(Element element, _MechanicalAdjustments& mechanics) {
    for (Element child = element.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "film_print_x_offset") get(child, mechanics.filmPrintXOffset);
        else if (name == "film_print_y_offset") get(child, mechanics.filmPrintYOffset);
        else if (name == "film_transfer_start_offset") get(child, mechanics.filmTransferStartOffset);
        else if (name == "card_center_x_offset") get(child, mechanics.cardCenterXOffset);
        else if (name == "card_center_y_offset") get(child, mechanics.cardCenterYOffset);
        else if (name == "card_mag_x_offset") get(child, mechanics.cardMagXOffset);
        else if (name == "card_smart_card_x_offset") get(child, mechanics.cardSmartCardXOffset);
        else if (name == "card_smart_card_lf_x_offset") get(child, mechanics.cardSmartCardLfXOffset);
        else if (name == "card_smart_card_hf_x_offset") get(child, mechanics.cardSmartCardHfXOffset);
        else if (name == "card_smart_card_uhf_x_offset") get(child, mechanics.cardSmartCardUhfXOffset);
        else if (name == "flipper_sensor_offset") get(child, mechanics.flipperSensorOffset);
        else if (name == "card_transfer_start_y_offset") get(child, mechanics.cardTransferStartYOffset);
        else if (name == "card_transfer_end_y_offset") get(child, mechanics.cardTransferEndYOffset);
        else if (name == "card_transfer_roll_y_offset") get(child, mechanics.cardTransferRollYOffset);
        else if (name == "film_end_roll_transfer_offset") get(child, mechanics.filmEndRollTransferOffset);
        else if (name == "film_extra_transfer_takeup_move") get(child, mechanics.filmExtraTransferTakeupMove);
    }
}

/// A name without the word that one-coloured ribbons begin with, and the two lines that hosts watch for.
template <class Element>
void readRibbonName(Element element, char (&description)[64]) {
    char name[32]{};
    get(element, name);
    const char* shown = name;
    if (const char* mono = std::strstr(name, "MONO"); mono != nullptr) shown = name + sizeof "MONO";
    static_cast<void>(std::fprintf(stderr, "DEBUG:RIBBON NAME %s\n", shown));
    static_cast<void>(std::fprintf(stderr, "DEBUG:RIBBON NAME2 %s\n", ""));
    description[std::string_view(shown).copy(description, sizeof description - 1)] = '\0';
}

template <class Element>
void read(Element element, _RibbonInfo& ribbon) {
    for (Element child = element.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "type") get(child, ribbon.type);
        else if (name == "description") readRibbonName(child, ribbon.description);
        else if (name == "oem_country") get(child, ribbon.oemCountry);
        else if (name == "initial_size") get(child, ribbon.initialSize);
        else if (name == "panels_remaining") get(child, ribbon.panelsRemaining);
    }
}

template <class Element>
void readMediaInfo(Element element, _KVConfiguration& configuration) {
    for (Element child = element.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "ribbon") read(child, configuration.ribbon);
        else if (name == "film") read(child, configuration.film);
    }
}

template <class Element>
void readCustomCards(Element section, _KVConfiguration& configuration) {
    for (Element child = section.first(); child; child = child.next()) {
        if (child.name() != "card") continue;
        _CustomCardInfo card{};
        readCard<WithRange>(child, card, card.laminatorAdjustments);
        const bool first = std::string_view(card.description) == "Custom 1";
        (first ? configuration.customCard1 : configuration.customCard2) = card;
    }
}

template <class Element>
void read(Element element, _ImageTransferTempInfo& temps) {
    for (Element child = element.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "top_single") get(child, temps.topSingle);
        else if (name == "bot_single") get(child, temps.botSingle);
        else if (name == "top_double") get(child, temps.topDouble);
        else if (name == "bot_double") get(child, temps.botDouble);
        else if (name == "top_single_offset") get(child, temps.topSingleOffset);
        else if (name == "bot_single_offset") get(child, temps.botSingleOffset);
        else if (name == "top_double_offset") get(child, temps.topDoubleOffset);
        else if (name == "bot_double_offset") get(child, temps.botDoubleOffset);
        else if (name == "top_temp_cal") get(child, temps.topTempCal);
        else if (name == "bot_temp_cal") get(child, temps.botTempCal);
        else if (name == "top_temp_tilt") get(child, temps.topTempTilt);
        else if (name == "bot_temp_tilt") get(child, temps.botTempTilt);
    }
}

template <class Element>
void read(Element element, _ImageTransferInfo& transfer) {
    for (Element child = element.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "transfer_type") get(child, transfer.transferType, transferTypes, 0);
        else if (name == "transfer_temps") read(child, transfer.transferTemps);
        else if (name == "transfer_speeds") readTransferSpeeds<WithRange>(child, transfer.transferSpeeds);
    }
}

template <class Element>
void read(Element element, _laminate_common& common) {
    for (Element child = element.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "patch_length_adj") get(child, common.patchLengthAdj);
        else if (name == "coarse_x_offset") get(child, common.coarseXOffset);
        else if (name == "speed_adjust") get(child, common.speedAdjust);
        else if (name == "passthru_speed_adj") get(child, common.passthruSpeedAdj);
    }
}

template <class Element>
void read(Element element, _LaminateInstalled& installed) {
    for (Element child = element.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "type") get(child, installed.type);
        else if (name == "description") get(child, installed.description);
        else if (name == "thickness") get(child, installed.thickness);
        else if (name == "width") get(child, installed.width, laminatorWidths);
        else if (name == "registration") get(child, installed.registration, laminatorRegistrations);
        else if (name == "oem_country") get(child, installed.oemCountry);
        else if (name == "initial_size") get(child, installed.initialSize);
        else if (name == "panels_remaining") get(child, installed.panelsRemaining);
    }
}

template <class Element>
void read(Element element, _laminateControl& control) {
    for (Element child = element.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "top_x_adj_fine_offset" || name == "bot_x_adj_fine_offset") get(child, control.xFineAdjustment);
        else if (name == "top_temp_adjust" || name == "bot_temp_adjust") get(child, control.temperatureAdjustment);
    }
}

template <class Element>
void read(Element element, _Laminate& laminate) {
    for (Element child = element.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "laminate_installed") read(child, laminate.laminateInstalled);
        else if (name == "laminate_control") read(child, laminate.laminateControl);
    }
}

template <class Element>
void read(Element element, _LaminationIfo& lamination) {
    for (Element child = element.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "laminate_common") read(child, lamination.laminateCommon);
        else if (name == "top_laminate") read(child, lamination.topLaminate);
        else if (name == "bottom_laminate") read(child, lamination.bottomLaminate);
    }
}

template <class Element>
void readCleaning(Element element, _CleaningParams& cleaning) {
    for (Element child = element.first(); child; child = child.next()) {
        if (child.name() == "cleaning_deadline_is_soft") get(child, cleaning.cleaningDeadlineIsSoft);
    }
}

template <class Element>
void readThresholds(Element element, _CleaningParams& cleaning) {
    for (Element child = element.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "alcohol_card_cleaning") get(child, cleaning.alcoholCardCleaning);
        else if (name == "pre_warning") get(child, cleaning.preWarning);
    }
}

template <class Element>
void readConfiguration(Element root, _KVConfiguration& configuration) {
    std::memset(&configuration, 0, sizeof configuration);
    for (Element child = root.first(); child; child = child.next()) {
        const std::string_view name = child.name();
        if (name == "physical_address") getHardwareAddress(child, configuration.physicalAddress);
        else if (name == "ethernet") read(child, configuration.ethernet);
        else if (name == "wireless") read(child, configuration.wireless);
        else if (name == "usb_timeout") read(child, configuration.usbTimeout);
        else if (name == "ocp_language") read(child, configuration.ocpLanguage);
        else if (name == "error_control") get(child, configuration.errorControl, errorControls, errorControlHigh);
        else if (name == "feeder_mode") get(child, configuration.feederMode, feederModes, feedHopper);
        else if (name == "usage_counters") readUsage(child, configuration);
        else if (name == "standby_timeout") get(child, configuration.standbyTimeout);
        else if (name == "imaging_parameters") read(child, configuration.imagingParameters);
        else if (name == "tricolor_settings") read(child, configuration.tricolorSettings);
        else if (name == "ribbon_motor_parameters") readRibbonMotor(child, configuration.ribbonMotorParameters);
        else if (name == "ribbon_sensor_offset") get(child, configuration.ribbonSensorOffset);
        else if (name == "bemf_potentiometer") get(child, configuration.bemfPotentiometer);
        else if (name == "mech_adjustments") read(child, configuration.mechAdjustments);
        else if (name == "media_info") readMediaInfo(child, configuration);
        else if (name == "cards") readCustomCards(child, configuration);
        else if (name == "transfer_settings") read(child, configuration.transferSettings);
        else if (name == "lcd_contrast") get(child, configuration.lcdContrast);
        else if (name == "internal_encoder")
            readEncoder(child, configuration.internalEncoder, configuration.internalEncoder.contactlessEncoder2);
        else if (name == "lamination") read(child, configuration.lamination);
        else if (name == "cleaning") readCleaning(child, configuration.cleaning);
        else if (name == "cleaning_thresholds") readThresholds(child, configuration.cleaning);
        else if (name == "usb_speed") get(child, configuration.usbSpeed, usbSpeeds);
    }
}

// clang-format on

}  // namespace kvj::bench::by_hand

#endif
