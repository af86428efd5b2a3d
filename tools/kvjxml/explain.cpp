#include "explain.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <iostream>
#include <optional>
#include <set>
#include <string_view>
#include <vector>

#include "code_words.h"
#include "columns.h"
#include "failure.h"
#include "field_comments.h"
#include "field_rows.h"
#include "fields/records.h"
#include "foundation/convert.h"
#include "messages/message.h"
#include "messages/request.h"
#include "places.h"
#include "suggestion.h"

namespace kvj::tool {

namespace {

// ---- Names ----

/// A path of a finding without what counts brothers: "/get_job_list/job[2]/uuid" is "/get_job_list/job/uuid".
std::string withoutIndexes(std::string_view path) {
    std::string plain;
    bool isInside = false;
    for (const char c : path) {
        isInside = isInside ? c != ']' : c == '[';
        if (!isInside && c != ']') plain += c;
    }
    return plain;
}

/// "Kavrin::KVGeneralStatus" by any of its last parts.
bool isLastOf(std::string_view name, std::string_view qualified) {
    return qualified == name ||
           (qualified.ends_with(name) && qualified.substr(0, qualified.size() - name.size()).ends_with("::"));
}

std::string fieldName(const FieldName& field) {
    if (field.empty()) return {};
    return std::string(field.record).append("::").append(field.name);
}

/// For people the marks of Markdown are quotation marks.
std::string quoted(std::string text) {
    std::ranges::replace(text, '`', '"');
    return text;
}

// ---- What there is, by names ----

using FoundPlaces = std::vector<const ElementPlace*>;

template <class Wanted>
FoundPlaces placesWhere(Wanted wanted) {
    FoundPlaces places;
    for (const ElementPlace& place : elementPlaces()) {
        if (wanted(place)) places.push_back(&place);
    }
    return places;
}

/// A field of a record.
struct NamedField {
    const RecordType* record;
    const Field* field;
};

/// The fields of that name, which may have its record in front.
std::vector<NamedField> fieldsNamed(std::string_view name) {
    std::vector<NamedField> found;
    for (const RecordType* const record : recordTypes()) {
        for (const Field& field : record->fields) {
            const std::string qualified = std::string(record->name).append("::").append(field.name);
            if (isLastOf(name, qualified)) found.push_back({record, &field});
        }
    }
    return found;
}

FoundPlaces placesOf(const NamedField& known) {
    return placesWhere(
        [&](const ElementPlace& place) { return isFor(*place.row, known.record->name, known.field->name); });
}

FoundPlaces placesNamed(std::string_view name) {
    const std::string path = withoutIndexes(name);
    return placesWhere([&](const ElementPlace& place) { return place.row->name == path || place.path == path; });
}

/// The tables of words of these places, each once.
using CodeTables = std::vector<CodeTable>;

void add(CodeTables& tables, const Description& row) {
    const auto table = codeTable(row);
    if (table && std::ranges::none_of(tables, [&](const CodeTable& each) { return each.is(row.words); })) {
        tables.push_back(*table);
    }
}

template <class PointersToPlaces>
CodeTables tablesOf(const PointersToPlaces& places) {
    CodeTables tables;
    for (const ElementPlace* const place : places) add(tables, place->row->description);
    return tables;
}

CodeTables allTables() {
    return tablesOf(placesWhere([](const ElementPlace& /*place*/) { return true; }));
}

CodeTables tablesNamed(std::string_view name) {
    CodeTables tables = allTables();
    std::erase_if(tables, [&](const CodeTable& table) { return !isLastOf(name, table.words->name); });
    return tables;
}

// ---- Codes and words ----

std::optional<std::int64_t> numberIn(std::string_view text) {
    const bool isHexadecimal = text.starts_with("0x");
    if (isHexadecimal) text.remove_prefix(2);
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, isHexadecimal ? 16 : 10);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return number;
}

/// The bits of a number, "0x8000 + 0x2".
std::string bitsOf(std::uint64_t number) {
    std::string text;
    for (int bit = 63; bit >= 0; --bit) {
        const std::uint64_t one = std::uint64_t{1} << bit;
        if ((number & one) != 0) text.append(text.empty() ? "" : " + ").append(inHexadecimal(one));
    }
    return text;
}

std::string listed(const std::vector<std::string>& parts, std::string_view between) {
    std::string text;
    for (const std::string& part : parts) text.append(&part == parts.data() ? "" : between).append(part);
    return text;
}

/// What a code stands for.
std::string meaningOf(const CodeTable& table, std::int64_t code) {
    std::string words = wordsOf(table, code);
    if (!words.empty()) return words;
    return table.rows().other == code ? "any other word" : "no word has this code";
}

/// The code that a word becomes.
std::string codeOfWord(const CodeTable& table, const std::string& word) {
    const Words& words = table.rows();
    if (const auto code = codeOf({words.rows, std::nullopt, words.match}, word.c_str())) return std::to_string(*code);
    const std::string becomes =
        words.other ? "it becomes " + std::to_string(*words.other) : std::string("it leaves the field alone");
    const auto nearestWord = nearest(word, words.rows, [](const Word& row) { return std::string_view(row.word); });
    return "there is no word \"" + visible(word) + "\", and " + becomes + meant(nearestWord);
}

/// Of a value that is no code.
std::string meaningOf(const Description& row, const std::string& value) {
    const auto truth = [](bool isTrue) { return isTrue ? std::string("true") : std::string("false"); };
    if (row.kind == Kind::flag) return truth(convert::isTrue(value.c_str()));
    if (row.kind == Kind::isWord) return truth(value == row.word);
    if (row.kind == Kind::isNotWord) return truth(value != row.word);
    const auto number = numberIn(value);
    if (row.kind != Kind::number || !number)
        return "not a code; it is read as: " + quoted(inWords(row, Direction::read));
    const auto bits = static_cast<std::uint64_t>(*number);
    if (row.number.base == Base::decimal) return std::to_string(*number) + ", a number without words";
    return std::to_string(*number) + " = " + inHexadecimal(bits) + (bits == 0 ? "" : ", the bits " + bitsOf(bits));
}

std::string meaningOf(const CodeTable& table, const std::string& value) {
    const auto code = numberIn(value);
    return code ? meaningOf(table, *code) : codeOfWord(table, value);
}

// ---- What is printed ----

class Explanation {
public:
    explicit Explanation(std::ostream& out) : out_(out) {}

