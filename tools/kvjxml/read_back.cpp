#include "read_back.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <span>
#include <vector>

#include "face/utf8_reply.h"
#include "field_at.h"
#include "field_rows.h"
#include "fields/differences.h"
#include "foundation/convert.h"
#include "messages/any_reading.h"
#include "messages/message.h"
#include "messages/zeroed_record.h"
#include "written_elements.h"

namespace kvj::tool {

namespace {

/// The message that has a request's root and its record; null when there is none.
const Message* readerOf(const Request& request) {
    const auto reader = std::ranges::find_if(messages(), [&](const Message& message) {
        return message.root == request.root && message.record.record == request.record;
    });
    return reader == messages().end() ? nullptr : &*reader;
}

/// A field in a record in memory.
struct Found {
    std::vector<FieldOfRecord> way;  ///< from the record to the field
    const void* owner = nullptr;     ///< what has the field
    const Field* field = nullptr;    ///< for an entry that stands for itself the entry
    bool isInList = false;
};

Found find(const RecordType& type, const void* record, const std::string& pointer) {
    Found found{.way = fieldsTo(type, pointer), .owner = record};
    const std::vector<std::string> parts = partsOf(pointer);
    auto part = parts.begin();
    for (const FieldOfRecord& at : found.way) {
        if (found.field != nullptr) found.owner = found.field->at(found.owner);
        found.field = at.field;
        ++part;
        if (at.field->type != FieldType::list || part == parts.end()) continue;
        found.owner = at.field->entries->at(found.owner, std::stoul(*part++));
        found.field = at.field->entries->entry;
        found.isInList = true;
    }
    return found;
}

/// What a comparison says of a value, for people.
std::string shown(const Found& found, const std::string& compared) {
    switch (found.field->type) {
        case FieldType::list:
            return compared + " entries";
        case FieldType::decimal:
            return convert::shortest(valueOf<float>(*found.field, found.owner)).c_str();
        case FieldType::text:
            return std::string(textOf(*found.field, found.owner));
        default:
            return compared;
    }
}

/// Whether the request writes the fields on a way.
bool isWritten(const Needed& needed, std::span<const FieldOfRecord> way) {
    const Needed* at = &needed;
    for (const FieldOfRecord& step : way) {
        at = at->of(step.field->name);
        if (at == nullptr) return false;
    }
    return true;
}

/// The name under which a reader has a field; empty when it has none.
std::string_view nameRead(const Message& reader, const FieldName& field) {
    const auto row = std::ranges::find_if(reader.table, [&](const DescribedRow& each) {
        const FieldName& read = each.description.field;
        return !read.empty() && read.record == field.record && read.name == field.name;
    });
    return row == reader.table.end() ? std::string_view() : row->name;
}

/// A request with its sections under the names that replies have for their fields: the printer takes a wireless network
/// under the name of the wired one.
std::string asReply(const Message& reader, const std::vector<WrittenRow>& sections, std::string text) {
    const std::size_t size = text.size();
    for (const WrittenRow& section : sections) {
        const std::string_view sent = section.row->name;
        const std::string_view read = nameRead(reader, section.row->description.field);
        if (!section.element || read.empty() || read == sent) continue;
        const std::size_t begin = section.element.offset() + 1 + text.size() - size;
        const std::size_t tagEnd = text.find('>', begin);
        const bool isEmpty = text[tagEnd - 1] == '/';
        if (!isEmpty) text.replace(text.find("</" + std::string(sent), tagEnd) + 2, sent.size(), read);
        text.replace(begin, sent.size(), read);
    }
    return text;
}

/// As findings have it.
std::string nameOf(const FieldOfRecord& at) { return std::string(at.record->name).append("::").append(at.field->name); }

/// A request as the reader of its message sees it.
class Seen {
public:
    Seen(const Message& message, const std::string& text)
        : reading_(readAny(message, text, kvjxml::diagnose)), record_(message, message.record.size) {
        for (const Field& field : message.record.record->fields) {
            const bool isInRecord = field.type != FieldType::list || field.entries->storage == Storage::inRecord;
            isInRecord ? copy(field) : hand(*reading_.list(field));
        }
        for (const HostList& list : message.lists) {
            if (list.isOneEntry) unlike_.insert(nameOf({message.record.record, list.field}));
        }
        for (const kvjxml::finding& found : reading_.findings) {
            using enum kvjxml::finding_kind;
            if (found.kind == unknown_word || found.kind == repeated) unlike_.insert(found.field);
            if (found.kind == unknown_word) words_.emplace(found.field, found.text);
        }
    }

