/// @file json_printer.h
/// Prints JSON while it is made: a reply can have a million entries, and none of them is kept.
#ifndef KVJXML_TOOL_JSON_PRINTER_H
#define KVJXML_TOOL_JSON_PRINTER_H

#include <array>
#include <charconv>
#include <concepts>
#include <nlohmann/json.hpp>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>

namespace kvj::tool {

class JsonPrinter {
public:
    /// `out` outlives the printer. It gets what is printed in large pieces, the last one at the printer's end.
    explicit JsonPrinter(std::ostream& out) : out_(&out) {}
    ~JsonPrinter() { pass(); }
    JsonPrinter(const JsonPrinter&) = delete;
    JsonPrinter& operator=(const JsonPrinter&) = delete;

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
    void value(std::string_view text);
    void value(const char* text) { value(std::string_view(text)); }
    void value(const std::string& text) { value(std::string_view(text)); }
    /// Ends a document of JSON: what is printed next stands in the next line.
    void endLine() { text_ += '\n'; }
    /// The same, for a value that a catalogue can have a million of.
    template <std::integral Integer>
    void value(Integer number) {
        if constexpr (std::is_same_v<Integer, bool>) {
            text_ += number ? "true" : "false";
        } else {
            std::array<char, 24> digits{};
            const char* const end = std::to_chars(digits.begin(), digits.end(), number).ptr;
            text_.append(digits.data(), static_cast<std::size_t>(end - digits.data()));
        }
    }

private:
    template <class Content>
    void enclose(char open, char close, Content content) {  // NOLINT(misc-no-recursion): likewise
        text_ += open;
        isEmpty_ = true;
        ++depth_;
        content();
        --depth_;
        if (!std::exchange(isEmpty_, false) && !isInLine_) beginLine();
        text_ += close;
    }
    void beginLine();
    void pass();

    std::ostream* out_;
    std::string text_;  ///< what the stream did not get yet: each call of it takes long
    std::size_t depth_ = 0;
    bool isInLine_ = false;
    bool isEmpty_ = true;  ///< whether what is being printed has nothing in it so far
};

}  // namespace kvj::tool

#endif
