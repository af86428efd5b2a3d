// The copy of a configuration request that the service engineer finds.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>

#include "configuration/requests.h"

namespace diagnostic_copy_test {

namespace {

using namespace kvj::tests;

class ConfigurationCopy : public Requests {
protected:
    /// The copy as a tree: its layout is that of files.
    static std::string copy() {
        Xml xml(contentOf(copyPath).c_str());
        return written(*xml.root());
    }
    static std::string expected(const char* document) {
        Xml xml(documentOf(document).c_str());
        return written(*xml.root());
    }
};

TEST_F(ConfigurationCopy, IsWhatWasPrinted) {
    const Composed request = composed(cfg, {});
    ASSERT_TRUE(request.result);
    Xml printed(request.text.c_str());
    EXPECT_EQ(copy(), written(*printed.root()));
    Xml file(contentOf(copyPath).c_str());
    const TiXmlNode* first = file.root()->GetDocument()->FirstChild();
    ASSERT_NE(first->ToDeclaration(), nullptr);
    EXPECT_STREQ(first->ToDeclaration()->Version(), "1.0");
    EXPECT_STREQ(first->ToDeclaration()->Encoding(), "UTF-8");
}

TEST_F(ConfigurationCopy, IsReadableByItsOwnerAlone) {
    composed(cfg, {.mask = 0x4});
    EXPECT_NE(contentOf(copyPath).find("k3y-of-the-office"), std::string::npos);
    struct stat status {};
    ASSERT_EQ(lstat(copyPath, &status), 0);
    EXPECT_EQ(status.st_mode, mode_t{S_IFREG | 0600});
}

TEST_F(ConfigurationCopy, IsLeftWithoutABufferToo) {
    EXPECT_FALSE(KVJSetConfig().SetConfiguration(cfg, nullptr, 0, 0x40, 0, false));
    EXPECT_EQ(copy(), expected("standby_timeout"));
}

TEST_F(ConfigurationCopy, IsWholeEvenWhereThePrintIsCut) {
    wchar_t out[10];
    EXPECT_TRUE(KVJSetConfig().SetConfiguration(cfg, out, 10, 0x40, 0, false));
    EXPECT_EQ(copy(), expected("standby_timeout"));
}

TEST_F(ConfigurationCopy, OfAnotherRequestTakesThePlaceOfTheFirst) {
    composed(cfg, {});
    composed(cfg, {.mask = 0x40});
    EXPECT_EQ(copy(), expected("standby_timeout"));
}

TEST_F(ConfigurationCopy, OfTheFirstStaysWhenTheNextFails) {
    composed(cfg, {.mask = 0x40});
    EXPECT_EQ(composed(cfg, {.mask = 0}), nothing);
    EXPECT_EQ(composed(cfg, {.mask = 0x4000, .card = 3}), nothing);
    EXPECT_EQ(copy(), expected("standby_timeout"));
}

TEST_F(ConfigurationCopy, IsLeftAgainWhenTheRequestIsPrintedAgain) {
    KVJSetConfig composer;
    EXPECT_FALSE(composer.SetConfiguration(cfg, nullptr, 0, 0x40, 0, false));
    std::filesystem::remove(copyPath);
    EXPECT_FALSE(composer.saveJob(static_cast<wchar_t*>(nullptr), 0));
    EXPECT_EQ(copy(), expected("standby_timeout"));
}

TEST_F(ConfigurationCopy, IsNotLeftByReading) {
    _KVConfiguration read;
    KVJConfigParser().GetConfiguration(replyText().c_str(), 0, read);
    EXPECT_FALSE(leftCopy());
}

TEST_F(ConfigurationCopy, IsNotLeftThroughALinkAndTheHostHasItsRequest) {
    const TemporaryFolder folder;
    kvj::tests::write(folder / "target", "precious");
    std::filesystem::create_symlink(folder / "target", copyPath);
    EXPECT_EQ(composed(cfg, {.mask = 0x40}), (Composed{true, documentOf("standby_timeout")}));
    EXPECT_EQ(contentOf(folder / "target"), "precious");
    EXPECT_TRUE(std::filesystem::is_symlink(copyPath));
}

}  // namespace

}  // namespace diagnostic_copy_test
