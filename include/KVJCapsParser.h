/// @file KVJCapsParser.h
/// Reads the printer's description of what it can do.
#ifndef KVJXML_KVJ_CAPS_PARSER_H
#define KVJXML_KVJ_CAPS_PARSER_H

#include "CapabilitiesRecords.h"
#include "kvjxml_export.h"

class TiXmlElement;

namespace Kavrin {

/// Stateless. Replies and ownership are as for KVJStatusParser.
///
/// The lists of the record are read as _Capabilities describes; in short, for a list of unknown length:
///
///     std::vector<_FontCaps> fonts;
///     _Capabilities caps = {};  // all counts 0
///     parser.GetCapabilities(text[0], length, caps);
///     while (caps.fontCount > static_cast<int>(fonts.size())) {  // it is the number needed, not that of the array
///         fonts.assign(static_cast<std::size_t>(caps.fontCount), _FontCaps());
///         caps = _Capabilities();
///         caps.fontCount = static_cast<int>(fonts.size());
///         caps.fonts = fonts.data();
///         parser.GetCapabilities(text[0], length, caps);
///     }
///
/// The count belongs to the array only after the loop: when the printer is asked again, its new reply can have more
/// entries than the last.
class KVJXML_API KVJCapsParser {
public:
    /// Reads the reply "capabilities", or else "get_capabilities", of any length.
    /// @return **always false**: hosts see in the record what was read.
    bool GetCapabilities(const wchar_t& text, int length, _Capabilities& caps);

    // ---- Walkers ----
    // The same, for a host that holds the element already. Each is false for a null element and one that has no child
    // element, else the result of the last child element that it knows.

    /// Reads the children of a "capabilities" element.
    bool parseCapabilities(TiXmlElement* root, _Capabilities& caps);

    /// Each reads one list section into its array; see _Capabilities. True, with nothing filled, when the count was
    /// less than the number of child elements; it is then that number.
    bool getHostPorts(TiXmlElement* section, _Capabilities& caps);          ///< "host_ports"
    bool getDevicePorts(TiXmlElement* section, _Capabilities& caps);        ///< "device_ports"
    bool getSwInterfaces(TiXmlElement* section, _Capabilities& caps);       ///< "software_interfaces"
    bool getOCPLanguages(TiXmlElement* section, _Capabilities& caps);       ///< "ocp_languages"
    bool getGraphicFormatCaps(TiXmlElement* section, _Capabilities& caps);  ///< "graphic_formats"
    bool getFontsCaps(TiXmlElement* section, _Capabilities& caps);          ///< "fonts"
    bool getTemplates(TiXmlElement* section, _Capabilities& caps);          ///< "templates"
    bool getGraphics(TiXmlElement* section, _Capabilities& caps);           ///< "graphics"
    bool getBarCodes(TiXmlElement* section, _Capabilities& caps);           ///< "barcodes"

    /// Each reads one other section.
    bool getImageSharpeningLevels(TiXmlElement* section, _Capabilities& caps);  ///< "image_sharpening_levels"
    bool getSecurityCaps(TiXmlElement* section, _SecurityCaps& security);       ///< "security"
    bool getMemoryCaps(TiXmlElement* section, _Capabilities& caps);             ///< "memory"
    bool getMediaPath(TiXmlElement* section, _Capabilities& caps);              ///< "media_path"
    bool getImageCaps(TiXmlElement* section, _Capabilities& caps);              ///< "image"
    bool getLogicalPage(TiXmlElement* section, _Capabilities& caps);            ///< "logical_page" in "image"
    bool getPhysicalPage(TiXmlElement* section, _Capabilities& caps);           ///< "physical_page" in "image"
    /// "internal_encoder"; each "contactless_encoder" goes to `contactlessEncoder`.
    bool getInternalEncoderInfo(TiXmlElement* section, _InternalEncoderInfo& encoder);

    /// Each reads one entry of a list.
    bool getHostPort(TiXmlElement* entry, _PortCaps& port);                 ///< "host_port" and "device_port"
    bool getSwInterface(TiXmlElement* entry, _InterfaceCaps& swInterface);  ///< "software_interface"
    bool getOCPLanguage(TiXmlElement* entry, _OCPLanguageCaps& language);   ///< "ocp_language"
    bool getFontCaps(TiXmlElement* entry, _FontCaps& font);                 ///< "font"
    bool getTemplate(TiXmlElement* entry, _TemplateCaps& stored);           ///< "template" and "graphic"

    /// Each reads the text of the element itself. False without text: the field stays as it was, except `laminator`,
    /// which becomes false.
    bool getPrintSystem(TiXmlElement* element, _Capabilities& caps);    ///< "print_system"
    bool getPrintType(TiXmlElement* element, _Capabilities& caps);      ///< "print_type"
    bool getLaminator(TiXmlElement* element, _Capabilities& caps);      ///< "laminator"
    bool getLaminatorType(TiXmlElement* element, _Capabilities& caps);  ///< "laminator_type"

    // ---- Words to codes: exact, case counts; any other word, and null, is -1 unless a table says otherwise ----

    /// "usb_2_0" 0, "serial" 1, "ethernet_10_100" 2, "ethernet_10_100_1G" 3, "wifi_enet_802_11g" 4.
    int portTypeToInt(const char* word);
    /// "snmp" 0, "snmp_trap" 1, "http" 2, "kavrin" 3.
    int protocolToInt(const char* word);
    /// "udp" 0, "tcp" 1, "usb" 2, "usb_2_0" 3.
    int transportToInt(const char* word);
    /// "aes" 1, "3des" 2.
    int encAlgToInt(const char* word);
    /// "bmp" 1, "jpeg" 2, "tga" 8, "tiff" 9, "raw" 10.
    int graphicsFormatToInt(const char* word);
    /// "none" 0, "iso" 1, "aamva" 2, "custom" 3, "binary" 4, "jis" 5.
    int magHeadTypeToInt(const char* word);
    /// "back" 0, "front" 1.
    int magStripeLocationToInt(const char* word);
    /// Print system: "direct" 0, "retransfer" 1.
    int printerTypeToInt(const char* word);
    /// Print type: "1_side" 1, "2_side" 2; any other 0.
    int laminationTypeToInt(const char* word);
};

}  // namespace Kavrin

#endif
