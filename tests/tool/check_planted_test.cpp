// Faults that are planted in the samples: each is found with its kind, line and path, and nothing else is told that was
// not told before.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <map>
#include <ostream>
#include <set>
#include <span>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "face/markup.h"
#include "foundation/document.h"
#include "foundation/element.h"
#include "hostile/samples.h"
#include "messages/message.h"
#include "support/files.h"
#include "support/readings.h"
#include "tool/checked.h"

namespace check_planted_test {

namespace {

using namespace kvj;
using namespace kvj::tests;
using Found = kvjxml::finding_kind;
using testing::ElementsAreArray;

// ---- The elements of a sample ----

/// An element that a reader has a row for, and where it is in the text.
struct Planting {
    const DescribedRow* row;
    std::string path;
    std::string parentPath;
    bool isAlone;  ///< no sibling has its name
    std::size_t line;
    std::size_t first;    ///< of the start tag
    std::size_t content;  ///< behind the start tag; of an element without content its end
    std::size_t closing;  ///< of the end tag; likewise
    std::size_t last;

    [[nodiscard]] Kind kind() const { return row->description.kind; }
};

/// The rows that read an element, one of each kind, by the names of the elements down to it.
const DescribedRow* rowFor(const std::string& root, std::span<const std::string> names) {
    for (const Message& message : messages()) {
        if (message.root != root && message.otherRoot != root) continue;
        std::span<const DescribedRow> rows = message.table;
        const DescribedRow* found = nullptr;
        for (const std::string& name : names) {
            const auto row = std::ranges::find(rows, name, &DescribedRow::name);
            found = row == rows.end() ? nullptr : &*row;
            rows = found == nullptr ? std::span<const DescribedRow>() : found->description.group;
        }
        if (found != nullptr) return found;
    }
    return nullptr;
}

std::vector<Planting> plantingsIn(const std::string& text, const std::string& root) {
    Text copy(text.size());
    std::ranges::copy(text, copy.bytes());
    const Document document(std::move(copy), Manner::ofUtf8);
    const auto parents = parentsIn(document);
    std::vector<Planting> all(document.size());
    std::vector<std::vector<std::string>> names(document.size());
    for (std::size_t node = 1; node < document.size(); ++node) {
        const std::size_t parent = parents[node];
        const std::string name(document[node].name());
        std::size_t place = 0;
        std::size_t count = 0;
        for (const Element sibling : document[parent].children()) {
            if (sibling.name() != name) continue;
            ++count;
            if (sibling.number() == node) place = count;
        }
        Planting& it = all[node];
        it.isAlone = count == 1;
        it.parentPath = all[parent].path;
        it.path = it.parentPath + "/" + name + (it.isAlone ? "" : "[" + std::to_string(place) + "]");
        if (parent != 0) {
            names[node] = names[parent];
            names[node].push_back(name);
        }
        it.row = names[node].empty() ? nullptr : rowFor(root, names[node]);
    }
    Markup markup(document, text, parents);
    for (Piece piece{}; markup.next(piece);) {
        Planting& it = all[piece.node];
        const std::size_t end = piece.offset + piece.length;
        if (piece.kind == Piece::Kind::startTag) {
            it.first = piece.offset;
            it.line = 1 + static_cast<std::size_t>(
                              std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(it.first), '\n'));
            it.content = it.closing = it.last = end;
        } else if (piece.kind == Piece::Kind::endTag) {
            it.closing = piece.offset;
            it.last = end;
        }
    }
    std::erase_if(all, [](const Planting& it) { return it.row == nullptr; });
    return all;
}

// ---- What is expected ----

struct Told {
    Found kind;
    std::size_t line;
    std::string path;
    auto operator<=>(const Told&) const = default;
};
void PrintTo(const Told& told, std::ostream* out) {
    *out << to_string(told.kind) << " in line " << told.line << " at " << told.path;
}

std::multiset<Told> toldIn(const std::string& text) {
    std::multiset<Told> told;
    for (const auto& one : checkedFindings(text)) told.insert({one.kind, one.line, one.path});
    return told;
}

bool isAt(const std::string& path, const std::string& element) {
    return path == element || path.starts_with(element + "/");
}

/// Goes through the elements of all samples.
class Planted : public testing::Test {
protected:
    using Change = std::function<void(const Planting&)>;

