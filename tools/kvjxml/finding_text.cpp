#include "finding_text.h"

#include "face/joined.h"
#include "finding_writers.h"
#include "source_line.h"
#include "visible_text.h"

namespace kvj::tool {

namespace {

using kvjxml::finding;
using kvjxml::finding_kind;

std::string inQuotes(std::string_view text) { return joined({"\"", text, "\""}); }

/// What is not read has no value.
bool isUnread(finding_kind kind) {
    return kind == finding_kind::unknown_element || kind == finding_kind::unknown_message ||
           kind == finding_kind::ignored;
}

/// Whether a finding's text says more than its path, and than the detail of where a document breaks.
bool tellsText(const finding& one) {
    return !one.text.empty() && one.kind != finding_kind::unknown_element &&
           one.kind != finding_kind::unknown_message && one.kind != finding_kind::malformed;
}

class TextWriter final : public FindingWriter {
public:
    explicit TextWriter(std::ostream& out) : out_(&out) {}

    void document(const ToldDocument& document) override {
        const Origin& origin = document.capture.origin;
        const std::string name = origin.name();
        for (const std::string& note : document.capture.notes) tell(origin, note);
        for (const auto& [one, offset] : document.findings) {
            const SourceLine line = sourceLine(document.capture.text, offset, document.hidden);
            *out_ << name << ':' << one.line << ':' << one.column << ": " << to_string(one.kind) << ": "
                  << visible(told(one)) << '\n';
            if (!line.text.empty()) *out_ << "    " << line.text << "\n    " << line.caret << '\n';
        }
        if (document.omitted != 0) {
            *out_ << name << ": " << document.omitted << " findings more are not listed\n";
        }
    }
    void failed(const Origin& /*origin*/, const Failure& /*failure*/) override {}
    void end() override {}

private:
    std::ostream* out_;
};

}  // namespace

std::string told(const finding& one) {
    std::string text = one.path;
    if (tellsText(one)) text += joined({" ", inQuotes(one.text)});
    std::string became;
    if (!one.became.empty()) {
        became = joined({"read as ", inQuotes(one.became)});
    } else if (isUnread(one.kind)) {
        became = "not read";
    }
    if (became.empty()) {
        became = one.detail;
    } else if (!one.detail.empty()) {
        became += " (" + one.detail + ")";
    }
    return became.empty() ? text : text + ", " + became;
}

std::unique_ptr<FindingWriter> textWriter(std::ostream& out) { return std::make_unique<TextWriter>(out); }

}  // namespace kvj::tool
