#include "reference.h"

#include <iostream>
#include <set>
#include <string>
#include <utility>

#include "messages/message.h"
#include "messages/request.h"
#include "row_words.h"

namespace kvj::tool {

namespace {

/// The tables of words that rows use, by their names. Tables of the same name are all there.
using Tables = std::set<NamedWords, decltype([](const NamedWords& a, const NamedWords& b) {
                            return std::pair(a.name, a.words.rows.data()) < std::pair(b.name, b.words.rows.data());
                        })>;

/// Prints the rows of a table and of its groups, and collects the tables of words that they use.
// Groups nest as deep as the tables are written, so the recursion ends. NOLINTNEXTLINE(misc-no-recursion)
void printRows(std::span<const DescribedRow> rows, const std::string& path, Direction direction, Tables& tables) {
    for (const auto& row : rows) {
        const auto& description = row.description;
        const std::string element = path + code(row.name);
        std::cout << "| " << element << " | " << code(description.field.name) << " | "
                  << inWords(description, direction) << " |";
        if (direction == Direction::written) std::cout << ' ' << whenWritten(row) << " |";
        std::cout << '\n';
        printRows(description.group, element + " / ", direction, tables);
        if (!description.words.name.empty()) tables.insert(description.words);
    }
}

void printWords(std::string_view name, const Words& table) {
    std::cout << "\n### " << name << "\n\n| Word | Code |\n| --- | --- |\n";
    for (const auto& row : table.rows) std::cout << "| " << code(row.word) << " | " << row.code << " |\n";
    std::cout << "| any other | " << (table.other ? std::to_string(*table.other) : "has none") << " |\n";
}

}  // namespace

ExitCode printReference() {
    std::cout << "# Messages\n\nMade by `kvjxml messages` from the tables that the library reads and writes with.\n";
    Tables tables;
    for (const Message& message : messages()) {
        std::cout << "\n## " << message.root;
        if (!message.otherRoot.empty()) std::cout << " or " << message.otherRoot;
        std::cout << ", read by " << message.operation << "\n\n| Element | Field | Read as |\n| --- | --- | --- |\n";
        printRows(message.table, "", Direction::read, tables);
    }
    for (const Request& request : requests()) {
        if (request.table.empty()) continue;  // What is made of arguments, its operation says.
        std::cout << "\n## " << request.name << ", written by " << request.operation
                  << "\n\n| Element | Field | Written as | When |\n| --- | --- | --- | --- |\n";
        printRows(request.table, "", Direction::written, tables);
    }
    std::cout << "\n## Words and their codes\n";
    for (const auto& [name, table] : tables) printWords(name, table);
    return ExitCode::done;
}

}  // namespace kvj::tool
