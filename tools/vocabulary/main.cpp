// Prints include/kvjxml_vocabulary.hpp, from the tables that the library reads and writes with.
#include <algorithm>
#include <cctype>
#include <exception>
#include <functional>
#include <iostream>
#include <iterator>
#include <map>
#include <set>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "capabilities/tables.h"
#include "face/words.h"
#include "fields/records.h"
#include "messages/message.h"
#include "messages/request.h"

namespace {

using namespace kvj;

constexpr std::string_view beginning = R"(/// @file kvjxml_vocabulary.hpp
/// The printer's words as enumerations, and which field has which of them: what kvjxml_words.hpp looks up. It is
/// printed from the tables that the library reads and writes with, so it is not to be edited.
///
/// An enumerator is its word in small letters, with `_` for each character that no name can have, and `_` in front
/// where the word begins with a digit or is one of C++. The words themselves stand beside it where they are others;
/// those that differ in the case of their letters have one enumerator.
#ifndef KVJXML_VOCABULARY_HPP
#define KVJXML_VOCABULARY_HPP

#include "CapabilitiesRecords.h"
#include "ConfigurationRecords.h"
#include "MediaRecords.h"
#include "StatusRecords.h"

// clang-format off

namespace kvjxml {
inline namespace v1 {

/// What a field holds.
enum class holds {
    no_words,  ///< a value without words
    one_word,  ///< the code of a word
    bits       ///< the bits of words, or codes that are OR-ed into each other
};

/// What is known of a field, which is given as its member pointer: what it holds, and the enumeration of its words.
template <auto Field>
struct words_of {
    static constexpr holds held = holds::no_words;
};
template <class Enumeration>
struct one_word_of {
    static constexpr holds held = holds::one_word;
    using enumeration = Enumeration;
};
template <class Enumeration>
struct bits_of {
    static constexpr holds held = holds::bits;
    using enumeration = Enumeration;
};

/// The name that the library has for the words of an enumeration.
template <class Enumeration>
inline constexpr const char* table_of = nullptr;
)";

constexpr std::string_view end = R"(
}  // namespace v1
}  // namespace kvjxml

// clang-format on

#endif
)";

// ---- The fields with words ----

/// A field with words, and how the rows use it.
struct Use {
    FieldName field;
    bool hasBits{};
    std::set<const Word*> tables{};       ///< by their rows
    std::vector<std::string> elements{};  ///< each with those around it
    std::vector<std::string> numbers{};   ///< those that fill it with a number instead
    bool isRead{};
    std::vector<std::string> composed{};  ///< those that it is composed as with other words, with these words
};

/// A field with its record and namespace.
std::string qualified(const FieldName& field) {
    const auto type = std::ranges::find_if(recordTypes(), [&](const RecordType* record) {
        return record->name.substr(record->name.find_last_of(':') + 1) == field.record;
    });
    if (type == recordTypes().end()) throw std::runtime_error("no record " + std::string(field.record));
    return std::string((*type)->name).append("::").append(field.name);
}

class Uses {
public:
    Uses() {
        for (const Message& message : messages()) {
            forEach(message.table, quoted(message.root), {}, [this](auto&... row) { addRead(row...); });
        }
        for (const Message& message : messages()) {
            forEach(message.table, quoted(message.root), {}, [this](auto&... row) { addNumber(row...); });
        }
        const auto written = [this](auto&... row) { addWritten(row...); };
        for (const Request& request : requests()) forEach(request.table, quoted(request.name), {}, written);
        forEach(describedWritten<capabilities::magEncoderAlone>, quoted("capabilities"), {}, written);
    }
    [[nodiscard]] const std::vector<Use>& all() const { return uses_; }

private:
    static std::string quoted(std::string_view name) { return '"' + std::string(name) + '"'; }

    Use* find(const FieldName& field) {
        const auto use = std::ranges::find_if(
            uses_, [&](const Use& each) { return each.field.record == field.record && each.field.name == field.name; });
        return use == uses_.end() ? nullptr : &*use;
    }
    Use& of(const FieldName& field) {
        if (Use* const known = find(field)) return *known;
        return uses_.emplace_back(Use{.field = field});
    }

    using Visit = std::function<void(const Description&, const std::string& path, const FieldName& list)>;

