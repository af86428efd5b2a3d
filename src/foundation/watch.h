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

    void read(const Element& element, const Description& row, const void* record) {
        diagnoses() ? tell(element, row, record, false) : mark(element, row, record);
    }
    /// Marks what was read.
    void mark(const Element& element, const Description& row, const void* record) {
        if (!isForOneField(row.kind)) return markOthers(element, row, record);
        if (element.text() != nullptr && record != nullptr) mark(row.field, record);
    }
    /// The same, and tells the diagnosis.
    /// @param again  whether the row has read another child of the same parent before.
    [[gnu::noinline]] void tell(const Element& element, const Description& row, const void* record, bool again) {
        const bool toOther = toOther_;
        if (row.kind == Kind::wordOrNext) again = toOther && isMarked(row.otherField.at(record));
        mark(element, row, record);
        diagnosis_->read({element, row, record, again, toOther});
    }
    void skip(Element element) {
        if (diagnosis_ != nullptr) diagnosis_->skip(element);
    }
    [[nodiscard]] bool diagnoses() const noexcept { return diagnosis_ != nullptr; }

    /// A field was there. Rules that read several fields mark them by themselves.
    void mark(const void* field) noexcept {
        const std::size_t at = placeOf(field);
        if (at >= size_) return;  // Entries of lists are stored elsewhere.
        carried_[at / 8] = static_cast<unsigned char>(carried_[at / 8] | 1U << at % 8);
    }

    /// Of two fields, the value that is being read goes to the other one.
    void goToOther() noexcept { toOther_ = true; }

    /// From here on the fields of another record are marked, one that is copied to the first later.
    void follow(const void* record) noexcept { record_ = record; }

private:
    /// Whether there is a value for the row's field, and for no other, when the element has a text.
    static constexpr bool isForOneField(Kind kind) noexcept {
        switch (kind) {
            case Kind::attribute:
            case Kind::setting:
            case Kind::decimalSetting:
            case Kind::textAndCode:
            case Kind::wordOrNext:
                return false;
            default:
                return hasOwnValue(kind);
        }
    }

    [[gnu::noinline]] void markOthers(const Element& element, const Description& row, const void* record) {
        const bool toOther = std::exchange(toOther_, false);
        if (record == nullptr || !hasValue(element, row)) return;
        if (!toOther) mark(row.field, record);
        if (toOther || row.kind == Kind::textAndCode) mark(row.otherField, record);  // A text may be a code as well.
    }
    /// Rules of settings look for themselves.
    [[nodiscard]] static bool hasValue(const Element& element, const Description& row) {
        if (!hasOwnValue(row.kind) || row.kind == Kind::setting || row.kind == Kind::decimalSetting) return false;
        if (row.kind == Kind::attribute) return element.attribute(row.word.data()) != nullptr;
        return element.text() != nullptr;
    }

    [[nodiscard]] std::size_t placeOf(const void* field) const noexcept {
        return reinterpret_cast<std::uintptr_t>(field) - reinterpret_cast<std::uintptr_t>(record_);
    }

    [[nodiscard]] bool isMarked(const void* field) const noexcept {
        const std::size_t at = placeOf(field);
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
    explicit Unwatched(Element element) noexcept : Unwatched(element, true) {}
    ~Unwatched() { element_.watchWith(watch_); }
    Unwatched(const Unwatched&) = delete;
    Unwatched& operator=(const Unwatched&) = delete;

protected:
    Unwatched(Element element, bool pauses) noexcept : element_(element), watch_(element.watch()) {
        if (pauses) element_.watchWith(nullptr);
    }

private:
    Element element_;
    Watch* watch_;
};

/// The same for entries of lists, whose fields have no marks: only a diagnosis is told of them.
class DiagnosedAlone : Unwatched {
public:
    explicit DiagnosedAlone(Element element) noexcept
        : Unwatched(element, element.watch() != nullptr && !element.watch()->diagnoses()) {}
};

}  // namespace kvj

#endif
