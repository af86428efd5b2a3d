/// @file decoded_document.h
/// What the readers of a document make of it, in one pass over its text.
#ifndef KVJXML_TOOL_DECODED_DOCUMENT_H
#define KVJXML_TOOL_DECODED_DOCUMENT_H

#include <cstddef>
#include <kvjxml_read.hpp>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "face/utf8_reply.h"
#include "messages/message.h"
#include "messages/read_list.h"
#include "sent.h"

namespace kvj::tool {

/// What one reader made of a document.
struct DecodedMessage {
    const Message* message;
    Element root{};
    std::vector<std::byte> record{};
    /// What was sent for its fields; null when that is not kept.
    std::unique_ptr<Sent> sent{};
    /// The lists of the record; those of `Message::lists`, which can be read entry by entry, only when they are needed
    /// to count or to keep what was sent.
    std::vector<ReadList> lists{};
};

/// Whether it is counted what was ignored, changed or lost. Then all lists are in memory.
enum class Counting : bool { no, yes };
/// Whether it is kept what was sent for each field. Likewise.
enum class Keeping : bool { no, yes };

class DecodedDocument {
public:
    /// @param root  the name of the message's element; empty for the first that is known.
    /// @throws Failure when there is no such message in it.
    DecodedDocument(std::string_view text, std::string_view root, Counting counting, Keeping keeping = Keeping::no);

    /// The name of the message's element.
    [[nodiscard]] std::string_view root() const { return readers_.front().root.name(); }
    /// As kvjxml.hpp says.
    [[nodiscard]] bool isWhole() const { return document_.isWholeReply(); }
    /// One at least; several may each take a part of one document.
    [[nodiscard]] const std::vector<DecodedMessage>& readers() const { return readers_; }
    /// How much was ignored, changed or lost, by all of them.
    [[nodiscard]] std::size_t findings() const { return findings_.size() + others_; }

private:
    void findReaders(std::string_view text, std::string_view root);
    void read(DecodedMessage& reader, std::string_view text, Counting counting, Keeping keeping);

    Utf8Reply document_;
    std::vector<DecodedMessage> readers_;
    /// Of several readers, what tells a finding from others, as check does: two that read the same element may find the
    /// same, each for a field of its own.
    std::set<std::tuple<std::size_t, kvjxml::finding_kind, std::string, std::string>> findings_;
    std::size_t others_ = 0;  ///< how many there are beyond those
};

/// Where a document that is not whole breaks, for people: "line 3, column 5: the reply ends here".
/// @param message  one that is in it.
/// @param line     how many lines stand in front of the text.
std::string damageIn(const Message& message, std::string_view text, std::size_t line);

}  // namespace kvj::tool

#endif
