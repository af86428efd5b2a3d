// The lists of the capabilities: measured against the room that the host has, refused with the number that is needed,
// or filled.
#include <gtest/gtest.h>

#include <climits>
#include <cstddef>
#include <cstring>
#include <iterator>
#include <memory>
#include <ostream>
#include <string>
#include <type_traits>
#include <vector>

#include "KVJCapsParser.h"
#include "capabilities/records.h"
#include "foundation/member.h"
#include "support/xml.h"

namespace lists_test {

namespace {

using namespace kvj::tests;

// ---- Entries that are told apart by a number from 1 to 5: what the printer sends, and what of the entry it fills ----

std::string contentOf(int number, const _PortCaps*) { return element("port_id", std::to_string(number)); }
std::string contentOf(int number, const _InterfaceCaps*) { return element("port", std::to_string(number)); }
std::string contentOf(int number, const _OCPLanguageCaps*) { return element("type", std::to_string(number)); }
std::string contentOf(int number, const int*) {
    return std::vector{"bmp", "jpeg", "tga", "tiff", "raw"}.at(static_cast<std::size_t>(number) - 1);
}
std::string contentOf(int number, const _FontCaps*) { return element("name", std::to_string(number)); }
std::string contentOf(int number, const _TemplateCaps*) { return element("name", std::to_string(number)); }
std::string contentOf(int number, const _BarCodeCaps*) { return std::to_string(number); }

void fill(_PortCaps& port, int number) { port.portId = number; }
void fill(_InterfaceCaps& swInterface, int number) { swInterface.port = number; }
void fill(_OCPLanguageCaps& language, int number) { language.type = number; }
void fill(int& code, int number) { code = std::vector{1, 2, 8, 9, 10}.at(static_cast<std::size_t>(number) - 1); }
void fill(_FontCaps& font, int number) { std::strcpy(font.name, std::to_string(number).c_str()); }
void fill(_TemplateCaps& stored, int number) { std::strcpy(stored.name, std::to_string(number).c_str()); }
void fill(_BarCodeCaps& barCode, int number) { std::strcpy(barCode.name, std::to_string(number).c_str()); }

// ---- The lists ----

using Numbers = std::vector<int>;

struct ListCase {
    const char* section;
    const char* entry;
    bool (KVJCapsParser::*reader)(TiXmlElement*, _Capabilities&);
    int _Capabilities::*count;
    std::string (*contentOf)(int number);
    /// Gives the host's record an array of so many preset entries; null for none.
    std::shared_ptr<void> (*lend)(_Capabilities& caps, std::size_t size);
    /// That the first entries of the array have these numbers, and that the others are as they were. Number 0 is an
    /// entry that is as it was.
    void (*expectEntries)(const _Capabilities& caps, std::size_t size, const Numbers& numbers);
    /// Points one record to the array of the other.
    void (*lendTheSame)(_Capabilities& to, const _Capabilities& from);
};

template <auto Array>
constexpr ListCase listOf(const char* section, const char* entry,
                          bool (KVJCapsParser::*reader)(TiXmlElement*, _Capabilities&), int _Capabilities::*count) {
    using Entry = std::remove_pointer_t<kvj::ValueOf<Array>>;
    return {
        .section = section,
        .entry = entry,
        .reader = reader,
        .count = count,
        .contentOf = [](int number) { return contentOf(number, static_cast<const Entry*>(nullptr)); },
        .lend = [](_Capabilities& caps, std::size_t size) -> std::shared_ptr<void> {
            if (size == 0) {
                caps.*Array = nullptr;
                return nullptr;
            }
            const auto entries = std::make_shared<std::vector<Entry>>(size, preset<Entry>());
            caps.*Array = entries->data();
            return entries;
        },
        .expectEntries =
            [](const _Capabilities& caps, std::size_t size, const Numbers& numbers) {
                for (std::size_t i = 0; i < size; ++i) {
                    Entry expected = preset<Entry>();
                    if (i < numbers.size() && numbers[i] != 0) fill(expected, numbers[i]);
                    EXPECT_EQ(fieldsOf((caps.*Array)[i]), fieldsOf(expected)) << "entry " << i;
                }
            },
        .lendTheSame = [](_Capabilities& to, const _Capabilities& from) { to.*Array = from.*Array; },
    };
}

// clang-format off
constexpr ListCase allLists[] = {
    listOf<&_Capabilities::hostPorts>("host_ports", "host_port", &KVJCapsParser::getHostPorts, &_Capabilities::hostPortCount),
    listOf<&_Capabilities::devicePorts>("device_ports", "device_port", &KVJCapsParser::getDevicePorts, &_Capabilities::devicePortCount),
    listOf<&_Capabilities::swInterfaces>("software_interfaces", "software_interface", &KVJCapsParser::getSwInterfaces, &_Capabilities::swInterfaceCount),
    listOf<&_Capabilities::ocpLanguages>("ocp_languages", "ocp_language", &KVJCapsParser::getOCPLanguages, &_Capabilities::ocpLanguageCount),
    listOf<&_Capabilities::graphicFormats>("graphic_formats", "graphic_format", &KVJCapsParser::getGraphicFormatCaps, &_Capabilities::graphicFormatCount),
    listOf<&_Capabilities::fonts>("fonts", "font", &KVJCapsParser::getFontsCaps, &_Capabilities::fontCount),
    listOf<&_Capabilities::templates>("templates", "template", &KVJCapsParser::getTemplates, &_Capabilities::templateCount),
    listOf<&_Capabilities::graphics>("graphics", "graphic", &KVJCapsParser::getGraphics, &_Capabilities::graphicCount),
    listOf<&_Capabilities::barCodes>("barcodes", "barcode", &KVJCapsParser::getBarCodes, &_Capabilities::barCodeCount),
};
// clang-format on

constexpr const ListCase& devicePorts = allLists[1];

/// All but the device ports, of which hosts know the last one alone.
std::vector<ListCase> filledLists() {
    std::vector<ListCase> lists(std::begin(allLists), std::end(allLists));
    lists.erase(lists.begin() + (&devicePorts - allLists));
    return lists;
}

void PrintTo(const ListCase& list, std::ostream* out) { *out << list.section; }

std::string sectionOf(const testing::TestParamInfo<ListCase>& test) { return test.param.section; }

/// A host with an array of six preset entries, of which a test offers the first ones; the others show a write past
/// them.
class AnyList {
protected:
    const ListCase& list;
    _Capabilities caps = preset<_Capabilities>();

