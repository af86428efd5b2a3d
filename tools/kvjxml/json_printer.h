/// @file json_printer.h
/// Prints JSON while it is made: a reply can have a million entries, and none of them is kept.
#ifndef KVJXML_TOOL_JSON_PRINTER_H
#define KVJXML_TOOL_JSON_PRINTER_H

#include <array>
#include <charconv>
#include <concepts>
#include <nlohmann/json.hpp>
#include <ostream>
#include <string_view>
#include <utility>

namespace kvj::tool {

class JsonPrinter {
public:
    /// `out` outlives the printer.
    explicit JsonPrinter(std::ostream& out) : out_(&out) {}

    // What is printed nests as deep as records are declared, so recursion ends. NOLINTBEGIN(misc-no-recursion)
    /// Each prints what `content` prints, as the fields of an object or as the entries of a list.
    template <class Content>
    void object(Content content) {
        enclose('{', '}', content);
    }
    template <class Content>
    void list(Content content) {
        enclose('[', ']', content);
    }
    /// Prints what `content` prints in one line.
    template <class Content>
    void line(Content content) {
        const bool before = std::exchange(isInLine_, true);
        content();
        isInLine_ = before;
    }
    // NOLINTEND(misc-no-recursion)

    /// Begins the next field of an object, whose name is that of a member; its value is printed next.
    void field(std::string_view name);
    /// Begins the next entry of a list; it is printed next.
    void entry();
    /// A text, a number, true, false, null, or a list of them. Of a text, bytes that are not UTF-8 become U+FFFD, and
    /// what a terminal would obey is escaped.
    void value(const nlohmann::json& value);
    /// The same, for a value that a catalogue can have a million of.
    template <std::integral Integer>
    void value(Integer number) {
        if constexpr (std::is_same_v<Integer, bool>) {
            *out_ << (number ? "true" : "false");
        } else {
            std::array<char, 24> digits{};
            std::to_chars(digits.begin(), digits.end(), number);
            *out_ << digits.data();
        }
    }

private:
    template <class Content>
    void enclose(char open, char close, Content content) {  // NOLINT(misc-no-recursion): likewise
        *out_ << open;
        isEmpty_ = true;
        ++depth_;
        content();
        --depth_;
        if (!std::exchange(isEmpty_, false) && !isInLine_) beginLine();
        *out_ << close;
    }
    void beginLine();

    std::ostream* out_;
    std::size_t depth_ = 0;
    bool isInLine_ = false;
    bool isEmpty_ = true;  ///< whether what is being printed has nothing in it so far
};

}  // namespace kvj::tool

#endif
