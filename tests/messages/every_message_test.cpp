// What every message must do, for all of them: what a reply lacks, or has beside what the reader looks for, leaves the
// host's record as it was, and each element changes the field of its row and no other.
#include <gtest/gtest.h>

#include <ostream>
#include <regex>
#include <string>
#include <string_view>
#include <vector>

#include "messages/cases.h"
#include "messages/host_record.h"

namespace kvj {

/// How a failure names the message.
static void PrintTo(const Message& message, std::ostream* out) { *out << message.operation; }

}  // namespace kvj

namespace every_message_test {

namespace {

using namespace kvj::tests;
using kvj::Message;

constexpr Preset presets[] = {Preset::low, Preset::high};

/// A name whose first letter is of the other case.
std::string inOtherCase(std::string name) {
    name.front() = static_cast<char>(name.front() ^ ('a' ^ 'A'));
    return name;
}

class EveryMessage : public testing::TestWithParam<Message> {
protected:
    static const Message& message() { return GetParam(); }

    static std::vector<std::string> roots() {
        std::vector<std::string> names{std::string(message().root)};
        if (!message().otherRoot.empty()) names.emplace_back(message().otherRoot);
        return names;
    }
    /// A reply with a text in front of its elements, which few readers look at: without it they would take an element
    /// for the text.
    static std::string reply(const std::string& root, const std::string& elements) {
        return "<" + root + ">text" + elements + "</" + root + ">";
    }

    static void expectUntouchedBy(const std::string& reply) {
        for (const Preset preset : presets) {
            const HostRecord record(message(), preset);
            const bool result = record.read(reply);
            EXPECT_EQ(record.differencesFrom(HostRecord(message(), preset)), "") << reply;
            EXPECT_FALSE(result && message().saysWhetherRead) << reply;
        }
    }

    /// Reads these inputs of a row, one behind the other, and does to another record what they do.
    static void expectChanges(const RowCases& row, const std::vector<const Input*>& inputs, const std::string& root,
                              Preset preset) {
        std::string elements = row.open;
        for (const Input* const input : inputs) elements += input->element;
        elements += row.close;
        const HostRecord record(message(), preset);
        const bool result = record.read(reply(root, elements));
        // What a reader sets before it looks at any element is there as well.
        const HostRecord expected(message(), preset);
        expected.read(reply(root, ""));
        void* const within = row.within(expected.get());
        for (const Input* const input : inputs) input->change(within);
        EXPECT_EQ(record.differencesFrom(expected), "") << elements;
        const auto said = inputs.back()->result;
        EXPECT_EQ(result, message().saysWhetherRead ? said.value_or(result) : result) << elements;
    }
    static void expectChanges(const RowCases& row, const std::vector<const Input*>& inputs) {
        expectChanges(row, inputs, std::string(message().root), Preset::low);
    }
    static void expectChangesInAnyRecord(const RowCases& row, const Input& input) {
        for (const std::string& root : roots()) {
            for (const Preset preset : presets) expectChanges(row, {&input}, root, preset);
        }
    }

    static void keep(void* /*record*/) {}
};

TEST_P(EveryMessage, WithoutItsRootChangesNothing) {
    for (const char* const text : {"", " ", "no XML", "<", "<?xml version='1.0'?>", "<!-- no root -->", "\n\t"}) {
        expectUntouchedBy(text);
    }
}

TEST_P(EveryMessage, OfAnotherRootChangesNothing) {
    const std::string root(message().root);
    std::string elements;
    for (const RowCases& row : casesOf(message())) elements += row.open + row.inputs.front().element + row.close;
    expectUntouchedBy(reply("no_root_of_a_printer", elements));
    expectUntouchedBy(reply(root + "s", elements));
    expectUntouchedBy(reply(inOtherCase(root), elements));
    expectUntouchedBy(elements);
    expectUntouchedBy(reply("outer", reply(root, elements)));
}

TEST_P(EveryMessage, WithAnEmptyRootChangesNothing) {
    // This one begins with zeros as soon as there is a root.
    if (message().operation == "GetConfiguration") return;
    for (const std::string& root : roots()) {
        expectUntouchedBy("<" + root + "/>");
        expectUntouchedBy("<" + root + "></" + root + ">");
        expectUntouchedBy("<" + root + ">\n\t</" + root + ">");
    }
}

TEST_P(EveryMessage, ChangesTheFieldOfAnElementAlone) {
    for (const RowCases& row : casesOf(message())) {
        for (const Input& input : row.inputs) expectChangesInAnyRecord(row, input);
    }
}

// Of a field it is the last that counts; what is added to a field is added by each.
TEST_P(EveryMessage, ReadsAnElementThatComesAgainAgain) {
    for (const RowCases& row : casesOf(message())) {
        if (row.isEntry) continue;
        for (std::size_t i = 1; i < row.inputs.size(); ++i) expectChanges(row, {&row.inputs[i - 1], &row.inputs[i]});
        for (const Input& input : row.inputs) expectChanges(row, {&row.withoutText, &input});
    }
}

TEST_P(EveryMessage, MakesOfAnElementWithoutTextWhatItsRowSays) {
    for (const RowCases& row : casesOf(message())) {
        expectChangesInAnyRecord(row, row.withoutText);
        if (row.isEntry) continue;
        // Whether that was read depends on the message: some go by the last element, some by any.
        Input after = row.withoutText;
        after.result.reset();
        for (const Input& input : row.inputs) expectChanges(row, {&input, &after});
    }
}

TEST_P(EveryMessage, SkipsElementsBetweenThoseThatItKnows) {
    const Input unknown{"<no_element_of_a_printer>1</no_element_of_a_printer>", keep, {}};
    const Input alone{"<no_element_of_a_printer>1</no_element_of_a_printer>", keep, false};
    const Input nothing{"", keep, false};
    for (const RowCases& row : casesOf(message())) {
        if (row.isEntry) continue;
        expectChanges(row, {&nothing});
        expectChanges(row, {&alone});
        for (const Input& input : row.inputs) {
            const Input last{"<no_element_of_a_printer/>", keep, input.result};
            expectChanges(row, {&unknown, &input, &last});
        }
    }
}

// So is one whose name has another case, and one that stands in an element of another name.
TEST_P(EveryMessage, KnowsElementsByTheirWholeNameInTheirPlaceAlone) {
    for (const RowCases& row : casesOf(message())) {
        const std::string& known = row.inputs.front().element;
        for (const std::string& element :
             {std::regex_replace(known, std::regex("(</?)" + row.name), "$1" + inOtherCase(row.name)),
              std::regex_replace(known, std::regex("(</?)" + row.name), "$1" + row.name + "_"),
              "<no_element_of_a_printer>" + known + "</no_element_of_a_printer>"}) {
            const Input unknown{element, keep, false};
            expectChanges(row, {&unknown});
        }
    }
}

std::string nameOf(const testing::TestParamInfo<Message>& info) { return std::string(info.param.operation); }

INSTANTIATE_TEST_SUITE_P(, EveryMessage, testing::ValuesIn(kvj::messages().begin(), kvj::messages().end()), nameOf);

}  // namespace

}  // namespace every_message_test
