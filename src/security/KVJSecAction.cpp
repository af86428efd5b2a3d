#include "KVJSecAction.h"

#include <cstring>

#include "foundation/reply.h"
#include "foundation/values.h"
#include "security/tables.h"

namespace Kavrin {

using kvj::readText;
using kvj::Reply;
using kvj::walk;
namespace tables = kvj::security;

namespace {

/// A length as Reply takes it; one that no reply can have counts as zero.
std::int64_t signedLength(unsigned long length) { return static_cast<std::int64_t>(length); }

}  // namespace

bool KVJSecAction::GetNonceValue(const wchar_t& reply, int length, char* nonce) {
    constexpr int capacity = 32;
    if (nonce == nullptr) return false;
    return readText(Reply(reply, length).root("nonce"), nonce, capacity);
}

bool KVJSecAction::ParseHostDHKeyValues(const wchar_t& reply, unsigned long length, _tagHostDHKeys& keys) {
    long printerKey = 0;
    return tables::readKeyExchange(Reply(reply, signedLength(length)).root("diffie_hellman"), keys, printerKey);
}

bool KVJSecAction::ParsePrinterDHKeyValues(const wchar_t& reply, unsigned long length, long& key) {
    _tagHostDHKeys keys{};
    return tables::readKeyExchange(Reply(reply, signedLength(length)).root("diffie_hellman"), keys, key);
}

bool KVJSecAction::ParseDHKeys(TiXmlElement* element, _tagHostDHKeys& keys, long& printerKey) {
    return tables::readKeyExchange(element, keys, printerKey);
}

bool KVJSecAction::ParseSecureDirectiveValues(const wchar_t& reply, unsigned long length, _tagSecDirecXML& directive) {
    return tables::readDirective(Reply(reply, signedLength(length)).root("action"), directive);
}

bool KVJSecAction::ParseDirectiveValues(TiXmlElement* element, _tagSecDirecXML& directive) {
    return walk(element, directive, tables::directive);
}

bool KVJSecAction::ParseSecureRequestValues(wchar_t* reply, unsigned long length, _tagSecReqXML& request) {
    if (reply == nullptr) return false;
    return walk(Reply(*reply, signedLength(length)).root("secure_action_request"), request, tables::request);
}

bool KVJSecAction::ParseReqValues(TiXmlElement* element, _tagSecReqXML& request) {
    return walk(element, request, tables::request);
}

bool KVJSecAction::ParseSecurityKeys(const wchar_t& reply, unsigned long length, _tagSecKeys& keys) {
    return walk(Reply(reply, signedLength(length)).root("keys"), keys, tables::keys);
}

bool KVJSecAction::ParseHostNEncryptKey(TiXmlElement* element, _tagSecKeys& keys) {
    return walk(element, keys, tables::keys);
}

bool KVJSecAction::ParseSetSecurityKeys(const wchar_t& reply, unsigned long length, _tagSecSetKeys& keys) {
    return walk(Reply(reply, signedLength(length)).root("keys"), keys, tables::keyChanges);
}

bool KVJSecAction::ParsePassKey(TiXmlElement* element, _tagSecSetKeys& keys) {
    return walk(element, keys, tables::keyChanges);
}

bool KVJSecAction::ParsePassKey1(TiXmlElement* element, _tagSecSetKeys& keys) {
    return walk(element, keys, tables::keyChange);
}

bool KVJSecAction::ParseGetSecureActionRequest(const wchar_t& reply, unsigned long length, _tagSecSetKeys& keys) {
    return readText(Reply(reply, signedLength(length)).root("passkey"), keys.current_passkey,
                    sizeof keys.current_passkey);
}

bool KVJSecAction::GetActionName(char* name) {
    const char* found = tables::actionNameIn(name);
    if (found == nullptr) return false;
    std::memcpy(name, found, std::strlen(found) + 1);
    return true;
}

}  // namespace Kavrin
