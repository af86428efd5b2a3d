// The sections of a composed description, each by itself: its elements in their order, codes without a word, counts,
// and texts that are not terminated.
#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "KVJSetCaps.h"
#include "capabilities/records.h"
#include "capabilities/whole.h"
#include "support/xml.h"

namespace composed_sections_test {

namespace {

using namespace kvj::tests;

using Add = std::function<bool(KVJSetCaps&, TiXmlElement*)>;

/// What a section composer adds to an element, without white space.
void expectAdded(const Add& add, const std::string& content, bool result = true) {
    TiXmlElement under("r");
    KVJSetCaps composer;
    EXPECT_EQ(add(composer, &under), result) << content;
    EXPECT_EQ(written(under), content.empty() ? emptyElement("r") : element("r", content));
    EXPECT_TRUE(composer.NoChildren());
}

// ---- Lists ----

char portName[] = "host_port";

/// A composer of a list, with the array and count that it is given.
struct ListComposer {
    const char* section;  ///< empty where the entries go into the element given
    std::function<bool(KVJSetCaps&, TiXmlElement*, const Whole&, bool withArray, int count)> add;
    bool leftOutWhenZero;
    std::vector<std::string> entries;
};

template <class Entry>
const Entry* array(const std::vector<Entry>& entries, bool withArray) {
    return withArray ? entries.data() : nullptr;
}

const ListComposer listComposers[] = {
    {"host_ports",
     [](KVJSetCaps& composer, TiXmlElement* under, const Whole& whole, bool withArray, int count) {
         _Capabilities caps = whole.caps;
         caps.hostPortCount = count;
         if (!withArray) caps.hostPorts = nullptr;
         return composer.addHostPorts(under, caps);
     },
     true,
     {"<host_port><port_id>1</port_id><type>usb_2_0</type></host_port>",
      "<host_port><port_id>2</port_id><type>ethernet_10_100_1G</type></host_port>"}},
    {"device_ports",
     [](KVJSetCaps& composer, TiXmlElement* under, const Whole& whole, bool withArray, int count) {
         _Capabilities caps = whole.caps;
         caps.devicePortCount = count;
         if (!withArray) caps.devicePorts = nullptr;
         return composer.addDevicePorts(under, caps);
     },
     true,
     {"<device_port><port_id>11</port_id><type>serial</type></device_port>",
      "<device_port><port_id>12</port_id><type>ethernet_10_100</type></device_port>"}},
    {"",
     [](KVJSetCaps& composer, TiXmlElement* under, const Whole& whole, bool withArray, int count) {
         return composer.addPorts(under, array(whole.lists.hostPorts, withArray), count, portName);
     },
     true,
     {"<host_port><port_id>1</port_id><type>usb_2_0</type></host_port>",
      "<host_port><port_id>2</port_id><type>ethernet_10_100_1G</type></host_port>"}},
    {"software_interfaces",
     [](KVJSetCaps& composer, TiXmlElement* under, const Whole& whole, bool withArray, int count) {
         return composer.addSWInterfaces(under, array(whole.lists.swInterfaces, withArray), count);
     },
     true,
     {"<software_interface><protocol>snmp</protocol><transport>udp</transport><port>161</port></software_interface>",
      "<software_interface><protocol>kavrin</protocol><transport>usb_2_0</transport><port>9100</port>"
      "</software_interface>"}},
    {"ocp_languages",
     [](KVJSetCaps& composer, TiXmlElement* under, const Whole& whole, bool withArray, int count) {
         return composer.addOcpLanguages(under, array(whole.lists.ocpLanguages, withArray), count);
     },
     true,
     {"<ocp_language><type>0</type><name>English (US)</name></ocp_language>",
      "<ocp_language><type>4</type><name>Deutsch</name></ocp_language>"}},
    {"graphic_formats",
     [](KVJSetCaps& composer, TiXmlElement* under, const Whole& whole, bool withArray, int count) {
         return composer.addGraphicFormatsCaps(under, array(whole.lists.graphicFormats, withArray), count);
     },
     false,
     {"<graphic_format>bmp</graphic_format>", "<graphic_format>raw</graphic_format>"}},
    {"fonts",
     [](KVJSetCaps& composer, TiXmlElement* under, const Whole& whole, bool withArray, int count) {
         return composer.addFontsCaps(under, array(whole.lists.fonts, withArray), count);
     },
     false,
     {"<font><name>Card Sans</name><name>yes</name><style>bold</style></font>",
      "<font><name>Card Mono 12</name><name>no</name><style>regular</style></font>"}},
    {"templates",
     [](KVJSetCaps& composer, TiXmlElement* under, const Whole& whole, bool withArray, int count) {
         return composer.addTemplateCaps(under, array(whole.lists.templates, withArray), count);
     },
     false,
     {"<template><name>staff badge</name></template>", "<template><name>day pass</name></template>"}},
    {"graphics",
     [](KVJSetCaps& composer, TiXmlElement* under, const Whole& whole, bool withArray, int count) {
         return composer.addGraphicsCaps(under, array(whole.lists.graphics, withArray), count);
     },
     false,
     {"<graphic><name>logo</name><location>/flash/graphics/logo</location></graphic>",
      "<graphic><name>seal</name><location>/flash/graphics/seal</location></graphic>"}},
    {"barcodes",
     [](KVJSetCaps& composer, TiXmlElement* under, const Whole& whole, bool withArray, int count) {
         return composer.addBarCodes(under, array(whole.lists.barCodes, withArray), count);
     },
     false,
     {"<barcode>code_39</barcode>", "<barcode>pdf417</barcode>"}},
};

void expectList(const ListComposer& list, bool withArray, int count, const std::string& content, bool result) {
    const testing::ScopedTrace trace(__FILE__, __LINE__, list.section);
    const Whole whole;
    expectAdded([&](KVJSetCaps& caps, TiXmlElement* under) { return list.add(caps, under, whole, withArray, count); },
                content, result);
}

std::string section(const ListComposer& list, const std::string& entries) {
    return *list.section == '\0' ? entries : element(list.section, entries);
}

std::string emptySection(const ListComposer& list) { return *list.section == '\0' ? "" : emptyElement(list.section); }

TEST(ComposedList, HasItsEntriesInOrder) {
    for (const ListComposer& list : listComposers) {
        expectList(list, true, 2, section(list, list.entries[0] + list.entries[1]), true);
    }
}

TEST(ComposedList, HasNoMoreEntriesThanItsCount) {
    for (const ListComposer& list : listComposers) expectList(list, true, 1, section(list, list.entries[0]), true);
}

TEST(ComposedList, OfNoEntriesIsEmptyOrLeftOutAndFalse) {
    for (const ListComposer& list : listComposers) {
        for (const bool withArray : {false, true}) {
            expectList(list, withArray, 0, list.leftOutWhenZero ? "" : emptySection(list), false);
        }
    }
}

TEST(ComposedList, OfANegativeCountIsEmptyAndFalse) {
    for (const ListComposer& list : listComposers) {
        for (const int count : {-1, INT_MIN}) {
            for (const bool withArray : {false, true}) {
                expectList(list, withArray, count, emptySection(list), false);
            }
        }
    }
}

TEST(ComposedList, WithoutAnArrayIsEmptyAndFalse) {
    for (const ListComposer& list : listComposers) {
        for (const int count : {1, 2, INT_MAX}) expectList(list, false, count, emptySection(list), false);
    }
}

TEST(ComposedList, WithoutAnElementToAddToIsFalse) {
    const Whole whole;
    for (const ListComposer& list : listComposers) {
        KVJSetCaps composer;
        for (const int count : {-1, 0, 2}) {
            EXPECT_FALSE(list.add(composer, nullptr, whole, true, count)) << list.section;
        }
    }
}

// ---- Entries ----

std::string portWith(const std::string& name, const std::string& id, const std::string& type) {
    return element(name, element("port_id", id) + element("type", type));
}

TEST(ComposedEntry, PortsAreNamedAsTheCallerSays) {
    const _PortCaps ports[] = {{1, 0}, {-2, 1}};
    for (std::string name : {"host_port", "device_port", "x"}) {
        expectAdded(
            [&](KVJSetCaps& composer, TiXmlElement* under) { return composer.addPorts(under, ports, 2, name.data()); },
            portWith(name, "1", "usb_2_0") + portWith(name, "-2", "serial"));
    }
    expectAdded([&](KVJSetCaps& composer, TiXmlElement* under) { return composer.addPorts(under, ports, 2, nullptr); },
                "", false);
}

TEST(ComposedEntry, APortTypeWithoutAWordIsEmptyTheWirelessOneToo) {
    for (const auto& [code, word] :
         {std::pair(0, "usb_2_0"), std::pair(1, "serial"), std::pair(2, "ethernet_10_100"),
          std::pair(3, "ethernet_10_100_1G"), std::pair(4, ""), std::pair(5, ""), std::pair(-1, "")}) {
        const _PortCaps port{7, code};
        expectAdded(
            [&port](KVJSetCaps& composer, TiXmlElement* under) { return composer.addPorts(under, &port, 1, portName); },
            portWith(portName, "7", word));
    }
}

TEST(ComposedEntry, AnInterfaceHasEmptyElementsForCodesWithoutAWord) {
    const std::vector<std::pair<_InterfaceCaps, std::string>> cases = {
        {{0, 0, 1}, "<protocol>snmp</protocol><transport>udp</transport><port>1</port>"},
        {{1, 1, -2}, "<protocol>snmp_trap</protocol><transport>tcp</transport><port>-2</port>"},
        {{2, 2, INT_MAX}, "<protocol>http</protocol><transport>usb</transport><port>2147483647</port>"},
        {{3, 3, INT_MIN}, "<protocol>kavrin</protocol><transport>usb_2_0</transport><port>-2147483648</port>"},
        {{4, 4, 0}, "<protocol></protocol><transport></transport><port>0</port>"},
        {{-1, -1, 0}, "<protocol></protocol><transport></transport><port>0</port>"}};
    for (const auto& [entry, content] : cases) {
        expectAdded([&entry = entry](KVJSetCaps& composer,
                                     TiXmlElement* under) { return composer.addSWInterfaces(under, &entry, 1); },
                    element("software_interfaces", element("software_interface", content)));
    }
}

TEST(ComposedEntry, AGraphicFormatWithoutAWordIsAnEmptyElement) {
    const std::vector<std::pair<int, std::string>> cases = {
        {1, "bmp"}, {2, "jpeg"}, {3, ""},     {4, ""},  {5, ""}, {6, ""},  {7, ""},
        {8, "tga"}, {9, "tiff"}, {10, "raw"}, {11, ""}, {0, ""}, {-1, ""}, {INT_MIN, ""}};
    for (const auto& [code, word] : cases) {
        expectAdded([&code = code](KVJSetCaps& composer,
                                   TiXmlElement* under) { return composer.addGraphicFormatsCaps(under, &code, 1); },
                    element("graphic_formats", element("graphic_format", word)));
    }
}

TEST(ComposedEntry, AFontHasTwoNamesTheSecondSaysWhetherItIsScalable) {
    for (const auto& [scalable, word] : {std::pair(true, "yes"), std::pair(false, "no")}) {
        const _FontCaps font{"Card Sans", scalable, 3};
        expectAdded([&](KVJSetCaps& composer, TiXmlElement* under) { return composer.addFontsCaps(under, &font, 1); },
                    element("fonts", element("font", "<name>Card Sans</name>" + element("name", word) +
                                                         "<style>italic</style>")));
    }
}

TEST(ComposedEntry, AFontStyleWithoutAWordIsNone) {
    for (const auto& [code, word] :
         {std::pair(1, "regular"), std::pair(2, "bold"), std::pair(3, "italic"), std::pair(0, "none"),
          std::pair(4, "none"), std::pair(-1, "none"), std::pair(INT_MAX, "none")}) {
        const _FontCaps font{"", false, code};
        expectAdded([&](KVJSetCaps& composer, TiXmlElement* under) { return composer.addFontsCaps(under, &font, 1); },
                    element("fonts", element("font", "<name></name><name>no</name>" + element("style", word))));
    }
}

TEST(ComposedEntry, EmptyTextsAreEmptyElements) {
    const _OCPLanguageCaps language{0, ""};
    expectAdded(
        [&](KVJSetCaps& composer, TiXmlElement* under) { return composer.addOcpLanguages(under, &language, 1); },
        "<ocp_languages><ocp_language><type>0</type><name></name></ocp_language></ocp_languages>");
    const _TemplateCaps stored{"", ""};
    expectAdded([&](KVJSetCaps& composer, TiXmlElement* under) { return composer.addTemplateCaps(under, &stored, 1); },
                "<templates><template><name></name></template></templates>");
    expectAdded([&](KVJSetCaps& composer, TiXmlElement* under) { return composer.addGraphicsCaps(under, &stored, 1); },
                "<graphics><graphic><name></name><location></location></graphic></graphics>");
    const _BarCodeCaps barCode{""};
    expectAdded([&](KVJSetCaps& composer, TiXmlElement* under) { return composer.addBarCodes(under, &barCode, 1); },
                "<barcodes><barcode></barcode></barcodes>");
}

TEST(ComposedEntry, ATextWithoutATerminatorEndsWithItsField) {
    _OCPLanguageCaps language{};
    std::memset(language.name, 'n', sizeof language.name);
    const std::string name = element("name", std::string(64, 'n'));
    expectAdded(
        [&](KVJSetCaps& composer, TiXmlElement* under) { return composer.addOcpLanguages(under, &language, 1); },
        element("ocp_languages", element("ocp_language", "<type>0</type>" + name)));

    _FontCaps font{};
    std::memset(font.name, 'n', sizeof font.name);
    font.scalable = true;
    expectAdded([&](KVJSetCaps& composer, TiXmlElement* under) { return composer.addFontsCaps(under, &font, 1); },
                element("fonts", element("font", name + "<name>yes</name><style>none</style>")));

    _TemplateCaps stored{};
    std::memset(stored.name, 'm', sizeof stored.name);
    std::memset(stored.location, 'l', sizeof stored.location);
    const std::string longName = element("name", std::string(4096, 'm'));
    expectAdded([&](KVJSetCaps& composer, TiXmlElement* under) { return composer.addTemplateCaps(under, &stored, 1); },
                element("templates", element("template", longName)));
    expectAdded([&](KVJSetCaps& composer, TiXmlElement* under) { return composer.addGraphicsCaps(under, &stored, 1); },
                element("graphics", element("graphic", longName + element("location", std::string(256, 'l')))));

    _BarCodeCaps barCode{};
    std::memset(barCode.name, 'b', sizeof barCode.name);
    expectAdded([&](KVJSetCaps& composer, TiXmlElement* under) { return composer.addBarCodes(under, &barCode, 1); },
                element("barcodes", element("barcode", std::string(64, 'b'))));
}

// ---- Other sections ----

void expectSharpening(int levels, const std::string& words) {
    _Capabilities caps{};
    caps.imageSharpeningLevels = levels;
    expectAdded(
        [&](KVJSetCaps& composer, TiXmlElement* under) { return composer.addImageSharpeningLevels(under, caps); },
        words.empty() ? emptyElement("image_sharpening_levels") : element("image_sharpening_levels", words),
        !words.empty());
}

TEST(ComposedSharpening, HasAnElementForEachBitFromTheLowestUp) {
    const std::pair<int, std::string> words[] = {{0x1, "off"}, {0x2, "normal"}, {0x4, "high"}, {0x8, "low"}};
    for (int levels = 1; levels <= 0xF; ++levels) {
        std::string expected;
        for (const auto& [bit, word] : words) {
            if ((levels & bit) != 0) expected += element("image_sharpening_level", word);
        }
        expectSharpening(levels, expected);
        expectSharpening(levels | 0x70, expected);
    }
}

TEST(ComposedSharpening, WithoutABitThatHasAWordTheSectionIsEmpty) {
    expectSharpening(0, "");
    expectSharpening(0x10, "");
    expectSharpening(INT_MIN, "");
}

TEST(ComposedSecurity, HasTheProtectionAndTheAlgorithmOrNone) {
    for (const auto& [code, word] : {std::pair(1, "aes"), std::pair(2, "3des"), std::pair(0, "none"),
                                     std::pair(3, "none"), std::pair(-1, "none"), std::pair(INT_MIN, "none")}) {
        for (const auto& [protection, flag] : {std::pair(true, "yes"), std::pair(false, "no")}) {
            const _SecurityCaps security{protection, code};
            expectAdded(
                [&](KVJSetCaps& composer, TiXmlElement* under) { return composer.addSecurityCaps(under, security); },
                element("security", element("passkey_protection", flag) + element("encryption_algorithm", word)));
        }
    }
}

TEST(ComposedMemory, HasBothSizesWithTheirSign) {
    for (const auto& [size, text] : {std::pair(0, "0"), std::pair(65536, "65536"), std::pair(-1, "-1"),
                                     std::pair(INT_MAX, "2147483647"), std::pair(INT_MIN, "-2147483648")}) {
        _Capabilities caps{};
        caps.ramSize = size;
        caps.flashSize = size;
        expectAdded([&](KVJSetCaps& composer, TiXmlElement* under) { return composer.addMemoryCaps(under, caps); },
                    element("memory", element("ram", text) + element("flash", text)));
    }
}

TEST(ComposedMediaPath, HasTheAtmFlagAndTheCapacity) {
    for (const auto& [atm, flag] : {std::pair(true, "yes"), std::pair(false, "no")}) {
        _Capabilities caps{};
        caps.atm = atm;
        caps.magazineCapacity = 100;
        expectAdded([&](KVJSetCaps& composer, TiXmlElement* under) { return composer.addMediaPathCaps(under, caps); },
                    element("media_path", element("atm", flag) + "<magazine_capacity>100</magazine_capacity>"));
    }
}

TEST(ComposedImage, HasBothPagesAndTheResolution) {
    expectAdded([](KVJSetCaps& composer, TiXmlElement* under) { return composer.addImageCaps(under, Whole().caps); },
                "<image><logical_page><length>1036</length><width>664</width></logical_page>"
                "<physical_page><length>1012</length><width>638</width></physical_page>"
                "<print_resolution>300</print_resolution></image>");
}

TEST(ComposedEncoder, TakesItsChannelFromTheContactlessEncoder) {
    const std::pair<int, std::pair<const char*, const char*>> cases[] = {
        {0, {"", ""}}, {1, {"serial", "mifare"}}, {2, {"usb_2_0", ""}}, {3, {"", ""}}, {5, {"", ""}}, {-1, {"", ""}}};
    for (const auto& [code, words] : cases) {
        for (const int commsChannel : {0, 1, 2}) {
            for (const auto& [contact, flag] : {std::pair(true, "yes"), std::pair(false, "no")}) {
                const _InternalEncoderInfo encoder{commsChannel, contact, code, 1, true};
                expectAdded([&](KVJSetCaps& composer,
                                TiXmlElement* under) { return composer.addInternalEncoder(under, encoder); },
                            element("internal_encoder", element("comms_channel", words.first) +
                                                            element("contact_encoding", flag) +
                                                            element("contactless_encoder", words.second)));
            }
        }
    }
}

TEST(ComposedSection, WithoutAnElementToAddToIsFalse) {
    const Whole whole;
    KVJSetCaps composer;
    EXPECT_FALSE(composer.addImageSharpeningLevels(nullptr, whole.caps));
    EXPECT_FALSE(composer.addSecurityCaps(nullptr, whole.caps.security));
    EXPECT_FALSE(composer.addMemoryCaps(nullptr, whole.caps));
    EXPECT_FALSE(composer.addMediaPathCaps(nullptr, whole.caps));
    EXPECT_FALSE(composer.addImageCaps(nullptr, whole.caps));
    EXPECT_FALSE(composer.addInternalEncoder(nullptr, whole.caps.internalEncoder));
    EXPECT_FALSE(composer.addInternalEncoderOnly(nullptr, whole.caps.internalEncoder));
    EXPECT_FALSE(composer.addInternalEncoderOnly(nullptr, {1, false, 0, 0, false}));
    EXPECT_FALSE(composer.addInternalEncoderOnly(nullptr, {0, false, 0, 0, true}));
    EXPECT_TRUE(composer.NoChildren());
}

}  // namespace

}  // namespace composed_sections_test
