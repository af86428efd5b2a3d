// The reply "AccessPoints": the call that asks for the number of entries, the call that fills them, and every field.
#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "KVJStatusParser.h"
#include "fields/status.h"
#include "support/records.h"
#include "support/xml.h"

namespace access_points_test {

namespace {

using Kavrin::_tagAccessPoint;
using Kavrin::_tagAccessPoints;
using Kavrin::KVJStatusParser;
using kvj::tests::expectEqual;
using kvj::tests::wide;
using kvj::tests::Xml;

/// An entry with a value in every field that no test writes; the codes have bits that no word has.
_tagAccessPoint preset() { return {"preset", {9, 8, 7, 6, 5, 4}, true, -1, -2, -3, true, 0x100, 0x200, -4}; }

using Entries = std::vector<_tagAccessPoint>;

std::string element(const std::string& name, const std::string& content) {
    return "<" + name + ">" + content + "</" + name + ">";
}

/// An access point of which only the channel is known.
std::string onChannel(int channel) { return element("AccessPoint", element("Channel", std::to_string(channel))); }

_tagAccessPoint presetOnChannel(int channel) {
    _tagAccessPoint entry = preset();
    entry.Channel = channel;
    return entry;
}

bool read(const std::string& reply, _tagAccessPoints& list) {
    const std::wstring text = wide(reply);
    return KVJStatusParser().ParseAccessPoints(*text.c_str(), static_cast<int>(text.size()), list);
}

/// Reads a reply with these children of its root into a host's array, which is as long as the reply needs or longer.
bool readInto(Entries& entries, const std::string& children, unsigned int& count) {
    _tagAccessPoints list{entries.data(), static_cast<unsigned int>(entries.size())};
    const bool result = read(element("AccessPoints", children), list);
    EXPECT_EQ(list.accessPoints, entries.data());
    count = list.count;
    return result;
}

/// Reads a reply of one access point with these children.
bool readOne(const std::string& children, _tagAccessPoint& entry) {
    _tagAccessPoints list{&entry, 0};
    return read(element("AccessPoints", element("AccessPoint", children)), list);
}

// ---- The number of entries ----

TEST(AccessPoints, TheFirstCallCountsEveryElementAndIsTrue) {
    const std::pair<std::string, unsigned int> replies[] = {
        {onChannel(1), 1},
        {onChannel(1) + onChannel(2) + onChannel(3) + "<scan_time>5</scan_time>", 4},
        {"<scan_time>5</scan_time>", 1},
        {"<AccessPoint/><AccessPoint/>", 2},
        {"<AccessPoint><Channel/></AccessPoint>", 1},
        {"text" + onChannel(1) + "<!-- comment -->text" + onChannel(2), 2}};
    for (const auto& [children, count] : replies) {
        _tagAccessPoints list{nullptr, 101};
        EXPECT_TRUE(read(element("AccessPoints", children), list)) << children;
        EXPECT_EQ(list.count, count) << children;
        EXPECT_EQ(list.accessPoints, nullptr);
    }
}

TEST(AccessPoints, WithoutElementsTheFirstCallCountsNoneAndIsTrue) {
    for (const char* reply :
         {"<AccessPoints/>", "<AccessPoints></AccessPoints>", "<AccessPoints>text</AccessPoints>"}) {
        _tagAccessPoints list{nullptr, 101};
        EXPECT_TRUE(read(reply, list)) << reply;
        EXPECT_EQ(list.count, 0U) << reply;
    }
}

TEST(AccessPoints, WithoutElementsTheSecondCallCountsNoneAndIsFalse) {
    for (const char* reply :
         {"<AccessPoints/>", "<AccessPoints></AccessPoints>", "<AccessPoints>text</AccessPoints>"}) {
        _tagAccessPoint guard = preset();
        _tagAccessPoints list{&guard, 101};
        EXPECT_FALSE(read(reply, list)) << reply;
        EXPECT_EQ(list.count, 0U) << reply;
        expectEqual(guard, preset());
    }
}

TEST(AccessPoints, TwoCallsFillAsManyEntriesAsThereAreAccessPoints) {
    const std::string reply =
        element("AccessPoints", onChannel(1) + "<scan_time>5</scan_time>" + onChannel(2) + onChannel(3));
    _tagAccessPoints list{nullptr, 0};
    EXPECT_TRUE(read(reply, list));
    ASSERT_EQ(list.count, 4U);
    // Exactly the room that the first call asked for, so that writing more would be writing beyond the array.
    Entries entries(list.count, preset());
    list.accessPoints = entries.data();
    EXPECT_TRUE(read(reply, list));
    EXPECT_EQ(list.count, 4U);
    expectEqual(entries, {presetOnChannel(1), presetOnChannel(2), presetOnChannel(3), preset()});
}

TEST(AccessPoints, EntriesBehindThoseOfTheReplyAreLeftAlone) {
    Entries entries(5, preset());
    unsigned int count = 0;
    EXPECT_TRUE(readInto(entries, onChannel(1) + onChannel(2), count));
    EXPECT_EQ(count, 2U);
    expectEqual(entries, {presetOnChannel(1), presetOnChannel(2), preset(), preset(), preset()});
}

TEST(AccessPoints, AnArrayWithoutACountOrWithEnoughIsFilledAndTheCountThatOfTheReply) {
    for (const unsigned int before : {0U, 3U, 4U, 1000U, UINT_MAX}) {
        Entries entries(4, preset());
        _tagAccessPoints list{entries.data(), before};
        EXPECT_TRUE(read(element("AccessPoints", onChannel(1) + onChannel(2) + onChannel(3)), list));
        EXPECT_EQ(list.count, 3U);
        expectEqual(entries, {presetOnChannel(1), presetOnChannel(2), presetOnChannel(3), preset()});
    }
}

TEST(AccessPoints, OfMoreThanTheCountSoManyAreFilledAndItStays) {
    const std::string reply =
        element("AccessPoints", onChannel(1) + "<scan_time>5</scan_time>" + onChannel(2) + onChannel(3));
    for (const unsigned int capacity : {1U, 2U, 3U}) {
        Entries entries(4, preset());
        Entries expected = entries;
        for (unsigned int i = 0; i < capacity; ++i) expected[i] = presetOnChannel(static_cast<int>(i) + 1);
        _tagAccessPoints list{entries.data(), capacity};
        EXPECT_TRUE(read(reply, list));
        EXPECT_EQ(list.count, capacity);
        expectEqual(entries, expected);
    }
}

TEST(AccessPoints, AReplyThatHasGrownSinceItWasCountedStaysInTheArray) {
    _tagAccessPoints list{nullptr, 0};
    EXPECT_TRUE(read(element("AccessPoints", onChannel(1) + onChannel(2) + onChannel(3)), list));
    ASSERT_EQ(list.count, 3U);
    Entries entries(4, preset());  // One more than the host says, to see a write past it.
    list.accessPoints = entries.data();
    EXPECT_TRUE(read(element("AccessPoints", onChannel(1) + onChannel(2) + onChannel(3) + onChannel(4)), list));
    EXPECT_EQ(list.count, 3U);
    expectEqual(entries, {presetOnChannel(1), presetOnChannel(2), presetOnChannel(3), preset()});
}

TEST(AccessPoints, TheResultIsThatOfTheLastOneThatHadRoom) {
    Entries entries(1, preset());
    _tagAccessPoints list{entries.data(), 1};
    EXPECT_TRUE(read(element("AccessPoints", onChannel(1) + "<AccessPoint/>"), list));
    EXPECT_FALSE(read(element("AccessPoints", "<AccessPoint/>" + onChannel(1)), list));
    EXPECT_FALSE(read(element("AccessPoints", "<scan_time/><scan_time/>"), list));
    EXPECT_EQ(list.count, 1U);
}

TEST(AccessPoints, OtherElementsCountButUseUpNoEntry) {
    Entries entries(4, preset());
    unsigned int count = 0;
    EXPECT_TRUE(readInto(
        entries,
        "<scan_time>5</scan_time>" + onChannel(1) + "<accesspoint><Channel>9</Channel></accesspoint>" + onChannel(2),
        count));
    EXPECT_EQ(count, 4U);
    expectEqual(entries, {presetOnChannel(1), presetOnChannel(2), preset(), preset()});
}

TEST(AccessPoints, OtherElementsAloneAreCountedAndFalse) {
    Entries entries(2, preset());
    unsigned int count = 0;
    EXPECT_FALSE(readInto(entries, "<scan_time>5</scan_time><Channel>9</Channel>", count));
    EXPECT_EQ(count, 2U);
    expectEqual(entries, {preset(), preset()});
}

TEST(AccessPoints, AnEmptyAccessPointTakesAnEntryAndLeavesIt) {
    Entries entries(3, preset());
    unsigned int count = 0;
    EXPECT_TRUE(readInto(entries, "<AccessPoint/>" + onChannel(2), count));
    EXPECT_EQ(count, 2U);
    expectEqual(entries, {preset(), presetOnChannel(2), preset()});
}

TEST(AccessPoints, AReplyOfManyAccessPointsFillsThemAll) {
    constexpr int many = 300;
    std::string children;
    Entries expected;
    for (int i = 0; i < many; ++i) {
        children += onChannel(i);
        expected.push_back(presetOnChannel(i));
    }
    Entries entries(many, preset());
    unsigned int count = 0;
    EXPECT_TRUE(readInto(entries, children, count));
    EXPECT_EQ(count, 300U);
    expectEqual(entries, expected);
}

TEST(AccessPoints, TheResultIsThatOfTheLastAccessPoint) {
    Entries entries(3, preset());
    unsigned int count = 0;
    EXPECT_FALSE(readInto(entries, onChannel(1) + "<AccessPoint/>", count));
    EXPECT_FALSE(
        readInto(entries, onChannel(1) + "<AccessPoint><Channel/></AccessPoint><scan_time>5</scan_time>", count));
    EXPECT_TRUE(readInto(entries, "<AccessPoint/>" + onChannel(2), count));
    EXPECT_TRUE(readInto(entries, onChannel(1) + "<scan_time/>", count));
}

TEST(AccessPoints, WithoutTheRootTheListIsLeftAndTheResultFalse) {
    for (const std::string& reply :
         {std::string(), std::string("text"), onChannel(1), element("accesspoints", onChannel(1)),
          element("AccessPoint", onChannel(1)), element("reply", element("AccessPoints", onChannel(1)))}) {
        _tagAccessPoints sizing{nullptr, 101};
        EXPECT_FALSE(read(reply, sizing)) << reply;
        EXPECT_EQ(sizing.count, 101U) << reply;
        _tagAccessPoint entry = preset();
        _tagAccessPoints filling{&entry, 101};
        EXPECT_FALSE(read(reply, filling)) << reply;
        EXPECT_EQ(filling.count, 101U) << reply;
        expectEqual(entry, preset());
    }
}

TEST(AccessPoints, ASecondReadingIntoTheSameArrayCombinesTheCodes) {
    Entries entries(1, preset());
    unsigned int count = 0;
    EXPECT_TRUE(
        readInto(entries, "<AccessPoint><Security>WPA</Security><Encryption>RC4</Encryption></AccessPoint>", count));
    EXPECT_TRUE(
        readInto(entries, "<AccessPoint><Security>WPA2</Security><Encryption>TKIP</Encryption></AccessPoint>", count));
    _tagAccessPoint expected = preset();
    expected.Security = 0x107;
    expected.Encryption = 0x203;
    expectEqual(entries, {expected});
}

// ---- The fields of an access point ----

TEST(AccessPoint, FillsEveryFieldFromOneReply) {
    _tagAccessPoint entry = preset();
    entry.Security = 0;
    entry.Encryption = 0;
    EXPECT_TRUE(
        readOne("<SSID>cards</SSID><BSSID>00:1a:2B:3c:4d:5e</BSSID><Selected>false</Selected><Channel>6</Channel>"
                "<Privacy>1</Privacy><SignalStrength>-58</SignalStrength><Infrastructure>false</Infrastructure>"
                "<Security>WPA_WPA2</Security><Encryption>TKIP_CCMP</Encryption><MaxDataRate>54</MaxDataRate>",
                entry));
    expectEqual(entry, {"cards", {0x00, 0x1A, 0x2B, 0x3C, 0x4D, 0x5E}, false, 6, 1, -58, false, 5, 4, 54});
}

TEST(AccessPoint, ReadsItsElementsInAnyOrder) {
    _tagAccessPoint entry{};
    EXPECT_TRUE(
        readOne("<MaxDataRate>11</MaxDataRate><Infrastructure>true</Infrastructure><SignalStrength>-1</SignalStrength>"
                "<BSSID>ff:00:ff:00:ff:00</BSSID><Selected>true</Selected><SSID>x</SSID>",
                entry));
    expectEqual(entry, {"x", {0xFF, 0, 0xFF, 0, 0xFF, 0}, true, 0, 0, -1, true, 0, 0, 11});
}

TEST(AccessPoint, WithoutKnownElementsEveryFieldIsLeftAndTheResultFalse) {
    _tagAccessPoint entry = preset();
    for (const char* children :
         {"", "text", "<serial>1</serial>", "<ssid>x</ssid><channel>1</channel><selected>false</selected>",
          "<point><Channel>1</Channel></point>"}) {
        EXPECT_FALSE(readOne(children, entry)) << children;
    }
    expectEqual(entry, preset());
}

TEST(AccessPoint, AnElementWithoutTextIsFalseAndKeepsItsField) {
    for (const char* name : {"SSID", "BSSID", "Selected", "Channel", "Privacy", "SignalStrength", "Infrastructure",
                             "Security", "Encryption", "MaxDataRate"}) {
        _tagAccessPoint entry = preset();
        EXPECT_FALSE(readOne(element(name, ""), entry)) << name;
        expectEqual(entry, preset());
    }
}

TEST(AccessPoint, EachNumberIsDecimalAndFillsItsOwnField) {
    const std::pair<const char*, int _tagAccessPoint::*> numbers[] = {
        {"Channel", &_tagAccessPoint::Channel},
        {"Privacy", &_tagAccessPoint::Privacy},
        {"SignalStrength", &_tagAccessPoint::SignalStrength},
        {"MaxDataRate", &_tagAccessPoint::MaxDataRate}};
    for (const auto& [name, field] : numbers) {
        _tagAccessPoint entry = preset();
        _tagAccessPoint expected = preset();
        EXPECT_TRUE(readOne(element(name, "-70000"), entry)) << name;
        expected.*field = -70000;
        expectEqual(entry, expected);
        EXPECT_TRUE(readOne(element(name, "0x1f"), entry)) << name;
        expected.*field = 0;
        expectEqual(entry, expected);
    }
}

TEST(AccessPoint, AFlagIsTrueForExactlyTrue) {
    const std::pair<const char*, bool _tagAccessPoint::*> flags[] = {
        {"Selected", &_tagAccessPoint::Selected}, {"Infrastructure", &_tagAccessPoint::Infrastructure}};
    for (const auto& [name, field] : flags) {
        for (const std::string& text : {std::string("TRUE"), std::string("True"), std::string("false"),
                                        std::string("yes"), std::string("enabled"), std::string("1"),
                                        std::string("true."), std::string("tru"), std::string(100000, 't')}) {
            _tagAccessPoint entry = preset();
            EXPECT_TRUE(readOne(element(name, text), entry)) << name << ' ' << text;
            _tagAccessPoint expected = preset();
            expected.*field = false;
            expectEqual(entry, expected);
        }
        _tagAccessPoint entry = preset();
        entry.*field = false;
        EXPECT_TRUE(readOne(element(name, "true"), entry)) << name;
        expectEqual(entry, preset());
    }
}

TEST(AccessPoint, BytesThatAHardwareAddressDoesNotGiveAre0) {
    const std::pair<const char*, std::vector<unsigned char>> texts[] = {
        {"00:1A:2b:3C:4D:5E", {0x00, 0x1A, 0x2B, 0x3C, 0x4D, 0x5E}},
        {"a:b:c:d:e:f", {0x0A, 0x0B, 0x0C, 0x0D, 0x0E, 0x0F}},
        {"01:02:03", {1, 2, 3, 0, 0, 0}},
        {"01:02:03:04:05:06:07", {1, 2, 3, 4, 5, 6}},
        {"11-22-33-44-55-66", {0x11, 0, 0, 0, 0, 0}},
        {"unknown", {0, 0, 0, 0, 0, 0}}};
    for (const auto& [text, bytes] : texts) {
        _tagAccessPoint entry = preset();
        EXPECT_TRUE(readOne(element("BSSID", text), entry)) << text;
        _tagAccessPoint expected = preset();
        std::memcpy(expected.BSSID, bytes.data(), bytes.size());
        expectEqual(entry, expected);
    }
}

TEST(AccessPoint, AnUnknownSecurityOrCipherAddsNothingAndIsTrue) {
    _tagAccessPoint entry = preset();
    EXPECT_TRUE(readOne("<Security>Wpa2</Security>", entry));
    EXPECT_TRUE(readOne("<Encryption>tkip_CCMP</Encryption>", entry));
    expectEqual(entry, preset());
}

// ---- Walkers ----

TEST(AccessPointWalkers, ReadElementsThatTheHostHolds) {
    KVJStatusParser parser;
    Xml reply(
        "<any><AccessPoint><Channel>1</Channel></AccessPoint><AccessPoint><Channel>2</Channel></AccessPoint>"
        "</any>");
    _tagAccessPoints list{nullptr, 101};
    EXPECT_TRUE(parser.parseAllWirelessAccessPoint(reply.root(), list));
    EXPECT_EQ(list.count, 2U);
    Entries entries(3, preset());
    list.accessPoints = entries.data();
    EXPECT_TRUE(parser.parseAllWirelessAccessPoint(reply.root(), list));
    Xml point("<any><Channel>3</Channel></any>");
    EXPECT_TRUE(parser.parseWirelessAccessPoints(point.root(), entries[2]));
    expectEqual(entries, {presetOnChannel(1), presetOnChannel(2), presetOnChannel(3)});
}

TEST(AccessPointWalkers, AreFalseForNoElementAndLeaveTheList) {
    KVJStatusParser parser;
    _tagAccessPoint entry = preset();
    EXPECT_FALSE(parser.parseWirelessAccessPoints(nullptr, entry));
    for (_tagAccessPoint* array : {static_cast<_tagAccessPoint*>(nullptr), &entry}) {
        _tagAccessPoints list{array, 101};
        EXPECT_FALSE(parser.parseAllWirelessAccessPoint(nullptr, list));
        EXPECT_EQ(list.count, 101U);
    }
    expectEqual(entry, preset());
}

TEST(AccessPointWalkers, AnElementWithoutChildrenIsTrueOnlyWhenAskedForTheSize) {
    KVJStatusParser parser;
    _tagAccessPoint entry = preset();
    Xml empty("<any>text</any>");
    EXPECT_FALSE(parser.parseWirelessAccessPoints(empty.root(), entry));
    _tagAccessPoints sizing{nullptr, 101};
    EXPECT_TRUE(parser.parseAllWirelessAccessPoint(empty.root(), sizing));
    EXPECT_EQ(sizing.count, 0U);
    _tagAccessPoints filling{&entry, 101};
    EXPECT_FALSE(parser.parseAllWirelessAccessPoint(empty.root(), filling));
    EXPECT_EQ(filling.count, 0U);
    expectEqual(entry, preset());
}

}  // namespace

}  // namespace access_points_test
