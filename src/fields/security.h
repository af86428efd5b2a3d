/// @file fields/security.h
/// The fields of the records of security.
#ifndef KVJXML_FIELDS_SECURITY_H
#define KVJXML_FIELDS_SECURITY_H

#include <SecurityRecords.h>

#include "fields/list.h"

namespace kvj {

// clang-format off

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
    &Kavrin::_tagSecActionXMLValues::name,
    &Kavrin::_tagSecActionXMLValues::model,
    &Kavrin::_tagSecActionXMLValues::serial,
    &Kavrin::_tagSecActionXMLValues::nonce,
    &Kavrin::_tagSecActionXMLValues::hmac>
    fields<Kavrin::_tagSecActionXMLValues>{};

// clang-format on

}  // namespace kvj

#endif
