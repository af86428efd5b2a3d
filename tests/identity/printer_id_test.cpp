// The reply "printer_id": who a printer is.
#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <cstddef>
#include <cstring>
#include <ostream>
#include <string>
#include <utility>

#include "KVJPrinterIDParser.h"
#include "support/files.h"
#include "support/xml.h"

namespace printer_id_test {

namespace {

using Kavrin::KVJPrinterIDParser;
using Kavrin::KVPrinterInfo;
using kvj::tests::contentOf;
using kvj::tests::Xml;

std::string tag(const std::string& name, const std::string& content) {
    return "<" + name + ">" + content + "</" + name + ">";
}

/// A record with the same value in every byte, which no test writes.
class PrinterId : public testing::Test {
protected:
    PrinterId() { reset(); }

    KVPrinterInfo info;
    KVJPrinterIDParser parser;

    void reset() { std::memset(&info, '#', sizeof info); }

    bool read(const std::string& reply) { return parser.ParsePrinterInfo(reply.c_str(), 0, info); }
    /// Reads a reply with these children of its root.
    bool readChildren(const std::string& children) { return read(tag("printer_id", children)); }

    /// That these bytes of the record have changed, and no other; the next reading begins anew.
    void expectChanged(std::size_t offset, const std::string& bytes) {
        const std::string record(reinterpret_cast<const char*>(&info), sizeof info);
        EXPECT_EQ(record, std::string(sizeof info, '#').replace(offset, bytes.size(), bytes));
        reset();
    }
    void expectUnchanged() { expectChanged(0, ""); }
};

template <class Value>
std::string bytesOf(const Value& value) {
    return {reinterpret_cast<const char*>(&value), sizeof value};
}

// ---- The whole reply ----

TEST_F(PrinterId, FillsEveryFieldOfTheExample) {
    EXPECT_TRUE(read(contentOf(EXAMPLES_DIR "/replies/printer_id.xml")));
    EXPECT_STREQ(info.vendor, "Example Cards & Co.");
    EXPECT_STREQ(info.printer_model, "CX-2 retransfer");
    EXPECT_EQ(info.printer_serial, 4000000417U);
    EXPECT_EQ(info.laminator_serial, 20088U);
    EXPECT_EQ(bytesOf(info.physical_address), std::string("\x00\x1A\x2B\x3C\x4D\x5E", 6));
    EXPECT_STREQ(info.printhead_serial, "PH-7A-000913");
    EXPECT_STREQ(info.oem_country, "EU");
    EXPECT_EQ(info.media_auth_cfg, 31U);
    EXPECT_STREQ(info.firmware_version, "2.14.3 (build 871)");
    EXPECT_STREQ(info.laminator_fw_version, "1.08");
    EXPECT_STREQ(info.lam_mab_fw_version, "0.97b");
    EXPECT_STREQ(info.hcb_fw_version, "3.2.0");
    EXPECT_STREQ(info.mab_fw_version, "1.1");
    EXPECT_STREQ(info.kavrin_version, "4.0");
    EXPECT_STREQ(info.ethernet_deviceid, "MFG:Example;CMD:XML;MDL:CX-2;CLS:PRINTER;DES:card printer with laminator;");
    EXPECT_EQ(bytesOf(info.wireless_physical_address), std::string("\x02\xFF\x00\x0A\x10\xC3", 6));
}

TEST_F(PrinterId, NeverTouchesTheReservedFields) {
    read(contentOf(EXAMPLES_DIR "/replies/printer_id.xml"));
    EXPECT_EQ(bytesOf(info.reserved_version), std::string(32, '#'));
    EXPECT_EQ(bytesOf(info.reserved), "####");
    reset();
    EXPECT_FALSE(readChildren("<reserved_version>1</reserved_version><reserved>1</reserved>"));
    expectUnchanged();
}

// ---- Texts ----

struct Text {
    const char* element;
    std::size_t offset;
    std::size_t capacity;

