#include "decode.h"

#include <algorithm>
#include <cstring>
#include <iostream>
#include <vector>

#include "failure.h"
#include "foundation/reply.h"
#include "foundation/shape.h"
#include "messages.h"

namespace kvjxml::tool {

namespace {

std::vector<Message> messagesOf(std::string_view root) {
    std::vector<Message> found;
    std::ranges::copy_if(messages(), std::back_inserter(found), [&](const Message& m) {
        return m.root == root || (!m.otherRoot.empty() && m.otherRoot == root);
    });
    return found;
}

/// What TinyXML found wrong, and where; empty when it found nothing.
std::string errorIn(const TiXmlDocument& document) {
    if (!document.Error()) return {};
    const std::string place = document.ErrorRow() == 0 ? "at its end"
                                                       : "line " + std::to_string(document.ErrorRow()) + ", column " +
                                                             std::to_string(document.ErrorCol());
    return place + ": " + document.ErrorDesc();
}

/// The readers of the first element at the top level that is a known message's root.
std::vector<Message> messagesIn(const TiXmlDocument& document, const std::string& name) {
    for (const auto* root = document.FirstChildElement(); root != nullptr; root = root->NextSiblingElement()) {
        if (auto found = messagesOf(root->Value()); !found.empty()) return found;
    }
    std::string reason = errorIn(document);
    if (const auto* root = document.RootElement(); root != nullptr) {
        reason = "the root element \"" + root->ValueStr() + "\" is not that of a known message";
    } else if (reason.empty()) {
        reason = "there is no XML element in it";
    }
    throw Failure(ExitCode::unknownMessage, name + ": " + reason);
}

/// Why the library does not look into a reply at all; empty when it does.
std::string refusalOf(const std::string& bytes) {
    const std::string padded = bytes + std::string(4, '\0');
    const Shape shape = shapeOf(padded.c_str(), std::strlen(padded.c_str()));
    if (shape.depth > largestShape.depth) {
        return "is refused: its elements nest deeper than " + std::to_string(largestShape.depth) + " levels";
    }
    if (shape.attributes > largestShape.attributes) {
        return "is refused: an element has more than " + std::to_string(largestShape.attributes) + " attributes";
    }
    return {};
}

/// The readers of a reply: those of the `message`, or those that go by its root when that is empty. Says what is wrong
/// with the reply.
std::vector<Message> readersOf(const Input& input, const std::string& message) {
    if (const auto refusal = refusalOf(input.bytes); !refusal.empty()) {
        throw Failure(ExitCode::unknownMessage, input.name + ": " + refusal);
    }
    constexpr int tabSize = 1;  // Errors are shown by line and column.
    const Reply reply(input.bytes.c_str(), tabSize);
    auto readers = message.empty() ? messagesIn(reply.document(), input.name) : messagesOf(message);
    if (const auto error = errorIn(reply.document()); !error.empty()) {
        std::cerr << "kvjxml: " << input.name << ": read as far as it goes: " << error << '\n';
    }
    return readers;
}

/// Has a reader print its record, and says when it failed.
bool decode(const Message& reader, const Input& input, JsonPrinter& json) {
    const bool result = reader.decode(input, json);
    if (!result) {
        std::cerr << "kvjxml: " << input.name << ": " << reader.reader << " reported failure: \"" << reader.root
                  << "\" is missing or empty, or the last element known in it has no text or one too long\n";
    }
    return result;
}

}  // namespace

ExitCode decode(const Source& source, const std::string& message) {
    const Input input = readInput(source);
    const auto readers = readersOf(input, message);
    JsonPrinter json(std::cout);
    bool anyRead = false;
    if (readers.size() == 1) {
        anyRead = decode(readers.front(), input, json);
    } else {
        // Several readers may take their part of one reply, and a reply need not have a part for each.
        json.object([&] {
            for (const Message& reader : readers) {
                json.field(reader.reader);
                if (decode(reader, input, json)) anyRead = true;
            }
        });
    }
    std::cout << '\n';
    return anyRead ? ExitCode::done : ExitCode::readerFailed;
}

}  // namespace kvjxml::tool
