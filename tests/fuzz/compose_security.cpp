// The host's side of the security hand-shake.
#include <KVJSetSecActions.h>

#include <functional>

#include "composing.h"

namespace {

using Composer = Kavrin::KVJSetSecActions;
using kvj::fuzz::Text;
using kvj::fuzz::Values;

template <class Compose>
void check(Values& values, Compose compose) {
    kvj::fuzz::checkWide<Composer>(values, compose);
}

void nonce(Values& values) {
    const Text nonce = values.text();
    check(values, [&](Composer& composer, wchar_t* out, int capacity) {
        return composer.GetNonceXML(nonce.pointer(), out, capacity);
    });
}

void passkey(Values& values) {
    const Text passkey = values.text();
    check(values, [&](Composer& composer, wchar_t* out, int capacity) {
        return composer.GetSecureActionXML(passkey.pointer(), out, capacity);
    });
}

void passkeyChange(Values& values) {
    const Text current = values.text();
    const Text next = values.text();
    check(values, [&](Composer& composer, wchar_t* out, int capacity) {
        return composer.GetPasskeyXML(current.pointer(), next.pointer(), out, capacity);
    });
}

template <class Compose>
void checkAction(Values& values, Compose compose) {
    const Text name = values.text();
    const Text model = values.text();
    const Text serial = values.text();
    const Text nonce = values.text();
    const Text hmac = values.text();
    Kavrin::_tagSecActionXMLValues action{name.pointer(), model.pointer(), serial.pointer(), nonce.pointer(),
                                          hmac.pointer()};
    check(values,
          [&](Composer& composer, wchar_t* out, int capacity) { return compose(composer, action, out, capacity); });
}

void actionRequest(Values& values) { checkAction(values, std::mem_fn(&Composer::SecureActionRequestXML)); }

void actionDirective(Values& values) {
    const int timeout = values.number();
    checkAction(values, [&](Composer& composer, auto& action, wchar_t* out, int capacity) {
        return composer.SecureActionDirectiveXML(action, out, capacity, timeout);
    });
}

void keys(Values& values) {
    const auto keys = std::make_unique<Kavrin::_tagSecKeys>();
    values.text(keys->data_encryption_key);
    values.text(keys->host_authentication_key);
    values.text(keys->printer_lock_key);
    check(values, [&](Composer& composer, wchar_t* out, int capacity) {
        return composer.SetSecureActionXML(*keys, out, capacity);
    });
}

void keyChange(Values& values) {
    const bool host = values.flag();
    const bool data = values.flag();
    const bool lock = values.flag();
    const Text passkey = values.text();
    const Text texts[] = {values.text(), values.text(), values.text(), values.text(), values.text(), values.text()};
    check(values, [&](Composer& composer, wchar_t* out, int capacity) {
        return composer.SetHostAndEncryptXML(out, capacity, passkey.pointer(), texts[0].pointer(), texts[1].pointer(),
                                             texts[2].pointer(), texts[3].pointer(), texts[4].pointer(),
                                             texts[5].pointer(), host, data, lock);
    });
}

constexpr kvj::fuzz::Operation operations[] = {
    {"GetNonceXML", nonce},
    {"SecureActionRequestXML", actionRequest},
    {"SecureActionDirectiveXML", actionDirective},
    {"GetPasskeyXML", passkeyChange},
    {"GetSecureActionXML", passkey},
    {"SetSecureActionXML", keys},
    {"SetHostAndEncryptXML", keyChange},
};

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return kvj::fuzz::run(operations, data, size);
}
