/// @file captures.h
/// The documents that a command line names: in files, in folders, and one behind the other in a stream.
#ifndef KVJXML_TOOL_CAPTURES_H
#define KVJXML_TOOL_CAPTURES_H

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "encodings.h"
#include "exit_code.h"
#include "failure.h"

namespace kvj::tool {

enum class Separator : std::uint8_t {
    none,  ///< an input is one document
    nul,
    line,
};

/// What is to be read, and how.
struct Captures {
    std::vector<std::string> paths{};  ///< "-" is standard input; none is that alone
    bool isRecursive = false;          ///< whether a folder stands for the files in it
    Separator separator = Separator::none;
    std::optional<Encoding> encoding{};               ///< nothing for what each capture says itself
    std::uint64_t maxSize = std::uint64_t{64} << 20;  ///< of a document, in bytes
};

/// Where a document is from.
struct Origin {
    std::string file;        ///< as it was given: "-" for standard input
    std::size_t number = 1;  ///< of the document in its input, from 1; blank lines count
    bool isOnlyOne = true;   ///< whether the input is one document

    /// What messages call it, as a terminal may be given it.
    [[nodiscard]] std::string name() const;
};

/// One document, and where it lies in what was captured. Places in it are those of the capture, with what stands around
/// the document, and of a stream those of the one piece.
struct Capture {
    Origin origin;
    std::string text;                    ///< in UTF-8, unless the capture was to be UTF-8 and is not
    std::vector<std::string> notes;      ///< what stood around it and how it was encoded, each a sentence without "it"
    std::size_t offset = 0;              ///< where the text begins in the capture, in bytes
    std::size_t line = 0;                ///< the lines in front of it
    Encoding encoding = Encoding::utf8;  ///< of the capture

    /// Where a byte of the text is in the capture, in bytes. Lines are counted from `line`; columns are characters, and
    /// the same in any encoding.
    [[nodiscard]] std::size_t offsetOf(std::size_t inText) const {
        return offset + sizeIn(encoding, std::string_view(text).substr(0, inText));
    }
};

/// Says something about a document on standard error.
void tell(const Origin& origin, std::string_view text);

/// What is done with a document that is no document, or an input that cannot be read. What a Failure says there has no
/// name of a file in front.
using OnFailure = std::function<void(const Origin& origin, const Failure& failure)>;

/// Says what failed.
void tellFailure(const Origin& origin, const Failure& failure);

/// The whole of an input, which is one document.
/// @throws Failure
Capture readCapture(const std::string& path, const Captures& how);

/// Gives one document after the other to `action`, in the order of the command line; folders are sorted by name. A
/// Failure of one of them, thrown while it is read or by `action`, goes to `onFailure`, and the next one follows. All
/// other exceptions end it.
/// @return the code that stands for all of them.
ExitCode forEachDocument(const Captures& captures, const std::function<ExitCode(const Capture& capture)>& action,
                         const OnFailure& onFailure = tellFailure);

}  // namespace kvj::tool

#endif
