/// @file ConfigurationRecords.h
/// How a printer is set up: the record that KVJConfigParser fills and that KVJSetConfig composes a request from, and
/// the records of its sections, of which the media catalogue shares some.
///
/// Records are plain structures that the host owns. Every setting is a _MinMaxVal or _MinMaxValFloat: its range from
/// the attributes "min" and "max", its value from the element's text, which is brought into the range when it is read:
/// up to the minimum, then down to the maximum. Units are the printer's own. Texts are terminated; a longer one is cut
/// to its field and that read reports false.
#ifndef KVJXML_CONFIGURATION_RECORDS_H
#define KVJXML_CONFIGURATION_RECORDS_H

#include "CapabilitiesRecords.h"
#include "FoundationRecords.h"

namespace Kavrin {

/// "usb_speed": "high" 0, "full" 1. Written as "full" for 1, as "high" for any other code.
enum USB_Speed : int { usbSpeedHigh = 0, usbSpeedFull = 1 };

/// "error_control": "none" 0, "med" 1; "high" and any other text 2. Written as "none" 0, "high" 2; any other code
/// "med".
enum ErrorControl : int { errorControlNone = 0, errorControlMedium = 1, errorControlHigh = 2 };

/// "security" of the wireless network: "none" and "open" 0, "wep40" and "WEP40" 1, "wep104" and "WEP104" 2, "wpa" and
/// "WPA" 3, "wpa2" and "WPA2" 4, "wpa_wpa2", "wpa2_wpa", "WPA_WPA2" and "WPA2_WPA" 5. The first of them is written.
enum WirelessSecurity : int {
    wirelessOpen = 0,
    wirelessWep40 = 1,
    wirelessWep104 = 2,
    wirelessWpa = 3,
    wirelessWpa2 = 4,
    wirelessWpaWpa2 = 5
};

/// "crypto" of the wireless network: "none" 0, "RC4" and "rc4" 1, "TKIP" and "tkip" 2, "CCMP", "ccmp", "CCMP_TKIP",
/// "TKIP_CCMP", "ccmp_tkip" and "tkip_ccmp" 3. The first of them is written.
enum WirelessCrypto : int {
    wirelessCryptoNone = 0,
    wirelessCryptoRc4 = 1,
    wirelessCryptoTkip = 2,
    wirelessCryptoCcmp = 3
};

// Host applications know these records by names with leading underscores.
// NOLINTBEGIN(bugprone-reserved-identifier)

/// "feeder_mode": "manual" 0, "hopper" 1, "alreadyinprinter" 2, "auto" 3. Any other word reads, and any other code is
/// written, as the hopper.
enum _eFeedMode : int { feedManual = 0, feedHopper = 1, feedAlreadyInPrinter = 2, feedAuto = 3 };

/// The wired network. Addresses are IPv4 in network byte order, as inet_addr returns them, in the low 32 bits; 0 for an
/// element without text.
struct _NetworkParams {
    unsigned long ipAddress;   ///< "ip_address"
    unsigned long subnetMask;  ///< "subnet_mask"
    unsigned long gateway;     ///< "gateway"
    bool dhcp;                 ///< "dhcp": true for "enabled" and "yes".
    bool snmp;                 ///< "snmp": true for "enabled" and "yes".
};

/// The wireless network. Addresses as in _NetworkParams.
struct _WirelessParams {
    bool snmp;                  ///< "snmp": true for "enabled" and "yes".
    bool dhcp;                  ///< "dhcp": true for "enabled" and "yes".
    unsigned long ipAddress;    ///< "ip_address"
    unsigned long subnetMask;   ///< "subnet_mask"
    unsigned long gateway;      ///< "gateway"
    bool radio;                 ///< "radio": true for "enabled" and "yes".
    WirelessSecurity security;  ///< "security": code of the word; any other word leaves it alone.
    WirelessCrypto crypto;      ///< "crypto": code of the word; any other word leaves it alone.
    char ssid[34];              ///< "ssid"
    unsigned char bssid[6];     ///< "bssid": hardware address, "00:1a:2b:3c:4d:5e".
    char key[128];              ///< "key": the network key. A secret; it is written into requests and their copies.
    int channel;                ///< "channel"
    char country[4];            ///< "country". Never written.
};

/// "usb_timeout", in milliseconds.
struct _USBTimeout {
    _MinMaxVal read;   ///< "read"
    _MinMaxVal write;  ///< "write"
};

/// Power of the print head by panel.
struct _PowerAdjustments {
    _MinMaxVal yellow;       ///< "yellow"
    _MinMaxVal magenta;      ///< "magenta"
    _MinMaxVal cyan;         ///< "cyan"
    _MinMaxVal kResinFront;  ///< "k-resin_front"
    _MinMaxVal kResinBack;   ///< "k-resin_back"
    _MinMaxVal kDye;         ///< "k-dye"
    _MinMaxVal overlay;      ///< "overlay"
    _MinMaxVal uvFront;      ///< "uv_front"
    _MinMaxVal uvBack;       ///< "uv_back"
    _MinMaxVal inhibit;      ///< "inhibit". Not written when printing is direct to card.
    _MinMaxVal helper;       ///< "helper"
    _MinMaxVal xResin;       ///< "x-resin"
};

/// "imaging_parameters"
struct _ImagingParams {
    _MinMaxVal printheadResistance;          ///< "printhead_resistance"
    _PowerAdjustments mfgPowerAdjustments;   ///< "mfg_power_adjustments": the maker's. Never written.
    _PowerAdjustments userPowerAdjustments;  ///< "user_power_adjustments"
};

/// "tricolor_settings". Never written by SetConfiguration.
struct _RGBINT {
    int red;    ///< "red"
    int green;  ///< "green"
    int blue;   ///< "blue"
};

/// "takeup_motor" in "ribbon_motor_parameters": coefficients of the ribbon's take-up motor.
struct _RibbonMotorParams {
    _MinMaxValFloat S0;    ///< "S0"
    _MinMaxValFloat K0;    ///< "K0"
    _MinMaxValFloat Kb;    ///< "Kb"
    _MinMaxValFloat Ka;    ///< "Ka"
    _MinMaxValFloat M0;    ///< "M0"
    _MinMaxValFloat Mb;    ///< "Mb"
    _MinMaxValFloat Ma;    ///< "Ma"
    _MinMaxValFloat VtoI;  ///< "VtoI". Never written.
};

/// "mech_adjustments": positions of film and card. Which of them are written depends on whether printing is direct to
/// card: then those of the card and the flipper, otherwise those of film, card and transfer.
struct _MechanicalAdjustments {
    _MinMaxVal filmPrintXOffset;             ///< "film_print_x_offset"
    _MinMaxVal filmPrintYOffset;             ///< "film_print_y_offset"
    _MinMaxVal filmTransferStartOffset;      ///< "film_transfer_start_offset"
    _MinMaxVal cardCenterXOffset;            ///< "card_center_x_offset"
    _MinMaxVal cardMagXOffset;               ///< "card_mag_x_offset"
    _MinMaxVal cardSmartCardXOffset;         ///< "card_smart_card_x_offset"
    _MinMaxVal cardSmartCardLfXOffset;       ///< "card_smart_card_lf_x_offset"
    _MinMaxVal cardSmartCardHfXOffset;       ///< "card_smart_card_hf_x_offset"
    _MinMaxVal cardSmartCardUhfXOffset;      ///< "card_smart_card_uhf_x_offset"
    _MinMaxVal cardCenterYOffset;            ///< "card_center_y_offset"
    _MinMaxVal flipperSensorOffset;          ///< "flipper_sensor_offset"
    _MinMaxVal cardTransferStartYOffset;     ///< "card_transfer_start_y_offset"
    _MinMaxVal cardTransferEndYOffset;       ///< "card_transfer_end_y_offset"
    _MinMaxVal cardTransferRollYOffset;      ///< "card_transfer_roll_y_offset"
    _MinMaxVal filmEndRollTransferOffset;    ///< "film_end_roll_transfer_offset"
    _MinMaxVal filmExtraTransferTakeupMove;  ///< "film_extra_transfer_takeup_move"
};

/// "ribbon" and "film" in "media_info".
struct _RibbonInfo {
    int type;  ///< "type": the printer's number for the medium.
    /// "description": text of at most 31 bytes; one that has "MONO" in it loses its first five characters, so that
    /// "MONO RED" is the ribbon "RED". Not written.
    char description[64];
    /// Ribbon code, written as "description", see KVJSetConfig::RibbonNameToString. Never read.
    int ribbonCode;
    char oemCountry[8];   ///< "oem_country"
    int initialSize;      ///< "initial_size": panels when new.
    int panelsRemaining;  ///< "panels_remaining": panels left.
};

/// "transfer_temps" of a card: temperatures of the transfer.
struct _TransferTempInfo {
    _MinMaxVal topSingle;  ///< "top_single"
    _MinMaxVal botSingle;  ///< "bot_single"
    _MinMaxVal topDouble;  ///< "top_double"
    _MinMaxVal botDouble;  ///< "bot_double"
};

/// "transfer_speeds": speeds of the transfer.
struct _TransferSpeedInfo {
    _MinMaxValFloat inputSingle;   ///< "input_single"
    _MinMaxValFloat outputSingle;  ///< "output_single"
    _MinMaxValFloat inputDouble;   ///< "input_double"
    _MinMaxValFloat outputDouble;  ///< "output_double"
};

/// "laminator_adjustments" of a card.
struct _LaminationAdjustmentsNew {
    _MinMaxVal topTempAdjust;     ///< "top_temp_adjust"
    _MinMaxVal botTempAdjust;     ///< "bot_temp_adjust"
    _MinMaxValFloat speedAdjust;  ///< "speed_adjust"
};

/// "card" in "cards": a card type that the user defined. The first seven elements stand in its "information".
struct _CustomCardInfo {
    int type;                  ///< "type"
    char partNumber[16];       ///< "vessa_part_number"
    char description[64];      ///< "description": exactly "Custom 1" for the first custom card.
    float thickness;           ///< "thickness"
    unsigned char coercivity;  ///< "coercivity": code of the word, see COERCIVITYTYPES; other codes are written empty.
    unsigned char magStripe : 1;         ///< "mag_stripe": 1 for "yes" and "enabled".
    unsigned char contactEncode : 1;     ///< "contact_encode": likewise.
    unsigned char nonContactEncode : 1;  ///< "non_contact_encode": likewise.
    _TransferTempInfo transferTemps;     ///< "transfer_temps". Not written when printing is direct to card.
    _TransferSpeedInfo transferSpeeds;   ///< "transfer_speeds". Not written when printing is direct to card.
    int calTable;                        ///< "cal_table": number of the calibration table.
    _LaminationAdjustmentsNew laminatorAdjustments;  ///< "laminator_adjustments"
};

/// "transfer_temps" in "transfer_settings".
struct _ImageTransferTempInfo {
    _MinMaxVal topSingle;        ///< "top_single"
    _MinMaxVal botSingle;        ///< "bot_single"
    _MinMaxVal topDouble;        ///< "top_double"
    _MinMaxVal botDouble;        ///< "bot_double"
    _MinMaxVal topSingleOffset;  ///< "top_single_offset"
    _MinMaxVal botSingleOffset;  ///< "bot_single_offset"
    _MinMaxVal topDoubleOffset;  ///< "top_double_offset"
    _MinMaxVal botDoubleOffset;  ///< "bot_double_offset"
    _MinMaxVal topTempCal;       ///< "top_temp_cal"
    _MinMaxVal botTempCal;       ///< "bot_temp_cal"
    _MinMaxVal topTempTilt;      ///< "top_temp_tilt"
    _MinMaxVal botTempTilt;      ///< "bot_temp_tilt"
};

/// "transfer_settings": the image transfer of a retransfer printer.
struct _ImageTransferInfo {
    int transferType;  ///< "transfer_type": "single" 1, "dual" 2; any other word 0, which is written empty.
    _ImageTransferTempInfo transferTemps;  ///< "transfer_temps"
    _TransferSpeedInfo transferSpeeds;     ///< "transfer_speeds"
};

/// "laminate_common" in "lamination".
struct _laminate_common {
    _MinMaxVal patchLengthAdj;    ///< "patch_length_adj"
    _MinMaxVal coarseXOffset;     ///< "coarse_x_offset"
    _MinMaxVal speedAdjust;       ///< "speed_adjust"
    _MinMaxVal passthruSpeedAdj;  ///< "passthru_speed_adj"
};

/// "laminate_installed"
struct _LaminateInstalled {
    int type;              ///< "type"
    char description[64];  ///< "description"
    int thickness;         ///< "thickness"
    /// "width": "full" 0, "mag" 1, "signature" 2; any other word leaves it alone. Written as a **number**, which does
    /// not read back.
    int width;
    /// "registration": "none" 0, "hologram" 1, "contact" 2; any other word leaves it alone. Written as a **number**.
    int registration;
    char oemCountry[8];   ///< "oem_country"
    int initialSize;      ///< "initial_size"
    int panelsRemaining;  ///< "panels_remaining"
};

/// "laminate_control". Only its place shows which laminate it belongs to: both names of each element are read.
struct _laminateControl {
    _MinMaxVal xFineAdjustment;        ///< "top_x_adj_fine_offset" and "bot_x_adj_fine_offset"
    _MinMaxVal temperatureAdjustment;  ///< "top_temp_adjust" and "bot_temp_adjust"
};

/// "top_laminate" and "bottom_laminate".
struct _Laminate {
    _LaminateInstalled laminateInstalled;  ///< "laminate_installed"
    _laminateControl laminateControl;      ///< "laminate_control"
    /// Never read: the host sets it before composing. "lamination" is written when either laminate has it, both
    /// laminates in it when the **top** one has.
    bool laminatePresent;
};

/// "lamination"
struct _LaminationIfo {
    _laminate_common laminateCommon;  ///< "laminate_common"
    _Laminate topLaminate;            ///< "top_laminate"
    _Laminate bottomLaminate;         ///< "bottom_laminate"
};

/// "cleaning" and "cleaning_thresholds".
struct _CleaningParams {
    char cleaningDeadlineIsSoft[12];  ///< "cleaning" / "cleaning_deadline_is_soft": the printer's word.
    _MinMaxVal alcoholCardCleaning;   ///< "cleaning_thresholds" / "alcohol_card_cleaning": cards.
    _MinMaxVal preWarning;            ///< "cleaning_thresholds" / "pre_warning": cards.
};

/// The reply "configuration", read by KVJConfigParser::GetConfiguration, which sets the whole record to zero first, and
/// written section by section by KVJSetConfig::SetConfiguration, which lists the bits of the sections.
struct _KVConfiguration {
    unsigned char physicalAddress[6];          ///< "physical_address": hardware address, "00:1a:2b:3c:4d:5e".
    _NetworkParams ethernet;                   ///< "ethernet"
    _WirelessParams wireless;                  ///< "wireless"; written as a second **"ethernet"**.
    _USBTimeout usbTimeout;                    ///< "usb_timeout"
    _OCPLanguageCaps ocpLanguage;              ///< "ocp_language"
    USB_Speed usbSpeed;                        ///< "usb_speed": any other word leaves it 0.
    ErrorControl errorControl;                 ///< "error_control"
    int numCardsPrinted;                       ///< "usage_counters" / "num_cards_printed"
    int numLinesPrinted;                       ///< "usage_counters" / "num_lines_printed"
    int standbyTimeout;                        ///< "standby_timeout"
    _ImagingParams imagingParameters;          ///< "imaging_parameters"
    _RGBINT tricolorSettings;                  ///< "tricolor_settings". Never written.
    _RibbonMotorParams ribbonMotorParameters;  ///< "ribbon_motor_parameters" / "takeup_motor"
    _MinMaxVal ribbonSensorOffset;             ///< "ribbon_sensor_offset"
    int bemfPotentiometer;                     ///< "bemf_potentiometer": back-EMF potentiometer. Never written.
    _MechanicalAdjustments mechAdjustments;    ///< "mech_adjustments"
    _RibbonInfo ribbon;                        ///< "media_info" / "ribbon"
    _RibbonInfo film;                          ///< "media_info" / "film"
    _LaminationIfo lamination;                 ///< "lamination"
    _CustomCardInfo customCard1;               ///< "cards" / the last "card" described "Custom 1"
    _CustomCardInfo customCard2;               ///< "cards" / the last "card" described otherwise
    _ImageTransferInfo transferSettings;       ///< "transfer_settings"
    _MinMaxVal lcdContrast;                    ///< "lcd_contrast"
    _CleaningParams cleaning;                  ///< "cleaning" and "cleaning_thresholds"
    _InternalEncoderInfo internalEncoder;      ///< "internal_encoder"
    _eFeedMode feederMode;                     ///< "feeder_mode"
};

// NOLINTEND(bugprone-reserved-identifier)

}  // namespace Kavrin

#endif
