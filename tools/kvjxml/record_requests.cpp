#include <KVJSetCaps.h>
#include <KVJSetConfig.h>
#include <KVJSetMedia.h>
#include <KVJSetPrinterInfo.h>

#include <numeric>

#include "capabilities/tables.h"
#include "composed.h"
#include "configuration/document.h"
#include "foundation/request.h"
#include "identity/printer.h"
#include "media/tables.h"
#include "record.h"
#include "requests.h"
#include "sections.h"

namespace kvjxml::tool {

namespace {

// ---- Capabilities ----

/// The composer's modes.
enum Mode : int { whole, magEncoder, encoder };

Names neededFor(int mode) {
    switch (mode) {
        case magEncoder:
            return {"magHeadType"};
        case encoder:
            return {"internalEncoder"};
        default:
            return fieldsWritten(described<capabilities::wholeTags>);
    }
}

std::string composeCapabilities(Arguments& json, const Options& options) {
    Kavrin::_Capabilities record{};
    Arrays arrays;
    readRecord(json.whole(), record, fields<Kavrin::_Capabilities>, neededFor(options.mode), arrays);
    return composed([&](wchar_t* out, int capacity) {
        return Kavrin::KVJSetCaps().SetCapabilities(record, out, capacity, options.mode, options.withoutTransfer);
    });
}

void addCapabilitiesOptions(CLI::App& verb, Options& options) {
    verb.add_option("--mode", options.mode, "full: the whole description; mag or encoder: that encoder alone")
        ->option_text("full|mag|encoder")
        ->transform(oneOf({{"full", whole}, {"mag", magEncoder}, {"encoder", encoder}}));
    verb.add_flag("--direct-to-card", options.withoutTransfer, "The printer prints on the card itself");
}

// ---- Sections ----

long maskOf(const Options& options) {
    return std::accumulate(options.sections.begin(), options.sections.end(), options.mask, std::bit_or<>());
}

[[noreturn]] void nothingToWrite() {
    notComposed(ExitCode::usage, "of the sections that are asked for, the record has nothing to write");
}

// ---- Configuration ----

std::string composeConfiguration(Arguments& json, const Options& options) {
    const long mask = maskOf(options);
    Names needed = fieldsWritten(described<configuration::documentSections>, mask);
    if (options.card == 1) needed.erase("customCard2");
    if (options.card == 2) needed.erase("customCard1");
    Kavrin::_KVConfiguration record{};
    Arrays arrays;
    readRecord(json.whole(), record, fields<Kavrin::_KVConfiguration>, needed, arrays);
    auto text = composed([&](wchar_t* out, int capacity) {
        return Kavrin::KVJSetConfig().SetConfiguration(record, out, capacity, mask, options.card,
                                                       options.withoutTransfer);
    });
    if (text.empty()) nothingToWrite();
    return text;
}

void addConfigurationOptions(CLI::App& verb, Options& options) {
    verb.add_option("--card", options.card, "That custom card alone")->option_text("1|2")->check(CLI::Range(1, 2));
    verb.add_flag("--skip-transfer", options.withoutTransfer,
                  "The printer prints on the card itself: leave film and transfer out");
}

// ---- Media catalogue ----

std::string composeMedia(Arguments& json, const Options& options) {
    const auto record = Kavrin::MakeKVMedia();
    Arrays arrays;
    readRecord(json.whole(), *record, fields<Kavrin::_KVMediaInfo>, {"cards"}, arrays);
    return composed([&](wchar_t* out, int capacity) {
        return Kavrin::KVJSetMedia().SetMedia(*record, out, capacity, options.allCards ? 1 : 0,
                                              options.withoutTransfer);
    });
}

void addMediaOptions(CLI::App& verb, Options& options) {
    verb.add_flag("--all-cards", options.allCards, "Cards of every type, not of the types 0 and 1 alone");
    verb.add_flag("--omit-transfer", options.withoutTransfer,
                  "The printer prints on the card itself: leave the transfer settings out");
}

// ---- Printer identity ----

std::string composePrinterId(Arguments& json, const Options& options) {
    const long mask = maskOf(options);
    Kavrin::KVPrinterInfo record{};
    Arrays arrays;
    readRecord(json.whole(), record, fields<Kavrin::KVPrinterInfo>,
               options.full ? fieldsWritten(described<identity::printerTags>)
                            : fieldsWritten(described<identity::printerSections>, mask),
               arrays);
    return composed([&](wchar_t* out, int capacity) {
        Kavrin::KVJSetPrinterInfo composer;
        if (!options.full) return composer.SetPrinterInfo(record, out, capacity, mask);
        return composer.addPrinterInfo(beginRequest(composer, "printer_id"), record) && composer.saveJob(out, capacity);
    });
}

void addPrinterIdOptions(CLI::App& verb, Options& options) {
    verb.add_flag("--full", options.full, "The full identity, not single sections");
}

constexpr std::string_view asDecoded = "the fields that decode prints; those that are not written may be left out";

constexpr Request table[] = {
    {"capabilities", "SetCapabilities", asDecoded, composeCapabilities, described<capabilities::wholeTags>,
     addCapabilitiesOptions},
    {"configuration", "SetConfiguration", asDecoded, composeConfiguration, described<configuration::documentSections>,
     addConfigurationOptions},
    {"media", "SetMedia", asDecoded, composeMedia, described<media::cardTags>, addMediaOptions},
    {"printer-id", "SetPrinterInfo", asDecoded, composePrinterId, described<identity::printerSections>,
     addPrinterIdOptions},
};

}  // namespace

std::span<const Request> recordRequests() { return table; }

}  // namespace kvjxml::tool