    /// The rows of a table and of its groups. A row without a field reads an entry of the list around it.
    // Groups nest as deep as the tables are written, so the recursion ends. NOLINTNEXTLINE(misc-no-recursion)
    static void forEach(std::span<const DescribedRow> rows, const std::string& path, const FieldName& list,
                        const Visit& visit) {
        for (const auto& row : rows) {
            const std::string element = path + " / " + quoted(row.name);
            visit(row.description, element, list);
            forEach(row.description.group, element, row.description.field, visit);
        }
    }

    /// The fields in which a row leaves the code of a word.
    static std::vector<FieldName> coded(const Description& row, const FieldName& list) {
        switch (row.kind) {
            case Kind::word:
                return {row.field.empty() ? list : row.field};
            case Kind::wordOrNext:
                return {row.field, row.otherField};
            case Kind::textAndCode:
                return {row.otherField};
            case Kind::wordOfPanels:
            case Kind::bits:
            case Kind::combinedCodes:
                return {row.field};
            case Kind::laminatorWord:
                return {fieldOf<&Kavrin::_Capabilities::laminatorType>};
            default:
                if (!row.words.name.empty()) throw std::runtime_error("a kind of value with words that is new");
                return {};
        }
    }

    void addRead(const Description& row, const std::string& path, const FieldName& list) {
        for (const FieldName& field : coded(row, list)) {
            Use& use = of(field);
            use.isRead = true;
            use.hasBits = row.kind == Kind::bits || row.kind == Kind::combinedCodes;
            use.tables.insert(row.words.words.rows.data());
            use.elements.push_back(path);
        }
    }

    void addNumber(const Description& row, const std::string& path, const FieldName& /*list*/) {
        if (row.kind != Kind::number || row.field.empty()) return;
        if (Use* const use = find(row.field)) use->numbers.push_back(path);
    }

    /// The words that a row writes.
    static std::string listed(const Description& row) {
        std::string text;
        for (const auto& [word, code] : row.words.words.rows) {
            text.append(text.empty() ? "" : ", ").append(quoted(word)) += ' ' + std::to_string(code);
        }
        if (row.otherWord.empty()) return text;
        return text + (row.kind == Kind::laminatorWord ? ", without a laminator " : ", else ") + quoted(row.otherWord);
    }

    void addWritten(const Description& row, const std::string& path, const FieldName& list) {
        for (const FieldName& field : coded(row, list)) {
            Use& use = of(field);
            const Word* const table = row.words.words.rows.data();
            if (!use.isRead) {
                use.tables.insert(table);
                use.elements.push_back(path);
            } else if (!use.tables.contains(table)) {
                const std::string composed = path + ": " + listed(row);
                if (std::ranges::count(use.composed, composed) == 0) use.composed.push_back(composed);
            }
        }
    }

    std::vector<Use> uses_;
};

// ---- Enumerations ----

constexpr std::string_view wordsOfCpp[] = {
    "alignas",     "alignof",  "and",        "and_eq",    "asm",       "auto",         "bitand",
    "bitor",       "bool",     "break",      "case",      "catch",     "char",         "char16_t",
    "char32_t",    "char8_t",  "class",      "co_await",  "co_return", "co_yield",     "compl",
    "concept",     "const",    "const_cast", "consteval", "constexpr", "constinit",    "continue",
    "decltype",    "default",  "delete",     "do",        "double",    "dynamic_cast", "else",
    "enum",        "explicit", "export",     "extern",    "false",     "float",        "for",
    "friend",      "goto",     "if",         "inline",    "int",       "long",         "mutable",
    "namespace",   "new",      "noexcept",   "not",       "not_eq",    "nullptr",      "operator",
    "or",          "or_eq",    "private",    "protected", "public",    "register",     "reinterpret_cast",
    "requires",    "return",   "short",      "signed",    "sizeof",    "static",       "static_assert",
    "static_cast", "struct",   "switch",     "template",  "this",      "thread_local", "throw",
    "true",        "try",      "typedef",    "typeid",    "typename",  "union",        "unsigned",
    "using",       "virtual",  "void",       "volatile",  "wchar_t",   "while",        "xor",
    "xor_eq",
};

std::string enumeratorOf(std::string_view word) {
    std::string name(word);
    for (char& character : name) {
        const auto code = static_cast<unsigned char>(character);
        character = std::isalnum(code) != 0 ? static_cast<char>(std::tolower(code)) : '_';
    }
    const bool isName = std::isdigit(static_cast<unsigned char>(name.front())) == 0;
    return isName && std::ranges::find(wordsOfCpp, name) == std::end(wordsOfCpp) ? name : '_' + name;
}

