#include "foundation/diagnostic_copy.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <memory>
#include <string>

namespace kvj {

namespace {

/// While this lives, holds back the signal for a file that grows beyond the process's limit: it would end the host.
/// Signals are the host's business, so only the calling thread's mask is changed, and only for that time.
class WithoutFileSizeSignal {
public:
    WithoutFileSizeSignal() noexcept : wasPending_(isPending()) { pthread_sigmask(SIG_BLOCK, &signal_, &maskBefore_); }
    ~WithoutFileSizeSignal() {
        // One that was already pending is for the host.
        constexpr timespec atOnce{};
        if (!wasPending_ && isPending()) sigtimedwait(&signal_, nullptr, &atOnce);
        pthread_sigmask(SIG_SETMASK, &maskBefore_, nullptr);
    }
    WithoutFileSizeSignal(const WithoutFileSizeSignal&) = delete;
    WithoutFileSizeSignal& operator=(const WithoutFileSizeSignal&) = delete;

private:
    static bool isPending() noexcept {
        sigset_t pending;
        sigpending(&pending);
        return sigismember(&pending, SIGXFSZ) == 1;
    }
    static sigset_t fileSizeSignal() noexcept {
        sigset_t signals;
        sigemptyset(&signals);
        sigaddset(&signals, SIGXFSZ);
        return signals;
    }

    sigset_t signal_ = fileSizeSignal();
    sigset_t maskBefore_{};
    bool wasPending_;
};

struct CloseFile {
    void operator()(std::FILE* file) const noexcept { static_cast<void>(std::fclose(file)); }
};

struct RemoveFile {
    void operator()(const char* path) const noexcept { unlink(path); }
};

/// Whether nothing has this name, or a plain file of this user's that has no other name and is not read-only. A file
/// that takes the name after this check loses it again, but none of its content.
bool canBeReplaced(const char* path) noexcept {
    struct stat status {};
    if (lstat(path, &status) != 0) return errno == ENOENT;
    return S_ISREG(status.st_mode) && status.st_uid == geteuid() && status.st_nlink == 1 &&
           (status.st_mode & S_IWUSR) != 0;
}

}  // namespace

void keepDiagnosticCopy(const TiXmlDocument& request, const char* path) {
    if (!canBeReplaced(path)) return;
    const WithoutFileSizeSignal scope;
    std::string name = std::string(path) + ".XXXXXX";
    const int descriptor = mkostemp(name.data(), O_CLOEXEC);
    if (descriptor < 0) return;
    std::unique_ptr<const char, RemoveFile> unfinished(name.c_str());
    std::unique_ptr<std::FILE, CloseFile> file(fdopen(descriptor, "w"));
    if (file == nullptr) {  // GCOVR_EXCL_START: only for want of memory, which no test can take from the C library.
        close(descriptor);
        return;
    }  // GCOVR_EXCL_STOP
    constexpr mode_t ownerOnly = S_IRUSR | S_IWUSR;
    // The umask may have taken away even the owner's rights.
    const bool isWritten = fchmod(descriptor, ownerOnly) == 0 && request.SaveFile(file.get());
    const bool isWhole = std::fclose(file.release()) == 0 && isWritten;
    if (isWhole && std::rename(name.c_str(), path) == 0) static_cast<void>(unfinished.release());
}

}  // namespace kvj
