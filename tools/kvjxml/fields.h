/// @file fields.h
/// The fields of each record, in the record's order, and how a record is printed as JSON. The names are the members'
/// own.
#ifndef KVJXML_TOOL_FIELDS_H
#define KVJXML_TOOL_FIELDS_H

#include <CapabilitiesRecords.h>
#include <ConfigurationRecords.h>
#include <IdentityRecords.h>
#include <MediaRecords.h>
#include <SecurityRecords.h>
#include <StatusRecords.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "foundation/convert.h"
#include "foundation/member.h"
#include "json_printer.h"
#include "shared/card.h"

namespace kvjxml::tool {

template <auto... Fields>
struct FieldList {};

/// The fields of a record; a record without a list does not compile.
template <class Record>
inline constexpr std::nullptr_t fields = nullptr;

// ---- Fields that are more, or less, than one member ----

/// A list: a count and an array of as many entries.
template <auto Count_, auto Array_>
struct ListField {
    static constexpr auto count = Count_;
    static constexpr auto array = Array_;
    using Entry = std::remove_pointer_t<ValueOf<Array_>>;
};
template <auto Count, auto Array>
inline constexpr ListField<Count, Array> list{};

/// One bit; the first of a byte stands for all of it.
template <class Bit_, bool First>
struct BitField {
    using Bit = Bit_;
    static constexpr bool first = First;
};
template <class Bit, bool First = false>
inline constexpr BitField<Bit, First> bitField{};

/// An IPv4 address in network byte order.
template <auto Member_>
struct AddressField {
    static constexpr auto member = Member_;
};
template <auto Member>
inline constexpr AddressField<Member> address{};

// ---- What a field is called, and where it ends in its record ----

template <auto Field>
struct FieldTraits {
    static constexpr std::string_view name = nameOf<Field>();
    static constexpr std::size_t endAfter(std::size_t end) { return endAfter<ValueOf<Field>>(end); }
    template <class Value>
    static constexpr std::size_t endAfter(std::size_t end) {
        // NOLINTNEXTLINE(bugprone-sizeof-expression): a field may be a pointer.
        return (end + alignof(Value) - 1) / alignof(Value) * alignof(Value) + sizeof(Value);
    }
};
template <auto Count, auto Array, ListField<Count, Array> Field>
struct FieldTraits<Field> : FieldTraits<Array> {
    static constexpr std::size_t endAfter(std::size_t end) {
        return FieldTraits<Array>::endAfter(FieldTraits<Count>::endAfter(end));
    }
};
template <class Bit, bool First, BitField<Bit, First> Field>
struct FieldTraits<Field> {
    static constexpr std::string_view name = Bit::name;
    static constexpr std::size_t endAfter(std::size_t end) { return end + (First ? 1 : 0); }
};
template <auto Member, AddressField<Member> Field>
struct FieldTraits<Field> : FieldTraits<Member> {};

/// Whether a list has all fields of its record: laid out one behind the other, they make the whole record.
template <class Record, auto... Fields>
consteval bool complete(FieldList<Fields...> /*list*/) {
    std::size_t end = 0;
    ((end = FieldTraits<Fields>::endAfter(end)), ...);
    return (end + alignof(Record) - 1) / alignof(Record) * alignof(Record) == sizeof(Record);
}

// ---- JSON ----

template <class Record>
void print(JsonPrinter& json, const Record& record);

/// A float in as few digits as tell it from its neighbours, 24.35 and not 24.350000381469727.
void print(JsonPrinter& json, float value);

/// A hardware address, "00:1a:2b:3c:4d:5e".
void print(JsonPrinter& json, const unsigned char (&address)[6]);

/// The entries of a list that points to them.
template <class Entry>
void print(JsonPrinter& json, const std::vector<Entry*>& entries);

template <class Value>
void printValue(JsonPrinter& json, const Value& value) {
    if constexpr (std::is_integral_v<Value>) {
        json.value(value);
    } else if constexpr (std::is_enum_v<Value>) {
        json.value(static_cast<int>(value));
    } else if constexpr (std::is_same_v<std::remove_extent_t<Value>, char>) {
        json.value(std::string_view(value, strnlen(value, sizeof value)));
    } else if constexpr (std::is_pointer_v<Value>) {
        print(json, *value);
    } else {
        print(json, value);
    }
}

template <class Value>
void printEntry(JsonPrinter& json, const Value& value) {
    json.entry();
    printValue(json, value);
}

template <class Value>
void printField(JsonPrinter& json, std::string_view name, const Value& value) {
    json.field(name);
    printValue(json, value);
}

/// The first `count` entries of an array.
template <class Entry>
void print(JsonPrinter& json, const Entry* entries, std::size_t count) {
    json.list([&] { std::for_each_n(entries, count, [&](const Entry& entry) { printEntry(json, entry); }); });
}

template <class Entry>
void print(JsonPrinter& json, const std::vector<Entry*>& entries) {
    json.list([&] {
        for (const Entry* entry : entries) printEntry(json, *entry);
    });
}

template <class Record, class Value>
void printFieldOf(JsonPrinter& json, const Record& record, Value Record::*member) {
    printValue(json, record.*member);
}
template <class Record, class Bit, bool First>
void printFieldOf(JsonPrinter& json, const Record& record, BitField<Bit, First> /*field*/) {
    json.value(Bit::get(record));
}
template <class Record, auto Member>
void printFieldOf(JsonPrinter& json, const Record& record, AddressField<Member> /*field*/) {
    json.value(convert::fromIpAddress(record.*Member).c_str());
}

/// A record, whose values `printIt(field)` prints.
template <class Record, auto... Fields, class Print>
void printFields(JsonPrinter& json, FieldList<Fields...> /*list*/, Print printIt) {
    static_assert(complete<Record>(FieldList<Fields...>{}), "a field of the record is missing in its list");
    json.object([&] { ((json.field(FieldTraits<Fields>::name), printIt(Fields)), ...); });
}

template <class Record>
void print(JsonPrinter& json, const Record& record) {
    printFields<Record>(json, fields<Record>, [&](auto field) { printFieldOf(json, record, field); });
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

template <>
inline constexpr FieldList<
    &Kavrin::_PortCaps::portId,
    &Kavrin::_PortCaps::portType>
    fields<Kavrin::_PortCaps>{};

template <>
inline constexpr FieldList<
    &Kavrin::_InterfaceCaps::protocol,
    &Kavrin::_InterfaceCaps::transport,
    &Kavrin::_InterfaceCaps::port>
    fields<Kavrin::_InterfaceCaps>{};

template <>
inline constexpr FieldList<
    &Kavrin::_OCPLanguageCaps::type,
    &Kavrin::_OCPLanguageCaps::name>
    fields<Kavrin::_OCPLanguageCaps>{};

template <>
inline constexpr FieldList<
    &Kavrin::_SecurityCaps::passkeyProtection,
    &Kavrin::_SecurityCaps::encryptionAlgorithm>
    fields<Kavrin::_SecurityCaps>{};

template <>
inline constexpr FieldList<
    &Kavrin::_FontCaps::name,
    &Kavrin::_FontCaps::scalable,
    &Kavrin::_FontCaps::style>
    fields<Kavrin::_FontCaps>{};

template <>
inline constexpr FieldList<
    &Kavrin::_TemplateCaps::name,
    &Kavrin::_TemplateCaps::location>
    fields<Kavrin::_TemplateCaps>{};

template <>
inline constexpr FieldList<
    &Kavrin::_BarCodeCaps::name>
    fields<Kavrin::_BarCodeCaps>{};

template <>
inline constexpr FieldList<
    &Kavrin::_InternalEncoderInfo::commsChannel,
    &Kavrin::_InternalEncoderInfo::contactEncoding,
    &Kavrin::_InternalEncoderInfo::contactlessEncoder,
    &Kavrin::_InternalEncoderInfo::contactlessEncoder2,
    &Kavrin::_InternalEncoderInfo::contactStation>
    fields<Kavrin::_InternalEncoderInfo>{};

template <>
inline constexpr FieldList<
    list<&Kavrin::_Capabilities::hostPortCount, &Kavrin::_Capabilities::hostPorts>,
    list<&Kavrin::_Capabilities::devicePortCount, &Kavrin::_Capabilities::devicePorts>,
    list<&Kavrin::_Capabilities::swInterfaceCount, &Kavrin::_Capabilities::swInterfaces>,
    list<&Kavrin::_Capabilities::ocpLanguageCount, &Kavrin::_Capabilities::ocpLanguages>,
    &Kavrin::_Capabilities::imageSharpeningLevels,
    &Kavrin::_Capabilities::security,
    &Kavrin::_Capabilities::ramSize,
    &Kavrin::_Capabilities::flashSize,
    list<&Kavrin::_Capabilities::graphicFormatCount, &Kavrin::_Capabilities::graphicFormats>,
    list<&Kavrin::_Capabilities::fontCount, &Kavrin::_Capabilities::fonts>,
    list<&Kavrin::_Capabilities::templateCount, &Kavrin::_Capabilities::templates>,
    list<&Kavrin::_Capabilities::graphicCount, &Kavrin::_Capabilities::graphics>,
    &Kavrin::_Capabilities::printSystem,
    &Kavrin::_Capabilities::printType,
    &Kavrin::_Capabilities::atm,
    &Kavrin::_Capabilities::magazineCapacity,
    &Kavrin::_Capabilities::logicalPageLength,
    &Kavrin::_Capabilities::logicalPageWidth,
    &Kavrin::_Capabilities::physicalPageLength,
    &Kavrin::_Capabilities::physicalPageWidth,
    &Kavrin::_Capabilities::printResolution,
    &Kavrin::_Capabilities::magHeadType,
    &Kavrin::_Capabilities::magStripeLocation,
    &Kavrin::_Capabilities::internalEncoder,
    list<&Kavrin::_Capabilities::barCodeCount, &Kavrin::_Capabilities::barCodes>,
    &Kavrin::_Capabilities::laminator,
    &Kavrin::_Capabilities::laminatorType>
    fields<Kavrin::_Capabilities>{};

template <>
inline constexpr FieldList<
    &Kavrin::_MinMaxVal::min,
    &Kavrin::_MinMaxVal::max,
    &Kavrin::_MinMaxVal::value>
    fields<Kavrin::_MinMaxVal>{};

template <>
inline constexpr FieldList<
    &Kavrin::_MinMaxValFloat::min,
    &Kavrin::_MinMaxValFloat::max,
    &Kavrin::_MinMaxValFloat::value>
    fields<Kavrin::_MinMaxValFloat>{};

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
    bitField<MagStripe, true>,
    bitField<ContactEncode>,
    bitField<NonContactEncode>,
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

template <>
inline constexpr FieldList<
    &Kavrin::_CardInfo::type,
    &Kavrin::_CardInfo::partNumber,
    &Kavrin::_CardInfo::description,
    &Kavrin::_CardInfo::thickness,
    &Kavrin::_CardInfo::coercivity,
    bitField<MagStripe, true>,
    bitField<ContactEncode>,
    bitField<NonContactEncode>,
    &Kavrin::_CardInfo::transferTemps,
    &Kavrin::_CardInfo::transferSpeeds,
    &Kavrin::_CardInfo::laminationAdjustments,
    &Kavrin::_CardInfo::calTable>
    fields<Kavrin::_CardInfo>{};

template <>
inline constexpr FieldList<
    &Kavrin::_MediaRibbonInfo::partNumber,
    &Kavrin::_MediaRibbonInfo::description>
    fields<Kavrin::_MediaRibbonInfo>{};

template <>
inline constexpr FieldList<
    &Kavrin::_KVMediaInfo::cards,
    &Kavrin::_KVMediaInfo::films,
    &Kavrin::_KVMediaInfo::ribbons,
    &Kavrin::_KVMediaInfo::laminates>
    fields<Kavrin::_KVMediaInfo>{};

template <>
inline constexpr FieldList<
    &Kavrin::KVPrinterInfo::vendor,
    &Kavrin::KVPrinterInfo::printer_model,
    &Kavrin::KVPrinterInfo::printer_serial,
    &Kavrin::KVPrinterInfo::laminator_serial,
    &Kavrin::KVPrinterInfo::physical_address,
    &Kavrin::KVPrinterInfo::printhead_serial,
    &Kavrin::KVPrinterInfo::oem_country,
    &Kavrin::KVPrinterInfo::firmware_version,
    &Kavrin::KVPrinterInfo::laminator_fw_version,
    &Kavrin::KVPrinterInfo::lam_mab_fw_version,
    &Kavrin::KVPrinterInfo::reserved_version,
    &Kavrin::KVPrinterInfo::hcb_fw_version,
    &Kavrin::KVPrinterInfo::mab_fw_version,
    &Kavrin::KVPrinterInfo::kavrin_version,
    &Kavrin::KVPrinterInfo::ethernet_deviceid,
    &Kavrin::KVPrinterInfo::media_auth_cfg,
    &Kavrin::KVPrinterInfo::reserved,
    &Kavrin::KVPrinterInfo::wireless_physical_address>
    fields<Kavrin::KVPrinterInfo>{};

// clang-format on

}  // namespace kvjxml::tool

#endif
