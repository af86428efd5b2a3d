/// @file requests.h
/// Whole requests for tests, each composed by an object of its own, and the copy that they leave.
#ifndef KVJXML_TESTS_CONFIGURATION_REQUESTS_H
#define KVJXML_TESTS_CONFIGURATION_REQUESTS_H

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <string>

#include "KVJSetConfig.h"
#include "configuration/records.h"
#include "support/copy_scope.h"

namespace kvj::tests {

/// Every bit that a mask can have in 32 bits.
inline constexpr long allBits = 0xFFFFFFFF;

/// What the host asks for beside the record.
struct Selection {
    long mask = allBits;
    int card = 0;
    bool directToCard = false;
};

/// What was printed, up to its terminator; nothing printed is an empty text.
struct Composed {
    bool result;
    std::string text;
    bool operator==(const Composed&) const = default;
};
inline const Composed nothing{false, ""};

inline Composed composed(const _KVConfiguration& cfg, const Selection& selection, KVJSetConfig&& composer = {}) {
    std::wstring out(50000, L'#');
    const bool result = composer.SetConfiguration(cfg, out.data(), static_cast<int>(out.size()), selection.mask,
                                                  selection.card, selection.directToCard);
    const std::size_t length = std::min(out.find(L'\0'), out.find(L'#'));
    EXPECT_EQ(out.find_first_not_of(L'#', length == 0 ? 0 : length + 1), std::wstring::npos);
    std::string text(length, '\0');
    std::transform(out.begin(), out.begin() + static_cast<std::ptrdiff_t>(length), text.begin(),
                   [](wchar_t character) { return static_cast<char>(character); });
    return {result, text};
}

/// A test that composes: the complete record, and no copy of another's request in the way.
class Requests : public testing::Test {
protected:
    CopyScope scope;
    _KVConfiguration cfg;

    static constexpr const char* copyPath = "/tmp/firmwaresettings";

    Requests() { fill(cfg); }
    static bool leftCopy() { return std::filesystem::exists(std::filesystem::symlink_status(copyPath)); }
};

}  // namespace kvj::tests

#endif
