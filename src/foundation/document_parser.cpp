#include <tinyxml.h>

#include <algorithm>
#include <bit>
#include <cctype>
#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>
#include <utility>

#include "foundation/characters.h"
#include "foundation/document.h"
#include "foundation/references.h"
#include "foundation/repeated.h"

namespace kvj {

namespace {

using namespace characters;

/// Whether a text begins with these words, in any case: that of ASCII's letters, or of those that the locale knows.
/// They are given in small letters.
bool beginsInAnyCase(const char* text, std::string_view words, bool onlyAscii) noexcept {
    const auto lower = [=](char c) {
        if (onlyAscii) return c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : int{c};
        return std::tolower(static_cast<unsigned char>(c));
    };
    return std::ranges::all_of(words, [&](char c) { return lower(*text++) == c; });
}

bool begins(const char* text, std::string_view words) noexcept {
    return std::ranges::all_of(words, [&](char c) { return *text++ == c; });
}

/// Whether two names of the same length are the same. Most are short, and both are followed by padding: this takes
/// fewer steps than a call.
bool isSame(const char* one, const char* other, std::size_t length) noexcept {
    std::uint64_t difference = 0;
    for (;; one += sizeof difference, other += sizeof difference, length -= sizeof difference) {
        std::uint64_t bytes = 0;
        std::memcpy(&difference, one, sizeof difference);
        std::memcpy(&bytes, other, sizeof bytes);
        difference ^= bytes;
        if (length <= sizeof difference) break;
        if (difference != 0) return false;
    }
    if (length == 0) return true;
    if constexpr (std::endian::native == std::endian::big) difference = __builtin_bswap64(difference);
    return difference << 8 * (sizeof difference - length) == 0;
}

/// The most elements and attributes that a text can have: an element needs a "<" followed by a letter, an attribute an
/// equals sign.
struct Bounds {
    std::size_t elements = 0;
    std::size_t attributes = 0;
    unsigned char bits = 0;  ///< those that are set in any byte, if they are asked for
};
template <bool withBits>
Bounds boundsOf(const char* text, std::size_t length) noexcept {
    Bounds bounds;
    const auto count = [&](const char* block, std::size_t size) {
        unsigned char elements = 0;
        unsigned char attributes = 0;
        unsigned char bits = 0;
        for (std::size_t i = 0; i < size; ++i) {
            const auto next = static_cast<unsigned char>(block[i + 1]);
            const bool begins = (block[i] == '<') & ((next >= 'A') | (next < ' '));
            elements = static_cast<unsigned char>(elements + begins);
            attributes = static_cast<unsigned char>(attributes + (block[i] == '='));
            if (withBits) bits = static_cast<unsigned char>(bits | static_cast<unsigned char>(block[i]));
        }
        bounds.elements += elements;
        bounds.attributes += attributes;
        bounds.bits |= bits;
    };
    // Only as many as a byte can count: compilers turn that into vector instructions.
    constexpr std::size_t whole = 128;
    for (; length >= whole; length -= whole) {
        count(text, whole);
        text += whole;
    }
    count(text, length);
    return bounds;
}

}  // namespace

/// Goes through a text once, token by token, without recursion. Places are those of the text as it came: a token is
/// overwritten, by its decoded text or by the NUL after it, only once it has been read.
template <Manner manner>
class DocumentParser {
public:
    explicit DocumentParser(Document& document) noexcept
        : document_(document),
          nodes_(document.nodes_),
          text_(document.text_.bytes()),
          end_(text_ + document.text_.length()),
          at_(text_) {}

    void parse() {
        nodes_[0] = {};
        if (begins(text_, "\xEF\xBB\xBF")) {
            document_.hasByteOrderMark_ = true;
            encoding_ = Encoding::utf8;
        }
        while (content() && markup()) {
        }
        if (nodes_[0].value == 0) fail(TiXmlBase::TIXML_ERROR_DOCUMENT_EMPTY, at_);
        document_.end_ = offsetOf(at_);
        document_.openAtEnd_ = open_;
        document_.isWhole_ = !isDamaged_ && at_ == end_ && topElements_ == 1;
        while (open_ != 0) close();
        nodes_[0].end = count_;
        nodes_[count_].attributes = attributeCount_;
    }

private:
    using Node = Document::Node;
    static constexpr bool isUtf8 = manner == Manner::ofUtf8;
    /// Whether anybody will ask if the document is whole, or plain.
    static constexpr bool judges = isUtf8;

    /// Each byte is a character, until the first declaration at the top level says otherwise.
    enum class Encoding { unknown, utf8, bytes };

    /// An attribute where it stands in the text.
    struct RawAttribute {
        char* name;
        char* nameEnd;
        char* value;
        char* valueEnd;
    };

