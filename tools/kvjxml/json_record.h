/// @file json_record.h
/// Records as JSON, by the lists of their fields. The names in JSON are the members' own.
#ifndef KVJXML_TOOL_JSON_RECORD_H
#define KVJXML_TOOL_JSON_RECORD_H

#include "fields/field.h"
#include "json_printer.h"

namespace kvj::tool {

/// Prints the value of a field.
void print(JsonPrinter& json, const Field& field, const void* record);

// Records nest as deep as they are declared, so the recursion ends. NOLINTBEGIN(misc-no-recursion)
/// Prints a record, where `printList(field)` prints what is in a list.
template <class PrintList>
void printRecord(JsonPrinter& json, const RecordType& type, const void* record, PrintList printList) {
    json.object([&] {
        for (const Field& field : type.fields) {
            if (field.type == FieldType::list) {
                if (field.entries->showsCount) {
                    json.field(field.entries->counter->name);
                    json.value(countOf(*field.entries, record));
                }
                json.field(field.name);
                printList(field);
            } else {
                json.field(field.name);
                print(json, field, record);
            }
        }
    });
}

// NOLINTEND(misc-no-recursion)

}  // namespace kvj::tool

#endif
