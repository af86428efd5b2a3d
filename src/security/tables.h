/// @file security/tables.h
/// The printer's side of the hand-shake, element by element.
#ifndef KVJXML_SECURITY_TABLES_H
#define KVJXML_SECURITY_TABLES_H

#include <cstddef>
#include <cstring>
#include <string>

#include "SecurityRecords.h"
#include "foundation/read_rules.h"
#include "foundation/rows.h"
#include "foundation/words.h"

namespace kvj::security {

using namespace Kavrin;  // the records

/// The four values of a key exchange, which two readers share.
struct KeyExchange : _tagHostDHKeys {
    unsigned long printer_interim_key;
    bool any;  ///< whether any of them had a text
};

/// Hexadecimal after "0x", else decimal; a text that is no number leaves the value alone, and counts as read. An
/// element without text does not undo what came before it.
template <auto Member>
inline constexpr ReadRule<KeyExchange> keyNumber{
    {.field = fieldOf<Member>,
     .kind = Kind::number,
     .number = {.bits = 64, .isSigned = false, .base = Base::either, .onlyNumbers = true}},
    [](Element element, KeyExchange& exchange) {
        if (const char* content = element.text()) {
            convert::scanKeyNumber(content, exchange.*Member);
            exchange.any = true;
        }
        return exchange.any;
    }};

/// Sets an attribute of the received element from a field that need not be terminated.
template <std::size_t N>
void setFromField(Element element, const char* name, const char (&field)[N]) {
    const std::string value(field, strnlen(field, N));
    element.setAttribute(name, value.c_str());
}

inline constexpr std::string_view printerAttributes[] = {"model", "serial", "nonce"};
inline constexpr std::string_view actionAttributes[] = {"name"};

/// The host knows which printer it is: the received element gets what the record holds, and the record stays as it is.
template <class Record>
inline constexpr ReadRule<Record> printerIdentity{{.kind = Kind::givenAttributes, .attributes = printerAttributes},
                                                  [](Element element, Record& record) {
                                                      setFromField(element, "model", record.model);
                                                      setFromField(element, "serial", record.serial);
                                                      setFromField(element, "nonce", record.nonce);
                                                      return true;
                                                  }};

inline constexpr ReadRule<_tagSecReqXML> actionIdentity{{.kind = Kind::givenAttributes, .attributes = actionAttributes},
                                                        [](Element element, _tagSecReqXML& request) {
                                                            setFromField(element, "name", request.action);
                                                            return true;
                                                        }};

/// The protected actions, in the order that they are looked for: "unlock_printer" contains "lock_printer". The codes
/// only count the rows: an action is known by its name.
inline constexpr WordTable actionNames({{"cancel_printer_passkey", 1},
                                        {"set_single_sided", 2},
                                        {"set_double_sided", 3},
                                        {"reset_physical_address", 4},
                                        {"reset_oem", 5},
                                        {"reset_printer_serial_number", 6},
                                        {"reset_laminator_serial_number", 7},
                                        {"clear_error_log", 8},
                                        {"clear_card_cleaning_log", 9},
                                        {"clear_service_log", 10},
                                        {"reset_card_count", 11},
                                        {"reset_impression_count", 12},
                                        {"reset_system_defaults", 13},
                                        {"reset_cards_laminated", 14},
                                        {"unlock_printer", 15},
                                        {"lock_printer", 16},
                                        {"reset_media_auth_cfg", 17}},
                                       Match::part);

// clang-format off

/// "diffie_hellman"
inline constexpr auto keyExchange = rows<KeyExchange>({
    {"modulus",             keyNumber<&KeyExchange::modulus>},
    {"base",                keyNumber<&KeyExchange::base>},
    {"host_interim_key",    keyNumber<&KeyExchange::host_interim_key>},
    {"printer_interim_key", keyNumber<&KeyExchange::printer_interim_key>},
});

/// "action"
inline constexpr auto directive = rows<_tagSecDirecXML>({
    {"printer", printerIdentity<_tagSecDirecXML>},
    {"hmac",    text<&_tagSecDirecXML::hmac>},
});

/// "secure_action_request". The printer looks for "printer" beside "action" here, where a request has it inside.
inline constexpr auto request = rows<_tagSecReqXML>({
    {"action",  actionIdentity},
    {"printer", printerIdentity<_tagSecReqXML>},
});

/// "keys"
inline constexpr auto keys = rows<_tagSecKeys>({
    {"host_authentication_key", text<&_tagSecKeys::host_authentication_key>},
    {"data_encryption_key",     text<&_tagSecKeys::data_encryption_key>},
    {"printer_lock_key",        text<&_tagSecKeys::printer_lock_key>},
});

/// "set" in "keys"
inline constexpr auto keyChange = rows<_tagSecSetKeys>({
    {"current_passkey",                 text<&_tagSecSetKeys::current_passkey>},
    {"new_passkey",                     text<&_tagSecSetKeys::new_passkey>},
    {"current_host_authentication_key", text<&_tagSecSetKeys::current_host_authentication_key>},
    {"new_host_authentication_key",     text<&_tagSecSetKeys::new_host_authentication_key>},
    {"current_data_encryption_key",     text<&_tagSecSetKeys::current_data_encryption_key>},
    {"new_data_encryption_key",         text<&_tagSecSetKeys::new_data_encryption_key>},
    {"current_printer_lock_key",        text<&_tagSecSetKeys::current_printer_lock_key>},
    {"new_printer_lock_key",            text<&_tagSecSetKeys::new_printer_lock_key>},
});

/// "keys" as well
inline constexpr auto keyChanges = rows<_tagSecSetKeys>({
    {"set", group<keyChange>},
});

// clang-format on

/// The name of the action in a text; null when it has none.
inline const char* actionNameIn(const char* text) {
    const auto code = codeOf(actionNames, text);
    return code ? wordOf(actionNames, *code) : nullptr;
}

/// The name of an action, or the text as it is when it has none.
inline constexpr ReadRule<_tagSecDirecXML> actionName{
    {.field = fieldOf<&_tagSecDirecXML::action>, .kind = Kind::text, .capacity = sizeof(_tagSecDirecXML::action)},
    [](Element action, _tagSecDirecXML& record) {
        const char* text = action.text();
        if (text == nullptr) return false;
        // The whole text is searched for the name: in the part that fits, an unlocking could look like a locking.
        const char* name = actionNameIn(text);
        return convert::copy(name != nullptr ? name : text, record.action, sizeof record.action);
    }};

/// A directive has the name of its action as the text of its root.
inline bool readDirective(Element action, _tagSecDirecXML& record) {
    readItself(action, record, actionName);
    return walk(action, record, directive);
}

/// Which part of a key exchange a host keeps.
enum class KeptKeys { ofHost, ofPrinter };

/// The host's values of a key exchange, and the printer's.
inline bool readKeyExchange(Element element, _tagHostDHKeys& host, long& printerKey, KeptKeys kept = KeptKeys::ofHost) {
    KeyExchange exchange{host, static_cast<unsigned long>(printerKey), false};
    if (Watch* const watch = element.watch()) {
        kept == KeptKeys::ofHost ? watch->follow(&exchange) : watch->follow(&exchange.printer_interim_key);
    }
    walk(element, exchange, keyExchange);
    host = exchange;
    printerKey = static_cast<long>(exchange.printer_interim_key);
    return exchange.any;
}

}  // namespace kvj::security

#endif
