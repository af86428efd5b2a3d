#include <kvjxml_version.h>

#include <array>
#include <nlohmann/json.hpp>
#include <utility>

#include "face/severity.h"
#include "finding_text.h"
#include "finding_writers.h"

namespace kvj::tool {

namespace {

using kvjxml::finding;
using kvjxml::finding_kind;
using Json = nlohmann::ordered_json;

/// What each kind means, in the order of finding_kind.
constexpr std::array<std::string_view, 17> meanings{
    "The document breaks here.",
    "Bytes that are not UTF-8.",
    "The document is no message that is known.",
    "No reader of the message knows an element of this name here.",
    "A word that is not in its table.",
    "Nothing that the value could be begins the text.",
    "A number, and a rest that is ignored.",
    "A number that its field cannot hold.",
    "A setting outside its own range.",
    "A text that is longer than its field.",
    "A known element without what is read from it.",
    "A comment, or the name of an element, that is read as the value.",
    "A reference that is none, or not to a character.",
    "An attribute that is read is missing, or is no number.",
    "A known element again; the last one counts.",
    "An entry that the record has no room for.",
    "Content that nobody reads.",
};
static_assert(to_string(finding_kind{static_cast<int>(meanings.size())}).empty());

std::string printed(const Json& json) { return json.dump(-1, ' ', true, Json::error_handler_t::replace); }

Json rules() {
    Json all = Json::array();
    for (std::size_t i = 0; i < meanings.size(); ++i) {
        const auto kind = finding_kind{static_cast<int>(i)};
        all.push_back({{"id", to_string(kind)},
                       {"shortDescription", {{"text", meanings[i]}}},
                       {"defaultConfiguration", {{"level", to_string(severityOf(kind))}}}});
    }
    return all;
}

/// The name of a file as a relative or absolute reference of a URI, in which only these characters stand for
/// themselves.
std::string uriOf(std::string_view file) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    constexpr std::string_view plain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";
    std::string uri = file.starts_with('/') ? "file://" : "";
    for (const char c : file) {
        if (plain.find(c) != std::string_view::npos) {
            uri += c;
        } else {
            const auto byte = static_cast<unsigned char>(c);
            uri.append({'%', digits[byte >> 4], digits[byte & 0xFU]});
        }
    }
    return uri;
}

Json resultOf(const finding& one, const Origin& origin) {
    Json region{
        {"startLine", one.line}, {"startColumn", one.column}, {"byteOffset", one.offset}, {"byteLength", one.length}};
    Json result{{"ruleId", to_string(one.kind)},
                {"ruleIndex", static_cast<int>(one.kind)},
                {"level", to_string(one.level)},
                {"message", {{"text", told(one)}}}};
    Json location{
        {"physicalLocation", {{"artifactLocation", {{"uri", uriOf(origin.file)}}}, {"region", std::move(region)}}}};
    const bool isAttribute = one.path.find("/@") != std::string::npos;
    location["logicalLocations"] =
        Json::array({{{"fullyQualifiedName", one.path}, {"kind", isAttribute ? "attribute" : "element"}}});
    result["locations"] = Json::array({std::move(location)});
    // Places are those in the document: in a stream of several it is known by its number.
    if (!origin.isOnlyOne) result["properties"] = {{"document", origin.number}};
    return result;
}

/// Printed piece by piece, since there may be any number of documents.
class SarifWriter final : public FindingWriter {
public:
    explicit SarifWriter(std::ostream& out) : out_(&out) {
        const Json driver{{"name", "kvjxml"}, {"version", KVJXML_VERSION}, {"rules", rules()}};
        *out_ << R"({"$schema":"https://json.schemastore.org/sarif-2.1.0.json","version":"2.1.0","runs":[)"
              << R"({"tool":{"driver":)" << printed(driver) << R"(},"columnKind":"unicodeCodePoints","results":[)";
    }

    void document(const ToldDocument& document) override {
        const Origin& origin = document.capture.origin;
        for (const ToldFinding& one : document.findings) {
            *out_ << std::exchange(separator_, ",\n") << printed(resultOf(one.finding, origin));
        }
        for (const std::string& note : document.capture.notes) notify("note", origin, note);
        if (document.omitted != 0) {
            notify("note", origin, std::to_string(document.omitted) + " findings more are not listed");
        }
    }
    void failed(const Origin& origin, const Failure& failure) override {
        isComplete_ = false;
        notify("error", origin, failure.what());
    }
    void end() override {
        const Json invocation{{"executionSuccessful", isComplete_},
                              {"toolExecutionNotifications", std::move(notifications_)}};
        *out_ << R"(],"invocations":[)" << printed(invocation) << "]}]}\n";
    }

private:
    void notify(std::string_view level, const Origin& origin, std::string_view text) {
        notifications_.push_back(
            {{"level", level},
             {"message", {{"text", text}}},
             {"locations",
              Json::array({{{"physicalLocation", {{"artifactLocation", {{"uri", uriOf(origin.file)}}}}}}})}});
    }

    std::ostream* out_;
    std::string_view separator_ = "\n";
    bool isComplete_ = true;
    Json notifications_ = Json::array();
};

}  // namespace

std::unique_ptr<FindingWriter> sarifWriter(std::ostream& out) { return std::make_unique<SarifWriter>(out); }

}  // namespace kvj::tool
