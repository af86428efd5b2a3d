/// @file locale_scope.h
/// A part of a test that runs in a locale of its own.
#ifndef KVJXML_TESTS_SUPPORT_LOCALE_SCOPE_H
#define KVJXML_TESTS_SUPPORT_LOCALE_SCOPE_H

#include <clocale>
#include <stdexcept>
#include <string>

namespace kvj::tests {

/// While this lives, the process is in the locale `name`; after that it is in its former one again.
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

}  // namespace kvj::tests

#endif
