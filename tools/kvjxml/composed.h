/// @file composed.h
/// The text of a composed request, of whatever length, as the UTF-8 that the tool speaks.
#ifndef KVJXML_TOOL_COMPOSED_H
#define KVJXML_TOOL_COMPOSED_H

#include <cwchar>
#include <string>
#include <vector>

#include "failure.h"

namespace kvjxml::tool {

[[noreturn]] inline void notComposed(ExitCode code = ExitCode::badJson,
                                     const std::string& reason = "the library did not compose the request") {
    throw Failure(code, reason);
}

std::string toUtf8(const std::vector<wchar_t>& text);

/// Composes wide text, `compose(out, capacity)`, in a buffer that is made larger until the text fits.
/// @return the text; empty when the library composed none.
template <class Compose>
std::string composed(Compose compose) {
    constexpr std::size_t usual = 65536;
    for (std::size_t capacity = usual;; capacity *= 4) {
        std::vector<wchar_t> out(capacity);
        if (!compose(out.data(), static_cast<int>(capacity))) return {};
        if (out.back() == L'\0') return toUtf8(out);
    }
}

}  // namespace kvjxml::tool

#endif
