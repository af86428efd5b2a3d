/// @file copy_scope.h
/// The files that composers leave for the service engineer have one name for all processes.
#ifndef KVJXML_TESTS_SUPPORT_COPY_SCOPE_H
#define KVJXML_TESTS_SUPPORT_COPY_SCOPE_H

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string>

namespace kvj::tests {

/// While this lives, no other test looks at these files, and what was there before is set aside.
class CopyScope {
public:
    CopyScope() : lock_(open("/tmp/kvjxml-test-composedXML.lock", O_RDWR | O_CREAT | O_CLOEXEC, 0600)) {
        if (lock_ < 0 || flock(lock_, LOCK_EX) != 0) throw std::runtime_error("no lock on the diagnostic files");
        // The names themselves are moved: one may be a link, or a file that only its owner can write.
        for (const char* path : paths) {
            if (std::rename(path, aside(path).c_str()) == 0 || errno == ENOENT) continue;
            close(lock_);
            throw std::runtime_error(std::string("cannot move ") + path);
        }
    }
    ~CopyScope() {
        std::error_code ignored;
        for (const char* path : paths) {
            std::filesystem::remove_all(path, ignored);
            std::filesystem::rename(aside(path), path, ignored);
        }
        close(lock_);
    }
    CopyScope(const CopyScope&) = delete;
    CopyScope& operator=(const CopyScope&) = delete;

private:
    static constexpr const char* paths[] = {"/tmp/composedXML", "/tmp/firmwaresettings", "/tmp/printidsettings"};
    static std::string aside(const char* path) { return path + (".before-" + std::to_string(getpid())); }

    int lock_;
};

}  // namespace kvj::tests

#endif
