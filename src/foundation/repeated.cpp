#include "foundation/repeated.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <memory>
#include <utility>
#include <vector>

namespace kvj {

namespace {

using Attributes = std::span<const Document::Attribute>;

/// Up to this many, comparing each with all before it costs less than sorting.
constexpr std::size_t few = 8;

/// Eight bytes of a name, and whose they are.
struct Part {
    std::uint64_t bytes;
    std::uint32_t attribute;
};
using Parts = std::span<Part>;

/// Eight bytes of a name as a number, the first as the lowest; after its end there are zeros.
std::uint64_t bytesOf(const char* name) noexcept {
    std::uint64_t bytes = 0;
    std::memcpy(&bytes, name, sizeof bytes);  // The text is followed by padding.
    if constexpr (std::endian::native == std::endian::big) bytes = __builtin_bswap64(bytes);
    // The lowest bit that is set is that of the first byte that is zero.
    const std::uint64_t zeros = (bytes - 0x0101010101010101) & ~bytes & 0x8080808080808080;
    return zeros == 0 ? bytes : bytes & ((zeros & -zeros) - 1);
}

bool isSame(const char* one, const char* other) noexcept {
    const std::uint64_t bytes = bytesOf(one);
    if (bytes != bytesOf(other)) return false;  // As good as always.
    return bytes >> 56 == 0 || std::strcmp(one, other) == 0;
}

std::size_t firstRepeatedOfFew(Attributes attributes, const char* text) noexcept {
    for (std::size_t i = 1; i < attributes.size(); ++i) {
        for (std::size_t k = 0; k < i; ++k) {
            if (isSame(text + attributes[i].name, text + attributes[k].name)) return i;
        }
    }
    return attributes.size();
}

/// Whether the name ends within its eight bytes.
bool isLast(const Part& part) noexcept { return part.bytes >> 56 == 0; }

/// Sorts by the bytes and keeps the order of equal ones: byte by byte, the last first, so that it takes the same time
/// whatever the names are. `scratch` has as many elements.
void sort(Parts parts, Parts scratch) noexcept {
    std::uint64_t different = 0;
    for (const Part& part : parts) different |= part.bytes ^ parts[0].bytes;
    for (unsigned shift = 0; shift < 64; shift += 8) {
        const auto byteOf = [=](const Part& part) { return (part.bytes >> shift) & 0xFF; };
        if (byteOf({different, 0}) == 0) continue;
        std::array<std::uint32_t, 256> places{};
        for (const Part& part : parts) ++places[byteOf(part)];
        std::uint32_t place = 0;
        for (std::uint32_t& count : places) place += std::exchange(count, place);
        for (const Part& part : parts) scratch[places[byteOf(part)]++] = part;
        std::ranges::copy(scratch, parts.begin());
    }
}

void sortFew(Parts parts) noexcept {
    std::ranges::sort(parts, [](const Part& left, const Part& right) {
        return left.bytes != right.bytes ? left.bytes < right.bytes : left.attribute < right.attribute;
    });
}

/// Of names that were equal before and are sorted by their next part: those that are still equal, and the first that
/// turns out to be the same as one before it, when that comes before `first`.
std::size_t firstRepeatedOf(Parts sorted, std::vector<Parts>& stillEqual, std::size_t first) {
    for (std::size_t begin = 0, end = 0; begin < sorted.size(); begin = end) {
        for (end = begin + 1; end < sorted.size() && sorted[end].bytes == sorted[begin].bytes;) ++end;
        if (end - begin == 1) continue;
        if (isLast(sorted[begin])) {
            first = std::min<std::size_t>(first, sorted[begin + 1].attribute);
        } else {
            stillEqual.push_back(sorted.subspan(begin, end - begin));
        }
    }
    return first;
}

}  // namespace

std::size_t firstRepeated(Attributes attributes, const char* text) {
    if (attributes.size() <= few) return firstRepeatedOfFew(attributes, text);

    std::vector<Part> parts(attributes.size());
    const auto scratch = std::make_unique_for_overwrite<Part[]>(attributes.size());
    for (std::uint32_t i = 0; i < parts.size(); ++i) parts[i].attribute = i;

    // Names that are equal so far stand together; from part to part they fall apart, or turn out to be the same.
    constexpr std::size_t worthTheTable = 128;
    std::size_t first = attributes.size();
    std::vector<Parts> equalSoFar{Parts(parts)};
    for (std::size_t done = 0; !equalSoFar.empty(); done += 8) {
        std::vector<Parts> stillEqual;
        for (const Parts group : equalSoFar) {
            for (Part& part : group) part.bytes = bytesOf(text + attributes[part.attribute].name + done);
            if (group.size() < worthTheTable) {
                sortFew(group);
            } else {
                sort(group, {scratch.get(), group.size()});
            }
            first = firstRepeatedOf(group, stillEqual, first);
        }
        equalSoFar = std::move(stillEqual);
    }
    return first;
}

}  // namespace kvj
