// A request that is written as text is what TinyXML prints of the same elements, wherever the room ends.
#include "foundation/request_text.h"

#include <gtest/gtest.h>
#include <tinyxml.h>

#include <functional>
#include <string>

#include "foundation/request.h"

namespace request_text_test {

using kvj::Parent;
using kvj::RequestText;
using kvj::TextRoom;

namespace {

char* resize(void* host, std::size_t capacity) {
    auto& text = *static_cast<std::string*>(host);
    text.resize(capacity);
    return text.data();
}

/// What is written below a root, in room that grows from a first size.
std::string written(const std::function<void(Parent)>& fill, std::size_t first = 0) {
    std::string text(first, '\0');
    RequestText request(TextRoom{text.data(), text.size(), resize, &text});
    fill(request.begin("r"));
    text.resize(request.end());
    return text;
}

/// What TinyXML prints of the same.
std::string printed(const std::function<void(Parent)>& fill) {
    TiXmlDocument document;
    fill(kvj::beginRequest(document, "r"));
    TiXmlPrinter printer;
    printer.SetIndent("    ");
    document.Accept(&printer);
    return printer.CStr();
}

void expectSame(const std::function<void(Parent)>& fill) { EXPECT_EQ(written(fill), printed(fill)); }

TEST(RequestText, HasADeclarationAndARoot) {
    EXPECT_EQ(written([](Parent) {}), "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n<r />\n");
    expectSame([](Parent) {});
}

TEST(RequestText, TellsNoTextFromAnEmptyOne) {
    expectSame([](Parent root) { kvj::addText(root, ""); });
    expectSame([](Parent root) {
        kvj::addTag(root, "none");
        kvj::addTag(root, "empty", "");
        kvj::addText(kvj::addTag(root, "null"), nullptr);
        kvj::setAttribute(kvj::addTag(root, "attributes"), "a", "");
    });
}

TEST(RequestText, ClosesWhatIsDeeper) {
    expectSame([](Parent root) {
        const Parent a = kvj::addTag(root, "a");
        const Parent b = kvj::addTag(a, "b");
        kvj::addTag(kvj::addTag(b, "c"), "d", "1");
        kvj::addTag(a, "e", "2");
        kvj::addTag(kvj::addTag(root, "f"), "g");
        kvj::addTag(root, "h", "3");
    });
}

TEST(RequestText, IsIndentedHoweverDeepItIs) {
    expectSame([](Parent root) {
        Parent parent = root;
        for (int depth = 0; depth < 40; ++depth) parent = kvj::addTag(parent, "deeper");
    });
}

TEST(RequestText, WritesEveryByteAsTinyXmlDoes) {
    for (int byte = 1; byte < 256; ++byte) {
        const std::string text = std::string("a") + static_cast<char>(byte) + "b" + static_cast<char>(byte);
        expectSame([&](Parent root) {
            kvj::setAttribute(root, "value", text.c_str());
            kvj::addTag(root, "text", text.c_str());
        });
    }
}

TEST(RequestText, WritesWhatLooksLikeAReferenceAsTinyXmlDoes) {
    for (const char* text : {"&#x41;", "&#65;", "&amp;", "&", "&#x", "]]>", "<!--"}) {
        expectSame([&](Parent root) {
            kvj::setAttribute(root, "value", text);
            kvj::addTag(root, "text", text);
        });
    }
}

TEST(RequestText, QuotesAValueWithAQuotationMarkInApostrophes) {
    for (const char* value : {"\"", "'", "\"'", "none"}) {
        expectSame([&](Parent root) { kvj::setAttribute(root, "value", value); });
    }
}

TEST(RequestText, IsTheSameInWhateverRoomItBegins) {
    const auto fill = [](Parent root) {
        kvj::setAttribute(root, "value", "<>");
        kvj::addTag(kvj::addTag(root, "a"), "b", "text");
    };
    const std::string whole = printed(fill);
    for (std::size_t first = 0; first <= whole.size() + 1; ++first) ASSERT_EQ(written(fill, first), whole) << first;
}

TEST(RequestText, IsCountedBeyondItsRoomAndCutThere) {
    const auto fill = [](Parent root) { kvj::addTag(root, "text", "a & b"); };
    const std::string whole = printed(fill);
    for (std::size_t size = 0; size <= whole.size(); ++size) {
        std::string room(size, '#');
        RequestText request(TextRoom{room.data(), room.size()});
        fill(request.begin("r"));
        ASSERT_EQ(request.end(), whole.size());
        ASSERT_EQ(room, whole.substr(0, size));
    }
}

TEST(RequestText, ThrowsWhenThereIsNoMoreRoom) {
    const TextRoom room{nullptr, 0, [](void*, std::size_t) -> char* { return nullptr; }, nullptr};
    EXPECT_THROW(RequestText(room).begin("r"), std::bad_alloc);
}

}  // namespace

}  // namespace request_text_test
