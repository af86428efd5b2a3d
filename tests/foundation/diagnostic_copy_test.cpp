// The copy of a request that the service engineer finds: who else can see it, what it leaves alone, and what becomes of
// it when anything goes wrong.
#include "foundation/diagnostic_copy.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

#include "foundation/request.h"
#include "support/file_size_limit.h"
#include "support/files.h"

namespace diagnostic_copy_test {

using kvj::tests::contentOf;
using kvj::tests::FileSizeLimit;
using kvj::tests::TemporaryFolder;

namespace {

/// A request with a text of this many characters.
TiXmlDocument requestOf(std::size_t length) {
    TiXmlDocument request;
    TiXmlElement* root = kvj::beginRequest(request, "nonce");
    root->LinkEndChild(new TiXmlText(std::string(length, 'n').c_str()));
    return request;
}

std::string textOf(const TiXmlDocument& request) {
    const TemporaryFolder folder;
    if (!kvj::save(request, (folder / "request.xml").c_str())) throw std::runtime_error("cannot save");
    return contentOf(folder / "request.xml");
}

mode_t modeOf(const std::filesystem::path& path) {
    struct stat status {};
    if (lstat(path.c_str(), &status) != 0) throw std::runtime_error("no file " + path.string());
    return status.st_mode & 07777;
}

class UmaskScope {
public:
    explicit UmaskScope(mode_t mask) : before_(umask(mask)) {}
    ~UmaskScope() { umask(before_); }
    UmaskScope(const UmaskScope&) = delete;
    UmaskScope& operator=(const UmaskScope&) = delete;

private:
    mode_t before_;
};

/// Folders for the copy and for what does not belong to it; nothing but the copy is ever left in the first.
class DiagnosticCopy : public testing::Test {
protected:
    TemporaryFolder folder;
    TemporaryFolder elsewhere;
    std::filesystem::path path = folder / "settings";
    std::filesystem::path other = elsewhere / "other";

    void keep(std::size_t length = 10) const {
        kvj::keepDiagnosticCopy(requestOf(length), path.c_str());
        for (const auto& entry : std::filesystem::directory_iterator(folder / "")) EXPECT_EQ(entry.path(), path);
    }
};

const std::string copyText = textOf(requestOf(10));

// ---- What is left ----

TEST_F(DiagnosticCopy, IsTheDocument) {
    keep();
    EXPECT_EQ(contentOf(path), copyText);
}

TEST_F(DiagnosticCopy, IsReadableByItsOwnerAloneWhateverTheUmask) {
    const UmaskScope open(0);
    keep();
    EXPECT_EQ(modeOf(path), mode_t{0600});
}

TEST_F(DiagnosticCopy, IsReadableByItsOwnerUnderATightUmask) {
    const UmaskScope tight(0777);
    keep();
    EXPECT_EQ(modeOf(path), mode_t{0600});
}

TEST_F(DiagnosticCopy, ReplacesALongerOneThatEveryoneCouldRead) {
    kvj::tests::write(path, std::string(5000, 'z'));
    std::filesystem::permissions(path, std::filesystem::perms{0644});
    keep();
    EXPECT_EQ(contentOf(path), copyText);
    EXPECT_EQ(modeOf(path), mode_t{0600});
}

TEST_F(DiagnosticCopy, WhoHoldsTheOldOneOpenSeesTheOldOne) {
    kvj::tests::write(path, "old");
    std::filesystem::permissions(path, std::filesystem::perms{0644});
    std::ifstream reader(path);
    keep();
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(reader), {}), "old");
    EXPECT_EQ(contentOf(path), copyText);
}

// ---- What is in the way ----

TEST_F(DiagnosticCopy, ALinkIsNotFollowed) {
    kvj::tests::write(other, "precious");
    std::filesystem::permissions(other, std::filesystem::perms{0644});
    std::filesystem::create_symlink(other, path);
    keep();
    EXPECT_EQ(contentOf(other), "precious");
    EXPECT_EQ(modeOf(other), mode_t{0644});
    EXPECT_TRUE(std::filesystem::is_symlink(path));
}

TEST_F(DiagnosticCopy, ALinkToNothingCreatesNothing) {
    std::filesystem::create_symlink(other, path);
    keep();
    EXPECT_FALSE(std::filesystem::exists(other));
    EXPECT_TRUE(std::filesystem::is_symlink(path));
}

TEST_F(DiagnosticCopy, AFileWithASecondNameIsNotTouched) {
    kvj::tests::write(other, "precious");
    std::filesystem::permissions(other, std::filesystem::perms{0644});
    std::filesystem::create_hard_link(other, path);
    keep();
    EXPECT_EQ(contentOf(other), "precious");
    EXPECT_EQ(modeOf(other), mode_t{0644});
    EXPECT_EQ(std::filesystem::hard_link_count(other), 2U);
}

