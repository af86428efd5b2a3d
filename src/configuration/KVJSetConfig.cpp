#include "KVJSetConfig.h"

#include "configuration/document.h"
#include "foundation/diagnostic_copy.h"
#include "foundation/request.h"

namespace Kavrin {

using kvj::addGroup;
using kvj::addTag;
using kvj::compose;
using kvj::wordOf;
using kvj::writeWord;
namespace tables = kvj::configuration;

bool KVJSetConfig::SetConfiguration(const _KVConfiguration& cfg, wchar_t* out, int outLen, long mask, int cardSelect,
                                    bool skipTransfer) {
    skipTransfer_ = skipTransfer;
    root_ = kvj::beginRequest(*this, "configuration");
    return addConfiguration(root_, cfg, mask, cardSelect) && saveJob(out, outLen);
}

bool KVJSetConfig::addConfiguration(TiXmlElement* root, const _KVConfiguration& cfg, long mask, int cardSelect) {
    withoutAddresses_ = false;
    return compose(
        root, cfg, tables::documentSections,
        {.directToCard = skipTransfer_, .withoutAddresses = withoutAddresses_, .sections = mask, .card = cardSelect});
}

// ---- General settings ----

bool KVJSetConfig::addNetworkParams(TiXmlElement* under, const _KVConfiguration& cfg) {
    return addNetworkParams(addTag(under, "ethernet").element(), cfg.ethernet);
}

bool KVJSetConfig::addNetworkParams(TiXmlElement* element, const _NetworkParams& network) {
    return compose(element, network, tables::networkTags, {.withoutAddresses = withoutAddresses_});
}

bool KVJSetConfig::addWirelessParams(TiXmlElement* under, const _KVConfiguration& cfg) {
    return addWirelessParams(addTag(under, "ethernet").element(), cfg.wireless);
}

bool KVJSetConfig::addWirelessParams(TiXmlElement* element, const _WirelessParams& network) {
    return compose(element, network, tables::wirelessTags);
}

bool KVJSetConfig::addOCPLanguage(TiXmlElement* under, const _OCPLanguageCaps& language) {
    return addGroup(under, "ocp_language", language, kvj::panelLanguage);
}

bool KVJSetConfig::addErrorControl(TiXmlElement* under, ErrorControl errorControl) {
    return addTag(under, "error_control", wordOf(tables::errorControlsWritten, errorControl, "med"));
}

bool KVJSetConfig::addUSBSpeed(TiXmlElement* under, USB_Speed speed) {
    return addTag(under, "usb_speed", wordOf(tables::usbSpeeds, speed, "high"));
}

bool KVJSetConfig::addUsageCounters(TiXmlElement* under, const _KVConfiguration& cfg) {
    return addGroup(under, "usage_counters", cfg, tables::usageCounters);
}

bool KVJSetConfig::addUSBTimeout(TiXmlElement* under, const _KVConfiguration& cfg) {
    return addGroup(under, "usb_timeout", cfg.usbTimeout, tables::usbTimeout);
}

bool KVJSetConfig::addFeederParams(TiXmlElement* under, const _eFeedMode& mode) {
    return addTag(under, "feeder_mode", FeederModeToString(mode));
}

bool KVJSetConfig::addInternalEncoder(TiXmlElement* under, const _InternalEncoderInfo& encoder) {
    return addGroup(under, "internal_encoder", encoder, tables::encoderTags);
}

// ---- Calibration ----

bool KVJSetConfig::addImagingParameters(TiXmlElement* under, const _ImagingParams& imaging) {
    return addGroup(under, "imaging_parameters", imaging, tables::imagingTags, {.directToCard = skipTransfer_});
}

bool KVJSetConfig::addPowerAdjustments(TiXmlElement* element, const _PowerAdjustments& power) {
    return compose(element, power, tables::powerTags, {.directToCard = skipTransfer_});
}

bool KVJSetConfig::addTricolorSettings(TiXmlElement* under, const _RGBINT& colors) {
    return addGroup(under, "tricolor_settings", colors, tables::tricolor);
}

bool KVJSetConfig::addRibbonMotorParams(TiXmlElement* under, const _RibbonMotorParams& motor) {
    return addGroup(under, "ribbon_motor_parameters", motor, tables::ribbonMotorTags);
}

bool KVJSetConfig::addMechAdjustments(TiXmlElement* under, const _MechanicalAdjustments& positions) {
    return addGroup(under, "mech_adjustments", positions, tables::mechanicsTags, {.directToCard = skipTransfer_});
}

// ---- Media ----

bool KVJSetConfig::addMediaInfo(TiXmlElement* under, const _KVConfiguration& cfg) {
    return addGroup(under, "media_info", cfg, tables::mediaInfoTags, {.directToCard = skipTransfer_});
}

bool KVJSetConfig::addRibbonInfo(TiXmlElement* element, const _RibbonInfo& ribbon) {
    return compose(element, ribbon, tables::ribbonTags);
}

bool KVJSetConfig::addCardInfo(TiXmlElement* under, const _CustomCardInfo& card) {
    return addGroup(under, "card", card, tables::cardTags, {.directToCard = skipTransfer_});
}

bool KVJSetConfig::addCardInformation(TiXmlElement* under, const _CustomCardInfo& card) {
    return addGroup(under, "information", card, kvj::cardInformationTags<_CustomCardInfo>);
}

bool KVJSetConfig::addTransferTemps(TiXmlElement* under, const _TransferTempInfo& temperatures) {
    return addGroup(under, "transfer_temps", temperatures, kvj::transferTemps);
}

bool KVJSetConfig::addTransferSpeeds(TiXmlElement* under, const _TransferSpeedInfo& speeds) {
    return addGroup(under, "transfer_speeds", speeds, kvj::transferSpeeds);
}

bool KVJSetConfig::addLamAdjustments(TiXmlElement* under, const _LaminationAdjustmentsNew& adjustments) {
    return addGroup(under, "laminator_adjustments", adjustments, kvj::laminatorAdjustments);
}

bool KVJSetConfig::addTransferSettings(TiXmlElement* under, const _ImageTransferInfo& transfer) {
    return addGroup(under, "transfer_settings", transfer, tables::transferSettings);
}

bool KVJSetConfig::addTransferTemps(TiXmlElement* under, const _ImageTransferTempInfo& temperatures) {
    return addGroup(under, "transfer_temps", temperatures, tables::imageTransferTemps);
}

bool KVJSetConfig::addLaminationInfo(TiXmlElement* under, _LaminationIfo& lamination) {
    return addGroup(under, "lamination", lamination, tables::laminationTags);
}

bool KVJSetConfig::addLaminateInfo(TiXmlElement* element, _Laminate& laminate, bool top) {
    return top ? compose(element, laminate, tables::laminateTags<tables::topControlTags>)
               : compose(element, laminate, tables::laminateTags<tables::bottomControlTags>);
}

bool KVJSetConfig::addCleanParams(TiXmlElement* under, const _CleaningParams& cleaning) {
    return compose(under, cleaning, tables::cleaningSections);
}

// ---- Codes to words ----

const char* KVJSetConfig::GetSecurity(WirelessSecurity security) { return wordOf(tables::securityWords, security, ""); }
const char* KVJSetConfig::GetCrypto(WirelessCrypto crypto) { return wordOf(tables::cryptoWords, crypto, ""); }
const char* KVJSetConfig::FeederModeToString(_eFeedMode mode) { return wordOf(kvj::feederModes, mode, "hopper"); }

bool KVJSetConfig::RibbonNameToString(char* buf, int code) { return writeWord(buf, kvj::ribbonNames, code); }
bool KVJSetConfig::ribbonTypeToString(char* buf, int code) { return writeWord(buf, kvj::ribbonTypesWritten, code); }
bool KVJSetConfig::feederTypeToString(char* buf, int code) { return writeWord(buf, kvj::cardMaterials, code); }
bool KVJSetConfig::feederSmartToString(char* buf, int code) { return writeWord(buf, kvj::smartEncoders, code); }

bool KVJSetConfig::CommsChannelFromInt(int code, char* buf, int /*ignored*/) {
    writeWord(buf, kvj::commsChannels, code);
    return buf != nullptr;
}

bool KVJSetConfig::ContactlessEncFromInt(int code, char* buf, int /*ignored*/) {
    writeWord(buf, kvj::contactlessEncodersWritten, code);
    return buf != nullptr;
}

bool KVJSetConfig::saveJob(wchar_t* out, int outLen) {
    kvj::keepDiagnosticCopy(*this, "/tmp/firmwaresettings");
    return kvj::print(*this, out, outLen);
}

bool KVJSetConfig::saveJob(char* path) { return kvj::save(*this, path); }

}  // namespace Kavrin
