// Which name is near enough to have been meant.
#include "face/nearest.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace nearest_test {

namespace {

using kvj::distance;

std::string_view nearest(std::string_view name, const std::vector<std::string_view>& names) {
    return kvj::nearest(name, names, [](std::string_view each) { return each; });
}

TEST(Distance, IsOneForALetterPutInLeftOutOrChanged) {
    EXPECT_EQ(distance("", ""), 0U);
    EXPECT_EQ(distance("", "abc"), 3U);
    EXPECT_EQ(distance("abc", ""), 3U);
    EXPECT_EQ(distance("abc", "abxc"), 1U);
    EXPECT_EQ(distance("abc", "ac"), 1U);
    EXPECT_EQ(distance("abc", "axc"), 1U);
    EXPECT_EQ(distance("abc", "xyz"), 3U);
    EXPECT_EQ(distance("kitten", "sitting"), 3U);
}

TEST(Distance, IsOneForNeighboursThatAreSwapped) {
    EXPECT_EQ(distance("ab", "ba"), 1U);
    EXPECT_EQ(distance("abcd", "acbd"), 1U);
    EXPECT_EQ(distance("abcd", "abdc"), 1U);
    EXPECT_EQ(distance("abcdef", "badcfe"), 3U);
    EXPECT_EQ(distance("abcdefgh", "xyzbadcfehg"), 7U);
    EXPECT_EQ(distance("abc", "cba"), 2U);
}

TEST(Distance, IsNoneBetweenTheTwoCasesOfALetter) {
    for (char letter = 'a'; letter <= 'z'; ++letter) {
        const char capital = static_cast<char>(letter - 'a' + 'A');
        EXPECT_EQ(distance({&letter, 1}, {&capital, 1}), 0U) << letter;
    }
    EXPECT_EQ(distance("@", "`"), 1U);
    EXPECT_EQ(distance("[", "{"), 1U);
}

TEST(Distance, IsFarForLongTexts) {
    EXPECT_EQ(distance(std::string(48, 'a'), std::string(48, 'a')), 0U);
    EXPECT_EQ(distance(std::string(49, 'a'), std::string(49, 'a')), 48U);
}

TEST(Nearest, DiffersInAThirdOfItsLettersAtMost) {
    EXPECT_EQ(nearest("ab", {"ax"}), "");
    EXPECT_EQ(nearest("abc", {"abx"}), "abx");
    EXPECT_EQ(nearest("abc", {"axx"}), "");
    EXPECT_EQ(nearest("abcde", {"abcxx"}), "");
    EXPECT_EQ(nearest("abcdef", {"abcdxx"}), "abcdxx");
    EXPECT_EQ(nearest("abcdefgh", {"abcdexxx"}), "");
    EXPECT_EQ(nearest("abcdefghi", {"abcdefxxx"}), "abcdefxxx");
    EXPECT_EQ(nearest("abcdefghijkl", {"abcdefghixxx"}), "abcdefghixxx");
    EXPECT_EQ(nearest("abcdefghijkl", {"abcdefghxxxx"}), "");  // Three at most.
}

TEST(Nearest, MayBeLongerOrShorter) {
    EXPECT_EQ(nearest("abcdef", {"abcdefgh"}), "abcdefgh");
    EXPECT_EQ(nearest("abcdef", {"abcdefghi"}), "");
    EXPECT_EQ(nearest("abcdef", {"abcd"}), "abcd");
    EXPECT_EQ(nearest("abcdef", {"abc"}), "");
}

TEST(Nearest, IsTheFirstOfTheNearest) {
    EXPECT_EQ(nearest("abcdef", {"abcdxx", "abcdex", "abcxxf", "abcdey"}), "abcdex");
    EXPECT_EQ(nearest("abcdef", {"abcdex", "abcdef", "abcdey"}), "abcdef");
    EXPECT_EQ(nearest("abcdef", {}), "");
}

}  // namespace

}  // namespace nearest_test