    [[nodiscard]] const void* record() const { return record_.get(); }
    [[nodiscard]] bool carries(const void* field) const { return reading_.has(offsetOf(field)); }
    [[nodiscard]] bool carriesAnyOf(const Field& part) const {
        return reading_.has(offsetOf(part.at(record())), part.size);
    }
    /// The words in the request that the reader does not know, by their fields.
    [[nodiscard]] const std::map<std::string, std::string>& words() const { return words_; }
    /// Whether the printer takes a field in another way than it sends it: as another word, in two elements of one
    /// name, or as a list of which readers keep one entry. Nobody can tell then.
    [[nodiscard]] bool takesOtherwise(const FieldOfRecord& at) const { return unlike_.contains(nameOf(at)); }

private:
    [[nodiscard]] std::size_t offsetOf(const void* field) const {
        return static_cast<std::size_t>(static_cast<const std::byte*>(field) - static_cast<const std::byte*>(record()));
    }

    void copy(const Field& field) {
        if (field.type == FieldType::bit) return setFlag(field, record_.get(), flagOf(field, reading_.record.data()));
        std::memcpy(field.in(record_.get()), field.at(reading_.record.data()), field.size);
    }
    void hand(const ReadList& list) {
        const Entries& entries = *list.field().entries;
        if (entries.storage == Storage::ofHost) {
            entries.setCount(record_.get(), static_cast<std::int64_t>(list.count()));
            return entries.provide(record_.get(), const_cast<void*>(list.entry(0)));  // Nobody writes to it.
        }
        for (std::size_t i = 0; i < list.count(); ++i) {
            std::memcpy(entries.append(record_.get()), list.entry(i), entries.entry->size);
        }
    }

