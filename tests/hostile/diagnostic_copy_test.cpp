// The copy of a request that the service engineer finds is a courtesy: whatever is in its way, the host gets its
// request.
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <stdexcept>
#include <string>

#include "foundation/diagnostic_copy.h"
#include "foundation/request.h"
#include "hostile/composers.h"
#include "support/file_size_limit.h"
#include "support/files.h"

namespace diagnostic_copy_test {

namespace {

using namespace kvj::tests;

/// While this lives, the process runs as a user without rights, as it does anyway unless it is root's.
class WithoutRights {
public:
    WithoutRights() { become(nobody); }
    ~WithoutRights() { become(0); }
    WithoutRights(const WithoutRights&) = delete;
    WithoutRights& operator=(const WithoutRights&) = delete;

    static void give(const std::filesystem::path& path) {
        if (getuid() == 0 && chown(path.c_str(), nobody, nobody) != 0) throw std::runtime_error("chown");
    }

private:
    static constexpr uid_t nobody = 65534;
    static void become(uid_t user) {
        if (getuid() == 0 && seteuid(user) != 0) throw std::runtime_error("seteuid");
    }
};

/// Checks each composer that leaves a copy, with something in the way of the copy: the text is the same as ever.
template <class Obstruct>
void expectComposed(Obstruct obstruct) {
    withEachComposer([&](const Composer& composer) {
        if (composer.copy == nullptr) return;
        const std::string whole = textOf(composer);
        ASSERT_NE(whole, "");
        const std::filesystem::path copy = composer.copy;
        std::filesystem::remove(copy);
        obstruct(copy, [&] { EXPECT_EQ(textOf(composer), whole); });
    });
}

TEST(CopyInTheWay, AFileThatIsReadOnlyStaysAsItIs) {
    expectComposed([](const auto& copy, auto expectText) {
        kvj::tests::write(copy, "old");
        std::filesystem::permissions(copy, std::filesystem::perms{0400});
        WithoutRights::give(copy);
        {
            const WithoutRights scope;
            expectText();
        }
        EXPECT_EQ(contentOf(copy), "old");
    });
}

TEST(CopyInTheWay, ALimitOnTheSizeOfFilesEndsNothing) {
    expectComposed([](const auto& copy, auto expectText) {
        {
            const FileSizeLimit none(0);
            expectText();
        }
        EXPECT_FALSE(std::filesystem::exists(copy));
        {
            const FileSizeLimit small(4096);
            expectText();
        }
        // A command is smaller than that, a whole configuration larger: it is left whole or not at all.
        const std::string whole = std::filesystem::exists(copy) ? contentOf(copy) : "";
        expectText();
        EXPECT_TRUE(whole == contentOf(copy) || (whole.empty() && std::filesystem::file_size(copy) > 4096));
    });
}

TEST(CopyInTheWay, ALinkToNothingCreatesNothing) {
    expectComposed([](const auto& copy, auto expectText) {
        const TemporaryFolder folder;
        std::filesystem::create_symlink(folder / "target", copy);
        expectText();
        EXPECT_FALSE(std::filesystem::exists(folder / "target"));
    });
}

TEST(CopyInTheWay, APipeThatNobodyReadsDoesNotBlock) {
    expectComposed([](const auto& copy, auto expectText) {
        ASSERT_EQ(mkfifo(copy.c_str(), 0600), 0);
        expectText();
        EXPECT_TRUE(std::filesystem::is_fifo(copy));
    });
}

/// What all composers print.
std::string textOfAll() {
    std::string all;
    for (const Composer& composer : composers()) all += textOf(composer) + '\n';
    return all;
}

/// How a separate process ended that got another file system and then composed all requests there.
enum class Elsewhere { composedAsHere, composedOtherwise, notAllowed };

template <class Enter>
Elsewhere composeElsewhere(Enter enter) {
    for (const Composer& composer : composers()) EXPECT_NE(textOf(composer), "") << composer.name;
    const std::string here = textOfAll();
    const pid_t child = fork();
    if (child == 0) {
        // A user other than root gets a namespace of its own.
        const bool isThere = enter() || (unshare(CLONE_NEWUSER) == 0 && enter());
        const Elsewhere end = !isThere              ? Elsewhere::notAllowed
                              : textOfAll() == here ? Elsewhere::composedAsHere
                                                    : Elsewhere::composedOtherwise;
        _exit(static_cast<int>(end));
    }
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child) throw std::runtime_error("fork");
    return WIFEXITED(status) ? static_cast<Elsewhere>(WEXITSTATUS(status)) : Elsewhere::composedOtherwise;
}

TEST(CopyInTheWay, OnASystemWithoutFilesAllIsComposed) {
    const CopyScope scope;
    const TemporaryFolder folder;
    const Elsewhere end = composeElsewhere(
        [&] { return chdir((folder / "").c_str()) == 0 && chroot(".") == 0 && access("/tmp", F_OK) != 0; });
    if (end == Elsewhere::notAllowed) GTEST_SKIP() << "no process may have another root here";
    EXPECT_EQ(end, Elsewhere::composedAsHere);
    EXPECT_TRUE(std::filesystem::is_empty(folder / ""));
}

TEST(CopyInTheWay, OnADiskThatCannotBeWrittenAllIsComposed) {
    const CopyScope scope;
    const Elsewhere end = composeElsewhere([] {
        return unshare(CLONE_NEWNS) == 0 && mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
               mount("none", "/tmp", "tmpfs", MS_RDONLY, nullptr) == 0;
    });
    if (end == Elsewhere::notAllowed) GTEST_SKIP() << "no process may have mounts of its own here";
    EXPECT_EQ(end, Elsewhere::composedAsHere);
}

TEST(DiagnosticCopy, InAFolderThatCannotBeWrittenIsNotMade) {
    const TemporaryFolder folder;
    const std::filesystem::path closed = folder / "closed";
    std::filesystem::create_directory(closed);
    WithoutRights::give(closed);
    std::filesystem::permissions(closed, std::filesystem::perms{0500});
    std::filesystem::permissions(folder / "", std::filesystem::perms{0755});
    {
        const WithoutRights scope;
        TiXmlDocument request;
        kvj::beginRequest(request, "nonce");
        kvj::keepDiagnosticCopy(request, (closed / "settings").c_str());
    }
    EXPECT_TRUE(std::filesystem::is_empty(closed));
}

}  // namespace

}  // namespace diagnostic_copy_test
