/// @file place.h
/// A place in the JSON that a request is composed from, and how its value gets into a record. Whatever is not as the
/// request takes it is refused, with a JSON pointer to the place: a wrong word in a request ruins cards.
#ifndef KVJXML_TOOL_PLACE_H
#define KVJXML_TOOL_PLACE_H

#include <concepts>
#include <cstdint>
#include <limits>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace kvjxml::tool {

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
    /// A field that has to be there.
    [[nodiscard]] Place at(std::string_view field) const;
    [[nodiscard]] Place at(std::size_t index) const;
    /// Whether a field is there and not null; such a one counts as none.
    [[nodiscard]] bool has(std::string_view field) const;

    /// Each refuses a value of another type, or one that the target cannot hold.
    void expectObject() const;
    /// @return how many entries there are.
    [[nodiscard]] std::size_t expectList() const;
    [[nodiscard]] std::string text() const;
    /// A text that can be the name of an element.
    [[nodiscard]] std::string elementName() const;
    void read(bool& flag) const;
    void read(float& number) const;
    template <std::integral Integer>
    void read(Integer& number) const {
        const std::int64_t wide = wholeNumber();
        if (!std::in_range<Integer>(wide)) refuse("is out of range");
        number = static_cast<Integer>(wide);
    }
    template <class Enumeration>
    requires std::is_enum_v<Enumeration>
    void read(Enumeration& code) const {
        int number = 0;
        read(number);
        code = static_cast<Enumeration>(number);
    }
    template <std::size_t N>
    void read(char (&field)[N]) const {
        const std::string content = text();
        if (content.size() >= N) refuse("is longer than " + std::to_string(N - 1) + " bytes");
        content.copy(field, N - 1);
        field[content.size()] = '\0';
    }
    /// A hardware address, "00:1a:2b:3c:4d:5e".
    void read(unsigned char (&address)[6]) const;
    /// An IPv4 address, "192.168.0.1".
    void readIpAddress(unsigned long& address) const;

private:
    using Pointer = nlohmann::json::json_pointer;
    Place(const nlohmann::json& value, const std::string& source, Pointer pointer)
        : value_(&value), source_(&source), pointer_(std::move(pointer)) {}
    [[nodiscard]] std::int64_t wholeNumber() const;

    const nlohmann::json* value_;
    const std::string* source_;
    Pointer pointer_;
};

}  // namespace kvjxml::tool

#endif
