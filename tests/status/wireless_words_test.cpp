// The words of a wireless link whose codes are combined. What each stands for is in tests/words.
#include <gtest/gtest.h>

#include <string>

#include "KVJStatusParser.h"
#include "support/xml.h"

namespace wireless_words_test {

namespace {

using Kavrin::KVJStatusParser;
using kvj::tests::Xml;

using Combiner = bool (KVJStatusParser::*)(TiXmlElement*, unsigned int&);

/// Combines the code of a word into `codes`.
bool combine(Combiner combiner, const std::string& word, unsigned int& codes) {
    Xml element(("<any>" + word + "</any>").c_str());
    return (KVJStatusParser().*combiner)(element.root(), codes);
}

// ---- Security ----

TEST(SecurityWords, AnUnknownWordAddsNothingAndIsTrue) {
    for (const std::string& word :
         {std::string("Open"), std::string("Wep"), std::string("wEP104"), std::string("Wpa2"), std::string("wpa_WPA2"),
          std::string("WPA3"), std::string("WPA_WPA"), std::string("TKIP"), std::string(100000, 'w')}) {
        for (const unsigned int before : {0U, 0x80U}) {
            unsigned int codes = before;
            EXPECT_TRUE(combine(&KVJStatusParser::GetSecurity, word, codes)) << word;
            EXPECT_EQ(codes, before) << word;
        }
    }
}

TEST(SecurityWords, ACodeIsCombinedWithWhatIsThere) {
    unsigned int codes = 0;
    EXPECT_TRUE(combine(&KVJStatusParser::GetSecurity, "WPA", codes));
    EXPECT_TRUE(combine(&KVJStatusParser::GetSecurity, "WPA", codes));
    EXPECT_EQ(codes, 3U);
    EXPECT_TRUE(combine(&KVJStatusParser::GetSecurity, "WPA2", codes));
    EXPECT_EQ(codes, 7U);
    EXPECT_TRUE(combine(&KVJStatusParser::GetSecurity, "open", codes));
    EXPECT_EQ(codes, 7U);
    codes = 0;
    EXPECT_TRUE(combine(&KVJStatusParser::GetSecurity, "wep104", codes));
    EXPECT_TRUE(combine(&KVJStatusParser::GetSecurity, "WPA", codes));
    EXPECT_EQ(codes, 3U);
}

TEST(SecurityWords, OnlyTheLowestByteOfTheCodesChanges) {
    unsigned int codes = 0xABCDEF00U;
    EXPECT_TRUE(combine(&KVJStatusParser::GetSecurity, "wpa_wpa2", codes));
    EXPECT_EQ(codes, 0xABCDEF05U);
}

// ---- Ciphers ----

TEST(CipherWords, AnUnknownWordAddsNothingAndIsTrue) {
    for (const std::string& word :
         {std::string("tkip_CCMP"), std::string("TKIP_ccmp"), std::string("Rc4"), std::string("Tkip"),
          std::string("None"), std::string("AES"), std::string("open"), std::string("WPA"), std::string(100000, 'c')}) {
        for (const unsigned int before : {0U, 0x80U}) {
            unsigned int codes = before;
            EXPECT_TRUE(combine(&KVJStatusParser::GetCrypto, word, codes)) << word;
            EXPECT_EQ(codes, before) << word;
        }
    }
}

TEST(CipherWords, ACodeIsCombinedWithWhatIsThere) {
    unsigned int codes = 0;
    EXPECT_TRUE(combine(&KVJStatusParser::GetCrypto, "CCMP", codes));
    EXPECT_TRUE(combine(&KVJStatusParser::GetCrypto, "tkip_ccmp", codes));
    EXPECT_EQ(codes, 7U);
    EXPECT_TRUE(combine(&KVJStatusParser::GetCrypto, "none", codes));
    EXPECT_EQ(codes, 7U);
}

TEST(CipherWords, OnlyTheLowestByteOfTheCodesChanges) {
    unsigned int codes = 0xABCDEF00U;
    EXPECT_TRUE(combine(&KVJStatusParser::GetCrypto, "TKIP_CCMP", codes));
    EXPECT_EQ(codes, 0xABCDEF04U);
}

TEST(CombinedWords, WithoutTextOrElementAreFalseAndTheCodesKept) {
    KVJStatusParser parser;
    Xml empty("<any/>");
    for (const Combiner combiner : {&KVJStatusParser::GetSecurity, &KVJStatusParser::GetCrypto}) {
        unsigned int codes = 101;
        EXPECT_FALSE((parser.*combiner)(empty.root(), codes));
        EXPECT_FALSE((parser.*combiner)(nullptr, codes));
        EXPECT_EQ(codes, 101U);
    }
}

// ---- Both ----

TEST(CombinedWords, ATextThatIsThereButEmptyAddsNothingAndIsTrue) {
    for (const auto& reader : {&KVJStatusParser::GetSecurity, &KVJStatusParser::GetCrypto}) {
        for (const char* content : {"<![CDATA[]]>", "&#0;", "&#0;WPA"}) {
            unsigned int codes = 0x80;
            EXPECT_TRUE(combine(reader, content, codes)) << content;
            EXPECT_EQ(codes, 0x80U) << content;
        }
    }
}

}  // namespace

}  // namespace wireless_words_test
