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

namespace kvj::tool {

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

/// Wide text, in a buffer that is made larger until the text fits. Empty when the library composed none.
std::string wideText(const Request& request, const Choices& choices, const void* record) {
    constexpr std::size_t usual = 65536;
    for (std::size_t capacity = usual;; capacity *= 4) {
        std::vector<wchar_t> out(capacity);
        const RequestBuffer buffer{.narrow = nullptr, .wide = out.data(), .capacity = static_cast<int>(capacity)};
        if (!request.compose(record, choices, buffer)) return {};
        if (out.back() == L'\0') return toUtf8(out);
    }
}

/// Narrow text, whose composers write all of it wherever the buffer ends. So it has room for whatever the JSON, of
/// `jsonSize` bytes, can become: a character of a text takes up to six.
std::string narrowText(const Request& request, const Choices& choices, const void* record, std::size_t jsonSize) {
    std::vector<char> out(4096 + 6 * jsonSize);
    const RequestBuffer buffer{.narrow = out.data(), .wide = nullptr, .capacity = static_cast<int>(out.size())};
    return request.compose(record, choices, buffer) ? out.data() : std::string();
}

}  // namespace

std::string composed(const Request& request, const Choices& choices, const std::string& json,
                     const std::string& source) {
    const nlohmann::json fields = checkedJson(json, source);
    Arrays arrays;
    const ZeroedRecord record(request, request.record->size);
    readRecord(Place(fields, source), *request.record, record.get(), neededFor(request, choices), arrays);
    std::string text = request.isWide ? wideText(request, choices, record.get())
                                      : narrowText(request, choices, record.get(), json.size());
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

}  // namespace kvj::tool
