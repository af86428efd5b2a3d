/// @file KVJSetSecActions.h
/// Composes the host's side of the hand-shake that protects administrative actions: nonce, requests and directives,
/// passkeys and keys.
#ifndef KVJXML_KVJ_SET_SEC_ACTIONS_H
#define KVJXML_KVJ_SET_SEC_ACTIONS_H

#include <tinyxml.h>

#include "SecurityRecords.h"
#include "kvjxml_export.h"

namespace Kavrin {

/// The object is the document: each operation clears it, composes its message and prints that into the host's buffer,
/// so one object composes any number of messages, one after the other and in one thread at a time. **No copy is left in
/// any file**: messages hold keys.
///
/// **Buffers.** `out` has room for `capacity` wide characters, the message is converted to them in the process's
/// locale, and its terminator is written when there is room for it. A message that fills the capacity, or that contains
/// a byte that the locale does not know, ends without one: leave room to spare, and set the buffer to zero first.
///
/// **Results.** True when the message was printed, even if it was cut; false, with nothing written, when `out` is null
/// or `capacity` negative, with the message composed all the same for saveJob. A null text leaves its element or
/// attribute out; a null nonce or passkey that is the message itself gives false.
///
/// **Size.** Hosts are compiled with the size of the object, so it stays as it is.
class KVJXML_API KVJSetSecActions : public TiXmlDocument {
public:
    /// "nonce" with the nonce as its text.
    bool GetNonceXML(char* nonce, wchar_t* out, int capacity);
    /// "secure_action_request" / "action", attribute "name" / "printer", attributes "model", "serial" and "nonce".
    bool SecureActionRequestXML(_tagSecActionXMLValues& values, wchar_t* out, int capacity);
    /// "secure_action_request" / "action" / "printer", attributes "model", "serial" and "nonce"; then "hmac", and
    /// "timeout" unless that is 0. The printer expects no "name" here.
    bool SecureActionDirectiveXML(_tagSecActionXMLValues& values, wchar_t* out, int capacity, int timeout);
    /// "keys" / "set" / "current_passkey" and "new_passkey".
    bool GetPasskeyXML(char* currentPasskey, char* newPasskey, wchar_t* out, int capacity);
    /// "passkey" with the passkey as its text.
    bool GetSecureActionXML(char* passkey, wchar_t* out, int capacity);
    /// "keys" / "host_authentication_key", "data_encryption_key" and "printer_lock_key".
    bool SetSecureActionXML(_tagSecKeys& keys, wchar_t* out, int capacity);
    /// "keys" / "set" / "current_passkey", and the current and new value of each key that is asked for, in this order:
    /// "current_host_authentication_key", "new_host_authentication_key", "current_data_encryption_key",
    /// "new_data_encryption_key", "current_printer_lock_key", "new_printer_lock_key".
    bool SetHostAndEncryptXML(wchar_t* out, int capacity, char* currentPasskey, char* currentHostKey, char* newHostKey,
                              char* currentDataKey, char* newDataKey, char* currentLockKey, char* newLockKey, bool host,
                              bool data, bool lock);

    /// Prints the last message again.
    bool saveJob(wchar_t* out, int capacity);
    /// Saves the last message to the file `path`. False when that is null or cannot be written.
    bool saveJob(char* path);

private:
    TiXmlElement* root_ = nullptr;  ///< Of the last message; the document owns it.
};

}  // namespace Kavrin

#endif
