/// @file configuration/document.h
/// The whole configuration, section by section: one table to read it with and one to write it with. Their orders differ
/// because the printer sends it in one order and takes it in another.
#ifndef KVJXML_CONFIGURATION_DOCUMENT_H
#define KVJXML_CONFIGURATION_DOCUMENT_H

#include "configuration/calibration.h"
#include "configuration/media.h"
#include "configuration/network.h"
#include "shared/encoder.h"
#include "shared/panel.h"

namespace kvj::configuration {

// ---- Words ----

/// Any other text is the strictest control.
inline constexpr WordTable errorControls{errorControlHigh, {{"none", errorControlNone}, {"med", errorControlMedium}}};
/// Any other code is written as "med".
inline constexpr WordTable errorControlsWritten({{"none", errorControlNone},
                                                 {"med", errorControlMedium},
                                                 {"high", errorControlHigh}});

/// Both directions; any other code is written as "high".
inline constexpr WordTable usbSpeeds({{"full", usbSpeedFull}, {"high", usbSpeedHigh}});

// ---- Special rows ----

/// Without text it gets a code too: that of any other word.
inline constexpr ReadRule<_KVConfiguration> errorControl{
    {.field = fieldOf<&_KVConfiguration::errorControl>,
     .kind = Kind::word,
     .words = named<errorControls>,
     .withoutText = WithoutText::isOther},
    [](Element element, _KVConfiguration& configuration) {
        const char* content = element.text();
        configuration.errorControl = static_cast<ErrorControl>(anyCodeOf(errorControls, content));
        return content != nullptr;
    }};

/// A second contactless encoder has a field of its own; any further one overwrites it.
inline constexpr ReadRule<_InternalEncoderInfo> contactlessEncoder{
    {.field = fieldOf<&_InternalEncoderInfo::contactlessEncoder>,
     .kind = Kind::wordOrNext,
     .words = named<contactlessEncoders>,
     .otherField = fieldOf<&_InternalEncoderInfo::contactlessEncoder2>},
    [](Element element, _InternalEncoderInfo& info) {
        using Info = _InternalEncoderInfo;
        if (info.contactlessEncoder == 0)
            return word<&Info::contactlessEncoder, contactlessEncoders>.read(element, info);
        if (Watch* const watch = element.watch()) watch->goToOther();
        return word<&Info::contactlessEncoder2, contactlessEncoders>.read(element, info);
    }};

inline constexpr Condition<_KVConfiguration> withLaminate{
    "when a laminate is present", [](const _KVConfiguration& configuration, const Selection&) {
        return configuration.lamination.topLaminate.laminatePresent ||
               configuration.lamination.bottomLaminate.laminatePresent;
    }};

// clang-format off

/// "usb_timeout"
inline constexpr auto usbTimeout = bothWays<_USBTimeout>({
    {"read",  both::setting<&_USBTimeout::read>},
    {"write", both::setting<&_USBTimeout::write>},
});

/// "usage_counters"
inline constexpr auto usageCounters = bothWays<_KVConfiguration>({
    {"num_cards_printed", both::number<&_KVConfiguration::numCardsPrinted>},
    {"num_lines_printed", both::number<&_KVConfiguration::numLinesPrinted>},
});

/// "internal_encoder"
inline constexpr const auto& encoder = internalEncoder<contactlessEncoder>;
inline constexpr const auto& encoderTags = internalEncoderTags<commsChannels>;

/// "configuration", "set_configuration"
inline constexpr auto document = rows<_KVConfiguration>({
    {"physical_address",        hardwareAddress<&_KVConfiguration::physicalAddress>},
    {"ethernet",                part<&_KVConfiguration::ethernet, network>},
    {"wireless",                part<&_KVConfiguration::wireless, wireless>},
    {"usb_timeout",             part<&_KVConfiguration::usbTimeout, usbTimeout>},
    {"ocp_language",            part<&_KVConfiguration::ocpLanguage, panelLanguage>},
    {"error_control",           errorControl},
    {"feeder_mode",             word<&_KVConfiguration::feederMode, feederModes>},
    {"usage_counters",          group<usageCounters>},
    {"standby_timeout",         number<&_KVConfiguration::standbyTimeout>},
    {"imaging_parameters",      part<&_KVConfiguration::imagingParameters, imaging>},
    {"tricolor_settings",       part<&_KVConfiguration::tricolorSettings, tricolor>},
    {"ribbon_motor_parameters", group<ribbonMotor>},
    {"ribbon_sensor_offset",    setting<&_KVConfiguration::ribbonSensorOffset>},
    {"bemf_potentiometer",      number<&_KVConfiguration::bemfPotentiometer>},
    {"mech_adjustments",        part<&_KVConfiguration::mechAdjustments, mechanics>},
    {"media_info",              group<mediaInfo>},
    {"cards",                   group<cards>},
    {"transfer_settings",       part<&_KVConfiguration::transferSettings, transferSettings>},
    {"lcd_contrast",            setting<&_KVConfiguration::lcdContrast>},
    {"internal_encoder",        part<&_KVConfiguration::internalEncoder, encoder>},
    {"lamination",              part<&_KVConfiguration::lamination, lamination>},
    {"cleaning",                part<&_KVConfiguration::cleaning, cleaning>},
    {"cleaning_thresholds",     part<&_KVConfiguration::cleaning, cleaningThresholds>},
    {"usb_speed",               word<&_KVConfiguration::usbSpeed, usbSpeeds>},
});

/// The section is also written for one custom card alone.
constexpr bool forCardAlone = true;

/// The printer takes its wireless network under "ethernet" too, and tells it from the wired one by what is in it.
inline constexpr auto documentSections = sections<_KVConfiguration>({
    {0x1,      "physical_address",        put::hardwareAddress<&_KVConfiguration::physicalAddress>},
    {0x2,      "ethernet",                put::part<&_KVConfiguration::ethernet, networkTags>},
    {0x4,      "ethernet",                put::part<&_KVConfiguration::wireless, wirelessTags>},
    {0x8,      "ocp_language",            put::part<&_KVConfiguration::ocpLanguage, panelLanguage>},
    {0x10,     "error_control",           put::word<&_KVConfiguration::errorControl, errorControlsWritten, "med">},
    {0x10,     "usb_speed",               put::word<&_KVConfiguration::usbSpeed, usbSpeeds, "high">},
    {0x20,     "usage_counters",          put::group<usageCounters>},
    {0x40,     "standby_timeout",         put::number<&_KVConfiguration::standbyTimeout>},
    {0x80,     "imaging_parameters",      put::part<&_KVConfiguration::imagingParameters, imagingTags>},
    {0x200,    "ribbon_motor_parameters", put::part<&_KVConfiguration::ribbonMotorParameters, ribbonMotorTags>},
    {0x400,    "ribbon_sensor_offset",    put::setting<&_KVConfiguration::ribbonSensorOffset>},
    {0x1000,   "mech_adjustments",        put::part<&_KVConfiguration::mechAdjustments, mechanicsTags>},
    {0x1000,   "usb_timeout",             put::part<&_KVConfiguration::usbTimeout, usbTimeout>},
    {0x2000,   "media_info",              put::group<mediaInfoTags>},
    {0x40000,  "lamination",              put::part<&_KVConfiguration::lamination, laminationTags>, withLaminate},
    {0x20000,  "cleaning",                put::part<&_KVConfiguration::cleaning, cleaning>},
    {0x20000,  "cleaning_thresholds",     put::part<&_KVConfiguration::cleaning, cleaningThresholds>},
    {0x400000, "feeder_mode",             put::word<&_KVConfiguration::feederMode, feederModes, "hopper">},
    {0x4000,   "cards",                   put::group<cardsTags>, always, forCardAlone},
    {0x8000,   "transfer_settings",       put::part<&_KVConfiguration::transferSettings, transferSettings>,
                                          withTransfer},
    {0x10000,  "lcd_contrast",            put::setting<&_KVConfiguration::lcdContrast>},
    {0x80000,  "internal_encoder",        put::part<&_KVConfiguration::internalEncoder, encoderTags>},
});

// clang-format on

}  // namespace kvj::configuration

#endif
