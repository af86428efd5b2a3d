// The manual pages say what --help says: the same verbs, options, exit codes and kinds of findings.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <kvjxml_read.hpp>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "exit_code.h"
#include "face/severity.h"
#include "messages/request.h"
#include "support/files.h"
#include "tool/tool.h"

namespace manual_test {

namespace {

using kvj::tests::contentOf;
using kvj::tests::runShell;
using kvj::tests::runTool;
using testing::HasSubstr;
using Names = std::set<std::string>;

std::string page(const std::string& name) { return contentOf(std::string(KVJXML_DOCS) + "/man/" + name); }

Names allIn(const std::string& text, const std::string& pattern) {
    const std::regex expression(pattern);
    Names names;
    for (std::sregex_iterator at(text.begin(), text.end(), expression), end; at != end; ++at) names.insert((*at)[1]);
    return names;
}

/// The long options that --help shows behind these words, but for --help itself.
Names optionsOf(const std::string& words) {
    const std::string help = runTool(words + " --help").out;
    Names names;
    std::istringstream lines(help);
    for (std::string line; std::getline(lines, line);) {
        const std::string blanks = "    ";
        const auto first = line.find_first_not_of(' ');
        if (first == std::string::npos || first > blanks.size() || line[first] != '-') continue;
        const std::string option = line.substr(first, line.find(' ', first) - first);
        names.merge(allIn(option, "--([a-z-]+)"));
    }
    names.erase("help");
    return names;
}

/// Those of all requests of a verb.
Names optionsOfRequests(const std::string& verb) {
    Names names;
    for (const auto& request : kvj::requests()) names.merge(optionsOf(verb + " " + std::string(request.name)));
    return names;
}

/// The section of a page under a heading, up to the next one.
std::string sectionOf(const std::string& text, const std::string& heading) {
    const auto begin = text.find(heading + "\n");
    EXPECT_NE(begin, std::string::npos) << heading;
    if (begin == std::string::npos) return {};
    return text.substr(begin, text.find("\n.S", begin) - begin);
}

/// The long options that have an item of their own.
Names documented(const std::string& section) {
    Names names;
    std::istringstream lines(section);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with(".It Fl")) names.merge(allIn(line, "Fl -([a-z-]+)"));
    }
    return names;
}

Names verbs() {
    const std::string help = runTool("--help").out;
    const auto begin = help.find("Subcommands:\n");
    return allIn(help.substr(begin, help.find("\n\n", begin) - begin), "\n  ([a-z]+) ");
}

TEST(Manual, HasEachVerbWithItsOptions) {
    const std::string text = page("kvjxml.1");
    EXPECT_EQ(allIn(text, "\n.Ss ([a-z]+)"), verbs());
    for (const std::string& verb : verbs()) {
        if (verb == "check") continue;  // It has a page of its own.
        const bool hasRequests = verb == "encode" || verb == "template";
        EXPECT_EQ(documented(sectionOf(text, ".Ss " + verb)), hasRequests ? optionsOfRequests(verb) : optionsOf(verb))
            << verb;
    }
}

TEST(Manual, OfCheckHasItsOptions) {
    EXPECT_EQ(documented(sectionOf(page("kvjxml-check.1"), ".Sh DESCRIPTION")), optionsOf("check"));
}

TEST(Manual, HasTheTableOfExitCodes) {
    std::string table;
    for (std::size_t code = 0; code < kvj::tool::exitCodes.size(); ++code) {
        table.append("\n.It ").append(std::to_string(code)).append("\n").append(kvj::tool::exitCodes[code]);
    }
    EXPECT_THAT(page("kvjxml.1"), HasSubstr(table + "\n.El"));
}

TEST(Manual, OfCheckHasEachKindWithItsSeverity) {
    const std::string text = page("kvjxml-check.1");
    for (int number = 0; !kvjxml::to_string(static_cast<kvjxml::finding_kind>(number)).empty(); ++number) {
        const auto kind = static_cast<kvjxml::finding_kind>(number);
        std::string severity(kvjxml::to_string(kvj::severityOf(kind)));
        severity.front() = static_cast<char>(severity.front() - 'a' + 'A');
        EXPECT_THAT(text, HasSubstr(".It Cm " + std::string(kvjxml::to_string(kind)) + "\n" + severity + ": "));
    }
}

TEST(Manual, IsWhatReadersOfPagesCanRead) {
    if (runShell("command -v mandoc").code != 0) GTEST_SKIP() << "mandoc is not installed";
    for (const auto& entry : std::filesystem::directory_iterator(std::string(KVJXML_DOCS) + "/man")) {
        const auto outcome = runShell("mandoc -Tlint -Wwarning " + entry.path().string());
        EXPECT_EQ(outcome.code, 0) << entry.path() << ": " << outcome.out;
    }
}

}  // namespace

}  // namespace manual_test
