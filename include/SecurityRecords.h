/// @file SecurityRecords.h
/// The hand-shake that protects a printer's administrative actions: the records that KVJSecAction fills and that
/// KVJSetSecActions writes.
///
/// Records are plain structures. The host owns them and sets them to zero before the first call; a reader never clears
/// one, so a field whose element is not in the reply keeps its value. Texts are terminated; a longer one is cut to its
/// field, and that read reports false. They can hold keys: the host clears them when it is done.
#ifndef KVJXML_SECURITY_RECORDS_H
#define KVJXML_SECURITY_RECORDS_H

namespace Kavrin {

// Host applications know these records by names with leading underscores.
// NOLINTBEGIN(bugprone-reserved-identifier)

/// The Diffie-Hellman values that the printer proposes: the reply "diffie_hellman", read by
/// KVJSecAction::ParseHostDHKeyValues. Each is hexadecimal after "0x", else decimal; a text that does not begin with a
/// number leaves its field as it was, and "0x" alone reads as 0.
struct _tagHostDHKeys {
    unsigned long modulus;           ///< "modulus"
    unsigned long base;              ///< "base"
    unsigned long host_interim_key;  ///< "host_interim_key"
};

/// A directive of the printer to act: the reply "action", read by KVJSecAction::ParseSecureDirectiveValues. Only
/// `action` and `hmac` are read; the other fields are the host's.
struct _tagSecDirecXML {
    char model[260];   ///< The printer's model. Never read from a reply.
    char serial[260];  ///< The printer's serial number. Never read from a reply.
    char action[260];  ///< Text of "action": the action's name, see KVJSecAction::GetActionName.
    char nonce[260];   ///< The nonce that the directive refers to. Never read from a reply.
    char hmac[260];    ///< "hmac": the directive's keyed digest.
};

/// A request to act, see KVJSecAction::ParseSecureRequestValues. All fields are the host's; none is read from a reply.
struct _tagSecReqXML {
    char model[260];   ///< The printer's model.
    char serial[260];  ///< The printer's serial number.
    char action[260];  ///< The action's name.
    char nonce[260];   ///< The printer's nonce.
};

/// The three long-term keys: the reply "keys", read by KVJSecAction::ParseSecurityKeys, and written by
/// KVJSetSecActions::SetSecureActionXML.
struct _tagSecKeys {
    char data_encryption_key[260];      ///< "data_encryption_key"
    char host_authentication_key[260];  ///< "host_authentication_key"
    char printer_lock_key[260];         ///< "printer_lock_key"
};

/// A change of keys, the current and the new value of each: the reply "keys" with "set" elements, read by
/// KVJSecAction::ParseSetSecurityKeys.
struct _tagSecSetKeys {
    char current_data_encryption_key[64];      ///< "current_data_encryption_key"
    char new_data_encryption_key[64];          ///< "new_data_encryption_key"
    char current_host_authentication_key[64];  ///< "current_host_authentication_key"
    char new_host_authentication_key[64];      ///< "new_host_authentication_key"
    char current_printer_lock_key[64];         ///< "current_printer_lock_key"
    char new_printer_lock_key[64];             ///< "new_printer_lock_key"
    char current_passkey[64];                  ///< "current_passkey", and the text of the reply "passkey"
    char new_passkey[64];                      ///< "new_passkey"
};

/// What the action composers of KVJSetSecActions write: texts of the host's, terminated, which are read and not kept. A
/// null pointer leaves its element or attribute out.
struct _tagSecActionXMLValues {
    const char* name;    ///< The action's name.
    const char* model;   ///< The printer's model.
    const char* serial;  ///< The printer's serial number.
    const char* nonce;   ///< The printer's nonce.
    const char* hmac;    ///< The keyed digest.
};

// NOLINTEND(bugprone-reserved-identifier)

}  // namespace Kavrin

#endif
