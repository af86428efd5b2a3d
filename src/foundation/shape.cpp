#include "foundation/shape.h"

#include <algorithm>
#include <cctype>
#include <cstring>
#include <string_view>

namespace kvjxml {

namespace {

/// How many bytes the character takes that begins with this byte, as TinyXML counts in UTF-8.
std::ptrdiff_t lengthInUtf8(char first) noexcept {
    const auto byte = static_cast<unsigned char>(first);
    if (byte < 0xC2 || byte > 0xF4) return 1;
    if (byte < 0xE0) return 2;
    return byte < 0xF0 ? 3 : 4;
}

bool isSpace(char c) noexcept { return c == ' ' || (c >= '\t' && c <= '\r'); }

bool isDigit(char c) noexcept { return c >= '0' && c <= '9'; }

/// Bytes from 7F on count as letters; whether a control character is one is up to the locale.
bool isLetter(char c) noexcept {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < ' ') return std::isalpha(byte) != 0;
    const auto lower = byte | 0x20U;
    return (lower >= 'a' && lower <= 'z') || c == '_' || byte >= 0x7F;
}

bool isNameCharacter(char c) noexcept { return isLetter(c) || isDigit(c) || c == '-' || c == '.' || c == ':'; }

/// Whether a text begins with these words, which are in small letters where case does not matter.
bool begins(const char* text, std::string_view with) noexcept {
    return std::strncmp(text, with.data(), with.size()) == 0;
}
bool beginsInAnyCase(const char* text, std::string_view with) noexcept {
    return std::ranges::all_of(with, [&](char c) { return std::tolower(static_cast<unsigned char>(*text++)) == c; });
}

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/// By blocks, which compilers make vector instructions of.
bool isAscii(const char* text, std::size_t length) noexcept {
    constexpr std::size_t block = 32;
    unsigned char bits = 0;
    for (; length >= block; text += block, length -= block) {
        for (std::size_t i = 0; i < block; ++i) bits |= static_cast<unsigned char>(text[i]);
    }
    for (; length > 0; ++text, --length) bits |= static_cast<unsigned char>(*text);
    return bits < 0x80;
}

/// Goes through a text token by token as TinyXML does, and stops where TinyXML gives up.
class Scanner {
public:
    Scanner(const char* text, std::size_t length) noexcept
        : at_(text), end_(text + length), encoding_(begins(text, byteOrderMark) ? Encoding::utf8 : Encoding::unknown) {
        ascii_ = isAscii(text, length);
        plain_ = ascii_ && std::memchr(text, '&', length) == nullptr;
    }

    Shape scan() noexcept {
        // Between elements there is only white space to skip; inside one, it is a part of the text.
        while (depth_ == 0 ? skipSpace() : skipTo('<'), *at_ == '<') {
            if (isLetter(at_[1])) {
                openElement();
            } else if (depth_ > 0 && at_[1] == '/') {
                closeElement();
            } else if (beginsInAnyCase(at_, "<?xml")) {
                skipDeclaration();
            } else if (begins(at_, "<!--")) {
                skipBehind("-->", 4);
            } else if (begins(at_, "<![CDATA[")) {
                skipBehind("]]>", 9);
            } else {
                skipBehind(">", 1);
            }
        }
        return shape_;
    }

private:
    /// Until the first declaration at the top level says, each byte is a character.
    enum class Encoding { unknown, utf8, bytes };

    /// What an attribute has between its quotes, as far as it is needed: the encoding of a declaration.
    struct Value {
        char characters[8]{};
        std::size_t length = 0;

        void append(char c) noexcept {
            if (length < sizeof characters - 1) characters[length++] = c;
        }
    };

    void stop() noexcept { at_ = end_ = ""; }

    [[nodiscard]] bool utf8() const noexcept { return encoding_ == Encoding::utf8; }

    void skipSpace() noexcept {
        for (;;) {
            if (isSpace(*at_)) {
                ++at_;
            } else if (utf8() && isMark()) {
                at_ += byteOrderMark.size();
            } else {
                return;
            }
        }
    }

    /// A byte-order mark, and the two characters that are none, count as white space.
    [[nodiscard]] bool isMark() const noexcept {
        return begins(at_, byteOrderMark) || begins(at_, "\xEF\xBF\xBE") || begins(at_, "\xEF\xBF\xBF");
    }

    /// Skips `from` characters and then all up to and with `words`.
    void skipBehind(std::string_view words, std::size_t from) noexcept {
        const char* found = std::strstr(at_ + from, words.data());
        if (found == nullptr) return stop();
        at_ = found + words.size();
    }

    /// To the next `last` that is text: a character of several bytes and a numbered reference take along what is in
    /// them, markup or not.
    void skipTo(char last, Value* value = nullptr) noexcept {
        if (plain_ && value == nullptr) {
            const void* found = std::memchr(at_, last, static_cast<std::size_t>(end_ - at_));
            at_ = found == nullptr ? end_ : static_cast<const char*>(found);
        }
        for (; *at_ != '\0' && *at_ != last; skipCharacter(value)) {
            if (!ascii_ || value != nullptr) continue;
            while (*at_ != '\0' && *at_ != last && *at_ != '&') ++at_;
            if (*at_ != '&') return;
        }
    }

    void skipCharacter(Value* value) noexcept {
        const bool reference = *at_ == '&';
        if (reference && at_[1] == '#' && at_[2] != '\0') return skipReference(value);
        // Of a reference by name only the ampersand is left out here; none of them makes the name of an encoding.
        if (value != nullptr && !reference) value->append(*at_);
        at_ += utf8() ? lengthInUtf8(*at_) : 1;
    }

