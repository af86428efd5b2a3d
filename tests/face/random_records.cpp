#include "face/random_records.h"

#include <langinfo.h>

#include <cmath>
#include <limits>
#include <nlohmann/json.hpp>
#include <string_view>
#include <vector>

#include "asked_record.h"
#include "changes.h"
#include "support/files.h"

namespace kvj::tests {

namespace {

std::size_t below(std::size_t bound, Random& random) { return random() % bound; }

bool isUtf8() { return std::string_view(nl_langinfo(CODESET)) == "UTF-8"; }

/// A character of one to four bytes. In a locale without UTF-8 the named operations end at a byte beyond ASCII.
std::string anyCharacter(Random& random) {
    static constexpr std::string_view rare[] = {
        "&",  "<",  ">",    "\"",   "'",    " ",   "  ",       "&#x41;",       "&amp;",
        "\t", "\n", "\x01", "\x1F", "\x7F", "]]>", "\xC3\xA9", "\xE2\x82\xAC", "\xF0\x9F\x98\x80"};
    constexpr std::size_t beyondAscii = 3;
    if (below(4, random) != 0) return std::string(1, static_cast<char>('!' + below('~' - '!' + 1, random)));
    return std::string(rare[below(std::size(rare) - (isUtf8() ? 0 : beyondAscii), random)]);
}

std::string anyText(std::size_t most, Random& random) {
    std::string text;
    for (std::size_t count = below(24, random); count > 0; --count) {
        const std::string character = anyCharacter(random);
        if (text.size() + character.size() > most) break;
        text += character;
    }
    return text;
}

std::int64_t anyNumber(Random& random) {
    switch (below(4, random)) {
        case 0:
            return static_cast<std::int64_t>(random());
        case 1:
            return 254 + static_cast<std::int64_t>(below(24, random));  // Ribbons have codes like these.
        default:
            return static_cast<std::int64_t>(below(14, random)) - 2;
    }
}

float anyDecimal(Random& random) {
    constexpr float special[] = {0.0F, -0.0F, 0.005F, 1e30F, -1e-30F, std::numeric_limits<float>::infinity(), NAN};
    if (below(8, random) == 0) return special[below(std::size(special), random)];
    return static_cast<float>(static_cast<int>(below(20'000, random)) - 10'000) / 100;
}

const char* keep(const std::string& text, Kept& kept) {
    const std::shared_ptr<std::byte[]> memory(new std::byte[text.size() + 1]);
    std::memcpy(memory.get(), text.c_str(), text.size() + 1);
    kept.push_back(memory);
    return reinterpret_cast<const char*>(memory.get());
}

void fill(const Field& field, void* record, Random& random, Kept& kept);

void fillList(const Field& field, void* record, Random& random, Kept& kept) {
    const Entries& entries = *field.entries;
    const std::size_t count = below(5, random);
    if (entries.storage == Storage::catalogue) {
        for (std::size_t i = 0; i < count; ++i) fill(*entries.entry, entries.append(record), random, kept);
        return;
    }
    const std::shared_ptr<std::byte[]> array(new std::byte[count * entries.entry->size]{});
    for (std::size_t i = 0; i < count; ++i) fill(*entries.entry, array.get() + i * entries.entry->size, random, kept);
    entries.provide(record, array.get());
    entries.setCount(record, static_cast<std::int64_t>(count));
    kept.push_back(array);
}

void fill(const Field& field, void* record, Random& random, Kept& kept) {
    switch (field.type) {
        case FieldType::flag:
        case FieldType::bit:
            return setFlag(field, record, below(2, random) != 0);
        case FieldType::number:
        case FieldType::ipAddress: {
            const std::int64_t number = anyNumber(random);
            std::memcpy(field.in(record), &number, field.size);  // its low bytes
            return;
        }
        case FieldType::decimal:
            return setValue(field, record, anyDecimal(random));
        case FieldType::hardwareAddress:
            for (std::size_t i = 0; i < field.size; ++i) {
                static_cast<unsigned char*>(field.in(record))[i] = static_cast<unsigned char>(random());
            }
            return;
        case FieldType::text: {
            const std::string text = anyText(field.size, random);
            std::memcpy(field.in(record), text.data(), text.size());
            return;
        }
        case FieldType::hostText: {
            if (field.hostText == HostText::elementName) {
                constexpr const char* devices[] = {"fan",       "sensor", "clutch", "advance",
                                                   "laminator", "radio",  "rfid",   "lamp"};
                return setValue(field, record, devices[below(std::size(devices), random)]);
            }
            constexpr const char* known[] = {"scal", "scal 1", "scal 2", "scan", "up"};
            const std::string text =
                below(3, random) == 0 ? known[below(std::size(known), random)] : anyText(64, random) + "x";
            const bool isMissing = field.hostText == HostText::optional && below(8, random) == 0;
            return setValue(field, record, isMissing ? nullptr : keep(text, kept));
        }
        case FieldType::record:
            return tests::fill(*field.record, field.in(record), random, kept);
        case FieldType::list:
            return fillList(field, record, random, kept);
    }
}

void appendUtf8(std::string& text, char32_t code) {
    const auto byte = [&](char32_t value) { text += static_cast<char>(static_cast<unsigned char>(value)); };
    if (code < 0x80) return byte(code);
    if (code < 0x800) {
        byte(0xC0 | code >> 6);
    } else {
        if (code < 0x10000) {
            byte(0xE0 | code >> 12);
        } else {
            byte(0xF0 | code >> 18);
            byte(0x80 | (code >> 12 & 0x3F));
        }
        byte(0x80 | (code >> 6 & 0x3F));
    }
    byte(0x80 | (code & 0x3F));
}

}  // namespace

void fill(const RecordType& type, void* record, Random& random, Kept& kept) {
    for (const Field& field : type.fields) fill(field, record, random, kept);
}

Choices anyChoices(const Request& request, Random& random) {
    Choices choices{.card = static_cast<int>(below(3, random)),
                    .mode = static_cast<int>(below(3, random)),
                    .withoutTransfer = below(2, random) != 0,
                    .allCards = below(2, random) != 0,
                    .full = below(2, random) != 0};
    if (request.hasSections()) choices.sections = static_cast<long>(random() & 0xFF'FFFF);
    if (below(2, random) != 0) choices.card = 0;
    if (below(3, random) != 0) choices.mode = 0;
    return choices;
}

Choices readSample(const Request& request, void* record, Kept& kept) {
    const std::string source = std::string(KVJXML_REQUESTS "/").append(request.name).append(".json");
    const nlohmann::json json = nlohmann::json::parse(contentOf(source));
    tool::Changes changes;
    tool::readAsked(tool::Place(json, source), request, {}, record, kept, changes);
    return {.sections = 0xFF'FFFF, .allCards = true, .full = true};  // as tests/golden/*.options say
}

std::string printed(const Request& request, const void* record, const Choices& choices) {
    constexpr std::size_t room = std::size_t{1} << 19U;  // more than any record here becomes
    static std::vector<char> narrow(room);
    static std::vector<wchar_t> wide(room);
    const RequestBuffer buffer{narrow.data(), wide.data(), static_cast<int>(room)};
    if (!request.compose(record, choices, buffer)) return {};
    if (!request.isWide) return narrow.data();
    std::string text;
    for (const wchar_t* at = wide.data(); *at != L'\0'; ++at) appendUtf8(text, static_cast<char32_t>(*at));
    return text;
}

}  // namespace kvj::tests
