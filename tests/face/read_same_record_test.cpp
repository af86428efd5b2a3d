// For every message kvjxml::read fills the same record as the operation of that name, whatever the reply.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <memory>
#include <ostream>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "fields/differences.h"
#include "foundation/utf8.h"
#include "hostile/samples.h"
#include "messages/message.h"
#include "messages/zeroed_record.h"
#include "support/locale_scope.h"
#include "support/random_replies.h"
#include "support/readings.h"

namespace kvj {
inline void PrintTo(const Message& message, std::ostream* out) { *out << message.name; }
}  // namespace kvj

namespace read_same_record_test {

namespace {

using namespace kvj;
using namespace kvj::tests;

// ---- The named operation, with room for all ----

constexpr std::string_view mark = "\xEF\xBB\xBF";

/// A reply in both forms, for a named operation that is to read it as UTF-8: behind a byte-order mark, and padded to as
/// many characters as it has bytes.
class NamedText {
public:
    explicit NamedText(std::string_view bytes)
        : narrow_(bytes.starts_with(mark) ? "" : mark), wide_((narrow_ += bytes).size() + 1) {
        // What is no text at all in one locale is a byte for each character in another.
        isUtf8_ = firstOutsideUtf8(narrow_) == narrow_.size();
        if (isUtf8_) {
            const LocaleScope utf8("C.UTF-8");
            std::mbstowcs(wide_.data(), narrow_.c_str(), wide_.size());
        } else {
            std::ranges::transform(narrow_, wide_.begin(), [](char c) { return static_cast<unsigned char>(c); });
        }
    }

    bool read(const Message& message, void* record) const {
        const LocaleScope locale(isUtf8_ ? "C.UTF-8" : "de_DE.ISO-8859-1");
        return message.read({narrow_.c_str(), wide_.data(), narrow_.size()}, record);
    }

private:
    std::string narrow_;
    std::vector<wchar_t> wide_;
    bool isUtf8_;
};

/// A record of the named operation's, with arrays of a host's.
class NamedRecord {
public:
    NamedRecord(const Message& message, std::string_view bytes) : message_(message) {
        const NamedText text(bytes);
        record_ = begun();
        text.read(message, record_->get());
        std::vector<std::pair<const Field*, std::size_t>> needed;
        for (const Field* const list : listsOf(message.record)) {
            if (list->entries->storage != Storage::ofHost) continue;
            needed.emplace_back(list, static_cast<std::size_t>(list->entries->count(record_->get())));
        }
        if (needed.empty()) return;
        record_ = begun();
        for (const auto& [list, count] : needed) {
            auto& array = arrays_.emplace_back((count + 1) * list->entries->entry->size);
            list->entries->setCount(record_->get(), static_cast<std::int64_t>(count));
            list->entries->provide(record_->get(), array.data());
        }
        text.read(message, record_->get());
    }

    [[nodiscard]] void* get() const { return record_->get(); }

private:
    [[nodiscard]] std::unique_ptr<ZeroedRecord<Message>> begun() const {
        return std::make_unique<ZeroedRecord<Message>>(message_, message_.record.size);
    }

