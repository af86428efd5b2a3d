/// @file finding_writers.h
/// What is found in documents, as people and as programs read it.
#ifndef KVJXML_TOOL_FINDING_WRITERS_H
#define KVJXML_TOOL_FINDING_WRITERS_H

#include <cstddef>
#include <kvjxml_read.hpp>
#include <memory>
#include <ostream>
#include <string_view>
#include <vector>

#include "captures.h"
#include "failure.h"
#include "hidden_text.h"

namespace kvj::tool {

/// A finding as it is told: its place is that in the capture, and what is hidden is masked.
struct ToldFinding {
    kvjxml::finding finding;
    std::size_t offset;  ///< in the document's text, in bytes
};

/// A document whose findings are told.
struct ToldDocument {
    const Capture& capture;
    std::string_view message;  ///< the name of its root; empty when no message is known
    bool isDamaged;
    const std::vector<ToldFinding>& findings;
    std::size_t omitted;  ///< how many more there were at least
    const HiddenText& hidden;
};

class FindingWriter {
public:
    FindingWriter() = default;
    FindingWriter(const FindingWriter&) = delete;
    FindingWriter& operator=(const FindingWriter&) = delete;
    virtual ~FindingWriter() = default;

    virtual void document(const ToldDocument& document) = 0;
    /// A document that there is none of, and why.
    virtual void failed(const Origin& origin, const Failure& failure) = 0;
    virtual void end() = 0;
};

/// `out` outlives the writer.
using MakeWriter = std::unique_ptr<FindingWriter> (*)(std::ostream& out);

/// For people: "file:line:column: kind: what, what became of it", the line, and a mark under the place.
std::unique_ptr<FindingWriter> textWriter(std::ostream& out);
/// An object for each document, on one line. All is ASCII, so that a terminal can be given it.
std::unique_ptr<FindingWriter> jsonWriter(std::ostream& out);
/// SARIF 2.1.0, for those who collect findings of many tools. All is ASCII.
std::unique_ptr<FindingWriter> sarifWriter(std::ostream& out);

}  // namespace kvj::tool

#endif
