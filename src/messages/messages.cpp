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
};

template <auto Operation, const auto& Table, class Record = typename Taken<decltype(Operation)>::Record>
constexpr Message message(std::string_view root, const Special& special = {}) {
    return {root,
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
            [](const ReplyText& reply, void* record) { return call(Operation, reply, *static_cast<Record*>(record)); }};
}

constexpr Message table[] = {
    message<&KVJStatusParser::ParseStatus, status::generalStatus>("get_general_status"),
    message<&KVJStatusParser::ParseJobStatus, status::jobStatus>("get_job_status"),
    message<&KVJStatusParser::ParseJobList, status::jobList>("get_job_list", {.begin = askForAllJobs}),
    message<&KVJStatusParser::ParseMediaStatus, status::mediaStatus>("get_media_status"),
    message<&KVJStatusParser::ParseCardCount, status::cardCount>("get_count"),
    message<&KVJStatusParser::ParseCleanLogCount, status::cardsUntilCleaning>("get_count"),
    message<&KVJStatusParser::ParseUpTime, status::upTimes>("get_laminator_up_times"),
    message<&KVJStatusParser::GetPrinterFreeSpace, status::freeSpace>("get_free_ram"),
    message<&KVJStatusParser::GetFlashFreeSpace, status::freeSpace>("get_free_flash"),
    message<&KVJStatusParser::ParseCleaningStatus, status::cleaningStatus>("get_cleaning_status"),
    message<&KVJStatusParser::ParseSensorStatus, status::sensorStatus>("get_sensor_status"),
    message<&KVJSensorParser::ParseSensorInfo, status::sensorInfo>("get_sensor_status"),
    message<&KVJSensorParser::ParseSensorStates, status::sensorStates>("get_sensor_status"),
    message<&KVJStatusParser::ParseWirelessStatusXML, status::wirelessStatus>("get_wireless_status"),
    message<&KVJStatusParser::ParseWirlessRadioXML, status::wirelessRadioStatus>("get_wireless_radio_status"),
    message<&KVJStatusParser::ParseAccessPoints, status::accessPoints>("AccessPoints", {.lists = accessPointLists}),
    message<&KVJCapsParser::GetCapabilities, capabilities::whole>(
        "capabilities", {.otherRoot = "get_capabilities", .lists = capabilitiesLists, .saysWhetherRead = false}),
    // It writes the name of the ribbon to a buffer that all share.
    message<&KVJConfigParser::GetConfiguration, configuration::document>(
        "configuration", {.otherRoot = "set_configuration", .saysWhetherRead = false, .isAlone = true}),
    message<&KVJMediaParser::GetMedia, media::catalogue>(
        "media", {.saysWhetherRead = false, .begin = beginCatalogue, .end = endCatalogue}),
    message<&KVJPrinterIDParser::ParsePrinterInfo, identity::printer>("printer_id"),
    message<&KVJLogParser::ParseLogServiceXML, identity::serviceHistory>("get_log_service_history",
                                                                         {.lists = serviceLists}),
    message<&KVJLogParser::ParseCleaningLog, identity::cleaningHistory>("get_log_cleaning_history"),
    message<&KVJGetEIN::GetMagneticTracks, identity::magneticTracks>("data"),
    message<&KVJNDC::GetLaminatorResponse, textAlone, char[512]>("lam_ndc_rsp", {.recordName = "response"}),
    message<&KVJSecAction::GetNonceValue, textAlone, char[32]>("nonce", {.recordName = "nonce"}),
    message<&KVJSecAction::ParseHostDHKeyValues, security::keyExchange>("diffie_hellman"),
    message<&KVJSecAction::ParsePrinterDHKeyValues, security::keyExchange>("diffie_hellman"),
    message<&KVJSecAction::ParseSecureDirectiveValues, security::directive>("action"),
    message<&KVJSecAction::ParseSecureRequestValues, security::request>("secure_action_request"),
    message<&KVJSecAction::ParseSecurityKeys, security::keys>("keys"),
    message<&KVJSecAction::ParseSetSecurityKeys, security::keyChanges>("keys"),
    message<&KVJSecAction::ParseGetSecureActionRequest, textAlone>("passkey"),
};

}  // namespace

std::span<const Message> messages() { return table; }

}  // namespace kvj
