/// @file kvjxml_read.hpp
/// Reads a reply: bytes in, values out.
///
///     const auto status = kvjxml::read<kvjxml::messages::general_status>(bytes);
///     if (!status) return complain(status.error().message());
///     if (!status.whole()) log("the reply is cut or damaged");
///     show(status->printerState);
///
/// **Bytes** are UTF-8, whatever the process's locale is and whatever the reply declares; so are all texts that are
/// read. A reply ends with its bytes: no length in characters, no terminator. Other than the named operations
/// - numbered references are characters of UTF-8 always (there they are single bytes in a reply that declares nothing);
/// - white space is always condensed as TinyXML does by itself, and names begin with letters of ASCII or bytes above
/// it;
/// - lists are as long as the reply; a list of the capabilities that stands twice is that of the later place;
/// - every record begins as zeros, so nothing is left of an earlier reply;
/// - no global is written and no stream, so any number of threads may read whatever they like.
/// In all else a record is filled as the named operation fills it, see the record's own header.
///
/// **Whole** has one meaning: the reply has one element at its top level, whose own end tag was reached; before and
/// behind it stand only blanks, comments, instructions and in front a document type; nothing that looks like a tag is
/// none; there is no error in it that the reader knows; and every byte belongs to UTF-8. A reply that is not whole is
/// read as far as it makes sense, and what stands in its record is what stood in front of the damage.
///
/// **A reading owns everything** that it gives: nothing points to the bytes. It gives no reference to a part of itself
/// while it is a temporary, since that would dangle: `read<...>(bytes)->jobs` does not compile.
///
/// All of this may throw std::bad_alloc, and nothing else. What is a mistake in the program, such as taking the record
/// of a failed reading, ends it.
#ifndef KVJXML_READ_HPP
#define KVJXML_READ_HPP

#include <array>
#include <cstddef>
#include <cstdlib>
#include <new>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "kvjxml_messages.hpp"
#include "kvjxml_records.hpp"
#include "kvjxml_v1.h"

