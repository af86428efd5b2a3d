#include "comparison.h"

#include <stdexcept>
#include <string>

#include "fields/capabilities.h"
#include "fields/differences.h"
#include "fields/media.h"
#include "fields/status.h"

namespace kvj::bench {

namespace {

template <class Record>
void compareFields(const char* name, const Record& record, const Record& expected) {
    const std::string difference = describeDifferences(recordType<Record>, &expected, &record);
    if (!difference.empty()) throw std::runtime_error(std::string(name) + " differs from the library:\n" + difference);
}

}  // namespace

void compare(const char* name, const Kavrin::KVGeneralStatus& record, const Kavrin::KVGeneralStatus& expected) {
    compareFields(name, record, expected);
}
void compare(const char* name, const Kavrin::_Capabilities& record, const Kavrin::_Capabilities& expected) {
    compareFields(name, record, expected);
}
void compare(const char* name, const Kavrin::_KVConfiguration& record, const Kavrin::_KVConfiguration& expected) {
    compareFields(name, record, expected);
}
void compare(const char* name, const Kavrin::_KVMediaInfo& record, const Kavrin::_KVMediaInfo& expected) {
    compareFields(name, record, expected);
}

}  // namespace kvj::bench
