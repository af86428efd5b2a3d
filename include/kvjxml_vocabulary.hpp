/// @file kvjxml_vocabulary.hpp
/// The printer's words as enumerations, and which field has which of them: what kvjxml_words.hpp looks up. It is
/// printed from the tables that the library reads and writes with, so it is not to be edited.
///
/// An enumerator is its word in small letters, with `_` for each character that no name can have, and `_` in front
/// where the word begins with a digit or is one of C++. The words themselves stand beside it where they are others;
/// those that differ in the case of their letters have one enumerator.
#ifndef KVJXML_VOCABULARY_HPP
#define KVJXML_VOCABULARY_HPP

#include "CapabilitiesRecords.h"
#include "ConfigurationRecords.h"
#include "MediaRecords.h"
#include "StatusRecords.h"

// clang-format off

namespace kvjxml {
inline namespace v1 {

/// What a field holds.
enum class holds {
    no_words,  ///< a value without words
    one_word,  ///< the code of a word
    bits       ///< the bits of words, or codes that are OR-ed into each other
};

/// What is known of a field, which is given as its member pointer: what it holds, and the enumeration of its words.
template <auto Field>
struct words_of {
    static constexpr holds held = holds::no_words;
};
template <class Enumeration>
struct one_word_of {
    static constexpr holds held = holds::one_word;
    using enumeration = Enumeration;
};
template <class Enumeration>
struct bits_of {
    static constexpr holds held = holds::bits;
    using enumeration = Enumeration;
};

/// The name that the library has for the words of an enumeration.
template <class Enumeration>
inline constexpr const char* table_of = nullptr;

/// The words of
/// - Kavrin::KVGeneralStatus::printerState, read from
///   - "get_general_status" / "printer_state"
///
/// Any other word becomes 38.
enum class printer_state : int {
    initializing = 1,
    idle = 2,
    xfer_rollers_heating = 3,
    printing_heating = 3,
    standby = 4,
    printing = 5,
    alarm_handling = 6,
    offline = 7,
    canceling = 8,
    temp_out_of_range = 9,
    mag_ops = 10,
    contact_ops = 11,
    contactless_ops = 12,
    config_data = 13,
    job_data = 14,
    diagnostic_mode = 15,
    xfer_rollers_cooling = 16,
    printing_cooling = 16,
    laminating_cooling = 16,
    insert_card = 17,
    laminating = 18,
    laminating_heating = 19,
    card_ready = 35,
    cleaning = 26
};
template <>
inline constexpr const char* table_of<printer_state> = "printer_state";
template <>
struct words_of<&Kavrin::KVGeneralStatus::printerState> : one_word_of<printer_state> {};

/// The words of
/// - Kavrin::KVGeneralStatus::laminatorState, read from
///   - "get_general_status" / "laminator_state"
/// - Kavrin::KVJobStatus::laminatorState, read from
///   - "get_job_status" / "status_printing" / "laminator_state"
///
/// Any other word becomes 0.
enum class laminator_state : int {
    uninitialized = 1,
    initializing = 2,
    ready = 3,
    standby = 4,
    laminating = 5,
    not_ready = 6,
    not_used = 7,
    init_error = 8,
    comm_error = 9,
    fault_error = 10,
    door_open = 11
};
template <>
inline constexpr const char* table_of<laminator_state> = "laminator_state";
template <>
struct words_of<&Kavrin::KVGeneralStatus::laminatorState> : one_word_of<laminator_state> {};
template <>
struct words_of<&Kavrin::KVJobStatus::laminatorState> : one_word_of<laminator_state> {};

/// The words of
/// - Kavrin::KVJobStatus::printState, read from
///   - "get_job_status" / "status_printing" / "print_state"
/// - Kavrin::KVJobStatus::positionInTransport, read from
///   - "get_job_status" / "status_printing" / "position_in_transport"
/// - Kavrin::KVJobStatus::magState, read from
///   - "get_job_status" / "status_mag" / "mag_state"
///   - "get_job_status" / "status_contact" / "mag_state"
///   - "get_job_status" / "status_contactless" / "mag_state"
/// - Kavrin::KVJobStatus::contactState, read from
///   - "get_job_status" / "status_mag" / "contact_state"
///   - "get_job_status" / "status_contact" / "contact_state"
///   - "get_job_status" / "status_contactless" / "contact_state"
/// - Kavrin::KVJobStatus::contactlessState, read from
///   - "get_job_status" / "status_mag" / "contactless_state"
///   - "get_job_status" / "status_contact" / "contactless_state"
///   - "get_job_status" / "status_contactless" / "contactless_state"
/// - Kavrin::_KVJobInfo::printState, read from
///   - "get_job_list" / "job" / "print_state"
///
/// Any other word becomes -1.
enum class job_state : int {
    initializing = 0,
    receiving = 1,
    receive_ok = 2,
    receive_error = 3,
    receive_offline = 4,
    parsed = 5,
    in_progress = 6,
    done_ok = 7,
    done_error = 8,
    cancelled_by_user = 9,
    cancelled_by_error = 10,
    cleaning_up = 18,
    yes = 11,
    no = 12,
    yellow = 13,
    magenta = 14,
    cyan = 15,
    black = 16,
    clear = 17,
    encoding = 19,
    verifying = 20,
    reading = 21,
    at_station = 26,
    smart_encode_error = 27,
    contact_error = 28,
    contactless_error = 29,
    read_error = 22,
    read_ein_error = 23,
    write_error = 24,
    retrace_error = 25,
    not_in_printer = 30,
    feeding = 31,
    in_process = 32,
    ejecting_eject = 33,
    ejecting_reject = 34,
    ejecting_feeder = 35,
    held = 36,
    laminating = 41,
    transferring = 38,
    transfer_wait = 37,
    waiting_printer = 42,
    printing = 43,
    laminate = 39,
    laminate_insert = 40,
    mag_read = 21
};
template <>
inline constexpr const char* table_of<job_state> = "job_state";
template <>
struct words_of<&Kavrin::KVJobStatus::printState> : one_word_of<job_state> {};
template <>
struct words_of<&Kavrin::KVJobStatus::positionInTransport> : one_word_of<job_state> {};
template <>
struct words_of<&Kavrin::KVJobStatus::magState> : one_word_of<job_state> {};
template <>
struct words_of<&Kavrin::KVJobStatus::contactState> : one_word_of<job_state> {};
template <>
struct words_of<&Kavrin::KVJobStatus::contactlessState> : one_word_of<job_state> {};
template <>
struct words_of<&Kavrin::_KVJobInfo::printState> : one_word_of<job_state> {};

/// The words of
/// - Kavrin::KVCleaningStatus::cleaningState, read from
///   - "get_cleaning_status" / "cleaning_status"
///
/// Any other word becomes 10.
enum class cleaning_state : int {
    cleaning = 0,
    start_cleaning = 1,
    remove_ribbon = 2,
    remove_cards = 3,
    remove_ribbon_and_cards = 4,
    insert_cleaning_card = 5,
    reload_ribbon = 6,
    reload_ribbon_and_cards = 7,
    cleaning_aborted = 8,
    cleaning_not_in_progress = 9
};
template <>
inline constexpr const char* table_of<cleaning_state> = "cleaning_state";
template <>
struct words_of<&Kavrin::KVCleaningStatus::cleaningState> : one_word_of<cleaning_state> {};

/// The words of
/// - Kavrin::_tagWirelessStatus::state, read from
///   - "get_wireless_status" / "state"
///
/// Any other word becomes 0.
enum class wireless_state : int {
    off = 0,
    disconnected = 1,
    inactive = 2,
    scanning = 3,
    associating = 4,
    associated = 5,
    handshake = 6,
    connected = 7
};
template <>
inline constexpr const char* table_of<wireless_state> = "wireless_state";
template <>
struct words_of<&Kavrin::_tagWirelessStatus::state> : one_word_of<wireless_state> {};

/// The words of
/// - Kavrin::_tagWirelessStatus::security, read from
///   - "get_wireless_status" / "security"
/// - Kavrin::_tagAccessPoint::Security, read from
///   - "AccessPoints" / "AccessPoint" / "Security"
///
/// Any other word adds nothing.
enum class wireless_security : int {
    open = 0,
    none = 0,
    wep = 1,  ///< "WEP", "wep"
    wep40 = 1,  ///< "WEP40", "wep40"
    wep104 = 2,  ///< "WEP104", "wep104"
    wpa_wpa2 = 5,  ///< "WPA_WPA2", "wpa_wpa2"
    wpa2_wpa = 5,  ///< "WPA2_WPA", "wpa2_wpa"
    wpa = 3,  ///< "WPA", "wpa"
    wpa2 = 4  ///< "WPA2", "wpa2"
};
template <>
inline constexpr const char* table_of<wireless_security> = "wireless_security";
template <>
struct words_of<&Kavrin::_tagWirelessStatus::security> : bits_of<wireless_security> {};
template <>
struct words_of<&Kavrin::_tagAccessPoint::Security> : bits_of<wireless_security> {};

/// The words of
/// - Kavrin::_tagWirelessStatus::crypto, read from
///   - "get_wireless_status" / "crypto"
/// - Kavrin::_tagAccessPoint::Encryption, read from
///   - "AccessPoints" / "AccessPoint" / "Encryption"
///
/// Any other word adds nothing.
enum class wireless_cipher : int {
    none = 0,
    rc4 = 1,  ///< "RC4", "rc4"
    tkip = 2,  ///< "TKIP", "tkip"
    ccmp = 3,  ///< "CCMP", "ccmp"
    tkip_ccmp = 4,  ///< "TKIP_CCMP", "tkip_ccmp"
    ccmp_tkip = 4  ///< "CCMP_TKIP", "ccmp_tkip"
};
template <>
inline constexpr const char* table_of<wireless_cipher> = "wireless_cipher";
template <>
struct words_of<&Kavrin::_tagWirelessStatus::crypto> : bits_of<wireless_cipher> {};
template <>
struct words_of<&Kavrin::_tagAccessPoint::Encryption> : bits_of<wireless_cipher> {};

/// The words of
/// - _MediaStatusInfo::code, read from
///   - "get_media_status" / "ribbon" / "sequence"
///   - "get_media_status" / "ribbon" / "description"
///   - "get_media_status" / "film" / "description"
///   - "get_media_status" / "top_laminate" / "type" as well: there a number of the printer's, and no code
///   - "get_media_status" / "bottom_laminate" / "type" as well: there a number of the printer's, and no code
///
/// Any other word becomes 263.
enum class ribbon : int {
    ymcko = 256,  ///< "YMCKO", "ymcko"
    ymckok = 257,  ///< "YMCKOK", "ymckok"
    _1_2_ymcko = 258,  ///< "1/2 YMCKO", "1/2 ymcko"
    _1_2_ymckoko = 259,  ///< "1/2 YMCKOKO", "1/2 ymckoko"
    ymcpko = 260,  ///< "YMCPKO", "ymcpko"
    kdo = 261,  ///< "KdO", "kdo"
    kro = 262,  ///< "KrO", "kro"
    black = 263,  ///< "Black", "black"
    white = 264,  ///< "White", "white"
    red = 265,  ///< "Red", "red"
    blue = 266,  ///< "Blue", "blue"
    gold = 267,  ///< "Gold", "gold"
    silver = 268,  ///< "Silver", "silver"
    ymckll = 269,  ///< "YMCKLL", "ymckll"
    srdymcko = 270,  ///< "SrDYMCKO"
    hologram = 271,  ///< "Hologram"
    black_mono = 263,  ///< "black mono"
    ko = 262,
    holo_overlay = 271,  ///< "holo overlay"
    o = 271,
    ymckoo = 272,
    ymcoviko = 260,
    sdymcko = 270
};
template <>
inline constexpr const char* table_of<ribbon> = "ribbon";
template <>
struct words_of<&_MediaStatusInfo::code> : one_word_of<ribbon> {};

/// The words of
/// - Kavrin::_RibbonInfo::ribbonCode, only composed, as
///   - "configuration" / "media_info" / "ribbon" / "description"
///   - "configuration" / "media_info" / "film" / "description"
enum class ribbon_name : int {
    ymcko = 256,  ///< "YMCKO"
    ymckok = 257,  ///< "YMCKOK"
    _1_2_ymcko = 258,  ///< "1/2 YMCKO"
    _1_2_ymckoko = 259,  ///< "1/2 YMCKOKO"
    ymcpko = 260,  ///< "YMCPKO"
    kdo = 261,  ///< "KdO"
    kro = 262,  ///< "KrO"
    black = 263,  ///< "Black"
    white = 264,  ///< "White"
    red = 265,  ///< "Red"
    blue = 266,  ///< "Blue"
    gold = 267,  ///< "Gold"
    silver = 268,  ///< "Silver"
    ymckll = 269,  ///< "YMCKLL"
    srdymcko = 270,  ///< "SrDYMCKO"
    hologram = 271  ///< "Hologram"
};
template <>
inline constexpr const char* table_of<ribbon_name> = "ribbon_name";
template <>
struct words_of<&Kavrin::_RibbonInfo::ribbonCode> : one_word_of<ribbon_name> {};

/// The words of
/// - Kavrin::_PortCaps::portType, read from
///   - "capabilities" / "host_ports" / "host_port" / "type"
///   - "capabilities" / "device_ports" / "device_port" / "type"
/// - Kavrin::_PortCaps::portType, composed of other words as
///   - "capabilities" / "host_ports" / "type": "usb_2_0" 0, "serial" 1, "ethernet_10_100" 2, "ethernet_10_100_1G" 3
///   - "capabilities" / "device_ports" / "type": "usb_2_0" 0, "serial" 1, "ethernet_10_100" 2, "ethernet_10_100_1G" 3
///
/// Any other word becomes -1.
enum class port_type : int {
    usb_2_0 = 0,
    serial = 1,
    ethernet_10_100 = 2,
    ethernet_10_100_1g = 3,  ///< "ethernet_10_100_1G"
    wifi_enet_802_11g = 4
};
template <>
inline constexpr const char* table_of<port_type> = "port_type";
template <>
struct words_of<&Kavrin::_PortCaps::portType> : one_word_of<port_type> {};

/// The words of
/// - Kavrin::_InterfaceCaps::protocol, read from
///   - "capabilities" / "software_interfaces" / "software_interface" / "protocol"
///
/// Any other word becomes -1.
enum class protocol : int {
    snmp = 0,
    snmp_trap = 1,
    http = 2,
    kavrin = 3
};
template <>
inline constexpr const char* table_of<protocol> = "protocol";
template <>
struct words_of<&Kavrin::_InterfaceCaps::protocol> : one_word_of<protocol> {};

/// The words of
/// - Kavrin::_InterfaceCaps::transport, read from
///   - "capabilities" / "software_interfaces" / "software_interface" / "transport"
///
/// Any other word becomes -1.
enum class transport : int {
    udp = 0,
    tcp = 1,
    usb = 2,
    usb_2_0 = 3
};
template <>
inline constexpr const char* table_of<transport> = "transport";
template <>
struct words_of<&Kavrin::_InterfaceCaps::transport> : one_word_of<transport> {};

/// The words of
/// - Kavrin::_Capabilities::imageSharpeningLevels, read from
///   - "capabilities" / "image_sharpening_levels" / "image_sharpening_level"
///
/// Any other word adds nothing.
enum class sharpening_level : int {
    off = 1,
    normal = 2,
    high = 4,
    low = 8
};
template <>
inline constexpr const char* table_of<sharpening_level> = "sharpening_level";
template <>
struct words_of<&Kavrin::_Capabilities::imageSharpeningLevels> : bits_of<sharpening_level> {};

/// The words of
/// - Kavrin::_SecurityCaps::encryptionAlgorithm, read from
///   - "capabilities" / "security" / "encryption_algorithm"
///
/// Any other word becomes -1.
enum class encryption_algorithm : int {
    aes = 1,
    _3des = 2  ///< "3des"
};
template <>
inline constexpr const char* table_of<encryption_algorithm> = "encryption_algorithm";
template <>
struct words_of<&Kavrin::_SecurityCaps::encryptionAlgorithm> : one_word_of<encryption_algorithm> {};

/// The words of
/// - Kavrin::_Capabilities::graphicFormats, read from
///   - "capabilities" / "graphic_formats" / "graphic_format"
///
/// Any other word becomes -1.
enum class graphic_format : int {
    bmp = 1,
    jpeg = 2,
    tga = 8,
    tiff = 9,
    raw = 10
};
template <>
inline constexpr const char* table_of<graphic_format> = "graphic_format";
template <>
struct words_of<&Kavrin::_Capabilities::graphicFormats> : one_word_of<graphic_format> {};

/// The words of
/// - Kavrin::_FontCaps::style, read from
///   - "capabilities" / "fonts" / "font" / "style"
///
/// Any other word becomes 0.
enum class font_style : int {
    regular = 1,
    bold = 2,
    italic = 3
};
template <>
inline constexpr const char* table_of<font_style> = "font_style";
template <>
struct words_of<&Kavrin::_FontCaps::style> : one_word_of<font_style> {};

/// The words of
/// - Kavrin::_Capabilities::printSystem, read from
///   - "capabilities" / "print_system"
///
/// Any other word becomes -1.
enum class print_system : int {
    direct = 0,
    retransfer = 1
};
template <>
inline constexpr const char* table_of<print_system> = "print_system";
template <>
struct words_of<&Kavrin::_Capabilities::printSystem> : one_word_of<print_system> {};

/// The words of
/// - Kavrin::_Capabilities::printType, read from
///   - "capabilities" / "print_type"
/// - Kavrin::_Capabilities::laminatorType, read from
///   - "capabilities" / "laminator_type"
/// - Kavrin::_Capabilities::laminatorType, composed of other words as
///   - "capabilities" / "laminator_type": "none" 0, "1_side" 1, "2_side" 2, without a laminator "notpresent"
///   - "capabilities" / "mag_encoder": "none" 0, "1_side" 1, "2_side" 2, without a laminator "notpresent"
///   - "capabilities" / "mag_stripe": "none" 0, "1_side" 1, "2_side" 2, without a laminator "notpresent"
///
/// Any other word becomes 0.
enum class sides : int {
    _2_side = 2,  ///< "2_side"
    _1_side = 1  ///< "1_side"
};
template <>
inline constexpr const char* table_of<sides> = "sides";
template <>
struct words_of<&Kavrin::_Capabilities::printType> : one_word_of<sides> {};
template <>
struct words_of<&Kavrin::_Capabilities::laminatorType> : one_word_of<sides> {};

/// The words of
/// - Kavrin::_Capabilities::magHeadType, read from
///   - "capabilities" / "mag_encoder"
/// - Kavrin::_Capabilities::magHeadType, composed of other words as
///   - "capabilities" / "mag_encoder": "none" 0, "iso" 1, "aamva" 2, "custom" 3, "binary" 4
///
/// Any other word becomes -1.
enum class mag_head_type : int {
    none = 0,
    iso = 1,
    aamva = 2,
    custom = 3,
    binary = 4,
    jis = 5
};
template <>
inline constexpr const char* table_of<mag_head_type> = "mag_head_type";
template <>
struct words_of<&Kavrin::_Capabilities::magHeadType> : one_word_of<mag_head_type> {};

/// The words of
/// - Kavrin::_Capabilities::magStripeLocation, read from
///   - "capabilities" / "mag_stripe"
///
/// Any other word becomes -1.
enum class mag_stripe_location : int {
    back = 0,
    front = 1
};
template <>
inline constexpr const char* table_of<mag_stripe_location> = "mag_stripe_location";
template <>
struct words_of<&Kavrin::_Capabilities::magStripeLocation> : one_word_of<mag_stripe_location> {};

/// The words of
/// - Kavrin::_InternalEncoderInfo::commsChannel, read from
///   - "capabilities" / "internal_encoder" / "comms_channel"
///   - "configuration" / "internal_encoder" / "comms_channel"
///
/// Any other word becomes 0.
enum class comms_channel : int {
    serial = 1,
    usb = 2
};
template <>
inline constexpr const char* table_of<comms_channel> = "comms_channel";
template <>
struct words_of<&Kavrin::_InternalEncoderInfo::commsChannel> : one_word_of<comms_channel> {};

/// The words of
/// - Kavrin::_InternalEncoderInfo::contactlessEncoder, read from
///   - "capabilities" / "internal_encoder" / "contactless_encoder"
///   - "configuration" / "internal_encoder" / "contactless_encoder"
/// - Kavrin::_InternalEncoderInfo::contactlessEncoder, composed of other words as
///   - "capabilities" / "internal_encoder" / "comms_channel": "serial" 1, "usb_2_0" 2
///   - "capabilities" / "internal_encoder" / "contactless_encoder": "mifare" 1
///   - "configuration" / "internal_encoder" / "comms_channel": "serial" 1, "usb" 2
///   - "configuration" / "internal_encoder" / "contactless_encoder": "mifare" 1
/// - Kavrin::_InternalEncoderInfo::contactlessEncoder2, read from
///   - "configuration" / "internal_encoder" / "contactless_encoder"
///
/// Any other word becomes 0.
enum class contactless_encoder : int {
    mifare = 1,
    felica = 2,
    uhf = 3,
    hf = 4,
    lf = 5
};
template <>
inline constexpr const char* table_of<contactless_encoder> = "contactless_encoder";
template <>
struct words_of<&Kavrin::_InternalEncoderInfo::contactlessEncoder> : one_word_of<contactless_encoder> {};
template <>
struct words_of<&Kavrin::_InternalEncoderInfo::contactlessEncoder2> : one_word_of<contactless_encoder> {};

/// The words of
/// - Kavrin::_WirelessParams::security, read from
///   - "configuration" / "wireless" / "security"
///
/// Any other word leaves the field as it was.
enum class configured_security : int {
    none = 0,
    open = 0,
    wep40 = 1,  ///< "wep40", "WEP40"
    wep104 = 2,  ///< "wep104", "WEP104"
    wpa_wpa2 = 5,  ///< "wpa_wpa2", "WPA_WPA2"
    wpa2_wpa = 5,  ///< "wpa2_wpa", "WPA2_WPA"
    wpa = 3,  ///< "wpa", "WPA"
    wpa2 = 4  ///< "wpa2", "WPA2"
};
template <>
inline constexpr const char* table_of<configured_security> = "configured_security";
template <>
struct words_of<&Kavrin::_WirelessParams::security> : one_word_of<configured_security> {};

/// The words of
/// - Kavrin::_WirelessParams::crypto, read from
///   - "configuration" / "wireless" / "crypto"
///
/// Any other word leaves the field as it was.
enum class configured_cipher : int {
    none = 0,
    rc4 = 1,  ///< "RC4", "rc4"
    tkip = 2,  ///< "TKIP", "tkip"
    ccmp = 3,  ///< "CCMP", "ccmp"
    ccmp_tkip = 3,  ///< "CCMP_TKIP", "ccmp_tkip"
    tkip_ccmp = 3  ///< "TKIP_CCMP", "tkip_ccmp"
};
template <>
inline constexpr const char* table_of<configured_cipher> = "configured_cipher";
template <>
struct words_of<&Kavrin::_WirelessParams::crypto> : one_word_of<configured_cipher> {};

/// The words of
/// - Kavrin::_KVConfiguration::errorControl, read from
///   - "configuration" / "error_control"
/// - Kavrin::_KVConfiguration::errorControl, composed of other words as
///   - "configuration" / "error_control": "none" 0, "med" 1, "high" 2, else "med"
///
/// Any other word becomes 2.
enum class error_control : int {
    none = 0,
    med = 1
};
template <>
inline constexpr const char* table_of<error_control> = "error_control";
template <>
struct words_of<&Kavrin::_KVConfiguration::errorControl> : one_word_of<error_control> {};

/// The words of
/// - Kavrin::_KVConfiguration::feederMode, read from
///   - "configuration" / "feeder_mode"
///
/// Any other word becomes 1.
enum class feeder_mode : int {
    manual = 0,
    hopper = 1,
    alreadyinprinter = 2,
    _auto = 3  ///< "auto"
};
template <>
inline constexpr const char* table_of<feeder_mode> = "feeder_mode";
template <>
struct words_of<&Kavrin::_KVConfiguration::feederMode> : one_word_of<feeder_mode> {};

/// The words of
/// - Kavrin::_KVConfiguration::usbSpeed, read from
///   - "configuration" / "usb_speed"
///
/// Any other word leaves the field as it was.
enum class usb_speed : int {
    full = 1,
    high = 0
};
template <>
inline constexpr const char* table_of<usb_speed> = "usb_speed";
template <>
struct words_of<&Kavrin::_KVConfiguration::usbSpeed> : one_word_of<usb_speed> {};

/// The words of
/// - Kavrin::_CustomCardInfo::coercivity, read from
///   - "configuration" / "cards" / "card" / "information" / "coercivity"
/// - Kavrin::_CustomCardInfo::coercivity, composed of other words as
///   - "configuration" / "cards" / "card" / "information" / "coercivity": "none" 0, "low" 1, "high" 2
/// - Kavrin::_CardInfo::coercivity, read from
///   - "media" / "cards" / "card" / "information" / "coercivity"
/// - Kavrin::_CardInfo::coercivity, composed of other words as
///   - "media" / "information" / "coercivity": "none" 0, "low" 1, "high" 2
///
/// Any other word becomes 0.
enum class coercivity : int {
    low = 1,
    high = 2
};
template <>
inline constexpr const char* table_of<coercivity> = "coercivity";
template <>
struct words_of<&Kavrin::_CustomCardInfo::coercivity> : one_word_of<coercivity> {};
template <>
struct words_of<&Kavrin::_CardInfo::coercivity> : one_word_of<coercivity> {};

/// The words of
/// - Kavrin::_ImageTransferInfo::transferType, read from
///   - "configuration" / "transfer_settings" / "transfer_type"
///
/// Any other word becomes 0.
enum class transfer_type : int {
    single = 1,
    dual = 2
};
template <>
inline constexpr const char* table_of<transfer_type> = "transfer_type";
template <>
struct words_of<&Kavrin::_ImageTransferInfo::transferType> : one_word_of<transfer_type> {};

/// The words of
/// - Kavrin::_LaminateInstalled::registration, read from
///   - "configuration" / "lamination" / "top_laminate" / "laminate_installed" / "registration"
///   - "configuration" / "lamination" / "bottom_laminate" / "laminate_installed" / "registration"
///
/// Any other word leaves the field as it was.
enum class laminate_registration : int {
    none = 0,
    hologram = 1,
    contact = 2
};
template <>
inline constexpr const char* table_of<laminate_registration> = "laminate_registration";
template <>
struct words_of<&Kavrin::_LaminateInstalled::registration> : one_word_of<laminate_registration> {};

/// The words of
/// - Kavrin::_LaminateInstalled::width, read from
///   - "configuration" / "lamination" / "top_laminate" / "laminate_installed" / "width"
///   - "configuration" / "lamination" / "bottom_laminate" / "laminate_installed" / "width"
///
/// Any other word leaves the field as it was.
enum class laminate_width : int {
    full = 0,
    mag = 1,
    signature = 2
};
template <>
inline constexpr const char* table_of<laminate_width> = "laminate_width";
template <>
struct words_of<&Kavrin::_LaminateInstalled::width> : one_word_of<laminate_width> {};

}  // namespace v1
}  // namespace kvjxml

// clang-format on

#endif
