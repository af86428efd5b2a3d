#include "foundation/request.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <memory>

#include "foundation/multibyte.h"

namespace kvjxml {

namespace {

/// Hands the printed text over to `deliver`; false when it cannot be printed.
template <class Deliver>
bool printed(const TiXmlDocument& request, Deliver deliver) {
    TiXmlPrinter printer;
    printer.SetIndent("    ");
    if (!request.Accept(&printer)) return false;
    deliver(printer.CStr());
    return true;
}

struct CloseFile {
    void operator()(std::FILE* file) const noexcept { static_cast<void>(std::fclose(file)); }
};

/// Whether the open file is a plain file of this user's, and known by this one name.
bool isOwn(int descriptor) noexcept {
    struct stat status {};
    return fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) && status.st_uid == geteuid() &&
           status.st_nlink == 1;
}

}  // namespace

TiXmlElement* beginRequest(TiXmlDocument& request, const char* rootName) {
    auto declaration = std::make_unique<TiXmlDeclaration>("1.0", "UTF-8", "");
    auto root = std::make_unique<TiXmlElement>(rootName);
    request.LinkEndChild(declaration.release());
    return request.LinkEndChild(root.release())->ToElement();
}

TiXmlElement* beginRequestAnew(TiXmlDocument& request, const char* rootName) {
    request.Clear();
    return beginRequest(request, rootName);
}

bool print(const TiXmlDocument& request, wchar_t* out, int capacity) {
    if (out == nullptr || capacity < 0) return false;
    return printed(request, [&](const char* text) { toWide(text, out, static_cast<std::size_t>(capacity)); });
}

bool print(const TiXmlDocument& request, char* out) {
    if (out == nullptr) return false;
    return printed(request, [&](const char* text) { std::memcpy(out, text, std::strlen(text) + 1); });
}

bool save(const TiXmlDocument& request, const char* path) { return path != nullptr && request.SaveFile(path); }

void keepDiagnosticCopy(const TiXmlDocument& request, const char* path) {
    constexpr mode_t ownerOnly = S_IRUSR | S_IWUSR;
    // Not blocking: a pipe under that name would otherwise hold the host up.
    const int descriptor = open(path, O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, ownerOnly);
    if (descriptor < 0) return;
    const std::unique_ptr<std::FILE, CloseFile> file(fdopen(descriptor, "w"));
    if (file == nullptr) {  // GCOVR_EXCL_START: only for want of memory, which no test can take from the C library.
        close(descriptor);
        return;
    }  // GCOVR_EXCL_STOP
    if (!isOwn(descriptor) || fchmod(descriptor, ownerOnly) != 0 || ftruncate(descriptor, 0) != 0) return;
    static_cast<void>(request.SaveFile(file.get()));
}

}  // namespace kvjxml
