#include "messages.h"

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

#include <cstring>
#include <iterator>
#include <tuple>
#include <vector>

#include "capabilities/tables.h"
#include "configuration/document.h"
#include "foundation/member.h"
#include "foundation/reply.h"
#include "identity/logs.h"
#include "identity/printer.h"
#include "media/tables.h"
#include "security/tables.h"
#include "status/counters.h"
#include "status/job.h"
#include "status/media.h"
#include "status/sensors.h"
#include "status/wireless.h"

namespace kvjxml::tool {

namespace {

/// How the readers take a reply.
template <class Parser, class Length, class Record>
bool read(bool (Parser::*reader)(const wchar_t&, Length, Record&), const Input& input, Record& record) {
    return (Parser().*reader)(*input.text.c_str(), static_cast<Length>(input.text.size()), record);
}
template <class Parser, class Record>
bool read(bool (Parser::*reader)(const char*, int, Record&), const Input& input, Record& record) {
    return (Parser().*reader)(input.bytes.c_str(), 0, record);
}
template <class Parser, class Record>
bool read(bool (Parser::*reader)(const char&, int, Record&), const Input& input, Record& record) {
    return (Parser().*reader)(*input.bytes.c_str(), 0, record);
}

template <class Parser, class Record>
bool read(bool (Parser::*reader)(wchar_t*, unsigned long, Record&), const Input& input, Record& record) {
    std::wstring text = input.text;
    return (Parser().*reader)(text.data(), text.size(), record);
}

template <class Reader>
struct ReaderOf;
template <class Parser, class Reply, class Length, class Record_>
struct ReaderOf<bool (Parser::*)(Reply, Length, Record_&)> {
    using Record = Record_;
};

/// A reader of a record that stands for itself.
template <auto Reader>
Decoded decode(const Input& input) {
    typename ReaderOf<decltype(Reader)>::Record record{};
    const bool result = read(Reader, input, record);
    return {result, valueToJson(record)};
}

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

Decoded decodeJobList(const Input& input) {
    Kavrin::KVJobList list{};
    list.count = Kavrin::KVJOBLIST_CAPACITY + 1;  // As many as there is room for; it stays so when there is no list.
    const bool result = read(&KVJStatusParser::ParseJobList, input, list);
    if (list.count > Kavrin::KVJOBLIST_CAPACITY) list.count = 0;
    return {result, {{"count", list.count}, {"jobs", toJson(list.jobs, static_cast<std::size_t>(list.count))}}};
}

/// The entries of an array up to the last that says anything: what is behind it was not in the reply.
template <class Entry>
Json filledToJson(const Entry* entries, std::size_t count) {
    const Json empty = toJson(Entry{});
    while (count > 0 && toJson(entries[count - 1]) == empty) --count;
    return toJson(entries, count);
}

/// Reads a list in the two calls that its reader wants: one for the size, one to fill an array of that size.
template <class Parser, class Length, class List, class Entry, class Count>
Decoded decodeList(bool (Parser::*reader)(const wchar_t&, Length, List&), Entry* List::*entries, Count List::*count,
                   std::string_view entriesName, const Input& input) {
    List list{};
    bool result = read(reader, input, list);
    std::vector<Entry> array(static_cast<std::size_t>(list.*count));
    if (!array.empty()) {
        list.*entries = array.data();
        result = read(reader, input, list);
    }
    return {result, {{"count", list.*count}, {entriesName, filledToJson(array.data(), array.size())}}};
}

Decoded decodeAccessPoints(const Input& input) {
    using List = Kavrin::_tagAccessPoints;
    return decodeList(&KVJStatusParser::ParseAccessPoints, &List::accessPoints, &List::count, "accessPoints", input);
}

Decoded decodeServiceLog(const Input& input) {
    using List = Kavrin::_tagLogServiceXML;
    return decodeList(&KVJLogParser::ParseLogServiceXML, &List::entries, &List::count, "entries", input);
}

Decoded decodeCleaningLog(const Input& input) {
    Kavrin::_tagCleaningLogEntry entries[32]{};
    const bool result = read(&KVJLogParser::ParseCleaningLog, input, entries);
    return {result, filledToJson(entries, std::size(entries))};
}

/// Reads a reply that is one text, into a buffer of the size that its reader wants.
template <std::size_t Capacity, class Parser>
Decoded decodeText(bool (Parser::*reader)(const wchar_t&, int, char*), std::string_view name, const Input& input) {
    char text[Capacity]{};
    const bool result = (Parser().*reader)(*input.text.c_str(), static_cast<int>(input.text.size()), text);
    return {result, {{name, valueToJson(text)}}};
}

Decoded decodeLaminatorResponse(const Input& input) {
    return decodeText<512>(&KVJNDC::GetLaminatorResponse, "response", input);
}

Decoded decodeNonce(const Input& input) { return decodeText<32>(&KVJSecAction::GetNonceValue, "nonce", input); }

// ---- Readers that do not say whether they read anything: a reply with an element in its root had something to read
// ----

bool hasContent(const Input& input, const char* root, const char* otherRoot = "") {
    Reply reply(input.bytes.c_str());
    const TiXmlElement* element = reply.root(root);
    if (element == nullptr) element = reply.root(otherRoot);
    return element != nullptr && element->FirstChildElement() != nullptr;
}

Decoded decodeConfiguration(const Input& input) {
    Kavrin::_KVConfiguration record{};
    read(&KVJConfigParser::GetConfiguration, input, record);
    return {hasContent(input, "configuration", "set_configuration"), toJson(record)};
}

Decoded decodeMedia(const Input& input) {
    const auto media = Kavrin::MakeKVMedia();
    read(&KVJMediaParser::GetMedia, input, *media);
    return {hasContent(input, "media"), toJson(*media)};
}

/// An array of the size that a list needs, twice: one to read into, and one that shows where the reader wrote.
template <class Entry>
struct ListArrays {
    explicit ListArrays(int count) : entries(static_cast<std::size_t>(count)), marks(entries.size()) {
        std::memset(marks.data(), mark, marks.size() * sizeof(Entry));
    }
    /// How many entries there are up to the last that was written: the section may have had other elements as well.
    [[nodiscard]] int filled() const {
        const auto* const first = reinterpret_cast<const char*>(marks.data());
        const auto isUntouched = [=](std::size_t entry) {
            return std::all_of(first + entry * sizeof(Entry), first + (entry + 1) * sizeof(Entry),
                               [](char byte) { return byte == mark; });
        };
        std::size_t count = marks.size();
        while (count > 0 && isUntouched(count - 1)) --count;
        return static_cast<int>(count);
    }
    static constexpr char mark = 0x5A;
    std::vector<Entry> entries;
    std::vector<Entry> marks;
};

template <class Field>
struct ListsOf {
    using type = std::tuple<>;
};
template <auto Count, auto Array>
struct ListsOf<ListField<Count, Array>> {
    using type = std::tuple<ListField<Count, Array>>;
};

/// The lists among the fields of a record.
template <auto... Fields>
auto listsOf(FieldList<Fields...> /*list*/) {
    return std::tuple_cat(typename ListsOf<std::remove_const_t<decltype(Fields)>>::type{}...);
}

/// Reads the capabilities in the two calls that their lists want: one for the sizes, one to fill arrays of these sizes.
template <class... Lists>
Json capabilitiesToJson(const Input& input, std::tuple<Lists...> /*lists*/) {
    Kavrin::_Capabilities caps{};
    read(&KVJCapsParser::GetCapabilities, input, caps);
    std::tuple<ListArrays<typename Lists::Entry>...> arrays(caps.*Lists::count...);
    std::apply([&](auto&... array) { ((caps.*Lists::array = array.marks.data()), ...); }, arrays);
    read(&KVJCapsParser::GetCapabilities, input, caps);
    std::apply([&](auto&... array) { ((caps.*Lists::array = array.entries.data()), ...); }, arrays);
    caps.imageSharpeningLevels = 0;  // Reading adds to them.
    read(&KVJCapsParser::GetCapabilities, input, caps);
    std::apply([&](auto&... array) { ((caps.*Lists::count = array.filled()), ...); }, arrays);
    return toJson(caps);
}

Decoded decodeCapabilities(const Input& input) {
    return {hasContent(input, "capabilities", "get_capabilities"),
            capabilitiesToJson(input, listsOf(fields<Kavrin::_Capabilities>))};
}

/// A reply that is a text, without elements.
constexpr std::array<Row<int>, 0> textAlone{};

template <auto Reader, const auto& Table>
constexpr Message message(std::string_view root, Decoded (*decodeIt)(const Input&), std::string_view otherRoot = {}) {
    return {root, otherRoot, nameOf<Reader>(), described<Table>, decodeIt};
}

/// A message that is read in one call into a record that stands for itself.
template <auto Reader, const auto& Table>
constexpr Message message(std::string_view root) {
    return message<Reader, Table>(root, decode<Reader>);
}

constexpr Message table[] = {
    message<&KVJStatusParser::ParseStatus, status::generalStatus>("get_general_status"),
    message<&KVJStatusParser::ParseJobStatus, status::jobStatus>("get_job_status"),
    message<&KVJStatusParser::ParseJobList, status::jobList>("get_job_list", decodeJobList),
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
    message<&KVJStatusParser::ParseAccessPoints, status::accessPoints>("AccessPoints", decodeAccessPoints),
    message<&KVJCapsParser::GetCapabilities, capabilities::whole>("capabilities", decodeCapabilities,
                                                                  "get_capabilities"),
    message<&KVJConfigParser::GetConfiguration, configuration::document>("configuration", decodeConfiguration,
                                                                         "set_configuration"),
    message<&KVJMediaParser::GetMedia, media::catalogue>("media", decodeMedia),
    message<&KVJPrinterIDParser::ParsePrinterInfo, identity::printer>("printer_id"),
    message<&KVJLogParser::ParseLogServiceXML, identity::serviceHistory>("get_log_service_history", decodeServiceLog),
    message<&KVJLogParser::ParseCleaningLog, identity::cleaningHistory>("get_log_cleaning_history", decodeCleaningLog),
    message<&KVJGetEIN::GetMagneticTracks, identity::magneticTracks>("data"),
    message<&KVJNDC::GetLaminatorResponse, textAlone>("lam_ndc_rsp", decodeLaminatorResponse),
    message<&KVJSecAction::GetNonceValue, textAlone>("nonce", decodeNonce),
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

}  // namespace kvjxml::tool
