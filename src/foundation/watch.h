/// @file watch.h
/// Who is told what a walk reads and what it skips. Named operations tell nobody.
#ifndef KVJXML_FOUNDATION_WATCH_H
#define KVJXML_FOUNDATION_WATCH_H

#include <cstddef>
#include <cstdint>
#include <utility>

#include "foundation/element.h"
#include "foundation/kinds.h"

namespace kvj {

/// An element that has been read.
struct Read {
    Element element;
    const Description& row;
    const void* record;  ///< whose fields the row names; null for none
    bool again;          ///< whether the row has read another child of the same parent before
    bool toOther;        ///< whether the value went to the row's other field
};

/// Marks which fields of a record a reply carried, and tells a diagnosis the rest.
class Watch {
public:
    /// What is not needed by those who only ask whether a field was there.
    class Diagnosis {
    public:
        Diagnosis(const Diagnosis&) = delete;
        Diagnosis& operator=(const Diagnosis&) = delete;
        virtual void read(const Read& read) = 0;
        virtual void skip(Element element) = 0;

    protected:
        Diagnosis() = default;
        ~Diagnosis() = default;
    };

    /// @param carried  a bit for each byte of the record, all zero; that of a field's first byte is set.
    Watch(const void* record, std::size_t size, unsigned char* carried, Diagnosis* diagnosis) noexcept
        : record_(record), size_(size), carried_(carried), diagnosis_(diagnosis) {}

    void read(const Element& element, const Description& row, const void* record, bool again) {
        Read read{element, row, record, again, std::exchange(toOther_, false)};
        const Kind kind = row.kind;
        if (kind == Kind::wordOrNext) read.again = read.toOther && isMarked(row.otherField.at(record));
        if (record != nullptr && hasOwnValue(kind)) {
            if (kind == Kind::attribute) {
                if (element.attribute(row.word.data()) != nullptr) mark(row.field, record);
            } else if (kind != Kind::setting && kind != Kind::decimalSetting && element.text() != nullptr) {
                markText(read);
            }
        }
        if (diagnosis_ != nullptr) diagnosis_->read(read);
    }
    void skip(Element element) {
        if (diagnosis_ != nullptr) diagnosis_->skip(element);
    }

    /// A field was there. Rules that read several fields mark them by themselves.
    void mark(const void* field) noexcept {
        const auto at = reinterpret_cast<std::uintptr_t>(field) - reinterpret_cast<std::uintptr_t>(record_);
        if (at >= size_) return;  // Entries of lists are stored elsewhere.
        carried_[at / 8] = static_cast<unsigned char>(carried_[at / 8] | 1U << at % 8);
    }

    /// Of two fields, the value that is being read goes to the other one.
    void goToOther() noexcept { toOther_ = true; }

    /// From here on the fields of another record are marked, one that is copied to the first later.
    void follow(const void* record) noexcept { record_ = record; }

private:
    /// A text may be a code as well.
    void markText(const Read& read) noexcept {
        if (!read.toOther) mark(read.row.field, read.record);
        if (read.toOther || read.row.kind == Kind::textAndCode) mark(read.row.otherField, read.record);
    }

    [[nodiscard]] bool isMarked(const void* field) const noexcept {
        const auto at = reinterpret_cast<std::uintptr_t>(field) - reinterpret_cast<std::uintptr_t>(record_);
        return at < size_ && (carried_[at / 8] >> at % 8 & 1U) != 0;
    }

    /// A row without a field is for a record that is a single value.
    void mark(const FieldName& name, const void* record) noexcept {
        if (name.at != nullptr) {
            mark(name.at(record));
        } else if (name.empty()) {
            mark(record);
        }
    }
    const void* record_;
    std::size_t size_;
    unsigned char* carried_;
    Diagnosis* diagnosis_;
    bool toOther_ = false;
};

/// While it lives nobody is told what is read from an element.
class Unwatched {
public:
    explicit Unwatched(Element element) noexcept : element_(element), watch_(element.watch()) {
        element_.watchWith(nullptr);
    }
    ~Unwatched() { element_.watchWith(watch_); }
    Unwatched(const Unwatched&) = delete;
    Unwatched& operator=(const Unwatched&) = delete;

private:
    Element element_;
    Watch* watch_;
};

}  // namespace kvj

#endif
