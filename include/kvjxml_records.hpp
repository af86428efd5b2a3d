/// @file kvjxml_records.hpp
/// Records of kvjxml.hpp: those of the named operations are used as they are, but where a list has only so much room
/// there, or a value has no record of its own, one of these stands in its place. They begin as zeros and empty lists.
#ifndef KVJXML_RECORDS_HPP
#define KVJXML_RECORDS_HPP

#include <cstddef>
#include <string_view>
#include <vector>

#include "CapabilitiesRecords.h"
#include "IdentityRecords.h"
#include "MediaRecords.h"
#include "StatusRecords.h"

namespace kvjxml {
inline namespace v1 {

/// The jobs that the printer holds, all of them: "get_job_list".
struct job_list {
    /// "job", in the order of the reply.
    std::vector<Kavrin::_KVJobInfo> jobs;
};

/// The access points that the printer sees: "AccessPoints".
struct access_point_list {
    /// "AccessPoint", in the order of the reply.
    std::vector<Kavrin::_tagAccessPoint> accessPoints;
};

/// When the printer was serviced: "get_log_service_history".
struct service_log {
    /// "service", in the order of the reply.
    std::vector<Kavrin::_tagLogServiceValues> entries;
};

/// When the printer was cleaned: "get_log_cleaning_history".
struct cleaning_log {
    /// "cleaning", in the order of the reply.
    std::vector<Kavrin::_tagCleaningLogEntry> entries;
};

/// Part of "get_count".
struct cleaning_count {
    /// "total_cards_until_next_cleaning": cards that can be printed before the printer wants to be cleaned.
    int cards = 0;
};

/// What a printer can do: "capabilities". Its lists stand in the place of the base's arrays and counts, which are
/// neither filled nor looked at.
struct capabilities : Kavrin::_Capabilities {
    capabilities() : Kavrin::_Capabilities() {}

    /// "host_ports" / "host_port".
    std::vector<Kavrin::_PortCaps> hostPorts;
    /// "device_ports" / "device_port": none, or the last that the reply has.
    std::vector<Kavrin::_PortCaps> devicePorts;
    /// "software_interfaces" / "software_interface".
    std::vector<Kavrin::_InterfaceCaps> swInterfaces;
    /// "ocp_languages" / "ocp_language".
    std::vector<Kavrin::_OCPLanguageCaps> ocpLanguages;
    /// "graphic_formats" / "graphic_format": codes, see KVJCapsParser::graphicsFormatToInt.
    std::vector<int> graphicFormats;
    /// "fonts" / "font".
    std::vector<Kavrin::_FontCaps> fonts;
    /// "templates" / "template".
    std::vector<Kavrin::_TemplateCaps> templates;
    /// "graphics" / "graphic".
    std::vector<Kavrin::_TemplateCaps> graphics;
    /// "barcodes" / "barcode".
    std::vector<Kavrin::_BarCodeCaps> barCodes;
};

/// The media that a printer knows: "media".
struct media_catalogue {
    /// "cards" / "card".
    std::vector<Kavrin::_CardInfo> cards;
    /// "films" / "film".
    std::vector<Kavrin::_MediaRibbonInfo> films;
    /// Empty: a printer lists laminates under "ribbons", and does not list its ribbons.
    std::vector<Kavrin::_MediaRibbonInfo> ribbons;
    /// "ribbons" / "laminate" and "laminates" / "laminate".
    std::vector<Kavrin::_MediaRibbonInfo> laminates;
};

/// The laminator's own answer: "lam_ndc_rsp".
struct laminator_answer {
    /// The text of the root, terminated; a longer one is cut to 511 bytes.
    char response[512] = {};
};

/// A number that is used once, for the hand-shake: "nonce".
struct nonce_text {
    /// The text of the root, terminated; a longer one is cut to 31 bytes.
    char nonce[32] = {};
};

/// The printer's part of a key exchange: "diffie_hellman".
struct printer_interim_key {
    /// "printer_interim_key": decimal, or hexadecimal after "0x".
    long key = 0;
};

// ---- Texts ----

/// The text of a field, as a view of it.
template <std::size_t Size>
[[nodiscard]] std::string_view text(const char (&field)[Size]) noexcept {
    std::size_t length = 0;
    while (length < Size && field[length] != '\0') ++length;
    return {field, length};
}
template <std::size_t Size>
std::string_view text(const char (&&field)[Size]) = delete;  // It would view a temporary.

/// Sets the text of a field, with zeros behind it.
/// @return false, and the field stays as it is, when the text does not fit with its terminator.
template <std::size_t Size>
[[nodiscard]] bool set_text(char (&field)[Size], std::string_view text) noexcept {
    if (text.size() >= Size) return false;
    std::size_t at = 0;
    for (const char c : text) field[at++] = c;
    while (at < Size) field[at++] = '\0';
    return true;
}

}  // namespace v1
}  // namespace kvjxml

#endif
