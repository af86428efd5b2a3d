#include "KVJSetSecActions.h"

#include "foundation/request.h"
#include "security/actions.h"

namespace Kavrin {

namespace command = kvj::command;
using kvj::beginRequestAnew;
using kvj::security::addAction;
using kvj::security::rootName;

bool KVJSetSecActions::GetNonceXML(char* nonce, wchar_t* out, int capacity) {
    root_ = beginRequestAnew(*this, rootName<command::Nonce>);
    return addAction(root_, command::Nonce{nonce}) && saveJob(out, capacity);
}

bool KVJSetSecActions::GetSecureActionXML(char* passkey, wchar_t* out, int capacity) {
    root_ = beginRequestAnew(*this, rootName<command::Passkey>);
    return addAction(root_, command::Passkey{passkey}) && saveJob(out, capacity);
}

bool KVJSetSecActions::SecureActionRequestXML(_tagSecActionXMLValues& values, wchar_t* out, int capacity) {
    root_ = beginRequestAnew(*this, rootName<command::ActionRequest>);
    return addAction(root_, command::ActionRequest{values.name, values.model, values.serial, values.nonce}) &&
           saveJob(out, capacity);
}

bool KVJSetSecActions::SecureActionDirectiveXML(_tagSecActionXMLValues& values, wchar_t* out, int capacity,
                                                int timeout) {
    root_ = beginRequestAnew(*this, rootName<command::ActionDirective>);
    return addAction(root_,
                     command::ActionDirective{values.model, values.serial, values.nonce, values.hmac, timeout}) &&
           saveJob(out, capacity);
}

bool KVJSetSecActions::GetPasskeyXML(char* currentPasskey, char* newPasskey, wchar_t* out, int capacity) {
    root_ = beginRequestAnew(*this, rootName<command::PasskeyChange>);
    return addAction(root_, command::PasskeyChange{currentPasskey, newPasskey}) && saveJob(out, capacity);
}

bool KVJSetSecActions::SetSecureActionXML(_tagSecKeys& keys, wchar_t* out, int capacity) {
    root_ = beginRequestAnew(*this, rootName<_tagSecKeys>);
    return addAction(root_, keys) && saveJob(out, capacity);
}

bool KVJSetSecActions::SetHostAndEncryptXML(wchar_t* out, int capacity, char* currentPasskey, char* currentHostKey,
                                            char* newHostKey, char* currentDataKey, char* newDataKey,
                                            char* currentLockKey, char* newLockKey, bool host, bool data, bool lock) {
    root_ = beginRequestAnew(*this, rootName<command::KeyChange>);
    return addAction(root_, command::KeyChange{currentPasskey, currentHostKey, newHostKey, currentDataKey, newDataKey,
                                               currentLockKey, newLockKey, host, data, lock}) &&
           saveJob(out, capacity);
}

bool KVJSetSecActions::saveJob(wchar_t* out, int capacity) { return kvj::print(*this, out, capacity); }

bool KVJSetSecActions::saveJob(char* path) { return kvj::save(*this, path); }

}  // namespace Kavrin
