// What "check" shows of documents with secrets in them, where these are masked.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <span>
#include <string>

#include "messages/message.h"
#include "secrets.h"
#include "tool/checked.h"

namespace check_secrets_test {

namespace {

using namespace kvj;
using namespace kvj::tests;
using testing::HasSubstr;
using testing::Not;

const tool::CheckOptions masking{.hidesSecrets = true};
constexpr tool::MakeWriter writers[] = {tool::textWriter, tool::jsonWriter, tool::sarifWriter};

void expectMasked(const std::string& document) {
    for (const tool::MakeWriter writer : writers) {
        EXPECT_THAT(printed(writer, document, masking), Not(HasSubstr("SECRET"))) << document;
    }
}
std::string textOf(const std::string& document) { return printed(tool::textWriter, document, masking); }

std::string long_(std::size_t size) { return "SECRET" + std::string(size, 'x'); }

/// Whatever can be wrong with an element, and with what is around it.
std::vector<std::string> faultsIn(const std::string& name, const std::string& begin, const std::string& end) {
    const std::string open = "<" + name + ">";
    const std::string close = "</" + name + ">";
    std::vector<std::string> all;
    for (const std::string& element : {
             open + long_(5000) + close,
             open + "SECRET<b/>" + close,
             open + "<!-- SECRET -->" + close,
             open + "<SECRET/>" + close,
             open + "SECRET&;" + close,
             open + "SECRET\xFF" + close,
             open + "SECRET" + close + open + "SECRET" + close,
             open + close + "SECRET",
             open + "SECRET",
             open + "SECRET</other>",
             open + "SECRET" + close + "</other>SECRET",
             "<" + name + "x>SECRET</" + name + "x>",
             "<" + name + " SECRET</" + name + ">",
             "<" + name + " a='SECRET'/><qq/>",
             "<" + name + " a=SECRET>",
             open + "<![CDATA[SECRET]]><b/>" + close,
             open + "\nSECRET\n<b/>" + close,
             open + "SECRET" + close + "<!SECRET>",
             open + "SECRET" + close + std::string(1, '\0') + "SECRET",
         }) {
        all.push_back(begin + element + end);
        all.push_back(begin + element);
    }
    return all;
}

TEST(CheckOfSecrets, MasksEachSecretWhateverIsWrongWithIt) {
    std::size_t count = 0;
    for (const Message& message : messages()) {
        const std::string root(message.root);
        const auto look = [&](auto& self, std::span<const DescribedRow> rows, const std::string& begin,
                              const std::string& end) -> void {
            for (const DescribedRow& row : rows) {
                const std::string name(row.name);
                self(self, row.description.group, begin + "<" + name + ">", "</" + name + ">" + end);
                const FieldName& field = row.description.field;
                if (!tool::isSecret(field.record, field.name)) continue;
                ++count;
                for (const std::string& document : faultsIn(name, begin, end)) expectMasked(document);
            }
        };
        look(look, message.table, "<" + root + ">", "</" + root + ">");
    }
    EXPECT_GT(count, 10U);
}

TEST(CheckOfSecrets, MasksATextThatIsTheWholeMessage) {
    for (const std::string& document : faultsIn("passkey", "", "")) expectMasked(document);
}

TEST(CheckOfSecrets, MasksAMessageThatNobodyKnows) {
    const auto expectAllMasked = [](std::vector<std::string> documents) {
        // Names of elements are shown where none is read as a value.
        std::erase_if(documents, [](const std::string& each) { return each.find("<SECRET") != std::string::npos; });
        for (const std::string& document : documents) expectMasked(document);
    };
    expectAllMasked(faultsIn("kees", "", ""));
    expectAllMasked(faultsIn("key", "<configurationx>", "</configurationx>"));
}

TEST(CheckOfSecrets, MasksASecondDocumentBehindTheFirst) {
    expectMasked("<get_job_status/><keys><printer_lock_key>SECRET</printer_lock_key></keys>");
    expectMasked("<get_job_status/>ready<keys><printer_lock_key>SECRET</printer_lock_key></keys>");
}

TEST(CheckOfSecrets, ShowsTheRest) {
    EXPECT_THAT(textOf("<keys><printer_lock_kee>SECRET</printer_lock_kee></keys>"),
                HasSubstr("/keys/printer_lock_kee, not read (did you mean \"printer_lock_key\"?)\n"
                          "    <keys><printer_lock_kee>********</printer_lock_kee></keys>\n"));
    EXPECT_THAT(textOf("<configuration><lcd_contrast min='1' max='9'>5 V</lcd_contrast></configuration>"),
                HasSubstr("<lcd_contrast min='1' max='9'>5 V</lcd_contrast>"));
    EXPECT_THAT(textOf("<get_job_status><owner>me</owner></get_job_status>"), HasSubstr("<owner>me</owner>"));
    EXPECT_THAT(textOf("<get_job_status><uuid>6a1</action_id>"), HasSubstr("<uuid>6a1</action_id>"));
}

TEST(CheckOfSecrets, MarksThePlaceInALineWithMasks) {
    EXPECT_THAT(textOf("<keys><printer_lock_key>SECRET!!!!!!!!!!!</printer_lock_key><qqq/></keys>"),
                HasSubstr("    <keys><printer_lock_key>********</printer_lock_key><qqq/></keys>\n" +
                          std::string(4 + 51, ' ') + "^\n"));
}

}  // namespace

}  // namespace check_secrets_test
