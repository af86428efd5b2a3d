/// @file KVJSetConfig.h
/// Composes how a printer is to be set up, section by section.
#ifndef KVJXML_KVJ_SET_CONFIG_H
#define KVJXML_KVJ_SET_CONFIG_H

#include <tinyxml.h>

#include "ConfigurationRecords.h"
#include "kvjxml_export.h"

namespace Kavrin {

// clang-format off
/// The object is the document that is composed. Composing appends to it: a second SetConfiguration gives a document
/// with two roots, so take **a fresh object for each request**, in one thread at a time.
///
/// **The sections and their bits**, in the order in which they are written; other bits write nothing:
///
///     0x1       "physical_address"
///     0x2       "ethernet"                         the wired network
///     0x4       "ethernet"                         the wireless network; it reads back as the wired one
///     0x8       "ocp_language"
///     0x10      "error_control", "usb_speed"
///     0x20      "usage_counters"
///     0x40      "standby_timeout"
///     0x80      "imaging_parameters"               without "mfg_power_adjustments"
///     0x200     "ribbon_motor_parameters"          without "VtoI"
///     0x400     "ribbon_sensor_offset"
///     0x1000    "mech_adjustments", "usb_timeout"
///     0x2000    "media_info"                       without the film when printing is direct to card
///     0x40000   "lamination"                       when a laminate is present; see _Laminate
///     0x20000   "cleaning", "cleaning_thresholds"
///     0x400000  "feeder_mode"
///     0x4000    "cards"                            the only one for a single card
///     0x8000    "transfer_settings"                unless printing is direct to card
///     0x10000   "lcd_contrast"
///     0x80000   "internal_encoder"
///
/// Settings with a fraction are written with their **maximum** as text: the printer never takes their value. Texts of
/// the record need not be terminated.
///
/// **Size.** Hosts are compiled with the size of the object, so it stays as it is.
// clang-format on
class KVJXML_API KVJSetConfig : public TiXmlDocument {
public:
    /// Composes "configuration", leaves a copy of it in the file "/tmp/firmwaresettings" and prints it. The copy is
    /// written even when `out` is null. It can hold the network key, so it is written to a new file that only its owner
    /// can read, named like the copy with a dot and six characters added, which replaces the old copy once it is whole.
    /// A link with that name is not followed, and a file of another user keeps its old content, as does one that is
    /// read-only or has a second name. Failures are silent: the old copy stays, and no signal comes when the file would
    /// grow larger than files may.
    /// @param out  room for `outLen` wide characters. The request is converted to them in the process's locale, and its
    ///             terminator is written when there is room for it. A request that fills the capacity, or that contains
    ///             a byte that the locale does not know, ends without one: leave room to spare, and set the buffer to
    ///             zero first.
    /// @param mask          bits of the sections that are wanted.
    /// @param cardSelect    0 for the whole document, 1 or 2 for that custom card alone; any other value fails.
    /// @param skipTransfer  printing is direct to card: nothing of film and transfer is written.
    /// @return whether it was printed, even if it was cut; false, without copy or print, when the last section could
    ///         not be written or there was none; false, with nothing written to `out`, when that is null or `outLen`
    ///         negative.
    bool SetConfiguration(const _KVConfiguration& cfg, wchar_t* out, int outLen, long mask, int cardSelect,
                          bool skipTransfer);

    /// Adds the sections to `root`. The result is that of the last one written; false when there was none.
    bool addConfiguration(TiXmlElement* root, const _KVConfiguration& cfg, long mask, int cardSelect);

    // ---- Sections ----
    // Each adds its element to `under`, or fills the element that it is given where its name is the host's choice. The
    // result is that of the last element written; false when there is none, or for a null element.

