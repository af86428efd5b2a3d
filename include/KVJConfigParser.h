/// @file KVJConfigParser.h
/// Reads how a printer is set up.
#ifndef KVJXML_KVJ_CONFIG_PARSER_H
#define KVJXML_KVJ_CONFIG_PARSER_H

#include <tinyxml.h>

#include "ConfigurationRecords.h"
#include "kvjxml_export.h"

namespace Kavrin {

/// Scratch space in which a ribbon's description is read. There is one for the whole process: see KVJConfigParser.
extern KVJXML_API char szRibbonName[32];

/// One object reads any number of replies, one after the other and in one thread at a time. It is a document only to
/// report what is wrong with a reply: after each call it is empty, and `Error()`, `ErrorId()` and `ErrorDesc()` report
/// on the reply that was read. The row and the column of an error are 0. Without a text they report what they did
/// before.
///
/// **Not in two threads at once:** all parsers read a ribbon's description through Kavrin::szRibbonName. Two threads
/// that read configurations, or "media_info", or a ribbon with any KVJConfigParser at the same time interfere with each
/// other. Everything else of the library, composing a configuration included, may run beside it.
class KVJXML_API KVJConfigParser : public TiXmlDocument {
public:
    /// Reads the reply "configuration", or else "set_configuration". When the reply has either, the record is set to
    /// zero first. For every description of a ribbon or film it writes two lines to the standard error stream,
    /// "DEBUG:RIBBON NAME" and "DEBUG:RIBBON NAME2", in which control characters (0 to 31 and 127 to 159, as a byte or
    /// in UTF-8) are shown as "?". The record has them as they came.
    /// @param text    the reply as multibyte text, terminated by NUL; null is no reply.
    /// @param length  is ignored.
    /// @return **always false**: hosts see in the record what was read.
    bool GetConfiguration(const char* text, int length, _KVConfiguration& out);

    // ---- Walkers ----
    // The same, for a host that holds the element already. Each but the first is false for a null element and for one
    // that has no child element, else the result of the last child element that it knows. Only the first sets anything
    // to zero.

    /// Reads the children of a "configuration" element. True when there are any; false for a null element, with the
    /// record as it was, and for an element without children, with the record zero.
    bool parseConfiguration(TiXmlElement* root, _KVConfiguration& out);

