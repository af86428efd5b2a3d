// Each reader of a section by itself, with an element that the host holds.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <functional>
#include <ostream>
#include <string>
#include <type_traits>
#include <vector>

#include "KVJConfigParser.h"
#include "configuration/records.h"

namespace readers_test {

namespace {

using namespace kvj::tests;

/// What a reader made of a record, and its result.
struct Outcome {
    bool result;
    std::string record;
};

struct Section {
    std::string name;  ///< of the reader
    std::string path;  ///< of its element in the complete reply
    std::function<Outcome(TiXmlElement*)> readIntoPreset;
    std::function<Outcome(TiXmlElement*)> readIntoZero;
    std::string preset;
    std::string asRead;  ///< what the complete reply has for it
};

/// `part` points to the section's record in a configuration, or copies the fields where the section has none of its
/// own.
template <class Record, class Part>
Section section(const char* name, const char* path, ReaderOf<Record> reader, Part part) {
    const auto readInto = [reader](void (*prepare)(Record&)) {
        return [=](TiXmlElement* element) {
            Record record;
            prepare(record);
            const bool result = (KVJConfigParser().*reader)(element, record);
            return Outcome{result, bytesOf(record)};
        };
    };
    Record before;
    preset(before);
    Record expected;
    clear(expected);
    _KVConfiguration cfg;
    fillAsRead(cfg);
    if constexpr (std::is_invocable_v<Part, Record&, const _KVConfiguration&>) {
        part(expected, cfg);
    } else {
        std::memcpy(&expected, part(cfg), sizeof expected);
    }
    return {name, path, readInto(preset), readInto(clear), bytesOf(before), bytesOf(expected)};
}

using Cfg = _KVConfiguration;

void copyCounters(Cfg& kept, const Cfg& cfg) {
    kept.numCardsPrinted = cfg.numCardsPrinted;
    kept.numLinesPrinted = cfg.numLinesPrinted;
}
void copyMotor(Cfg& kept, const Cfg& cfg) { kept.ribbonMotorParameters = cfg.ribbonMotorParameters; }
void copyMedia(Cfg& kept, const Cfg& cfg) {
    kept.ribbon = cfg.ribbon;
    kept.film = cfg.film;
}
void copyCards(Cfg& kept, const Cfg& cfg) {
    kept.customCard1 = cfg.customCard1;
    kept.customCard2 = cfg.customCard2;
}
void copyInformation(_CustomCardInfo& kept, const Cfg& cfg) {
    const _CustomCardInfo& card = cfg.customCard1;
    kept.type = card.type;
    std::strcpy(kept.partNumber, card.partNumber);
    std::strcpy(kept.description, card.description);
    kept.thickness = card.thickness;
    kept.coercivity = card.coercivity;
    kept.magStripe = card.magStripe;
    kept.contactEncode = card.contactEncode;
    kept.nonContactEncode = card.nonContactEncode;
}
void copyDeadline(_CleaningParams& kept, const Cfg& cfg) {
    std::strcpy(kept.cleaningDeadlineIsSoft, cfg.cleaning.cleaningDeadlineIsSoft);
}
void copyThresholds(_CleaningParams& kept, const Cfg& cfg) {
    kept.alcoholCardCleaning = cfg.cleaning.alcoholCardCleaning;
    kept.preWarning = cfg.cleaning.preWarning;
}

std::vector<Section> sections() {
    using Parser = KVJConfigParser;
    return {
        section("getNetworkParams", "ethernet", &Parser::getNetworkParams, [](const Cfg& c) { return &c.ethernet; }),
        section("getWirelessParams", "wireless", &Parser::getWirelessParams, [](const Cfg& c) { return &c.wireless; }),
        section("getUSBTimeout", "usb_timeout", &Parser::getUSBTimeout, [](const Cfg& c) { return &c.usbTimeout; }),
        section("getOCPValues", "ocp_language", &Parser::getOCPValues, [](const Cfg& c) { return &c.ocpLanguage; }),
        section("getUsageCounters", "usage_counters", &Parser::getUsageCounters, copyCounters),
        section("getImagingParameters", "imaging_parameters", &Parser::getImagingParameters,
                [](const Cfg& c) { return &c.imagingParameters; }),
        section("getPowerAdjustments", "imaging_parameters/mfg_power_adjustments", &Parser::getPowerAdjustments,
                [](const Cfg& c) { return &c.imagingParameters.mfgPowerAdjustments; }),
        section("getTricolorSettings", "tricolor_settings", &Parser::getTricolorSettings,
                [](const Cfg& c) { return &c.tricolorSettings; }),
        section("getRibbonMotorParams", "ribbon_motor_parameters", &Parser::getRibbonMotorParams, copyMotor),
        section("getTakeupMotor", "ribbon_motor_parameters/takeup_motor", &Parser::getTakeupMotor,
                [](const Cfg& c) { return &c.ribbonMotorParameters; }),
        section("getMechAdjustments", "mech_adjustments", &Parser::getMechAdjustments,
                [](const Cfg& c) { return &c.mechAdjustments; }),
        section("getMediaInfo", "media_info", &Parser::getMediaInfo, copyMedia),
        section("getRibbonInfo", "media_info/film", &Parser::getRibbonInfo, [](const Cfg& c) { return &c.film; }),
        section("getCardsInfo", "cards", &Parser::getCardsInfo, copyCards),
        section("getCardInfo", "cards/card", &Parser::getCardInfo, [](const Cfg& c) { return &c.customCard1; }),
        section("getCardInformation", "cards/card/information", &Parser::getCardInformation, copyInformation),
        section<_TransferTempInfo>("getTransferTempOfACard", "cards/card/transfer_temps", &Parser::getTransferTemp,
                                   [](const Cfg& c) { return &c.customCard1.transferTemps; }),
        section("getTransferSpeed", "cards/card/transfer_speeds", &Parser::getTransferSpeed,
                [](const Cfg& c) { return &c.customCard1.transferSpeeds; }),
        section("getLaminatorAdjustments", "cards/card/laminator_adjustments", &Parser::getLaminatorAdjustments,
                [](const Cfg& c) { return &c.customCard1.laminatorAdjustments; }),
        section("getTransferSettings", "transfer_settings", &Parser::getTransferSettings,
                [](const Cfg& c) { return &c.transferSettings; }),
        section<_ImageTransferTempInfo>("getTransferTemp", "transfer_settings/transfer_temps", &Parser::getTransferTemp,
                                        [](const Cfg& c) { return &c.transferSettings.transferTemps; }),
        section("getLaminationInfo", "lamination", &Parser::getLaminationInfo,
                [](const Cfg& c) { return &c.lamination; }),
        section("getLaminteCommon", "lamination/laminate_common", &Parser::getLaminteCommon,
                [](const Cfg& c) { return &c.lamination.laminateCommon; }),
        section("getLaminteInfo", "lamination/bottom_laminate", &Parser::getLaminteInfo,
                [](const Cfg& c) { return &c.lamination.bottomLaminate; }),
        section("getLaminteInstalledInfo", "lamination/top_laminate/laminate_installed",
                &Parser::getLaminteInstalledInfo,
                [](const Cfg& c) { return &c.lamination.topLaminate.laminateInstalled; }),
        section("getLaminteControlInfo", "lamination/top_laminate/laminate_control", &Parser::getLaminteControlInfo,
                [](const Cfg& c) { return &c.lamination.topLaminate.laminateControl; }),
        section("getCleanParams", "cleaning", &Parser::getCleanParams, copyDeadline),
        section("getCleaningThresholdsInfo", "cleaning_thresholds", &Parser::getCleaningThresholdsInfo, copyThresholds),
        section("getInternalEncoderInfo", "internal_encoder", &Parser::getInternalEncoderInfo,
                [](const Cfg& c) { return &c.internalEncoder; }),
    };
}

class SectionReader : public testing::TestWithParam<Section> {};
/// Without the encoder, where the order tells two elements of one name apart.
class ReaderOfDistinctNames : public SectionReader {};

TEST_P(SectionReader, ReadsItsElement) {
    Xml reply(replyText().c_str());
    const Outcome outcome = GetParam().readIntoZero(at(reply.root(), GetParam().path));
    EXPECT_TRUE(outcome.result);
    EXPECT_EQ(outcome.record, GetParam().asRead);
}

TEST_P(SectionReader, TheNameOfItsElementDoesNotCount) {
    Xml reply(replyText().c_str());
    TiXmlElement* element = at(reply.root(), GetParam().path);
    element->SetValue("any");
    EXPECT_EQ(GetParam().readIntoZero(element).record, GetParam().asRead);
}

TEST_P(SectionReader, NoElementIsFalseAndLeavesTheRecord) {
    const Outcome outcome = GetParam().readIntoPreset(nullptr);
    EXPECT_FALSE(outcome.result);
    EXPECT_EQ(outcome.record, GetParam().preset);
}

TEST_P(SectionReader, AnElementWithoutChildElementsIsFalseAndLeavesTheRecord) {
    for (const char* text : {"<a/>", "<a></a>", "<a>5</a>", "<a>enabled</a>", "<a><!-- none --></a>",
                             "<a min=\"1\" max=\"9\">5</a>", "<a><![CDATA[5]]></a>"}) {
        Xml empty(text);
        const Outcome outcome = GetParam().readIntoPreset(empty.root());
        EXPECT_FALSE(outcome.result) << text;
        EXPECT_EQ(outcome.record, GetParam().preset) << text;
    }
}

TEST_P(SectionReader, ChildrenThatItDoesNotKnowAreSkipped) {
    Xml unknown("<a>text<serial>1</serial><!-- c --><Type>2</Type><TYPE>3</TYPE><b><type>4</type></b></a>");
    const Outcome outcome = GetParam().readIntoPreset(unknown.root());
    EXPECT_FALSE(outcome.result);
    EXPECT_EQ(outcome.record, GetParam().preset);
}

TEST_P(SectionReader, ChildrenThatItDoesNotKnowDoNotCountForTheResult) {
    Xml reply(replyText().c_str());
    TiXmlElement* element = at(reply.root(), GetParam().path);
    element->LinkEndChild(new TiXmlElement("serial"));
    const Outcome outcome = GetParam().readIntoZero(element);
    EXPECT_TRUE(outcome.result);
    EXPECT_EQ(outcome.record, GetParam().asRead);
}

TEST_P(SectionReader, TheResultIsThatOfTheLastChild) {
    Xml reply(replyText().c_str());
    TiXmlElement* element = at(reply.root(), GetParam().path);
    const std::string last = element->LastChild()->Value();
    element->LinkEndChild(new TiXmlElement(last.c_str()));
    EXPECT_FALSE(GetParam().readIntoZero(element).result);
}

TEST_P(ReaderOfDistinctNames, ChildrenAreReadInAnyOrder) {
    Xml reply(replyText().c_str());
    TiXmlElement* element = at(reply.root(), GetParam().path);
    TiXmlElement reversed("any");
    for (const TiXmlNode* child = element->LastChild(); child != nullptr; child = child->PreviousSibling()) {
        reversed.InsertEndChild(*child);
    }
    const Outcome outcome = GetParam().readIntoZero(&reversed);
    EXPECT_TRUE(outcome.result);
    EXPECT_EQ(outcome.record, GetParam().asRead);
}

TEST_P(ReaderOfDistinctNames, OfARepeatedChildTheLaterCounts) {
    Xml reply(replyText().c_str());
    TiXmlElement* element = at(reply.root(), GetParam().path);
    // First other values: those of the complete reply with a digit before each number.
    TiXmlElement twice("any");
    const std::function<void(TiXmlNode&)> change = [&](TiXmlNode& node) {
        if (node.ToText() != nullptr && node.ValueStr() != "Custom 1") node.SetValue(("9" + node.ValueStr()).c_str());
        for (TiXmlNode* child = node.FirstChild(); child != nullptr; child = child->NextSibling()) change(*child);
    };
    for (const TiXmlNode* child = element->FirstChild(); child != nullptr; child = child->NextSibling()) {
        change(*twice.InsertEndChild(*child));
        twice.InsertEndChild(*child);
    }
    EXPECT_EQ(GetParam().readIntoZero(&twice).record, GetParam().asRead);
}

std::string nameOfSection(const testing::TestParamInfo<Section>& section) { return section.param.name; }
void PrintTo(const Section& section, std::ostream* out) { *out << section.name; }

std::vector<Section> sectionsButEncoder() {
    std::vector<Section> list = sections();
    std::erase_if(list, [](const Section& section) { return section.name == "getInternalEncoderInfo"; });
    return list;
}

INSTANTIATE_TEST_SUITE_P(Readers, SectionReader, testing::ValuesIn(sections()), nameOfSection);
INSTANTIATE_TEST_SUITE_P(Readers, ReaderOfDistinctNames, testing::ValuesIn(sectionsButEncoder()), nameOfSection);

}  // namespace

}  // namespace readers_test