struct Enumerator {
    std::string name;
    int code;
    std::vector<std::string> words;
};

/// An enumeration is a name with all tables that it has.
struct Enumeration {
    std::string_view name;
    std::vector<Words> tables;

    [[nodiscard]] std::set<const Word*> rows() const {
        std::set<const Word*> all;
        for (const Words& table : tables) all.insert(table.rows.data());
        return all;
    }
    [[nodiscard]] std::vector<Enumerator> enumerators() const {
        std::vector<Enumerator> all;
        for (const Words& table : tables) {
            for (const auto& [word, code] : table.rows) {
                const std::string enumerator = enumeratorOf(word);
                const auto known = std::ranges::find(all, enumerator, &Enumerator::name);
                if (known == all.end()) {
                    all.push_back({enumerator, code, {word}});
                    continue;
                }
                if (known->code != code) throw std::runtime_error(std::string(name) + " has two codes for " + word);
                if (std::ranges::count(known->words, word) == 0) known->words.emplace_back(word);
            }
        }
        return all;
    }
};

std::vector<Enumeration> enumerations() {
    std::vector<Enumeration> all;
    for (const auto& [name, words] : vocabularies()) {
        if (all.empty() || all.back().name != name) all.push_back({name, {}});
        all.back().tables.push_back(words);
    }
    return all;
}

// ---- What is printed ----

void printComment(const Enumeration& enumeration, const std::vector<Use>& uses) {
    std::cout << "\n/// The words of\n";
    for (const Use& use : uses) {
        std::cout << "/// - " << qualified(use.field) << (use.isRead ? ", read from" : ", only composed, as");
        for (const auto& element : use.elements) std::cout << "\n///   - " << element;
        std::cout << '\n';
        for (const auto& element : use.numbers) {
            std::cout << "///   - " << element << " as well: there a number of the printer's, and no code\n";
        }
        if (use.composed.empty()) continue;
        std::cout << "/// - " << qualified(use.field) << ", composed of other words as";
        for (const auto& element : use.composed) std::cout << "\n///   - " << element;
        std::cout << '\n';
    }
    if (!uses.front().isRead) return;
    std::cout << "///\n/// Any other word ";
    if (uses.front().hasBits) {
        std::cout << "adds nothing.\n";
    } else if (const auto other = enumeration.tables.front().other) {
        std::cout << "becomes " << *other << ".\n";
    } else {
        std::cout << "leaves the field as it was.\n";
    }
}

void print(const Enumeration& enumeration, const std::vector<Use>& uses) {
    printComment(enumeration, uses);
    std::cout << "enum class " << enumeration.name << " : int {\n";
    const auto enumerators = enumeration.enumerators();
    for (const auto& [name, code, words] : enumerators) {
        std::cout << "    " << name << " = " << code << (name == enumerators.back().name ? "" : ",");
        if (words.size() > 1 || words.front() != name) {
            std::cout << "  ///<";
            for (const auto& word : words) std::cout << (&word == words.data() ? " \"" : ", \"") << word << '"';
        }
        std::cout << '\n';
    }
    std::cout << "};\ntemplate <>\ninline constexpr const char* table_of<" << enumeration.name << "> = \""
              << enumeration.name << "\";\n";
    for (const Use& use : uses) {
        std::cout << "template <>\nstruct words_of<&" << qualified(use.field)
                  << "> : " << (use.hasBits ? "bits_of" : "one_word_of") << '<' << enumeration.name << "> {};\n";
    }
}

void print() {
    const auto all = enumerations();
    std::map<std::string_view, std::vector<Use>> usesOf;
    const Uses uses;
    for (const Use& use : uses.all()) {
        const auto enumeration = std::ranges::find(all, use.tables, &Enumeration::rows);
        if (enumeration == all.end())
            throw std::runtime_error("src/face/words.cpp has no words for " + qualified(use.field));
        usesOf[enumeration->name].push_back(use);
    }
    std::cout << beginning;
    for (const auto& enumeration : all) {
        const auto known = usesOf.find(enumeration.name);
        if (known == usesOf.end()) throw std::runtime_error("no field has words of " + std::string(enumeration.name));
        print(enumeration, known->second);
    }
    std::cout << end;
}

}  // namespace

int main() {
    try {
        print();
    } catch (const std::exception& fault) {
        std::cerr << fault.what() << '\n';
        return 1;
    }
}
