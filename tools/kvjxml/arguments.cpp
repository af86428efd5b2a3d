#include "arguments.h"

#include "failure.h"

namespace kvjxml::tool {

using nlohmann::json;

Arguments::Arguments(const std::string& json_, std::string source)
    : source_(std::move(source)), room_(4096 + 6 * json_.size()) {
    try {
        object_ = json::parse(json_);
    } catch (const json::parse_error& error) {
        throw Failure(ExitCode::badJson, source_ + ": byte " + std::to_string(error.byte) + ": is no JSON");
    } catch (const json::out_of_range&) {  // A number that not even a double can hold.
        throw Failure(ExitCode::badJson, source_ + ": \"\" holds a number that is out of range");
    }
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

void Arguments::expectNoOthers() const {
    for (const auto& [name, value] : object_.items()) {
        if (!asked_.contains(name)) whole().refuse(name, "is not a field of this request");
    }
}

}  // namespace kvjxml::tool