    /// Of these kinds of rows, or of all.
    void inEach(const std::set<Kind>& kinds, const Change& change) {
        std::size_t count = 0;
        for (const Sample& sample : samples()) {
            text_ = sample.text;
            before_ = toldIn(text_);
            for (const Planting& it : plantingsIn(text_, sample.root)) {
                if (!kinds.empty() && !kinds.contains(it.kind())) continue;
                SCOPED_TRACE(sample.root + ": " + it.path);
                change(it);
                ++count;
            }
        }
        EXPECT_GT(count, 0U);
    }

    [[nodiscard]] std::string contentOf(const Planting& it) const {
        return text_.substr(it.content, it.closing - it.content);
    }
    [[nodiscard]] std::string nameOf(const Planting& it) const { return std::string(it.row->name); }
    /// The start tag, the content and the end tag.
    [[nodiscard]] std::string tagOf(const Planting& it) const { return text_.substr(it.first, it.content - it.first); }

    [[nodiscard]] std::string with(const Planting& it, const std::string& element) const {
        return text_.substr(0, it.first) + element + text_.substr(it.last);
    }
    /// An element with the same attributes and other content.
    [[nodiscard]] std::string filled(const Planting& it, const std::string& content) const {
        std::string tag = tagOf(it);
        if (tag.ends_with("/>")) tag = tag.substr(0, tag.size() - 2) + ">";
        return tag + content + "</" + nameOf(it) + ">";
    }

    /// The element has this finding alone, and elsewhere nothing changes.
    void expectInstead(const Planting& it, const std::string& element, Found kind, const std::string& below = {}) {
        std::multiset<Told> expected;
        for (const Told& told : before_) {
            if (!isAt(told.path, it.path)) expected.insert(told);
        }
        expected.insert({kind, it.line, it.path + below});
        EXPECT_THAT(toldIn(with(it, element)), ElementsAreArray(expected)) << element;
    }
    void expectFilled(const Planting& it, const std::string& content, Found kind, const std::string& below = {}) {
        expectInstead(it, filled(it, content), kind, below);
    }
    /// There is this finding besides.
    void expectMore(const std::string& text, const Told& more) {
        std::multiset<Told> expected = before_;
        expected.insert(more);
        EXPECT_THAT(toldIn(text), ElementsAreArray(expected));
    }

    /// Whether there is nothing to be told of an element as it is.
    [[nodiscard]] bool isRight(const Planting& it) const {
        return std::ranges::none_of(before_, [&](const Told& told) { return isAt(told.path, it.path); });
    }

