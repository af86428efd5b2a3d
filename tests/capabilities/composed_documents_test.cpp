// The request "capabilities" to the byte: what each mode writes, and how it gets into the host's buffer or a file.
#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <iterator>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "KVJCapsParser.h"
#include "KVJSetCaps.h"
#include "capabilities/records.h"
#include "capabilities/whole.h"
#include "support/files.h"
#include "support/xml.h"

namespace composed_documents_test {

namespace {

using namespace kvj::tests;

const std::string declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n";

constexpr int wholeMode = 0;
constexpr int magEncoderMode = 1;
constexpr int encoderMode = 2;
constexpr bool direct = true;
constexpr bool transfer = false;

std::string document(const std::string& name) { return contentOf(std::string(DOCUMENTS_DIR "/") + name + ".xml"); }

/// A document with one of its parts exchanged, which has to be there.
std::string with(std::string text, const std::string& part, const std::string& other) {
    const auto at = text.find(part);
    if (at == std::string::npos) throw std::invalid_argument("not in the document: " + part);
    return text.replace(at, part.size(), other);
}

std::string composed(const _Capabilities& caps, int mode, bool directToCard = transfer) {
    std::wstring out(100000, L'\0');
    EXPECT_TRUE(KVJSetCaps().SetCapabilities(caps, out.data(), static_cast<int>(out.size()), mode, directToCard));
    std::string text;
    for (const wchar_t c : std::wstring(out.c_str())) text += static_cast<char>(c);
    return text;
}

/// What addCapabilities writes into an element of the host's, without white space, and its result.
std::pair<std::string, bool> added(const _Capabilities& caps, int mode) {
    TiXmlElement root("r");
    const bool result = KVJSetCaps().addCapabilities(&root, caps, mode);
    return {written(root), result};
}

/// One element of the whole description.
std::string elementOfWhole(const _Capabilities& caps, const char* name) {
    TiXmlElement root("r");
    KVJSetCaps().addCapabilities(&root, caps, wholeMode);
    const TiXmlElement* element = root.FirstChildElement(name);
    return element == nullptr ? "" : written(*element);
}

// ---- The whole description ----

TEST(WholeDescription, HasEveryElementInThePrintersOrder) {
    EXPECT_EQ(composed(Whole().caps, wholeMode), document("whole"));
}

TEST(WholeDescription, OfAZeroRecordHasAllButFourListsAndTheLaminatorType) {
    EXPECT_EQ(composed({}, wholeMode), document("zero"));
}

TEST(WholeDescription, ThePrintSystemIsWhatTheComposerIsToldWhateverTheRecordHolds) {
    const std::string directDocument = with(document("whole"), "<print_system>retransfer</print_system>",
                                            "<print_system>direct_to_card</print_system>");
    Whole whole;
    for (const int printSystem : {-1, 0, 1, 2}) {
        whole.caps.printSystem = printSystem;
        EXPECT_EQ(composed(whole.caps, wholeMode, direct), directDocument) << printSystem;
        EXPECT_EQ(composed(whole.caps, wholeMode, transfer), document("whole")) << printSystem;
    }
}

TEST(WholeDescription, APrintTypeWithoutAWordIsEmpty) {
    for (const auto& [code, text] : {std::pair(1, "1_side"), std::pair(2, "2_side"), std::pair(0, ""), std::pair(3, ""),
                                     std::pair(-1, ""), std::pair(INT_MAX, "")}) {
        _Capabilities caps{};
        caps.printType = code;
        EXPECT_EQ(elementOfWhole(caps, "print_type"), element("print_type", text)) << code;
    }
}

TEST(WholeDescription, UnderAnElementOfTheHostsHasThePrintSystemOfTheLastDocument) {
    const _Capabilities caps{};
    KVJSetCaps composer;
    for (const auto& [directToCard, word] : {std::pair(direct, "direct_to_card"), std::pair(transfer, "retransfer")}) {
        wchar_t out[10000];
        EXPECT_TRUE(composer.SetCapabilities(caps, out, static_cast<int>(std::size(out)), wholeMode, directToCard));
        TiXmlElement root("r");
        composer.addCapabilities(&root, caps, wholeMode);
        ASSERT_NE(root.FirstChildElement("print_system"), nullptr);
        EXPECT_EQ(written(*root.FirstChildElement("print_system")), element("print_system", word));
    }
}

std::string withLaminatorType(const std::string& word) {
    std::string text = document("whole");
    for (const char* name : {"laminator_type", "mag_encoder", "mag_stripe"}) {
        text = with(text, element(name, "1_side"), element(name, word));
    }
    return text;
}

TEST(WholeDescription, TheMagneticElementsCarryTheLaminatorsTypeAndNotThatOfTheHead) {
    for (const auto& [type, word] : {std::pair(0, "none"), std::pair(1, "1_side"), std::pair(2, "2_side"),
                                     std::pair(3, ""), std::pair(-1, ""), std::pair(INT_MAX, "")}) {
        Whole whole;
        whole.caps.laminatorType = static_cast<_laminatorType>(type);
        for (const int code : {-1, 0, 1, 2, 5}) {
            whole.caps.magHeadType = code;
            whole.caps.magStripeLocation = code;
            EXPECT_EQ(composed(whole.caps, wholeMode), withLaminatorType(word)) << type << ' ' << code;
        }
    }
}

TEST(WholeDescription, WithoutALaminatorTheMagneticElementsSayNotPresentAndThereIsNoType) {
    std::string expected = document("whole");
    expected = with(expected, "    <laminator_type>1_side</laminator_type>\n", "");
    for (const char* name : {"mag_encoder", "mag_stripe"}) {
        expected = with(expected, element(name, "1_side"), element(name, "notpresent"));
    }
    expected = with(expected, element("laminator", "present"), element("laminator", "notpresent"));
    for (const int type : {-1, 0, 1, 2, 3}) {
        Whole whole;
        whole.caps.laminator = false;
        whole.caps.laminatorType = static_cast<_laminatorType>(type);
        EXPECT_EQ(composed(whole.caps, wholeMode), expected) << type;
    }
}

TEST(WholeDescription, OfZeroEntriesFourSectionsAreLeftOutAndFiveAreEmpty) {
    const std::string text = composed({}, wholeMode);
    for (const char* name : {"host_ports", "device_ports", "software_interfaces", "ocp_languages"}) {
        EXPECT_EQ(text.find(name), std::string::npos) << name;
    }
    for (const char* name : {"graphic_formats", "fonts", "templates", "graphics", "barcodes"}) {
        EXPECT_NE(text.find("    " + emptyElement(name) + "\n"), std::string::npos) << name;
    }
}

constexpr const char* listSections[] = {"host_ports",    "device_ports",    "software_interfaces",
                                        "ocp_languages", "graphic_formats", "fonts",
                                        "templates",     "graphics",        "barcodes"};

void setCounts(_Capabilities& caps, int count) {
    for (int _Capabilities::*field :
         {&_Capabilities::hostPortCount, &_Capabilities::devicePortCount, &_Capabilities::swInterfaceCount,
          &_Capabilities::ocpLanguageCount, &_Capabilities::graphicFormatCount, &_Capabilities::fontCount,
          &_Capabilities::templateCount, &_Capabilities::graphicCount, &_Capabilities::barCodeCount}) {
        caps.*field = count;
    }
}

TEST(WholeDescription, ANegativeCountGivesAnEmptySection) {
    for (const int count : {-1, INT_MIN}) {
        Whole whole;
        setCounts(whole.caps, count);
        for (const char* name : listSections) {
            EXPECT_EQ(elementOfWhole(whole.caps, name), emptyElement(name)) << count;
        }
    }
}

TEST(WholeDescription, ANullArrayGivesAnEmptySectionWhateverItsCount) {
    for (const int count : {-1, 1, 3, INT_MAX}) {
        _Capabilities caps{};
        setCounts(caps, count);
        for (const char* name : listSections) {
            EXPECT_EQ(elementOfWhole(caps, name), emptyElement(name)) << count;
        }
    }
}

TEST(WholeDescription, OfAnArrayAsManyEntriesAreWrittenAsTheCountSays) {
    Whole whole;
    setCounts(whole.caps, 1);
    EXPECT_EQ(elementOfWhole(whole.caps, "host_ports"),
              "<host_ports><host_port><port_id>1</port_id><type>usb_2_0</type></host_port></host_ports>");
    EXPECT_EQ(elementOfWhole(whole.caps, "graphic_formats"),
              "<graphic_formats><graphic_format>bmp</graphic_format></graphic_formats>");
    EXPECT_EQ(elementOfWhole(whole.caps, "barcodes"), "<barcodes><barcode>code_39</barcode></barcodes>");
}

TEST(WholeDescription, AfterARefusedReadingTheNumberNeededIsWhatIsWritten) {
    std::vector<int> formats{1, 2, 8};
    _Capabilities caps{};
    caps.graphicFormatCount = 2;
    caps.graphicFormats = formats.data();
    Xml reply(
        "<graphic_formats><graphic_format>raw</graphic_format><graphic_format>raw</graphic_format>"
        "<graphic_format>raw</graphic_format></graphic_formats>");
    EXPECT_TRUE(KVJCapsParser().getGraphicFormatCaps(reply.root(), caps));
    EXPECT_EQ(elementOfWhole(caps, "graphic_formats"),
              "<graphic_formats><graphic_format>bmp</graphic_format><graphic_format>jpeg</graphic_format>"
              "<graphic_format>tga</graphic_format></graphic_formats>");
}

TEST(WholeDescription, ItsResultIsThatOfTheLastBarCode) {
    Whole whole;
    EXPECT_TRUE(added(whole.caps, wholeMode).second);
    for (const int count : {0, -1}) {
        whole.caps.barCodeCount = count;
        EXPECT_FALSE(added(whole.caps, wholeMode).second) << count;
    }
    whole.caps.barCodeCount = 2;
    whole.caps.barCodes = nullptr;
    EXPECT_FALSE(added(whole.caps, wholeMode).second);
}

TEST(WholeDescription, TextsAreEscaped) {
    std::vector<_BarCodeCaps> barCodes{{"<a> & \"b\" 'c'"}};
    _Capabilities caps{};
    caps.barCodeCount = 1;
    caps.barCodes = barCodes.data();
    EXPECT_EQ(composed(caps, wholeMode),
              with(document("zero"), "<barcodes />",
                   "<barcodes>\n        <barcode>&lt;a&gt; &amp; &quot;b&quot; &apos;c&apos;</barcode>\n"
                   "    </barcodes>"));
}

// ---- The magnetic encoder alone ----

TEST(MagneticEncoderAlone, IsTheWordOfTheHeadAndNothingElse) {
    for (const auto& [code, word] :
         {std::pair(0, "none"), std::pair(1, "iso"), std::pair(2, "aamva"), std::pair(3, "custom"),
          std::pair(4, "binary"), std::pair(5, ""), std::pair(6, ""), std::pair(-1, ""), std::pair(INT_MIN, "")}) {
        Whole whole;
        whole.caps.magHeadType = code;
        EXPECT_EQ(composed(whole.caps, magEncoderMode),
                  declaration + "<capabilities>\n    " + element("mag_encoder", word) + "\n</capabilities>\n");
        EXPECT_EQ(added(whole.caps, magEncoderMode), std::pair("<r>" + element("mag_encoder", word) + "</r>", true));
    }
}

// ---- The smart-card encoder alone ----

struct EncoderCase {
    _InternalEncoderInfo encoder;
    std::string content;
    bool result;
};
const std::string usb = "<comms_channel>usb_2_0</comms_channel>";
const std::string contact = "<contact_encoding>yes</contact_encoding>";
const std::string mifare = "<contactless_encoder>mifare</contactless_encoder>";
const std::string otherContactless = "<contactless_encoder></contactless_encoder>";
const std::string station = "<contact_station>yes</contact_station>";
/// Channel, contact encoding, contactless encoder, second contactless encoder, contact station.
const EncoderCase encoderCases[] = {
    {{0, false, 0, 0, false}, "", false},
    {{0, false, 0, 5, false}, "", false},
    {{0, false, 0, 0, true}, station, true},
    {{1, false, 0, 0, false}, "<internal_encoder />", true},
    {{2, false, 0, 0, false}, "<internal_encoder />", true},
    {{-1, false, 0, 0, true}, station + "<internal_encoder />", true},
    {{0, true, 0, 0, false}, element("internal_encoder", usb + contact), true},
    {{1, true, 0, 0, false}, element("internal_encoder", usb + contact), true},
    {{0, false, 1, 0, false}, element("internal_encoder", usb + mifare), true},
    {{1, false, 1, 2, false}, element("internal_encoder", usb + mifare), true},
    {{0, false, 2, 0, false}, element("internal_encoder", usb + otherContactless), true},
    {{0, false, 5, 0, false}, element("internal_encoder", usb + otherContactless), true},
    {{0, false, -1, 0, false}, element("internal_encoder", usb + otherContactless), true},
    {{2, true, 1, 0, true}, station + element("internal_encoder", usb + contact + mifare), true},
    {{2, true, 2, 0, true}, station + element("internal_encoder", usb + contact + otherContactless), true},
};

TEST(EncoderAlone, HasWhatThereIsOfIt) {
    for (const auto& [encoder, content, result] : encoderCases) {
        Whole whole;
        whole.caps.internalEncoder = encoder;
        const std::string root = content.empty() ? "<r />" : element("r", content);
        EXPECT_EQ(added(whole.caps, encoderMode), std::pair(root, result));
        TiXmlElement alone("r");
        EXPECT_EQ(KVJSetCaps().addInternalEncoderOnly(&alone, encoder), result) << content;
        EXPECT_EQ(written(alone), root);
    }
}

TEST(EncoderAlone, AsADocument) {
    Whole whole;
    EXPECT_EQ(composed(whole.caps, encoderMode), declaration +
                                                     "<capabilities>\n"
                                                     "    <contact_station>yes</contact_station>\n"
                                                     "    <internal_encoder>\n"
                                                     "        <comms_channel>usb_2_0</comms_channel>\n"
                                                     "        <contact_encoding>yes</contact_encoding>\n"
                                                     "        <contactless_encoder>mifare</contactless_encoder>\n"
                                                     "    </internal_encoder>\n"
                                                     "</capabilities>\n");
    whole.caps.internalEncoder = {0, false, 1, 0, false};
    EXPECT_EQ(composed(whole.caps, encoderMode), declaration +
                                                     "<capabilities>\n"
                                                     "    <internal_encoder>\n"
                                                     "        <comms_channel>usb_2_0</comms_channel>\n"
                                                     "        <contactless_encoder>mifare</contactless_encoder>\n"
                                                     "    </internal_encoder>\n"
                                                     "</capabilities>\n");
}

TEST(EncoderAlone, WithoutAnyEncoderTheRootIsEmpty) {
    Whole whole;
    whole.caps.internalEncoder = {};
    EXPECT_EQ(composed(whole.caps, encoderMode), declaration + "<capabilities />\n");
}

// ---- Any mode ----

TEST(CapabilitiesRequest, AnyOtherModeWritesAnEmptyRootAndIsFalse) {
    for (const int mode : {3, -1, 4, INT_MIN, INT_MAX}) {
        EXPECT_EQ(composed(Whole().caps, mode), declaration + "<capabilities />\n") << mode;
        EXPECT_EQ(added(Whole().caps, mode), std::pair(std::string("<r />"), false)) << mode;
    }
}

TEST(CapabilitiesRequest, TheFlagCountsInTheWholeDescriptionOnly) {
    for (const int mode : {magEncoderMode, encoderMode, 3}) {
        EXPECT_EQ(composed(Whole().caps, mode, direct), composed(Whole().caps, mode, transfer)) << mode;
    }
}

TEST(CapabilitiesRequest, WithoutARootNothingIsAddedAndItIsFalse) {
    for (const int mode : {wholeMode, magEncoderMode, encoderMode, 3}) {
        EXPECT_FALSE(KVJSetCaps().addCapabilities(nullptr, Whole().caps, mode)) << mode;
    }
}

TEST(CapabilitiesRequest, TheHostsOwnElementIsAddedTo) {
    TiXmlElement root("r");
    root.LinkEndChild(new TiXmlElement("before"));
    KVJSetCaps composer;
    EXPECT_TRUE(composer.addCapabilities(&root, Whole().caps, magEncoderMode));
    EXPECT_TRUE(composer.addCapabilities(&root, Whole().caps, magEncoderMode));
    EXPECT_EQ(written(root), "<r><before /><mag_encoder>aamva</mag_encoder><mag_encoder>aamva</mag_encoder></r>");
    EXPECT_TRUE(composer.NoChildren());
}

TEST(CapabilitiesRequest, TheRecordIsLeftAsItIs) {
    const Whole whole;
    const Whole same;
    auto expected = same.caps;
    for (const int mode : {wholeMode, magEncoderMode, encoderMode}) composed(whole.caps, mode);
    auto caps = whole.caps;
    Lists none;
    none.lendTo(caps);
    none.lendTo(expected);
    EXPECT_EQ(fieldsOf(caps), fieldsOf(expected));
    EXPECT_EQ(fieldsOf(whole.lists), fieldsOf(same.lists));
}

TEST(CapabilitiesRequest, ASecondCompositionOnOneObjectAddsASecondDeclarationAndRoot) {
    KVJSetCaps composer;
    std::wstring out(100000, L'\0');
    const int room = static_cast<int>(out.size());
    const Whole whole;
    EXPECT_TRUE(composer.SetCapabilities(whole.caps, out.data(), room, magEncoderMode, transfer));
    EXPECT_TRUE(composer.SetCapabilities(whole.caps, out.data(), room, wholeMode, direct));
    EXPECT_EQ(std::wstring(out.c_str()),
              wide(composed(whole.caps, magEncoderMode, transfer) + composed(whole.caps, wholeMode, direct)));
}

// ---- The host's buffer ----

TEST(CapabilitiesRequest, WithoutABufferItIsFalseAndComposedAllTheSame) {
    KVJSetCaps composer;
    EXPECT_FALSE(composer.SetCapabilities(Whole().caps, nullptr, 100, magEncoderMode, transfer));
    std::wstring out(1000, L'\0');
    EXPECT_TRUE(composer.saveJob(out.data(), 1000));
    EXPECT_EQ(std::wstring(out.c_str()), wide(composed(Whole().caps, magEncoderMode)));
}

TEST(CapabilitiesRequest, IsCutAtTheCapacityAndTerminatedWhenThereIsRoom) {
    const std::wstring text = wide(document("whole"));
    const int length = static_cast<int>(text.size());
    for (const int capacity : {0, 1, 100, length - 1, length, length + 1, length + 2}) {
        std::wstring out(text.size() + 3, L'#');
        EXPECT_TRUE(KVJSetCaps().SetCapabilities(Whole().caps, out.data(), capacity, wholeMode, transfer)) << capacity;
        std::wstring expected = text.substr(0, static_cast<std::size_t>(capacity));
        if (capacity > length) expected += L'\0';
        expected.resize(text.size() + 3, L'#');
        EXPECT_EQ(out, expected) << capacity;
    }
}

TEST(CapabilitiesRequest, ANegativeCapacityIsFalseAndWritesNothing) {
    for (const int capacity : {-1, INT_MIN}) {
        std::wstring out(10, L'#');
        EXPECT_FALSE(KVJSetCaps().SetCapabilities(Whole().caps, out.data(), capacity, wholeMode, transfer));
        EXPECT_EQ(out, std::wstring(10, L'#'));
    }
}

TEST(CapabilitiesRequest, CanBePrintedAgain) {
    KVJSetCaps composer;
    std::wstring first(1000, L'\0');
    std::wstring second(1000, L'\0');
    EXPECT_TRUE(composer.SetCapabilities(Whole().caps, first.data(), 1000, encoderMode, transfer));
    EXPECT_TRUE(composer.saveJob(second.data(), 1000));
    EXPECT_EQ(first, second);
    EXPECT_FALSE(composer.saveJob(nullptr, 1000));
}

// ---- Files ----

TEST(CapabilitiesRequest, CanBeSavedToAFile) {
    const TemporaryFolder folder;
    std::string path = (folder / "capabilities").string();
    KVJSetCaps composer;
    composer.SetCapabilities(Whole().caps, nullptr, 0, wholeMode, transfer);
    EXPECT_TRUE(composer.saveJob(path.data()));
    EXPECT_EQ(contentOf(path), document("whole"));
}

TEST(CapabilitiesRequest, IsNotSavedWithoutANameOrWhereNoFileCanBe) {
    const TemporaryFolder folder;
    std::string path = (folder / "nowhere/capabilities").string();
    KVJSetCaps composer;
    composer.SetCapabilities({}, nullptr, 0, wholeMode, transfer);
    EXPECT_FALSE(composer.saveJob(static_cast<char*>(nullptr)));
    EXPECT_FALSE(composer.saveJob(path.data()));
}

}  // namespace

}  // namespace composed_documents_test
