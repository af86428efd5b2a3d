/// @file locale_scope.h
/// A stretch of a test in a locale of its own.
#ifndef KVJXML_TESTS_FOUNDATION_LOCALE_SCOPE_H
#define KVJXML_TESTS_FOUNDATION_LOCALE_SCOPE_H

#include <clocale>
#include <stdexcept>
#include <string>

namespace kvjxml::tests {

/// The process is in the locale `name` while this lives, then again in the one that it was in.
class LocaleScope {
public:
    explicit LocaleScope(const char* name) : before_(std::setlocale(LC_ALL, nullptr)) {
        if (std::setlocale(LC_ALL, name) == nullptr)
            throw std::runtime_error("there is no locale " + std::string(name));
    }
    ~LocaleScope() { std::setlocale(LC_ALL, before_.c_str()); }
    LocaleScope(const LocaleScope&) = delete;
    LocaleScope& operator=(const LocaleScope&) = delete;

private:
    std::string before_;
};

}  // namespace kvjxml::tests

#endif
