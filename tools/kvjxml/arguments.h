/// @file arguments.h
/// The JSON that a request is composed from, read field by field.
#ifndef KVJXML_TOOL_ARGUMENTS_H
#define KVJXML_TOOL_ARGUMENTS_H

#include <nlohmann/json.hpp>
#include <set>
#include <string>

#include "place.h"

namespace kvjxml::tool {

/// A text that a composer takes as a pointer to characters that it does not change, though it does not say so; null
/// where the JSON has none.
class Text {
public:
    Text() = default;
    explicit Text(std::string text) : text_(std::move(text)), given_(true) {}
    [[nodiscard]] char* pointer() { return given_ ? text_.data() : nullptr; }
    [[nodiscard]] const std::string& text() const { return text_; }

private:
    std::string text_;
    bool given_ = false;
};

class Arguments {
public:
    /// @throws Failure when the text is no JSON object, or not as checkedJson takes it.
    Arguments(const std::string& json, std::string source);

    /// The bytes that a document made of these arguments cannot exceed.
    [[nodiscard]] std::size_t room() const { return room_; }

    /// The whole object, for a request that is made of a record.
    [[nodiscard]] Place whole() const { return {object_, source_}; }

    int number(const char* name);
    float decimal(const char* name);
    bool flag(const char* name);
    /// A field that is null or not there is a null text.
    Text text(const char* name);
    /// A text that has to be there.
    Text requiredText(const char* name);
    /// A text that has to be there and becomes the name of an element.
    Text elementName(const char* name);
    /// A text for a field of a record.
    template <std::size_t N>
    void text(const char* name, char (&field)[N]) {
        if (has(name)) whole().at(name).read(field);
    }

    /// @throws Failure when there is a field that nothing asked for.
    void expectNoOthers() const;

private:
    bool has(const char* name);
    template <class Value>
    Value value(const char* name);

    std::string source_;
    nlohmann::json object_;
    std::set<std::string, std::less<>> asked_;
    std::size_t room_;
};

}  // namespace kvjxml::tool

#endif
