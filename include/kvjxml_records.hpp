/// @file kvjxml_records.hpp
/// The two records that own their lists: what a printer can do, and the media that it knows, with the entries in
/// vectors of their own. They are copied, moved and released like any value, where the records they are made of point
/// to arrays that a host has to provide.
#ifndef KVJXML_RECORDS_HPP
#define KVJXML_RECORDS_HPP

#include <vector>

#include "CapabilitiesRecords.h"
#include "MediaRecords.h"

namespace kvjxml {
inline namespace v1 {

/// What a printer can do. Its lists stand here; **the counts and pointers of the base are neither read nor kept up to
/// date**, and are null as long as a host leaves them alone.
struct capabilities : Kavrin::_Capabilities {
    std::vector<Kavrin::_PortCaps> hostPorts;            ///< "host_ports" / "host_port"
    std::vector<Kavrin::_PortCaps> devicePorts;          ///< "device_ports" / "device_port"
    std::vector<Kavrin::_InterfaceCaps> swInterfaces;    ///< "software_interfaces" / "software_interface"
    std::vector<Kavrin::_OCPLanguageCaps> ocpLanguages;  ///< "ocp_languages" / "ocp_language"
    /// "graphic_formats" / "graphic_format": codes of the words, see KVJCapsParser::graphicsFormatToInt.
    std::vector<int> graphicFormats;
    std::vector<Kavrin::_FontCaps> fonts;          ///< "fonts" / "font"
    std::vector<Kavrin::_TemplateCaps> templates;  ///< "templates" / "template"; the location is not written.
    std::vector<Kavrin::_TemplateCaps> graphics;   ///< "graphics" / "graphic"
    std::vector<Kavrin::_BarCodeCaps> barCodes;    ///< "barcodes" / "barcode"

    /// All zero, with empty lists.
    capabilities() : Kavrin::_Capabilities() {}
};

/// The media that a printer knows.
struct media_catalogue {
    std::vector<Kavrin::_CardInfo> cards;           ///< "cards" / "card"
    std::vector<Kavrin::_MediaRibbonInfo> films;    ///< "films" / "film"
    std::vector<Kavrin::_MediaRibbonInfo> ribbons;  ///< Never filled by reading a reply.
    /// "laminates" / "laminate", and "ribbons" / "laminate" as well.
    std::vector<Kavrin::_MediaRibbonInfo> laminates;
};

}  // namespace v1
}  // namespace kvjxml

#endif
