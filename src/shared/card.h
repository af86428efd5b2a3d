/// @file shared/card.h
/// A type of card, as configuration and media catalogue have it. Each has a record of its own for it, with the same
/// names.
#ifndef KVJXML_SHARED_CARD_H
#define KVJXML_SHARED_CARD_H

#include "ConfigurationRecords.h"
#include "foundation/both.h"
#include "foundation/vocabulary.h"

namespace kvj {

// ---- One-bit fields, which no member pointer can name ----

struct MagStripe {
    static constexpr std::string_view name = "magStripe";
    static bool get(const auto& card) { return card.magStripe != 0; }
    static void set(auto& card, bool flag) { card.magStripe = flag; }
};
struct ContactEncode {
    static constexpr std::string_view name = "contactEncode";
    static bool get(const auto& card) { return card.contactEncode != 0; }
    static void set(auto& card, bool flag) { card.contactEncode = flag; }
};
struct NonContactEncode {
    static constexpr std::string_view name = "nonContactEncode";
    static bool get(const auto& card) { return card.nonContactEncode != 0; }
    static void set(auto& card, bool flag) { card.nonContactEncode = flag; }
};

/// A truth word into one bit; the bits beside it stay as they are. Without text the bit is cleared.
template <class Card, class Bit>
inline constexpr ReadRule<Card> bit{
    {.field = {nameOfType<Card>(), Bit::name}, .kind = Kind::flag, .withoutText = WithoutText::isFalse},
    [](Element element, Card& card) {
        bool flag = false;
        const bool result = readTruth(element, flag);
        Bit::set(card, flag);
        return result;
    }};

namespace put {

template <class Card, class Bit>
inline constexpr WriteRule<Card> bit{
    {.field = {nameOfType<Card>(), Bit::name}, .kind = Kind::either, .word = "yes", .otherWord = "no"},
    [](Parent parent, const char* name, const Card& card, const Selection&) {
        return addTag(parent, name, Bit::get(card) ? "yes" : "no");
    }};

}  // namespace put

// clang-format off

/// "information" in "card"
template <class Card>
inline constexpr auto cardInformation = rows<Card>({
    {"type",               number<&Card::type>},
    {"vessa_part_number",  text<&Card::partNumber>},
    {"description",        text<&Card::description>},
    {"thickness",          number<&Card::thickness>},
    {"coercivity",         word<&Card::coercivity, coercivities>},
    {"mag_stripe",         bit<Card, MagStripe>},
    {"contact_encode",     bit<Card, ContactEncode>},
    {"non_contact_encode", bit<Card, NonContactEncode>},
});
template <class Card>
inline constexpr auto cardInformationTags = tags<Card>({
    {"type",               put::number<&Card::type>},
    {"vessa_part_number",  put::text<&Card::partNumber>},
    {"description",        put::text<&Card::description>},
    {"thickness",          put::decimal<&Card::thickness>},
    {"coercivity",         put::word<&Card::coercivity, coercivitiesWritten>},
    {"mag_stripe",         put::bit<Card, MagStripe>},
    {"contact_encode",     put::bit<Card, ContactEncode>},
    {"non_contact_encode", put::bit<Card, NonContactEncode>},
});

/// "transfer_temps"
inline constexpr auto transferTemps = bothWays<Kavrin::_TransferTempInfo>({
    {"top_single", both::setting<&Kavrin::_TransferTempInfo::topSingle>},
    {"bot_single", both::setting<&Kavrin::_TransferTempInfo::botSingle>},
    {"top_double", both::setting<&Kavrin::_TransferTempInfo::topDouble>},
    {"bot_double", both::setting<&Kavrin::_TransferTempInfo::botDouble>},
});

/// "transfer_speeds"
inline constexpr auto transferSpeeds = bothWays<Kavrin::_TransferSpeedInfo>({
    {"input_single",  both::setting<&Kavrin::_TransferSpeedInfo::inputSingle>},
    {"output_single", both::setting<&Kavrin::_TransferSpeedInfo::outputSingle>},
    {"input_double",  both::setting<&Kavrin::_TransferSpeedInfo::inputDouble>},
    {"output_double", both::setting<&Kavrin::_TransferSpeedInfo::outputDouble>},
});

/// "laminator_adjustments"
inline constexpr auto laminatorAdjustments = bothWays<Kavrin::_LaminationAdjustmentsNew>({
    {"top_temp_adjust", both::setting<&Kavrin::_LaminationAdjustmentsNew::topTempAdjust>},
    {"bot_temp_adjust", both::setting<&Kavrin::_LaminationAdjustmentsNew::botTempAdjust>},
    {"speed_adjust",    both::setting<&Kavrin::_LaminationAdjustmentsNew::speedAdjust>},
});

// clang-format on

}  // namespace kvj

#endif
