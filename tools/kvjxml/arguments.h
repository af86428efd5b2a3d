/// @file arguments.h
/// The JSON that a request is composed from, read field by field. Whatever is not as the request takes it is refused,
/// with a JSON pointer to the place: a wrong word in a request ruins cards.
#ifndef KVJXML_TOOL_ARGUMENTS_H
#define KVJXML_TOOL_ARGUMENTS_H

#include <limits>
#include <nlohmann/json.hpp>
#include <set>
#include <string>
#include <string_view>

#include "failure.h"

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
    /// @throws Failure when the text is no JSON object.
    Arguments(const std::string& json, std::string source);

    /// The bytes that a document made of these arguments cannot exceed.
    [[nodiscard]] std::size_t room() const { return room_; }

    int number(const char* name);
    float decimal(const char* name);
    bool flag(const char* name);
    /// A field that is null or not there is a null text.
    Text text(const char* name);
    /// A text that has to be there.
    Text requiredText(const char* name);
    /// A text for a field of a record.
    template <std::size_t N>
    void text(const char* name, char (&field)[N]) {
        const Text value = text(name);
        if (value.text().size() >= N) refuse(name, "is longer than " + std::to_string(N - 1) + " bytes");
        value.text().copy(field, N - 1);
    }

    /// @throws Failure when there is a field that nothing asked for.
    void expectNoOthers() const;

private:
    [[noreturn]] void refuse(std::string_view name, const std::string& reason) const;
    const nlohmann::json* find(const char* name);
    const nlohmann::json& at(const char* name);

    std::string source_;
    nlohmann::json object_;
    std::set<std::string, std::less<>> asked_;
    std::size_t room_;
};

}  // namespace kvjxml::tool

#endif
