#include "decode_message.h"

#include <algorithm>
#include <cstring>
#include <iostream>
#include <memory>
#include <vector>

#include "foundation/reply.h"
#include "json_record.h"
#include "messages/zeroed_record.h"
#include "reading.h"
#include "text_printer.h"

namespace kvj::tool {

namespace {

// ---- Lists: an entry can take 4 KiB, so one is read, printed and forgotten before the next ----

/// One element with entries of a list, and how far these have been read.
class Section {
public:
    Section(Element section, std::string_view entryName)
        : at_(section.children().begin()), end_(section.children().end()), name_(entryName) {
        skipOthers();
    }
    explicit operator bool() const { return at_ != end_; }
    [[nodiscard]] Element entry() const { return *at_; }
    void goOn() {
        ++at_;
        skipOthers();
    }

private:
    void skipOthers() {
        while (at_ != end_ && (*at_).name() != name_) ++at_;
    }

    Element::Iterator at_;
    Element::Iterator end_;
    std::string_view name_;
};

/// All elements with entries of a list.
std::vector<Section> sectionsOf(Element root, const HostList& list) {
    if (!root) return {};
    std::vector<Section> sections;
    if (list.section.empty()) {
        sections.emplace_back(root, list.entry);
    } else {
        for (const Element child : root.children()) {
            if (child.name() == list.section) sections.emplace_back(child, list.entry);
        }
    }
    std::erase_if(sections, [](const Section& section) { return !section; });
    return sections;
}

/// The entries of a list, as an array that is large enough would have them after reading: those of a section that
/// stands again go over those of the first, and what is behind the last that was written is none.
class Entries {
public:
    Entries(Element root, const HostList& list)
        : list_(&list), sections_(sectionsOf(root, list)), entry_(std::make_unique<char[]>(field().size)) {}

    void print(JsonPrinter& json, const Showing& showing) {
        std::size_t unwritten = 0;
        for (; !sections_.empty(); goOn()) {
            if (!isWritten()) {
                ++unwritten;
                continue;
            }
            fill(0);
            for (; unwritten > 0; --unwritten) printEntry(json, showing);
            read();
            printEntry(json, showing);
        }
    }

private:
    [[nodiscard]] const Field& field() const { return *list_->field->entries->entry; }
    void fill(char byte) { std::memset(entry_.get(), byte, field().size); }
    void printEntry(JsonPrinter& json, const Showing& showing) {
        json.entry();
        tool::print(json, nullptr, field(), entry_.get(), showing);
    }

    void read() {
        for (Section section : sections_) {
            do {
                list_->read(section.entry(), entry_.get());
                section.goOn();
            } while (list_->isOneEntry && section);
        }
    }

    /// Whether reading changes anything in an entry.
    bool isWritten() {
        constexpr char mark = 0x5A;
        fill(mark);
        read();
        return !std::all_of(entry_.get(), entry_.get() + field().size, [](char byte) { return byte == mark; });
    }

    void goOn() {
        for (Section& section : sections_) section.goOn();
        std::erase_if(sections_, [&](const Section& section) { return list_->isOneEntry || !section; });
    }

    const HostList* list_;
    std::vector<Section> sections_;
    std::unique_ptr<char[]> entry_;
};

void printValue(JsonPrinter& json, const Field& field, const void* value, const Showing& showing) {
    if (field.name.empty()) return print(json, nullptr, field, value, showing);
    json.object([&] {
        json.field(field.name);
        print(json, nullptr, field, value, showing);
    });
}

void printWithSent(const Message& message, const Input& input, JsonPrinter& json, Showing showing) {
    const Reading reading(input.bytes, message);
    showing.sent = &reading.sent();
    const auto printEntries = [&](const GrowingList& list) {
        for (std::size_t i = 0; i < list.count(); ++i) {
            json.entry();
            print(json, nullptr, list.entry(), list.at(i), showing);
        }
    };
    if (const GrowingList* const all = reading.list(message.record)) {
        json.list([&] { printEntries(*all); });
    } else if (message.record.type != FieldType::record) {
        printValue(json, message.record, reading.record(), showing);
    } else {
        printRecord(json, *message.record.record, reading.record(), showing, [&](const Field& field) {
            const GrowingList& list = *reading.list(field);
            printList(json, field, list.count(), [&] { printEntries(list); });
        });
    }
}

}  // namespace

void decodeMessage(const Message& message, const Input& input, JsonPrinter& json, const View& view) {
    const Showing showing{.redacts = view.redacts};
    if (view.words) return printWithSent(message, input, json, showing);
    const ZeroedRecord record(message, message.record.size);
    message.read({input.bytes.c_str(), input.text.c_str(), input.text.size()}, record.get());
    const Reply reply(input.bytes.c_str());
    const Element root = reply.root(message.root.data(), message.otherRoot.data());
    if (message.lists.empty()) {
        printValue(json, message.record, record.get(), showing);
    } else {
        printRecord(json, *message.record.record, record.get(), showing, [&](const Field& list) {
            Entries entries(root, *std::ranges::find(message.lists, &list, &HostList::field));
            printList(json, list, countOf(*list.entries, record.get()), [&] { entries.print(json, showing); });
        });
    }
}

void showMessage(const Message& message, const Input& input, bool isWhole, const View& view) {
    const Reading reading(input.bytes, message);
    TextPrinter text(std::cout, {.redacts = view.redacts, .sent = &reading.sent()}, view.colours);
    const auto viewOfList = [](const GrowingList& list) {
        return ListView{&list.entry(), list.count(), [&](std::size_t index) { return list.at(index); }};
    };
    text.begin(message.name);
    if (!isWhole) text.warn("damaged: read as far as it goes");
    const Field& field = message.record;
    if (const GrowingList* const all = reading.list(field)) {
        text.list({}, viewOfList(*all));
    } else if (field.type == FieldType::record) {
        text.record(*field.record, reading.record(),
                    [&](const Field& list) { return viewOfList(*reading.list(list)); });
    } else {
        text.value(field.name.empty() ? "value" : field.name, field, reading.record());
    }
    text.end();
}

}  // namespace kvj::tool
