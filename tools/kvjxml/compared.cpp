#include "compared.h"

#include <algorithm>
#include <cstring>
#include <utility>
#include <vector>

namespace kvj::tool {

namespace {

/// How alike two records are.
struct Likeness {
    std::size_t same = 0;
    std::size_t all = 0;
};

// Records nest as deep as they are declared, so the recursion ends.
// NOLINTBEGIN(misc-no-recursion)

void measure(const Field& field, const void* before, const void* after, Likeness& likeness);

bool isSame(const Field& field, const void* before, const void* after) {
    switch (field.type) {
        case FieldType::flag:
        case FieldType::bit:
            return flagOf(field, before) == flagOf(field, after);
        case FieldType::text:
            return textOf(field, before) == textOf(field, after);
        case FieldType::record:
        case FieldType::list: {
            Likeness likeness;
            measure(field, before, after, likeness);
            return likeness.same == likeness.all;
        }
        default:
            return std::memcmp(field.at(before), field.at(after), field.size) == 0;
    }
}

void measure(const Field& field, const void* before, const void* after, Likeness& likeness) {
    if (field.type == FieldType::record) {
        for (const Field& inner : field.record->fields) measure(inner, field.at(before), field.at(after), likeness);
        return;
    }
    // A list inside an entry: by its places.
    if (field.type == FieldType::list) {
        const Entries& entries = *field.entries;
        const std::size_t counts[] = {countOf(entries, before), countOf(entries, after)};
        likeness.all += std::max(counts[0], counts[1]);
        for (std::size_t i = 0; i < std::min(counts[0], counts[1]); ++i) {
            likeness.same += isSame(*entries.entry, entries.at(before, i), entries.at(after, i)) ? 1 : 0;
        }
        return;
    }
    ++likeness.all;
    likeness.same += isSame(field, before, after) ? 1 : 0;
}

// NOLINTEND(misc-no-recursion)

// ---- Lists ----

constexpr auto none = static_cast<std::size_t>(-1);
/// An entry and its counterpart; `none` on one side for one without.
using Pair = std::pair<std::size_t, std::size_t>;

/// Brings the entries of two lists side by side.
class Alignment {
public:
    Alignment(const ReadList& before, const ReadList& after)
        : before_(before), after_(after), entry_(before.entryField()) {}

    std::vector<Pair> pairs() {
        std::size_t first = 0;
        std::size_t last = 0;  // How many behind.
        const std::size_t least = std::min(before_.count(), after_.count());
        while (first < least && isSame(first, first)) ++first;
        while (last < least - first && isSame(before_.count() - 1 - last, after_.count() - 1 - last)) ++last;
        for (std::size_t i = 0; i < first; ++i) pairs_.emplace_back(i, i);
        between(first, before_.count() - last, after_.count() - last);
        for (std::size_t i = last; i > 0; --i) pairs_.emplace_back(before_.count() - i, after_.count() - i);
        return std::move(pairs_);
    }

private:
    [[nodiscard]] bool isSame(std::size_t i, std::size_t k) const {
        return tool::isSame(entry_, before_.entry(i), after_.entry(k));
    }

    /// What two entries have in common; nothing when that is less than half of them.
    [[nodiscard]] std::size_t common(std::size_t i, std::size_t k) const {
        Likeness likeness;
        measure(entry_, before_.entry(i), after_.entry(k), likeness);
        return 2 * likeness.same < likeness.all ? 0 : likeness.same;
    }

    /// Pairs the entries from `first` on so that they have the most in common.
    void between(std::size_t first, std::size_t beforeEnd, std::size_t afterEnd) {
        const std::size_t rows = beforeEnd - first;
        const std::size_t columns = afterEnd - first;
        // Long lists that differ everywhere would take too long: those are compared by their places.
        constexpr std::size_t most = 250'000;
        if (rows != 0 && columns > most / rows) return byPlaces(first, beforeEnd, afterEnd);
        std::vector<std::size_t> most_(rows * columns);
        std::vector<std::size_t> best((rows + 1) * (columns + 1));
        const auto at = [&](std::size_t i, std::size_t k) -> std::size_t& { return best[i * (columns + 1) + k]; };
        for (std::size_t i = rows; i-- > 0;) {
            for (std::size_t k = columns; k-- > 0;) {
                const std::size_t same = common(first + i, first + k);
                most_[i * columns + k] = same;
                at(i, k) = std::max(at(i + 1, k), at(i, k + 1));
                if (same != 0) at(i, k) = std::max(at(i, k), at(i + 1, k + 1) + same);
            }
        }
        for (std::size_t i = 0, k = 0; i < rows || k < columns;) {
            const std::size_t same = i < rows && k < columns ? most_[i * columns + k] : 0;
            if (same != 0 && at(i, k) == at(i + 1, k + 1) + same) {
                pairs_.emplace_back(first + i++, first + k++);
            } else if (k == columns || (i < rows && at(i, k) == at(i + 1, k))) {
                pairs_.emplace_back(first + i++, none);
            } else {
                pairs_.emplace_back(none, first + k++);
            }
        }
    }

