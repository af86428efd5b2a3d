#include "encode.h"

#include <cwchar>
#include <iostream>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "checked_json.h"
#include "failure.h"
#include "json_record.h"
#include "messages/zeroed_record.h"
#include "sections.h"

namespace kvjxml::tool {

namespace {

/// The fields that have to be given: those that are written, and of arguments all but the texts that may be null.
Names neededFor(const Request& request, const Choices& choices) {
    Names needed;
    if (request.written == nullptr) {
        for (const Field& field : request.record->fields) {
            const bool isOptional = field.type == FieldType::text ||
                                    (field.type == FieldType::hostText && field.hostText == HostText::optional);
            if (!isOptional) needed.insert(field.name);
        }
        return needed;
    }
    const WrittenFields written = request.written(choices);
    needed = fieldsWritten(written.rows, choices.sections);
    if (!written.alone.empty()) needed.insert(written.alone);
    needed.erase(written.without);
    return needed;
}

[[noreturn]] void notComposed() { throw Failure(ExitCode::badJson, "the library did not compose the request"); }

std::string toUtf8(const std::vector<wchar_t>& text) {
    std::mbstate_t state{};
    const wchar_t* from = text.data();
    const std::size_t length = std::wcsrtombs(nullptr, &from, 0, &state);
    if (length == static_cast<std::size_t>(-1)) notComposed();
    std::string bytes(length, '\0');
    from = text.data();
    bytes.resize(std::wcsrtombs(bytes.data(), &from, length, &state));
    return bytes;
}

/// The text of a request, of whatever length: `compose(out)` is called with buffers that grow until it fits. Empty when
/// the library composed none.
template <class Character, class Compose>
std::vector<Character> grown(Compose compose) {
    constexpr std::size_t usual = 65536;
    for (std::size_t capacity = usual;; capacity *= 4) {
        std::vector<Character> out(capacity);
        if (!compose(out.data(), static_cast<int>(capacity))) return {};
        if (out.back() == Character{}) return out;
    }
}

std::string textOf(const Request& request, const Choices& choices, const void* record) {
    if (request.isWide) {
        const auto text = grown<wchar_t>([&](wchar_t* out, int capacity) {
            return request.compose(record, choices, {.narrow = nullptr, .wide = out, .capacity = capacity});
        });
        return text.empty() ? std::string() : toUtf8(text);
    }
    const auto text = grown<char>([&](char* out, int capacity) {
        return request.compose(record, choices, {.narrow = out, .wide = nullptr, .capacity = capacity});
    });
    return text.empty() ? std::string() : text.data();
}

}  // namespace

std::string composed(const Request& request, const Choices& choices, const std::string& json,
                     const std::string& source) {
    const nlohmann::json fields = checkedJson(json, source);
    Arrays arrays;
    const ZeroedRecord record(request, request.record->size);
    readRecord(Place(fields, source), *request.record, record.get(), neededFor(request, choices), arrays);
    std::string text = textOf(request, choices, record.get());
    if (text.empty() && request.hasSections()) {
        throw Failure(ExitCode::usage, "of the sections that are asked for, the record has nothing to write");
    }
    if (text.empty()) notComposed();
    return text;
}

ExitCode encode(const Request& request, const Choices& choices, const Source& source) {
    std::cout << composed(request, choices, readBytes(source), source.name());
    return ExitCode::done;
}

}  // namespace kvjxml::tool
