/// @file readings.h
/// What tests have to say of readings of any message.
#ifndef KVJXML_TESTS_SUPPORT_READINGS_H
#define KVJXML_TESTS_SUPPORT_READINGS_H

#include <kvjxml_read.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "messages/any_reading.h"

namespace kvj::tests {

/// The message of that name.
const Message& messageOf(std::string_view name);

/// A finding on one line: `error unknown-word 2:5 /a/b Kavrin::X::y "text" -> "became" (detail)`.
std::string toldOf(const kvjxml::finding& finding);
std::vector<std::string> toldOf(const std::vector<kvjxml::finding>& findings);

}  // namespace kvj::tests

#endif
