// A host that reads every sample with every reader and says what it finds in its records, bit by bit. It knows the
// library by its public headers alone, and is compiled with those of an earlier commit as well: what it says then has
// to be the same.
#include <cinttypes>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <type_traits>
#include <vector>

#include "kvjxml.h"

namespace {

using namespace Kavrin;

constexpr std::size_t behind = 4096;  // What a record that has grown would take.
constexpr unsigned char untouched = 0xA5;

struct Reply {
    std::string file;
    std::string narrow;
    std::wstring wide;
};

template <class Parser, class Length, class Record>
bool call(bool (Parser::*reader)(const wchar_t&, Length, Record&), Reply& reply, Record& record) {
    return (Parser().*reader)(*reply.wide.c_str(), static_cast<Length>(reply.wide.size()), record);
}
template <class Parser, std::size_t N>
bool call(bool (Parser::*reader)(const wchar_t&, int, char*), Reply& reply, char (&record)[N]) {
    return (Parser().*reader)(*reply.wide.c_str(), static_cast<int>(reply.wide.size()), record);
}
template <class Parser, class Record>
bool call(bool (Parser::*reader)(wchar_t*, unsigned long, Record&), Reply& reply, Record& record) {
    return (Parser().*reader)(reply.wide.data(), reply.wide.size(), record);
}
template <class Parser, class Record>
bool call(bool (Parser::*reader)(const char*, int, Record&), Reply& reply, Record& record) {
    return (Parser().*reader)(reply.narrow.c_str(), 0, record);
}
template <class Parser, class Record>
bool call(bool (Parser::*reader)(const char&, int, Record&), Reply& reply, Record& record) {
    return (Parser().*reader)(*reply.narrow.c_str(), 0, record);
}

// ---- Lists, which the host has room for: pointers to it are no part of what it finds ----

template <class List, class Entry, Entry* List::*Array, class Count, Count List::*Counter>
struct WithEntries {
    List list;
    Entry entries[64];
};
using AccessPoints = WithEntries<_tagAccessPoints, _tagAccessPoint, &_tagAccessPoints::accessPoints, unsigned int,
                                 &_tagAccessPoints::count>;
using ServiceHistory =
    WithEntries<_tagLogServiceXML, _tagLogServiceValues, &_tagLogServiceXML::entries, int, &_tagLogServiceXML::count>;

template <class Operation, class List, class Entry, Entry* List::*Array, class Count, Count List::*Counter>
bool call(Operation reader, Reply& reply, WithEntries<List, Entry, Array, Count, Counter>& record) {
    record.list.*Array = record.entries;
    record.list.*Counter = 64;
    const bool result = call(reader, reply, record.list);
    record.list.*Array = nullptr;
    return result;
}

bool call(decltype(&KVJStatusParser::ParseJobList) reader, Reply& reply, KVJobList& record) {
    record.count = KVJOBLIST_CAPACITY;
    return (KVJStatusParser().*reader)(*reply.wide.c_str(), static_cast<int>(reply.wide.size()), record);
}

struct Capabilities {
    _Capabilities caps;
    _PortCaps ports[16];
    _FontCaps fonts[16];
};

bool call(decltype(&KVJCapsParser::GetCapabilities) reader, Reply& reply, Capabilities& record) {
    record.caps.hostPorts = record.ports;
    record.caps.fonts = record.fonts;
    record.caps.hostPortCount = record.caps.fontCount = 16;
    const bool result = call(reader, reply, record.caps);
    record.caps.hostPorts = nullptr;
    record.caps.fonts = nullptr;
    return result;
}

/// The first entries of a catalogue.
struct Media {
    _CardInfo cards[4];
    _MediaRibbonInfo films[4];
    _MediaRibbonInfo laminates[4];
};

template <class Entry, std::size_t N>
void copy(const std::vector<Entry*>& list, Entry (&entries)[N]) {
    for (std::size_t i = 0; i < N && i < list.size(); ++i) entries[i] = *list[i];
}

bool call(decltype(&KVJMediaParser::GetMedia) reader, Reply& reply, Media& record) {
    const KVMediaPointer media = MakeKVMedia();
    const bool result = call(reader, reply, *media);
    copy(*media->cards, record.cards);
    copy(*media->films, record.films);
    copy(*media->laminates, record.laminates);
    return result;
}

// ---- What it says ----

std::uint64_t hashOf(const std::vector<unsigned char>& bytes, std::size_t size) {
    std::uint64_t hash = 14695981039346656037U;
    for (std::size_t i = 0; i < size; ++i) hash = (hash ^ bytes[i]) * 1099511628211U;
    return hash;
}

template <class Operation>
struct Taken;
template <class Parser, class Text, class Length, class Record_>
struct Taken<bool (Parser::*)(Text, Length, Record_)> {
    using Record = std::remove_reference_t<Record_>;
};

/// Whether the reader keeps within the record.
template <auto Reader, class Record = typename Taken<decltype(Reader)>::Record>
bool read(const char* name, Reply& reply) {
    std::vector<unsigned char> memory(sizeof(Record) + behind, untouched);
    std::memset(memory.data(), 0, sizeof(Record));
    const bool result = call(Reader, reply, *reinterpret_cast<Record*>(memory.data()));
    std::printf("%s %s %d %zu %016" PRIx64 "\n", reply.file.c_str(), name, result, sizeof(Record),
                hashOf(memory, sizeof(Record)));
    for (std::size_t i = sizeof(Record); i < memory.size(); ++i) {
        if (memory[i] == untouched) continue;
        std::printf("%s writes behind its record\n", name);
        return false;
    }
    return true;
}

struct Reader {
    const char* name;
    bool (*read)(const char* name, Reply& reply);
};

constexpr Reader readers[] = {
    {"ParseStatus", read<&KVJStatusParser::ParseStatus>},
    {"ParseJobStatus", read<&KVJStatusParser::ParseJobStatus>},
    {"ParseJobList", read<&KVJStatusParser::ParseJobList>},
    {"ParseMediaStatus", read<&KVJStatusParser::ParseMediaStatus>},
    {"ParseCardCount", read<&KVJStatusParser::ParseCardCount>},
    {"ParseCleanLogCount", read<&KVJStatusParser::ParseCleanLogCount>},
    {"ParseUpTime", read<&KVJStatusParser::ParseUpTime>},
    {"GetPrinterFreeSpace", read<&KVJStatusParser::GetPrinterFreeSpace>},
    {"GetFlashFreeSpace", read<&KVJStatusParser::GetFlashFreeSpace>},
    {"ParseCleaningStatus", read<&KVJStatusParser::ParseCleaningStatus>},
    {"ParseSensorStatus", read<&KVJStatusParser::ParseSensorStatus>},
    {"ParseSensorInfo", read<&KVJSensorParser::ParseSensorInfo>},
    {"ParseSensorStates", read<&KVJSensorParser::ParseSensorStates>},
    {"ParseWirelessStatusXML", read<&KVJStatusParser::ParseWirelessStatusXML>},
    {"ParseWirlessRadioXML", read<&KVJStatusParser::ParseWirlessRadioXML>},
    {"ParseAccessPoints", read<&KVJStatusParser::ParseAccessPoints, AccessPoints>},
    {"GetCapabilities", read<&KVJCapsParser::GetCapabilities, Capabilities>},
    {"GetConfiguration", read<&KVJConfigParser::GetConfiguration>},
    {"GetMedia", read<&KVJMediaParser::GetMedia, Media>},
    {"ParsePrinterInfo", read<&KVJPrinterIDParser::ParsePrinterInfo>},
    {"ParseLogServiceXML", read<&KVJLogParser::ParseLogServiceXML, ServiceHistory>},
    {"ParseCleaningLog", read<&KVJLogParser::ParseCleaningLog>},
    {"GetMagneticTracks", read<&KVJGetEIN::GetMagneticTracks>},
    {"GetLaminatorResponse", read<&KVJNDC::GetLaminatorResponse, char[512]>},
    {"GetNonceValue", read<&KVJSecAction::GetNonceValue, char[32]>},
    {"ParseHostDHKeyValues", read<&KVJSecAction::ParseHostDHKeyValues>},
    {"ParsePrinterDHKeyValues", read<&KVJSecAction::ParsePrinterDHKeyValues>},
    {"ParseSecureDirectiveValues", read<&KVJSecAction::ParseSecureDirectiveValues>},
    {"ParseSecureRequestValues", read<&KVJSecAction::ParseSecureRequestValues>},
    {"ParseSecurityKeys", read<&KVJSecAction::ParseSecurityKeys>},
    {"ParseSetSecurityKeys", read<&KVJSecAction::ParseSetSecurityKeys>},
    {"ParseGetSecureActionRequest", read<&KVJSecAction::ParseGetSecureActionRequest>},
};

}  // namespace

int main(int, char** arguments) {
    bool isWithin = true;
    for (const auto& entry : std::filesystem::directory_iterator(arguments[1])) {
        std::ifstream stream(entry.path());
        Reply reply{entry.path().filename().string(), {std::istreambuf_iterator<char>(stream), {}}, {}};
        reply.wide.assign(reply.narrow.begin(), reply.narrow.end());
        for (const Reader& reader : readers) isWithin = reader.read(reader.name, reply) && isWithin;
    }
    return isWithin ? 0 : 1;
}
