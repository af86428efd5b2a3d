// Any text, given to every reader whose message it could hold.
#include <cstring>
#include <cwchar>

#include "foundation/reply.h"
#include "support/readers.h"
#include "target.h"

namespace {

using kvjxml::Reply;
using kvjxml::fuzz::require;
using kvjxml::tests::Reader;
using kvjxml::tests::Text;

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

void check(const Reader& reader, const Text& text) {
    const auto reads = [&](const Text& other, const Outcome& outcome) {
        const auto [result, record] = read(reader, other);
        return result == outcome.result && std::memcmp(record.get(), outcome.record.get(), reader.recordSize) == 0;
    };
    const Outcome outcome = read(reader, text);
    require(reads(text, outcome), "the same reply reads the same again");
    const auto length = static_cast<std::int64_t>(text.length);
    const bool hasMessage = reader.takesWide ? static_cast<bool>(Reply(*text.wide, length).root(reader.root))
                                             : static_cast<bool>(Reply(text.narrow).root(reader.root));
    if (!hasMessage) {
        require(!outcome.result && reads({"", L"", 0}, outcome), "without the message nothing is read");
    }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes = kvjxml::fuzz::textOf(data, size);
    std::wstring characters = wideOf(bytes);
    // Hosts that know of characters beyond ASCII fill up with zeros to as many as there are bytes; others do not.
    if (size % 2 == 0) characters.resize(size);

    const auto narrow = kvjxml::fuzz::exactCopy(bytes.c_str(), bytes.size() + 1);
    const auto wide = kvjxml::fuzz::exactCopy(characters.data(), characters.size());
    const auto all = kvjxml::tests::readers();
    for (const Reader& reader : all) {
        const bool possible = bytes.find(std::string("<") + reader.root) != std::string::npos;
        if (!possible && &reader != &all[size % all.size()]) continue;
        check(reader, {narrow.get(), wide.get(), reader.takesWide ? characters.size() : bytes.size()});
    }
    return 0;
}