    bool getNetworkParams(TiXmlElement* element, _NetworkParams& network);      ///< "ethernet"
    bool getWirelessParams(TiXmlElement* element, _WirelessParams& network);    ///< "wireless"
    bool getUSBTimeout(TiXmlElement* element, _USBTimeout& timeout);            ///< "usb_timeout"
    bool getOCPValues(TiXmlElement* element, _OCPLanguageCaps& language);       ///< "ocp_language"
    bool getUsageCounters(TiXmlElement* element, _KVConfiguration& out);        ///< "usage_counters"
    bool getImagingParameters(TiXmlElement* element, _ImagingParams& imaging);  ///< "imaging_parameters"
    /// "mfg_power_adjustments" and "user_power_adjustments"
    bool getPowerAdjustments(TiXmlElement* element, _PowerAdjustments& power);
    bool getTricolorSettings(TiXmlElement* element, _RGBINT& colors);                   ///< "tricolor_settings"
    bool getRibbonMotorParams(TiXmlElement* element, _KVConfiguration& out);            ///< "ribbon_motor_parameters"
    bool getTakeupMotor(TiXmlElement* element, _RibbonMotorParams& motor);              ///< "takeup_motor"
    bool getMechAdjustments(TiXmlElement* element, _MechanicalAdjustments& positions);  ///< "mech_adjustments"
    bool getMediaInfo(TiXmlElement* element, _KVConfiguration& out);                    ///< "media_info"
    bool getRibbonInfo(TiXmlElement* element, _RibbonInfo& ribbon);                     ///< "ribbon" and "film"
    /// "cards": each "card" is read into a zeroed record, which becomes one of the two custom cards.
    bool getCardsInfo(TiXmlElement* element, _KVConfiguration& out);
    bool getCardInfo(TiXmlElement* element, _CustomCardInfo& card);                ///< "card"
    bool getCardInformation(TiXmlElement* element, _CustomCardInfo& card);         ///< "information"
    bool getTransferTemp(TiXmlElement* element, _TransferTempInfo& temperatures);  ///< "transfer_temps" of a card
    bool getTransferSpeed(TiXmlElement* element, _TransferSpeedInfo& speeds);      ///< "transfer_speeds"
    /// "laminator_adjustments"
    bool getLaminatorAdjustments(TiXmlElement* element, _LaminationAdjustmentsNew& adjustments);
    bool getTransferSettings(TiXmlElement* element, _ImageTransferInfo& transfer);  ///< "transfer_settings"
    /// "transfer_temps" in "transfer_settings"
    bool getTransferTemp(TiXmlElement* element, _ImageTransferTempInfo& temperatures);
    bool getLaminationInfo(TiXmlElement* element, _LaminationIfo& lamination);  ///< "lamination"
    bool getLaminteCommon(TiXmlElement* element, _laminate_common& common);     ///< "laminate_common"
    bool getLaminteInfo(TiXmlElement* element, _Laminate& laminate);            ///< "top_laminate", "bottom_laminate"
    bool getLaminteInstalledInfo(TiXmlElement* element, _LaminateInstalled& installed);  ///< "laminate_installed"
    bool getLaminteControlInfo(TiXmlElement* element, _laminateControl& control);        ///< "laminate_control"
    bool getCleanParams(TiXmlElement* element, _CleaningParams& cleaning);               ///< "cleaning"
    bool getCleaningThresholdsInfo(TiXmlElement* element, _CleaningParams& cleaning);    ///< "cleaning_thresholds"
    /// "internal_encoder". A "contactless_encoder" goes to `contactlessEncoder2` when `contactlessEncoder` is not 0.
    bool getInternalEncoderInfo(TiXmlElement* element, _InternalEncoderInfo& encoder);

    // ---- Single values ----
    // Each reads the text of the element itself. False for a null element and one without text; the value is then as it
    // was, unless stated otherwise.

    /// Reads a hardware address into 6 bytes; see KVJHelper::GetPhysicalAddress.
    bool getPhysicalAddress(TiXmlElement* element, unsigned char* address);
    /// Reads an IPv4 address as inet_addr does, in network byte order; without text, or with an empty one, it stores 0
    /// and is false. A text that is no address is 4294967295.
    bool getIP(TiXmlElement* element, unsigned long& address);
    /// Reserved: always false, and writes nothing; see KVJHelper::GetIP.
    bool getIP(TiXmlElement* element, char* name, unsigned long& address);
    bool getFeederMode(TiXmlElement* element, _eFeedMode& mode);  ///< Word as in _eFeedMode.
    bool getUSBSpeed(TiXmlElement* element, USB_Speed& speed);    ///< Word as in USB_Speed; any other leaves it alone.
    /// Word as in WirelessSecurity; any other leaves it alone and is true too, except an empty text, which is false.
    bool GetSecurity(TiXmlElement* element, WirelessSecurity& security);
    /// Word as in WirelessCrypto; any other leaves it alone and is true too, except an empty text, which is false.
    bool GetCrypto(TiXmlElement* element, WirelessCrypto& crypto);
    /// Reads a setting: its range from the attributes "min" and "max", its value from the text. A missing attribute
    /// leaves its limit as it was. Then the value is brought up to the minimum and after that down to the maximum, even
    /// when there was no text.
    bool getMinMaxVal(TiXmlElement* element, _MinMaxVal& setting);
    bool getMinMaxVal(TiXmlElement* element, _MinMaxValFloat& setting);  ///< The same; a NaN stays.

    // ---- Words to codes: exact, case counts ----

    ErrorControl stringToErrorControl(char* word);  ///< As in ErrorControl; null is 2 as well.
    _eFeedMode stringToFeederMode(char* word);      ///< As in _eFeedMode; null is the hopper as well.
};

}  // namespace Kavrin

#endif
