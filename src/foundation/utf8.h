/// @file utf8.h
/// Whether bytes are UTF-8.
#ifndef KVJXML_FOUNDATION_UTF8_H
#define KVJXML_FOUNDATION_UTF8_H

#include <string_view>

namespace kvj {

/// Where the first byte is, from `from` on, that belongs to no character of UTF-8: one of an overlong form, of a
/// surrogate, of a number beyond Unicode, or one that lacks its companions. The length of the text when there is none.
std::size_t firstOutsideUtf8(std::string_view text, std::size_t from = 0) noexcept;

}  // namespace kvj

#endif