    void title(const std::string& text) {
        if (isBegun_) out_ << '\n';
        isBegun_ = true;
        out_ << text << '\n';
    }
    void line(std::string_view text) {
        if (!text.empty()) out_ << "    " << text << '\n';
    }
    void columns(const std::vector<Cells>& rows) { printColumns(out_, rows, 4); }

    void rows(std::span<const DescribedRow> table, Direction direction) {
        std::vector<Cells> cells;
        collect(table, "", direction, cells);
        columns(cells);
    }

    void places(const FoundPlaces& places) {
        std::vector<Cells> cells;
        for (const ElementPlace* const place : places) {
            const bool isRead = place->direction == Direction::read;
            cells.push_back({std::string(place->operation) + (isRead ? " reads" : " writes"), place->path,
                             quoted(inWords(place->row->description, place->direction))});
        }
        columns(cells);
    }

    void words(const CodeTables& tables) {
        for (const auto& [table, isOfBits] : tables) {
            line(std::string(table->name) + (isOfBits ? ", bits that are added up:" : ":"));
            std::vector<Cells> cells;
            for (const Word& row : table->words.rows) cells.push_back({"", std::to_string(row.code), row.word});
            if (table->words.other) cells.push_back({"", std::to_string(*table->words.other), "(any other word)"});
            columns(cells);
        }
    }

    [[nodiscard]] bool isBegun() const { return isBegun_; }

private:
    // Groups nest as deep as the tables are written, so the recursion ends. NOLINTNEXTLINE(misc-no-recursion)
    void collect(std::span<const DescribedRow> table, const std::string& path, Direction direction,
                 std::vector<Cells>& cells) {
        for (const DescribedRow& row : table) {
            const std::string element = path + std::string(row.name);
            cells.push_back({element, std::string(row.description.field.name),
                             quoted(inWords(row.description, direction)), quoted(whenWritten(row))});
            collect(row.description.group, element + "/", direction, cells);
        }
    }

