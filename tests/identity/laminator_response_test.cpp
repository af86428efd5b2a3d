// The reply "lam_ndc_rsp": the laminator's own text, and the buffer of 512 characters that it goes to.
#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "KVJNDC.h"
#include "support/xml.h"

namespace laminator_response_test {

namespace {

using Kavrin::KVJNDC;
using kvj::tests::wide;

/// A host's buffer of 512 characters, with more after them that show a write past the end.
std::string preset() { return std::string(512 + 64, '#'); }

/// The preset buffer with this text and its terminator at its start, and nothing else changed.
std::string presetWith(const std::string& text) { return preset().replace(0, text.size() + 1, text + '\0'); }

bool read(const std::string& reply, std::string& buffer) {
    const std::wstring text = wide(reply);
    return KVJNDC().GetLaminatorResponse(*text.c_str(), static_cast<int>(text.size()), buffer.data());
}

/// Reads a reply with this content of its root.
bool readContent(const std::string& content, std::string& buffer) {
    return read("<lam_ndc_rsp>" + content + "</lam_ndc_rsp>", buffer);
}

TEST(LaminatorResponse, IsTheTextOfTheRoot) {
    std::string buffer = preset();
    EXPECT_TRUE(readContent("LAM OK 02 5A1F", buffer));
    EXPECT_EQ(buffer, presetWith("LAM OK 02 5A1F"));
}

TEST(LaminatorResponse, OfOneCharacterIsRead) {
    std::string buffer = preset();
    EXPECT_TRUE(readContent("0", buffer));
    EXPECT_EQ(buffer, presetWith("0"));
}

TEST(LaminatorResponse, ThatFillsTheBufferIsRead) {
    std::string buffer = preset();
    EXPECT_TRUE(readContent(std::string(511, 'r'), buffer));
    EXPECT_EQ(buffer, presetWith(std::string(511, 'r')));
}

TEST(LaminatorResponse, ThatIsLongerThanTheBufferIsCutTerminatedAndFalse) {
    for (const std::size_t length : {512U, 513U, 100000U}) {
        std::string buffer = preset();
        EXPECT_FALSE(readContent(std::string(length, 'r'), buffer)) << length;
        EXPECT_EQ(buffer, presetWith(std::string(511, 'r'))) << length;
    }
}

TEST(LaminatorResponse, WithoutTextIsFalseAndLeavesTheBuffer) {
    std::string buffer = preset();
    EXPECT_FALSE(readContent("", buffer));
    EXPECT_FALSE(readContent(" ", buffer));
    EXPECT_FALSE(read("<lam_ndc_rsp/>", buffer));
    EXPECT_FALSE(read("<lam_ndc_rsp status=\"ok\"/>", buffer));
    EXPECT_EQ(buffer, preset());
}

TEST(LaminatorResponse, WithoutABufferIsFalse) {
    const std::wstring text = wide("<lam_ndc_rsp>LAM OK</lam_ndc_rsp>");
    EXPECT_FALSE(KVJNDC().GetLaminatorResponse(*text.c_str(), static_cast<int>(text.size()), nullptr));
}

TEST(LaminatorResponse, BehindADeclarationIsFound) {
    std::string buffer = preset();
    EXPECT_TRUE(read("<?xml version=\"1.0\"?>\n<lam_ndc_rsp>LAM OK</lam_ndc_rsp>\n", buffer));
    EXPECT_EQ(buffer, presetWith("LAM OK"));
}

TEST(LaminatorResponse, IsCutByALengthShorterThanTheReply) {
    const std::string start = "<lam_ndc_rsp>LAM";
    const std::wstring text = wide(start + " OK</lam_ndc_rsp>");
    std::string buffer = preset();
    EXPECT_TRUE(KVJNDC().GetLaminatorResponse(*text.c_str(), static_cast<int>(start.size()), buffer.data()));
    EXPECT_EQ(buffer, presetWith("LAM"));
}

TEST(LaminatorResponse, OfALengthOfZeroOrLessIsFalseAndLeavesTheBuffer) {
    const std::wstring text = wide("<lam_ndc_rsp>LAM OK</lam_ndc_rsp>");
    std::string buffer = preset();
    for (const int length : {0, -1, INT_MIN}) {
        EXPECT_FALSE(KVJNDC().GetLaminatorResponse(*text.c_str(), length, buffer.data())) << length;
        EXPECT_EQ(buffer, preset());
    }
}

TEST(LaminatorResponse, ReplacesTheOneBefore) {
    std::string buffer = preset();
    KVJNDC reader;
    for (const std::string response : {"LAM BUSY 17", "LAM OK"}) {
        const std::wstring text = wide("<lam_ndc_rsp>" + response + "</lam_ndc_rsp>");
        EXPECT_TRUE(reader.GetLaminatorResponse(*text.c_str(), static_cast<int>(text.size()), buffer.data()));
        EXPECT_STREQ(buffer.c_str(), response.c_str());
    }
}

}  // namespace

}  // namespace laminator_response_test
