/// @file request_text.h
/// The text of a request, written element by element without a tree, just as TinyXML prints a tree with an indent of
/// four blanks.
#ifndef KVJXML_FOUNDATION_REQUEST_TEXT_H
#define KVJXML_FOUNDATION_REQUEST_TEXT_H

#include <cstddef>
#include <string_view>
#include <vector>

#include "foundation/tags.h"

namespace kvj {

class Problems;

/// Where a text goes.
struct TextRoom {
    char* characters = nullptr;
    std::size_t capacity = 0;
    /// Makes room for that many characters, the present ones included. @return where they are now; null when there is
    /// no memory. Without this function what does not fit is only counted.
    char* (*more)(void* host, std::size_t capacity) = nullptr;
    void* host = nullptr;
};

class RequestText {
public:
    /// @param problems  is told of every element, and of what is not sent as it is asked; null when that is no matter.
    explicit RequestText(const TextRoom& room, Problems* problems = nullptr)
        : room_(room), at_(room.characters), end_(room.characters + room.capacity), problems_(problems) {}
    RequestText(const RequestText&) = delete;
    RequestText& operator=(const RequestText&) = delete;

    /// Writes the declaration and opens the root. @return the root
    Parent begin(const char* rootName);
    /// Closes all elements. @return the size of the whole text, which may be more than there is room for
    std::size_t end();

    /// Opens an element at a depth, after closing those that are open there and below. Its name stays where it is until
    /// it is closed.
    void open(std::size_t depth, const char* name);
    /// Of the element that was opened last: attributes first, then perhaps a text, null for none.
    void attribute(const char* name, const char* value);
    void text(const char* value);

    void announce(const Description& row, int entry) noexcept {
        row_ = &row;
        entry_ = entry;
    }
    [[nodiscard]] const Description* announced() const noexcept { return row_; }
    [[nodiscard]] Problems* problems() const noexcept { return problems_; }

private:
    enum class Behind { startTag, text, elements };  ///< what the text ends with; a start tag is not closed yet

    void put(std::string_view characters);
    void putWhereThereIsNoRoom(std::string_view characters);
    void putEncoded(std::string_view characters);
    void indent(std::size_t depth);
    void closeTo(std::size_t depth);

    TextRoom room_;
    char* at_;
    char* end_;
    std::size_t beyond_ = 0;  ///< how many characters had no room
    std::vector<std::string_view> open_;
    Behind behind_ = Behind::elements;
    Problems* problems_;
    const Description* row_ = nullptr;
    int entry_ = -1;
};

inline void Parent::announce(const Description& row, int entry) const noexcept {
    if (RequestText* const written = text()) written->announce(row, entry);
}

}  // namespace kvj

#endif