    const Message& message_;
    std::vector<std::vector<std::byte>> arrays_;
    std::unique_ptr<ZeroedRecord<Message>> record_;
};

// ---- What differs ----

bool isZero(const void* memory, std::size_t size) {
    const std::span bytes(static_cast<const std::byte*>(memory), size);
    return std::ranges::all_of(bytes, [](std::byte byte) { return byte == std::byte{}; });
}

std::string differencesOf(const Field& value, const void* expected, const void* actual) {
    if (std::memcmp(expected, actual, value.size) == 0) return {};
    if (value.record == nullptr) return std::string(value.name) + " differs\n";
    return describeDifferences(*value.record, expected, actual);
}

/// How many elements of that name are in the reply's message.
std::size_t timesIn(std::string_view bytes, const Message& message, std::string_view name) {
    const std::string text(bytes.substr(0, bytes.find('\0')));
    Text copy(text.size());
    std::ranges::copy(text, copy.bytes());
    const Document document(std::move(copy), Manner::ofUtf8);
    std::size_t times = 0;
    for (const Element child : document.root(message.root.data(), message.otherRoot.data()).children()) {
        times += child.name() == name ? 1 : 0;
    }
    return times;
}

/// The section of a list in the capabilities; empty for other lists.
std::string_view sectionOf(const Message& message, const Field& list) {
    const auto known =
        std::ranges::find(message.lists, list.name, [](const HostList& each) { return each.field->name; });
    return known == message.lists.end() ? std::string_view() : known->section;
}

/// The entries that both have room for are the same. An array of a host's has the room that all children of its section
/// need, also those that are no entries.
std::string differencesOf(const ReadList& list, const void* record) {
    const Entries& entries = *list.field().entries;
    std::size_t count = countOf(entries, record);
    if (entries.storage == Storage::inRecord && entries.room != 0) count = std::min(entries.room, list.count());
    std::string text;
    if (list.count() > count) text = std::to_string(list.count()) + " entries instead of " + std::to_string(count);
    for (std::size_t i = 0; i < count; ++i) {
        const void* const expected = entries.at(record, i);
        if (i < list.count()) {
            text += differencesOf(*entries.entry, expected, list.entry(i));
        } else if (!isZero(expected, entries.entry->size)) {
            text += "entry " + std::to_string(i) + " is missing\n";
        }
    }
    return text.empty() ? text : std::string(list.field().name) + ": " + text;
}

/// What the face makes of a reply against what the named operation makes of it; empty when it is the same.
std::string differencesIn(const Message& message, std::string_view bytes) {
    const AnyReading reading = readAny(message, bytes);
    const NamedRecord named(message, bytes);
    std::string text;
    for (const ReadList& list : reading.lists) {
        const std::string_view section = sectionOf(message, list.field());
        if (!section.empty() && timesIn(bytes, message, section) > 1) continue;
        text += differencesOf(list, named.get());
    }
    if (message.record.record == nullptr || reading.lists.empty()) {
        if (reading.lists.empty()) text += differencesOf(message.record, named.get(), reading.record.data());
        return text;
    }
    for (const Field& field : message.record.record->fields) {
        if (field.type == FieldType::list) continue;
        const RecordType alone{message.record.record->name, message.record.record->size,
                               message.record.record->alignment, std::span(&field, 1)};
        text += describeDifferences(alone, named.get(), reading.record.data());
    }
    return text;
}

// ---- Tests ----

std::vector<std::string> sampleTexts() {
    std::vector<std::string> texts;
    for (const Sample& sample : samples()) texts.push_back(sample.text);
    return texts;
}

class SameRecord : public testing::TestWithParam<Message> {
public:
    static std::string nameOf(const testing::TestParamInfo<Message>& info) { return std::string(info.param.name); }
};
INSTANTIATE_TEST_SUITE_P(Of, SameRecord, testing::ValuesIn(messages()), SameRecord::nameOf);

TEST_P(SameRecord, OfEverySample) {
    for (const std::string& text : sampleTexts()) {
        EXPECT_EQ(differencesIn(messageOf(GetParam().name), text), "") << text;
    }
}

TEST_P(SameRecord, OfRightAndBrokenReplies) {
    const std::vector<std::string> samples = sampleTexts();
    const char* const number = std::getenv("KVJXML_REPLIES");
    const std::size_t replies = number == nullptr ? 1500 : std::strtoul(number, nullptr, 10) / messages().size();
    for (std::size_t i = 0; i < replies; ++i) {
        Random random(0x2545F4914F6CDD1DU * i + GetParam().name.size());
        const std::string text = spoiltReply(random, GetParam(), samples);
        ASSERT_EQ(differencesIn(messageOf(GetParam().name), text), "") << i << '\n' << text;
    }
}

TEST_P(SameRecord, OfDocumentsOfAnyKind) {
    const std::vector<std::string> samples = sampleTexts();
    for (std::size_t i = 0; i < 200; ++i) {
        Random random(i);
        const std::string root(GetParam().root);
        const std::string text = "<" + root + ">" + randomDocument(random) + "</" + root + ">";
        ASSERT_EQ(differencesIn(messageOf(GetParam().name), text), "") << text;
    }
}

/// A custom card is looked at twice, to find out which of the two it is. A setting that stands twice in it, first with
/// a value and then with a range, must not be clamped to that range as if the range had come first.
TEST(SameRecordOf, ACardWhoseSettingStandsTwice) {
    EXPECT_EQ(differencesIn(messageOf("configuration"),
                            "<configuration><cards><card><laminator_adjustments><top_temp_adjust>5</top_temp_adjust>"
                            "<top_temp_adjust max='5'/></laminator_adjustments></card></cards></configuration>"),
              "");
}

}  // namespace

}  // namespace read_same_record_test
