// The lists of the capabilities: measured against the room that the host has, refused with the number that is needed,
// or filled.
#include <gtest/gtest.h>

#include <climits>
#include <cstddef>
#include <cstring>
#include <string>
#include <type_traits>
#include <vector>

#include "KVJCapsParser.h"
#include "capabilities/records.h"
#include "foundation/member.h"
#include "support/xml.h"

namespace {

using namespace kvjxml::tests;

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

template <auto Count, auto Array, auto Reader>
struct ListOf {
    using Entry = std::remove_pointer_t<kvjxml::ValueOf<Array>>;
    static constexpr auto count = Count;
    static constexpr auto array = Array;
    static constexpr auto reader = Reader;
};

struct HostPorts : ListOf<&_Capabilities::hostPortCount, &_Capabilities::hostPorts, &KVJCapsParser::getHostPorts> {
    static constexpr const char* section = "host_ports";
    static constexpr const char* entry = "host_port";
};
struct DevicePorts
    : ListOf<&_Capabilities::devicePortCount, &_Capabilities::devicePorts, &KVJCapsParser::getDevicePorts> {
    static constexpr const char* section = "device_ports";
    static constexpr const char* entry = "device_port";
};
struct SwInterfaces
    : ListOf<&_Capabilities::swInterfaceCount, &_Capabilities::swInterfaces, &KVJCapsParser::getSwInterfaces> {
    static constexpr const char* section = "software_interfaces";
    static constexpr const char* entry = "software_interface";
};
struct OcpLanguages
    : ListOf<&_Capabilities::ocpLanguageCount, &_Capabilities::ocpLanguages, &KVJCapsParser::getOCPLanguages> {
    static constexpr const char* section = "ocp_languages";
    static constexpr const char* entry = "ocp_language";
};
struct GraphicFormats
    : ListOf<&_Capabilities::graphicFormatCount, &_Capabilities::graphicFormats, &KVJCapsParser::getGraphicFormatCaps> {
    static constexpr const char* section = "graphic_formats";
    static constexpr const char* entry = "graphic_format";
};
struct Fonts : ListOf<&_Capabilities::fontCount, &_Capabilities::fonts, &KVJCapsParser::getFontsCaps> {
    static constexpr const char* section = "fonts";
    static constexpr const char* entry = "font";
};
struct Templates : ListOf<&_Capabilities::templateCount, &_Capabilities::templates, &KVJCapsParser::getTemplates> {
    static constexpr const char* section = "templates";
    static constexpr const char* entry = "template";
};
struct Graphics : ListOf<&_Capabilities::graphicCount, &_Capabilities::graphics, &KVJCapsParser::getGraphics> {
    static constexpr const char* section = "graphics";
    static constexpr const char* entry = "graphic";
};
struct BarCodes : ListOf<&_Capabilities::barCodeCount, &_Capabilities::barCodes, &KVJCapsParser::getBarCodes> {
    static constexpr const char* section = "barcodes";
    static constexpr const char* entry = "barcode";
};

struct SectionName {
    template <class List>
    static std::string GetName(int /*index*/) {
        return List::section;
    }
};

/// A host with an array of six preset entries, of which a test offers the first ones; the others show a write past
/// them.
template <class List>
class AnyList : public testing::Test {
protected:
    using Entry = typename List::Entry;
    using Numbers = std::vector<int>;

    std::vector<Entry> entries;
    _Capabilities caps = preset<_Capabilities>();

    AnyList() { lend(6); }

    void lend(std::size_t size) {
        entries = std::vector<Entry>(size, preset<Entry>());
        caps.*List::array = entries.data();
    }
    void lendNone() {
        entries.clear();
        caps.*List::array = nullptr;
    }

    static std::string numbered(const Numbers& numbers) {
        std::string all;
        for (const int number : numbers) {
            all += element(List::entry, contentOf(number, static_cast<const Entry*>(nullptr)));
        }
        return all;
    }

    /// Reads a section by itself, with these children.
    bool read(const std::string& children) {
        Xml section(element("any", children).c_str());
        return (KVJCapsParser().*List::reader)(section.root(), caps);
    }
    bool read(int capacity, const std::string& children) {
        caps.*List::count = capacity;
        return read(children);
    }