    void byPlaces(std::size_t first, std::size_t beforeEnd, std::size_t afterEnd) {
        for (std::size_t i = first; i < std::max(beforeEnd, afterEnd); ++i) {
            pairs_.emplace_back(i < beforeEnd ? i : none, i < afterEnd ? i : none);
        }
    }

    const ReadList& before_;
    const ReadList& after_;
    const Field& entry_;
    std::vector<Pair> pairs_;
};

// ---- Readings ----

class Comparison {
public:
    Comparison(const AnyReading& before, const AnyReading& after, const std::function<void(const Difference&)>& tell)
        : before_(before), after_(after), tell_(tell) {}

    // Records nest as deep as they are declared, so the recursion ends.
    // NOLINTBEGIN(misc-no-recursion)
    void compare(const ShownField& shown, const Side& before, const Side& after) {
        const Field& field = *shown.field;
        const ReadList* const list = before_.list(field);
        if (list != nullptr) return compare(*list, *after_.list(field), before.pointer);
        if (field.type == FieldType::record) {
            for (const Field& inner : field.record->fields) {
                const std::string name = std::string("/").append(inner.name);
                compare({field.record, &inner}, {before.pointer + name, field.at(before.record)},
                        {after.pointer + name, field.at(after.record)});
            }
            return;
        }
        const bool wasThere = isThere(before_, field, before.record);
        const bool isThereNow = isThere(after_, field, after.record);
        if (!isSame(field, before.record, after.record) || wasThere != isThereNow) {
            tell_({shown,
                   {before.pointer, wasThere ? before.record : nullptr},
                   {after.pointer, isThereNow ? after.record : nullptr}});
        }
    }

private:
    void compare(const ReadList& before, const ReadList& after, const std::string& pointer) {
        const Field& entry = before.entryField();
        for (const auto& [i, k] : Alignment(before, after).pairs()) {
            const auto side = [&](const ReadList& list, std::size_t index) -> Side {
                if (index == none) return {pointer, nullptr};
                return {pointer + "/" + std::to_string(index), list.entry(index)};
            };
            const Side was = side(before, i);
            const Side is = side(after, k);
            if (was.record != nullptr && is.record != nullptr) {
                compare({nullptr, &entry}, was, is);
            } else {
                tell_({{nullptr, &entry}, was, is});
            }
        }
    }
    // NOLINTEND(misc-no-recursion)

    /// Whether a reply had something for a field. What is in an entry of a list, or is a single bit, always counts.
    static bool isThere(const AnyReading& reading, const Field& field, const void* record) {
        if (field.type == FieldType::bit) return true;
        const auto* const first = static_cast<const std::byte*>(field.at(record));
        const auto at = static_cast<std::size_t>(first - reading.record.data());
        if (std::less<>()(first, reading.record.data()) || at >= reading.record.size()) return true;
        return reading.has(at, field.size) ||
               std::any_of(first, first + field.size, [](std::byte byte) { return byte != std::byte{}; });
    }

    const AnyReading& before_;
    const AnyReading& after_;
    const std::function<void(const Difference&)>& tell_;
};

}  // namespace

void compare(const AnyReading& before, const AnyReading& after, const std::string& pointer,
             const std::function<void(const Difference&)>& tell) {
    const Field& record = before.message->record;
    const std::string inside = record.name.empty() ? pointer : pointer + "/" + std::string(record.name);
    Comparison(before, after, tell)
        .compare({nullptr, &record}, {inside, before.record.data()}, {inside, after.record.data()});
}

}  // namespace kvj::tool
