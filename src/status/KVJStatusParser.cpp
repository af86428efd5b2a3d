#include "KVJStatusParser.h"

#include <algorithm>

#include "foundation/reply.h"
#include "status/counters.h"
#include "status/job.h"
#include "status/media.h"
#include "status/sensors.h"
#include "status/wireless.h"

namespace Kavrin {

using kvj::anyCodeOf;
using kvj::Element;
using kvj::List;
using kvj::Reply;
using kvj::walk;
namespace tables = kvj::status;

namespace {

bool readJobList(Element element, KVJobList& list) {
    if (!element) return false;
    const int capacity = std::clamp(list.count, 0, KVJOBLIST_CAPACITY);
    List<_KVJobInfo> jobs{{list.jobs, static_cast<std::size_t>(capacity)}};
    const bool result = walk(element, jobs, tables::jobList);
    list.count = static_cast<int>(jobs.filled);
    return result;
}

bool readAccessPoints(Element element, _tagAccessPoints& list) {
    if (!element) return false;
    const std::size_t children = kvj::countChildren(element);
    // A host that passes no count has an array as large as the reply needs.
    const bool isShort = list.accessPoints != nullptr && list.count > 0 && list.count < children;
    if (!isShort) list.count = static_cast<unsigned int>(children);
    if (list.accessPoints == nullptr) return true;
    List<_tagAccessPoint> accessPoints{{list.accessPoints, list.count}};
    return walk(element, accessPoints, tables::accessPoints);
}

}  // namespace

// ---- General status and jobs ----

bool KVJStatusParser::ParseStatus(const wchar_t& reply, int length, KVGeneralStatus& status) {
    return walk(Reply(reply, length).root("get_general_status"), status, tables::generalStatus);
}

bool KVJStatusParser::parseStatus(TiXmlElement* element, KVGeneralStatus& status) {
    return walk(element, status, tables::generalStatus);
}

bool KVJStatusParser::ParseJobStatus(const wchar_t& reply, int length, KVJobStatus& status) {
    return walk(Reply(reply, length).root("get_job_status"), status, tables::jobStatus);
}

bool KVJStatusParser::parseJobStatus(TiXmlElement* element, KVJobStatus& status) {
    return walk(element, status, tables::jobStatus);
}

bool KVJStatusParser::parseJobPrinting(TiXmlElement* element, KVJobStatus& status) {
    return walk(element, status, tables::jobPrinting);
}

bool KVJStatusParser::getStatus(TiXmlElement* element, KVJobStatus& status) {
    return walk(element, status, tables::jobEncoding);
}

bool KVJStatusParser::ParseJobList(const wchar_t& reply, int length, KVJobList& list) {
    return readJobList(Reply(reply, length).root("get_job_list"), list);
}

bool KVJStatusParser::parseJobList(TiXmlElement* element, KVJobList& list) { return readJobList(element, list); }

bool KVJStatusParser::parseJobInfo(TiXmlElement* element, _KVJobInfo& job) {
    return walk(element, job, tables::jobInfo);
}

// ---- Media ----

bool KVJStatusParser::ParseMediaStatus(const wchar_t& reply, int length, MediaStatus& status) {
    return walk(Reply(reply, length).root("get_media_status"), status, tables::mediaStatus);
}

bool KVJStatusParser::parseMediaStatus(TiXmlElement* element, MediaStatus& status) {
    return walk(element, status, tables::mediaStatus);
}

bool KVJStatusParser::getRibbonStatus(TiXmlElement* element, MediaStatus& status) {
    return walk(element, status.ribbon, tables::ribbon);
}

bool KVJStatusParser::getInTMStatus(TiXmlElement* element, MediaStatus& status) {
    return walk(element, status.film, tables::film);
}

bool KVJStatusParser::getLaminateStatus(TiXmlElement* element, _MediaStatusInfo& laminate) {
    return walk(element, laminate, tables::laminate);
}

bool KVJStatusParser::getRibbonDescription(TiXmlElement* element, char* description) {
    tables::PanelSequence sequence{description};
    return description != nullptr && walk(element, sequence, tables::panelSequence);
}

// ---- Counters, memory and cleaning ----

bool KVJStatusParser::ParseCardCount(const wchar_t& reply, int length, KVCardCount& counts) {
    return walk(Reply(reply, length).root("get_count"), counts, tables::cardCount);
}

bool KVJStatusParser::parseCardCount(TiXmlElement* element, KVCardCount& counts) {
    return walk(element, counts, tables::cardCount);
}

bool KVJStatusParser::ParseCleanLogCount(const wchar_t& reply, int length, int& cards) {
    return walk(Reply(reply, length).root("get_count"), cards, tables::cardsUntilCleaning);
}

bool KVJStatusParser::parseCleanLog(TiXmlElement* element, int& cards) {
    return walk(element, cards, tables::cardsUntilCleaning);
}

bool KVJStatusParser::ParseUpTime(const wchar_t& reply, int length, KVUpTimes& times) {
    return walk(Reply(reply, length).root("get_laminator_up_times"), times, tables::upTimes);
}

bool KVJStatusParser::parseUpTime(TiXmlElement* element, KVUpTimes& times) {
    return walk(element, times, tables::upTimes);
}

bool KVJStatusParser::GetPrinterFreeSpace(const wchar_t& reply, int length, __MEMORY& memory) {
    return walk(Reply(reply, length).root("get_free_ram"), memory, tables::freeSpace);
}

bool KVJStatusParser::GetFlashFreeSpace(const wchar_t& reply, int length, __MEMORY& memory) {
    return walk(Reply(reply, length).root("get_free_flash"), memory, tables::freeSpace);
}

bool KVJStatusParser::getFreeSpace(TiXmlElement* element, __MEMORY& memory) {
    return walk(element, memory, tables::freeSpace);
}

bool KVJStatusParser::ParseCleaningStatus(const wchar_t& reply, int length, KVCleaningStatus& status) {
    return walk(Reply(reply, length).root("get_cleaning_status"), status, tables::cleaningStatus);
}

// ---- Sensors ----

bool KVJStatusParser::ParseSensorStatus(const wchar_t& reply, int length, _SENSOR& sensors) {
    return walk(Reply(reply, length).root("get_sensor_status"), sensors, tables::sensorStatus);
}

bool KVJStatusParser::parseSensorStatus(TiXmlElement* element, _SENSOR& sensors) {
    return walk(element, sensors, tables::sensorStatus);
}

bool KVJStatusParser::parseSensorState(TiXmlElement* element, _SENSOR& sensors) {
    return walk(element, sensors, tables::sensorSwitches);
}

bool KVJStatusParser::parseSensorValue(TiXmlElement* element, _SENSOR& sensors) {
    return walk(element, sensors, tables::sensorValues);
}

// ---- Wireless ----

bool KVJStatusParser::ParseWirelessStatusXML(const wchar_t& reply, int length, _tagWirelessStatus& status) {
    return walk(Reply(reply, length).root("get_wireless_status"), status, tables::wirelessStatus);
}

bool KVJStatusParser::parseWirelessStatus(TiXmlElement* element, _tagWirelessStatus& status) {
    return walk(element, status, tables::wirelessStatus);
}

bool KVJStatusParser::ParsePacketsInfo(TiXmlElement* element, _tagPackets& packets) {
    return walk(element, packets, tables::packets);
}

bool KVJStatusParser::ParseWirlessRadioXML(const wchar_t& reply, int length, _tagWirelessRadioStatus& status) {
    return walk(Reply(reply, length).root("get_wireless_radio_status"), status, tables::wirelessRadioStatus);
}

bool KVJStatusParser::parseWirelessRadioStatus(TiXmlElement* element, _tagWirelessRadioStatus& status) {
    return walk(element, status, tables::wirelessRadioStatus);
}

bool KVJStatusParser::ParseAccessPoints(const wchar_t& reply, int length, _tagAccessPoints& list) {
    return readAccessPoints(Reply(reply, length).root("AccessPoints"), list);
}

bool KVJStatusParser::parseAllWirelessAccessPoint(TiXmlElement* element, _tagAccessPoints& list) {
    return readAccessPoints(element, list);
}

bool KVJStatusParser::parseWirelessAccessPoints(TiXmlElement* element, _tagAccessPoint& accessPoint) {
    return walk(element, accessPoint, tables::accessPoint);
}

bool KVJStatusParser::GetSecurity(TiXmlElement* element, unsigned int& codes) {
    return tables::combine(element, codes, tables::securityWords);
}

bool KVJStatusParser::GetCrypto(TiXmlElement* element, unsigned int& codes) {
    return tables::combine(element, codes, tables::cipherWords);
}

// ---- Words ----

int KVJStatusParser::printerStateToInt(char* word) { return anyCodeOf(tables::printerStates, word); }

int KVJStatusParser::lamStateToInt(char* word) { return anyCodeOf(tables::laminatorStates, word); }

int KVJStatusParser::jobStatusToInt(char* word) { return anyCodeOf(tables::jobStates, word); }

int KVJStatusParser::cleaningStateToInt(char* word) { return anyCodeOf(tables::cleaningStates, word); }

int KVJStatusParser::GetWirelessState(char* word) { return anyCodeOf(tables::wirelessStates, word); }

}  // namespace Kavrin