namespace kvjxml {
inline namespace v1 {

// ---- Findings ----

/// What can be found in a reply.
enum class finding_kind : int {
    malformed,        ///< The document breaks here.
    encoding,         ///< Bytes that are not UTF-8.
    unknown_message,  ///< The message is not in the reply.
    unknown_element,  ///< No reader of this message knows an element of this name here.
    unknown_word,     ///< A word that is not in its table.
    not_a_number,     ///< Nothing that the value could be begins the text.
    trailing_text,    ///< A number, and a rest that was ignored.
    out_of_range,     ///< A number that its field cannot hold.
    clamped,          ///< A setting outside its own "min" and "max".
    text_cut,         ///< A text that is longer than its field.
    no_text,          ///< A known element without what is read from it.
    not_text,         ///< A comment, or the name of an element, that was read as the value.
    reference,        ///< A reference that is none, or not to a character.
    attribute,        ///< An attribute that is read is missing, or is no number.
    repeated,         ///< A known element again; the last one counts.
    beyond_capacity,  ///< An entry that the record of the named operation has no room for.
    ignored,          ///< Content that nobody reads.
};

/// How much a finding matters.
enum class severity : int {
    note,     ///< What newer firmware may well do.
    warning,  ///< Something known was not read.
    error,    ///< A value is not what the printer said.
};

/// The kind's name, "unknown-word"; empty for one that this header does not know.
[[nodiscard]] constexpr std::string_view to_string(finding_kind kind) noexcept {
    constexpr std::string_view names[] = {
        "malformed",     "encoding",     "unknown-message", "unknown-element", "unknown-word", "not-a-number",
        "trailing-text", "out-of-range", "clamped",         "text-cut",        "no-text",      "not-text",
        "reference",     "attribute",    "repeated",        "beyond-capacity", "ignored"};
    const auto number = static_cast<std::size_t>(kind);
    return number < sizeof names / sizeof *names ? names[number] : std::string_view();
}
/// "note", "warning", "error"; likewise.
[[nodiscard]] constexpr std::string_view to_string(severity level) noexcept {
    constexpr std::string_view names[] = {"note", "warning", "error"};
    const auto number = static_cast<std::size_t>(level);
    return number < sizeof names / sizeof *names ? names[number] : std::string_view();
}

/// One thing that was ignored, changed or lost. It holds no view of the reply.
struct finding {
    finding_kind kind{};
    severity level{};
    std::size_t line = 0;  ///< From 1. That of the element's start tag; of `malformed` and `encoding` the fault's own.
    std::size_t column = 0;  ///< In characters, from 1.
    std::size_t offset = 0;  ///< The same place in bytes from the beginning of the reply.
    std::size_t length = 0;  ///< How many bytes of the reply it is about.
    /// Where it is, as an XPath location path: "/get_job_list/job[2]/uuid", with "/@min" for an attribute; "/" for what
    /// is in no element. Of an element that is very deep the last steps, "//a/b".
    std::string path;
    std::string field;   ///< The field that it is about, "Kavrin::KVGeneralStatus::printerState"; empty for none.
    std::string text;    ///< What the reply says there.
    std::string became;  ///< The value that was read instead; empty where none was.
    std::string detail;  ///< The rest, in words: "the field holds 39 of its 52 bytes", "did you mean 'printing'?"
};

/// Asks a reading for its findings: `read<message>(bytes, diagnose)`. Without it they cost nothing.
struct diagnose_t {
    explicit diagnose_t() = default;
};
inline constexpr diagnose_t diagnose{};

// ---- Readings ----

/// Why nothing was read.
struct read_error {
    enum class reason : int {
        no_such_message,  ///< The message's element is not in the reply.
        too_large,        ///< A reply of 4 GiB or more.
    };
    reason why = reason::no_such_message;
    /// The name of the reply's first element, cut to 63 bytes; empty when it has none.
    std::string root;

    /// The same in a sentence.
    [[nodiscard]] std::string message() const {
        if (why == reason::too_large) return "the reply is too large";
        if (root.empty()) return "the reply has no element";
        return "the reply is \"" + root + "\", not the message that was asked for";
    }
};

namespace detail {

/// A mistake in the host's program.
[[noreturn]] inline void misused() noexcept { std::abort(); }

template <class Entry>
void* resize(void* list, std::size_t count) noexcept {
    try {
        auto& entries = *static_cast<std::vector<Entry>*>(list);
        entries.resize(count);
        return entries.data();
    } catch (...) {
        return nullptr;  // The library says so, and read() throws then.
    }
}
template <class Entry>
kvjxml_v1_list list(const char* name, std::vector<Entry>& entries) noexcept {
    return {name, &entries, resize<Entry>};
}

// The lists of a record, by the names of the fields that they stand for.
template <class Record>
std::array<kvjxml_v1_list, 0> lists(Record& /*record*/) noexcept {
    return {};
}
inline std::array<kvjxml_v1_list, 1> lists(job_list& record) noexcept { return {list("jobs", record.jobs)}; }
inline std::array<kvjxml_v1_list, 1> lists(access_point_list& record) noexcept {
    return {list("accessPoints", record.accessPoints)};
}
inline std::array<kvjxml_v1_list, 1> lists(service_log& record) noexcept { return {list("entries", record.entries)}; }
inline std::array<kvjxml_v1_list, 1> lists(cleaning_log& record) noexcept { return {list("entries", record.entries)}; }
inline std::array<kvjxml_v1_list, 9> lists(capabilities& record) noexcept {
    return {list("hostPorts", record.hostPorts),
            list("devicePorts", record.devicePorts),
            list("swInterfaces", record.swInterfaces),
            list("ocpLanguages", record.ocpLanguages),
            list("graphicFormats", record.graphicFormats),
            list("fonts", record.fonts),
            list("templates", record.templates),
            list("graphics", record.graphics),
            list("barCodes", record.barCodes)};
}
inline std::array<kvjxml_v1_list, 4> lists(media_catalogue& record) noexcept {
    return {list("cards", record.cards), list("films", record.films), list("ribbons", record.ribbons),
            list("laminates", record.laminates)};
}

/// The part of a record that the library fills; the rest are lists.
template <class Record>
struct plain_part {
    using type = Record;
};
template <>
struct plain_part<capabilities> {
    using type = Kavrin::_Capabilities;
};

template <class Field>
struct field_traits;
template <class Record, class Value>
struct field_traits<Value Record::*> {
    using record = Record;
    using value = Value;
};

template <class Record>
const Record& part(const Record& record) noexcept {
    return record;
}
template <auto Field, auto... Nested, class Record>
const auto& part(const Record& record) noexcept {
    static_assert(std::is_base_of<typename field_traits<decltype(Field)>::record, Record>::value,
                  "a field of another record");
    return part<Nested...>(record.*Field);
}

template <class Type>
struct is_vector : std::false_type {};
template <class Entry>
struct is_vector<std::vector<Entry>> : std::true_type {};

}  // namespace detail

/// What a reply says, or why it says nothing: begin with `if (!reading)`.
template <class Message>
class [[nodiscard]] reading {
public:
    using record = typename Message::record;

    /// Whether the message is in the reply.
    [[nodiscard]] bool has_value() const noexcept { return found_; }
    explicit operator bool() const noexcept { return found_; }

    /// What was read. Without a message that is a mistake in the program, and ends it.
    [[nodiscard]] const record& operator*() const& noexcept { return value(); }
    [[nodiscard]] const record* operator->() const& noexcept { return &value(); }
    [[nodiscard]] const record& value() const& noexcept {
        if (!found_) detail::misused();
        return record_;
    }
    [[nodiscard]] record operator*() && { return std::move(*this).value(); }
    [[nodiscard]] record value() && {
        if (!found_) detail::misused();
        return std::move(record_);
    }
    const record* operator->() const&& = delete;  // It would point into a temporary.

    /// Why there is no message. With one that is a mistake in the program, and ends it.
    [[nodiscard]] const read_error& error() const& noexcept {
        if (found_) detail::misused();
        return error_;
    }
    [[nodiscard]] read_error error() && {
        if (found_) detail::misused();
        return std::move(error_);
    }

    /// Whether the reply is whole, as the head of this file says.
    [[nodiscard]] bool whole() const noexcept { return whole_; }

    /// Whether the reply had something for a field, whatever that became: `has<&Kavrin::KVGeneralStatus::alarms>()`. Of
    /// a record inside the record, whether it had anything for it:
    /// `has<&MediaStatus::ribbon, &_MediaStatusInfo::type>()`. Of a list ask whether it is empty.
    template <auto Field, auto... Nested>
    [[nodiscard]] bool has() const noexcept {
        static_assert(!detail::is_vector<typename detail::field_traits<decltype(Field)>::value>::value,
                      "of a list ask whether it is empty");
        const auto& field = detail::part<Field, Nested...>(record_);
        const auto first = static_cast<std::size_t>(reinterpret_cast<const unsigned char*>(&field) -
                                                    reinterpret_cast<const unsigned char*>(&plain()));
        for (std::size_t at = first; at < first + sizeof field; ++at) {
            if ((carried_[at / 8] >> at % 8 & 1U) != 0) return true;
        }
        return false;
    }

protected:
    reading() = default;

    void read(std::string_view bytes, kvjxml_v1_findings** findings) {
        std::array<char, 64> root;
        auto lists = detail::lists(record_);
        kvjxml_v1_target target{};
        target.record = const_cast<plain_type*>(&plain());
        target.size = sizeof(plain_type);
        target.carried = carried_.data();
        target.lists = lists.data();
        target.lists_count = lists.size();
        target.root = root.data();
        target.root_size = root.size();
        const int result = kvjxml_v1_read(Message::number, bytes.data(), bytes.size(), &target, findings);
        if ((result & kvjxml_v1_no_memory) != 0) throw std::bad_alloc();
        found_ = (result & kvjxml_v1_found) != 0;
        whole_ = (result & kvjxml_v1_whole) != 0;
        if (found_) return;
        const bool too_large = (result & kvjxml_v1_too_large) != 0;
        error_.why = too_large ? read_error::reason::too_large : read_error::reason::no_such_message;
        error_.root = root.data();
    }

    template <class Other>
    friend reading<Other> read(std::string_view bytes);

private:
    using plain_type = typename detail::plain_part<record>::type;
    [[nodiscard]] const plain_type& plain() const noexcept { return record_; }

    record record_{};
    std::array<unsigned char, (sizeof(plain_type) + 7) / 8> carried_{};
    read_error error_;
    bool found_ = false;
    bool whole_ = false;
};

/// A reading that says as well what was ignored, changed or lost.
template <class Message>
class [[nodiscard]] diagnosed_reading : public reading<Message> {
public:
    /// In the order of the reply. They are there without a message too: one says that it is not in the reply.
    [[nodiscard]] const std::vector<finding>& findings() const& noexcept { return findings_; }
    [[nodiscard]] std::vector<finding> findings() && noexcept { return std::move(findings_); }
    /// How many findings there were beyond 10,000: so many are kept.
    [[nodiscard]] std::size_t omitted() const noexcept { return omitted_; }

    template <class Other>
    friend diagnosed_reading<Other> read(std::string_view bytes, diagnose_t);

private:
    diagnosed_reading() = default;

    /// Owns the library's findings until they are copied.
    struct found {
        found() = default;
        found(const found&) = delete;
        found& operator=(const found&) = delete;
        ~found() {
            if (all != nullptr) kvjxml_v1_findings_release(all);
        }
        kvjxml_v1_findings* all = nullptr;
    };

    void read(std::string_view bytes) {
        found result;
        reading<Message>::read(bytes, &result.all);
        if (result.all == nullptr) return;
        findings_.resize(kvjxml_v1_findings_count(result.all));
        omitted_ = kvjxml_v1_findings_omitted(result.all);
        for (std::size_t i = 0; i < findings_.size(); ++i) {
            kvjxml_v1_finding one{};
            kvjxml_v1_findings_at(result.all, i, &one);
            finding& to = findings_[i];
            to.kind = static_cast<finding_kind>(one.kind);
            to.level = static_cast<severity>(one.severity);
            to.line = one.line;
            to.column = one.column;
            to.offset = one.offset;
            to.length = one.length;
            to.path = one.path;
            to.field = one.field;
            to.text.assign(one.text, one.text_length);
            to.became = one.became;
            to.detail = one.detail;
        }
    }

    std::vector<finding> findings_;
    std::size_t omitted_ = 0;
};

/// Reads a message from a reply.
template <class Message>
[[nodiscard]] reading<Message> read(std::string_view bytes) {
    reading<Message> result;
    result.read(bytes, nullptr);
    return result;
}
/// The same, with findings.
template <class Message>
[[nodiscard]] diagnosed_reading<Message> read(std::string_view bytes, diagnose_t /*diagnose*/) {
    diagnosed_reading<Message> result;
    result.read(bytes);
    return result;
}

}  // namespace v1
}  // namespace kvjxml

#endif
