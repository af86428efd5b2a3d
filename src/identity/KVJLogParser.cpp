#include "KVJLogParser.h"

#include <algorithm>
#include <span>

#include "foundation/reply.h"
#include "identity/logs.h"

namespace Kavrin {

using kvj::Element;
using kvj::List;
using kvj::Reply;
using kvj::walk;
namespace tables = kvj::identity;

namespace {

bool readServiceHistory(Element element, _tagLogServiceXML& log) {
    const std::size_t children = kvj::countChildren(element);
    if (children == 0) return false;
    if (log.entries == nullptr) {
        log.count = static_cast<int>(children);
        return true;
    }
    List<_tagLogServiceValues> list{{log.entries, static_cast<std::size_t>(std::max(log.count, 0))}};
    return walk(element, list, tables::serviceHistory);
}

bool readCleaningHistory(Element element, _tagCleaningLogEntry (&entries)[32]) {
    List<_tagCleaningLogEntry> list{entries};
    return walk(element, list, tables::cleaningHistory);
}

}  // namespace

bool KVJLogParser::ParseLogServiceXML(const wchar_t& reply, unsigned long length, _tagLogServiceXML& log) {
    return readServiceHistory(Reply(reply, static_cast<std::int64_t>(length)).root("get_log_service_history"), log);
}

bool KVJLogParser::ParseCleaningLog(const wchar_t& reply, unsigned long length, _tagCleaningLogEntry (&entries)[32]) {
    return readCleaningHistory(Reply(reply, static_cast<std::int64_t>(length)).root("get_log_cleaning_history"),
                               entries);
}

bool KVJLogParser::parseServiceHistoryValues(TiXmlElement* element, _tagLogServiceXML& log) {
    return readServiceHistory(element, log);
}

bool KVJLogParser::getServiceValues(TiXmlElement* element, _tagLogServiceValues& entry) {
    return walk(element, entry, tables::serviceEntry);
}

bool KVJLogParser::getCleaningLogValues(TiXmlElement* element, _tagCleaningLogEntry (&entries)[32]) {
    return readCleaningHistory(element, entries);
}

bool KVJLogParser::getCleaningLogEntry(TiXmlElement* element, _tagCleaningLogEntry& entry) {
    return walk(element, entry, tables::cleaningEntry);
}

}  // namespace Kavrin
