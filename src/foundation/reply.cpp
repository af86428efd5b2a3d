#include "foundation/reply.h"

#include <cstring>
#include <memory>

#include "foundation/multibyte.h"
#include "foundation/shape.h"

namespace kvjxml {

namespace {

/// The copy that a reply is parsed from: room for a text, all zero, and at least four bytes more. After a cut UTF-8
/// character TinyXML goes on up to three bytes behind the end, and must find zeros there.
class Copy {
public:
    /// @throws std::bad_alloc, also when there is no such amount of memory at all.
    explicit Copy(std::size_t length) : words_(std::make_unique<Word[]>(length / sizeof(Word) + 2)) {}
    [[nodiscard]] char* bytes() const noexcept { return reinterpret_cast<char*>(words_.get()); }

private:
    using Word = std::uint32_t;
    std::unique_ptr<Word[]> words_;
};

void parse(TiXmlDocument& document, const Copy& text, int tabSize) {
    if (!isWithin(largestShape, text.bytes(), std::strlen(text.bytes()))) return;
    document.SetTabSize(tabSize);
    // What is wrong with a reply shows in the tree: its root or a value is missing.
    document.Parse(text.bytes(), nullptr, TIXML_ENCODING_UNKNOWN);
}

}  // namespace

void parse(TiXmlDocument& document, const wchar_t* reply, std::int64_t length) {
    if (length <= 0) return;
    const auto characters = static_cast<std::size_t>(length);
    const Copy text(characters);
    toMultibyte(reply, characters, text.bytes());
    parse(document, text, 0);
}

void parse(TiXmlDocument& document, const char* reply, int tabSize) {
    if (reply == nullptr) return;
    const std::size_t length = std::strlen(reply);
    const Copy text(length);
    std::memcpy(text.bytes(), reply, length);
    parse(document, text, tabSize);
}

}  // namespace kvjxml
