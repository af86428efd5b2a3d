/// @file sections.h
/// The sections that a request is composed of by bits, under the names that the command line knows them by.
#ifndef KVJXML_TOOL_SECTIONS_H
#define KVJXML_TOOL_SECTIONS_H

#include <span>
#include <string>
#include <vector>

#include "exit_code.h"
#include "foundation/rows.h"
#include "json_record.h"

namespace kvj::tool {

struct NamedSection {
    std::string name;  ///< that of the first element, or of the record's field when another section has that name
    long bit;
    std::string content;  ///< its elements
};

/// In the order in which they are written.
std::vector<NamedSection> sectionsOf(std::span<const DescribedRow> rows);

/// The fields of the record that are written for the sections of a mask, and those of rows that are not sections.
Names fieldsWritten(std::span<const DescribedRow> rows, long mask = 0);

ExitCode listSections(std::span<const DescribedRow> rows);

}  // namespace kvj::tool

#endif
