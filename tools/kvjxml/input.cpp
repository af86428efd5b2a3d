#include "input.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <system_error>

#include "failure.h"

namespace kvj::tool {

namespace {

struct CloseFile {
    void operator()(std::FILE* file) const noexcept { static_cast<void>(std::fclose(file)); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

[[noreturn]] void cannotRead(const std::string& name) {
    throw Failure(ExitCode::inputOutput, name + ": cannot be read: " + std::generic_category().message(errno));
}

std::string contentOf(std::FILE* file, const Source& source) {
    if (file == nullptr) cannotRead(source.name());
    std::string bytes;
    std::array<char, 4096> block{};
    while (const std::size_t count = std::fread(block.data(), 1, block.size(), file)) {
        bytes.append(block.data(), count);
        if (bytes.size() > source.maxSize) {
            throw Failure(ExitCode::inputOutput, source.name() + ": is larger than " + std::to_string(source.maxSize) +
                                                     " bytes; --max-size takes more");
        }
    }
    if (std::ferror(file) != 0) cannotRead(source.name());
    return bytes;
}

}  // namespace

std::string readBytes(const Source& source) {
    if (source.path == "-") return contentOf(stdin, source);
    return contentOf(File(std::fopen(source.path.c_str(), "rb")).get(), source);
}

}  // namespace kvj::tool