    AnyReading reading_;
    ZeroedRecord<Message> record_;
    std::set<std::string> unlike_;
    std::map<std::string, std::string> words_;
};

/// Whether a field is read from an element of the name that it is written under.
bool isReadAsWritten(const FieldOfRecord& at) {
    const auto read = rowsFor(rowsOfMessages(), at.record->name, at.field->name);
    return std::ranges::any_of(rowsFor(rowsOfRequests(), at.record->name, at.field->name), [&](const auto* written) {
        return std::ranges::find(read, written->name, &DescribedRow::name) != read.end();
    });
}

constexpr const char* notFromThisField = "the element is not written from this field; leave it out";

/// The code for which a request has a word, in the element that a field is read from; none when it has none for it.
std::optional<int> codeWritten(const FieldOfRecord& at, const std::string& word) {
    for (const DescribedRow* const read : rowsFor(rowsOfMessages(), at.record->name, at.field->name)) {
        for (const DescribedRow* const row : rowsOfRequests()) {
            const Description& written = row->description;
            if (row->name != read->name || written.field.record != unqualified(at.record->name)) continue;
            if (const auto code = codeOf({written.words.words.rows, std::nullopt, Match::whole}, word.c_str()))
                return code;
        }
    }
    return {};
}

/// Whether a field of the record is one of the request's as well, and is read as it is written.
bool counts(const Asked& asked, const Seen& seen, const Found& found) {
    const std::span way = found.way;
    if (std::ranges::any_of(way, [&](const FieldOfRecord& at) { return seen.takesOtherwise(at); })) return false;
    const bool hasAddress = !found.isInList && found.field->type != FieldType::list && found.field->at != nullptr;
    // What is read of an entry is not told.
    const bool isList = found.field->type == FieldType::list;
    if (!hasAddress) return isWritten(asked.needed, way) && (isList || isReadAsWritten(way.back()));
    // An element may be written from one field and read as another beside it.
    return isWritten(asked.needed, way.first(way.size() - 1)) && seen.carries(found.field->at(found.owner));
}

// ---- Words that the printer sends otherwise ----

// Records nest as deep as they are declared, so the recursion ends. NOLINTNEXTLINE(misc-no-recursion)
void addPlaces(const RecordType& type, const std::string& pointer, const std::string& name,
               std::vector<std::string>& places) {
    for (const Field& field : type.fields) {
        const std::string place = pointer + "/" + std::string(field.name);
        if (nameOf({&type, &field}) == name) places.push_back(place);
        if (field.type == FieldType::record) addPlaces(*field.record, place, name, places);
    }
}

/// Adds the codes that are not written from their field, but from another or always as one word, where that is a word
/// for another code.
void addOtherWords(const Asked& asked, const Seen& seen, Changes& changes) {
    const RecordType& type = *asked.request.record;
    for (const auto& [name, word] : seen.words()) {
        std::vector<std::string> places;
        addPlaces(type, "", name, places);
        for (const std::string& pointer : places) {
            const Found was = find(type, asked.record, pointer);
            const FieldOfRecord& at = was.way.back();
            const bool isWrittenAnywhere = !rowsFor(rowsOfRequests(), at.record->name, at.field->name).empty();
            const bool isOwn = isWrittenAnywhere && isWritten(asked.needed, was.way);
            const Found is = find(type, seen.record(), pointer);
            if (isOwn || at.field->type != FieldType::number || !seen.carries(at.field->at(is.owner))) continue;
            if (!asked.json.contains(nlohmann::json::json_pointer(pointer))) continue;
            const std::int64_t code = wholeNumberOf(*was.field, was.owner);
            if (codeWritten(at, word) == code) continue;
            changes.add({pointer, std::to_string(code), word, notFromThisField});
        }
    }
}

// ---- What is left out, and what is kept in another place ----

/// Calls `action` with every row that is chosen, those inside after those around them.
// Groups nest as deep as the tables are written, so the recursion ends. NOLINTNEXTLINE(misc-no-recursion)
void forEachRow(const std::vector<WrittenRow>& rows, const Asked& asked,
                const std::function<void(const WrittenRow&)>& action) {
    for (const WrittenRow& written : rows) {
        action(written);
        const Description& row = written.row->description;
        if (!written.element || row.kind == Kind::list) continue;
        forEachRow(writtenIn(written.element, row.group, asked, written), asked, action);
    }
}

/// Whether there is a text in an element, or further inside.
// Requests are as deep as they are written here, so the recursion ends. NOLINTNEXTLINE(misc-no-recursion)
bool hasText(Element element) {
    bool has = element.children().empty() && element.text() != nullptr;
    for (const Element child : element.children()) has = has || hasText(child);
    return has;
}

/// The field beside a part, of the same kind, that a part is kept in when it is not in its own; null when there is
/// none.
const Field* keptIn(const Seen& seen, const RecordType& type, const Field& part) {
    for (const Field& other : type.fields) {
        const bool isAlike = other.type == FieldType::record && other.record == part.record;
        if (isAlike && &other != &part && seen.carriesAnyOf(other)) return &other;
    }
    return nullptr;
}

/// Adds a part that the printer would take for another: of the custom cards, it is up to their descriptions which is
/// the first.
/// @return whether it is one.
bool addMisplaced(const Asked& asked, const Seen& seen, const WrittenRow& written, Changes& changes) {
    const auto way = fieldsTo(*asked.request.record, written.pointer);
    if (way.size() != 1 || way.front().field->type != FieldType::record || !hasText(written.element)) return false;
    const Field& part = *way.front().field;
    if (seen.carriesAnyOf(part)) return false;
    const Field* const other = keptIn(seen, *asked.request.record, part);
    if (other == nullptr) return false;
    changes.add({written.pointer, std::string(part.name), std::string(other->name),
                 "by what is in it, the printer would keep it there"});
    return true;
}

}  // namespace

void addSeenOtherwise(const Asked& asked, const std::string& text, Changes& changes) {
    const Message* const reader = readerOf(asked.request);
    if (reader == nullptr) return;
    const RecordType& type = *asked.request.record;
    const Utf8Reply document(text);
    const auto written = writtenInRoot(document.root(asked.request.root), asked);
    const Seen seen(*reader, asReply(*reader, written, text));
    std::vector<std::string> elsewhere;  // what is in them is not at its place
    forEachRow(written, asked, [&](const WrittenRow& row) {
        if (addMisplaced(asked, seen, row, changes)) elsewhere.push_back(row.pointer + "/");
    });
    addOtherWords(asked, seen, changes);
    for (const kvj::Difference& difference : differences(type, asked.record, seen.record())) {
        const std::string pointer = difference.path.substr(0, difference.path.find(' '));
        const auto isAround = [&](const std::string& around) { return pointer.starts_with(around); };
        if (std::ranges::any_of(elsewhere, isAround)) continue;
        if (!asked.json.contains(nlohmann::json::json_pointer(pointer))) continue;
        const Found is = find(type, seen.record(), pointer);
        const Found was = find(type, asked.record, pointer);
        if (!counts(asked, seen, is)) continue;
        // Of a list that lacks an entry.
        if (is.field->type == FieldType::list) elsewhere.push_back(pointer + "/");
        changes.add({pointer, shown(was, difference.expected), shown(is, difference.actual),
                     isWritten(asked.needed, is.way) ? "so it reads back" : notFromThisField});
    }
}

void addLeftOut(const Asked& asked, const std::string& text, Changes& changes) {
    const Utf8Reply document(text);
    forEachRow(writtenInRoot(document.root(asked.request.root), asked), asked, [&](const WrittenRow& written) {
        const nlohmann::json::json_pointer at(written.pointer);
        const bool isLeftOut = !written.element && !written.row->description.field.empty() &&
                               !written.row->condition.empty() && asked.json.contains(at) && !asked.json[at].empty();
        if (isLeftOut) changes.add({written.pointer, "", "", "it is sent " + std::string(written.row->condition)});
    });
}

}  // namespace kvj::tool