    std::ostream& out_;
    bool isBegun_ = false;
};

/// What a field holds.
std::string typeOf(const Field& field) {
    switch (field.type) {
        case FieldType::flag:
        case FieldType::bit:
            return "true or false";
        case FieldType::number:
            return "a number of " + std::to_string(8 * field.size) + " bits" +
                   (field.isSigned ? "" : ", without a sign");
        case FieldType::decimal:
            return "a number with a decimal point";
        case FieldType::text:
            return "a text of at most " + std::to_string(field.size - 1) + " bytes";
        case FieldType::hardwareAddress:
            return "a hardware address";
        case FieldType::ipAddress:
            return "an IPv4 address";
        case FieldType::hostText:
            return "a text";
        case FieldType::record:
            return "a record, " + std::string(field.record->name);
        case FieldType::list:
            return "a list";
    }
    return {};
}

void explainMessages(Explanation& out, std::string_view name) {
    for (const Message& message : messages()) {
        if (name != message.root && name != message.name && (message.otherRoot.empty() || name != message.otherRoot))
            continue;
        const bool isRecord = message.record.record != nullptr;
        const std::string root =
            std::string(message.root) + (message.otherRoot.empty() ? "" : " or " + std::string(message.otherRoot));
        out.title(root + ": a message, " + std::string(message.name) + ", read by " + std::string(message.operation) +
                  (isRecord ? " into " + std::string(message.record.record->name) : ""));
        if (isRecord) out.line(commentOf(message.record.record->name));
        out.rows(message.table, Direction::read);
    }
}

void explainRequests(Explanation& out, std::string_view name) {
    for (const Request& request : requests()) {
        if (name != request.name && name != request.operation) continue;
        out.title(std::string(request.name) + ": a request, written by " + std::string(request.operation) + " from " +
                  std::string(request.record->name));
        if (!request.table.empty()) return out.rows(request.table, Direction::written);
        std::vector<Cells> fields;
        for (const Field& field : request.record->fields) fields.push_back({std::string(field.name), typeOf(field)});
        out.columns(fields);
    }
}

void explainRecords(Explanation& out, std::string_view name) {
    for (const RecordType* const record : recordTypes()) {
        if (!isLastOf(name, record->name)) continue;
        out.title(std::string(record->name) + ": a record");
        out.line(commentOf(record->name));
        std::vector<Cells> fields;
        for (const Field& field : record->fields) fields.push_back({std::string(field.name), typeOf(field)});
        out.columns(fields);
    }
}

void explainFields(Explanation& out, std::string_view name) {
    for (const NamedField& known : fieldsNamed(name)) {
        out.title(std::string(known.field->name) + ": a field of " + std::string(known.record->name) + ", " +
                  typeOf(*known.field));
        out.line(commentOf(known.record->name, known.field->name));
        const FoundPlaces places = placesOf(known);
        out.places(places);
        out.words(tablesOf(places));
    }
}

void explainElements(Explanation& out, std::string_view name) {
    const FoundPlaces places = placesNamed(name);
    if (places.empty()) return;
    out.title(std::string(places.front()->row->name) + ": an element");
    out.places(places);
    std::set<std::pair<std::string_view, std::string_view>> told;
    for (const ElementPlace* const place : places) {
        const FieldName& field = place->row->description.field;
        if (field.empty() || !told.insert({field.record, field.name}).second) continue;
        const std::string_view comment = commentOf(field.record, field.name);
        if (!comment.empty()) out.line(fieldName(field) + ": " + std::string(comment));
    }
    if (places.size() == 1) out.rows(places.front()->row->description.group, places.front()->direction);
    out.words(tablesOf(places));
}

void explainTables(Explanation& out, std::string_view name) {
    for (const CodeTable& table : tablesNamed(name)) {
        out.title(std::string(table.words->name) + ": a table of words");
        out.words({table});
    }
}

/// The fields that have codes of a table.
std::vector<std::string> fieldsWith(const CodeTable& table) {
    std::vector<std::string> fields;
    for (const ElementPlace& place : elementPlaces()) {
        const Description& row = place.row->description;
        if (!table.is(row.words)) continue;
        const FieldName& field = row.kind == Kind::textAndCode ? row.otherField : row.field;
        const std::string name = field.empty() ? place.path : fieldName(field);
        if (std::ranges::find(fields, name) == fields.end()) fields.push_back(name);
    }
    return fields;
}

void explainWord(Explanation& out, const std::string& word) {
    std::vector<Cells> cells;
    for (const CodeTable& table : allTables()) {
        const Words& words = table.rows();
        if (const auto code = codeOf({words.rows, std::nullopt, Match::whole}, word.c_str())) {
            cells.push_back({std::to_string(*code), std::string(table.words->name), listed(fieldsWith(table), ", ")});
        }
    }
    if (cells.empty()) return;
    out.title(visible(word) + ": a word");
    out.columns(cells);
}

void explainName(Explanation& out, const std::string& name) {
    explainMessages(out, name);
    explainRequests(out, name);
    explainRecords(out, name);
    explainFields(out, name);
    explainElements(out, name);
    explainTables(out, name);
    explainWord(out, name);
}

// ---- Of a value ----

/// The same value can be read by several rows of a field.
void explainValue(Explanation& out, const std::string& subject, const FoundPlaces& places, const std::string& value) {
    const std::string title = subject + " " + visible(value) + ": ";
    std::set<std::string> meanings;
    for (const ElementPlace* const place : places) {
        const Description& row = place->row->description;
        if (!hasOwnValue(row.kind) || place->direction == Direction::written) continue;
        CodeTables tables;
        add(tables, row);
        const std::string meaning = tables.empty() ? meaningOf(row, value) : meaningOf(tables.front(), value);
        if (meanings.insert(meaning).second) out.title(title + meaning);
    }
}

void explainValue(Explanation& out, const std::string& name, const std::string& value) {
    for (const NamedField& known : fieldsNamed(name)) {
        const std::string subject = std::string(known.record->name) + "::" + std::string(known.field->name);
        explainValue(out, subject, placesOf(known), value);
    }
    if (out.isBegun()) return;
    explainValue(out, name, placesNamed(name), value);
    for (const CodeTable& table : tablesNamed(name)) {
        out.title(std::string(table.words->name) + " " + visible(value) + ": " + meaningOf(table, value));
    }
}

// ---- All that there is ----

void list(Explanation& out) {
    out.title("Messages");
    std::vector<Cells> cells;
    for (const Message& message : messages()) {
        const bool isRecord = message.record.record != nullptr;
        const std::string comment(isRecord ? commentOf(message.record.record->name) : "");
        cells.push_back({std::string(message.root), std::string(message.name), comment.substr(0, comment.find(':'))});
    }
    out.columns(cells);
    out.title("Requests");
    cells.clear();
    for (const Request& request : requests())
        cells.push_back({std::string(request.name), std::string(request.operation)});
    out.columns(cells);
    out.title("Tables of words");
    cells.clear();
    for (const CodeTable& table : allTables()) {
        std::vector<std::string> words;
        for (const Word& row : table.rows().rows) words.emplace_back(row.word);
        cells.push_back({std::string(table.words->name), listed(words, ", ")});
    }
    out.columns(cells);
    out.title("And each record, field, element and word of these: explain a message to see them.");
}

/// Every name that something has.
std::set<std::string> allNames() {
    std::set<std::string> names;
    for (const Message& message : messages())
        names.insert({std::string(message.root), std::string(message.otherRoot), std::string(message.name)});
    for (const Request& request : requests()) names.emplace(request.name);
    for (const ElementPlace& place : elementPlaces()) names.emplace(place.row->name);
    for (const RecordType* const record : recordTypes()) {
        names.emplace(unqualified(record->name));
        for (const Field& field : record->fields) names.emplace(field.name);
    }
    for (const CodeTable& table : allTables()) {
        names.emplace(unqualified(table.words->name));
        for (const Word& row : table.rows().rows) names.emplace(row.word);
    }
    return names;
}

}  // namespace

ExitCode explain(const std::string& name, const std::string& value) {
    Explanation out(std::cout);
    if (name.empty()) {
        list(out);
    } else if (value.empty()) {
        explainName(out, name);
    } else {
        explainValue(out, name, value);
    }
    if (out.isBegun()) return ExitCode::done;
    explainName(out, name);
    if (out.isBegun()) return ExitCode::done;
    throw Failure(ExitCode::usage, unknown("name", name, allNames()));
}

}  // namespace kvj::tool
