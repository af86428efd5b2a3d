// What would arrive otherwise than it is asked for: each kind of problem, planted in every row of every table that can
// have it, is found with its field and its path, and nothing else is.
#include <KVJConfigParser.h>
#include <KVJMediaParser.h>
#include <KVJPrinterIDParser.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "capabilities/tables.h"
#include "configuration/document.h"
#include "face/faces.h"
#include "fields/capabilities.h"
#include "fields/configuration.h"
#include "fields/identity.h"
#include "fields/media.h"
#include "foundation/convert.h"
#include "identity/printer.h"
#include "media/tables.h"
#include "support/files.h"
#include "support/records.h"

using kvj::described;
using kvj::DescribedRow;
using kvj::Description;
using kvj::Field;
using kvj::FieldType;
using kvj::Kind;
using kvj::RecordType;
using kvjxml::problem;
using kvjxml::problem_kind;
using testing::UnorderedElementsAreArray;

namespace kvjxml {
inline namespace v1 {
bool operator==(const problem& a, const problem& b) {
    return a.kind == b.kind && a.field == b.field && a.path == b.path && a.asked == b.asked && a.sent == b.sent;
}
void PrintTo(const problem& it, std::ostream* out) {
    *out << static_cast<int>(it.kind) << " " << it.field << " " << it.path << " asked [" << it.asked << "] sent ["
         << it.sent << "]";
}
}  // namespace v1
}  // namespace kvjxml

