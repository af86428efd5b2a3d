#include "decode.h"

#include <algorithm>
#include <iostream>
#include <vector>

#include "failure.h"
#include "foundation/reply.h"
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

}  // namespace

ExitCode decode(const std::string& path, const std::string& message) {
    const Input input = readInput(path);
    constexpr int tabSize = 1;  // Errors are shown by line and column.
    const Reply reply(input.bytes.c_str(), tabSize);
    const auto readers = message.empty() ? messagesIn(reply.document(), input.name) : messagesOf(message);
    if (const auto error = errorIn(reply.document()); !error.empty()) {
        std::cerr << "kvjxml: " << input.name << ": read as far as it goes: " << error << '\n';
    }

    // Several readers may take their part of one reply, and a reply need not have a part for each.
    bool anyRead = false;
    Json record;
    for (const Message& reader : readers) {
        auto decoded = reader.decode(input);
        if (decoded.result) {
            anyRead = true;
        } else {
            std::cerr << "kvjxml: " << input.name << ": " << reader.reader << " reported failure: \"" << reader.root
                      << "\" is missing or empty, or the last element known in it has no text or one too long\n";
        }
        if (readers.size() == 1) {
            record = std::move(decoded.record);
        } else {
            record[reader.reader] = std::move(decoded.record);
        }
    }

    constexpr int indent = 4;
    std::cout << record.dump(indent, ' ', false, Json::error_handler_t::replace) << std::endl;
    if (!std::cout) throw Failure(ExitCode::inputOutput, "standard output: cannot be written");
    return anyRead ? ExitCode::done : ExitCode::readerFailed;
}

}  // namespace kvjxml::tool
