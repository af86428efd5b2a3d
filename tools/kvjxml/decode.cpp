#include "decode.h"

#include <iostream>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <vector>

#include "decode_message.h"
#include "json_printer.h"

namespace kvj::tool {

namespace {

/// What has to be said of a document besides what is in it.
std::vector<std::string> remarksOn(const Capture& capture, const DecodedDocument& document) {
    std::vector<std::string> remarks = capture.notes;
    if (!document.isWhole())
        remarks.push_back("read as far as it goes: " +
                          damageIn(*document.readers().front().message, capture.text, capture.line));
    return remarks;
}

void tellRemarks(const Capture& capture, const DecodedDocument& document) {
    for (const std::string& remark : remarksOn(capture, document)) tell(capture.origin, remark);
}

void printJson(const Capture& capture, const DecodedDocument& document, const View& view) {
    tellRemarks(capture, document);
    JsonPrinter json(std::cout);
    printDocument(json, document, view);
    json.endLine();
}

void printForEyes(const Capture& capture, const DecodedDocument& document, const View& view) {
    tellRemarks(capture, document);
    printText(std::cout, view.sources ? capture.origin.name() + ": " : std::string(), document, view);
}

/// A line about a document, of which `content` prints what is special.
template <class Content>
void printLine(const Origin& origin, Content content) {
    JsonPrinter json(std::cout);
    json.line([&] {
        json.object([&] {
            json.field("schema");
            json.value(1);
            json.field("source");
            json.object([&] {
                json.field("file");
                json.value(origin.file);
                json.field("number");
                json.value(origin.number);
            });
            content(json);
        });
    });
    json.endLine();
}

void printDocumentLine(const Capture& capture, const DecodedDocument& document, const View& view) {
    printLine(capture.origin, [&](JsonPrinter& json) {
        json.field("message");
        json.value(document.root());
        json.field("damaged");
        json.value(!document.isWhole());
        json.field("findings");
        json.value(document.findings());
        if (const auto remarks = remarksOn(capture, document); !remarks.empty()) {
            json.field("notes");
            json.value(nlohmann::json(remarks));
        }
        json.field("record");
        printDocument(json, document, view);
    });
}

void printFailureLine(const Origin& origin, const Failure& failure) {
    printLine(origin, [&](JsonPrinter& json) {
        json.field("error");
        json.object([&] {
            json.field("code");
            json.value(static_cast<int>(failure.code()));
            json.field("text");
            json.value(failure.what());
        });
    });
}

const Format eachFormat[] = {
    {"json", "one document of JSON behind the other", Counting::no, Keeping::no, printJson, tellFailure},
    {"jsonl", "one line of JSON for each, with its source; what cannot be read is an error in its place", Counting::yes,
     Keeping::no, printDocumentLine, printFailureLine},
    {"text", "for eyes, with words, units and what was sent", Counting::no, Keeping::yes, printForEyes, tellFailure},
};

void checkOutput() {
    if (!std::cout) throw std::runtime_error("standard output: cannot be written");
}

}  // namespace

std::span<const Format> formats() { return eachFormat; }

ExitCode decode(const Captures& captures, const std::string& message, const Format& format, const View& view) {
    View shown = view;
    shown.sources = captures.paths.size() > 1 || captures.isRecursive || captures.separator != Separator::none;
    const Keeping keeping = view.words ? Keeping::yes : format.keeping;
    return forEachDocument(
        captures,
        [&](const Capture& capture) {
            const DecodedDocument document(capture.text, message, format.counting, keeping);
            format.print(capture, document, shown);
            checkOutput();
            return document.isWhole() ? ExitCode::done : ExitCode::damaged;
        },
        [&](const Origin& origin, const Failure& failure) {
            format.fail(origin, failure);
            checkOutput();
        });
}

}  // namespace kvj::tool
