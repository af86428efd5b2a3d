#include "request_json.h"

#include <utility>

#include "checked_json.h"
#include "failure.h"
#include "field_at.h"
#include "place.h"
#include "visible_text.h"

namespace kvj::tool {

namespace {

using SortedJson = nlohmann::json;

/// A value that has come through the command line: JSON, or else the text as it stands.
SortedJson valueOf(const std::string& text, const std::string& source) {
    return checkedJson(
        SortedJson::accept(text) ? text : SortedJson(text).dump(-1, ' ', false, SortedJson::error_handler_t::strict),
        source);
}

/// Makes `/lcdContrast/value=15` true.
void edit(SortedJson& fields, const std::string& change, const RecordType& record) {
    const std::string option = "--set " + visible(change);
    const auto refuse = [&](const std::string& reason) { throw Failure(ExitCode::usage, option + ": " + reason); };
    const std::size_t equals = change.find('=');
    const std::string pointer = change.substr(0, equals);
    if (equals == std::string::npos || !pointer.starts_with('/')) refuse("is not like /lcdContrast/value=15");
    try {
        // Everybody can see the command lines of all processes.
        if (isSecretAt(record, pointer)) {
            throw Failure(ExitCode::usage, "--set " + visible(pointer) + ": a key is read from the JSON alone");
        }
        const SortedJson::json_pointer place(pointer);
        SortedJson* owner = &fields;
        for (const std::string& part : partsOf(place.parent_pointer().to_string())) {
            const bool isNew = owner->is_object() && !owner->contains(part);
            owner = isNew ? &((*owner)[part] = SortedJson::object()) : &owner->at(SortedJson::json_pointer() / part);
        }
        SortedJson& target =
            owner->is_array() ? owner->at(SortedJson::json_pointer() / place.back()) : (*owner)[place.back()];
        target = valueOf(change.substr(equals + 1), option);
    } catch (const SortedJson::exception&) {
        refuse("there is no such place");
    }
}

// What a host sends nests only so deep. NOLINTNEXTLINE(misc-no-recursion)
void dropHelp(SortedJson& value) {
    if (value.is_object()) value.erase(helpKey);
    for (SortedJson& inner : value) {
        if (inner.is_structured()) dropHelp(inner);
    }
}

void refuseDamaged(const SortedJson& fields, const std::string& source) {
    if (!fields.is_object() || !fields.contains("damaged") || fields["damaged"] == false) return;
    refuse(source, SortedJson::json_pointer("/damaged"),
           "says that the reply was damaged: what it did not say would be sent as zeros");
}

/// The record of a line as `decode --format jsonl` prints it; anything else stays what it is.
SortedJson withoutLine(SortedJson fields, const std::string& source) {
    if (!fields.is_object() || !fields.contains("schema") || !fields.contains("source")) return fields;
    if (fields.contains("error")) {
        refuse(source, SortedJson::json_pointer("/error"), "says that there was no document of a known message");
    }
    refuseDamaged(fields, source);
    return fields.contains("record") ? SortedJson(std::move(fields["record"])) : fields;
}

}  // namespace

SortedJson requestJson(const std::string& text, const std::string& source, const std::vector<std::string>& edits,
                       const RecordType& record) {
    SortedJson fields = withoutLine(checkedJson(text, source), source);
    refuseDamaged(fields, source);
    if (fields.is_object()) fields.erase("damaged");
    if (fields.is_structured()) dropHelp(fields);
    for (const std::string& change : edits) edit(fields, change, record);
    return fields;
}

}  // namespace kvj::tool
