/// @file records.h
/// Records as a host could make them, by the lists of fields that the tool has of them: numbers and codes of any value,
/// texts that are not terminated, lists that are empty or missing.
#ifndef KVJXML_TESTS_FUZZ_RECORDS_H
#define KVJXML_TESTS_FUZZ_RECORDS_H

#include <algorithm>
#include <memory>
#include <type_traits>
#include <vector>

#include "fields.h"  // of the tool
#include "values.h"

namespace kvjxml::fuzz {

/// Keeps the arrays that records point to.
using Arrays = std::vector<std::shared_ptr<void>>;

template <class Value>
void fill(Value& value, Values& values, Arrays& arrays);

template <class Record, class Value>
void fillField(Record& record, Value Record::*member, Values& values, Arrays& arrays) {
    fill(record.*member, values, arrays);
}
template <class Record, auto Count, auto Array>
void fillField(Record& record, tool::ListField<Count, Array> /*field*/, Values& values, Arrays& arrays) {
    using Entry = std::remove_pointer_t<ValueOf<Array>>;
    record.*Count = std::clamp(values.number(), -1, 8);
    if (values.flag()) return;  // without an array, whatever the count
    const std::shared_ptr<Entry[]> entries(new Entry[static_cast<std::size_t>(std::max(record.*Count, 0))]{});
    for (int i = 0; i < record.*Count; ++i) fill(entries[i], values, arrays);
    record.*Array = entries.get();
    arrays.push_back(entries);
}
template <class Record, class Bit, bool First>
void fillField(Record& record, tool::BitField<Bit, First> /*field*/, Values& values, Arrays& /*arrays*/) {
    Bit::set(record, values.flag());
}
template <class Record, auto Member>
void fillField(Record& record, tool::AddressField<Member> /*field*/, Values& values, Arrays& arrays) {
    fill(record.*Member, values, arrays);
}

template <class Record, auto... Fields>
void fillFields(Record& record, tool::FieldList<Fields...> /*list*/, Values& values, Arrays& arrays) {
    (fillField(record, Fields, values, arrays), ...);
}

/// Fills a record, or a value in one, with the next values of the input.
template <class Value>
void fill(Value& value, Values& values, Arrays& arrays) {
    if constexpr (std::is_same_v<Value, bool>) {
        value = values.flag();
    } else if constexpr (std::is_floating_point_v<Value>) {
        value = values.decimal();
    } else if constexpr (std::is_array_v<Value>) {
        values.text(value);
    } else if constexpr (std::is_class_v<Value>) {
        fillFields(value, tool::fields<Value>, values, arrays);
    } else {
        value = static_cast<Value>(values.number());
    }
}

/// A record of zeros that is filled so, in memory of exactly its size.
template <class Record>
std::unique_ptr<Record> recordOf(Values& values, Arrays& arrays) {
    auto record = std::make_unique<Record>();
    fill(*record, values, arrays);
    return record;
}

}  // namespace kvjxml::fuzz

#endif
