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
        Json object = begun(document.capture.origin);
        object["message"] = textOf(document.message);
        object["damaged"] = document.isDamaged;
        Json& findings = object["findings"] = Json::array();
        for (const ToldFinding& one : document.findings) findings.push_back(objectOf(one.finding));
        if (document.omitted != 0) object["omitted"] = document.omitted;
        if (!document.capture.notes.empty()) object["notes"] = document.capture.notes;
        print(object);
    }
    void failed(const Origin& origin, const Failure& failure) override {
        Json object = begun(origin);
        object["error"] = {{"code", static_cast<int>(failure.code())}, {"text", failure.what()}};
        print(object);
    }
    void end() override {}

private:
    static Json begun(const Origin& origin) {
        Json object{{"schema", 1}, {"tool", "kvjxml " KVJXML_VERSION}, {"file", origin.file}};
        if (!origin.isOnlyOne) object["number"] = origin.number;
        return object;
    }
    void print(const Json& object) { *out_ << object.dump(-1, ' ', true, Json::error_handler_t::replace) << '\n'; }

    std::ostream* out_;
};

}  // namespace

std::unique_ptr<FindingWriter> jsonWriter(std::ostream& out) { return std::make_unique<JsonWriter>(out); }

}  // namespace kvj::tool
