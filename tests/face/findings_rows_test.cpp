// Every row of every table: a value that fits it is told of by nobody, and each fault that it can have is found once,
// in its place.
#include <SecurityRecords.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <kvjxml_read.hpp>
#include <ostream>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "face/findings_in.h"
#include "fields/records.h"
#include "messages/message.h"
#include "support/readings.h"

namespace findings_rows_test {

namespace {

using namespace kvj;
using namespace kvj::tests;
using Found = kvjxml::finding_kind;
using testing::ElementsAreArray;

// ---- The rows ----

/// A row, and the rows of the elements around it.
struct Place {
    const Message* message;
    std::vector<const DescribedRow*> rows;

    [[nodiscard]] const DescribedRow& row() const { return *rows.back(); }
    [[nodiscard]] const Description& description() const { return row().description; }
    [[nodiscard]] std::string path() const {
        std::string text = "/" + std::string(message->root);
        for (const DescribedRow* const each : rows) text.append("/").append(each->name);
        return text;
    }
};

void PrintTo(const Place& place, std::ostream* out) { *out << place.message->name << ": " << place.path(); }

// Tables nest as deep as they are declared, so the recursion ends.
// NOLINTNEXTLINE(misc-no-recursion)
void addRows(Place& place, std::span<const DescribedRow> rows, std::vector<Place>& all) {
    for (const DescribedRow& row : rows) {
        place.rows.push_back(&row);
        all.push_back(place);
        addRows(place, row.description.group, all);
        place.rows.pop_back();
    }
}

std::vector<Place> allPlaces() {
    std::vector<Place> all;
    for (const Message& message : messages()) {
        if (!tellsOfOneRecord(message)) continue;
        Place place{&message, {}};
        addRows(place, message.table, all);
    }
    return all;
}

/// Runs a check on each row of these kinds, and of any other name than the checks before.
template <class Check>
void withRows(std::initializer_list<Kind> kinds, Check check) {
    std::size_t count = 0;
    for (const Place& place : allPlaces()) {
        if (std::ranges::find(kinds, place.description().kind) == kinds.end()) continue;
        SCOPED_TRACE(testing::PrintToString(place));
        check(place);
        ++count;
    }
    EXPECT_GT(count, 0U);
}

constexpr auto wholeNumbers = {Kind::number};
constexpr auto settings = {Kind::setting, Kind::decimalSetting};
constexpr auto numbers = {Kind::number, Kind::decimal, Kind::setting, Kind::decimalSetting};
constexpr auto texts = {Kind::text, Kind::textWithoutWord};
constexpr auto words = {Kind::word, Kind::bits, Kind::combinedCodes, Kind::wordOrNext, Kind::flag};
constexpr auto containers = {Kind::group,      Kind::part,     Kind::list,          Kind::entry,
                             Kind::firstEntry, Kind::newEntry, Kind::byDescription, Kind::wordOfPanels};
/// All whose first child is read.
constexpr auto values = {
    Kind::number,          Kind::decimal,     Kind::setting,      Kind::decimalSetting, Kind::text,
    Kind::textWithoutWord, Kind::textAndCode, Kind::appendedText, Kind::word,           Kind::bits,
    Kind::combinedCodes,   Kind::wordOrNext,  Kind::flag,         Kind::isWord,         Kind::isNotWord,
    Kind::hardwareAddress, Kind::ipAddress};

// ---- Replies with one element ----

/// An element with this in it; its attributes say what is right.
std::string element(const DescribedRow& row, std::string_view content) {
    const std::string name(row.name);
    const Kind kind = row.description.kind;
    std::string text = "<" + name;
    if (kind == Kind::setting || kind == Kind::decimalSetting) text += " min=\"0\" max=\"9\"";
    if (kind == Kind::attribute) text.append(" ").append(row.description.word).append("=\"5\"");
    return text.append(">").append(content).append("</").append(name).append(">");
}

/// A value that a row reads as it stands.
std::string rightValue(const Place& place) {
    const Description& row = place.description();
    switch (row.kind) {
        case Kind::number:
            return row.number.base == Base::hexadecimal ? "0x7" : "7";
        case Kind::decimal:
        case Kind::decimalSetting:
            return "1.5";
        case Kind::setting:
            return "5";
        case Kind::text:
        case Kind::textWithoutWord:
            return "a";
        case Kind::textAndCode:
        case Kind::word:
        case Kind::bits:
        case Kind::combinedCodes:
        case Kind::wordOrNext:
            return row.words.words.rows.front().word;
        case Kind::appendedText:  // The only panel, so it is the word of the whole.
            return place.rows[place.rows.size() - 2]->description.words.words.rows.front().word;
        case Kind::flag:
            return "yes";
        case Kind::isWord:
        case Kind::isNotWord:
            return std::string(row.word);
        case Kind::hardwareAddress:
            return "00:1a:2b:3c:4d:5e";
        case Kind::ipAddress:
            return "192.168.1.20";
        default:
            return {};
    }
}

std::string rightElement(const Place& place) { return element(place.row(), rightValue(place)); }

/// Where the element of a place begins in the reply around it.
constexpr std::size_t column = 4;
std::size_t lineOf(const Place& place) { return place.rows.size() + 1; }

/// What is in front of the element, each tag on its own line. A directive has the name of its action there.
std::string before(const Place& place) {
    std::string text = "<" + std::string(place.message->root) + ">";
    if (place.message->name == "secure_directive") text += "lock_printer";
    text += "\n";
    for (const DescribedRow* const row : std::span(place.rows).first(place.rows.size() - 1)) {
        text.append("<").append(row->name).append(">\n");
    }
    return text + std::string(column - 1, ' ');
}
std::string behind(const Place& place) {
    std::string text;
    for (std::size_t i = place.rows.size() - 1; i > 0; --i) {
        text.append("\n</").append(place.rows[i - 1]->name).append(">");
    }
    return text + "\n</" + std::string(place.message->root) + ">\n";
}
std::string reply(const Place& place, const std::string& content) { return before(place) + content + behind(place); }

// ---- What is expected ----

struct Expected {
    Found kind;
    std::size_t line;
    std::size_t column;
    std::string path;
    std::string field;
    bool operator==(const Expected&) const = default;
};
void PrintTo(const Expected& expected, std::ostream* out) {
    *out << to_string(expected.kind) << ' ' << expected.line << ':' << expected.column << ' ' << expected.path << ' '
         << expected.field;
}

kvjxml::severity severityOf(Found kind) {
    static const std::set<Found> warnings{Found::no_text, Found::attribute, Found::repeated, Found::beyond_capacity,
                                          Found::ignored};
    if (kind == Found::unknown_element) return kvjxml::severity::note;
    return warnings.contains(kind) ? kvjxml::severity::warning : kvjxml::severity::error;
}

/// The field of a row as hosts know it.
std::string fieldOf(const Place& place) {
    const FieldName& field = place.description().field;
    const Message& message = *place.message;
    const auto named = [](std::string_view record, std::string_view name) {
        return std::string(record) + "::" + std::string(name);
    };
    if (message.name == "cards_until_cleaning") return "kvjxml::cleaning_count::cards";
    if (field.empty()) return {};
    if (field.name == "printer_interim_key") {
        return message.name == "printer_key" ? "kvjxml::printer_interim_key::key" : "";
    }
    for (const RecordType* const record : recordTypes()) {
        if (record->name == field.record || record->name.ends_with("::" + std::string(field.record))) {
            return named(record->name, field.name);
        }
    }
    return "of no record";
}

/// A finding about the element of a place itself.
Expected here(Found kind, const Place& place) { return {kind, lineOf(place), column, place.path(), fieldOf(place)}; }
/// About something of it that begins so many bytes behind its beginning.
Expected inside(Found kind, const Place& place, std::size_t offset) {
    return {kind, lineOf(place), column + offset, place.path(), ""};
}

void expectFindings(const Place& place, const std::string& text, const std::vector<Expected>& expected) {
    const auto findings = findingsIn(*place.message, text);
    std::vector<Expected> found;
    for (const auto& one : findings) {
        found.push_back({one.kind, one.line, one.column, one.path, one.field});
        EXPECT_EQ(one.level, severityOf(one.kind));
    }
    EXPECT_THAT(found, ElementsAreArray(expected)) << text << testing::PrintToString(toldOf(findings));
}

/// The only finding's detail.
std::string detailOf(const Place& place, const std::string& text) {
    const auto findings = findingsIn(*place.message, text);
    return findings.size() == 1 ? findings.front().detail : "not one finding";
}

// ---- What is right ----

TEST(EveryRow, IsReadWithoutAFinding) {
    for (const Place& place : allPlaces()) {
        SCOPED_TRACE(testing::PrintToString(place));
        expectFindings(place, reply(place, rightElement(place)), {});
    }
}

/// Where the record of a row is in a message's record; null where its entries lie elsewhere.
const std::byte* recordOf(const Place& place, const std::byte* record) {
    for (const DescribedRow* const row : std::span(place.rows).first(place.rows.size() - 1)) {
        const Description& around = row->description;
        switch (around.kind) {
            case Kind::part:
                record = static_cast<const std::byte*>(around.field.at(record));
                break;
            case Kind::byDescription:  // Without a description it is the second.
                record = static_cast<const std::byte*>(around.otherField.at(record));
                break;
            case Kind::list:
            case Kind::entry:
            case Kind::firstEntry:
            case Kind::newEntry:
                return nullptr;
            default:
                break;
        }
    }
    return record;
}

TEST(EveryRow, MarksItsOwnFieldAndNoOther) {
    for (const Place& place : allPlaces()) {
        const Message& message = *place.message;
        if (message.root == "diffie_hellman") continue;  // Each reader has a part of what is read.
        SCOPED_TRACE(testing::PrintToString(place));
        const AnyReading reading = readAny(message, reply(place, rightElement(place)));
        std::set<std::size_t> expected;
        if (message.name == "secure_directive") expected.insert(offsetof(Kavrin::_tagSecDirecXML, action));
        const std::byte* const record = recordOf(place, reading.record.data());
        const auto expectField = [&](const FieldName& field, std::initializer_list<std::size_t> parts) {
            if (record == nullptr || (field.at == nullptr && !field.empty())) return;
            const void* const at = field.empty() ? record : field.at(record);
            const auto first = static_cast<std::size_t>(static_cast<const std::byte*>(at) - reading.record.data());
            for (const std::size_t part : parts) expected.insert(first + part);
        };
        const Description& row = place.description();
        if (std::ranges::find(settings, row.kind) != settings.end()) {
            expectField(row.field, {0, sizeof(int), 2 * sizeof(int)});
        } else if (row.kind == Kind::attribute || std::ranges::find(values, row.kind) != values.end()) {
            expectField(row.field, {0});
            if (row.kind == Kind::textAndCode) expectField(row.otherField, {0});
            // Panels make a code.
            if (row.kind == Kind::appendedText) expectField(place.rows[place.rows.size() - 2]->description.field, {0});
        }
        std::set<std::size_t> marked;
        for (std::size_t at = 0; at < reading.record.size(); ++at) {
            if (reading.has(at)) marked.insert(at);
        }
        EXPECT_EQ(marked, expected);
    }
}

// ---- Numbers ----

TEST(EveryNumber, ThatIsNoneIsFound) {
    withRows(numbers, [](const Place& place) {
        for (const char* const wrong : {"abc", "-", ".", "x7"}) {
            expectFindings(place, reply(place, element(place.row(), wrong)), {here(Found::not_a_number, place)});
        }
    });
}

TEST(EveryNumber, WithARestIsFound) {
    withRows(numbers, [](const Place& place) {
        const std::string text = reply(place, element(place.row(), rightValue(place) + " V"));
        expectFindings(place, text, {here(Found::trailing_text, place)});
    });
}

TEST(EveryNumber, ThatItsFieldCannotHoldIsFound) {
    withRows(numbers, [](const Place& place) {
        const Description& row = place.description();
        const bool isDecimal = row.kind == Kind::decimal || row.kind == Kind::decimalSetting;
        if (row.number.digits != 0) return;  // It holds all that it reads.
        const std::string huge = isDecimal                              ? "1e99"
                                 : row.number.base == Base::hexadecimal ? "0x1ffffffffffffffff"
                                                                        : "99999999999999999999";
        expectFindings(place, reply(place, element(place.row(), huge)), {here(Found::out_of_range, place)});
    });
}

TEST(EveryNumber, WithAPlusBeforeItIsRight) {
    withRows(numbers, [](const Place& place) {
        if (place.description().number.base == Base::hexadecimal) return;  // Nothing stands in front of "0x".
        expectFindings(place, reply(place, element(place.row(), "+" + rightValue(place))), {});
    });
}

TEST(EveryWholeNumber, UpToTheMostThatItsFieldHoldsIsRight) {
    withRows({Kind::number}, [](const Place& place) {
        const Number& number = place.description().number;
        if (number.digits != 0) return;
        const int bits = number.isSigned ? number.bits - 1 : number.bits;
        const std::uint64_t most = ~std::uint64_t{0} >> (64 - bits);
        const bool isHexadecimal = number.base == Base::hexadecimal;
        const auto with = [&](std::uint64_t value) {
            std::ostringstream text;
            text << std::showbase << (isHexadecimal ? std::hex : std::dec) << value;
            return reply(place, element(place.row(), text.str()));
        };
        expectFindings(place, with(most), {});
        if (bits < 64) expectFindings(place, with(most + 1), {here(Found::out_of_range, place)});
    });
}

TEST(EveryWholeNumber, BelowZeroIsFoundWhereItsFieldHasNoSign) {
    withRows(wholeNumbers, [](const Place& place) {
        const Number& number = place.description().number;
        if (number.isSigned || number.base != Base::decimal) return;
        expectFindings(place, reply(place, element(place.row(), "-1")), {here(Found::out_of_range, place)});
    });
}

TEST(EverySetting, OutsideItsRangeIsFound) {
    withRows(settings, [](const Place& place) {
        expectFindings(place, reply(place, element(place.row(), "10")), {here(Found::clamped, place)});
        expectFindings(place, reply(place, element(place.row(), "-1")), {here(Found::clamped, place)});
        expectFindings(place, reply(place, element(place.row(), "0")), {});
        expectFindings(place, reply(place, element(place.row(), "9")), {});
    });
}

TEST(EverySetting, ThatItsFieldCannotHoldIsFoundWithTheReason) {
    withRows(settings, [](const Place& place) {
        const bool isWhole = place.description().kind == Kind::setting;
        EXPECT_EQ(detailOf(place, reply(place, element(place.row(), isWhole ? "99999999999" : "1e99"))),
                  isWhole ? "the field has 32 bits" : "the field is a float");
    });
}

TEST(EverySetting, WithoutARangeThatCanBeReadIsFound) {
    withRows(settings, [](const Place& place) {
        const std::string name(place.row().name);
        const auto with = [&](const std::string& attributes) {
            return reply(place, "<" + name + attributes + ">0</" + name + ">");
        };
        const auto attribute = [&](const char* which) {
            Expected expected = here(Found::attribute, place);
            expected.path += std::string("/@") + which;
            return expected;
        };
        expectFindings(place, with(" max='9'"), {attribute("min")});
        expectFindings(place, with(" min='0'"), {attribute("max")});
        expectFindings(place, with(""), {attribute("min"), attribute("max")});
        expectFindings(place, with(" min='x' max='9'"), {attribute("min")});
        expectFindings(place, with(" min='0' max='9V'"), {attribute("max")});
        if (place.description().kind == Kind::setting) {
            expectFindings(place, with(" min='0' max='99999999999'"), {attribute("max")});
        }
    });
}

TEST(EveryAttribute, ThatIsMissingOrNoNumberIsFound) {
    withRows({Kind::attribute}, [](const Place& place) {
        const std::string name(place.row().name);
        const std::string attribute(place.description().word);
        Expected expected = here(Found::attribute, place);
        expected.path += "/@" + attribute;
        expectFindings(place, reply(place, "<" + name + "/>"), {expected});
        for (const char* const wrong : {"", "x", "5 V", "99999999999"}) {
            const std::string text = reply(place, "<" + name + " " + attribute + "=\"" + wrong + "\"/>");
            expectFindings(place, text, {expected});
        }
    });
}

// ---- Words ----

TEST(EveryWord, ThatIsUnknownIsFound) {
    withRows(words, [](const Place& place) {
        expectFindings(place, reply(place, element(place.row(), "qqqqqqqq")), {here(Found::unknown_word, place)});
    });
    withRows({Kind::textAndCode}, [](const Place& place) {
        expectFindings(place, reply(place, element(place.row(), "qqqqqqqq")), {here(Found::unknown_word, place)});
    });
    withRows({Kind::wordOfPanels}, [](const Place& place) {
        expectFindings(place, reply(place, element(place.row(), "<panel>qqq</panel><panel>Y</panel>")),
                       {here(Found::unknown_word, place)});
    });
}

TEST(EveryWord, ThatIsNearlyKnownHasAHint) {
    withRows({Kind::word, Kind::bits, Kind::combinedCodes, Kind::wordOrNext}, [](const Place& place) {
        const auto& rows = place.description().words.words.rows;
        const auto longest =
            std::ranges::max_element(rows, {}, [](const Word& word) { return std::string_view(word.word).size(); });
        const std::string word = longest->word;
        EXPECT_EQ(detailOf(place, reply(place, element(place.row(), word + "x"))), "did you mean \"" + word + "\"?");
        EXPECT_EQ(detailOf(place, reply(place, element(place.row(), "qqqqqqqq"))), "");
    });
}

TEST(EveryTruth, ThatIsNearlyItsOneWordIsFound) {
    withRows({Kind::isWord, Kind::isNotWord}, [](const Place& place) {
        std::string capitals(place.description().word);
        capitals[0] = static_cast<char>(capitals[0] - 'a' + 'A');
        expectFindings(place, reply(place, element(place.row(), capitals)), {here(Found::unknown_word, place)});
        // Any other word is the other truth.
        expectFindings(place, reply(place, element(place.row(), "other")), {});
    });
}

// ---- Texts ----

TEST(EveryText, ThatIsTooLongIsFound) {
    const auto check = [](const Place& place) {
        const std::size_t capacity = place.description().capacity;
        expectFindings(place, reply(place, element(place.row(), std::string(capacity, 'x'))),
                       {here(Found::text_cut, place)});
    };
    withRows(texts, check);
    withRows({Kind::textAndCode}, check);
    withRows(texts, [](const Place& place) {
        const std::size_t capacity = place.description().capacity;
        expectFindings(place, reply(place, element(place.row(), std::string(capacity - 1, 'x'))), {});
    });
}

TEST(EveryText, WithAReferenceToNothingIsFound) {
    withRows(texts, [](const Place& place) {
        expectFindings(place, reply(place, element(place.row(), "&;")), {here(Found::reference, place)});
        constexpr std::size_t enough = 16;  // for these, or they would be cut
        if (place.description().capacity < enough) return;
        for (const char* const wrong : {"a & b", "a&b", "a&nbsp;b", "&AMP;", "a&#0;", "a&#4294967361;", "a&#x110000;",
                                        "a&#xD800;", "&#x100000041;"}) {
            expectFindings(place, reply(place, element(place.row(), wrong)), {here(Found::reference, place)});
        }
        for (const char* const right : {"&amp;", "&lt;&gt;&quot;&apos;", "&#65;", "&#x41;", "&#x20AC;", "&#x10FFFF;"}) {
            expectFindings(place, reply(place, element(place.row(), right)), {});
        }
    });
}

TEST(EveryText, WithAByteThatIsNotUtf8IsFoundAtThatByte) {
    withRows(texts, [](const Place& place) {
        const std::size_t before = place.row().name.size() + 2;
        expectFindings(place, reply(place, element(place.row(), "a\xFF")),
                       {inside(Found::encoding, place, before + 1)});
        // Columns count characters.
        expectFindings(place, reply(place, element(place.row(), "\xC3\xA4\xFF")),
                       {inside(Found::encoding, place, before + 1)});
        expectFindings(place, reply(place, element(place.row(), "\xC3\xA4")), {});
    });
}

// ---- Addresses ----

TEST(EveryAddress, ThatIsNoneIsFound) {
    withRows({Kind::hardwareAddress}, [](const Place& place) {
        for (const char* const wrong : {"abc", "00:1a:2b:3c:4d", "00:1a:2b:3c:4d:xx"}) {
            expectFindings(place, reply(place, element(place.row(), wrong)), {here(Found::not_a_number, place)});
        }
        expectFindings(place, reply(place, element(place.row(), "00:1A:2B:3C:4D:5E")), {});
    });
    withRows({Kind::ipAddress}, [](const Place& place) {
        for (const char* const wrong : {"abc", "192.168.1", "192.168.1.300"}) {
            expectFindings(place, reply(place, element(place.row(), wrong)), {here(Found::not_a_number, place)});
        }
    });
}

// ---- What any value can have ----

TEST(EveryValue, WithoutTextIsFound) {
    withRows(values, [](const Place& place) {
        expectFindings(place, reply(place, element(place.row(), "")), {here(Found::no_text, place)});
        expectFindings(place, reply(place, element(place.row(), " \n ")), {here(Found::no_text, place)});
    });
}

TEST(EveryValue, ThatIsACommentIsFound) {
    withRows(values, [](const Place& place) {
        if (place.description().kind == Kind::appendedText) return;
        Expected expected = here(Found::not_text, place);
        expectFindings(place, reply(place, element(place.row(), "<!-- c -->")), {expected});
        expectFindings(place, reply(place, element(place.row(), "<?c?>")), {expected});
    });
}

TEST(EveryValue, ThatIsTheNameOfAnElementIsFound) {
    withRows(values, [](const Place& place) {
        if (place.description().kind == Kind::appendedText) return;
        expectFindings(place, reply(place, element(place.row(), "<b>5</b>")), {here(Found::not_text, place)});
    });
}

TEST(EveryValue, WithSomethingBesideItIsFound) {
    withRows(values, [](const Place& place) {
        if (place.description().kind == Kind::appendedText) return;
        const std::string right = element(place.row(), rightValue(place));
        const std::size_t end = right.rfind("</");
        const auto with = [&](const std::string& more) { return reply(place, std::string(right).insert(end, more)); };
        Expected expected = inside(Found::ignored, place, end);
        expected.path += "/b";
        expectFindings(place, with("<b/>"), {expected});
        expectFindings(place, with("<b>5<c/></b>"), {expected});
        expectFindings(place, with("<!-- c -->"), {});
        expectFindings(place, with("<!-- c -->more"), {inside(Found::ignored, place, end + 10)});
        expectFindings(place, with("<![CDATA[more]]>"), {inside(Found::ignored, place, end)});
    });
}

TEST(EveryValue, ThatStandsTwiceIsFoundTheSecondTime) {
    const auto twice = [](const Place& place) {
        const std::string right = rightElement(place);
        Expected expected = here(Found::repeated, place);
        expected.column += right.size();
        expected.path += "[2]";
        expectFindings(place, reply(place, right + right), {expected});
    };
    withRows(values, [&](const Place& place) {
        if (place.rows.size() > 1 && place.rows[place.rows.size() - 2]->description.kind == Kind::list) {
            return expectFindings(place, reply(place, rightElement(place) + rightElement(place)), {});  // Entries.
        }
        switch (place.description().kind) {
            case Kind::appendedText:
                return;
            case Kind::bits:
            case Kind::combinedCodes:
            case Kind::wordOrNext:
                return expectFindings(place, reply(place, rightElement(place) + rightElement(place)), {});
            default:
                return twice(place);
        }
    });
    withRows({Kind::attribute, Kind::group, Kind::part, Kind::list, Kind::firstEntry, Kind::wordOfPanels}, twice);
    withRows({Kind::entry, Kind::newEntry}, [](const Place& place) {
        expectFindings(place, reply(place, rightElement(place) + rightElement(place)), {});
    });
}

// ---- Elements ----

TEST(EveryElement, ThatIsUnknownIsNoted) {
    for (const Place& place : allPlaces()) {
        SCOPED_TRACE(testing::PrintToString(place));
        const std::string name = std::string(place.row().name) + "_";
        Expected expected = here(Found::unknown_element, place);
        expected.path += "_";
        expected.field.clear();
        const std::string text = reply(place, "<" + name + ">5<b/></" + name + ">");
        expectFindings(place, text, {expected});
        const bool isLong = name.size() > 2;  // Of a shorter name too much would be other.
        EXPECT_EQ(detailOf(place, text), isLong ? "did you mean \"" + std::string(place.row().name) + "\"?" : "");
        EXPECT_EQ(detailOf(place, reply(place, "<qqqqqqqqqqqqqqqq/>")), "");
    }
}

TEST(EveryElement, AroundOthersIsFoundWithATextBesideThem) {
    withRows(containers, [](const Place& place) {
        const std::size_t before = place.row().name.size() + 2;
        expectFindings(place, reply(place, element(place.row(), "  text")),
                       {inside(Found::ignored, place, before + 2)});
    });
}

TEST(EveryElement, ThatDoesNotEndIsFoundWhereTheReplyEnds) {
    for (const Place& place : allPlaces()) {
        SCOPED_TRACE(testing::PrintToString(place));
        const std::string right = rightElement(place);
        const std::string cut = before(place) + right.substr(0, right.rfind("</"));
        const auto findings = findingsIn(*place.message, cut);
        ASSERT_FALSE(findings.empty());
        EXPECT_EQ(findings.back().kind, Found::malformed);
        EXPECT_EQ(findings.back().offset, cut.size());
        EXPECT_EQ(std::ranges::count(findings, Found::malformed, &kvjxml::finding::kind), 1);
    }
}

TEST(EveryElement, WithAnotherEndTagIsFoundWithBothNames) {
    for (const Place& place : allPlaces()) {
        SCOPED_TRACE(testing::PrintToString(place));
        const std::string right = rightElement(place);
        const std::string opened = right.substr(0, right.rfind("</"));
        const std::string text = reply(place, opened + "</other>");
        const auto findings = findingsIn(*place.message, text);
        ASSERT_FALSE(findings.empty());
        const auto& last = findings.back();
        EXPECT_EQ(last.kind, Found::malformed);
        EXPECT_EQ(last.line, lineOf(place));
        EXPECT_EQ(last.column, column + opened.size());
        EXPECT_EQ(last.path, place.path());
        EXPECT_EQ(last.detail, "the end of \"other\", while \"" + std::string(place.row().name) + "\" is open");
    }
}

TEST(EveryElement, WithAByteInItsNameThatIsNotUtf8IsFoundAtThatByte) {
    for (const Place& place : allPlaces()) {
        SCOPED_TRACE(testing::PrintToString(place));
        const std::string name = std::string(place.row().name) + "\xFF";
        Expected unknown = here(Found::unknown_element, place);
        unknown.path += "\xFF";
        unknown.field.clear();
        Expected byte = inside(Found::encoding, place, name.size());
        byte.path += "\xFF";
        expectFindings(place, reply(place, "<" + name + "/>"), {unknown, byte});
    }
}

}  // namespace

}  // namespace findings_rows_test
