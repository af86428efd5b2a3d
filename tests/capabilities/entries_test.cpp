// One entry of each list: its elements, the words of its fields, and texts that do not fit.
#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "KVJCapsParser.h"
#include "capabilities/records.h"
#include "support/xml.h"

namespace entries_test {

namespace {

using namespace kvj::tests;

template <class Entry>
using EntryReader = bool (KVJCapsParser::*)(TiXmlElement*, Entry&);

template <class Entry>
bool read(EntryReader<Entry> reader, const std::string& children, Entry& entry) {
    Xml element(kvj::tests::element("any", children).c_str());
    return (KVJCapsParser().*reader)(element.root(), entry);
}

/// That these children, read over a preset entry, give this result and this entry.
template <class Entry>
void expectRead(EntryReader<Entry> reader, const std::string& children, bool result, const Entry& expected) {
    auto entry = preset<Entry>();
    EXPECT_EQ(read(reader, children, entry), result) << children;
    EXPECT_EQ(fieldsOf(entry), fieldsOf(expected)) << children;
}

/// What holds for every entry that has elements. `names` are those of its elements.
template <class Entry>
void expectEntry(EntryReader<Entry> reader, const std::vector<std::string>& names) {
    auto entry = preset<Entry>();
    EXPECT_FALSE((KVJCapsParser().*reader)(nullptr, entry));
    EXPECT_EQ(fieldsOf(entry), fieldsOf(preset<Entry>()));
    for (const char* children : {"", "text", "<!-- none -->", "<unknown>1</unknown>"}) {
        expectRead(reader, children, false, preset<Entry>());
    }
    for (const std::string& name : names) {
        const std::string misspelt = static_cast<char>(name[0] - 'a' + 'A') + name.substr(1);
        expectRead(reader, element(misspelt, "1") + element(name + "_", "1"), false, preset<Entry>());
        expectRead(reader, element("unknown", element(name, "1")), false, preset<Entry>());
    }
}

// ---- Ports ----

constexpr EntryReader<_PortCaps> port = &KVJCapsParser::getHostPort;

TEST(PortEntry, FillsItsFieldsInAnyOrder) {
    expectRead(port, "<port_id>7</port_id><type>ethernet_10_100_1G</type>", true, {7, 3});
    expectRead(port, "<type>wifi_enet_802_11g</type><note/><port_id>-1</port_id>", true, {-1, 4});
}

TEST(PortEntry, NeedsElementsThatItKnows) { expectEntry(port, {"port_id", "type"}); }

TEST(PortEntry, AnUnknownTypeIsMinus1AndRead) {
    for (const std::string& word :
         {std::string("usb"), std::string("USB_2_0"), std::string("<b/>"), std::string(100000, 'u')}) {
        expectRead(port, element("type", word), true, {preset<_PortCaps>().portId, -1});
    }
}

TEST(PortEntry, ANumberThatIsNoneIs0) {
    expectRead(port, "<port_id>one</port_id>", true, {0, preset<_PortCaps>().portType});
    expectRead(port, "<port_id> 12 34</port_id>", true, {12, preset<_PortCaps>().portType});
}

// ---- Software interfaces ----

constexpr EntryReader<_InterfaceCaps> swInterface = &KVJCapsParser::getSwInterface;

TEST(SwInterfaceEntry, FillsItsFieldsInAnyOrder) {
    expectRead(swInterface, "<protocol>snmp_trap</protocol><transport>tcp</transport><port>162</port>", true,
               {1, 1, 162});
    expectRead(swInterface, "<port>9100</port><note/><transport>usb_2_0</transport><protocol>kavrin</protocol>", true,
               {3, 3, 9100});
}

TEST(SwInterfaceEntry, NeedsElementsThatItKnows) { expectEntry(swInterface, {"protocol", "transport", "port"}); }

TEST(SwInterfaceEntry, AnUnknownWordIsMinus1AndRead) {
    const auto kept = preset<_InterfaceCaps>();
    for (const char* word : {"SNMP", "https", "snmp_", "serial", "<b/>"}) {
        expectRead(swInterface, element("protocol", word), true, {-1, kept.transport, kept.port});
        expectRead(swInterface, element("transport", word), true, {kept.protocol, -1, kept.port});
    }
}

// ---- Languages ----

constexpr EntryReader<_OCPLanguageCaps> language = &KVJCapsParser::getOCPLanguage;

TEST(OcpLanguageEntry, FillsItsFieldsInAnyOrder) {
    expectRead(language, "<type>2</type><name>Deutsch</name>", true, {2, "Deutsch"});
    expectRead(language, "<name>English (US)</name><note/><type>0</type>", true, {0, "English (US)"});
}

TEST(OcpLanguageEntry, NeedsElementsThatItKnows) { expectEntry(language, {"type", "name"}); }

TEST(OcpLanguageEntry, ItsTypeIsANumberAndNoWord) { expectRead(language, "<type>English</type>", true, {0, "preset"}); }

// ---- Fonts ----

constexpr EntryReader<_FontCaps> font = &KVJCapsParser::getFontCaps;

TEST(FontEntry, FillsItsFieldsInAnyOrder) {
    expectRead(font, "<name>Sans</name><scalable>no</scalable><style>bold</style>", true, {"Sans", false, 2});
    expectRead(font, "<style>italic</style><scalable>yes</scalable><note/><name>Serif</name>", true,
               {"Serif", true, 3});
}

TEST(FontEntry, NeedsElementsThatItKnows) { expectEntry(font, {"name", "scalable", "style"}); }

TEST(FontEntry, WithoutTextScalableIsStoredAsFalseAndTheResultFalse) {
    expectRead(font, "<scalable/>", false, {"preset", false, preset<_FontCaps>().style});
}

TEST(FontEntry, ScalableIsTrueForExactlyYesAndEnabled) {
    const int style = preset<_FontCaps>().style;
    for (const char* word : {"yes", "enabled"}) {
        expectRead(font, "<scalable>no</scalable>" + element("scalable", word), true, {"preset", true, style});
    }
    for (const char* word : {"no", "Yes", "ENABLED", "true", "1", "yes."}) {
        expectRead(font, element("scalable", word), true, {"preset", false, style});
    }
}

TEST(FontEntry, EachStyleHasItsCodeAndAnUnknownOneIs0) {
    for (const auto& [word, code] : {std::pair("regular", 1), std::pair("bold", 2), std::pair("italic", 3),
                                     std::pair("none", 0), std::pair("Bold", 0), std::pair("bold italic", 0)}) {
        expectRead(font, element("style", word), true, {"preset", true, code});
    }
}

TEST(FontEntry, TheResultIsThatOfTheLastField) {
    const int style = preset<_FontCaps>().style;
    expectRead(font, "<name>Sans</name><style/>", false, {"Sans", true, style});
    expectRead(font, "<style/><name>Sans</name><note/>", true, {"Sans", true, style});
}

// ---- Templates and graphics ----

constexpr EntryReader<_TemplateCaps> stored = &KVJCapsParser::getTemplate;

TEST(TemplateEntry, FillsItsFieldsInAnyOrder) {
    expectRead(stored, "<name>badge</name><location>flash</location>", true, {"badge", "flash"});
    expectRead(stored, "<location>/t/1</location><note/><name>pass</name>", true, {"pass", "/t/1"});
}

TEST(TemplateEntry, NeedsElementsThatItKnows) { expectEntry(stored, {"name", "location"}); }

// ---- Entries that are a text themselves ----

TEST(BarCodeEntry, IsTheTextCutToItsField) {
    const std::string longest(63, 'b');
    for (const auto& [text, result] : {std::pair(longest, true), std::pair(longest + "c", false)}) {
        _BarCodeCaps entries[] = {preset<_BarCodeCaps>(), preset<_BarCodeCaps>()};
        auto caps = preset<_Capabilities>();
        caps.barCodeCount = 2;
        caps.barCodes = entries;
        Xml section(element("barcodes", element("barcode", text)).c_str());
        EXPECT_EQ(KVJCapsParser().getBarCodes(section.root(), caps), result);
        EXPECT_EQ(entries[0].name, longest);
        EXPECT_STREQ(entries[1].name, "preset");
    }
}

TEST(GraphicFormatEntry, AnUnknownFormatIsMinus1AndRead) {
    std::vector formats(4, preset<int>());
    auto caps = preset<_Capabilities>();
    caps.graphicFormatCount = 4;
    caps.graphicFormats = formats.data();
    Xml section(
        "<graphic_formats><graphic_format>png</graphic_format><graphic_format>tga</graphic_format>"
        "<graphic_format>BMP</graphic_format></graphic_formats>");
    EXPECT_TRUE(KVJCapsParser().getGraphicFormatCaps(section.root(), caps));
    EXPECT_EQ(formats, (std::vector{-1, 8, -1, preset<int>()}));
}

}  // namespace

}  // namespace entries_test
