// Who a printer is to be, as a request: to the byte, and with the copy that the service engineer finds.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <tinyxml.h>

#include <algorithm>
#include <climits>
#include <cstring>
#include <filesystem>
#include <iterator>
#include <string>
#include <utility>

#include "KVJPrinterIDParser.h"
#include "KVJSetPrinterInfo.h"
#include "support/copy_scope.h"
#include "support/files.h"
#include "support/xml.h"

namespace set_printer_info_test {

namespace {

using namespace Kavrin;
using namespace kvj::tests;

const std::filesystem::path copyPath = "/tmp/printidsettings";
constexpr int room = 20'000;

/// A request with these children of its root, each on a line of its own.
std::string request(const std::string& children) {
    const std::string declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n";
    return declaration + (children.empty() ? "<printer_id />\n" : "<printer_id>\n" + children + "</printer_id>\n");
}

const std::string model = "    <printer_model>CX-2</printer_model>\n";
const std::string printhead = "    <printhead_serial>PH-77</printhead_serial>\n";

/// A value in every field, and nothing in those that have no element.
KVPrinterInfo fullIdentity() {
    return {"Example",
            "CX-2",
            417,
            20088,
            {0, 1, 2, 10, 11, 255},
            "PH-77",
            "EU",
            "2.14",
            "1.08",
            "0.97b",
            "",
            "3.2.0",
            "1.1",
            "4.0",
            "MFG:Example;",
            0x1F,
            0,
            {2, 255, 0, 10, 16, 195}};
}

class SetPrinterInfo : public testing::Test {
protected:
    const CopyScope scope;
    KVPrinterInfo info = fullIdentity();
    KVJSetPrinterInfo composer;

