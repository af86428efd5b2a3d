/// @file status/media.h
/// The loaded media, element by element.
#ifndef KVJXML_STATUS_MEDIA_H
#define KVJXML_STATUS_MEDIA_H

#include <cstddef>
#include <cstring>

#include "StatusRecords.h"
#include "foundation/read_rules.h"
#include "foundation/rows.h"
#include "foundation/vocabulary.h"

namespace kvj::status {

/// A description that the words of a panel sequence are appended to.
struct PanelSequence {
    char* description;
};

inline const void* watched(const PanelSequence& sequence) {
    return sequence.description - offsetof(_MediaStatusInfo, description);
}

inline constexpr int descriptionCapacity = sizeof(_MediaStatusInfo::description);

/// The word of one panel, appended without a separator: the panels Y, M and C make "YMC". What does not fit is cut.
inline constexpr ReadRule<PanelSequence> panel{
    {.field = fieldOf<&_MediaStatusInfo::description>, .kind = Kind::appendedText, .capacity = descriptionCapacity},
    [](Element element, PanelSequence& sequence) {
        const auto used = static_cast<int>(strnlen(sequence.description, descriptionCapacity));
        return used < descriptionCapacity && readText(element, sequence.description + used, descriptionCapacity - used);
    }};

// clang-format off

/// "sequence" in "ribbon"
inline constexpr auto panelSequence = rows<PanelSequence>({
    {"panel", panel},
});

/// The ribbon's description is made longer by its panels, and the code is that of the whole.
inline constexpr ReadRule<_MediaStatusInfo> sequence{
    {.field = fieldOf<&_MediaStatusInfo::code>, .kind = Kind::wordOfPanels, .words = named<ribbonDescriptions>,
     .group = described<panelSequence>},
    [](Element element, _MediaStatusInfo& ribbon) {
        PanelSequence panels{ribbon.description};
        if (!walk(element, panels, panelSequence)) return false;
        ribbon.code = anyCodeOf(ribbonDescriptions, ribbon.description);
        return true;
    }};

/// A description, and its code if the description fits the field.
inline constexpr ReadRule<_MediaStatusInfo> description{
    {.field = fieldOf<&_MediaStatusInfo::description>, .kind = Kind::textAndCode, .capacity = descriptionCapacity,
     .words = named<ribbonNames>, .otherField = fieldOf<&_MediaStatusInfo::code>},
    [](Element element, _MediaStatusInfo& medium) {
        if (!text<&_MediaStatusInfo::description>.read(element, medium)) return false;
        medium.code = anyCodeOf(ribbonNames, medium.description);
        return true;
    }};

/// "ribbon"
inline constexpr auto ribbon = rows<_MediaStatusInfo>({
    {"type",               number<&_MediaStatusInfo::type>},
    {"sequence",           sequence},
    {"description",        description},
    {"oem_country",        text<&_MediaStatusInfo::oemCountry>},
    {"initial_size",       number<&_MediaStatusInfo::initialSize>},
    {"panels_remaining",   number<&_MediaStatusInfo::panelsRemaining>},
    {"ribbon_remaining",   number<&_MediaStatusInfo::panelsRemaining>},
    {"part_number",        text<&_MediaStatusInfo::partNumber>},
    {"diam_ribbon_payout", number<&_MediaStatusInfo::payoutDiameter>},
    {"diam_ribbon_takeup", number<&_MediaStatusInfo::takeupDiameter>},
});

/// "film"
inline constexpr auto film = rows<_MediaStatusInfo>({
    {"type",               number<&_MediaStatusInfo::type>},
    {"description",        description},
    {"oem_country",        text<&_MediaStatusInfo::oemCountry>},
    {"initial_size",       number<&_MediaStatusInfo::initialSize>},
    {"panels_remaining",   number<&_MediaStatusInfo::panelsRemaining>},
    {"diam_ribbon_payout", number<&_MediaStatusInfo::payoutDiameter>},
    {"diam_ribbon_takeup", number<&_MediaStatusInfo::takeupDiameter>},
});

/// "top_laminate" and "bottom_laminate". A laminate's type is its code: hosts look for it there, and its description is
/// not a ribbon's.
inline constexpr auto laminate = rows<_MediaStatusInfo>({
    {"type",             number<&_MediaStatusInfo::code>},
    {"description",      text<&_MediaStatusInfo::description>},
    {"oem_country",      text<&_MediaStatusInfo::oemCountry>},
    {"initial_size",     number<&_MediaStatusInfo::initialSize>},
    {"panels_remaining", number<&_MediaStatusInfo::panelsRemaining>},
});

/// "get_media_status"
inline constexpr auto mediaStatus = rows<MediaStatus>({
    {"ribbon",          part<&MediaStatus::ribbon, ribbon>},
    {"film",            part<&MediaStatus::film, film>},
    {"top_laminate",    part<&MediaStatus::topLaminate, laminate>},
    {"bottom_laminate", part<&MediaStatus::bottomLaminate, laminate>},
});

// clang-format on

}  // namespace kvj::status

#endif