    [[nodiscard]] bool utf8() const noexcept { return isUtf8 || encoding_ == Encoding::utf8; }
    [[nodiscard]] bool condenses() const noexcept { return isUtf8 || condense_; }
    [[nodiscard]] bool atTop() const noexcept { return open_ == 0; }

    [[nodiscard]] std::uint32_t offsetOf(const char* place) const noexcept {
        return static_cast<std::uint32_t>(place - text_);
    }

    [[nodiscard]] static bool beginsInAnyCase(const char* text, std::string_view words) noexcept {
        return kvj::beginsInAnyCase(text, words, isUtf8);
    }
    // In UTF-8 no control character is a letter.
    [[nodiscard]] static bool beginsName(char c) noexcept {
        return is(c, letter) || (!isUtf8 && is(c, control) && std::isalpha(static_cast<unsigned char>(c)) != 0);
    }
    [[nodiscard]] static bool continuesName(char c) noexcept {
        return is(c, inName) || (!isUtf8 && is(c, control) && std::isalnum(static_cast<unsigned char>(c)) != 0);
    }

    /// Ends the parsing. What is there stays as it is.
    bool fail(int id, const char* where) noexcept {
        document_.fault_ = {id, offsetOf(where)};
        isDamaged_ = true;
        return false;
    }

    void skipBlanks() noexcept {
        for (;;) {
            while (is(*at_, blank)) {
                ++at_;
                // Most blanks indent a line, by fours.
                while (std::memcmp(at_, "    ", 4) == 0) at_ += 4;
            }
            if (!utf8() || !beginsWithMark(at_)) return;
            at_ += markLength;
        }
    }

    /// The open element gets one more child. Only the first one's value counts.
    void append(const char* value) noexcept {
        Node& parent = nodes_[open_];
        if (parent.value == 0) parent.value = offsetOf(value);
    }

    /// The open element ends here.
    void close() noexcept { open_ = std::exchange(nodes_[open_].end, count_); }

    // What follows reads one token each, and says whether there is more to parse.

    /// Up to the next "<". Between elements there are only blanks; within one there may be text.
    bool content() noexcept {
        if (atTop()) {
            skipBlanks();
            return *at_ == '<';
        }
        if (*at_ == '\0') return fail(TiXmlBase::TIXML_ERROR_READING_ELEMENT_VALUE, at_);
        char* const beginning = at_;
        skipBlanks();
        if (*at_ == '<') return true;
        if (*at_ == '\0') return fail(TiXmlBase::TIXML_ERROR_READING_END_TAG, at_);
        if (!condenses()) at_ = beginning;
        return text();
    }

    bool text() noexcept {
        char* const value = at_;
        char* const valueEnd = decodeTo('<');
        if (!std::all_of(value, valueEnd, [](char c) { return is(c, blank); })) {
            if (judges && nodes_[open_].value != 0) document_.isPlain_ = false;
            append(value);
            if (judges) withText_ = open_;
        }
        // A "<" that is the very last character is not seen.
        const bool more = *at_ == '<' && at_[1] != '\0';
        *valueEnd = '\0';
        return more || fail(TiXmlBase::TIXML_ERROR_READING_ELEMENT_VALUE, at_);
    }

    bool markup() {
        ++at_;
        if (beginsName(*at_)) return openElement();
        if (*at_ == '/' && !atTop()) return closeElement();
        if (judges && !atTop()) document_.isPlain_ = false;
        if (beginsInAnyCase(at_, "?xml")) return declaration();
        if (begins(at_, "!--")) return verbatim("!--", "-->");
        if (begins(at_, "![CDATA[")) {
            isDamaged_ |= atTop();
            return verbatim("![CDATA[", "]]>");
        }
        // An instruction, or the type of the document in front of it; all else is no markup.
        isDamaged_ |= *at_ != '?' && !(begins(at_, "!DOCTYPE") && count_ == 1);
        return verbatim("", ">");
    }

    /// A node whose text stays as it is, between these two words; without the second it takes all that is left.
    [[gnu::noinline]] bool verbatim(std::string_view first, std::string_view last) noexcept {
        char* const value = at_ + first.size();
        append(value);
        char* const found = last.size() == 1 ? std::strchr(value, last[0]) : std::strstr(value, last.data());
        if (found == nullptr) {
            isDamaged_ = true;
            at_ = end_;
        } else {
            *found = '\0';
            at_ = found + last.size();
        }
        return true;
    }

