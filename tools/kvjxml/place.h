/// @file place.h
/// A place in the JSON that a request is composed from; its value is read into a record. Whatever the request cannot
/// take is refused, with a JSON pointer to the place: a wrong word in a request ruins cards.
#ifndef KVJXML_TOOL_PLACE_H
#define KVJXML_TOOL_PLACE_H

#include <cstdint>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <utility>

#include "foundation/convert.h"

namespace kvj::tool {

/// @throws Failure for a place in the JSON that came from `source`.
[[noreturn]] void refuse(const std::string& source, const nlohmann::json::json_pointer& place,
                         const std::string& reason);

class Place {
public:
    /// `value` and `source`, which says where it came from, outlive the place.
    Place(const nlohmann::json& value, const std::string& source) : value_(&value), source_(&source) {}

    /// @throws Failure
    [[noreturn]] void refuse(const std::string& reason) const;
    [[noreturn]] void refuse(std::string_view field, const std::string& reason) const;

    [[nodiscard]] const nlohmann::json& value() const { return *value_; }
    [[nodiscard]] std::string pointer() const { return pointer_.to_string(); }
    /// A field that has to be there.
    [[nodiscard]] Place at(std::string_view field) const;
    [[nodiscard]] Place at(std::size_t index) const;
    /// Whether a field is there and not null; null counts as missing.
    [[nodiscard]] bool has(std::string_view field) const;

    /// Each refuses a value of another type, or one that the target cannot hold.
    void expectObject() const;
    /// @return how many entries there are.
    [[nodiscard]] std::size_t expectList() const;
    [[nodiscard]] std::string text() const;
    /// A text that can be the name of an element.
    [[nodiscard]] std::string elementName() const;
    [[nodiscard]] bool flag() const;
    [[nodiscard]] float decimal() const;
    [[nodiscard]] std::int64_t wholeNumber() const;
    /// Of a text such as "00:1a:2b:3c:4d:5e".
    [[nodiscard]] convert::HardwareAddress hardwareAddress() const;
    /// Of a text such as "192.168.0.1", in network byte order.
    [[nodiscard]] unsigned long ipAddress() const;

private:
    using Pointer = nlohmann::json::json_pointer;
    Place(const nlohmann::json& value, const std::string& source, Pointer pointer)
        : value_(&value), source_(&source), pointer_(std::move(pointer)) {}

    const nlohmann::json* value_;
    const std::string* source_;
    Pointer pointer_;
};

}  // namespace kvj::tool

#endif
