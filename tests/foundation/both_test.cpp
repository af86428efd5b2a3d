// A table that an element is read with and written by.
#include "foundation/both.h"

#include <gtest/gtest.h>

#include <string>

#include "support/xml.h"

namespace both_test {

namespace both = kvj::both;
using kvj::Kind;
using kvj::tests::written;
using kvj::tests::Xml;

namespace {

struct Inner {
    Kavrin::_MinMaxVal speed;
};

struct Record {
    int number = 77;
    char text[8] = "before";
    int state = 77;
    int levels = 0;
    bool flag = false;
    Inner inner{};
};

constexpr kvj::WordTable states{-1, {{"idle", 1}, {"printing", 2}}};
constexpr kvj::WordTable levels({{"low", 0x2}, {"high", 0x1}});

constexpr auto inner = kvj::bothWays<Inner>({
    {"speed", both::setting<&Inner::speed>},
});
constexpr auto more = kvj::bothWays<Record>({
    {"flag", both::yesOrNo<&Record::flag>},
});
constexpr auto table = kvj::bothWays<Record>({
    {"number", both::number<&Record::number>},
    {"text", both::text<&Record::text>},
    {"state", both::word<&Record::state, states, "none">},
    {"level", both::bits<&Record::levels, levels>},
    {"inner", both::part<&Record::inner, inner>},
    {"more", both::group<more>},
});

constexpr const char* document =
    "<r><number>-5</number><text>abc</text><state>printing</state><level>low</level><level>high</level>"
    "<inner><speed min=\"1\" max=\"9\">5</speed></inner><more><flag>yes</flag></more></r>";

Record recordIn(const std::string& xml) {
    Xml read(xml.c_str());
    Record record;
    EXPECT_TRUE(kvj::walk(read.root(), record, table));
    return record;
}

std::string writtenOf(const Record& record) {
    TiXmlElement root("r");
    EXPECT_TRUE(kvj::compose(&root, record, table));
    return written(root);
}

TEST(Both, IsReadLikeAnyTable) {
    const Record record = recordIn(document);
    EXPECT_EQ(record.number, -5);
    EXPECT_STREQ(record.text, "abc");
    EXPECT_EQ(record.state, 2);
    EXPECT_EQ(record.levels, 0x3);
    EXPECT_EQ(record.inner.speed.min, 1);
    EXPECT_EQ(record.inner.speed.max, 9);
    EXPECT_EQ(record.inner.speed.value, 5);
    EXPECT_TRUE(record.flag);
}

TEST(Both, IsWrittenInTheOrderOfTheTable) {
    Record record{12, "x", 1, 0x1, false, {{-3, 3, 0}}};
    EXPECT_EQ(writtenOf(record),
              "<r><number>12</number><text>x</text><state>idle</state><level>high</level>"
              "<inner><speed min=\"-3\" max=\"3\">0</speed></inner><more><flag>no</flag></more></r>");
}

TEST(Both, WhatIsReadIsWrittenAgain) { EXPECT_EQ(writtenOf(recordIn(document)), document); }

TEST(Both, ACodeWithoutAWordIsWrittenAsTheOtherWord) {
    Record record = recordIn(document);
    record.state = 5;
    EXPECT_NE(writtenOf(record).find("<state>none</state>"), std::string::npos);
}

TEST(Both, SaysOfItselfWhatEachDirectionDoes) {
    const auto& read = kvj::described<table>;
    const auto& put = kvj::describedWritten<table>;
    ASSERT_EQ(read.size(), 6U);
    ASSERT_EQ(put.size(), 6U);
    EXPECT_EQ(read[2].description.otherWord, "");
    EXPECT_EQ(put[2].description.otherWord, "none");
    EXPECT_EQ(read[5].description.group[0].description.kind, Kind::flag);
    EXPECT_EQ(put[5].description.group[0].description.kind, Kind::either);
    EXPECT_EQ(put[4].description.group[0].name, "speed");
}

}  // namespace

}  // namespace both_test
