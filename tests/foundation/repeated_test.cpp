// Which attribute is the first that repeats a name, however many there are and whatever they are called.
#include "foundation/repeated.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <iterator>
#include <random>
#include <set>
#include <string>
#include <vector>

namespace repeated_test {

namespace {

using kvj::Document;

std::size_t firstRepeated(const std::vector<std::string>& names) {
    std::string text = "\n";
    std::vector<Document::Attribute> attributes;
    for (const auto& name : names) {
        attributes.push_back({static_cast<std::uint32_t>(text.size()), 0});
        text += name + '\0';
    }
    text.append(kvj::Text::padding, '\0');
    return kvj::firstRepeated(attributes, text.c_str());
}

/// The same, found in the plainest way.
std::size_t expected(const std::vector<std::string>& names) {
    std::set<std::string> known;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (!known.insert(names[i]).second) return i;
    }
    return names.size();
}

std::vector<std::string> numbered(std::size_t count, const std::string& before, const std::string& behind = "") {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < count; ++i) names.push_back(before + std::to_string(i) + behind);
    return names;
}

TEST(Repeated, NoneAmongNamesThatDiffer) {
    for (const std::size_t count : {0U, 1U, 2U, 7U, 8U, 9U, 10U, 255U, 256U, 257U, 5000U}) {
        EXPECT_EQ(firstRepeated(numbered(count, "a")), count);
    }
}

TEST(Repeated, IsFoundAtEveryPlaceAmongFewAndMany) {
    for (const std::size_t count : {2U, 3U, 7U, 8U, 9U, 10U, 20U}) {
        for (std::size_t first = 0; first < count; ++first) {
            for (std::size_t second = first + 1; second < count; ++second) {
                auto names = numbered(count, "a");
                names[second] = names[first];
                EXPECT_EQ(firstRepeated(names), second) << count << ' ' << first;
            }
        }
    }
}

TEST(Repeated, TheFirstRepetitionCountsWhicheverNameItIs) {
    for (const std::size_t count : {8U, 9U, 300U, 3000U}) {
        auto names = numbered(count, "a");
        names[count - 1] = names[0];
        names[count - 2] = names[count - 3];
        EXPECT_EQ(firstRepeated(names), count - 2) << count;
        names[5] = names[4];
        names[6] = names[4];
        EXPECT_EQ(firstRepeated(names), 5U) << count;
    }
}

TEST(Repeated, AllOfOneName) {
    for (const std::size_t count : {2U, 8U, 9U, 255U, 256U, 10000U}) {
        for (const std::size_t length : {1U, 7U, 8U, 9U, 16U, 100U}) {
            EXPECT_EQ(firstRepeated(std::vector(count, std::string(length, 'x'))), 1U) << count << ' ' << length;
        }
    }
}

TEST(Repeated, NamesWithACommonBeginningDiffer) {
    for (const std::size_t length : {6U, 7U, 8U, 9U, 15U, 16U, 17U, 64U}) {
        for (const std::size_t count : {9U, 300U, 2000U}) {
            auto names = numbered(count, std::string(length, 'x'));
            EXPECT_EQ(firstRepeated(names), count) << length;
            names[count - 1] = names[count / 2];
            EXPECT_EQ(firstRepeated(names), count - 1) << length;
        }
    }
}

TEST(Repeated, NamesWithACommonEndDiffer) {
    for (const std::size_t length : {6U, 7U, 8U, 9U, 16U}) {
        auto names = numbered(1000, "", std::string(length, 'x'));
        EXPECT_EQ(firstRepeated(names), names.size()) << length;
        names[900] = names[1];
        EXPECT_EQ(firstRepeated(names), 900U) << length;
    }
}

TEST(Repeated, NamesThatAreBeginningsOfEachOtherDiffer) {
    std::vector<std::string> names;
    for (std::size_t length = 300; length > 0; --length) names.emplace_back(length, 'x');
    EXPECT_EQ(firstRepeated(names), 300U);
    for (const std::size_t length : {1U, 7U, 8U, 9U, 15U, 16U, 17U, 24U, 300U}) {
        names.emplace_back(length, 'x');
        EXPECT_EQ(firstRepeated(names), 300U) << length;
        names.pop_back();
    }
}

TEST(Repeated, NamesDifferInAnyOfTheirBytes) {
    for (const std::size_t count : {5U, 20U, 500U}) {
        for (std::size_t place = 0; place < 20; ++place) {
            std::vector<std::string> names;
            for (std::size_t i = 0; i < count; ++i) {
                std::string name(20, 'x');
                name[place] = static_cast<char>(1 + i % 250);
                if (i >= 250) name[(place + 1) % 20] = 'y';
                names.push_back(name);
            }
            // Byte 'x' in that place and "y" after it are names of their own.
            EXPECT_EQ(firstRepeated(names), expected(names)) << place;
            names[count - 1] = names[3];
            EXPECT_EQ(firstRepeated(names), expected(names)) << place;
        }
    }
}

TEST(Repeated, AgreesWithASetOnNamesOfEveryKind) {
    std::mt19937 random(20261122);
    const auto below = [&](std::size_t limit) { return static_cast<std::size_t>(random() % limit); };
    const std::string beginnings[] = {"", "a", "1234567", "12345678", "123456789", "1234567812345678", "\xFF\x80"};
    for (int i = 0; i < 1000; ++i) {
        const std::size_t count = i % 50 == 0 ? 200 + below(2000) : 1 + below(40);
        const std::size_t alphabet = 2 + below(254);
        const std::size_t longest = 1 + below(20);
        std::vector<std::string> names(count);
        for (auto& name : names) {
            name = beginnings[below(std::size(beginnings))];
            for (std::size_t length = below(longest + 1); length > 0; --length) {
                name += static_cast<char>(1 + below(alphabet));
            }
        }
        ASSERT_EQ(firstRepeated(names), expected(names)) << i;
    }
}

}  // namespace

}  // namespace repeated_test
