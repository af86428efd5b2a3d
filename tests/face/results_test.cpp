// What a host gets: a text or the reasons why there is none, and nothing that could be mistaken for the other.
#include <gtest/gtest.h>

#include <kvjxml_compose.hpp>

#include <array>
#include <cstring>
#include <filesystem>
#include <memory>
#include <nlohmann/json.hpp>
#include <set>
#include <span>
#include <string>
#include <type_traits>
#include <utility>

#include "configuration/document.h"
#include "fields/capabilities.h"
#include "fields/configuration.h"
#include "fields/identity.h"
#include "fields/media.h"
#include "identity/printer.h"
#include "messages/message.h"
#include "sections.h"

namespace results_test {

using kvjxml::identity_section;
using kvjxml::section;

namespace {

const std::string nonceText =
    "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n"
    "<nonce>5F3A</nonce>\n";
const kvjxml::handshake::nonce good{"5F3A"};
const kvjxml::handshake::nonce bad{" 5F3A"};

TEST(Composed, HasTheTextAndNoProblems) {
    const auto request = kvjxml::compose(good);
    ASSERT_TRUE(request);
    EXPECT_EQ(request.text(), nonceText);
    EXPECT_TRUE(request.problems().empty());
}

TEST(Composed, EndsTheProgramWhereThereIsNoText) {
    const auto request = kvjxml::compose(bad);
    ASSERT_FALSE(request);
    EXPECT_EQ(request.problems().size(), 1U);
    EXPECT_DEATH(static_cast<void>(request.text()), "");
}

TEST(Composed, HandsItsProblemsOver) {
    EXPECT_EQ(kvjxml::compose(bad).problems().size(), 1U);
    static_assert(std::is_same_v<decltype(kvjxml::compose(bad).problems()), std::vector<kvjxml::problem>>);
}

TEST(Composed, IsMovedWithoutFailing) {
    static_assert(std::is_nothrow_move_constructible_v<kvjxml::composed>);
    static_assert(std::is_nothrow_move_constructible_v<kvjxml::composed_in>);
    static_assert(!std::is_convertible_v<kvjxml::composed, bool>);
    static_assert(!std::is_convertible_v<kvjxml::composed, std::string>);
}

TEST(ComposedIn, TakesAnyBuffer) {
    char array[256];
    std::array<char, 256> standard{};
    std::string characters(256, '#');
    EXPECT_EQ(kvjxml::compose_to(array, good).text(), nonceText);
    EXPECT_EQ(kvjxml::compose_to(standard, good).text(), nonceText);
    EXPECT_EQ(kvjxml::compose_to({characters.data(), characters.size()}, good).text(), nonceText);
    EXPECT_EQ(kvjxml::compose_to(std::span(characters), good).text(), nonceText);
    EXPECT_EQ(kvjxml::compose_to(std::span(array), good).text().data(), array);
}

TEST(ComposedIn, SaysTheSizeThatItNeeds) {
    const auto none = kvjxml::compose_to({nullptr, 0}, good);
    EXPECT_FALSE(none);
    EXPECT_EQ(none.size(), nonceText.size());
    EXPECT_TRUE(none.problems().empty());
    EXPECT_DEATH(static_cast<void>(none.text()), "");
}

TEST(ComposedIn, LeavesNothingOfARefusedRequestInTheBuffer) {
    std::array<char, 256> buffer{};
    buffer.fill('#');
    const auto refused = kvjxml::compose_to(buffer, bad);
    EXPECT_FALSE(refused);
    EXPECT_EQ(refused.size(), 0U);
    EXPECT_EQ(refused.problems().size(), 1U);
    EXPECT_EQ(buffer, (std::array<char, 256>{}));
    EXPECT_DEATH(static_cast<void>(refused.text()), "");
}

TEST(AcceptedChanges, AreSent) {
    const auto request = kvjxml::compose(bad, kvjxml::accept_changes{});
    ASSERT_TRUE(request);
    EXPECT_NE(request.text().find("> 5F3A<"), std::string::npos);
}

TEST(AcceptedChanges, ComeWithOtherOptions) {
    kvjxml::options options;
    options.direct_to_card = true;
    kvjxml::capabilities caps;
    EXPECT_FALSE(kvjxml::compose(caps, options));
    const auto request = kvjxml::compose(caps, kvjxml::accept_changes{options});
    ASSERT_TRUE(request);
    EXPECT_NE(request.text().find("direct_to_card"), std::string::npos);
}

// ---- Sections ----

/// The sections that the face has, by name.
template <class Section>
using Names = std::map<std::string, Section>;

template <class Section>
void expectSections(std::span<const kvj::DescribedRow> rows, const Names<Section>& names) {
    Names<Section> known;
    auto all = Section::none;
    for (const auto& named : kvj::tool::sectionsOf(rows)) {
        known[named.name] = static_cast<Section>(named.bit);
        all |= static_cast<Section>(named.bit);
    }
    EXPECT_EQ(known, names);
    EXPECT_EQ(all, Section::all);
}

TEST(Sections, AreThoseOfTheTableByTheNamesOfTheTool) {
    expectSections<section>(kvj::described<kvj::configuration::documentSections>,
                            {{"physical_address", section::physical_address},
                             {"ethernet", section::ethernet},
                             {"wireless", section::wireless},
                             {"ocp_language", section::ocp_language},
                             {"error_control", section::error_control},
                             {"usage_counters", section::usage_counters},
                             {"standby_timeout", section::standby_timeout},
                             {"imaging_parameters", section::imaging_parameters},
                             {"ribbon_motor_parameters", section::ribbon_motor_parameters},
                             {"ribbon_sensor_offset", section::ribbon_sensor_offset},
                             {"mech_adjustments", section::mech_adjustments},
                             {"media_info", section::media_info},
                             {"lamination", section::lamination},
                             {"cleaning", section::cleaning},
                             {"feeder_mode", section::feeder_mode},
                             {"cards", section::cards},
                             {"transfer_settings", section::transfer_settings},
                             {"lcd_contrast", section::lcd_contrast},
                             {"internal_encoder", section::internal_encoder}});
    expectSections<identity_section>(
        kvj::described<kvj::identity::printerSections>,
        {{"printer_model", identity_section::printer_model}, {"printhead_serial", identity_section::printhead_serial}});
}

TEST(Sections, AreCombinedAsFlags) {
    constexpr section two = section::ethernet | section::cards;
    static_assert((two & section::cards) == section::cards);
    static_assert((two & section::wireless) == section::none);
    static_assert((two & ~section::cards) == section::ethernet);
    static_assert((~section::none) == section::all);
    section some = section::none;
    some |= two;
    some &= ~section::ethernet;
    EXPECT_EQ(some, section::cards);
}

// ---- What is left behind ----

TEST(Composing, LeavesNoCopy) {
    const auto copies = [] {
        std::set<std::pair<std::string, std::filesystem::file_time_type>> found;
        for (const char* copy : {"/tmp/firmwaresettings", "/tmp/printidsettings", "/tmp/composedXML"}) {
            if (std::filesystem::exists(copy)) found.emplace(copy, std::filesystem::last_write_time(copy));
        }
        return found;
    };
    const auto before = copies();
    EXPECT_TRUE(kvjxml::compose(Kavrin::_KVConfiguration{}, section::all, kvjxml::accept_changes{}));
    EXPECT_TRUE(kvjxml::compose(Kavrin::KVPrinterInfo{}));
    EXPECT_TRUE(kvjxml::compose(kvjxml::commands::motor{}));
    EXPECT_EQ(copies(), before);
}

}  // namespace

}  // namespace results_test
