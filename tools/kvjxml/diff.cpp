#include "diff.h"

#include <iostream>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "compared.h"
#include "decoded_document.h"
#include "face/joined.h"
#include "face/utf8_reply.h"
#include "failure.h"
#include "known_root.h"
#include "kvjxml_version.h"
#include "messages/any_reading.h"
#include "visible_text.h"

namespace kvj::tool {

namespace {

using Json = nlohmann::ordered_json;

/// The readers of a reply's message.
std::vector<const Message*> readersOf(const Capture& reply) {
    const Utf8Reply document(reply.text);
    auto known = knownRootIn(document);
    if (known.root) return std::move(known.readers);
    throw Failure(ExitCode::unknownMessage, reply.origin.name() + ": " + visible(describeUnknown(document)));
}

AnyReading readOrFail(const Message& message, const Capture& reply) {
    AnyReading reading = readAny(message, reply.text);
    if (reading.found) return reading;
    throw Failure(ExitCode::unknownMessage,
                  reply.origin.name() + ": there is no \"" + std::string(message.root) + "\" in it, but in the other");
}

/// Says what has to be said of a reply besides what is in it.
void tellRemarks(const AnyReading& reading, const Capture& reply) {
    for (const std::string& note : reply.notes) tell(reply.origin, note);
    if (reading.whole) return;
    tell(reply.origin, "is damaged, compared as far as it goes: " + damageIn(*reading.message, reply.text, reply.line));
}

// ---- What is printed ----

/// Prints differences one by one: there can be as many as entries in a reply.
class Printer {
public:
    explicit Printer(bool isMasked) : isMasked_(isMasked) {}
    virtual ~Printer() = default;
    Printer(const Printer&) = delete;
    Printer& operator=(const Printer&) = delete;

    void print(const Difference& difference) {
        print(difference, isAny_);
        isAny_ = true;
    }
    virtual void end(bool /*damaged*/) {}
    [[nodiscard]] bool isAny() const { return isAny_; }

protected:
    virtual void print(const Difference& difference, bool isNext) = 0;
    [[nodiscard]] Json value(const Difference& difference, const Side& side) const {
        return shownValue(difference.shown, side.record, isMasked_);
    }

private:
    bool isMasked_;
    bool isAny_ = false;
};

class LinePrinter : public Printer {
public:
    LinePrinter(const Capture& before, const Capture& after, bool isMasked)
        : Printer(isMasked), before_(before.origin.name()), after_(after.origin.name()) {}

private:
    void print(const Difference& difference, bool isNext) override {
        const auto& [shown, before, after] = difference;
        if (!isNext) std::cout << "--- " << before_ << "\n+++ " << after_ << '\n';
        const bool isEntry = shown.around == nullptr && (before.record == nullptr || after.record == nullptr);
        std::cout << (after.record == nullptr ? before : after).pointer;
        if (isEntry) {
            const bool isAdded = before.record == nullptr;
            std::cout << (isAdded ? ": added: " : ": removed: ") << inText(value(difference, isAdded ? after : before));
        } else {
            if (before.pointer != after.pointer) std::cout << " (was " << before.pointer << ")";
            std::cout << ": " << text(difference, before) << " -> " << text(difference, after);
        }
        std::cout << '\n';
    }
    [[nodiscard]] std::string text(const Difference& difference, const Side& side) const {
        return side.record == nullptr ? "not in the reply" : inText(value(difference, side));
    }

    std::string before_;
    std::string after_;
};

class JsonLinePrinter : public Printer {
public:
    JsonLinePrinter(const Capture& before, const Capture& after, std::string_view root, bool isMasked)
        : Printer(isMasked) {
        const Json head{{"schema", 1},
                        {"tool", "kvjxml " KVJXML_VERSION},
                        {"before", before.origin.file},
                        {"after", after.origin.file},
                        {"message", root}};
        const std::string text = inJson(head);
        std::cout << text.substr(0, text.size() - 1) << ",\"differences\":[";
    }
    void end(bool damaged) override { std::cout << "],\"damaged\":" << (damaged ? "true" : "false") << "}\n"; }

private:
    void print(const Difference& difference, bool isNext) override {
        const auto& [shown, before, after] = difference;
        const char* const kind = before.record == nullptr ? "added" : after.record == nullptr ? "removed" : "changed";
        Json line{{"kind", kind}};
        if (before.record != nullptr) line["before"] = side(difference, before);
        if (after.record != nullptr) line["after"] = side(difference, after);
        std::cout << (isNext ? "," : "") << inJson(line);
    }
    [[nodiscard]] Json side(const Difference& difference, const Side& side) const {
        return {{"pointer", side.pointer}, {"value", value(difference, side)}};
    }
};

std::unique_ptr<Printer> makePrinter(const DiffOptions& options, const Capture& before, const Capture& after,
                                     std::string_view root) {
    if (options.format == DiffFormat::text) return std::make_unique<LinePrinter>(before, after, options.isMasked);
    return std::make_unique<JsonLinePrinter>(before, after, root, options.isMasked);
}

}  // namespace

ExitCode diff(const Capture& before, const Capture& after, const DiffOptions& options) {
    const auto readers = readersOf(before);
    const std::unique_ptr<Printer> printer = makePrinter(options, before, after, readers.front()->root);
    bool isAnyDamaged = false;
    for (const Message* const message : readers) {
        const AnyReading was = readOrFail(*message, before);
        const AnyReading is = readOrFail(*message, after);
        if (message == readers.front()) {
            tellRemarks(was, before);
            tellRemarks(is, after);
            isAnyDamaged = !was.whole || !is.whole;
        }
        const std::string pointer = readers.size() == 1 ? std::string() : joined({"/", message->operation});
        compare(was, is, pointer, [&](const Difference& difference) { printer->print(difference); });
    }
    printer->end(isAnyDamaged);
    if (isAnyDamaged) return ExitCode::damaged;
    return printer->isAny() ? ExitCode::different : ExitCode::done;
}

}  // namespace kvj::tool