    bool openElement() {
        if (beginsWithMark(at_)) skipBlanks();  // In UTF-8 it counts as one.
        char* const name = at_;
        char* nameEnd = name;
        if (beginsName(*nameEnd)) {
            do ++nameEnd;
            while (continuesName(*nameEnd));
        }
        at_ = nameEnd;
        if (judges) {
            topElements_ += atTop() ? 1 : 0;
            if (withText_ == open_ && !atTop()) document_.isPlain_ = false;
        }
        append(name);
        Node& node = nodes_[count_];
        node = {offsetOf(name), offsetOf(nameEnd) - offsetOf(name), 0, attributeCount_, open_};
        open_ = count_++;
        if (name == nameEnd || *at_ == '\0') {
            *nameEnd = '\0';
            return fail(TiXmlBase::TIXML_ERROR_FAILED_TO_READ_ELEMENT_NAME, name);
        }
        const bool more = tag();
        *nameEnd = '\0';
        return attributeCount_ - node.attributes < 2 ? more : isWithoutRepeated(node) && more;
    }

    /// From the end of its name to its ">".
    bool tag() noexcept {
        for (;;) {
            skipBlanks();
            switch (*at_) {
                case '\0':
                    return fail(TiXmlBase::TIXML_ERROR_READING_ATTRIBUTES, at_);
                case '>':
                    *at_++ = '\0';
                    return true;
                case '/':
                    *at_++ = '\0';
                    if (*at_ != '>') return fail(TiXmlBase::TIXML_ERROR_PARSING_EMPTY, at_);
                    ++at_;
                    close();
                    return true;
                default:
                    if (!appendAttribute()) return false;
            }
        }
    }

    bool appendAttribute() noexcept {
        RawAttribute found;
        if (const Fault fault = attribute(found)) return fail(fault.id, text_ + fault.offset);
        *found.nameEnd = '\0';
        // A value without quotes may be followed at once by the end of the tag, which becomes a NUL when it has been
        // read.
        if (found.valueEnd == at_ && is(*at_, blank)) ++at_;
        if (found.valueEnd != at_) *found.valueEnd = '\0';
        document_.attributes_[attributeCount_++] = {offsetOf(found.name), offsetOf(found.value)};
        return true;
    }

    /// An element that has an attribute twice keeps those before the second, and ends the parsing.
    bool isWithoutRepeated(const Node& node) {
        const std::span all(document_.attributes_ + node.attributes, attributeCount_ - node.attributes);
        const std::size_t repeated = firstRepeated(all, text_);
        if (repeated == all.size()) return true;
        attributeCount_ = node.attributes + static_cast<std::uint32_t>(repeated);
        return fail(TiXmlBase::TIXML_ERROR_PARSING_ELEMENT, text_ + all[repeated].name);
    }

    bool closeElement() noexcept {
        const Node& node = nodes_[open_];
        char* const name = at_ + 1;
        if (end_ - name < node.nameLength || !isSame(name, text_ + node.name, node.nameLength)) {
            return fail(TiXmlBase::TIXML_ERROR_READING_END_TAG, at_ - 1);
        }
        at_ = name + node.nameLength;
        skipBlanks();
        if (*at_ != '>') return fail(TiXmlBase::TIXML_ERROR_READING_END_TAG, at_);
        ++at_;
        close();
        return true;
    }

    /// Whatever is not an attribute of a declaration is skipped. A declaration that is cut or wrong ends the parsing;
    /// at the top level it is not a fault.
    [[gnu::noinline]] bool declaration() noexcept {
        char* const value = at_;
        append(value);
        at_ += std::strlen("?xml");
        std::string_view encoding;
        while (*at_ != '>') {
            skipBlanks();
            const bool isEncoding = beginsInAnyCase(at_, "encoding");
            bool more = true;
            if (isEncoding || beginsInAnyCase(at_, "version") || beginsInAnyCase(at_, "standalone")) {
                RawAttribute found;
                more = !attribute(found);
                if (isEncoding) encoding = {found.value, found.valueEnd};
            } else {
                while (*at_ != '\0' && *at_ != '>' && !is(*at_, blank)) ++at_;
            }
            if (!more || *at_ == '\0') {
                *value = '\0';
                isDamaged_ = true;
                return !atTop() && fail(TiXmlBase::TIXML_ERROR_READING_ELEMENT_VALUE, at_);
            }
        }
        *value = '\0';
        ++at_;
        if (atTop() && encoding_ == Encoding::unknown) encoding_ = encodingOf(encoding);
        return true;
    }

    [[nodiscard]] static Encoding encodingOf(std::string_view name) noexcept {
        name = name.substr(0, name.find('\0'));
        const auto beginsWith = [&](std::string_view words) {
            return name.size() >= words.size() && beginsInAnyCase(name.data(), words);
        };
        return name.empty() || beginsWith("utf-8") || beginsWith("utf8") ? Encoding::utf8 : Encoding::bytes;
    }

