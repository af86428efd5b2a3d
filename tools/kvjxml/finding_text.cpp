#include "finding_text.h"

#include "finding_writers.h"
#include "source_line.h"
#include "visible_text.h"

namespace kvj::tool {

namespace {

using kvjxml::finding;
using kvjxml::finding_kind;

std::string quoted(std::string_view text) { return "\"" + std::string(text) + "\""; }

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
        std::string name = visible(document.file);
        if (document.number != 0) name += "#" + std::to_string(document.number);
        for (const finding& one : document.checked.findings) {
            const SourceLine line = sourceLine(document.bytes, one.offset, document.hidden);
            *out_ << name << ':' << one.line << ':' << one.column << ": " << to_string(one.kind) << ": "
                  << visible(told(document.hidden.shown(one))) << '\n';
            if (!line.text.empty()) *out_ << "    " << line.text << "\n    " << line.caret << '\n';
        }
        if (document.checked.omitted != 0) {
            *out_ << name << ": " << document.checked.omitted << " findings more are not listed\n";
        }
    }
    void failed(std::string_view /*file*/, std::string_view /*reason*/) override {}
    void end() override {}

private:
    std::ostream* out_;
};

}  // namespace

std::string told(const finding& one) {
    std::string text = one.path;
    if (tellsText(one)) text += " " + quoted(one.text);
    std::string became;
    if (!one.became.empty()) {
        became = "read as " + quoted(one.became);
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
