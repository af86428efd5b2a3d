/// @file written_elements.h
/// Which element of a request is from which row.
#ifndef KVJXML_TOOL_WRITTEN_ELEMENTS_H
#define KVJXML_TOOL_WRITTEN_ELEMENTS_H

#include <span>
#include <string>
#include <vector>

#include "asked.h"
#include "foundation/element.h"

namespace kvj::tool {

/// A row of what is chosen.
struct WrittenRow {
    const DescribedRow* row;
    std::string pointer;   ///< to its field in the JSON; of a group without one, to the record
    const Needed* needed;  ///< what of the field is written
    Element element;       ///< null when the row wrote none
};

/// The rows that are chosen, in their order, with the elements that they wrote in `parent`.
/// @param around  the row that wrote the parent, of which only the pointer and what is needed count here.
std::vector<WrittenRow> writtenIn(Element parent, std::span<const DescribedRow> rows, const Asked& asked,
                                  const WrittenRow& around);

/// Those in the root of a request; none of arguments, which have no rows.
std::vector<WrittenRow> writtenInRoot(Element root, const Asked& asked);

}  // namespace kvj::tool

#endif
