/// @file hidden_text.h
/// Which parts of a document must not be shown where secrets are masked.
#ifndef KVJXML_TOOL_HIDDEN_TEXT_H
#define KVJXML_TOOL_HIDDEN_TEXT_H

#include <cstddef>
#include <kvjxml_read.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "checked_document.h"

namespace kvj::tool {

class HiddenText {
public:
    /// Nothing is hidden.
    HiddenText() = default;
    /// Of a message with secrets only what is known to be none is shown, and nothing of what nobody has read: a key may
    /// stand in an element with a misspelt name, or behind the place where a document breaks.
    HiddenText(std::string_view bytes, const CheckedDocument& checked);

    /// A part of the bytes, with `masked` in the place of what is hidden.
    [[nodiscard]] std::string shown(std::string_view bytes, std::size_t first, std::size_t last) const;

    /// A finding without what is hidden.
    [[nodiscard]] kvjxml::finding shown(kvjxml::finding finding) const;

private:
    struct Range {
        std::size_t first;
        std::size_t last;
    };

    /// Hides these bytes, which stand behind all that are hidden so far.
    void hide(std::size_t first, std::size_t last);

    std::vector<Range> ranges_;          ///< in order
    std::vector<std::size_t> elements_;  ///< where those begin whose value is hidden, in order
};

}  // namespace kvj::tool

#endif
