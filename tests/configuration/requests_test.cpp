// Requests to the byte: each section by its bit, all of them, single cards, and what is left out of them. The expected
// documents are files beside this one.
#include "configuration/requests.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <ostream>
#include <string>
#include <vector>

namespace requests_test {

namespace {

using namespace kvj::tests;

/// A bit, and the documents that it alone gives for a retransfer printer and for one that prints on the card; null for
/// none. The order is that in which the sections are written.
struct Section {
    long bit;
    const char* document;
    const char* directDocument;
};
constexpr Section sections[] = {{0x1, "physical_address", "physical_address"},
                                {0x2, "ethernet", "ethernet"},
                                {0x4, "wireless", "wireless"},
                                {0x8, "ocp_language", "ocp_language"},
                                {0x10, "error_control", "error_control"},
                                {0x20, "usage_counters", "usage_counters"},
                                {0x40, "standby_timeout", "standby_timeout"},
                                {0x80, "imaging_parameters", "imaging_parameters_direct_to_card"},
                                {0x200, "ribbon_motor_parameters", "ribbon_motor_parameters"},
                                {0x400, "ribbon_sensor_offset", "ribbon_sensor_offset"},
                                {0x1000, "mech_adjustments", "mech_adjustments_direct_to_card"},
                                {0x2000, "media_info", "media_info_direct_to_card"},
                                {0x40000, "lamination", "lamination"},
                                {0x20000, "cleaning", "cleaning"},
                                {0x400000, "feeder_mode", "feeder_mode"},
                                {0x4000, "cards", "cards_direct_to_card"},
                                {0x8000, "transfer_settings", nullptr},
                                {0x10000, "lcd_contrast", "lcd_contrast"},
                                {0x80000, "internal_encoder", "internal_encoder"}};

const std::string begin = "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n<configuration>\n";
const std::string end = "</configuration>\n";

/// The sections of an expected document.
std::string contentOfDocument(const char* name) {
    const std::string text = documentOf(name);
    EXPECT_EQ(text.substr(0, begin.size()), begin) << name;
    EXPECT_EQ(text.substr(text.size() - end.size()), end) << name;
    return text.substr(begin.size(), text.size() - begin.size() - end.size());
}

/// What a mask gives: its sections, one after the other.
Composed expectedOf(const Selection& selection) {
    std::string content;
    bool result = false;
    for (const Section& section : sections) {
        const char* document = selection.directToCard ? section.directDocument : section.document;
        if ((selection.mask & section.bit) == 0 || document == nullptr) continue;
        content += contentOfDocument(document);
        result = true;
    }
    return result ? Composed{true, begin + content + end} : nothing;
}

// ---- Sections ----

class SectionRequest : public Requests, public testing::WithParamInterface<Section> {};

TEST_P(SectionRequest, IsThatOfItsBit) {
    EXPECT_EQ(composed(cfg, {.mask = GetParam().bit}), (Composed{true, documentOf(GetParam().document)}));
}

TEST_P(SectionRequest, IsThatOfItsBitForAPrinterThatPrintsOnTheCard) {
    const Composed expected =
        GetParam().directDocument == nullptr ? nothing : Composed{true, documentOf(GetParam().directDocument)};
    EXPECT_EQ(composed(cfg, {.mask = GetParam().bit, .directToCard = true}), expected);
}

TEST_P(SectionRequest, TogetherWithAnyOtherStandsInItsPlace) {
    for (const Section& other : sections) {
        for (const bool direct : {false, true}) {
            const Selection selection{.mask = GetParam().bit | other.bit, .directToCard = direct};
            EXPECT_EQ(composed(cfg, selection), expectedOf(selection)) << other.document;
        }
    }
}

TEST_P(SectionRequest, IsNotPartOfARequestForAllOthers) {
    const Selection selection{.mask = allBits & ~GetParam().bit};
    EXPECT_EQ(composed(cfg, selection), expectedOf(selection));
}

TEST_P(SectionRequest, IsNotWrittenForACardAlone) {
    const long bit = GetParam().bit & ~0x4000L;  // but for the cards themselves
    for (const int card : {1, 2, 3, -1}) EXPECT_EQ(composed(cfg, {.mask = bit, .card = card}), nothing);
    EXPECT_FALSE(leftCopy());
}

std::string nameOfSection(const testing::TestParamInfo<Section>& section) { return section.param.document; }
void PrintTo(const Section& section, std::ostream* out) { *out << section.document; }

INSTANTIATE_TEST_SUITE_P(Sections, SectionRequest, testing::ValuesIn(sections), nameOfSection);

class ConfigurationRequest : public Requests {};

TEST_F(ConfigurationRequest, WithAllBitsHasAllSectionsInTheirOrder) {
    for (const bool direct : {false, true}) {
        for (const long mask : {allBits, -1L, 0x4FF6FFL}) {
            EXPECT_EQ(composed(cfg, {.mask = mask, .directToCard = direct}), expectedOf({.directToCard = direct}));
        }
    }
}

TEST_F(ConfigurationRequest, WithBitsThatSelectNothingIsNoneAndLeavesNoCopy) {
    std::vector<long> unused = {0, 0x100, 0x800, 0x100000, 0x200000, 0x300900, LONG_MIN};
    for (int bit = 23; bit < 63; ++bit) unused.push_back(1L << bit);
    for (const long mask : unused) {
        for (const bool direct : {false, true}) {
            EXPECT_EQ(composed(cfg, {.mask = mask, .directToCard = direct}), nothing) << mask;
        }
        EXPECT_FALSE(leftCopy()) << mask;
    }
}

TEST_F(ConfigurationRequest, BitsThatSelectNothingDoNotMatterBesideOthers) {
    EXPECT_EQ(composed(cfg, {.mask = 0x40 | 0x300900 | 0x800000}), (Composed{true, documentOf("standby_timeout")}));
}

TEST_F(ConfigurationRequest, NeverHasTricolorSettingsPotentiometerOrMakersAdjustments) {
    const std::string text = composed(cfg, {}).text;
    for (const char* name : {"tricolor_settings", "bemf_potentiometer", "mfg_power_adjustments", "VtoI", "country>DE",
                             "<wireless>", "contact_station"}) {
        EXPECT_EQ(text.find(name), std::string::npos) << name;
    }
}

TEST_F(ConfigurationRequest, OfAZeroRecordHasAllSectionsButLamination) {
    _KVConfiguration zero;
    clear(zero);
    const Composed request = composed(zero, {});
    EXPECT_TRUE(request.result);
    Xml xml(request.text.c_str());
    std::string names;
    for (const TiXmlElement* section = xml.root()->FirstChildElement(); section != nullptr;
         section = section->NextSiblingElement()) {
        names += section->ValueStr() + " ";
    }
    EXPECT_EQ(names,
              "physical_address ethernet ethernet ocp_language error_control usb_speed usage_counters standby_timeout "
              "imaging_parameters ribbon_motor_parameters ribbon_sensor_offset mech_adjustments usb_timeout media_info "
              "cleaning cleaning_thresholds feeder_mode cards transfer_settings lcd_contrast internal_encoder ");
}

TEST_F(ConfigurationRequest, HasAWordForCodesThatHaveNone) {
    struct Case {
        int code;
        const char* errorControl;
        const char* usbSpeed;
        const char* feederMode;
    };
    for (const Case& row : {Case{0, "none", "high", "manual"}, Case{1, "med", "full", "hopper"},
                            Case{2, "high", "high", "alreadyinprinter"}, Case{3, "med", "high", "auto"},
                            Case{5, "med", "high", "hopper"}, Case{-1, "med", "high", "hopper"}}) {
        cfg.errorControl = static_cast<ErrorControl>(row.code);
        cfg.usbSpeed = static_cast<USB_Speed>(row.code);
        cfg.feederMode = static_cast<_eFeedMode>(row.code);
        Xml request(composed(cfg, {.mask = 0x400010}).text.c_str());
        EXPECT_EQ(written(*request.root()), element("configuration", element("error_control", row.errorControl) +
                                                                         element("usb_speed", row.usbSpeed) +
                                                                         element("feeder_mode", row.feederMode)))
            << row.code;
    }
}

TEST_F(ConfigurationRequest, DoesNotChangeTheRecord) {
    _KVConfiguration before;
    fill(before);
    composed(cfg, {});
    EXPECT_EQ(bytesOf(cfg), bytesOf(before));
}

// ---- Printing on the card ----

/// The names of an element's children.
std::vector<std::string> childrenOf(const TiXmlElement* element) {
    std::vector<std::string> names;
    for (const TiXmlElement* child = element->FirstChildElement(); child != nullptr;
         child = child->NextSiblingElement()) {
        names.push_back(child->ValueStr());
    }
    return names;
}

TEST_F(ConfigurationRequest, DirectToCardHasEightMechanicalAdjustmentsAndTheFlipperLast) {
    Xml request(composed(cfg, {.mask = 0x1000, .directToCard = true}).text.c_str());
    const auto names = childrenOf(request.root()->FirstChildElement("mech_adjustments"));
    ASSERT_EQ(names.size(), 8U);
    EXPECT_EQ(names.back(), "flipper_sensor_offset");
}

TEST_F(ConfigurationRequest, InhibitIsTheLastPowerAdjustmentAndLeftOutDirectToCard) {
    for (const bool direct : {false, true}) {
        Xml request(composed(cfg, {.mask = 0x80, .directToCard = direct}).text.c_str());
        const auto names = childrenOf(
            request.root()->FirstChildElement("imaging_parameters")->FirstChildElement("user_power_adjustments"));
        EXPECT_EQ(names.size(), direct ? 11U : 12U);
        EXPECT_EQ(names.back(), direct ? "x-resin" : "inhibit");
    }
}

TEST_F(ConfigurationRequest, DirectToCardHasNothingOfFilmAndTransfer) {
    const std::string text = composed(cfg, {.directToCard = true}).text;
    EXPECT_EQ(text.find("film"), std::string::npos);
    EXPECT_EQ(text.find("transfer"), std::string::npos);
}

TEST_F(ConfigurationRequest, TransferSettingsAloneDirectToCardAreNoneAndLeaveNoCopy) {
    EXPECT_EQ(composed(cfg, {.mask = 0x8000, .directToCard = true}), nothing);
    EXPECT_FALSE(leftCopy());
}

TEST_F(ConfigurationRequest, TheSectionsOfAComposerFollowItsLastRequest) {
    KVJSetConfig composer;
    const auto mechanics = [&] {
        TiXmlElement under("a");
        EXPECT_TRUE(composer.addMechAdjustments(&under, cfg.mechAdjustments));
        return childrenOf(under.FirstChildElement()).size();
    };
    EXPECT_EQ(mechanics(), 15U);
    EXPECT_FALSE(composer.SetConfiguration(cfg, nullptr, 0, 0x1, 0, true));
    EXPECT_EQ(mechanics(), 8U);
    TiXmlElement power("a");
    EXPECT_TRUE(composer.addPowerAdjustments(&power, cfg.imagingParameters.userPowerAdjustments));
    EXPECT_EQ(childrenOf(&power).size(), 11U);
    TiXmlElement imaging("a");
    EXPECT_TRUE(composer.addImagingParameters(&imaging, cfg.imagingParameters));
    EXPECT_EQ(childrenOf(imaging.FirstChildElement()->FirstChildElement("user_power_adjustments")).size(), 11U);
    TiXmlElement media("a");
    EXPECT_TRUE(composer.addMediaInfo(&media, cfg));
    EXPECT_EQ(childrenOf(media.FirstChildElement()), std::vector<std::string>{"ribbon"});
    TiXmlElement card("a");
    EXPECT_TRUE(composer.addCardInfo(&card, cfg.customCard1));
    EXPECT_EQ(childrenOf(card.FirstChildElement()),
              (std::vector<std::string>{"information", "cal_table", "laminator_adjustments"}));
    EXPECT_FALSE(composer.SetConfiguration(cfg, nullptr, 0, 0x1, 0, false));
    EXPECT_EQ(mechanics(), 15U);
}

// ---- Cards ----

struct Card {
    int select;
    const char* document;
    const char* directDocument;
};
constexpr Card cards[] = {{0, "cards", "cards_direct_to_card"},
                          {1, "first_card", "first_card_direct_to_card"},
                          {2, "second_card", "second_card_direct_to_card"}};

TEST_F(ConfigurationRequest, ForACardHasThatCardAlone) {
    for (const Card& card : cards) {
        EXPECT_EQ(composed(cfg, {.mask = 0x4000, .card = card.select}), (Composed{true, documentOf(card.document)}));
        EXPECT_EQ(composed(cfg, {.mask = 0x4000, .card = card.select, .directToCard = true}),
                  (Composed{true, documentOf(card.directDocument)}));
    }
}

TEST_F(ConfigurationRequest, ForACardHasNoOtherSectionWhateverTheMask) {
    for (const Card& card : cards) {
        if (card.select == 0) continue;
        EXPECT_EQ(composed(cfg, {.card = card.select}), (Composed{true, documentOf(card.document)}));
        EXPECT_EQ(composed(cfg, {.card = card.select, .directToCard = true}),
                  (Composed{true, documentOf(card.directDocument)}));
    }
}

TEST_F(ConfigurationRequest, ForACardWithoutTheBitOfTheCardsIsNone) {
    for (const int card : {1, 2, 3, -1}) EXPECT_EQ(composed(cfg, {.mask = allBits & ~0x4000L, .card = card}), nothing);
    EXPECT_FALSE(leftCopy());
}

TEST_F(ConfigurationRequest, ForACardThatThereIsNotIsNoneAndLeavesNoCopy) {
    for (const int card : {3, 4, -1, -2, 256, INT_MAX, INT_MIN}) {
        EXPECT_EQ(composed(cfg, {.mask = 0x4000, .card = card}), nothing) << card;
        EXPECT_EQ(composed(cfg, {.card = card}), nothing) << card;
        EXPECT_EQ(composed(cfg, {.card = card, .directToCard = true}), nothing) << card;
    }
    EXPECT_FALSE(leftCopy());
}

// ---- Laminates ----

TEST_F(ConfigurationRequest, LaminationIsThereWhenEitherLaminateIsPresent) {
    struct Case {
        bool top;
        bool bottom;
        const char* document;
    };
    for (const Case& present : {Case{true, true, "lamination"}, Case{true, false, "lamination"},
                                Case{false, true, "lamination_without_top"}, Case{false, false, nullptr}}) {
        cfg.lamination.topLaminate.laminatePresent = present.top;
        cfg.lamination.bottomLaminate.laminatePresent = present.bottom;
        EXPECT_EQ(composed(cfg, {.mask = 0x40000}),
                  present.document == nullptr ? nothing : (Composed{true, documentOf(present.document)}));
        const std::string lamination = present.document == nullptr ? "" : contentOfDocument(present.document);
        EXPECT_EQ(composed(cfg, {.mask = 0x60000}),
                  (Composed{true, begin + lamination + contentOfDocument("cleaning") + end}));
    }
}

// ---- Building without printing ----

TEST_F(ConfigurationRequest, SectionsAreAddedToTheHostsOwnRoot) {
    TiXmlElement root("set_configuration");
    KVJSetConfig composer;
    EXPECT_TRUE(composer.addConfiguration(&root, cfg, 0x40, 0));
    EXPECT_TRUE(composer.addConfiguration(&root, cfg, 0x400000, 0));
    EXPECT_EQ(written(root),
              "<set_configuration><standby_timeout>1203</standby_timeout><feeder_mode>auto</feeder_mode>"
              "</set_configuration>");
    EXPECT_EQ(composer.FirstChild(), nullptr);
    EXPECT_FALSE(leftCopy());
}

TEST_F(ConfigurationRequest, WithoutSectionsAddingIsFalse) {
    for (const long mask : {0L, 0x100L, 0x800L, 0x100000L, 0x200000L}) {
        TiXmlElement root("configuration");
        EXPECT_FALSE(KVJSetConfig().addConfiguration(&root, cfg, mask, 0)) << mask;
        EXPECT_TRUE(root.NoChildren()) << mask;
    }
}

TEST_F(ConfigurationRequest, WithoutARootAddingIsFalse) {
    for (const Section& section : sections) {
        EXPECT_FALSE(KVJSetConfig().addConfiguration(nullptr, cfg, section.bit, 0)) << section.document;
    }
    EXPECT_FALSE(KVJSetConfig().addConfiguration(nullptr, cfg, allBits, 1));
}

TEST_F(ConfigurationRequest, ForACardThatThereIsNotTheCardsAreEmptyAndAddingIsFalse) {
    for (const int card : {3, -1}) {
        TiXmlElement root("configuration");
        EXPECT_FALSE(KVJSetConfig().addConfiguration(&root, cfg, allBits, card));
        EXPECT_EQ(written(root), "<configuration><cards /></configuration>");
    }
}

// ---- The host's buffer ----

const std::string standby = documentOf("standby_timeout");

TEST_F(ConfigurationRequest, IsCutAtTheCapacityAndTerminatedWhenThereIsRoom) {
    const std::wstring text = wide(standby);
    const int length = static_cast<int>(text.size());
    for (const int capacity : {0, 1, 50, length - 1, length, length + 1, length + 5}) {
        std::wstring out(text.size() + 8, L'#');
        EXPECT_TRUE(KVJSetConfig().SetConfiguration(cfg, out.data(), capacity, 0x40, 0, false)) << capacity;
        std::wstring expected = text.substr(0, static_cast<std::size_t>(capacity));
        if (capacity > length) expected += L'\0';
        expected.resize(out.size(), L'#');
        EXPECT_EQ(out, expected) << capacity;
    }
}

TEST_F(ConfigurationRequest, WithANegativeCapacityIsNotPrinted) {
    for (const int capacity : {-1, INT_MIN}) {
        std::wstring out(10, L'#');
        EXPECT_FALSE(KVJSetConfig().SetConfiguration(cfg, out.data(), capacity, 0x40, 0, false));
        EXPECT_EQ(out, std::wstring(10, L'#'));
    }
}

TEST_F(ConfigurationRequest, WithoutABufferIsFalseAndComposedAllTheSame) {
    const TemporaryFolder folder;
    std::string path = (folder / "request").string();
    KVJSetConfig composer;
    EXPECT_FALSE(composer.SetConfiguration(cfg, nullptr, 1000, 0x40, 0, false));
    EXPECT_TRUE(composer.saveJob(path.data()));
    EXPECT_EQ(contentOf(path), standby);
}

TEST_F(ConfigurationRequest, ComposedAgainOnOneObjectHasTwoRoots) {
    KVJSetConfig composer;
    std::wstring out(5000, L'\0');
    EXPECT_TRUE(composer.SetConfiguration(cfg, out.data(), 5000, 0x40, 0, false));
    EXPECT_EQ(std::wstring(out.c_str()), wide(standby));
    EXPECT_TRUE(composer.SetConfiguration(cfg, out.data(), 5000, 0x400000, 0, false));
    EXPECT_EQ(std::wstring(out.c_str()), wide(standby + documentOf("feeder_mode")));
}

TEST_F(ConfigurationRequest, ComposedAfterOneThatFailedHasAnEmptyRootBeforeIt) {
    KVJSetConfig composer;
    std::wstring out(5000, L'\0');
    EXPECT_FALSE(composer.SetConfiguration(cfg, out.data(), 5000, 0, 0, false));
    EXPECT_EQ(out[0], L'\0');
    EXPECT_TRUE(composer.SetConfiguration(cfg, out.data(), 5000, 0x40, 0, false));
    EXPECT_EQ(std::wstring(out.c_str()),
              wide("<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n<configuration />\n" + standby));
}

TEST_F(ConfigurationRequest, IsPrintedAgainOnDemand) {
    KVJSetConfig composer;
    EXPECT_FALSE(composer.SetConfiguration(cfg, nullptr, 0, 0x40, 0, false));
    std::wstring out(5000, L'\0');
    EXPECT_TRUE(composer.saveJob(out.data(), 5000));
    EXPECT_EQ(std::wstring(out.c_str()), wide(standby));
    EXPECT_FALSE(composer.saveJob(static_cast<wchar_t*>(nullptr), 5000));
}

TEST_F(ConfigurationRequest, IsSavedToAFileOfTheHosts) {
    const TemporaryFolder folder;
    std::string path = (folder / "request").string();
    KVJSetConfig composer;
    std::wstring out(50000, L'\0');
    EXPECT_TRUE(composer.SetConfiguration(cfg, out.data(), 50000, allBits, 0, false));
    EXPECT_TRUE(composer.saveJob(path.data()));
    EXPECT_EQ(wide(contentOf(path)), std::wstring(out.c_str()));
    EXPECT_FALSE(composer.saveJob(static_cast<char*>(nullptr)));
    std::string missing = (folder / "missing/request").string();
    EXPECT_FALSE(composer.saveJob(missing.data()));
}

TEST_F(ConfigurationRequest, TextsAreEscaped) {
    std::strcpy(cfg.wireless.ssid, "<&>\"'");
    EXPECT_NE(composed(cfg, {.mask = 0x4}).text.find("<ssid>&lt;&amp;&gt;&quot;&apos;</ssid>"), std::string::npos);
}

}  // namespace

}  // namespace requests_test
