// Any text, given to every reader whose message it could hold.
#include <algorithm>
#include <cstring>
#include <cwchar>
#include <optional>
#include <vector>

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
    std::wstring text(bytes.size(), L'\0');
    wchar_t* to = text.data();
    for (std::size_t at = 0; at < bytes.size();) {
        if (static_cast<unsigned char>(bytes[at]) < 0x80) {  // In every locale that this runs in it stands for itself.
            *to++ = static_cast<wchar_t>(bytes[at++]);
            continue;
        }
        wchar_t character = 0;
        std::mbstate_t state{};
        std::size_t used = std::mbrtowc(&character, &bytes[at], bytes.size() - at, &state);
        if (used > bytes.size() - at) character = -1;
        if (used == 0 || character == -1) used = 1;
        *to++ = character;
        at += used;
    }
    text.resize(static_cast<std::size_t>(to - text.data()));
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

void check(const Reader& reader, const Text& text, Parsed& parsed, bool isThorough) {
    const auto reads = [&](const Text& other, const Outcome& outcome) {
        const auto [result, record] = read(reader, other);
        return result == outcome.result && std::memcmp(record.get(), outcome.record.get(), reader.recordSize) == 0;
    };
    const Outcome outcome = read(reader, text);
    require(!outcome.result || parsed.has(reader.root), "nothing is read without the message");
    if (!isThorough) return;
    require(reads(text, outcome), "the same reply reads the same again");
    require(parsed.has(reader.root) || reads({"", L"", 0}, outcome), "without the message the record stays as it was");
}

/// Where tags begin. Looked for by hand: the sanitizer and the fuzzer look into every call of the C library.
std::vector<const char*> tagsIn(const std::string& text) {
    std::vector<const char*> tags;
    for (const char& character : text) {
        if (character == '<') tags.push_back(&character + 1);
    }
    return tags;
}

/// Whether one of the tags begins with that name.
bool hasTag(const std::vector<const char*>& tags, const char* name) {
    return std::ranges::any_of(tags, [name](const char* tag) {
        std::size_t i = 0;
        while (name[i] != '\0' && tag[i] == name[i]) ++i;
        return name[i] == '\0';
    });
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
    const auto tags = tagsIn(bytes);
    const auto all = kvj::tests::readers();
    // What takes several times as long as reading once is left to some inputs, and so is a message that is not in
    // there.
    const bool isThorough = size % 4 == 0;
    const Reader& any = all[size / 4 % all.size()];
    for (const Reader& reader : all) {
        if (!hasTag(tags, reader.root) && !(isThorough && &reader == &any)) continue;
        check(reader, reader.takesWide ? wideText : narrowText, reader.takesWide ? asWide : asNarrow, isThorough);
    }
    return 0;
}
