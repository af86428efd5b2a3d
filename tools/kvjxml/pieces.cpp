#include "pieces.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <iostream>
#include <system_error>
#include <utility>

#include "failure.h"

namespace kvj::tool {

namespace {

constexpr std::size_t blockSize = 64 << 10;

[[noreturn]] void cannotRead() {
    throw Failure(ExitCode::inputOutput, "cannot be read: " + std::generic_category().message(errno));
}

/// Where a separator is, at a multiple of its own length.
std::size_t findSeparator(std::string_view text, std::string_view separator, std::size_t from) {
    if (separator.empty()) return std::string_view::npos;
    std::size_t at = text.find(separator, from);
    while (at != std::string_view::npos && at % separator.size() != 0) at = text.find(separator, at + 1);
    return at;
}

}  // namespace

Pieces::Descriptor::Descriptor(const std::string& path)
    : number_(path == "-" ? STDIN_FILENO : open(path.c_str(), O_RDONLY | O_CLOEXEC)), isOwn_(path != "-") {
    if (number_ < 0) cannotRead();
}

Pieces::Descriptor::~Descriptor() {
    if (isOwn_) static_cast<void>(close(number_));
}

Pieces::Pieces(const std::string& path, std::uint64_t maxSize)
    : file_(path), maxSize_(maxSize), block_(std::make_unique_for_overwrite<char[]>(blockSize)) {}

bool Pieces::fill() {
    if (isAtEnd_) return false;
    // Whoever sends the documents may wait for what is said of those that came.
    if (file_.get() == STDIN_FILENO) std::cout.flush();
    ssize_t count = 0;
    do {
        count = ::read(file_.get(), block_.get(), blockSize);
    } while (count < 0 && errno == EINTR);
    isAtEnd_ = count <= 0;
    if (count < 0) cannotRead();
    read_.erase(0, at_);
    at_ = 0;
    read_.append(block_.get(), static_cast<std::size_t>(count));
    return !isAtEnd_;
}

std::string_view Pieces::peek(std::size_t size) {
    while (read_.size() - at_ < size && fill()) {
    }
    return std::string_view(read_).substr(at_);
}

bool Pieces::next(std::string_view separator, std::string& piece) {
    std::size_t searched = 0;
    bool isTooLarge = false;
    for (;;) {
        const std::string_view rest = std::string_view(read_).substr(at_);
        const std::size_t end = findSeparator(rest, separator, searched);
        wasSeparated_ = end != std::string_view::npos;
        isTooLarge |= std::min(end, rest.size()) > maxSize_;
        if (isTooLarge && separator.empty()) {
            isAtEnd_ = true;
            at_ = read_.size();
            break;
        }
        if (wasSeparated_) {
            piece = rest.substr(0, end);
            at_ += end + separator.size();
            break;
        }
        if (isTooLarge) {
            // Nothing of it is kept but what may be the beginning of a separator.
            at_ += rest.size() - rest.size() % separator.size();
            searched = 0;
        } else {
            searched = rest.size() - std::min(rest.size(), separator.size());
        }
        if (fill()) continue;
        read_.erase(0, at_);
        at_ = 0;
        piece = std::exchange(read_, {});
        if (piece.empty() && !isTooLarge) return false;
        break;
    }
    if (isTooLarge) {
        throw Failure(ExitCode::inputOutput,
                      "is larger than " + std::to_string(maxSize_) + " bytes; --max-size takes more");
    }
    return true;
}

}  // namespace kvj::tool
