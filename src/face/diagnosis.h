/// @file face/diagnosis.h
/// What was ignored, changed or lost while a message was read. The walk tells what it reads and skips; what a value
/// became is looked up in the record, so there is no second set of rules.
#ifndef KVJXML_FACE_DIAGNOSIS_H
#define KVJXML_FACE_DIAGNOSIS_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "face/findings.h"
#include "foundation/document.h"
#include "foundation/element.h"
#include "foundation/watch.h"
#include "messages/message.h"

namespace kvj {

/// Something found about an element; its place is known only at the end.
struct Candidate {
    kvjxml::finding_kind kind;
    std::size_t node;                  ///< of the element, or of the innermost one that is open
    std::string_view name{};           ///< of the attribute that it is about
    const Description* row = nullptr;  ///< of the field that it is about; null for none
    bool toOther = false;              ///< whether it is about the other field of the row
    std::string text{};
    std::string became{};
    std::string detail{};
    /// The place of the fault itself; without one that of the element's start tag.
    std::size_t offset = atElement;
    std::size_t length = 0;

    static constexpr auto atElement = static_cast<std::size_t>(-1);
};

/// A hostile reply could fill any memory with them, and take any time.
class Candidates {
public:
    /// A new one; beyond the most that are kept it is counted, and goes to nobody.
    Candidate& add(Candidate candidate) {
        if (all.size() < most) return all.emplace_back(std::move(candidate));
        ++omitted;
        return spare_ = std::move(candidate);
    }

    std::vector<Candidate> all;
    std::size_t omitted = 0;

private:
    /// More than are told, since some turn out to be none.
    static constexpr std::size_t most = 2 * Findings::most;

    Candidate spare_{};
};

/// What a walk made of an element.
enum class Role : std::uint8_t {
    unread,   ///< nobody has looked at it
    skipped,  ///< no row for it
    around,   ///< elements inside are read
    value,    ///< its first child is read
    bare,     ///< its attributes are read, or nothing at all
};

/// The role of each element, and the row that reads it.
class Roles {
public:
    explicit Roles(const Document& document) : roles_(document.size() + 1), rows_(document.size() + 1) {}

    void set(std::size_t node, Role role, const Description* row = nullptr) {
        roles_[node] = role;
        rows_[node] = row;
    }
    [[nodiscard]] Role operator[](std::size_t node) const { return roles_[node]; }
    [[nodiscard]] const Description* rowOf(std::size_t node) const { return rows_[node]; }

private:
    std::vector<Role> roles_;
    std::vector<const Description*> rows_;
};

/// What all readers of a reply know: what one of them skips may be what another one reads.
class Readers {
public:
    using Rows = std::span<const DescribedRow>;

    /// @param root  that of the message; its name tells who reads it.
    Readers(const Document& document, Element root) : document_(document), root_(root) {}

    /// The rows that each of them has for the elements inside an element.
    /// @param parents  the numbers of the elements around those of the document.
    const std::vector<Rows>& inside(std::size_t node, std::span<const std::uint32_t> parents);

private:
    const Document& document_;
    Element root_;
    std::vector<Rows> tables_;
    std::size_t node_ = 0;      ///< the last that was asked for: most elements that are skipped stand together
    std::vector<Rows> inside_;  ///< of that one
};

class Diagnosis final : public Watch::Diagnosis {
public:
    /// All of them outlive it.
    /// @param isWhole  whether the bytes are a whole document and UTF-8.
    Diagnosis(const Document& document, std::string_view bytes, bool isWhole, Element root, const Message& message,
              Findings& findings);

    void read(const Read& read) override;
    void skip(Element element) override;

    /// When all is read: looks at what is between the elements, and tells where everything is.
    void finish();
    /// In its place, for who only wants to know how many findings there are: it takes a third of the time.
    std::size_t count();

private:
    /// Looks at what is between the elements, and drops what turns out to be nothing.
    void settle();
    /// Tells what may have been meant by elements that nobody knows.
    void suggest();

    void countEntry(Element element);

    // In most replies there is nothing to be found, and none of these is needed.
    Roles& roles();
    const std::vector<std::uint32_t>& parents();
    const std::vector<Readers::Rows>& rowsBeside(std::size_t node);

    const Document& document_;
    std::string_view bytes_;
    Element root_;
    const Message& message_;
    Findings& findings_;
    /// There is nothing between the elements that was not read. While that is so, nobody will ask for roles.
    bool isPlain_;
    std::optional<Roles> roles_;
    std::vector<std::uint32_t> parents_;
    Readers readers_;
    Candidates candidates_;
    std::size_t room_;         ///< of a list in the named operation's record; 0 when it has none
    std::size_t entries_ = 0;  ///< of that list
};

/// A reply without the message.
void diagnoseWithout(const Document& document, std::string_view bytes, const Message& message, Findings& findings);

}  // namespace kvj

#endif
