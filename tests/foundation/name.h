/// @file name.h
/// Names and words for operations that take them as `char*`, though they change none.
#ifndef KVJXML_TESTS_FOUNDATION_NAME_H
#define KVJXML_TESTS_FOUNDATION_NAME_H

#include <string>
#include <string_view>

namespace kvj::tests {

class Name {
public:
    explicit Name(std::string_view text) : text_(text) {}
    operator char*() { return text_.data(); }

private:
    std::string text_;
};

}  // namespace kvj::tests

#endif
