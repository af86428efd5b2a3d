/// @file sections.h
/// The sections that a request is composed of by bits, under the names that the command line knows them by.
#ifndef KVJXML_TOOL_SECTIONS_H
#define KVJXML_TOOL_SECTIONS_H

#include <span>
#include <string>
#include <vector>

#include "exit_code.h"
#include "foundation/rows.h"

namespace kvj::tool {

struct NamedSection {
    std::string name;  ///< that of the first element, or of the record's field when another section has that name
    long bit;
    std::string content;  ///< its elements
};

/// In the order in which they are written.
std::vector<NamedSection> sectionsOf(std::span<const DescribedRow> rows);

ExitCode listSections(std::span<const DescribedRow> rows);

}  // namespace kvj::tool

#endif
