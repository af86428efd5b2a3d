/// @file json_record.h
/// Records as JSON, by the lists of their fields. The names in JSON are the members' own.
#ifndef KVJXML_TOOL_JSON_RECORD_H
#define KVJXML_TOOL_JSON_RECORD_H

#include "fields/field.h"
#include "json_printer.h"
#include "shown.h"

namespace kvj::tool {

/// Prints the value of a field of a record; without a type the value stands for itself.
void print(JsonPrinter& json, const RecordType* type, const Field& field, const void* record, const Showing& showing);

// Records nest as deep as they are declared, so the recursion ends. NOLINTBEGIN(misc-no-recursion)
/// Prints the fields of a record into an object, of which `printList(field)` prints the lists.
template <class PrintList>
void printFields(JsonPrinter& json, const RecordType& type, const void* record, const Showing& showing,
                 PrintList printList) {
    for (const Field& field : type.fields) {
        if (field.type == FieldType::list) {
            printList(field);
        } else {
            json.field(field.name);
            print(json, &type, field, record, showing);
        }
    }
}

/// Prints a list of a record, whose entries `printEntries()` prints.
template <class PrintEntries>
void printList(JsonPrinter& json, const Field& list, std::size_t count, PrintEntries printEntries) {
    if (list.entries->showsCount) {
        json.field(list.entries->counter->name);
        json.value(count);
    }
    json.field(list.name);
    json.list(printEntries);
}

// NOLINTEND(misc-no-recursion)

}  // namespace kvj::tool

#endif
