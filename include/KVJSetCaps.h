/// @file KVJSetCaps.h
/// Composes the description of what a printer can do, whole or its encoders alone.
#ifndef KVJXML_KVJ_SET_CAPS_H
#define KVJXML_KVJ_SET_CAPS_H

#include <tinyxml.h>

#include "CapabilitiesRecords.h"
#include "kvjxml_export.h"

namespace Kavrin {

/// The object is the document that is composed. Composing appends to it: a second SetCapabilities gives a document with
/// two roots, so take **a fresh object for each request**, in one thread at a time.
///
/// What is written is what the printer expects, which is not always what it sends; the operations below say where the
/// two differ. Texts of the record need not be terminated. A null `under` adds nothing and gives false; a null array
/// has no entries, whatever its count.
///
/// **Size.** Hosts are compiled with the size of the object, so it stays as it is.
class KVJXML_API KVJSetCaps : public TiXmlDocument {
public:
    /// Composes "capabilities" and prints it.
    /// @param out  room for `outLen` wide characters. The request is converted to them in the process's locale, and its
    ///             terminator is written when there is room for it. A request that fills the capacity, or that contains
    ///             a byte that the locale does not know, ends without one: leave room to spare, and set the buffer to
    ///             zero first.
    /// @param mode  0 the whole description, "mag_encoder" 1 alone, 2 the smart-card encoder alone; any other value
    ///              writes an empty root.
    /// @param directToCard  the printer prints on the card itself, without transfer film: "print_system" says so.
    /// @return whether it was printed, even if it was cut; false, with nothing written, when `out` is null or `outLen`
    ///         negative.
    bool SetCapabilities(const _Capabilities& caps, wchar_t* out, int outLen, int mode, bool directToCard);

    /// Adds to `root` what `mode` says. The result is that of the last "barcode" in mode 0, that of the last element in
    /// modes 1 and 2; false when there is none.
    bool addCapabilities(TiXmlElement* root, const _Capabilities& caps, int mode);

    // ---- Sections ----
    // Each adds its element to `under`. The result is that of the last element written; false when there is none. An
    // entry that cannot be added is left out.

    bool addHostPorts(TiXmlElement* under, const _Capabilities& caps);    ///< "host_ports", unless its count is 0.
    bool addDevicePorts(TiXmlElement* under, const _Capabilities& caps);  ///< "device_ports", unless its count is 0.
    /// Adds the ports as elements `entryName` of `under` itself: "port_id" and "type". Port type 4 has no word and is
    /// written empty.
    bool addPorts(TiXmlElement* under, const _PortCaps* ports, int count, char* entryName);
    /// "software_interfaces" / "software_interface", unless the count is 0: "protocol", "transport", "port".
    bool addSWInterfaces(TiXmlElement* under, const _InterfaceCaps* interfaces, int count);
    /// "ocp_languages" / "ocp_language", unless the count is 0: "type", "name".
    bool addOcpLanguages(TiXmlElement* under, const _OCPLanguageCaps* languages, int count);
    /// "image_sharpening_levels": an "image_sharpening_level" for each bit that is set, from the lowest up.
    bool addImageSharpeningLevels(TiXmlElement* under, const _Capabilities& caps);
    /// "security": "passkey_protection", "encryption_algorithm", which is "none" for a code without a word.
    bool addSecurityCaps(TiXmlElement* under, const _SecurityCaps& security);
    /// "memory": "ram", "flash".
    bool addMemoryCaps(TiXmlElement* under, const _Capabilities& caps);
    /// "graphic_formats" / "graphic_format"; a code without a word is written empty.
    bool addGraphicFormatsCaps(TiXmlElement* under, const int* formats, int count);
    /// "fonts" / "font": "name", a **second "name"** with `scalable` as "yes" or "no", and "style", which is "none" for
    /// a code without a word.
    bool addFontsCaps(TiXmlElement* under, const _FontCaps* fonts, int count);
    /// "templates" / "template": "name" alone.
    bool addTemplateCaps(TiXmlElement* under, const _TemplateCaps* templates, int count);
    /// "graphics" / "graphic": "name", "location".
    bool addGraphicsCaps(TiXmlElement* under, const _TemplateCaps* graphics, int count);
    /// "media_path": "atm", "magazine_capacity".
    bool addMediaPathCaps(TiXmlElement* under, const _Capabilities& caps);
    /// "image": "logical_page" and "physical_page", each with "length" and "width"; "print_resolution".
    bool addImageCaps(TiXmlElement* under, const _Capabilities& caps);
    /// "internal_encoder": "comms_channel" (from `contactlessEncoder`: "serial" 1, "usb_2_0" 2), "contact_encoding",
    /// "contactless_encoder" ("mifare" 1); other codes are written empty.
    bool addInternalEncoder(TiXmlElement* under, const _InternalEncoderInfo& encoder);
    /// The encoder as mode 2 has it: "contact_station" with "yes" if there is one; then, unless channel, contact
    /// encoding and contactless encoder are all zero, "internal_encoder" with what there is of it.
    bool addInternalEncoderOnly(TiXmlElement* under, const _InternalEncoderInfo& encoder);
    /// "barcodes" / "barcode".
    bool addBarCodes(TiXmlElement* under, const _BarCodeCaps* barCodes, int count);

