/// @file vocabulary.h
/// The words that several messages share: ribbons, feeders, encoders and the laminator. In places the printer takes
/// other words than it sends; there each direction has a table of its own, side by side.
#ifndef KVJXML_FOUNDATION_VOCABULARY_H
#define KVJXML_FOUNDATION_VOCABULARY_H

#include "foundation/words.h"

namespace kvj {

/// An unknown ribbon counts as black: the printer then prints, in one colour, instead of refusing the card.
inline constexpr int blackRibbon = 263;

/// Both directions; written in exactly this spelling.
inline constexpr WordTable ribbonNames{blackRibbon,
                                       {{"YMCKO", 256},
                                        {"YMCKOK", 257},
                                        {"1/2 YMCKO", 258},
                                        {"1/2 YMCKOKO", 259},
                                        {"YMCPKO", 260},
                                        {"KdO", 261},
                                        {"KrO", 262},
                                        {"Black", blackRibbon},
                                        {"White", 264},
                                        {"Red", 265},
                                        {"Blue", 266},
                                        {"Gold", 267},
                                        {"Silver", 268},
                                        {"YMCKLL", 269},
                                        {"SrDYMCKO", 270},
                                        {"Hologram", 271}},
                                       Match::wholeIgnoringCase};

/// Read only. Panel sequences and sales names; "ymckoo" has a code that no ribbon name has.
inline constexpr WordTable ribbonDescriptions{blackRibbon,
                                              {{"black mono", blackRibbon},
                                               {"black", blackRibbon},
                                               {"white", 264},
                                               {"red", 265},
                                               {"blue", 266},
                                               {"gold", 267},
                                               {"silver", 268},
                                               {"ymcko", 256},
                                               {"ymckok", 257},
                                               {"1/2 ymcko", 258},
                                               {"kdo", 261},
                                               {"kro", 262},
                                               {"ko", 262},
                                               {"Hologram", 271},
                                               {"holo overlay", 271},
                                               {"o", 271},
                                               {"1/2 ymckoko", 259},
                                               {"ymckoo", 272},
                                               {"ymcoviko", 260},
                                               {"ymcpko", 260},
                                               {"sdymcko", 270},
                                               {"ymckll", 269}},
                                              Match::wholeIgnoringCase};

inline constexpr WordTable ribbonTypes{-1, {{"dye_sub", 0}}};
/// The printer takes "resin" but never reports it, so it does not read back.
inline constexpr WordTable ribbonTypesWritten({{"dye_sub", 0}, {"resin", 1}});

/// Both directions. "contact" comes first: a "contactless" encoder reads as a contact one.
inline constexpr WordTable smartEncoders{
    -1, {{"contact", 0}, {"iclass", 1}, {"mifare", 2}, {"prox", 3}, {"uhf", 4}, {"legic", 5}}, Match::part};

/// Both directions.
inline constexpr WordTable cardMaterials{-1, {{"pvc", 1}, {"composite", 0}}, Match::part};

inline constexpr WordTable coercivities{0, {{"low", 1}, {"high", 2}}};
/// "none" reads as any other word does. Hosts have the same words as Kavrin::COERCIVITYTYPES.
inline constexpr WordTable coercivitiesWritten({{"none", 0}, {"low", 1}, {"high", 2}});

/// Read only.
inline constexpr WordTable laminationTypes{0, {{"2_side", 2}, {"1_side", 1}}};

/// Read, and written in the configuration.
inline constexpr WordTable commsChannels{0, {{"serial", 1}, {"usb", 2}}};
/// The capabilities name USB by its version, a word that the printer never sends and that reads back as 0.
inline constexpr WordTable commsChannelsInCapabilities({{"serial", 1}, {"usb_2_0", 2}});

inline constexpr WordTable contactlessEncoders{0, {{"mifare", 1}, {"felica", 2}, {"uhf", 3}, {"hf", 4}, {"lf", 5}}};
/// The one contactless encoder that the printer lets a host choose.
inline constexpr WordTable contactlessEncodersWritten({{"mifare", 1}});

/// Read only.
inline constexpr WordTable panels{-1, {{"yellow_panel", 0}, {"magenta_panel", 1}, {"cyan_panel", 2}}};

/// Read only.
inline constexpr WordTable laminatorWidths{-1, {{"full", 0}, {"mag", 1}, {"signature", 2}}};

/// Read only.
inline constexpr WordTable laminatorRegistrations{-1, {{"none", 0}, {"hologram", 1}, {"contact", 2}}};

/// Both directions; an unknown word reads, and an unknown mode is written, as the hopper.
inline constexpr WordTable feederModes{1, {{"manual", 0}, {"hopper", 1}, {"alreadyinprinter", 2}, {"auto", 3}}};

}  // namespace kvj

#endif
