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

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "capabilities/tables.h"
#include "configuration/document.h"
#include "fields.h"
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
bool decode(const Input& input, JsonPrinter& json) {
    typename ReaderOf<decltype(Reader)>::Record record{};
    const bool result = read(Reader, input, record);
    printValue(json, record);
    return result;
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

/// A list as its record has it, the count and the entries.
template <class Entry>
void printList(JsonPrinter& json, std::int64_t count, std::string_view entriesName, const Entry* entries,
               std::size_t filled) {
    json.object([&] {
        printField(json, "count", count);
        json.field(entriesName);
        print(json, entries, filled);
    });
}

bool decodeJobList(const Input& input, JsonPrinter& json) {
    Kavrin::KVJobList list{};
    list.count = Kavrin::KVJOBLIST_CAPACITY + 1;  // As many as there is room for; it stays so when there is no list.
    const bool result = read(&KVJStatusParser::ParseJobList, input, list);
    if (list.count > Kavrin::KVJOBLIST_CAPACITY) list.count = 0;
    printList(json, list.count, "jobs", list.jobs, static_cast<std::size_t>(list.count));
    return result;
}

template <class Entry>
std::string printed(const Entry& entry) {
    std::ostringstream text;
    JsonPrinter json(text);
    print(json, entry);
    return text.str();
}

/// How many entries of an array there are up to the last that says anything: what is behind it was not in the reply.
template <class Entry>
std::size_t filled(const Entry* entries, std::size_t count) {
    const std::string empty = printed(Entry{});
    while (count > 0 && printed(entries[count - 1]) == empty) --count;
    return count;
}

/// How many children of that name the root of a reply has.
std::size_t countNamed(const Input& input, const char* root, const char* name) {
    const Reply reply(input.bytes.c_str());
    std::size_t count = 0;
    for (const Element entry : reply.root(root).children()) count += entry.name() == name ? 1 : 0;
    return count;
}

/// Reads a list in the two calls that its reader wants: one for the size, one to fill an array. The size counts the
/// children of every name, and only those of the entries' own are written, so the array has room for these alone.
template <const auto& Table, class Parser, class Length, class List, class Entry, class Count>
bool decodeList(bool (Parser::*reader)(const wchar_t&, Length, List&), Entry* List::*entries, Count List::*count,
                std::string_view entriesName, const char* root, const Input& input, JsonPrinter& json) {
    List list{};
    bool result = read(reader, input, list);
    std::vector<Entry> array(countNamed(input, root, Table.front().name.data()));
    if (list.*count > 0) {
        Entry none{};  // So that an array is there, even one without room.
        list.*entries = array.empty() ? &none : array.data();
        result = read(reader, input, list);
    }
    printList(json, list.*count, entriesName, array.data(), filled(array.data(), array.size()));
    return result;
}

bool decodeAccessPoints(const Input& input, JsonPrinter& json) {
    using List = Kavrin::_tagAccessPoints;
    return decodeList<status::accessPoints>(&KVJStatusParser::ParseAccessPoints, &List::accessPoints, &List::count,
                                            "accessPoints", "AccessPoints", input, json);
}

bool decodeServiceLog(const Input& input, JsonPrinter& json) {
    using List = Kavrin::_tagLogServiceXML;
    return decodeList<identity::serviceHistory>(&KVJLogParser::ParseLogServiceXML, &List::entries, &List::count,
                                                "entries", "get_log_service_history", input, json);
}

bool decodeCleaningLog(const Input& input, JsonPrinter& json) {
    Kavrin::_tagCleaningLogEntry entries[32]{};
    const bool result = read(&KVJLogParser::ParseCleaningLog, input, entries);
    print(json, entries, filled(entries, std::size(entries)));
    return result;
}

/// Reads a reply that is one text, into a buffer of the size that its reader wants.
template <std::size_t Capacity, class Parser>
bool decodeText(bool (Parser::*reader)(const wchar_t&, int, char*), std::string_view name, const Input& input,
                JsonPrinter& json) {
    char text[Capacity]{};
    const bool result = (Parser().*reader)(*input.text.c_str(), static_cast<int>(input.text.size()), text);
    json.object([&] { printField(json, name, text); });
    return result;
}

bool decodeLaminatorResponse(const Input& input, JsonPrinter& json) {
    return decodeText<512>(&KVJNDC::GetLaminatorResponse, "response", input, json);
}

bool decodeNonce(const Input& input, JsonPrinter& json) {
    return decodeText<32>(&KVJSecAction::GetNonceValue, "nonce", input, json);
}

// ---- Readers that do not say whether they read anything: a reply with an element in its root had something to read
// ----

bool hasContent(Element root) { return !root.children().empty(); }

bool hasContent(const Input& input, const char* root, const char* otherRoot = "") {
    const Reply reply(input.bytes.c_str());
    return hasContent(reply.root(root, otherRoot));
}

bool decodeConfiguration(const Input& input, JsonPrinter& json) {
    Kavrin::_KVConfiguration record{};
    read(&KVJConfigParser::GetConfiguration, input, record);
    print(json, record);
    return hasContent(input, "configuration", "set_configuration");
}

bool decodeMedia(const Input& input, JsonPrinter& json) {
    const bool result = hasContent(input, "media");
    const auto media = Kavrin::MakeKVMedia();
    read(&KVJMediaParser::GetMedia, input, *media);
    print(json, *media);
    return result;
}

// ---- Capabilities: an entry of a list takes up to 4 KiB, so one is read, printed and forgotten before the next ----

/// The table that the entries of a list are read with.
template <auto Array>
inline constexpr std::nullptr_t entriesOf = nullptr;
template <>
inline constexpr const auto& entriesOf<&Kavrin::_Capabilities::hostPorts> = capabilities::hostPorts;
template <>
inline constexpr const auto& entriesOf<&Kavrin::_Capabilities::devicePorts> = capabilities::devicePorts;
template <>
inline constexpr const auto& entriesOf<&Kavrin::_Capabilities::swInterfaces> = capabilities::swInterfaces;
template <>
inline constexpr const auto& entriesOf<&Kavrin::_Capabilities::ocpLanguages> = capabilities::ocpLanguages;
template <>
inline constexpr const auto& entriesOf<&Kavrin::_Capabilities::graphicFormats> = capabilities::graphicFormatList;
template <>
inline constexpr const auto& entriesOf<&Kavrin::_Capabilities::fonts> = capabilities::fonts;
template <>
inline constexpr const auto& entriesOf<&Kavrin::_Capabilities::templates> = capabilities::templates;
template <>
inline constexpr const auto& entriesOf<&Kavrin::_Capabilities::graphics> = capabilities::graphics;
template <>
inline constexpr const auto& entriesOf<&Kavrin::_Capabilities::barCodes> = capabilities::barCodes;

/// Whether all elements of a list are read into its first entry.
template <auto Array>
inline constexpr bool hasOneEntry = false;
template <>
inline constexpr bool hasOneEntry<&Kavrin::_Capabilities::devicePorts> = true;

/// The name of the element that fills a field of the capabilities.
std::string_view elementOf(std::string_view field) {
    const auto& rows = described<capabilities::whole>;
    return std::ranges::find(rows, field, [](const auto& row) { return row.description.field; })->name;
}

/// Whether reading changes anything in an entry.
template <class Entry, class Read>
bool isWritten(Read readInto) {
    constexpr char mark = 0x5A;
    Entry entry;
    std::memset(&entry, mark, sizeof entry);
    readInto(entry);
    const auto* const bytes = reinterpret_cast<const char*>(&entry);
    return !std::all_of(bytes, bytes + sizeof entry, [](char byte) { return byte == mark; });
}

/// One section of a list, and how far its entries have been read.
class Section {
public:
    Section(Element section, std::string_view entryName)
        : at_(section.children().begin()), end_(section.children().end()), name_(entryName) {
        skipOthers();
    }
    explicit operator bool() const { return at_ != end_; }
    [[nodiscard]] Element entry() const { return *at_; }
    void goOn() {
        ++at_;
        skipOthers();
    }

private:
    void skipOthers() {
        while (at_ != end_ && (*at_).name() != name_) ++at_;
    }

    Element::Iterator at_;
    Element::Iterator end_;
    std::string_view name_;
};

/// All sections of a list that have an entry.
std::vector<Section> sectionsOf(Element root, std::string_view name, std::string_view entryName) {
    std::vector<Section> sections;
    for (const Element child : root.children()) {
        if (child.name() != name) continue;
        if (const Section section(child, entryName); section) sections.push_back(section);
    }
    return sections;
}

/// The entries of a list, as an array that is large enough would have them after reading: those of a section that
/// stands again go over those of the first, and what is behind the last that was written is none.
template <auto Count, auto Array>
void printFieldOf(JsonPrinter& json, Element root, ListField<Count, Array> /*list*/) {
    using Entry = typename ListField<Count, Array>::Entry;
    constexpr bool all = hasOneEntry<Array>;
    constexpr auto row = entriesOf<Array>.front();
    constexpr auto readElement = row.getter.read;
    auto sections = sectionsOf(root, elementOf(nameOf<Array>()), row.name);
    const auto readInto = [&](Entry& entry) {
        for (Section section : sections) {
            do {
                List<Entry> one{{&entry, 1}};
                readElement(section.entry(), one);
                section.goOn();
            } while (all && section);
        }
    };
    json.list([&] {
        std::size_t unwritten = 0;
        while (!sections.empty()) {
            if (isWritten<Entry>(readInto)) {
                for (; unwritten > 0; --unwritten) printEntry(json, Entry{});
                Entry entry{};
                readInto(entry);
                printEntry(json, entry);
            } else {
                ++unwritten;
            }
            for (Section& section : sections) section.goOn();
            std::erase_if(sections, [](const Section& section) { return all || !section; });
        }
    });
}

bool decodeCapabilities(const Input& input, JsonPrinter& json) {
    Kavrin::_Capabilities caps{};
    read(&KVJCapsParser::GetCapabilities, input, caps);  // All but the lists, which have no room.
    const Reply reply(input.bytes.c_str());
    const Element root = reply.root("capabilities", "get_capabilities");
    printFields<Kavrin::_Capabilities>(json, fields<Kavrin::_Capabilities>, [&](auto field) {
        if constexpr (requires { field.array; }) {
            printFieldOf(json, root, field);
        } else {
            printFieldOf(json, caps, field);
        }
    });
    return hasContent(root);
}

/// A reply that is a text, without elements.
constexpr std::array<Row<int>, 0> textAlone{};

template <auto Reader, const auto& Table>
constexpr Message message(std::string_view root, bool (*decodeIt)(const Input&, JsonPrinter&),
                          std::string_view otherRoot = {}) {
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
