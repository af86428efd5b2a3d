/// @file watch.h
/// Who is told what a walk reads and what it skips. Named operations tell nobody.
#ifndef KVJXML_FOUNDATION_WATCH_H
#define KVJXML_FOUNDATION_WATCH_H

#include <cstddef>
#include <cstdint>

#include "foundation/element.h"
#include "foundation/kinds.h"

namespace kvj {

/// An element that has been read.
struct Read {
    Element element;
    const Description& row;
    const void* record;  ///< whose fields the row names; null for none
    bool result;         ///< what the rule said
    bool again;          ///< whether the row has read another child of the same parent before
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

    void read(const Read& read) {
        if (read.row.field.at != nullptr && read.record != nullptr && (read.result || read.element.text() != nullptr)) {
            mark(read.row.field, read);
            if (read.row.otherField.at != nullptr) markOther(read);
        }
        if (diagnosis_ != nullptr) diagnosis_->read(read);
    }
    void skip(Element element) {
        if (diagnosis_ != nullptr) diagnosis_->skip(element);
    }

    /// From here on the fields of another record are marked, one that is copied to the first later.
    void follow(const void* record) noexcept { record_ = record; }

private:
    void mark(const FieldName& name, const Read& read) noexcept {
        const auto at =
            reinterpret_cast<std::uintptr_t>(name.at(read.record)) - reinterpret_cast<std::uintptr_t>(record_);
        if (at >= size_) return;  // Entries of lists are stored elsewhere.
        carried_[at / 8] = static_cast<unsigned char>(carried_[at / 8] | 1U << at % 8);
    }
    /// A text that is a code as well, or the second of two words.
    void markOther(const Read& read) noexcept {
        if (read.row.kind != Kind::wordOrNext || read.again) mark(read.row.otherField, read);
    }

    const void* record_;
    std::size_t size_;
    unsigned char* carried_;
    Diagnosis* diagnosis_;
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
