/// @file composers.h
/// Every composer with an example of what it composes, as a row of one table.
#ifndef KVJXML_TESTS_HOSTILE_COMPOSERS_H
#define KVJXML_TESTS_HOSTILE_COMPOSERS_H

#include <gtest/gtest.h>

#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "support/copy_scope.h"

namespace kvj::tests {

/// An object of the library with a buffer, which composes one request as often as it is asked.
class Composing {
public:
    Composing() = default;
    virtual ~Composing() = default;
    Composing(const Composing&) = delete;
    Composing& operator=(const Composing&) = delete;

    /// Allocates nothing but what the library does. @return what the library returns
    virtual bool compose() = 0;
    /// What was printed last.
    [[nodiscard]] virtual std::string text() const = 0;
};

struct Composer {
    std::string_view name;  ///< the request's; what is composed of a part of it says so after a comma
    const char* copy;       ///< the file that it leaves for the service engineer; null for none
    std::unique_ptr<Composing> (*begin)();
};

std::span<const Composer> composers();

/// What a composer prints; empty when it fails.
std::string textOf(const Composer& composer);

/// Runs a check with each composer in turn, with no copies left by another.
template <class Check>
void withEachComposer(Check check) {
    for (const Composer& composer : composers()) {
        SCOPED_TRACE(std::string(composer.name));
        const CopyScope scope;
        check(composer);
    }
}

}  // namespace kvj::tests

#endif
