/// @file fields/identity.h
/// The fields of the records of identity.
#ifndef KVJXML_FIELDS_IDENTITY_H
#define KVJXML_FIELDS_IDENTITY_H

#include <IdentityRecords.h>

#include "fields/list.h"

namespace kvj {

// clang-format off

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
    countedList<&Kavrin::_tagLogServiceXML::count, &Kavrin::_tagLogServiceXML::entries>>
    fields<Kavrin::_tagLogServiceXML>{};

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

}  // namespace kvj

#endif
