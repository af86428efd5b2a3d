#include "security/actions.h"

#include "foundation/convert.h"
#include "foundation/sent.h"
#include "foundation/write_rules.h"

namespace kvj::security {

namespace {

using Kavrin::_tagSecKeys;

/// Says which printer is meant, and with which nonce.
void addPrinter(Parent action, const auto& it) {
    const Parent printer = addTag(action, "printer");
    setArgument(printer, "model", it.model, "model");
    setArgument(printer, "serial", it.serial, "serial");
    setArgument(printer, "nonce", it.nonce, "nonce");
}

// clang-format off

/// "keys"
constexpr auto keyTags = tags<_tagSecKeys>({
    {"host_authentication_key", put::text<&_tagSecKeys::host_authentication_key>},
    {"data_encryption_key",     put::text<&_tagSecKeys::data_encryption_key>},
    {"printer_lock_key",        put::text<&_tagSecKeys::printer_lock_key>},
});

// clang-format on

}  // namespace

bool addAction(Parent root, const command::Nonce& it) {
    need(root, it.nonce, "nonce");
    return addArgumentText(root, it.nonce, "nonce");
}

bool addAction(Parent root, const command::Passkey& it) {
    need(root, it.passkey, "passkey");
    return addArgumentText(root, it.passkey, "passkey");
}

bool addAction(Parent root, const command::ActionRequest& it) {
    const Parent action = addTag(root, "action");
    setArgument(action, "name", it.name, "name");
    addPrinter(action, it);
    return true;
}

bool addAction(Parent root, const command::ActionDirective& it) {
    const Parent action = addTag(root, "action");
    addPrinter(action, it);
    addArgument(action, "hmac", it.hmac, "hmac");
    if (it.timeout != 0) addTag(action, "timeout", convert::fromInt(it.timeout).c_str());
    return true;
}

bool addAction(Parent root, const command::PasskeyChange& it) {
    const Parent set = addTag(root, "set");
    addArgument(set, "current_passkey", it.current_passkey, "current_passkey");
    addArgument(set, "new_passkey", it.new_passkey, "new_passkey");
    return true;
}

bool addAction(Parent root, const command::KeyChange& it) {
    const struct {
        bool wanted;
        const char* name;
        const char* value;
    } rows[] = {
        {true, "current_passkey", it.current_passkey},
        {it.host, "current_host_authentication_key", it.current_host_authentication_key},
        {it.host, "new_host_authentication_key", it.new_host_authentication_key},
        {it.data, "current_data_encryption_key", it.current_data_encryption_key},
        {it.data, "new_data_encryption_key", it.new_data_encryption_key},
        {it.lock, "current_printer_lock_key", it.current_printer_lock_key},
        {it.lock, "new_printer_lock_key", it.new_printer_lock_key},
    };
    const Parent set = addTag(root, "set");
    for (const auto& row : rows) {
        if (row.wanted) addArgument(set, row.name, row.value, row.name);  // The fields have the elements' names.
    }
    return true;
}

bool addAction(Parent root, const _tagSecKeys& it) { return compose(root, it, keyTags); }

}  // namespace kvj::security
