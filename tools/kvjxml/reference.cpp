#include "reference.h"

#include <iostream>
#include <map>
#include <string>

#include "failure.h"
#include "messages.h"

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
    if (row.capacity > 0) text.append(", at most ").append(std::to_string(row.capacity - 1)).append(" bytes");
    if (!row.tableName.empty()) text.append(", see ").append(code(row.tableName));
    return text;
}

/// Prints the rows of a table and of its groups, and collects the tables of words that they use.
// Groups nest as deep as the tables are written, so the recursion ends. NOLINTNEXTLINE(misc-no-recursion)
void printRows(std::span<const DescribedRow> rows, const std::string& path, TablesByName& tables) {
    for (const auto& [name, row] : rows) {
        const std::string element = path + code(name);
        std::cout << "| " << element << " | " << code(row.field) << " | " << conversionOf(row) << " |\n";
        printRows(row.group, element + " / ", tables);
        if (!row.tableName.empty()) tables.emplace(row.tableName, row.table);
    }
}

void printWords(std::string_view name, const Words& table) {
    std::cout << "\n### " << name << "\n\n| Word | Code |\n| --- | --- |\n";
    for (const auto& row : table.rows) std::cout << "| " << code(row.word) << " | " << row.code << " |\n";
    std::cout << "| any other | " << (table.other ? std::to_string(*table.other) : "leaves the field alone") << " |\n";
}

}  // namespace

ExitCode printReference() {
    std::cout << "# Messages\n\nMade by `kvjxml messages` from the tables that the library reads with.\n";
    TablesByName tables;
    for (const Message& message : messages()) {
        std::cout << "\n## " << message.root << ", read by " << message.reader
                  << "\n\n| Element | Field | Read as |\n| --- | --- | --- |\n";
        printRows(message.table, "", tables);
    }
    std::cout << "\n## Words and their codes\n";
    for (const auto& [name, table] : tables) printWords(name, table);
    if (!std::cout.flush()) throw Failure(ExitCode::inputOutput, "standard output: cannot be written");
    return ExitCode::done;
}

}  // namespace kvjxml::tool
