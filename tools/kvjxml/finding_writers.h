/// @file finding_writers.h
/// What is found in documents, as people and as programs read it.
#ifndef KVJXML_TOOL_FINDING_WRITERS_H
#define KVJXML_TOOL_FINDING_WRITERS_H

#include <cstddef>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>

#include "checked_document.h"
#include "hidden_text.h"

namespace kvj::tool {

/// A document whose findings are told.
struct ToldDocument {
    std::string_view file;  ///< where it came from
    std::size_t number;     ///< from 1, in a stream of several; 0 for none
    std::string_view bytes;
    const CheckedDocument& checked;
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
    virtual void failed(std::string_view file, std::string_view reason) = 0;
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