    /// A numbered reference ends at the next semicolon, wherever that is, and its digits begin at the last mark before
    /// it.
    void skipReference(Value* value) noexcept {
        const bool hexadecimal = at_[2] == 'x';
        const char mark = hexadecimal ? 'x' : '#';
        const char* semicolon = std::strchr(at_ + (hexadecimal ? 3 : 2), ';');
        if (semicolon == nullptr) return stop();
        unsigned int number = 0;
        unsigned int weight = 1;
        for (const char* digit = semicolon - 1; *digit != mark; --digit) {
            const char lower = static_cast<char>(*digit | 0x20);
            if (isDigit(*digit)) {
                number += weight * static_cast<unsigned int>(*digit - '0');
            } else if (hexadecimal && lower >= 'a' && lower <= 'f') {
                number += weight * static_cast<unsigned int>(lower - 'a' + 10);
            } else {
                return stop();
            }
            weight *= hexadecimal ? 16U : 10U;
        }
        if (value != nullptr) value->append(static_cast<char>(number));
        at_ = semicolon + 1;
    }

    void skipName() noexcept {
        if (!isLetter(*at_)) return stop();
        while (isNameCharacter(*at_)) ++at_;
    }

    /// A name, an equals sign and a value, in quotes or without.
    void skipAttribute(Value* value = nullptr) noexcept {
        skipSpace();
        skipName();
        skipSpace();
        if (*at_ != '=') return stop();
        ++at_;
        skipSpace();
        if (const char quote = *at_; quote == '"' || quote == '\'') {
            ++at_;
            skipTo(quote, value);
            if (*at_ != '\0') ++at_;
            return;
        }
        for (; *at_ != '\0' && !isSpace(*at_) && *at_ != '/' && *at_ != '>'; ++at_) {
            if (*at_ == '"' || *at_ == '\'') return stop();
            if (value != nullptr) value->append(*at_);
        }
    }

    void openElement() noexcept {
        shape_.depth = std::max(shape_.depth, depth_ + 1);
        const char* end = std::strchr(at_, '>');
        if (end != nullptr && std::memchr(at_, '=', static_cast<std::size_t>(end - at_)) == nullptr) {
            // Without attributes TinyXML comes to this end of the tag, or gives up before.
            at_ = end;
        } else {
            ++at_;
            skipSpace();
            skipName();
            skipAttributes();
        }
        if (*at_ == '\0') return;
        if (at_[-1] != '/') ++depth_;
        ++at_;
    }

    /// To the end of the tag.
    void skipAttributes() noexcept {
        for (std::size_t attributes = 0; skipSpace(), *at_ != '\0' && *at_ != '>';) {
            if (*at_ == '/') {
                ++at_;
                if (*at_ != '>') stop();
                return;
            }
            skipAttribute();
            shape_.attributes = std::max(shape_.attributes, ++attributes);
        }
    }

    /// Whether it is the right element that is closed, and in good form, does not matter: TinyXML gives up when it is
    /// not.
    void closeElement() noexcept {
        const char* end = std::strchr(at_, '>');
        if (end == nullptr) return stop();
        at_ = end + 1;
        --depth_;
    }

    void skipDeclaration() noexcept {
        at_ += 5;
        Value encoding;
        while (*at_ != '\0' && *at_ != '>') {
            skipSpace();
            if (beginsInAnyCase(at_, "encoding")) {
                encoding = {};
                skipAttribute(&encoding);
            } else if (beginsInAnyCase(at_, "version") || beginsInAnyCase(at_, "standalone")) {
                skipAttribute();
            } else {
                while (*at_ != '\0' && *at_ != '>' && !isSpace(*at_)) ++at_;
            }
        }
        if (*at_ == '\0') return;
        ++at_;
        if (depth_ == 0 && encoding_ == Encoding::unknown) {
            const char* name = encoding.characters;
            const bool isUtf8 = *name == '\0' || beginsInAnyCase(name, "utf-8") || beginsInAnyCase(name, "utf8");
            encoding_ = isUtf8 ? Encoding::utf8 : Encoding::bytes;
        }
    }

    const char* at_;
    const char* end_;
    Encoding encoding_;
    bool ascii_ = false;  ///< Every byte of the text is a character.
    bool plain_ = false;  ///< And there are no references: it stands for itself.
    std::size_t depth_ = 0;
    Shape shape_;
};

/// Whether a text has more than so many of a character.
bool hasMore(std::size_t limit, char c, const char* text, std::size_t length) noexcept {
    const char* const end = text + length;
    for (std::size_t found = 0; found <= limit; ++found) {
        const void* next = std::memchr(text, c, static_cast<std::size_t>(end - text));
        if (next == nullptr) return false;
        text = static_cast<const char*>(next) + 1;
    }
    return true;
}

}  // namespace

Shape shapeOf(const char* text, std::size_t length) noexcept { return Scanner(text, length).scan(); }

bool isWithin(Shape limit, const char* text, std::size_t length) noexcept {
    // Most replies have not enough of the characters that make an element or an attribute.
    if (!hasMore(limit.depth, '<', text, length) && !hasMore(limit.attributes, '=', text, length)) return true;
    const Shape shape = shapeOf(text, length);
    return shape.depth <= limit.depth && shape.attributes <= limit.attributes;
}

}  // namespace kvjxml
