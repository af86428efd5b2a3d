#include "decode_message.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <vector>

#include "json_record.h"
#include "text_printer.h"

namespace kvj::tool {

namespace {

void printEntries(JsonPrinter& json, const ReadList& list, const Showing& showing) {
    for (std::size_t i = 0; i < list.count(); ++i) {
        json.entry();
        print(json, nullptr, list.entryField(), list.entry(i), showing);
    }
}

const ReadList& listIn(const DecodedMessage& decoded, const Field& field) {
    return *std::ranges::find_if(decoded.lists, [&](const ReadList& each) { return &each.field() == &field; });
}

// ---- Lists of the root: an entry can take 4 KiB, so one is read, printed and forgotten before the next ----

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
class HostEntries {
public:
    HostEntries(Element root, const HostList& list)
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

// ---- Records ----

void printListOf(JsonPrinter& json, const DecodedMessage& decoded, const Field& field, const Showing& showing) {
    const auto list = std::ranges::find(decoded.message->lists, &field, &HostList::field);
    const bool isOfHost = list != decoded.message->lists.end();
    if (isOfHost && showing.sent == nullptr) {
        HostEntries entries(decoded.root, *list);
        return printList(json, field, countChildren(decoded.root), [&] { entries.print(json, showing); });
    }
    const ReadList& grown = listIn(decoded, field);
    printList(json, field, isOfHost ? countChildren(decoded.root) : grown.count(),
              [&] { printEntries(json, grown, showing); });
}

/// A value that has no name prints as it is, everything else as the fields of an object.
bool hasName(const Field& field) { return field.type == FieldType::record || !field.name.empty(); }

void printNamed(JsonPrinter& json, const DecodedMessage& decoded, const Showing& showing) {
    const Field& field = decoded.message->record;
    if (field.type == FieldType::record) {
        return printFields(json, *field.record, decoded.record.data(), showing,
                           [&](const Field& list) { printListOf(json, decoded, list, showing); });
    }
    json.field(field.name);
    print(json, nullptr, field, decoded.record.data(), showing);
}

void printNameless(JsonPrinter& json, const DecodedMessage& decoded, const Showing& showing) {
    const Field& field = decoded.message->record;
    if (field.type != FieldType::list) return print(json, nullptr, field, decoded.record.data(), showing);
    json.list([&] { printEntries(json, decoded.lists.front(), showing); });
}

}  // namespace

void printDocument(JsonPrinter& json, const DecodedDocument& document, const View& view) {
    const auto& readers = document.readers();
    const auto showing = [&](const DecodedMessage& reader) { return Showing{view.redacts, reader.sent.get()}; };
    const auto tellDamage = [&] {
        if (document.isWhole()) return;
        json.field("damaged");
        json.value(true);
    };
    if (readers.size() > 1) {
        return json.object([&] {
            tellDamage();
            for (const DecodedMessage& reader : readers) {
                json.field(reader.message->operation);
                hasName(reader.message->record) ? json.object([&] { printNamed(json, reader, showing(reader)); })
                                                : printNameless(json, reader, showing(reader));
            }
        });
    }
    const DecodedMessage& only = readers.front();
    if (hasName(only.message->record)) {
        return json.object([&] {
            tellDamage();
            printNamed(json, only, showing(only));
        });
    }
    if (document.isWhole()) return printNameless(json, only, showing(only));
    json.object([&] {
        tellDamage();
        json.field("value");
        printNameless(json, only, showing(only));
    });
}

void printText(std::ostream& out, const std::string& source, const DecodedDocument& document, const View& view) {
    for (const DecodedMessage& reader : document.readers()) {
        TextPrinter text(out, {view.redacts, reader.sent.get()}, view.colours);
        const auto viewOfList = [](const ReadList& list) {
            return ListView{&list.entryField(), list.count(), [&list](std::size_t index) { return list.entry(index); }};
        };
        text.begin(source + std::string(reader.message->name));
        if (!document.isWhole()) text.warn("damaged: read as far as it goes");
        const Field& field = reader.message->record;
        if (field.type == FieldType::list) {
            text.list({}, viewOfList(reader.lists.front()));
        } else if (field.type == FieldType::record) {
            text.record(*field.record, reader.record.data(),
                        [&](const Field& list) { return viewOfList(listIn(reader, list)); });
        } else {
            text.value(field.name.empty() ? "value" : field.name, field, reader.record.data());
        }
        text.end();
    }
}

}  // namespace kvj::tool
