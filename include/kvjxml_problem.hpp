/// @file kvjxml_problem.hpp
/// Why a request is not composed: what of it the printer would get otherwise than the host asks.
#ifndef KVJXML_PROBLEM_HPP
#define KVJXML_PROBLEM_HPP

#include <string>

namespace kvjxml {
inline namespace v1 {

/// What kind of problem there is. Unless it says otherwise, a host that accepts changes gets the text all the same.
enum class problem_kind : int {
    no_word,          ///< A code for which the printer takes no word.
    no_bit,           ///< A bit for which the printer takes no word; it would be left out.
    out_of_range,     ///< A setting outside its own `min` and `max`.
    sent_as_maximum,  ///< A setting with a fraction, whose maximum the printer expects in place of its value.
    digits_lost,      ///< A number that the digits which are written do not keep, or one that is not finite.
    not_utf8,         ///< A text that is not UTF-8.
    no_character,     ///< A text with a control character, or with one that XML does not have.
    read_otherwise,   ///< A text that loses something when it is read: blanks at its ends or in a row, a mark in front.
    holds_nul,        ///< A text with a NUL, which would end it.
    no_name,          ///< A text that cannot be the name of an element.
    missing,          ///< A text that the request cannot do without.
    nothing_to_send,  ///< The request would say nothing. There is no text, even if changes are accepted.
    no_request,       ///< The library that the host runs with is older than its headers and does not know the request.
};

/// One problem. Texts that are asked or sent can be secrets.
struct problem {
    problem_kind kind = problem_kind::no_word;
    /// The field, as a JSON pointer into the record: "/wireless/security", "/fonts/2/style".
    std::string field;
    /// The element or attribute of the request, as an XPath. An element has an index only where others beside it have
    /// its name: "/configuration/ethernet[2]/security", "/configuration/lcd_contrast/@min". One that would be left out
    /// is named all the same.
    std::string path;
    std::string asked;  ///< What is asked for: the field's value as text.
    std::string sent;   ///< What would be sent, before characters become references. Empty for what would be left out.
};

}  // namespace v1
}  // namespace kvjxml

#endif
