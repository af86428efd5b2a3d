/// @file face/nearest.h
/// The name that somebody may have meant.
#ifndef KVJXML_FACE_NEAREST_H
#define KVJXML_FACE_NEAREST_H

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace kvj {

/// How many letters have to be put in, left out, changed or swapped with their neighbour to make one text of the other;
/// letters count alike in either case. Long texts count as far apart.
inline std::size_t distance(std::string_view one, std::string_view other) {
    constexpr std::size_t longest = 48;
    if (one.size() > longest || other.size() > longest) return longest;
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
    using Line = std::array<std::size_t, longest + 1>;
    Line before{};
    Line last{};
    Line line{};
    for (std::size_t k = 0; k <= other.size(); ++k) last[k] = k;
    for (std::size_t i = 1; i <= one.size(); ++i) {
        line[0] = i;
        for (std::size_t k = 1; k <= other.size(); ++k) {
            const bool same = lower(one[i - 1]) == lower(other[k - 1]);
            line[k] = std::min({last[k] + 1, line[k - 1] + 1, last[k - 1] + (same ? 0U : 1U)});
            const bool swapped =
                i > 1 && k > 1 && lower(one[i - 1]) == lower(other[k - 2]) && lower(one[i - 2]) == lower(other[k - 1]);
            if (swapped) line[k] = std::min(line[k], before[k - 2] + 1);
        }
        before = last;
        last = line;
    }
    return last[other.size()];
}

/// The nearest of many names, if one is near: a third of its letters may differ, three at most.
template <class Names, class NameOf>
std::string_view nearest(std::string_view name, const Names& names, NameOf nameOf) {
    std::string_view best;
    std::size_t least = std::min<std::size_t>(name.size() / 3, 3) + 1;
    for (const auto& each : names) {
        const std::string_view candidate = nameOf(each);
        if (candidate.size() >= name.size() + least || name.size() >= candidate.size() + least) continue;
        const std::size_t apart = distance(name, candidate);
        if (apart < least) {
            least = apart;
            best = candidate;
        }
    }
    return best;
}

}  // namespace kvj

#endif
