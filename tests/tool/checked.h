/// @file checked.h
/// What the tool's check prints of a document, in this process.
#ifndef KVJXML_TESTS_TOOL_CHECKED_H
#define KVJXML_TESTS_TOOL_CHECKED_H

#include <kvjxml_read.hpp>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "check.h"

namespace kvj::tests {

/// What one of its writers makes of a document.
inline std::string printed(tool::MakeWriter makeWriter, std::string_view document,
                           const tool::CheckOptions& options = {}) {
    std::ostringstream out;
    const auto writer = makeWriter(out);
    tool::Check(options, *writer).document("reply.xml", 0, document);
    writer->end();
    return out.str();
}

/// The findings of a document, as its JSON says them.
inline std::vector<kvjxml::finding> checkedFindings(std::string_view document) {
    const auto object = nlohmann::json::parse(printed(tool::jsonWriter, document));
    const auto textOf = [](const nlohmann::json& value) {
        return value.is_null() ? std::string() : value.get<std::string>();
    };
    const auto numberOf = [&](const nlohmann::json& name, auto range) {
        int number = 0;
        while (to_string(decltype(range){number}) != name.get<std::string>()) ++number;
        return decltype(range){number};
    };
    std::vector<kvjxml::finding> findings;
    for (const auto& one : object.at("findings")) {
        findings.push_back({.kind = numberOf(one.at("kind"), kvjxml::finding_kind{}),
                            .level = numberOf(one.at("severity"), kvjxml::severity{}),
                            .line = one.at("line"),
                            .column = one.at("column"),
                            .offset = one.at("offset"),
                            .length = one.at("length"),
                            .path = one.at("path"),
                            .field = textOf(one.at("field")),
                            .text = textOf(one.at("text")),
                            .became = textOf(one.at("value")),
                            .detail = textOf(one.at("detail"))});
    }
    return findings;
}

}  // namespace kvj::tests

#endif
