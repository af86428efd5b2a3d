#include "support/lines.h"

#include <cctype>
#include <fstream>
#include <regex>

namespace kvj::tests {

std::vector<std::vector<std::string>> linesLike(const std::string& pattern, const std::filesystem::path& file) {
    const std::regex expression(pattern);
    std::vector<std::vector<std::string>> lines;
    std::ifstream in(file);
    std::smatch match;
    for (std::string line; std::getline(in, line);) {
        if (std::regex_match(line, match, expression)) lines.emplace_back(std::next(match.begin()), match.end());
    }
    return lines;
}

std::vector<std::string> exported(const std::string& pattern) {
    std::vector<std::string> names;
    for (const auto& groups : linesLike(pattern, KVJXML_SYMBOLS)) names.push_back(groups.front());
    return names;
}

std::string identifierOf(std::string_view name) {
    std::string identifier;
    for (const char character : name) {
        if (std::isalnum(static_cast<unsigned char>(character)) != 0) {
            identifier += character;
        } else if (!identifier.ends_with('_')) {
            identifier += '_';
        }
    }
    return identifier;
}

}  // namespace kvj::tests
