// What values look like as elements and attributes of a request: KVJHelper, which writes as the rows do.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cfloat>
#include <climits>
#include <limits>
#include <string>
#include <utility>

#include "KVJHelper.h"
#include "foundation/name.h"
#include "support/xml.h"

namespace helper_writes_test {

using kvj::tests::Name;
using kvj::tests::written;

namespace {

constexpr unsigned char address[] = {0x00, 0x1A, 0x2B, 0x3C, 0x4D, 0x5E};

class WrittenElements : public testing::Test {
protected:
    TiXmlElement parent{"p"};

    /// What was written into the parent, which then is empty again.
    std::string content() {
        const std::string all = written(parent);
        parent.Clear();
        return all;
    }
};

TEST_F(WrittenElements, AnEmptyElementIsGivenBackToBeFilled) {
    TiXmlElement* added = KVJHelper::AddTag(&parent, Name("x"));
    ASSERT_NE(added, nullptr);
    EXPECT_EQ(added->Parent(), &parent);
    EXPECT_EQ(written(parent), "<p><x /></p>");
    EXPECT_TRUE(KVJHelper::AddTagNumber(added, Name("y"), 1));
    EXPECT_EQ(content(), "<p><x><y>1</y></x></p>");
}

TEST_F(WrittenElements, EachElementComesLast) {
    parent.LinkEndChild(new TiXmlComment("c"));
    KVJHelper::AddTagNumber(&parent, Name("x"), 1);
    TiXmlElement* group = KVJHelper::AddTag(&parent, Name("g"));
    KVJHelper::AddTagNumber(&parent, Name("x"), 2);
    EXPECT_EQ(parent.FirstChildElement("g"), group);
    EXPECT_EQ(content(), "<p><!--c--><x>1</x><g /><x>2</x></p>");
}

TEST_F(WrittenElements, AnElementHasOneTextThatIsNoCharacterData) {
    KVJHelper::AddTagString(&parent, Name("x"), "text");
    const TiXmlNode* element = parent.FirstChild();
    ASSERT_NE(element->FirstChild(), nullptr);
    EXPECT_EQ(element->FirstChild(), element->LastChild());
    ASSERT_NE(element->FirstChild()->ToText(), nullptr);
    EXPECT_FALSE(element->FirstChild()->ToText()->CDATA());
}

TEST_F(WrittenElements, ATextIsWrittenAsGiven) {
    EXPECT_TRUE(KVJHelper::AddTagString(&parent, Name("x"), "1/2 YMCKO"));
    EXPECT_EQ(content(), "<p><x>1/2 YMCKO</x></p>");
    EXPECT_TRUE(KVJHelper::AddTagString(&parent, Name("x"), "  a  b "));
    EXPECT_EQ(content(), "<p><x>  a  b </x></p>");
    EXPECT_TRUE(KVJHelper::AddTagString(&parent, Name("x"), "caf\xC3\xA9"));
    EXPECT_EQ(content(), "<p><x>caf\xC3\xA9</x></p>");
    const std::string large(1024 * 1024, 'z');
    EXPECT_TRUE(KVJHelper::AddTagString(&parent, Name("x"), large.c_str()));
    EXPECT_EQ(content(), "<p><x>" + large + "</x></p>");
}

TEST_F(WrittenElements, ATextIsEscapedWhenItIsPrinted) {
    EXPECT_TRUE(KVJHelper::AddTagString(&parent, Name("x"), "<a b=\"c\"> & 'd'"));
    EXPECT_STREQ(parent.FirstChild()->FirstChild()->Value(), "<a b=\"c\"> & 'd'");
    EXPECT_EQ(content(), "<p><x>&lt;a b=&quot;c&quot;&gt; &amp; &apos;d&apos;</x></p>");
    EXPECT_TRUE(KVJHelper::AddTagString(&parent, Name("x"), "&amp;"));
    EXPECT_EQ(content(), "<p><x>&amp;amp;</x></p>");
}

TEST_F(WrittenElements, AnEmptyTextIsATextStill) {
    EXPECT_TRUE(KVJHelper::AddTagString(&parent, Name("x"), ""));
    EXPECT_EQ(content(), "<p><x></x></p>");
}

TEST_F(WrittenElements, AnIntHasItsWholeRange) {
    for (const auto& [value, text] : {std::pair(0, "0"), std::pair(-12, "-12"), std::pair(1234567, "1234567"),
                                      std::pair(INT_MAX, "2147483647"), std::pair(INT_MIN, "-2147483648")}) {
        EXPECT_TRUE(KVJHelper::AddTagNumber(&parent, Name("x"), value));
        EXPECT_EQ(content(), "<p><x>" + std::string(text) + "</x></p>");
    }
}

TEST_F(WrittenElements, AnUnsignedIntHasItsWholeRange) {
    EXPECT_TRUE(KVJHelper::AddTagUnsigned(&parent, Name("x"), 0));
    EXPECT_TRUE(KVJHelper::AddTagUnsigned(&parent, Name("x"), UINT_MAX));
    EXPECT_EQ(content(), "<p><x>0</x><x>4294967295</x></p>");
}

TEST_F(WrittenElements, ALongHasItsWholeRange) {
    EXPECT_TRUE(KVJHelper::AddTagLong(&parent, Name("x"), LONG_MAX));
    EXPECT_TRUE(KVJHelper::AddTagLong(&parent, Name("x"), LONG_MIN));
    EXPECT_EQ(content(), "<p><x>9223372036854775807</x><x>-9223372036854775808</x></p>");
}

TEST_F(WrittenElements, AFloatHasFourDecimalsBehindAPointInEveryLocale) {
    for (const auto& [value, text] :
         {std::pair(0.1F, "0.1000"), std::pair(1.5F, "1.5000"), std::pair(-25.4F, "-25.4000"),
          std::pair(0.0F, "0.0000"), std::pair(-0.0F, "-0.0000"), std::pair(1234567.0F, "1234567.0000"),
          std::pair(0.03125F, "0.0312"), std::pair(0.09375F, "0.0938")}) {
        EXPECT_TRUE(KVJHelper::AddTagFloat(&parent, Name("x"), value));
        EXPECT_EQ(content(), "<p><x>" + std::string(text) + "</x></p>");
    }
}

TEST_F(WrittenElements, ADoubleHasSixDecimalsBehindAPointInEveryLocale) {
    for (const auto& [value, text] : {std::pair(0.1, "0.100000"), std::pair(-1234567.5, "-1234567.500000"),
                                      std::pair(0.0000004, "0.000000"), std::pair(0.0000006, "0.000001")}) {
        EXPECT_TRUE(KVJHelper::AddTagDouble(&parent, Name("x"), value));
        EXPECT_EQ(content(), "<p><x>" + std::string(text) + "</x></p>");
    }
}

TEST_F(WrittenElements, TheLargestNumbersAreWrittenWhole) {
    EXPECT_TRUE(KVJHelper::AddTagFloat(&parent, Name("x"), -FLT_MAX));
    EXPECT_EQ(content(), "<p><x>-340282346638528859811704183484516925440.0000</x></p>");

    EXPECT_TRUE(KVJHelper::AddTagDouble(&parent, Name("x"), -DBL_MAX));
    const std::string largest = content();
    EXPECT_THAT(largest, testing::StartsWith("<p><x>-17976931348623157081"));
    EXPECT_THAT(largest, testing::EndsWith("26184124858368.000000</x></p>"));
    EXPECT_EQ(largest.size(), 6 + 1 + 309 + 7 + 8);  // tags, sign, digits, decimals, tags
}

TEST_F(WrittenElements, InfinityAndNanAreWrittenAsWords) {
    KVJHelper::AddTagFloat(&parent, Name("x"), std::numeric_limits<float>::infinity());
    KVJHelper::AddTagDouble(&parent, Name("x"), -std::numeric_limits<double>::infinity());
    KVJHelper::AddTagDouble(&parent, Name("x"), std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(content(), "<p><x>inf</x><x>-inf</x><x>nan</x></p>");
}

TEST_F(WrittenElements, AFlagIsYesForAnyValueButZero) {
    for (const long value : {1L, 2L, -1L, LONG_MAX, LONG_MIN, 1L << 32}) {
        EXPECT_TRUE(KVJHelper::AddTagBool(&parent, Name("x"), value));
        EXPECT_EQ(content(), "<p><x>yes</x></p>") << value;
    }
    EXPECT_TRUE(KVJHelper::AddTagBool(&parent, Name("x"), 0));
    EXPECT_EQ(content(), "<p><x>no</x></p>");
}

TEST_F(WrittenElements, AHardwareAddressIsInLowerCase) {
    EXPECT_TRUE(KVJHelper::AddTagPhysicalAddress(&parent, Name("x"), address));
    EXPECT_EQ(content(), "<p><x>00:1a:2b:3c:4d:5e</x></p>");
}

TEST_F(WrittenElements, ASettingIsItsValueWithTheRangeAsAttributes) {
    EXPECT_TRUE(KVJHelper::AddTagMinMaxVal(&parent, Name("speed"), Kavrin::_MinMaxVal{1, 9, 5}));
    EXPECT_EQ(content(), "<p><speed min=\"1\" max=\"9\">5</speed></p>");
    EXPECT_TRUE(KVJHelper::AddTagMinMaxVal(&parent, Name("x"), Kavrin::_MinMaxVal{INT_MIN, INT_MAX, -1}));
    EXPECT_EQ(content(), "<p><x min=\"-2147483648\" max=\"2147483647\">-1</x></p>");
}

TEST_F(WrittenElements, ASettingOutsideItsRangeIsWrittenAsItIs) {
    EXPECT_TRUE(KVJHelper::AddTagMinMaxVal(&parent, Name("x"), Kavrin::_MinMaxVal{5, 3, 12}));
    EXPECT_EQ(content(), "<p><x min=\"5\" max=\"3\">12</x></p>");
}

TEST_F(WrittenElements, ASettingWithAFractionSendsItsMaximumAndNeverItsValue) {
    EXPECT_TRUE(KVJHelper::AddTagMinMaxVal(&parent, Name("x"), Kavrin::_MinMaxValFloat{1.0F, 9.5F, 4.25F}));
    EXPECT_EQ(content(), "<p><x min=\"1.00\" max=\"9.50\">9.50</x></p>");
}

TEST_F(WrittenElements, ASettingWithAFractionHasTwoDecimals) {
    EXPECT_TRUE(KVJHelper::AddTagMinMaxVal(&parent, Name("x"), Kavrin::_MinMaxValFloat{-0.125F, 0.375F, 0.0F}));
    EXPECT_EQ(content(), "<p><x min=\"-0.12\" max=\"0.38\">0.38</x></p>");
    EXPECT_TRUE(KVJHelper::AddTagMinMaxVal(&parent, Name("x"), Kavrin::_MinMaxValFloat{-FLT_MAX, FLT_MAX, 0.0F}));
    EXPECT_EQ(content(),
              "<p><x min=\"-340282346638528859811704183484516925440.00\""
              " max=\"340282346638528859811704183484516925440.00\">340282346638528859811704183484516925440.00</x></p>");
}

TEST_F(WrittenElements, WithoutAParentThereIsNothingToWriteTo) {
    EXPECT_EQ(KVJHelper::AddTag(nullptr, Name("x")), nullptr);
    EXPECT_FALSE(KVJHelper::AddTagString(nullptr, Name("x"), "text"));
    EXPECT_FALSE(KVJHelper::AddTagNumber(nullptr, Name("x"), 1));
    EXPECT_FALSE(KVJHelper::AddTagUnsigned(nullptr, Name("x"), 1));
    EXPECT_FALSE(KVJHelper::AddTagLong(nullptr, Name("x"), 1));
    EXPECT_FALSE(KVJHelper::AddTagFloat(nullptr, Name("x"), 1));
    EXPECT_FALSE(KVJHelper::AddTagDouble(nullptr, Name("x"), 1));
    EXPECT_FALSE(KVJHelper::AddTagBool(nullptr, Name("x"), 1));
    EXPECT_FALSE(KVJHelper::AddTagPhysicalAddress(nullptr, Name("x"), address));
    EXPECT_FALSE(KVJHelper::AddTagMinMaxVal(nullptr, Name("x"), Kavrin::_MinMaxVal{1, 9, 5}));
    EXPECT_FALSE(KVJHelper::AddTagMinMaxVal(nullptr, Name("x"), Kavrin::_MinMaxValFloat{1, 9, 5}));
}

TEST_F(WrittenElements, WithoutANameNothingIsWritten) {
    EXPECT_EQ(KVJHelper::AddTag(&parent, nullptr), nullptr);
    EXPECT_FALSE(KVJHelper::AddTagString(&parent, nullptr, "text"));
    EXPECT_FALSE(KVJHelper::AddTagNumber(&parent, nullptr, 1));
    EXPECT_FALSE(KVJHelper::AddTagUnsigned(&parent, nullptr, 1));
    EXPECT_FALSE(KVJHelper::AddTagLong(&parent, nullptr, 1));
    EXPECT_FALSE(KVJHelper::AddTagFloat(&parent, nullptr, 1));
    EXPECT_FALSE(KVJHelper::AddTagDouble(&parent, nullptr, 1));
    EXPECT_FALSE(KVJHelper::AddTagBool(&parent, nullptr, 1));
    EXPECT_FALSE(KVJHelper::AddTagPhysicalAddress(&parent, nullptr, address));
    EXPECT_FALSE(KVJHelper::AddTagMinMaxVal(&parent, nullptr, Kavrin::_MinMaxVal{1, 9, 5}));
    EXPECT_FALSE(KVJHelper::AddTagMinMaxVal(&parent, nullptr, Kavrin::_MinMaxValFloat{1, 9, 5}));
    EXPECT_EQ(content(), "<p />");
}

TEST_F(WrittenElements, WithoutAValueNothingIsWritten) {
    EXPECT_FALSE(KVJHelper::AddTagString(&parent, Name("x"), nullptr));
    EXPECT_FALSE(KVJHelper::AddTagPhysicalAddress(&parent, Name("x"), nullptr));
    EXPECT_EQ(content(), "<p />");
}

// ---- Attributes ----

TEST_F(WrittenElements, ATextAttributeIsThatOfTheElementItself) {
    EXPECT_TRUE(KVJHelper::AddTagAttrib(&parent, "type", "a & 'b'"));
    EXPECT_TRUE(KVJHelper::AddTagAttrib(&parent, "empty", ""));
    EXPECT_EQ(content(), "<p type=\"a &amp; &apos;b&apos;\" empty=\"\" />");
}

TEST_F(WrittenElements, AnIntegerAttributeHasItsWholeRange) {
    EXPECT_TRUE(KVJHelper::AddTagAttrib(&parent, Name("a"), 12));
    EXPECT_TRUE(KVJHelper::AddTagAttrib(&parent, Name("b"), INT_MAX));
    EXPECT_TRUE(KVJHelper::AddTagAttrib(&parent, Name("c"), INT_MIN));
    EXPECT_EQ(content(), "<p a=\"12\" b=\"2147483647\" c=\"-2147483648\" />");
}

TEST_F(WrittenElements, AnAttributeThatIsThereIsReplaced) {
    KVJHelper::AddTagAttrib(&parent, "a", "old");
    KVJHelper::AddTagAttrib(&parent, "b", "other");
    EXPECT_TRUE(KVJHelper::AddTagAttrib(&parent, Name("a"), 1));
    EXPECT_TRUE(KVJHelper::AddTagAttrib(&parent, "b", "new"));
    EXPECT_EQ(content(), "<p a=\"1\" b=\"new\" />");
}

TEST_F(WrittenElements, AnAttributeNeedsAnElementANameAndAValue) {
    EXPECT_FALSE(KVJHelper::AddTagAttrib(nullptr, "a", "text"));
    EXPECT_FALSE(KVJHelper::AddTagAttrib(&parent, nullptr, "text"));
    EXPECT_FALSE(KVJHelper::AddTagAttrib(&parent, "a", nullptr));
    EXPECT_FALSE(KVJHelper::AddTagAttrib(nullptr, Name("a"), 1));
    EXPECT_FALSE(KVJHelper::AddTagAttrib(&parent, nullptr, 1));
    EXPECT_EQ(content(), "<p />");
}

}  // namespace

}  // namespace helper_writes_test
