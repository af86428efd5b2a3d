/// @file media/tables.h
/// The media catalogue, element by element, as it is read and as its cards are written.
#ifndef KVJXML_MEDIA_TABLES_H
#define KVJXML_MEDIA_TABLES_H

#include <memory>
#include <vector>

#include "MediaRecords.h"
#include "foundation/read_rules.h"
#include "foundation/rooms.h"
#include "foundation/write_rules.h"
#include "shared/card.h"

namespace kvj::media {

using namespace Kavrin;  // the records

/// The value of a setting alone: the catalogue has no ranges.
template <auto Member>
inline constexpr ReadRule<RecordOf<Member>> value{
    {.field = fieldOf<Member>, .kind = kindOfNumber<decltype(ValueOf<Member>::value)>},
    [](Element element, RecordOf<Member>& record) { return readNumber(element, (record.*Member).value); }};

/// Where the entries of a catalogue go: to the lists of a host's record, or to lists that grow by themselves.
struct Catalogue {
    _KVMediaInfo* record;
    Rooms rooms{};
};

/// A new entry of a list, also for an element with nothing in it.
template <auto Member, const auto& Table>
inline constexpr ReadRule<Catalogue> append{
    {.field = fieldOf<Member>, .kind = Kind::newEntry, .group = described<Table>},
    [](Element element, Catalogue& catalogue) {
        using Entry = RecordOfTable<Table>;
        if (!element) return false;
        if (catalogue.record == nullptr) {
            Room* const room = roomFor(catalogue.rooms, nameOf<Member>());
            const DiagnosedAlone unmarked(element);
            return room != nullptr && walk(element, room->append<Entry>(), Table);
        }
        auto* const entries = catalogue.record->*Member;
        if (entries == nullptr) return false;
        auto entry = std::make_unique<Entry>();
        const bool result = walk(element, *entry, Table);
        entries->push_back(entry.get());
        static_cast<void>(entry.release());  // The list owns it now.
        return result;
    }};

// clang-format off

/// "transfer_temps"
inline constexpr auto transferTemps = rows<_TransferTempInfo>({
    {"top_single", value<&_TransferTempInfo::topSingle>},
    {"bot_single", value<&_TransferTempInfo::botSingle>},
    {"top_double", value<&_TransferTempInfo::topDouble>},
    {"bot_double", value<&_TransferTempInfo::botDouble>},
});

/// "transfer_speeds"
inline constexpr auto transferSpeeds = rows<_TransferSpeedInfo>({
    {"input_single",  value<&_TransferSpeedInfo::inputSingle>},
    {"output_single", value<&_TransferSpeedInfo::outputSingle>},
    {"input_double",  value<&_TransferSpeedInfo::inputDouble>},
    {"output_double", value<&_TransferSpeedInfo::outputDouble>},
});

/// "laminator_adjustments"
inline constexpr auto laminationAdjustments = rows<_LaminationAdjustmentsNew>({
    {"top_temp_adjust", value<&_LaminationAdjustmentsNew::topTempAdjust>},
    {"bot_temp_adjust", value<&_LaminationAdjustmentsNew::botTempAdjust>},
    {"speed_adjust",    value<&_LaminationAdjustmentsNew::speedAdjust>},
});

/// "card"
inline constexpr auto card = rows<_CardInfo>({
    {"information",           group<cardInformation<_CardInfo>>},
    {"transfer_temps",        part<&_CardInfo::transferTemps, transferTemps>},
    {"transfer_speeds",       part<&_CardInfo::transferSpeeds, transferSpeeds>},
    {"laminator_adjustments", part<&_CardInfo::laminationAdjustments, laminationAdjustments>},
    {"cal_table",             number<&_CardInfo::calTable>},
});
inline constexpr auto cardTags = tags<_CardInfo>({
    {"information",           put::group<cardInformationTags<_CardInfo>>},
    {"transfer_temps",        put::part<&_CardInfo::transferTemps, kvj::transferTemps>, withTransfer},
    {"transfer_speeds",       put::part<&_CardInfo::transferSpeeds, kvj::transferSpeeds>, withTransfer},
    {"laminator_adjustments", put::part<&_CardInfo::laminationAdjustments, laminatorAdjustments>},
    {"cal_table",             put::number<&_CardInfo::calTable>},
});

/// Cards that stand anywhere.
struct Cards {
    const _CardInfo* const* first;
    std::size_t count;
};

/// The card types that every printer takes.
inline bool isBasic(const _CardInfo& info) { return info.type == 0 || info.type == 1; }

inline constexpr Description ofCards{.field = fieldOf<&_KVMediaInfo::cards>, .kind = Kind::list};

/// "cards", of all cards or of the basic ones. A null card is left out.
inline bool addCards(Parent media, const Cards& chosen, bool all, const Selection& selection) {
    media.announce(ofCards);
    const Parent list = addTag(media, "cards");
    const auto& rule = put::group<cardTags>;
    bool result = false;
    for (std::size_t i = 0; list && i < chosen.count; ++i) {
        const _CardInfo* const info = chosen.first[i];
        if (info == nullptr || (!all && !isBasic(*info))) continue;
        list.announce(rule.description, static_cast<int>(i));
        result = rule.write(list, "card", *info, selection);
    }
    return result;
}

/// "film", "ribbon", "laminate"
inline constexpr auto medium = rows<_MediaRibbonInfo>({
    {"vessa_part_number", text<&_MediaRibbonInfo::partNumber>},
    {"description",       text<&_MediaRibbonInfo::description>},
});

inline constexpr const auto& newCard = append<&_KVMediaInfo::cards, card>;
inline constexpr const auto& newFilm = append<&_KVMediaInfo::films, medium>;
inline constexpr const auto& newRibbon = append<&_KVMediaInfo::ribbons, medium>;
inline constexpr const auto& newLaminate = append<&_KVMediaInfo::laminates, medium>;

// A printer lists the laminates that it takes in place of a ribbon under "ribbons"; it does not list its own ribbons.
inline constexpr auto cards     = rows<Catalogue>({{"card", newCard}});
inline constexpr auto films     = rows<Catalogue>({{"film", newFilm}});
inline constexpr auto ribbons   = rows<Catalogue>({{"laminate", newLaminate}});
inline constexpr auto laminates = rows<Catalogue>({{"laminate", newLaminate}});

/// "media"
inline constexpr auto catalogue = rows<Catalogue>({
    {"cards",     group<cards>},
    {"films",     group<films>},
    {"ribbons",   group<ribbons>},
    {"laminates", group<laminates>},
});

// clang-format on

}  // namespace kvj::media

#endif
