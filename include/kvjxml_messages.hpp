/// @file kvjxml_messages.hpp
/// The messages that kvjxml.hpp reads, by name: several have the same root, or the same record.
#ifndef KVJXML_MESSAGES_HPP
#define KVJXML_MESSAGES_HPP

#include "CapabilitiesRecords.h"
#include "ConfigurationRecords.h"
#include "IdentityRecords.h"
#include "SecurityRecords.h"
#include "StatusRecords.h"
#include "kvjxml_records.hpp"

namespace kvjxml {
inline namespace v1 {

/// A message has a `record`, what is read from it, and a `number`, by which the library knows it.
namespace messages {

/// "get_general_status": what the printer as a whole is doing.
struct general_status {
    using record = Kavrin::KVGeneralStatus;
    static constexpr int number = 0;
};
/// "get_job_status": how far one job has come.
struct job_status {
    using record = Kavrin::KVJobStatus;
    static constexpr int number = 1;
};
/// "get_job_list": the jobs that the printer holds.
struct job_list {
    using record = v1::job_list;
    static constexpr int number = 2;
};
/// "get_media_status": what is loaded.
struct media_status {
    using record = ::MediaStatus;
    static constexpr int number = 3;
};
/// "get_count": the card counters.
struct card_count {
    using record = Kavrin::KVCardCount;
    static constexpr int number = 4;
};
/// "get_count" as well: how many cards are left until the printer wants to be cleaned.
struct cards_until_cleaning {
    using record = cleaning_count;
    static constexpr int number = 5;
};
/// "get_laminator_up_times": how long the laminator has been on.
struct up_times {
    using record = Kavrin::KVUpTimes;
    static constexpr int number = 6;
};
/// "get_free_ram": free memory.
struct free_ram {
    using record = Kavrin::__MEMORY;
    static constexpr int number = 7;
};
/// "get_free_flash": free flash memory.
struct free_flash {
    using record = Kavrin::__MEMORY;
    static constexpr int number = 8;
};
/// "get_cleaning_status": how far a cleaning has come.
struct cleaning_status {
    using record = Kavrin::KVCleaningStatus;
    static constexpr int number = 9;
};
/// "get_sensor_status": switches and analogue readings.
struct sensor_status {
    using record = Kavrin::_SENSOR;
    static constexpr int number = 10;
};
/// "get_sensor_status" as well: the raw reading of every sensor.
struct sensor_info {
    using record = Kavrin::KVSensorInfo;
    static constexpr int number = 11;
};
/// "get_sensor_status" as well: the states as the printer words them.
struct sensor_states {
    using record = Kavrin::_KVPrinterSensorInfo;
    static constexpr int number = 12;
};
/// "get_wireless_status": the state of the wireless link.
struct wireless_status {
    using record = Kavrin::_tagWirelessStatus;
    static constexpr int number = 13;
};
/// "get_wireless_radio_status": counters of the radio.
struct wireless_radio_status {
    using record = Kavrin::_tagWirelessRadioStatus;
    static constexpr int number = 14;
};
/// "AccessPoints": the access points that the printer sees.
struct access_points {
    using record = access_point_list;
    static constexpr int number = 15;
};
/// "capabilities", "get_capabilities": what the printer can do.
struct capabilities {
    using record = v1::capabilities;
    static constexpr int number = 16;
};
/// "configuration", "set_configuration": how the printer is set up.
struct configuration {
    using record = Kavrin::_KVConfiguration;
    static constexpr int number = 17;
};
/// "media": the media that the printer knows.
struct media {
    using record = media_catalogue;
    static constexpr int number = 18;
};
/// "printer_id": who the printer is.
struct printer_id {
    using record = Kavrin::KVPrinterInfo;
    static constexpr int number = 19;
};
/// "get_log_service_history": when it was serviced.
struct service_history {
    using record = service_log;
    static constexpr int number = 20;
};
/// "get_log_cleaning_history": when it was cleaned.
struct cleaning_history {
    using record = cleaning_log;
    static constexpr int number = 21;
};
/// "data": the magnetic tracks read back from a card.
struct magnetic_tracks {
    using record = Kavrin::__GETTRACK;
    static constexpr int number = 22;
};
/// "lam_ndc_rsp": the laminator's own answer.
struct laminator_response {
    using record = laminator_answer;
    static constexpr int number = 23;
};
/// "nonce": a number that is used once.
struct nonce {
    using record = nonce_text;
    static constexpr int number = 24;
};
/// "diffie_hellman": the host's part of a key exchange.
struct host_keys {
    using record = Kavrin::_tagHostDHKeys;
    static constexpr int number = 25;
};
/// "diffie_hellman" as well: the printer's part.
struct printer_key {
    using record = printer_interim_key;
    static constexpr int number = 26;
};
/// "action": a protected action, allowed.
struct secure_directive {
    using record = Kavrin::_tagSecDirecXML;
    static constexpr int number = 27;
};
/// "secure_action_request": a protected action, asked for.
struct secure_request {
    using record = Kavrin::_tagSecReqXML;
    static constexpr int number = 28;
};
/// "keys": the printer's keys.
struct keys {
    using record = Kavrin::_tagSecKeys;
    static constexpr int number = 29;
};
/// "keys" as well: keys and passkeys to be changed.
struct key_changes {
    using record = Kavrin::_tagSecSetKeys;
    static constexpr int number = 30;
};
/// "passkey": only `current_passkey` of the record.
struct passkey {
    using record = Kavrin::_tagSecSetKeys;
    static constexpr int number = 31;
};

}  // namespace messages
}  // namespace v1
}  // namespace kvjxml

#endif
