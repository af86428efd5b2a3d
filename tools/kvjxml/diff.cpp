#include "diff.h"

#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "compared.h"
#include "face/joined.h"
#include "failure.h"
#include "foundation/document.h"
#include "foundation/reply.h"
#include "kvjxml_version.h"
#include "merged_rows.h"
#include "reading.h"
#include "visible_text.h"

namespace kvj::tool {

namespace {

using Json = nlohmann::ordered_json;

/// One of the two replies.
struct Compared {
    std::string name;
    std::string bytes;
};

Compared readCompared(const Source& source) { return {visible(source.name()), readBytes(source)}; }

/// The readers of the first element that is a known message's root, or of the first one at all.
std::vector<const Message*> readersOf(const Compared& reply) {
    const Reply document(reply.bytes.c_str());
    std::string reason = "there is no XML element in it";
    for (const Element root : document.top().children()) {
        auto readers = messagesWithRoot(root.name());
        if (!readers.empty()) return readers;
        reason = "the root element \"" + visible(root.name()) + "\" is not that of a known message";
    }
    throw Failure(ExitCode::unknownMessage, reply.name + ": " + reason);
}

Reading readOrFail(const Message& message, const Compared& reply) {
    Reading reading = readMessage(message, reply.bytes);
    if (reading.isFound) return reading;
    throw Failure(ExitCode::unknownMessage,
                  reply.name + ": there is no \"" + std::string(message.root) + "\" in it, but in the other");
}

/// Says where a reply is damaged; false when it is whole.
bool isDamaged(const Reading& reading, const Compared& reply) {
    if (reading.isWhole) return false;
    std::string where;
    for (const auto& finding : readMessage(*reading.message, reply.bytes, Diagnosing::yes).findings) {
        if (finding.kind != kvjxml::finding_kind::malformed && finding.kind != kvjxml::finding_kind::encoding) continue;
        where = ": line " + std::to_string(finding.line) + ", column " + std::to_string(finding.column) + ": " +
                visible(finding.detail);
        break;
    }
    std::cerr << "kvjxml: " << reply.name << ": is damaged, compared as far as it goes" << where << '\n';
    return true;
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

class TextPrinter : public Printer {
public:
    TextPrinter(const Compared& before, const Compared& after, bool isMasked)
        : Printer(isMasked), before_(before.name), after_(after.name) {}

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
    JsonLinePrinter(const Compared& before, const Compared& after, std::string_view root, bool isMasked)
        : Printer(isMasked) {
        const Json head{{"schema", 1},
                        {"tool", "kvjxml " KVJXML_VERSION},
                        {"before", before.name},
                        {"after", after.name},
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

std::unique_ptr<Printer> makePrinter(const DiffOptions& options, const Compared& before, const Compared& after,
                                     std::string_view root) {
    if (options.format == DiffFormat::text) return std::make_unique<TextPrinter>(before, after, options.isMasked);
    return std::make_unique<JsonLinePrinter>(before, after, root, options.isMasked);
}

}  // namespace

ExitCode diff(const Source& before, const Source& after, const DiffOptions& options) {
    const Compared was = readCompared(before);
    const Compared is = readCompared(after);
    const auto readers = readersOf(was);
    const std::unique_ptr<Printer> printer = makePrinter(options, was, is, readers.front()->root);
    bool isAnyDamaged = false;
    for (const Message* const message : readers) {
        const Reading one = readOrFail(*message, was);
        const Reading other = readOrFail(*message, is);
        if (message == readers.front()) {
            const bool wasDamaged = isDamaged(one, was);
            isAnyDamaged = isDamaged(other, is) || wasDamaged;
        }
        const std::string pointer = readers.size() == 1 ? std::string() : joined({"/", message->operation});
        compare(one, other, pointer, [&](const Difference& difference) { printer->print(difference); });
    }
    printer->end(isAnyDamaged);
    if (isAnyDamaged) return ExitCode::damaged;
    return printer->isAny() ? ExitCode::different : ExitCode::done;
}

}  // namespace kvj::tool
