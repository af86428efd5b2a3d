// The printer's side of the security hand-shake: what is read of it, and what is left alone on purpose.
#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <string>
#include <utility>

#include "KVJSecAction.h"
#include "support/xml.h"

namespace sec_action_test {

namespace {

using namespace Kavrin;
using kvj::tests::wide;
using kvj::tests::written;
using kvj::tests::Xml;

template <class Record>
bool read(bool (KVJSecAction::*reader)(const wchar_t&, unsigned long, Record&), const std::string& reply,
          Record& record) {
    const std::wstring text = wide(reply);
    return (KVJSecAction().*reader)(*text.c_str(), text.size(), record);
}

bool readKeys(const std::string& children, _tagHostDHKeys& keys) {
    return read(&KVJSecAction::ParseHostDHKeyValues, "<diffie_hellman>" + children + "</diffie_hellman>", keys);
}

void expectKeys(const _tagHostDHKeys& keys, unsigned long modulus, unsigned long base, unsigned long host) {
    EXPECT_EQ(keys.modulus, modulus);
    EXPECT_EQ(keys.base, base);
    EXPECT_EQ(keys.host_interim_key, host);
}

// ---- Nonce ----

bool readNonce(const std::string& reply, char* nonce) {
    const std::wstring text = wide(reply);
    return KVJSecAction().GetNonceValue(*text.c_str(), static_cast<int>(text.size()), nonce);
}

TEST(Nonce, IsTheTextOfTheRoot) {
    char nonce[32] = "preset";
    EXPECT_TRUE(readNonce("<nonce>5F3A90C1</nonce>", nonce));
    EXPECT_STREQ(nonce, "5F3A90C1");
}

TEST(Nonce, WithoutTextOrRootIsFalseAndTheBufferAsItWas) {
    for (const char* reply : {"<nonce/>", "<Nonce>1</Nonce>", "<a><nonce>1</nonce></a>", ""}) {
        char nonce[32] = "preset";
        EXPECT_FALSE(readNonce(reply, nonce)) << reply;
        EXPECT_STREQ(nonce, "preset");
    }
    EXPECT_FALSE(readNonce("<nonce>1</nonce>", nullptr));
}

TEST(Nonce, LongerThan31CharactersIsCutAndFalse) {
    char buffer[34];
    std::memset(buffer, '#', sizeof buffer);
    EXPECT_FALSE(readNonce("<nonce>" + std::string(40, 'n') + "</nonce>", buffer + 1));
    EXPECT_EQ(std::string(buffer, sizeof buffer), "#" + std::string(31, 'n') + std::string(1, '\0') + "#");
    EXPECT_TRUE(readNonce("<nonce>" + std::string(31, 'm') + "</nonce>", buffer + 1));
}

// ---- Diffie-Hellman values ----

TEST(KeyExchange, EachReaderTakesItsPartOfOneReply) {
    const std::string reply =
        "<diffie_hellman><modulus>0x1F</modulus><base>5</base><host_interim_key>7</host_interim_key>"
        "<printer_interim_key>9</printer_interim_key></diffie_hellman>";
    _tagHostDHKeys keys{};
    EXPECT_TRUE(read(&KVJSecAction::ParseHostDHKeyValues, reply, keys));
    expectKeys(keys, 31, 5, 7);
    long printerKey = 0;
    EXPECT_TRUE(read(&KVJSecAction::ParsePrinterDHKeyValues, reply, printerKey));
    EXPECT_EQ(printerKey, 9);
}

TEST(KeyExchange, NumbersAreHexadecimalBehindTheirPrefixElseDecimal) {
    const struct {
        const char* text;
        unsigned long value;
    } numbers[] = {{"0x1F", 31},  {"0x1f", 31},     {"31", 31},  {"0X1F", 0}, {"0xFFFFFFFFFFFFFFFF", ULONG_MAX},
                   {" 12", 12},   {"12abc", 12},    {"010", 10}, {"0", 0},    {"18446744073709551615", ULONG_MAX},
                   {"0x10g", 16}, {"-1", ULONG_MAX}};
    for (const auto& [text, value] : numbers) {
        _tagHostDHKeys keys{101, 102, 103};
        EXPECT_TRUE(readKeys("<modulus>" + std::string(text) + "</modulus>", keys)) << text;
        EXPECT_EQ(keys.modulus, value) << text;
    }
}

TEST(KeyExchange, ATextThatIsNoNumberLeavesItsFieldAndIsTrue) {
    _tagHostDHKeys keys{101, 102, 103};
    EXPECT_TRUE(readKeys("<modulus>none</modulus><base>x1F</base>", keys));
    expectKeys(keys, 101, 102, 103);
}

TEST(KeyExchange, AnElementWithoutTextIsSkippedAndTakesNothingBack) {
    _tagHostDHKeys keys{101, 102, 103};
    EXPECT_FALSE(readKeys("<modulus/>", keys));
    EXPECT_TRUE(readKeys("<base>5</base><modulus/><other/>", keys));
    expectKeys(keys, 101, 5, 103);
}

TEST(KeyExchange, TheOtherSidesValueAloneIsTrueAndLeavesTheRecord) {
    _tagHostDHKeys keys{101, 102, 103};
    EXPECT_TRUE(readKeys("<printer_interim_key>9</printer_interim_key>", keys));
    expectKeys(keys, 101, 102, 103);
    long printerKey = 104;
    EXPECT_TRUE(
        read(&KVJSecAction::ParsePrinterDHKeyValues, "<diffie_hellman><base>5</base></diffie_hellman>", printerKey));
    EXPECT_EQ(printerKey, 104);
}

TEST(KeyExchange, WithoutKnownElementsIsFalseAndLeavesEverything) {
    _tagHostDHKeys keys{101, 102, 103};
    long printerKey = 104;
    EXPECT_FALSE(readKeys("", keys));
    EXPECT_FALSE(readKeys("<Modulus>1</Modulus>", keys));
    EXPECT_FALSE(read(&KVJSecAction::ParseHostDHKeyValues, "<nonce><base>1</base></nonce>", keys));
    EXPECT_FALSE(KVJSecAction().ParseDHKeys(nullptr, keys, printerKey));
    expectKeys(keys, 101, 102, 103);
    EXPECT_EQ(printerKey, 104);
}

TEST(KeyExchange, ALengthOfZeroOrBelowIsNoReply) {
    const std::wstring text = wide("<diffie_hellman><base>1</base></diffie_hellman>");
    _tagHostDHKeys keys{101, 102, 103};
    EXPECT_FALSE(KVJSecAction().ParseHostDHKeyValues(*text.c_str(), 0, keys));
    EXPECT_FALSE(KVJSecAction().ParseHostDHKeyValues(*text.c_str(), ULONG_MAX, keys));
    expectKeys(keys, 101, 102, 103);
}

TEST(KeyExchange, ThePrintersKeyIsReadAsTheOthersAndIsSigned) {
    const struct {
        const char* text;
        long value;
    } numbers[] = {{"0x1F", 31}, {"0X1F", 0}, {"0xFFFFFFFFFFFFFFFF", -1}, {"9", 9}, {"none", 104}};
    for (const auto& [text, value] : numbers) {
        long key = 104;
        const std::string reply =
            "<diffie_hellman><printer_interim_key>" + std::string(text) + "</printer_interim_key></diffie_hellman>";
        EXPECT_TRUE(read(&KVJSecAction::ParsePrinterDHKeyValues, reply, key)) << text;
        EXPECT_EQ(key, value) << text;
    }
}

// ---- Names of actions ----

TEST(ActionName, EachIsFoundAloneAndSurrounded) {
    for (const std::string name :
         {"cancel_printer_passkey", "set_single_sided", "set_double_sided", "reset_physical_address", "reset_oem",
          "reset_printer_serial_number", "reset_laminator_serial_number", "clear_error_log", "clear_card_cleaning_log",
          "clear_service_log", "reset_card_count", "reset_impression_count", "reset_system_defaults",
          "reset_cards_laminated", "unlock_printer", "lock_printer", "reset_media_auth_cfg"}) {
        for (const std::string& text : {name, " \t" + name + "\n", "please(" + name + ")now"}) {
            std::string buffer = text;
            EXPECT_TRUE(KVJSecAction().GetActionName(buffer.data())) << text;
            EXPECT_STREQ(buffer.c_str(), name.c_str());
        }
    }
}

TEST(ActionName, UnlockingIsNeverTakenForLocking) {
    std::string both = "lock_printer or unlock_printer";
    EXPECT_TRUE(KVJSecAction().GetActionName(both.data()));
    EXPECT_STREQ(both.c_str(), "unlock_printer");
    std::string lock = "relock_printer";
    EXPECT_TRUE(KVJSecAction().GetActionName(lock.data()));
    EXPECT_STREQ(lock.c_str(), "lock_printer");
}

TEST(ActionName, OfSeveralTheFirstOfTheTableCounts) {
    std::string text = "reset_media_auth_cfg reset_oem";
    EXPECT_TRUE(KVJSecAction().GetActionName(text.data()));
    EXPECT_STREQ(text.c_str(), "reset_oem");
}

TEST(ActionName, AnUnknownTextStaysAsItIs) {
    for (const char* text : {"", "paint_printer", "Lock_Printer", "lock printer"}) {
        std::string buffer = text;
        EXPECT_FALSE(KVJSecAction().GetActionName(buffer.data()));
        EXPECT_STREQ(buffer.c_str(), text);
    }
    EXPECT_FALSE(KVJSecAction().GetActionName(nullptr));
}

// ---- Directives and requests ----

_tagSecDirecXML presetDirective() { return {"M", "S", "A", "N", "H"}; }

TEST(Directive, OnlyTheActionAndTheDigestAreRead) {
    _tagSecDirecXML directive = presetDirective();
    EXPECT_TRUE(
        read(&KVJSecAction::ParseSecureDirectiveValues,
             "<action> unlock_printer!<printer model=\"m\" serial=\"s\" nonce=\"n\"/><hmac>9b1d</hmac></action>",
             directive));
    EXPECT_STREQ(directive.model, "M");
    EXPECT_STREQ(directive.serial, "S");
    EXPECT_STREQ(directive.action, "unlock_printer");
    EXPECT_STREQ(directive.nonce, "N");
    EXPECT_STREQ(directive.hmac, "9b1d");
}

TEST(Directive, AnUnknownActionStaysAsReceived) {
    _tagSecDirecXML directive = presetDirective();
    EXPECT_TRUE(read(&KVJSecAction::ParseSecureDirectiveValues, "<action>dance<hmac>1</hmac></action>", directive));
    EXPECT_STREQ(directive.action, "dance");
}

TEST(Directive, TheActionIsTheValueOfTheFirstNodeWhateverThatIs) {
    for (const auto& [content, action] : {std::pair("<printer model=\"m\"/><hmac>1</hmac>", "printer"),
                                          std::pair("<!--relock_printer--><hmac>1</hmac>", "lock_printer"),
                                          std::pair("<hmac>1</hmac>unlock_printer", "hmac")}) {
        _tagSecDirecXML directive = presetDirective();
        EXPECT_TRUE(read(&KVJSecAction::ParseSecureDirectiveValues, "<action>" + std::string(content) + "</action>",
                         directive));
        EXPECT_STREQ(directive.action, action);
        EXPECT_STREQ(directive.model, "M");
        EXPECT_STREQ(directive.serial, "S");
        EXPECT_STREQ(directive.nonce, "N");
        EXPECT_STREQ(directive.hmac, "1");
    }
}

TEST(Directive, AnActionLongerThanItsFieldIsCutAndTakesNoPartInTheResult) {
    for (const std::size_t length : {std::size_t{259}, std::size_t{260}, std::size_t{100000}}) {
        _tagSecDirecXML directive = presetDirective();
        EXPECT_TRUE(read(&KVJSecAction::ParseSecureDirectiveValues,
                         "<action>" + std::string(length, 'a') + "<hmac>1</hmac></action>", directive));
        EXPECT_EQ(directive.action, std::string(259, 'a'));
        EXPECT_STREQ(directive.nonce, "N");
    }
}

TEST(Directive, OfAnActionLongerThanItsFieldTheNameIsLookedForInTheWholeText) {
    for (const auto& [before, name] : {std::pair(std::string(1000, 'a'), "reset_oem"),
                                       std::pair("lock_printer" + std::string(250, 'a'), "unlock_printer")}) {
        _tagSecDirecXML directive = presetDirective();
        EXPECT_TRUE(read(&KVJSecAction::ParseSecureDirectiveValues,
                         "<action>" + before + name + "<hmac>1</hmac></action>", directive));
        EXPECT_STREQ(directive.action, name);
    }
}

TEST(Directive, ItsResultIsThatOfTheLastKnownChild) {
    const auto parse = [](const std::string& children) {
        _tagSecDirecXML directive = presetDirective();
        return read(&KVJSecAction::ParseSecureDirectiveValues, "<action>" + children + "</action>", directive);
    };
    EXPECT_TRUE(parse("<hmac/><printer/>"));
    EXPECT_FALSE(parse("<printer/><hmac/>"));
    EXPECT_FALSE(parse("<printer/><hmac/><other>1</other>"));
    EXPECT_FALSE(parse("<Printer/><HMAC>1</HMAC>"));
}

TEST(Directive, OfAnotherMessageLeavesTheRecord) {
    _tagSecDirecXML directive = presetDirective();
    EXPECT_FALSE(read(&KVJSecAction::ParseSecureDirectiveValues, "<Action>x<hmac>1</hmac></Action>", directive));
    EXPECT_STREQ(directive.action, "A");
    EXPECT_STREQ(directive.hmac, "H");
}

TEST(Directive, WithoutChildElementsIsFalseAndItsTextIsReadAllTheSame) {
    _tagSecDirecXML directive = presetDirective();
    EXPECT_FALSE(read(&KVJSecAction::ParseSecureDirectiveValues, "<action>lock_printer</action>", directive));
    EXPECT_STREQ(directive.action, "lock_printer");
    EXPECT_FALSE(read(&KVJSecAction::ParseSecureDirectiveValues, "<nonce>1</nonce>", directive));
    EXPECT_FALSE(read(&KVJSecAction::ParseSecureDirectiveValues, "<action><hmac/></action>", directive));
    EXPECT_STREQ(directive.hmac, "H");
}

TEST(Directive, TheReceivedPrinterIsGivenWhatTheRecordHolds) {
    Xml reply("<action><printer model=\"m\"/><hmac>1</hmac></action>");
    _tagSecDirecXML directive = presetDirective();
    EXPECT_TRUE(KVJSecAction().ParseDirectiveValues(reply.root(), directive));
    EXPECT_EQ(written(*reply.root()),
              "<action><printer model=\"M\" serial=\"S\" nonce=\"N\" /><hmac>1</hmac></action>");
}

TEST(Directive, AFieldWithoutATerminatorIsNotReadBeyond) {
    Xml reply("<action><printer/></action>");
    _tagSecDirecXML directive = presetDirective();
    std::memset(directive.model, 'm', sizeof directive.model);
    EXPECT_TRUE(KVJSecAction().ParseDirectiveValues(reply.root(), directive));
    EXPECT_EQ(std::string(reply.root()->FirstChildElement()->Attribute("model")), std::string(260, 'm'));
}

TEST(SecureRequest, FillsNothingAndSetsTheAttributesOfTheReceivedElements) {
    Xml reply("<secure_action_request><action/><printer/></secure_action_request>");
    _tagSecReqXML request{"M", "S", "A", "N"};
    EXPECT_TRUE(KVJSecAction().ParseReqValues(reply.root(), request));
    EXPECT_EQ(written(*reply.root()),
              "<secure_action_request><action name=\"A\" /><printer model=\"M\" serial=\"S\" nonce=\"N\" />"
              "</secure_action_request>");
    EXPECT_STREQ(request.action, "A");
}

TEST(SecureRequest, IsTrueWhenAnyOfItsElementsIsThere) {
    _tagSecReqXML request{};
    const auto parse = [&](const std::string& reply) {
        std::wstring text = wide(reply);
        return KVJSecAction().ParseSecureRequestValues(text.data(), text.size(), request);
    };
    EXPECT_TRUE(parse("<secure_action_request><action/></secure_action_request>"));
    EXPECT_TRUE(parse("<secure_action_request><printer/><x/></secure_action_request>"));
    EXPECT_FALSE(parse("<secure_action_request><x/></secure_action_request>"));
    EXPECT_FALSE(parse("<secure_action_request/>"));
    EXPECT_FALSE(parse("<action/>"));
    EXPECT_FALSE(KVJSecAction().ParseSecureRequestValues(nullptr, 10, request));
}

// ---- Keys ----

TEST(Keys, OfAReplyThatBreaksOffAreReadAsFarAsTheyGoAndTrue) {
    _tagSecKeys keys{};
    EXPECT_TRUE(read(&KVJSecAction::ParseSecurityKeys, "<keys><host_authentication_key>HALF", keys));
    EXPECT_STREQ(keys.host_authentication_key, "HALF");
}

TEST(Keys, AllThreeAreReadAndOthersSkipped) {
    _tagSecKeys keys{"D", "H", "L"};
    EXPECT_TRUE(read(&KVJSecAction::ParseSecurityKeys,
                     "<keys><host_authentication_key>h</host_authentication_key><x/>"
                     "<data_encryption_key>d</data_encryption_key><printer_lock_key>l</printer_lock_key></keys>",
                     keys));
    EXPECT_STREQ(keys.data_encryption_key, "d");
    EXPECT_STREQ(keys.host_authentication_key, "h");
    EXPECT_STREQ(keys.printer_lock_key, "l");
}

TEST(Keys, TheResultIsThatOfTheLastKnownOne) {
    const auto parse = [](const std::string& children) {
        _tagSecKeys keys{};
        return read(&KVJSecAction::ParseSecurityKeys, "<keys>" + children + "</keys>", keys);
    };
    EXPECT_FALSE(parse("<printer_lock_key>l</printer_lock_key><data_encryption_key/><x>1</x>"));
    EXPECT_TRUE(parse("<data_encryption_key/><printer_lock_key>l</printer_lock_key><x/>"));
    EXPECT_FALSE(parse("<Printer_lock_key>l</Printer_lock_key>"));
}

TEST(Keys, ThatFillTheirFieldsAreRead) {
    for (const char* name : {"data_encryption_key", "host_authentication_key", "printer_lock_key"}) {
        _tagSecKeys keys{};
        const std::string tag = name;
        EXPECT_TRUE(read(&KVJSecAction::ParseSecurityKeys,
                         "<keys><" + tag + ">" + std::string(259, 'k') + "</" + tag + "></keys>", keys));
        EXPECT_EQ(std::string(keys.data_encryption_key) + keys.host_authentication_key + keys.printer_lock_key,
                  std::string(259, 'k'));
    }
}

TEST(Keys, OfAnotherMessageLeaveTheirRecords) {
    _tagSecKeys keys{"D", "H", "L"};
    EXPECT_FALSE(read(&KVJSecAction::ParseSecurityKeys,
                      "<passkey><data_encryption_key>d</data_encryption_key></passkey>", keys));
    EXPECT_STREQ(keys.data_encryption_key, "D");
    EXPECT_STREQ(keys.host_authentication_key, "H");
    EXPECT_STREQ(keys.printer_lock_key, "L");
    _tagSecSetKeys change{};
    std::memset(&change, '#', sizeof change);
    const _tagSecSetKeys before = change;
    EXPECT_FALSE(
        read(&KVJSecAction::ParseSetSecurityKeys, "<Keys><set><new_passkey>1</new_passkey></set></Keys>", change));
    EXPECT_FALSE(read(&KVJSecAction::ParseGetSecureActionRequest, "<keys>1</keys>", change));
    EXPECT_EQ(std::memcmp(&change, &before, sizeof change), 0);
}

TEST(Keys, AbsentOnesKeepTheirValuesAndLongOnesAreCut) {
    _tagSecKeys keys{"D", "H", "L"};
    EXPECT_FALSE(read(&KVJSecAction::ParseSecurityKeys, "<keys><x/></keys>", keys));
    EXPECT_FALSE(read(&KVJSecAction::ParseSecurityKeys,
                      "<keys><data_encryption_key>" + std::string(300, 'd') + "</data_encryption_key></keys>", keys));
    EXPECT_EQ(keys.data_encryption_key, std::string(259, 'd'));
    EXPECT_STREQ(keys.host_authentication_key, "H");
    EXPECT_STREQ(keys.printer_lock_key, "L");
}

const char* const changeNames[] = {"current_data_encryption_key",
                                   "new_data_encryption_key",
                                   "current_host_authentication_key",
                                   "new_host_authentication_key",
                                   "current_printer_lock_key",
                                   "new_printer_lock_key",
                                   "current_passkey",
                                   "new_passkey"};

TEST(KeyChange, EachKeyGoesToTheFieldOfItsName) {
    for (std::size_t i = 0; i < 8; ++i) {
        const std::string name = changeNames[i];
        _tagSecSetKeys keys{};
        EXPECT_TRUE(
            read(&KVJSecAction::ParseSetSecurityKeys, "<keys><set><" + name + ">k</" + name + "></set></keys>", keys));
        _tagSecSetKeys expected{};
        reinterpret_cast<char*>(&expected)[64 * i] = 'k';
        EXPECT_EQ(std::memcmp(&keys, &expected, sizeof keys), 0) << name;
        EXPECT_FALSE(read(&KVJSecAction::ParseSetSecurityKeys,
                          "<keys><set><" + name + ">" + std::string(64, 'k') + "</" + name + "></set></keys>", keys));
        std::memset(reinterpret_cast<char*>(&expected) + 64 * i, 'k', 63);
        EXPECT_EQ(std::memcmp(&keys, &expected, sizeof keys), 0) << name;
    }
}

TEST(KeyChange, KeysThatFillTheirFieldsAreRead) {
    for (std::size_t i = 0; i < 8; ++i) {
        const std::string name = changeNames[i];
        _tagSecSetKeys keys{};
        EXPECT_TRUE(read(&KVJSecAction::ParseSetSecurityKeys,
                         "<keys><set><" + name + ">" + std::string(63, 'k') + "</" + name + "></set></keys>", keys))
            << name;
        EXPECT_STREQ(reinterpret_cast<const char*>(&keys) + 64 * i, std::string(63, 'k').c_str()) << name;
    }
}

TEST(KeyChange, TheResultOfASetIsThatOfItsLastKnownKey) {
    const auto parse = [](const std::string& children) {
        _tagSecSetKeys keys{};
        return read(&KVJSecAction::ParseSetSecurityKeys, "<keys>" + children + "</keys>", keys);
    };
    EXPECT_TRUE(parse("<set><new_passkey/><current_passkey>1</current_passkey><x/></set>"));
    EXPECT_FALSE(parse("<set><current_passkey>1</current_passkey><new_passkey/></set>"));
    EXPECT_FALSE(parse("<set><New_passkey>1</New_passkey></set>"));
    EXPECT_FALSE(parse("<Set><new_passkey>1</new_passkey></Set>"));
}

TEST(KeyChange, ALaterSetOverwritesAndItsResultCounts) {
    _tagSecSetKeys keys{};
    EXPECT_TRUE(read(&KVJSecAction::ParseSetSecurityKeys,
                     "<keys><set><new_passkey/></set><set><new_passkey>1</new_passkey></set><x/></keys>", keys));
    EXPECT_STREQ(keys.new_passkey, "1");
    EXPECT_FALSE(
        read(&KVJSecAction::ParseSetSecurityKeys, "<keys><set><new_passkey>2</new_passkey></set><set/></keys>", keys));
    EXPECT_STREQ(keys.new_passkey, "2");
    EXPECT_FALSE(read(&KVJSecAction::ParseSetSecurityKeys, "<keys><new_passkey>3</new_passkey></keys>", keys));
    EXPECT_STREQ(keys.new_passkey, "2");
}

TEST(KeyChange, TheReplyPasskeyIsTheCurrentOne) {
    _tagSecSetKeys keys{};
    EXPECT_TRUE(read(&KVJSecAction::ParseGetSecureActionRequest, "<passkey>old one</passkey>", keys));
    EXPECT_STREQ(keys.current_passkey, "old one");
    EXPECT_STREQ(keys.new_passkey, "");
    EXPECT_FALSE(read(&KVJSecAction::ParseGetSecureActionRequest, "<passkey/>", keys));
    EXPECT_FALSE(
        read(&KVJSecAction::ParseGetSecureActionRequest, "<passkey>" + std::string(64, 'p') + "</passkey>", keys));
    EXPECT_EQ(keys.current_passkey, std::string(63, 'p'));
}

TEST(Keys, TheWalkersAreFalseForNoElement) {
    _tagSecKeys keys{};
    _tagSecSetKeys change{};
    _tagSecReqXML request{};
    _tagSecDirecXML directive{};
    EXPECT_FALSE(KVJSecAction().ParseHostNEncryptKey(nullptr, keys));
    EXPECT_FALSE(KVJSecAction().ParsePassKey(nullptr, change));
    EXPECT_FALSE(KVJSecAction().ParsePassKey1(nullptr, change));
    EXPECT_FALSE(KVJSecAction().ParseReqValues(nullptr, request));
    EXPECT_FALSE(KVJSecAction().ParseDirectiveValues(nullptr, directive));
}

}  // namespace

}  // namespace sec_action_test