namespace problems_test {

namespace {

/// A row that is a value, with where it is: its field in the record, and its element in the request.
struct Value {
    const Description* row;
    void* at;  ///< the field; null for a row without one
    const Field* field;
    std::string pointer;
    std::string path;
};

const Field& fieldOf(const RecordType& type, std::string_view name) {
    const auto field = std::ranges::find(type.fields, name, &Field::name);
    if (field == type.fields.end()) throw std::logic_error("no field " + std::string(name));
    return *field;
}

// Groups nest as deep as the tables are written. NOLINTBEGIN(misc-no-recursion)

/// The values that rows write, in their order. A name that comes twice under one parent has an index.
class Values {
public:
    void add(std::span<const DescribedRow> rows, const RecordType& type, void* record, const std::string& pointer,
             const std::string& path) {
        for (const DescribedRow& row : rows) {
            const auto isNamesake = [&](const DescribedRow& other) { return other.name == row.name; };
            std::string element = path + "/" + std::string(row.name);
            if (std::ranges::count_if(rows, isNamesake) > 1) {
                element += "[" + std::to_string(std::count_if(rows.data(), &row + 1, isNamesake)) + "]";
            }
            addRow(row.description, type, record, pointer, element);
        }
    }
    [[nodiscard]] const std::vector<Value>& all() const { return all_; }

private:
    void addRow(const Description& row, const RecordType& type, void* record, const std::string& pointer,
                const std::string& path) {
        if (row.kind == Kind::group) return add(row.group, type, record, pointer, path);
        if (row.field.empty()) return all_.push_back({&row, nullptr, nullptr, pointer, path});
        const Field& field = fieldOf(type, row.field.name);
        const std::string below = pointer + "/" + std::string(row.field.name);
        if (row.kind == Kind::part) return add(row.group, *field.record, field.in(record), below, path);
        if (row.kind == Kind::list) return addList(row, field, record, below, path);
        all_.push_back({&row, field.type == FieldType::bit ? record : field.in(record), &field, below, path});
    }
    void addList(const Description& row, const Field& list, void* record, const std::string& pointer,
                 const std::string& path) {
        const Field& entry = *list.entries->entry;
        const std::size_t count = kvj::countOf(*list.entries, record);
        for (std::size_t i = 0; i < count; ++i) {
            const std::string index = count > 1 ? "[" + std::to_string(i + 1) + "]" : "";
            if (entry.type != FieldType::record) continue;  // Their rows are not in the table: see below.
            add(row.group, *entry.record, const_cast<void*>(list.entries->at(record, i)),
                pointer + "/" + std::to_string(i), path + "/" + std::string(row.word) + index);
        }
    }
    std::vector<Value> all_;
};
// NOLINTEND(misc-no-recursion)

template <class Number>
void put(void* at, Number value) {
    std::memcpy(at, &value, sizeof value);
}
void putCode(const Value& value, int code) { std::memcpy(value.at, &code, value.field->size); }
void putText(const Value& value, std::string_view text) {
    std::memset(value.at, 0, value.field->size);
    std::memcpy(value.at, text.data(), std::min(text.size(), value.field->size));
}

/// Gives a field a value that is sent as it is asked for.
void makeSound(const Value& value) {
    if (value.at == nullptr) return;
    switch (value.row->kind) {
        case Kind::setting:
            return put(value.at, Kavrin::_MinMaxVal{-1, 9, 5});
        case Kind::decimalSetting:
            return put(value.at, Kavrin::_MinMaxValFloat{-1.25F, 9.5F, 9.5F});
        case Kind::decimal:
            return put(value.at, 30.25F);
        case Kind::word:
            // Several rows can write one code: a word of all of them is that of 1.
            return putCode(
                value, value.row->words.words.rows.front().code == 0 ? 1 : value.row->words.words.rows.front().code);
        case Kind::bits:
            return putCode(value, value.row->words.words.rows.front().code);
        case Kind::text:
            return putText(value, "a \xC3\xA9<&\">");
        case Kind::ipAddress:
            return put(value.at, 0x0100007FUL);
        default:
            return;
    }
}

/// A problem that is planted, and what is to be found.
struct Planted {
    problem_kind kind;
    std::string asked;
    std::string sent;
    std::string field{};  ///< behind the row's own
    std::string path{};
};

/// Calls `check(planted)` for each problem that a row can have, while the record has it.
template <class Check>
void withEachProblem(const Value& value, Check check) {
    const Description& row = *value.row;
    if (value.at == nullptr) return;
    std::vector<std::byte> before(value.field->size);
    const auto plant = [&](const auto& change, const Planted& planted) {
        std::memcpy(before.data(), value.at, before.size());
        change();
        check(planted);
        std::memcpy(value.at, before.data(), before.size());
    };
    switch (row.kind) {
        case Kind::word: {
            const int code = value.field->size == 1 ? 99 : 9999;
            plant([&] { putCode(value, code); },
                  {problem_kind::no_word, std::to_string(code), std::string(row.otherWord)});
            return;
        }
        case Kind::bits: {
            const int first = row.words.words.rows.front().code;
            plant([&] { putCode(value, first | 0x4100); }, {problem_kind::no_bit, "16640", ""});
            return;
        }
        case Kind::setting:
            for (const int outside : {-2, 10}) {
                plant(
                    [&] {
                        put(value.at, Kavrin::_MinMaxVal{-1, 9, outside});
                    },
                    {problem_kind::out_of_range, std::to_string(outside), std::to_string(outside), "/value"});
            }
            return;
        case Kind::decimalSetting:
            plant(
                [&] {
                    put(value.at, Kavrin::_MinMaxValFloat{-1.25F, 9.5F, 10.5F});
                },
                {problem_kind::out_of_range, "10.5", "9.50", "/value"});
            plant(
                [&] {
                    put(value.at, Kavrin::_MinMaxValFloat{-1.25F, 9.5F, -2});
                },
                {problem_kind::out_of_range, "-2", "9.50", "/value"});
            plant(
                [&] {
                    put(value.at, Kavrin::_MinMaxValFloat{-1.25F, 9.5F, 4.25F});
                },
                {problem_kind::sent_as_maximum, "4.25", "9.50", "/value"});
            plant(
                [&] {
                    put(value.at, Kavrin::_MinMaxValFloat{-1.125F, 9.5F, 9.5F});
                },
                {problem_kind::digits_lost, "-1.125", "-1.12", "/min", "/@min"});
            plant(
                [&] {
                    put(value.at, Kavrin::_MinMaxValFloat{-1.25F, 9.5117F, 9.51F});
                },
                {problem_kind::digits_lost, "9.5117", "9.51", "/max", "/@max"});
            return;
        case Kind::decimal:
            plant([&] { put(value.at, 0.00048828125F); }, {problem_kind::digits_lost, "0.00048828125", "0.0005"});
            plant([&] { put(value.at, std::numeric_limits<float>::infinity()); },
                  {problem_kind::digits_lost, "inf", "inf"});
            return;
        case Kind::text:
            for (const auto& [kind, text] : std::initializer_list<std::pair<problem_kind, std::string_view>>{
                     {problem_kind::not_utf8, "a\xFF"},
                     {problem_kind::not_utf8, "\xC3"},
                     {problem_kind::not_utf8, "\xE0\x80\xA9"},
                     {problem_kind::not_utf8, "\xED\xA0\x80"},
                     {problem_kind::no_character, "a\x01"},
                     {problem_kind::no_character, "\n"},
                     {problem_kind::no_character, "\x7F"},
                     {problem_kind::no_character, "\xC2\x85"},
                     {problem_kind::no_character, "\xEF\xBF\xBF"},
                     {problem_kind::read_otherwise, " a"},
                     {problem_kind::read_otherwise, "a "},
                     {problem_kind::read_otherwise, "a  b"},
                     {problem_kind::read_otherwise, " "},
                     {problem_kind::read_otherwise, "\xEF\xBB\xBF"}}) {
                plant([&, text = text] { putText(value, text); }, {kind, std::string(text), std::string(text)});
            }
            return;
        case Kind::ipAddress:
            plant([&] { put(value.at, 0x10100007FUL); }, {problem_kind::digits_lost, "4311744639", "127.0.0.1"});
            return;
        // Every value of these is sent as it is.
        case Kind::number:
        case Kind::either:
        case Kind::hardwareAddress:
        default:
            return;
    }
}

/// Plants every problem in every row. A field that several rows write has the problem in each.
/// @return how many were planted
template <class Compose>
std::size_t plantAll(const Values& values, Compose compose) {
    for (const Value& value : values.all()) makeSound(value);
    EXPECT_THAT(compose().problems(), testing::IsEmpty());
    std::size_t count = 0;
    for (const Value& value : values.all()) {
        withEachProblem(value, [&](const Planted& planted) {
            std::vector<problem> expected;
            for (const Value& other : values.all()) {
                if (other.at != value.at || other.row->kind != value.row->kind) continue;
                expected.push_back(
                    {planted.kind, other.pointer + planted.field, other.path + planted.path, planted.asked,
                     planted.kind == problem_kind::no_word ? std::string(other.row->otherWord) : planted.sent});
            }
            EXPECT_THAT(compose().problems(), UnorderedElementsAreArray(expected)) << value.path;
            ++count;
        });
    }
    return count;
}

// ---- Every row of every table ----

class Problems : public testing::TestWithParam<bool> {
protected:
    Problems() { options_.direct_to_card = GetParam(); }
    kvjxml::options options_;
    Values values_;
};
INSTANTIATE_TEST_SUITE_P(DirectToCard, Problems, testing::Bool(),
                         [](const auto& test) { return test.param ? "direct" : "retransfer"; });

/// Rows without those that are not written when printing is direct to card, or the other way round.
std::vector<DescribedRow> written(std::span<const DescribedRow> rows, bool directToCard,
                                  std::vector<std::unique_ptr<std::vector<DescribedRow>>>& kept) {
    std::vector<DescribedRow> left;
    for (DescribedRow row : rows) {
        if (row.condition == (directToCard ? "unless printing is direct to card" : "when printing is direct to card")) {
            continue;
        }
        kept.push_back(std::make_unique<std::vector<DescribedRow>>(written(row.description.group, directToCard, kept)));
        row.description.group = *kept.back();
        left.push_back(row);
    }
    return left;
}

class Rows {
public:
    Rows(std::span<const DescribedRow> rows, bool directToCard) : rows_(written(rows, directToCard, kept_)) {}
    operator std::span<const DescribedRow>() const { return rows_; }

private:
    std::vector<std::unique_ptr<std::vector<DescribedRow>>> kept_;
    std::vector<DescribedRow> rows_;
};

TEST_P(Problems, OfEveryRowOfAConfigurationAreFound) {
    Kavrin::_KVConfiguration values{};
    values.lamination.topLaminate.laminatePresent = true;
    const Rows rows(described<kvj::configuration::documentSections>, GetParam());
    values_.add(rows, kvj::recordType<Kavrin::_KVConfiguration>, &values, "", "/configuration");
    const auto count = plantAll(values_, [&] { return kvjxml::compose(values, kvjxml::section::all, options_); });
    EXPECT_GT(count, 300U);
}

TEST_P(Problems, OfEveryRowOfCapabilitiesAreFound) {
    Kavrin::_PortCaps ports[2] = {};
    Kavrin::_InterfaceCaps interfaces[1] = {};
    Kavrin::_OCPLanguageCaps languages[2] = {};
    Kavrin::_FontCaps fonts[3] = {};
    Kavrin::_TemplateCaps stored[2] = {};
    Kavrin::_Capabilities plain{};
    plain.hostPortCount = 2;
    plain.hostPorts = ports;
    plain.swInterfaceCount = 1;
    plain.swInterfaces = interfaces;
    plain.ocpLanguageCount = 2;
    plain.ocpLanguages = languages;
    plain.fontCount = 3;
    plain.fonts = fonts;
    plain.graphicCount = 2;
    plain.graphics = stored;
    const Rows rows(described<kvj::capabilities::wholeTags>, GetParam());
    values_.add(rows, kvj::recordType<Kavrin::_Capabilities>, &plain, "", "/capabilities");
    const auto count = plantAll(values_, [&] { return kvjxml::compose(kvj::tests::faceOf(plain), options_); });
    EXPECT_GT(count, 100U);
}

TEST_P(Problems, OfEveryRowOfACatalogueAreFound) {
    kvjxml::media_catalogue media;
    media.cards.resize(3);
    for (std::size_t i = 0; i < media.cards.size(); ++i) {
        media.cards[i].type = 7;
        const Rows rows(described<kvj::media::cardTags>, GetParam());
        // Values refer to the rows, which live for one card.
        Values values;
        options_.cards = kvjxml::catalogue_cards::all;
        const std::string index = std::to_string(i);
        values.add(rows, kvj::recordType<Kavrin::_CardInfo>, &media.cards[i], "/cards/" + index,
                   "/media/cards/card[" + std::to_string(i + 1) + "]");
        for (auto& others : media.cards) {
            Values all;
            all.add(rows, kvj::recordType<Kavrin::_CardInfo>, &others, "", "");
            for (const Value& value : all.all()) makeSound(value);
        }
        EXPECT_GT(plantAll(values, [&] { return kvjxml::compose(media, options_); }), 30U);
    }
}

TEST_P(Problems, OfEveryRowOfAPrintersIdentityAreFound) {
    Kavrin::KVPrinterInfo info{};
    const Rows rows(described<kvj::identity::printerTags>, GetParam());
    values_.add(rows, kvj::recordType<Kavrin::KVPrinterInfo>, &info, "", "/printer_id");
    EXPECT_GT(plantAll(values_, [&] { return kvjxml::compose(info, options_); }), 80U);
}

// ---- What a printer reports and a host sends back ----

/// The fields in which something is found, each with the number of its kind.
std::vector<std::pair<problem_kind, std::string>> fieldsOf(const std::vector<problem>& problems) {
    std::vector<std::pair<problem_kind, std::string>> fields;
    for (const problem& it : problems) fields.emplace_back(it.kind, it.field);
    return fields;
}

std::string reply(const std::string& name) {
    return kvj::tests::contentOf(std::string(KVJXML_REPLIES "/") + name + ".xml");
}

TEST(ProblemsOfWhatIsReported, AreFractionsAndTheRibbonsNames) {
    Kavrin::_KVConfiguration values{};
    Kavrin::KVJConfigParser().GetConfiguration(reply("configuration").c_str(), 0, values);
    ASSERT_NE(values.standbyTimeout, 0);
    const auto fractionsIn = [](const std::string& record, std::initializer_list<const char*> names) {
        std::vector<std::pair<problem_kind, std::string>> fields;
        for (const char* name : names) fields.emplace_back(problem_kind::sent_as_maximum, record + name + "/value");
        return fields;
    };
    // The sample has a value other than its maximum in each of these, and the printer's own name for a ribbon is no
    // code.
    auto expected = fractionsIn("/ribbonMotorParameters/", {"S0", "K0", "Kb", "Ka", "M0", "Mb", "Ma"});
    const auto append = [&](const auto& fields) { expected.insert(expected.end(), fields.begin(), fields.end()); };
    expected.emplace_back(problem_kind::no_word, "/ribbon/ribbonCode");
    expected.emplace_back(problem_kind::no_word, "/film/ribbonCode");
    append(fractionsIn("/customCard1/transferSpeeds/", {"inputSingle", "outputSingle"}));
    append(fractionsIn("/customCard1/laminatorAdjustments/", {"speedAdjust"}));
    append(fractionsIn("/transferSettings/transferSpeeds/",
                       {"inputSingle", "outputSingle", "inputDouble", "outputDouble"}));
    EXPECT_EQ(fieldsOf(kvjxml::compose(values, kvjxml::section::all).problems()), expected);
}

TEST(ProblemsOfWhatIsReported, AreNoneOfAnIdentity) {
    Kavrin::KVPrinterInfo info{};
    const std::string text = reply("printer_id");
    ASSERT_TRUE(Kavrin::KVJPrinterIDParser().ParsePrinterInfo(text.c_str(), static_cast<int>(text.size()), info));
    EXPECT_TRUE(kvjxml::compose(info));
}

TEST(ProblemsOfWhatIsReported, AreRangesThatACatalogueHasNot) {
    const auto media = Kavrin::MakeKVMedia();
    const std::string text = reply("media");
    Kavrin::KVJMediaParser().GetMedia(text[0], static_cast<int>(text.size()), *media);
    ASSERT_FALSE(media->cards->empty());
    kvjxml::options options;
    options.cards = kvjxml::catalogue_cards::all;
    const auto problems = kvjxml::compose(kvj::tests::faceOf(*media), options).problems();
    EXPECT_FALSE(problems.empty());
    EXPECT_THAT(problems, testing::Each(testing::Field(&problem::kind, problem_kind::out_of_range)));
}

// ---- What has no row of its own in a table ----

/// Capabilities that are all sent as they are asked for.
kvjxml::capabilities soundCapabilities() {
    kvjxml::capabilities caps;
    caps.security.encryptionAlgorithm = 1;
    caps.printType = 1;
    caps.internalEncoder.contactlessEncoder = 1;
    return caps;
}

TEST(ProblemsOfCapabilities, AreFoundInTheCodesOfAList) {
    kvjxml::capabilities caps = soundCapabilities();
    caps.graphicFormats = {1, 3, 8};
    EXPECT_THAT(kvjxml::compose(caps).problems(),
                testing::ElementsAre(problem{problem_kind::no_word, "/graphicFormats/1",
                                             "/capabilities/graphic_formats/graphic_format[2]", "3", ""}));
}

TEST(ProblemsOfCapabilities, AreFoundInTheTextsOfAList) {
    kvjxml::capabilities caps = soundCapabilities();
    caps.barCodes = {{"code 39 "}};
    EXPECT_THAT(kvjxml::compose(caps).problems(),
                testing::ElementsAre(problem{problem_kind::read_otherwise, "/barCodes/0/name",
                                             "/capabilities/barcodes/barcode", "code 39 ", "code 39 "}));
}

TEST(ProblemsOfCapabilities, AreFoundInEveryElementThatHasTheLaminatorsWord) {
    kvjxml::capabilities caps = soundCapabilities();
    caps.laminatorType = static_cast<Kavrin::_laminatorType>(3);
    EXPECT_TRUE(kvjxml::compose(caps)) << "Without a laminator there is a word for it.";
    caps.laminator = true;
    std::vector<problem> expected;
    for (const char* element : {"laminator_type", "mag_encoder", "mag_stripe"}) {
        expected.push_back({problem_kind::no_word, "/laminatorType", std::string("/capabilities/") + element, "3", ""});
    }
    EXPECT_THAT(kvjxml::compose(caps).problems(), testing::ElementsAreArray(expected));
}

TEST(ProblemsOfCapabilities, AreThoseOfThePartThatIsWritten) {
    kvjxml::capabilities caps;
    caps.magHeadType = 5;
    caps.internalEncoder.contactlessEncoder = 4;
    kvjxml::options options;
    options.part = kvjxml::capabilities_part::mag_encoder;
    EXPECT_THAT(
        kvjxml::compose(caps, options).problems(),
        testing::ElementsAre(problem{problem_kind::no_word, "/magHeadType", "/capabilities/mag_encoder", "5", ""}));
    options.part = kvjxml::capabilities_part::internal_encoder;
    EXPECT_THAT(kvjxml::compose(caps, options).problems(),
                testing::ElementsAre(problem{problem_kind::no_word, "/internalEncoder/contactlessEncoder",
                                             "/capabilities/internal_encoder/contactless_encoder", "4", ""}));
}

TEST(ProblemsOfAConfiguration, AreThoseOfTheSectionsThatAreWritten) {
    Kavrin::_KVConfiguration values{};
    values.lcdContrast = {1, 9, 10};
    values.feederMode = static_cast<Kavrin::_eFeedMode>(4);
    EXPECT_TRUE(kvjxml::compose(values, kvjxml::section::ethernet | kvjxml::section::usage_counters));
    EXPECT_THAT(kvjxml::compose(values, kvjxml::section::lcd_contrast).problems(),
                testing::ElementsAre(problem{problem_kind::out_of_range, "/lcdContrast/value",
                                             "/configuration/lcd_contrast", "10", "10"}));
    EXPECT_THAT(kvjxml::compose(values, kvjxml::section::feeder_mode).problems(),
                testing::ElementsAre(
                    problem{problem_kind::no_word, "/feederMode", "/configuration/feeder_mode", "4", "hopper"}));
}

TEST(ProblemsOfAConfiguration, HaveAnIndexOnlyBesideAnotherElementOfTheName) {
    Kavrin::_KVConfiguration values{};
    std::strcpy(values.wireless.ssid, "a ");
    const auto pathOf = [&](kvjxml::section sections) {
        return kvjxml::compose(values, sections).problems().at(0).path;
    };
    EXPECT_EQ(pathOf(kvjxml::section::wireless), "/configuration/ethernet/ssid");
    EXPECT_EQ(pathOf(kvjxml::section::wireless | kvjxml::section::ethernet), "/configuration/ethernet[2]/ssid");
}

TEST(ProblemsOfAConfiguration, AreNoneOfAnErrorControlThatIsTheWordForOthers) {
    Kavrin::_KVConfiguration values{};
    values.errorControl = Kavrin::errorControlMedium;
    EXPECT_TRUE(kvjxml::compose(values, kvjxml::section::error_control));
}

TEST(ProblemsOfAConfiguration, AreThatNothingIsSentEvenIfChangesAreAccepted) {
    const Kavrin::_KVConfiguration values{};
    const auto nothing = testing::ElementsAre(problem{problem_kind::nothing_to_send, "", "/configuration", "", ""});
    for (const auto sections : {kvjxml::section::none, kvjxml::section::lamination}) {
        EXPECT_THAT(kvjxml::compose(values, sections).problems(), nothing);
        EXPECT_THAT(kvjxml::compose(values, sections, kvjxml::accept_changes{}).problems(), nothing);
    }
}

TEST(ProblemsOfACatalogue, CountTheCardsOfTheRecord) {
    kvjxml::media_catalogue media;
    media.cards.resize(3);
    media.cards[0].type = 9;  // not a basic card, so that it is left out
    media.cards[2].coercivity = 7;
    EXPECT_THAT(kvjxml::compose(media).problems(),
                testing::ElementsAre(problem{problem_kind::no_word, "/cards/2/coercivity",
                                             "/media/cards/card[2]/information/coercivity", "7", ""}));
}

TEST(ProblemsOfKeys, AreFoundInEach) {
    Kavrin::_tagSecKeys keys{};
    std::strcpy(keys.printer_lock_key, "\x80");
    EXPECT_THAT(kvjxml::compose(keys).problems(),
                testing::ElementsAre(
                    problem{problem_kind::not_utf8, "/printer_lock_key", "/keys/printer_lock_key", "\x80", "\x80"}));
}

}  // namespace

}  // namespace problems_test
