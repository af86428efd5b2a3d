/// @file comparison.h
/// What the library makes of a text against what TinyXML makes of it, for hundreds of millions of texts: nothing is
/// written down unless they differ.
#ifndef KVJXML_TESTS_DIFFERENTIAL_COMPARISON_H
#define KVJXML_TESTS_DIFFERENTIAL_COMPARISON_H

#include <tinyxml.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace kvj::differential {

class Comparison {
public:
    Comparison() { reference_.SetTabSize(0); }

    /// Of all texts that are passed, only every `of`-th run of texts is looked at, so that `of` processes with the same
    /// arguments share them.
    void takeShare(unsigned share, unsigned of) noexcept { share_ = share, of_ = of; }

    /// Compares what is made of a text up to its first NUL. Ends the program with exit code 1, the text and both trees
    /// when they are not the same.
    void operator()(std::string_view text);

    [[nodiscard]] std::uint64_t count() const noexcept { return count_; }

private:
    static constexpr unsigned runBits = 10;

    TiXmlDocument reference_;
    std::string padded_;
    std::uint64_t number_ = 0;
    std::uint64_t count_ = 0;
    unsigned share_ = 0;
    unsigned of_ = 1;
};

}  // namespace kvj::differential

#endif
