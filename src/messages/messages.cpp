#include <KVJCapsParser.h>
#include <KVJConfigParser.h>
#include <KVJGetEIN.h>
#include <KVJLogParser.h>
#include <KVJMediaParser.h>
#include <KVJNDC.h>
#include <KVJPrinterIDParser.h>
#include <KVJSecAction.h>
#include <KVJSensorParser.h>
#include <KVJStatusParser.h>
#include <kvjxml_records.hpp>

#include <algorithm>
#include <array>
#include <concepts>
#include <type_traits>

#include "capabilities/tables.h"
#include "configuration/document.h"
#include "fields/capabilities.h"
#include "fields/identity.h"
#include "fields/media.h"
#include "fields/security.h"
#include "fields/status.h"
#include "identity/logs.h"
#include "identity/printer.h"
#include "media/tables.h"
#include "messages/catalogue.h"
#include "messages/message.h"
#include "security/tables.h"
#include "status/counters.h"
#include "status/job.h"
#include "status/media.h"
#include "status/sensors.h"
#include "status/wireless.h"

namespace kvj {

namespace {

using Kavrin::KVJCapsParser;
using Kavrin::KVJConfigParser;
using Kavrin::KVJGetEIN;
using Kavrin::KVJLogParser;
using Kavrin::KVJMediaParser;
using Kavrin::KVJNDC;
using Kavrin::KVJPrinterIDParser;
using Kavrin::KVJSecAction;
using Kavrin::KVJSensorParser;
using Kavrin::KVJStatusParser;

// ---- How the readers take a reply ----

template <class Parser, class Length, class Record>
bool call(bool (Parser::*reader)(const wchar_t&, Length, Record&), const ReplyText& reply, Record& record) {
    return (Parser().*reader)(*reply.wide, static_cast<Length>(reply.length), record);
}
template <class Parser, std::size_t N>
bool call(bool (Parser::*reader)(const wchar_t&, int, char*), const ReplyText& reply, char (&record)[N]) {
    return (Parser().*reader)(*reply.wide, static_cast<int>(reply.length), record);
}
template <class Parser, class Record>
bool call(bool (Parser::*reader)(wchar_t*, unsigned long, Record&), const ReplyText& reply, Record& record) {
    // It could write to its text, and does not.
    return (Parser().*reader)(const_cast<wchar_t*>(reply.wide), reply.length, record);
}
template <class Parser, class Record>
bool call(bool (Parser::*reader)(const char*, int, Record&), const ReplyText& reply, Record& record) {
    return (Parser().*reader)(reply.narrow, static_cast<int>(reply.length), record);
}
template <class Parser, class Record>
bool call(bool (Parser::*reader)(const char&, int, Record&), const ReplyText& reply, Record& record) {
    return (Parser().*reader)(*reply.narrow, static_cast<int>(reply.length), record);
}

template <class Operation>
struct Taken;
template <class Parser, class Reply, class Length, class Record_>
struct Taken<bool (Parser::*)(Reply, Length, Record_)> {
    using Record = std::remove_reference_t<Record_>;
    static constexpr bool wide = std::same_as<std::remove_cvref_t<std::remove_pointer_t<Reply>>, wchar_t>;
};

// ---- Lists ----

template <auto Array>
constexpr const Field& fieldOfArray() {
    return *std::ranges::find(recordType<RecordOf<Array>>.fields, nameOf<Array>(), &Field::name);
}

/// A list whose entries are read with the one row of a table, from the elements of `section`.
template <auto Array, const auto& Table>
constexpr HostList list(std::string_view section = {}, bool isOneEntry = false) {
    using Entry = std::remove_pointer_t<ValueOf<Array>>;
    return {&fieldOfArray<Array>(), section, Table.front().name, isOneEntry, [](Element element, void* entry) {
                List<Entry> one{{static_cast<Entry*>(entry), 1}};
                return Table.front().rule.read(element, one);
            }};
}

constexpr HostList accessPointLists[] = {list<&Kavrin::_tagAccessPoints::accessPoints, status::accessPoints>()};
constexpr HostList serviceLists[] = {list<&Kavrin::_tagLogServiceXML::entries, identity::serviceHistory>()};

/// A list of the capabilities, whose section has a row of its own.
template <auto Array, const auto& Table>
constexpr HostList section(bool isOneEntry = false) {
    const auto& rows = described<capabilities::whole>;
    const auto row =
        std::ranges::find(rows, nameOf<Array>(), [](const auto& each) { return each.description.field.name; });
    return list<Array, Table>(row->name, isOneEntry);
}

using Kavrin::_Capabilities;  // NOLINT(bugprone-reserved-identifier): hosts know it by that name
constexpr HostList capabilitiesLists[] = {
    section<&_Capabilities::hostPorts, capabilities::hostPorts>(),
    section<&_Capabilities::devicePorts, capabilities::devicePorts>(true),
    section<&_Capabilities::swInterfaces, capabilities::swInterfaces>(),
    section<&_Capabilities::ocpLanguages, capabilities::ocpLanguages>(),
    section<&_Capabilities::graphicFormats, capabilities::graphicFormatList>(),
    section<&_Capabilities::fonts, capabilities::fonts>(),
    section<&_Capabilities::templates, capabilities::templates>(),
    section<&_Capabilities::graphics, capabilities::graphics>(),
    section<&_Capabilities::barCodes, capabilities::barCodes>(),
};

// ---- What a host does before and after a call ----

/// As many jobs as there is room for. A count beyond that stays what it is when the reply has no list.
void askForAllJobs(void* list) { static_cast<Kavrin::KVJobList*>(list)->count = Kavrin::KVJOBLIST_CAPACITY + 1; }

// ---- How they are read into the records of kvjxml.hpp ----

/// A record by itself.
template <const auto& Table>
bool readRecord(Element root, void* record, Rooms /*rooms*/) {
    if constexpr (std::is_same_v<std::remove_cvref_t<decltype(Table)>, std::array<Row<int>, 0>>) {
        return false;
    } else {
        return walk(root, *static_cast<RecordOfTable<Table>*>(record), Table);
    }
}

/// A record that is one list.
template <const auto& Table>
bool readList(Element root, void* /*record*/, Rooms rooms) {
    return !rooms.empty() && readAll<Table>(root, rooms.front());
}

// Texts of the root itself.
constexpr const auto& laminatorAnswer = text<&kvjxml::laminator_answer::response>;
constexpr const auto& nonce = text<&kvjxml::nonce_text::nonce>;
constexpr const auto& passkey = text<&Kavrin::_tagSecSetKeys::current_passkey>;

/// A record that is the text of the root.
template <const auto& Text>
bool readRootText(Element root, void* record, Rooms /*rooms*/) {
    return readItself(root, *static_cast<RecordOfTable<Text>*>(record), Text);
}

bool readCapabilities(Element root, void* record, Rooms rooms) {
    capabilities::Reading reading(*static_cast<Kavrin::_Capabilities*>(record), rooms);
    return walk(root, reading, capabilities::whole);
}

bool readMedia(Element root, void* /*record*/, Rooms rooms) {
    media::Catalogue reading{nullptr, rooms};
    return walk(root, reading, media::catalogue);
}

bool readHostKeys(Element root, void* record, Rooms /*rooms*/) {
    long printerKey = 0;
    return security::readKeyExchange(root, *static_cast<Kavrin::_tagHostDHKeys*>(record), printerKey);
}

bool readPrinterKey(Element root, void* record, Rooms /*rooms*/) {
    Kavrin::_tagHostDHKeys keys{};
    return security::readKeyExchange(root, keys, static_cast<kvjxml::printer_interim_key*>(record)->key,
                                     security::KeptKeys::ofPrinter);
}

bool readDirective(Element root, void* record, Rooms /*rooms*/) {
    return security::readDirective(root, *static_cast<Kavrin::_tagSecDirecXML*>(record));
}

// ---- The table ----

/// A reply that is a text, without elements.
constexpr std::array<Row<int>, 0> textAlone{};

/// What is not as with most messages.
struct Special {
    // It is looked for as a C string, so it has one. NOLINTNEXTLINE(readability-redundant-string-init)
    std::string_view otherRoot = "";
    std::string_view recordName{};
    std::span<const HostList> lists{};
    bool saysWhetherRead = true;
    bool isAlone = false;
    void (*begin)(void* record) = nullptr;
    void (*end)(void* record) = nullptr;
    bool (*readRoot)(Element root, void* record, Rooms rooms) = nullptr;
};

template <auto Operation, const auto& Table, class Record = typename Taken<decltype(Operation)>::Record>
constexpr Message message(std::string_view name, std::string_view root, const Special& special = {}) {
    return {name,
            root,
            special.otherRoot,
            nameOf<Operation>(),
            described<Table>,
            fieldOfType<Record>(special.recordName),
            special.lists,
            Taken<decltype(Operation)>::wide,
            special.saysWhetherRead,
            special.isAlone,
            special.begin,
            special.end,
            [](const ReplyText& reply, void* record) { return call(Operation, reply, *static_cast<Record*>(record)); },
            special.readRoot != nullptr ? special.readRoot : readRecord<Table>};
}

constexpr Message table[] = {
    message<&KVJStatusParser::ParseStatus, status::generalStatus>("general_status", "get_general_status"),
    message<&KVJStatusParser::ParseJobStatus, status::jobStatus>("job_status", "get_job_status"),
    message<&KVJStatusParser::ParseJobList, status::jobList>(
        "job_list", "get_job_list", {.begin = askForAllJobs, .readRoot = readList<status::jobList>}),
    message<&KVJStatusParser::ParseMediaStatus, status::mediaStatus>("media_status", "get_media_status"),
    message<&KVJStatusParser::ParseCardCount, status::cardCount>("card_count", "get_count"),
    message<&KVJStatusParser::ParseCleanLogCount, status::cardsUntilCleaning>("cards_until_cleaning", "get_count"),
    message<&KVJStatusParser::ParseUpTime, status::upTimes>("up_times", "get_laminator_up_times"),
    message<&KVJStatusParser::GetPrinterFreeSpace, status::freeSpace>("free_ram", "get_free_ram"),
    message<&KVJStatusParser::GetFlashFreeSpace, status::freeSpace>("free_flash", "get_free_flash"),
    message<&KVJStatusParser::ParseCleaningStatus, status::cleaningStatus>("cleaning_status", "get_cleaning_status"),
    message<&KVJStatusParser::ParseSensorStatus, status::sensorStatus>("sensor_status", "get_sensor_status"),
    message<&KVJSensorParser::ParseSensorInfo, status::sensorInfo>("sensor_info", "get_sensor_status"),
    message<&KVJSensorParser::ParseSensorStates, status::sensorStates>("sensor_states", "get_sensor_status"),
    message<&KVJStatusParser::ParseWirelessStatusXML, status::wirelessStatus>("wireless_status", "get_wireless_status"),
    message<&KVJStatusParser::ParseWirlessRadioXML, status::wirelessRadioStatus>("wireless_radio_status",
                                                                                 "get_wireless_radio_status"),
    message<&KVJStatusParser::ParseAccessPoints, status::accessPoints>(
        "access_points", "AccessPoints", {.lists = accessPointLists, .readRoot = readList<status::accessPoints>}),
    message<&KVJCapsParser::GetCapabilities, capabilities::whole>("capabilities", "capabilities",
                                                                  {.otherRoot = "get_capabilities",
                                                                   .lists = capabilitiesLists,
                                                                   .saysWhetherRead = false,
                                                                   .readRoot = readCapabilities}),
    // It writes the name of the ribbon to a buffer that all share.
    message<&KVJConfigParser::GetConfiguration, configuration::document>(
        "configuration", "configuration",
        {.otherRoot = "set_configuration", .saysWhetherRead = false, .isAlone = true}),
    message<&KVJMediaParser::GetMedia, media::catalogue>(
        "media", "media",
        {.saysWhetherRead = false, .begin = beginCatalogue, .end = endCatalogue, .readRoot = readMedia}),
    message<&KVJPrinterIDParser::ParsePrinterInfo, identity::printer>("printer_id", "printer_id"),
    message<&KVJLogParser::ParseLogServiceXML, identity::serviceHistory>(
        "service_history", "get_log_service_history",
        {.lists = serviceLists, .readRoot = readList<identity::serviceHistory>}),
    message<&KVJLogParser::ParseCleaningLog, identity::cleaningHistory>(
        "cleaning_history", "get_log_cleaning_history", {.readRoot = readList<identity::cleaningHistory>}),
    message<&KVJGetEIN::GetMagneticTracks, identity::magneticTracks>("magnetic_tracks", "data"),
    message<&KVJNDC::GetLaminatorResponse, textAlone, char[512]>(
        "laminator_response", "lam_ndc_rsp", {.recordName = "response", .readRoot = readRootText<laminatorAnswer>}),
    message<&KVJSecAction::GetNonceValue, textAlone, char[32]>(
        "nonce", "nonce", {.recordName = "nonce", .readRoot = readRootText<nonce>}),
    message<&KVJSecAction::ParseHostDHKeyValues, security::keyExchange>("host_keys", "diffie_hellman",
                                                                        {.readRoot = readHostKeys}),
    message<&KVJSecAction::ParsePrinterDHKeyValues, security::keyExchange>("printer_key", "diffie_hellman",
                                                                           {.readRoot = readPrinterKey}),
    message<&KVJSecAction::ParseSecureDirectiveValues, security::directive>("secure_directive", "action",
                                                                            {.readRoot = readDirective}),
    message<&KVJSecAction::ParseSecureRequestValues, security::request>("secure_request", "secure_action_request"),
    message<&KVJSecAction::ParseSecurityKeys, security::keys>("keys", "keys"),
    message<&KVJSecAction::ParseSetSecurityKeys, security::keyChanges>("key_changes", "keys"),
    message<&KVJSecAction::ParseGetSecureActionRequest, textAlone>("passkey", "passkey",
                                                                   {.readRoot = readRootText<passkey>}),
};

}  // namespace

std::span<const Message> messages() { return table; }

}  // namespace kvj