    /// Calls `print` with a buffer that has room for everything, and gives the text that it leaves there.
    template <class Print>
    static std::string printed(Print print) {
        std::wstring out(room, L'\0');
        EXPECT_TRUE(print(out.data()));
        std::string text;
        for (const wchar_t c : std::wstring(out.c_str())) text += static_cast<char>(c);
        return text;
    }
    std::string composed(long mask, KVJSetPrinterInfo&& fresh = {}) {
        return printed([&](wchar_t* out) { return fresh.SetPrinterInfo(info, out, room, mask); });
    }
};

// ---- What is selected ----

TEST_F(SetPrinterInfo, WritesWhatTheMaskSelectsInOneOrder) {
    const std::pair<long, std::string> selections[] = {
        {0x0, ""}, {0x1, model}, {0x2, printhead}, {0x3, model + printhead}};
    for (const auto& [mask, children] : selections) EXPECT_EQ(composed(mask), request(children)) << mask;
}

TEST_F(SetPrinterInfo, IgnoresOtherBits) {
    for (const long others : {0x4L, 0x8L, 0x100L, 0x7FFF'FFFCL, LONG_MIN, ~0x3L}) {
        EXPECT_EQ(composed(others), request("")) << others;
        EXPECT_EQ(composed(others | 0x1), request(model)) << others;
        EXPECT_EQ(composed(others | 0x2), request(printhead)) << others;
        EXPECT_EQ(composed(others | 0x3), request(model + printhead)) << others;
    }
}

TEST_F(SetPrinterInfo, AnEmptyTextIsThere) {
    info.printer_model[0] = '\0';
    EXPECT_EQ(composed(0x1), request("    <printer_model></printer_model>\n"));
}

TEST_F(SetPrinterInfo, TextsAreEscaped) {
    std::strcpy(info.printer_model, "R & D <2> \"x\"");
    EXPECT_EQ(composed(0x1), request("    <printer_model>R &amp; D &lt;2&gt; &quot;x&quot;</printer_model>\n"));
}

TEST_F(SetPrinterInfo, TextsWithoutATerminatorAreNotReadBeyondTheirFields) {
    std::fill(std::begin(info.printer_model), std::end(info.printer_model), 'm');
    std::fill(std::begin(info.printhead_serial), std::end(info.printhead_serial), 'p');
    // No zero byte follows either of them.
    info.printer_serial = UINT_MAX;
    EXPECT_EQ(composed(0x3),
              request("    <printer_model>" + std::string(32, 'm') + "</printer_model>\n    <printhead_serial>" +
                      std::string(32, 'p') + "</printhead_serial>\n"));
}

// ---- Parts ----

TEST_F(SetPrinterInfo, AddsTheSelectedElementsToAnElementOfTheHosts) {
    const std::pair<long, std::string> selections[] = {
        {0x0, "<p />"},
        {0x1, "<p><printer_model>CX-2</printer_model></p>"},
        {0x2, "<p><printhead_serial>PH-77</printhead_serial></p>"},
        {0x3, "<p><printer_model>CX-2</printer_model><printhead_serial>PH-77</printhead_serial></p>"},
        {0x4, "<p />"}};
    for (const auto& [mask, text] : selections) {
        TiXmlElement parent("p");
        EXPECT_TRUE(composer.addPrinterInfo(&parent, info, mask)) << mask;
        EXPECT_EQ(written(parent), text);
    }
}

TEST_F(SetPrinterInfo, UnderNoElementTheSelectionIsFalseUnlessThereIsNothingToAdd) {
    EXPECT_FALSE(composer.addPrinterInfo(nullptr, info, 0x1));
    EXPECT_FALSE(composer.addPrinterInfo(nullptr, info, 0x2));
    EXPECT_FALSE(composer.addPrinterInfo(nullptr, info, 0x3));
    EXPECT_TRUE(composer.addPrinterInfo(nullptr, info, 0x0));
    EXPECT_TRUE(composer.addPrinterInfo(nullptr, info, 0x4));
}

// ---- The full identity ----

TEST_F(SetPrinterInfo, TheFullIdentityHasTwelveElementsInOrder) {
    TiXmlElement parent("p");
    EXPECT_TRUE(composer.addPrinterInfo(&parent, info));
    EXPECT_EQ(written(parent),
              "<p><vendor>Example</vendor><printer_model>CX-2</printer_model><printer_serial>417</printer_serial>"
              "<laminator_serial>20088</laminator_serial><physical_address>00:01:02:0a:0b:ff</physical_address>"
              "<printhead_serial>PH-77</printhead_serial><oem_country>EU</oem_country>"
              "<media_auth_cfg>0x1f</media_auth_cfg><firmware_version>2.14</firmware_version>"
              "<kavrin_version>4.0</kavrin_version><ethernet_deviceid>MFG:Example;</ethernet_deviceid>"
              "<wireless_physical_address>02:ff:00:0a:10:c3</wireless_physical_address></p>");
}

TEST_F(SetPrinterInfo, TheFullIdentityOfAnEmptyRecordHasEmptyTextsAndZeros) {
    TiXmlElement parent("p");
    EXPECT_TRUE(composer.addPrinterInfo(&parent, KVPrinterInfo{}));
    EXPECT_EQ(written(parent),
              "<p><vendor></vendor><printer_model></printer_model><printer_serial>0</printer_serial>"
              "<laminator_serial>0</laminator_serial><physical_address>00:00:00:00:00:00</physical_address>"
              "<printhead_serial></printhead_serial><oem_country></oem_country><media_auth_cfg>0x00</media_auth_cfg>"
              "<firmware_version></firmware_version><kavrin_version></kavrin_version>"
              "<ethernet_deviceid></ethernet_deviceid>"
              "<wireless_physical_address>00:00:00:00:00:00</wireless_physical_address></p>");
}

/// One element of the full identity.
std::string elementOf(const KVPrinterInfo& info, const std::string& name) {
    TiXmlElement parent("p");
    EXPECT_TRUE(KVJSetPrinterInfo().addPrinterInfo(&parent, info));
    const TiXmlElement* element = parent.FirstChildElement(name);
    return element == nullptr ? "" : written(*element);
}

TEST_F(SetPrinterInfo, TheMediaAuthenticationHasAtLeastTwoDigitsAndAllThatItNeeds) {
    const std::pair<unsigned int, std::string> settings[] = {
        {0, "0x00"},    {5, "0x05"},      {31, "0x1f"},         {255, "0xff"},
        {256, "0x100"}, {0x1FF, "0x1ff"}, {0xABCDE, "0xabcde"}, {UINT_MAX, "0xffffffff"}};
    for (const auto& [setting, text] : settings) {
        info.media_auth_cfg = setting;
        EXPECT_EQ(elementOf(info, "media_auth_cfg"), "<media_auth_cfg>" + text + "</media_auth_cfg>");
    }
}

TEST_F(SetPrinterInfo, SerialNumbersAreUnsigned) {
    info.printer_serial = UINT_MAX;
    info.laminator_serial = 0x8000'0000;
    EXPECT_EQ(elementOf(info, "printer_serial"), "<printer_serial>4294967295</printer_serial>");
    EXPECT_EQ(elementOf(info, "laminator_serial"), "<laminator_serial>2147483648</laminator_serial>");
}

TEST_F(SetPrinterInfo, NoTextOfTheFullIdentityIsReadBeyondItsField) {
    std::memset(&info, 'x', sizeof info);
    const std::pair<const char*, std::size_t> texts[] = {
        {"vendor", 32},           {"printer_model", 32},  {"printhead_serial", 32},  {"oem_country", 8},
        {"firmware_version", 32}, {"kavrin_version", 32}, {"ethernet_deviceid", 256}};
    for (const auto& [name, size] : texts) {
        const std::string tag = name;
        EXPECT_EQ(elementOf(info, tag), "<" + tag + ">" + std::string(size, 'x') + "</" + tag + ">");
    }
}

TEST_F(SetPrinterInfo, TheFullIdentityIsTrueEvenUnderNoElement) {
    EXPECT_TRUE(composer.addPrinterInfo(nullptr, info));
    EXPECT_TRUE(composer.NoChildren());
}

// ---- And back ----

/// A record with zero in every byte, so that records can be compared by their bytes.
class ZeroedInfo : public KVPrinterInfo {
public:
    ZeroedInfo() { std::memset(static_cast<KVPrinterInfo*>(this), 0, sizeof(KVPrinterInfo)); }
    [[nodiscard]] std::string bytes() const {
        return {reinterpret_cast<const char*>(static_cast<const KVPrinterInfo*>(this)), sizeof(KVPrinterInfo)};
    }
};

TEST_F(SetPrinterInfo, TheFullIdentityReadBackLosesTheVersionsOfTheSingleBoards) {
    KVJPrinterIDParser parser;
    ZeroedInfo before;
    ASSERT_TRUE(parser.ParsePrinterInfo(contentOf(EXAMPLES_DIR "/replies/printer_id.xml").c_str(), 0, before));
    TiXmlElement root("printer_id");
    composer.addPrinterInfo(&root, before);
    ZeroedInfo back;
    EXPECT_TRUE(parser.ParsePrinterInfo(written(root).c_str(), 0, back));
    for (auto version : {&KVPrinterInfo::laminator_fw_version, &KVPrinterInfo::lam_mab_fw_version,
                         &KVPrinterInfo::hcb_fw_version, &KVPrinterInfo::mab_fw_version}) {
        std::memset(before.*version, 0, sizeof(before.*version));
    }
    EXPECT_EQ(back.bytes(), before.bytes());
}

TEST_F(SetPrinterInfo, AMediaAuthenticationAbove255ReadsBackCut) {
    info.media_auth_cfg = 0x1FF;
    TiXmlElement root("printer_id");
    composer.addPrinterInfo(&root, info);
    KVPrinterInfo back{};
    EXPECT_TRUE(KVJPrinterIDParser().parsePrinterInfo(&root, back));
    EXPECT_EQ(back.media_auth_cfg, 0x1FU);
}

// ---- Delivery ----

TEST_F(SetPrinterInfo, ASecondRequestWithOneObjectGivesADocumentWithTwoRoots) {
    const auto compose = [&](long mask) {
        return printed([&](wchar_t* out) { return composer.SetPrinterInfo(info, out, room, mask); });
    };
    EXPECT_EQ(compose(0x1), request(model));
    EXPECT_EQ(compose(0x2), request(model) + request(printhead));
    EXPECT_EQ(contentOf(copyPath), request(model) + request(printhead));
}

TEST_F(SetPrinterInfo, ARequestIsCutAtTheCapacityAndTerminatedWhenThereIsRoom) {
    const std::wstring text = wide(request(model));
    const int length = static_cast<int>(text.size());
    for (const int capacity : {0, 1, 5, length - 1, length, length + 1}) {
        std::wstring out(text.size() + 2, L'#');
        EXPECT_TRUE(KVJSetPrinterInfo().SetPrinterInfo(info, out.data(), capacity, 0x1)) << capacity;
        std::wstring expected = text.substr(0, static_cast<std::size_t>(capacity));
        if (capacity > length) expected += L'\0';
        expected.resize(text.size() + 2, L'#');
        EXPECT_EQ(out, expected) << capacity;
    }
}

TEST_F(SetPrinterInfo, ANegativeCapacityIsFalseAndWritesNothing) {
    wchar_t out[4] = L"###";
    EXPECT_FALSE(composer.SetPrinterInfo(info, out, -1, 0x1));
    EXPECT_STREQ(out, L"###");
}

TEST_F(SetPrinterInfo, CanBeSavedToAFileOfTheHosts) {
    const TemporaryFolder folder;
    std::string path = (folder / "printer_id.xml").string();
    composer.SetPrinterInfo(info, nullptr, 0, 0x3);
    EXPECT_TRUE(composer.saveJob(path.data()));
    EXPECT_EQ(contentOf(path), request(model + printhead));
    EXPECT_FALSE(composer.saveJob(static_cast<char*>(nullptr)));
    std::string nowhere = (folder / "no folder/printer_id.xml").string();
    EXPECT_FALSE(composer.saveJob(nowhere.data()));
}

TEST_F(SetPrinterInfo, CanBePrintedAgainWithWhatTheHostAdded) {
    composer.SetPrinterInfo(info, nullptr, 0, 0x0);
    EXPECT_TRUE(composer.addPrinterInfo(composer.RootElement(), info, 0x2));
    EXPECT_EQ(printed([&](wchar_t* out) { return composer.saveJob(out, room); }), request(printhead));
    EXPECT_EQ(contentOf(copyPath), request(printhead));
}

// ---- The copy ----

/// The permissions of the copy; none when it is not there.
unsigned permissions() {
    struct stat status {};
    return stat(copyPath.c_str(), &status) == 0 ? status.st_mode & 07777U : 0;
}

TEST_F(SetPrinterInfo, LeavesACopyThatOnlyItsOwnerCanRead) {
    for (const long mask : {0x3L, 0x1L, 0x0L}) {
        const std::string text = composed(mask);
        EXPECT_EQ(contentOf(copyPath), text);
        EXPECT_EQ(permissions(), 0600U);
    }
}

TEST_F(SetPrinterInfo, TakesACopyFromBeforeFromOtherReaders) {
    write(copyPath, std::string(1000, '#'));
    std::filesystem::permissions(copyPath, std::filesystem::perms(0644));
    composed(0x1);
    EXPECT_EQ(contentOf(copyPath), request(model));
    EXPECT_EQ(permissions(), 0600U);
}

TEST_F(SetPrinterInfo, WithoutABufferItIsFalseAndLeavesTheCopyAllTheSame) {
    EXPECT_FALSE(composer.SetPrinterInfo(info, nullptr, room, 0x3));
    EXPECT_EQ(contentOf(copyPath), request(model + printhead));
    EXPECT_EQ(permissions(), 0600U);
    std::filesystem::remove(copyPath);
    EXPECT_FALSE(composer.saveJob(static_cast<wchar_t*>(nullptr), room));
    EXPECT_EQ(contentOf(copyPath), request(model + printhead));
}

TEST_F(SetPrinterInfo, TheCopyIsWholeWhereTheRequestIsCut) {
    wchar_t out[5];
    EXPECT_TRUE(composer.SetPrinterInfo(info, out, 5, 0x3));
    EXPECT_EQ(contentOf(copyPath), request(model + printhead));
}

TEST_F(SetPrinterInfo, NeitherAddingNorSavingToAFileOfTheHostsLeavesACopy) {
    const TemporaryFolder folder;
    std::string path = (folder / "printer_id.xml").string();
    TiXmlElement parent("p");
    composer.addPrinterInfo(&parent, info);
    composer.addPrinterInfo(&parent, info, 0x3);
    EXPECT_TRUE(composer.saveJob(path.data()));
    EXPECT_FALSE(std::filesystem::exists(copyPath));
}

TEST_F(SetPrinterInfo, IsDeliveredWhenTheCopyCannotBeWritten) {
    std::filesystem::create_directory(copyPath);
    EXPECT_EQ(composed(0x3), request(model + printhead));
}

}  // namespace

}  // namespace set_printer_info_test
