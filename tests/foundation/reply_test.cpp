// What becomes of a reply's text until its root element is found.
#include "foundation/reply.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <new>
#include <string>
#include <string_view>

#include "foundation/element.h"
#include "support/files.h"
#include "support/guarded_memory.h"
#include "support/locale_scope.h"
#include "support/tree.h"
#include "support/xml.h"

namespace reply_test {

using kvj::Element;
using kvj::Reply;
using kvj::tests::End;
using kvj::tests::GuardedMemory;
using kvj::tests::LocaleScope;
using kvj::tests::treeOf;
using kvj::tests::wide;
using std::string_literals::operator""s;

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define KVJXML_SANITIZED_HEAP 1
#elif defined(__has_feature)
#define KVJXML_SANITIZED_HEAP (__has_feature(address_sanitizer) || __has_feature(thread_sanitizer))
#endif

namespace {

Reply replyOf(const std::wstring& text) { return {text[0], static_cast<std::int64_t>(text.size())}; }

/// An exact copy without a terminator, so that a sanitizer sees whatever reads past its end.
std::unique_ptr<wchar_t[]> unterminated(std::wstring_view text) {
    auto copy = std::make_unique<wchar_t[]>(text.size());
    std::ranges::copy(text, copy.get());
    return copy;
}

/// What the elements "a" and "b" of the root "r" hold, as far as they are there.
std::string contentsOf(const Reply& reply) {
    const Element root = reply.root("r");
    if (!root) return "no root";
    std::string contents;
    for (const std::string name : {"a", "b"}) {
        std::string found = "[no " + name + "]";
        for (const Element child : root.children()) {
            if (child.name() != name) continue;
            found = "[" + name + (child.text() == nullptr ? "" : " " + std::string(child.text())) + "]";
            break;
        }
        contents += found;
    }
    return contents;
}

// ---- Roots ----

TEST(Reply, HasTheRootOfItsName) {
    const Reply reply = replyOf(L"<?xml version=\"1.0\"?>\n<get_count><x>1</x></get_count>\n");
    ASSERT_TRUE(reply.root("get_count"));
    EXPECT_EQ(reply.root("get_count").name(), "get_count");
    EXPECT_EQ(treeOf(reply.root("get_count")), "x \"1\"{}");
}

TEST(Reply, OfNarrowTextHasTheRootOfItsName) {
    EXPECT_EQ(contentsOf(Reply("<?xml version=\"1.0\"?>\n<r><a>1</a><b>2</b></r>\n")), "[a 1][b 2]");
}

TEST(Reply, HasNoRootOfAnotherName) {
    const Reply reply = replyOf(L"<get_count><set_count/></get_count>");
    for (const char* name : {"set_count", "Get_count", "GET_COUNT", "get_coun", "get_counts", ""}) {
        EXPECT_FALSE(reply.root(name)) << name;
    }
}

TEST(Reply, OfTwoRootsOfOneNameTheFirstCounts) {
    EXPECT_EQ(contentsOf(replyOf(L"<r><a>1</a></r><r><a>2</a></r>")), "[a 1][no b]");
}

TEST(Reply, ARootIsFoundBehindAnother) { EXPECT_EQ(contentsOf(replyOf(L"<x/><r><a>1</a></r>")), "[a 1][no b]"); }

TEST(Reply, WhatStandsInFrontOfTheRootIsSkipped) {
    EXPECT_EQ(contentsOf(replyOf(L" \t\r\n<r><a>1</a></r>")), "[a 1][no b]");
    EXPECT_EQ(contentsOf(replyOf(L"<?xml version=\"1.0\"?><!DOCTYPE r><!-- c --><r><a>1</a></r>")), "[a 1][no b]");
    EXPECT_EQ(contentsOf(replyOf(L"<!DOCTYPE r SYSTEM \"r.dtd\">\n<r><a>1</a></r>")), "[a 1][no b]");
}

TEST(Reply, WithoutXmlHasNoRoot) {
    for (const char* text : {" ", "\n\t ", "hello", "r", "1", "<", "<>", "</r>", "<!-- <r/> -->", "<!DOCTYPE r>",
                             "<?xml version=\"1.0\"?>", "hello <r/>", "{\"r\": 1}", "HTTP/1.0 200 OK\n\n<r/>"}) {
        EXPECT_FALSE(replyOf(wide(text)).root("r")) << text;
        EXPECT_FALSE(Reply(text).root("r")) << text;
    }
    EXPECT_FALSE(Reply("").root("r"));
}

TEST(Reply, WithoutTextHasNoRoot) { EXPECT_FALSE(Reply(nullptr).root("r")); }

TEST(Reply, OneThatBreaksOffHasWhatStoodBefore) {
    EXPECT_EQ(contentsOf(replyOf(L"<r><a>1</a><b>2")), "[a 1][b 2]");
    EXPECT_EQ(contentsOf(replyOf(L"<r><a>1</a></x><b>2</b></r>")), "[a 1][no b]");
    EXPECT_EQ(contentsOf(Reply("<r><a>1</a><b")), "[a 1][b]");
}

// ---- Lengths ----

TEST(Reply, ALengthShorterThanTheTextCutsIt) {
    const std::wstring text = L"<r><a>1</a><b>234</b></r>";
    EXPECT_EQ(contentsOf(Reply(text[0], 16)), "[a 1][b 23]");
    EXPECT_EQ(contentsOf(Reply(text[0], 6)), "[a][no b]");
    EXPECT_EQ(contentsOf(Reply(text[0], 2)), "[no a][no b]");
    EXPECT_EQ(contentsOf(Reply(text[0], 1)), "no root");
}

TEST(Reply, NeedsNoTerminator) {
    const auto text = unterminated(L"<r><a>1</a></r>");
    EXPECT_EQ(contentsOf(Reply(text[0], 15)), "[a 1][no b]");
}

TEST(Reply, WithoutALengthIsNotTouched) {
    const auto nothing = std::make_unique<wchar_t[]>(0);
    for (const std::int64_t length : {std::int64_t{0}, std::int64_t{-1}, std::int64_t{INT32_MIN}, INT64_MIN}) {
        EXPECT_FALSE(Reply(nothing[0], length).root("r")) << length;
        EXPECT_FALSE(Reply(nothing[0], length).hasText()) << length;
    }
}

TEST(Reply, ALengthThatNoMemoryHoldsThrows) {
#if KVJXML_SANITIZED_HEAP
    GTEST_SKIP() << "the sanitizer ends the program where operator new would throw";
#endif
    const std::wstring text = L"<r/>";
    EXPECT_THROW(Reply(text[0], INT64_MAX), std::bad_alloc);
    EXPECT_THROW(Reply(text[0], INT64_MAX / 2), std::bad_alloc);
}

TEST(Reply, ALengthLongerThanTheTextEndsAtItsTerminator) {
    EXPECT_EQ(contentsOf(replyOf(L"<r><a>1</a></r>" + std::wstring(1000, L'\0'))), "[a 1][no b]");
}

TEST(Reply, ATerminatorWithinTheTextEndsIt) {
    EXPECT_EQ(contentsOf(replyOf(std::wstring(L"<r><a>1</a>\0<b>2</b></r>", 24))), "[a 1][no b]");
    EXPECT_EQ(contentsOf(replyOf(std::wstring(L"\0<r><a>1</a></r>", 16))), "no root");
}

// ---- Cut replies ----

TEST(Reply, EveryBeginningOfOneHasTheRootOnceItsNameIsThere) {
    const std::string text = kvj::tests::contentOf(EXAMPLES_DIR "/replies/get_job_status.xml");
    const std::size_t named = text.find("<get_job_status") + 15;
    ASSERT_LT(named, text.size());
    for (std::size_t length = 1; length <= text.size(); ++length) {
        const auto characters = unterminated(wide(text.substr(0, length)));
        const Reply reply(characters[0], static_cast<std::int64_t>(length));
        ASSERT_EQ(static_cast<bool>(reply.root("get_job_status")), length >= named) << length;

        const auto bytes = std::make_unique<char[]>(length + 1);
        text.copy(bytes.get(), length);
        const Reply narrow(bytes.get());
        ASSERT_EQ(static_cast<bool>(narrow.root("get_job_status")), length >= named) << length;
        ASSERT_EQ(treeOf(narrow.root("get_job_status")), treeOf(reply.root("get_job_status"))) << length;
    }
}

TEST(Reply, ACharacterCutAtTheEndDoesNotLeadBehindIt) {
    // The first byte of a character of four, then the terminator.
    const std::string text = "<?xml version=\"1.0\"?><r><a>\xF0";
    const auto exact = std::make_unique<char[]>(text.size() + 1);
    text.copy(exact.get(), text.size());
    EXPECT_EQ(contentsOf(Reply(exact.get())), "[a \xF0][no b]");

    const std::string more = text + "\0xy</a><b>2</b></r>"s;
    EXPECT_EQ(contentsOf(Reply(more.c_str())), "[a \xF0][no b]");
}

TEST(Reply, ACutCharacterIsSafeAtAnyLengthOfTheText) {
    for (std::size_t padding = 0; padding < 8; ++padding) {
        const std::string text = "<?xml version=\"1.0\"?>" + std::string(padding, ' ') + "<r><a>\xF0";
        const auto exact = std::make_unique<char[]>(text.size() + 1);
        text.copy(exact.get(), text.size());
        EXPECT_EQ(contentsOf(Reply(exact.get())), "[a \xF0][no b]") << padding;
    }
}

TEST(Reply, ACutCharacterIsSafeInWideTextToo) {
    const LocaleScope turkish("tr_TR.ISO-8859-9");
    // There the letter g with a breve is the byte F0, that begins a character of four in UTF-8.
    const std::wstring text = L"<?xml version=\"1.0\"?><r><a>\u011F";
    const auto exact = unterminated(text);
    EXPECT_EQ(contentsOf(Reply(exact[0], static_cast<std::int64_t>(text.size()))), "[a \xF0][no b]");
}

// ---- Characters beyond ASCII ----

TEST(Reply, InAnAsciiLocaleTheTextEndsBeforeAnyOtherCharacter) {
    const LocaleScope ascii("C");
    EXPECT_EQ(contentsOf(replyOf(L"<r><a>caf\u00E9</a><b>2</b></r>")), "[a caf][no b]");
    EXPECT_EQ(contentsOf(replyOf(L"\u00E9<r><a>1</a></r>")), "no root");
}

TEST(Reply, InAUtf8LocaleTheTextIsUtf8) {
    const LocaleScope utf8("C.UTF-8");
    EXPECT_EQ(contentsOf(replyOf(L"<r><a>caf\u00E9</a><b>2</b></r>")), "[a caf\xC3\xA9][b 2]");
    EXPECT_EQ(contentsOf(replyOf(L"<?xml version=\"1.0\"?><r><a>\u20AC</a><b>2</b></r>")), "[a \xE2\x82\xAC][b 2]");
}

TEST(Reply, InAUtf8LocaleACharacterCostsTheEndTheBytesBeyondOne) {
    const LocaleScope utf8("C.UTF-8");
    EXPECT_EQ(contentsOf(replyOf(L"<r><a>x</a><b>12")), "[a x][b 12]");
    EXPECT_EQ(contentsOf(replyOf(L"<r><a>\u00E9</a><b>12")), "[a \xC3\xA9][b 1]");
    EXPECT_EQ(contentsOf(replyOf(L"<r><a>\u20AC</a><b>12")), "[a \xE2\x82\xAC][b]");
    EXPECT_EQ(contentsOf(replyOf(L"<r><a>\u00E9\u00E9\u00E9</a><b>1234")), "[a \xC3\xA9\xC3\xA9\xC3\xA9][b 1]");
    EXPECT_EQ(contentsOf(replyOf(L"<r><a>\U0001F5A8</a><b>123</b>")), "[a \xF0\x9F\x96\xA8][b 123]");
}

TEST(Reply, InAUtf8LocaleACharacterIsReadWholeOrNotAtAll) {
    const LocaleScope utf8("C.UTF-8");
    EXPECT_EQ(contentsOf(replyOf(L"<r><a>x\u20AC")), "[a x][no b]");
    EXPECT_EQ(contentsOf(replyOf(L"<r><a>\u20ACx\u00E9")), "[a \xE2\x82\xAC][no b]");
}

TEST(Reply, InAUtf8LocaleALengthGreaterByThoseBytesKeepsTheEnd) {
    const LocaleScope utf8("C.UTF-8");
    EXPECT_EQ(contentsOf(replyOf(L"<r><a>\u00E9</a><b>12" + std::wstring(1, L'\0'))), "[a \xC3\xA9][b 12]");
    EXPECT_EQ(contentsOf(replyOf(L"<r><a>\u20AC</a><b>12" + std::wstring(2, L'\0'))), "[a \xE2\x82\xAC][b 12]");
    EXPECT_EQ(contentsOf(replyOf(L"<r><a>\u20AC</a><b>12  ")), "[a \xE2\x82\xAC][b 12]");
}

TEST(Reply, InALocaleOfOneByteACharacterCostsNothing) {
    const LocaleScope turkish("tr_TR.ISO-8859-9");
    EXPECT_EQ(contentsOf(replyOf(L"<r><a>\u00E9</a><b>12")), "[a \xE9][b 12]");
}

TEST(Reply, ACharacterThatWaitsForTheNextArrivesAndNothingBehindTheReplyIsRead) {
    const auto contentsAtTheEnd = [](const char* locale, std::wstring_view text) {
        const LocaleScope scope(locale);
        const GuardedMemory memory(text.size() * sizeof(wchar_t));
        auto* const reply = reinterpret_cast<wchar_t*>(memory.at(End::back, text.size() * sizeof(wchar_t)));
        std::ranges::copy(text, reply);
        return contentsOf(Reply(*reply, static_cast<std::int64_t>(text.size())));
    };
    // The tag is left out, which makes room for the character's second byte.
    EXPECT_EQ(contentsAtTheEnd("zh_HK.BIG5-HKSCS", L"<r><a>\U000E0041\u00CA"), "[a \x88\x66][no b]");
    EXPECT_EQ(contentsAtTheEnd("ja_JP.EUC-JISX0213", L"<r><a>\U000E0041\u304B"), "[a \xA4\xAB][no b]");
    EXPECT_EQ(contentsAtTheEnd("zh_HK.BIG5-HKSCS", L"<r><a>1\u00CA"), "[a 1][no b]");
    EXPECT_EQ(contentsAtTheEnd("ja_JP.EUC-JISX0213", L"<r><a>1\u304B"), "[a 1][no b]");
}

TEST(Reply, AnythingThatIsNoCharacterEndsTheText) {
    for (const char* locale : {"C", "C.UTF-8"}) {
        const LocaleScope scope(locale);
        for (const std::uint32_t code : {0xD800U, 0xDBFFU, 0xDC00U, 0xDFFFU, 0xFFFFFFFFU}) {
            const std::wstring text = L"<r><a>1" + std::wstring(1, static_cast<wchar_t>(code)) + L"2</a><b>3</b></r>";
            EXPECT_EQ(contentsOf(replyOf(text)), "[a 1][no b]") << locale << ' ' << std::hex << code;
        }
    }
}

TEST(Reply, AByteOrderMarkInFrontIsSkippedInAUtf8Locale) {
    const LocaleScope utf8("C.UTF-8");
    EXPECT_EQ(contentsOf(replyOf(L"\uFEFF<r><a>1</a></r>  ")), "[a 1][no b]");
    EXPECT_EQ(contentsOf(Reply("\xEF\xBB\xBF<r><a>1</a></r>")), "[a 1][no b]");
}

TEST(Reply, NarrowTextIsReadInAnyLocale) {
    for (const char* locale : {"C", "C.UTF-8", "tr_TR.ISO-8859-9"}) {
        const LocaleScope scope(locale);
        EXPECT_EQ(contentsOf(Reply("<r><a>caf\xC3\xA9</a><b>2</b></r>")), "[a caf\xC3\xA9][b 2]") << locale;
    }
}

// ---- What is wrong with a reply ----

TEST(Reply, TheFirstFaultHasAPlaceInTheTextThatCameIn) {
    const std::string text = "<r><a>&amp;&amp;</a>\n<a></b></r></q>";
    const Reply reply(text.c_str());
    EXPECT_EQ(reply.fault().id, TiXmlBase::TIXML_ERROR_READING_END_TAG);
    EXPECT_EQ(reply.fault().offset, text.find("</b>"));
}

TEST(Reply, WithoutAFaultThereIsNone) { EXPECT_FALSE(Reply("<r><a>1</a></r>").fault()); }

}  // namespace

}  // namespace reply_test
