/// @file record.h
/// A record out of JSON, by the same lists of fields that make JSON of it.
#ifndef KVJXML_TOOL_RECORD_H
#define KVJXML_TOOL_RECORD_H

#include <algorithm>
#include <deque>
#include <memory>
#include <set>
#include <string_view>
#include <vector>

#include "fields.h"
#include "place.h"

namespace kvjxml::tool {

/// The names of fields.
using Names = std::set<std::string_view>;

/// Keeps the arrays that a record's lists point to.
using Arrays = std::deque<std::shared_ptr<void>>;

template <class Record>
void readRecord(const Place& place, Record& record, Arrays& arrays);

template <class Record, class Value>
void readField(const Place& place, Record& record, Value Record::*member, Arrays& arrays) {
    if constexpr (std::is_class_v<Value>) {
        readRecord(place, record.*member, arrays);
    } else {
        place.read(record.*member);
    }
}

template <class Entry>
void readEntry(const Place& place, Entry& entry, Arrays& arrays) {
    if constexpr (std::is_class_v<Entry>) {
        readRecord(place, entry, arrays);
    } else {
        place.read(entry);
    }
}

template <class Record, auto Count, auto Array>
void readField(const Place& place, Record& record, ListField<Count, Array> /*field*/, Arrays& arrays) {
    using Entry = std::remove_pointer_t<ValueOf<Array>>;
    const auto entries = std::make_shared<std::vector<Entry>>(place.expectList());
    arrays.push_back(entries);
    for (std::size_t i = 0; i < entries->size(); ++i) readEntry(place.at(i), (*entries)[i], arrays);
    record.*Count = static_cast<int>(entries->size());
    record.*Array = entries->data();
}

template <class Record, class Entry>
void readField(const Place& place, Record& record, std::vector<Entry*>* Record::*list, Arrays& arrays) {
    const std::size_t count = place.expectList();
    for (std::size_t i = 0; i < count; ++i) {
        auto entry = std::make_unique<Entry>();
        readRecord(place.at(i), *entry, arrays);
        (record.*list)->push_back(entry.get());
        static_cast<void>(entry.release());  // The list owns it now.
    }
}

template <class Record, class Bit, bool First>
void readField(const Place& place, Record& record, BitField<Bit, First> /*field*/, Arrays& /*arrays*/) {
    bool flag = false;
    place.read(flag);
    Bit::set(record, flag);
}

template <class Record, auto Member>
void readField(const Place& place, Record& record, AddressField<Member> /*field*/, Arrays& /*arrays*/) {
    place.readIpAddress(record.*Member);
}

/// Reads the fields of a record. One that is not there is refused when it is `needed`, else it stays as it was.
template <class Record, auto... Fields>
void readRecord(const Place& place, Record& record, FieldList<Fields...> /*list*/, const Names& needed,
                Arrays& arrays) {
    place.expectObject();
    const Names known{FieldTraits<Fields>::name...};
    for (const auto& [name, value] : place.value().items()) {
        if (!known.contains(name)) place.refuse(name, "is not a field of this request");
    }
    const auto read = [&](std::string_view name, auto field) {
        if (place.has(name) || needed.contains(name)) readField(place.at(name), record, field, arrays);
    };
    (read(FieldTraits<Fields>::name, Fields), ...);
}

template <auto... Fields>
Names namesOf(FieldList<Fields...> /*list*/) {
    return {FieldTraits<Fields>::name...};
}

/// Reads a record that has to be whole.
template <class Record>
void readRecord(const Place& place, Record& record, Arrays& arrays) {
    readRecord(place, record, fields<Record>, namesOf(fields<Record>), arrays);
}

}  // namespace kvjxml::tool

#endif