TEST_F(DiagnosticCopy, AFileOfAnotherUserKeepsItsContent) {
    if (geteuid() != 0) GTEST_SKIP() << "only root can give a file away";
    kvj::tests::write(path, "precious");
    std::filesystem::permissions(path, std::filesystem::perms{0644});
    ASSERT_EQ(chown(path.c_str(), 65534, 65534), 0);
    keep();
    EXPECT_EQ(contentOf(path), "precious");
    EXPECT_EQ(modeOf(path), mode_t{0644});
}

TEST_F(DiagnosticCopy, AFolderIsNotTouched) {
    std::filesystem::create_directory(path);
    std::filesystem::permissions(path, std::filesystem::perms{0755});
    keep();
    EXPECT_TRUE(std::filesystem::is_empty(path));
    EXPECT_EQ(modeOf(path), mode_t{0755});
}

TEST_F(DiagnosticCopy, APipeThatNobodyReadsDoesNotBlock) {
    ASSERT_EQ(mkfifo(path.c_str(), 0644), 0);
    keep();
    EXPECT_TRUE(std::filesystem::is_fifo(path));
}

TEST_F(DiagnosticCopy, APipeThatSomebodyReadsIsNotTouched) {
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    std::filesystem::permissions(path, std::filesystem::perms{0644});
    const int reader = open(path.c_str(), O_RDONLY | O_NONBLOCK);
    ASSERT_GE(reader, 0);
    keep();
    char byte = 0;
    EXPECT_EQ(read(reader, &byte, 1), 0);
    EXPECT_EQ(modeOf(path), mode_t{0644});
    close(reader);
}

TEST_F(DiagnosticCopy, AMissingFolderStaysMissing) {
    kvj::keepDiagnosticCopy(requestOf(10), (folder / "missing/settings").c_str());
    EXPECT_FALSE(std::filesystem::exists(folder / "missing"));
}

TEST_F(DiagnosticCopy, AFileThatIsReadOnlyStaysAsItIs) {
    kvj::tests::write(path, "old");
    std::filesystem::permissions(path, std::filesystem::perms{0400});
    keep();
    EXPECT_EQ(contentOf(path), "old");
    EXPECT_EQ(modeOf(path), mode_t{0400});
}

TEST_F(DiagnosticCopy, KeepsNoFileOpen) {
    const auto openFiles = [] {
        return std::distance(std::filesystem::directory_iterator("/proc/self/fd"),
                             std::filesystem::directory_iterator());
    };
    const auto before = openFiles();
    keep();
    std::filesystem::remove(path);
    std::filesystem::create_directory(path);
    keep();
    std::filesystem::remove(path);
    ASSERT_EQ(mkfifo(path.c_str(), 0644), 0);
    keep();
    EXPECT_EQ(openFiles(), before);
}

// ---- A limit on the size of files ----

/// The signal of that limit, as a host has it.
class SignalOfTheLimit {
public:
    explicit SignalOfTheLimit(void (*disposition)(int)) : before_(std::signal(SIGXFSZ, disposition)) { caught = 0; }
    ~SignalOfTheLimit() { std::signal(SIGXFSZ, before_); }
    SignalOfTheLimit(const SignalOfTheLimit&) = delete;
    SignalOfTheLimit& operator=(const SignalOfTheLimit&) = delete;

    static void count(int /*signal*/) { caught = caught + 1; }
    static inline volatile std::sig_atomic_t caught = 0;

    static void (*current())(int) {
        struct sigaction action {};
        sigaction(SIGXFSZ, nullptr, &action);
        return action.sa_handler;
    }
    static bool isPending() {
        sigset_t pending;
        sigpending(&pending);
        return sigismember(&pending, SIGXFSZ) == 1;
    }

private:
    void (*before_)(int);
};

sigset_t onlySignalOfTheLimit() {
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGXFSZ);
    return signals;
}

/// The signals that the calling thread blocks.
std::vector<int> blockedSignals() {
    sigset_t mask;
    pthread_sigmask(SIG_BLOCK, nullptr, &mask);
    std::vector<int> signals;
    for (int signal = 1; signal < NSIG; ++signal) {
        if (sigismember(&mask, signal) == 1) signals.push_back(signal);
    }
    return signals;
}

