#include "KVJSetSecActions.h"

#include <cstring>
#include <string>

#include "foundation/convert.h"
#include "foundation/request.h"
#include "foundation/tags.h"

namespace Kavrin {

using kvj::addTag;
using kvj::addText;
using kvj::beginRequestAnew;
using kvj::setAttribute;

namespace {

/// Says which printer is meant, and with which nonce.
void addPrinter(TiXmlElement* action, const _tagSecActionXMLValues& values) {
    TiXmlElement* printer = addTag(action, "printer");
    setAttribute(printer, "model", values.model);
    setAttribute(printer, "serial", values.serial);
    setAttribute(printer, "nonce", values.nonce);
}

/// A key from a field of the record, which need not be terminated.
template <std::size_t N>
void addKey(TiXmlElement* keys, const char* name, const char (&key)[N]) {
    addTag(keys, name, std::string(key, strnlen(key, N)).c_str());
}

}  // namespace

bool KVJSetSecActions::GetNonceXML(char* nonce, wchar_t* out, int capacity) {
    root_ = beginRequestAnew(*this, "nonce");
    return addText(root_, nonce) && saveJob(out, capacity);
}

bool KVJSetSecActions::GetSecureActionXML(char* passkey, wchar_t* out, int capacity) {
    root_ = beginRequestAnew(*this, "passkey");
    return addText(root_, passkey) && saveJob(out, capacity);
}

bool KVJSetSecActions::SecureActionRequestXML(_tagSecActionXMLValues& values, wchar_t* out, int capacity) {
    root_ = beginRequestAnew(*this, "secure_action_request");
    TiXmlElement* action = addTag(root_, "action");
    setAttribute(action, "name", values.name);
    addPrinter(action, values);
    return saveJob(out, capacity);
}

bool KVJSetSecActions::SecureActionDirectiveXML(_tagSecActionXMLValues& values, wchar_t* out, int capacity,
                                                int timeout) {
    root_ = beginRequestAnew(*this, "secure_action_request");
    TiXmlElement* action = addTag(root_, "action");
    addPrinter(action, values);
    addTag(action, "hmac", values.hmac);
    if (timeout != 0) addTag(action, "timeout", kvj::convert::fromInt(timeout).c_str());
    return saveJob(out, capacity);
}

bool KVJSetSecActions::GetPasskeyXML(char* currentPasskey, char* newPasskey, wchar_t* out, int capacity) {
    root_ = beginRequestAnew(*this, "keys");
    TiXmlElement* set = addTag(root_, "set");
    addTag(set, "current_passkey", currentPasskey);
    addTag(set, "new_passkey", newPasskey);
    return saveJob(out, capacity);
}

bool KVJSetSecActions::SetSecureActionXML(_tagSecKeys& keys, wchar_t* out, int capacity) {
    root_ = beginRequestAnew(*this, "keys");
    addKey(root_, "host_authentication_key", keys.host_authentication_key);
    addKey(root_, "data_encryption_key", keys.data_encryption_key);
    addKey(root_, "printer_lock_key", keys.printer_lock_key);
    return saveJob(out, capacity);
}

bool KVJSetSecActions::SetHostAndEncryptXML(wchar_t* out, int capacity, char* currentPasskey, char* currentHostKey,
                                            char* newHostKey, char* currentDataKey, char* newDataKey,
                                            char* currentLockKey, char* newLockKey, bool host, bool data, bool lock) {
    const struct {
        bool wanted;
        const char* name;
        const char* value;
    } rows[] = {
        {true, "current_passkey", currentPasskey},         {host, "current_host_authentication_key", currentHostKey},
        {host, "new_host_authentication_key", newHostKey}, {data, "current_data_encryption_key", currentDataKey},
        {data, "new_data_encryption_key", newDataKey},     {lock, "current_printer_lock_key", currentLockKey},
        {lock, "new_printer_lock_key", newLockKey},
    };
    root_ = beginRequestAnew(*this, "keys");
    TiXmlElement* set = addTag(root_, "set");
    for (const auto& row : rows) {
        if (row.wanted) addTag(set, row.name, row.value);
    }
    return saveJob(out, capacity);
}

bool KVJSetSecActions::saveJob(wchar_t* out, int capacity) { return kvj::print(*this, out, capacity); }

bool KVJSetSecActions::saveJob(char* path) { return kvj::save(*this, path); }

}  // namespace Kavrin
