#include "read_back.h"

#include <algorithm>
#include <cstring>
#include <set>
#include <span>
#include <vector>

#include "field_at.h"
#include "field_rows.h"
#include "fields/differences.h"
#include "foundation/convert.h"
#include "foundation/document.h"
#include "messages/any_reading.h"
#include "messages/message.h"
#include "messages/zeroed_record.h"

namespace kvj::tool {

namespace {

/// The message that has a request's root and its record; null when there is none.
const Message* readerOf(const Request& request) {
    const auto reader = std::ranges::find_if(messages(), [&](const Message& message) {
        return message.root == request.root && message.record.record == request.record;
    });
    return reader == messages().end() ? nullptr : &*reader;
}

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
        }
    }

    [[nodiscard]] const void* record() const { return record_.get(); }
    [[nodiscard]] bool carries(const void* field) const {
        const auto offset =
            static_cast<std::size_t>(static_cast<const std::byte*>(field) - static_cast<const std::byte*>(record()));
        return reading_.has(offset);
    }
    /// Whether the printer takes a field in another way than it sends it: as another word, in two elements of one
    /// name, or as a list of which readers keep one entry. Nobody can tell then.
    [[nodiscard]] bool takesOtherwise(const FieldOfRecord& at) const { return unlike_.contains(nameOf(at)); }

private:
    static std::string nameOf(const FieldOfRecord& at) {
        return std::string(at.record->name).append("::").append(at.field->name);
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
};

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

/// Whether a field is read from an element of the name that it is written under.
bool isReadAsWritten(const FieldOfRecord& at) {
    const auto read = rowsFor(rowsOfMessages(), at.record->name, at.field->name);
    return std::ranges::any_of(rowsFor(rowsOfRequests(), at.record->name, at.field->name), [&](const auto* written) {
        return std::ranges::find(read, written->name, &DescribedRow::name) != read.end();
    });
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

// ---- What is left out ----

Element childOf(Element element, std::string_view name) {
    for (const Element child : element.children()) {
        if (child.name() == name) return child;
    }
    return {};
}

// Groups nest as deep as the tables are written, so the recursion ends. NOLINTNEXTLINE(misc-no-recursion)
void addLeftOut(const Asked& asked, std::span<const DescribedRow> rows, Element element, const std::string& pointer,
                const Needed& needed, Changes& changes) {
    for (const DescribedRow& row : rows) {
        const auto& field = row.description.field;
        const Needed* const inner = field.empty() ? &needed : needed.of(field.name);
        const std::string place = field.empty() ? pointer : pointer + "/" + std::string(field.name);
        const nlohmann::json::json_pointer at(place);
        if (inner == nullptr || !asked.json.contains(at) || (row.section & asked.choices.sections) != row.section) {
            continue;
        }
        const Element child = childOf(element, row.name);
        if (child) {
            if (row.description.kind != Kind::list) {
                addLeftOut(asked, row.description.group, child, place, *inner, changes);
            }
        } else if (!field.empty() && !row.condition.empty() && !asked.json[at].empty()) {
            changes.add({place, "", "", "it is sent " + std::string(row.condition)});
        }
    }
}

}  // namespace

void addSeenOtherwise(const Asked& asked, const std::string& text, Changes& changes) {
    const Message* const reader = readerOf(asked.request);
    if (reader == nullptr) return;
    const RecordType& type = *asked.request.record;
    const Seen seen(*reader, text);
    std::string shorter;  // a list, of whose entries one is missing: the others are not at their places
    for (const Difference& difference : differences(type, asked.record, seen.record())) {
        const std::string pointer = difference.path.substr(0, difference.path.find(' '));
        if (!shorter.empty() && pointer.starts_with(shorter)) continue;
        if (!asked.json.contains(nlohmann::json::json_pointer(pointer))) continue;
        const Found is = find(type, seen.record(), pointer);
        if (!counts(asked, seen, is)) continue;
        if (is.field->type == FieldType::list) shorter = pointer + "/";
        const Found was = find(type, asked.record, pointer);
        changes.add({pointer, shown(was, difference.expected), shown(is, difference.actual),
                     isWritten(asked.needed, is.way) ? "so it reads back"
                                                     : "the element is not written from this field; leave it out"});
    }
}

void addLeftOut(const Asked& asked, const std::string& text, Changes& changes) {
    if (asked.request.written == nullptr) return;
    Text copy(text.size());
    std::ranges::copy(text, copy.bytes());
    const Document document(std::move(copy), Manner::ofUtf8);
    const Element root = document.root(asked.request.root);
    addLeftOut(asked, asked.request.written(asked.choices).rows, root, "", asked.needed, changes);
}

}  // namespace kvj::tool
