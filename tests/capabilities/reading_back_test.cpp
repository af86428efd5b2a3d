// What is left of a description that was composed and then read: the printer takes not quite what it sends.
#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "KVJCapsParser.h"
#include "KVJSetCaps.h"
#include "capabilities/records.h"
#include "capabilities/whole.h"
#include "support/files.h"
#include "support/xml.h"

namespace reading_back_test {

namespace {

using namespace kvj::tests;

/// Composes a whole description and reads it into a preset record with preset entries in its lists.
struct ReadBack {
    Lists lists;
    _Capabilities caps = preset<_Capabilities>();

    explicit ReadBack(const _Capabilities& told, bool directToCard = false) {
        lists.hostPorts.assign(2, preset<_PortCaps>());
        lists.devicePorts.assign(2, preset<_PortCaps>());
        lists.swInterfaces.assign(2, preset<_InterfaceCaps>());
        lists.ocpLanguages.assign(2, preset<_OCPLanguageCaps>());
        lists.graphicFormats.assign(2, preset<int>());
        lists.fonts.assign(2, preset<_FontCaps>());
        lists.templates.assign(2, preset<_TemplateCaps>());
        lists.graphics.assign(2, preset<_TemplateCaps>());
        lists.barCodes.assign(2, preset<_BarCodeCaps>());
        lists.lendTo(caps);
        std::wstring text(100000, L'\0');
        EXPECT_TRUE(KVJSetCaps().SetCapabilities(told, text.data(), static_cast<int>(text.size()), 0, directToCard));
        KVJCapsParser().GetCapabilities(*text.data(), static_cast<int>(text.size()), caps);
    }
};

class ReadingBack : public testing::Test {
protected:
    const Whole told;
    const ReadBack back{told.caps};
};

TEST_F(ReadingBack, TheCountsStayTheHosts) {
    for (const int count : {back.caps.hostPortCount, back.caps.devicePortCount, back.caps.swInterfaceCount,
                            back.caps.ocpLanguageCount, back.caps.graphicFormatCount, back.caps.fontCount,
                            back.caps.templateCount, back.caps.graphicCount, back.caps.barCodeCount}) {
        EXPECT_EQ(count, 2);
    }
}

TEST_F(ReadingBack, HostPortsSurvive) { EXPECT_EQ(fieldsOf(back.lists.hostPorts), fieldsOf(told.lists.hostPorts)); }

TEST_F(ReadingBack, OfTheDevicePortsTheLastOneSurvivesAsTheFirst) {
    EXPECT_EQ(fieldsOf(back.lists.devicePorts[0]), fieldsOf(told.lists.devicePorts[1]));
    EXPECT_EQ(fieldsOf(back.lists.devicePorts[1]), fieldsOf(preset<_PortCaps>()));
}

TEST_F(ReadingBack, SoftwareInterfacesSurvive) {
    EXPECT_EQ(fieldsOf(back.lists.swInterfaces), fieldsOf(told.lists.swInterfaces));
}

TEST_F(ReadingBack, LanguagesSurvive) {
    EXPECT_EQ(fieldsOf(back.lists.ocpLanguages), fieldsOf(told.lists.ocpLanguages));
}

TEST_F(ReadingBack, SharpeningLevelsSurviveOnTopOfTheBitsThatWereSet) {
    EXPECT_EQ(back.caps.imageSharpeningLevels, told.caps.imageSharpeningLevels | 0x10);
}

TEST_F(ReadingBack, SecuritySurvives) { EXPECT_EQ(fieldsOf(back.caps.security), fieldsOf(told.caps.security)); }

TEST_F(ReadingBack, MemorySurvives) {
    EXPECT_EQ(back.caps.ramSize, told.caps.ramSize);
    EXPECT_EQ(back.caps.flashSize, told.caps.flashSize);
}

TEST_F(ReadingBack, GraphicFormatsSurvive) { EXPECT_EQ(back.lists.graphicFormats, told.lists.graphicFormats); }

TEST_F(ReadingBack, OfAFontTheStyleSurvivesAndTheNameBecomesTheFlagsWord) {
    EXPECT_EQ(fieldsOf(back.lists.fonts[0]), fieldsOf(_FontCaps{"yes", preset<_FontCaps>().scalable, 2}));
    EXPECT_EQ(fieldsOf(back.lists.fonts[1]), fieldsOf(_FontCaps{"no", preset<_FontCaps>().scalable, 1}));
}

TEST_F(ReadingBack, OfATemplateTheNameSurvivesAndTheLocationDoesNot) {
    EXPECT_EQ(fieldsOf(back.lists.templates[0]), fieldsOf(_TemplateCaps{"staff badge", "in preset"}));
    EXPECT_EQ(fieldsOf(back.lists.templates[1]), fieldsOf(_TemplateCaps{"day pass", "in preset"}));
}

TEST_F(ReadingBack, GraphicsSurvive) { EXPECT_EQ(fieldsOf(back.lists.graphics), fieldsOf(told.lists.graphics)); }

TEST_F(ReadingBack, ThePrintSystemBecomesThatOfTheComposer) {
    EXPECT_EQ(told.caps.printSystem, 0);
    EXPECT_EQ(back.caps.printSystem, 1);
    EXPECT_EQ(ReadBack(told.caps, true).caps.printSystem, -1);
}

TEST_F(ReadingBack, ThePrintTypeSurvives) { EXPECT_EQ(back.caps.printType, told.caps.printType); }

TEST_F(ReadingBack, TheMediaPathSurvives) {
    EXPECT_EQ(back.caps.atm, told.caps.atm);
    EXPECT_EQ(back.caps.magazineCapacity, told.caps.magazineCapacity);
}

TEST_F(ReadingBack, TheImageSurvives) {
    EXPECT_EQ(back.caps.logicalPageLength, told.caps.logicalPageLength);
    EXPECT_EQ(back.caps.logicalPageWidth, told.caps.logicalPageWidth);
    EXPECT_EQ(back.caps.physicalPageLength, told.caps.physicalPageLength);
    EXPECT_EQ(back.caps.physicalPageWidth, told.caps.physicalPageWidth);
    EXPECT_EQ(back.caps.printResolution, told.caps.printResolution);
}

TEST_F(ReadingBack, TheMagneticHeadAndStripeDoNotSurvive) {
    EXPECT_EQ(back.caps.magHeadType, -1);
    EXPECT_EQ(back.caps.magStripeLocation, -1);
}

TEST_F(ReadingBack, OfTheEncoderTheChannelBecomesThatOfTheContactlessEncoder) {
    EXPECT_EQ(told.caps.internalEncoder.commsChannel, 2);
    EXPECT_EQ(back.caps.internalEncoder.commsChannel, 1);
}

TEST_F(ReadingBack, OfTheEncoderContactAndMifareSurviveAndTheRestIsNotWritten) {
    const auto kept = preset<_InternalEncoderInfo>();
    EXPECT_EQ(fieldsOf(back.caps.internalEncoder),
              fieldsOf(_InternalEncoderInfo{1, true, 1, kept.contactlessEncoder2, kept.contactStation}));
}

TEST_F(ReadingBack, TheLaminatorSurvives) {
    EXPECT_EQ(back.caps.laminator, told.caps.laminator);
    EXPECT_EQ(back.caps.laminatorType, told.caps.laminatorType);
}

TEST_F(ReadingBack, BarCodesSurvive) { EXPECT_EQ(fieldsOf(back.lists.barCodes), fieldsOf(told.lists.barCodes)); }

// ---- Values of which other words are written than are read ----

TEST(ReadingBackCodes, APortTypeWithoutAWordIsWrittenEmptyAndSoKept) {
    Whole told;
    told.lists.hostPorts[0].portType = 4;
    told.lists.hostPorts[1].portType = 5;
    const ReadBack back(told.caps);
    EXPECT_EQ(back.lists.hostPorts[0].portType, preset<_PortCaps>().portType);
    EXPECT_EQ(back.lists.hostPorts[1].portType, preset<_PortCaps>().portType);
}

TEST(ReadingBackCodes, NoEncryptionAlgorithmIsMinus1) {
    Whole told;
    told.caps.security = {false, 0};
    EXPECT_EQ(fieldsOf(ReadBack(told.caps).caps.security), fieldsOf(_SecurityCaps{false, -1}));
}

TEST(ReadingBackCodes, AFontWithoutAStyleIs0) {
    Whole told;
    told.lists.fonts[0].style = 7;
    EXPECT_EQ(ReadBack(told.caps).lists.fonts[0].style, 0);
}

TEST(ReadingBackCodes, ALaminatorOfNoTypeIs0) {
    Whole told;
    told.caps.laminatorType = laminatorNone;
    const ReadBack back(told.caps);
    EXPECT_TRUE(back.caps.laminator);
    EXPECT_EQ(back.caps.laminatorType, laminatorNone);
}

TEST(ReadingBackCodes, WithoutALaminatorItsTypeIsNotRead) {
    Whole told;
    told.caps.laminator = false;
    const ReadBack back(told.caps);
    EXPECT_FALSE(back.caps.laminator);
    EXPECT_EQ(back.caps.laminatorType, preset<_Capabilities>().laminatorType);
}

TEST(ReadingBackCodes, AFelicaEncoderLosesItsCodeAndMakesTheChannel0) {
    Whole told;
    told.caps.internalEncoder.contactlessEncoder = 2;
    const auto back = ReadBack(told.caps).caps.internalEncoder;
    EXPECT_EQ(back.commsChannel, 0);  // "usb_2_0", which the printer does not send
    EXPECT_EQ(back.contactlessEncoder, preset<_InternalEncoderInfo>().contactlessEncoder);
}

TEST(ReadingBackCodes, ListsThatWereLeftOutAreLeftAlone) {
    const ReadBack back((_Capabilities()));
    EXPECT_EQ(fieldsOf(back.lists.hostPorts[0]), fieldsOf(preset<_PortCaps>()));
    EXPECT_EQ(back.caps.hostPortCount, 2);
}

// ---- The other direction: what a printer sent, told to it again ----

TEST(ReadingBackCodes, AJisHeadIsReadAndThenWrittenEmptyAlone) {
    Xml reply("<capabilities><mag_encoder>jis</mag_encoder></capabilities>");
    _Capabilities caps{};
    KVJCapsParser().parseCapabilities(reply.root(), caps);
    EXPECT_EQ(caps.magHeadType, 5);
    TiXmlElement root("r");
    EXPECT_TRUE(KVJSetCaps().addCapabilities(&root, caps, 1));
    EXPECT_EQ(written(root), "<r><mag_encoder></mag_encoder></r>");
}

TEST(ReadingBackCodes, AMagneticHeadSurvivesWhenItIsWrittenAlone) {
    for (const int code : {0, 1, 2, 3, 4}) {
        _Capabilities caps{};
        caps.magHeadType = code;
        TiXmlElement root("r");
        EXPECT_TRUE(KVJSetCaps().addCapabilities(&root, caps, 1));
        auto back = preset<_Capabilities>();
        EXPECT_TRUE(KVJCapsParser().parseCapabilities(&root, back));
        EXPECT_EQ(back.magHeadType, code);
    }
}

}  // namespace

}  // namespace reading_back_test
