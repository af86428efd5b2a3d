#include "support/readers.h"

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
#include <concepts>
#include <cstring>
#include <iterator>

#include "foundation/member.h"

namespace kvjxml::tests {

namespace {

using namespace Kavrin;

// ---- Lists of any length: the host's arrays lie in the memory of the record ----

/// Room for the entries of a list. A host's array of exactly so many entries as the list needs ends in front of one
/// that stays zero.
template <class Entry, std::size_t Room>
struct Entries {
    static constexpr std::size_t room = Room;
    Entry entries[Room];
    Entry behind;

    Entry* last(std::size_t count) { return std::end(entries) - count; }
};

template <class List_, class Entry>
struct ListAndEntries {
    using List = List_;
    List list;
    Entries<Entry, 64> entries;
};
using AccessPoints = ListAndEntries<_tagAccessPoints, _tagAccessPoint>;
using ServiceHistory = ListAndEntries<_tagLogServiceXML, _tagLogServiceValues>;

struct Capabilities {
    _Capabilities caps;
    Entries<_PortCaps, 16> hostPorts;
    Entries<_PortCaps, 16> devicePorts;
    Entries<_InterfaceCaps, 16> swInterfaces;
    Entries<_OCPLanguageCaps, 16> ocpLanguages;
    Entries<int, 16> graphicFormats;
    Entries<_FontCaps, 16> fonts;
    Entries<_TemplateCaps, 4> templates;
    Entries<_TemplateCaps, 4> graphics;
    Entries<_BarCodeCaps, 16> barCodes;
};

/// The first entries of a catalogue, copied out of its lists, and how many these hold.
struct Media {
    template <class Entry>
    struct List {
        std::size_t count;
        Entry entries[16];
    };
    List<_CardInfo> cards;
    List<_MediaRibbonInfo> films;
    List<_MediaRibbonInfo> ribbons;
    List<_MediaRibbonInfo> laminates;
};

// ---- What a valid record is: a record without a function here does not compile ----

template <std::size_t N>
bool isTerminated(const char (&text)[N]) {
    return std::memchr(text, '\0', N) != nullptr;
}
template <class... Fields>
bool areTerminated(const Fields&... fields) {
    return (isTerminated(fields) && ...);
}

template <class Record, class... Records>
concept IsOneOf = (std::same_as<Record, Records> || ...);
template <class Record>
concept HasNumbersAlone =
    IsOneOf<Record, int, long, KVGeneralStatus, KVCardCount, KVUpTimes, __MEMORY, KVCleaningStatus, KVSensorInfo,
            _tagWirelessRadioStatus, _tagHostDHKeys, _tagCleaningLogEntry[32]>;
template <HasNumbersAlone Record>
bool isValid(const Record& /*record*/) {
    return true;
}

template <std::size_t N>
bool isValid(const char (&text)[N]) {
    return isTerminated(text);
}

bool isValid(const KVJobStatus& status) { return isTerminated(status.uuid); }

bool isValid(const KVJobList& list) {
    return list.count >= 0 && list.count <= KVJOBLIST_CAPACITY &&
           std::ranges::all_of(list.jobs, [](const _KVJobInfo& job) { return isTerminated(job.uuid); });
}

bool isValid(const _MediaStatusInfo& medium) {
    return areTerminated(medium.description, medium.partNumber, medium.oemCountry);
}
bool isValid(const MediaStatus& status) {
    return isValid(status.ribbon) && isValid(status.film) && isValid(status.topLaminate) &&
           isValid(status.bottomLaminate);
}

bool isValid(const _SENSOR& sensors) { return areTerminated(sensors.ribbonTakeupEncoder, sensors.tricolorState); }

bool isValid(const _KVPrinterSensorInfo& states) {
    return areTerminated(states.ribbonTakeupEncoder, states.ribbonPayoutEncoder, states.doorOpen, states.feederDoorOpen,
                         states.flipperSensorBlocked, states.cardInFlipper, states.outOfCards, states.optionCamState,
                         states.optionCardMotion, states.optionMagBlocked, states.internalEncoderPresent,
                         states.externalEncoderPresent, states.uhfEncoderPresent, states.pusherPlateBlocked,
                         states.feederMode, states.optionCamBlocked, states.cardEdgeBlocked, states.tricolorState,
                         states.headCamBlocked, states.printheadFan);
}

bool isValid(const _tagWirelessStatus& status) { return isTerminated(status.ssid); }

template <class Entry, std::size_t Room>
bool areUntouchedBehind(const Entries<Entry, Room>& entries) {
    const auto* first = reinterpret_cast<const char*>(&entries.behind);
    return std::all_of(first, first + sizeof(Entry), [](char byte) { return byte == 0; });
}

bool isValid(const AccessPoints& points) {
    return areUntouchedBehind(points.entries) &&
           std::ranges::all_of(points.entries.entries,
                               [](const _tagAccessPoint& point) { return isTerminated(point.SSID); });
}

bool isValid(const ServiceHistory& history) { return history.list.count >= 0 && areUntouchedBehind(history.entries); }

bool isValid(const Capabilities& record) {
    const auto isNamed = [](const auto& entry) { return isTerminated(entry.name); };
    const auto isLocated = [](const _TemplateCaps& entry) { return areTerminated(entry.name, entry.location); };
    const auto areUntouchedBehindAll = [](const auto&... lists) { return (areUntouchedBehind(lists) && ...); };
    return std::ranges::all_of(record.ocpLanguages.entries, isNamed) &&
           std::ranges::all_of(record.fonts.entries, isNamed) &&
           std::ranges::all_of(record.templates.entries, isLocated) &&
           std::ranges::all_of(record.graphics.entries, isLocated) &&
           std::ranges::all_of(record.barCodes.entries, isNamed) &&
           areUntouchedBehindAll(record.hostPorts, record.devicePorts, record.swInterfaces, record.ocpLanguages,
                                 record.graphicFormats, record.fonts, record.templates, record.graphics,
                                 record.barCodes);
}

bool isValid(const _RibbonInfo& ribbon) { return areTerminated(ribbon.description, ribbon.oemCountry); }
bool isValid(const _CustomCardInfo& card) { return areTerminated(card.partNumber, card.description); }
bool isValid(const _LaminateInstalled& laminate) { return areTerminated(laminate.description, laminate.oemCountry); }
bool isValid(const _KVConfiguration& configuration) {
    return areTerminated(configuration.wireless.ssid, configuration.wireless.key, configuration.wireless.country,
                         configuration.ocpLanguage.name, configuration.cleaning.cleaningDeadlineIsSoft) &&
           isValid(configuration.ribbon) && isValid(configuration.film) && isValid(configuration.customCard1) &&
           isValid(configuration.customCard2) && isValid(configuration.lamination.topLaminate.laminateInstalled) &&
           isValid(configuration.lamination.bottomLaminate.laminateInstalled);
}

bool isValid(const Media& media) {
    const auto isDescribed = [](const auto& entry) { return areTerminated(entry.partNumber, entry.description); };
    return std::ranges::all_of(media.cards.entries, isDescribed) &&
           std::ranges::all_of(media.films.entries, isDescribed) &&
           std::ranges::all_of(media.ribbons.entries, isDescribed) &&
           std::ranges::all_of(media.laminates.entries, isDescribed);
}

bool isValid(const KVPrinterInfo& info) {
    return areTerminated(info.vendor, info.printer_model, info.printhead_serial, info.oem_country,
                         info.firmware_version, info.laminator_fw_version, info.lam_mab_fw_version,
                         info.reserved_version, info.hcb_fw_version, info.mab_fw_version, info.kavrin_version,
                         info.ethernet_deviceid);
}

bool isValid(const __GETTRACK& tracks) { return areTerminated(tracks.track1, tracks.track2, tracks.track3); }

bool isValid(const _tagSecDirecXML& directive) {
    return areTerminated(directive.model, directive.serial, directive.action, directive.nonce, directive.hmac);
}

bool isValid(const _tagSecReqXML& request) {
    return areTerminated(request.model, request.serial, request.action, request.nonce);
}

bool isValid(const _tagSecKeys& keys) {
    return areTerminated(keys.data_encryption_key, keys.host_authentication_key, keys.printer_lock_key);
}

bool isValid(const _tagSecSetKeys& keys) {
    return areTerminated(keys.current_data_encryption_key, keys.new_data_encryption_key,
                         keys.current_host_authentication_key, keys.new_host_authentication_key,
                         keys.current_printer_lock_key, keys.new_printer_lock_key, keys.current_passkey,
                         keys.new_passkey);
}

// ---- How the readers take a text ----

template <class Parser, class Length, class Record>
bool call(bool (Parser::*reader)(const wchar_t&, Length, Record&), const Text& text, Record& record) {
    return (Parser().*reader)(*text.wide, static_cast<Length>(text.length), record);
}
template <class Parser, std::size_t N>
bool call(bool (Parser::*reader)(const wchar_t&, int, char*), const Text& text, char (&record)[N]) {
    return (Parser().*reader)(*text.wide, static_cast<int>(text.length), record);
}
template <class Parser, class Record>
bool call(bool (Parser::*reader)(wchar_t*, unsigned long, Record&), const Text& text, Record& record) {
    // It could write to its text, and does not.
    return (Parser().*reader)(const_cast<wchar_t*>(text.wide), text.length, record);
}
template <class Parser, class Record>
bool call(bool (Parser::*reader)(const char*, int, Record&), const Text& text, Record& record) {
    return (Parser().*reader)(text.narrow, static_cast<int>(text.length), record);
}
template <class Parser, class Record>
bool call(bool (Parser::*reader)(const char&, int, Record&), const Text& text, Record& record) {
    return (Parser().*reader)(*text.narrow, static_cast<int>(text.length), record);
}

template <auto Reader, class Record>
bool read(const Text& text, Record& record) {
    return call(Reader, text, record);
}

template <auto Reader>
bool readJobs(const Text& text, KVJobList& list) {
    list.count = KVJOBLIST_CAPACITY;
    return call(Reader, text, list);
}

/// In two calls: one for the size of the array, one to fill an array of that size. A host without so much room makes do
/// with the first.
template <auto Reader, auto Array, auto Count, class Record>
bool readList(const Text& text, Record& record) {
    auto& list = record.list;
    const bool counted = call(Reader, text, list);
    const auto needed = static_cast<std::size_t>(list.*Count);
    if (!counted || needed > record.entries.room) return counted;
    list.*Array = record.entries.last(needed);
    const bool result = call(Reader, text, list);
    list.*Array = nullptr;
    return result;
}

/// Calls `action` with each list of the capabilities: its count, its array and the room for its entries.
template <class Action>
void forEachList(Capabilities& record, Action action) {
    _Capabilities& caps = record.caps;
    action(caps.hostPortCount, caps.hostPorts, record.hostPorts);
    action(caps.devicePortCount, caps.devicePorts, record.devicePorts);
    action(caps.swInterfaceCount, caps.swInterfaces, record.swInterfaces);
    action(caps.ocpLanguageCount, caps.ocpLanguages, record.ocpLanguages);
    action(caps.graphicFormatCount, caps.graphicFormats, record.graphicFormats);
    action(caps.fontCount, caps.fonts, record.fonts);
    action(caps.templateCount, caps.templates, record.templates);
    action(caps.graphicCount, caps.graphics, record.graphics);
    action(caps.barCodeCount, caps.barCodes, record.barCodes);
}

/// In two calls as well.
template <auto Reader>
bool readCapabilities(const Text& text, Capabilities& record) {
    call(Reader, text, record.caps);
    forEachList(record, [](int needed, auto*& array, auto& entries) {
        const auto count = static_cast<std::size_t>(needed);
        if (count <= entries.room) array = entries.last(count);
    });
    const bool result = call(Reader, text, record.caps);
    forEachList(record, [](int /*needed*/, auto*& array, auto& /*entries*/) { array = nullptr; });
    return result;
}

/// Into a catalogue of its own: unlike the records it allocates.
template <auto Reader>
bool readMedia(const Text& text, Media& record) {
    const KVMediaPointer media = MakeKVMedia();
    const bool result = call(Reader, text, *media);
    const auto copy = [](const auto& list, auto& room) {
        room.count = list.size();
        const auto shown = static_cast<std::ptrdiff_t>(std::min(list.size(), std::size(room.entries)));
        std::transform(list.begin(), list.begin() + shown, room.entries, [](const auto* entry) { return *entry; });
    };
    copy(*media->cards, record.cards);
    copy(*media->films, record.films);
    copy(*media->ribbons, record.ribbons);
    copy(*media->laminates, record.laminates);
    return result;
}

// ---- The table ----

template <class Operation>
struct Taken;
template <class Parser, class Reply, class Length, class Record_>
struct Taken<bool (Parser::*)(Reply, Length, Record_)> {
    using Record = std::remove_reference_t<Record_>;
    static constexpr bool wide = std::same_as<std::remove_cvref_t<std::remove_pointer_t<Reply>>, wchar_t>;
};

/// An operation, and how it is called where one plain call is not enough.
template <auto Operation, class Record = typename Taken<decltype(Operation)>::Record,
          bool (*Read)(const Text&, Record&) = read<Operation, Record>>
constexpr Reader reader(const char* root) {
    return {nameOf<Operation>(),
            root,
            Taken<decltype(Operation)>::wide,
            sizeof(Record),
            [](const Text& text, void* record) { return Read(text, *static_cast<Record*>(record)); },
            [](const void* record) { return isValid(*static_cast<const Record*>(record)); }};
}

constexpr Reader alone(Reader reader) {
    reader.isAlone = true;
    return reader;
}

constexpr auto parseJobList = &KVJStatusParser::ParseJobList;
constexpr auto parseAccessPoints = &KVJStatusParser::ParseAccessPoints;
constexpr auto parseServiceHistory = &KVJLogParser::ParseLogServiceXML;
constexpr auto getCapabilities = &KVJCapsParser::GetCapabilities;
constexpr auto getMedia = &KVJMediaParser::GetMedia;

constexpr Reader table[] = {
    reader<&KVJStatusParser::ParseStatus>("get_general_status"),
    reader<&KVJStatusParser::ParseJobStatus>("get_job_status"),
    reader<parseJobList, KVJobList, readJobs<parseJobList>>("get_job_list"),
    reader<&KVJStatusParser::ParseMediaStatus>("get_media_status"),
    reader<&KVJStatusParser::ParseCardCount>("get_count"),
    reader<&KVJStatusParser::ParseCleanLogCount>("get_count"),
    reader<&KVJStatusParser::ParseUpTime>("get_laminator_up_times"),
    reader<&KVJStatusParser::GetPrinterFreeSpace>("get_free_ram"),
    reader<&KVJStatusParser::GetFlashFreeSpace>("get_free_flash"),
    reader<&KVJStatusParser::ParseCleaningStatus>("get_cleaning_status"),
    reader<&KVJStatusParser::ParseSensorStatus>("get_sensor_status"),
    reader<&KVJSensorParser::ParseSensorInfo>("get_sensor_status"),
    reader<&KVJSensorParser::ParseSensorStates>("get_sensor_status"),
    reader<&KVJStatusParser::ParseWirelessStatusXML>("get_wireless_status"),
    reader<&KVJStatusParser::ParseWirlessRadioXML>("get_wireless_radio_status"),
    reader<parseAccessPoints, AccessPoints,
           readList<parseAccessPoints, &_tagAccessPoints::accessPoints, &_tagAccessPoints::count>>("AccessPoints"),
    reader<parseServiceHistory, ServiceHistory,
           readList<parseServiceHistory, &_tagLogServiceXML::entries, &_tagLogServiceXML::count>>(
        "get_log_service_history"),
    reader<&KVJLogParser::ParseCleaningLog>("get_log_cleaning_history"),
    reader<&KVJGetEIN::GetMagneticTracks>("data"),
    reader<&KVJNDC::GetLaminatorResponse, char[512]>("lam_ndc_rsp"),
    reader<&KVJSecAction::GetNonceValue, char[32]>("nonce"),
    reader<&KVJSecAction::ParseHostDHKeyValues>("diffie_hellman"),
    reader<&KVJSecAction::ParsePrinterDHKeyValues>("diffie_hellman"),
    reader<&KVJSecAction::ParseSecureDirectiveValues>("action"),
    reader<&KVJSecAction::ParseSecureRequestValues>("secure_action_request"),
    reader<&KVJSecAction::ParseSecurityKeys>("keys"),
    reader<&KVJSecAction::ParseSetSecurityKeys>("keys"),
    reader<&KVJSecAction::ParseGetSecureActionRequest>("passkey"),
    reader<getCapabilities, Capabilities, readCapabilities<getCapabilities>>("capabilities"),
    alone(reader<&KVJConfigParser::GetConfiguration>("configuration")),
    reader<getMedia, Media, readMedia<getMedia>>("media"),
    reader<&KVJPrinterIDParser::ParsePrinterInfo>("printer_id"),
};

}  // namespace

std::span<const Reader> readers() { return table; }

}  // namespace kvjxml::tests
