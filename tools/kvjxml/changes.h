/// @file changes.h
/// What the printer would get otherwise than the JSON of a request asks.
#ifndef KVJXML_TOOL_CHANGES_H
#define KVJXML_TOOL_CHANGES_H

#include <set>
#include <string>
#include <vector>

#include "fields/field.h"

namespace kvj::tool {

struct Change {
    std::string pointer;  ///< to the field, in the JSON
    std::string asked;
    std::string sent;  ///< empty for nothing
    std::string why;
};

class Changes {
public:
    /// Of several for one field the first counts.
    void add(Change change);
    [[nodiscard]] bool empty() const noexcept { return all_.empty(); }
    /// What there is to say of several at once.
    void note(const std::string& text) { notes_.insert(text); }
    /// A line for each, and for each note, for a terminal. Of secrets of the record only the places are shown.
    [[nodiscard]] std::string lines(const RecordType& record) const;

private:
    std::vector<Change> all_;
    std::set<std::string> pointers_;
    std::set<std::string> notes_;
};

}  // namespace kvj::tool

#endif
