/// @file field_codes.h
/// The words that the codes of a request's field stand for.
#ifndef KVJXML_TOOL_FIELD_CODES_H
#define KVJXML_TOOL_FIELD_CODES_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/kinds.h"

namespace kvj::tool {

class FieldCodes {
public:
    /// Those of a field of a record, "Kavrin::_WirelessParams" and "security".
    FieldCodes(std::string_view record, std::string_view field);

    /// Whether there is none: the field is no code.
    [[nodiscard]] bool empty() const noexcept { return tables_.empty(); }
    /// Whether the field holds a bit for each word.
    [[nodiscard]] bool areBits() const noexcept { return areBits_; }
    /// Whether the field is also 0 where the printer sent a word that nobody knows, or none: a 0 by itself does not
    /// say which.
    [[nodiscard]] bool zeroMayBeUnread() const;

    [[nodiscard]] std::optional<std::int64_t> codeOf(const std::string& word) const;
    /// The word that comes first for a code; empty when it has none.
    [[nodiscard]] std::string wordOf(std::int64_t code) const;
    /// The same, but the word that a command is sent with when its argument has none.
    [[nodiscard]] std::string wordSentFor(std::int64_t code) const;
    /// The words that can be sent with their codes, for people: "none 0, wep40 1". Of several words of a code the
    /// first.
    [[nodiscard]] std::string listed() const;
    /// The word that somebody may have meant; empty when none is near.
    [[nodiscard]] std::string nearest(std::string_view word) const;

private:
    std::vector<Words> tables_;
    std::vector<Words> written_;  ///< all that a code has to have a word in
    bool areBits_ = false;
    std::optional<int> sentOtherwise_;
    bool isLeftAlone_ = false;  ///< whether reading leaves the field alone when the word is not known
};

}  // namespace kvj::tool

#endif
