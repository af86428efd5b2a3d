/// @file kvjxml_compose.hpp
/// Composes the requests of the printer as text. C++17 or later.
///
///     const auto request = kvjxml::compose(configuration, kvjxml::section::wireless | kvjxml::section::lcd_contrast);
///     if (!request) {
///         for (const auto& problem : request.problems()) log(problem.kind, problem.field, problem.asked);
///         return;
///     }
///     send(request.text());
///
/// A request is the text that the operation of the same name prints (Kavrin::KVJSetConfig::SetConfiguration and its
/// like), byte for byte, in UTF-8 whatever the process's locale is. But it is composed without a tree; it leaves no
/// file and writes to no stream. Any number of threads may compose at the same time, also of the same record.
///
/// **What would arrive otherwise than it is asked for is refused**, and no text comes of it: see problem_kind. Hosts
/// that want it sent all the same, as the printer would take it, say kvjxml::accept_changes{}. Fields that a request
/// does not hold at all (a record's comments say "Never written") are no problem.
///
/// The functions are compiled with the host; only plain structures pass to the library, so that the two may be built
/// with different compilers and C++ libraries.
///
/// Every function throws std::bad_alloc when memory runs out, and nothing else. Nothing is lost then.
#ifndef KVJXML_COMPOSE_HPP
#define KVJXML_COMPOSE_HPP

#include <array>
#include <cstddef>
#include <cstring>
#include <exception>
#include <new>
#include <string>
#include <string_view>
#include <utility>
#include <vector>
#if __has_include(<span>)
#include <span>
#endif

#include "ConfigurationRecords.h"
#include "IdentityRecords.h"
#include "SecurityRecords.h"
#include "kvjxml_arguments.hpp"
#include "kvjxml_problem.hpp"
#include "kvjxml_records.hpp"
#include "kvjxml_v1.h"

