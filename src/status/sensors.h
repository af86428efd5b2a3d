/// @file status/sensors.h
/// The sensor reply, element by element. Three readers each take a part of it.
#ifndef KVJXML_STATUS_SENSORS_H
#define KVJXML_STATUS_SENSORS_H

#include "StatusRecords.h"
#include "foundation/read_rules.h"
#include "foundation/rows.h"

namespace kvj::status {

using namespace Kavrin;  // the records

// clang-format off

// ---- Switches and readings ----

/// "sensor_states". A switch is off for its one off-word only: an unexpected word counts as set.
inline constexpr auto sensorSwitches = rows<_SENSOR>({
    {"ribbon_takeup_encoder",    text<&_SENSOR::ribbonTakeupEncoder>},
    {"door_open",                isNot<&_SENSOR::doorOpen, "no">},
    {"flipoptions_door_open",    isNot<&_SENSOR::flipOptionsDoorOpen, "no">},
    {"flipper_card_blocked",     isNot<&_SENSOR::flipperCardBlocked, "no">},
    {"flipper_rotation_blocked", isNot<&_SENSOR::flipperRotationBlocked, "no">},
    {"cardout_sensor_set",       isNot<&_SENSOR::cardOutSensorSet, "no">},
    {"option_mag_blocked",       isNot<&_SENSOR::optionMagBlocked, "no">},
    {"option_cam_blocked",       isNot<&_SENSOR::optionCamBlocked, "no">},
    {"card_exit_blocked",        isNot<&_SENSOR::cardExitBlocked, "no">},
    {"card_edge_blocked",        isNot<&_SENSOR::cardEdgeBlocked, "no">},
    {"tricolor_state",           text<&_SENSOR::tricolorState>},
    {"head_cam_blocked",         isNot<&_SENSOR::headCamBlocked, "no">},
    {"tricolor_error",           number<&_SENSOR::tricolorError>},
    {"printhead_fan",            isNot<&_SENSOR::printheadFan, "off">},
});

/// "sensor_values"
inline constexpr auto sensorValues = rows<_SENSOR>({
    {"voltage_24",     number<&_SENSOR::voltage24>},
    {"voltage_raw",    number<&_SENSOR::voltageRaw>},
    {"mag_track_1",    number<&_SENSOR::magTrack1>},
    {"mag_track_2",    number<&_SENSOR::magTrack2>},
    {"mag_track_3",    number<&_SENSOR::magTrack3>},
    {"print_head_temp", number<&_SENSOR::printHeadTemp>},
    {"mag_head_type",  number<&_SENSOR::magHeadType>},
    {"ribbon_bemf",    number<&_SENSOR::ribbonBemf>},
    {"tricolor_any",   number<&_SENSOR::tricolorAny>},
    {"tricolor_red",   number<&_SENSOR::tricolorRed>},
    {"tricolor_green", number<&_SENSOR::tricolorGreen>},
    {"tricolor_blue",  number<&_SENSOR::tricolorBlue>},
    {"platen_temp128", number<&_SENSOR::platenTemp128>},
    {"RLEC",           number<&_SENSOR::rlec>},
    {"RSEC",           number<&_SENSOR::rsec>},
    {"RLDC",           number<&_SENSOR::rldc>},
    {"RSDC",           number<&_SENSOR::rsdc>},
    {"RGSU",           number<&_SENSOR::rgsu>},
    {"RGSD",           number<&_SENSOR::rgsd>},
});

/// "get_sensor_status"
inline constexpr auto sensorStatus = rows<_SENSOR>({
    {"sensor_states", group<sensorSwitches>},
    {"sensor_values", group<sensorValues>},
});

// ---- The raw reading of every sensor ----

/// "input_output"
inline constexpr auto inputOutputSensors = rows<KVSensorInfo>({
    {"atm_card_present", attribute<&KVSensorInfo::atmCardPresent, "reading">},
    {"input_feeder",     attribute<&KVSensorInfo::inputFeeder, "reading">},
    {"output_hopper",    attribute<&KVSensorInfo::outputHopper, "reading">},
});

/// "card_path"
inline constexpr auto cardPathSensors = rows<KVSensorInfo>({
    {"synchro_card",         attribute<&KVSensorInfo::synchroCard, "reading">},
    {"synchro_mag",          attribute<&KVSensorInfo::synchroMag, "reading">},
    {"synchro_contact",      attribute<&KVSensorInfo::synchroContact, "reading">},
    {"synchro_contactless",  attribute<&KVSensorInfo::synchroContactless, "reading">},
    {"flipper_card_present", attribute<&KVSensorInfo::flipperCardPresent, "reading">},
});

/// "doors"
inline constexpr auto doorSensors = rows<KVSensorInfo>({
    {"head_open",         attribute<&KVSensorInfo::headOpen, "reading">},
    {"input_media_open",  attribute<&KVSensorInfo::inputMediaOpen, "reading">},
    {"output_media_open", attribute<&KVSensorInfo::outputMediaOpen, "reading">},
});

/// "positioning"
inline constexpr auto positioningSensors = rows<KVSensorInfo>({
    {"head_down",         attribute<&KVSensorInfo::headDown, "reading">},
    {"flipper_ready_in",  attribute<&KVSensorInfo::flipperReadyIn, "reading">},
    {"flipper_ready_out", attribute<&KVSensorInfo::flipperReadyOut, "reading">},
});

/// "color" in "ribbon"
inline constexpr auto ribbonColorSensors = rows<KVSensorInfo>({
    {"led_1", attribute<&KVSensorInfo::ribbonColorLed1, "reading">},
    {"led_2", attribute<&KVSensorInfo::ribbonColorLed2, "reading">},
    {"led_3", attribute<&KVSensorInfo::ribbonColorLed3, "reading">},
});

/// "ribbon" in "web_media"
inline constexpr auto ribbonSensors = rows<KVSensorInfo>({
    {"encoder",               attribute<&KVSensorInfo::ribbonEncoder, "reading">},
    {"ribbon_sync_detection", attribute<&KVSensorInfo::ribbonSyncDetection, "adc_value">},
    {"color",                 group<ribbonColorSensors>},
});

/// "intm" in "web_media": the transfer film
inline constexpr auto filmSensors = rows<KVSensorInfo>({
    {"film_sensor",           attribute<&KVSensorInfo::filmSensor, "reading">},
    {"supply_motor_pulses",   attribute<&KVSensorInfo::supplyMotorPulses, "count">},
    {"takeup_encoder_pulses", attribute<&KVSensorInfo::takeupEncoderPulses, "count">},
});

/// "web_media"
inline constexpr auto webMediaSensors = rows<KVSensorInfo>({
    {"ribbon", group<ribbonSensors>},
    {"intm",   group<filmSensors>},
});

/// "get_sensor_status"
inline constexpr auto sensorInfo = rows<KVSensorInfo>({
    {"input_output", group<inputOutputSensors>},
    {"card_path",    group<cardPathSensors>},
    {"doors",        group<doorSensors>},
    {"positioning",  group<positioningSensors>},
    {"web_media",    group<webMediaSensors>},
});

// ---- The states as the printer words them ----

/// "sensor_states"
inline constexpr auto sensorState = rows<_KVPrinterSensorInfo>({
    {"ribbon_takeup_encoder",    text<&_KVPrinterSensorInfo::ribbonTakeupEncoder>},
    {"ribbon_payout_encoder",    text<&_KVPrinterSensorInfo::ribbonPayoutEncoder>},
    {"door_open",                text<&_KVPrinterSensorInfo::doorOpen>},
    {"feeder_door_open",         text<&_KVPrinterSensorInfo::feederDoorOpen>},
    {"flipper_sensor_blocked",   text<&_KVPrinterSensorInfo::flipperSensorBlocked>},
    {"card_in_flipper",          text<&_KVPrinterSensorInfo::cardInFlipper>},
    {"out_of_cards",             text<&_KVPrinterSensorInfo::outOfCards>},
    {"option_cam_state",         text<&_KVPrinterSensorInfo::optionCamState>},
    {"option_card_motion",       text<&_KVPrinterSensorInfo::optionCardMotion>},
    {"option_mag_blocked",       text<&_KVPrinterSensorInfo::optionMagBlocked>},
    {"internal_encoder_present", text<&_KVPrinterSensorInfo::internalEncoderPresent>},
    {"external_encoder_present", text<&_KVPrinterSensorInfo::externalEncoderPresent>},
    {"uhf_encoder_present",      text<&_KVPrinterSensorInfo::uhfEncoderPresent>},
    {"pusher_plate_blocked",     text<&_KVPrinterSensorInfo::pusherPlateBlocked>},
    {"feeder_mode",              text<&_KVPrinterSensorInfo::feederMode>},
    {"option_cam_blocked",       text<&_KVPrinterSensorInfo::optionCamBlocked>},
    {"card_edge_blocked",        text<&_KVPrinterSensorInfo::cardEdgeBlocked>},
    {"tricolor_state",           text<&_KVPrinterSensorInfo::tricolorState>},
    {"head_cam_blocked",         text<&_KVPrinterSensorInfo::headCamBlocked>},
    {"printhead_fan",            text<&_KVPrinterSensorInfo::printheadFan>},
});

/// "get_sensor_status"
inline constexpr auto sensorStates = rows<_KVPrinterSensorInfo>({
    {"sensor_states", group<sensorState>},
});

// clang-format on

}  // namespace kvj::status

#endif
