/// @file records.h
/// What the tests of the configuration share: the settings of each record by name, one record with a value of its own
/// in every field, and records as text, so that a byte too many shows.
#ifndef KVJXML_TESTS_CONFIGURATION_RECORDS_H
#define KVJXML_TESTS_CONFIGURATION_RECORDS_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iomanip>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "KVJConfigParser.h"
#include "support/files.h"
#include "support/xml.h"

namespace kvj::tests {

using namespace Kavrin;  // the records

// ---- Elements ----

inline std::string element(const std::string& name, const std::string& content) {
    return "<" + name + ">" + content + "</" + name + ">";
}

inline std::string setting(const std::string& name, const std::string& min, const std::string& max,
                           const std::string& content) {
    return "<" + name + " min=\"" + min + "\" max=\"" + max + "\">" + content + "</" + name + ">";
}

/// The element at a path such as "lamination/top_laminate" below this one.
inline TiXmlElement* at(TiXmlElement* element, std::string_view path) {
    while (!path.empty()) {
        const std::size_t end = std::min(path.find('/'), path.size());
        element = element->FirstChildElement(std::string(path.substr(0, end)).c_str());
        path.remove_prefix(std::min(end + 1, path.size()));
    }
    return element;
}

/// A document of this folder: expected requests, and the reply that fills the complete record.
inline std::string documentOf(const std::string& name) { return contentOf(DOCUMENTS_DIR "/" + name + ".xml"); }

inline std::string replyText() { return documentOf("reply"); }

// ---- Reading ----

template <class Record>
using ReaderOf = bool (KVJConfigParser::*)(TiXmlElement*, Record&);

/// Reads an element with this content.
template <class Record>
bool read(ReaderOf<Record> reader, const std::string& content, Record& record) {
    Xml xml(element("any", content).c_str());
    return (KVJConfigParser().*reader)(xml.root(), record);
}

// ---- Records ----

/// Every byte is 1: flags are true, and no other field has a value that any test reads.
template <class Record>
void preset(Record& record) {
    std::memset(&record, 1, sizeof record);
}

/// Every byte is 0, those between the fields too.
template <class Record>
void clear(Record& record) {
    std::memset(&record, 0, sizeof record);
}

/// The bytes of a whole configuration that belong to no field, which a compiler may fill as it likes when it copies.
inline constexpr std::pair<std::size_t, std::size_t> bytesBetweenFields[] = {
    {6, 2},    {34, 6},   {42, 6},   {73, 3},   {260, 4},  {1337, 3},
    {1461, 3}, {1554, 2}, {1782, 2}, {2169, 3}, {2181, 3}, {2188, 4}};

/// A line for each four bytes, with their offset: a difference shows as the lines of its field.
template <class Record>
std::string bytesOf(const Record& record) {
    unsigned char bytes[sizeof record];
    std::memcpy(bytes, &record, sizeof record);
    if constexpr (std::is_same_v<Record, _KVConfiguration>) {
        for (const auto& [offset, count] : bytesBetweenFields) std::memset(bytes + offset, 0, count);
    }
    std::ostringstream text;
    text << std::hex << std::setfill('0');
    for (std::size_t i = 0; i < sizeof record; ++i) {
        if (i % 4 == 0) text << '\n' << std::dec << i << ':' << std::hex;
        text << ' ' << std::setw(2) << unsigned{bytes[i]};
    }
    return text.str();
}

/// An address in network byte order.
inline unsigned long address(std::uint8_t a, std::uint8_t b, std::uint8_t c, std::uint8_t d) {
    const std::uint8_t bytes[] = {a, b, c, d};
    std::uint32_t value = 0;
    std::memcpy(&value, bytes, sizeof value);
    return value;
}

// ---- Settings ----

inline void assign(_MinMaxVal& setting, int number) { setting = {-number, 1000 + number, number}; }
inline void assign(_MinMaxValFloat& setting, int number) {
    const auto value = static_cast<float>(number);
    setting = {-value - 0.25F, 1000.5F + value, value + 0.75F};
}

/// A setting of a record and its element. One of the two members is null.
template <class Record>
struct Setting {
    constexpr Setting(const char* element, _MinMaxVal Record::*member) : name(element), whole(member) {}
    constexpr Setting(const char* element, _MinMaxValFloat Record::*member) : name(element), fraction(member) {}

    void set(Record& record, int min, int max, int value) const {
        if (whole != nullptr) record.*whole = {min, max, value};
        if (fraction != nullptr) {
            record.*fraction = {static_cast<float>(min), static_cast<float>(max), static_cast<float>(value)};
        }
    }
    void setNumber(Record& record, int number) const {
        if (whole != nullptr) assign(record.*whole, number);
        if (fraction != nullptr) assign(record.*fraction, number);
    }

