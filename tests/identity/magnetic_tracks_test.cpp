// The reply "data": the tracks that the magnetic encoder read back from a card.
#include <gtest/gtest.h>

#include <climits>
#include <cstddef>
#include <cstring>
#include <string>

#include "KVJGetEIN.h"
#include "support/xml.h"

namespace magnetic_tracks_test {

namespace {

using Kavrin::__GETTRACK;
using Kavrin::KVJGetEIN;
using kvj::tests::Xml;

/// A record with a value in every byte that no test writes.
__GETTRACK preset() {
    __GETTRACK tracks;
    std::memset(&tracks, '#', sizeof tracks);
    return tracks;
}

/// The whole record, which consists of characters only.
std::string bytesOf(const __GETTRACK& tracks) { return {reinterpret_cast<const char*>(&tracks), sizeof tracks}; }

/// The preset record with this text and its terminator at one place, and nothing else changed.
std::string presetWith(std::size_t offset, const std::string& text) {
    return bytesOf(preset()).replace(offset, text.size() + 1, text + '\0');
}

bool read(const std::string& reply, __GETTRACK& tracks) {
    return KVJGetEIN().GetMagneticTracks(*reply.c_str(), 0, tracks);
}

std::string tag(const std::string& name, const std::string& content) {
    return "<" + name + ">" + content + "</" + name + ">";
}

/// Reads a reply with these children of its root.
bool readChildren(const std::string& children, __GETTRACK& tracks) { return read(tag("data", children), tracks); }

TEST(MagneticTracks, FillsEveryTrackFromOneReply) {
    __GETTRACK tracks = preset();
    EXPECT_TRUE(
        readChildren("<mag><track1>%B0004170000^SAMPLE/CARD^3101?</track1><track2>;0004170000=3101?</track2>"
                     "<track3>;01000417==5?</track3></mag>",
                     tracks));
    EXPECT_STREQ(tracks.track1, "%B0004170000^SAMPLE/CARD^3101?");
    EXPECT_STREQ(tracks.track2, ";0004170000=3101?");
    EXPECT_STREQ(tracks.track3, ";01000417==5?");
}

// ---- Every track by itself ----

struct Track {
    const char* element;
    std::size_t offset;
};

class MagneticTrack : public testing::TestWithParam<Track> {
protected:
    static bool readTrack(const std::string& text, __GETTRACK& tracks) {
        return readChildren(tag("mag", tag(GetParam().element, text)), tracks);
    }
};

INSTANTIATE_TEST_SUITE_P(MagneticTracks, MagneticTrack,
                         testing::Values(Track{"track1", 0}, Track{"track2", 256}, Track{"track3", 512}),
                         [](const auto& track) { return track.param.element; });

TEST_P(MagneticTrack, AloneLeavesTheOthersAsTheyWere) {
    __GETTRACK tracks = preset();
    EXPECT_TRUE(readTrack(";0004170000=3101?", tracks));
    EXPECT_EQ(bytesOf(tracks), presetWith(GetParam().offset, ";0004170000=3101?"));
}

TEST_P(MagneticTrack, OutsideAMagElementIsIgnored) {
    __GETTRACK tracks = preset();
    EXPECT_FALSE(readChildren(tag(GetParam().element, "7"), tracks));
    EXPECT_FALSE(readChildren(tag("chip", tag(GetParam().element, "7")), tracks));
    EXPECT_FALSE(readChildren(tag("mag", tag("front", tag(GetParam().element, "7"))), tracks));
    EXPECT_EQ(bytesOf(tracks), bytesOf(preset()));
}

// ---- Several ----

TEST(MagneticTracks, OfSeveralMagElementsTheLastThatCarriesATrackCounts) {
    __GETTRACK tracks = preset();
    EXPECT_TRUE(readChildren(
        "<mag><track1>a1</track1><track2>a2</track2></mag><mag><track2>b2</track2><track3>b3</track3></mag>"
        "<mag><track3>c3</track3></mag>",
        tracks));
    EXPECT_STREQ(tracks.track1, "a1");
    EXPECT_STREQ(tracks.track2, "b2");
    EXPECT_STREQ(tracks.track3, "c3");
}

TEST(MagneticTracks, MayComeInAnyOrderAmongUnknownElementsAndTwice) {
    __GETTRACK tracks = preset();
    EXPECT_TRUE(
        readChildren("<serial>1</serial><mag><track3>3</track3><status>ok</status><track2>2</track2><track1>1</track1>"
                     "<track2>again</track2></mag><serial>1</serial>",
                     tracks));
    EXPECT_STREQ(tracks.track1, "1");
    EXPECT_STREQ(tracks.track2, "again");
    EXPECT_STREQ(tracks.track3, "3");
}

TEST(MagneticTracks, TheResultIsThatOfTheLastKnownElement) {
    __GETTRACK tracks = preset();
    EXPECT_FALSE(readChildren("<mag><track1>1</track1><track2/></mag>", tracks));
    EXPECT_STREQ(tracks.track1, "1");
    EXPECT_TRUE(readChildren("<mag><track2/><track1>2</track1></mag>", tracks));
    EXPECT_TRUE(readChildren("<mag><track1>3</track1><status/></mag>", tracks));
    EXPECT_FALSE(readChildren("<mag><track1/><status>ok</status></mag>", tracks));
    EXPECT_FALSE(readChildren("<mag><track1>4</track1></mag><mag/>", tracks));
    EXPECT_STREQ(tracks.track1, "4");
    EXPECT_TRUE(readChildren("<mag/><mag><track1>5</track1></mag><chip/>", tracks));
}

// ---- The reply ----

TEST(MagneticTracks, TheLengthOfTheReplyIsIgnored) {
    const std::string reply = "<data><mag><track2>;0004170000=3101?</track2></mag></data>";
    for (const int length : {0, 1, -1, INT_MIN, INT_MAX}) {
        __GETTRACK tracks = preset();
        EXPECT_TRUE(KVJGetEIN().GetMagneticTracks(*reply.c_str(), length, tracks)) << length;
        EXPECT_STREQ(tracks.track2, ";0004170000=3101?");
    }
}

TEST(MagneticTracks, TheReplyEndsAtItsNul) {
    const std::string start = "<data><mag><track1>1</track1>";
    const std::string reply = start + '\0' + "<track1>2</track1></mag></data>";
    __GETTRACK tracks = preset();
    EXPECT_TRUE(KVJGetEIN().GetMagneticTracks(*reply.c_str(), static_cast<int>(reply.size()), tracks));
    EXPECT_STREQ(tracks.track1, "1");
}

// ---- Walkers ----

TEST(MagneticTracks, TheWalkersReadElementsThatTheHostHolds) {
    KVJGetEIN parser;
    __GETTRACK tracks = preset();
    Xml data("<any><mag><track1>1</track1></mag></any>");
    EXPECT_TRUE(parser.parseMag(data.root(), tracks));
    EXPECT_EQ(bytesOf(tracks), presetWith(0, "1"));
    tracks = preset();
    Xml mag("<any><track3>3</track3></any>");
    EXPECT_TRUE(parser.parseTrack(mag.root(), tracks));
    EXPECT_EQ(bytesOf(tracks), presetWith(512, "3"));
}

TEST(MagneticTracks, TheWalkersAreFalseForNoElementAndForOneWithoutChildren) {
    KVJGetEIN parser;
    __GETTRACK tracks = preset();
    Xml empty("<any>text</any>");
    for (TiXmlElement* element : {static_cast<TiXmlElement*>(nullptr), empty.root()}) {
        EXPECT_FALSE(parser.parseMag(element, tracks));
        EXPECT_FALSE(parser.parseTrack(element, tracks));
    }
    EXPECT_EQ(bytesOf(tracks), bytesOf(preset()));
}

}  // namespace

}  // namespace magnetic_tracks_test