    std::string text_;
    std::multiset<Told> before_;
};

const std::set<Kind> numbers{Kind::number, Kind::decimal, Kind::setting, Kind::decimalSetting};
const std::set<Kind> settings{Kind::setting, Kind::decimalSetting};
const std::set<Kind> words{Kind::word,       Kind::bits, Kind::combinedCodes,
                           Kind::wordOrNext, Kind::flag, Kind::textAndCode};
const std::set<Kind> texts{Kind::text, Kind::textWithoutWord};
const std::set<Kind> addresses{Kind::hardwareAddress, Kind::ipAddress};
const std::set<Kind> containers{Kind::group,      Kind::part,     Kind::list,         Kind::entry,
                                Kind::firstEntry, Kind::newEntry, Kind::byDescription};
const std::set<Kind> values{Kind::number, Kind::decimal,         Kind::setting,         Kind::decimalSetting,
                            Kind::text,   Kind::textWithoutWord, Kind::textAndCode,     Kind::word,
                            Kind::bits,   Kind::combinedCodes,   Kind::wordOrNext,      Kind::flag,
                            Kind::isWord, Kind::isNotWord,       Kind::hardwareAddress, Kind::ipAddress};

// ---- Values ----

TEST_F(Planted, WhatIsNoNumberIsFound) {
    inEach(numbers, [&](const Planting& it) { expectFilled(it, "qq", Found::not_a_number); });
    inEach(addresses, [&](const Planting& it) { expectFilled(it, "qq", Found::not_a_number); });
}

TEST_F(Planted, ARestBehindANumberIsFound) {
    inEach(numbers, [&](const Planting& it) {
        if (isRight(it)) expectFilled(it, contentOf(it) + " V", Found::trailing_text);
    });
}

TEST_F(Planted, ANumberThatItsFieldCannotHoldIsFound) {
    inEach(numbers, [&](const Planting& it) {
        const Number& number = it.row->description.number;
        if (number.digits != 0) return;  // It holds all that it reads.
        const bool isDecimal = it.kind() == Kind::decimal || it.kind() == Kind::decimalSetting;
        expectFilled(it,
                     isDecimal                          ? "1e99"
                     : number.base == Base::hexadecimal ? "0x1ffffffffffffffff"
                                                        : "99999999999999999999",
                     Found::out_of_range);
    });
}

TEST_F(Planted, ASettingOutsideItsRangeIsFound) {
    inEach(settings, [&](const Planting& it) { expectFilled(it, "2000000000", Found::clamped); });
}

TEST_F(Planted, ARangeThatCannotBeReadIsFound) {
    inEach(settings, [&](const Planting& it) {
        const std::string name = nameOf(it);
        expectInstead(it, "<" + name + " min='x' max='9'>0</" + name + ">", Found::attribute, "/@min");
        expectInstead(it, "<" + name + " min='0'>0</" + name + ">", Found::attribute, "/@max");
    });
}

TEST_F(Planted, AReadingThatIsMissingIsFound) {
    inEach({Kind::attribute}, [&](const Planting& it) {
        expectInstead(it, "<" + nameOf(it) + "/>", Found::attribute, "/@" + std::string(it.row->description.word));
    });
}

TEST_F(Planted, AnUnknownWordIsFound) {
    inEach(words, [&](const Planting& it) { expectFilled(it, "qqqqqqqq", Found::unknown_word); });
    inEach({Kind::isWord, Kind::isNotWord}, [&](const Planting& it) {
        std::string capitals(it.row->description.word);
        capitals[0] = static_cast<char>(capitals[0] - 'a' + 'A');
        expectFilled(it, capitals, Found::unknown_word);
    });
}

TEST_F(Planted, ATextThatIsTooLongIsFound) {
    inEach(texts, [&](const Planting& it) {
        expectFilled(it, std::string(it.row->description.capacity, 'x'), Found::text_cut);
    });
}

TEST_F(Planted, AReferenceToNothingIsFound) {
    inEach(texts, [&](const Planting& it) { expectFilled(it, "&;", Found::reference); });
}

TEST_F(Planted, AByteThatIsNoTextIsFound) {
    inEach(texts, [&](const Planting& it) { expectFilled(it, "\xFF", Found::encoding); });
}

TEST_F(Planted, AnElementWithoutItsValueIsFound) {
    inEach(values, [&](const Planting& it) { expectFilled(it, "", Found::no_text); });
}

TEST_F(Planted, ACommentInThePlaceOfAValueIsFound) {
    inEach(values, [&](const Planting& it) { expectFilled(it, "<!-- c -->", Found::not_text); });
}

TEST_F(Planted, AnElementBesideAValueIsFound) {
    inEach(values, [&](const Planting& it) {
        if (isRight(it)) expectFilled(it, contentOf(it) + "<qq/>", Found::ignored, "/qq");
    });
}

// ---- Elements ----

TEST_F(Planted, ATextBesideElementsIsFound) {
    inEach(containers, [&](const Planting& it) {
        if (it.content == it.last) return;  // It has no room for any.
        expectMore(text_.substr(0, it.content) + "zz" + text_.substr(it.content), {Found::ignored, it.line, it.path});
    });
}

TEST_F(Planted, AnUnknownElementIsFound) {
    inEach({}, [&](const Planting& it) {
        expectMore(text_.substr(0, it.first) + "<qqqqqqqqqqqq/>" + text_.substr(it.first),
                   {Found::unknown_element, it.line, it.parentPath + "/qqqqqqqqqqqq"});
    });
}

/// Where each element of a name counts, none takes the place of another.
bool lastCounts(Kind kind) {
    return !std::set<Kind>{Kind::appendedText, Kind::wordOrNext, Kind::bits,         Kind::combinedCodes,
                           Kind::entry,        Kind::newEntry,   Kind::byDescription}
                .contains(kind);
}

TEST_F(Planted, AnElementThatStandsTwiceIsFound) {
    inEach({}, [&](const Planting& it) {
        if (!lastCounts(it.kind()) || !it.isAlone || !isRight(it)) return;
        const bool isContainer = !values.contains(it.kind()) && it.kind() != Kind::attribute;
        const std::string copy = isContainer ? "<" + nameOf(it) + "/>" : text_.substr(it.first, it.last - it.first);
        expectMore(text_.substr(0, it.first) + copy + text_.substr(it.first),
                   {Found::repeated, it.line, it.path + "[2]"});
    });
}

/// Where the rest of a document is lost there are fewer siblings to be counted.
std::multiset<Told> withoutNumbers(const std::multiset<Told>& all) {
    std::multiset<Told> plain;
    for (Told told : all) {
        for (std::size_t at = 0; (at = told.path.find('[')) != std::string::npos;) {
            told.path.erase(at, told.path.find(']', at) + 1 - at);
        }
        plain.insert(told);
    }
    return plain;
}

TEST_F(Planted, AWrongEndTagIsFoundAndNothingElseInFrontOfIt) {
    inEach({}, [&](const Planting& it) {
        if (it.content == it.last) return;            // There is no end tag.
        if (it.kind() == Kind::appendedText) return;  // The element around has one word of all of them.
        const std::string text = text_.substr(0, it.closing) + "</qq>" + text_.substr(it.last);
        const auto line = it.line + static_cast<std::size_t>(std::ranges::count(contentOf(it), '\n'));
        const std::multiset<Told> fault{{Found::malformed, line, it.path}};
        auto told = withoutNumbers(toldIn(text));
        EXPECT_EQ(told.erase(*withoutNumbers(fault).begin()), 1U);
        const auto before = withoutNumbers(before_);
        for (const Told& one : told) EXPECT_TRUE(before.contains(one)) << testing::PrintToString(one);
    });
}

TEST_F(Planted, AnEntryThatTheRecordHasNoRoomForIsFound) {
    const std::string entry = "<job><action_id>7</action_id></job>\n";
    std::string jobs = "<get_job_list>\n";
    constexpr std::size_t room = 64;
    for (std::size_t i = 0; i < room; ++i) jobs += entry;
    EXPECT_TRUE(toldIn(jobs + "</get_job_list>").empty());
    const std::multiset<Told> expected{{Found::beyond_capacity, room + 2, "/get_job_list/job[65]"}};
    EXPECT_EQ(toldIn(jobs + entry + "</get_job_list>"), expected);
}

TEST_F(Planted, ARootThatIsMisspeltIsFoundWithTheNameThatWasMeant) {
    for (const Sample& sample : samples()) {
        SCOPED_TRACE(sample.root);
        std::string text = sample.text;
        const std::string name = sample.root + "x";
        for (const std::string& tag : {"<" + sample.root, "</" + sample.root}) {
            text.insert(text.rfind(tag) + tag.size(), "x");
        }
        const auto findings = checkedFindings(text);
        ASSERT_EQ(findings.size(), 1U);
        EXPECT_EQ(findings[0].kind, Found::unknown_message);
        EXPECT_EQ(findings[0].path, "/" + name);
        EXPECT_EQ(findings[0].detail, "did you mean \"" + sample.root + "\"?");
    }
}

// ---- The samples as they are ----

/// What the library's readers of a root find, each by itself, in lines that begin with the name of the reader.
TEST(CheckedSamples, TellOnlyWhatIsOddInThem) {
    std::map<std::string, std::set<std::string>> expected;
    std::istringstream lines(kvj::tests::contentOf(FINDINGS_OF_SAMPLES));
    for (std::string line; std::getline(lines, line);) {
        if (line.empty() || line.starts_with('#')) continue;
        const std::size_t colon = line.find(": ");
        expected[std::string(messageOf(line.substr(0, colon)).root)].insert(line.substr(colon + 2));
    }
    for (const Sample& sample : samples()) {
        const auto told = toldOf(checkedFindings(sample.text));
        EXPECT_THAT(told, testing::UnorderedElementsAreArray(expected[sample.root])) << sample.root;
    }
}

}  // namespace

}  // namespace check_planted_test
