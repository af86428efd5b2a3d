/// @file fields/configuration.h
/// The fields of the records of configuration.
#ifndef KVJXML_FIELDS_CONFIGURATION_H
#define KVJXML_FIELDS_CONFIGURATION_H

#include <ConfigurationRecords.h>

#include "fields/capabilities.h"
#include "fields/foundation.h"
#include "fields/list.h"
#include "shared/card.h"

namespace kvj {

// clang-format off

template <>
inline constexpr FieldList<
    address<&Kavrin::_NetworkParams::ipAddress>,
    address<&Kavrin::_NetworkParams::subnetMask>,
    address<&Kavrin::_NetworkParams::gateway>,
    &Kavrin::_NetworkParams::dhcp,
    &Kavrin::_NetworkParams::snmp>
    fields<Kavrin::_NetworkParams>{};

template <>
inline constexpr FieldList<
    &Kavrin::_WirelessParams::snmp,
    &Kavrin::_WirelessParams::dhcp,
    address<&Kavrin::_WirelessParams::ipAddress>,
    address<&Kavrin::_WirelessParams::subnetMask>,
    address<&Kavrin::_WirelessParams::gateway>,
    &Kavrin::_WirelessParams::radio,
    &Kavrin::_WirelessParams::security,
    &Kavrin::_WirelessParams::crypto,
    &Kavrin::_WirelessParams::ssid,
    &Kavrin::_WirelessParams::bssid,
    &Kavrin::_WirelessParams::key,
    &Kavrin::_WirelessParams::channel,
    &Kavrin::_WirelessParams::country>
    fields<Kavrin::_WirelessParams>{};

template <>
inline constexpr FieldList<
    &Kavrin::_USBTimeout::read,
    &Kavrin::_USBTimeout::write>
    fields<Kavrin::_USBTimeout>{};

template <>
inline constexpr FieldList<
    &Kavrin::_PowerAdjustments::yellow,
    &Kavrin::_PowerAdjustments::magenta,
    &Kavrin::_PowerAdjustments::cyan,
    &Kavrin::_PowerAdjustments::kResinFront,
    &Kavrin::_PowerAdjustments::kResinBack,
    &Kavrin::_PowerAdjustments::kDye,
    &Kavrin::_PowerAdjustments::overlay,
    &Kavrin::_PowerAdjustments::uvFront,
    &Kavrin::_PowerAdjustments::uvBack,
    &Kavrin::_PowerAdjustments::inhibit,
    &Kavrin::_PowerAdjustments::helper,
    &Kavrin::_PowerAdjustments::xResin>
    fields<Kavrin::_PowerAdjustments>{};

template <>
inline constexpr FieldList<
    &Kavrin::_ImagingParams::printheadResistance,
    &Kavrin::_ImagingParams::mfgPowerAdjustments,
    &Kavrin::_ImagingParams::userPowerAdjustments>
    fields<Kavrin::_ImagingParams>{};

template <>
inline constexpr FieldList<
    &Kavrin::_RGBINT::red,
    &Kavrin::_RGBINT::green,
    &Kavrin::_RGBINT::blue>
    fields<Kavrin::_RGBINT>{};

template <>
inline constexpr FieldList<
    &Kavrin::_RibbonMotorParams::S0,
    &Kavrin::_RibbonMotorParams::K0,
    &Kavrin::_RibbonMotorParams::Kb,
    &Kavrin::_RibbonMotorParams::Ka,
    &Kavrin::_RibbonMotorParams::M0,
    &Kavrin::_RibbonMotorParams::Mb,
    &Kavrin::_RibbonMotorParams::Ma,
    &Kavrin::_RibbonMotorParams::VtoI>
    fields<Kavrin::_RibbonMotorParams>{};

template <>
inline constexpr FieldList<
    &Kavrin::_MechanicalAdjustments::filmPrintXOffset,
    &Kavrin::_MechanicalAdjustments::filmPrintYOffset,
    &Kavrin::_MechanicalAdjustments::filmTransferStartOffset,
    &Kavrin::_MechanicalAdjustments::cardCenterXOffset,
    &Kavrin::_MechanicalAdjustments::cardMagXOffset,
    &Kavrin::_MechanicalAdjustments::cardSmartCardXOffset,
    &Kavrin::_MechanicalAdjustments::cardSmartCardLfXOffset,
    &Kavrin::_MechanicalAdjustments::cardSmartCardHfXOffset,
    &Kavrin::_MechanicalAdjustments::cardSmartCardUhfXOffset,
    &Kavrin::_MechanicalAdjustments::cardCenterYOffset,
    &Kavrin::_MechanicalAdjustments::flipperSensorOffset,
    &Kavrin::_MechanicalAdjustments::cardTransferStartYOffset,
    &Kavrin::_MechanicalAdjustments::cardTransferEndYOffset,
    &Kavrin::_MechanicalAdjustments::cardTransferRollYOffset,
    &Kavrin::_MechanicalAdjustments::filmEndRollTransferOffset,
    &Kavrin::_MechanicalAdjustments::filmExtraTransferTakeupMove>
    fields<Kavrin::_MechanicalAdjustments>{};

template <>
inline constexpr FieldList<
    &Kavrin::_RibbonInfo::type,
    &Kavrin::_RibbonInfo::description,
    &Kavrin::_RibbonInfo::ribbonCode,
    &Kavrin::_RibbonInfo::oemCountry,
    &Kavrin::_RibbonInfo::initialSize,
    &Kavrin::_RibbonInfo::panelsRemaining>
    fields<Kavrin::_RibbonInfo>{};

template <>
inline constexpr FieldList<
    &Kavrin::_TransferTempInfo::topSingle,
    &Kavrin::_TransferTempInfo::botSingle,
    &Kavrin::_TransferTempInfo::topDouble,
    &Kavrin::_TransferTempInfo::botDouble>
    fields<Kavrin::_TransferTempInfo>{};

template <>
inline constexpr FieldList<
    &Kavrin::_TransferSpeedInfo::inputSingle,
    &Kavrin::_TransferSpeedInfo::outputSingle,
    &Kavrin::_TransferSpeedInfo::inputDouble,
    &Kavrin::_TransferSpeedInfo::outputDouble>
    fields<Kavrin::_TransferSpeedInfo>{};

template <>
inline constexpr FieldList<
    &Kavrin::_LaminationAdjustmentsNew::topTempAdjust,
    &Kavrin::_LaminationAdjustmentsNew::botTempAdjust,
    &Kavrin::_LaminationAdjustmentsNew::speedAdjust>
    fields<Kavrin::_LaminationAdjustmentsNew>{};

template <>
inline constexpr FieldList<
    &Kavrin::_CustomCardInfo::type,
    &Kavrin::_CustomCardInfo::partNumber,
    &Kavrin::_CustomCardInfo::description,
    &Kavrin::_CustomCardInfo::thickness,
    &Kavrin::_CustomCardInfo::coercivity,
    bitField<Kavrin::_CustomCardInfo, MagStripe>,
    bitField<Kavrin::_CustomCardInfo, ContactEncode>,
    bitField<Kavrin::_CustomCardInfo, NonContactEncode>,
    &Kavrin::_CustomCardInfo::transferTemps,
    &Kavrin::_CustomCardInfo::transferSpeeds,
    &Kavrin::_CustomCardInfo::calTable,
    &Kavrin::_CustomCardInfo::laminatorAdjustments>
    fields<Kavrin::_CustomCardInfo>{};

template <>
inline constexpr FieldList<
    &Kavrin::_ImageTransferTempInfo::topSingle,
    &Kavrin::_ImageTransferTempInfo::botSingle,
    &Kavrin::_ImageTransferTempInfo::topDouble,
    &Kavrin::_ImageTransferTempInfo::botDouble,
    &Kavrin::_ImageTransferTempInfo::topSingleOffset,
    &Kavrin::_ImageTransferTempInfo::botSingleOffset,
    &Kavrin::_ImageTransferTempInfo::topDoubleOffset,
    &Kavrin::_ImageTransferTempInfo::botDoubleOffset,
    &Kavrin::_ImageTransferTempInfo::topTempCal,
    &Kavrin::_ImageTransferTempInfo::botTempCal,
    &Kavrin::_ImageTransferTempInfo::topTempTilt,
    &Kavrin::_ImageTransferTempInfo::botTempTilt>
    fields<Kavrin::_ImageTransferTempInfo>{};

template <>
inline constexpr FieldList<
    &Kavrin::_ImageTransferInfo::transferType,
    &Kavrin::_ImageTransferInfo::transferTemps,
    &Kavrin::_ImageTransferInfo::transferSpeeds>
    fields<Kavrin::_ImageTransferInfo>{};

template <>
inline constexpr FieldList<
    &Kavrin::_laminate_common::patchLengthAdj,
    &Kavrin::_laminate_common::coarseXOffset,
    &Kavrin::_laminate_common::speedAdjust,
    &Kavrin::_laminate_common::passthruSpeedAdj>
    fields<Kavrin::_laminate_common>{};

template <>
inline constexpr FieldList<
    &Kavrin::_LaminateInstalled::type,
    &Kavrin::_LaminateInstalled::description,
    &Kavrin::_LaminateInstalled::thickness,
    &Kavrin::_LaminateInstalled::width,
    &Kavrin::_LaminateInstalled::registration,
    &Kavrin::_LaminateInstalled::oemCountry,
    &Kavrin::_LaminateInstalled::initialSize,
    &Kavrin::_LaminateInstalled::panelsRemaining>
    fields<Kavrin::_LaminateInstalled>{};

template <>
inline constexpr FieldList<
    &Kavrin::_laminateControl::xFineAdjustment,
    &Kavrin::_laminateControl::temperatureAdjustment>
    fields<Kavrin::_laminateControl>{};

template <>
inline constexpr FieldList<
    &Kavrin::_Laminate::laminateInstalled,
    &Kavrin::_Laminate::laminateControl,
    &Kavrin::_Laminate::laminatePresent>
    fields<Kavrin::_Laminate>{};

template <>
inline constexpr FieldList<
    &Kavrin::_LaminationIfo::laminateCommon,
    &Kavrin::_LaminationIfo::topLaminate,
    &Kavrin::_LaminationIfo::bottomLaminate>
    fields<Kavrin::_LaminationIfo>{};

template <>
inline constexpr FieldList<
    &Kavrin::_CleaningParams::cleaningDeadlineIsSoft,
    &Kavrin::_CleaningParams::alcoholCardCleaning,
    &Kavrin::_CleaningParams::preWarning>
    fields<Kavrin::_CleaningParams>{};

template <>
inline constexpr FieldList<
    &Kavrin::_KVConfiguration::physicalAddress,
    &Kavrin::_KVConfiguration::ethernet,
    &Kavrin::_KVConfiguration::wireless,
    &Kavrin::_KVConfiguration::usbTimeout,
    &Kavrin::_KVConfiguration::ocpLanguage,
    &Kavrin::_KVConfiguration::usbSpeed,
    &Kavrin::_KVConfiguration::errorControl,
    &Kavrin::_KVConfiguration::numCardsPrinted,
    &Kavrin::_KVConfiguration::numLinesPrinted,
    &Kavrin::_KVConfiguration::standbyTimeout,
    &Kavrin::_KVConfiguration::imagingParameters,
    &Kavrin::_KVConfiguration::tricolorSettings,
    &Kavrin::_KVConfiguration::ribbonMotorParameters,
    &Kavrin::_KVConfiguration::ribbonSensorOffset,
    &Kavrin::_KVConfiguration::bemfPotentiometer,
    &Kavrin::_KVConfiguration::mechAdjustments,
    &Kavrin::_KVConfiguration::ribbon,
    &Kavrin::_KVConfiguration::film,
    &Kavrin::_KVConfiguration::lamination,
    &Kavrin::_KVConfiguration::customCard1,
    &Kavrin::_KVConfiguration::customCard2,
    &Kavrin::_KVConfiguration::transferSettings,
    &Kavrin::_KVConfiguration::lcdContrast,
    &Kavrin::_KVConfiguration::cleaning,
    &Kavrin::_KVConfiguration::internalEncoder,
    &Kavrin::_KVConfiguration::feederMode>
    fields<Kavrin::_KVConfiguration>{};

// clang-format on

}  // namespace kvj

#endif
