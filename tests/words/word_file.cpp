#include "words/word_file.h"

#include <algorithm>
#include <cctype>
#include <climits>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace kvj::tests {

namespace {

std::string lower(std::string text) {
    std::ranges::transform(text, text.begin(), [](unsigned char letter) { return std::tolower(letter); });
    return text;
}

bool matches(Match match, const std::string& text, const std::string& word) {
    switch (match) {
        case Match::whole:
            return text == word;
        case Match::wholeIgnoringCase:
            return lower(text) == lower(word);
        case Match::part:
            return text.find(word) != std::string::npos;
    }
    return false;
}

Match matchOf(const std::string& words) {
    if (words == "whole") return Match::whole;
    if (words == "ignoring case") return Match::wholeIgnoringCase;
    if (words == "part") return Match::part;
    throw std::runtime_error("no way to match: " + words);
}

/// The name of the table that a file is about: "status/jobStates.txt" is about "status::jobStates".
std::string tableOf(const std::filesystem::path& file) {
    std::string name;
    for (const auto& part : file.parent_path()) name += part.string() + "::";
    return name + file.stem().string();
}

void readLine(const std::string& line, WordFile& file) {
    std::istringstream in(line);
    std::string first;
    in >> first >> std::ws;
    std::string rest;
    if (first == "match") {
        std::getline(in, rest);
        file.match = matchOf(rest);
    } else if (first == "other") {
        in >> file.other.emplace();
    } else if (first == "read" || first == "write" || first == "both") {
        int code = 0;
        in >> code >> std::ws;
        std::getline(in, rest);
        file.rows.push_back({rest, code, first != "write", first != "read"});
    } else {
        in.setstate(std::ios::failbit);
    }
    if (in.fail()) throw std::runtime_error(file.table + ": what is \"" + line + "\"?");
}

WordFile read(const std::filesystem::path& folder, const std::filesystem::path& path) {
    WordFile file{.table = tableOf(std::filesystem::relative(path, folder))};
    std::ifstream in(path);
    for (std::string line; std::getline(in, line);) {
        if (!line.starts_with('#')) readLine(line, file);
    }
    return file;
}

}  // namespace

bool WordFile::isRead() const { return std::ranges::any_of(rows, &WordRow::isRead); }
bool WordFile::isWritten() const { return std::ranges::any_of(rows, &WordRow::isWritten); }

int WordFile::codeOf(const std::string& text, int before) const {
    const auto row = std::ranges::find_if(
        rows, [&](const WordRow& known) { return known.isRead && matches(match, text, known.word); });
    return row != rows.end() ? row->code : other.value_or(before);
}

const std::string* WordFile::wordOf(int code) const {
    const auto row =
        std::ranges::find_if(rows, [&](const WordRow& known) { return known.isWritten && known.code == code; });
    return row != rows.end() ? &row->word : nullptr;
}

const std::vector<WordFile>& wordFiles() {
    static const std::vector<WordFile> files = [] {
        std::vector<WordFile> read;
        const std::filesystem::path folder = KVJXML_WORDS;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
            if (entry.path().extension() == ".txt" && entry.path().filename() != "CMakeLists.txt") {
                read.push_back(tests::read(folder, entry.path()));
            }
        }
        std::ranges::sort(read, {}, &WordFile::table);
        return read;
    }();
    return files;
}

const WordFile& wordFile(std::string_view table) {
    const auto file = std::ranges::find(wordFiles(), table, &WordFile::table);
    if (file == wordFiles().end()) throw std::runtime_error("no file for the table " + std::string(table));
    return *file;
}

std::vector<std::string> textsLike(const WordFile& file) {
    std::vector<std::string> texts{"", " ", "0", "1", "-1", "unknown", std::string(100000, 'w')};
    for (const WordRow& row : file.rows) {
        const std::string& word = row.word;
        std::string upper = word;
        std::ranges::transform(upper, upper.begin(), [](unsigned char letter) { return std::toupper(letter); });
        std::string capital = word;
        capital[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(capital[0])));
        for (const std::string& text :
             {word, upper, lower(word), capital, word + 'x', word + ' ', ' ' + word, word.substr(1),
              word.substr(0, word.size() - 1), word.substr(0, word.find('_'))}) {
            texts.push_back(text);
        }
        // Where words may be parts of a text, that of the first row counts, wherever it stands.
        for (const WordRow& another : file.rows) texts.push_back(word + '-' + another.word);
    }
    return texts;
}

std::vector<int> codesAround(const WordFile& file) {
    std::vector<int> codes{INT_MIN, -2, -1, 0, 1, 255, 256, 0x10001, INT_MAX};
    for (const WordRow& row : file.rows) {
        codes.insert(codes.end(), {row.code - 1, row.code, row.code + 1, row.code + 256, -row.code});
    }
    return codes;
}

}  // namespace kvj::tests
