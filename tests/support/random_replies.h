/// @file random_replies.h
/// Replies as a printer could send them, made from the tables that read them, and the same as a line, a firmware and
/// someone who means harm spoil them. The same number makes the same one.
#ifndef KVJXML_TESTS_SUPPORT_RANDOM_REPLIES_H
#define KVJXML_TESTS_SUPPORT_RANDOM_REPLIES_H

#include <string>
#include <vector>

#include "messages/message.h"
#include "support/random_texts.h"

namespace kvj::tests {

/// A reply with elements that the message has, and values that fit them more or less.
std::string randomReply(Random& random, const Message& message);

/// One of these, or a sample, spoilt or not.
std::string spoiltReply(Random& random, const Message& message, const std::vector<std::string>& samples);

}  // namespace kvj::tests

#endif
