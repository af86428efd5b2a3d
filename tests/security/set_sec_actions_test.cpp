// The host's side of the security hand-shake: each message to the byte, and that no key is left in any file.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <climits>
#include <filesystem>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

#include "KVJSetSecActions.h"
#include "support/files.h"
#include "support/xml.h"

namespace set_sec_actions_test {

namespace {

using namespace Kavrin;
using kvj::tests::contentOf;
using kvj::tests::TemporaryFolder;
using kvj::tests::wide;

const std::string declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n";

using Compose = std::function<bool(KVJSetSecActions&, wchar_t*, int)>;

/// The message that a composer makes, with an object of its own.
std::string composed(const Compose& compose, KVJSetSecActions&& composer = {}) {
    std::wstring out(20000, L'\0');
    EXPECT_TRUE(compose(composer, out.data(), static_cast<int>(out.size())));
    std::string text;
    for (const wchar_t c : std::wstring(out.c_str())) text += static_cast<char>(c);
    return text;
}

/// Such a text can be passed as a pointer to characters.
char* chars(const char* text) { return const_cast<char*>(text); }

Compose nonce(const char* text) {
    return [text](KVJSetSecActions& c, wchar_t* out, int n) { return c.GetNonceXML(chars(text), out, n); };
}
Compose passkey(const char* text) {
    return [text](KVJSetSecActions& c, wchar_t* out, int n) { return c.GetSecureActionXML(chars(text), out, n); };
}
Compose passkeyChange(const char* current, const char* next) {
    return
        [=](KVJSetSecActions& c, wchar_t* out, int n) { return c.GetPasskeyXML(chars(current), chars(next), out, n); };
}
Compose request(_tagSecActionXMLValues values) {
    return [=](KVJSetSecActions& c, wchar_t* out, int n) mutable { return c.SecureActionRequestXML(values, out, n); };
}
Compose directive(_tagSecActionXMLValues values, int timeout) {
    return [=](KVJSetSecActions& c, wchar_t* out, int n) mutable {
        return c.SecureActionDirectiveXML(values, out, n, timeout);
    };
}
Compose keys(_tagSecKeys values) {
    return [=](KVJSetSecActions& c, wchar_t* out, int n) mutable { return c.SetSecureActionXML(values, out, n); };
}
Compose keyChange(bool host, bool data, bool lock) {
    return [=](KVJSetSecActions& c, wchar_t* out, int n) {
        return c.SetHostAndEncryptXML(out, n, chars("p"), chars("h0"), chars("h1"), chars("d0"), chars("d1"),
                                      chars("l0"), chars("l1"), host, data, lock);
    };
}

/// A change of all keys, with the same text for each.
Compose keyChange(const char* text) {
    return [=](KVJSetSecActions& c, wchar_t* out, int n) {
        char* key = chars(text);
        return c.SetHostAndEncryptXML(out, n, key, key, key, key, key, key, key, true, true, true);
    };
}

const _tagSecActionXMLValues values{"lock_printer", "CX-2", "000417", "5F3A", "9b1d"};

TEST(SecurityRequest, TheNonceIsTheRootsText) {
    EXPECT_EQ(composed(nonce("5F3A")), declaration + "<nonce>5F3A</nonce>\n");
}

TEST(SecurityRequest, ThePasskeyIsTheRootsText) {
    EXPECT_EQ(composed(passkey("a b")), declaration + "<passkey>a b</passkey>\n");
}

TEST(SecurityRequest, ANullNonceOrPasskeyIsFalseAndWritesNothing) {
    wchar_t out[4] = L"###";
    KVJSetSecActions composer;
    EXPECT_FALSE(composer.GetNonceXML(nullptr, out, 4));
    EXPECT_FALSE(composer.GetSecureActionXML(nullptr, out, 4));
    EXPECT_STREQ(out, L"###");
}

TEST(SecurityRequest, ARequestHasThePrinterInsideTheNamedAction) {
    EXPECT_EQ(composed(request(values)), declaration +
                                             "<secure_action_request>\n    <action name=\"lock_printer\">\n"
                                             "        <printer model=\"CX-2\" serial=\"000417\" nonce=\"5F3A\" />\n"
                                             "    </action>\n</secure_action_request>\n");
}

TEST(SecurityRequest, NullTextsAreLeftOut) {
    EXPECT_EQ(composed(request({})), declaration +
                                         "<secure_action_request>\n    <action>\n        <printer />\n    </action>\n"
                                         "</secure_action_request>\n");
    EXPECT_EQ(composed(directive({}, 0)), declaration +
                                              "<secure_action_request>\n    <action>\n        <printer />\n"
                                              "    </action>\n</secure_action_request>\n");
    EXPECT_EQ(composed(passkeyChange(nullptr, nullptr)), declaration + "<keys>\n    <set />\n</keys>\n");
}

std::string directiveText(const std::string& timeout) {
    return declaration +
           "<secure_action_request>\n    <action>\n"
           "        <printer model=\"CX-2\" serial=\"000417\" nonce=\"5F3A\" />\n"
           "        <hmac>9b1d</hmac>\n" +
           timeout + "    </action>\n</secure_action_request>\n";
}

TEST(SecurityRequest, ADirectiveHasTheDigestAndNoName) { EXPECT_EQ(composed(directive(values, 0)), directiveText("")); }

TEST(SecurityRequest, ADirectiveHasItsTimeoutUnlessItIsZero) {
    EXPECT_EQ(composed(directive(values, 30)), directiveText("        <timeout>30</timeout>\n"));
    EXPECT_EQ(composed(directive(values, -1)), directiveText("        <timeout>-1</timeout>\n"));
}

TEST(SecurityRequest, APasskeyChangeHasBothPasskeys) {
    EXPECT_EQ(composed(passkeyChange("old", "")),
              declaration +
                  "<keys>\n    <set>\n        <current_passkey>old</current_passkey>\n"
                  "        <new_passkey></new_passkey>\n    </set>\n</keys>\n");
}

TEST(SecurityRequest, TheKeysStandInThePrintersOrder) {
    EXPECT_EQ(composed(keys({"d", "h", "l"})), declaration +
                                                   "<keys>\n    <host_authentication_key>h</host_authentication_key>\n"
                                                   "    <data_encryption_key>d</data_encryption_key>\n"
                                                   "    <printer_lock_key>l</printer_lock_key>\n</keys>\n");
}

TEST(SecurityRequest, AKeyWithoutATerminatorIsNotReadBeyond) {
    _tagSecKeys unterminated{};
    std::fill(std::begin(unterminated.printer_lock_key), std::end(unterminated.printer_lock_key), 'k');
    EXPECT_NE(composed(keys(unterminated)).find(">" + std::string(260, 'k') + "<"), std::string::npos);
}

TEST(SecurityRequest, AKeyChangeHasTheKeysThatAreAskedFor) {
    const std::string host =
        "        <current_host_authentication_key>h0</current_host_authentication_key>\n"
        "        <new_host_authentication_key>h1</new_host_authentication_key>\n";
    const std::string data =
        "        <current_data_encryption_key>d0</current_data_encryption_key>\n"
        "        <new_data_encryption_key>d1</new_data_encryption_key>\n";
    const std::string lock =
        "        <current_printer_lock_key>l0</current_printer_lock_key>\n"
        "        <new_printer_lock_key>l1</new_printer_lock_key>\n";
    for (int flags = 0; flags < 8; ++flags) {
        const bool withHost = (flags & 1) != 0;
        const bool withData = (flags & 2) != 0;
        const bool withLock = (flags & 4) != 0;
        EXPECT_EQ(composed(keyChange(withHost, withData, withLock)),
                  declaration + "<keys>\n    <set>\n        <current_passkey>p</current_passkey>\n" +
                      (withHost ? host : "") + (withData ? data : "") + (withLock ? lock : "") +
                      "    </set>\n</keys>\n");
    }
}

TEST(SecurityRequest, TextsAreEscaped) {
    EXPECT_EQ(composed(passkey("<&>\"'")), declaration + "<passkey>&lt;&amp;&gt;&quot;&apos;</passkey>\n");
    EXPECT_NE(composed(request({"a\"b", "<m>", "", nullptr, nullptr})).find("name='a&quot;b'"), std::string::npos);
}

TEST(SecurityRequest, WithoutABufferItIsFalseAndComposedAllTheSame) {
    const TemporaryFolder folder;
    std::string path = (folder / "message").string();
    KVJSetSecActions composer;
    EXPECT_FALSE(composer.GetNonceXML(chars("5F3A"), nullptr, 100));
    EXPECT_TRUE(composer.saveJob(path.data()));
    EXPECT_EQ(contentOf(path), declaration + "<nonce>5F3A</nonce>\n");
    EXPECT_FALSE(composer.saveJob(static_cast<char*>(nullptr)));
    EXPECT_FALSE(composer.saveJob(chars("/nowhere/message")));
}

TEST(SecurityRequest, AMessageIsCutAtTheCapacityAndTerminatedWhenThereIsRoom) {
    const std::wstring text = wide(declaration + "<nonce>5F3A</nonce>\n");
    const int length = static_cast<int>(text.size());
    for (const int capacity : {0, 5, length, length + 1}) {
        std::wstring out(text.size() + 2, L'#');
        EXPECT_TRUE(KVJSetSecActions().GetNonceXML(chars("5F3A"), out.data(), capacity));
        std::wstring expected = text.substr(0, static_cast<std::size_t>(capacity));
        if (capacity > length) expected += L'\0';
        expected.resize(text.size() + 2, L'#');
        EXPECT_EQ(out, expected) << capacity;
    }
}

TEST(SecurityRequest, ANegativeCapacityIsFalseAndWritesNothing) {
    for (const Compose& message : {nonce("1"), passkey("p"), passkeyChange("a", "b"), request(values),
                                   directive(values, 1), keys({"d", "h", "l"}), keyChange(true, true, true)}) {
        std::wstring out(10, L'#');
        KVJSetSecActions composer;
        EXPECT_FALSE(message(composer, out.data(), -1));
        EXPECT_FALSE(message(composer, out.data(), INT_MIN));
        EXPECT_FALSE(composer.saveJob(out.data(), -1));
        EXPECT_EQ(out, std::wstring(10, L'#'));
    }
}

std::vector<Compose> twentyMessages() {
    std::vector<Compose> messages;
    for (int i = 0; i < 2; ++i) {
        messages.insert(messages.end(), {nonce("1"), request(values), keyChange(true, false, true), passkey("p"),
                                         directive(values, i), passkeyChange("a", "b"), keys({"d", "h", "l"}),
                                         request({}), keyChange(false, false, false), nonce("2")});
    }
    return messages;
}

TEST(SecurityRequest, OneObjectComposesTwentyMessagesLikeTwenty) {
    KVJSetSecActions reused;
    for (const Compose& message : twentyMessages()) {
        std::wstring out(5000, L'\0');
        EXPECT_TRUE(message(reused, out.data(), 5000));
        EXPECT_EQ(std::wstring(out.c_str()), wide(composed(message)));
    }
}

TEST(SecurityRequest, NoKeyIsLeftInAnyDiagnosticFile) {
    const std::string secret = "secret-5d8c1b20";
    const char* text = secret.c_str();
    const _tagSecActionXMLValues identity{text, text, text, text, text};
    for (const Compose& message :
         {nonce(text), passkey(text), passkeyChange(text, text), request(identity), directive(identity, 1),
          keys({"secret-5d8c1b20", "secret-5d8c1b20", "secret-5d8c1b20"}), keyChange(text)}) {
        EXPECT_NE(composed(message).find(secret), std::string::npos);
        for (const char* name : {"/tmp/composedXML", "/tmp/firmwaresettings", "/tmp/printidsettings"}) {
            if (!std::filesystem::exists(name)) continue;
            EXPECT_EQ(contentOf(name).find(secret), std::string::npos) << name;
        }
    }
}

}  // namespace

}  // namespace set_sec_actions_test
