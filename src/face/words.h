/// @file face/words.h
/// The tables of words under the names that hosts know them by. These names are part of what is exported: they stay
/// when a table is called otherwise, and a table that is new gets one of its own.
#ifndef KVJXML_FACE_WORDS_H
#define KVJXML_FACE_WORDS_H

#include <span>
#include <string_view>

#include "foundation/words.h"

namespace kvj {

/// A name that stands twice has the words of both tables; where both know a code or a text, the first counts.
struct Vocabulary {
    std::string_view name;
    Words words;
};

std::span<const Vocabulary> vocabularies() noexcept;

}  // namespace kvj

#endif
