/// @file face/diagnosis.h
/// What was ignored, changed or lost while a message was read. The walk tells what it reads and skips; what a value
/// became is looked up in the record, so there is no second set of rules.
#ifndef KVJXML_FACE_DIAGNOSIS_H
#define KVJXML_FACE_DIAGNOSIS_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
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
    std::size_t node;         ///< of the element, or of the innermost one that is open
    std::string_view name{};  ///< of the attribute that it is about
    FieldName field{};
    std::string text{};
    std::string became{};
    std::string detail{};
    /// The place of the fault itself; without a length that of the element's start tag.
    std::size_t offset = 0;
    std::size_t length = 0;
};

/// What a walk made of each element.
enum class Role : std::uint8_t {
    unread,   ///< nobody has looked at it
    skipped,  ///< no row for it
    around,   ///< elements inside are read
    value,    ///< its first child is read
    bare,     ///< its attributes are read, or nothing at all
};

class Diagnosis final : public Watch::Diagnosis {
public:
    /// All of them outlive it.
    /// @param isWhole  whether the bytes are a whole document and UTF-8.
    Diagnosis(const Document& document, std::string_view bytes, bool isWhole, Element root, const Message& message,
              Findings& findings);

    void read(const Read& read) override;
    void skip(Element element) override;

    /// When all is read: looks at what is between the elements, and finds out where everything is.
    void finish();

private:
    const Document& document_;
    std::string_view bytes_;
    Element root_;
    const Message& message_;
    Findings& findings_;
    std::vector<Role> roles_;
    bool isPlain_;  ///< there is nothing between the elements that was not read
    std::vector<Candidate> candidates_;
    std::size_t room_;         ///< of a list in the named operation's record; 0 when it has none
    std::size_t entries_ = 0;  ///< of that list
};

/// A reply without the message.
void diagnoseWithout(const Document& document, std::string_view bytes, const Message& message, Findings& findings);

}  // namespace kvj

#endif
