/// @file fields/capabilities.h
/// The fields of the records of capabilities.
#ifndef KVJXML_FIELDS_CAPABILITIES_H
#define KVJXML_FIELDS_CAPABILITIES_H

#include <CapabilitiesRecords.h>

#include "fields/list.h"

namespace kvj {

// clang-format off

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

// clang-format on

}  // namespace kvj

#endif