TEST_F(DiagnosticCopy, BeyondTheLimitTheOldOneStaysAndNoSignalComes) {
    for (void (*disposition)(int) : {SIG_DFL, SIG_IGN, &SignalOfTheLimit::count}) {
        for (const int how : {SIG_UNBLOCK, SIG_BLOCK}) {
            const SignalOfTheLimit scope(disposition);
            const sigset_t signals = onlySignalOfTheLimit();
            pthread_sigmask(how, &signals, nullptr);
            const std::vector<int> blocked = blockedSignals();
            for (const rlim_t limit : {0U, 4096U}) {
                kvj::tests::write(path, "old");
                {
                    const FileSizeLimit limited(limit);
                    keep(100'000);
                }
                EXPECT_EQ(contentOf(path), "old");
                EXPECT_FALSE(SignalOfTheLimit::isPending());
                EXPECT_EQ(blockedSignals(), blocked);
                EXPECT_EQ(SignalOfTheLimit::current(), disposition);
            }
            pthread_sigmask(SIG_UNBLOCK, &signals, nullptr);
            EXPECT_EQ(SignalOfTheLimit::caught, 0);
        }
    }
}

TEST_F(DiagnosticCopy, WithinTheLimitIsLeft) {
    const FileSizeLimit limited(4096);
    keep();
    EXPECT_EQ(contentOf(path), copyText);
}

TEST_F(DiagnosticCopy, ASignalThatTheHostHasWaitingStaysThere) {
    const SignalOfTheLimit scope(&SignalOfTheLimit::count);
    const sigset_t signals = onlySignalOfTheLimit();
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    ASSERT_EQ(std::raise(SIGXFSZ), 0);
    {
        const FileSizeLimit limited(0);
        keep();
    }
    EXPECT_TRUE(SignalOfTheLimit::isPending());
    EXPECT_EQ(SignalOfTheLimit::caught, 0);
    pthread_sigmask(SIG_UNBLOCK, &signals, nullptr);
    EXPECT_EQ(SignalOfTheLimit::caught, 1);
}

TEST_F(DiagnosticCopy, BeyondTheLimitNothingIsSaid) {
    testing::internal::CaptureStderr();
    {
        const FileSizeLimit limited(0);
        keep();
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_FALSE(std::filesystem::exists(path));
}

// ---- Several processes ----

/// A separate process, which runs until it is done or is ended.
class Process {
public:
    template <class Run>
    explicit Process(Run run) : id_(fork()) {
        if (id_ < 0) throw std::runtime_error("fork");
        if (id_ != 0) return;
        run();
        _exit(0);
    }
    ~Process() {
        kill();
        if (!isOver_) waitpid(id_, nullptr, 0);
    }
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    void kill() const {
        if (!isOver_) ::kill(id_, SIGKILL);
    }
    bool isOver() {
        isOver_ = isOver_ || waitpid(id_, nullptr, WNOHANG) == id_;
        return isOver_;
    }

private:
    pid_t id_;
    bool isOver_ = false;
};

// Longer than what is written at once, and of lengths that tell them apart.
constexpr std::size_t lengths[] = {100, 20'000, 60'000};

void keepAll(const std::filesystem::path& path, int rounds) {
    for (int round = 0; round < rounds; ++round) {
        for (const std::size_t length : lengths) kvj::keepDiagnosticCopy(requestOf(length), path.c_str());
    }
}

std::vector<std::string> wholeTexts() {
    std::vector<std::string> texts;
    for (const std::size_t length : lengths) texts.push_back(textOf(requestOf(length)));
    return texts;
}

TEST_F(DiagnosticCopy, IsWholeForWhoReadsWhileOthersCompose) {
    const std::vector<std::string> texts = wholeTexts();
    keep(lengths[0]);
    const auto compose = [&] { keepAll(path, 200); };
    Process first(compose);
    Process second(compose);
    int torn = 0;
    while (!first.isOver() || !second.isOver()) torn += std::ranges::count(texts, contentOf(path)) == 0 ? 1 : 0;
    EXPECT_EQ(torn, 0);
    keep(lengths[0]);  // Looks for what else is left, too.
    EXPECT_EQ(contentOf(path), texts[0]);
}

TEST_F(DiagnosticCopy, OfAProcessThatIsEndedIsWholeAndWhatElseIsLeftOnlyItsOwnerCanRead) {
    const UmaskScope open(0);
    const std::vector<std::string> texts = wholeTexts();
    for (int round = 0; round < 50; ++round) {
        {
            const Process composing([&] { keepAll(path, 1'000'000); });
            usleep(static_cast<useconds_t>(2'000 + 137 * round));
        }
        int leftOver = 0;
        for (const auto& entry : std::filesystem::directory_iterator(folder / "")) {
            EXPECT_EQ(modeOf(entry.path()), mode_t{0600});
            if (entry.path() == path) {
                EXPECT_EQ(std::ranges::count(texts, contentOf(path)), 1);
            } else {
                ++leftOver;
                std::filesystem::remove(entry.path());
            }
        }
        EXPECT_LE(leftOver, 1);
    }
}

}  // namespace

}  // namespace diagnostic_copy_test
