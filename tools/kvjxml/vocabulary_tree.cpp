#include "vocabulary_tree.h"

#include <algorithm>
#include <iostream>
#include <span>
#include <string>
#include <vector>

#include "messages/message.h"
#include "row_words.h"
#include "xml_printer.h"

namespace kvj::tool {

namespace {

/// The attributes of an element that are read or set.
std::vector<std::string_view> attributesOf(const Description& row) {
    if (row.kind == Kind::setting || row.kind == Kind::decimalSetting) return {"min", "max"};
    if (row.kind == Kind::attribute) return {row.word};
    return {row.attributes.begin(), row.attributes.end()};
}

class Tree {
public:
    explicit Tree(std::ostream& out) : xml_(out) {}

    void write(std::string_view root) {
        xml_.element("vocabulary", {}, {}, [&] {
            for (const Message& message : messages()) {
                if (root.empty() || root == message.root || root == message.otherRoot) write(message);
            }
        });
    }

private:
    void write(const Message& message) {
        Attributes attributes{{"root", std::string(message.root)}};
        if (!message.otherRoot.empty()) attributes.emplace_back("or", message.otherRoot);
        attributes.insert(attributes.end(),
                          {{"name", std::string(message.name)}, {"operation", std::string(message.operation)}});
        xml_.element("message", attributes, {}, [&] { write(message.table); });
    }

    // Groups nest as deep as the tables are written, so the recursion ends. NOLINTBEGIN(misc-no-recursion)
    void write(std::span<const DescribedRow> table) {
        for (const DescribedRow& described : table) {
            const Description& row = described.description;
            Attributes attributes{{"name", std::string(described.name)}};
            if (!row.field.empty()) attributes.emplace_back("field", row.field.name);
            std::string read = inWords(row, Direction::read);
            std::ranges::replace(read, '`', '\'');
            attributes.emplace_back("read", read);
            const auto own = attributesOf(row);
            if (own.empty() && row.group.empty() && row.words.name.empty()) {
                xml_.element("element", attributes);
                continue;
            }
            xml_.element("element", attributes, {}, [&] {
                for (const std::string_view attribute : own)
                    xml_.element("attribute", {{"name", std::string(attribute)}});
                for (const Word& word : row.words.words.rows) {
                    xml_.element("word", {{"code", std::to_string(word.code)}}, word.word);
                }
                write(row.group);
            });
        }
    }
    // NOLINTEND(misc-no-recursion)

    XmlPrinter xml_;
};

}  // namespace

ExitCode printVocabulary(std::string_view root) {
    Tree(std::cout).write(root);
    return ExitCode::done;
}

}  // namespace kvj::tool
