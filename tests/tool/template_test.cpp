// "template" and the help of requests: what there is to fill in, and with what.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "messages/request.h"
#include "tool/tool.h"

namespace template_test {

namespace {

using kvj::tests::contentOf;
using kvj::tests::Outcome;
using kvj::tests::runTool;
using nlohmann::json;
using testing::HasSubstr;
using testing::Not;

json templateOf(const std::string& words) {
    const Outcome outcome = runTool("template " + words);
    EXPECT_EQ(outcome.code, 0) << outcome.error;
    return json::parse(outcome.out);
}

/// What a request's own sample has in the places that a template leaves blank.
json filled(json blank, const json& sample) {
    if (blank.is_object()) {
        for (auto& [name, value] : blank.items()) {
            if (name != "$help") value = filled(value, sample.value(name, json()));
        }
    } else if (blank.is_array()) {
        const json entry = blank[0];
        blank = json::array();
        for (const json& one : sample) blank.push_back(filled(entry, one));
    } else {
        EXPECT_EQ(blank, json());
        return sample;
    }
    return blank;
}

class OfRequest : public testing::TestWithParam<std::string> {
protected:
    [[nodiscard]] static std::string options() {
        const std::string file = std::string(KVJXML_GOLDEN) + "/" + GetParam() + ".options";
        const std::string line = std::filesystem::exists(file) ? contentOf(file) : "\n";
        return " " + line.substr(0, line.find('\n'));
    }
    [[nodiscard]] static std::string chosen() {
        std::string words = options();
        if (const auto at = words.find(" --accept-changes"); at != std::string::npos) words.resize(at);
        return GetParam() + words;
    }
};

TEST_P(OfRequest, ATemplateThatIsFilledInIsTaken) {
    const json sample = json::parse(contentOf(std::string(KVJXML_REQUESTS) + "/" + GetParam() + ".json"));
    const json all = filled(templateOf(chosen()), sample);
    const Outcome outcome = runTool("encode " + GetParam() + options(), all.dump());
    EXPECT_EQ(outcome.code, 0) << outcome.error;
    EXPECT_EQ(outcome.out, contentOf(std::string(KVJXML_GOLDEN) + "/" + GetParam() + ".xml"));
}

TEST_P(OfRequest, NothingIsSentOfABlankTemplateButWhatMayBeNull) {
    const json blank = templateOf(chosen());
    const Outcome outcome = runTool("encode " + GetParam() + options(), blank.dump());
    const bool mayAllBeNull =
        GetParam() == "keys" || GetParam() == "passkey-change" || GetParam() == "secure-action-request";
    EXPECT_EQ(outcome.code, mayAllBeNull ? 0 : 5) << outcome.error;
}

TEST_P(OfRequest, EveryFieldOfATemplateHasItsHelp) {
    const json blank = templateOf(chosen());
    for (const auto& [name, value] : blank.items()) {
        if (name == "$help") continue;
        EXPECT_THAT(blank["$help"].value(name, ""), Not(testing::IsEmpty())) << name;
    }
}

std::vector<std::string> names() {
    std::vector<std::string> all;
    for (const auto& request : kvj::requests()) all.emplace_back(request.name);
    return all;
}

INSTANTIATE_TEST_SUITE_P(Requests, OfRequest, testing::ValuesIn(names()));

TEST(Template, HasWhatTheChosenSectionsWrite) {
    const json blank = templateOf("configuration --sections standby_timeout,wireless");
    EXPECT_TRUE(blank.contains("standbyTimeout"));
    EXPECT_TRUE(blank["wireless"].contains("key"));
    EXPECT_FALSE(blank["wireless"].contains("country"));  // The printer takes none.
    EXPECT_FALSE(blank.contains("lcdContrast"));
    EXPECT_TRUE(templateOf("configuration").contains("lcdContrast"));
    EXPECT_FALSE(templateOf("configuration --skip-transfer").contains("transferSettings"));
    // The reply does not say whether a laminate is there, but without one none is written.
    EXPECT_TRUE(templateOf("configuration")["lamination"]["topLaminate"].contains("laminatePresent"));
}

TEST(Template, SaysWhatAFieldTakes) {
    const json help = templateOf("configuration --sections wireless")["wireless"]["$help"];
    EXPECT_EQ(help["security"],
              "<security>: a word or its number: none 0, wep40 1, wep104 2, wpa_wpa2 5, wpa 3, wpa2 4");
    EXPECT_THAT(help["key"].get<std::string>(), HasSubstr("a secret"));
    EXPECT_THAT(templateOf("media")["cards"][0]["transferSpeeds"]["inputSingle"]["$help"]["value"].get<std::string>(),
                HasSubstr("the printer gets the maximum"));
    // A word that the printer sends but does not take is none.
    EXPECT_THAT(templateOf("capabilities")["hostPorts"][0]["$help"]["portType"].get<std::string>(),
                testing::EndsWith("ethernet_10_100_1G 3"));
}

TEST(EncodeHelp, OfARequestHasItsCodes) {
    EXPECT_THAT(runTool("encode configuration --help").out,
                HasSubstr("  /wireless/security\n      none 0, wep40 1, wep104 2, wpa_wpa2 5, wpa 3, wpa2 4\n"));
    EXPECT_THAT(runTool("encode media --help").out, HasSubstr("  /cards/*/coercivity\n      low 1, high 2, none 0\n"));
    EXPECT_THAT(runTool("encode motor --help").out, HasSubstr("  /direction\n      forward 0, reverse 1\n"));
    EXPECT_THAT(runTool("encode nonce --help").out, Not(HasSubstr("Codes")));
}

TEST(EncodeHelp, AMisspeltSectionGetsTheNearest) {
    const Outcome outcome = runTool("encode configuration --sections lcd_contarst", "{}");
    EXPECT_EQ(outcome.code, 2);
    EXPECT_THAT(outcome.error, HasSubstr("; did you mean \"lcd_contrast\"?"));
    EXPECT_THAT(runTool("template configuration --sections weather").error, Not(HasSubstr("did you mean")));
}

}  // namespace

}  // namespace template_test
