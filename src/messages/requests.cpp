#include <KVJDeviceControl.h>
#include <KVJSetCaps.h>
#include <KVJSetConfig.h>
#include <KVJSetMedia.h>
#include <KVJSetPrinterInfo.h>
#include <KVJSetSecActions.h>

#include "capabilities/tables.h"
#include "configuration/document.h"
#include "devicecontrol/commands.h"
#include "fields/capabilities.h"
#include "fields/identity.h"
#include "fields/media.h"
#include "fields/security.h"
#include "foundation/request.h"
#include "identity/printer.h"
#include "media/tables.h"
#include "messages/catalogue.h"
#include "messages/commands.h"
#include "messages/request.h"
#include "security/actions.h"

namespace kvj {

namespace {

using Kavrin::KVJSetSecActions;

// Some composers take what they do not change as if they did.
template <class Value>
Value& unchanged(const Value& value) {
    return const_cast<Value&>(value);
}
char* text(const char* text) { return const_cast<char*>(text); }

// ---- Requests that are made of a record ----

bool composeCapabilities(const Kavrin::_Capabilities& caps, const Choices& choices, const RequestBuffer& out) {
    return Kavrin::KVJSetCaps().SetCapabilities(caps, out.wide, out.capacity, choices.mode, choices.withoutTransfer);
}

bool composeConfiguration(const Kavrin::_KVConfiguration& values, const Choices& choices, const RequestBuffer& out) {
    return Kavrin::KVJSetConfig().SetConfiguration(values, out.wide, out.capacity, choices.sections, choices.card,
                                                   choices.withoutTransfer);
}

bool composeMedia(const Kavrin::_KVMediaInfo& catalogue, const Choices& choices, const RequestBuffer& out) {
    return Kavrin::KVJSetMedia().SetMedia(unchanged(catalogue), out.wide, out.capacity, choices.allCards ? 1 : 0,
                                          choices.withoutTransfer);
}

bool composePrinterId(const Kavrin::KVPrinterInfo& info, const Choices& choices, const RequestBuffer& out) {
    Kavrin::KVJSetPrinterInfo composer;
    if (!choices.full) return composer.SetPrinterInfo(info, out.wide, out.capacity, choices.sections);
    return composer.addPrinterInfo(beginRequest(composer, "printer_id"), info) &&
           composer.saveJob(out.wide, out.capacity);
}

bool keys(const Kavrin::_tagSecKeys& it, const Choices& /*choices*/, const RequestBuffer& out) {
    return KVJSetSecActions().SetSecureActionXML(unchanged(it), out.wide, out.capacity);
}

bool writeCapabilities(Parent root, const Kavrin::_Capabilities& caps, const Choices& choices) {
    capabilities::addCapabilities(root, caps, choices.mode, choices.withoutTransfer);
    return true;
}

bool writeConfiguration(Parent root, const Kavrin::_KVConfiguration& values, const Choices& choices) {
    return kvj::compose(root, values, configuration::documentSections,
                        {.directToCard = choices.withoutTransfer, .sections = choices.sections, .card = choices.card});
}

bool writeMedia(Parent root, const media::Cards& cards, const Choices& choices) {
    media::addCards(root, cards, choices.allCards, {.directToCard = choices.withoutTransfer});
    return true;
}

bool writePrinterId(Parent root, const Kavrin::KVPrinterInfo& info, const Choices& choices) {
    if (choices.full) return kvj::compose(root, info, identity::printerTags);
    return kvj::compose(root, info, identity::printerSections, {.sections = choices.sections}, true);
}

WrittenFields capabilitiesWritten(const Choices& choices) {
    switch (choices.mode) {
        case magEncoderAlone:
            return {.rows = described<capabilities::magEncoderAlone>};
        case encoderAlone:
            return {.alone = "internalEncoder"};
        default:
            return {.rows = described<capabilities::wholeTags>};
    }
}

/// The sections of the configuration that are written for one card alone: they stand together.
constexpr std::span<const DescribedRow> cardSections = [] {
    const auto& all = configuration::documentSections;
    const auto isOfCards = [](const auto& section) { return section.ofCards; };
    const auto* const first = std::ranges::find_if(all, isOfCards);
    const auto* const last = std::ranges::find_if_not(first, all.end(), isOfCards);
    return std::span(described<configuration::documentSections>)
        .subspan(static_cast<std::size_t>(first - all.begin()), static_cast<std::size_t>(last - first));
}();

WrittenFields configurationWritten(const Choices& choices) {
    WrittenFields fields{.rows = described<configuration::documentSections>};
    if (choices.card != 0) fields.rows = cardSections;
    if (choices.card == 1) fields.without = "customCard2";
    if (choices.card == 2) fields.without = "customCard1";
    return fields;
}

constexpr DescribedRow cardList[] = {{"cards",
                                      {.field = fieldOf<&Kavrin::_KVMediaInfo::cards>,
                                       .kind = Kind::list,
                                       .word = "card",
                                       .group = described<media::cardTags>}}};

WrittenFields mediaWritten(const Choices& /*choices*/) { return {.rows = cardList}; }

WrittenFields printerIdWritten(const Choices& choices) {
    if (choices.full) return {.rows = described<identity::printerTags>};
    return {.rows = described<identity::printerSections>};
}

// ---- Requests that are made of arguments ----

bool motor(const command::Motor& it, const Choices& /*choices*/, const RequestBuffer& out) {
    return KVJDeviceControl().RunMotorCommand(it.state, it.direction, it.speed, it.motor, out.narrow, out.capacity);
}

bool motorMode(const command::MotorMode& it, const Choices& /*choices*/, const RequestBuffer& out) {
    return KVJDeviceControl().RunMotorCommand(nullptr, it.mode, it.period, it.rpm, it.speed, it.forward, out.narrow,
                                              out.capacity);
}

bool cam(const command::Cam& it, const Choices& /*choices*/, const RequestBuffer& out) {
    return KVJDeviceControl().RunCamCommand(text(it.cam), text(it.state), out.narrow, out.capacity);
}

bool calibrate(const command::Calibrate& it, const Choices& /*choices*/, const RequestBuffer& out) {
    return KVJDeviceControl().RunCalibrateCommand(nullptr, it.calibration, it.torque, it.rpm, out.narrow, out.capacity);
}

bool other(const command::Other& it, const Choices& /*choices*/, const RequestBuffer& out) {
    return KVJDeviceControl().RunOtherCommands(text(it.device), text(it.text), text(it.panel), it.on, out.narrow,
                                               out.capacity);
}

bool rfid(const command::Rfid& it, const Choices& /*choices*/, const RequestBuffer& out) {
    return KVJDeviceControl().RunRFIDCommands(text(it.device), it.mode, it.antenna, out.narrow, out.capacity);
}

bool nonce(const command::Nonce& it, const Choices& /*choices*/, const RequestBuffer& out) {
    return KVJSetSecActions().GetNonceXML(text(it.nonce), out.wide, out.capacity);
}

bool actionRequest(const command::ActionRequest& it, const Choices& /*choices*/, const RequestBuffer& out) {
    Kavrin::_tagSecActionXMLValues values{it.name, it.model, it.serial, it.nonce, nullptr};
    return KVJSetSecActions().SecureActionRequestXML(values, out.wide, out.capacity);
}

bool actionDirective(const command::ActionDirective& it, const Choices& /*choices*/, const RequestBuffer& out) {
    Kavrin::_tagSecActionXMLValues values{nullptr, it.model, it.serial, it.nonce, it.hmac};
    return KVJSetSecActions().SecureActionDirectiveXML(values, out.wide, out.capacity, it.timeout);
}

bool passkey(const command::Passkey& it, const Choices& /*choices*/, const RequestBuffer& out) {
    return KVJSetSecActions().GetSecureActionXML(text(it.passkey), out.wide, out.capacity);
}

bool passkeyChange(const command::PasskeyChange& it, const Choices& /*choices*/, const RequestBuffer& out) {
    return KVJSetSecActions().GetPasskeyXML(text(it.current_passkey), text(it.new_passkey), out.wide, out.capacity);
}

bool keyChange(const command::KeyChange& it, const Choices& /*choices*/, const RequestBuffer& out) {
    return KVJSetSecActions().SetHostAndEncryptXML(
        out.wide, out.capacity, text(it.current_passkey), text(it.current_host_authentication_key),
        text(it.new_host_authentication_key), text(it.current_data_encryption_key), text(it.new_data_encryption_key),
        text(it.current_printer_lock_key), text(it.new_printer_lock_key), it.host, it.data, it.lock);
}

template <class Arguments>
bool writeCommand(Parent root, const Arguments& it, const Choices& /*choices*/) {
    return devicecontrol::addCommand(root, it);
}

template <class Arguments>
bool writeAction(Parent root, const Arguments& it, const Choices& /*choices*/) {
    return security::addAction(root, it);
}

// ---- The table ----

template <auto Write>
struct Written;
template <class Record, bool (*Write)(Parent, const Record&, const Choices&)>
struct Written<Write> {
    static bool write(Parent root, const void* record, const Choices& choices) {
        return Write(root, *static_cast<const Record*>(record), choices);
    }
};

template <class Compose>
struct Composed;
template <class Record_>
struct Composed<bool (*)(const Record_&, const Choices&, const RequestBuffer&)> {
    using Record = Record_;
};

struct Special {
    std::span<const DescribedRow> table{};
    WrittenFields (*written)(const Choices& choices) = nullptr;
    bool isWide = true;
    const char* copy = nullptr;
    void (*begin)(void* record) = nullptr;
    void (*end)(void* record) = nullptr;
};

template <auto Compose, auto Write>
constexpr Request request(std::string_view name, std::string_view operation, const char* root,
                          const Special& special = {}) {
    using Record = typename Composed<decltype(Compose)>::Record;
    return {name,
            operation,
            &recordType<Record>,
            special.table,
            special.isWide,
            special.copy,
            special.written,
            special.begin,
            special.end,
            [](const void* record, const Choices& choices, const RequestBuffer& out) {
                return Compose(*static_cast<const Record*>(record), choices, out);
            },
            root,
            Written<Write>::write};
}

/// A service command.
template <auto Compose>
constexpr Request command(std::string_view name, std::string_view operation) {
    using Arguments = typename Composed<decltype(Compose)>::Record;
    return request<Compose, writeCommand<Arguments>>(name, operation, devicecontrol::rootName,
                                                     {.isWide = false, .copy = "/tmp/composedXML"});
}

/// A message of the hand-shake.
template <auto Compose>
constexpr Request action(std::string_view name, std::string_view operation) {
    using Arguments = typename Composed<decltype(Compose)>::Record;
    return request<Compose, writeAction<Arguments>>(name, operation, security::rootName<Arguments>);
}

constexpr Request table[] = {
    request<composeCapabilities, writeCapabilities>(
        "capabilities", "SetCapabilities", "capabilities",
        {.table = described<capabilities::wholeTags>, .written = capabilitiesWritten}),
    request<composeConfiguration, writeConfiguration>("configuration", "SetConfiguration", "configuration",
                                                      {.table = described<configuration::documentSections>,
                                                       .written = configurationWritten,
                                                       .copy = "/tmp/firmwaresettings"}),
    request<composeMedia, writeMedia>(
        "media", "SetMedia", "media",
        {.table = described<media::cardTags>, .written = mediaWritten, .begin = beginCatalogue, .end = endCatalogue}),
    request<composePrinterId, writePrinterId>(
        "printer-id", "SetPrinterInfo", "printer_id",
        {.table = described<identity::printerSections>, .written = printerIdWritten, .copy = "/tmp/printidsettings"}),
    command<motor>("motor", "RunMotorCommand"),
    command<motorMode>("motor-mode", "RunMotorCommand"),
    command<cam>("cam", "RunCamCommand"),
    command<calibrate>("calibrate", "RunCalibrateCommand"),
    command<other>("other", "RunOtherCommands"),
    command<rfid>("rfid", "RunRFIDCommands"),
    action<nonce>("nonce", "GetNonceXML"),
    action<actionRequest>("secure-action-request", "SecureActionRequestXML"),
    action<actionDirective>("secure-action-directive", "SecureActionDirectiveXML"),
    action<passkey>("passkey", "GetSecureActionXML"),
    action<passkeyChange>("passkey-change", "GetPasskeyXML"),
    action<keys>("keys", "SetSecureActionXML"),
    action<keyChange>("key-change", "SetHostAndEncryptXML"),
};

}  // namespace

std::span<const Request> requests() { return table; }

}  // namespace kvj
