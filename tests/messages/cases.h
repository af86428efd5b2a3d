/// @file cases.h
/// What the rows of a message's table say that an element does to a record, as replies with what becomes of it.
#ifndef KVJXML_TESTS_MESSAGES_CASES_H
#define KVJXML_TESTS_MESSAGES_CASES_H

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "messages/message.h"

namespace kvj::tests {

/// One element, and what it does.
struct Input {
    std::string element;
    /// Does the same to the record that the element's fields are in.
    std::function<void(void* record)> change;
    std::optional<bool> result;  ///< what reading it says, where that is of interest
};

/// All that is done to one row.
struct RowCases {
    std::string name;   ///< of the element
    std::string open;   ///< the elements around it, without the root
    std::string close;  ///< their ends
    /// The record that the row's field is in, made in the message's record as reading the elements around it makes it.
    std::function<void*(void* record)> within;
    bool isEntry;  ///< whether each of the inputs is the next entry of a list
    std::vector<Input> inputs;
    Input withoutText;
};

/// Those of all rows that can be told from their description alone.
std::vector<RowCases> casesOf(const Message& message);

}  // namespace kvj::tests

#endif
