/// @file watch.h
/// Who is told what a walk reads and what it skips. Named operations tell nobody.
#ifndef KVJXML_FOUNDATION_WATCH_H
#define KVJXML_FOUNDATION_WATCH_H

#include <cstddef>
#include <functional>

#include "FoundationRecords.h"
#include "foundation/element.h"
#include "foundation/kinds.h"

namespace kvj {

/// An element that has been read.
struct Read {
    Element element;
    const Description& row;
    const void* record;  ///< whose fields the row names; null for none
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
        : record_(static_cast<const std::byte*>(record)), size_(size), carried_(carried), diagnosis_(diagnosis) {}

    void read(const Read& read) {
        if (paused_) return;
        if (read.record != nullptr && carriesValue(read)) {
            const bool toOther = read.row.kind == Kind::wordOrNext && read.again;
            if (isSetting(read.row.kind)) {
                markSetting(read);
            } else if (!toOther) {
                mark(read.row.field, read.record);
            }
            if (toOther || read.row.kind == Kind::textAndCode) mark(read.row.otherField, read.record);
        }
        if (diagnosis_ != nullptr) diagnosis_->read(read);
    }
    void skip(Element element) {
        if (diagnosis_ != nullptr && !paused_) diagnosis_->skip(element);
    }

    /// From here on the fields of another record are marked, one that is copied to the first later.
    void follow(const void* record) noexcept { record_ = static_cast<const std::byte*>(record); }

    /// While it lives nothing is told of what is read from an element.
    class Pause {
    public:
        explicit Pause(Element element) noexcept : watch_(element.watch()) {
            if (watch_ != nullptr) watch_->paused_ = true;
        }
        ~Pause() {
            if (watch_ != nullptr) watch_->paused_ = false;
        }
        Pause(const Pause&) = delete;
        Pause& operator=(const Pause&) = delete;

    private:
        Watch* watch_;
    };

private:
    /// Elements around others carry none of their own.
    static bool carriesValue(const Read& read) noexcept {
        switch (read.row.kind) {
            case Kind::attribute:
                return read.element.attribute(read.row.word.data()) != nullptr;
            case Kind::setting:
            case Kind::decimalSetting:
                return true;  // Each part of it may be there or not.
            case Kind::givenAttributes:
            case Kind::group:
            case Kind::part:
            case Kind::list:
            case Kind::entry:
            case Kind::firstEntry:
            case Kind::newEntry:
            case Kind::byDescription:
                return false;
            default:
                return read.element.text() != nullptr;
        }
    }

    static bool isSetting(Kind kind) noexcept { return kind == Kind::setting || kind == Kind::decimalSetting; }

    void markSetting(const Read& read) noexcept {
        using Whole = Kavrin::_MinMaxVal;
        using Decimal = Kavrin::_MinMaxValFloat;
        static_assert(offsetof(Whole, min) == offsetof(Decimal, min) &&
                      offsetof(Whole, max) == offsetof(Decimal, max) &&
                      offsetof(Whole, value) == offsetof(Decimal, value));
        const auto* const setting = static_cast<const std::byte*>(read.row.field.at(read.record));
        if (read.element.attribute("min") != nullptr) mark(setting + offsetof(Whole, min));
        if (read.element.attribute("max") != nullptr) mark(setting + offsetof(Whole, max));
        if (read.element.text() != nullptr) mark(setting + offsetof(Whole, value));
    }

    /// A row without a field is for a record that is a single value.
    void mark(const FieldName& name, const void* record) noexcept {
        if (name.at != nullptr) {
            mark(static_cast<const std::byte*>(name.at(record)));
        } else if (name.empty()) {
            mark(static_cast<const std::byte*>(record));
        }
    }
    void mark(const std::byte* field) noexcept {
        // Entries of lists are stored elsewhere.
        if (std::less<>()(field, record_) || !std::less<>()(field, record_ + size_)) return;
        const auto at = static_cast<std::size_t>(field - record_);
        carried_[at / 8] = static_cast<unsigned char>(carried_[at / 8] | 1U << at % 8);
    }

    const std::byte* record_;
    std::size_t size_;
    unsigned char* carried_;
    Diagnosis* diagnosis_;
    bool paused_ = false;
};

}  // namespace kvj

#endif
