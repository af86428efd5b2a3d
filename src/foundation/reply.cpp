#include "foundation/reply.h"

#include <cstring>

#include "foundation/multibyte.h"

namespace kvj {

Text copyOf(const wchar_t* reply, std::int64_t length) {
    if (length <= 0) return {};
    Text text(static_cast<std::size_t>(length));
    std::memset(text.bytes(), 0, text.length());
    toMultibyte(reply, text.length(), text.bytes());
    text.end(strnlen(text.bytes(), text.length()));
    return text;
}

Text copyOf(const char* reply) {
    if (reply == nullptr) return {};
    Text text(std::strlen(reply));
    std::memcpy(text.bytes(), reply, text.length());
    return text;
}

void tellFault(const Document& reply, TiXmlDocument& host) {
    if (!reply.hasText()) return;
    // A host's document remembers the byte-order mark for the file that it may be saved to, and learns of it only here.
    if (reply.hasByteOrderMark()) host.Parse("\xEF\xBB\xBF", nullptr, TIXML_ENCODING_UNKNOWN);
    host.ClearError();
    if (reply.fault()) host.SetError(reply.fault().id, nullptr, nullptr, TIXML_ENCODING_UNKNOWN);
}

}  // namespace kvj
