#include "KVJConfigParser.h"

#include <cstring>

#include "KVJHelper.h"
#include "configuration/document.h"
#include "foundation/reply.h"

namespace Kavrin {

using kvj::anyCodeOf;
using kvj::walk;
namespace tables = kvj::configuration;

char szRibbonName[32];

namespace {

bool readConfiguration(kvj::Element root, _KVConfiguration& out) {
    if (!root) return false;
    std::memset(&out, 0, sizeof out);
    walk(root, out, tables::document);
    return kvj::countChildren(root) != 0;
}

}  // namespace

bool KVJConfigParser::GetConfiguration(const char* text, int /*length*/, _KVConfiguration& out) {
    Clear();
    const kvj::Reply reply(text);
    kvj::tellFault(reply, *this);
    readConfiguration(reply.root("configuration", "set_configuration"), out);
    return false;  // Whatever was read: hosts look at the record.
}

bool KVJConfigParser::parseConfiguration(TiXmlElement* root, _KVConfiguration& out) {
    return readConfiguration(root, out);
}

// ---- General settings ----

bool KVJConfigParser::getNetworkParams(TiXmlElement* element, _NetworkParams& network) {
    return walk(element, network, tables::network);
}

bool KVJConfigParser::getWirelessParams(TiXmlElement* element, _WirelessParams& network) {
    return walk(element, network, tables::wireless);
}

bool KVJConfigParser::getUSBTimeout(TiXmlElement* element, _USBTimeout& timeout) {
    return walk(element, timeout, tables::usbTimeout);
}

bool KVJConfigParser::getOCPValues(TiXmlElement* element, _OCPLanguageCaps& language) {
    return walk(element, language, kvj::panelLanguage);
}

bool KVJConfigParser::getUsageCounters(TiXmlElement* element, _KVConfiguration& out) {
    return walk(element, out, tables::usageCounters);
}

bool KVJConfigParser::getInternalEncoderInfo(TiXmlElement* element, _InternalEncoderInfo& encoder) {
    return walk(element, encoder, tables::encoder);
}

// ---- Calibration ----

bool KVJConfigParser::getImagingParameters(TiXmlElement* element, _ImagingParams& imaging) {
    return walk(element, imaging, tables::imaging);
}

bool KVJConfigParser::getPowerAdjustments(TiXmlElement* element, _PowerAdjustments& power) {
    return walk(element, power, tables::power);
}

bool KVJConfigParser::getTricolorSettings(TiXmlElement* element, _RGBINT& colors) {
    return walk(element, colors, tables::tricolor);
}

bool KVJConfigParser::getRibbonMotorParams(TiXmlElement* element, _KVConfiguration& out) {
    return walk(element, out, tables::ribbonMotor);
}

bool KVJConfigParser::getTakeupMotor(TiXmlElement* element, _RibbonMotorParams& motor) {
    return walk(element, motor, tables::takeupMotor);
}

bool KVJConfigParser::getMechAdjustments(TiXmlElement* element, _MechanicalAdjustments& positions) {
    return walk(element, positions, tables::mechanics);
}

// ---- Media ----

bool KVJConfigParser::getMediaInfo(TiXmlElement* element, _KVConfiguration& out) {
    return walk(element, out, tables::mediaInfo);
}

bool KVJConfigParser::getRibbonInfo(TiXmlElement* element, _RibbonInfo& ribbon) {
    return walk(element, ribbon, tables::ribbon);
}

bool KVJConfigParser::getCardsInfo(TiXmlElement* element, _KVConfiguration& out) {
    return walk(element, out, tables::cards);
}

bool KVJConfigParser::getCardInfo(TiXmlElement* element, _CustomCardInfo& card) {
    return walk(element, card, tables::card);
}

bool KVJConfigParser::getCardInformation(TiXmlElement* element, _CustomCardInfo& card) {
    return walk(element, card, kvj::cardInformation<_CustomCardInfo>);
}

bool KVJConfigParser::getTransferTemp(TiXmlElement* element, _TransferTempInfo& temperatures) {
    return walk(element, temperatures, kvj::transferTemps);
}

bool KVJConfigParser::getTransferSpeed(TiXmlElement* element, _TransferSpeedInfo& speeds) {
    return walk(element, speeds, kvj::transferSpeeds);
}

bool KVJConfigParser::getLaminatorAdjustments(TiXmlElement* element, _LaminationAdjustmentsNew& adjustments) {
    return walk(element, adjustments, kvj::laminatorAdjustments);
}

bool KVJConfigParser::getTransferSettings(TiXmlElement* element, _ImageTransferInfo& transfer) {
    return walk(element, transfer, tables::transferSettings);
}

bool KVJConfigParser::getTransferTemp(TiXmlElement* element, _ImageTransferTempInfo& temperatures) {
    return walk(element, temperatures, tables::imageTransferTemps);
}

bool KVJConfigParser::getLaminationInfo(TiXmlElement* element, _LaminationIfo& lamination) {
    return walk(element, lamination, tables::lamination);
}

bool KVJConfigParser::getLaminteCommon(TiXmlElement* element, _laminate_common& common) {
    return walk(element, common, tables::laminateCommon);
}

bool KVJConfigParser::getLaminteInfo(TiXmlElement* element, _Laminate& laminate) {
    return walk(element, laminate, tables::laminate);
}

bool KVJConfigParser::getLaminteInstalledInfo(TiXmlElement* element, _LaminateInstalled& installed) {
    return walk(element, installed, tables::laminateInstalled);
}

bool KVJConfigParser::getLaminteControlInfo(TiXmlElement* element, _laminateControl& control) {
    return walk(element, control, tables::laminateControl);
}

bool KVJConfigParser::getCleanParams(TiXmlElement* element, _CleaningParams& cleaning) {
    return walk(element, cleaning, tables::cleaning);
}

bool KVJConfigParser::getCleaningThresholdsInfo(TiXmlElement* element, _CleaningParams& cleaning) {
    return walk(element, cleaning, tables::cleaningThresholds);
}

// ---- Single values ----

bool KVJConfigParser::getPhysicalAddress(TiXmlElement* element, unsigned char* address) {
    return KVJHelper::GetPhysicalAddress(element, address);
}

bool KVJConfigParser::getIP(TiXmlElement* element, unsigned long& address) {
    return tables::readIpAddress(element, address);
}

bool KVJConfigParser::getIP(TiXmlElement* element, char* name, unsigned long& address) {
    return KVJHelper::GetIP(element, name, address);
}

bool KVJConfigParser::getFeederMode(TiXmlElement* element, _eFeedMode& mode) {
    return kvj::readWord(element, mode, kvj::feederModes);
}

bool KVJConfigParser::getUSBSpeed(TiXmlElement* element, USB_Speed& speed) {
    return kvj::readWord(element, speed, tables::usbSpeeds);
}

bool KVJConfigParser::GetSecurity(TiXmlElement* element, WirelessSecurity& security) {
    return tables::readWirelessWord(element, security, tables::securityWords);
}

bool KVJConfigParser::GetCrypto(TiXmlElement* element, WirelessCrypto& crypto) {
    return tables::readWirelessWord(element, crypto, tables::cryptoWords);
}

bool KVJConfigParser::getMinMaxVal(TiXmlElement* element, _MinMaxVal& setting) {
    return kvj::readSetting(element, setting);
}

bool KVJConfigParser::getMinMaxVal(TiXmlElement* element, _MinMaxValFloat& setting) {
    return kvj::readSetting(element, setting);
}

// ---- Words ----

ErrorControl KVJConfigParser::stringToErrorControl(char* word) {
    return static_cast<ErrorControl>(anyCodeOf(tables::errorControls, word));
}

_eFeedMode KVJConfigParser::stringToFeederMode(char* word) {
    return static_cast<_eFeedMode>(anyCodeOf(kvj::feederModes, word));
}

}  // namespace Kavrin
