/// @file face/utf8_reply.h
/// A reply as kvjxml.hpp takes it: bytes in UTF-8, whatever the process is set to and whatever they declare.
#ifndef KVJXML_FACE_UTF8_REPLY_H
#define KVJXML_FACE_UTF8_REPLY_H

#include <cstring>
#include <string_view>
#include <utility>

#include "foundation/document.h"
#include "foundation/utf8.h"

namespace kvj {

class Utf8Reply : public Document {
public:
    /// @throws std::bad_alloc
    explicit Utf8Reply(std::string_view bytes) : Utf8Reply(bytes, bytes.substr(0, bytes.find('\0'))) {}

    /// Whether the reply is whole in the sense of kvjxml.hpp: there is nothing behind its text, and every byte belongs
    /// to a character.
    [[nodiscard]] bool isWholeReply() const noexcept { return isWholeReply_; }

private:
    Utf8Reply(std::string_view bytes, std::string_view text)
        : Document(copyOf(text), Manner::ofUtf8),
          isWholeReply_(isWhole() && text.size() == bytes.size() &&
                        (isAscii() || firstOutsideUtf8(bytes) == bytes.size())) {}

    static Text copyOf(std::string_view bytes) {
        Text copy(bytes.size());
        if (!bytes.empty()) std::memcpy(copy.bytes(), bytes.data(), bytes.size());
        return copy;
    }

    bool isWholeReply_;
};

}  // namespace kvj

#endif
