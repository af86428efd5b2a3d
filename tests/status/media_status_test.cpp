// The reply "get_media_status": every field of every medium, the codes of ribbons, and the panels of one.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "KVJStatusParser.h"
#include "fields/status.h"
#include "support/records.h"
#include "support/xml.h"

namespace media_status_test {

namespace {

using Kavrin::KVJStatusParser;
using kvj::tests::expectEqual;
using kvj::tests::wide;
using kvj::tests::Xml;

// No reply in these tests has the values of a preset record, and no ribbon word has its code.
_MediaStatusInfo presetMedium() { return {-1, -2, "preset", "preset", "preset", -3, -4, -5.5F, -6.5F}; }
MediaStatus preset() { return {presetMedium(), -7, presetMedium(), presetMedium(), presetMedium()}; }

/// The text of a field, or all of the field when no terminator is in it.
template <std::size_t N>
std::string_view textIn(const char (&field)[N]) {
    return {field, strnlen(field, N)};
}

template <std::size_t N>
void fill(char (&field)[N], std::string_view text) {
    field[text.copy(field, N - 1)] = '\0';
}

std::string element(const std::string& name, const std::string& content) {
    return "<" + name + ">" + content + "</" + name + ">";
}

/// The panels of a sequence, `{"Y", "M"}` as two of them.
std::string sequence(const std::vector<std::string>& panels) {
    std::string children;
    for (const std::string& panel : panels) children += element("panel", panel);
    return element("sequence", children);
}

bool read(const std::string& reply, MediaStatus& status) {
    const std::wstring text = wide(reply);
    return KVJStatusParser().ParseMediaStatus(*text.c_str(), static_cast<int>(text.size()), status);
}

/// Reads a reply with these children of its root.
bool readChildren(const std::string& children, MediaStatus& status) {
    return read(element("get_media_status", children), status);
}

bool readRibbon(const std::string& children, MediaStatus& status) {
    return readChildren(element("ribbon", children), status);
}

/// The part of the record that belongs to an element of the reply, and the elements that have text in it.
struct Medium {
    const char* name;
    _MediaStatusInfo MediaStatus::*record;
    std::vector<const char*> known;
    std::vector<const char*> unknown;
};

const std::vector<Medium>& media() {
    static const std::vector<const char*> ofLaminate = {"type", "description", "oem_country", "initial_size",
                                                        "panels_remaining"};
    static const std::vector<const char*> notOfLaminate = {"part_number", "ribbon_remaining", "diam_ribbon_payout",
                                                           "diam_ribbon_takeup"};
    static const std::vector<Medium> all = {
        {"ribbon",
         &MediaStatus::ribbon,
         {"type", "description", "oem_country", "initial_size", "panels_remaining", "ribbon_remaining", "part_number",
          "diam_ribbon_payout", "diam_ribbon_takeup"},
         {}},
        {"film",
         &MediaStatus::film,
         {"type", "description", "oem_country", "initial_size", "panels_remaining", "diam_ribbon_payout",
          "diam_ribbon_takeup"},
         {"part_number", "ribbon_remaining"}},
        {"top_laminate", &MediaStatus::topLaminate, ofLaminate, notOfLaminate},
        {"bottom_laminate", &MediaStatus::bottomLaminate, ofLaminate, notOfLaminate}};
    return all;
}

bool isLaminate(const Medium& medium) { return std::string_view(medium.name).ends_with("laminate"); }

// ---- The reply ----

TEST(MediaStatus, FillsEveryFieldFromOneReply) {
    MediaStatus status = preset();
    EXPECT_TRUE(
        readChildren("<ribbon><type>1</type><description>YMCKO</description><part_number>R-1</part_number>"
                     "<oem_country>AT</oem_country><initial_size>500</initial_size>"
                     "<panels_remaining>321</panels_remaining><diam_ribbon_payout>40.5</diam_ribbon_payout>"
                     "<diam_ribbon_takeup>20.25</diam_ribbon_takeup></ribbon>"
                     "<film><type>2</type><description>Silver</description><oem_country>BE</oem_country>"
                     "<initial_size>1000</initial_size><panels_remaining>654</panels_remaining>"
                     "<diam_ribbon_payout>50.5</diam_ribbon_payout><diam_ribbon_takeup>30.25</diam_ribbon_takeup>"
                     "</film>"
                     "<top_laminate><type>3</type><description>clear patch</description><oem_country>CH</oem_country>"
                     "<initial_size>250</initial_size><panels_remaining>98</panels_remaining></top_laminate>"
                     "<bottom_laminate><type>4</type><description>hologram patch</description>"
                     "<oem_country>DK</oem_country><initial_size>350</initial_size>"
                     "<panels_remaining>76</panels_remaining></bottom_laminate>",
                     status));
    // What a medium does not have keeps the preset value: the part number of all but the ribbon, the type and the
    // diameters of the laminates.
    expectEqual(status, {{1, 256, "YMCKO", "R-1", "AT", 500, 321, 40.5F, 20.25F},
                         -7,
                         {2, 268, "Silver", "preset", "BE", 1000, 654, 50.5F, 30.25F},
                         {-1, 3, "clear patch", "preset", "CH", 250, 98, -5.5F, -6.5F},
                         {-1, 4, "hologram patch", "preset", "DK", 350, 76, -5.5F, -6.5F}});
}

TEST(MediaStatus, ReadsMediaAndTheirElementsInAnyOrder) {
    MediaStatus status = preset();
    EXPECT_TRUE(
        readChildren("<bottom_laminate><initial_size>5</initial_size><type>4</type></bottom_laminate>"
                     "<film><diam_ribbon_takeup>3</diam_ribbon_takeup><type>2</type></film>"
                     "<top_laminate><oem_country>CH</oem_country><type>3</type></top_laminate>"
                     "<ribbon><part_number>R-1</part_number><type>1</type></ribbon>",
                     status));
    MediaStatus expected = preset();
    expected.bottomLaminate.initialSize = 5;
    expected.bottomLaminate.code = 4;
    expected.film.takeupDiameter = 3.0F;
    expected.film.type = 2;
    fill(expected.topLaminate.oemCountry, "CH");
    expected.topLaminate.code = 3;
    fill(expected.ribbon.partNumber, "R-1");
    expected.ribbon.type = 1;
    expectEqual(status, expected);
}

TEST(MediaStatus, OnlyATopLaminateLeavesEverythingElse) {
    MediaStatus status = preset();
    EXPECT_TRUE(
        readChildren("<top_laminate><type>3</type><description>clear</description><oem_country>CH</oem_country>"
                     "<initial_size>250</initial_size><panels_remaining>98</panels_remaining></top_laminate>",
                     status));
    MediaStatus expected = preset();
    expected.topLaminate = {-1, 3, "clear", "preset", "CH", 250, 98, -5.5F, -6.5F};
    expectEqual(status, expected);
}

TEST(MediaStatus, EachMediumFillsItsOwnPart) {
    for (const Medium& medium : media()) {
        MediaStatus status = preset();
        EXPECT_TRUE(readChildren(element(medium.name, "<initial_size>9</initial_size>"), status)) << medium.name;
        MediaStatus expected = preset();
        (expected.*medium.record).initialSize = 9;
        expectEqual(status, expected);
    }
}

TEST(MediaStatus, TheResultIsThatOfTheLastKnownMedium) {
    MediaStatus status{};
    EXPECT_FALSE(readChildren("<ribbon><type>1</type></ribbon><film/>", status));
    EXPECT_TRUE(readChildren("<film/><ribbon><type>1</type></ribbon>", status));
    EXPECT_TRUE(readChildren("<ribbon><type>1</type></ribbon><serial/>", status));
    EXPECT_FALSE(readChildren("<ribbon/><serial>1</serial>", status));
}

TEST(MediaStatus, TheResultOfAMediumIsThatOfItsLastKnownElement) {
    for (const Medium& medium : media()) {
        MediaStatus status{};
        const auto result = [&](const std::string& children) {
            return readChildren(element(medium.name, children), status);
        };
        EXPECT_FALSE(result("<type>1</type><initial_size/>")) << medium.name;
        EXPECT_TRUE(result("<initial_size/><type>1</type>")) << medium.name;
        EXPECT_TRUE(result("<type>1</type><serial/>")) << medium.name;
        EXPECT_FALSE(result("<type/><serial>1</serial>")) << medium.name;
    }
}

TEST(MediaStatus, ARepeatedMediumIsReadAgainIntoTheSamePart) {
    MediaStatus status = preset();
    EXPECT_TRUE(
        readChildren("<film><type>1</type><initial_size>2</initial_size></film><film><type>3</type></film>", status));
    MediaStatus expected = preset();
    expected.film.type = 3;
    expected.film.initialSize = 2;
    expectEqual(status, expected);
}

TEST(MediaStatus, AnElementOutsideItsMediumIsUnknown) {
    MediaStatus status = preset();
    EXPECT_FALSE(readChildren("<type>1</type><description>YMCKO</description>" + sequence({"Y"}), status));
    EXPECT_FALSE(readRibbon("<panel>Y</panel><film><type>1</type></film>", status));
    expectEqual(status, preset());
}

// ---- Fields ----

TEST(MediaStatus, ElementsThatAMediumDoesNotHaveAreSkipped) {
    for (const Medium& medium : media()) {
        for (const char* name : medium.unknown) {
            MediaStatus status = preset();
            EXPECT_FALSE(readChildren(element(medium.name, element(name, "1")), status)) << medium.name << '/' << name;
            expectEqual(status, preset());
        }
    }
}

TEST(MediaStatus, OnlyTheRibbonHasASequence) {
    for (const Medium& medium : media()) {
        MediaStatus status = preset();
        const bool isRibbon = medium.record == &MediaStatus::ribbon;
        EXPECT_EQ(readChildren(element(medium.name, sequence({"K"})), status), isRibbon) << medium.name;
        MediaStatus expected = preset();
        if (isRibbon) {
            fill(expected.ribbon.description, "presetK");
            expected.ribbon.code = 263;
        }
        expectEqual(status, expected);
    }
}

TEST(MediaStatus, TheTypeOfALaminateIsItsCode) {
    for (const Medium& medium : media()) {
        MediaStatus status = preset();
        EXPECT_TRUE(readChildren(element(medium.name, "<type>3</type>"), status)) << medium.name;
        MediaStatus expected = preset();
        (isLaminate(medium) ? (expected.*medium.record).code : (expected.*medium.record).type) = 3;
        expectEqual(status, expected);
    }
}

TEST(MediaStatus, TheDescriptionOfRibbonAndFilmGivesTheirCodeAndThatOfALaminateNone) {
    for (const Medium& medium : media()) {
        MediaStatus status = preset();
        EXPECT_TRUE(readChildren(element(medium.name, "<description>Gold</description>"), status)) << medium.name;
        MediaStatus expected = preset();
        fill((expected.*medium.record).description, "Gold");
        if (!isLaminate(medium)) (expected.*medium.record).code = 267;
        expectEqual(status, expected);
    }
}

TEST(MediaStatus, ADescriptionIsLookedUpAmongTheRibbonNamesInAnyLetterCase) {
    // "ko" and "ymckoo" are words of a panel sequence, but no names.
    const std::pair<const char*, int> words[] = {{"YMCKO", 256},    {"ymcko", 256}, {"YmCkO", 256},  {"kdo", 261},
                                                 {"SrDYMCKO", 270}, {"ko", 263},    {"ymckoo", 263}, {"Hologram", 271}};
    for (const char* medium : {"ribbon", "film"}) {
        for (const auto& [word, code] : words) {
            MediaStatus status = preset();
            EXPECT_TRUE(readChildren(element(medium, element("description", word)), status)) << word;
            const bool isRibbon = std::string_view(medium) == "ribbon";
            EXPECT_EQ((isRibbon ? status.ribbon : status.film).code, code) << medium << ' ' << word;
        }
    }
}

TEST(MediaStatus, AnUnknownDescriptionHasTheCodeOfBlack) {
    MediaStatus status = preset();
    EXPECT_TRUE(readRibbon("<description>purple</description>", status));
    EXPECT_EQ(status.ribbon.code, 263);
    EXPECT_TRUE(readChildren("<film><description>purple</description></film>", status));
    EXPECT_EQ(status.film.code, 263);
}

TEST(MediaStatus, OfRibbonRemainingAndPanelsRemainingTheLaterCounts) {
    MediaStatus status = preset();
    MediaStatus expected = preset();
    EXPECT_TRUE(readRibbon("<panels_remaining>1</panels_remaining><ribbon_remaining>2</ribbon_remaining>", status));
    expected.ribbon.panelsRemaining = 2;
    expectEqual(status, expected);
    EXPECT_TRUE(readRibbon("<ribbon_remaining>3</ribbon_remaining><panels_remaining>4</panels_remaining>", status));
    expected.ribbon.panelsRemaining = 4;
    expectEqual(status, expected);
}

TEST(MediaStatus, DiametersHaveADecimalPoint) {
    MediaStatus status{};
    EXPECT_TRUE(readRibbon(
        "<diam_ribbon_payout>12.75</diam_ribbon_payout><diam_ribbon_takeup>-0.5</diam_ribbon_takeup>", status));
    EXPECT_EQ(status.ribbon.payoutDiameter, 12.75F);
    EXPECT_EQ(status.ribbon.takeupDiameter, -0.5F);
    EXPECT_TRUE(readRibbon(
        "<diam_ribbon_payout>12,75</diam_ribbon_payout><diam_ribbon_takeup>wide</diam_ribbon_takeup>", status));
    EXPECT_EQ(status.ribbon.payoutDiameter, 12.0F);
    EXPECT_EQ(status.ribbon.takeupDiameter, 0.0F);
}

TEST(MediaStatus, TypesAndSizesAreDecimal) {
    MediaStatus status{};
    EXPECT_TRUE(readRibbon(
        "<type>010</type><initial_size>0x1f</initial_size><panels_remaining>-70000</panels_remaining>", status));
    EXPECT_EQ(status.ribbon.type, 10);
    EXPECT_EQ(status.ribbon.initialSize, 0);
    EXPECT_EQ(status.ribbon.panelsRemaining, -70000);
}

// ---- Texts that do not fit ----

// ---- The panels of a ribbon ----

MediaStatus withRibbon(std::string_view description, int code) {
    MediaStatus status = preset();
    fill(status.ribbon.description, description);
    status.ribbon.code = code;
    return status;
}

TEST(RibbonSequence, PanelsAreJoinedWithoutASeparator) {
    MediaStatus status = withRibbon("", -2);
    EXPECT_TRUE(readRibbon(sequence({"Y", "M", "C", "K", "O"}), status));
    expectEqual(status, withRibbon("YMCKO", 256));
}

TEST(RibbonSequence, PanelsAreLookedUpAmongTheRibbonDescriptions) {
    // "KO" and "YMCKOO" are no ribbon names; "SrDYMCKO" is one, but no description.
    const std::pair<std::vector<std::string>, int> sequences[] = {
        {{"K", "O"}, 262},       {{"YMCK", "OO"}, 272}, {{"o"}, 271},           {{"1/2 YMC", "KO"}, 258},
        {{"1/2", "YMCKO"}, 263}, {{"SrDYMCKO"}, 263},   {{"SD", "YMCKO"}, 270}, {{"purple"}, 263}};
    for (const auto& [panels, code] : sequences) {
        MediaStatus status = withRibbon("", -2);
        EXPECT_TRUE(readRibbon(sequence(panels), status)) << panels.front();
        EXPECT_EQ(status.ribbon.code, code) << panels.front();
    }
}

TEST(RibbonSequence, PanelsAreAppendedToWhatTheDescriptionHolds) {
    MediaStatus status = withRibbon("YMC", -2);
    EXPECT_TRUE(readRibbon(sequence({"K", "O"}), status));
    expectEqual(status, withRibbon("YMCKO", 256));
    // A record that is read into a second time has the panels of both replies, and that is no ribbon's description.
    EXPECT_TRUE(readRibbon(sequence({"Y", "M", "C", "K", "O"}), status));
    expectEqual(status, withRibbon("YMCKOYMCKO", 263));
}

TEST(RibbonSequence, ASequenceAfterTheDescriptionMakesItLongerAndGivesTheCode) {
    MediaStatus status = preset();
    EXPECT_TRUE(readRibbon("<description>ymcko</description>" + sequence({"o"}), status));
    expectEqual(status, withRibbon("ymckoo", 272));
}

TEST(RibbonSequence, ADescriptionAfterTheSequenceReplacesItAndGivesTheCode) {
    MediaStatus status = withRibbon("", -2);
    EXPECT_TRUE(readRibbon(sequence({"ymckoo"}) + "<description>ko</description>", status));
    expectEqual(status, withRibbon("ko", 263));
}

TEST(RibbonSequence, ARepeatedSequenceIsAppendedAgain) {
    MediaStatus status = withRibbon("", -2);
    EXPECT_TRUE(readRibbon(sequence({"YM", "C"}) + sequence({"KO"}), status));
    expectEqual(status, withRibbon("YMCKO", 256));
}

TEST(RibbonSequence, ASequenceWithoutPanelsIsFalseAndKeepsDescriptionAndCode) {
    for (const char* reply : {"<sequence/>", "<sequence>Y</sequence>", "<sequence><layer>Y</layer></sequence>"}) {
        MediaStatus status = preset();
        EXPECT_FALSE(readRibbon(reply, status)) << reply;
        expectEqual(status, preset());
    }
}

TEST(RibbonSequence, ASequenceWithoutPanelsAfterADescriptionKeepsItsCode) {
    MediaStatus status = preset();
    EXPECT_FALSE(readRibbon("<description>Gold</description><sequence/>", status));
    expectEqual(status, withRibbon("Gold", 267));
}

TEST(RibbonSequence, OtherChildrenOfASequenceAreSkipped) {
    MediaStatus status = withRibbon("", -2);
    EXPECT_TRUE(readRibbon(
        "<sequence><count>2</count><panel>K</panel><layer>x</layer><panel>O</panel><end/></sequence>", status));
    expectEqual(status, withRibbon("KO", 262));
}

TEST(RibbonSequence, ALastPanelWithoutTextIsFalseAndKeepsTheCode) {
    MediaStatus status = withRibbon("", -2);
    EXPECT_FALSE(readRibbon(sequence({"K", "O", ""}), status));
    expectEqual(status, withRibbon("KO", -2));
}

TEST(RibbonSequence, AnEarlierPanelWithoutTextIsSkipped) {
    MediaStatus status = withRibbon("", -2);
    EXPECT_TRUE(readRibbon(sequence({"", "K", "", "O"}), status));
    expectEqual(status, withRibbon("KO", 262));
}

TEST(RibbonSequence, PanelsThatFillTheDescriptionAreRead) {
    MediaStatus status = withRibbon("", -2);
    EXPECT_TRUE(readRibbon(sequence(std::vector<std::string>(31, "x")), status));
    expectEqual(status, withRibbon(std::string(31, 'x'), 263));
}

TEST(RibbonSequence, PanelsThatDoNotFitTheDescriptionAreCutTerminatedAndFalse) {
    const std::string full(31, 'x');
    const std::vector<std::string> sequences[] = {
        {std::string(32, 'x')},      {std::string(100000, 'x')},        {std::string(30, 'x'), "xx"},
        {std::string(31, 'x'), "x"}, std::vector<std::string>(32, "x"), std::vector<std::string>(1000, "x")};
    for (const auto& panels : sequences) {
        MediaStatus status = withRibbon("", -2);
        EXPECT_FALSE(readRibbon(sequence(panels), status)) << panels.size() << " panels";
        expectEqual(status, withRibbon(full, -2));
    }
}

TEST(RibbonSequence, PanelsBehindADescriptionThatLeavesNoRoomAreDropped) {
    const std::string full(31, 'x');
    MediaStatus status = withRibbon(full, -2);
    EXPECT_FALSE(readRibbon(sequence({"K", "O"}), status));
    expectEqual(status, withRibbon(full, -2));
}

TEST(RibbonSequence, NothingIsAppendedToADescriptionWithoutATerminator) {
    MediaStatus status = preset();
    std::memset(status.ribbon.description, 'x', sizeof status.ribbon.description);
    const MediaStatus expected = status;
    EXPECT_FALSE(readRibbon(sequence({"K", "O"}), status));
    expectEqual(status, expected);
}

TEST(RibbonSequence, AnEmptySequenceBetweenTwoOthersChangesNothing) {
    MediaStatus status = withRibbon("", -2);
    EXPECT_TRUE(readRibbon(sequence({"K"}) + "<sequence/>" + sequence({"O"}), status));
    expectEqual(status, withRibbon("KO", 262));
}

// ---- Walkers ----

TEST(MediaWalkers, ReadElementsThatTheHostHolds) {
    KVJStatusParser parser;
    MediaStatus status = preset();
    Xml reply("<any><film><type>1</type></film></any>");
    EXPECT_TRUE(parser.parseMediaStatus(reply.root(), status));
    Xml ribbon("<any><type>2</type></any>");
    EXPECT_TRUE(parser.getRibbonStatus(ribbon.root(), status));
    Xml film("<any><initial_size>3</initial_size></any>");
    EXPECT_TRUE(parser.getInTMStatus(film.root(), status));
    Xml laminate("<any><type>4</type></any>");
    EXPECT_TRUE(parser.getLaminateStatus(laminate.root(), status.bottomLaminate));
    MediaStatus expected = preset();
    expected.film.type = 1;
    expected.ribbon.type = 2;
    expected.film.initialSize = 3;
    expected.bottomLaminate.code = 4;
    expectEqual(status, expected);
}

TEST(MediaWalkers, SkipWhatOnlyOtherMediaHave) {
    KVJStatusParser parser;
    MediaStatus status = preset();
    Xml ofRibbon(
        "<any><sequence><panel>K</panel></sequence><part_number>R-1</part_number>"
        "<ribbon_remaining>1</ribbon_remaining></any>");
    EXPECT_FALSE(parser.getInTMStatus(ofRibbon.root(), status));
    EXPECT_FALSE(parser.getLaminateStatus(ofRibbon.root(), status.topLaminate));
    Xml diameters("<any><diam_ribbon_payout>1</diam_ribbon_payout><diam_ribbon_takeup>1</diam_ribbon_takeup></any>");
    EXPECT_FALSE(parser.getLaminateStatus(diameters.root(), status.topLaminate));
    expectEqual(status, preset());
}

TEST(MediaWalkers, AreFalseForNoElementAndForOneWithoutChildren) {
    KVJStatusParser parser;
    MediaStatus status = preset();
    Xml empty("<any>text</any>");
    for (TiXmlElement* element : {static_cast<TiXmlElement*>(nullptr), empty.root()}) {
        EXPECT_FALSE(parser.parseMediaStatus(element, status));
        EXPECT_FALSE(parser.getRibbonStatus(element, status));
        EXPECT_FALSE(parser.getInTMStatus(element, status));
        EXPECT_FALSE(parser.getLaminateStatus(element, status.topLaminate));
        EXPECT_FALSE(parser.getRibbonDescription(element, status.ribbon.description));
    }
    expectEqual(status, preset());
}

TEST(MediaWalkers, TheRibbonDescriptionIsMadeLongerInItsBufferOf32Characters) {
    struct {
        char description[32];
        char behind[8];
    } buffer = {"YMC", "behind"};
    KVJStatusParser parser;
    Xml panels("<any><panel>K</panel><layer>x</layer><panel>O</panel></any>");
    EXPECT_TRUE(parser.getRibbonDescription(panels.root(), buffer.description));
    EXPECT_EQ(textIn(buffer.description), "YMCKO");
    Xml longPanel("<any><panel>0123456789012345678901234567890123456789</panel></any>");
    EXPECT_FALSE(parser.getRibbonDescription(longPanel.root(), buffer.description));
    EXPECT_EQ(textIn(buffer.description), "YMCKO01234567890123456789012345");
    EXPECT_EQ(textIn(buffer.behind), "behind");
}

TEST(MediaWalkers, TheResultOfTheRibbonDescriptionIsThatOfItsLastPanel) {
    KVJStatusParser parser;
    char description[32] = "";
    Xml emptyLast("<any><panel>K</panel><panel/></any>");
    EXPECT_FALSE(parser.getRibbonDescription(emptyLast.root(), description));
    Xml emptyFirst("<any><panel/><panel>O</panel></any>");
    EXPECT_TRUE(parser.getRibbonDescription(emptyFirst.root(), description));
    EXPECT_EQ(textIn(description), "KO");
}

TEST(MediaWalkers, TheRibbonDescriptionIsFalseWithoutABuffer) {
    KVJStatusParser parser;
    Xml panels("<any><panel>K</panel></any>");
    EXPECT_FALSE(parser.getRibbonDescription(panels.root(), nullptr));
    EXPECT_FALSE(parser.getRibbonDescription(nullptr, nullptr));
}

}  // namespace

}  // namespace media_status_test
