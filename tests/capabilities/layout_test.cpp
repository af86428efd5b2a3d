// The layout of the capabilities records is a contract with hosts that were built against an earlier release.
#include <cstddef>

#include "CapabilitiesRecords.h"

using namespace Kavrin;

static_assert(sizeof(_PortCaps) == 8);
static_assert(offsetof(_PortCaps, portId) == 0);
static_assert(offsetof(_PortCaps, portType) == 4);

static_assert(sizeof(_InterfaceCaps) == 12);
static_assert(offsetof(_InterfaceCaps, protocol) == 0);
static_assert(offsetof(_InterfaceCaps, transport) == 4);
static_assert(offsetof(_InterfaceCaps, port) == 8);

static_assert(sizeof(_OCPLanguageCaps) == 68);
static_assert(offsetof(_OCPLanguageCaps, type) == 0);
static_assert(offsetof(_OCPLanguageCaps, name) == 4);
static_assert(sizeof(_OCPLanguageCaps::name) == 64);

static_assert(sizeof(_SecurityCaps) == 8);
static_assert(offsetof(_SecurityCaps, passkeyProtection) == 0);
static_assert(sizeof(_SecurityCaps::passkeyProtection) == 1);
static_assert(offsetof(_SecurityCaps, encryptionAlgorithm) == 4);

static_assert(sizeof(_FontCaps) == 72);
static_assert(offsetof(_FontCaps, name) == 0);
static_assert(sizeof(_FontCaps::name) == 64);
static_assert(offsetof(_FontCaps, scalable) == 64);
static_assert(sizeof(_FontCaps::scalable) == 1);
static_assert(offsetof(_FontCaps, style) == 68);

static_assert(sizeof(_TemplateCaps) == 4352);
static_assert(offsetof(_TemplateCaps, name) == 0);
static_assert(sizeof(_TemplateCaps::name) == 4096);
static_assert(offsetof(_TemplateCaps, location) == 4096);
static_assert(sizeof(_TemplateCaps::location) == 256);

static_assert(sizeof(_BarCodeCaps) == 64);
static_assert(offsetof(_BarCodeCaps, name) == 0);
static_assert(sizeof(_BarCodeCaps::name) == 64);

static_assert(sizeof(_InternalEncoderInfo) == 20);
static_assert(offsetof(_InternalEncoderInfo, commsChannel) == 0);
static_assert(offsetof(_InternalEncoderInfo, contactEncoding) == 4);
static_assert(sizeof(_InternalEncoderInfo::contactEncoding) == 1);
static_assert(offsetof(_InternalEncoderInfo, contactlessEncoder) == 8);
static_assert(offsetof(_InternalEncoderInfo, contactlessEncoder2) == 12);
static_assert(offsetof(_InternalEncoderInfo, contactStation) == 16);
static_assert(sizeof(_InternalEncoderInfo::contactStation) == 1);

static_assert(sizeof(_laminatorType) == 4);

static_assert(sizeof(_Capabilities) == 232);
static_assert(offsetof(_Capabilities, hostPortCount) == 0);
static_assert(offsetof(_Capabilities, hostPorts) == 8);
static_assert(offsetof(_Capabilities, devicePortCount) == 16);
static_assert(offsetof(_Capabilities, devicePorts) == 24);
static_assert(offsetof(_Capabilities, swInterfaceCount) == 32);
static_assert(offsetof(_Capabilities, swInterfaces) == 40);
static_assert(offsetof(_Capabilities, ocpLanguageCount) == 48);
static_assert(offsetof(_Capabilities, ocpLanguages) == 56);
static_assert(offsetof(_Capabilities, imageSharpeningLevels) == 64);
static_assert(offsetof(_Capabilities, security) == 68);
static_assert(offsetof(_Capabilities, ramSize) == 76);
static_assert(offsetof(_Capabilities, flashSize) == 80);
static_assert(offsetof(_Capabilities, graphicFormatCount) == 84);
static_assert(offsetof(_Capabilities, graphicFormats) == 88);
static_assert(offsetof(_Capabilities, fontCount) == 96);
static_assert(offsetof(_Capabilities, fonts) == 104);
static_assert(offsetof(_Capabilities, templateCount) == 112);
static_assert(offsetof(_Capabilities, templates) == 120);
static_assert(offsetof(_Capabilities, graphicCount) == 128);
static_assert(offsetof(_Capabilities, graphics) == 136);
static_assert(offsetof(_Capabilities, printSystem) == 144);
static_assert(offsetof(_Capabilities, printType) == 148);
static_assert(offsetof(_Capabilities, atm) == 152);
static_assert(sizeof(_Capabilities::atm) == 1);
static_assert(offsetof(_Capabilities, magazineCapacity) == 156);
static_assert(offsetof(_Capabilities, logicalPageLength) == 160);
static_assert(offsetof(_Capabilities, logicalPageWidth) == 164);
static_assert(offsetof(_Capabilities, physicalPageLength) == 168);
static_assert(offsetof(_Capabilities, physicalPageWidth) == 172);
static_assert(offsetof(_Capabilities, printResolution) == 176);
static_assert(offsetof(_Capabilities, magHeadType) == 180);
static_assert(offsetof(_Capabilities, magStripeLocation) == 184);
static_assert(offsetof(_Capabilities, internalEncoder) == 188);
static_assert(offsetof(_Capabilities, barCodeCount) == 208);
static_assert(offsetof(_Capabilities, barCodes) == 216);
static_assert(offsetof(_Capabilities, laminator) == 224);
static_assert(sizeof(_Capabilities::laminator) == 1);
static_assert(offsetof(_Capabilities, laminatorType) == 228);
