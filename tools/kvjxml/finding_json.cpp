#include <kvjxml_version.h>

#include <nlohmann/json.hpp>

#include "finding_writers.h"

namespace kvj::tool {

namespace {

using kvjxml::finding;
using Json = nlohmann::ordered_json;

/// A text, or null for none.
Json textOf(std::string_view text) { return text.empty() ? Json() : Json(text); }

Json objectOf(const finding& one) {
    return {{"kind", to_string(one.kind)},
            {"severity", to_string(one.level)},
            {"line", one.line},
            {"column", one.column},
            {"offset", one.offset},
            {"length", one.length},
            {"path", one.path},
            {"field", textOf(one.field)},
            {"text", textOf(one.text)},
            {"value", textOf(one.became)},
            {"detail", textOf(one.detail)}};
}

class JsonWriter final : public FindingWriter {
public:
    explicit JsonWriter(std::ostream& out) : out_(&out) {}

    void document(const ToldDocument& document) override {
        Json object = begun(document.file);
        if (document.number != 0) object["number"] = document.number;
        object["message"] = textOf(document.checked.root);
        object["damaged"] = !document.checked.isWhole;
        Json& findings = object["findings"] = Json::array();
        for (const finding& one : document.checked.findings) findings.push_back(objectOf(document.hidden.shown(one)));
        if (document.checked.omitted != 0) object["omitted"] = document.checked.omitted;
        print(object);
    }
    void failed(std::string_view file, std::string_view reason) override {
        Json object = begun(file);
        object["error"] = reason;
        print(object);
    }
    void end() override {}

private:
    static Json begun(std::string_view file) {
        return {{"schema", 1}, {"tool", "kvjxml " KVJXML_VERSION}, {"file", file}};
    }
    void print(const Json& object) { *out_ << object.dump(-1, ' ', true, Json::error_handler_t::replace) << '\n'; }

    std::ostream* out_;
};

}  // namespace

std::unique_ptr<FindingWriter> jsonWriter(std::ostream& out) { return std::make_unique<JsonWriter>(out); }

}  // namespace kvj::tool
