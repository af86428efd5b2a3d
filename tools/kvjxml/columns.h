/// @file columns.h
/// Prints what stands in rows and columns, for eyes.
#ifndef KVJXML_TOOL_COLUMNS_H
#define KVJXML_TOOL_COLUMNS_H

#include <algorithm>
#include <cstddef>
#include <ostream>
#include <string>
#include <vector>

namespace kvj::tool {

using Cells = std::vector<std::string>;

/// Prints each row on a line of its own, each column as wide as its widest cell. All rows have as many cells.
inline void printColumns(std::ostream& out, const std::vector<Cells>& rows, std::size_t indent) {
    std::vector<std::size_t> widths;
    for (const Cells& row : rows) {
        widths.resize(row.size());
        for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], row[i].size());
    }
    for (const Cells& row : rows) {
        std::string line(indent, ' ');
        for (std::size_t i = 0; i < row.size(); ++i) {
            line.append(row[i]);
            line.append(widths[i] - row[i].size() + 2, ' ');
        }
        line.erase(line.find_last_not_of(' ') + 1);
        out << line << '\n';
    }
}

}  // namespace kvj::tool

#endif
