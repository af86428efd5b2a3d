/// @file configuration/calibration.h
/// How a printer is calibrated, element by element, as it is read and as it is written: print head, ribbon motor and
/// mechanics.
#ifndef KVJXML_CONFIGURATION_CALIBRATION_H
#define KVJXML_CONFIGURATION_CALIBRATION_H

#include "ConfigurationRecords.h"
#include "foundation/both.h"

namespace kvj::configuration {

using namespace Kavrin;  // the records
using Mechanics = _MechanicalAdjustments;

// clang-format off

/// "mfg_power_adjustments", "user_power_adjustments"
inline constexpr auto power = rows<_PowerAdjustments>({
    {"yellow",        setting<&_PowerAdjustments::yellow>},
    {"magenta",       setting<&_PowerAdjustments::magenta>},
    {"cyan",          setting<&_PowerAdjustments::cyan>},
    {"k-resin_front", setting<&_PowerAdjustments::kResinFront>},
    {"k-resin_back",  setting<&_PowerAdjustments::kResinBack>},
    {"k-dye",         setting<&_PowerAdjustments::kDye>},
    {"overlay",       setting<&_PowerAdjustments::overlay>},
    {"uv_front",      setting<&_PowerAdjustments::uvFront>},
    {"uv_back",       setting<&_PowerAdjustments::uvBack>},
    {"inhibit",       setting<&_PowerAdjustments::inhibit>},
    {"helper",        setting<&_PowerAdjustments::helper>},
    {"x-resin",       setting<&_PowerAdjustments::xResin>},
});
inline constexpr auto powerTags = tags<_PowerAdjustments>({
    {"yellow",        put::setting<&_PowerAdjustments::yellow>},
    {"magenta",       put::setting<&_PowerAdjustments::magenta>},
    {"cyan",          put::setting<&_PowerAdjustments::cyan>},
    {"k-resin_front", put::setting<&_PowerAdjustments::kResinFront>},
    {"k-resin_back",  put::setting<&_PowerAdjustments::kResinBack>},
    {"k-dye",         put::setting<&_PowerAdjustments::kDye>},
    {"overlay",       put::setting<&_PowerAdjustments::overlay>},
    {"uv_front",      put::setting<&_PowerAdjustments::uvFront>},
    {"uv_back",       put::setting<&_PowerAdjustments::uvBack>},
    {"helper",        put::setting<&_PowerAdjustments::helper>},
    {"x-resin",       put::setting<&_PowerAdjustments::xResin>},
    {"inhibit",       put::setting<&_PowerAdjustments::inhibit>, withTransfer},
});

/// "imaging_parameters". The maker's adjustments are not for the host to change.
inline constexpr auto imaging = rows<_ImagingParams>({
    {"printhead_resistance",   setting<&_ImagingParams::printheadResistance>},
    {"mfg_power_adjustments",  part<&_ImagingParams::mfgPowerAdjustments, power>},
    {"user_power_adjustments", part<&_ImagingParams::userPowerAdjustments, power>},
});
inline constexpr auto imagingTags = tags<_ImagingParams>({
    {"printhead_resistance",   put::setting<&_ImagingParams::printheadResistance>},
    {"user_power_adjustments", put::part<&_ImagingParams::userPowerAdjustments, powerTags>},
});

/// "tricolor_settings"
inline constexpr auto tricolor = bothWays<_RGBINT>({
    {"red",   both::number<&_RGBINT::red>},
    {"green", both::number<&_RGBINT::green>},
    {"blue",  both::number<&_RGBINT::blue>},
});

/// "takeup_motor". The printer measures "VtoI" itself and takes none.
inline constexpr auto takeupMotor = rows<_RibbonMotorParams>({
    {"S0",   setting<&_RibbonMotorParams::S0>},
    {"K0",   setting<&_RibbonMotorParams::K0>},
    {"Kb",   setting<&_RibbonMotorParams::Kb>},
    {"Ka",   setting<&_RibbonMotorParams::Ka>},
    {"M0",   setting<&_RibbonMotorParams::M0>},
    {"Mb",   setting<&_RibbonMotorParams::Mb>},
    {"Ma",   setting<&_RibbonMotorParams::Ma>},
    {"VtoI", setting<&_RibbonMotorParams::VtoI>},
});
inline constexpr auto takeupMotorTags = tags<_RibbonMotorParams>({
    {"S0", put::setting<&_RibbonMotorParams::S0>},
    {"K0", put::setting<&_RibbonMotorParams::K0>},
    {"Kb", put::setting<&_RibbonMotorParams::Kb>},
    {"Ka", put::setting<&_RibbonMotorParams::Ka>},
    {"M0", put::setting<&_RibbonMotorParams::M0>},
    {"Mb", put::setting<&_RibbonMotorParams::Mb>},
    {"Ma", put::setting<&_RibbonMotorParams::Ma>},
});

/// "ribbon_motor_parameters"
inline constexpr auto ribbonMotor = rows<_KVConfiguration>({
    {"takeup_motor", part<&_KVConfiguration::ribbonMotorParameters, takeupMotor>},
});
inline constexpr auto ribbonMotorTags = tags<_RibbonMotorParams>({
    {"takeup_motor", put::group<takeupMotorTags>},
});

/// "mech_adjustments". A printer has either the film or the flipper to adjust, so one of them is left out.
inline constexpr auto mechanics = rows<Mechanics>({
    {"film_print_x_offset",             setting<&Mechanics::filmPrintXOffset>},
    {"film_print_y_offset",             setting<&Mechanics::filmPrintYOffset>},
    {"film_transfer_start_offset",      setting<&Mechanics::filmTransferStartOffset>},
    {"card_center_x_offset",            setting<&Mechanics::cardCenterXOffset>},
    {"card_mag_x_offset",               setting<&Mechanics::cardMagXOffset>},
    {"card_smart_card_x_offset",        setting<&Mechanics::cardSmartCardXOffset>},
    {"card_smart_card_lf_x_offset",     setting<&Mechanics::cardSmartCardLfXOffset>},
    {"card_smart_card_hf_x_offset",     setting<&Mechanics::cardSmartCardHfXOffset>},
    {"card_smart_card_uhf_x_offset",    setting<&Mechanics::cardSmartCardUhfXOffset>},
    {"card_center_y_offset",            setting<&Mechanics::cardCenterYOffset>},
    {"flipper_sensor_offset",           setting<&Mechanics::flipperSensorOffset>},
    {"card_transfer_start_y_offset",    setting<&Mechanics::cardTransferStartYOffset>},
    {"card_transfer_end_y_offset",      setting<&Mechanics::cardTransferEndYOffset>},
    {"card_transfer_roll_y_offset",     setting<&Mechanics::cardTransferRollYOffset>},
    {"film_end_roll_transfer_offset",   setting<&Mechanics::filmEndRollTransferOffset>},
    {"film_extra_transfer_takeup_move", setting<&Mechanics::filmExtraTransferTakeupMove>},
});
inline constexpr auto mechanicsTags = tags<Mechanics>({
    {"film_print_x_offset",             put::setting<&Mechanics::filmPrintXOffset>, withTransfer},
    {"film_print_y_offset",             put::setting<&Mechanics::filmPrintYOffset>, withTransfer},
    {"film_transfer_start_offset",      put::setting<&Mechanics::filmTransferStartOffset>, withTransfer},
    {"card_center_x_offset",            put::setting<&Mechanics::cardCenterXOffset>},
    {"card_mag_x_offset",               put::setting<&Mechanics::cardMagXOffset>},
    {"card_smart_card_x_offset",        put::setting<&Mechanics::cardSmartCardXOffset>},
    {"card_smart_card_lf_x_offset",     put::setting<&Mechanics::cardSmartCardLfXOffset>},
    {"card_smart_card_hf_x_offset",     put::setting<&Mechanics::cardSmartCardHfXOffset>},
    {"card_smart_card_uhf_x_offset",    put::setting<&Mechanics::cardSmartCardUhfXOffset>},
    {"card_center_y_offset",            put::setting<&Mechanics::cardCenterYOffset>},
    {"flipper_sensor_offset",           put::setting<&Mechanics::flipperSensorOffset>, directToCard},
    {"card_transfer_start_y_offset",    put::setting<&Mechanics::cardTransferStartYOffset>, withTransfer},
    {"card_transfer_end_y_offset",      put::setting<&Mechanics::cardTransferEndYOffset>, withTransfer},
    {"card_transfer_roll_y_offset",     put::setting<&Mechanics::cardTransferRollYOffset>, withTransfer},
    {"film_end_roll_transfer_offset",   put::setting<&Mechanics::filmEndRollTransferOffset>, withTransfer},
    {"film_extra_transfer_takeup_move", put::setting<&Mechanics::filmExtraTransferTakeupMove>, withTransfer},
});

// clang-format on

}  // namespace kvj::configuration

#endif
