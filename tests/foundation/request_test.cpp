// How a composed document gets to the host, and into the files beside it.
#include "foundation/request.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "support/files.h"
#include "support/locale_scope.h"
#include "support/xml.h"

namespace request_test {

using kvj::tests::contentOf;
using kvj::tests::LocaleScope;
using kvj::tests::TemporaryFolder;
using kvj::tests::wide;

namespace {

const std::string declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n";

void addText(TiXmlElement* element, const char* text) { element->LinkEndChild(new TiXmlText(text)); }

/// A small request of two levels.
class Request : public TiXmlDocument {
public:
    Request() {
        TiXmlElement* root = kvj::beginRequest(*this, "media");
        root->SetAttribute("version", 2);
        TiXmlElement* cards = root->LinkEndChild(new TiXmlElement("cards"))->ToElement();
        addText(cards->LinkEndChild(new TiXmlElement("name"))->ToElement(), "a & b");
        cards->LinkEndChild(new TiXmlElement("empty"));
    }
};

const std::string requestText = declaration +
                                "<media version=\"2\">\n"
                                "    <cards>\n"
                                "        <name>a &amp; b</name>\n"
                                "        <empty />\n"
                                "    </cards>\n"
                                "</media>\n";

/// What a host's buffer of `capacity` characters holds after printing, with one more on each side; zeros as '0'.
struct Printed {
    bool result;
    std::wstring buffer;
    bool operator==(const Printed&) const = default;
};

Printed printed(const TiXmlDocument& request, int capacity, std::size_t room) {
    std::wstring buffer(room + 2, L'#');
    const bool result = kvj::print(request, &buffer[1], capacity);
    for (wchar_t& character : buffer) {
        if (character == L'\0') character = L'0';
    }
    return {result, buffer};
}

TiXmlDocument documentOf(const char* text) {
    TiXmlDocument request;
    addText(kvj::beginRequest(request, "r"), text);
    return request;
}

// ---- Documents ----

TEST(Request, BeginsWithTheDeclarationAndAnEmptyRoot) {
    TiXmlDocument request;
    const TiXmlElement* root = kvj::beginRequest(request, "configuration");
    ASSERT_NE(root, nullptr);
    EXPECT_STREQ(root->Value(), "configuration");
    EXPECT_EQ(root->GetDocument(), &request);
    EXPECT_EQ(printed(request, 59, 59), (Printed{true, L"#" + wide(declaration) + L"<configuration />\n0#"}));
}

TEST(Request, IsIndentedByFourBlanksALevel) {
    std::vector<char> buffer(1000, '#');
    EXPECT_TRUE(kvj::print(Request(), buffer.data()));
    EXPECT_STREQ(buffer.data(), requestText.c_str());
}

TEST(Request, BegunAgainOnOneDocumentStandsBehindTheFirst) {
    TiXmlDocument request;
    const TiXmlElement* first = kvj::beginRequest(request, "media");
    const TiXmlElement* second = kvj::beginRequest(request, "media");
    EXPECT_NE(first, second);
    std::vector<char> buffer(1000, '#');
    EXPECT_TRUE(kvj::print(request, buffer.data()));
    EXPECT_EQ(std::string(buffer.data()), declaration + "<media />\n" + declaration + "<media />\n");
}

TEST(Request, BegunAnewOnOneDocumentTakesThePlaceOfTheFirst) {
    Request request;
    const TiXmlElement* root = kvj::beginRequestAnew(request, "nonce");
    EXPECT_EQ(root, request.RootElement());
    std::vector<char> buffer(1000, '#');
    EXPECT_TRUE(kvj::print(request, buffer.data()));
    EXPECT_EQ(std::string(buffer.data()), declaration + "<nonce />\n");
}

TEST(Request, BegunAnewOnAnEmptyDocumentIsTheOnlyOne) {
    TiXmlDocument request;
    const TiXmlElement* root = kvj::beginRequestAnew(request, "nonce");
    EXPECT_EQ(root, request.RootElement());
    std::vector<char> buffer(1000, '#');
    EXPECT_TRUE(kvj::print(request, buffer.data()));
    EXPECT_EQ(std::string(buffer.data()), declaration + "<nonce />\n");
}

// ---- Wide text ----

const int length = static_cast<int>(requestText.size());

TEST(PrintWide, TheTextIsTerminatedWhereThereIsRoom) {
    const std::size_t room = requestText.size() + 10;
    const Printed expected{true, L"#" + wide(requestText) + L"0" + std::wstring(10, L'#')};
    EXPECT_EQ(printed(Request(), length + 1, room), expected);
    EXPECT_EQ(printed(Request(), length + 10, room), expected);
}

TEST(PrintWide, ATextAsLongAsTheBufferIsNotTerminated) {
    EXPECT_EQ(printed(Request(), length, requestText.size()), (Printed{true, L"#" + wide(requestText) + L"#"}));
}

TEST(PrintWide, ATextTooLongIsCutAndNotTerminated) {
    for (const int capacity : {1, 10, length - 1}) {
        const std::string begin = requestText.substr(0, static_cast<std::size_t>(capacity));
        const std::wstring rest(requestText.size() - begin.size(), L'#');
        EXPECT_EQ(printed(Request(), capacity, requestText.size()), (Printed{true, L"#" + wide(begin) + rest + L"#"}))
            << capacity;
    }
}

TEST(PrintWide, WithoutCapacityNothingIsWritten) {
    EXPECT_EQ(printed(Request(), 0, 8), (Printed{true, std::wstring(10, L'#')}));
    EXPECT_EQ(printed(Request(), -1, 8), (Printed{false, std::wstring(10, L'#')}));
    EXPECT_EQ(printed(Request(), INT32_MIN, 8), (Printed{false, std::wstring(10, L'#')}));
}

TEST(PrintWide, WithoutABufferItIsFalse) {
    EXPECT_FALSE(kvj::print(Request(), static_cast<wchar_t*>(nullptr), 100));
    EXPECT_FALSE(kvj::print(Request(), static_cast<wchar_t*>(nullptr), 0));
}

TEST(PrintWide, InAUtf8LocaleACharacterIsOneWideCharacter) {
    const LocaleScope utf8("C.UTF-8");
    const std::wstring text = wide(declaration) + L"<r>caf\u00E9 \u20AC \U0001F5A8</r>\n";
    const TiXmlDocument request = documentOf("caf\xC3\xA9 \xE2\x82\xAC \xF0\x9F\x96\xA8");
    EXPECT_EQ(printed(request, 100, text.size()), (Printed{true, L"#" + text + L"0"}));
    EXPECT_EQ(printed(request, static_cast<int>(text.size()), text.size()), (Printed{true, L"#" + text + L"#"}));
}

TEST(PrintWide, InAnAsciiLocaleTheTextEndsBeforeAnyOtherCharacter) {
    const LocaleScope ascii("C");
    EXPECT_EQ(printed(documentOf("caf\xC3\xA9!"), 100, 60),
              (Printed{true, L"#" + wide(declaration) + L"<r>caf" + std::wstring(61 - declaration.size() - 6, L'#')}));
}

TEST(PrintWide, InAUtf8LocaleABrokenCharacterEndsTheText) {
    const LocaleScope utf8("C.UTF-8");
    EXPECT_EQ(printed(documentOf("caf\xE9!"), 100, 60),
              (Printed{true, L"#" + wide(declaration) + L"<r>caf" + std::wstring(61 - declaration.size() - 6, L'#')}));
}

// ---- Narrow text ----

TEST(PrintNarrow, TheTextIsWrittenWithItsTerminatorAndNoMore) {
    std::string buffer(requestText.size() + 3, '#');
    EXPECT_TRUE(kvj::print(Request(), &buffer[1]));
    EXPECT_EQ(buffer, "#" + requestText + '\0' + "#");
}

TEST(PrintNarrow, BytesBeyondAsciiAreWrittenAsTheyAreInAnyLocale) {
    for (const char* locale : {"C", "C.UTF-8"}) {
        const LocaleScope scope(locale);
        std::vector<char> buffer(1000, '#');
        EXPECT_TRUE(kvj::print(documentOf("caf\xC3\xA9 \xE9"), buffer.data()));
        EXPECT_EQ(std::string(buffer.data()), declaration + "<r>caf\xC3\xA9 \xE9</r>\n") << locale;
    }
}

TEST(PrintNarrow, WithoutABufferItIsFalse) { EXPECT_FALSE(kvj::print(Request(), nullptr)); }

// ---- Files ----

TEST(Save, WritesTheDocument) {
    const TemporaryFolder folder;
    const std::filesystem::path path = folder / "request.xml";
    EXPECT_TRUE(kvj::save(Request(), path.c_str()));
    EXPECT_EQ(contentOf(path), requestText);
}

TEST(Save, ReplacesALongerFile) {
    const TemporaryFolder folder;
    const std::filesystem::path path = folder / "request.xml";
    kvj::tests::write(path, std::string(5000, 'z'));
    EXPECT_TRUE(kvj::save(Request(), path.c_str()));
    EXPECT_EQ(contentOf(path), requestText);
}

TEST(Save, WithoutAFileToWriteItIsFalse) {
    const TemporaryFolder folder;
    EXPECT_FALSE(kvj::save(Request(), nullptr));
    EXPECT_FALSE(kvj::save(Request(), ""));
    EXPECT_FALSE(kvj::save(Request(), (folder / "").c_str()));
    EXPECT_FALSE(kvj::save(Request(), (folder / "missing/request.xml").c_str()));
}

}  // namespace

}  // namespace request_test
