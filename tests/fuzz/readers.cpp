// Any text, given to every reader whose message it could hold.
#include <cstring>
#include <cwchar>
#include <optional>

#include "foundation/reply.h"
#include "support/readers.h"
#include "target.h"

namespace {

using kvj::Reply;
using kvj::fuzz::require;
using kvj::tests::Reader;
using kvj::tests::Text;

/// The bytes as wide text. A byte that belongs to no character becomes one that no locale knows.
std::wstring wideOf(const std::string& bytes) {
    std::wstring text;
    for (std::size_t at = 0; at < bytes.size();) {
        if (static_cast<unsigned char>(bytes[at]) < 0x80) {  // In every locale that this runs in it stands for itself.
            text += static_cast<wchar_t>(bytes[at++]);
            continue;
        }
        wchar_t character = 0;
        std::mbstate_t state{};
        std::size_t used = std::mbrtowc(&character, &bytes[at], bytes.size() - at, &state);
        if (used > bytes.size() - at) character = -1;
        if (used == 0 || character == -1) used = 1;
        text += character;
        at += used;
    }
    return text;
}

struct Outcome {
    bool result;
    std::unique_ptr<char[]> record;
};

Outcome read(const Reader& reader, const Text& text) {
    Outcome outcome{false, std::make_unique<char[]>(reader.recordSize)};
    outcome.result = reader.read(text, outcome.record.get());
    require(reader.isValid(outcome.record.get()), "texts are terminated and counts within their bounds");
    return outcome;
}

/// A text as the readers of one form of it see it, parsed only when that is asked.
class Parsed {
public:
    explicit Parsed(const Text& text, bool isWide) : text_(&text), isWide_(isWide) {}
    bool has(const char* root) {
        if (!reply_ && isWide_) reply_.emplace(*text_->wide, static_cast<std::int64_t>(text_->length));
        if (!reply_) reply_.emplace(text_->narrow);
        return static_cast<bool>(reply_->root(root));
    }

private:
    const Text* text_;
    bool isWide_;
    std::optional<Reply> reply_;
};

void check(const Reader& reader, const Text& text, Parsed& parsed, bool again) {
    const auto reads = [&](const Text& other, const Outcome& outcome) {
        const auto [result, record] = read(reader, other);
        return result == outcome.result && std::memcmp(record.get(), outcome.record.get(), reader.recordSize) == 0;
    };
    const Outcome outcome = read(reader, text);
    require(!again || reads(text, outcome), "the same reply reads the same again");
    if (!parsed.has(reader.root)) {
        require(!outcome.result && reads({"", L"", 0}, outcome), "without the message nothing is read");
    }
}

/// Whether a tag begins with that name. Compared by hand: the fuzzer looks into every comparison of the C library.
bool hasTag(const std::string& bytes, const char* name) {
    for (std::size_t at = bytes.find('<'); at != std::string::npos; at = bytes.find('<', at + 1)) {
        std::size_t i = 0;
        while (name[i] != '\0' && bytes[at + 1 + i] == name[i]) ++i;
        if (name[i] == '\0') return true;
    }
    return false;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes = kvj::fuzz::textOf(data, size);
    std::wstring characters = wideOf(bytes);
    // Hosts that know of characters beyond ASCII fill up with zeros to as many as there are bytes; others do not.
    if (size % 2 == 0) characters.resize(size);

    const auto narrow = kvj::fuzz::exactCopy(bytes.c_str(), bytes.size() + 1);
    const auto wide = kvj::fuzz::exactCopy(characters.data(), characters.size());
    const Text wideText{narrow.get(), wide.get(), characters.size()};
    const Text narrowText{narrow.get(), wide.get(), bytes.size()};
    Parsed asWide(wideText, true);
    Parsed asNarrow(narrowText, false);
    const auto all = kvj::tests::readers();
    for (const Reader& reader : all) {
        if (!hasTag(bytes, reader.root) && &reader != &all[size % all.size()]) continue;
        // To read twice takes twice as long, so it is left to some inputs.
        const bool again = size % 8 == 0;
        check(reader, reader.takesWide ? wideText : narrowText, reader.takesWide ? asWide : asNarrow, again);
    }
    return 0;
}
