// The reply "capabilities" as a whole: its root, its elements, and the two calls that fill its lists.
#include <gtest/gtest.h>

#include <climits>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "KVJCapsParser.h"
#include "capabilities/records.h"
#include "support/files.h"
#include "support/xml.h"

namespace replies_test {

namespace {

using namespace kvj::tests;

/// Reads a reply; the result of that is the same for every reply.
void read(const std::string& reply, _Capabilities& caps) {
    const std::wstring text = wide(reply);
    EXPECT_FALSE(KVJCapsParser().GetCapabilities(*text.c_str(), static_cast<int>(text.size()), caps));
}

/// The preset record after a reply was read into it.
_Capabilities afterReading(const std::string& reply) {
    auto caps = preset<_Capabilities>();
    read(reply, caps);
    return caps;
}

void expectUntouched(const std::string& reply) {
    EXPECT_EQ(fieldsOf(afterReading(reply)), fieldsOf(preset<_Capabilities>())) << reply.substr(0, 200);
}

_Capabilities presetOfPrintType(int printType) {
    auto caps = preset<_Capabilities>();
    caps.printType = printType;
    return caps;
}

std::string typeOne(const std::string& root) { return element(root, "<print_type>1_side</print_type>"); }
std::string typeTwo(const std::string& root) { return element(root, "<print_type>2_side</print_type>"); }

// ---- The root ----

TEST(CapabilitiesReply, EitherNameOfTheRootIsReadAlike) {
    for (const char* root : {"capabilities", "get_capabilities"}) {
        EXPECT_EQ(fieldsOf(afterReading(typeOne(root))), fieldsOf(presetOfPrintType(1))) << root;
    }
}

TEST(CapabilitiesReply, OfBothNamesOnlyCapabilitiesIsRead) {
    const std::string both[] = {typeOne("capabilities") + typeTwo("get_capabilities"),
                                typeTwo("get_capabilities") + typeOne("capabilities")};
    for (const std::string& reply : both) {
        EXPECT_EQ(fieldsOf(afterReading(reply)), fieldsOf(presetOfPrintType(1))) << reply;
    }
}

TEST(CapabilitiesReply, AnEmptyCapabilitiesIsTheRootAllTheSame) {
    expectUntouched("<get_capabilities><print_type>1_side</print_type></get_capabilities><capabilities/>");
}

TEST(CapabilitiesReply, OfTwoRootsOfOneNameTheFirstIsRead) {
    EXPECT_EQ(fieldsOf(afterReading(typeOne("capabilities") + typeTwo("capabilities"))),
              fieldsOf(presetOfPrintType(1)));
}

TEST(CapabilitiesReply, AnotherRootLeavesTheRecord) {
    for (const char* root : {"Capabilities", "CAPABILITIES", "capabilities_", "set_capabilities", "configuration"}) {
        expectUntouched(typeOne(root));
    }
    expectUntouched(element("reply", typeOne("capabilities")));
    expectUntouched("<print_type>1_side</print_type>");
}

// ---- The length ----

TEST(CapabilitiesReply, ALengthOfZeroOrLessTouchesNothing) {
    const std::wstring text = wide(typeOne("capabilities"));
    for (const int length : {0, -1, INT_MIN}) {
        auto caps = preset<_Capabilities>();
        EXPECT_FALSE(KVJCapsParser().GetCapabilities(*text.c_str(), length, caps));
        EXPECT_EQ(fieldsOf(caps), fieldsOf(preset<_Capabilities>())) << length;
    }
}

TEST(CapabilitiesReply, ALengthShorterThanTheReplyCutsIt) {
    const std::string start = "<capabilities><print_type>1_side</print_type>";
    const std::wstring text = wide(start + "<laminator>notpresent</laminator></capabilities>");
    auto caps = preset<_Capabilities>();
    EXPECT_FALSE(KVJCapsParser().GetCapabilities(*text.c_str(), static_cast<int>(start.size()), caps));
    EXPECT_EQ(fieldsOf(caps), fieldsOf(presetOfPrintType(1)));
}

TEST(CapabilitiesReply, TheTextNeedNotBeTerminated) {
    const std::string reply = typeOne("capabilities");
    std::vector<wchar_t> text(reply.begin(), reply.end());
    text.shrink_to_fit();
    auto caps = preset<_Capabilities>();
    EXPECT_FALSE(KVJCapsParser().GetCapabilities(*text.data(), static_cast<int>(text.size()), caps));
    EXPECT_EQ(fieldsOf(caps), fieldsOf(presetOfPrintType(1)));
}

TEST(CapabilitiesReply, AReplyOfAnyLengthIsReadToItsEnd) {
    const std::string start = "<capabilities><print_system>direct</print_system><!--";
    const std::string end = "--><print_type>1_side</print_type></capabilities>";
    auto expected = presetOfPrintType(1);
    expected.printSystem = 0;
    for (const std::size_t length : {65530U, 65531U, 65532U, 65533U, 65534U, 262128U, 262129U, 1048576U}) {
        const std::string reply = start + std::string(length - start.size() - end.size(), ' ') + end;
        ASSERT_EQ(reply.size(), length);
        EXPECT_EQ(fieldsOf(afterReading(reply)), fieldsOf(expected)) << length;
    }
}

TEST(CapabilitiesReply, AListLongerThanAnyBufferIsReadWhole) {
    constexpr int length = 5000;
    std::string fonts;
    for (int i = 0; i < length; ++i) fonts += element("font", element("name", "font " + std::to_string(i)));
    const std::string reply = element("capabilities", element("fonts", fonts));
    ASSERT_GT(reply.size(), 65532U);
    std::vector<_FontCaps> entries(length, preset<_FontCaps>());
    auto caps = preset<_Capabilities>();
    caps.fontCount = length;
    caps.fonts = entries.data();
    read(reply, caps);
    EXPECT_EQ(caps.fontCount, length);
    for (int i = 0; i < length; ++i) {
        EXPECT_EQ(entries[static_cast<std::size_t>(i)].name, "font " + std::to_string(i));
    }
}

// ---- Its elements ----

struct Element {
    const char* name;
    std::string content;
    std::function<void(_Capabilities&)> set;  ///< what the content changes in the record
};
/// One of each, the lists without an array: they answer with the number needed.
const Element elements[] = {
    {"host_ports", "<host_port/>", [](_Capabilities& caps) { caps.hostPortCount = 1; }},
    {"device_ports", "<device_port/>", [](_Capabilities& caps) { caps.devicePortCount = 1; }},
    {"software_interfaces", "<software_interface/>", [](_Capabilities& caps) { caps.swInterfaceCount = 1; }},
    {"ocp_languages", "<ocp_language/>", [](_Capabilities& caps) { caps.ocpLanguageCount = 1; }},
    {"image_sharpening_levels", "<image_sharpening_level>high</image_sharpening_level>",
     [](_Capabilities& caps) { caps.imageSharpeningLevels |= 0x4; }},
    {"security", "<encryption_algorithm>3des</encryption_algorithm>",
     [](_Capabilities& caps) { caps.security.encryptionAlgorithm = 2; }},
    {"memory", "<flash>512</flash>", [](_Capabilities& caps) { caps.flashSize = 512; }},
    {"graphic_formats", "<graphic_format/>", [](_Capabilities& caps) { caps.graphicFormatCount = 1; }},
    {"fonts", "<font/>", [](_Capabilities& caps) { caps.fontCount = 1; }},
    {"templates", "<template/>", [](_Capabilities& caps) { caps.templateCount = 1; }},
    {"graphics", "<graphic/>", [](_Capabilities& caps) { caps.graphicCount = 1; }},
    {"print_system", "direct", [](_Capabilities& caps) { caps.printSystem = 0; }},
    {"print_type", "2_side", [](_Capabilities& caps) { caps.printType = 2; }},
    {"laminator", "notpresent", [](_Capabilities& caps) { caps.laminator = false; }},
    {"laminator_type", "2_side", [](_Capabilities& caps) { caps.laminatorType = laminatorTwoSided; }},
    {"media_path", "<magazine_capacity>100</magazine_capacity>",
     [](_Capabilities& caps) { caps.magazineCapacity = 100; }},
    {"image", "<physical_page><width>638</width></physical_page>",
     [](_Capabilities& caps) { caps.physicalPageWidth = 638; }},
    {"mag_encoder", "jis", [](_Capabilities& caps) { caps.magHeadType = 5; }},
    {"mag_stripe", "front", [](_Capabilities& caps) { caps.magStripeLocation = 1; }},
    {"internal_encoder", "<comms_channel>usb</comms_channel>",
     [](_Capabilities& caps) { caps.internalEncoder.commsChannel = 2; }},
    {"barcodes", "<barcode/>", [](_Capabilities& caps) { caps.barCodeCount = 1; }},
};

/// Reads the children of the root as a host does that holds it, over a preset record.
bool walk(const std::string& children, _Capabilities& caps) {
    Xml root(element("any", children).c_str());
    caps = preset<_Capabilities>();
    return KVJCapsParser().parseCapabilities(root.root(), caps);
}

TEST(CapabilitiesElement, EachFillsWhatItIsForAndNothingElse) {
    for (const auto& [name, content, set] : elements) {
        _Capabilities caps;
        auto expected = preset<_Capabilities>();
        set(expected);
        EXPECT_TRUE(walk(element(name, content), caps)) << name;
        EXPECT_EQ(fieldsOf(caps), fieldsOf(expected)) << name;
        read(element("capabilities", element(name, content)), caps = preset<_Capabilities>());
        EXPECT_EQ(fieldsOf(caps), fieldsOf(expected)) << name;
    }
}

TEST(CapabilitiesElement, TheyMayStandInAnyOrder) {
    std::string children;
    auto expected = preset<_Capabilities>();
    for (const auto& [name, content, set] : elements) {
        children.insert(0, element(name, content));
        set(expected);
    }
    _Capabilities caps;
    EXPECT_TRUE(walk(children, caps));
    EXPECT_EQ(fieldsOf(caps), fieldsOf(expected));
}

TEST(CapabilitiesElement, WithoutContentItIsFalseAndItsFieldsAreKept) {
    for (const auto& [name, content, set] : elements) {
        auto expected = preset<_Capabilities>();
        expected.laminator = std::string(name) != "laminator";
        _Capabilities caps;
        EXPECT_FALSE(walk(element(name, ""), caps)) << name;
        EXPECT_EQ(fieldsOf(caps), fieldsOf(expected)) << name;
    }
}

TEST(CapabilitiesElement, NamesAreComparedExactly) {
    for (const auto& [word, content, set] : elements) {
        const std::string name = word;
        const std::string upper = static_cast<char>(name[0] - 'a' + 'A') + name.substr(1);
        for (const std::string& misspelt : {upper, name + "_", name.substr(1), "get_" + name}) {
            _Capabilities caps;
            EXPECT_FALSE(walk(element(misspelt, content), caps)) << misspelt;
            EXPECT_EQ(fieldsOf(caps), fieldsOf(preset<_Capabilities>())) << misspelt;
        }
    }
}

TEST(CapabilitiesElement, OnlyTheRootsOwnChildrenAreRead) {
    for (const auto& [name, content, set] : elements) {
        _Capabilities caps;
        EXPECT_FALSE(walk(element("group", element(name, content)), caps)) << name;
        EXPECT_EQ(fieldsOf(caps), fieldsOf(preset<_Capabilities>())) << name;
    }
}

TEST(CapabilitiesElement, TheResultIsThatOfTheLastOneThatIsKnown) {
    _Capabilities caps;
    EXPECT_TRUE(walk("<memory/><print_type>1_side</print_type>", caps));
    EXPECT_FALSE(walk("<print_type>1_side</print_type><memory/>", caps));
    EXPECT_TRUE(walk("<memory/><print_type>1_side</print_type><unknown/>", caps));
    EXPECT_FALSE(walk("<print_type>1_side</print_type><memory/><unknown>1</unknown>", caps));
    EXPECT_TRUE(walk("<memory/><fonts><font/></fonts>", caps));
    EXPECT_FALSE(walk("<fonts><font/></fonts><fonts/>", caps));
}

TEST(CapabilitiesElement, ASectionThatFailsDoesNotStopTheWalk) {
    _Capabilities caps;
    EXPECT_TRUE(
        walk("<memory/><security/><image><logical_page/></image><print_type/><print_type>2_side</print_type>", caps));
    EXPECT_EQ(fieldsOf(caps), fieldsOf(presetOfPrintType(2)));
}

TEST(CapabilitiesElement, ASectionThatStandsTwiceIsReadTwice) {
    _Capabilities caps;
    EXPECT_TRUE(walk("<memory><ram>1</ram><flash>2</flash></memory><memory><ram>3</ram></memory>", caps));
    auto expected = preset<_Capabilities>();
    expected.ramSize = 3;
    expected.flashSize = 2;
    EXPECT_EQ(fieldsOf(caps), fieldsOf(expected));
}

TEST(CapabilitiesElement, SharpeningLevelsOfTwoSectionsAddUp) {
    _Capabilities caps;
    EXPECT_TRUE(
        walk("<image_sharpening_levels><image_sharpening_level>off</image_sharpening_level></image_sharpening_levels>"
             "<image_sharpening_levels><image_sharpening_level>low</image_sharpening_level></image_sharpening_levels>",
             caps));
    auto expected = preset<_Capabilities>();
    expected.imageSharpeningLevels = 0x19;
    EXPECT_EQ(fieldsOf(caps), fieldsOf(expected));
}

TEST(CapabilitiesElement, EachMagneticHeadTypeHasItsCode) {
    for (const auto& [word, code] :
         {std::pair("none", 0), std::pair("iso", 1), std::pair("aamva", 2), std::pair("custom", 3),
          std::pair("binary", 4), std::pair("jis", 5), std::pair("ISO", -1), std::pair("notpresent", -1)}) {
        _Capabilities caps;
        EXPECT_TRUE(walk(element("mag_encoder", word), caps)) << word;
        EXPECT_EQ(caps.magHeadType, code) << word;
    }
}

TEST(CapabilitiesElement, AStripeIsOnTheBackOrTheFrontAndFrontWithACapitalOnNeither) {
    for (const auto& [word, code] : {std::pair("back", 0), std::pair("front", 1), std::pair("Front", -1)}) {
        _Capabilities caps;
        EXPECT_TRUE(walk(element("mag_stripe", word), caps)) << word;
        EXPECT_EQ(caps.magStripeLocation, code) << word;
    }
}

TEST(CapabilitiesElement, WithoutARootOrChildrenTheWalkIsFalse) {
    auto caps = preset<_Capabilities>();
    EXPECT_FALSE(KVJCapsParser().parseCapabilities(nullptr, caps));
    EXPECT_EQ(fieldsOf(caps), fieldsOf(preset<_Capabilities>()));
    for (const char* children : {"", "text", "<!-- none -->", "<unknown/>"}) {
        EXPECT_FALSE(walk(children, caps)) << children;
        EXPECT_EQ(fieldsOf(caps), fieldsOf(preset<_Capabilities>())) << children;
    }
}

// ---- The sample ----

/// The values of the sample that are in no list.
_Capabilities sample() {
    _Capabilities caps{};
    caps.imageSharpeningLevels = 0x7;
    caps.security = {true, 1};
    caps.ramSize = 65536;
    caps.flashSize = 131072;
    caps.printSystem = 1;
    caps.printType = 2;
    caps.magazineCapacity = 200;
    caps.logicalPageLength = 1036;
    caps.logicalPageWidth = 664;
    caps.physicalPageLength = 1012;
    caps.physicalPageWidth = 638;
    caps.printResolution = 300;
    caps.magHeadType = 1;
    caps.magStripeLocation = 1;
    caps.internalEncoder = {2, true, 2, 0, false};
    caps.laminator = true;
    caps.laminatorType = laminatorOneSided;
    caps.hostPortCount = 3;
    caps.devicePortCount = 2;
    caps.swInterfaceCount = 4;
    caps.ocpLanguageCount = 2;
    caps.graphicFormatCount = 3;
    caps.fontCount = 2;
    caps.templateCount = 2;
    caps.graphicCount = 1;
    caps.barCodeCount = 3;
    return caps;
}

TEST(CapabilitiesSample, TheFirstCallFillsAllButTheListsAndCountsThose) {
    _Capabilities caps{};
    read(contentOf(EXAMPLES_DIR "/replies/capabilities.xml"), caps);
    EXPECT_EQ(fieldsOf(caps), fieldsOf(sample()));
}

TEST(CapabilitiesSample, TheSecondCallFillsTheLists) {
    Lists lists;
    lists.hostPorts.resize(3);
    lists.devicePorts.resize(2);
    lists.swInterfaces.resize(4);
    lists.ocpLanguages.resize(2);
    lists.graphicFormats.resize(3);
    lists.fonts.resize(2);
    lists.templates.resize(2);
    lists.graphics.resize(1);
    lists.barCodes.resize(3);
    _Capabilities caps{};
    lists.lendTo(caps);
    read(contentOf(EXAMPLES_DIR "/replies/capabilities.xml"), caps);

    _Capabilities expected = sample();
    lists.lendTo(expected);
    EXPECT_EQ(fieldsOf(caps), fieldsOf(expected));
    const Lists filled{{{1, 0}, {2, 3}, {3, 4}},
                       {{12, 0}, {0, 0}},
                       {{0, 0, 161}, {1, 0, 162}, {2, 1, 80}, {3, 2, 1}},
                       {{0, "English (US)"}, {4, "Deutsch"}},
                       {1, 9, -1},
                       {{"Card Sans", true, 2}, {"Card Mono 12", false, 1}},
                       {{"staff badge", "/flash/templates/badge"}, {"day pass", "/flash/templates/pass"}},
                       {{"logo", "/flash/graphics/logo"}},
                       {{"code_39"}, {"code_128"}, {"pdf417"}}};
    EXPECT_EQ(fieldsOf(lists), fieldsOf(filled));
}

}  // namespace

}  // namespace replies_test
