// The layout of the sensor records is a contract with hosts that were built against an earlier release.
#include <cstddef>

#include "StatusRecords.h"

using Kavrin::_KVPrinterSensorInfo;
using Kavrin::_SENSOR;
using Kavrin::KVSensorInfo;

static_assert(sizeof(_SENSOR) == 160);
static_assert(offsetof(_SENSOR, ribbonTakeupEncoder) == 0);
static_assert(offsetof(_SENSOR, doorOpen) == 32);
static_assert(offsetof(_SENSOR, flipOptionsDoorOpen) == 33);
static_assert(offsetof(_SENSOR, flipperCardBlocked) == 34);
static_assert(offsetof(_SENSOR, flipperRotationBlocked) == 35);
static_assert(offsetof(_SENSOR, cardOutSensorSet) == 36);
static_assert(offsetof(_SENSOR, optionMagBlocked) == 37);
static_assert(offsetof(_SENSOR, optionCamBlocked) == 38);
static_assert(offsetof(_SENSOR, cardExitBlocked) == 39);
static_assert(offsetof(_SENSOR, cardEdgeBlocked) == 40);
static_assert(offsetof(_SENSOR, tricolorState) == 41);
static_assert(offsetof(_SENSOR, headCamBlocked) == 73);
static_assert(offsetof(_SENSOR, tricolorError) == 76);
static_assert(offsetof(_SENSOR, printheadFan) == 80);
static_assert(offsetof(_SENSOR, voltage24) == 84);
static_assert(offsetof(_SENSOR, voltageRaw) == 88);
static_assert(offsetof(_SENSOR, magTrack1) == 92);
static_assert(offsetof(_SENSOR, magTrack2) == 96);
static_assert(offsetof(_SENSOR, magTrack3) == 100);
static_assert(offsetof(_SENSOR, printHeadTemp) == 104);
static_assert(offsetof(_SENSOR, magHeadType) == 108);
static_assert(offsetof(_SENSOR, ribbonBemf) == 112);
static_assert(offsetof(_SENSOR, tricolorAny) == 116);
static_assert(offsetof(_SENSOR, tricolorRed) == 120);
static_assert(offsetof(_SENSOR, tricolorGreen) == 124);
static_assert(offsetof(_SENSOR, tricolorBlue) == 128);
static_assert(offsetof(_SENSOR, platenTemp128) == 132);
static_assert(offsetof(_SENSOR, rlec) == 136);
static_assert(offsetof(_SENSOR, rsec) == 140);
static_assert(offsetof(_SENSOR, rldc) == 144);
static_assert(offsetof(_SENSOR, rsdc) == 148);
static_assert(offsetof(_SENSOR, rgsu) == 152);
static_assert(offsetof(_SENSOR, rgsd) == 156);

static_assert(sizeof(KVSensorInfo) == 88);
static_assert(offsetof(KVSensorInfo, atmCardPresent) == 0);
static_assert(offsetof(KVSensorInfo, inputFeeder) == 4);
static_assert(offsetof(KVSensorInfo, outputHopper) == 8);
static_assert(offsetof(KVSensorInfo, synchroCard) == 12);
static_assert(offsetof(KVSensorInfo, synchroMag) == 16);
static_assert(offsetof(KVSensorInfo, synchroContact) == 20);
static_assert(offsetof(KVSensorInfo, synchroContactless) == 24);
static_assert(offsetof(KVSensorInfo, flipperCardPresent) == 28);
static_assert(offsetof(KVSensorInfo, headOpen) == 32);
static_assert(offsetof(KVSensorInfo, inputMediaOpen) == 36);
static_assert(offsetof(KVSensorInfo, outputMediaOpen) == 40);
static_assert(offsetof(KVSensorInfo, headDown) == 44);
static_assert(offsetof(KVSensorInfo, flipperReadyIn) == 48);
static_assert(offsetof(KVSensorInfo, flipperReadyOut) == 52);
static_assert(offsetof(KVSensorInfo, ribbonEncoder) == 56);
static_assert(offsetof(KVSensorInfo, ribbonSyncDetection) == 60);
static_assert(offsetof(KVSensorInfo, ribbonColorLed1) == 64);
static_assert(offsetof(KVSensorInfo, ribbonColorLed2) == 68);
static_assert(offsetof(KVSensorInfo, ribbonColorLed3) == 72);
static_assert(offsetof(KVSensorInfo, filmSensor) == 76);
static_assert(offsetof(KVSensorInfo, supplyMotorPulses) == 80);
static_assert(offsetof(KVSensorInfo, takeupEncoderPulses) == 84);

static_assert(sizeof(_KVPrinterSensorInfo) == 108);
static_assert(offsetof(_KVPrinterSensorInfo, ribbonTakeupEncoder) == 0);
static_assert(offsetof(_KVPrinterSensorInfo, ribbonPayoutEncoder) == 8);
static_assert(offsetof(_KVPrinterSensorInfo, doorOpen) == 16);
static_assert(offsetof(_KVPrinterSensorInfo, feederDoorOpen) == 20);
static_assert(offsetof(_KVPrinterSensorInfo, flipperSensorBlocked) == 24);
static_assert(offsetof(_KVPrinterSensorInfo, cardInFlipper) == 28);
static_assert(offsetof(_KVPrinterSensorInfo, outOfCards) == 32);
static_assert(offsetof(_KVPrinterSensorInfo, optionCamState) == 36);
static_assert(offsetof(_KVPrinterSensorInfo, optionCardMotion) == 44);
static_assert(offsetof(_KVPrinterSensorInfo, optionMagBlocked) == 48);
static_assert(offsetof(_KVPrinterSensorInfo, internalEncoderPresent) == 52);
static_assert(offsetof(_KVPrinterSensorInfo, externalEncoderPresent) == 56);
static_assert(offsetof(_KVPrinterSensorInfo, uhfEncoderPresent) == 60);
static_assert(offsetof(_KVPrinterSensorInfo, pusherPlateBlocked) == 64);
static_assert(offsetof(_KVPrinterSensorInfo, feederMode) == 68);
static_assert(offsetof(_KVPrinterSensorInfo, optionCamBlocked) == 76);
static_assert(offsetof(_KVPrinterSensorInfo, cardEdgeBlocked) == 80);
static_assert(offsetof(_KVPrinterSensorInfo, tricolorState) == 84);
static_assert(offsetof(_KVPrinterSensorInfo, headCamBlocked) == 100);
static_assert(offsetof(_KVPrinterSensorInfo, printheadFan) == 104);
