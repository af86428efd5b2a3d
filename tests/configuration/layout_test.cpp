// The layout of the configuration's records is a contract with hosts that were built against an earlier release.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <type_traits>

#include "ConfigurationRecords.h"
#include "KVJConfigParser.h"

namespace {

using namespace Kavrin;

static_assert(sizeof(USB_Speed) == 4);
static_assert(sizeof(ErrorControl) == 4);
static_assert(sizeof(_eFeedMode) == 4);
static_assert(sizeof(WirelessSecurity) == 4);
static_assert(sizeof(WirelessCrypto) == 4);

static_assert(sizeof(_NetworkParams) == 32);
static_assert(offsetof(_NetworkParams, ipAddress) == 0);
static_assert(offsetof(_NetworkParams, subnetMask) == 8);
static_assert(offsetof(_NetworkParams, gateway) == 16);
static_assert(offsetof(_NetworkParams, dhcp) == 24);
static_assert(offsetof(_NetworkParams, snmp) == 25);

static_assert(sizeof(_WirelessParams) == 224);
static_assert(offsetof(_WirelessParams, snmp) == 0);
static_assert(offsetof(_WirelessParams, dhcp) == 1);
static_assert(offsetof(_WirelessParams, ipAddress) == 8);
static_assert(offsetof(_WirelessParams, subnetMask) == 16);
static_assert(offsetof(_WirelessParams, gateway) == 24);
static_assert(offsetof(_WirelessParams, radio) == 32);
static_assert(offsetof(_WirelessParams, security) == 36);
static_assert(offsetof(_WirelessParams, crypto) == 40);
static_assert(offsetof(_WirelessParams, ssid) == 44);
static_assert(offsetof(_WirelessParams, bssid) == 78);
static_assert(offsetof(_WirelessParams, key) == 84);
static_assert(offsetof(_WirelessParams, channel) == 212);
static_assert(offsetof(_WirelessParams, country) == 216);
static_assert(sizeof(_WirelessParams::ssid) == 34);
static_assert(sizeof(_WirelessParams::bssid) == 6);
static_assert(sizeof(_WirelessParams::key) == 128);
static_assert(sizeof(_WirelessParams::country) == 4);

static_assert(sizeof(_USBTimeout) == 24);
static_assert(offsetof(_USBTimeout, read) == 0);
static_assert(offsetof(_USBTimeout, write) == 12);

static_assert(sizeof(_PowerAdjustments) == 144);
static_assert(offsetof(_PowerAdjustments, yellow) == 0);
static_assert(offsetof(_PowerAdjustments, magenta) == 12);
static_assert(offsetof(_PowerAdjustments, cyan) == 24);
static_assert(offsetof(_PowerAdjustments, kResinFront) == 36);
static_assert(offsetof(_PowerAdjustments, kResinBack) == 48);
static_assert(offsetof(_PowerAdjustments, kDye) == 60);
static_assert(offsetof(_PowerAdjustments, overlay) == 72);
static_assert(offsetof(_PowerAdjustments, uvFront) == 84);
static_assert(offsetof(_PowerAdjustments, uvBack) == 96);
static_assert(offsetof(_PowerAdjustments, inhibit) == 108);
static_assert(offsetof(_PowerAdjustments, helper) == 120);
static_assert(offsetof(_PowerAdjustments, xResin) == 132);

static_assert(sizeof(_ImagingParams) == 300);
static_assert(offsetof(_ImagingParams, printheadResistance) == 0);
static_assert(offsetof(_ImagingParams, mfgPowerAdjustments) == 12);
static_assert(offsetof(_ImagingParams, userPowerAdjustments) == 156);

static_assert(sizeof(_RGBINT) == 12);
static_assert(offsetof(_RGBINT, red) == 0);
static_assert(offsetof(_RGBINT, green) == 4);
static_assert(offsetof(_RGBINT, blue) == 8);

static_assert(sizeof(_RibbonMotorParams) == 96);
static_assert(offsetof(_RibbonMotorParams, S0) == 0);
static_assert(offsetof(_RibbonMotorParams, K0) == 12);
static_assert(offsetof(_RibbonMotorParams, Kb) == 24);
static_assert(offsetof(_RibbonMotorParams, Ka) == 36);
static_assert(offsetof(_RibbonMotorParams, M0) == 48);
static_assert(offsetof(_RibbonMotorParams, Mb) == 60);
static_assert(offsetof(_RibbonMotorParams, Ma) == 72);
static_assert(offsetof(_RibbonMotorParams, VtoI) == 84);

static_assert(sizeof(_MechanicalAdjustments) == 192);
static_assert(offsetof(_MechanicalAdjustments, filmPrintXOffset) == 0);
static_assert(offsetof(_MechanicalAdjustments, filmPrintYOffset) == 12);
static_assert(offsetof(_MechanicalAdjustments, filmTransferStartOffset) == 24);
static_assert(offsetof(_MechanicalAdjustments, cardCenterXOffset) == 36);
static_assert(offsetof(_MechanicalAdjustments, cardMagXOffset) == 48);
static_assert(offsetof(_MechanicalAdjustments, cardSmartCardXOffset) == 60);
static_assert(offsetof(_MechanicalAdjustments, cardSmartCardLfXOffset) == 72);
static_assert(offsetof(_MechanicalAdjustments, cardSmartCardHfXOffset) == 84);
static_assert(offsetof(_MechanicalAdjustments, cardSmartCardUhfXOffset) == 96);
static_assert(offsetof(_MechanicalAdjustments, cardCenterYOffset) == 108);
static_assert(offsetof(_MechanicalAdjustments, flipperSensorOffset) == 120);
static_assert(offsetof(_MechanicalAdjustments, cardTransferStartYOffset) == 132);
static_assert(offsetof(_MechanicalAdjustments, cardTransferEndYOffset) == 144);
static_assert(offsetof(_MechanicalAdjustments, cardTransferRollYOffset) == 156);
static_assert(offsetof(_MechanicalAdjustments, filmEndRollTransferOffset) == 168);
static_assert(offsetof(_MechanicalAdjustments, filmExtraTransferTakeupMove) == 180);

static_assert(sizeof(_RibbonInfo) == 88);
static_assert(offsetof(_RibbonInfo, type) == 0);
static_assert(offsetof(_RibbonInfo, description) == 4);
static_assert(offsetof(_RibbonInfo, ribbonCode) == 68);
static_assert(offsetof(_RibbonInfo, oemCountry) == 72);
static_assert(offsetof(_RibbonInfo, initialSize) == 80);
static_assert(offsetof(_RibbonInfo, panelsRemaining) == 84);
static_assert(sizeof(_RibbonInfo::description) == 64);
static_assert(sizeof(_RibbonInfo::oemCountry) == 8);

static_assert(sizeof(_TransferTempInfo) == 48);
static_assert(offsetof(_TransferTempInfo, topSingle) == 0);
static_assert(offsetof(_TransferTempInfo, botSingle) == 12);
static_assert(offsetof(_TransferTempInfo, topDouble) == 24);
static_assert(offsetof(_TransferTempInfo, botDouble) == 36);

static_assert(sizeof(_TransferSpeedInfo) == 48);
static_assert(offsetof(_TransferSpeedInfo, inputSingle) == 0);
static_assert(offsetof(_TransferSpeedInfo, outputSingle) == 12);
static_assert(offsetof(_TransferSpeedInfo, inputDouble) == 24);
static_assert(offsetof(_TransferSpeedInfo, outputDouble) == 36);

static_assert(sizeof(_LaminationAdjustmentsNew) == 36);
static_assert(offsetof(_LaminationAdjustmentsNew, topTempAdjust) == 0);
static_assert(offsetof(_LaminationAdjustmentsNew, botTempAdjust) == 12);
static_assert(offsetof(_LaminationAdjustmentsNew, speedAdjust) == 24);

static_assert(sizeof(_CustomCardInfo) == 228);
static_assert(offsetof(_CustomCardInfo, type) == 0);
static_assert(offsetof(_CustomCardInfo, partNumber) == 4);
static_assert(offsetof(_CustomCardInfo, description) == 20);
static_assert(offsetof(_CustomCardInfo, thickness) == 84);
static_assert(offsetof(_CustomCardInfo, coercivity) == 88);
static_assert(offsetof(_CustomCardInfo, transferTemps) == 92);
static_assert(offsetof(_CustomCardInfo, transferSpeeds) == 140);
static_assert(offsetof(_CustomCardInfo, calTable) == 188);
static_assert(offsetof(_CustomCardInfo, laminatorAdjustments) == 192);
static_assert(sizeof(_CustomCardInfo::partNumber) == 16);
static_assert(sizeof(_CustomCardInfo::description) == 64);
static_assert(sizeof(_CustomCardInfo::coercivity) == 1);

static_assert(sizeof(_ImageTransferTempInfo) == 144);
static_assert(offsetof(_ImageTransferTempInfo, topSingle) == 0);
static_assert(offsetof(_ImageTransferTempInfo, botSingle) == 12);
static_assert(offsetof(_ImageTransferTempInfo, topDouble) == 24);
static_assert(offsetof(_ImageTransferTempInfo, botDouble) == 36);
static_assert(offsetof(_ImageTransferTempInfo, topSingleOffset) == 48);
static_assert(offsetof(_ImageTransferTempInfo, botSingleOffset) == 60);
static_assert(offsetof(_ImageTransferTempInfo, topDoubleOffset) == 72);
static_assert(offsetof(_ImageTransferTempInfo, botDoubleOffset) == 84);
static_assert(offsetof(_ImageTransferTempInfo, topTempCal) == 96);
static_assert(offsetof(_ImageTransferTempInfo, botTempCal) == 108);
static_assert(offsetof(_ImageTransferTempInfo, topTempTilt) == 120);
static_assert(offsetof(_ImageTransferTempInfo, botTempTilt) == 132);

static_assert(sizeof(_ImageTransferInfo) == 196);
static_assert(offsetof(_ImageTransferInfo, transferType) == 0);
static_assert(offsetof(_ImageTransferInfo, transferTemps) == 4);
static_assert(offsetof(_ImageTransferInfo, transferSpeeds) == 148);

static_assert(sizeof(_laminate_common) == 48);
static_assert(offsetof(_laminate_common, patchLengthAdj) == 0);
static_assert(offsetof(_laminate_common, coarseXOffset) == 12);
static_assert(offsetof(_laminate_common, speedAdjust) == 24);
static_assert(offsetof(_laminate_common, passthruSpeedAdj) == 36);

static_assert(sizeof(_LaminateInstalled) == 96);
static_assert(offsetof(_LaminateInstalled, type) == 0);
static_assert(offsetof(_LaminateInstalled, description) == 4);
static_assert(offsetof(_LaminateInstalled, thickness) == 68);
static_assert(offsetof(_LaminateInstalled, width) == 72);
static_assert(offsetof(_LaminateInstalled, registration) == 76);
static_assert(offsetof(_LaminateInstalled, oemCountry) == 80);
static_assert(offsetof(_LaminateInstalled, initialSize) == 88);
static_assert(offsetof(_LaminateInstalled, panelsRemaining) == 92);
static_assert(sizeof(_LaminateInstalled::description) == 64);
static_assert(sizeof(_LaminateInstalled::oemCountry) == 8);

static_assert(sizeof(_laminateControl) == 24);
static_assert(offsetof(_laminateControl, xFineAdjustment) == 0);
static_assert(offsetof(_laminateControl, temperatureAdjustment) == 12);

static_assert(sizeof(_Laminate) == 124);
static_assert(offsetof(_Laminate, laminateInstalled) == 0);
static_assert(offsetof(_Laminate, laminateControl) == 96);
static_assert(offsetof(_Laminate, laminatePresent) == 120);

static_assert(sizeof(_LaminationIfo) == 296);
static_assert(offsetof(_LaminationIfo, laminateCommon) == 0);
static_assert(offsetof(_LaminationIfo, topLaminate) == 48);
static_assert(offsetof(_LaminationIfo, bottomLaminate) == 172);

static_assert(sizeof(_CleaningParams) == 36);
static_assert(offsetof(_CleaningParams, cleaningDeadlineIsSoft) == 0);
static_assert(offsetof(_CleaningParams, alcoholCardCleaning) == 12);
static_assert(offsetof(_CleaningParams, preWarning) == 24);
static_assert(sizeof(_CleaningParams::cleaningDeadlineIsSoft) == 12);

static_assert(sizeof(_KVConfiguration) == 2192);
static_assert(offsetof(_KVConfiguration, physicalAddress) == 0);
static_assert(offsetof(_KVConfiguration, ethernet) == 8);
static_assert(offsetof(_KVConfiguration, wireless) == 40);
static_assert(offsetof(_KVConfiguration, usbTimeout) == 264);
static_assert(offsetof(_KVConfiguration, ocpLanguage) == 288);
static_assert(offsetof(_KVConfiguration, usbSpeed) == 356);
static_assert(offsetof(_KVConfiguration, errorControl) == 360);
static_assert(offsetof(_KVConfiguration, numCardsPrinted) == 364);
static_assert(offsetof(_KVConfiguration, numLinesPrinted) == 368);
static_assert(offsetof(_KVConfiguration, standbyTimeout) == 372);
static_assert(offsetof(_KVConfiguration, imagingParameters) == 376);
static_assert(offsetof(_KVConfiguration, tricolorSettings) == 676);
static_assert(offsetof(_KVConfiguration, ribbonMotorParameters) == 688);
static_assert(offsetof(_KVConfiguration, ribbonSensorOffset) == 784);
static_assert(offsetof(_KVConfiguration, bemfPotentiometer) == 796);
static_assert(offsetof(_KVConfiguration, mechAdjustments) == 800);
static_assert(offsetof(_KVConfiguration, ribbon) == 992);
static_assert(offsetof(_KVConfiguration, film) == 1080);
static_assert(offsetof(_KVConfiguration, lamination) == 1168);
static_assert(offsetof(_KVConfiguration, customCard1) == 1464);
static_assert(offsetof(_KVConfiguration, customCard2) == 1692);
static_assert(offsetof(_KVConfiguration, transferSettings) == 1920);
static_assert(offsetof(_KVConfiguration, lcdContrast) == 2116);
static_assert(offsetof(_KVConfiguration, cleaning) == 2128);
static_assert(offsetof(_KVConfiguration, internalEncoder) == 2164);
static_assert(offsetof(_KVConfiguration, feederMode) == 2184);
static_assert(std::is_aggregate_v<_KVConfiguration> && std::is_trivial_v<_KVConfiguration>);

static_assert(sizeof(szRibbonName) == 32);

// The flags of a card are bits, whose place no offset can tell.
TEST(ConfigurationLayout, TheFlagsOfACardAreTheLowBitsOfTheByteBehindItsCoercivity) {
    const auto byteWith = [](auto flag) {
        _CustomCardInfo card{};
        flag(card);
        unsigned char byte = 0;
        std::memcpy(&byte, reinterpret_cast<const unsigned char*>(&card) + 89, 1);
        return unsigned{byte};
    };
    EXPECT_EQ(byteWith([](_CustomCardInfo& card) { card.magStripe = 1; }), 1U);
    EXPECT_EQ(byteWith([](_CustomCardInfo& card) { card.contactEncode = 1; }), 2U);
    EXPECT_EQ(byteWith([](_CustomCardInfo& card) { card.nonContactEncode = 1; }), 4U);
}

}  // namespace
