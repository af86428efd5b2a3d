/// @file no_room_for_files.h
/// A file system that is full, for this process.
#ifndef KVJXML_TESTS_NO_ROOM_FOR_FILES_H
#define KVJXML_TESTS_NO_ROOM_FOR_FILES_H

#include <sys/resource.h>

#include <csignal>

namespace kvjxml::tests {

/// No file of this process can grow while this lives.
class NoRoomForFiles {
public:
    NoRoomForFiles() : signalBefore_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit none{0, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &none);
    }
    ~NoRoomForFiles() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, signalBefore_);
    }
    NoRoomForFiles(const NoRoomForFiles&) = delete;
    NoRoomForFiles& operator=(const NoRoomForFiles&) = delete;

private:
    rlimit before_{};
    void (*signalBefore_)(int);
};

}  // namespace kvjxml::tests

#endif
