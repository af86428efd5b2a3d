/// @file problems.h
/// What is found out about a request while it is written: which of its values the printer would get otherwise than they
/// are asked for, and where they stand in the record and in the request.
#ifndef KVJXML_FOUNDATION_PROBLEMS_H
#define KVJXML_FOUNDATION_PROBLEMS_H

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/kinds.h"
#include "kvjxml_problem.hpp"

namespace kvj {

/// An element that was opened.
struct Opened {
    std::string_view name;
    std::size_t depth;
    const Description* row;  ///< null when it is not of a table
    int entry;               ///< which entry of a list it is; -1 for none
};

class Problems {
public:
    /// @param hostTexts  the texts of the request's arguments, by which their sizes are known
    explicit Problems(std::span<const std::string_view> hostTexts = {}) : hostTexts_(hostTexts) {}

    void opened(const Opened& element) { elements_.push_back(element); }

    /// Something of the element that was opened last is sent otherwise than asked.
    /// @param field  what comes behind the element's own field in the pointer, "/min"
    /// @param path   what comes behind the element in the path, "/@min"
    void found(kvjxml::problem_kind kind, std::string_view asked, std::string_view sent, std::string_view field = {},
               std::string_view path = {});
    /// Likewise of an element that is left out, below the last one at the depth above.
    void leftOut(kvjxml::problem_kind kind, std::string_view asked, std::size_t depth, std::string_view name,
                 const Description* row);

    /// A text of the host's in full, of which others see what comes before a NUL.
    [[nodiscard]] std::string_view whole(const char* text) const;

    [[nodiscard]] bool empty() const noexcept { return found_.empty(); }
    /// What was found, in the order of the request.
    [[nodiscard]] std::vector<kvjxml::problem> all() const;

private:
    struct Found {
        kvjxml::problem problem;  ///< of its places only the ends
        std::size_t element;
    };
    std::span<const std::string_view> hostTexts_;
    std::vector<Opened> elements_;
    std::vector<Found> found_;
};

}  // namespace kvj

#endif
