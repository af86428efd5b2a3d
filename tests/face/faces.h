/// @file faces.h
/// Every request as a host composes it through the face: what a row of the table of requests takes, as the face takes
/// it.
#ifndef KVJXML_TESTS_FACE_FACES_H
#define KVJXML_TESTS_FACE_FACES_H

#include <kvjxml_compose.hpp>

#include <stdexcept>
#include <string>
#include <string_view>

#include "messages/commands.h"
#include "messages/request.h"

namespace kvj::tests {

inline kvjxml::options optionsOf(const Choices& choices, bool acceptsChanges) {
    kvjxml::options options;
    options.direct_to_card = choices.withoutTransfer;
    options.part = static_cast<kvjxml::capabilities_part>(choices.mode);
    options.card = static_cast<kvjxml::custom_card>(choices.card);
    options.cards = choices.allCards ? kvjxml::catalogue_cards::all : kvjxml::catalogue_cards::basic;
    options.accepts_changes = acceptsChanges;
    return options;
}

inline kvjxml::capabilities faceOf(const Kavrin::_Capabilities& plain) {
    kvjxml::capabilities caps;
    static_cast<Kavrin::_Capabilities&>(caps) = plain;
    const auto take = [](const auto* entries, int count, auto& list) {
        if (entries != nullptr && count > 0) list.assign(entries, entries + count);
    };
    take(plain.hostPorts, plain.hostPortCount, caps.hostPorts);
    take(plain.devicePorts, plain.devicePortCount, caps.devicePorts);
    take(plain.swInterfaces, plain.swInterfaceCount, caps.swInterfaces);
    take(plain.ocpLanguages, plain.ocpLanguageCount, caps.ocpLanguages);
    take(plain.graphicFormats, plain.graphicFormatCount, caps.graphicFormats);
    take(plain.fonts, plain.fontCount, caps.fonts);
    take(plain.templates, plain.templateCount, caps.templates);
    take(plain.graphics, plain.graphicCount, caps.graphics);
    take(plain.barCodes, plain.barCodeCount, caps.barCodes);
    return caps;
}

inline kvjxml::media_catalogue faceOf(const Kavrin::_KVMediaInfo& plain) {
    kvjxml::media_catalogue media;
    for (const Kavrin::_CardInfo* card : *plain.cards) media.cards.push_back(*card);
    return media;
}

inline std::string own(const char* text) { return text == nullptr ? "" : text; }

/// Calls `use` with what a host passes of the record, without the options.
template <class Use>
auto withFace(const Request& request, const void* record, const Choices& choices, Use use) {
    const auto as = [record]<class Record>(std::type_identity<Record> /*type*/) -> const Record& {
        return *static_cast<const Record*>(record);
    };
    const auto name = request.name;
    if (name == "capabilities") return use(faceOf(as(std::type_identity<Kavrin::_Capabilities>{})));
    if (name == "media") return use(faceOf(as(std::type_identity<Kavrin::_KVMediaInfo>{})));
    if (name == "keys") return use(as(std::type_identity<Kavrin::_tagSecKeys>{}));
    if (name == "configuration") {
        return use(as(std::type_identity<Kavrin::_KVConfiguration>{}), static_cast<kvjxml::section>(choices.sections));
    }
    if (name == "printer-id") {
        const auto& info = as(std::type_identity<Kavrin::KVPrinterInfo>{});
        return choices.full ? use(info) : use(info, static_cast<kvjxml::identity_section>(choices.sections));
    }
    if (name == "motor") {
        const auto& it = as(std::type_identity<command::Motor>{});
        return use(kvjxml::commands::motor{it.state == 1, it.direction != 0, it.speed, it.motor});
    }
    if (name == "motor-mode") {
        const auto& it = as(std::type_identity<command::MotorMode>{});
        return use(kvjxml::commands::motor_mode{it.mode, it.period, it.rpm, it.speed, it.forward});
    }
    if (name == "cam") {
        const auto& it = as(std::type_identity<command::Cam>{});
        return use(kvjxml::commands::cam{own(it.cam), own(it.state)});
    }
    if (name == "calibrate") {
        const auto& it = as(std::type_identity<command::Calibrate>{});
        return use(kvjxml::commands::calibrate{it.calibration, it.torque, it.rpm});
    }
    if (name == "other") {
        const auto& it = as(std::type_identity<command::Other>{});
        return use(kvjxml::commands::other{own(it.device), own(it.text), own(it.panel), it.on});
    }
    if (name == "rfid") {
        const auto& it = as(std::type_identity<command::Rfid>{});
        return use(kvjxml::commands::rfid{own(it.device), it.mode, it.antenna});
    }
    if (name == "nonce") {
        return use(kvjxml::handshake::nonce{own(as(std::type_identity<command::Nonce>{}).nonce)});
    }
    if (name == "secure-action-request") {
        const auto& it = as(std::type_identity<command::ActionRequest>{});
        return use(kvjxml::handshake::action_request{own(it.name), own(it.model), own(it.serial), own(it.nonce)});
    }
    if (name == "secure-action-directive") {
        const auto& it = as(std::type_identity<command::ActionDirective>{});
        return use(kvjxml::handshake::action_directive{own(it.model), own(it.serial), own(it.nonce), own(it.hmac),
                                                       it.timeout});
    }
    if (name == "passkey") {
        return use(kvjxml::handshake::passkey{own(as(std::type_identity<command::Passkey>{}).passkey)});
    }
    if (name == "passkey-change") {
        const auto& it = as(std::type_identity<command::PasskeyChange>{});
        return use(kvjxml::handshake::passkey_change{own(it.current_passkey), own(it.new_passkey)});
    }
    if (name == "key-change") {
        const auto& it = as(std::type_identity<command::KeyChange>{});
        return use(kvjxml::handshake::key_change{
            own(it.current_passkey), own(it.current_host_authentication_key), own(it.new_host_authentication_key),
            own(it.current_data_encryption_key), own(it.new_data_encryption_key), own(it.current_printer_lock_key),
            own(it.new_printer_lock_key), it.host, it.data, it.lock});
    }
    throw std::logic_error("the face has no request " + std::string(name));
}

inline kvjxml::composed composed(const Request& request, const void* record, const Choices& choices,
                                 bool acceptsChanges) {
    const kvjxml::options options = optionsOf(choices, acceptsChanges);
    return withFace(request, record, choices,
                    [&](const auto&... arguments) { return kvjxml::compose(arguments..., options); });
}

inline kvjxml::composed_in composedIn(kvjxml::buffer where, const Request& request, const void* record,
                                      const Choices& choices, bool acceptsChanges) {
    const kvjxml::options options = optionsOf(choices, acceptsChanges);
    return withFace(request, record, choices,
                    [&](const auto&... arguments) { return kvjxml::compose_to(where, arguments..., options); });
}

}  // namespace kvj::tests

#endif