    explicit AnyList(const ListCase& which) : list(which) { lend(6); }

    void lend(std::size_t size) {
        size_ = size;
        entries_ = list.lend(caps, size);
        lent_ = caps;
    }
    void lendNone() { lend(0); }

    std::string numbered(const Numbers& numbers) {
        std::string all;
        for (const int number : numbers) all += element(list.entry, list.contentOf(number));
        return all;
    }

    /// Reads a section by itself, with these children.
    bool read(const std::string& children) {
        Xml section(element("any", children).c_str());
        return (KVJCapsParser().*list.reader)(section.root(), caps);
    }
    bool read(int capacity, const std::string& children) {
        caps.*list.count = capacity;
        return read(children);
    }

    /// Reads a whole description.
    bool readSections(int capacity, const std::vector<std::string>& childrenOfEach) {
        std::string sections;
        for (const std::string& children : childrenOfEach) sections += element(list.section, children);
        Xml root(element("capabilities", sections).c_str());
        caps.*list.count = capacity;
        return KVJCapsParser().parseCapabilities(root.root(), caps);
    }

    /// The first entries have these numbers and the list this count; nothing else was written.
    void expect(int count, const Numbers& numbers) {
        list.expectEntries(caps, size_, numbers);
        _Capabilities expected = preset<_Capabilities>();
        list.lendTheSame(expected, lent_);
        expected.*list.count = count;
        EXPECT_EQ(fieldsOf(caps), fieldsOf(expected));
    }

private:
    std::size_t size_{};
    std::shared_ptr<void> entries_;
    _Capabilities lent_;  ///< as it was when the array was lent
};

// ---- All lists ----

class CapabilityList : public testing::TestWithParam<ListCase>, public AnyList {
protected:
    CapabilityList() : AnyList(GetParam()) {}
};
INSTANTIATE_TEST_SUITE_P(, CapabilityList, testing::ValuesIn(allLists), sectionOf);

TEST_P(CapabilityList, WithoutASectionItIsFalseAndUntouched) {
    for (const int count : {2, 0, -1, INT_MIN}) {
        caps.*list.count = count;
        EXPECT_FALSE((KVJCapsParser().*list.reader)(nullptr, caps)) << count;
        expect(count, {});
    }
}

TEST_P(CapabilityList, MoreThanThereIsRoomForIsRefusedWithTheNumberNeededAndTrue) {
    EXPECT_TRUE(read(2, numbered({1, 2, 3})));
    expect(3, {});
}

TEST_P(CapabilityList, WithoutRoomTheNumberNeededIsAnswered) {
    EXPECT_TRUE(read(0, numbered({1})));
    expect(1, {});
}

TEST_P(CapabilityList, AForeignChildCountsWhenTheRoomIsMeasured) {
    EXPECT_TRUE(read(2, numbered({1, 2}) + "<revision>1</revision>"));
    expect(3, {});
}

TEST_P(CapabilityList, ForeignChildrenAloneAreCountedAndRefused) {
    EXPECT_TRUE(read(1, "<revision>1</revision><note/>"));
    expect(2, {});
}

TEST_P(CapabilityList, ForeignChildrenAloneForWhichThereIsRoomAreFalse) {
    EXPECT_FALSE(read(2, "<revision>1</revision><note/>"));
    expect(2, {});
}

TEST_P(CapabilityList, OnlyTheSectionsOwnElementsAreCounted) {
    EXPECT_TRUE(read(0, "text<!-- <note/> -->" + numbered({1}) + "<note><note/></note><![CDATA[<note/>]]>"));
    expect(2, {});
}

TEST_P(CapabilityList, AnEmptySectionIsFalseAndKeepsTheCount) {
    for (const char* content : {"", "text", "<!-- none -->"}) {
        EXPECT_FALSE(read(0, content)) << content;
        expect(0, {});
        EXPECT_FALSE(read(5, content)) << content;
        expect(5, {});
    }
}

TEST_P(CapabilityList, ANegativeCountIsNoRoom) {
    for (const int count : {-1, INT_MIN}) {
        EXPECT_TRUE(read(count, numbered({1, 2})));
        expect(2, {});
    }
}

TEST_P(CapabilityList, ANegativeCountIsLessThanNoneNeeded) {
    for (const int count : {-1, INT_MIN}) {
        EXPECT_TRUE(read(count, ""));
        expect(0, {});
    }
    lendNone();
    EXPECT_TRUE(read(-1, ""));
    expect(0, {});
}

TEST_P(CapabilityList, ANullArrayHasRoomForNothing) {
    for (const int count : {-1, 0, 1, 2, 5, INT_MAX}) {
        lendNone();
        EXPECT_TRUE(read(count, numbered({1, 2}))) << count;
        expect(2, {});
    }
}

TEST_P(CapabilityList, ANullArrayIsEnoughForAnEmptySection) {
    for (const int count : {0, 5}) {
        lendNone();
        EXPECT_FALSE(read(count, ""));
        expect(count, {});
    }
}

TEST_P(CapabilityList, NamesOfEntriesAreComparedExactly) {
    std::string upper = list.entry;
    upper[0] = static_cast<char>(upper[0] - 'a' + 'A');
    const std::string longer = std::string(list.entry) + "x";
    for (const std::string& name : {upper, longer, std::string(list.section)}) {
        EXPECT_FALSE(read(1, element(name, "<port_id>1</port_id><name>1</name><port>1</port><type>1</type>")));
        expect(1, {});
    }
}

TEST_P(CapabilityList, OneEntryIsFilledAndTheCountKept) {
    EXPECT_TRUE(read(1, numbered({3})));
    expect(1, {3});
}

TEST_P(CapabilityList, TheResultIsThatOfTheLastEntry) {
    const std::string empty = element(list.entry, "");
    EXPECT_TRUE(read(6, empty + numbered({1})));
    EXPECT_FALSE(read(6, numbered({1}) + empty));
}

TEST_P(CapabilityList, AForeignChildBehindTheLastEntryHasNoSayInTheResult) {
    EXPECT_TRUE(read(6, numbered({1}) + "<note/>"));
    EXPECT_FALSE(read(6, element(list.entry, "") + "<note>1</note>"));
}

TEST_P(CapabilityList, ARefusedSectionCountsAsReadInTheWholeDescription) {
    EXPECT_TRUE(readSections(0, {numbered({1, 2})}));
    expect(2, {});
}

TEST_P(CapabilityList, ASecondSectionIsNotMeasuredAgainstTheNumberAnsweredForTheFirst) {
    EXPECT_TRUE(readSections(2, {numbered({1, 2, 3}), numbered({3, 4, 5})}));
    expect(3, {});
}

TEST_P(CapabilityList, OfRefusedSectionsTheLargestSaysTheNumberNeeded) {
    const std::string three = numbered({1, 2, 3});
    const std::string four = numbered({1, 2, 3, 4});
    const std::string five = numbered({1, 2, 3, 4, 5});
    for (const auto& sections : {std::vector{five, three}, {three, five}, {five, four, three}, {three, five, four}}) {
        EXPECT_TRUE(readSections(2, sections));
        expect(5, {});
    }
}

TEST_P(CapabilityList, OfSectionsWithoutAnArrayTheLargestSaysTheNumberNeededWhateverCountIsPassed) {
    for (const int count : {INT_MIN, -1, 0, 1, 2, 3, INT_MAX}) {
        lendNone();
        EXPECT_TRUE(readSections(count, {numbered({1, 2}), numbered({1})}));
        expect(2, {});
    }
}

TEST_P(CapabilityList, TheNumberAnsweredForSectionsOfAnySizeIsEnoughForTheSecondCall) {
    const std::vector sections{numbered({1, 2, 3, 4, 5}), numbered({1, 2, 3})};
    EXPECT_TRUE(readSections(0, sections));
    const int needed = caps.*list.count;
    lend(static_cast<std::size_t>(needed));
    EXPECT_TRUE(readSections(needed, sections));
    EXPECT_EQ(caps.*list.count, needed);
}

TEST_P(CapabilityList, ASecondSectionWithoutEntriesIsMeasuredAgainstTheCapacityAsWell) {
    EXPECT_FALSE(readSections(0, {numbered({1, 2}), ""}));
    expect(2, {});
}

// ---- Lists whose entries are filled one after the other: all but the device ports ----

class FilledList : public CapabilityList {};
INSTANTIATE_TEST_SUITE_P(, FilledList, testing::ValuesIn(filledLists()), sectionOf);

TEST_P(FilledList, AsManyAsThereIsRoomForAreAllFilled) {
    EXPECT_TRUE(read(3, numbered({3, 1, 2})));
    expect(3, {3, 1, 2});
}

TEST_P(FilledList, WithMoreRoomTheCountStaysTheCapacity) {
    EXPECT_TRUE(read(5, numbered({1, 2, 3})));
    expect(5, {1, 2, 3});
}

TEST_P(FilledList, TheLargestCountIsNoReasonToWriteMore) {
    EXPECT_TRUE(read(INT_MAX, numbered({1, 2})));
    expect(INT_MAX, {1, 2});
}

TEST_P(FilledList, ForeignChildrenUseUpNoEntry) {
    EXPECT_TRUE(read(5, "<note/>" + numbered({1}) + "text<revision>1</revision>" + numbered({2, 3})));
    expect(5, {1, 2, 3});
}

TEST_P(FilledList, AnEmptyEntryUsesUpItsPlaceAndLeavesIt) {
    EXPECT_TRUE(read(3, numbered({1}) + element(list.entry, "") + numbered({3})));
    expect(3, {1, 0, 3});
}

TEST_P(FilledList, TheNumberAnsweredIsEnoughForTheSecondCall) {
    const std::string children = numbered({1}) + "<note/>" + numbered({2});
    lendNone();
    EXPECT_TRUE(read(0, children));
    expect(3, {});
    lend(3);  // exactly, so that writing more would be writing beyond the array
    EXPECT_TRUE(read(children));
    expect(3, {1, 2, 0});
}

TEST_P(FilledList, ASectionThatStandsTwiceIsReadTwiceFromTheFirstEntryOn) {
    EXPECT_TRUE(readSections(4, {numbered({1, 2, 3}), numbered({4, 5})}));
    expect(4, {4, 5, 3});
}

TEST_P(FilledList, ASecondSectionForWhichThereIsRoomIsFilledAfterARefusedOne) {
    EXPECT_TRUE(readSections(2, {numbered({1, 2, 3}), numbered({4, 5})}));
    expect(3, {4, 5});
}

TEST_P(FilledList, ASecondSectionThatIsRefusedLeavesTheEntriesOfTheFirst) {
    EXPECT_TRUE(readSections(2, {numbered({1, 2}), numbered({3, 4, 5})}));
    expect(3, {1, 2});
}

TEST_P(FilledList, AListOfAnyLengthIsFilled) {
    std::vector<int> numbers;
    for (int i = 0; i < 300; ++i) numbers.push_back(i % 5 + 1);
    lend(300);
    EXPECT_TRUE(read(300, numbered(numbers)));
    expect(300, numbers);
}

// ---- Device ports: hosts know a printer by its last one ----

class DevicePortList : public testing::Test, public AnyList {
protected:
    DevicePortList() : AnyList(devicePorts) {}
};

TEST_F(DevicePortList, AllGoToTheFirstEntryAndTheLastOneStays) {
    EXPECT_TRUE(read(2, numbered({1, 2})));
    expect(2, {2});
    EXPECT_TRUE(read(6, numbered({1, 2, 3})));
    expect(6, {3});
}

TEST_F(DevicePortList, WhatTheLastPortDoesNotSayStaysThatOfTheOneBefore) {
    EXPECT_TRUE(read(2, "<device_port><port_id>1</port_id><type>serial</type></device_port>" + numbered({2})));
    EXPECT_EQ(fieldsOf(caps.devicePorts[0]), fieldsOf(_PortCaps{2, 1}));
    caps.devicePorts[0] = preset<_PortCaps>();
    expect(2, {});
}

TEST_F(DevicePortList, TheyNeedRoomForAllOfThemAllTheSame) {
    EXPECT_TRUE(read(1, numbered({1, 2})));
    expect(2, {});
}

TEST_F(DevicePortList, AnEmptyPortLeavesTheOneBeforeAndIsFalse) {
    EXPECT_FALSE(read(2, numbered({1}) + "<device_port/>"));
    expect(2, {1});
}

TEST_F(DevicePortList, ASecondSectionGoesToTheFirstEntryAsWell) {
    EXPECT_TRUE(readSections(2, {numbered({1, 2}), numbered({3})}));
    expect(2, {3});
}

TEST_F(DevicePortList, ASecondSectionForWhichThereIsRoomIsReadAfterARefusedOne) {
    EXPECT_TRUE(readSections(2, {numbered({1, 2, 3}), numbered({4, 5})}));
    expect(3, {5});
}

}  // namespace

}  // namespace lists_test