    // ---- Codes to words ----
    // Each writes a terminated word to `buf`, which has room for 32 characters; "" for a code without a word. The
    // result says whether the code had one, unless stated otherwise. False for a null `buf`.

    /// "usb_2_0" 0, "serial" 1, "ethernet_10_100" 2, "ethernet_10_100_1G" 3.
    bool portTypeToString(char* buf, int code);
    /// "snmp" 0, "snmp_trap" 1, "http" 2, "kavrin" 3.
    bool protocolToString(char* buf, int code);
    /// "udp" 0, "tcp" 1, "usb" 2, "usb_2_0" 3.
    bool transportToString(char* buf, int code);
    /// "aes" 1, "3des" 2; any other "none", and false.
    bool encAlgToString(char* buf, int code);
    /// "bmp" 1, "jpeg" 2, "tga" 8, "tiff" 9, "raw" 10.
    bool graphicFormatToString(char* buf, int code);
    /// "none" 0, "iso" 1, "aamva" 2, "custom" 3, "binary" 4.
    bool MagHeadTypeToString(char* buf, int code);
    /// "back" 0, "front" 1.
    bool magStripeLocationToString(char* buf, int code);
    /// "1_side" 1, "2_side" 2; true **for 1 only**.
    bool printTypeToString(char* buf, int code);
    /// "none" 0, "1_side" 1, "2_side" 2; any other code leaves `buf` alone. Always true.
    bool LamTypeToString(char* buf, _laminatorType code);
    /// "present" for any flag but 0, "notpresent" for 0. Always true.
    bool LaminatorToString(char* buf, char flag);
    /// "direct_to_card" or "retransfer", as the last SetCapabilities was told; the code is ignored. Always true.
    bool printSystemTypeToString(char* buf, int code);
    /// "serial" 1, "usb_2_0" 2. Always true; the last argument is ignored.
    bool CommsChannelFromInt(int code, char* buf, int ignored);
    /// "mifare" 1. Always true; the last argument is ignored.
    bool ContactlessEncFromInt(int code, char* buf, int ignored);
    /// "dye_sub" 0, "resin" 1.
    bool ribbonTypeToString(char* buf, int code);
    /// "composite" 0, "pvc" 1.
    bool feederTypeToString(char* buf, int code);
    /// "contact" 0, "iclass" 1, "mifare" 2, "prox" 3, "uhf" 4, "legic" 5.
    bool feederSmartToString(char* buf, int code);

    /// Prints the document again; see SetCapabilities.
    bool saveJob(wchar_t* out, int outLen);
    /// Saves the document to the file `path`. False when that is null or cannot be written.
    bool saveJob(char* path);

private:
    TiXmlElement* root_ = nullptr;  ///< Of the last request; the document owns it.
    bool directToCard_ = false;
};

}  // namespace Kavrin

#endif
