// "decode --words": codes with their words, and values beside what the printer sent for them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <set>

#include "foundation/reply.h"
#include "messages/message.h"
#include "tool/tool.h"

namespace words_test {

namespace {

using kvj::DescribedRow;
using kvj::Element;
using kvj::Kind;
using kvj::tests::contentOf;
using kvj::tests::runTool;
using nlohmann::json;
namespace fs = std::filesystem;

json decoded(const std::string& reply) { return json::parse(runTool("decode --words", reply).out); }

// ---- The samples ----

/// Whether it is a value with what is shown beside it; records have fields of such names too.
bool isValue(const json& shown) {
    constexpr std::string_view names[] = {"code", "value", "word", "words", "sent"};
    return shown.is_object() &&
           std::ranges::all_of(
               shown.items(),
               [&](const auto& item) { return std::ranges::find(names, item.key()) != std::end(names); }) &&
           (shown.contains("code") || shown.contains("sent"));
}

/// What is shown beside a value taken away.
// The records of the samples nest as deep as they are declared, so the recursion ends.
// NOLINTNEXTLINE(misc-no-recursion)
json plain(const json& shown) {
    if (isValue(shown)) return shown.at(shown.contains("code") ? "code" : "value");
    json values = shown;
    if (shown.is_structured()) {
        for (auto& [name, value] : values.items()) value = plain(json(value));
    }
    return values;
}

/// A field and its word.
using FieldWord = std::pair<std::string, std::string>;

/// All that are in what is printed. An entry of a list has the list's name.
// NOLINTNEXTLINE(misc-no-recursion): likewise
void collect(const json& shown, const std::string& name, std::multiset<FieldWord>& words) {
    if (shown.is_object() && shown.contains("word")) {
        words.emplace(name, shown.at("word"));
    } else if (shown.is_structured()) {
        for (const auto& [key, value] : shown.items()) collect(value, shown.is_array() ? name : key, words);
    }
}

/// All that a document has, by the rows that read it.
// NOLINTNEXTLINE(misc-no-recursion): likewise
void collect(Element parent, std::span<const DescribedRow> rows, const std::string& list,
             std::multiset<FieldWord>& words) {
    std::set<std::string_view> seen;
    std::multiset<FieldWord> ofFirstEntry;
    for (const Element element : parent.children()) {
        const auto row = std::ranges::find(rows, element.name(), &DescribedRow::name);
        if (row == rows.end()) continue;
        const auto& it = row->description;
        if (it.kind == Kind::firstEntry) {
            ofFirstEntry.clear();
            collect(element, it.group, list, ofFirstEntry);
            continue;
        }
        collect(element, it.group, it.kind == Kind::list ? std::string(it.field.name) : list, words);
        const bool isCode = it.kind == Kind::word || it.kind == Kind::wordOrNext || it.kind == Kind::textAndCode;
        if (!isCode || element.text() == nullptr) continue;
        const auto word = std::ranges::find(it.words.words.rows, std::string_view(element.text()), &kvj::Word::word);
        if (word == it.words.words.rows.end()) continue;
        const bool isOther = it.kind == Kind::textAndCode || !seen.insert(element.name()).second;
        const auto& field = isOther && !it.otherField.empty() ? it.otherField : it.field;
        words.emplace(field.empty() ? list : std::string(field.name), word->word);
    }
    words.merge(ofFirstEntry);
}

class WordsOfSample : public testing::TestWithParam<std::string> {
protected:
    const std::string file = std::string(KVJXML_REPLIES) + "/" + GetParam() + ".xml";
    const json shown = json::parse(runTool("decode --words " + file).out);
};

TEST_P(WordsOfSample, StandBesideTheSameValues) {
    EXPECT_EQ(plain(shown), json::parse(contentOf(fs::path(KVJXML_GOLDEN) / (GetParam() + ".json"))));
}

TEST_P(WordsOfSample, AreThoseOfTheDocument) {
    const std::string text = contentOf(file);
    const kvj::Reply reply(text.c_str());
    std::multiset<FieldWord> expected;
    for (const kvj::Message& message : kvj::messages()) {
        const Element root = reply.root(message.root.data(), message.otherRoot.data());
        if (root) collect(root, message.table, {}, expected);
    }
    std::multiset<FieldWord> words;
    collect(shown, {}, words);
    for (const auto& [field, word] : expected) {
        EXPECT_GE(words.count({field, word}), expected.count({field, word})) << field << ": " << word;
    }
}

std::set<std::string> samples() {
    std::set<std::string> names;
    for (const auto& file : fs::directory_iterator(KVJXML_REPLIES)) names.insert(file.path().stem().string());
    return names;
}
INSTANTIATE_TEST_SUITE_P(Replies, WordsOfSample, testing::ValuesIn(samples()));

// ---- Codes ----

std::string generalStatus(const std::string& elements) {
    return "<get_general_status>" + elements + "</get_general_status>";
}

TEST(Words, ACodeHasTheWordThatWasSent) {
    EXPECT_EQ(decoded(generalStatus("<printer_state>printing</printer_state>")).at("printerState"),
              (json{{"code", 5}, {"word", "printing"}}));
}

TEST(Words, AnUnknownWordIsShownAsItWasSent) {
    EXPECT_EQ(decoded(generalStatus("<printer_state>prinitng</printer_state>")).at("printerState"),
              (json{{"code", 38}, {"sent", "prinitng"}}));
}

TEST(Words, ACodeThatWasNotSentHasNone) {
    EXPECT_EQ(decoded(generalStatus("<printer_state>printing</printer_state>")).at("laminatorState"),
              (json{{"code", 0}}));
}

TEST(Words, OfSeveralWordsOfACodeTheOneThatWasSent) {
    const auto security = [](const std::string& word) {
        return decoded("<get_wireless_status><security>" + word + "</security></get_wireless_status>").at("security");
    };
    EXPECT_EQ(security("none"), (json{{"code", 0}, {"word", "none"}}));
    EXPECT_EQ(security("open"), (json{{"code", 0}, {"word", "open"}}));
    EXPECT_EQ(security("wpa2"), (json{{"code", 4}, {"word", "wpa2"}}));
}

TEST(Words, AWordThatNeedsNoRowIsOneAllTheSame) {
    EXPECT_EQ(decoded("<configuration><error_control>high</error_control></configuration>").at("errorControl"),
              (json{{"code", 2}, {"word", "high"}}));
}

TEST(Words, ACodeOfBitsHasOneForEachBit) {
    const json shown = decoded(
        "<capabilities><image_sharpening_levels><image_sharpening_level>off</image_sharpening_level>"
        "<image_sharpening_level>high</image_sharpening_level></image_sharpening_levels></capabilities>");
    EXPECT_EQ(shown.at("imageSharpeningLevels"), (json{{"code", 5}, {"words", {"off", "high"}}}));
}

TEST(Words, TheSecondEncoderHasItsOwn) {
    const json shown = decoded(
        "<configuration><internal_encoder><contactless_encoder>mifare</contactless_encoder>"
        "<contactless_encoder>felica</contactless_encoder></internal_encoder></configuration>");
    EXPECT_EQ(shown.at("internalEncoder").at("contactlessEncoder").at("word"), "mifare");
    EXPECT_EQ(shown.at("internalEncoder").at("contactlessEncoder2").at("word"), "felica");
}

TEST(Words, ACodeStandsInOneLine) {
    EXPECT_THAT(runTool("decode --words", generalStatus("<printer_state>printing</printer_state>")).out,
                testing::HasSubstr("\n    \"printerState\": {\"code\": 5, \"word\": \"printing\"},\n"));
}

// ---- Values that are not what was sent ----

TEST(Words, AValueIsBesideWhatWasSentForIt) {
    const json shown = decoded(
        generalStatus("<num_jobs_done_ok>318abc</num_jobs_done_ok><num_jobs_total>99999999999999</num_jobs_total>"
                      "<param_chg_counter>70123</param_chg_counter><printer_lock>Locked</printer_lock>"
                      "<error>7</error>"));
    EXPECT_EQ(shown.at("jobsDoneOk"), (json{{"value", 318}, {"sent", "318abc"}}));
    EXPECT_EQ(shown.at("jobsTotal"), (json{{"value", 276447231}, {"sent", "99999999999999"}}));
    EXPECT_EQ(shown.at("paramChangeCounter"), (json{{"value", 4587}, {"sent", "70123"}}));
    EXPECT_EQ(shown.at("printerLock"), (json{{"value", false}, {"sent", "Locked"}}));
    EXPECT_EQ(shown.at("error"), 7);
}

TEST(Words, ACutTextIsBesideAllOfIt) {
    const json uuid = decoded("<get_job_status><uuid>" + std::string(60, 'u') + "</uuid></get_job_status>").at("uuid");
    EXPECT_EQ(uuid, (json{{"value", std::string(39, 'u')}, {"sent", std::string(60, 'u')}}));
}

TEST(Words, ASettingBeyondItsRangeIsBesideWhatWasSent) {
    const json contrast =
        decoded(R"(<configuration><lcd_contrast min="1" max="9x">25</lcd_contrast></configuration>)").at("lcdContrast");
    EXPECT_EQ(contrast,
              (json{{"min", 1}, {"max", {{"value", 9}, {"sent", "9x"}}}, {"value", {{"value", 9}, {"sent", "25"}}}}));
}

TEST(Words, ARecordThatIsCopiedKeepsThem) {
    const json shown = decoded(
        "<diffie_hellman><modulus>0x1fz</modulus><base>5</base>"
        "<printer_interim_key>8191 seconds</printer_interim_key></diffie_hellman>");
    EXPECT_EQ(shown.at("ParseHostDHKeyValues"),
              (json{{"modulus", {{"value", 31}, {"sent", "0x1fz"}}}, {"base", 5}, {"host_interim_key", 0}}));
    EXPECT_EQ(shown.at("ParsePrinterDHKeyValues"), (json{{"value", 8191}, {"sent", "8191 seconds"}}));
}

TEST(Words, ALineForEachDocumentHasThemToo) {
    const json line = json::parse(
        runTool("decode --words --format jsonl", generalStatus("<printer_state>prinitng</printer_state>")).out);
    EXPECT_EQ(line.at("record").at("printerState"), (json{{"code", 38}, {"sent", "prinitng"}}));
    EXPECT_EQ(line.at("findings"), 1);
}

TEST(Words, TheLastOfTwoElementsCounts) {
    const std::string unknown = "<printer_state>prinitng</printer_state>";
    const std::string known = "<printer_state>printing</printer_state>";
    EXPECT_EQ(decoded(generalStatus(unknown + known)).at("printerState"), (json{{"code", 5}, {"word", "printing"}}));
    EXPECT_EQ(decoded(generalStatus(known + unknown)).at("printerState"), (json{{"code", 38}, {"sent", "prinitng"}}));
}

// ---- Lists ----

TEST(Words, EveryEntryOfAListHasItsOwn) {
    std::string reply = "<get_job_list>";
    for (int i = 0; i < 100; ++i)
        reply += "<job><print_state>" + std::string(i % 2 == 0 ? "held" : "hled") + "</print_state></job>";
    const json shown = decoded(reply + "</get_job_list>");
    EXPECT_EQ(shown.at("count"), 100);
    ASSERT_EQ(shown.at("jobs").size(), 100U);
    EXPECT_EQ(shown.at("jobs").at(98).at("printState"), (json{{"code", 36}, {"word", "held"}}));
    EXPECT_EQ(shown.at("jobs").at(99).at("printState").at("sent"), "hled");
}

TEST(Words, AListThatGrowsKeepsThem) {
    std::string reply = "<media><cards>";
    for (int i = 0; i < 50; ++i) {
        reply += "<card><information><coercivity>" + std::string(i == 3 ? "hihg" : "low") +
                 "</coercivity></information></card>";
    }
    const json cards = decoded(reply + "</cards></media>").at("cards");
    ASSERT_EQ(cards.size(), 50U);
    EXPECT_EQ(cards.at(0).at("coercivity"), (json{{"code", 1}, {"word", "low"}}));
    EXPECT_EQ(cards.at(3).at("coercivity"), (json{{"code", 0}, {"sent", "hihg"}}));
    EXPECT_EQ(cards.at(49).at("coercivity"), (json{{"code", 1}, {"word", "low"}}));
}

TEST(Words, TheCountOfAListIsTheSame) {
    const std::string reply = "<AccessPoints><AccessPoint><SSID>a</SSID></AccessPoint><Note/></AccessPoints>";
    EXPECT_EQ(decoded(reply).at("count"), json::parse(runTool("decode", reply).out).at("count"));
}

TEST(Words, OfAListThatStandsTwiceTheLast) {
    const json shown = decoded(
        "<capabilities><fonts><font><style>bold</style></font><font><style>blod</style></font></fonts>"
        "<fonts><font><name>Sans</name></font></fonts></capabilities>");
    ASSERT_EQ(shown.at("fonts").size(), 1U);
    EXPECT_EQ(shown.at("fonts").at(0).at("style"), (json{{"code", 0}}));
}

}  // namespace

}  // namespace words_test
