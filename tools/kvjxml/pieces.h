/// @file pieces.h
/// A stream, cut into its documents where its separators are. No more of it is kept than one document.
#ifndef KVJXML_TOOL_PIECES_H
#define KVJXML_TOOL_PIECES_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace kvj::tool {

class Pieces {
public:
    /// @param path     of a file; "-" for standard input.
    /// @param maxSize  of a piece, in bytes.
    /// @throws Failure when it cannot be opened.
    Pieces(const std::string& path, std::uint64_t maxSize);

    /// What has been read so far and belongs to no piece yet: at least `size` bytes, unless the stream ends before.
    /// @throws Failure when it cannot be read.
    std::string_view peek(std::size_t size);

    /// The next piece, without its separator; an empty separator is in no stream. A piece begins where one can: between
    /// separators that are several bytes long it is a multiple of that length.
    /// @return false when nothing is left: behind the last separator there is a piece only if there are bytes.
    /// @throws Failure when it cannot be read, and nothing is left then; or when the piece is larger than it may be,
    /// and the next call goes on behind its separator.
    bool next(std::string_view separator, std::string& piece);

    /// Whether the last piece had a separator behind it.
    [[nodiscard]] bool wasSeparated() const { return wasSeparated_; }

private:
    class Descriptor {
    public:
        explicit Descriptor(const std::string& path);
        ~Descriptor();
        Descriptor(const Descriptor&) = delete;
        Descriptor& operator=(const Descriptor&) = delete;
        [[nodiscard]] int get() const { return number_; }

    private:
        int number_;
        bool isOwn_;
    };

    bool fill();

    Descriptor file_;
    std::uint64_t maxSize_;
    std::unique_ptr<char[]> block_;
    std::string read_;  ///< from `at_` on what is in no piece yet
    std::size_t at_ = 0;
    bool isAtEnd_ = false;
    bool wasSeparated_ = false;
};

}  // namespace kvj::tool

#endif
