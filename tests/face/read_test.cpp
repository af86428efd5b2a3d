// What a host gets from kvjxml::read, in the code that a host writes. Everything here holds in any locale.
#include <KVJConfigParser.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <tinyxml.h>

#include <clocale>
#include <cstdio>
#include <cstring>
#include <kvjxml.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "fields/configuration.h"
#include "fields/differences.h"
#include "hostile/samples.h"
#include "support/files.h"

namespace kvjxml {
inline void PrintTo(const finding& found, std::ostream* out) { *out << to_string(found.kind) << " at " << found.path; }
}  // namespace kvjxml

namespace read_test {

namespace {

namespace messages = kvjxml::messages;
using kvj::tests::sampleOf;
using kvjxml::finding_kind;
using kvjxml::read;
using kvjxml::text;
using testing::IsEmpty;
using testing::SizeIs;

// ---- In every locale ----

/// A host that has set its locale to one of these.
class InEveryLocale : public testing::TestWithParam<const char*> {
public:
    void SetUp() override {
        before_ = std::setlocale(LC_ALL, nullptr);
        ASSERT_NE(std::setlocale(LC_ALL, GetParam()), nullptr);
    }
    void TearDown() override { std::setlocale(LC_ALL, before_.c_str()); }

private:
    std::string before_;
};
INSTANTIATE_TEST_SUITE_P(Read, InEveryLocale,
                         testing::Values("C", "C.UTF-8", "de_DE.UTF-8", "de_DE.ISO-8859-1", "tr_TR.ISO-8859-9",
                                         "vi_VN.TCVN"));

TEST_P(InEveryLocale, LettersOfSeveralBytesAreReadAndNothingBehindThemIsLost) {
    const auto status = read<messages::wireless_status>(
        "<get_wireless_status><ssid>Caf\xC3\xA9 B\xC3\xBCro</ssid><rate>54</rate></get_wireless_status>");
    ASSERT_TRUE(status);
    EXPECT_TRUE(status.whole());
    EXPECT_EQ(text(status->ssid), "Caf\xC3\xA9 B\xC3\xBCro");
    EXPECT_EQ(status->rate, 54);
}

TEST_P(InEveryLocale, EightyCyrillicLettersAreRead) {
    std::string letters;
    for (int i = 0; i < 80; ++i) letters += "\xD0\x96";
    const auto answer = read<messages::laminator_response>("<lam_ndc_rsp>" + letters + "</lam_ndc_rsp>");
    ASSERT_TRUE(answer && answer.whole());
    EXPECT_EQ(text(answer->response), letters);
}

TEST_P(InEveryLocale, CharactersByNumberAreUtf8WhateverTheReplyDeclares) {
    for (const std::string_view declaration : {"", "<?xml version='1.0'?>", "<?xml version='1.0' encoding='UTF-8'?>",
                                               "<?xml version='1.0' encoding='ISO-8859-1'?>", "\xEF\xBB\xBF"}) {
        const auto nonce = read<messages::nonce>(std::string(declaration) + "<nonce>B&#xFC;ro \xE2\x82\xAC</nonce>");
        ASSERT_TRUE(nonce && nonce.whole()) << declaration;
        EXPECT_EQ(text(nonce->nonce), "B\xC3\xBCro \xE2\x82\xAC") << declaration;
    }
}

TEST_P(InEveryLocale, NumbersHaveADecimalPoint) {
    const auto info = read<messages::configuration>(
        "<configuration><media_info><ribbon><type>3</type></ribbon></media_info><cards><card><information>"
        "<description>Custom 1</description><thickness>0.75</thickness></information></card></cards></configuration>");
    ASSERT_TRUE(info);
    EXPECT_EQ(info->customCard1.thickness, 0.75F);
}

TEST_P(InEveryLocale, ControlCharactersBeginNoName) {
    // In TCVN they are letters, and <\x01> would be an element.
    EXPECT_FALSE(read<messages::nonce>("<nonce>a<\x01>b</\x01></nonce>").whole());
}

TEST_P(InEveryLocale, TheLocaleStaysWhatItWas) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    EXPECT_TRUE(read<messages::configuration>(sampleOf("configuration"), kvjxml::diagnose));
    EXPECT_EQ(std::setlocale(LC_ALL, nullptr), before);
}

// ---- Lists ----

std::string jobs(int count) {
    std::string reply = "<get_job_list>";
    for (int i = 0; i < count; ++i) reply += "<job><action_id>" + std::to_string(i) + "</action_id></job>";
    return reply + "</get_job_list>";
}

TEST(ReadLists, AHundredJobsAreAHundred) {
    const auto list = read<messages::job_list>(jobs(100));
    ASSERT_TRUE(list);
    ASSERT_THAT(list->jobs, SizeIs(100));
    EXPECT_EQ(list->jobs.front().actionId, 0);
    EXPECT_EQ(list->jobs.back().actionId, 99);
}

TEST(ReadLists, WithoutEntriesAreAnAnswer) {
    for (const std::string_view reply :
         {"<get_job_list/>", "<get_job_list></get_job_list>", "<get_job_list>\n</get_job_list>"}) {
        const auto list = read<messages::job_list>(reply);
        ASSERT_TRUE(list) << reply;
        EXPECT_TRUE(list.whole()) << reply;
        EXPECT_THAT(list->jobs, IsEmpty()) << reply;
    }
}

TEST(ReadLists, HaveNoEntryForAnUnknownElement) {
    const auto list = read<messages::job_list>("<get_job_list><task/><job/><task/></get_job_list>");
    ASSERT_TRUE(list);
    EXPECT_THAT(list->jobs, SizeIs(1));
}

TEST(ReadLists, ThatStandTwiceAreThoseOfTheLaterPlace) {
    const auto caps = read<messages::capabilities>(
        "<capabilities><fonts><font><name>A</name></font><font><name>B</name><style>bold</style></font></fonts>"
        "<fonts><font><name>C</name></font></fonts></capabilities>");
    ASSERT_TRUE(caps);
    ASSERT_THAT(caps->fonts, SizeIs(1));
    EXPECT_EQ(text(caps->fonts[0].name), "C");
    EXPECT_EQ(caps->fonts[0].style, 0);
}

TEST(ReadLists, OfACatalogueGrowWithEachPlace) {
    const auto media = read<messages::media>(
        "<media><cards><card/></cards><ribbons><laminate><description>A</description></laminate></ribbons>"
        "<laminates><laminate><description>B</description></laminate></laminates><cards><card/></cards></media>");
    ASSERT_TRUE(media);
    EXPECT_THAT(media->cards, SizeIs(2));
    EXPECT_THAT(media->ribbons, IsEmpty());
    ASSERT_THAT(media->laminates, SizeIs(2));
    EXPECT_EQ(text(media->laminates[1].description), "B");
}

TEST(ReadLists, OfDevicePortsHaveTheLastOne) {
    const auto caps = read<messages::capabilities>(
        "<capabilities><device_ports><device_port><port_id>1</port_id></device_port>"
        "<device_port><port_id>2</port_id></device_port></device_ports></capabilities>");
    ASSERT_TRUE(caps);
    ASSERT_THAT(caps->devicePorts, SizeIs(1));
    EXPECT_EQ(caps->devicePorts[0].portId, 2);
}

TEST(ReadLists, LeaveTheArraysOfTheBaseAlone) {
    const auto caps = read<messages::capabilities>(sampleOf("capabilities"));
    ASSERT_TRUE(caps);
    EXPECT_THAT(caps->fonts, testing::Not(IsEmpty()));
    const Kavrin::_Capabilities& base = *caps;
    EXPECT_EQ(base.fonts, nullptr);
    EXPECT_EQ(base.fontCount, 0);
}

// ---- Nothing is left over ----

TEST(Read, ASecondReplyHasNothingOfTheFirst) {
    auto first = read<messages::wireless_status>(
        "<get_wireless_status><security>WPA2</security><crypto>CCMP</crypto><ssid>A</ssid></get_wireless_status>");
    const auto second = read<messages::wireless_status>(
        "<get_wireless_status><security>WPA</security><crypto>TKIP</crypto></get_wireless_status>");
    ASSERT_TRUE(first && second);
    EXPECT_EQ(second->security, 3U);
    EXPECT_EQ(second->crypto, 2U);
    EXPECT_EQ(text(second->ssid), "");
    first = second;
    EXPECT_EQ(text(first->ssid), "");
}

TEST(Read, TheSampleOfARibbonWritesToNoStreamAndNoGlobal) {
    std::strcpy(Kavrin::szRibbonName, "mine");
    std::FILE* const before = stderr;
    const kvj::tests::TemporaryFolder folder;
    const std::string path = (folder / "stderr").string();
    stderr = std::fopen(path.c_str(), "w");
    const auto configuration = read<messages::configuration>(sampleOf("configuration"), kvjxml::diagnose);
    std::fclose(stderr);
    stderr = before;
    ASSERT_TRUE(configuration);
    EXPECT_NE(text(configuration->ribbon.description), "");
    EXPECT_EQ(kvj::tests::contentOf(path), "");
    EXPECT_STREQ(Kavrin::szRibbonName, "mine");
}

TEST(Read, BlanksAreCondensedWhateverTheHostSetTinyXmlTo) {
    const bool before = TiXmlBase::IsWhiteSpaceCondensed();
    TiXmlBase::SetCondenseWhiteSpace(false);
    const auto nonce = read<messages::nonce>("<nonce>  a \n b  </nonce>");
    TiXmlBase::SetCondenseWhiteSpace(before);
    EXPECT_EQ(text(nonce->nonce), "a b");
}

TEST(Read, NothingPointsToTheBytes) {
    std::string bytes = "<nonce>abc</nonce>";
    const auto nonce = read<messages::nonce>(bytes, kvjxml::diagnose);
    bytes.assign(bytes.size(), 'x');
    EXPECT_EQ(text(nonce->nonce), "abc");
}

// ---- Errors ----

TEST(ReadErrors, NameTheElementThatIsThere) {
    const auto status = read<messages::general_status>("<get_job_status/>");
    ASSERT_FALSE(status);
    EXPECT_TRUE(status.whole());
    EXPECT_EQ(status.error().why, kvjxml::read_error::reason::no_such_message);
    EXPECT_EQ(status.error().root, "get_job_status");
    EXPECT_EQ(status.error().message(), "the reply is \"get_job_status\", not the message that was asked for");
}

TEST(ReadErrors, SayThatThereIsNoElement) {
    for (const std::string_view reply : {"", " ", "text", "<!-- <a/> -->", "\xEF\xBB\xBF"}) {
        const auto status = read<messages::general_status>(reply);
        ASSERT_FALSE(status) << reply;
        EXPECT_FALSE(status.whole()) << reply;
        EXPECT_EQ(status.error().root, "") << reply;
        EXPECT_EQ(status.error().message(), "the reply has no element") << reply;
    }
}

TEST(ReadErrors, CutALongNameAfter63Bytes) {
    const std::string name(100, 'a');
    EXPECT_EQ(read<messages::general_status>("<" + name + "/>").error().root, std::string(63, 'a'));
}

TEST(FieldTexts, AreViewedUpToTheirTerminatorOrTheEndOfTheField) {
    const char field[4] = {'a', 'b', '\0', 'c'};
    EXPECT_EQ(kvjxml::text(field), "ab");
    const char full[2] = {'a', 'b'};
    EXPECT_EQ(kvjxml::text(full), "ab");
}

TEST(FieldTexts, AreSetWithZerosBehindThem) {
    char field[4] = {'w', 'x', 'y', 'z'};
    EXPECT_TRUE(kvjxml::set_text(field, "a"));
    EXPECT_EQ(std::string(field, sizeof field), std::string("a\0\0\0", 4));
    EXPECT_TRUE(kvjxml::set_text(field, "abc"));
    EXPECT_STREQ(field, "abc");
}

TEST(FieldTexts, ThatDoNotFitLeaveTheField) {
    char field[4] = {'w', 'x', 'y', '\0'};
    EXPECT_FALSE(kvjxml::set_text(field, "abcd"));
    EXPECT_STREQ(field, "wxy");
}

TEST(ReadErrors, AreThereForAMessageThatAnOlderLibraryDoesNotKnow) {
    char root[] = "before";
    kvjxml_v1_target target{};
    target.root = root;
    target.root_size = sizeof root;
    EXPECT_EQ(kvjxml_v1_read(1000, "<a/>", 4, &target, nullptr), 0);
    EXPECT_STREQ(root, "");
}

TEST(ReadErrors, NeedNoText) {
    EXPECT_FALSE(read<messages::general_status>(std::string_view()));
    EXPECT_FALSE(read<messages::general_status>(std::string_view(), kvjxml::diagnose));
}

TEST(Read, TakesTheOtherNameOfAMessage) {
    EXPECT_TRUE(read<messages::capabilities>("<capabilities/>"));
    EXPECT_TRUE(read<messages::capabilities>("<get_capabilities/>"));
    EXPECT_TRUE(read<messages::configuration>("<configuration/>"));
    EXPECT_TRUE(read<messages::configuration>("<set_configuration/>"));
}

TEST(Read, FindsTheMessageBesideOthers) {
    const auto nonce = read<messages::nonce>("<a/><nonce>x</nonce>");
    ASSERT_TRUE(nonce);
    EXPECT_FALSE(nonce.whole());
    EXPECT_EQ(text(nonce->nonce), "x");
}

TEST(ReadDeathTest, TheRecordOfAFailedReadingEndsTheProgram) {
    EXPECT_EXIT(static_cast<void>(read<messages::nonce>("<a/>").value()), testing::KilledBySignal(SIGABRT), "");
    EXPECT_EXIT(static_cast<void>(read<messages::nonce>("<nonce/>").error()), testing::KilledBySignal(SIGABRT), "");
}

// ---- Which fields were there ----

TEST(ReadFields, AreThereWhateverBecameOfThem) {
    const auto status = read<messages::general_status>(
        "<get_general_status><alarms>none</alarms><error>0</error><printer_state/></get_general_status>");
    ASSERT_TRUE(status);
    EXPECT_TRUE(status.has<&Kavrin::KVGeneralStatus::alarms>());
    EXPECT_TRUE(status.has<&Kavrin::KVGeneralStatus::error>());
    EXPECT_FALSE(status.has<&Kavrin::KVGeneralStatus::printerState>());
    EXPECT_FALSE(status.has<&Kavrin::KVGeneralStatus::warning>());
}

TEST(ReadFields, OfARecordInsideTheRecord) {
    const auto media =
        read<messages::media_status>("<get_media_status><ribbon><type>0</type></ribbon><film/></get_media_status>");
    ASSERT_TRUE(media);
    EXPECT_TRUE(media.has<&MediaStatus::ribbon>());
    EXPECT_FALSE(media.has<&MediaStatus::film>());
    EXPECT_TRUE((media.has<&MediaStatus::ribbon, &_MediaStatusInfo::type>()));
    EXPECT_FALSE((media.has<&MediaStatus::ribbon, &_MediaStatusInfo::oemCountry>()));
    EXPECT_FALSE((media.has<&MediaStatus::film, &_MediaStatusInfo::type>()));
}

TEST(ReadFields, OfADescriptionTheCodeAsWell) {
    const auto media = read<messages::media_status>(
        "<get_media_status><ribbon><description>YMCKO</description></ribbon></get_media_status>");
    EXPECT_TRUE((media.has<&MediaStatus::ribbon, &_MediaStatusInfo::description>()));
    EXPECT_TRUE((media.has<&MediaStatus::ribbon, &_MediaStatusInfo::code>()));
}

TEST(ReadFields, OfASecondEncoderTheSecond) {
    const auto both = read<messages::configuration>(
        "<configuration><internal_encoder><contactless_encoder>mifare</contactless_encoder>"
        "<contactless_encoder>hf</contactless_encoder></internal_encoder></configuration>");
    const auto one = read<messages::configuration>(
        "<configuration><internal_encoder><contactless_encoder>mifare</contactless_encoder></internal_encoder>"
        "</configuration>");
    constexpr auto encoder = &Kavrin::_KVConfiguration::internalEncoder;
    EXPECT_TRUE((one.has<encoder, &Kavrin::_InternalEncoderInfo::contactlessEncoder>()));
    EXPECT_FALSE((one.has<encoder, &Kavrin::_InternalEncoderInfo::contactlessEncoder2>()));
    EXPECT_TRUE((both.has<encoder, &Kavrin::_InternalEncoderInfo::contactlessEncoder2>()));
}

TEST(ReadFields, OfAnEncoderBehindAnUnknownOneTheFirst) {
    const auto encoders = read<messages::configuration>(
        "<configuration><internal_encoder><contactless_encoder>mifair</contactless_encoder>"
        "<contactless_encoder>hf</contactless_encoder></internal_encoder></configuration>",
        kvjxml::diagnose);
    using Info = Kavrin::_InternalEncoderInfo;
    constexpr auto encoder = &Kavrin::_KVConfiguration::internalEncoder;
    EXPECT_NE(encoders->internalEncoder.contactlessEncoder, 0);
    EXPECT_FALSE((encoders.has<encoder, &Info::contactlessEncoder2>()));
    ASSERT_EQ(encoders.findings().size(), 1U);
    EXPECT_EQ(encoders.findings()[0].text, "mifair");
    EXPECT_EQ(encoders.findings()[0].field, "Kavrin::_InternalEncoderInfo::contactlessEncoder");
}

TEST(ReadFields, OfAThirdEncoderTheSecondWhichIsRepeated) {
    const auto encoders = read<messages::configuration>(
        "<configuration><internal_encoder><contactless_encoder>mifare</contactless_encoder>"
        "<contactless_encoder>mifare</contactless_encoder><contactless_encoder>hff</contactless_encoder>"
        "</internal_encoder></configuration>",
        kvjxml::diagnose);
    std::vector<finding_kind> kinds;
    for (const auto& finding : encoders.findings()) {
        kinds.push_back(finding.kind);
        EXPECT_EQ(finding.path, "/configuration/internal_encoder/contactless_encoder[3]");
        EXPECT_EQ(finding.field, "Kavrin::_InternalEncoderInfo::contactlessEncoder2");
    }
    EXPECT_THAT(kinds, testing::UnorderedElementsAre(finding_kind::repeated, finding_kind::unknown_word));
}

TEST(ReadFields, OfTheCustomCardThatTheyWentTo) {
    const auto cards = read<messages::configuration>(
        "<configuration><cards><card><information><type>1</type><description>Custom "
        "1</description></information></card>"
        "<card><cal_table>2</cal_table></card></cards></configuration>");
    using Kavrin::_CustomCardInfo;
    using Kavrin::_KVConfiguration;
    EXPECT_TRUE((cards.has<&_KVConfiguration::customCard1, &_CustomCardInfo::type>()));
    EXPECT_TRUE((cards.has<&_KVConfiguration::customCard1, &_CustomCardInfo::description>()));
    EXPECT_FALSE((cards.has<&_KVConfiguration::customCard1, &_CustomCardInfo::calTable>()));
    EXPECT_TRUE((cards.has<&_KVConfiguration::customCard2, &_CustomCardInfo::calTable>()));
    EXPECT_FALSE((cards.has<&_KVConfiguration::customCard2, &_CustomCardInfo::type>()));
}

TEST(ReadFields, OfASettingItsThreeParts) {
    using Kavrin::_KVConfiguration;
    using Kavrin::_MinMaxVal;
    constexpr auto contrast = &_KVConfiguration::lcdContrast;
    const auto value = read<messages::configuration>("<configuration><lcd_contrast>5</lcd_contrast></configuration>");
    EXPECT_TRUE(value.has<contrast>());
    EXPECT_TRUE((value.has<contrast, &_MinMaxVal::value>()));
    EXPECT_FALSE((value.has<contrast, &_MinMaxVal::min>()));
    EXPECT_FALSE((value.has<contrast, &_MinMaxVal::max>()));
    const auto range = read<messages::configuration>("<configuration><lcd_contrast min='0' max='9'/></configuration>");
    EXPECT_TRUE(range.has<contrast>());
    EXPECT_FALSE((range.has<contrast, &_MinMaxVal::value>()));
    EXPECT_TRUE((range.has<contrast, &_MinMaxVal::min>()));
    EXPECT_TRUE((range.has<contrast, &_MinMaxVal::max>()));
}

TEST(ReadFields, OfARecordInsideARecordInsideTheRecord) {
    using namespace Kavrin;
    const auto configuration = read<messages::configuration>(
        "<configuration><lamination><top_laminate><laminate_installed><type>0</type></laminate_installed>"
        "</top_laminate></lamination></configuration>");
    constexpr auto lamination = &_KVConfiguration::lamination;
    EXPECT_TRUE((configuration.has<lamination, &_LaminationIfo::topLaminate, &_Laminate::laminateInstalled,
                                   &_LaminateInstalled::type>()));
    EXPECT_FALSE((configuration.has<lamination, &_LaminationIfo::topLaminate, &_Laminate::laminateInstalled,
                                    &_LaminateInstalled::width>()));
    EXPECT_FALSE((configuration.has<lamination, &_LaminationIfo::bottomLaminate>()));
}

TEST(ReadFields, OfKeysEachItsOwn) {
    const auto host = read<messages::host_keys>("<diffie_hellman><base>0x5</base></diffie_hellman>");
    EXPECT_TRUE(host.has<&Kavrin::_tagHostDHKeys::base>());
    EXPECT_FALSE(host.has<&Kavrin::_tagHostDHKeys::modulus>());
    const std::string_view reply = "<diffie_hellman><printer_interim_key>7</printer_interim_key></diffie_hellman>";
    EXPECT_TRUE(read<messages::printer_key>(reply).has<&kvjxml::printer_interim_key::key>());
    EXPECT_EQ((*read<messages::printer_key>(reply)).key, 7);
    EXPECT_FALSE(read<messages::printer_key>("<diffie_hellman><base>5</base></diffie_hellman>")
                     .has<&kvjxml::printer_interim_key::key>());
}

TEST(ReadFields, OfTheRootItself) {
    EXPECT_TRUE(read<messages::nonce>("<nonce>1</nonce>").has<&kvjxml::nonce_text::nonce>());
    EXPECT_FALSE(read<messages::nonce>("<nonce/>").has<&kvjxml::nonce_text::nonce>());
    EXPECT_TRUE(read<messages::passkey>("<passkey>1</passkey>").has<&Kavrin::_tagSecSetKeys::current_passkey>());
    EXPECT_TRUE(read<messages::cards_until_cleaning>("<get_count><total_cards_until_next_cleaning>9"
                                                     "</total_cards_until_next_cleaning></get_count>")
                    .has<&kvjxml::cleaning_count::cards>());
}

// ---- Findings ----

TEST(ReadFindings, AreToldInTheOrderOfTheReply) {
    const auto status = read<messages::general_status>(
        "<get_general_status>\n  <alarm>1</alarm>\n  <printer_state>printng</printer_state>\n</get_general_status>",
        kvjxml::diagnose);
    ASSERT_TRUE(status);
    ASSERT_THAT(status.findings(), SizeIs(2));
    EXPECT_EQ(status.omitted(), 0U);
    const kvjxml::finding& first = status.findings()[0];
    EXPECT_EQ(first.kind, finding_kind::unknown_element);
    EXPECT_EQ(first.level, kvjxml::severity::note);
    EXPECT_EQ(first.line, 2U);
    EXPECT_EQ(first.column, 3U);
    EXPECT_EQ(first.offset, 23U);
    EXPECT_EQ(first.length, 7U);
    EXPECT_EQ(first.path, "/get_general_status/alarm");
    EXPECT_EQ(first.field, "");
    EXPECT_EQ(first.detail, "did you mean \"alarms\"?");
    const kvjxml::finding& second = status.findings()[1];
    EXPECT_EQ(second.kind, finding_kind::unknown_word);
    EXPECT_EQ(second.level, kvjxml::severity::error);
    EXPECT_EQ(second.line, 3U);
    EXPECT_EQ(second.path, "/get_general_status/printer_state");
    EXPECT_EQ(second.field, "Kavrin::KVGeneralStatus::printerState");
    EXPECT_EQ(second.text, "printng");
    EXPECT_EQ(second.became, "38");
    EXPECT_EQ(second.detail, "did you mean \"printing\"?");
}

TEST(ReadFindings, OfATemporaryAreMovedOut) {
    const std::vector<kvjxml::finding> findings = read<messages::nonce>("<nonce/>", kvjxml::diagnose).findings();
    ASSERT_THAT(findings, SizeIs(1));
    EXPECT_EQ(findings[0].kind, finding_kind::no_text);
}

TEST(ReadFindings, HaveNames) {
    EXPECT_EQ(to_string(finding_kind::malformed), "malformed");
    EXPECT_EQ(to_string(finding_kind::unknown_word), "unknown-word");
    EXPECT_EQ(to_string(finding_kind::ignored), "ignored");
    EXPECT_EQ(to_string(kvjxml::severity::note), "note");
    EXPECT_EQ(to_string(kvjxml::severity::error), "error");
}

TEST(ReadFindings, ChangeNothingThatIsRead) {
    for (const auto& [root, reply] : kvj::tests::samples()) {
        const auto plain = read<messages::configuration>(reply);
        const auto diagnosed = read<messages::configuration>(reply, kvjxml::diagnose);
        ASSERT_EQ(plain.has_value(), diagnosed.has_value());
        EXPECT_EQ(plain.whole(), diagnosed.whole());
        if (!plain) continue;
        EXPECT_EQ(kvj::describeDifferences(kvj::recordType<Kavrin::_KVConfiguration>, &*plain, &*diagnosed), "");
    }
}

}  // namespace

}  // namespace read_test
