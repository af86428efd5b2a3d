#include "decode.h"

#include <algorithm>
#include <iostream>
#include <kvjxml.hpp>
#include <vector>

#include "decode_message.h"
#include "failure.h"
#include "foundation/reply.h"

namespace kvj::tool {

namespace {

std::vector<Message> messagesOf(std::string_view root) {
    std::vector<Message> found;
    std::ranges::copy_if(messages(), std::back_inserter(found), [&](const Message& m) {
        return m.root == root || (!m.otherRoot.empty() && m.otherRoot == root);
    });
    return found;
}

/// A place in a text, for people: the line, and the character in that line.
std::string placeOf(std::string_view text, std::size_t offset) {
    const std::string_view before = text.substr(0, offset);
    if (before.size() == text.size()) return "at its end";
    const auto line = std::ranges::count(before, '\n') + 1;
    const std::string_view inLine = before.substr(before.find_last_of('\n') + 1);
    const auto isContinuation = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; };
    const auto column = std::ssize(inLine) - std::ranges::count_if(inLine, isContinuation) + 1;
    return "line " + std::to_string(line) + ", column " + std::to_string(column);
}

/// What is wrong with a reply, and where; empty when nothing is.
std::string faultIn(const Document& reply, std::string_view text) {
    if (!reply.fault()) return {};
    TiXmlDocument words;
    tellFault(reply, words);
    return placeOf(text, reply.fault().offset) + ": " + words.ErrorDesc();
}

/// The readers of the first element at the top level that is a known message's root.
std::vector<Message> messagesIn(const Document& reply, const Input& input) {
    std::string reason = faultIn(reply, input.bytes);
    if (reason.empty()) reason = "there is no XML element in it";
    bool isFirst = true;
    for (const Element root : reply.top().children()) {
        if (auto found = messagesOf(root.name()); !found.empty()) return found;
        if (isFirst) {
            reason = "the root element \"" + std::string(root.name()) + "\" is not that of a known message";
        }
        isFirst = false;
    }
    throw Failure(ExitCode::unknownMessage, input.name + ": " + reason);
}

/// The readers of a reply: those of `message`, or when that is empty those of its root. Reports what is wrong with the
/// reply.
std::vector<Message> readersOf(const Input& input, const std::string& message) {
    const Reply reply(input.bytes.c_str());
    auto readers = message.empty() ? messagesIn(reply, input) : messagesOf(message);
    const Message& first = readers.front();
    if (!reply.root(first.root.data(), first.otherRoot.data())) {
        throw Failure(ExitCode::unknownMessage, input.name + ": there is no \"" + message + "\" in it");
    }
    if (const auto error = faultIn(reply, input.bytes); !error.empty()) {
        std::cerr << "kvjxml: " << input.name << ": read as far as it goes: " << error << '\n';
    }
    return readers;
}

/// Whether a reply is whole, as kvjxml.hpp says. That is the same whatever message is looked for.
bool isWhole(std::string_view bytes) { return kvjxml::read<kvjxml::messages::nonce>(bytes).whole(); }

}  // namespace

ExitCode decode(const Source& source, const std::string& message, const View& view) {
    const Input input = readInput(source);
    const auto readers = readersOf(input, message);
    if (view.isText) {
        const bool whole = isWhole(input.bytes);
        for (const Message& reader : readers) showMessage(reader, input, whole, view);
        return whole ? ExitCode::done : ExitCode::damaged;
    }
    JsonPrinter json(std::cout);
    if (readers.size() == 1) {
        decodeMessage(readers.front(), input, json, view);
    } else {
        // Several readers may each take a part of one reply.
        json.object([&] {
            for (const Message& reader : readers) {
                json.field(reader.operation);
                decodeMessage(reader, input, json, view);
            }
        });
    }
    std::cout << '\n';
    return isWhole(input.bytes) ? ExitCode::done : ExitCode::damaged;
}

}  // namespace kvj::tool
