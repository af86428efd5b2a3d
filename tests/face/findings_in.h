/// @file findings_in.h
/// What is found in a reply. Each face that tells it is put to the same tests.
#ifndef KVJXML_TESTS_FACE_FINDINGS_IN_H
#define KVJXML_TESTS_FACE_FINDINGS_IN_H

#include <kvjxml_read.hpp>
#include <string>
#include <vector>

#include "messages/message.h"

namespace kvj::tests {

/// Whether what is found in the reply of a message is all about its own record.
bool tellsOfOneRecord(const Message& message);

/// In the reply of a message.
std::vector<kvjxml::finding> findingsIn(const Message& message, const std::string& reply);

}  // namespace kvj::tests

#endif
