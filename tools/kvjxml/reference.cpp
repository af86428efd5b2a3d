#include "reference.h"

#include <iostream>
#include <map>
#include <sstream>
#include <string>

#include "messages/message.h"
#include "messages/request.h"

namespace kvjxml::tool {

namespace {

using TablesByName = std::map<std::string_view, Words>;

std::string code(std::string_view name) {
    std::string text;
    if (!name.empty()) text.append("`").append(name).append("`");
    return text;
}

std::string conversionOf(const Description& row) {
    std::string text(row.conversion);
    if (!row.argument.empty()) text.append(" ").append(code(row.argument));
    if (!row.otherwise.empty()) text.append(", else ").append(code(row.otherwise));
    if (row.capacity > 0) text.append(", at most ").append(std::to_string(row.capacity - 1)).append(" bytes");
    if (!row.tableName.empty()) text.append(", see ").append(code(row.tableName));
    return text;
}

/// When an element is written: for which bit, and under which condition.
std::string whenOf(const DescribedRow& row) {
    std::ostringstream text;
    if (row.section != 0) text << "bit `0x" << std::hex << row.section << '`';
    if (row.section != 0 && !row.condition.empty()) text << ", ";
    text << row.condition;
    return text.str();
}

enum class Direction { read, written };

/// Prints the rows of a table and of its groups, and collects the tables of words that they use.
// Groups nest as deep as the tables are written, so the recursion ends. NOLINTNEXTLINE(misc-no-recursion)
void printRows(std::span<const DescribedRow> rows, const std::string& path, Direction direction, TablesByName& tables) {
    for (const auto& row : rows) {
        const auto& description = row.description;
        const std::string element = path + code(row.name);
        std::cout << "| " << element << " | " << code(description.field) << " | " << conversionOf(description) << " |";
        if (direction == Direction::written) std::cout << ' ' << whenOf(row) << " |";
        std::cout << '\n';
        printRows(description.group, element + " / ", direction, tables);
        if (!description.tableName.empty()) tables.emplace(description.tableName, description.table);
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
    TablesByName tables;
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

}  // namespace kvjxml::tool
