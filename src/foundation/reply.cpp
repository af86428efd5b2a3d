#include "foundation/reply.h"

#include <array>
#include <cstring>
#include <cwchar>
#include <memory>
#include <utility>

namespace kvjxml {

namespace {

/// Room for one character in the longest multibyte form. A reply is parsed from a copy made of such cells with one more
/// behind the text: after a cut UTF-8 character TinyXML goes on up to three bytes behind the end, and must find zeros.
using Cell = std::array<char, 4>;

/// @throws std::bad_alloc, also when there is no such amount of memory at all.
std::unique_ptr<Cell[]> cells(std::size_t characters) { return std::make_unique<Cell[]>(characters + 1); }

void parse(TiXmlDocument& document, std::unique_ptr<Cell[]> text, int tabSize) {
    document.SetTabSize(tabSize);
    // What is wrong with a reply shows in the tree: its root or a value is missing.
    document.Parse(text[0].data(), nullptr, TIXML_ENCODING_UNKNOWN);
}

}  // namespace

void parse(TiXmlDocument& document, const wchar_t* reply, std::int64_t length) {
    if (length <= 0) return;
    const auto characters = static_cast<std::size_t>(length);
    auto text = cells(characters);
    // The limit is `length` bytes, and a character that the locale does not know ends the text. Either way what was
    // converted up to there is what the printer said as far as the host can read it.
    std::mbstate_t state{};
    static_cast<void>(std::wcsrtombs(text[0].data(), &reply, characters, &state));
    parse(document, std::move(text), 0);
}

void parse(TiXmlDocument& document, const char* reply, int tabSize) {
    if (reply == nullptr) return;
    const std::size_t length = std::strlen(reply);
    auto text = cells(length / sizeof(Cell) + 1);
    std::memcpy(text.get(), reply, length);
    parse(document, std::move(text), tabSize);
}

}  // namespace kvjxml
