/// @file suggestion.h
/// What somebody may have meant who wrote a name that nobody knows.
#ifndef KVJXML_TOOL_SUGGESTION_H
#define KVJXML_TOOL_SUGGESTION_H

#include <functional>
#include <iterator>
#include <string>
#include <string_view>
#include <type_traits>

#include "face/nearest.h"
#include "visible_text.h"

namespace kvj::tool {

/// `; did you mean "decode"?`; empty for an empty name.
inline std::string meant(std::string_view name) {
    return name.empty() ? std::string() : std::string("; did you mean \"").append(visible(name)).append("\"?");
}

/// `there is no verb "deocde"; did you mean "decode"?`; without the question when no known name is near.
template <class Names, class NameOf = std::identity>
std::string unknown(std::string_view what, std::string_view name, const Names& names, NameOf nameOf = {}) {
    // What a temporary holds would be gone before it is shown.
    static_assert(!std::is_same_v<decltype(std::invoke(nameOf, *std::begin(names))), std::string>);
    std::string text = "there is no " + std::string(what) + " \"" + visible(name) + "\"";
    return text +
           meant(nearest(name, names, [&](const auto& each) -> std::string_view { return std::invoke(nameOf, each); }));
}

}  // namespace kvj::tool

#endif