    /// From an attribute's name to what follows its value.
    /// @return what is wrong with it; nothing else is said then.
    [[gnu::noinline]] Fault attribute(RawAttribute& found) noexcept {
        const auto wrong = [&](int id, const char* where) { return Fault{id, offsetOf(where)}; };
        found = {at_, at_, at_, at_};
        if (!beginsName(*at_)) return wrong(TiXmlBase::TIXML_ERROR_READING_ATTRIBUTES, at_);
        do ++at_;
        while (continuesName(*at_));
        found.nameEnd = at_;
        skipBlanks();
        if (*at_ != '=') return wrong(TiXmlBase::TIXML_ERROR_READING_ATTRIBUTES, at_);
        ++at_;
        skipBlanks();
        if (*at_ == '\0') return wrong(TiXmlBase::TIXML_ERROR_READING_ATTRIBUTES, at_);

        if (const char mark = *at_; mark == '"' || mark == '\'') {
            found.value = ++at_;
            found.valueEnd = decodeTo(mark);
            if (*at_ != mark) return wrong(TiXmlBase::TIXML_ERROR_PARSING_ELEMENT, found.name);
            ++at_;
        } else {
            found.value = at_;
            while (*at_ != '\0' && *at_ != '/' && *at_ != '>' && !is(*at_, blank)) {
                if (is(*at_, quote)) return wrong(TiXmlBase::TIXML_ERROR_READING_ATTRIBUTES, at_);
                if (judges && *at_ == '&') document_.isPlain_ = false;  // It is not decoded there.
                ++at_;
            }
            found.valueEnd = at_;
        }
        // With nothing after it, it does not count.
        return *at_ == '\0' ? wrong(TiXmlBase::TIXML_ERROR_PARSING_ELEMENT, found.name) : Fault{};
    }

    /// The kinds of characters that do not stand for themselves before this delimiter.
    [[nodiscard]] unsigned specialBefore(char delimiter) const noexcept {
        const unsigned special = delimiter == '<' ? unsigned{end} : unsigned{quote};
        const unsigned gaps = delimiter == '<' && condenses() ? unsigned{blank} : 0U;
        return special | gaps | ampersand | (utf8() ? unsigned{lead} : 0U);
    }

    /// A character of several bytes takes all of them along, even those that look like markup.
    void copyCharacter(char*& from, char*& to) const noexcept {
        for (std::size_t left = utf8() ? lengthInUtf8(*from) : 1; left > 0 && *from != '\0'; --left) *to++ = *from++;
    }

    /// Decodes the text from here to the next `delimiter` and stops there, or at the end of the text, or at a reference
    /// that cannot be decoded.
    /// @return the end of the decoded text, which is not terminated yet.
    char* decodeTo(char delimiter) noexcept {
        const bool condense = delimiter == '<' && condenses();
        const unsigned special = specialBefore(delimiter);
        // Most texts stand for themselves.
        char* from = at_;
        while (!is(*from, special)) ++from;
        char* to = from;
        bool gap = false;
        while (*from != delimiter && *from != '\0') {
            if (condense && is(*from, blank)) {
                gap = true;
                ++from;
                continue;
            }
            if (gap) *to++ = ' ';
            gap = false;
            if (*from == '&') {
                const bool isNumber = from[1] == '#';
                char* const behind = decodeReference(from, to, utf8());
                // One of the five that have names is right in any case.
                if (judges && (isNumber || behind == nullptr || behind == from + 1)) document_.isPlain_ = false;
                if (behind == nullptr) break;
                from = behind;
            } else {
                copyCharacter(from, to);
                while (!is(*from, special)) *to++ = *from++;
            }
        }
        at_ = from;
        return to;
    }

    Document& document_;
    Node* const nodes_;
    char* const text_;
    char* const end_;
    char* at_;
    Encoding encoding_ = Encoding::unknown;
    const bool condense_ = TiXmlBase::IsWhiteSpaceCondensed();
    bool isDamaged_ = false;
    std::uint32_t topElements_ = 0;
    std::uint32_t withText_ = 0;  ///< the element that a text was last found in
    std::uint32_t open_ = 0;      ///< the element that is open; until it ends, the end of its node holds its parent
    std::uint32_t count_ = 1;     ///< of nodes
    std::uint32_t attributeCount_ = 0;
};

// Each in a function of its own, with what it calls for every element in one piece.
template <Manner manner>
[[gnu::noinline, gnu::flatten]] void Document::parseAs() {
    constexpr bool judges = manner == Manner::ofUtf8;
    const Bounds bounds = boundsOf<judges>(text_.bytes(), text_.length());
    isAscii_ = judges && bounds.bits < 0x80;
    allocate(bounds.elements, bounds.attributes);
    DocumentParser<manner>(*this).parse();
}

void Document::parse(Manner manner) {
    manner == Manner::ofUtf8 ? parseAs<Manner::ofUtf8>() : parseAs<Manner::ofProcess>();
}

}  // namespace kvj
