// Prints the words of the project's own tables as a dictionary for the fuzzer: the names of elements and readers, the
// words that are read, and the fields of the requests' JSON.
#include <cstdio>
#include <iostream>
#include <set>
#include <string>
#include <string_view>

#include "messages/message.h"
#include "messages/request.h"

namespace {

using Entries = std::set<std::string, std::less<>>;

/// What XML, TinyXML's readings of it, and JSON are made of, beside words.
constexpr std::string_view marks[] = {"<?xml version=\"1.0\" encoding=\"UTF-8\"?>",
                                      "encoding=\"ISO-8859-1\"",
                                      "?>",
                                      "<!--",
                                      "-->",
                                      "<![CDATA[",
                                      "]]>",
                                      "<!DOCTYPE a>",
                                      "</",
                                      "/>",
                                      "<a>",
                                      "</a>",
                                      "<a/>",
                                      " b='c'",
                                      " b=\"c\"",
                                      "&amp;",
                                      "&#65;",
                                      "&#x41;",
                                      "&#",
                                      ";",
                                      "\xEF\xBB\xBF",
                                      "\xEF\xBF\xBE",
                                      "\xC3",
                                      "\xE2\x82",
                                      "\xF0",
                                      "\x7F",
                                      "null",
                                      "true",
                                      "false",
                                      "\\u00e9",
                                      "1e38",
                                      "-2147483648",
                                      "0x1f",
                                      "00:1a:2b:3c:4d:5e"};

void collect(std::span<const kvj::DescribedRow> rows, Entries& entries) {
    for (const auto& row : rows) {
        entries.emplace(row.name);
        entries.emplace(row.description.word);
        for (const auto& attribute : row.description.attributes) entries.emplace(attribute);
        for (const auto& word : row.description.words.words.rows) entries.emplace(word.word);
        collect(row.description.group, entries);
    }
}

void print(std::string_view entry) {
    std::cout << '"';
    for (const char c : entry) {
        char escaped[5];
        std::snprintf(escaped, sizeof escaped, "\\x%02X", static_cast<unsigned char>(c));
        const bool plain = c >= ' ' && c <= '~' && c != '"' && c != '\\';
        std::cout << (plain ? std::string(1, c) : escaped);
    }
    std::cout << "\"\n";
}

}  // namespace

int main() {
    Entries entries(std::begin(marks), std::end(marks));
    for (const auto& message : kvj::messages()) {
        entries.emplace(message.root);
        collect(message.table, entries);
    }
    for (const auto& request : kvj::requests()) {
        entries.emplace(request.name);
        entries.emplace(request.operation);
        for (const auto& field : request.record->fields) entries.emplace(field.name);
    }
    entries.erase("");
    for (const auto& entry : entries) print(entry);
    return std::cout.flush() ? 0 : 1;
}
