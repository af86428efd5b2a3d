/// @file composing.h
/// What must hold for every composer, whatever it is given: it prints what is in its document, into the buffer and
/// nowhere else, and what it prints can be read again. A target of a family of composers is a table of operations, each
/// calling one of the two checks.
#ifndef KVJXML_TESTS_FUZZ_COMPOSING_H
#define KVJXML_TESTS_FUZZ_COMPOSING_H

#include <tinyxml.h>

#include <algorithm>
#include <span>
#include <string>
#include <string_view>

#include "chosen.h"
#include "target.h"
#include "values.h"

namespace kvj::fuzz {

/// One operation: the name by which an input chooses it in its first field, and a call with the other values.
struct Operation {
    std::string_view name;
    void (*check)(Values& values);
};

inline int run(std::span<const Operation> operations, const std::uint8_t* data, std::size_t size) {
    const std::string input = textOf(data, size);
    Values values(input);
    chosen(operations, values.next()).check(values);
    return 0;
}

/// A document as composers print it: indented by four spaces a level.
std::string printed(const TiXmlDocument& document);

/// What a buffer of wide characters then holds: the text with its terminator, in the process's locale. A byte that the
/// locale does not know ends it, without a terminator.
std::wstring widePrinted(const TiXmlDocument& document);

/// Parses what the document is printed as, and requires the same elements, attributes and texts. A document with
/// something that is not a name, or with bytes that are not text in the process's locale, need not read again.
void requireReadsAgain(const TiXmlDocument& document);

/// `compose(composer, out, capacity)` prints wide text. The next field is the capacity of one of the buffers.
template <class Composer, class Compose>
void checkWide(Values& values, Compose compose) {
    Composer unprinted;
    require(!compose(unprinted, static_cast<wchar_t*>(nullptr), 1), "there is no result without a buffer");
    requireReadsAgain(unprinted);

    const std::wstring expected = widePrinted(unprinted);
    const int enough = static_cast<int>(expected.size());
    for (const int capacity : {enough, std::clamp(values.number(), -1, enough + 16)}) {
        const std::wstring blank(static_cast<std::size_t>(std::max(capacity, 0)), L'#');
        const auto out = exactCopy(blank.data(), blank.size());
        Composer composer;
        const bool result = compose(composer, out.get(), capacity);
        const std::wstring_view content(out.get(), blank.size());
        const std::size_t length = std::min(blank.size(), expected.size());
        require(result || content == blank, "what is not composed writes nothing");
        require(!result || content.starts_with(expected.substr(0, length)), "the buffer holds what it has room for");
    }
}

/// `compose(composer, out, capacity)` prints narrow text into a buffer of `room`, which it promises is enough.
template <class Composer, class Compose>
void checkNarrow(std::size_t room, Compose compose) {
    Composer unprinted;
    require(!compose(unprinted, static_cast<char*>(nullptr), 0), "there is no result without a buffer");
    requireReadsAgain(unprinted);

    const std::string blank(room, '#');
    const auto out = exactCopy(blank.data(), room);
    Composer composer;
    const bool result = compose(composer, out.get(), static_cast<int>(room));
    require(result || std::string_view(out.get(), room) == blank, "what is not composed writes nothing");
    require(!result || out.get() == printed(unprinted), "the buffer holds the document");
}

}  // namespace kvj::fuzz

#endif