    const char* name;
    _MinMaxVal Record::*whole = nullptr;
    _MinMaxValFloat Record::*fraction = nullptr;
};

/// The settings of a record, in its order, and the operation that reads them.
template <class Record>
struct Settings;
template <>
struct Settings<_USBTimeout> {
    using R = _USBTimeout;
    static constexpr const char* name = "usb_timeout";
    static constexpr ReaderOf<R> reader = &KVJConfigParser::getUSBTimeout;
    static constexpr Setting<R> list[] = {{"read", &R::read}, {"write", &R::write}};
};
template <>
struct Settings<_PowerAdjustments> {
    using R = _PowerAdjustments;
    static constexpr const char* name = "user_power_adjustments";
    static constexpr ReaderOf<R> reader = &KVJConfigParser::getPowerAdjustments;
    static constexpr Setting<R> list[] = {{"yellow", &R::yellow},
                                          {"magenta", &R::magenta},
                                          {"cyan", &R::cyan},
                                          {"k-resin_front", &R::kResinFront},
                                          {"k-resin_back", &R::kResinBack},
                                          {"k-dye", &R::kDye},
                                          {"overlay", &R::overlay},
                                          {"uv_front", &R::uvFront},
                                          {"uv_back", &R::uvBack},
                                          {"inhibit", &R::inhibit},
                                          {"helper", &R::helper},
                                          {"x-resin", &R::xResin}};
};
template <>
struct Settings<_RibbonMotorParams> {
    using R = _RibbonMotorParams;
    static constexpr const char* name = "takeup_motor";
    static constexpr ReaderOf<R> reader = &KVJConfigParser::getTakeupMotor;
    static constexpr Setting<R> list[] = {{"S0", &R::S0}, {"K0", &R::K0}, {"Kb", &R::Kb}, {"Ka", &R::Ka},
                                          {"M0", &R::M0}, {"Mb", &R::Mb}, {"Ma", &R::Ma}, {"VtoI", &R::VtoI}};
};
template <>
struct Settings<_MechanicalAdjustments> {
    using R = _MechanicalAdjustments;
    static constexpr const char* name = "mech_adjustments";
    static constexpr ReaderOf<R> reader = &KVJConfigParser::getMechAdjustments;
    static constexpr Setting<R> list[] = {{"film_print_x_offset", &R::filmPrintXOffset},
                                          {"film_print_y_offset", &R::filmPrintYOffset},
                                          {"film_transfer_start_offset", &R::filmTransferStartOffset},
                                          {"card_center_x_offset", &R::cardCenterXOffset},
                                          {"card_mag_x_offset", &R::cardMagXOffset},
                                          {"card_smart_card_x_offset", &R::cardSmartCardXOffset},
                                          {"card_smart_card_lf_x_offset", &R::cardSmartCardLfXOffset},
                                          {"card_smart_card_hf_x_offset", &R::cardSmartCardHfXOffset},
                                          {"card_smart_card_uhf_x_offset", &R::cardSmartCardUhfXOffset},
                                          {"card_center_y_offset", &R::cardCenterYOffset},
                                          {"flipper_sensor_offset", &R::flipperSensorOffset},
                                          {"card_transfer_start_y_offset", &R::cardTransferStartYOffset},
                                          {"card_transfer_end_y_offset", &R::cardTransferEndYOffset},
                                          {"card_transfer_roll_y_offset", &R::cardTransferRollYOffset},
                                          {"film_end_roll_transfer_offset", &R::filmEndRollTransferOffset},
                                          {"film_extra_transfer_takeup_move", &R::filmExtraTransferTakeupMove}};
};
template <>
struct Settings<_TransferTempInfo> {
    using R = _TransferTempInfo;
    static constexpr const char* name = "transfer_temps_of_a_card";
    static constexpr ReaderOf<R> reader = &KVJConfigParser::getTransferTemp;
    static constexpr Setting<R> list[] = {{"top_single", &R::topSingle},
                                          {"bot_single", &R::botSingle},
                                          {"top_double", &R::topDouble},
                                          {"bot_double", &R::botDouble}};
};
template <>
struct Settings<_TransferSpeedInfo> {
    using R = _TransferSpeedInfo;
    static constexpr const char* name = "transfer_speeds";
    static constexpr ReaderOf<R> reader = &KVJConfigParser::getTransferSpeed;
    static constexpr Setting<R> list[] = {{"input_single", &R::inputSingle},
                                          {"output_single", &R::outputSingle},
                                          {"input_double", &R::inputDouble},
                                          {"output_double", &R::outputDouble}};
};
template <>
struct Settings<_LaminationAdjustmentsNew> {
    using R = _LaminationAdjustmentsNew;
    static constexpr const char* name = "laminator_adjustments";
    static constexpr ReaderOf<R> reader = &KVJConfigParser::getLaminatorAdjustments;
    static constexpr Setting<R> list[] = {{"top_temp_adjust", &R::topTempAdjust},
                                          {"bot_temp_adjust", &R::botTempAdjust},
                                          {"speed_adjust", &R::speedAdjust}};
};
template <>
struct Settings<_ImageTransferTempInfo> {
    using R = _ImageTransferTempInfo;
    static constexpr const char* name = "transfer_temps";
    static constexpr ReaderOf<R> reader = &KVJConfigParser::getTransferTemp;
    static constexpr Setting<R> list[] = {{"top_single", &R::topSingle},
                                          {"bot_single", &R::botSingle},
                                          {"top_double", &R::topDouble},
                                          {"bot_double", &R::botDouble},
                                          {"top_single_offset", &R::topSingleOffset},
                                          {"bot_single_offset", &R::botSingleOffset},
                                          {"top_double_offset", &R::topDoubleOffset},
                                          {"bot_double_offset", &R::botDoubleOffset},
                                          {"top_temp_cal", &R::topTempCal},
                                          {"bot_temp_cal", &R::botTempCal},
                                          {"top_temp_tilt", &R::topTempTilt},
                                          {"bot_temp_tilt", &R::botTempTilt}};
};
template <>
struct Settings<_laminate_common> {
    using R = _laminate_common;
    static constexpr const char* name = "laminate_common";
    static constexpr ReaderOf<R> reader = &KVJConfigParser::getLaminteCommon;
    static constexpr Setting<R> list[] = {{"patch_length_adj", &R::patchLengthAdj},
                                          {"coarse_x_offset", &R::coarseXOffset},
                                          {"speed_adjust", &R::speedAdjust},
                                          {"passthru_speed_adj", &R::passthruSpeedAdj}};
};
/// Two names for each field.
template <>
struct Settings<_laminateControl> {
    using R = _laminateControl;
    static constexpr const char* name = "laminate_control";
    static constexpr ReaderOf<R> reader = &KVJConfigParser::getLaminteControlInfo;
    static constexpr Setting<R> list[] = {{"top_x_adj_fine_offset", &R::xFineAdjustment},
                                          {"bot_x_adj_fine_offset", &R::xFineAdjustment},
                                          {"top_temp_adjust", &R::temperatureAdjustment},
                                          {"bot_temp_adjust", &R::temperatureAdjustment}};
};
template <>
struct Settings<_CleaningParams> {
    using R = _CleaningParams;
    static constexpr const char* name = "cleaning_thresholds";
    static constexpr ReaderOf<R> reader = &KVJConfigParser::getCleaningThresholdsInfo;
    static constexpr Setting<R> list[] = {{"alcohol_card_cleaning", &R::alcoholCardCleaning},
                                          {"pre_warning", &R::preWarning}};
};

/// Gives the settings of a record the numbers from `first` on.
template <class Record>
void number(Record& record, int first) {
    for (const Setting<Record>& setting : Settings<Record>::list) setting.setNumber(record, first++);
}

// ---- The complete record ----

/// What a host composes from: a value of its own in every field, as reply.xml has them, and beside them those that no
/// reply fills.
inline void fill(_KVConfiguration& cfg) {
    clear(cfg);
    std::copy_n("\x00\x1A\x2B\x3C\x4D\x5E", 6, cfg.physicalAddress);

    cfg.ethernet.ipAddress = address(192, 168, 1, 50);
    cfg.ethernet.subnetMask = address(255, 255, 255, 0);
    cfg.ethernet.gateway = address(192, 168, 1, 1);
    cfg.ethernet.dhcp = true;

    cfg.wireless.snmp = true;
    cfg.wireless.ipAddress = address(10, 0, 0, 7);
    cfg.wireless.subnetMask = address(255, 255, 0, 0);
    cfg.wireless.gateway = address(10, 0, 0, 1);
    cfg.wireless.radio = true;
    cfg.wireless.security = wirelessWpa2;
    cfg.wireless.crypto = wirelessCryptoCcmp;
    std::strcpy(cfg.wireless.ssid, "card office");
    std::copy_n("\x5E\x4D\x3C\x2B\x1A\x09", 6, cfg.wireless.bssid);
    std::strcpy(cfg.wireless.key, "k3y-of-the-office");
    cfg.wireless.channel = 11;
    std::strcpy(cfg.wireless.country, "DE");

    number(cfg.usbTimeout, 1);
    cfg.ocpLanguage.type = 3;
    std::strcpy(cfg.ocpLanguage.name, "Deutsch");
    cfg.usbSpeed = usbSpeedFull;
    cfg.errorControl = errorControlMedium;
    cfg.numCardsPrinted = 1201;
    cfg.numLinesPrinted = 1202;
    cfg.standbyTimeout = 1203;

    assign(cfg.imagingParameters.printheadResistance, 3);
    number(cfg.imagingParameters.mfgPowerAdjustments, 11);
    number(cfg.imagingParameters.userPowerAdjustments, 31);
    cfg.tricolorSettings = {1301, 1302, 1303};
    number(cfg.ribbonMotorParameters, 141);
    assign(cfg.ribbonSensorOffset, 4);
    cfg.bemfPotentiometer = 1204;
    number(cfg.mechAdjustments, 51);

    cfg.ribbon.type = 1401;
    std::strcpy(cfg.ribbon.description, "RED");
    cfg.ribbon.ribbonCode = 265;
    std::strcpy(cfg.ribbon.oemCountry, "EU");
    cfg.ribbon.initialSize = 1402;
    cfg.ribbon.panelsRemaining = 1403;

    cfg.film.type = 1411;
    std::strcpy(cfg.film.description, "Clear");
    cfg.film.ribbonCode = 271;
    std::strcpy(cfg.film.oemCountry, "JP");
    cfg.film.initialSize = 1412;
    cfg.film.panelsRemaining = 1413;

    number(cfg.lamination.laminateCommon, 71);

    _Laminate& top = cfg.lamination.topLaminate;
    top.laminateInstalled.type = 1421;
    std::strcpy(top.laminateInstalled.description, "patch");
    top.laminateInstalled.thickness = 1422;
    top.laminateInstalled.width = 1;
    top.laminateInstalled.registration = 2;
    std::strcpy(top.laminateInstalled.oemCountry, "US");
    top.laminateInstalled.initialSize = 1423;
    top.laminateInstalled.panelsRemaining = 1424;
    assign(top.laminateControl.xFineAdjustment, 75);
    assign(top.laminateControl.temperatureAdjustment, 76);
    top.laminatePresent = true;

    _Laminate& bottom = cfg.lamination.bottomLaminate;
    bottom.laminateInstalled.type = 1431;
    std::strcpy(bottom.laminateInstalled.description, "overlay");
    bottom.laminateInstalled.thickness = 1432;
    bottom.laminateInstalled.width = 2;
    bottom.laminateInstalled.registration = 1;
    std::strcpy(bottom.laminateInstalled.oemCountry, "CA");
    bottom.laminateInstalled.initialSize = 1433;
    bottom.laminateInstalled.panelsRemaining = 1434;
    assign(bottom.laminateControl.xFineAdjustment, 77);
    assign(bottom.laminateControl.temperatureAdjustment, 78);
    bottom.laminatePresent = true;

    _CustomCardInfo& first = cfg.customCard1;
    first.type = 1441;
    std::strcpy(first.partNumber, "P-1441");
    std::strcpy(first.description, "Custom 1");
    first.thickness = 30.5F;
    first.coercivity = 1;
    first.magStripe = 1;
    first.nonContactEncode = 1;
    number(first.transferTemps, 81);
    number(first.transferSpeeds, 85);
    first.calTable = 1442;
    number(first.laminatorAdjustments, 89);

    _CustomCardInfo& second = cfg.customCard2;
    second.type = 1451;
    std::strcpy(second.partNumber, "P-1451");
    std::strcpy(second.description, "Staff badge");
    second.thickness = 24.25F;
    second.coercivity = 2;
    second.contactEncode = 1;
    number(second.transferTemps, 101);
    number(second.transferSpeeds, 105);
    second.calTable = 1452;
    number(second.laminatorAdjustments, 109);

    cfg.transferSettings.transferType = 2;
    number(cfg.transferSettings.transferTemps, 121);
    number(cfg.transferSettings.transferSpeeds, 133);
    assign(cfg.lcdContrast, 5);
    std::strcpy(cfg.cleaning.cleaningDeadlineIsSoft, "yes");
    number(cfg.cleaning, 6);

    cfg.internalEncoder.commsChannel = 2;
    cfg.internalEncoder.contactEncoding = true;
    cfg.internalEncoder.contactlessEncoder = 1;
    cfg.internalEncoder.contactlessEncoder2 = 3;
    cfg.internalEncoder.contactStation = true;
    cfg.feederMode = feedAuto;
}

/// What reading reply.xml gives: the complete record without what no reply fills.
inline void fillAsRead(_KVConfiguration& cfg) {
    fill(cfg);
    cfg.ribbon.ribbonCode = 0;
    cfg.film.ribbonCode = 0;
    cfg.lamination.topLaminate.laminatePresent = false;
    cfg.lamination.bottomLaminate.laminatePresent = false;
    cfg.internalEncoder.contactStation = false;
}

}  // namespace kvj::tests

#endif
