/// @file CapabilitiesRecords.h
/// What a printer can do: the record that KVJCapsParser fills and that KVJSetCaps composes a request from.
///
/// Records are plain structures. The host owns them, and every array that they point to; it sets a record to zero
/// before the first call, and a reader never clears one, so a field whose element is not in the reply keeps its value.
/// Texts are terminated; a longer one is cut to its field and that read reports false.
#ifndef KVJXML_CAPABILITIES_RECORDS_H
#define KVJXML_CAPABILITIES_RECORDS_H

namespace Kavrin {

// Host applications know these records by names with leading underscores.
// NOLINTBEGIN(bugprone-reserved-identifier)

/// A port of the printer.
struct _PortCaps {
    int portId;    ///< "port_id"
    int portType;  ///< "type": code of the word, see KVJCapsParser::portTypeToInt.
};

/// A software interface that the printer serves.
struct _InterfaceCaps {
    int protocol;   ///< "protocol": code of the word, see KVJCapsParser::protocolToInt.
    int transport;  ///< "transport": code of the word, see KVJCapsParser::transportToInt.
    int port;       ///< "port": port number.
};

/// A language of the operator control panel.
struct _OCPLanguageCaps {
    int type;       ///< "type": the printer's number of the language.
    char name[64];  ///< "name"
};

/// How the printer protects itself and its jobs.
struct _SecurityCaps {
    bool passkeyProtection;   ///< "passkey_protection": true for "yes" and "enabled".
    int encryptionAlgorithm;  ///< "encryption_algorithm": code of the word, see KVJCapsParser::encAlgToInt.
};

/// A resident font.
struct _FontCaps {
    char name[64];  ///< "name"
    bool scalable;  ///< "scalable": true for "yes" and "enabled". Written as a second "name".
    int style;      ///< "style": "regular" 1, "bold" 2, "italic" 3; any other word 0.
};

/// A stored template or a stored graphic.
struct _TemplateCaps {
    char name[4096];     ///< "name"
    char location[256];  ///< "location"
};

/// A bar-code symbology.
struct _BarCodeCaps {
    char name[64];  ///< The text of "barcode" itself, the printer's word.
};

/// The built-in smart-card encoder, in the capabilities and in the configuration.
struct _InternalEncoderInfo {
    /// "comms_channel": code of the word, see KVJHelper::CommsChannelToInt. Composers do not write it: they derive the
    /// channel from `contactlessEncoder`.
    int commsChannel;
    /// "contact_encoding": true for "yes" and "enabled".
    bool contactEncoding;
    /// "contactless_encoder": code of the word, see KVJHelper::ContactlessEncToInt. Written as "comms_channel" as well.
    int contactlessEncoder;
    /// A second "contactless_encoder", in the configuration only.
    int contactlessEncoder2;
    /// "contact_station", written by KVJSetCaps when only the encoder is composed; never read.
    bool contactStation;
};

/// Lamination that the printer is equipped for.
enum _laminatorType : int { laminatorNone = 0, laminatorOneSided = 1, laminatorTwoSided = 2 };

/// The reply "capabilities", read by KVJCapsParser::GetCapabilities and written by KVJSetCaps::SetCapabilities.
///
/// **Lists.** Each list is a count and an array of the host's with at least that many entries. In: the capacity of the
/// array. Out: when the reply has more child elements in the list's section than that, of whatever name, the count
/// becomes that number and nothing is filled; the host then provides an array of that size and reads again. Otherwise
/// the entries are filled from index 0 on and the count stays what it was: how many were filled is not reported, so set
/// the array to zero first. A null array has room for nothing. A section that comes twice is measured against the
/// capacity both times, and the count becomes the largest number that did not fit, even when the other section did.
///
/// **A count is the size of the array only when it is no larger than the one passed in**: after each call compare them,
/// and go over the array only then; KVJCapsParser shows how. Composing writes as many entries as the count says.
///
/// Sizes of memory and pages, and the resolution, are in the printer's own units.
// Hosts are compiled with this order. NOLINTNEXTLINE(clang-analyzer-optin.performance.Padding)
struct _Capabilities {
    int hostPortCount;               ///< Entries of `hostPorts`.
    _PortCaps* hostPorts;            ///< "host_ports" / "host_port"
    int devicePortCount;             ///< Entries of `devicePorts`.
    _PortCaps* devicePorts;          ///< "device_ports" / "device_port": **all are read into the first entry**.
    int swInterfaceCount;            ///< Entries of `swInterfaces`.
    _InterfaceCaps* swInterfaces;    ///< "software_interfaces" / "software_interface"
    int ocpLanguageCount;            ///< Entries of `ocpLanguages`.
    _OCPLanguageCaps* ocpLanguages;  ///< "ocp_languages" / "ocp_language"
    /// "image_sharpening_levels" / "image_sharpening_level": the bits of all words, "off" 1, "normal" 2, "high" 4,
    /// "low" 8, **added** to those that are set already.
    int imageSharpeningLevels;
    _SecurityCaps security;  ///< "security"
    int ramSize;             ///< "memory" / "ram"
    int flashSize;           ///< "memory" / "flash"
    int graphicFormatCount;  ///< Entries of `graphicFormats`.
    /// "graphic_formats" / "graphic_format": codes of the words, see KVJCapsParser::graphicsFormatToInt.
    int* graphicFormats;
    int fontCount;             ///< Entries of `fonts`.
    _FontCaps* fonts;          ///< "fonts" / "font"
    int templateCount;         ///< Entries of `templates`.
    _TemplateCaps* templates;  ///< "templates" / "template"; the location is not written.
    int graphicCount;          ///< Entries of `graphics`.
    _TemplateCaps* graphics;   ///< "graphics" / "graphic"
    /// "print_system": code of the word, see KVJCapsParser::printerTypeToInt. Not written: the composer's flag counts.
    int printSystem;
    int printType;           ///< "print_type": code of the word, see KVJCapsParser::laminationTypeToInt.
    bool atm;                ///< "media_path" / "atm": a card path as in an ATM; "yes" and "enabled".
    int magazineCapacity;    ///< "media_path" / "magazine_capacity": cards.
    int logicalPageLength;   ///< "image" / "logical_page" / "length"
    int logicalPageWidth;    ///< "image" / "logical_page" / "width"
    int physicalPageLength;  ///< "image" / "physical_page" / "length"
    int physicalPageWidth;   ///< "image" / "physical_page" / "width"
    int printResolution;     ///< "image" / "print_resolution"
    /// "mag_encoder": code of the word, see KVJCapsParser::magHeadTypeToInt. Written only by a request for the magnetic
    /// encoder alone.
    int magHeadType;
    /// "mag_stripe": code of the word, see KVJCapsParser::magStripeLocationToInt. Not written.
    int magStripeLocation;
    _InternalEncoderInfo internalEncoder;  ///< "internal_encoder"
    int barCodeCount;                      ///< Entries of `barCodes`.
    _BarCodeCaps* barCodes;                ///< "barcodes" / "barcode"
    bool laminator;                        ///< "laminator": true for exactly "present".
    _laminatorType laminatorType;          ///< "laminator_type": "1_side" 1, "2_side" 2; any other word 0.
};

// NOLINTEND(bugprone-reserved-identifier)

}  // namespace Kavrin

#endif
