#include "field_codes.h"

#include <algorithm>
#include <set>
#include <utility>

#include "devicecontrol/tables.h"
#include "face/nearest.h"
#include "field_rows.h"

namespace kvj::tool {

namespace {

// Commands have no rows: their words by their arguments. A motor takes any other state and direction as one of these.
constexpr WordTable motorStates{0, {{"off", 0}, {"on", 1}}};
constexpr WordTable motorDirections{1, {{"forward", 0}, {"reverse", 1}}};

struct ArgumentWords {
    std::string_view record;
    std::string_view field;
    Words words;
};
constexpr ArgumentWords argumentWords[] = {
    {"Motor", "state", motorStates},
    {"Motor", "direction", motorDirections},
    {"Motor", "motor", devicecontrol::motors},
    {"MotorMode", "mode", devicecontrol::motorModes},
    {"Calibrate", "calibration", devicecontrol::calibrations},
    {"Rfid", "mode", devicecontrol::rfidModes},
};

bool hasWords(const DescribedRow* row) { return !row->description.words.name.empty(); }

/// The row that a value is read with: that of a list of codes is the row of its entries.
const DescribedRow* rowOfValue(const DescribedRow* row) {
    const auto& group = row->description.group;
    const bool isOfValues = row->description.kind == Kind::list && group.size() == 1 && hasWords(&group.front());
    return isOfValues ? &group.front() : row;
}

}  // namespace

FieldCodes::FieldCodes(std::string_view record, std::string_view field) {
    const auto read = rowsFor(rowsOfMessages(), record, field);
    const auto written = rowsFor(rowsOfRequests(), record, field);
    const auto add = [&](const DescribedRow* described) {
        const DescribedRow* const row = rowOfValue(described);
        // The code beside a text is another field's.
        if (!hasWords(row) || row->description.kind == Kind::textAndCode) return;
        tables_.push_back(row->description.words.words);
        areBits_ = areBits_ || row->description.kind == Kind::bits;
    };
    std::ranges::for_each(read, add);
    isLeftAlone_ = std::ranges::any_of(tables_, [](const Words& words) { return !words.other; });
    const bool isRead = std::ranges::any_of(read, hasWords);
    for (const DescribedRow* row : written) {
        if (hasWords(row)) written_.push_back(row->description.words.words);
        // An element that is read as another field has other words for the same code.
        if (!isRead || std::ranges::find(read, row->name, &DescribedRow::name) != read.end()) add(row);
    }
    for (const ArgumentWords& argument : argumentWords) {
        if (argument.record != unqualified(record) || argument.field != field) continue;
        tables_.push_back(argument.words);
        sentOtherwise_ = argument.words.other;
    }
}

bool FieldCodes::zeroMayBeUnread() const { return isLeftAlone_ && !areBits_ && !wordOf(0).empty(); }

std::optional<std::int64_t> FieldCodes::codeOf(const std::string& word) const {
    for (const Words& table : tables_) {
        // A part of a text is enough in replies alone.
        const Match match = table.match == Match::part ? Match::whole : table.match;
        if (const auto code = kvj::codeOf({table.rows, std::nullopt, match}, word.c_str())) return code;
    }
    return {};
}

std::string FieldCodes::wordOf(std::int64_t code) const {
    if (!std::in_range<int>(code)) return {};
    for (const Words& table : tables_) {
        if (const char* const word = kvj::wordOf(table, static_cast<int>(code))) return word;
    }
    return {};
}

std::string FieldCodes::wordSentFor(std::int64_t code) const {
    const std::string word = wordOf(code);
    return word.empty() && sentOtherwise_ ? wordOf(*sentOtherwise_) : word;
}

std::string FieldCodes::listed() const {
    std::string text;
    std::set<int> seen;
    const auto isSent = [&](int code) {
        return std::ranges::all_of(written_, [&](const Words& table) { return kvj::wordOf(table, code) != nullptr; });
    };
    for (const Words& table : tables_) {
        for (const auto& [word, code] : table.rows) {
            if (!seen.insert(code).second || !isSent(code)) continue;
            text.append(text.empty() ? "" : ", ").append(word).append(" ").append(std::to_string(code));
        }
    }
    return text;
}

std::string FieldCodes::nearest(std::string_view word) const {
    std::vector<Word> all;
    for (const Words& table : tables_) all.insert(all.end(), table.rows.begin(), table.rows.end());
    return std::string(kvj::nearest(word, all, [](const Word& row) { return std::string_view(row.word); }));
}

}  // namespace kvj::tool
