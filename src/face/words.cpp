#include "face/words.h"

#include <kvjxml_word_tables.hpp>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <string_view>

#include "capabilities/tables.h"
#include "configuration/document.h"
#include "foundation/vocabulary.h"
#include "status/counters.h"
#include "status/job.h"
#include "status/wireless.h"

namespace kvj {

namespace {

constexpr Vocabulary all[] = {
    {"printer_state", status::printerStates},
    {"laminator_state", status::laminatorStates},
    {"job_state", status::jobStates},
    {"cleaning_state", status::cleaningStates},
    {"wireless_state", status::wirelessStates},
    {"wireless_security", status::securityWords},
    {"wireless_cipher", status::cipherWords},
    // The printer describes a ribbon by its name or by its panels.
    {"ribbon", ribbonNames},
    {"ribbon", ribbonDescriptions},
    {"ribbon_name", ribbonNames},
    {"port_type", capabilities::portTypes},
    {"protocol", capabilities::protocols},
    {"transport", capabilities::transports},
    {"sharpening_level", capabilities::sharpeningLevels},
    {"encryption_algorithm", capabilities::encryptionAlgorithms},
    {"graphic_format", capabilities::graphicFormats},
    {"font_style", capabilities::fontStyles},
    {"print_system", capabilities::printSystems},
    {"sides", laminationTypes},
    {"mag_head_type", capabilities::magHeadTypes},
    {"mag_stripe_location", capabilities::magStripeLocations},
    {"comms_channel", commsChannels},
    {"contactless_encoder", contactlessEncoders},
    {"configured_security", configuration::securityWords},
    {"configured_cipher", configuration::cryptoWords},
    {"error_control", configuration::errorControls},
    {"feeder_mode", feederModes},
    {"usb_speed", configuration::usbSpeeds},
    {"coercivity", coercivities},
    {"transfer_type", configuration::transferTypes},
    {"laminate_registration", configuration::installedRegistrations},
    {"laminate_width", configuration::installedWidths},
};

/// The length of the longest word: a longer text is none.
constexpr std::size_t longestWord = [] {
    std::size_t longest = 0;
    for (const auto& [name, words] : all) {
        if (words.match == Match::part) throw "a word of this table may be a part of a longer text";
        for (const Word& row : words.rows) longest = std::max(longest, std::string_view(row.word).size());
    }
    return longest;
}();

/// The word that the first table of a name has for a code; null when none has one.
const char* wordIn(std::string_view table, int code) noexcept {
    for (const auto& [name, words] : all) {
        if (name != table) continue;
        if (const char* const word = wordOf(words, code)) return word;
    }
    return nullptr;
}

}  // namespace

std::span<const Vocabulary> vocabularies() noexcept { return all; }

}  // namespace kvj

const char* kvjxml_v1_word(const char* table, int code) noexcept { return kvj::wordIn(table, code); }

bool kvjxml_v1_code(const char* table, const char* text, std::size_t length, int* code) noexcept {
    const std::string_view word(text, length);
    if (length > kvj::longestWord || word.find('\0') != std::string_view::npos) return false;
    char terminated[kvj::longestWord + 1];
    terminated[word.copy(terminated, kvj::longestWord)] = '\0';
    for (const auto& [name, words] : kvj::all) {
        if (name != std::string_view(table)) continue;
        if (const auto found = kvj::codeOf({words.rows, std::nullopt, words.match}, terminated)) {
            *code = *found;
            return true;
        }
    }
    return false;
}

std::size_t kvjxml_v1_words(const char* table, unsigned int bits, const char** words, std::size_t room,
                            unsigned int* unnamed) noexcept {
    std::size_t count = 0;
    *unnamed = bits;
    const auto add = [&](const char* word, unsigned int code) {
        if (count < room) words[count] = word;
        ++count;
        *unnamed &= ~code;
    };
    if (const char* const word = kvj::wordIn(table, static_cast<int>(bits))) {
        add(word, bits);
        return count;
    }
    for (const auto& [name, known] : kvj::all) {
        if (name != std::string_view(table)) continue;
        for (const auto& [word, code] : known.rows) {
            const auto set = static_cast<unsigned int>(code);
            // Of the words of a code the first.
            if (set != 0 && (set & ~bits) == 0 && kvj::wordIn(table, code) == word) add(word, set);
        }
    }
    return count;
}
