/// @file fields/status.h
/// The fields of the records of status.
#ifndef KVJXML_FIELDS_STATUS_H
#define KVJXML_FIELDS_STATUS_H

#include <StatusRecords.h>

#include "fields/list.h"

namespace kvj {

// clang-format off

template <>
inline constexpr FieldList<
    &Kavrin::KVGeneralStatus::printerState,
    &Kavrin::KVGeneralStatus::alarms,
    &Kavrin::KVGeneralStatus::error,
    &Kavrin::KVGeneralStatus::printerLock,
    &Kavrin::KVGeneralStatus::jobsReceivingOrPending,
    &Kavrin::KVGeneralStatus::jobsInProgress,
    &Kavrin::KVGeneralStatus::jobsDoneOk,
    &Kavrin::KVGeneralStatus::jobsDoneError,
    &Kavrin::KVGeneralStatus::jobsTotal,
    &Kavrin::KVGeneralStatus::actionIdNext,
    &Kavrin::KVGeneralStatus::warning,
    &Kavrin::KVGeneralStatus::laminatorState,
    &Kavrin::KVGeneralStatus::paramChangeCounter>
    fields<Kavrin::KVGeneralStatus>{};

template <>
inline constexpr FieldList<
    &Kavrin::KVJobStatus::actionId,
    &Kavrin::KVJobStatus::uuid,
    &Kavrin::KVJobStatus::readyForNextJob,
    &Kavrin::KVJobStatus::copiesDone,
    &Kavrin::KVJobStatus::copiesTotalSpecified,
    &Kavrin::KVJobStatus::errorCode,
    &Kavrin::KVJobStatus::printState,
    &Kavrin::KVJobStatus::magState,
    &Kavrin::KVJobStatus::contactState,
    &Kavrin::KVJobStatus::contactlessState,
    &Kavrin::KVJobStatus::positionInTransport,
    &Kavrin::KVJobStatus::laminatorState>
    fields<Kavrin::KVJobStatus>{};

template <>
inline constexpr FieldList<
    &_MediaStatusInfo::type,
    &_MediaStatusInfo::code,
    &_MediaStatusInfo::description,
    &_MediaStatusInfo::partNumber,
    &_MediaStatusInfo::oemCountry,
    &_MediaStatusInfo::initialSize,
    &_MediaStatusInfo::panelsRemaining,
    &_MediaStatusInfo::payoutDiameter,
    &_MediaStatusInfo::takeupDiameter>
    fields<_MediaStatusInfo>{};

template <>
inline constexpr FieldList<
    &MediaStatus::ribbon,
    &MediaStatus::reserved,
    &MediaStatus::film,
    &MediaStatus::topLaminate,
    &MediaStatus::bottomLaminate>
    fields<MediaStatus>{};

template <>
inline constexpr FieldList<
    &Kavrin::_KVJobInfo::actionId,
    &Kavrin::_KVJobInfo::uuid,
    &Kavrin::_KVJobInfo::printState>
    fields<Kavrin::_KVJobInfo>{};

template <>
inline constexpr FieldList<
    countedList<&Kavrin::KVJobList::count, &Kavrin::KVJobList::jobs>>
    fields<Kavrin::KVJobList>{};

template <>
inline constexpr FieldList<
    &Kavrin::KVCardCount::totalCardsDone,
    &Kavrin::KVCardCount::laminatorCardsLaminated,
    &Kavrin::KVCardCount::laminatorCardsProcessed>
    fields<Kavrin::KVCardCount>{};

template <>
inline constexpr FieldList<
    &Kavrin::KVUpTimes::laminatorTotalUpTime,
    &Kavrin::KVUpTimes::laminatorTopBulbOnTime,
    &Kavrin::KVUpTimes::laminatorBottomBulbOnTime>
    fields<Kavrin::KVUpTimes>{};

template <>
inline constexpr FieldList<
    &Kavrin::__MEMORY::bytesFree>
    fields<Kavrin::__MEMORY>{};

template <>
inline constexpr FieldList<
    &Kavrin::KVCleaningStatus::cleaningState>
    fields<Kavrin::KVCleaningStatus>{};

template <>
inline constexpr FieldList<
    &Kavrin::_SENSOR::ribbonTakeupEncoder,
    &Kavrin::_SENSOR::doorOpen,
    &Kavrin::_SENSOR::flipOptionsDoorOpen,
    &Kavrin::_SENSOR::flipperCardBlocked,
    &Kavrin::_SENSOR::flipperRotationBlocked,
    &Kavrin::_SENSOR::cardOutSensorSet,
    &Kavrin::_SENSOR::optionMagBlocked,
    &Kavrin::_SENSOR::optionCamBlocked,
    &Kavrin::_SENSOR::cardExitBlocked,
    &Kavrin::_SENSOR::cardEdgeBlocked,
    &Kavrin::_SENSOR::tricolorState,
    &Kavrin::_SENSOR::headCamBlocked,
    &Kavrin::_SENSOR::tricolorError,
    &Kavrin::_SENSOR::printheadFan,
    &Kavrin::_SENSOR::voltage24,
    &Kavrin::_SENSOR::voltageRaw,
    &Kavrin::_SENSOR::magTrack1,
    &Kavrin::_SENSOR::magTrack2,
    &Kavrin::_SENSOR::magTrack3,
    &Kavrin::_SENSOR::printHeadTemp,
    &Kavrin::_SENSOR::magHeadType,
    &Kavrin::_SENSOR::ribbonBemf,
    &Kavrin::_SENSOR::tricolorAny,
    &Kavrin::_SENSOR::tricolorRed,
    &Kavrin::_SENSOR::tricolorGreen,
    &Kavrin::_SENSOR::tricolorBlue,
    &Kavrin::_SENSOR::platenTemp128,
    &Kavrin::_SENSOR::rlec,
    &Kavrin::_SENSOR::rsec,
    &Kavrin::_SENSOR::rldc,
    &Kavrin::_SENSOR::rsdc,
    &Kavrin::_SENSOR::rgsu,
    &Kavrin::_SENSOR::rgsd>
    fields<Kavrin::_SENSOR>{};

template <>
inline constexpr FieldList<
    &Kavrin::KVSensorInfo::atmCardPresent,
    &Kavrin::KVSensorInfo::inputFeeder,
    &Kavrin::KVSensorInfo::outputHopper,
    &Kavrin::KVSensorInfo::synchroCard,
    &Kavrin::KVSensorInfo::synchroMag,
    &Kavrin::KVSensorInfo::synchroContact,
    &Kavrin::KVSensorInfo::synchroContactless,
    &Kavrin::KVSensorInfo::flipperCardPresent,
    &Kavrin::KVSensorInfo::headOpen,
    &Kavrin::KVSensorInfo::inputMediaOpen,
    &Kavrin::KVSensorInfo::outputMediaOpen,
    &Kavrin::KVSensorInfo::headDown,
    &Kavrin::KVSensorInfo::flipperReadyIn,
    &Kavrin::KVSensorInfo::flipperReadyOut,
    &Kavrin::KVSensorInfo::ribbonEncoder,
    &Kavrin::KVSensorInfo::ribbonSyncDetection,
    &Kavrin::KVSensorInfo::ribbonColorLed1,
    &Kavrin::KVSensorInfo::ribbonColorLed2,
    &Kavrin::KVSensorInfo::ribbonColorLed3,
    &Kavrin::KVSensorInfo::filmSensor,
    &Kavrin::KVSensorInfo::supplyMotorPulses,
    &Kavrin::KVSensorInfo::takeupEncoderPulses>
    fields<Kavrin::KVSensorInfo>{};

template <>
inline constexpr FieldList<
    &Kavrin::_KVPrinterSensorInfo::ribbonTakeupEncoder,
    &Kavrin::_KVPrinterSensorInfo::ribbonPayoutEncoder,
    &Kavrin::_KVPrinterSensorInfo::doorOpen,
    &Kavrin::_KVPrinterSensorInfo::feederDoorOpen,
    &Kavrin::_KVPrinterSensorInfo::flipperSensorBlocked,
    &Kavrin::_KVPrinterSensorInfo::cardInFlipper,
    &Kavrin::_KVPrinterSensorInfo::outOfCards,
    &Kavrin::_KVPrinterSensorInfo::optionCamState,
    &Kavrin::_KVPrinterSensorInfo::optionCardMotion,
    &Kavrin::_KVPrinterSensorInfo::optionMagBlocked,
    &Kavrin::_KVPrinterSensorInfo::internalEncoderPresent,
    &Kavrin::_KVPrinterSensorInfo::externalEncoderPresent,
    &Kavrin::_KVPrinterSensorInfo::uhfEncoderPresent,
    &Kavrin::_KVPrinterSensorInfo::pusherPlateBlocked,
    &Kavrin::_KVPrinterSensorInfo::feederMode,
    &Kavrin::_KVPrinterSensorInfo::optionCamBlocked,
    &Kavrin::_KVPrinterSensorInfo::cardEdgeBlocked,
    &Kavrin::_KVPrinterSensorInfo::tricolorState,
    &Kavrin::_KVPrinterSensorInfo::headCamBlocked,
    &Kavrin::_KVPrinterSensorInfo::printheadFan>
    fields<Kavrin::_KVPrinterSensorInfo>{};

template <>
inline constexpr FieldList<
    &Kavrin::_tagPackets::octets,
    &Kavrin::_tagPackets::upkts,
    &Kavrin::_tagPackets::nupkts,
    &Kavrin::_tagPackets::discards,
    &Kavrin::_tagPackets::errors>
    fields<Kavrin::_tagPackets>{};

template <>
inline constexpr FieldList<
    &Kavrin::_tagWirelessStatus::state,
    &Kavrin::_tagWirelessStatus::ssid,
    &Kavrin::_tagWirelessStatus::channel,
    &Kavrin::_tagWirelessStatus::rssi,
    &Kavrin::_tagWirelessStatus::snr,
    &Kavrin::_tagWirelessStatus::nf,
    &Kavrin::_tagWirelessStatus::security,
    &Kavrin::_tagWirelessStatus::crypto,
    &Kavrin::_tagWirelessStatus::rate,
    &Kavrin::_tagWirelessStatus::in,
    &Kavrin::_tagWirelessStatus::out,
    &Kavrin::_tagWirelessStatus::link_lost>
    fields<Kavrin::_tagWirelessStatus>{};

template <>
inline constexpr FieldList<
    &Kavrin::_tagWirelessRadioStatus::mcasttxframe,
    &Kavrin::_tagWirelessRadioStatus::failed,
    &Kavrin::_tagWirelessRadioStatus::retry,
    &Kavrin::_tagWirelessRadioStatus::multiretry,
    &Kavrin::_tagWirelessRadioStatus::framedup,
    &Kavrin::_tagWirelessRadioStatus::rtssuccess,
    &Kavrin::_tagWirelessRadioStatus::rtsfailure,
    &Kavrin::_tagWirelessRadioStatus::ackfailure,
    &Kavrin::_tagWirelessRadioStatus::rxfrag,
    &Kavrin::_tagWirelessRadioStatus::mcastrxframe,
    &Kavrin::_tagWirelessRadioStatus::fcserror,
    &Kavrin::_tagWirelessRadioStatus::txframe,
    &Kavrin::_tagWirelessRadioStatus::tx_success,
    &Kavrin::_tagWirelessRadioStatus::tx_retry,
    &Kavrin::_tagWirelessRadioStatus::rx_success,
    &Kavrin::_tagWirelessRadioStatus::rx_duplicate,
    &Kavrin::_tagWirelessRadioStatus::rts_success>
    fields<Kavrin::_tagWirelessRadioStatus>{};

template <>
inline constexpr FieldList<
    &Kavrin::_tagAccessPoint::SSID,
    &Kavrin::_tagAccessPoint::BSSID,
    &Kavrin::_tagAccessPoint::Selected,
    &Kavrin::_tagAccessPoint::Channel,
    &Kavrin::_tagAccessPoint::Privacy,
    &Kavrin::_tagAccessPoint::SignalStrength,
    &Kavrin::_tagAccessPoint::Infrastructure,
    &Kavrin::_tagAccessPoint::Security,
    &Kavrin::_tagAccessPoint::Encryption,
    &Kavrin::_tagAccessPoint::MaxDataRate>
    fields<Kavrin::_tagAccessPoint>{};

template <>
inline constexpr FieldList<
    countedList<&Kavrin::_tagAccessPoints::count, &Kavrin::_tagAccessPoints::accessPoints>>
    fields<Kavrin::_tagAccessPoints>{};

// clang-format on

}  // namespace kvj

#endif
