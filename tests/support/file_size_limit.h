/// @file file_size_limit.h
/// A limit on the size of files, as administrators set it for services.
#ifndef KVJXML_TESTS_SUPPORT_FILE_SIZE_LIMIT_H
#define KVJXML_TESTS_SUPPORT_FILE_SIZE_LIMIT_H

#include <sys/resource.h>

namespace kvj::tests {

/// While this lives, no file of this process can grow beyond this many bytes. An attempt gets the signal that ends the
/// process.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() { setrlimit(RLIMIT_FSIZE, &before_); }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit before_{};
};

}  // namespace kvj::tests

#endif
