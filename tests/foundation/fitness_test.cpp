// Which texts arrive as they are sent, and which can be names: at the limits of what does.
#include "foundation/fitness.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

namespace fitness_test {

namespace {

using kvj::isName;
using kvj::Stands;
using kvj::unfitness;
using kvjxml::problem_kind;

void expectUnfit(problem_kind kind, std::initializer_list<const char*> texts) {
    for (const char* const text : texts) {
        EXPECT_EQ(unfitness(text, Stands::inElement), kind) << testing::PrintToString(text);
    }
}
void expectFit(Stands where, std::initializer_list<const char*> texts) {
    for (const char* const text : texts) {
        EXPECT_EQ(unfitness(text, where), std::nullopt) << testing::PrintToString(text);
    }
}

TEST(Fitness, IsLostByControlCharactersAndByNoOthers) {
    expectUnfit(problem_kind::no_character, {"\x01", "a\x1F", "\x7F", "\xC2\x80", "a\xC2\x9F"});
    expectFit(Stands::inElement, {"", "a", "~", "\xC2\xA0", "\xC3\x80", "\xC3\x9F"});
}

// The last two of the first plane are no characters of XML.
TEST(Fitness, IsLostByWhatXmlDoesNotHave) {
    expectUnfit(problem_kind::no_character, {"\xEF\xBF\xBE", "a\xEF\xBF\xBF"});
    expectFit(Stands::inElement, {"\xEF\xBF\xBD", "\xEF\xBE\xBF", "\xEE\xBF\xBF"});
}

TEST(Fitness, IsLostByBlanksThatAreCondensed) {
    expectUnfit(problem_kind::read_otherwise, {" a", "a ", "a  b", " "});
    expectFit(Stands::inElement, {"a b", "!", "a!b", "a b c"});
    expectFit(Stands::inAttribute, {" a", "a ", "a  b", " "});
}

TEST(Names, BeginWithALetter) {
    for (const char* const name : {"A", "Z", "a", "z", "_", "A9", "z-.0_Z"}) EXPECT_TRUE(isName(name)) << name;
    for (const char* const text :
         {"", "9a", "-a", ".a", "@", "[", "`", "{", "a/", "a:", "a ", "a@", "a[", "a`", "a{"}) {
        EXPECT_FALSE(isName(text)) << text;
    }
    EXPECT_FALSE(isName("\xC3\xA4"));
}

}  // namespace

}  // namespace fitness_test