    friend void PrintTo(const Text& self, std::ostream* out) { *out << self.element; }
};

class PrinterIdText : public PrinterId, public testing::WithParamInterface<Text> {
protected:
    bool readText(const std::string& text) { return readChildren(tag(GetParam().element, text)); }
    void expectText(const std::string& text) { expectChanged(GetParam().offset, text + '\0'); }
};

const auto nameOfElement = [](const auto& parameter) { return parameter.param.element; };

INSTANTIATE_TEST_SUITE_P(PrinterId, PrinterIdText,
                         testing::Values(Text{"vendor", offsetof(KVPrinterInfo, vendor), 32},
                                         Text{"printer_model", offsetof(KVPrinterInfo, printer_model), 32},
                                         Text{"printhead_serial", offsetof(KVPrinterInfo, printhead_serial), 32},
                                         Text{"oem_country", offsetof(KVPrinterInfo, oem_country), 8},
                                         Text{"firmware_version", offsetof(KVPrinterInfo, firmware_version), 32},
                                         Text{"laminator_fw_version", offsetof(KVPrinterInfo, laminator_fw_version),
                                              32},
                                         Text{"lam_mab_fw_version", offsetof(KVPrinterInfo, lam_mab_fw_version), 32},
                                         Text{"hcb_fw_version", offsetof(KVPrinterInfo, hcb_fw_version), 32},
                                         Text{"mab_fw_version", offsetof(KVPrinterInfo, mab_fw_version), 32},
                                         Text{"kavrin_version", offsetof(KVPrinterInfo, kavrin_version), 32},
                                         Text{"ethernet_deviceid", offsetof(KVPrinterInfo, ethernet_deviceid), 256}),
                         nameOfElement);

TEST_P(PrinterIdText, AloneLeavesTheOtherFieldsAsTheyWere) {
    EXPECT_TRUE(readText("CX-2"));
    expectText("CX-2");
}

TEST_P(PrinterIdText, IsUnescaped) {
    EXPECT_TRUE(readText("&lt;&amp;&gt;"));
    expectText("<&>");
}

TEST_P(PrinterIdText, ThatIsLongerIsCutToItsFieldAndFalse) {
    const std::string longest(GetParam().capacity - 1, 'x');
    for (const std::size_t more : {1U, 2U, 100'000U}) {
        EXPECT_FALSE(readText(longest + std::string(more, 'x'))) << more;
        expectText(longest);
    }
}

// ---- Numbers ----

struct Number {
    const char* element;
    std::size_t offset;

    friend void PrintTo(const Number& self, std::ostream* out) { *out << self.element; }
};

class PrinterIdNumber : public PrinterId, public testing::WithParamInterface<Number> {
protected:
    /// That this text counts as read and gives this number.
    void expectNumber(const std::string& text, unsigned int number) {
        EXPECT_TRUE(readChildren(tag(GetParam().element, text))) << text;
        SCOPED_TRACE(text);
        expectChanged(GetParam().offset, bytesOf(number));
    }
    /// That this text counts as read and leaves the number alone.
    void expectKept(const std::string& text) {
        EXPECT_TRUE(readChildren(tag(GetParam().element, text))) << text;
        SCOPED_TRACE(text);
        expectUnchanged();
    }
};

class SerialNumber : public PrinterIdNumber {};
class MediaAuthentication : public PrinterIdNumber {};

INSTANTIATE_TEST_SUITE_P(PrinterId, SerialNumber,
                         testing::Values(Number{"printer_serial", offsetof(KVPrinterInfo, printer_serial)},
                                         Number{"laminator_serial", offsetof(KVPrinterInfo, laminator_serial)}),
                         nameOfElement);
INSTANTIATE_TEST_SUITE_P(PrinterId, MediaAuthentication,
                         testing::Values(Number{"media_auth_cfg", offsetof(KVPrinterInfo, media_auth_cfg)}),
                         nameOfElement);

TEST_P(SerialNumber, IsDecimal) {
    expectNumber("42", 42);
    expectNumber("0", 0);
    expectNumber("4294967295", UINT_MAX);
    expectNumber("010", 10);
    expectNumber("+7", 7);
    expectNumber(" 12 ", 12);
}

TEST_P(SerialNumber, EndsBeforeWhatIsNoDigit) {
    expectNumber("42abc", 42);
    expectNumber("0x1f", 0);
    expectNumber("12.9", 12);
    expectNumber("1 2", 1);
}

TEST_P(SerialNumber, ThatIsNegativeWrapsAt32Bits) {
    expectNumber("-1", 4294967295U);
    expectNumber("-42", 4294967254U);
}

TEST_P(SerialNumber, ThatIsTooLargeHasItsLow32Bits) {
    expectNumber("4294967296", 0);
    expectNumber("4294967338", 42);
    // More than 64 bits are the largest number of 64.
    expectNumber("18446744073709551616", UINT_MAX);
    expectNumber(std::string(100, '9'), UINT_MAX);
}

TEST_P(SerialNumber, MayHaveAnyNumberOfZerosBefore) { expectNumber(std::string(100, '0') + "42", 42); }

TEST_P(SerialNumber, ThatIsNoNumberIsLeftAloneAndCountsAsRead) {
    for (const char* text : {"abc", "x42", "-", "- 42", "+-42", "#", "."}) expectKept(text);
    expectKept(std::string(100'000, 'x'));
}

TEST_P(MediaAuthentication, IsHexadecimalBehindItsPrefix) {
    expectNumber("0x1f", 31);
    expectNumber("0x1F", 31);
    expectNumber("0x00", 0);
    expectNumber("0xff", 255);
    expectNumber("0xa", 10);
    expectNumber("0x1g", 1);
    expectNumber(" 0x1f ", 31);
}

TEST_P(MediaAuthentication, TakesAtMostTwoDigits) {
    expectNumber("0x123", 0x12);
    expectNumber("0x1ff", 0x1F);
    expectNumber("0x001f", 0);
    expectNumber("0x" + std::string(100'000, 'f'), 255);
}

TEST_P(MediaAuthentication, OfAnyOtherTextIsLeftAloneAndCountsAsRead) {
    for (const char* text : {"1f", "31", "0", "0x", "0xg", "0X1f", "x1f", "00x1f", "-0x1f", "#1f", "none"}) {
        expectKept(text);
    }
    expectKept(std::string(100'000, 'x'));
}

// ---- Hardware addresses ----

class HardwareAddress : public PrinterId, public testing::WithParamInterface<Number> {};

INSTANTIATE_TEST_SUITE_P(PrinterId, HardwareAddress,
                         testing::Values(Number{"physical_address", offsetof(KVPrinterInfo, physical_address)},
                                         Number{"wireless_physical_address",
                                                offsetof(KVPrinterInfo, wireless_physical_address)}),
                         nameOfElement);

TEST_P(HardwareAddress, HasSixBytesAndAnyThatDoesNotMatchIs0) {
    const std::pair<std::string, std::array<unsigned char, 6>> addresses[] = {
        {"00:01:02:0a:0b:ff", {0, 1, 2, 10, 11, 255}},
        {"00:1a:2B:3c:4d:5e", {0, 0x1A, 0x2B, 0x3C, 0x4D, 0x5E}},
        {"FF:FF:FF:FF:FF:FF", {255, 255, 255, 255, 255, 255}},
        {"1:2:3:4:5:6", {1, 2, 3, 4, 5, 6}},
        {"00:1a:2b:3c:4d:5e:6f", {0, 0x1A, 0x2B, 0x3C, 0x4D, 0x5E}},
        {"12:34", {0x12, 0x34, 0, 0, 0, 0}},
        {"12:34:zz:56:78:9a", {0x12, 0x34, 0, 0, 0, 0}},
        {"123:45:67:89:ab:cd", {0x12, 0, 0, 0, 0, 0}},
        {"00-1a-2b-3c-4d-5e", {0, 0, 0, 0, 0, 0}},
        {"none", {0, 0, 0, 0, 0, 0}},
        {std::string(100'000, '1'), {0x11, 0, 0, 0, 0, 0}},
    };
    for (const auto& [text, bytes] : addresses) {
        EXPECT_TRUE(readChildren(tag(GetParam().element, text))) << text;
        SCOPED_TRACE(text.substr(0, 40));
        expectChanged(GetParam().offset, bytesOf(bytes));
    }
}

// ---- Every element ----

class PrinterIdElement : public PrinterId, public testing::WithParamInterface<const char*> {};

INSTANTIATE_TEST_SUITE_P(PrinterId, PrinterIdElement,
                         testing::Values("vendor", "printer_model", "printer_serial", "laminator_serial",
                                         "physical_address", "printhead_serial", "oem_country", "firmware_version",
                                         "laminator_fw_version", "lam_mab_fw_version", "hcb_fw_version",
                                         "mab_fw_version", "kavrin_version", "ethernet_deviceid", "media_auth_cfg",
                                         "wireless_physical_address"),
                         [](const auto& name) { return std::string(name.param); });

TEST_P(PrinterIdElement, WithoutTextKeepsItsFieldAndIsFalse) {
    for (const char* text : {"", " "}) {
        EXPECT_FALSE(readChildren(tag(GetParam(), text)));
        expectUnchanged();
    }
}

TEST_P(PrinterIdElement, OfAnotherCaseOrPlaceIsUnknown) {
    const std::string name = GetParam();
    for (const std::string& children : {tag(static_cast<char>(name[0] - 'a' + 'A') + name.substr(1), "0x12"),
                                        tag(name + "s", "0x12"), tag("network", tag(name, "0x12"))}) {
        EXPECT_FALSE(readChildren(children)) << children;
        expectUnchanged();
    }
    EXPECT_FALSE(read(tag(name, "0x12")));
    expectUnchanged();
}

TEST_P(PrinterIdElement, DecidesTheResultWhenItIsTheLastThatIsKnown) {
    const std::string known = tag(GetParam(), "0x12");
    const std::string empty = tag(GetParam(), "");
    EXPECT_TRUE(readChildren(empty + known));
    EXPECT_FALSE(readChildren(known + empty));
    EXPECT_TRUE(readChildren(known + "<board/>"));
    EXPECT_FALSE(readChildren(empty + "<board>C</board>"));
}

// ---- Several ----

TEST_F(PrinterId, ElementsMayComeInAnyOrderAndTheLastOfANameCounts) {
    EXPECT_TRUE(
        readChildren("<oem_country>JP</oem_country><board>C</board><vendor>first</vendor>"
                     "<printer_serial>1</printer_serial><vendor>second</vendor><vendor>3rd</vendor>"));
    EXPECT_STREQ(info.oem_country, "JP");
    EXPECT_EQ(info.printer_serial, 1U);
    EXPECT_STREQ(info.vendor, "3rd");
}

TEST_F(PrinterId, ACutTextDecidesTheResultLikeAnyOther) {
    EXPECT_FALSE(readChildren("<vendor>a</vendor><oem_country>Luxembourg</oem_country>"));
    EXPECT_STREQ(info.vendor, "a");
    EXPECT_STREQ(info.oem_country, "Luxembo");
    EXPECT_TRUE(readChildren("<oem_country>Luxembourg</oem_country><vendor>a</vendor>"));
}

// ---- The reply ----

TEST_F(PrinterId, WithoutItsRootIsFalseAndLeavesTheRecord) {
    for (const char* reply : {"", "CX-2", "<vendor>a</vendor>", "<Printer_id><vendor>a</vendor></Printer_id>",
                              "<get_printer_id><vendor>a</vendor></get_printer_id>",
                              "<reply><printer_id><vendor>a</vendor></printer_id></reply>",
                              "<!--<printer_id><vendor>a</vendor></printer_id>-->"}) {
        EXPECT_FALSE(read(reply)) << reply;
        expectUnchanged();
    }
}

TEST_F(PrinterId, WithoutKnownElementsIsFalseAndLeavesTheRecord) {
    for (const char* children : {"", "CX-2", "<!-- none -->", "<board>C</board>"}) {
        EXPECT_FALSE(readChildren(children)) << children;
        expectUnchanged();
    }
}

TEST_F(PrinterId, NoTextIsNoReply) {
    EXPECT_FALSE(parser.ParsePrinterInfo(nullptr, 0, info));
    EXPECT_FALSE(parser.ParsePrinterInfo(nullptr, 100, info));
    expectUnchanged();
}

TEST_F(PrinterId, IsTheFirstRootOfItsName) {
    EXPECT_TRUE(
        read("<note/><printer_id><vendor>first</vendor></printer_id>"
             "<printer_id><vendor>second</vendor></printer_id>"));
    EXPECT_STREQ(info.vendor, "first");
}

TEST_F(PrinterId, TheLengthOfTheReplyDoesNotCount) {
    const std::string reply = tag("printer_id", "<vendor>a</vendor>");
    for (const int length : {0, 1, -1, INT_MIN, INT_MAX}) {
        EXPECT_TRUE(parser.ParsePrinterInfo(reply.c_str(), length, info)) << length;
        expectChanged(offsetof(KVPrinterInfo, vendor), std::string("a\0", 2));
    }
}

TEST_F(PrinterId, TheReplyEndsAtItsNul) {
    const std::string start = "<printer_id><vendor>a</vendor>";
    const std::string reply = start + '\0' + "<printer_model>b</printer_model></printer_id>";
    EXPECT_TRUE(parser.ParsePrinterInfo(reply.c_str(), static_cast<int>(reply.size()), info));
    expectChanged(offsetof(KVPrinterInfo, vendor), std::string("a\0", 2));
}

TEST_F(PrinterId, BytesBeyondAsciiAreReadAsTheyAreInEveryLocale) {
    const std::string reply = tag("printer_id", "<vendor>caf\xC3\xA9</vendor>");
    for (const std::string& declaration : {std::string(), std::string("<?xml version=\"1.0\" encoding=\"UTF-8\"?>")}) {
        EXPECT_TRUE(read(declaration + reply));
        expectChanged(offsetof(KVPrinterInfo, vendor), std::string("caf\xC3\xA9\0", 6));
    }
}

// ---- The object ----

TEST_F(PrinterId, TheObjectIsEmptyAfterEachCall) {
    for (const char* reply : {"<printer_id><vendor>a</vendor></printer_id>", "<printer_id/>", "<other>a</other>", "",
                              "<printer_id><vendor>a</vendor><oops"}) {
        read(reply);
        EXPECT_TRUE(parser.NoChildren()) << reply;
    }
    parser.ParsePrinterInfo(nullptr, 0, info);
    EXPECT_TRUE(parser.NoChildren());
}

TEST_F(PrinterId, OneObjectReadsAnyNumberOfReplies) {
    for (int i = 0; i < 20; ++i) {
        const std::string serial = std::to_string(i);
        EXPECT_TRUE(readChildren(tag("printer_serial", serial)));
        EXPECT_EQ(info.printer_serial, static_cast<unsigned int>(i));
        EXPECT_FALSE(read("<other/>"));
        EXPECT_FALSE(read("<printer_id><printer_serial>"));
        reset();
    }
}

TEST_F(PrinterId, WhatTheHostHasInTheObjectIsNoReply) {
    parser.Parse("<printer_id><vendor>the host's</vendor></printer_id>");
    EXPECT_FALSE(read("<other/>"));
    expectUnchanged();
    parser.Parse("<printer_id><vendor>the host's</vendor></printer_id>");
    EXPECT_TRUE(readChildren("<vendor>a</vendor>"));
    expectChanged(offsetof(KVPrinterInfo, vendor), std::string("a\0", 2));
}

// ---- The walker ----

TEST_F(PrinterId, TheWalkerReadsAnElementThatTheHostHolds) {
    Xml element("<any><vendor>a</vendor></any>");
    EXPECT_TRUE(parser.parsePrinterInfo(element.root(), info));
    expectChanged(offsetof(KVPrinterInfo, vendor), std::string("a\0", 2));
}

TEST_F(PrinterId, TheWalkerIsFalseForNoElementAndForOneWithoutChildren) {
    Xml empty("<any>text</any>");
    EXPECT_FALSE(parser.parsePrinterInfo(nullptr, info));
    EXPECT_FALSE(parser.parsePrinterInfo(empty.root(), info));
    expectUnchanged();
}

}  // namespace

}  // namespace printer_id_test
