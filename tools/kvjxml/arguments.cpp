#include "arguments.h"

#include "checked_json.h"

namespace kvjxml::tool {

Arguments::Arguments(const std::string& json, std::string source)
    : source_(std::move(source)), object_(checkedJson(json, source_)), room_(4096 + 6 * json.size()) {
    whole().expectObject();
}

bool Arguments::has(const char* name) {
    asked_.insert(name);
    return whole().has(name);
}

template <class Value>
Value Arguments::value(const char* name) {
    asked_.insert(name);
    Value value{};
    whole().at(name).read(value);
    return value;
}

int Arguments::number(const char* name) { return value<int>(name); }

float Arguments::decimal(const char* name) { return value<float>(name); }

bool Arguments::flag(const char* name) { return value<bool>(name); }

Text Arguments::text(const char* name) { return has(name) ? requiredText(name) : Text(); }

Text Arguments::requiredText(const char* name) {
    asked_.insert(name);
    return Text(whole().at(name).text());
}

Text Arguments::elementName(const char* name) {
    asked_.insert(name);
    return Text(whole().at(name).elementName());
}

void Arguments::expectNoOthers() const {
    for (const auto& [name, value] : object_.items()) {
        if (!asked_.contains(name)) whole().refuse(name, "is not a field of this request");
    }
}

}  // namespace kvjxml::tool
