#include "arguments.h"

#include <cstdint>

namespace kvjxml::tool {

using nlohmann::json;

Arguments::Arguments(const std::string& json_, std::string source)
    : source_(std::move(source)), room_(4096 + 6 * json_.size()) {
    try {
        object_ = json::parse(json_);
    } catch (const json::parse_error& error) {
        throw Failure(ExitCode::badJson, source_ + ": byte " + std::to_string(error.byte) + ": is no JSON");
    }
    if (!object_.is_object()) refuse("", "has to be an object");
}

void Arguments::refuse(std::string_view name, const std::string& reason) const {
    const std::string pointer = name.empty() ? "" : (json::json_pointer() / std::string(name)).to_string();
    throw Failure(ExitCode::badJson, source_ + ": \"" + pointer + "\" " + reason);
}

const json* Arguments::find(const char* name) {
    asked_.insert(name);
    const auto found = object_.find(name);
    return found == object_.end() || found->is_null() ? nullptr : &*found;
}

const json& Arguments::at(const char* name) {
    const json* value = find(name);
    if (value == nullptr) refuse(name, "is missing");
    return *value;
}

int Arguments::number(const char* name) {
    const json& value = at(name);
    if (!value.is_number_integer()) refuse(name, "has to be a whole number");
    const bool tooLarge = value.is_number_unsigned() &&
                          value.get<std::uint64_t>() > static_cast<std::uint64_t>(std::numeric_limits<int>::max());
    if (tooLarge || value.get<std::int64_t>() < std::numeric_limits<int>::min()) refuse(name, "is out of range");
    return value.get<int>();
}

float Arguments::decimal(const char* name) {
    const json& value = at(name);
    if (!value.is_number()) refuse(name, "has to be a number");
    const auto number = value.get<double>();
    if (number > std::numeric_limits<float>::max() || number < std::numeric_limits<float>::lowest()) {
        refuse(name, "is out of range");
    }
    return static_cast<float>(number);
}

bool Arguments::flag(const char* name) {
    const json& value = at(name);
    if (!value.is_boolean()) refuse(name, "has to be true or false");
    return value.get<bool>();
}

Text Arguments::text(const char* name) {
    const json* value = find(name);
    if (value == nullptr) return {};
    if (!value->is_string()) refuse(name, "has to be a text");
    auto content = value->get<std::string>();
    if (content.find('\0') != std::string::npos) refuse(name, "holds a NUL character");
    return Text(std::move(content));
}

Text Arguments::requiredText(const char* name) {
    static_cast<void>(at(name));
    return text(name);
}

void Arguments::expectNoOthers() const {
    for (const auto& [name, value] : object_.items()) {
        if (!asked_.contains(name)) refuse(name, "is not a field of this request");
    }
}

}  // namespace kvjxml::tool
