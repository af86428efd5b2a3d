#include "comparison.h"

#include <sstream>
#include <stdexcept>
#include <string>

#include "kvjxml/fields.h"

namespace kvjxml::bench {

namespace {

using nlohmann::json;

// The tool's lists of fields are complete, or it does not compile.
template <class Record>
json toJson(const Record& record) {
    std::stringstream text;
    tool::JsonPrinter printer(text);
    tool::printFields<Record>(printer, tool::fields<Record>, [&](auto field) {
        if constexpr (requires { field.array; }) {
            tool::print(printer, record.*field.array, static_cast<std::size_t>(record.*field.count));
        } else {
            tool::printFieldOf(printer, record, field);
        }
    });
    return json::parse(text);
}

template <class Record>
void compareFields(const char* name, const Record& record, const Record& expected) {
    const json difference = json::diff(toJson(expected), toJson(record));
    if (!difference.empty()) {
        throw std::runtime_error(std::string(name) + " differs from the library: " + difference.dump());
    }
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

}  // namespace kvjxml::bench
