/// @file text_printer.h
/// Records for eyes: a line for each field, with its word, its unit and what was sent for it beside the value.
#ifndef KVJXML_TOOL_TEXT_PRINTER_H
#define KVJXML_TOOL_TEXT_PRINTER_H

#include <cstddef>
#include <functional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "fields/field.h"
#include "shown.h"

namespace kvj::tool {

/// The entries of a list, wherever they are.
struct ListView {
    const Field* entry = nullptr;
    std::size_t count = 0;
    std::function<const void*(std::size_t index)> at{};
};

/// A list that is in its record.
ListView viewOf(const Field& list, const void* record);

class TextPrinter {
public:
    /// `out` and what `showing` has outlive the printer.
    TextPrinter(std::ostream& out, const Showing& showing, bool colours)
        : out_(&out), showing_(showing), colours_(colours) {}

    /// Begins a block of its own; what is printed next is in it.
    void begin(std::string_view heading);
    /// Ends the block.
    void end() { --depth_; }
    /// Prints what has to be known of what follows.
    void warn(std::string_view text);

    /// Prints the fields of a record, whose own lists are `listOf(field)`.
    using ListOf = std::function<ListView(const Field& list)>;
    void record(const RecordType& type, const void* record, const ListOf& listOf);
    /// Prints the entries of a list: a line for each, or a block.
    void list(std::string_view name, const ListView& list);
    /// Prints a value that stands for itself.
    void value(std::string_view name, const Field& field, const void* value);

private:
    enum class Style : std::uint8_t { heading, faint, warning };

    struct Line {
        std::string name;
        std::string value;
        std::string words{};
        std::string sent{};
        bool isFaint = false;
    };

    [[nodiscard]] Line lineOf(const RecordType* type, const Field& field, const void* record) const;
    [[nodiscard]] Line settingLine(const Field& field, const void* record) const;
    [[nodiscard]] bool isThere(const Field& field, const void* record) const;
    void print(const std::vector<Line>& lines);
    void print(const Line& line, std::size_t nameWidth, std::size_t valueWidth);
    void indent();
    [[nodiscard]] std::string styled(std::string_view text, Style style) const;

    std::ostream* out_;
    Showing showing_;
    bool colours_;
    std::size_t depth_ = 0;
};

}  // namespace kvj::tool

#endif
