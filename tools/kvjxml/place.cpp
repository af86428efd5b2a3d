#include "place.h"

#include <arpa/inet.h>

#include <limits>

#include "failure.h"
#include "visible_text.h"
#include "xml_text.h"

namespace kvj::tool {

void refuse(const std::string& source, const nlohmann::json::json_pointer& place, const std::string& reason) {
    throw Failure(ExitCode::badJson, visible(source) + ": \"" + visible(place.to_string()) + "\" " + reason);
}

void Place::refuse(const std::string& reason) const { tool::refuse(*source_, pointer_, reason); }

void Place::refuse(std::string_view field, const std::string& reason) const {
    Place(*value_, *source_, pointer_ / std::string(field)).refuse(reason);
}

bool Place::has(std::string_view field) const {
    const auto found = value_->find(field);
    return found != value_->end() && !found->is_null();
}

Place Place::at(std::string_view field) const {
    if (!has(field)) refuse(field, "is missing");
    return {*value_->find(field), *source_, pointer_ / std::string(field)};
}

Place Place::at(std::size_t index) const { return {(*value_)[index], *source_, pointer_ / index}; }

void Place::expectObject() const {
    if (!value_->is_object()) refuse("has to be an object");
}

std::size_t Place::expectList() const {
    constexpr std::size_t longest = 65536;  // No printer's list comes near this.
    if (!value_->is_array()) refuse("has to be a list");
    if (value_->size() > longest) refuse("has more than " + std::to_string(longest) + " entries");
    return value_->size();
}

std::string Place::text() const {
    if (!value_->is_string()) refuse("has to be a text");
    return value_->get<std::string>();
}

std::string Place::elementName() const {
    auto name = text();
    if (!isElementName(name)) {
        refuse("has to be the name of an element: ASCII letters, digits, '_', '-' and '.', a letter or '_' first");
    }
    return name;
}

bool Place::flag() const {
    if (!value_->is_boolean()) refuse("has to be true or false");
    return value_->get<bool>();
}

float Place::decimal() const {
    if (!value_->is_number()) refuse("has to be a number");
    const auto wide = value_->get<double>();
    if (wide > std::numeric_limits<float>::max() || wide < std::numeric_limits<float>::lowest()) {
        refuse("is out of range");
    }
    return static_cast<float>(wide);
}

std::int64_t Place::wholeNumber() const {
    if (!value_->is_number_integer()) refuse("has to be a whole number");
    if (value_->is_number_unsigned() && !std::in_range<std::int64_t>(value_->get<std::uint64_t>())) {
        refuse("is out of range");
    }
    return value_->get<std::int64_t>();
}

convert::HardwareAddress Place::hardwareAddress() const {
    const std::string content = text();
    const auto bytes = convert::toHardwareAddress(content.c_str());
    // Only a text that would be written in just this way is one.
    std::string lower = content;
    for (char& letter : lower) {
        if (letter >= 'A' && letter <= 'F') letter = static_cast<char>(letter - 'A' + 'a');
    }
    if (lower != convert::fromHardwareAddress(bytes.data()).c_str()) {
        refuse("has to be a hardware address such as 00:1a:2b:3c:4d:5e");
    }
    return bytes;
}

unsigned long Place::ipAddress() const {
    in_addr network{};
    if (inet_pton(AF_INET, text().c_str(), &network) != 1) refuse("has to be an IPv4 address such as 192.168.0.1");
    return network.s_addr;
}

}  // namespace kvj::tool
