// Names for the codes in records: each field against the file of its words.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <kvjxml_words.hpp>

#include <algorithm>
#include <limits>
#include <optional>
#include <ostream>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "foundation/member.h"
#include "messages/message.h"
#include "messages/request.h"
#include "support/lines.h"
#include "words/word_file.h"

namespace words_test {

namespace {

using kvj::DescribedRow;
using kvj::FieldName;
using kvj::Kind;
using kvj::tests::WordFile;
using kvj::tests::wordFile;
using kvj::tests::WordRow;
using testing::ElementsAre;
using testing::IsEmpty;

// ---- Each field, and the files of its words ----

/// A field with words, its operations by themselves.
struct FieldWithWords {
    std::string name;                ///< with its record
    std::vector<std::string> files;  ///< what it is read with; the first is the one whose words its codes have
    bool hasBits;
    std::vector<std::string> (*namesOf)(int code);  ///< one at most, of a field without bits
    std::vector<std::string> (*namesInRecord)(int code);
    std::optional<int> (*codeOf)(std::string_view word);
    std::optional<int> (*enumeratorOf)(int code);
    std::string_view table;  ///< as the library knows it
};

template <class Words>
std::vector<std::string> listed(const Words& words) {
    return {words.begin(), words.end()};
}
std::vector<std::string> listed(const std::optional<std::string_view>& word) {
    return word ? std::vector<std::string>{std::string(*word)} : std::vector<std::string>{};
}

/// A record of a host's own that has more than the library's.
template <class Record>
struct Derived : Record {
    int own = 0;
};

template <auto Field>
FieldWithWords with(std::vector<std::string> files) {
    constexpr bool hasBits = kvjxml::words_of<Field>::held == kvjxml::holds::bits;
    constexpr bool isList = std::is_pointer_v<kvj::ValueOf<Field>>;
    using Code = kvjxml::detail::code_of<Field>;
    FieldWithWords field{.name = std::string(kvj::fieldOf<Field>.record).append("::").append(kvj::nameOf<Field>()),
                         .files = std::move(files),
                         .hasBits = hasBits,
                         .table = kvjxml::table_of<typename kvjxml::words_of<Field>::enumeration>};
    field.codeOf = [](std::string_view word) -> std::optional<int> {
        const std::optional<std::remove_pointer_t<kvj::ValueOf<Field>>> code = kvjxml::code<Field>(word);
        return code ? std::optional(static_cast<int>(*code)) : std::nullopt;
    };
    field.namesOf = [](int code) {
        if constexpr (hasBits) {
            return listed(kvjxml::names<Field>(static_cast<Code>(code)));
        } else {
            return listed(kvjxml::name<Field>(static_cast<Code>(code)));
        }
    };
    if constexpr (!isList) {
        field.namesInRecord = [](int code) {
            Derived<kvj::RecordOf<Field>> record{};
            record.*Field = static_cast<kvj::ValueOf<Field>>(code);
            if constexpr (hasBits) {
                return listed(kvjxml::names<Field>(record));
            } else {
                return listed(kvjxml::name<Field>(record));
            }
        };
    }
    if constexpr (!hasBits) {
        field.enumeratorOf = [](int code) -> std::optional<int> {
            const auto enumerator = kvjxml::as_enum<Field>(static_cast<Code>(code));
            return enumerator ? std::optional(static_cast<int>(*enumerator)) : std::nullopt;
        };
    }
    return field;
}

const std::vector<FieldWithWords>& fieldsWithWords() {
    using namespace Kavrin;
    static const std::vector<FieldWithWords> fields{
        with<&KVGeneralStatus::printerState>({"status::printerStates"}),
        with<&KVGeneralStatus::laminatorState>({"status::laminatorStates"}),
        with<&KVJobStatus::printState>({"status::jobStates"}),
        with<&KVJobStatus::magState>({"status::jobStates"}),
        with<&KVJobStatus::contactState>({"status::jobStates"}),
        with<&KVJobStatus::contactlessState>({"status::jobStates"}),
        with<&KVJobStatus::positionInTransport>({"status::jobStates"}),
        with<&KVJobStatus::laminatorState>({"status::laminatorStates"}),
        with<&_KVJobInfo::printState>({"status::jobStates"}),
        with<&_MediaStatusInfo::code>({"ribbonNames", "ribbonDescriptions"}),
        with<&KVCleaningStatus::cleaningState>({"status::cleaningStates"}),
        with<&_tagWirelessStatus::state>({"status::wirelessStates"}),
        with<&_tagWirelessStatus::security>({"status::securityWords"}),
        with<&_tagWirelessStatus::crypto>({"status::cipherWords"}),
        with<&_tagAccessPoint::Security>({"status::securityWords"}),
        with<&_tagAccessPoint::Encryption>({"status::cipherWords"}),
        with<&_PortCaps::portType>({"capabilities::portTypes"}),
        with<&_InterfaceCaps::protocol>({"capabilities::protocols"}),
        with<&_InterfaceCaps::transport>({"capabilities::transports"}),
        with<&_SecurityCaps::encryptionAlgorithm>({"capabilities::encryptionAlgorithms"}),
        with<&_FontCaps::style>({"capabilities::fontStyles"}),
        with<&_Capabilities::imageSharpeningLevels>({"capabilities::sharpeningLevels"}),
        with<&_Capabilities::graphicFormats>({"capabilities::graphicFormats"}),
        with<&_Capabilities::printSystem>({"capabilities::printSystems"}),
        with<&_Capabilities::printType>({"laminationTypes"}),
        with<&_Capabilities::laminatorType>({"laminationTypes"}),
        with<&_Capabilities::magHeadType>({"capabilities::magHeadTypes"}),
        with<&_Capabilities::magStripeLocation>({"capabilities::magStripeLocations"}),
        with<&_InternalEncoderInfo::commsChannel>({"commsChannels"}),
        with<&_InternalEncoderInfo::contactlessEncoder>({"contactlessEncoders"}),
        with<&_InternalEncoderInfo::contactlessEncoder2>({"contactlessEncoders"}),
        with<&_WirelessParams::security>({"configuration::securityWords"}),
        with<&_WirelessParams::crypto>({"configuration::cryptoWords"}),
        with<&_KVConfiguration::errorControl>({"configuration::errorControls"}),
        with<&_KVConfiguration::feederMode>({"feederModes"}),
        with<&_KVConfiguration::usbSpeed>({"configuration::usbSpeeds"}),
        with<&_RibbonInfo::ribbonCode>({"ribbonNames"}),
        with<&_CustomCardInfo::coercivity>({"coercivities"}),
        with<&_CardInfo::coercivity>({"coercivities"}),
        with<&_ImageTransferInfo::transferType>({"configuration::transferTypes"}),
        with<&_LaminateInstalled::registration>({"configuration::installedRegistrations"}),
        with<&_LaminateInstalled::width>({"configuration::installedWidths"}),
    };
    return fields;
}

void PrintTo(const FieldWithWords& field, std::ostream* out) { *out << field.name; }

// ---- That no field is left out ----

using Names = std::set<std::string, std::less<>>;

void add(Names& names, const FieldName& field) {
    names.insert(std::string(field.record).append("::").append(field.name));
}

// Groups nest as deep as the tables are written, so the recursion ends. NOLINTNEXTLINE(misc-no-recursion)
void addFields(std::span<const DescribedRow> rows, const FieldName& list, Names& names) {
    for (const auto& row : rows) {
        const auto& description = row.description;
        // The word of the laminator's type is composed; the type is read as well, and so is there.
        if (!description.words.name.empty() && description.kind != Kind::laminatorWord) {
            if (description.kind == Kind::textAndCode) {
                add(names, description.otherField);
            } else {
                add(names, description.field.empty() ? list : description.field);
            }
            if (description.kind == Kind::wordOrNext) add(names, description.otherField);
        }
        addFields(description.group, description.field, names);
    }
}

TEST(FaceWords, EveryFieldThatHasWordsIsKnownByThem) {
    Names described;
    for (const auto& message : kvj::messages()) addFields(message.table, {}, described);
    for (const auto& request : kvj::requests()) addFields(request.table, {}, described);
    Names tested;
    for (const auto& field : fieldsWithWords()) tested.insert(field.name);
    Names inHeader;
    const std::string trait = R"(struct words_of<&(?:Kavrin::)?(\S+)> : (?:one_word_of|bits_of)<(\w+)> \{\};)";
    for (const auto& line : kvj::tests::linesLike(trait, KVJXML_VOCABULARY)) inHeader.insert(line.front());
    EXPECT_EQ(tested, described);
    EXPECT_EQ(inHeader, described);
}

// ---- That it has the words of its files, and no others ----

class FieldWords : public testing::TestWithParam<FieldWithWords> {
protected:
    const FieldWithWords& field = GetParam();