    /// Reads a whole description.
    bool readSections(int capacity, const std::vector<std::string>& childrenOfEach) {
        std::string sections;
        for (const std::string& children : childrenOfEach) sections += element(List::section, children);
        Xml root(element("capabilities", sections).c_str());
        caps.*List::count = capacity;
        return KVJCapsParser().parseCapabilities(root.root(), caps);
    }

    /// The first entries have these numbers and the list this count; nothing else was written. Number 0 is an entry
    /// that is as it was.
    void expect(int count, const Numbers& numbers) {
        for (std::size_t i = 0; i < entries.size(); ++i) {
            Entry expected = preset<Entry>();
            if (i < numbers.size() && numbers[i] != 0) fill(expected, numbers[i]);
            EXPECT_EQ(fieldsOf(entries[i]), fieldsOf(expected)) << "entry " << i;
        }
        _Capabilities expected = preset<_Capabilities>();
        expected.*List::array = entries.empty() ? nullptr : entries.data();
        expected.*List::count = count;
        EXPECT_EQ(fieldsOf(caps), fieldsOf(expected));
    }
};

// ---- All lists ----

template <class List>
class CapabilityList : public AnyList<List> {};
using AllLists = testing::Types<HostPorts, DevicePorts, SwInterfaces, OcpLanguages, GraphicFormats, Fonts, Templates,
                                Graphics, BarCodes>;
TYPED_TEST_SUITE(CapabilityList, AllLists, SectionName);

TYPED_TEST(CapabilityList, WithoutASectionItIsFalseAndUntouched) {
    for (const int count : {2, 0, -1, INT_MIN}) {
        this->caps.*TypeParam::count = count;
        EXPECT_FALSE((KVJCapsParser().*TypeParam::reader)(nullptr, this->caps)) << count;
        this->expect(count, {});
    }
}

TYPED_TEST(CapabilityList, MoreThanThereIsRoomForIsRefusedWithTheNumberNeededAndTrue) {
    EXPECT_TRUE(this->read(2, this->numbered({1, 2, 3})));
    this->expect(3, {});
}

TYPED_TEST(CapabilityList, WithoutRoomTheNumberNeededIsAnswered) {
    EXPECT_TRUE(this->read(0, this->numbered({1})));
    this->expect(1, {});
}

TYPED_TEST(CapabilityList, AForeignChildCountsWhenTheRoomIsMeasured) {
    EXPECT_TRUE(this->read(2, this->numbered({1, 2}) + "<revision>1</revision>"));
    this->expect(3, {});
}

TYPED_TEST(CapabilityList, ForeignChildrenAloneAreCountedAndRefused) {
    EXPECT_TRUE(this->read(1, "<revision>1</revision><note/>"));
    this->expect(2, {});
}

TYPED_TEST(CapabilityList, ForeignChildrenAloneForWhichThereIsRoomAreFalse) {
    EXPECT_FALSE(this->read(2, "<revision>1</revision><note/>"));
    this->expect(2, {});
}

TYPED_TEST(CapabilityList, OnlyTheSectionsOwnElementsAreCounted) {
    EXPECT_TRUE(
        this->read(0, "text<!-- <note/> -->" + this->numbered({1}) + "<note><note/></note><![CDATA[<note/>]]>"));
    this->expect(2, {});
}

TYPED_TEST(CapabilityList, AnEmptySectionIsFalseAndKeepsTheCount) {
    for (const char* content : {"", "text", "<!-- none -->"}) {
        EXPECT_FALSE(this->read(0, content)) << content;
        this->expect(0, {});
        EXPECT_FALSE(this->read(5, content)) << content;
        this->expect(5, {});
    }
}

TYPED_TEST(CapabilityList, ANegativeCountIsNoRoom) {
    for (const int count : {-1, INT_MIN}) {
        EXPECT_TRUE(this->read(count, this->numbered({1, 2})));
        this->expect(2, {});
    }
}

TYPED_TEST(CapabilityList, ANegativeCountIsLessThanNoneNeeded) {
    for (const int count : {-1, INT_MIN}) {
        EXPECT_TRUE(this->read(count, ""));
        this->expect(0, {});
    }
    this->lendNone();
    EXPECT_TRUE(this->read(-1, ""));
    this->expect(0, {});
}

TYPED_TEST(CapabilityList, ANullArrayHasRoomForNothing) {
    for (const int count : {-1, 0, 1, 2, 5, INT_MAX}) {
        this->lendNone();
        EXPECT_TRUE(this->read(count, this->numbered({1, 2}))) << count;
        this->expect(2, {});
    }
}

TYPED_TEST(CapabilityList, ANullArrayIsEnoughForAnEmptySection) {
    for (const int count : {0, 5}) {
        this->lendNone();
        EXPECT_FALSE(this->read(count, ""));
        this->expect(count, {});
    }
}

TYPED_TEST(CapabilityList, NamesOfEntriesAreComparedExactly) {
    std::string upper = TypeParam::entry;
    upper[0] = static_cast<char>(upper[0] - 'a' + 'A');
    const std::string longer = std::string(TypeParam::entry) + "x";
    for (const std::string& name : {upper, longer, std::string(TypeParam::section)}) {
        EXPECT_FALSE(this->read(1, element(name, "<port_id>1</port_id><name>1</name><port>1</port><type>1</type>")));
        this->expect(1, {});
    }
}

TYPED_TEST(CapabilityList, OneEntryIsFilledAndTheCountKept) {
    EXPECT_TRUE(this->read(1, this->numbered({3})));
    this->expect(1, {3});
}

TYPED_TEST(CapabilityList, TheResultIsThatOfTheLastEntry) {
    const std::string empty = element(TypeParam::entry, "");
    EXPECT_TRUE(this->read(6, empty + this->numbered({1})));
    EXPECT_FALSE(this->read(6, this->numbered({1}) + empty));
}

TYPED_TEST(CapabilityList, AForeignChildBehindTheLastEntryHasNoSayInTheResult) {
    EXPECT_TRUE(this->read(6, this->numbered({1}) + "<note/>"));
    EXPECT_FALSE(this->read(6, element(TypeParam::entry, "") + "<note>1</note>"));
}

TYPED_TEST(CapabilityList, ARefusedSectionCountsAsReadInTheWholeDescription) {
    EXPECT_TRUE(this->readSections(0, {this->numbered({1, 2})}));
    this->expect(2, {});
}

TYPED_TEST(CapabilityList, ASecondSectionIsNotMeasuredAgainstTheNumberAnsweredForTheFirst) {
    EXPECT_TRUE(this->readSections(2, {this->numbered({1, 2, 3}), this->numbered({3, 4, 5})}));
    this->expect(3, {});
}

TYPED_TEST(CapabilityList, OfRefusedSectionsTheLargestSaysTheNumberNeeded) {
    const std::string three = this->numbered({1, 2, 3});
    const std::string four = this->numbered({1, 2, 3, 4});
    const std::string five = this->numbered({1, 2, 3, 4, 5});
    for (const auto& sections : {std::vector{five, three}, {three, five}, {five, four, three}, {three, five, four}}) {
        EXPECT_TRUE(this->readSections(2, sections));
        this->expect(5, {});
    }
}

TYPED_TEST(CapabilityList, OfSectionsWithoutAnArrayTheLargestSaysTheNumberNeededWhateverCountIsPassed) {
    for (const int count : {INT_MIN, -1, 0, 1, 2, 3, INT_MAX}) {
        this->lendNone();
        EXPECT_TRUE(this->readSections(count, {this->numbered({1, 2}), this->numbered({1})}));
        this->expect(2, {});
    }
}

TYPED_TEST(CapabilityList, TheNumberAnsweredForSectionsOfAnySizeIsEnoughForTheSecondCall) {
    const std::vector sections{this->numbered({1, 2, 3, 4, 5}), this->numbered({1, 2, 3})};
    EXPECT_TRUE(this->readSections(0, sections));
    const int needed = this->caps.*TypeParam::count;
    this->lend(static_cast<std::size_t>(needed));
    EXPECT_TRUE(this->readSections(needed, sections));
    EXPECT_EQ(this->caps.*TypeParam::count, needed);
}

TYPED_TEST(CapabilityList, ASecondSectionWithoutEntriesIsMeasuredAgainstTheCapacityAsWell) {
    EXPECT_FALSE(this->readSections(0, {this->numbered({1, 2}), ""}));
    this->expect(2, {});
}

// ---- Lists whose entries are filled one after the other: all but the device ports ----

template <class List>
class FilledList : public AnyList<List> {};
using FilledLists =
    testing::Types<HostPorts, SwInterfaces, OcpLanguages, GraphicFormats, Fonts, Templates, Graphics, BarCodes>;
TYPED_TEST_SUITE(FilledList, FilledLists, SectionName);

TYPED_TEST(FilledList, AsManyAsThereIsRoomForAreAllFilled) {
    EXPECT_TRUE(this->read(3, this->numbered({3, 1, 2})));
    this->expect(3, {3, 1, 2});
}

TYPED_TEST(FilledList, WithMoreRoomTheCountStaysTheCapacity) {
    EXPECT_TRUE(this->read(5, this->numbered({1, 2, 3})));
    this->expect(5, {1, 2, 3});
}

TYPED_TEST(FilledList, TheLargestCountIsNoReasonToWriteMore) {
    EXPECT_TRUE(this->read(INT_MAX, this->numbered({1, 2})));
    this->expect(INT_MAX, {1, 2});
}

TYPED_TEST(FilledList, ForeignChildrenUseUpNoEntry) {
    EXPECT_TRUE(this->read(5, "<note/>" + this->numbered({1}) + "text<revision>1</revision>" + this->numbered({2, 3})));
    this->expect(5, {1, 2, 3});
}

TYPED_TEST(FilledList, AnEmptyEntryUsesUpItsPlaceAndLeavesIt) {
    EXPECT_TRUE(this->read(3, this->numbered({1}) + element(TypeParam::entry, "") + this->numbered({3})));
    this->expect(3, {1, 0, 3});
}

TYPED_TEST(FilledList, TheNumberAnsweredIsEnoughForTheSecondCall) {
    const std::string children = this->numbered({1}) + "<note/>" + this->numbered({2});
    this->lendNone();
    EXPECT_TRUE(this->read(0, children));
    this->expect(3, {});
    this->lend(3);  // exactly, so that writing more would be writing beyond the array
    EXPECT_TRUE(this->read(children));
    this->expect(3, {1, 2, 0});
}

TYPED_TEST(FilledList, ASectionThatStandsTwiceIsReadTwiceFromTheFirstEntryOn) {
    EXPECT_TRUE(this->readSections(4, {this->numbered({1, 2, 3}), this->numbered({4, 5})}));
    this->expect(4, {4, 5, 3});
}

TYPED_TEST(FilledList, ASecondSectionForWhichThereIsRoomIsFilledAfterARefusedOne) {
    EXPECT_TRUE(this->readSections(2, {this->numbered({1, 2, 3}), this->numbered({4, 5})}));
    this->expect(3, {4, 5});
}

TYPED_TEST(FilledList, ASecondSectionThatIsRefusedLeavesTheEntriesOfTheFirst) {
    EXPECT_TRUE(this->readSections(2, {this->numbered({1, 2}), this->numbered({3, 4, 5})}));
    this->expect(3, {1, 2});
}

TYPED_TEST(FilledList, AListOfAnyLengthIsFilled) {
    std::vector<int> numbers;
    for (int i = 0; i < 300; ++i) numbers.push_back(i % 5 + 1);
    this->lend(300);
    EXPECT_TRUE(this->read(300, this->numbered(numbers)));
    this->expect(300, numbers);
}

// ---- Device ports: hosts know a printer by its last one ----

using DevicePortList = AnyList<DevicePorts>;

TEST_F(DevicePortList, AllGoToTheFirstEntryAndTheLastOneStays) {
    EXPECT_TRUE(read(2, numbered({1, 2})));
    expect(2, {2});
    EXPECT_TRUE(read(6, numbered({1, 2, 3})));
    expect(6, {3});
}

TEST_F(DevicePortList, WhatTheLastPortDoesNotSayStaysThatOfTheOneBefore) {
    EXPECT_TRUE(read(2, "<device_port><port_id>1</port_id><type>serial</type></device_port>" + numbered({2})));
    EXPECT_EQ(fieldsOf(entries[0]), fieldsOf(_PortCaps{2, 1}));
    entries[0] = preset<_PortCaps>();
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
