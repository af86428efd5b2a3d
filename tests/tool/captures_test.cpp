// The documents of a command line: files, folders, streams with separators, and what captures have around a reply.
#include "captures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "foundation/utf8.h"
#include "support/files.h"

namespace captures_test {

namespace {

using kvj::tests::TemporaryFolder;
using kvj::tests::write;
using kvj::tool::Capture;
using kvj::tool::Captures;
using kvj::tool::Encoding;
using kvj::tool::ExitCode;
using kvj::tool::Failure;
using kvj::tool::Origin;
using kvj::tool::Separator;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

using Texts = std::vector<std::pair<std::size_t, std::string>>;

struct Seen {
    std::vector<Capture> captures;
    Texts failures;
    ExitCode code;

    [[nodiscard]] Texts texts() const {
        Texts all;
        for (const Capture& capture : captures) all.emplace_back(capture.origin.number, capture.text);
        return all;
    }
};

Seen see(const Captures& captures) {
    Seen seen;
    seen.code = kvj::tool::forEachDocument(
        captures,
        [&](const Capture& capture) {
            seen.captures.push_back(capture);
            return ExitCode::done;
        },
        [&](const Origin& origin, const Failure& failure) {
            seen.failures.emplace_back(origin.number, failure.what());
        });
    return seen;
}

/// What is seen of a file with this content.
Seen seeContent(const std::string& content, Captures captures = {}) {
    const TemporaryFolder folder;
    const std::string file = (folder / "capture").string();
    write(file, content);
    captures.paths = {file};
    return see(captures);
}

/// The one document of a file with this content.
Capture capture(const std::string& content, std::optional<Encoding> encoding = {}) {
    const Seen seen = seeContent(content, {.encoding = encoding});
    EXPECT_EQ(seen.captures.size(), 1U);
    return seen.captures.at(0);
}

std::string utf16(const std::u16string& text, bool isLittleEndian) {
    std::string bytes;
    for (const char16_t unit : text) {
        const char high = static_cast<char>(unit >> 8);
        const char low = static_cast<char>(unit & 0xFF);
        bytes += isLittleEndian ? std::string{low, high} : std::string{high, low};
    }
    return bytes;
}

// ---- Streams ----

TEST(Captures, AnInputWithoutASeparatorIsOneDocumentEvenAnEmptyOne) {
    EXPECT_THAT(seeContent("<a/>\n<b/>\n").texts(), ElementsAre(Pair(1, "<a/>\n<b/>\n")));
    EXPECT_THAT(seeContent({"<a/>\n\0<b/>\n", 11}).texts(), ElementsAre(Pair(1, std::string("<a/>\n\0<b/>\n", 11))));
    EXPECT_THAT(seeContent("").texts(), ElementsAre(Pair(1, "")));
}

TEST(Captures, LinesAreDocumentsAndBlankOnesAreCountedOnly) {
    EXPECT_THAT(seeContent("<a/>\r\n\n <b/>\n", {.separator = Separator::line}).texts(),
                ElementsAre(Pair(1, "<a/>\r"), Pair(3, " <b/>")));
    EXPECT_THAT(seeContent("<a/>\n<b/>", {.separator = Separator::line}).texts(),
                ElementsAre(Pair(1, "<a/>"), Pair(2, "<b/>")));
    EXPECT_THAT(seeContent("", {.separator = Separator::line}).texts(), IsEmpty());
}

TEST(Captures, NulsAreBetweenDocumentsAndNothingBetweenTwoIsAnEmptyOne) {
    EXPECT_THAT(seeContent({"<a>\n</a>\0\0<b/>\0\n", 16}, {.separator = Separator::nul}).texts(),
                ElementsAre(Pair(1, "<a>\n</a>"), Pair(2, ""), Pair(3, "<b/>")));
}

TEST(Captures, ADocumentAcrossManyBlocksIsWhole) {
    const std::string first(200'000, 'x');
    const std::string second(70'000, 'y');
    EXPECT_THAT(seeContent(first + "\n" + second + "\n", {.separator = Separator::line}).texts(),
                ElementsAre(Pair(1, first), Pair(2, second)));
}

TEST(Captures, OneThatIsTooLargeFailsAndTheNextFollows) {
    const std::string large(200'000, 'x');
    const Seen seen = seeContent("<a/>\n" + large + "\n<b/>\n", {.separator = Separator::line, .maxSize = 100'000});
    EXPECT_THAT(seen.texts(), ElementsAre(Pair(1, "<a/>"), Pair(3, "<b/>")));
    EXPECT_THAT(seen.failures, ElementsAre(Pair(2, "is larger than 100000 bytes; --max-size takes more")));
    EXPECT_EQ(seen.code, ExitCode::inputOutput);
}

TEST(Captures, AStreamInUtf16HasItsSeparatorsInUtf16AndOneMarkForAll) {
    // U+0A0A has the byte of a line feed twice, and is none.
    const std::u16string text = u"<\u0A0A/>\n<b/>\n";
    for (const bool isLittleEndian : {true, false}) {
        const Seen seen = seeContent(utf16(u"\uFEFF" + text, isLittleEndian), {.separator = Separator::line});
        EXPECT_THAT(seen.texts(), ElementsAre(Pair(1, "<\u0A0A/>"), Pair(2, "<b/>")));
        EXPECT_THAT(seen.captures.at(1).notes, ElementsAre(testing::StartsWith("is UTF-16, ")));
    }
    EXPECT_THAT(seeContent(utf16(text, false), {.separator = Separator::line, .encoding = Encoding::utf16}).texts(),
                ElementsAre(Pair(1, "<\u0A0A/>"), Pair(2, "<b/>")));
}

// ---- Files and folders ----

TEST(Captures, AFileThatIsNotThereFailsInItsPlaceAndTheNextFollows) {
    const TemporaryFolder folder;
    write(folder / "a", "1");
    const std::string file = (folder / "a").string();
    const Seen seen = see({.paths = {file, "/nowhere", file}});
    EXPECT_EQ(seen.captures.size(), 2U);
    EXPECT_THAT(seen.failures, ElementsAre(Pair(1, "cannot be read: " + std::generic_category().message(ENOENT))));
    EXPECT_EQ(seen.code, ExitCode::inputOutput);
}

TEST(Captures, AFolderStandsForItsFilesByNameWhenItIsAskedFor) {
    const TemporaryFolder folder;
    std::filesystem::create_directories(folder / "b" / "c");
    for (const char* name : {"z", "a", "b/2", "b/c/1", "b/10"}) write(folder / name, name);
    std::filesystem::create_directory_symlink(folder / ".", folder / "b" / "loop");
    const std::string path = (folder / ".").string();
    std::vector<std::string> contents;
    for (const Capture& each : see({.paths = {path}, .isRecursive = true}).captures) contents.push_back(each.text);
    EXPECT_THAT(contents, ElementsAre("a", "b/10", "b/2", "b/c/1", "z"));
    EXPECT_THAT(see({.paths = {path}}).failures,
                ElementsAre(Pair(1, "cannot be read: " + std::generic_category().message(EISDIR))));
}

// ---- What stands around a reply, and how it is encoded ----

TEST(Captures, WhatIsPlainHasNoNotes) {
    const Capture plain = capture("<?xml version=\"1.0\" encoding=\"UTF-8\"?><a>\u00E9</a>");
    EXPECT_THAT(plain.notes, IsEmpty());
    EXPECT_EQ(plain.offset, 0U);
    EXPECT_EQ(plain.line, 0U);
    EXPECT_EQ(plain.offsetOf(7), 7U);
}

TEST(Captures, HeaderLinesOfHttpAreNoPartOfADocument) {
    for (const std::string header : {"HTTP/1.1 200 OK\r\nContent-Type: text/xml\r\n\r\n",
                                     "POST /status HTTP/1.1\nHost: printer\n\n", "Content-Length: 4\nServer: x\n\n"}) {
        const Capture document = capture(header + "<a/>");
        EXPECT_EQ(document.text, "<a/>");
        EXPECT_THAT(document.notes, ElementsAre("has header lines of HTTP in front"));
        EXPECT_EQ(document.offset, header.size());
        EXPECT_EQ(document.offsetOf(3), header.size() + 3);
        EXPECT_EQ(document.line, static_cast<std::size_t>(std::count(header.begin(), header.end(), '\n')));
    }
}

TEST(Captures, WhatOnlyLooksLikeAHeaderStays) {
    for (const char* text : {"ready", "ready\n\n<a/>", "\n<a/>", "a: b\n<a/>", "<a:b>\n\n</a:b>", "a: b"}) {
        EXPECT_EQ(capture(text).text, text);
        EXPECT_THAT(capture(text).notes, IsEmpty());
    }
}

TEST(Captures, AByteOrderMarkIsNoPartOfADocument) {
    const Capture document = capture("\uFEFF<a/>");
    EXPECT_EQ(document.text, "<a/>");
    EXPECT_THAT(document.notes, ElementsAre("begins with a byte order mark"));
    EXPECT_EQ(document.offsetOf(1), 4U);
}

TEST(Captures, Utf16OfBothOrdersIsRecognisedByItsMarkAndByItsFirstCharacter) {
    for (const bool isLittleEndian : {true, false}) {
        const std::string order = isLittleEndian ? "little" : "big";
        const Capture marked = capture(utf16(u"\uFEFF<a>\u00E9\u20AC\U0001F5A8!</a>", isLittleEndian));
        EXPECT_EQ(marked.text, "<a>\u00E9\u20AC\U0001F5A8!</a>");
        EXPECT_THAT(marked.notes, ElementsAre("is UTF-16, " + order + "-endian, by its byte order mark"));
        EXPECT_EQ(marked.offsetOf(marked.text.find('!')), 2U * (1 + 3 + 2 + 2));
        const Capture bare = capture(utf16(u"<a/>", isLittleEndian));
        EXPECT_EQ(bare.text, "<a/>");
        EXPECT_THAT(bare.notes, ElementsAre("is UTF-16, " + order + "-endian, by its first character"));
    }
}

TEST(Captures, HeaderLinesMayBeInFrontOfUtf16AndInIt) {
    const Capture inFront = capture("Server: x\n\n" + utf16(u"\uFEFF<a/>", true));
    EXPECT_EQ(inFront.text, "<a/>");
    EXPECT_EQ(inFront.notes.size(), 2U);
    EXPECT_EQ(inFront.offsetOf(1), 11U + 2 + 2);
    const Capture inside = capture(utf16(u"\uFEFFServer: \u00E9\n\n<a/>", true));
    EXPECT_EQ(inside.text, "<a/>");
    EXPECT_EQ(inside.notes.size(), 2U);
    EXPECT_EQ(inside.offsetOf(1), 2U + 2 * 11 + 2);
    EXPECT_EQ(inside.line, 2U);
}

TEST(Captures, WhatIsNoCharacterInUtf16IsNoneInUtf8) {
    for (const std::u16string& text : {std::u16string(u"<a>\xD83D</a>"), std::u16string(u"<a>\xDDA8</a>")}) {
        const Capture document = capture(utf16(text, true));
        EXPECT_EQ(kvj::firstOutsideUtf8(document.text), 3U);
        EXPECT_EQ(document.offsetOf(document.text.find('/')), 10U);
    }
    EXPECT_EQ(kvj::firstOutsideUtf8(capture(utf16(u"<a/>", true) + "x").text), 4U);
}

TEST(Captures, Latin1IsReadAsDeclared) {
    for (const char* declared : {"encoding=\"ISO-8859-1\"", "encoding = 'iso-8859-1' standalone='yes'"}) {
        const std::string declaration = "<?xml version=\"1.0\" " + std::string(declared) + "?>";
        const Capture document = capture(declaration + "<a>\xE9!</a>");
        EXPECT_EQ(document.text, declaration + "<a>\u00E9!</a>");
        EXPECT_THAT(document.notes, ElementsAre("is Latin-1, as its declaration says"));
        EXPECT_EQ(document.offsetOf(document.text.find('!')), declaration.size() + 4);
        EXPECT_THAT(capture(declaration + "<a>e</a>").notes, IsEmpty()) << "ASCII is the same in both";
    }
    EXPECT_EQ(capture("<a encoding='ISO-8859-1'>\xE9</a>").text, "<a encoding='ISO-8859-1'>\xE9</a>");
}

TEST(Captures, AnEncodingThatIsGivenHoldsWhateverTheCaptureSays) {
    EXPECT_EQ(capture("<a>\xE9</a>", Encoding::latin1).text, "<a>\u00E9</a>");
    const std::string declared = "<?xml version='1.0' encoding='ISO-8859-1'?><a>\u00E9</a>";
    EXPECT_EQ(capture(declared, Encoding::utf8).text, declared);
    for (const bool isLittleEndian : {true, false}) {
        EXPECT_EQ(capture(utf16(u"\uFEFFx", isLittleEndian), Encoding::utf16).text, "x");
        EXPECT_EQ(capture(utf16(u"x", isLittleEndian), isLittleEndian ? Encoding::utf16le : Encoding::utf16be).text,
                  "x");
    }
    EXPECT_THAT(capture(utf16(u"\uFEFFx", true), Encoding::utf16le).notes, IsEmpty());
}

}  // namespace

}  // namespace captures_test
