/// @file configuration/media.h
/// How a printer is set up for its media, element by element, as it is read and as it is written: ribbon, film, cards,
/// transfer, laminates and cleaning.
#ifndef KVJXML_CONFIGURATION_MEDIA_H
#define KVJXML_CONFIGURATION_MEDIA_H

#include "ConfigurationRecords.h"
#include "configuration/ribbon_name.h"
#include "foundation/both.h"
#include "foundation/vocabulary.h"
#include "shared/card.h"

namespace kvj::configuration {

using namespace Kavrin;  // the records

// ---- Ribbon and film ----

inline constexpr ReadRule<_RibbonInfo> ribbonName{
    {.field = fieldOf<&_RibbonInfo::description>,
     .kind = Kind::textWithoutWord,
     .capacity = ribbonNameCapacity,
     .word = "MONO",
     .withoutText = WithoutText::isZero},
    [](Element element, _RibbonInfo& ribbon) { return readRibbonName(element, ribbon.description); }};

inline constexpr WordTable transferTypes{0, {{"single", 1}, {"dual", 2}}};

/// An unknown word leaves the laminate's field alone.
inline constexpr auto installedWidths = laminatorWidths.leavingOthers();
inline constexpr auto installedRegistrations = laminatorRegistrations.leavingOthers();

// clang-format off

/// "ribbon", "film". The printer expects the name of the ribbon's code, not the description that it sent.
inline constexpr auto ribbon = rows<_RibbonInfo>({
    {"type",             number<&_RibbonInfo::type>},
    {"description",      ribbonName},
    {"oem_country",      text<&_RibbonInfo::oemCountry>},
    {"initial_size",     number<&_RibbonInfo::initialSize>},
    {"panels_remaining", number<&_RibbonInfo::panelsRemaining>},
});
inline constexpr auto ribbonTags = tags<_RibbonInfo>({
    {"type",             put::number<&_RibbonInfo::type>},
    {"description",      put::word<&_RibbonInfo::ribbonCode, ribbonNames>},
    {"oem_country",      put::text<&_RibbonInfo::oemCountry>},
    {"initial_size",     put::number<&_RibbonInfo::initialSize>},
    {"panels_remaining", put::number<&_RibbonInfo::panelsRemaining>},
});

/// "media_info"
inline constexpr auto mediaInfo = rows<_KVConfiguration>({
    {"ribbon", part<&_KVConfiguration::ribbon, ribbon>},
    {"film",   part<&_KVConfiguration::film, ribbon>},
});
inline constexpr auto mediaInfoTags = tags<_KVConfiguration>({
    {"ribbon", put::part<&_KVConfiguration::ribbon, ribbonTags>},
    {"film",   put::part<&_KVConfiguration::film, ribbonTags>, withTransfer},
});

// ---- Cards ----

/// "card"
inline constexpr auto card = rows<_CustomCardInfo>({
    {"information",           group<cardInformation<_CustomCardInfo>>},
    {"transfer_temps",        part<&_CustomCardInfo::transferTemps, transferTemps>},
    {"transfer_speeds",       part<&_CustomCardInfo::transferSpeeds, transferSpeeds>},
    {"cal_table",             number<&_CustomCardInfo::calTable>},
    {"laminator_adjustments", part<&_CustomCardInfo::laminatorAdjustments, laminatorAdjustments>},
});
inline constexpr auto cardTags = tags<_CustomCardInfo>({
    {"information",           put::group<cardInformationTags<_CustomCardInfo>>},
    {"transfer_temps",        put::part<&_CustomCardInfo::transferTemps, transferTemps>, withTransfer},
    {"transfer_speeds",       put::part<&_CustomCardInfo::transferSpeeds, transferSpeeds>, withTransfer},
    {"cal_table",             put::number<&_CustomCardInfo::calTable>},
    {"laminator_adjustments", put::part<&_CustomCardInfo::laminatorAdjustments, laminatorAdjustments>},
});

/// One of the two custom cards, by its description.
inline constexpr ReadRule<_KVConfiguration> customCard{
    {.field = fieldOf<&_KVConfiguration::customCard1>,
     .kind = Kind::byDescription,
     .word = "Custom 1",
     .otherField = fieldOf<&_KVConfiguration::customCard2>,
     .group = described<card>},
    [](Element element, _KVConfiguration& configuration) {
        _CustomCardInfo info{};
        bool result = false;
        {
            const Unwatched pause(element);
            result = walk(element, info, card);
        }
        const bool isFirst = convert::equal(info.description, "Custom 1");
        _CustomCardInfo& target = isFirst ? configuration.customCard1 : configuration.customCard2;
        // Who watches is told of the fields where they belong.
        if (element.watch() != nullptr) return walk(element, target = {}, card);
        target = info;
        return result;
    }};

inline constexpr SelectionCondition unlessSecondAlone(
    "unless card 2 is wanted alone",
    [](const Selection& selection) { return selection.card == 0 || selection.card == 1; });
inline constexpr SelectionCondition unlessFirstAlone(
    "unless card 1 is wanted alone",
    [](const Selection& selection) { return selection.card == 0 || selection.card == 2; });

/// "cards"
inline constexpr auto cards = rows<_KVConfiguration>({
    {"card", customCard},
});
inline constexpr auto cardsTags = tags<_KVConfiguration>({
    {"card", put::part<&_KVConfiguration::customCard1, cardTags>, unlessSecondAlone},
    {"card", put::part<&_KVConfiguration::customCard2, cardTags>, unlessFirstAlone},
});

// ---- Transfer ----

/// "transfer_temps" in "transfer_settings"
inline constexpr auto imageTransferTemps = bothWays<_ImageTransferTempInfo>({
    {"top_single",        both::setting<&_ImageTransferTempInfo::topSingle>},
    {"bot_single",        both::setting<&_ImageTransferTempInfo::botSingle>},
    {"top_double",        both::setting<&_ImageTransferTempInfo::topDouble>},
    {"bot_double",        both::setting<&_ImageTransferTempInfo::botDouble>},
    {"top_single_offset", both::setting<&_ImageTransferTempInfo::topSingleOffset>},
    {"bot_single_offset", both::setting<&_ImageTransferTempInfo::botSingleOffset>},
    {"top_double_offset", both::setting<&_ImageTransferTempInfo::topDoubleOffset>},
    {"bot_double_offset", both::setting<&_ImageTransferTempInfo::botDoubleOffset>},
    {"top_temp_cal",      both::setting<&_ImageTransferTempInfo::topTempCal>},
    {"bot_temp_cal",      both::setting<&_ImageTransferTempInfo::botTempCal>},
    {"top_temp_tilt",     both::setting<&_ImageTransferTempInfo::topTempTilt>},
    {"bot_temp_tilt",     both::setting<&_ImageTransferTempInfo::botTempTilt>},
});

/// "transfer_settings"
inline constexpr auto transferSettings = bothWays<_ImageTransferInfo>({
    {"transfer_type",   both::word<&_ImageTransferInfo::transferType, transferTypes>},
    {"transfer_temps",  both::part<&_ImageTransferInfo::transferTemps, imageTransferTemps>},
    {"transfer_speeds", both::part<&_ImageTransferInfo::transferSpeeds, transferSpeeds>},
});

// ---- Lamination ----

/// "laminate_common"
inline constexpr auto laminateCommon = bothWays<_laminate_common>({
    {"patch_length_adj",   both::setting<&_laminate_common::patchLengthAdj>},
    {"coarse_x_offset",    both::setting<&_laminate_common::coarseXOffset>},
    {"speed_adjust",       both::setting<&_laminate_common::speedAdjust>},
    {"passthru_speed_adj", both::setting<&_laminate_common::passthruSpeedAdj>},
});

/// "laminate_installed". The printer names width and registration by words and takes them as numbers.
inline constexpr auto laminateInstalled = rows<_LaminateInstalled>({
    {"type",             number<&_LaminateInstalled::type>},
    {"description",      text<&_LaminateInstalled::description>},
    {"thickness",        number<&_LaminateInstalled::thickness>},
    {"registration",     word<&_LaminateInstalled::registration, installedRegistrations>},
    {"width",            word<&_LaminateInstalled::width, installedWidths>},
    {"oem_country",      text<&_LaminateInstalled::oemCountry>},
    {"initial_size",     number<&_LaminateInstalled::initialSize>},
    {"panels_remaining", number<&_LaminateInstalled::panelsRemaining>},
});
inline constexpr auto laminateInstalledTags = tags<_LaminateInstalled>({
    {"type",             put::number<&_LaminateInstalled::type>},
    {"description",      put::text<&_LaminateInstalled::description>},
    {"thickness",        put::number<&_LaminateInstalled::thickness>},
    {"registration",     put::number<&_LaminateInstalled::registration>},
    {"width",            put::number<&_LaminateInstalled::width>},
    {"oem_country",      put::text<&_LaminateInstalled::oemCountry>},
    {"initial_size",     put::number<&_LaminateInstalled::initialSize>},
    {"panels_remaining", put::number<&_LaminateInstalled::panelsRemaining>},
});

/// "laminate_control". Of the two pairs of names the later element counts; each laminate is written with its own pair.
inline constexpr auto laminateControl = rows<_laminateControl>({
    {"top_x_adj_fine_offset", setting<&_laminateControl::xFineAdjustment>},
    {"bot_x_adj_fine_offset", setting<&_laminateControl::xFineAdjustment>},
    {"top_temp_adjust",       setting<&_laminateControl::temperatureAdjustment>},
    {"bot_temp_adjust",       setting<&_laminateControl::temperatureAdjustment>},
});
inline constexpr auto topControlTags = tags<_laminateControl>({
    {"top_x_adj_fine_offset", put::setting<&_laminateControl::xFineAdjustment>},
    {"top_temp_adjust",       put::setting<&_laminateControl::temperatureAdjustment>},
});
inline constexpr auto bottomControlTags = tags<_laminateControl>({
    {"bot_x_adj_fine_offset", put::setting<&_laminateControl::xFineAdjustment>},
    {"bot_temp_adjust",       put::setting<&_laminateControl::temperatureAdjustment>},
});

/// "top_laminate", "bottom_laminate"
inline constexpr auto laminate = rows<_Laminate>({
    {"laminate_installed", part<&_Laminate::laminateInstalled, laminateInstalled>},
    {"laminate_control",   part<&_Laminate::laminateControl, laminateControl>},
});
template <const auto& ControlTags>
inline constexpr auto laminateTags = tags<_Laminate>({
    {"laminate_installed", put::part<&_Laminate::laminateInstalled, laminateInstalledTags>},
    {"laminate_control",   put::part<&_Laminate::laminateControl, ControlTags>},
});

inline constexpr Condition<_LaminationIfo> withTopLaminate{
    "when the top laminate is present",
    [](const _LaminationIfo& info, const Selection&) { return info.topLaminate.laminatePresent; }};

/// "lamination". A printer without a top laminate takes none at the bottom either.
inline constexpr auto lamination = rows<_LaminationIfo>({
    {"laminate_common", part<&_LaminationIfo::laminateCommon, laminateCommon>},
    {"top_laminate",    part<&_LaminationIfo::topLaminate, laminate>},
    {"bottom_laminate", part<&_LaminationIfo::bottomLaminate, laminate>},
});
inline constexpr auto laminationTags = tags<_LaminationIfo>({
    {"laminate_common", put::part<&_LaminationIfo::laminateCommon, laminateCommon>},
    {"top_laminate",    put::part<&_LaminationIfo::topLaminate, laminateTags<topControlTags>>, withTopLaminate},
    {"bottom_laminate", put::part<&_LaminationIfo::bottomLaminate, laminateTags<bottomControlTags>>, withTopLaminate},
});

// ---- Cleaning ----

/// "cleaning"
inline constexpr auto cleaning = bothWays<_CleaningParams>({
    {"cleaning_deadline_is_soft", both::text<&_CleaningParams::cleaningDeadlineIsSoft>},
});

/// "cleaning_thresholds"
inline constexpr auto cleaningThresholds = bothWays<_CleaningParams>({
    {"alcohol_card_cleaning", both::setting<&_CleaningParams::alcoholCardCleaning>},
    {"pre_warning",           both::setting<&_CleaningParams::preWarning>},
});
inline constexpr auto cleaningSections = tags<_CleaningParams>({
    {"cleaning",            put::group<cleaning>},
    {"cleaning_thresholds", put::group<cleaningThresholds>},
});

// clang-format on

}  // namespace kvj::configuration

#endif
