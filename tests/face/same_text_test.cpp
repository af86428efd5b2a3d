// What the face composes is what the named operations print, byte for byte.
#include <gtest/gtest.h>

#include <algorithm>
#include <clocale>
#include <cstring>
#include <string>
#include <vector>

#include "face/faces.h"
#include "face/random_records.h"
#include "support/files.h"

namespace same_text_test {

using kvj::Choices;
using kvj::Request;
using kvj::ZeroedRecord;
using kvj::tests::composed;
using kvj::tests::composedIn;
using kvj::tests::contentOf;
using kvj::tests::Kept;
using kvj::tests::printed;
using kvj::tests::Random;

namespace {

/// What the face composes; empty when there is nothing to send.
std::string textOf(const Request& request, const void* record, const Choices& choices) {
    const auto result = composed(request, record, choices, true);
    return result ? result.text() : "";
}

/// A hash that is the same in every build, so that each locale has records of its own.
std::size_t seedOf(std::string_view text) {
    std::size_t seed = 0;
    for (const char c : text) seed = 31 * seed + static_cast<unsigned char>(c);
    return seed;
}

/// Calls a check with so many random records of every request.
template <class Check>
void withRandomRecords(std::size_t count, Check check) {
    Random random(seedOf(std::setlocale(LC_ALL, nullptr)));
    for (std::size_t i = 0; i < count && !testing::Test::HasFailure(); ++i) {
        const Request& request = kvj::requests()[i % kvj::requests().size()];
        SCOPED_TRACE(std::string(request.name) + " " + std::to_string(i));
        Kept kept;
        const ZeroedRecord record(request, request.record->size);
        kvj::tests::fill(*request.record, record.get(), random, kept);
        check(request, record.get(), kvj::tests::anyChoices(request, random));
    }
}

class EachRequest : public testing::TestWithParam<Request> {};

TEST_P(EachRequest, IsComposedOfItsSampleAsTheDocumentShows) {
    const Request& request = GetParam();
    Kept kept;
    const ZeroedRecord record(request, request.record->size);
    const Choices choices = kvj::tests::readSample(request, record.get(), kept);
    EXPECT_EQ(textOf(request, record.get(), choices),
              contentOf(std::string(KVJXML_GOLDEN "/").append(request.name).append(".xml")));
}

TEST_P(EachRequest, FillsABufferOfItsSizeAndNoSmallerOne) {
    const Request& request = GetParam();
    Kept kept;
    const ZeroedRecord record(request, request.record->size);
    const Choices choices = kvj::tests::readSample(request, record.get(), kept);
    const std::string text = textOf(request, record.get(), choices);
    std::vector<char> room(text.size() + 2);
    for (std::size_t size = 0; size <= text.size() + 1; ++size) {
        std::ranges::fill(room, '#');
        const auto result = composedIn({room.data(), size}, request, record.get(), choices, true);
        ASSERT_EQ(result.size(), text.size()) << size;
        ASSERT_EQ(static_cast<bool>(result), size >= text.size()) << size;
        ASSERT_TRUE(result.problems().empty());
        if (result) {
            ASSERT_EQ(result.text(), text);
            ASSERT_EQ(result.text().data(), room.data());
        } else {
            ASSERT_EQ(std::count(room.begin(), room.begin() + static_cast<std::ptrdiff_t>(size), '\0'),
                      static_cast<std::ptrdiff_t>(size));
        }
        ASSERT_EQ(room[std::max(size, result ? text.size() : size)], '#') << size;
    }
}

INSTANTIATE_TEST_SUITE_P(Face, EachRequest, testing::ValuesIn(kvj::requests().begin(), kvj::requests().end()),
                         [](const auto& test) {
                             std::string name(test.param.name);
                             std::ranges::replace(name, '-', '_');
                             return name;
                         });

TEST(SameText, OfAnyRecordAndAnyChoice) {
    constexpr std::size_t records = 25'000;  // in each of the four locales
    withRandomRecords(records, [](const Request& request, const void* record, const Choices& choices) {
        ASSERT_EQ(textOf(request, record, choices), printed(request, record, choices));
    });
}

TEST(SameText, WithoutAcceptedChangesWhereNothingIsRefused) {
    std::size_t refused = 0;
    std::size_t sent = 0;
    withRandomRecords(5'000, [&](const Request& request, const void* record, const Choices& choices) {
        const auto result = composed(request, record, choices, false);
        if (result) {
            ++sent;
            ASSERT_EQ(result.text(), printed(request, record, choices));
        } else {
            ++refused;
        }
    });
    EXPECT_GT(refused, 1000U);
    EXPECT_GT(sent, 100U);
}

}  // namespace

}  // namespace same_text_test
