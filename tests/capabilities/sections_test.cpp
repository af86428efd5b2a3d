// The sections of the capabilities that are no lists, and the elements that are a value themselves.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "KVJCapsParser.h"
#include "capabilities/records.h"
#include "support/xml.h"

namespace sections_test {

namespace {

using namespace kvj::tests;

template <class Record>
using SectionReader = bool (KVJCapsParser::*)(TiXmlElement*, Record&);

/// That an element with this content, read over a preset record, gives this result and this record.
template <class Record>
void expectRead(SectionReader<Record> reader, const std::string& content, bool result, const Record& expected) {
    Xml section(element("any", content).c_str());
    auto record = preset<Record>();
    EXPECT_EQ((KVJCapsParser().*reader)(section.root(), record), result) << content;
    EXPECT_EQ(fieldsOf(record), fieldsOf(expected)) << content;
}

/// The same, and that nothing was written but these fields.
template <class... Fields, class... Values>
void expectRead(SectionReader<_Capabilities> reader, const std::string& content, bool result,
                const std::pair<Fields _Capabilities::*, Values>&... fields) {
    auto expected = preset<_Capabilities>();
    ((expected.*fields.first = fields.second), ...);
    expectRead(reader, content, result, expected);
}

template <class Field, class Value>
std::pair<Field _Capabilities::*, Value> is(Field _Capabilities::*field, Value value) {
    return {field, value};
}

/// What holds for every section: without an element that it knows it is false, and nothing is written.
template <class Record>
void expectSection(SectionReader<Record> reader, const std::vector<std::string>& names) {
    auto record = preset<Record>();
    EXPECT_FALSE((KVJCapsParser().*reader)(nullptr, record));
    EXPECT_EQ(fieldsOf(record), fieldsOf(preset<Record>()));
    for (const char* content : {"", "text", "<!-- none -->", "<unknown>1</unknown>"}) {
        expectRead(reader, content, false, preset<Record>());
    }
    for (const std::string& name : names) {
        const std::string misspelt = static_cast<char>(name[0] - 'a' + 'A') + name.substr(1);
        expectRead(reader, element(misspelt, "1") + element(name + "s", "1"), false, preset<Record>());
        expectRead(reader, element("unknown", element(name, "1")), false, preset<Record>());
    }
}

// ---- Image sharpening levels ----

constexpr SectionReader<_Capabilities> sharpening = &KVJCapsParser::getImageSharpeningLevels;

std::string level(const std::string& word) { return element("image_sharpening_level", word); }

TEST(SharpeningSection, NeedsElementsThatItKnows) { expectSection(sharpening, {"image_sharpening_level"}); }

TEST(SharpeningSection, EachWordAddsItsBit) {
    for (const auto& [word, bit] :
         {std::pair("off", 0x1), std::pair("normal", 0x2), std::pair("high", 0x4), std::pair("low", 0x8)}) {
        expectRead(sharpening, level(word), true, is(&_Capabilities::imageSharpeningLevels, 0x10 | bit));
    }
}

TEST(SharpeningSection, OffThenLowSets9OnTopOfTheBitsThatAreSetAlready) {
    expectRead(sharpening, level("off") + level("low"), true, is(&_Capabilities::imageSharpeningLevels, 0x19));
}

TEST(SharpeningSection, AllWordsMakeAllBitsAndARepeatedOneAddsNoMore) {
    expectRead(sharpening, level("low") + level("high") + level("low") + "<note/>" + level("normal") + level("off"),
               true, is(&_Capabilities::imageSharpeningLevels, 0x1F));
}

TEST(SharpeningSection, AnotherWordAddsNothingAndCountsAsRead) {
    for (const char* word : {"Off", "LOW", "medium", "lower", "0x1", "1"}) {
        expectRead(sharpening, level(word), true, preset<_Capabilities>());
    }
}

TEST(SharpeningSection, ALevelWithoutTextAddsNothingAndIsFalse) {
    expectRead(sharpening, level("off") + level(""), false, is(&_Capabilities::imageSharpeningLevels, 0x11));
    expectRead(sharpening, level("") + level("off"), true, is(&_Capabilities::imageSharpeningLevels, 0x11));
}

// ---- Security ----

constexpr SectionReader<_SecurityCaps> security = &KVJCapsParser::getSecurityCaps;
const auto presetSecurity = preset<_SecurityCaps>();

TEST(SecuritySection, NeedsElementsThatItKnows) {
    expectSection(security, {"passkey_protection", "encryption_algorithm"});
}

TEST(SecuritySection, FillsItsFieldsInAnyOrder) {
    expectRead(security, "<passkey_protection>no</passkey_protection><encryption_algorithm>aes</encryption_algorithm>",
               true, {false, 1});
    expectRead(security,
               "<encryption_algorithm>3des</encryption_algorithm><note/><passkey_protection>no</passkey_protection>",
               true, {false, 2});
}

TEST(SecuritySection, ProtectionIsTrueForExactlyYesAndEnabled) {
    for (const char* word : {"yes", "enabled"}) {
        expectRead(security, "<passkey_protection>no</passkey_protection>" + element("passkey_protection", word), true,
                   {true, presetSecurity.encryptionAlgorithm});
    }
    for (const char* word : {"no", "disabled", "Yes", "true", "1"}) {
        expectRead(security, element("passkey_protection", word), true, {false, presetSecurity.encryptionAlgorithm});
    }
}

TEST(SecuritySection, AnotherAlgorithmThanAesOr3DesIsMinus1) {
    for (const char* word : {"none", "AES", "des", "aes256", "3DES"}) {
        expectRead(security, element("encryption_algorithm", word), true, {true, -1});
    }
}

TEST(SecuritySection, WithoutTextTheFlagIsStoredAsFalseAndTheAlgorithmKept) {
    expectRead(security, "<passkey_protection/>", false, {false, presetSecurity.encryptionAlgorithm});
    expectRead(security, "<encryption_algorithm/>", false, presetSecurity);
}

TEST(SecuritySection, TheResultIsThatOfTheLastElement) {
    expectRead(security, "<encryption_algorithm>aes</encryption_algorithm><passkey_protection/>", false, {false, 1});
    expectRead(security, "<passkey_protection/><encryption_algorithm>aes</encryption_algorithm><note/>", true,
               {false, 1});
}

// ---- Sections of numbers ----

struct NumberSection {
    const char* name;
    SectionReader<_Capabilities> reader;
    std::vector<std::pair<const char*, int _Capabilities::*>> numbers;
};
const NumberSection numberSections[] = {
    {"memory", &KVJCapsParser::getMemoryCaps, {{"ram", &_Capabilities::ramSize}, {"flash", &_Capabilities::flashSize}}},
    {"media_path", &KVJCapsParser::getMediaPath, {{"magazine_capacity", &_Capabilities::magazineCapacity}}},
    {"image", &KVJCapsParser::getImageCaps, {{"print_resolution", &_Capabilities::printResolution}}},
    {"logical_page",
     &KVJCapsParser::getLogicalPage,
     {{"length", &_Capabilities::logicalPageLength}, {"width", &_Capabilities::logicalPageWidth}}},
    {"physical_page",
     &KVJCapsParser::getPhysicalPage,
     {{"length", &_Capabilities::physicalPageLength}, {"width", &_Capabilities::physicalPageWidth}}},
};

TEST(NumberSections, NeedElementsThatTheyKnow) {
    for (const auto& [name, reader, numbers] : numberSections) {
        const testing::ScopedTrace trace(__FILE__, __LINE__, name);
        std::vector<std::string> names;
        for (const auto& [number, field] : numbers) names.emplace_back(number);
        expectSection(reader, names);
    }
}

TEST(NumberSections, EachNumberFillsItsOwnFieldAsThePrinterSendsIt) {
    for (const auto& section : numberSections) {
        for (const auto& [number, field] : section.numbers) {
            for (const auto& [text, value] : {std::pair("2147483647", 2147483647), std::pair("-5", -5),
                                              std::pair("12 MB", 12), std::pair("large", 0)}) {
                expectRead(section.reader, element(number, text), true, is(field, value));
            }
        }
    }
}

TEST(NumberSections, ANumberWithoutTextKeepsItsFieldAndIsFalse) {
    for (const auto& section : numberSections) {
        for (const auto& [number, field] : section.numbers) {
            expectRead(section.reader, element(number, ""), false, preset<_Capabilities>());
            expectRead(section.reader, element(number, "1") + element(number, ""), false, is(field, 1));
        }
    }
}

TEST(MemorySection, FillsBothFieldsInAnyOrder) {
    for (const char* content : {"<ram>64</ram><flash>16</flash>", "<flash>16</flash><note/><ram>64</ram>"}) {
        expectRead(&KVJCapsParser::getMemoryCaps, content, true, is(&_Capabilities::ramSize, 64),
                   is(&_Capabilities::flashSize, 16));
    }
}

TEST(MemorySection, TheResultIsThatOfTheLastElement) {
    expectRead(&KVJCapsParser::getMemoryCaps, "<ram>64</ram><flash/>", false, is(&_Capabilities::ramSize, 64));
    expectRead(&KVJCapsParser::getMemoryCaps, "<ram/><flash>16</flash>", true, is(&_Capabilities::flashSize, 16));
}

// ---- Media path ----

constexpr SectionReader<_Capabilities> mediaPath = &KVJCapsParser::getMediaPath;

TEST(MediaPathSection, NeedsElementsThatItKnows) { expectSection(mediaPath, {"atm", "magazine_capacity"}); }

TEST(MediaPathSection, FillsBothFieldsInAnyOrder) {
    for (const char* content : {"<atm>no</atm><magazine_capacity>200</magazine_capacity>",
                                "<magazine_capacity>200</magazine_capacity><note/><atm>no</atm>"}) {
        expectRead(mediaPath, content, true, is(&_Capabilities::atm, false), is(&_Capabilities::magazineCapacity, 200));
    }
}

TEST(MediaPathSection, AtmIsTrueForExactlyYesAndEnabled) {
    for (const char* word : {"yes", "enabled"}) {
        expectRead(mediaPath, "<atm>no</atm>" + element("atm", word), true, is(&_Capabilities::atm, true));
    }
    for (const char* word : {"no", "disabled", "YES", "true", "1"}) {
        expectRead(mediaPath, element("atm", word), true, is(&_Capabilities::atm, false));
    }
}

TEST(MediaPathSection, WithoutTextAtmIsStoredAsFalseAndTheResultFalse) {
    expectRead(mediaPath, "<atm/>", false, is(&_Capabilities::atm, false));
}

// ---- Image ----

constexpr SectionReader<_Capabilities> image = &KVJCapsParser::getImageCaps;

TEST(ImageSection, NeedsElementsThatItKnows) {
    expectSection(image, {"logical_page", "physical_page", "print_resolution"});
}

TEST(ImageSection, FillsThePagesAndTheResolution) {
    expectRead(image,
               "<print_resolution>300</print_resolution><physical_page><width>638</width><length>1012</length>"
               "</physical_page><logical_page><length>1036</length><note/><width>664</width></logical_page>",
               true, is(&_Capabilities::logicalPageLength, 1036), is(&_Capabilities::logicalPageWidth, 664),
               is(&_Capabilities::physicalPageLength, 1012), is(&_Capabilities::physicalPageWidth, 638),
               is(&_Capabilities::printResolution, 300));
}

TEST(ImageSection, LengthAndWidthBelongToAPage) {
    expectRead(image, "<length>1</length><width>2</width>", false, preset<_Capabilities>());
}

TEST(ImageSection, TheResultIsThatOfTheLastElementAndAPageWithoutFieldsIsFalse) {
    const auto resolution = is(&_Capabilities::printResolution, 300);
    const auto length = is(&_Capabilities::logicalPageLength, 1);
    for (const char* page :
         {"<logical_page/>", "<physical_page>12</physical_page>", "<logical_page><depth>1</depth></logical_page>",
          "<physical_page><width/></physical_page>"}) {
        expectRead(image, "<print_resolution>300</print_resolution>" + std::string(page), false, resolution);
        expectRead(image, page + std::string("<print_resolution>300</print_resolution>"), true, resolution);
    }
    expectRead(image, "<print_resolution/><logical_page><length>1</length></logical_page>", true, length);
    expectRead(image, "<logical_page><length>1</length></logical_page><print_resolution/>", false, length);
}

// ---- Internal encoder ----

constexpr SectionReader<_InternalEncoderInfo> encoder = &KVJCapsParser::getInternalEncoderInfo;
const auto presetEncoder = preset<_InternalEncoderInfo>();

/// The preset encoder but for what the printer tells of it.
_InternalEncoderInfo encoderWith(int commsChannel, bool contactEncoding, int contactlessEncoder) {
    return {commsChannel, contactEncoding, contactlessEncoder, presetEncoder.contactlessEncoder2,
            presetEncoder.contactStation};
}

TEST(EncoderSection, NeedsElementsThatItKnows) {
    expectSection(encoder, {"comms_channel", "contact_encoding", "contactless_encoder"});
}

TEST(EncoderSection, FillsItsFieldsInAnyOrder) {
    expectRead(encoder,
               "<comms_channel>usb</comms_channel><contact_encoding>no</contact_encoding>"
               "<contactless_encoder>felica</contactless_encoder>",
               true, encoderWith(2, false, 2));
    expectRead(encoder,
               "<contactless_encoder>lf</contactless_encoder><note/><contact_encoding>enabled</contact_encoding>"
               "<comms_channel>serial</comms_channel>",
               true, encoderWith(1, true, 5));
}

TEST(EncoderSection, EachChannelHasItsCodeAndAnUnknownOneIs0) {
    for (const auto& [word, code] : {std::pair("serial", 1), std::pair("usb", 2), std::pair("usb_2_0", 0),
                                     std::pair("USB", 0), std::pair("ethernet", 0)}) {
        expectRead(encoder, element("comms_channel", word), true,
                   encoderWith(code, true, presetEncoder.contactlessEncoder));
    }
}

TEST(EncoderSection, EachContactlessEncoderHasItsCodeAndAnUnknownOneIs0) {
    for (const auto& [word, code] :
         {std::pair("mifare", 1), std::pair("felica", 2), std::pair("uhf", 3), std::pair("hf", 4), std::pair("lf", 5),
          std::pair("Mifare", 0), std::pair("iclass", 0)}) {
        expectRead(encoder, element("contactless_encoder", word), true,
                   encoderWith(presetEncoder.commsChannel, true, code));
    }
}

TEST(EncoderSection, OfTwoContactlessEncodersTheLaterWinsAndTheSecondFieldIsKept) {
    expectRead(encoder,
               "<contactless_encoder>mifare</contactless_encoder><contactless_encoder>hf</contactless_encoder>", true,
               encoderWith(presetEncoder.commsChannel, true, 4));
}

TEST(EncoderSection, AContactStationIsNotRead) {
    expectRead(encoder, "<contact_station>no</contact_station>", false, presetEncoder);
}

TEST(EncoderSection, ContactEncodingIsTrueForExactlyYesAndEnabled) {
    const auto with = [](bool contact) {
        return encoderWith(presetEncoder.commsChannel, contact, presetEncoder.contactlessEncoder);
    };
    for (const char* word : {"yes", "enabled"}) {
        expectRead(encoder, "<contact_encoding>no</contact_encoding>" + element("contact_encoding", word), true,
                   with(true));
    }
    for (const char* word : {"no", "Yes", "true", "contact"}) {
        expectRead(encoder, element("contact_encoding", word), true, with(false));
    }
    expectRead(encoder, "<contact_encoding/>", false, with(false));
}

TEST(EncoderSection, AWordWithoutTextKeepsItsFieldAndIsFalse) {
    expectRead(encoder, "<comms_channel/>", false, presetEncoder);
    expectRead(encoder, "<contactless_encoder/>", false, presetEncoder);
}

TEST(EncoderSection, TheResultIsThatOfTheLastElement) {
    expectRead(encoder, "<comms_channel>usb</comms_channel><contactless_encoder/>", false,
               encoderWith(2, true, presetEncoder.contactlessEncoder));
    expectRead(encoder, "<contactless_encoder/><comms_channel>usb</comms_channel><note/>", true,
               encoderWith(2, true, presetEncoder.contactlessEncoder));
}

// ---- Elements that are a value themselves: read alone and in the whole description alike ----

void expectValue(const char* name, SectionReader<_Capabilities> reader, const std::string& text, bool result,
                 const auto& field) {
    expectRead(reader, text, result, field);
    expectRead(&KVJCapsParser::parseCapabilities, element(name, text), result, field);
}

TEST(SingleValue, APrintSystemIsItsCodeAndAnUnknownOneMinus1) {
    for (const auto& [word, code] :
         {std::pair("direct", 0), std::pair("retransfer", 1), std::pair("direct_to_card", -1), std::pair("Direct", -1),
          std::pair("retransfers", -1)}) {
        expectValue("print_system", &KVJCapsParser::getPrintSystem, word, true, is(&_Capabilities::printSystem, code));
    }
}

TEST(SingleValue, APrintTypeIsItsCodeAndAnUnknownOne0) {
    for (const auto& [word, code] : {std::pair("1_side", 1), std::pair("2_side", 2), std::pair("3_side", 0),
                                     std::pair("1_Side", 0), std::pair("2_sides", 0), std::pair("2", 0)}) {
        expectValue("print_type", &KVJCapsParser::getPrintType, word, true, is(&_Capabilities::printType, code));
    }
}

TEST(SingleValue, ALaminatorIsThereForExactlyPresent) {
    for (const char* word : {"notpresent", "Present", "present.", "presen", "yes", "enabled", "1"}) {
        expectValue("laminator", &KVJCapsParser::getLaminator, word, true, is(&_Capabilities::laminator, false));
    }
    auto caps = preset<_Capabilities>();
    caps.laminator = false;
    Xml laminator("<laminator>present</laminator>");
    EXPECT_TRUE(KVJCapsParser().getLaminator(laminator.root(), caps));
    EXPECT_EQ(fieldsOf(caps), fieldsOf(preset<_Capabilities>()));
    caps.laminator = false;
    Xml root("<capabilities><laminator>present</laminator></capabilities>");
    EXPECT_TRUE(KVJCapsParser().parseCapabilities(root.root(), caps));
    EXPECT_EQ(fieldsOf(caps), fieldsOf(preset<_Capabilities>()));
}

TEST(SingleValue, ALaminatorTypeIsItsCodeAndAnUnknownOne0) {
    for (const auto& [word, code] : {std::pair("1_side", laminatorOneSided), std::pair("2_side", laminatorTwoSided),
                                     std::pair("none", laminatorNone), std::pair("2_SIDE", laminatorNone)}) {
        expectValue("laminator_type", &KVJCapsParser::getLaminatorType, word, true,
                    is(&_Capabilities::laminatorType, code));
    }
}

TEST(SingleValue, WithoutTextAWordKeepsItsFieldAndIsFalse) {
    const auto kept = preset<_Capabilities>();
    expectValue("print_system", &KVJCapsParser::getPrintSystem, "", false,
                is(&_Capabilities::printSystem, kept.printSystem));
    expectValue("print_type", &KVJCapsParser::getPrintType, "", false, is(&_Capabilities::printType, kept.printType));
    expectValue("laminator_type", &KVJCapsParser::getLaminatorType, "", false,
                is(&_Capabilities::laminatorType, kept.laminatorType));
}

TEST(SingleValue, WithoutTextALaminatorIsStoredAsFalseAndTheResultFalse) {
    expectValue("laminator", &KVJCapsParser::getLaminator, "", false, is(&_Capabilities::laminator, false));
}

TEST(SingleValue, AWordLongerThanAnyIsAnUnknownOne) {
    const std::string word = "retransfer" + std::string(100000, 'r');
    expectValue("print_system", &KVJCapsParser::getPrintSystem, word, true, is(&_Capabilities::printSystem, -1));
    expectValue("print_type", &KVJCapsParser::getPrintType, word, true, is(&_Capabilities::printType, 0));
    expectValue("laminator", &KVJCapsParser::getLaminator, word, true, is(&_Capabilities::laminator, false));
    expectValue("laminator_type", &KVJCapsParser::getLaminatorType, word, true,
                is(&_Capabilities::laminatorType, laminatorNone));
}

TEST(SingleValue, WithoutAnElementItIsFalse) {
    auto caps = preset<_Capabilities>();
    EXPECT_FALSE(KVJCapsParser().getPrintSystem(nullptr, caps));
    EXPECT_FALSE(KVJCapsParser().getPrintType(nullptr, caps));
    EXPECT_FALSE(KVJCapsParser().getLaminatorType(nullptr, caps));
    EXPECT_EQ(fieldsOf(caps), fieldsOf(preset<_Capabilities>()));
    EXPECT_FALSE(KVJCapsParser().getLaminator(nullptr, caps));
}

}  // namespace

}  // namespace sections_test