    bool addNetworkParams(TiXmlElement* under, const _KVConfiguration& cfg);  ///< "ethernet", the wired network.
    /// Fills the element: "ip_address", "gateway", "subnet_mask", "dhcp", "snmp".
    bool addNetworkParams(TiXmlElement* element, const _NetworkParams& network);
    bool addWirelessParams(TiXmlElement* under,
                           const _KVConfiguration& cfg);  ///< **"ethernet"**, the wireless network.
    /// Fills the element: "ip_address", "gateway", "subnet_mask", "dhcp", "snmp", "radio", "security", "crypto",
    /// "ssid", "bssid", "channel", "key".
    bool addWirelessParams(TiXmlElement* element, const _WirelessParams& network);
    bool addOCPLanguage(TiXmlElement* under, const _OCPLanguageCaps& language);       ///< "ocp_language"
    bool addErrorControl(TiXmlElement* under, ErrorControl errorControl);             ///< "error_control"
    bool addUSBSpeed(TiXmlElement* under, USB_Speed speed);                           ///< "usb_speed"
    bool addUsageCounters(TiXmlElement* under, const _KVConfiguration& cfg);          ///< "usage_counters"
    bool addUSBTimeout(TiXmlElement* under, const _KVConfiguration& cfg);             ///< "usb_timeout"
    bool addFeederParams(TiXmlElement* under, const _eFeedMode& mode);                ///< "feeder_mode"
    bool addImagingParameters(TiXmlElement* under, const _ImagingParams& imaging);    ///< "imaging_parameters"
    bool addPowerAdjustments(TiXmlElement* element, const _PowerAdjustments& power);  ///< Fills the element.
    bool addTricolorSettings(TiXmlElement* under, const _RGBINT& colors);             ///< "tricolor_settings"
    bool addRibbonMotorParams(TiXmlElement* under, const _RibbonMotorParams& motor);  ///< "ribbon_motor_parameters"
    bool addMechAdjustments(TiXmlElement* under, const _MechanicalAdjustments& positions);  ///< "mech_adjustments"
    bool addMediaInfo(TiXmlElement* under, const _KVConfiguration& cfg);                    ///< "media_info"
    bool addRibbonInfo(TiXmlElement* element, const _RibbonInfo& ribbon);                   ///< Fills the element.
    bool addCardInfo(TiXmlElement* under, const _CustomCardInfo& card);                     ///< "card"
    bool addCardInformation(TiXmlElement* under, const _CustomCardInfo& card);              ///< "information"
    bool addTransferTemps(TiXmlElement* under, const _TransferTempInfo& temperatures);  ///< "transfer_temps" of a card
    bool addTransferSpeeds(TiXmlElement* under, const _TransferSpeedInfo& speeds);      ///< "transfer_speeds"
    /// "laminator_adjustments"
    bool addLamAdjustments(TiXmlElement* under, const _LaminationAdjustmentsNew& adjustments);
    bool addTransferSettings(TiXmlElement* under, const _ImageTransferInfo& transfer);  ///< "transfer_settings"
    /// "transfer_temps" in "transfer_settings"
    bool addTransferTemps(TiXmlElement* under, const _ImageTransferTempInfo& temperatures);
    bool addLaminationInfo(TiXmlElement* under, _LaminationIfo& lamination);  ///< "lamination"
    /// Fills the element; `top` says which names the controls have.
    bool addLaminateInfo(TiXmlElement* element, _Laminate& laminate, bool top);
    bool addCleanParams(TiXmlElement* under, const _CleaningParams& cleaning);  ///< "cleaning", "cleaning_thresholds"
    /// "internal_encoder": "comms_channel" (from `contactlessEncoder`: "serial" 1, "usb" 2), "contact_encoding",
    /// "contactless_encoder" ("mifare" 1); other codes are written empty.
    bool addInternalEncoder(TiXmlElement* under, const _InternalEncoderInfo& encoder);

    // ---- Codes to words: constant ones, never null ----

    const char* GetSecurity(WirelessSecurity security);  ///< As in WirelessSecurity; "" for any other code.
    const char* GetCrypto(WirelessCrypto crypto);        ///< As in WirelessCrypto; "" for any other code.
    const char* FeederModeToString(_eFeedMode mode);     ///< As in _eFeedMode.

    // ---- Codes to words ----
    // Each writes a terminated word to `buf`, which has room for 32 characters; "" for a code without a word. The
    // result says whether the code had one, unless stated otherwise. False for a null `buf`.

    /// "YMCKO" 256, "YMCKOK" 257, "1/2 YMCKO" 258, "1/2 YMCKOKO" 259, "YMCPKO" 260, "KdO" 261, "KrO" 262, "Black" 263,
    /// "White" 264, "Red" 265, "Blue" 266, "Gold" 267, "Silver" 268, "YMCKLL" 269, "SrDYMCKO" 270, "Hologram" 271.
    bool RibbonNameToString(char* buf, int code);
    /// "dye_sub" 0, "resin" 1.
    bool ribbonTypeToString(char* buf, int code);
    /// "composite" 0, "pvc" 1.
    bool feederTypeToString(char* buf, int code);
    /// "contact" 0, "iclass" 1, "mifare" 2, "prox" 3, "uhf" 4, "legic" 5.
    bool feederSmartToString(char* buf, int code);
    /// "serial" 1, "usb" 2. Always true; the last argument is ignored.
    bool CommsChannelFromInt(int code, char* buf, int ignored);
    /// "mifare" 1. Always true; the last argument is ignored.
    bool ContactlessEncFromInt(int code, char* buf, int ignored);

    /// Leaves the copy and prints the document again; see SetConfiguration.
    bool saveJob(wchar_t* out, int outLen);
    /// Saves the document to the file `path`. False when that is null or cannot be written.
    bool saveJob(char* path);

private:
    TiXmlElement* root_ = nullptr;  ///< Of the last request; the document owns it.
    bool skipTransfer_ = false;
    /// Whether addNetworkParams leaves the addresses out. Nothing sets it yet; addConfiguration clears it.
    bool withoutAddresses_ = false;
};

}  // namespace Kavrin

#endif
