#include "KVJStatusParser.h"

#include "foundation/reply.h"
#include "status/tables.h"

namespace Kavrin {

using kvjxml::anyCodeOf;
using kvjxml::Reply;
using kvjxml::walk;

bool KVJStatusParser::ParseStatus(const wchar_t& reply, int length, KVGeneralStatus& status) {
    return parseStatus(Reply(reply, length).root("get_general_status"), status);
}

bool KVJStatusParser::ParseJobStatus(const wchar_t& reply, int length, KVJobStatus& status) {
    return parseJobStatus(Reply(reply, length).root("get_job_status"), status);
}

bool KVJStatusParser::parseStatus(TiXmlElement* element, KVGeneralStatus& status) {
    return walk(element, status, kvjxml::generalStatus);
}

bool KVJStatusParser::parseJobStatus(TiXmlElement* element, KVJobStatus& status) {
    return walk(element, status, kvjxml::jobStatus);
}

bool KVJStatusParser::parseJobPrinting(TiXmlElement* element, KVJobStatus& status) {
    return walk(element, status, kvjxml::jobPrinting);
}

bool KVJStatusParser::getStatus(TiXmlElement* element, KVJobStatus& status) {
    return walk(element, status, kvjxml::jobEncoding);
}

int KVJStatusParser::printerStateToInt(char* word) { return anyCodeOf(kvjxml::printerStates, word); }

int KVJStatusParser::lamStateToInt(char* word) { return anyCodeOf(kvjxml::laminatorStates, word); }

int KVJStatusParser::jobStatusToInt(char* word) { return anyCodeOf(kvjxml::jobStates, word); }

}  // namespace Kavrin
