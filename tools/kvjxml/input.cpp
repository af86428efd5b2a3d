#include "input.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cwchar>
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

std::wstring wideOf(const std::string& bytes, const std::string& name) {
    std::wstring text(bytes.size(), L'\0');
    std::mbstate_t state{};
    std::size_t length = 0;
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t used = std::mbrtowc(&text[length], &bytes[at], bytes.size() - at, &state);
        if (used == 0) break;  // A NUL ends a reply for its reader, too.
        if (used > bytes.size() - at) {
            throw Failure(ExitCode::unknownMessage, name + ": byte " + std::to_string(at) + " is not UTF-8 text");
        }
        at += used;
        ++length;
    }
    return text;
}

}  // namespace

std::string readBytes(const Source& source) {
    if (source.path == "-") return contentOf(stdin, source);
    return contentOf(File(std::fopen(source.path.c_str(), "rb")).get(), source);
}

Input readInput(const Source& source) {
    Input input{source.name(), readBytes(source), {}};
    input.text = wideOf(input.bytes, input.name);
    return input;
}

}  // namespace kvj::tool
