/// @file fitness.h
/// Whether a text arrives as it is sent.
#ifndef KVJXML_FOUNDATION_FITNESS_H
#define KVJXML_FOUNDATION_FITNESS_H

#include <optional>
#include <string_view>

#include "kvjxml_problem.hpp"

namespace kvj {

/// Blanks are condensed in the text of an element; an attribute keeps them.
enum class Stands { inElement, inAttribute };

/// Why a text does not arrive as it is; none when it does.
std::optional<kvjxml::problem_kind> unfitness(std::string_view text, Stands where);

/// Whether a text can be the name of an element: ASCII letters, digits, "_", "-" and ".", a letter or "_" first.
bool isName(std::string_view text);

}  // namespace kvj

#endif
