/// @file KVJSecAction.h
/// Reads the printer's side of the hand-shake that protects administrative actions: nonce, Diffie-Hellman values,
/// directives and keys. The library carries these values; it computes no digest and no cipher.
#ifndef KVJXML_KVJ_SEC_ACTION_H
#define KVJXML_KVJ_SEC_ACTION_H

#include "SecurityRecords.h"
#include "kvjxml_export.h"

class TiXmlElement;

namespace Kavrin {

/// Stateless. Replies, results and ownership are as for KVJStatusParser. Nothing that passes through is kept or written
/// to a file.
///
/// **True does not mean that the reply was whole.** A reply that breaks off is read as far as its text goes, and the
/// result speaks of the last element only: of `<keys><host_authentication_key>HALF` half a key is read, and the result
/// is true. A host that acts on a key or a directive must make sure by other means that it has the whole reply.
class KVJXML_API KVJSecAction {
public:
    /// Copies the text of the reply "nonce", with its terminator.
    /// @param nonce  a buffer of 32 characters. A nonce longer than 31 characters is cut to that, terminated, and
    /// false.
    /// @return false, and the buffer as it was, when the element is missing or has no text, or `nonce` is null.
    bool GetNonceValue(const wchar_t& reply, int length, char* nonce);
    /// Reads the host's part of the reply "diffie_hellman". True when any of its four values had a text, even if only
    /// the printer's had.
    bool ParseHostDHKeyValues(const wchar_t& reply, unsigned long length, _tagHostDHKeys& keys);
    /// Reads "printer_interim_key" of the reply "diffie_hellman". True when any of its four values had a text, even if
    /// only the host's had; `key` is then as it was.
    bool ParsePrinterDHKeyValues(const wchar_t& reply, unsigned long length, long& key);
    /// Reads the reply "action": its own text into `directive.action`, normalised as GetActionName does, and "hmac".
    /// The name is looked for in the whole text; a text without one is cut to the field. The result is that of
    /// ParseDirectiveValues, whatever became of the text.
    bool ParseSecureDirectiveValues(const wchar_t& reply, unsigned long length, _tagSecDirecXML& directive);
    /// Looks through the reply "secure_action_request" and fills nothing: see ParseReqValues. Null is no reply.
    bool ParseSecureRequestValues(wchar_t* reply, unsigned long length, _tagSecReqXML& request);
    /// Reads the three keys of the reply "keys".
    bool ParseSecurityKeys(const wchar_t& reply, unsigned long length, _tagSecKeys& keys);
    /// Reads the current and new keys of each "set" element of the reply "keys"; a later "set" overwrites an earlier
    /// one. The result is that of the last "set", false when there is none.
    bool ParseSetSecurityKeys(const wchar_t& reply, unsigned long length, _tagSecSetKeys& keys);
    /// Reads the text of the reply "passkey" into `keys.current_passkey`.
    bool ParseGetSecureActionRequest(const wchar_t& reply, unsigned long length, _tagSecSetKeys& keys);

    // ---- Walkers: the same, for a host that holds the element already. A null element gives false. ----

    /// Reads the children of a "diffie_hellman" element. A child without text is skipped. True when any child had a
    /// text.
    bool ParseDHKeys(TiXmlElement* element, _tagHostDHKeys& keys, long& printerKey);
    /// Reads "hmac" among the children of an "action" element, and **sets** the attributes "model", "serial" and
    /// "nonce" of a "printer" child from the record. The result is that of the last of these, true for "printer".
    bool ParseDirectiveValues(TiXmlElement* element, _tagSecDirecXML& directive);
    /// **Sets** the attribute "name" of an "action" child and the attributes "model", "serial" and "nonce" of a
    /// "printer" child from the record, which stays as it is. True when there is such a child.
    bool ParseReqValues(TiXmlElement* element, _tagSecReqXML& request);
    /// Reads the keys among the children of a "keys" element.
    bool ParseHostNEncryptKey(TiXmlElement* element, _tagSecKeys& keys);
    /// Reads the "set" children of a "keys" element.
    bool ParsePassKey(TiXmlElement* element, _tagSecSetKeys& keys);
    /// Reads the children of a "set" element.
    bool ParsePassKey1(TiXmlElement* element, _tagSecSetKeys& keys);

    /// Replaces a text by the first of these names that occurs anywhere in it: "cancel_printer_passkey",
    /// "set_single_sided", "set_double_sided", "reset_physical_address", "reset_oem", "reset_printer_serial_number",
    /// "reset_laminator_serial_number", "clear_error_log", "clear_card_cleaning_log", "clear_service_log",
    /// "reset_card_count", "reset_impression_count", "reset_system_defaults", "reset_cards_laminated",
    /// "unlock_printer", "lock_printer", "reset_media_auth_cfg". Unlocking comes before locking, whose name it
    /// contains.
    /// @param name  a terminated text; it never grows.
    /// @return whether one of the names was found; the text is as it was when none was, or it is null.
    bool GetActionName(char* name);
};

}  // namespace Kavrin

#endif
