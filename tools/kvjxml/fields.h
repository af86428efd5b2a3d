/// @file fields.h
/// The fields of each record, in the record's order, and how a record becomes JSON. The names are the members' own.
#ifndef KVJXML_TOOL_FIELDS_H
#define KVJXML_TOOL_FIELDS_H

#include <IdentityRecords.h>
#include <SecurityRecords.h>
#include <StatusRecords.h>

#include <algorithm>
#include <cstddef>
#include <nlohmann/json.hpp>
#include <string>
#include <type_traits>

#include "foundation/member.h"

namespace kvjxml::tool {

using Json = nlohmann::ordered_json;

template <auto... Members>
struct FieldList {};

/// The fields of a record; a record without a list does not compile.
template <class Record>
inline constexpr std::nullptr_t fields = nullptr;

/// Whether a list has all fields of its record: laid out one behind the other, they make the whole record.
template <class Record, auto... Members>
consteval bool complete(FieldList<Members...> /*list*/) {
    std::size_t end = 0;
    const auto align = [&](std::size_t alignment) { end = (end + alignment - 1) / alignment * alignment; };
    ((align(alignof(ValueOf<Members>)), end += sizeof(ValueOf<Members>)), ...);
    align(alignof(Record));
    return end == sizeof(Record);
}

template <class Record>
Json toJson(const Record& record);

/// A float in as few digits as tell it from its neighbours, 24.35 and not 24.350000381469727.
Json toJson(float value);

/// A hardware address, "00:1a:2b:3c:4d:5e".
Json toJson(const unsigned char (&address)[6]);

template <class Value>
Json valueToJson(const Value& value) {
    if constexpr (std::is_integral_v<Value>) {
        return value;
    } else if constexpr (std::is_same_v<std::remove_extent_t<Value>, char>) {
        return std::string(value, strnlen(value, sizeof value));
    } else {
        return toJson(value);
    }
}

/// The first `count` records of an array.
template <class Record>
Json toJson(const Record* records, std::size_t count) {
    Json json = Json::array();
    std::for_each_n(records, count, [&](const Record& record) { json.push_back(toJson(record)); });
    return json;
}

template <class Record, auto... Members>
Json toJson(const Record& record, FieldList<Members...> /*list*/) {
    static_assert(complete<Record>(FieldList<Members...>{}), "a field of the record is missing in its list");
    Json json = Json::object();
    (json.emplace(nameOf<Members>(), valueToJson(record.*Members)), ...);
    return json;
}

template <class Record>
Json toJson(const Record& record) {
    return toJson(record, fields<Record>);
}

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
    &Kavrin::_tagLogServiceValues::number,
    &Kavrin::_tagLogServiceValues::code,
    &Kavrin::_tagLogServiceValues::year,
    &Kavrin::_tagLogServiceValues::month,
    &Kavrin::_tagLogServiceValues::reserved,
    &Kavrin::_tagLogServiceValues::card_count>
    fields<Kavrin::_tagLogServiceValues>{};

template <>
inline constexpr FieldList<
    &Kavrin::_tagCleaningLogEntry::number,
    &Kavrin::_tagCleaningLogEntry::cards,
    &Kavrin::_tagCleaningLogEntry::type>
    fields<Kavrin::_tagCleaningLogEntry>{};

template <>
inline constexpr FieldList<
    &Kavrin::__GETTRACK::track1,
    &Kavrin::__GETTRACK::track2,
    &Kavrin::__GETTRACK::track3>
    fields<Kavrin::__GETTRACK>{};

template <>
inline constexpr FieldList<
    &Kavrin::_tagHostDHKeys::modulus,
    &Kavrin::_tagHostDHKeys::base,
    &Kavrin::_tagHostDHKeys::host_interim_key>
    fields<Kavrin::_tagHostDHKeys>{};

template <>
inline constexpr FieldList<
    &Kavrin::_tagSecDirecXML::model,
    &Kavrin::_tagSecDirecXML::serial,
    &Kavrin::_tagSecDirecXML::action,
    &Kavrin::_tagSecDirecXML::nonce,
    &Kavrin::_tagSecDirecXML::hmac>
    fields<Kavrin::_tagSecDirecXML>{};

template <>
inline constexpr FieldList<
    &Kavrin::_tagSecReqXML::model,
    &Kavrin::_tagSecReqXML::serial,
    &Kavrin::_tagSecReqXML::action,
    &Kavrin::_tagSecReqXML::nonce>
    fields<Kavrin::_tagSecReqXML>{};

template <>
inline constexpr FieldList<
    &Kavrin::_tagSecKeys::data_encryption_key,
    &Kavrin::_tagSecKeys::host_authentication_key,
    &Kavrin::_tagSecKeys::printer_lock_key>
    fields<Kavrin::_tagSecKeys>{};

template <>
inline constexpr FieldList<
    &Kavrin::_tagSecSetKeys::current_data_encryption_key,
    &Kavrin::_tagSecSetKeys::new_data_encryption_key,
    &Kavrin::_tagSecSetKeys::current_host_authentication_key,
    &Kavrin::_tagSecSetKeys::new_host_authentication_key,
    &Kavrin::_tagSecSetKeys::current_printer_lock_key,
    &Kavrin::_tagSecSetKeys::new_printer_lock_key,
    &Kavrin::_tagSecSetKeys::current_passkey,
    &Kavrin::_tagSecSetKeys::new_passkey>
    fields<Kavrin::_tagSecSetKeys>{};

// clang-format on

}  // namespace kvjxml::tool

#endif