    /// The word that a code has: the first in the files. Those that are only composed count where nothing is read.
    [[nodiscard]] std::optional<std::string> wordOf(int code) const {
        for (const auto& name : field.files) {
            const WordFile& file = wordFile(name);
            const auto row = std::ranges::find_if(
                file.rows, [&](const WordRow& each) { return each.code == code && (each.isRead || !file.isRead()); });
            if (row != file.rows.end()) return row->word;
        }
        return std::nullopt;
    }
    /// What a text is read as by the first file that knows it.
    [[nodiscard]] std::optional<int> codeOf(const std::string& text) const {
        for (const auto& name : field.files) {
            WordFile file = wordFile(name);
            file.other.reset();
            constexpr int none = std::numeric_limits<int>::min();
            if (const int code = file.codeOf(text, none); code != none) return code;
        }
        return std::nullopt;
    }
};

TEST_P(FieldWords, NameEachCodeByTheFirstOfItsWords) {
    for (const auto& name : field.files) {
        for (const WordRow& row : wordFile(name).rows) {
            EXPECT_THAT(field.namesOf(row.code), ElementsAre(wordOf(row.code).value_or("none"))) << row.code;
        }
    }
}

TEST_P(FieldWords, NameNoOtherCode) {
    if (field.hasBits) return;
    for (const int code : codesAround(wordFile(field.files.front()))) {
        const auto word = wordOf(code);
        const auto names = field.namesOf(code);
        if (word) {
            EXPECT_THAT(names, ElementsAre(*word)) << code;
        } else {
            EXPECT_THAT(names, IsEmpty()) << code;
        }
        EXPECT_EQ(field.enumeratorOf(code), word ? std::optional(code) : std::nullopt) << code;
    }
}

TEST_P(FieldWords, NameTheCodeInARecordOrOneDerivedFromIt) {
    if (field.namesInRecord == nullptr) return;
    for (const WordRow& row : wordFile(field.files.front()).rows) {
        EXPECT_EQ(field.namesInRecord(row.code), field.namesOf(row.code)) << row.code;
    }
}

TEST_P(FieldWords, HaveTheCodeThatTheReaderHasForAWordAndNoneForAnyOtherText) {
    for (const auto& name : field.files) {
        for (const std::string& text : textsLike(wordFile(name))) {
            EXPECT_EQ(field.codeOf(text), codeOf(text)) << '"' << text << '"';
        }
        for (const WordRow& row : wordFile(name).rows) {
            EXPECT_EQ(field.codeOf(row.word + '\0'), std::nullopt) << "with a NUL after " << row.word;
        }
    }
    EXPECT_EQ(field.codeOf({}), std::nullopt);
}

TEST_P(FieldWords, StandForNothingWhereTheLibraryDoesNotKnowTheTable) {
    const std::string table = std::string(field.table) + "_of_tomorrow";
    int code = -77;
    unsigned int unnamed = 0;
    for (const WordRow& row : wordFile(field.files.front()).rows) {
        EXPECT_EQ(kvjxml_v1_word(table.c_str(), row.code), nullptr);
        EXPECT_FALSE(kvjxml_v1_code(table.c_str(), row.word.data(), row.word.size(), &code));
        EXPECT_EQ(kvjxml_v1_words(table.c_str(), 5, nullptr, 0, &unnamed), 0U);
    }
    EXPECT_EQ(code, -77);
    EXPECT_EQ(unnamed, 5U);
}

INSTANTIATE_TEST_SUITE_P(, FieldWords, testing::ValuesIn(fieldsWithWords()),
                         [](const auto& test) { return kvj::tests::identifierOf(test.param.name); });

// ---- What hosts write ----

using Kavrin::_Capabilities;  // NOLINT(bugprone-reserved-identifier): hosts know it by that name
using Kavrin::KVGeneralStatus;

TEST(FaceWords, ASwitchGoesOverTheEnumeratorsOfAField) {
    KVGeneralStatus status{};
    status.printerState = 5;
    EXPECT_EQ(kvjxml::as_enum<&KVGeneralStatus::printerState>(status), kvjxml::printer_state::printing);
    EXPECT_EQ(kvjxml::name<&KVGeneralStatus::printerState>(kvjxml::printer_state::printing), "printing");
    status.printerState = 38;
    EXPECT_EQ(kvjxml::as_enum<&KVGeneralStatus::printerState>(status), std::nullopt) << "what other words become";
}

TEST(FaceWords, ACodeComesInTheTypeOfItsField) {
    const std::optional<Kavrin::ErrorControl> control = kvjxml::code<&Kavrin::_KVConfiguration::errorControl>("med");
    EXPECT_EQ(control, Kavrin::errorControlMedium);
    const std::optional<unsigned int> security = kvjxml::code<&Kavrin::_tagAccessPoint::Security>("WPA2");
    EXPECT_EQ(security, 4U);
    const std::optional<unsigned char> coercivity = kvjxml::code<&Kavrin::_CardInfo::coercivity>("high");
    EXPECT_EQ(coercivity, 2);
    EXPECT_EQ(kvjxml::name<&Kavrin::_KVConfiguration::errorControl>(Kavrin::errorControlMedium), "med");
}

// The printer takes "high", but sends other words for the same.
TEST(FaceWords, AWordThatIsOnlyComposedHasNoCode) {
    EXPECT_EQ(kvjxml::code<&Kavrin::_KVConfiguration::errorControl>("high"), std::nullopt);
    EXPECT_EQ(kvjxml::name<&Kavrin::_KVConfiguration::errorControl>(Kavrin::errorControlHigh), std::nullopt);
    EXPECT_EQ(kvjxml::name<&Kavrin::_CardInfo::coercivity>(0), std::nullopt);
}

TEST(FaceWords, ARibbonIsKnownByItsNameAndByItsPanels) {
    EXPECT_EQ(kvjxml::name<&_MediaStatusInfo::code>(262), "KrO");
    EXPECT_EQ(kvjxml::code<&_MediaStatusInfo::code>("KO"), 262);
    EXPECT_EQ(kvjxml::name<&_MediaStatusInfo::code>(272), "ymckoo");
    EXPECT_EQ(kvjxml::name<&Kavrin::_RibbonInfo::ribbonCode>(272), std::nullopt) << "no name that is composed";
}

TEST(FaceWords, OfBitsEachHasItsNameAndTheOthersAreLeft) {
    _Capabilities caps{};
    caps.imageSharpeningLevels = 0x4B;
    EXPECT_THAT(kvjxml::names<&_Capabilities::imageSharpeningLevels>(caps), ElementsAre("off", "normal", "low"));
    EXPECT_EQ(kvjxml::unnamed<&_Capabilities::imageSharpeningLevels>(caps), 0x40U);
    EXPECT_THAT(kvjxml::names<&_Capabilities::imageSharpeningLevels>(0), IsEmpty());
    EXPECT_EQ(kvjxml::unnamed<&_Capabilities::imageSharpeningLevels>(0), 0U);
    EXPECT_EQ(kvjxml::unnamed<&_Capabilities::imageSharpeningLevels>(-1), 0xFFFFFFF0U);
}

// 3 is the code of WPA, and what those of two kinds of WEP make together.
TEST(FaceWords, OfCombinedCodesTheWordOfTheValueCountsElseAllThatMayBeInIt) {
    constexpr auto security = &Kavrin::_tagWirelessStatus::security;
    EXPECT_THAT(kvjxml::names<security>(3), ElementsAre("WPA"));
    EXPECT_EQ(kvjxml::unnamed<security>(3), 0U);
    EXPECT_THAT(kvjxml::names<security>(0), ElementsAre("open"));
    EXPECT_THAT(kvjxml::names<security>(6), ElementsAre("WEP104", "WPA2"));
    EXPECT_THAT(kvjxml::names<security>(0x82), ElementsAre("WEP104"));
    EXPECT_EQ(kvjxml::unnamed<security>(0x82), 0x80U);
}

TEST(FaceWords, NoMoreWordsAreWrittenThanThereIsRoomFor) {
    const char* words[] = {"kept", "kept", "kept"};
    unsigned int unnamed = 0;
    EXPECT_EQ(kvjxml_v1_words("sharpening_level", 0xE, words, 2, &unnamed), 3U);
    EXPECT_THAT(words, ElementsAre(testing::StrEq("normal"), testing::StrEq("high"), testing::StrEq("kept")));
    EXPECT_EQ(unnamed, 0U);
}

TEST(FaceWords, BitsWithoutWordsAreListedByTheirNumbers) {
    KVGeneralStatus status{};
    EXPECT_THAT(kvjxml::bits(status.alarms), IsEmpty());
    status.alarms = 0x80008002U;
    EXPECT_THAT(kvjxml::bits(status.alarms), ElementsAre(1, 15, 31));
}

}  // namespace

}  // namespace words_test
