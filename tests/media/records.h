/// @file records.h
/// What the tests of the catalogue share: its records as something to compare, catalogues that release themselves, and
/// elements as text.
#ifndef KVJXML_TESTS_MEDIA_RECORDS_H
#define KVJXML_TESTS_MEDIA_RECORDS_H

#include <array>
#include <cstddef>
#include <string>
#include <tuple>
#include <vector>

#include "MediaRecords.h"

namespace kvj::tests {

using namespace Kavrin;  // the records

inline std::string element(const std::string& name, const std::string& content) {
    return "<" + name + ">" + content + "</" + name + ">";
}

// ---- Records as something to compare ----

template <class Setting>
auto settingOf(const Setting& setting) {
    return std::tuple(setting.min, setting.max, setting.value);
}

inline auto fieldsOf(const _TransferTempInfo& temperatures) {
    return std::array{settingOf(temperatures.topSingle), settingOf(temperatures.botSingle),
                      settingOf(temperatures.topDouble), settingOf(temperatures.botDouble)};
}

inline auto fieldsOf(const _TransferSpeedInfo& speeds) {
    return std::array{settingOf(speeds.inputSingle), settingOf(speeds.outputSingle), settingOf(speeds.inputDouble),
                      settingOf(speeds.outputDouble)};
}

inline auto fieldsOf(const _LaminationAdjustmentsNew& adjustments) {
    return std::tuple(settingOf(adjustments.topTempAdjust), settingOf(adjustments.botTempAdjust),
                      settingOf(adjustments.speedAdjust));
}

inline auto fieldsOf(const _CardInfo& card) {
    return std::tuple(card.type, std::string(card.partNumber), std::string(card.description), card.thickness,
                      int{card.coercivity}, bool{card.magStripe != 0}, bool{card.contactEncode != 0},
                      bool{card.nonContactEncode != 0}, fieldsOf(card.transferTemps), fieldsOf(card.transferSpeeds),
                      fieldsOf(card.laminationAdjustments), card.calTable);
}

inline auto fieldsOf(const _MediaRibbonInfo& medium) {
    return std::tuple(std::string(medium.partNumber), std::string(medium.description));
}

/// The entries of a list, all of them there.
template <class Entry>
auto entriesOf(const std::vector<Entry*>* list) {
    std::vector<decltype(fieldsOf(Entry()))> fields;
    for (const Entry* entry : *list) fields.push_back(fieldsOf(*entry));
    return fields;
}

inline auto entriesOf(const _KVMediaInfo& media) {
    return std::tuple(entriesOf(media.cards), entriesOf(media.films), entriesOf(media.ribbons),
                      entriesOf(media.laminates));
}

/// How many cards, films, ribbons and laminates there are.
using Sizes = std::array<std::size_t, 4>;

inline Sizes sizesOf(const _KVMediaInfo& media) {
    return {media.cards->size(), media.films->size(), media.ribbons->size(), media.laminates->size()};
}

inline Sizes times(std::size_t factor, Sizes sizes) {
    for (std::size_t& size : sizes) size *= factor;
    return sizes;
}

// ---- Records ----

/// A card with another value in every field, none of which a test writes.
inline _CardInfo presetCard() {
    return {-1001,
            "preset",
            "a preset card",
            -1002.5F,
            103,
            1,
            1,
            1,
            {{-4, -5, -6}, {-7, -8, -9}, {-10, -11, -12}, {-13, -14, -15}},
            {{-1.5F, -2.5F, -3.5F}, {-4.5F, -5.5F, -6.5F}, {-7.5F, -8.5F, -9.5F}, {-10.5F, -11.5F, -12.5F}},
            {{-16, -17, -18}, {-19, -20, -21}, {-13.5F, -14.5F, -15.5F}},
            -1003};
}

}  // namespace kvj::tests

#endif