namespace kvjxml {
inline namespace v1 {

// ---- What is wanted of a record ----

/// The sections of a configuration. Elements that share a bit are one section: the printer takes them together.
enum class section : long {
    none = 0,
    physical_address = 0x1,
    ethernet = 0x2,  ///< the wired network
    wireless = 0x4,  ///< written as a second "ethernet"; it holds the network's key
    ocp_language = 0x8,
    error_control = 0x10,  ///< and "usb_speed"
    usage_counters = 0x20,
    standby_timeout = 0x40,
    imaging_parameters = 0x80,
    ribbon_motor_parameters = 0x200,
    ribbon_sensor_offset = 0x400,
    mech_adjustments = 0x1000,  ///< and "usb_timeout"
    media_info = 0x2000,
    cards = 0x4000,              ///< the custom cards; the only section that is written for one of them alone
    transfer_settings = 0x8000,  ///< unless printing is direct to card
    lcd_contrast = 0x10000,
    cleaning = 0x20000,    ///< and "cleaning_thresholds"
    lamination = 0x40000,  ///< when a laminate is present
    internal_encoder = 0x80000,
    feeder_mode = 0x400000,
    all = 0x4FF6FF,
};

/// What a host may set by itself of a printer's identity.
enum class identity_section : long {
    none = 0,
    printer_model = 0x1,
    printhead_serial = 0x2,
    all = 0x3,
};

constexpr section operator|(section a, section b) noexcept {
    return static_cast<section>(static_cast<long>(a) | static_cast<long>(b));
}
constexpr section operator&(section a, section b) noexcept {
    return static_cast<section>(static_cast<long>(a) & static_cast<long>(b));
}
/// All other sections.
constexpr section operator~(section a) noexcept {
    return static_cast<section>(~static_cast<long>(a) & static_cast<long>(section::all));
}
constexpr section& operator|=(section& a, section b) noexcept { return a = a | b; }
constexpr section& operator&=(section& a, section b) noexcept { return a = a & b; }

constexpr identity_section operator|(identity_section a, identity_section b) noexcept {
    return static_cast<identity_section>(static_cast<long>(a) | static_cast<long>(b));
}
constexpr identity_section operator&(identity_section a, identity_section b) noexcept {
    return static_cast<identity_section>(static_cast<long>(a) & static_cast<long>(b));
}
/// All other sections.
constexpr identity_section operator~(identity_section a) noexcept {
    return static_cast<identity_section>(~static_cast<long>(a) & static_cast<long>(identity_section::all));
}
constexpr identity_section& operator|=(identity_section& a, identity_section b) noexcept { return a = a | b; }
constexpr identity_section& operator&=(identity_section& a, identity_section b) noexcept { return a = a & b; }

/// What of the capabilities is written.
enum class capabilities_part : int {
    whole = 0,
    mag_encoder = 1,       ///< the magnetic encoder alone; the only request with its head type
    internal_encoder = 2,  ///< the built-in smart-card encoder alone
};

/// Which custom cards of a configuration are written.
enum class custom_card : int {
    both = 0,
    first = 1,   ///< alone, without any other section
    second = 2,  ///< likewise
};

/// Which cards of a media catalogue are written.
enum class catalogue_cards : int {
    basic = 0,  ///< those of the types 0 and 1, which every printer takes
    all = 1,
};

/// What a host says besides the record. A request looks at its own options only.
struct options {
    bool direct_to_card = false;  ///< the printer prints on the card itself: film and transfer are left out
    capabilities_part part = capabilities_part::whole;
    custom_card card = custom_card::both;
    catalogue_cards cards = catalogue_cards::basic;
    bool accepts_changes = false;  ///< what would be sent otherwise than asked is sent so
};

/// The same, with changes accepted: `compose(record, accept_changes{})`.
struct accept_changes : options {
    accept_changes() noexcept { accepts_changes = true; }
    explicit accept_changes(const options& others) noexcept : options(others) { accepts_changes = true; }
};

// ---- Requests without a record ----

// An empty text leaves out the element or attribute that it would be, unless it says that it is needed. Otherwise the
// members are those of the operation's parameters.

/// Service commands, which KVJDeviceControl describes.
namespace commands {

/// A motor by its number.
struct motor {
    bool on = false;
    bool reverse = false;
    int speed = 0;  ///< in the printer's unit; the ribbon's motor takes none
    int motor = 0;  ///< 0 "card_feed", 1 "card_x", 2 "ribbon", 3 "head_lift", 4 "options", 5 "flipper"
};

/// A motor by what it is to do.
struct motor_mode {
    int mode = 0;  ///< 0 off; 1 on, with direction and speed; 2 warm up, with rpm and period
    int period = 0;
    float rpm = 0;  ///< sent with one decimal
    int speed = 0;
    bool forward = false;
};

/// A cam.
struct cam {
    std::string cam;    ///< its name; needed
    std::string state;  ///< needed
};

/// A calibration.
struct calibrate {
    int calibration = 0;  ///< 1 "low" and 2 "high", both with torque and rpm; 3 "calc", 4 "mot_cur_off",
                          ///< 5 "mot_cur_on", 6 "save_cal"
    float torque = 0;     ///< sent with one decimal
    float rpm = 0;        ///< likewise
};

/// Any other device.
struct other {
    std::string device;  ///< the name of its element: ASCII letters, digits, "_", "-" and "."; needed
    std::string text;
    std::string panel;  ///< of "advance" only
    bool on = false;    ///< of "fan", "sensor" and "clutch" only
};

/// An RFID device.
struct rfid {
    std::string device;  ///< the name of its element, likewise; needed
    int mode = 0;        ///< 0 "off", 1 "on", 2 "modulate"
    int antenna = 0;     ///< of "rfid" only
};

}  // namespace commands

/// The hand-shake, which Kavrin::KVJSetSecActions describes. The three long-term keys are sent from their record.
namespace handshake {

struct nonce {
    std::string nonce;  ///< needed
};

struct action_request {
    std::string name;
    std::string model;
    std::string serial;
    std::string nonce;
};

struct action_directive {
    std::string model;
    std::string serial;
    std::string nonce;
    std::string hmac;
    int timeout = 0;  ///< 0 for none
};

struct passkey {
    std::string passkey;  ///< needed
};

struct passkey_change {
    std::string current_passkey;
    std::string new_passkey;
};

struct key_change {
    std::string current_passkey;
    std::string current_host_authentication_key;
    std::string new_host_authentication_key;
    std::string current_data_encryption_key;
    std::string new_data_encryption_key;
    std::string current_printer_lock_key;
    std::string new_printer_lock_key;
    bool host = false;  ///< whether the pair of host authentication keys is sent
    bool data = false;  ///< whether that of data encryption keys is
    bool lock = false;  ///< whether that of printer lock keys is
};

}  // namespace handshake

// ---- What becomes of a request ----

/// A request as text, or the reasons why there is none.
class [[nodiscard]] composed {
public:
    /// Whether there is a text.
    explicit operator bool() const noexcept { return problems_.empty(); }

    /// The text, in UTF-8. **Without one the program is terminated**: look first.
    [[nodiscard]] const std::string& text() const& noexcept {
        if (!problems_.empty()) std::terminate();
        return text_;
    }
    /// A temporary can neither be looked at nor referred to: keep it.
    [[nodiscard]] const std::string& text() const&& = delete;

    /// Why there is no text, in the order of the request; empty when there is one.
    [[nodiscard]] const std::vector<problem>& problems() const& noexcept { return problems_; }
    [[nodiscard]] std::vector<problem> problems() && noexcept { return std::move(problems_); }

    // For compose() alone.
    composed(std::string text, std::vector<problem> problems) noexcept
        : text_(std::move(text)), problems_(std::move(problems)) {}

private:
    std::string text_;
    std::vector<problem> problems_;
};

/// A request in a buffer of the host's, or the reasons why there is none.
class [[nodiscard]] composed_in {
public:
    /// Whether the whole text is in the buffer.
    explicit operator bool() const noexcept { return problems_.empty() && fits_; }

    /// How many characters the text has, also when the buffer is too small; 0 when the request is refused.
    [[nodiscard]] std::size_t size() const noexcept { return size_; }

    /// The text in the buffer, without a terminator. **Where the buffer does not hold it all the program is
    /// terminated**: look first.
    [[nodiscard]] std::string_view text() const noexcept {
        if (!*this) std::terminate();
        return {characters_, size_};
    }

    /// Why the request is refused, in its order; empty when it is not, also when the buffer is too small.
    [[nodiscard]] const std::vector<problem>& problems() const& noexcept { return problems_; }
    [[nodiscard]] std::vector<problem> problems() && noexcept { return std::move(problems_); }

    // For compose_to() alone.
    composed_in(const char* characters, std::size_t size, bool fits, std::vector<problem> problems) noexcept
        : characters_(characters), size_(size), fits_(fits), problems_(std::move(problems)) {}

private:
    const char* characters_;
    std::size_t size_;
    bool fits_;
    std::vector<problem> problems_;
};

/// Characters of the host's that a text is written to. It refers to them, and owns nothing.
struct buffer {
    buffer(char* first, std::size_t count) noexcept : characters(first), size(count) {}
    template <std::size_t N>
    buffer(char (&array)[N]) noexcept : characters(array), size(N) {}
    template <std::size_t N>
    buffer(std::array<char, N>& array) noexcept : characters(array.data()), size(N) {}
#ifdef __cpp_lib_span
    template <std::size_t N>
    buffer(std::span<char, N> span) noexcept : characters(span.data()), size(span.size()) {}
#endif

    char* characters;
    std::size_t size;
};

// ---- Between the host and the library ----

namespace detail {

struct cards {
    const Kavrin::_CardInfo* const* first;
    std::size_t count;
};

inline int keep(void* host, const kvjxml_v1_problem* problem) noexcept {
    const auto text = [](const kvjxml_v1_characters& it) { return std::string(it.first, it.size); };
    try {
        static_cast<std::vector<v1::problem>*>(host)->push_back({static_cast<problem_kind>(problem->kind),
                                                                 text(problem->field), text(problem->path),
                                                                 text(problem->asked), text(problem->sent)});
        return 1;
    } catch (...) {
        return 0;
    }
}

inline char* grow(void* host, std::size_t capacity) noexcept {
    try {
        static_cast<std::string*>(host)->resize(capacity);
        return static_cast<std::string*>(host)->data();
    } catch (...) {
        return nullptr;
    }
}

/// @return the size of the text
inline std::size_t run(const kvjxml_v1_request& asked, const kvjxml_v1_room& where, std::vector<problem>& problems) {
    std::size_t size = 0;
    const kvjxml_v1_listener listener{keep, &problems};
    switch (kvjxml_v1_compose(&asked, &where, &listener, &size)) {
        case kvjxml_v1_composed:
            return size;
        case kvjxml_v1_refused:
            return 0;
        case kvjxml_v1_unknown_request:
            problems.push_back({problem_kind::no_request, {}, {}, asked.name, {}});
            return 0;
        default:
            throw std::bad_alloc();
    }
}

struct in_string {
    composed operator()(const kvjxml_v1_request& asked) const {
        constexpr std::size_t usual = 1024;
        std::string text(usual, '\0');
        std::vector<problem> problems;
        const std::size_t size = run(asked, {text.data(), text.size(), grow, &text}, problems);
        text.resize(size);
        return {std::move(text), std::move(problems)};
    }
};

struct in_buffer {
    composed_in operator()(const kvjxml_v1_request& asked) const {
        std::vector<problem> problems;
        const std::size_t size = run(asked, {where.characters, where.size, nullptr, nullptr}, problems);
        const bool fits = size <= where.size;
        // What is not a whole text is not to be taken for one.
        if ((!problems.empty() || !fits) && where.size > 0) std::memset(where.characters, 0, where.size);
        return {where.characters, size, fits, std::move(problems)};
    }
    buffer where;
};

inline const char* argument(const std::string& text) noexcept { return text.empty() ? nullptr : text.c_str(); }

inline kvjxml_v1_request request(const char* name, const void* record, const options& chosen) noexcept {
    kvjxml_v1_request asked{};
    asked.name = name;
    asked.record = record;
    asked.part = static_cast<int>(chosen.part);
    asked.card = static_cast<int>(chosen.card);
    asked.direct_to_card = chosen.direct_to_card;
    asked.all_cards = chosen.cards == catalogue_cards::all;
    asked.accepts_changes = chosen.accepts_changes;
    return asked;
}

template <class Run, class Arguments, class... Texts>
auto ask_with(Run run, const char* name, const Arguments& arguments, const options& chosen, const Texts&... texts) {
    const std::array<kvjxml_v1_characters, sizeof...(Texts)> whole{kvjxml_v1_characters{texts.data(), texts.size()}...};
    kvjxml_v1_request asked = request(name, &arguments, chosen);
    asked.texts = whole.data();
    asked.texts_count = whole.size();
    return run(asked);
}
template <class Run, class Record>
auto ask_for(Run run, const char* name, const Record& record, const options& chosen, long sections = 0,
             bool whole = false) {
    kvjxml_v1_request asked = request(name, &record, chosen);
    asked.sections = sections;
    asked.whole = whole;
    return run(asked);
}

template <class Entry, class Plain>
void lend(const std::vector<Entry>& list, int& count, Plain*& entries) noexcept {
    count = static_cast<int>(list.size());
    entries = const_cast<Entry*>(list.data());  // Composing changes none of them.
}

template <class Run>
auto ask(Run run, const capabilities& caps, const options& chosen) {
    Kavrin::_Capabilities plain = caps;
    lend(caps.hostPorts, plain.hostPortCount, plain.hostPorts);
    lend(caps.devicePorts, plain.devicePortCount, plain.devicePorts);
    lend(caps.swInterfaces, plain.swInterfaceCount, plain.swInterfaces);
    lend(caps.ocpLanguages, plain.ocpLanguageCount, plain.ocpLanguages);
    lend(caps.graphicFormats, plain.graphicFormatCount, plain.graphicFormats);
    lend(caps.fonts, plain.fontCount, plain.fonts);
    lend(caps.templates, plain.templateCount, plain.templates);
    lend(caps.graphics, plain.graphicCount, plain.graphics);
    lend(caps.barCodes, plain.barCodeCount, plain.barCodes);
    return ask_for(run, "capabilities", plain, chosen);
}

template <class Run>
auto ask(Run run, const media_catalogue& media, const options& chosen) {
    std::vector<const Kavrin::_CardInfo*> all;
    all.reserve(media.cards.size());
    for (const Kavrin::_CardInfo& card : media.cards) all.push_back(&card);
    return ask_for(run, "media", cards{all.data(), all.size()}, chosen);
}

template <class Run>
auto ask(Run run, const commands::motor& it, const options& chosen) {
    return ask_with(run, "motor", arguments::Motor{it.on ? 1 : 0, it.reverse ? 1 : 0, it.speed, it.motor}, chosen);
}
template <class Run>
auto ask(Run run, const commands::motor_mode& it, const options& chosen) {
    return ask_with(run, "motor-mode", arguments::MotorMode{it.mode, it.period, it.rpm, it.speed, it.forward}, chosen);
}
template <class Run>
auto ask(Run run, const commands::cam& it, const options& chosen) {
    return ask_with(run, "cam", arguments::Cam{argument(it.cam), argument(it.state)}, chosen, it.cam, it.state);
}
template <class Run>
auto ask(Run run, const commands::calibrate& it, const options& chosen) {
    return ask_with(run, "calibrate", arguments::Calibrate{it.calibration, it.torque, it.rpm}, chosen);
}
template <class Run>
auto ask(Run run, const commands::other& it, const options& chosen) {
    return ask_with(run, "other", arguments::Other{argument(it.device), argument(it.text), argument(it.panel), it.on},
                    chosen, it.device, it.text, it.panel);
}
template <class Run>
auto ask(Run run, const commands::rfid& it, const options& chosen) {
    return ask_with(run, "rfid", arguments::Rfid{argument(it.device), it.mode, it.antenna}, chosen, it.device);
}
template <class Run>
auto ask(Run run, const handshake::nonce& it, const options& chosen) {
    return ask_with(run, "nonce", arguments::Nonce{argument(it.nonce)}, chosen, it.nonce);
}
template <class Run>
auto ask(Run run, const handshake::action_request& it, const options& chosen) {
    return ask_with(
        run, "secure-action-request",
        arguments::ActionRequest{argument(it.name), argument(it.model), argument(it.serial), argument(it.nonce)},
        chosen, it.name, it.model, it.serial, it.nonce);
}
template <class Run>
auto ask(Run run, const handshake::action_directive& it, const options& chosen) {
    return ask_with(run, "secure-action-directive",
                    arguments::ActionDirective{argument(it.model), argument(it.serial), argument(it.nonce),
                                               argument(it.hmac), it.timeout},
                    chosen, it.model, it.serial, it.nonce, it.hmac);
}
template <class Run>
auto ask(Run run, const handshake::passkey& it, const options& chosen) {
    return ask_with(run, "passkey", arguments::Passkey{argument(it.passkey)}, chosen, it.passkey);
}
template <class Run>
auto ask(Run run, const handshake::passkey_change& it, const options& chosen) {
    return ask_with(run, "passkey-change",
                    arguments::PasskeyChange{argument(it.current_passkey), argument(it.new_passkey)}, chosen,
                    it.current_passkey, it.new_passkey);
}
template <class Run>
auto ask(Run run, const handshake::key_change& it, const options& chosen) {
    const arguments::KeyChange plain{argument(it.current_passkey),
                                     argument(it.current_host_authentication_key),
                                     argument(it.new_host_authentication_key),
                                     argument(it.current_data_encryption_key),
                                     argument(it.new_data_encryption_key),
                                     argument(it.current_printer_lock_key),
                                     argument(it.new_printer_lock_key),
                                     it.host,
                                     it.data,
                                     it.lock};
    return ask_with(run, "key-change", plain, chosen, it.current_passkey, it.current_host_authentication_key,
                    it.new_host_authentication_key, it.current_data_encryption_key, it.new_data_encryption_key,
                    it.current_printer_lock_key, it.new_printer_lock_key);
}

}  // namespace detail

// ---- Composing ----

/// What a printer can do, or the part of it that the options say.
inline composed compose(const capabilities& record, const options& chosen = {}) {
    return detail::ask(detail::in_string{}, record, chosen);
}
/// These sections of a configuration. Without a section that says something there is nothing to send.
inline composed compose(const Kavrin::_KVConfiguration& record, section sections, const options& chosen = {}) {
    return detail::ask_for(detail::in_string{}, "configuration", record, chosen, static_cast<long>(sections));
}
/// The cards of a catalogue. Films, ribbons and laminates are not sent.
inline composed compose(const media_catalogue& record, const options& chosen = {}) {
    return detail::ask(detail::in_string{}, record, chosen);
}
/// All of a printer's identity.
inline composed compose(const Kavrin::KVPrinterInfo& record, const options& chosen = {}) {
    return detail::ask_for(detail::in_string{}, "printer-id", record, chosen, 0, true);
}
/// These sections of a printer's identity; with none it is composed all the same.
inline composed compose(const Kavrin::KVPrinterInfo& record, identity_section sections, const options& chosen = {}) {
    return detail::ask_for(detail::in_string{}, "printer-id", record, chosen, static_cast<long>(sections));
}
/// The three long-term keys.
inline composed compose(const Kavrin::_tagSecKeys& record, const options& chosen = {}) {
    return detail::ask_for(detail::in_string{}, "keys", record, chosen);
}
/// A service command, or a message of the hand-shake.
template <class Command>
auto compose(const Command& command, const options& chosen = {})
    -> decltype(detail::ask(detail::in_string{}, command, chosen)) {
    return detail::ask(detail::in_string{}, command, chosen);
}

// ---- Composing into a buffer of the host's: no allocation but for what is looked up and for problems ----

/// The same requests. The text is not terminated. A buffer that does not hold all of it, or whose request is refused,
/// is all zero afterwards.
inline composed_in compose_to(buffer where, const capabilities& record, const options& chosen = {}) {
    return detail::ask(detail::in_buffer{where}, record, chosen);
}
inline composed_in compose_to(buffer where, const Kavrin::_KVConfiguration& record, section sections,
                              const options& chosen = {}) {
    return detail::ask_for(detail::in_buffer{where}, "configuration", record, chosen, static_cast<long>(sections));
}
inline composed_in compose_to(buffer where, const media_catalogue& record, const options& chosen = {}) {
    return detail::ask(detail::in_buffer{where}, record, chosen);
}
inline composed_in compose_to(buffer where, const Kavrin::KVPrinterInfo& record, const options& chosen = {}) {
    return detail::ask_for(detail::in_buffer{where}, "printer-id", record, chosen, 0, true);
}
inline composed_in compose_to(buffer where, const Kavrin::KVPrinterInfo& record, identity_section sections,
                              const options& chosen = {}) {
    return detail::ask_for(detail::in_buffer{where}, "printer-id", record, chosen, static_cast<long>(sections));
}
inline composed_in compose_to(buffer where, const Kavrin::_tagSecKeys& record, const options& chosen = {}) {
    return detail::ask_for(detail::in_buffer{where}, "keys", record, chosen);
}
template <class Command>
auto compose_to(buffer where, const Command& command, const options& chosen = {})
    -> decltype(detail::ask(detail::in_buffer{where}, command, chosen)) {
    return detail::ask(detail::in_buffer{where}, command, chosen);
}

}  // namespace v1
}  // namespace kvjxml

#endif
